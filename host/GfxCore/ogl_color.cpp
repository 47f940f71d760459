#include <mqPostCommon/platform/gfx_core.h>

namespace {

float Channel(unsigned long packed, unsigned shift) {
  return static_cast<float>((packed >> shift) & 0xFFU) / 255.0F;
}

}  // namespace

COGLColor::COGLColor() noexcept = default;

COGLColor::COGLColor(float red, float green, float blue, float alpha) noexcept
    : m_fRed(red), m_fGreen(green), m_fBlue(blue), m_fAlpha(alpha) {}

COGLColor& COGLColor::operator=(unsigned long packed) noexcept {
  *this = COGLColor(Channel(packed, 0), Channel(packed, 8), Channel(packed, 16), 1.0F);
  return *this;
}

float COGLColor::Red() const noexcept {
  return m_fRed;
}
float COGLColor::Green() const noexcept {
  return m_fGreen;
}
float COGLColor::Blue() const noexcept {
  return m_fBlue;
}
float COGLColor::Alpha() const noexcept {
  return m_fAlpha;
}

bool COGLColor::operator==(const COGLColor& other) const noexcept = default;
