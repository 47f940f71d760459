// Memory runs out in components of an assembly, in their list and in facets.

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/display/assembly_component.h>
#include <mqPostCommon/display/assembly_index.h>
#include <mqPostCommon/display/assembly_list.h>
#include <mqPostCommon/display/stl_facet.h>
#include <mqPostCommon/lists/pairs.h>

#include "faults/allocation_failures.h"
#include "params/record_test_support.h"

namespace mqp::test {
namespace {

constexpr Guarantee kStrong = Guarantee::Strong;
constexpr Guarantee kNeverFails = Guarantee::NeverFails;

using Component = CDspAsmComp;
using Components = CDspAsmCompList;

/// A component with names, mesh data and, as an owner of them, flip records.
Component ComponentOf(int number, int records) {
  Component component(number, 10 * number, 10 * number + 9,
                      COGLColor(static_cast<float>(number), 0.0F, 0.0F, 1.0F), 0);
  component.m_strCompName.Format(MQ_TEXT("Part with the number %d and a name that is long"),
                                 number);
  component.m_strBodyName.Format(MQ_TEXT("Body with the number %d and a name that is long"),
                                 number);
  component.m_strExtra = CString(MQ_TEXT('e'), 10 * number);
  component.m_nBodyID = number;
  component.m_bOwnsMeshData = records > 0 ? 1 : 0;
  component.m_arrSectProp.SetSize(number);
  component.m_arrHost17[2].SetSize(number);
  component.m_arrHost24.SetSize(number);
  for (int record = 0; record < records; ++record) {
    component.m_arrFlipData.Add(new CShellEntityID_FlipData);
    component.m_arrFlipData[record]->m_nHost1 = 100 * number + record;
  }
  return component;
}

std::string DescribeComponent(const Component& component) {
  std::string text = Show(component.m_nCompID) + ": " + Show(component.m_strCompName) + ' ' +
                     Show(component.m_strBodyName) + ' ' + Show(component.m_strExtra) + ' ' +
                     Show(component.m_nFirstElem) + ' ' + Show(component.m_nLastElem) + ", arrays";
  for (const int size :
       {component.m_arrSectProp.GetSize(), component.m_arrHost17[2].GetSize(),
        component.m_arrHost24.GetSize(), component.m_bOwnsMeshData, component.m_bHidden}) {
    text += ' ' + Show(size);
  }
  text += ", records";
  for (int index = 0; index < component.m_arrFlipData.GetSize(); ++index) {
    const CShellEntityID_FlipData* record = component.m_arrFlipData[index];
    text += ' ' + (record == nullptr ? "null" : Show(record->m_nHost1));
  }
  return text;
}

/// Takes over from the host the records that an owner leaves behind, should it leave any.
class UnownedRecords {
 public:
  explicit UnownedRecords(const Component& owner) : m_owner(owner) {
    m_records.Copy(owner.m_arrFlipData);
  }
  UnownedRecords(const UnownedRecords&) = delete;
  UnownedRecords& operator=(const UnownedRecords&) = delete;
  ~UnownedRecords() {
    for (int index = 0; index < m_records.GetSize(); ++index) {
      if (m_owner.m_bOwnsMeshData == 0) {
        delete m_records[index];
      }
    }
  }

