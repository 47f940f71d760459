/// \file
/// A family of operations, each in all of its variants: ours, those of the peers, and the limit,
/// which is what the least of it costs: a call, a copy, a look at each record. `bench/run` makes
/// the tables of what the programs measure.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>

#include <benchmark/benchmark.h>

namespace mqp::bench {

inline constexpr const char* kOurs = "ours";
inline constexpr const char* kLimit = "limit";

/// How many random arguments are drawn beforehand. A predictor of branches must not learn them: of
/// 4,096 it knew by heart each turn of a binary search in 100 points.
inline constexpr std::size_t kDrawn = 65536;

/// Keeps a result from being optimised away.
template <class Value>
void Keep(Value&& value) {
  benchmark::DoNotOptimize(value);
}

/// Registers a variant. `call(i)` does the operation once, with the i-th of the random arguments.
template <class Call>
void Add(const std::string& operation, const std::string& variant, Call call) {
  benchmark::RegisterBenchmark((operation + "/" + variant).c_str(),
                               [call](benchmark::State& state) mutable {
                                 std::size_t place = 0;
                                 for (auto _ : state) {
                                   call(place);
                                   place = (place + 1) % kDrawn;
                                 }
                               });
}

/// Registers a variant that grows with a number of records. `make(n)` gives what `call(records, i)`
/// works on; it is made when its turn comes and destroyed behind it. When `call` goes through all
/// of the records, `isForEach` makes the time that of one record.
template <class Make, class Call>
void AddGrowing(const std::string& operation, const std::string& variant, int size, Make make,
                Call call, bool isForEach = false) {
  const std::string name = operation + "/" + variant + "/" + std::to_string(size);
  benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
    auto records = make(size);
    std::size_t place = 0;
    for (auto _ : state) {
      call(records, place);
      place = (place + 1) % kDrawn;
    }
    if (isForEach) {
      state.counters["records"] = static_cast<double>(size);
    }
  });
}

/// Ends the program with a message when two variants do not answer the same.
void RequireSame(bool isSame, const std::string& what);

/// Runs what is registered: the repetitions of all variants in random order, beside a second
/// thread, without which locked instructions would look free. Prints JSON for `bench/run`.
int RunFamily(int argc, char** argv);

}  // namespace mqp::bench
