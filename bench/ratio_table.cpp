#include "ratio_table.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <utility>

namespace mqp::bench {
namespace {

/// Collects the time of every repetition.
class Collector : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration) {
        const std::string name = run.run_name.function_name;
        const std::size_t slash = name.rfind('/');
        const std::string operation = name.substr(0, slash);
        // Registered first is printed first, in whatever order the repetitions ran.
        const auto placed = m_order.find(operation);
        if (placed == m_order.end() || run.family_index < placed->second) {
          m_order[operation] = run.family_index;
        }
        m_times[operation][name.substr(slash + 1)].push_back(run.GetAdjustedCPUTime());
      }
    }
  }

  void Print() {
    std::vector<std::pair<std::int64_t, std::string>> operations;
    for (const auto& [operation, place] : m_order) {
      operations.emplace_back(place, operation);
    }
    std::ranges::sort(operations);
    std::printf("%-44s %10s %10s %8s\n", "operation", "ours ns", "limit ns", "ratio");
    for (const auto& [place, operation] : operations) {
      const double ours = Median(m_times[operation][kOurs]);
      const double limit = Median(m_times[operation][kLimit]);
      std::printf("%-44s %10.2f %10.2f %7.2fx\n", operation.c_str(), ours, limit, ours / limit);
    }
  }

 private:
  static double Median(std::vector<double>& times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
  }

  std::map<std::string, std::int64_t> m_order;
  std::map<std::string, std::map<std::string, std::vector<double>>> m_times;
};

}  // namespace

void RunAsRatioTable(int argc, char** argv) {
  // Repetitions of all benchmarks take turns, so that a busy machine slows both sides alike.
  std::vector<char*> arguments(argv, argv + argc);
  std::string interleaving = "--benchmark_enable_random_interleaving=true";
  std::string repetitions = "--benchmark_repetitions=11";
  std::string minimumTime = "--benchmark_min_time=0.02";
  for (std::string* option : {&interleaving, &repetitions, &minimumTime}) {
    arguments.insert(arguments.begin() + 1, option->data());
  }
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  collector.Print();
}

}  // namespace mqp::bench
