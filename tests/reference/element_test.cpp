#include <bit>
#include <cmath>

#include <gtest/gtest.h>

#include <mqPostCommon/mqPostCommon.h>

#include "members.h"
#include "tally.h"

namespace reference {
namespace {

float FloatOf(const Value& value) {
  return std::bit_cast<float>(static_cast<std::uint32_t>(value.bits));
}

/// Bits of an invalid operation are the processor's; all not-a-numbers become one.
Fields WithOneNaN(Fields fields) {
  for (auto& [field, value] : fields) {
    const bool isFloat = field.first == "values" || field.first.ends_with("block");
    if (isFloat && std::isnan(FloatOf(value))) {
      value = {0x7FC00000, {}};
    }
  }
  return fields;
}

/// One product in single precision, whatever precision the compiler would like to keep.
float Product(float factor, float value) {
  volatile float product = factor * value;
  return product;
}

Fields Scaled(Fields tensors, float factor) {
  for (auto& [field, value] : tensors) {
    if (field.first.ends_with("block")) {
      value = ValueOf(Product(factor, FloatOf(value)));
    }
  }
  return tensors;
}

Fields Reduced(const Fields& tensors, float factor) {
  Fields values;
  for (int slot = 0; slot < 10; ++slot) {
    values[{"ids", slot}] = tensors.at({"ids", slot});
    values[{"values", slot}] =
        ValueOf(Product(factor, FloatOf(tensors.at({"first block", 6 * slot}))));
  }
  values[{"nodes", 0}] = tensors.at({"nodes", 0});
  return values;
}

TEST(ElementReference, TensorsScaledAndReducedBitByBit) {
  ResetTally();
  Random random(4301);
  const int cases = CountCases(3000);
  for (int number = 0; number < cases; ++number) {
    CMqStressTensorValuesOfAllNodesOfElement tensors;
    Scramble(tensors, random);
    const Fields before = Snapshot(tensors);
    const float factor = random.Float();
    const float second = random.Float();
    Hit(std::isnan(factor)   ? "factor: not a number"
        : std::isinf(factor) ? "factor: infinite"
        : factor == 0.0F     ? "factor: zero"
        : factor < 0.0F      ? "factor: negative"
                             : "factor: positive");
    ASSERT_EQ("", FirstDifference(WithOneNaN(Reduced(before, factor)),
                                  WithOneNaN(Snapshot(tensors.GetSpecificResult(factor)))))
        << factor;
    const CMqStressTensorValuesOfAllNodesOfElement copy(tensors);
    tensors.ApplyUnits(factor);
    const Fields scaled = Scaled(before, factor);
    ASSERT_EQ("", FirstDifference(WithOneNaN(scaled), WithOneNaN(Snapshot(tensors)))) << factor;
    ASSERT_EQ("", FirstDifference(WithOneNaN(Reduced(scaled, second)),
                                  WithOneNaN(Snapshot(tensors.GetSpecificResult(second)))))
        << factor << " and " << second;
    ASSERT_EQ("", FirstDifference(before, Snapshot(copy)));
    tensors = copy;
    ASSERT_EQ("", FirstDifference(before, Snapshot(tensors)));

    CMqNodalResultValuesOfElement nodal;
    Scramble(nodal, random);
    const Fields nodalMembers = Snapshot(nodal);
    const CMqNodalResultValuesOfElement nodalCopy(nodal);
    CMqNodalResultValuesOfElement target;
    target = nodal;
    ASSERT_EQ("", FirstDifference(nodalMembers, Snapshot(nodalCopy)));
    ASSERT_EQ("", FirstDifference(nodalMembers, Snapshot(target)));
  }
  CheckTally("factor", {"factor: not a number", "factor: infinite", "factor: zero",
                        "factor: negative", "factor: positive"});
  RecordCases(cases);
}

TEST(ElementReference, FreshElementsAreZeroWithOneNode) {
  Fields tensors;
  Put(tensors, "nodes", {1});
  Put(tensors, "ids", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
  for (int place = 0; place < 60; ++place) {
    tensors[{"first block", place}] = ValueOf(0.0F);
  }
  for (int place = 0; place < 36; ++place) {
    tensors[{"second block", place}] = ValueOf(0.0F);
  }
  ASSERT_EQ("", FirstDifference(tensors, Snapshot(CMqStressTensorValuesOfAllNodesOfElement())));
  ASSERT_EQ("", FirstDifference(Reduced(tensors, 1.0F), Snapshot(CMqNodalResultValuesOfElement())));
  RecordCases(2);
}

}  // namespace
}  // namespace reference
