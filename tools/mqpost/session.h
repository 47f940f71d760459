/// \file
/// What every verb is given, and how it says that it cannot go on.
#pragma once

#include <iosfwd>
#include <stdexcept>
#include <string>
#include <vector>

#include "run.h"

namespace mqp::tool {

/// Ends a verb. The text says what happened, where and what to do.
class Problem : public std::runtime_error {
 public:
  Problem(ExitCode code, const std::string& text) : std::runtime_error(text), m_code(code) {}
  [[nodiscard]] ExitCode Code() const noexcept { return m_code; }

 private:
  ExitCode m_code;
};

/// One run of one verb.
struct Session {
  std::vector<std::string> arguments;  ///< those behind the verb
  std::ostream& out;
  std::ostream& err;
  const Environment& environment;
};

}  // namespace mqp::tool
