#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace reference {

/// The tests of one program run one after the other and share one tally: a reference counts each of
/// its branches that a case takes, and a test asks at its end that no branch was missed. A
/// generator that never reaches a branch would make the comparison say nothing about it.
void Hit(std::string_view branch);

/// Returns what was counted, for a rule that is met somewhere below a test.
long Hits(std::string_view branch);

void ResetTally();

/// Prints the counts of the expected branches and fails for each that is zero, and for each counted
/// branch of the same family (the word before the first colon) that nobody expected.
void CheckTally(std::string_view family, std::initializer_list<std::string_view> expected);

/// Number of cases of a test: `usual`, or many times that when MQ_SOAK=1.
int CountCases(int usual);

/// Says in the test's record how many cases it ran.
void RecordCases(long count);

}  // namespace reference
