/// \file
/// Questions to the catalogue that more than one verb asks.
#pragma once

#include <string>
#include <vector>

#include <mqPostCommon/mqPostCommon.h>

#include "choices.h"
#include "text.h"

namespace mqp::tool {

/// The options of the catalogue functions, named as they name them. On every mesh and without any
/// option they are 0.
struct CatalogueOptions {
  int meshKind = 0;
  int meshFlags = 0;
  int extraStress = 0;
  int moreStress = 0;
  int stressComponent12 = 0;
  int dynamicOption = 0;
  int dynamicChoice = 0;
  int alternateNames = 0;

  /// Spectral densities are asked for by the option and this flag together.
  [[nodiscard]] int UnitOptionFlag() const noexcept { return dynamicOption == 2 ? 1 : 0; }
};

inline int CountComponents(int study, int result, const CatalogueOptions& options = {}) {
  return vekPostCommonGetComponentTotal(study, result, options.extraStress, options.meshKind, 0,
                                        options.moreStress, options.meshFlags,
                                        options.dynamicOption, options.dynamicChoice);
}

inline int DefaultComponent(int study, int result, const CatalogueOptions& options = {}) {
  return vekPostCommonGetComponentDefault(study, result, 0, options.meshKind,
                                          options.dynamicOption);
}

inline std::string ComponentName(int study, int result, int component,
                                 const CatalogueOptions& options = {}) {
  return Utf8(vekPostCommonGetComponentName(study, result, 0, component, options.meshKind,
                                            options.alternateNames));
}

/// Shows the actual frequencies while it lives.
class FrequencyDisplay {
 public:
  explicit FrequencyDisplay(bool isActual) : m_before(vekPostCommonGetActualFreqDispFlag()) {
    vekPostCommonSetActualFreqDispFlag(isActual ? 1 : 0);
  }
  ~FrequencyDisplay() { vekPostCommonSetActualFreqDispFlag(m_before); }
  FrequencyDisplay(const FrequencyDisplay&) = delete;
  FrequencyDisplay& operator=(const FrequencyDisplay&) = delete;

 private:
  int m_before;
};

inline constexpr const char* kMeshHelp = "for the names: solid, shell, mixed or beam";

/// Components can lie beyond the count; none that has a name or a unit lies beyond this one.
inline constexpr int kLastComponent = 100;

}  // namespace mqp::tool
