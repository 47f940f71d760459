// The constant texts of the library as objects, which are made when a library is loaded and
// destroyed when it goes.

#include <array>
#include <cstddef>
#include <string>

#include <mqPostCommon/catalogue/unit_lists.h>
#include <mqPostCommon/materials/property_tables.h>

namespace mqp::bench {
namespace {

template <std::size_t Count, std::size_t Width>
std::array<std::u16string, Count> MakeObjects(const TextTable<Count, Width>& table) {
  std::array<std::u16string, Count> objects;
  for (std::size_t place = 0; place < Count; ++place) {
    objects[place] = table[static_cast<int>(place)];
  }
  return objects;
}

struct UnitListObject {
  std::u16string name;
  std::u16string text;
};

std::array<UnitListObject, kUnitListTotal> MakeUnitLists() {
  std::array<UnitListObject, kUnitListTotal> objects;
  for (std::size_t place = 0; place < objects.size(); ++place) {
    objects[place] = {g_UnitLists[place].m_strName, g_UnitLists[place].m_strText};
  }
  return objects;
}

const auto keywords = MakeObjects(g_strMatPropKeywords);
const auto units = MakeObjects(g_strMatPropUnits);
const auto unitLists = MakeUnitLists();
const auto model1 = MakeObjects(g_strMatModelKeywords1);
const auto model2 = MakeObjects(g_strMatModelKeywords2);
const auto model3 = MakeObjects(g_strMatModelKeywords3);
const auto model4 = MakeObjects(g_strMatModelKeywords4);
const auto model5 = MakeObjects(g_strMatModelKeywords5);
const auto model6 = MakeObjects(g_strMatModelKeywords6);
const auto model7 = MakeObjects(g_strMatModelKeywords7);
const auto model8 = MakeObjects(g_strMatModelKeywords8);
const auto model9 = MakeObjects(g_strMatModelKeywords9);
const auto model10 = MakeObjects(g_strMatModelKeywords10);
const auto model11 = MakeObjects(g_strMatModelKeywords11);
const auto model12 = MakeObjects(g_strMatModelKeywords12);
const auto model13 = MakeObjects(g_strMatModelKeywords13);
const auto model14 = MakeObjects(g_strMatModelKeywords14);
const auto model15 = MakeObjects(g_strMatModelKeywords15);

}  // namespace
}  // namespace mqp::bench
