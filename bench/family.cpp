#include "family.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <thread>
#include <vector>

namespace mqp::bench {

void RequireSame(bool isSame, const std::string& what) {
  if (!isSame) {
    std::fprintf(stderr, "different answers: %s\n", what.c_str());
    std::exit(1);
  }
}

int RunFamily(int argc, char** argv) {
  const std::jthread second([](const std::stop_token& stop) {
    while (!stop.stop_requested()) {
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
  });
  // What stands on the command line comes later and wins.
  std::vector<std::string> options = {"--benchmark_enable_random_interleaving=true",
                                      "--benchmark_repetitions=11", "--benchmark_min_time=0.02",
                                      "--benchmark_format=json"};
  std::vector<char*> arguments = {argv[0]};
  for (std::string& option : options) {
    arguments.push_back(option.data());
  }
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
    return 2;
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

}  // namespace mqp::bench
