#pragma once

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace reference {

/// The numbers of a text such as "0-2 4-6 9", in the order written.
using Numbers = std::vector<int>;
Numbers Parse(std::string_view text);

bool Holds(const Numbers& numbers, int number);

inline constexpr int kStatic = 0;
inline constexpr int kFrequency = 1;
inline constexpr int kBuckling = 2;
inline constexpr int kThermalStudy = 3;
inline constexpr int kStepped = 5;
inline constexpr int kReduced = 6;
inline constexpr int kFatigue = 7;
inline constexpr int kDynamic = 8;
inline constexpr int kFlow = 10;

/// What a question to the catalogue may hang on; each function uses a few of these.
struct Question {
  int analysis = 0;
  int result = 0;
  int component = 0;
  int mesh = 0;
  int option = 0;  ///< extra stress, alternate names, variant: the one option of a function
  int moreStress = 0;
  int meshFlags = 0;
  int dynamicOption = 0;
  int dynamicChoice = 0;
};

using Condition = bool (*)(const Question&);

inline bool Always(const Question&) {
  return true;
}

/// One line of a table: "" stands for every code.
template <class Answer>
struct Rule {
  std::string_view analyses;
  std::string_view results;
  Condition when;
  Answer answer;
};

/// Lines tried from the first to the last. It counts how often each one decided.
template <class Answer>
class Rules {
 public:
  Rules(const char* name, const std::vector<Rule<Answer>>& rules) : m_name(name) {
    for (const Rule<Answer>& rule : rules) {
      m_lines.push_back({Parse(rule.analyses), Parse(rule.results), rule.when, rule.answer, 0});
    }
  }

  /// Null when no line applies.
  const Answer* Find(const Question& question) {
    for (Line& line : m_lines) {
      if (Fits(line.analyses, question.analysis) && Fits(line.results, question.result) &&
          line.when(question)) {
        ++line.hits;
        return &line.answer;
      }
    }
    ++m_misses;
    return nullptr;
  }

  void Reset() {
    m_misses = 0;
    for (Line& line : m_lines) {
      line.hits = 0;
    }
  }

  /// Fails for each line that never decided, and when every question found one.
  void Check() const {
    long least = m_misses;
    for (std::size_t index = 0; index < m_lines.size(); ++index) {
      least = std::min(least, m_lines[index].hits);
      EXPECT_GT(m_lines[index].hits, 0) << m_name << ": no case reached line " << index + 1;
    }
    EXPECT_GT(m_misses, 0) << m_name << ": every case found a line";
    std::printf("  %10ld  least often reached of %zu lines and the rest: %s\n", least,
                m_lines.size(), m_name);
  }

 private:
  struct Line {
    Numbers analyses;
    Numbers results;
    Condition when;
    Answer answer;
    long hits;
  };

  static bool Fits(const Numbers& codes, int code) { return codes.empty() || Holds(codes, code); }

  const char* m_name;
  std::vector<Line> m_lines;
  long m_misses = 0;
};

}  // namespace reference
