/// \file
/// What the tests of the model display share: components filled from end to end, their members as
/// lines of text, and short ways to build them.
#pragma once

#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/display/assembly_list.h>

#include "platform/print_text.h"

namespace mqp::test {

/// One line "name: value" a member.
using Lines = std::vector<std::string>;

/// Calls `visit(name, member)` for every member but the flip records. The binding does not compile
/// when a member is missing here.
template <class Component, class Visit>
void VisitMembers(Component& component, const Visit& visit) {
  using Members =
      std::conditional_t<std::is_const_v<Component>, const AsmCompMembers, AsmCompMembers>;
  Members& members = component;
  // clang-format off
  auto& [compId, firstElem, lastElem, color, bottomColor, hidden, compName, bodyName, bodyId,
         visIndexBase, ints11, doubles11, owns, sectProp, double14, extra, ints16, pointers16,
         arrays17, arrays18, ints19, pointers20, ints20, doubles20, owns2, ints22, array23, array24,
         tempHidden] = members;
  visit("m_nCompID",        compId);
  visit("m_nFirstElem",     firstElem);
  visit("m_nLastElem",      lastElem);
  visit("m_Color",          color);
  visit("m_BottomColor",    bottomColor);
  visit("m_bHidden",        hidden);
  visit("m_strCompName",    compName);
  visit("m_strBodyName",    bodyName);
  visit("m_nBodyID",        bodyId);
  visit("m_nVisIndexBase",  visIndexBase);
  visit("m_nHost11",        ints11);
  visit("m_dHost11",        doubles11);
  visit("m_bOwnsMeshData",  owns);
  visit("m_arrSectProp",    sectProp);
  visit("m_dHost14",        double14);
  visit("m_strExtra",       extra);
  visit("m_nHost16",        ints16);
  visit("m_pHost16",        pointers16);
  visit("m_arrHost17",      arrays17);
  visit("m_arrHost18",      arrays18);
  visit("m_nHost19",        ints19);
  visit("m_pHost20",        pointers20);
  visit("m_nHost20",        ints20);
  visit("m_dHost20",        doubles20);
  visit("m_bOwnsMeshData2", owns2);
  visit("m_nHost22",        ints22);
  visit("m_arrHost23",      array23);
  visit("m_arrHost24",      array24);
  visit("m_bTempHidden",    tempHidden);
  visit("m_nHost27",        component.m_nHost27);
  // clang-format on
}

inline std::string Show(int value) {
  return std::to_string(value);
}
inline std::string Show(double value) {
  char text[32];  // the same in every locale
  return {text, std::to_chars(text, text + sizeof text, value, std::chars_format::general, 17).ptr};
}
inline std::string Show(const void* pointer) {
  char text[32];
  std::snprintf(text, sizeof text, "%p", pointer);
  return pointer == nullptr ? "null" : text;
}
inline std::string Show(const CString& value) {
  return ::testing::PrintToString(value);
}
inline std::string Show(const COGLColor& color) {
  return Show(double{color.Red()}) + ' ' + Show(double{color.Green()}) + ' ' +
         Show(double{color.Blue()}) + ' ' + Show(double{color.Alpha()});
}
/// By value: two records of equal values read the same.
inline std::string Show(const CShellEntityID_FlipData* record) {
  return record == nullptr
             ? "null"
             : Show(record->m_nHost1) + '/' + Show(record->m_nHost2) + '/' + Show(record->m_nHost3);
}
template <class Element>
std::string Show(const CArray<Element>& array);
template <class Element, std::size_t kCount>
std::string Show(const Element (&elements)[kCount]) {
  std::string text = "[";
  for (std::size_t index = 0; index < kCount; ++index) {
    text += (index == 0 ? "" : " ") + Show(elements[index]);
  }
  return text + ']';
}
template <class Element>
std::string Show(const CArray<Element>& array) {
  std::string text = "(";
  for (int index = 0; index < array.GetSize(); ++index) {
    text += (index == 0 ? "" : " ") + Show(array[index]);
  }
  return text + ')';
}

/// Every member of a component, the flip records by their values.
inline Lines Describe(const CDspAsmComp& component) {
  Lines lines;
  VisitMembers(component, [&lines](const char* name, const auto& member) {
    lines.push_back(name + (": " + Show(member)));
  });
  lines.push_back("m_arrFlipData: " + Show(component.m_arrFlipData));
  return lines;
}

/// Every component of a list with its value.
inline Lines Describe(const CDspAsmCompList& list) {
  Lines lines;
  lines.push_back(Show(list.m_arrComps.GetSize()) + " components");
  lines.push_back("values: " + Show(list.m_arrCompValues));
  for (int index = 0; index < list.m_arrComps.GetSize(); ++index) {
    for (const std::string& line : Describe(list.m_arrComps[index])) {
      lines.push_back(Show(index) + ' ' + line);
    }
  }
  return lines;
}

/// The lines that differ; empty when none does.
inline std::string Difference(const Lines& got, const Lines& expected) {
  std::string text;
  for (std::size_t index = 0; index < got.size() || index < expected.size(); ++index) {
    const std::string gotLine = index < got.size() ? got[index] : "nothing";
    const std::string expectedLine = index < expected.size() ? expected[index] : "nothing";
    if (gotLine != expectedLine) {
      text += "\n  got      " + gotLine + "\n  expected " + expectedLine;
    }
  }
  return text;
}

/// The lines with those of the same names replaced.
inline Lines With(Lines lines, const Lines& changes) {
  for (const std::string& change : changes) {
    const std::string_view name = std::string_view(change).substr(0, change.find(':') + 1);
    bool isFound = false;
    for (std::string& line : lines) {
      if (line.starts_with(name)) {
        line = change;
        isFound = true;
      }
    }
    EXPECT_TRUE(isFound) << change;
  }
  return lines;
}

/// Addresses for pointers that nobody follows.
inline void* SomeAddress(int number) {
  static char memory[1024];
  return &memory[number];
}

/// Gives each value that it meets a number of its own, so that no two members look alike.
class Filler {
 public:
  explicit Filler(int first) : m_next(first) {}

