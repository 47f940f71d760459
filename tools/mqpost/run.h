/// \file
/// The command-line tool as a function, so that tests drive it without a process.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace mqp::tool {

/// What the tool asks of the place where it runs.
struct Environment {
  bool isTerminal = false;  ///< standard output is one that understands colours
  int width = 0;            ///< its columns; 0 when unknown
  bool isColorless = true;  ///< NO_COLOR is set, or the terminal is dumb
  std::vector<std::filesystem::path> localeFolders;  ///< where `--lang de` looks for `de.mo`
};

/// How the tool ended. The numbers are part of its interface.
enum class ExitCode : int {
  Fine = 0,
  Finding = 1,     ///< it ran and found what was asked for to be missing
  Usage = 2,       ///< the command line cannot be understood or carried out
  Damaged = 3,     ///< a file or record is damaged, or something else than was expected
  TooNew = 4,      ///< a record holds more than this version knows
  FileTrouble = 5  ///< a file or stream is missing, or cannot be read or written
};

/// Runs one command line. Results go to `out`, everything else that is said to `err`.
/// \param arguments without the name of the program, UTF-8
/// \return an `ExitCode`
int Run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
        const Environment& environment);

}  // namespace mqp::tool
