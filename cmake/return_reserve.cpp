// The standard library takes 73 KB in advance for exceptions that are thrown when memory has run
// out. A copy of it that is part of a library loses them when that is unloaded.

namespace __gnu_cxx {

/// Made for memory checkers: gives back what the standard library keeps until the process ends.
void __freeres();

}  // namespace __gnu_cxx

namespace {

[[gnu::destructor]] void ReturnReserve() {
  __gnu_cxx::__freeres();
}

}  // namespace
