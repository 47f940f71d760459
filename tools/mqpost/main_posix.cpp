#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <string_view>
#include <system_error>

#include "run.h"

namespace fs = std::filesystem;

namespace {

bool IsSet(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0';
}

bool IsDumb() {
  const char* value = std::getenv("TERM");
  return value == nullptr || std::string_view(value) == "dumb";
}

int TerminalWidth() {
  winsize size{};
  return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

mqp::tool::Environment DescribeEnvironment() {
  mqp::tool::Environment environment;
  environment.isTerminal = isatty(STDOUT_FILENO) == 1;
  environment.width = environment.isTerminal ? TerminalWidth() : 0;
  environment.isColorless = IsSet("NO_COLOR") || IsDumb();
  std::error_code ignored;
  const fs::path folder = fs::read_symlink("/proc/self/exe", ignored).parent_path();
  environment.localeFolders = {folder / "locale", folder / "../share/mqPostCommon/locale"};
  return environment;
}

}  // namespace

int main(int count, char** arguments) {
  std::ios::sync_with_stdio(false);
  return mqp::tool::Run({arguments + 1, arguments + count}, std::cout, std::cerr,
                        DescribeEnvironment());
}
