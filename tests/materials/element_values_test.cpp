#include <climits>
#include <cmath>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>
#include <mqPostCommon/materials/element_values.h>

#include "materials/material_test_support.h"

namespace mqp::test {
namespace {

using Scalars = CMqNodalResultValuesOfElement;
using Tensors = CMqStressTensorValuesOfAllNodesOfElement;

static_assert(std::has_virtual_destructor_v<Scalars>);
static_assert(std::has_virtual_destructor_v<Tensors>);
static_assert(std::is_same_v<decltype(Scalars::m_nNodeIDs), int[10]>);
static_assert(std::is_same_v<decltype(Scalars::m_fValues), float[10]>);
static_assert(std::is_same_v<decltype(Scalars::m_nNodes), int>);
static_assert(std::is_same_v<decltype(Tensors::m_nNodes), int>);
static_assert(std::is_same_v<decltype(Tensors::m_nNodeIDs), int[10]>);
static_assert(std::is_same_v<decltype(Tensors::m_fStressTensor), float[10][6]>);
static_assert(std::is_same_v<decltype(Tensors::m_fStressTensor2), float[6][6]>);

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr int kFloatTotal = 96;

/// The floats of both blocks, the first block row by row and then the second.
template <class Object>
auto& FloatAt(Object& tensors, int place) {
  return place < 60 ? tensors.m_fStressTensor[place / 6][place % 6]
                    : tensors.m_fStressTensor2[(place - 60) / 6][place % 6];
}

std::string Trace(int place) {
  return place < 60 ? "first block, row " + std::to_string(place / 6) + ", component " +
                          std::to_string(place % 6)
                    : "second block, row " + std::to_string((place - 60) / 6) + ", component " +
                          std::to_string(place % 6);
}

/// Gives every slot a value of its own: floats from `start` on in steps of 1, ids from
/// 1000 * `start` on.
void Fill(Tensors& tensors, int start) {
  tensors.m_nNodes = 4 + start;
  for (int slot = 0; slot < 10; ++slot) {
    tensors.m_nNodeIDs[slot] = 1000 * start + slot;
  }
  for (int place = 0; place < kFloatTotal; ++place) {
    FloatAt(tensors, place) = static_cast<float>(start + place);
  }
}

void ExpectFilled(const Tensors& tensors, int start) {
  EXPECT_EQ(tensors.m_nNodes, 4 + start);
  for (int slot = 0; slot < 10; ++slot) {
    EXPECT_EQ(tensors.m_nNodeIDs[slot], 1000 * start + slot) << "slot " << slot;
  }
  for (int place = 0; place < kFloatTotal; ++place) {
    EXPECT_EQ(Difference(FloatAt(tensors, place), static_cast<float>(start + place)), "")
        << Trace(place);
  }
}

void Fill(Scalars& scalars, int start) {
  scalars.m_nNodes = 4 + start;
  for (int slot = 0; slot < 10; ++slot) {
    scalars.m_nNodeIDs[slot] = 1000 * start + slot;
    scalars.m_fValues[slot] = static_cast<float>(start + slot) + 0.5F;
  }
}

void ExpectFilled(const Scalars& scalars, int start) {
  EXPECT_EQ(scalars.m_nNodes, 4 + start);
  for (int slot = 0; slot < 10; ++slot) {
    EXPECT_EQ(scalars.m_nNodeIDs[slot], 1000 * start + slot) << "slot " << slot;
    EXPECT_EQ(Difference(scalars.m_fValues[slot], static_cast<float>(start + slot) + 0.5F), "")
        << "slot " << slot;
  }
}

TEST(ElementScalars, ANewObjectHasOneNodeAndZeros) {
  const Scalars scalars;
  EXPECT_EQ(scalars.m_nNodes, 1);
  for (int slot = 0; slot < 10; ++slot) {
    EXPECT_EQ(scalars.m_nNodeIDs[slot], 0) << "slot " << slot;
    EXPECT_EQ(Difference(scalars.m_fValues[slot], 0.0F), "") << "slot " << slot;
  }
}

TEST(ElementScalars, AllTenSlotsAreTakenWhateverTheNumberOfNodes) {
  int nodeIds[10] = {11, -12, 13, INT_MAX, INT_MIN, 0, 17, 18, 19, 20};
  float tensors[10][6] = {};
  for (int slot = 0; slot < 10; ++slot) {
    tensors[slot][0] = static_cast<float>(slot + 1);
    for (int component = 1; component < 6; ++component) {
      tensors[slot][component] = kNaN;
    }
  }
  constexpr float kExpected[10] = {-2.5F,  -5.0F,  -7.5F,  -10.0F, -12.5F,
                                   -15.0F, -17.5F, -20.0F, -22.5F, -25.0F};
  for (const int nodes : {1, 0, -1, 4, 9, 10, 11, 1000, INT_MIN, INT_MAX}) {
    const Scalars scalars(nodes, nodeIds, tensors, -2.5F);
    EXPECT_EQ(scalars.m_nNodes, nodes);
    for (int slot = 0; slot < 10; ++slot) {
      EXPECT_EQ(scalars.m_nNodeIDs[slot], nodeIds[slot]) << nodes << " nodes, slot " << slot;
      EXPECT_EQ(Difference(scalars.m_fValues[slot], kExpected[slot]), "")
          << nodes << " nodes, slot " << slot;
    }
  }
}

TEST(ElementScalars, CopiesHaveEveryMemberAndAreIndependent) {
  Scalars source;
  Fill(source, 1);
  Scalars copy(source);
  Scalars assigned;
  Fill(assigned, 2);
  Scalars& result = assigned = source;
  EXPECT_EQ(&result, &assigned);
  Fill(source, 3);
  ExpectFilled(copy, 1);
  ExpectFilled(assigned, 1);

  const Scalars moved(std::move(copy));
  ExpectFilled(moved, 1);
  const Scalars& alias = assigned;
  assigned = alias;
  ExpectFilled(assigned, 1);
}

TEST(ElementScalars, CopiesKeepAllSlotsOfAnObjectWithoutNodes) {
  for (const int nodes : {0, -3, 1, 11, INT_MAX}) {
    Scalars source;
    Fill(source, 1);
    source.m_nNodes = nodes;
    Scalars copy(source);
    Scalars assigned;
    assigned = source;
    EXPECT_EQ(copy.m_nNodes, nodes);
    EXPECT_EQ(assigned.m_nNodes, nodes);
    copy.m_nNodes = 5;
    assigned.m_nNodes = 5;
    ExpectFilled(copy, 1);
    ExpectFilled(assigned, 1);
  }
}

TEST(ElementTensors, ANewObjectHasOneNodeAndZeros) {
  const Tensors tensors;
  EXPECT_EQ(tensors.m_nNodes, 1);
  for (int slot = 0; slot < 10; ++slot) {
    EXPECT_EQ(tensors.m_nNodeIDs[slot], 0) << "slot " << slot;
  }
  for (int place = 0; place < kFloatTotal; ++place) {
    EXPECT_EQ(Difference(FloatAt(tensors, place), 0.0F), "") << Trace(place);
  }
}

TEST(ElementTensors, CopiesHaveEveryMemberAndAreIndependent) {
  Tensors source;
  Fill(source, 1);
  Tensors copy(source);
  Tensors assigned;
  Fill(assigned, 2);
  Tensors& result = assigned = source;
  EXPECT_EQ(&result, &assigned);
  Fill(source, 3);
  ExpectFilled(copy, 1);
  ExpectFilled(assigned, 1);
  ExpectFilled(source, 3);

  const Tensors moved(std::move(copy));
  ExpectFilled(moved, 1);
  const Tensors& alias = assigned;
  assigned = alias;
  ExpectFilled(assigned, 1);
}

TEST(ElementTensors, CopiesKeepAllSlotsOfAnObjectWithoutNodes) {
  for (const int nodes : {0, -3, 1, 11, INT_MAX}) {
    Tensors source;
    Fill(source, 1);
    source.m_nNodes = nodes;
    Tensors copy(source);
    Tensors assigned;
    assigned = source;
    EXPECT_EQ(copy.m_nNodes, nodes);
    EXPECT_EQ(assigned.m_nNodes, nodes);
    copy.m_nNodes = 5;
    assigned.m_nNodes = 5;
    ExpectFilled(copy, 1);
    ExpectFilled(assigned, 1);
  }
}

TEST(ElementTensors, UnitsApplyToAllFloatsOfBothBlocksAndNothingElse) {
  for (const int nodes : {1, 0, -7, 3, 10, 12, INT_MIN, INT_MAX}) {
    Tensors tensors;
    Fill(tensors, 1);
    tensors.m_nNodes = nodes;
    tensors.ApplyUnits(0.5F);
    EXPECT_EQ(tensors.m_nNodes, nodes);
    for (int slot = 0; slot < 10; ++slot) {
      EXPECT_EQ(tensors.m_nNodeIDs[slot], 1000 + slot) << nodes << " nodes, slot " << slot;
    }
    // 1 to 96 have exact halves.
    for (int place = 0; place < kFloatTotal; ++place) {
      EXPECT_EQ(FloatAt(tensors, place) + FloatAt(tensors, place), static_cast<float>(1 + place))
          << nodes << " nodes, " << Trace(place);
    }
  }
}

struct ProductRow {
  float value;
  float factor;
  float product;
};

// clang-format off
constexpr ProductRow kProducts[] = {
    // value          factor             product
    {0x1p+0F,         0x1.aeec1cp+12F,   0x1.aeec1cp+12F},   // psi to N/m^2
    {0x1.99999ap-4F,  0x1.aeec1cp+12F,   0x1.58bce4p+9F},
    {0x1.555556p-2F,  0x1.7f128p+16F,    0x1.fec356p+14F},   // kgf/cm^2 to N/m^2
    {0x1.e240b4p+16F, 0x1.302a8cp-13F,   0x1.1e7e7ep+4F},    // N/m^2 to psi
    {-0x1.ecccccp+2F, 0x1.99999ap-4F,   -0x1.8a3d7p-1F},
    {0x1.99999ap-4F,  0x1.99999ap-4F,    0x1.47ae16p-7F},
    {0x1.fffffep+23F, 0x1.fffffep+23F,   0x1.fffffcp+47F},
    {0x1.000002p+0F,  0x1.000002p+0F,    0x1.000004p+0F},
    {0x1.c363ccp+127F, 0x1.19999ap+0F,   0x1.f08762p+127F},
    {0x1.c363ccp+127F, 0x1p+1F,          kInfinity},         // beyond single precision
    {0x1.c363ccp+127F, -0x1p+1F,        -kInfinity},
    {0x1p-126F,       0x1p-1F,           0x1p-127F},         // denormal from here on
    {0x1.4484cp-100F, 0x1.b7cdfep-34F,   0x1.16c2p-133F},
    {-0x1.16c2p-133F, 0x1.a66666p+1F,   -0x1.cbf38p-132F},
    {0x1p-149F,       0x1p-1F,           0x0p+0F},           // a tie goes to even
    {0x1p-149F,       0x1.8p+0F,         0x1p-148F},
    {0x1.8p-148F,     0x1p-1F,           0x1p-148F},
    {-0x1p-149F,      0x1p-1F,          -0x0p+0F},
    {5.0F,            0.0F,              0.0F},
    {-5.0F,           0.0F,             -0.0F},
    {5.0F,           -0.0F,             -0.0F},
    {-0.0F,           3.0F,             -0.0F},
    {-0.0F,          -3.0F,              0.0F},
    {7.0F,           -1.0F,             -7.0F},
    {kInfinity,       2.0F,              kInfinity},
    {kInfinity,      -2.0F,             -kInfinity},
    {-3.0F,           kInfinity,        -kInfinity},
    {kInfinity,       0.0F,              kNaN},
    {0.0F,           -kInfinity,         kNaN},
    {kNaN,            1.0F,              kNaN},
    {1.0F,            kNaN,              kNaN},
    {kNaN,            0.0F,              kNaN},
};
// clang-format on

/// Empty when the product is the one of the row; one NaN is as good as another.
std::string ProductDifference(float got, const ProductRow& row) {
  if (std::isnan(row.product) && std::isnan(got)) {
    return "";
  }
  const std::string difference = Difference(got, row.product);
  return difference.empty() ? ""
                            : Show(row.value) + " times " + Show(row.factor) + ": " + difference;
}

TEST(ElementTensors, EveryFloatBecomesTheProductInSinglePrecision) {
  for (const ProductRow& row : kProducts) {
    Tensors tensors;
    for (int place = 0; place < kFloatTotal; ++place) {
      FloatAt(tensors, place) = row.value;
    }
    tensors.ApplyUnits(row.factor);
    for (int place = 0; place < kFloatTotal; ++place) {
      EXPECT_EQ(ProductDifference(FloatAt(tensors, place), row), "") << Trace(place);
    }
  }
}

TEST(ElementTensors, TheSpecificResultIsTheProductInSinglePrecision) {
  for (const ProductRow& row : kProducts) {
    for (int slot = 0; slot < 10; ++slot) {
      Tensors tensors;
      tensors.m_fStressTensor[slot][0] = row.value;
      const Scalars result = tensors.GetSpecificResult(row.factor);
      EXPECT_EQ(ProductDifference(result.m_fValues[slot], row), "") << "slot " << slot;
    }
  }
}

TEST(ElementTensors, ANewObjectGivesTenZerosAndOneNode) {
  const Scalars result = Tensors().GetSpecificResult(2.0F);
  EXPECT_EQ(result.m_nNodes, 1);
  for (int slot = 0; slot < 10; ++slot) {
    EXPECT_EQ(result.m_nNodeIDs[slot], 0) << "slot " << slot;
    EXPECT_EQ(Difference(result.m_fValues[slot], 0.0F), "") << "slot " << slot;
  }
}

TEST(ElementTensors, TheSpecificResultTakesTheFirstComponentOfEverySlot) {
  constexpr float kExpected[10] = {3.0F,  21.0F,  39.0F,  57.0F,  75.0F,
                                   93.0F, 111.0F, 129.0F, 147.0F, 165.0F};
  for (const int nodes : {1, 0, -7, 3, 10, 12, INT_MIN, INT_MAX}) {
    Tensors tensors;
    Fill(tensors, 1);
    tensors.m_nNodes = nodes;
    const Scalars result = tensors.GetSpecificResult(3.0F);
    EXPECT_EQ(result.m_nNodes, nodes);
    for (int slot = 0; slot < 10; ++slot) {
      EXPECT_EQ(result.m_nNodeIDs[slot], 1000 + slot) << nodes << " nodes, slot " << slot;
      EXPECT_EQ(Difference(result.m_fValues[slot], kExpected[slot]), "")
          << nodes << " nodes, slot " << slot;
    }
    tensors.m_nNodes = 5;
    ExpectFilled(tensors, 1);
  }
}

TEST(ElementTensors, TheSpecificResultIgnoresTheOtherComponentsAndTheSecondBlock) {
  Tensors tensors;
  Fill(tensors, 1);
  for (int place = 0; place < kFloatTotal; ++place) {
    if (place >= 60 || place % 6 != 0) {
      FloatAt(tensors, place) = kNaN;
    }
  }
  const Scalars result = tensors.GetSpecificResult(1.0F);
  for (int slot = 0; slot < 10; ++slot) {
    EXPECT_EQ(Difference(result.m_fValues[slot], static_cast<float>(1 + 6 * slot)), "")
        << "slot " << slot;
  }
}

struct ChainRow {
  float value;
  float units;
  float factor;
  float result;
};

// clang-format off
// One product of the two factors, or double precision in between, gives another last bit.
constexpr ChainRow kChains[] = {
    {0x1.3368f6p+9F,   0x1.7f128p+16F,   0x1.19999ap+0F,   0x1.fa0048p+25F},
    {0x1.645c28p+9F,   0x1.aeec1cp+12F,  0x1.666666p-1F,   0x1.a3e66ep+21F},
    {0x1.b2ccccp+7F,   0x1.7f128p+16F,   0x1.5628f4p-17F,  0x1.b2cccap+7F},
    {0x1.87a148p+8F,   0x1.aeec1cp+12F,  0x1.5628f4p-17F,  0x1.b88c8cp+4F},
    {0x1.c363ccp+127F, 0x1p+4F,          0x1p-4F,          kInfinity},
    {0x1p-149F,        0x1p-4F,          0x1p+4F,          0.0F},
};
// clang-format on

TEST(ElementTensors, UnitsAndFactorRoundOneAfterTheOther) {
  for (const ChainRow& row : kChains) {
    Tensors tensors;
    for (int slot = 0; slot < 10; ++slot) {
      tensors.m_fStressTensor[slot][0] = row.value;
    }
    tensors.ApplyUnits(row.units);
    const Scalars result = tensors.GetSpecificResult(row.factor);
    for (int slot = 0; slot < 10; ++slot) {
      EXPECT_EQ(Difference(result.m_fValues[slot], row.result), "")
          << Show(row.value) << " times " << Show(row.units) << " times " << Show(row.factor)
          << ", slot " << slot;
    }
  }
}

}  // namespace
}  // namespace mqp::test
