#include <limits>
#include <type_traits>

#include <gtest/gtest.h>
#include <mqPostCommon/platform/gfx_core.h>

namespace {

struct Components {
  float red;
  float green;
  float blue;
  float alpha;

  bool operator==(const Components&) const = default;
  friend void PrintTo(const Components& color, std::ostream* out) {
    *out << color.red << ' ' << color.green << ' ' << color.blue << ' ' << color.alpha;
  }
};

Components Read(const COGLColor& color) {
  return {color.Red(), color.Green(), color.Blue(), color.Alpha()};
}

TEST(Color, ANewColorIsOpaqueBlack) {
  EXPECT_EQ(Read(COGLColor()), (Components{0.0F, 0.0F, 0.0F, 1.0F}));
}

TEST(Color, FourNumbersAreRedGreenBlueAndAlpha) {
  EXPECT_EQ(Read(COGLColor(0.25F, 0.5F, 0.75F, 0.125F)), (Components{0.25F, 0.5F, 0.75F, 0.125F}));
}

TEST(Color, ComponentsBeyondTheRangeAreKept) {
  EXPECT_EQ(Read(COGLColor(-1.0F, 2.0F, 1e30F, -0.5F)), (Components{-1.0F, 2.0F, 1e30F, -0.5F}));
}

TEST(Color, APackedColorHasRedInItsLowestByteAndIsOpaque) {
  struct Row {
    unsigned long packed;
    Components expected;
  };
  // clang-format off
  const Row rows[] = {
      // packed         red     green   blue    alpha
      {0x00000000UL, {  0.0F,   0.0F,   0.0F,   1.0F}},
      {0x000000FFUL, {  1.0F,   0.0F,   0.0F,   1.0F}},
      {0x0000FF00UL, {  0.0F,   1.0F,   0.0F,   1.0F}},
      {0x00FF0000UL, {  0.0F,   0.0F,   1.0F,   1.0F}},
      {0x00FFFFFFUL, {  1.0F,   1.0F,   1.0F,   1.0F}},
      {0x00996633UL, {  0.2F,   0.4F,   0.6F,   1.0F}},
      {0x00000001UL, {0.003921569F, 0.0F, 0.0F, 1.0F}},
      {0xFF000000UL, {  0.0F,   0.0F,   0.0F,   1.0F}},  // the highest byte has no effect
      {0xAB0000FFUL, {  1.0F,   0.0F,   0.0F,   1.0F}},
  };
  // clang-format on
  for (const Row& row : rows) {
    COGLColor color(0.5F, 0.5F, 0.5F, 0.5F);
    color = row.packed;
    EXPECT_EQ(Read(color), row.expected) << "packed 0x" << std::hex << row.packed;
  }
}

TEST(Color, AnAssignmentOfAPackedColorReturnsTheColor) {
  COGLColor color;
  EXPECT_EQ(&(color = 0x0000FFUL), &color);
}

TEST(Color, ColorsAreEqualWhenAllFourComponentsAre) {
  const COGLColor color(0.1F, 0.2F, 0.3F, 0.4F);
  EXPECT_TRUE(color == COGLColor(0.1F, 0.2F, 0.3F, 0.4F));
  EXPECT_FALSE(color != COGLColor(0.1F, 0.2F, 0.3F, 0.4F));
  EXPECT_FALSE(color == COGLColor(0.9F, 0.2F, 0.3F, 0.4F));
  EXPECT_FALSE(color == COGLColor(0.1F, 0.9F, 0.3F, 0.4F));
  EXPECT_FALSE(color == COGLColor(0.1F, 0.2F, 0.9F, 0.4F));
  EXPECT_FALSE(color == COGLColor(0.1F, 0.2F, 0.3F, 0.9F));
  EXPECT_TRUE(color != COGLColor());
}

TEST(Color, MinusZeroEqualsZero) {
  EXPECT_TRUE(COGLColor(-0.0F, 0.0F, 0.0F, 1.0F) == COGLColor());
}

TEST(Color, AComponentThatIsNotANumberEqualsNothing) {
  constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();
  const COGLColor colors[] = {{kNotANumber, 0.0F, 0.0F, 1.0F},
                              {0.0F, kNotANumber, 0.0F, 1.0F},
                              {0.0F, 0.0F, kNotANumber, 1.0F},
                              {0.0F, 0.0F, 0.0F, kNotANumber}};
  for (const COGLColor& color : colors) {
    const COGLColor copy = color;
    EXPECT_FALSE(color == copy);
    EXPECT_TRUE(color != copy);
  }
}

TEST(Color, ACopyLeavesItsSourceAloneAndStandsByItself) {
  const COGLColor source(0.1F, 0.2F, 0.3F, 0.4F);
  COGLColor copy(source);
  EXPECT_EQ(Read(copy), (Components{0.1F, 0.2F, 0.3F, 0.4F}));
  copy = 0x00FFFFFFUL;
  EXPECT_EQ(Read(source), (Components{0.1F, 0.2F, 0.3F, 0.4F}));
  copy = source;
  EXPECT_TRUE(copy == source);
  COGLColor& self = copy;
  copy = self;
  EXPECT_TRUE(copy == source);
}

static_assert(!std::is_convertible_v<unsigned long, COGLColor>, "assigned, not converted");

}  // namespace
