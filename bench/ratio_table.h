/// \file
/// Benchmarks in pairs: an operation and the limit it is held against, in one run.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace mqp::bench {

inline constexpr const char* kOurs = "ours";
inline constexpr const char* kLimit = "limit";

/// Runs every registered benchmark, named "operation/ours" and "operation/limit", and prints a
/// line an operation: both medians and their ratio.
void RunAsRatioTable(int argc, char** argv);

}  // namespace mqp::bench