 private:
  const Component& m_owner;
  CArray<CShellEntityID_FlipData*> m_records;
};

TEST_F(AllocationFailures, InAComponent) {
  const Subject<Component> subject = {"CDspAsmComp", [] { return ComponentOf(2, 0); },
                                      [] { return ComponentOf(5, 3); }, DescribeComponent};
  // clang-format off
  Try(subject, {ValueOperations<Component>(kStrong), {
      {"construction",                   kNeverFails, [](Component&, Component&) { const Component made; }},
      {"construction of a range",        kNeverFails, [](Component&, Component&) { const Component made(1, 2, 3, COGLColor(), COGLColor(), 0); }},
      {"copy of one without records",    kStrong,     [](Component& component, Component&) { const Component copy(component); }},
      {"assignment to an owner",         kStrong,     [](Component& component, Component& other) {
         Component owner = other;
         const UnownedRecords left(owner);
         owner = component;
       }},
      {"questions",                      kNeverFails, [](Component& component, Component& other) { Use(component == other, component.PostAvailable()); component.FlipColor(); }},
  }});
  // clang-format on
}

// Arrays of them.

using ComponentArray = ValueArray<Component>;

ComponentArray ArrayOf(int count) {
  ComponentArray array;
  for (int place = 0; place < count; ++place) {
    array.Add(ComponentOf(place + 1, place % 2 == 0 ? 2 : 0));
  }
  array.FreeExtra();
  return array;
}

TEST_F(AllocationFailures, InAnArrayOfComponents) {
  const auto describe = [](const ComponentArray& array) {
    std::string text;
    for (int index = 0; index < array.GetSize(); ++index) {
      text += DescribeComponent(array[index]) + '\n';
    }
    return text;
  };
  using Array = ComponentArray;
  const Subject<Array> subject = {"ValueArray<CDspAsmComp>", [] { return ArrayOf(3); },
                                  [] { return ArrayOf(4); }, describe};
  // clang-format off
  Try(subject, {ValueOperations<Array>(kStrong), {
      {"Add",                      kStrong,     [](Array& array, Array& other) { array.Add(other[2]); }},
      {"Add of its own",           kStrong,     [](Array& array, Array&) { array.Add(array[0]); }},
      {"Append",                   kStrong,     [](Array& array, Array& other) { array.Append(other); }},
      {"SetAtGrow behind the end", kStrong,     [](Array& array, Array& other) { array.SetAtGrow(7, other[2]); }},
      {"InsertAt",                 kStrong,     [](Array& array, Array& other) { array.InsertAt(1, other[2], 2); }},
      {"InsertAt of its own",      kStrong,     [](Array& array, Array&) { array.InsertAt(1, array[2]); }},
      {"Reorder",                  kStrong,     [](Array& array, Array&) { constexpr int kOrder[] = {2, 0, 1}; array.Reorder(kOrder); }},
      {"RemoveAt",                 kNeverFails, [](Array& array, Array&) { array.RemoveAt(0); }},
      {"RemoveAll",                kNeverFails, [](Array& array, Array&) { array.RemoveAll(); }},
  }});
  // clang-format on
}

/// Lists with their values and, as it was added to the components alone, one without.
Components ListOf(int count, bool isLastWithoutValue = false) {
  Components list;
  for (int place = 0; place < count; ++place) {
    list.Add(ComponentOf(count - place, place % 2 == 0 ? 2 : 0), 7 * place);
  }
  if (isLastWithoutValue) {
    list.m_arrCompValues.RemoveAt(count - 1);
  }
  list.m_arrComps.FreeExtra();
  list.m_arrCompValues.FreeExtra();
  return list;
}

std::string DescribeComponents(const Components& list) {
  std::string text =
      Show(list.GetSize()) + " components, " + Show(list.m_arrCompValues.GetSize()) + " values\n";
  for (int index = 0; index < list.GetSize(); ++index) {
    int value = 0;
    text += DescribeComponent(list.GetAt(index, &value));
    text += " value " + Show(value) + '\n';
  }
  return text;
}

const Subject<Components> kListSubject = {"CDspAsmCompList", [] { return ListOf(3); },
                                          [] { return ListOf(5); }, DescribeComponents};

/// The flip records that a component without owners leaves to the host are none here.
constexpr int kWithoutRecords = 1;

TEST_F(AllocationFailures, InAListOfComponents) {
  using Colors = CArray<COGLColor, COGLColor>;
  // clang-format off
  Try(kListSubject, {ValueOperations<Components>(kStrong), {
      {"construction",         kNeverFails, [](Components&, Components&) { const Components made; }},
      {"Add",                  kStrong,     [](Components& list, Components& other) { list.Add(other.m_arrComps[0]); }},
      {"Add with a value",     kStrong,     [](Components& list, Components& other) { list.Add(other.m_arrComps[0], 99); }},
      {"Add of its own",       kStrong,     [](Components& list, Components&) { list.Add(list.m_arrComps[2], 99); }},
      {"GetAt",                kStrong,     [](Components& list, Components&) { Use(list.GetAt(2)); }},
      {"GetAt with its value", kStrong,     [](Components& list, Components&) { int value = 0; Use(list.GetAt(2, &value)); }},
      {"SetAt",                kStrong,     [](Components& list, Components& other) { list.SetAt(kWithoutRecords, other.m_arrComps[0]); list.m_arrComps[kWithoutRecords].m_nCompID = 1; }},
      {"SetAt outside",        kStrong,     [](Components& list, Components& other) { try { list.SetAt(9, other.m_arrComps[0]); } catch (const CInvalidArgException&) {} }},
      {"GetAt outside",        kStrong,     [](Components& list, Components&) { try { Use(list.GetAt(-1)); } catch (const CInvalidArgException&) {} }},
      {"SetSequence",          kNeverFails, [](Components& list, Components&) { list.SetSequence(1, 4, 5); }},
      {"SortByElemID",         kStrong,     [](Components& list, Components&) { list.SortByElemID(1); }},
      {"SortByElemID, down",   kStrong,     [](Components& list, Components&) { list.SortByElemID(0); }},
      {"MakeColorList",        kStrong,     [](Components& list, Components&) { Colors colors; Colors bottom; list.MakeColorList(&colors, &bottom); }},
      {"HasPostCompMissing",   kStrong,     [](Components& list, Components& other) { Use(list.HasPostCompMissing(other)); }},
      {"GetComponentByBodyID", kStrong,     [](Components& list, Components&) { Component out; list.GetComponentByBodyID(2, out); }},
      {"GetComponentByBodyID of none", kStrong, [](Components& list, Components&) { Component out; list.GetComponentByBodyID(77, out); }},
      {"GetBodyNameByBodyID",  kStrong,     [](Components& list, Components&) { Use(list.GetBodyNameByBodyID(2)); }},
      {"GetPartNameByBodyID",  kStrong,     [](Components& list, Components&) { Use(list.GetPartNameByBodyID(2)); }},
      {"GetCompListByComponentName", kStrong, [](Components& list, Components&) { Use(list.GetCompListByComponentName(list.m_arrComps[0].m_strCompName)); }},
      {"GetCompListByBodyName", kStrong,    [](Components& list, Components&) { Use(list.GetCompListByBodyName(list.m_arrComps[0].m_strBodyName)); }},
      {"ChangeCompName",       kStrong,     [](Components& list, Components& other) { list.ChangeCompName(list.m_arrComps[1].m_strCompName, other.m_arrComps[0].m_strExtra); }},
      {"questions",            kNeverFails, [](Components& list, Components& other) {
         int index = 0;
         Use(list == other, list.GetSize(), list.AllHidden(), list.GetPostAvailableCompCount(), list.GetVisPartIndex_1based(15, &index),
             list.GetActiveElemIndex(1, 1), list.GetIndexByBodyID(2), list.IsComponentExistByName(list.m_arrComps[0].m_strCompName));
       }},
      {"edits of all",         kNeverFails, [](Components& list, Components&) {
         list.HideAllExceptOneComponent(list.m_arrComps[0].m_strCompName);
         list.UnHideTemporarilyHiddenComps();
         list.FlipColor();
         list.SetShellBottomFaceColor(0x123456);
       }},
      {"RemoveAll",            kNeverFails, [](Components& list, Components&) { list.RemoveAll(); }},
  }});
  // clang-format on
}

TEST_F(AllocationFailures, InAListWhoseLastComponentHasNoValue) {
  Subject<Components> subject = kListSubject;
  subject.make = [] { return ListOf(2, true); };
  Try(subject, {{
                   {"SetAt with a value", kStrong,
                    [](Components& list, Components& other) {
                      list.SetAt(kWithoutRecords, other.m_arrComps[0], 5);
                    }},
                   {"Add", kStrong,
                    [](Components& list, Components& other) { list.Add(other.m_arrComps[0], 5); }},
               }});
}

/// A list that is asked, and the indices that it has found so far.
struct Finder {
  Components list = ListOf(5);
  std::vector<int> found = {77};
};

TEST_F(AllocationFailures, WhileBodiesAreFoundByTheNameOfTheirPart) {
  const auto make = [] {
    Finder finder;
    for (int index = 0; index < 5; ++index) {
      finder.list.m_arrComps[index].m_strCompName = MQ_TEXT("part");
    }
    return finder;
  };
  const auto describe = [](const Finder& finder) {
    std::string text;
    for (const int index : finder.found) {
      text += Show(index) + ' ';
    }
    return text;
  };
  const Subject<Finder> subject = {"CDspAsmCompList", make, make, describe};
  Try(subject, {{{"GetBodyListByPartName", kStrong, [](Finder& finder, Finder&) {
                    finder.list.GetBodyListByPartName(&finder.found, MQ_TEXT("Part"));
                  }}}});
}

/// An index that is asked, and the indices that it has found so far.
struct IndexFinder {
  Components list;
  CDspAsmCompIndex index;
  std::vector<int> found = {77};
};

TEST_F(AllocationFailures, InAnIndexOfComponents) {
  const auto make = [](int count) {
    const Components list = ListOf(count);
    return IndexFinder{list, CDspAsmCompIndex(list)};
  };
  const auto describe = [](const IndexFinder& finder) {
    int visible = 0;
    std::string text = Show(finder.index.GetSize()) + " components, " +
                       Show(finder.index.GetVisPartIndex_1based(35, &visible)) + ' ' +
                       Show(visible) + " found";
    for (const int index : finder.found) {
      text += ' ' + Show(index);
    }
    return text;
  };
  using Asked = IndexFinder;
  const Subject<Asked> subject = {"CDspAsmCompIndex", [make] { return make(3); },
                                  [make] { return make(20); }, describe};
  // clang-format off
  Try(subject, {{
      {"construction",          kStrong,     [](Asked&, Asked& other) { const CDspAsmCompIndex made(other.list); }},
      {"construction, empty",   kStrong,     [](Asked&, Asked&) { const Components none; const CDspAsmCompIndex made(none); }},
      {"made anew",             kStrong,     [](Asked& finder, Asked& other) { finder.index = CDspAsmCompIndex(other.list); }},
      {"copy construction",     kNeverFails, [](Asked&, Asked& other) { const CDspAsmCompIndex copy(other.index); }},
      {"copy assignment",       kNeverFails, [](Asked& finder, Asked& other) { finder.index = other.index; }},
      {"GetBodyListByPartName", kStrong,     [](Asked& finder, Asked&) { finder.index.GetBodyListByPartName(&finder.found, finder.list.m_arrComps[1].m_strCompName); }},
      {"questions",             kNeverFails, [](Asked& finder, Asked&) {
         int index = 0;
         Use(finder.index.GetSize(), finder.index.GetVisPartIndex_1based(15, &index), finder.index.GetActiveElemIndex(1, 1),
             finder.index.GetIndexByBodyID(2), finder.index.IsComponentExistByName(finder.list.m_arrComps[0].m_strCompName));
       }},
  }});
  // clang-format on
}

TEST_F(AllocationFailures, NoneInPairs) {
  using Pair = CVekIntPair;
  const auto describe = [](const Pair& pair) { return Show(pair.m_nFirst); };
  const Subject<Pair> subject = {"CVekIntPair", [] { return Pair(); }, [] { return Pair(); },
                                 describe};
  Try(subject, {{{"copies", kNeverFails, [](Pair& pair, Pair& other) {
                    const Pair copy(other);
                    pair = copy;
                    const CVekPostListPair made;
                    const CVekPostListPair madeCopy(made);
                  }}}});
}

TEST_F(AllocationFailures, InAFacet) {
  const auto make = [](int vertices) {
    std::vector<CSTLVertex> corners(static_cast<std::size_t>(vertices));
    for (int corner = 0; corner < vertices; ++corner) {
      corners[static_cast<std::size_t>(corner)].SetX(static_cast<float>(corner));
    }
    return CSTLFacet(corners.back(), corners);
  };
  const auto describe = [](const CSTLFacet& facet) {
    std::string text = Show(facet.m_nVertices) + " vertices " + Show(double{facet.m_Normal.GetX()});
    for (const CSTLVertex& corner : facet.m_vecVertices) {
      text += ' ' + Show(double{corner.GetX()});
    }
    return text;
  };
  const Subject<CSTLFacet> subject = {"CSTLFacet", [make] { return make(3); },
                                      [make] { return make(7); }, describe};
  // The number of vertices must not tell of more than there are.
  Try(subject, {ValueOperations<CSTLFacet>(kStrong),
                {{"construction", kStrong, [](CSTLFacet&, CSTLFacet& other) {
                    const CSTLFacet made(other.m_Normal, other.m_vecVertices);
                  }}}});
}

}  // namespace
}  // namespace mqp::test
