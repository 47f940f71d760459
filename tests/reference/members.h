#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

#include <mqPostCommon/mqPostCommon.h>

#include "random.h"
#include "values.h"

/// Every member of a class of the library, one visit each: what snapshots are made of and what
/// random objects are filled by. The names are the keys by which the references speak of members.
namespace reference {

template <class Visit, class Member, std::size_t Count>
void VisitRow(Visit& visit, std::string_view name, Member (&row)[Count]) {
  for (std::size_t place = 0; place < Count; ++place) {
    visit(name, static_cast<int>(place), row[place]);
  }
}

template <class Visit, class Matrix>
void VisitMatrix(Visit& visit, Matrix& matrix) {
  for (int place = 0; place < 16; ++place) {
    visit("view matrix", place, matrix.m_dRows[place / 4][place % 4]);
  }
}

template <class Axis, class Visit>
void VisitAxis(Visit& visit, std::string_view name, Axis& axis) {
  visit(name, 0, axis.m_nQuantityType);
  visit(name, 1, axis.m_nComponent);
  visit(name, 2, axis.m_nUnit);
  visit(name, 3, axis.m_nSensor);
}

template <class Graph, class Visit>
  requires std::is_same_v<std::remove_const_t<Graph>, CmqPostGraphParam>
void VisitMembers(Graph& graph, Visit visit) {
  visit("analysis type", 0, graph.m_nAnalysisType);
  visit("result type", 0, graph.m_nResultType);
  visit("row 3", 0, graph.m_nHost3);
  visit("result option", 0, graph.m_nResultOption);
  VisitRow(visit, "row 5", graph.m_nHost5);
  visit("row 6", 0, graph.m_nHost6);
  VisitRow(visit, "row 7", graph.m_nHost7);
  VisitAxis(visit, "x axis", graph.m_XAxis);
  VisitAxis(visit, "y axis", graph.m_YAxis);
  VisitRow(visit, "row 16", graph.m_nHost16);
  VisitRow(visit, "row 17", graph.m_nHost17);
  VisitRow(visit, "row 18", graph.m_strHost18);
  visit("row 19", 0, graph.m_nHost19);
  visit("row 20", 0, graph.m_strHost20);
  VisitMatrix(visit, graph.m_ViewMatrix);
  VisitRow(visit, "row 22", graph.m_nHost22);
  visit("dynamic option", 0, graph.m_nDynamicOption);
  visit("row 24", 0, graph.m_nHost24);
  visit("row 25", 0, graph.m_nHost25);
  VisitRow(visit, "row 26", graph.m_dHost26);
  visit("row 27", 0, graph.m_nHost27);
  visit("y unit flag", 0, graph.m_nYUnitFlag);
  VisitRow(visit, "row 29", graph.m_nHost29);
  visit("row 30", 0, graph.m_nHost30);
  visit("row 31", 0, graph.m_nHost31);
  visit("frequency response flag", 0, graph.m_nFrequencyResponseFlag);
  visit("frequency response mode", 0, graph.m_nFrequencyResponseMode);
  VisitRow(visit, "row 34", graph.m_nHost34);
  visit("row 35", 0, graph.m_dHost35);
  visit("row 36", 0, graph.m_strHost36);
  VisitRow(visit, "row 37", graph.m_nHost37);
  visit("row 37", 2, graph.m_n64Host37);
  visit("row 38", 0, graph.m_mapHost38);
  visit("row 39", 0, graph.m_nHost39);
}

template <class Variable, class Visit>
  requires std::is_same_v<std::remove_const_t<Variable>, CmqEquationVariable>
void VisitMembers(Variable& variable, Visit visit) {
  visit("name", 0, variable.m_strName);
  visit("result type", 0, variable.m_nResultType);
  visit("component", 0, variable.m_nComponent);
  visit("coefficient", 0, variable.m_dCoefficient);
}

template <class Plot, class Visit>
  requires std::is_same_v<std::remove_const_t<Plot>, CmqEquationPlotParam>
void VisitMembers(Plot& plot, Visit visit) {
  visit("equation", 0, plot.m_strEquation);
  visit("coefficients flag", 0, plot.m_nCoefficientsFlag);
  VisitRow(visit, "equation row 3", plot.m_strHost3);
  visit("variables", 0, plot.m_listVariables);
  visit("display equation", 0, plot.m_strDisplayEquation);
}

template <class Plot, class Visit>
  requires std::is_same_v<std::remove_const_t<Plot>, CmqPostDataParam>
void VisitMembers(Plot& plot, Visit visit) {
  visit("plot name", 0, plot.m_strPlotName);
  visit("analysis type", 0, plot.m_nAnalysisType);
  visit("result type", 0, plot.m_nResultType);
  visit("component", 0, plot.m_nComponent);
  visit("row 5", 0, plot.m_nHost5);
  visit("row 6", 0, plot.m_nHost6);
  visit("variant", 0, plot.m_nVariant);
  visit("row 8", 0, plot.m_nHost8);
  visit("deform scale mode", 0, plot.m_nDeformScaleMode);
  visit("row 10", 0, plot.m_fDeformScaleFactor1);
  visit("row 11", 0, plot.m_fDeformScaleFactor0);
  visit("row 12", 0, plot.m_nUnitIndex);
  for (int place = 1; place < 4; ++place) {
    visit("row 12", place, plot.m_nHost12[place - 1]);
  }
  visit("failure criterion", 0, plot.m_nFailureCriterion);
  visit("row 14", 0, plot.m_nHost14);
  visit("row 15", 0, plot.m_dHost15);
  VisitRow(visit, "row 16", plot.m_dHost16);
  VisitRow(visit, "row 17", plot.m_nCriterionOptions);
  VisitRow(visit, "row 18", plot.m_dHost18);
  visit("row 19", 0, plot.m_nHost19);
  VisitRow(visit, "row 20", plot.m_strHost20);
  visit("row 21", 0, plot.m_nHost21);
  VisitMatrix(visit, plot.m_ViewMatrix);
  visit("body id", 0, plot.m_nBodyId);
  visit("envelope flag", 0, plot.m_nEnvelopeFlag);
  VisitRow(visit, "row 25", plot.m_nHost25);
  visit("row 26", 0, plot.m_n64Host26);
  VisitRow(visit, "row 27", plot.m_nHost27);
  VisitRow(visit, "row 28", plot.m_nHost28);
  visit("row 29", 0, plot.m_dHost29);
  VisitRow(visit, "row 30", plot.m_nHost30);
  visit("row 31", 0, plot.m_arrHost31);
  visit("row 32", 0, plot.m_arrHost32);
  visit("row 33", 0, plot.m_nHost33);
  visit("row 34", 0, plot.m_dHost34);
  VisitRow(visit, "row 35", plot.m_n64Host35);
  VisitMembers(plot.m_EquationPlot, visit);
  VisitRow(visit, "row 37", plot.m_nHost37);
  visit("row 38", 0, plot.m_strHost38);
  visit("row 39", 0, plot.m_strHost39);
  visit("row 40 first", 0, plot.m_arrHost40[0]);
  visit("row 40 second", 0, plot.m_arrHost40[1]);
  VisitRow(visit, "row 41", plot.m_nHost41);
}

template <class List, class Visit>
  requires std::is_same_v<std::remove_const_t<List>, CVekPostListParam>
void VisitMembers(List& list, Visit visit) {
  visit("study path", 0, list.m_strStudyPath);
  visit("analysis type", 0, list.m_nAnalysisType);
  visit("result type", 0, list.m_nResultType);
  visit("component", 0, list.m_nComponent);
  visit("row 5", 0, list.m_nHost5);
  visit("row 6", 0, list.m_nHost6);
  visit("variant", 0, list.m_nVariant);
  visit("unit index", 0, list.m_nUnitIndex);
  visit("row 9", 0, list.m_nHost9);
  visit("row 10", 0, list.m_nHost10);
  visit("list-set flag", 0, list.m_nListSetFlag);
  visit("row 12", 0, list.m_nHost12);
  visit("row 13", 0, list.m_nHost13);
  visit("row 14", 0, list.m_dHost14);
  VisitRow(visit, "row 15", list.m_nHost15);
  visit("list-set kind", 0, list.m_nListSetKind);
  visit("title switch", 0, list.m_nTitleSwitch);
  visit("row 18", 0, list.m_nHost18);
  visit("row 19", 0, list.m_strHost19);
  visit("row 20", 0, list.m_nHost20);
  VisitMatrix(visit, list.m_ViewMatrix);
  VisitRow(visit, "row 22", list.m_nHost22);
  visit("row 22", 3, list.m_nUnitOption);
  visit("row 23 first", 0, list.m_arrHost23[0]);
  visit("row 23 second", 0, list.m_arrHost23[1]);
  VisitRow(visit, "row 24", list.m_nHost24);
}

template <class Pair, class Visit>
  requires std::is_same_v<std::remove_const_t<Pair>, CVekPostListPair> ||
           std::is_same_v<std::remove_const_t<Pair>, CVekIntPair>
void VisitMembers(Pair& pair, Visit visit) {
  visit("first", 0, pair.m_nFirst);
  visit("second", 0, pair.m_nSecond);
}

template <class Curve, class Visit>
  requires std::is_same_v<std::remove_const_t<Curve>, CmqTemperatureCurve>
void VisitMembers(Curve& curve, Visit visit) {
  visit("points", 0, curve.m_nPoints);
  visit("x", 0, curve.m_vecX);
  visit("y", 0, curve.m_vecY);
}

template <class Material, class Visit>
  requires std::is_same_v<std::remove_const_t<Material>, CmqpMaterialData>
void VisitMembers(Material& material, Visit visit) {
  visit("count", 0, material.m_nCount);
  visit("source", 0, material.m_nMaterialSource);
  visit("defined units", 0, material.m_nDefinedUnits);
  const auto strength = [&visit](int place, auto& has, auto& value, auto& depends, auto& curve) {
    visit("has", place, has);
    visit("value", place, value);
    visit("depends", place, depends);
    visit("curve points", place, curve.m_nPoints);
    visit("curve x", place, curve.m_vecX);
    visit("curve y", place, curve.m_vecY);
  };
  auto& it = material;
  strength(0, it.m_bHasSIGYLD, it.m_dSIGYLD, it.m_bSIGYLDTempDepend, it.m_SIGYLDTempCurve);
  strength(1, it.m_bHasSIGXT, it.m_dSIGXT, it.m_bSIGXTTempDepend, it.m_SIGXTTempCurve);
  strength(2, it.m_bHasSIGXC, it.m_dSIGXC, it.m_bSIGXCTempDepend, it.m_SIGXCTempCurve);
  strength(3, it.m_bHasSIGYT, it.m_dSIGYT, it.m_bSIGYTTempDepend, it.m_SIGYTTempCurve);
  strength(4, it.m_bHasSIGYC, it.m_dSIGYC, it.m_bSIGYCTempDepend, it.m_SIGYCTempCurve);
  strength(5, it.m_bHasSIGXY, it.m_dSIGXY, it.m_bSIGXYTempDepend, it.m_SIGXYTempCurve);
  visit("name", 0, material.m_strMaterialName);
  visit("extra text", 0, material.m_strExtraText);
  visit("body id", 0, material.m_nBodyID);
  visit("treat as", 0, material.m_nTreatAsMaterial);
  visit("default criteria", 0, material.m_nDefaultFailureCriteria);
  visit("secondary id", 0, material.m_nSecondaryID);
  visit("reserved", 0, material.m_nReserved);
}

template <class Animation, class Visit>
  requires std::is_same_v<std::remove_const_t<Animation>, CmqpAnimateParam>
void VisitMembers(Animation& animation, Visit visit) {
  visit("row 1", 0, animation.m_nHost1);
  visit("frames", 0, animation.m_nFrames);
  visit("row 3", 0, animation.m_nHost3);
  visit("row 4", 0, animation.m_nHost4);
  visit("row 5", 0, animation.m_nHost5);
  visit("row 6", 0, animation.m_strHost6);
  visit("row 7", 0, animation.m_n64Host7);
}

template <class Element, class Visit>
  requires std::is_same_v<std::remove_const_t<Element>, CMqNodalResultValuesOfElement>
void VisitMembers(Element& element, Visit visit) {
  VisitRow(visit, "ids", element.m_nNodeIDs);
  VisitRow(visit, "values", element.m_fValues);
  visit("nodes", 0, element.m_nNodes);
}

template <class Element, class Visit>
  requires std::is_same_v<std::remove_const_t<Element>, CMqStressTensorValuesOfAllNodesOfElement>
void VisitMembers(Element& element, Visit visit) {
  visit("nodes", 0, element.m_nNodes);
  VisitRow(visit, "ids", element.m_nNodeIDs);
  for (int place = 0; place < 60; ++place) {
    visit("first block", place, element.m_fStressTensor[place / 6][place % 6]);
  }
  for (int place = 0; place < 36; ++place) {
    visit("second block", place, element.m_fStressTensor2[place / 6][place % 6]);
  }
}

template <class Vertex, class Visit>
  requires std::is_same_v<std::remove_const_t<Vertex>, CSTLVertex>
void VisitMembers(Vertex& vertex, Visit visit) {
  visit("x", 0, vertex.m_fX);
  visit("y", 0, vertex.m_fY);
  visit("z", 0, vertex.m_fZ);
}

template <class Facet, class Visit>
  requires std::is_same_v<std::remove_const_t<Facet>, CSTLFacet>
void VisitMembers(Facet& facet, Visit visit) {
  visit("normal", 0, facet.m_Normal);
  visit("count", 0, facet.m_nVertices);
  visit("vertices", 0, facet.m_vecVertices);
}

template <class Component, class Visit>
  requires std::is_same_v<std::remove_const_t<Component>, CDspAsmComp>
void VisitMembers(Component& component, Visit visit) {
  visit("comp id", 0, component.m_nCompID);
  visit("first", 0, component.m_nFirstElem);
  visit("last", 0, component.m_nLastElem);
  visit("colour", 0, component.m_Color);
  visit("bottom colour", 0, component.m_BottomColor);
  visit("hidden", 0, component.m_bHidden);
  visit("comp name", 0, component.m_strCompName);
  visit("body name", 0, component.m_strBodyName);
  visit("body id", 0, component.m_nBodyID);
  visit("index base", 0, component.m_nVisIndexBase);
  VisitRow(visit, "row 11", component.m_nHost11);
  VisitRow(visit, "row 11 doubles", component.m_dHost11);
  visit("owns", 0, component.m_bOwnsMeshData);
  visit("row 14", 0, component.m_dHost14);
  visit("extra", 0, component.m_strExtra);
  VisitRow(visit, "row 16", component.m_nHost16);
  VisitRow(visit, "row 16 pointers", component.m_pHost16);
  VisitRow(visit, "row 17", component.m_arrHost17);
  VisitRow(visit, "row 18", component.m_arrHost18);
  for (int place = 0; place < 27; ++place) {
    visit("row 19", place, component.m_nHost19[place / 9][place % 9]);
  }
  VisitRow(visit, "row 20 pointers", component.m_pHost20);
  VisitRow(visit, "row 20", component.m_nHost20);
  VisitRow(visit, "row 20 doubles", component.m_dHost20);
  visit("owns too", 0, component.m_bOwnsMeshData2);
  VisitRow(visit, "row 22", component.m_nHost22);
  visit("row 23", 0, component.m_arrHost23);
  visit("row 24", 0, component.m_arrHost24);
  visit("hidden for now", 0, component.m_bTempHidden);
  visit("row 27", 0, component.m_nHost27);
  visit("flips", 0, component.m_arrFlipData);
}

/// Puts what it visits into fields. The elements of a growable row that begins at place n stand at
/// 1000 n + 1, 1000 n + 2, ...; their count stands at 1000 n.
class Snapshooter {
 public:
  explicit Snapshooter(Fields& fields) : m_fields(fields) {}

