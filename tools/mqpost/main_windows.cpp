#include <fcntl.h>
#include <io.h>
#include <windows.h>
// Behind the header that it needs.
#include <shellapi.h>

#include <array>
#include <cstdio>
#include <iostream>

#include "run.h"

namespace fs = std::filesystem;

namespace {

std::string Utf8FromWide(const wchar_t* wide) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
  if (size <= 1) {
    return {};
  }
  std::string utf8(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide, -1, utf8.data(), size, nullptr, nullptr);
  utf8.pop_back();  // the terminator
  return utf8;
}

/// The arguments of `main` lack the characters that the code page has not.
std::vector<std::string> ReadArguments() {
  int count = 0;
  wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int index = 1; wide != nullptr && index < count; ++index) {
    arguments.push_back(Utf8FromWide(wide[index]));
  }
  LocalFree(wide);
  return arguments;
}

fs::path ProgramFolder() {
  std::array<wchar_t, 32768> path{};
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), path.size());
  return fs::path(std::wstring(path.data(), length)).parent_path();
}

mqp::tool::Environment DescribeEnvironment() {
  mqp::tool::Environment environment;
  const HANDLE console = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  CONSOLE_SCREEN_BUFFER_INFO screen{};
  environment.isTerminal = GetConsoleMode(console, &mode) != 0;
  if (environment.isTerminal && GetConsoleScreenBufferInfo(console, &screen) != 0) {
    environment.width = screen.srWindow.Right - screen.srWindow.Left + 1;
  }
  const bool hasColor = environment.isTerminal &&
                        SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
  const DWORD noColor = GetEnvironmentVariableW(L"NO_COLOR", nullptr, 0);
  std::array<wchar_t, 8> terminal{};
  GetEnvironmentVariableW(L"TERM", terminal.data(), terminal.size());
  environment.isColorless = !hasColor || noColor > 1 || std::wstring(terminal.data()) == L"dumb";
  const fs::path folder = ProgramFolder();
  environment.localeFolders = {folder / "locale", folder / "../share/mqPostCommon/locale"};
  return environment;
}

/// Leaves the code page of the console as it was found.
class Utf8Console {
 public:
  Utf8Console() : m_codePage(GetConsoleOutputCP()) { SetConsoleOutputCP(CP_UTF8); }
  ~Utf8Console() { SetConsoleOutputCP(m_codePage); }
  Utf8Console(const Utf8Console&) = delete;
  Utf8Console& operator=(const Utf8Console&) = delete;

 private:
  UINT m_codePage;
};

}  // namespace

int main() {
  const Utf8Console console;
  // The same bytes on every platform.
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  return mqp::tool::Run(ReadArguments(), std::cout, std::cerr, DescribeEnvironment());
}
