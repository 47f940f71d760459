/// \file
/// What the display library `GfxCore` supplies: the colour class.
#pragma once

#if defined(_WIN32)
#if defined(GFXCORE_BUILD)
#define GFXCORE_API __declspec(dllexport)
#else
#define GFXCORE_API __declspec(dllimport)
#endif
#else
#define GFXCORE_API __attribute__((visibility("default")))
#endif

/// A colour of four components, each from 0 to 1.
class GFXCORE_API COGLColor {
 public:
  /// Opaque black.
  COGLColor() noexcept;
  COGLColor(float red, float green, float blue, float alpha) noexcept;

  /// Takes the colour packed as 0x00BBGGRR; the result is opaque.
  COGLColor& operator=(unsigned long packed) noexcept;

  [[nodiscard]] float Red() const noexcept;
  [[nodiscard]] float Green() const noexcept;
  [[nodiscard]] float Blue() const noexcept;
  [[nodiscard]] float Alpha() const noexcept;

  /// True when all four components are equal; a component that is not a number equals nothing.
  [[nodiscard]] bool operator==(const COGLColor& other) const noexcept;

 private:
  float m_fRed = 0.0F;
  float m_fGreen = 0.0F;
  float m_fBlue = 0.0F;
  float m_fAlpha = 1.0F;
};