  void operator()(std::string_view name, int place, const CString& text) {
    Put(name, place, ValueOf(TextOf(text)));
  }
  void operator()(std::string_view name, int place, int number) {
    Put(name, place, ValueOf(number));
  }
  void operator()(std::string_view name, int place, long long number) {
    Put(name, place, ValueOf(number));
  }
  void operator()(std::string_view name, int place, float number) {
    Put(name, place, ValueOf(number));
  }
  void operator()(std::string_view name, int place, double number) {
    Put(name, place, ValueOf(number));
  }
  void operator()(std::string_view name, int place, const void* pointer) {
    Put(name, place, {reinterpret_cast<std::uintptr_t>(pointer), {}});
  }
  void operator()(std::string_view name, int place, const COGLColor& color) {
    Put(name, 4 * place, ValueOf(color.Red()));
    Put(name, 4 * place + 1, ValueOf(color.Green()));
    Put(name, 4 * place + 2, ValueOf(color.Blue()));
    Put(name, 4 * place + 3, ValueOf(color.Alpha()));
  }
  void operator()(std::string_view name, int place, const CSTLVertex& vertex) {
    Put(name, 3 * place, ValueOf(vertex.m_fX));
    Put(name, 3 * place + 1, ValueOf(vertex.m_fY));
    Put(name, 3 * place + 2, ValueOf(vertex.m_fZ));
  }
  template <class Element>
  void operator()(std::string_view name, int place, const CArray<Element>& elements) {
    PutCount(name, place, elements.GetSize());
    for (int index = 0; index < elements.GetSize(); ++index) {
      PutElement(name, 1000 * place + index + 1, elements.GetAt(index));
    }
  }
  template <class Element>
  void operator()(std::string_view name, int place, const std::vector<Element>& elements) {
    PutCount(name, place, static_cast<int>(elements.size()));
    place *= 1000;
    for (const Element& element : elements) {
      (*this)(name, ++place, element);
    }
  }
  void operator()(std::string_view name, int place, const std::map<int, CString>& entries) {
    PutCount(name, place, static_cast<int>(entries.size()));
    place *= 1000;
    for (const auto& [key, text] : entries) {
      Put(name, ++place, {static_cast<std::uint64_t>(key), TextOf(text)});
    }
  }
  void operator()(std::string_view name, int place,
                  const mqp::OwnedList<CmqEquationVariable>& variables) {
    PutCount(name, place, variables.GetCount());
    for (POSITION position = variables.GetHeadPosition(); position != nullptr;) {
      const CmqEquationVariable& variable = *variables.GetNext(position);
      ++place;
      Put("variable name", place, ValueOf(TextOf(variable.m_strName)));
      Put("variable result type", place, ValueOf(variable.m_nResultType));
      Put("variable component", place, ValueOf(variable.m_nComponent));
      Put("variable coefficient", place, ValueOf(variable.m_dCoefficient));
    }
  }

