#include "tally.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>

#include <gtest/gtest.h>

namespace reference {

namespace {

constexpr int kSoakFactor = 40;

using Counts = std::map<std::string, long, std::less<>>;

Counts& AllCounts() {
  static Counts counts;
  return counts;
}

std::string_view FamilyOf(std::string_view branch) {
  return branch.substr(0, branch.find(':'));
}

}  // namespace

void Hit(std::string_view branch) {
  Counts& counts = AllCounts();
  const auto found = counts.find(branch);
  if (found != counts.end()) {
    ++found->second;
  } else {
    counts.emplace(branch, 1);
  }
}

long Hits(std::string_view branch) {
  const auto found = AllCounts().find(branch);
  return found == AllCounts().end() ? 0 : found->second;
}

void ResetTally() {
  AllCounts().clear();
}

void CheckTally(std::string_view family, std::initializer_list<std::string_view> expected) {
  for (const std::string_view branch : expected) {
    const long hits = Hits(branch);
    std::printf("  %10ld  %.*s\n", hits, static_cast<int>(branch.size()), branch.data());
    EXPECT_GT(hits, 0) << "no case reached: " << branch;
  }
  for (const auto& [branch, hits] : AllCounts()) {
    if (FamilyOf(branch) == family) {
      EXPECT_TRUE(std::ranges::find(expected, branch) != expected.end())
          << "counted and never asked for: " << branch;
    }
  }
}

int CountCases(int usual) {
  const char* soak = std::getenv("MQ_SOAK");
  return soak != nullptr && std::string_view(soak) == "1" ? usual * kSoakFactor : usual;
}

void RecordCases(long count) {
  testing::Test::RecordProperty("cases", static_cast<int>(count));
  std::printf("  %10ld  cases\n", count);
}

}  // namespace reference
