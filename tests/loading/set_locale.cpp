// Preloaded into a program, takes the locale of the environment over before `main`, for the
// functions of C and of C++ alike, as an application with a user interface does.
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <locale>

namespace {

struct LocaleOfTheEnvironment {
  LocaleOfTheEnvironment() {
    try {
      if (std::setlocale(LC_ALL, "") != nullptr) {
        std::locale::global(std::locale(""));
        return;
      }
    } catch (const std::exception&) {
    }
    std::fputs("set_locale: the locale of the environment does not exist\n", stderr);
    std::_Exit(99);
  }
};

const LocaleOfTheEnvironment atLoad;

}  // namespace