 private:
  void Put(std::string_view name, int place, const Value& value) {
    m_fields.emplace(Field(name, place), value);
  }
  void PutCount(std::string_view name, int place, int count) {
    Put(name, 1000 * place, ValueOf(count));
  }
  template <class Element>
  void PutElement(std::string_view name, int place, const Element& element) {
    (*this)(name, place, element);
  }
  void PutElement(std::string_view name, int place, CShellEntityID_FlipData* const& flip) {
    (*this)(name, 3 * place, flip->m_nHost1);
    (*this)(name, 3 * place + 1, flip->m_nHost2);
    (*this)(name, 3 * place + 2, flip->m_nHost3);
  }

  Fields& m_fields;
};

template <class Object>
Fields Snapshot(const Object& object) {
  Fields fields;
  VisitMembers(object, Snapshooter(fields));
  return fields;
}

/// Gives every member that it visits a random value. Shell flip records are left to their owner.
class Scrambler {
 public:
  explicit Scrambler(Random& random) : m_random(random) {}

  void operator()(std::string_view, int, CString& text) { text = StringOf(RandomText(m_random)); }
  void operator()(std::string_view, int, int& number) { number = m_random.Int(); }
  void operator()(std::string_view, int, long long& number) {
    number = static_cast<long long>(m_random.Bits());
  }
  void operator()(std::string_view, int, float& number) { number = m_random.Float(); }
  void operator()(std::string_view, int, double& number) { number = m_random.Double(); }
  void operator()(std::string_view, int, void*& pointer) {
    static int pointed[8];
    pointer = m_random.Once(4) ? nullptr : &pointed[m_random.Below(8)];
  }
  void operator()(std::string_view, int, COGLColor& color) {
    const auto shade = [this] { return static_cast<float>(m_random.Below(3)) / 2.0F; };
    color = COGLColor(shade(), 0.0F, 1.0F, 1.0F);
  }
  void operator()(std::string_view, int, CSTLVertex& vertex) {
    vertex.m_fX = m_random.Float();
    vertex.m_fY = m_random.Float();
    vertex.m_fZ = m_random.Float();
  }
  void operator()(std::string_view, int, CArray<CShellEntityID_FlipData*>&) {}
  template <class Element>
  void operator()(std::string_view name, int place, CArray<Element>& elements) {
    elements.SetSize(m_random.Below(4));
    for (int index = 0; index < elements.GetSize(); ++index) {
      (*this)(name, place, elements.ElementAt(index));
    }
  }
  template <class Element>
  void operator()(std::string_view name, int place, std::vector<Element>& elements) {
    elements.resize(static_cast<std::size_t>(m_random.Below(4)));
    for (Element& element : elements) {
      (*this)(name, place, element);
    }
  }
  void operator()(std::string_view, int, std::map<int, CString>& entries) {
    entries.clear();
    for (int count = m_random.Below(3); count > 0; --count) {
      entries[m_random.Int()] = StringOf(RandomText(m_random));
    }
  }
  void operator()(std::string_view, int, mqp::OwnedList<CmqEquationVariable>& variables) {
    variables.DeleteAll();
    for (int count = m_random.Below(4); count > 0; --count) {
      VisitMembers(variables.Append(std::make_unique<CmqEquationVariable>()), *this);
    }
  }

 private:
  Random& m_random;
};

template <class Object>
void Scramble(Object& object, Random& random) {
  VisitMembers(object, Scrambler(random));
}

}  // namespace reference
