#include "loading/early_caller.h"

#include <mqPostCommon/catalogue/components.h>
#include <mqPostCommon/catalogue/names.h>
#include <mqPostCommon/catalogue/units.h>
#include <mqPostCommon/materials/property_tables.h>

namespace mqp::test {
namespace {

// In front of every other global object.
[[gnu::init_priority(101)]] const EarlyAnswers answers = {
    vekPostCommonGetComponentTotal(0, 2, 0, 0, 0, 0, 0, 0, 0),
    vekPostCommonGetActualFreqDispFlag(),
    vekPostCommonGetComponentName(0, 1, 0, 0, 0, 0),
    vekPostCommonGetUnitName(4, 1),
    g_strMatPropKeywords[0],
};

}  // namespace

const EarlyAnswers& AnswersBeforeMain() {
  return answers;
}

}  // namespace mqp::test
