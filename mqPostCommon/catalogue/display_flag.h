// The actual-frequency display flag, as the functions of the catalogue read it.
#pragma once

#include <atomic>
#include <cstdint>

namespace mqp {

extern constinit std::atomic<std::int32_t> actualFrequencyDisplayFlag;

// Relaxed: the flag stands alone, and nobody orders other memory by it.
inline std::int32_t LoadDisplayFlag() noexcept {
  return actualFrequencyDisplayFlag.load(std::memory_order_relaxed);
}

}  // namespace mqp
