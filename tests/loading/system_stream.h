/// \file
/// The stream that the system itself offers for bytes: an open file, or a block of global memory.
#pragma once

#include <filesystem>
#include <functional>

#include <mqPostCommon/platform/stream.h>

namespace mqp::test {

/// Hands a stream of the system to `write` and leaves what it took in a file.
/// \throw std::runtime_error when the system refuses
void WriteThroughSystemStream(const std::filesystem::path& file,
                              const std::function<void(IStream&)>& write);

}  // namespace mqp::test