  void operator()(int& value) { value = Next(); }
  void operator()(double& value) { value = Next() + 0.25; }
  void operator()(CString& value) { value.Format(MQ_TEXT("text %d"), Next()); }
  void operator()(COGLColor& value) {
    const float red = static_cast<float>(Next()) / 1024.0F;
    const float green = static_cast<float>(Next()) / 1024.0F;
    const float blue = static_cast<float>(Next()) / 1024.0F;
    value = COGLColor(red, green, blue, static_cast<float>(Next()) / 1024.0F);
  }
  void operator()(void*& value) { value = SomeAddress(Next()); }
  void operator()(cSectPropPerMeshElem*& value) {
    value = static_cast<cSectPropPerMeshElem*>(SomeAddress(Next()));
  }
  template <class Element>
  void operator()(ValueArray<Element>& array) {
    array.SetSize(1 + Next() % 3);
    for (int index = 0; index < array.GetSize(); ++index) {
      (*this)(array[index]);
    }
  }
  template <class Element, std::size_t kCount>
  void operator()(Element (&elements)[kCount]) {
    for (Element& element : elements) {
      (*this)(element);
    }
  }

 private:
  int Next() { return m_next++; }

  int m_next;
};

/// A component whose every member differs from its default and, for another `first`, from that of
/// another one. It owns nothing and holds no flip records.
inline CDspAsmComp Filled(int first) {
  CDspAsmComp component;
  Filler fill(first);
  VisitMembers(component, [&fill](const char*, auto& member) { fill(member); });
  return component;
}

/// The members that a list looks at.
struct Body {
  int compId = 0;
  int first = -1;
  int last = -1;
  const mqChar* name = MQ_TEXT("");
  const mqChar* bodyName = MQ_TEXT("");
  int bodyId = 0;
  int hidden = 0;
  int visIndexBase = 1;
  int tempHidden = 0;
};

inline CDspAsmComp Make(const Body& body) {
  CDspAsmComp component;
  component.m_nCompID = body.compId;
  component.m_nFirstElem = body.first;
  component.m_nLastElem = body.last;
  component.m_strCompName = body.name;
  component.m_strBodyName = body.bodyName;
  component.m_nBodyID = body.bodyId;
  component.m_bHidden = body.hidden;
  component.m_nVisIndexBase = body.visIndexBase;
  component.m_bTempHidden = body.tempHidden;
  return component;
}

inline CDspAsmCompList MakeList(const std::vector<Body>& bodies) {
  CDspAsmCompList list;
  for (const Body& body : bodies) {
    list.Add(Make(body));
  }
  return list;
}

/// The array as a sequence that prints.
template <class Element>
std::vector<Element> Read(const CArray<Element>& array) {
  std::vector<Element> elements;
  for (int index = 0; index < array.GetSize(); ++index) {
    elements.push_back(array[index]);
  }
  return elements;
}

/// What `member` says of each component in turn.
template <class Value>
std::vector<Value> Column(const CDspAsmCompList& list, Value AsmCompMembers::* member) {
  std::vector<Value> values;
  for (int index = 0; index < list.m_arrComps.GetSize(); ++index) {
    values.push_back(list.m_arrComps[index].*member);
  }
  return values;
}

/// What a list, or an index of one, says of an element.
struct VisibleRow {
  int elem;
  int result;
  int index;  ///< 999: as it was
};

template <class Asked>
void ExpectVisible(const Asked& asked, const std::vector<VisibleRow>& rows) {
  for (const VisibleRow& row : rows) {
    int index = 999;
    EXPECT_EQ(asked.GetVisPartIndex_1based(row.elem, &index), row.result) << "element " << row.elem;
    EXPECT_EQ(index, row.index) << "element " << row.elem;
  }
}

}  // namespace mqp::test
