// Memory runs out in temperature curves, materials and their list.

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/materials/element_values.h>
#include <mqPostCommon/materials/material.h>
#include <mqPostCommon/materials/property_tables.h>
#include <mqPostCommon/materials/temperature_curve.h>

#include "faults/allocation_failures.h"
#include "params/record_test_support.h"

namespace mqp::test {
namespace {

constexpr Guarantee kStrong = Guarantee::Strong;
constexpr Guarantee kBasic = Guarantee::Basic;
constexpr Guarantee kNeverFails = Guarantee::NeverFails;

using Curve = CmqTemperatureCurve;
using Material = CmqpMaterialData;
using Materials = CmqpMaterialDataList;

Curve CurveOf(int points) {
  Curve curve;
  curve.m_nPoints = points;
  for (int point = 0; point < points; ++point) {
    curve.m_vecX.push_back(10.0 * point);
    curve.m_vecY.push_back(200.0 - point);
  }
  return curve;
}

std::string DescribeCurve(const Curve& curve) {
  std::string text = Show(curve.m_nPoints) + " points:";
  for (const auto* values : {&curve.m_vecX, &curve.m_vecY}) {
    for (const double value : *values) {
      text += ' ' + Show(value);
    }
    text += ';';
  }
  return text + " at 5: " + Show(curve.GetYValueAt(5.0));
}

TEST_F(AllocationFailures, InATemperatureCurve) {
  const Subject<Curve> subject = {"CmqTemperatureCurve", [] { return CurveOf(2); },
                                  [] { return CurveOf(5); }, DescribeCurve};
  // clang-format off
  Try(subject, {ValueOperations<Curve>(kBasic), {
      {"construction", kNeverFails, [](Curve&, Curve&) { const Curve made; }},
      {"GetYValueAt",  kNeverFails, [](Curve& curve, Curve&) { Use(curve.GetYValueAt(5.0)); }},
  }});
  // clang-format on
}

Material MaterialOf(const CString& name, int points) {
  Material material;
  material.m_nCount = 6;
  material.m_strMaterialName = name;
  material.m_strExtraText = name + MQ_TEXT(", and more of it");
  material.m_nBodyID = points;
  material.m_bHasSIGYLD = 1;
  material.m_bSIGYLDTempDepend = 1;
  material.m_SIGYLDTempCurve = CurveOf(points);
  material.m_SIGXYTempCurve = CurveOf(points + 1);
  return material;
}
Material Steel() {
  return MaterialOf(MQ_TEXT("A steel with more alloying elements than usual"), 2);
}
Material Aluminium() {
  return MaterialOf(MQ_TEXT("An aluminium of the seventh series, heat-treated twice"), 5);
}

std::string DescribeMaterial(const Material& material) {
  return Show(material.m_strMaterialName) + ' ' + Show(material.m_strExtraText) + " body " +
         Show(material.m_nBodyID) + ", " + DescribeCurve(material.m_SIGYLDTempCurve) + ", " +
         DescribeCurve(material.m_SIGXYTempCurve);
}

TEST_F(AllocationFailures, InAMaterial) {
  const Subject<Material> subject = {"CmqpMaterialData", Steel, Aluminium, DescribeMaterial};
  // clang-format off
  Try(subject, {ValueOperations<Material>(kBasic), {
      {"construction",     kNeverFails, [](Material&, Material&) { const Material made; }},
      {"ConstructorInit",  kNeverFails, [](Material& material, Material&) { material.ConstructorInit(); }},
      {"GetMaterialName",  kStrong,     [](Material& material, Material&) { Use(material.GetMaterialName()); }},
      {"questions",        kNeverFails, [](Material& material, Material& other) {
         double value = 0.0;
         Use(material.GetPropertyValue_SIGYLD(value), material.IsSIGYLDTempDepend(), material.GetSIGYLDTempCurve(),
             material.GetMatUnitInStressUnit(), material.IsSafeForCompositeFOS(), material.IsSameValueForDesignCheck(other));
       }},
  }});
  // clang-format on
}

Materials ListOf(int count) {
  Materials list;
  for (int place = 0; place < count; ++place) {
    CString name;
    name.Format(MQ_TEXT("Material with the number %d and a name that is long"), place);
    list.Add(MaterialOf(name, place + 1));
  }
  list.m_arrMaterials.FreeExtra();
  return list;
}

std::string DescribeMaterials(const Materials& list) {
  std::string text = Show(list.GetSize()) + " materials\n";
  for (int index = 0; index < list.GetSize(); ++index) {
    text += DescribeMaterial(list.m_arrMaterials[index]) + '\n';
  }
  return text;
}

TEST_F(AllocationFailures, InAListOfMaterials) {
  const Subject<Materials> subject = {"CmqpMaterialDataList", [] { return ListOf(2); },
                                      [] { return ListOf(4); }, DescribeMaterials};
  // clang-format off
  Try(subject, {ValueOperations<Materials>(kStrong), {
      {"construction",             kNeverFails, [](Materials&, Materials&) { const Materials made; }},
      {"Add",                      kStrong,     [](Materials& list, Materials& other) { list.Add(other.m_arrMaterials[3]); }},
      {"Add of its own",           kStrong,     [](Materials& list, Materials&) { list.Add(list.m_arrMaterials[1]); }},
      {"GetAt",                    kStrong,     [](Materials& list, Materials&) { Use(list.GetAt(1)); }},
      {"GetAt outside",            kNeverFails, [](Materials& list, Materials&) { Use(list.GetAt(99)); }},
      {"GetByBodyID",              kStrong,     [](Materials& list, Materials&) { Material out; int index = 0; list.GetByBodyID(2, &out, &index, 0); }},
      {"GetByBodyID of none",      kNeverFails, [](Materials& list, Materials&) { Material out; list.GetByBodyID(77, &out, nullptr, 0); }},
      {"GetUniqueMaterialList",    kStrong,     [](Materials& list, Materials&) { std::vector<int> indices; list.GetUniqueMaterialList(indices); }},
      {"design check",             kNeverFails, [](Materials& list, Materials&) { Use(list.IsSameValueForDesignCheck()); }},
      {"RemoveAll",                kNeverFails, [](Materials& list, Materials&) { list.RemoveAll(); }},
  }});
  // clang-format on
}

TEST_F(AllocationFailures, NoneInFactorsOfSafetyKeywordsAndElementValues) {
  using Values = CMqStressTensorValuesOfAllNodesOfElement;
  const Subject<Values> subject = {"element values", [] { return Values(); },
                                   [] { return Values(); },
                                   [](const Values& values) { return Show(values.m_nNodes); }};
  const auto list = std::make_shared<const Materials>(ListOf(3));
  // clang-format off
  Try(subject, {{
      {"copy construction",    kNeverFails, [](Values&, Values& other) { const Values copy(other); }},
      {"copy assignment",      kNeverFails, [](Values& values, Values& other) { values = other; }},
      {"units and results",    kNeverFails, [](Values& values, Values&) { values.ApplyUnits(2.0F); Use(values.GetSpecificResult(1.0F)); }},
      {"keywords",             kNeverFails, [](Values&, Values&) { Use(FindMaterialProperty(MQ_TEXT("SIGYLD")), GetMaterialModel(3)); }},
      {"the criterion",        kNeverFails, [list](Values&, Values&) { const CmqPostDataParam plot; Use(list->IsTemperatureDependentFOSCriterion(&plot)); }},
  }});
  // clang-format on
}

}  // namespace
}  // namespace mqp::test
