// Runs a program under thousands of mutants of constant tables, without building or starting it
// anew: preloaded (LD_PRELOAD) into a test program, it divides the process before the first read of
// a byte that a mutant changes. The child goes on with the changed bytes and lives until a test
// fails or the program ends, the parent goes on unchanged. What is never read needs no run: a
// mutant of it cannot be told from the original by this program.
//
// The reads are told by the library itself, which is compiled with the hooks of an address
// sanitizer (-fsanitize=kernel-address, each access a call) and finds here what they call. Where
// reads are not told, because a program reads a table itself, mutants live from the start on.
//
// MQ_MUTANTS names the list of work, a line an item, numbers in hexadecimal:
//   copy TABLE OBJECT ADDRESS     where a loaded object has the table; several may have one
//   mutant ID TABLE OFFSET BYTES  the changed bytes, two digits each
// MQ_OUTCOMES names the file that receives a line "ID STATUS" for each mutant that was run, STATUS
// being that of waitpid.
// MQ_MODE is "start" for mutants that live from the start on, "read" for mutants that live from
// their first read on, "all" for one run under all of them at once, and "pieces" for a program
// without state that works in pieces, see table_mutants.h: each piece is done again under the
// mutants of what it read, one after the other in one child. A mutant that makes no difference is
// tried again with the next piece that reads it, and has the status 0 in the end.
#include "table_mutants.h"

#include <fcntl.h>
#include <link.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Address = std::uintptr_t;
using Bytes = std::vector<unsigned char>;

constexpr Address kPageSize = 4096;
constexpr rlim_t kSeconds = 120;  // of a mutant that loops; a sweep that tells its reads needs 30
constexpr rlim_t kMemory = rlim_t{4} << 30;

struct Mutant {
  int id = 0;
  int table = 0;
  Address offset = 0;
  Bytes bytes;
  Bytes original;
  bool isPending = true;
  bool isRead = false;
};

std::map<int, std::vector<Address>> copies;  // of each table
std::vector<Mutant> mutants;
std::vector<Mutant*> readInPiece;
std::vector<std::vector<Mutant*>> mutantsAt;  // by byte, from `watchedBegin` on
Address watchedBegin = 0;
Address watchedEnd = 0;
std::string_view mode;
bool isWatching = false;
int outcomes = -1;

[[noreturn]] void Fail(const char* what) {
  std::fprintf(stderr, "table mutants: %s\n", what);
  std::_Exit(125);
}

// ---------------------------------------------------------------------------------------------
// Mutants

void Write(const Mutant& mutant, const Bytes& bytes) {
  for (const Address copy : copies[mutant.table]) {
    std::ranges::copy(bytes, reinterpret_cast<unsigned char*>(copy + mutant.offset));
  }
}

void MakeWritable() {
  std::set<Address> pages;
  for (const Mutant& mutant : mutants) {
    for (const Address copy : copies[mutant.table]) {
      pages.insert((copy + mutant.offset) / kPageSize);
      pages.insert((copy + mutant.offset + mutant.bytes.size() - 1) / kPageSize);
    }
  }
  for (const Address page : pages) {
    if (mprotect(reinterpret_cast<void*>(page * kPageSize), kPageSize, PROT_READ | PROT_WRITE) !=
        0) {
      Fail("a table cannot be made writable");
    }
  }
}

void Report(const Mutant& mutant, int status) {
  std::array<char, 64> line;
  const int length = std::snprintf(line.data(), line.size(), "%d %d\n", mutant.id, status);
  if (write(outcomes, line.data(), static_cast<std::size_t>(length)) != length) {
    Fail("an outcome cannot be written");
  }
}

/// Gives 0 in the child, which may take as long and as much as a mutant may.
pid_t Divide() {
  const pid_t child = fork();
  if (child < 0) {
    Fail("the process cannot be divided");
  }
  if (child == 0) {
    isWatching = false;
    const rlimit seconds{kSeconds, kSeconds};
    const rlimit memory{kMemory, kMemory};
    setrlimit(RLIMIT_CPU, &seconds);
    setrlimit(RLIMIT_AS, &memory);
  }
  return child;
}

int StatusOf(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return status;
}

/// True in the child.
bool RunAsMutant(const Mutant& mutant) {
  const pid_t child = Divide();
  if (child == 0) {
    Write(mutant, mutant.bytes);
    return true;
  }
  Report(mutant, StatusOf(child));
  return false;
}

// ---------------------------------------------------------------------------------------------
// Reads

void OnWatchedRead(Address begin, Address end) {
  for (Address byte = std::max(begin, watchedBegin); byte < std::min(end, watchedEnd); ++byte) {
    for (Mutant* const mutant : mutantsAt[byte - watchedBegin]) {
      if (!mutant->isPending) {
        continue;
      }
      mutant->isPending = false;
      mutant->isRead = true;
      if (mode == "pieces") {
        readInPiece.push_back(mutant);
      } else if (RunAsMutant(*mutant)) {
        return;
      }
    }
  }
}

void OnRead(Address begin, Address size) {
  if (isWatching && begin < watchedEnd && begin + size > watchedBegin) {
    OnWatchedRead(begin, begin + size);
  }
}

void OnRead(const void* begin, std::size_t size) {
  OnRead(reinterpret_cast<Address>(begin), size);
}

// ---------------------------------------------------------------------------------------------
// Pieces

/// What a child says of the mutants in `readInPiece`; shared with it.
struct Trial {
  std::size_t place;         ///< of the mutant that is tried
  unsigned char outcome[1];  ///< by place, one for each mutant; non-zero for a difference
};
Trial* trial = nullptr;

void MakeTrial() {
  trial = static_cast<Trial*>(mmap(nullptr, sizeof(Trial) + mutants.size(), PROT_READ | PROT_WRITE,
                                   MAP_SHARED | MAP_ANONYMOUS, -1, 0));
}

/// Tries the mutants from `trial->place` on, until one crashes.
void TryInChild(int (*isDifferent)(void* piece), void* piece) {
  const pid_t child = Divide();
  if (child == 0) {
    for (; trial->place < readInPiece.size(); ++trial->place) {
      const Mutant& mutant = *readInPiece[trial->place];
      Write(mutant, mutant.bytes);
      trial->outcome[trial->place] = isDifferent(piece) != 0 ? 1 : 0;
      Write(mutant, mutant.original);
    }
    std::_Exit(0);
  }
  StatusOf(child);
  if (trial->place < readInPiece.size()) {
    trial->outcome[trial->place++] = 1;
  }
}

// ---------------------------------------------------------------------------------------------
// The list of work

std::map<std::string, Address> LoadedObjects() {
  std::map<std::string, Address> objects;
  dl_iterate_phdr(
      [](dl_phdr_info* info, std::size_t, void* all) {
        std::string name = info->dlpi_name;
        name = name.empty() ? program_invocation_short_name : name.substr(name.rfind('/') + 1);
        static_cast<std::map<std::string, Address>*>(all)->emplace(name, info->dlpi_addr);
        return 0;
      },
      &objects);
  return objects;
}

Bytes ReadBytes(const std::string& digits) {
  Bytes bytes;
  for (std::size_t place = 0; place + 1 < digits.size(); place += 2) {
    bytes.push_back(static_cast<unsigned char>(std::stoul(digits.substr(place, 2), nullptr, 16)));
  }
  return bytes;
}

/// The first copy of each table is the library's, whose reads are told.
Address BeginOf(const Mutant& mutant) {
  return copies[mutant.table].front() + mutant.offset;
}

void ReadWork(const char* path) {
  const std::map<std::string, Address> objects = LoadedObjects();
  std::ifstream file(path);
  std::string word;
  std::string text;
  Address address = 0;
  int number = 0;
  file >> std::hex;
  while (file >> word >> number) {
    if (word == "copy") {
      file >> text >> address;
      const auto found = objects.find(text);
      if (found != objects.end()) {
        copies[number].push_back(found->second + address);
      }
    } else {
      Mutant mutant;
      mutant.id = number;
      file >> mutant.table >> mutant.offset >> text;
      mutant.bytes = ReadBytes(text);
      if (copies[mutant.table].empty()) {
        continue;  // a program without the library cannot tell its mutants
      }
      const auto* const original = reinterpret_cast<const unsigned char*>(BeginOf(mutant));
      mutant.original.assign(original, original + mutant.bytes.size());
      mutants.push_back(std::move(mutant));
    }
  }
  if (!file.eof()) {
    Fail("the list of work cannot be read");
  }
}

void PutMutantsInPlace() {
  watchedBegin = BeginOf(*std::ranges::min_element(mutants, {}, BeginOf));
  for (const Mutant& mutant : mutants) {
    watchedEnd = std::max(watchedEnd, BeginOf(mutant) + mutant.bytes.size());
  }
  mutantsAt.resize(watchedEnd - watchedBegin);
  for (Mutant& mutant : mutants) {
    for (Address byte = 0; byte < mutant.bytes.size(); ++byte) {
      mutantsAt[BeginOf(mutant) + byte - watchedBegin].push_back(&mutant);
    }
  }
}

const char* Setting(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

int Begin() {
  const rlimit noCore{0, 0};
  setrlimit(RLIMIT_CORE, &noCore);
  mode = Setting("MQ_MODE");
  outcomes = open(Setting("MQ_OUTCOMES"), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
  ReadWork(Setting("MQ_MUTANTS"));
  MakeWritable();
  if (mode == "start") {
    for (const Mutant& mutant : mutants) {
      if (RunAsMutant(mutant)) {
        return 0;
      }
    }
    std::_Exit(0);
  }
  if (mode == "all") {
    for (const Mutant& mutant : mutants) {
      Write(mutant, mutant.bytes);
    }
    return 0;
  }
  if (!mutants.empty()) {
    PutMutantsInPlace();
  }
  readInPiece.reserve(mutants.size());
  MakeTrial();
  isWatching = mode == "read";
  return 0;
}

// Behind everything else here, and before the program.
[[maybe_unused]] const int kBegun = Begin();

}  // namespace

void MqPiecesEnd() noexcept {
  MqPieceBegins();
  isWatching = false;
  for (const Mutant& mutant : mutants) {
    if (mutant.isRead && mutant.isPending) {
      Report(mutant, 0);
    }
  }
}

void MqPieceBegins() noexcept {
  for (Mutant* const mutant : readInPiece) {
    mutant->isPending = true;
  }
  readInPiece.clear();
  isWatching = mode == "pieces";
}

void MqPieceEnds(int (*isDifferent)(void* piece), void* piece) noexcept {
  if (mode != "pieces") {
    return;
  }
  isWatching = false;
  trial->place = 0;
  while (trial->place < readInPiece.size()) {
    TryInChild(isDifferent, piece);
  }
  std::size_t place = 0;
  std::erase_if(readInPiece, [&place](const Mutant* mutant) {
    const bool isFound = trial->outcome[place++] != 0;
    if (isFound) {
      Report(*mutant, 1);
    }
    return isFound;
  });
}

// ---------------------------------------------------------------------------------------------
// What compiled code calls at each access

// NOLINTBEGIN: the names are the compiler's
extern "C" {

#pragma GCC visibility push(default)

void __asan_load1_noabort(Address address) {
  OnRead(address, 1);
}
void __asan_load2_noabort(Address address) {
  OnRead(address, 2);
}
void __asan_load4_noabort(Address address) {
  OnRead(address, 4);
}
void __asan_load8_noabort(Address address) {
  OnRead(address, 8);
}
void __asan_load16_noabort(Address address) {
  OnRead(address, 16);
}
void __asan_loadN_noabort(Address address, std::size_t size) {
  OnRead(address, size);
}

void __asan_store1_noabort(Address) {}
void __asan_store2_noabort(Address) {}
void __asan_store4_noabort(Address) {}
void __asan_store8_noabort(Address) {}
void __asan_store16_noabort(Address) {}
void __asan_storeN_noabort(Address, std::size_t) {}
void __asan_handle_no_return() {}

void* __asan_memcpy(void* to, const void* from, std::size_t size) {
  OnRead(from, size);
  return std::memcpy(to, from, size);
}

void* __asan_memmove(void* to, const void* from, std::size_t size) {
  OnRead(from, size);
  return std::memmove(to, from, size);
}

void* __asan_memset(void* to, int value, std::size_t size) {
  return std::memset(to, value, size);
}

// In place of the C library's, for everyone.

std::size_t strlen(const char* text) noexcept {
  const volatile char* end = text;
  do {
    OnRead(const_cast<const char*>(end), 1);
  } while (*end++ != '\0');
  return static_cast<std::size_t>(end - text - 1);
}

int memcmp(const void* left, const void* right, std::size_t size) noexcept {
  OnRead(left, size);
  OnRead(right, size);
  const auto* const leftBytes = static_cast<const volatile unsigned char*>(left);
  const auto* const rightBytes = static_cast<const volatile unsigned char*>(right);
  for (std::size_t place = 0; place < size; ++place) {
    if (leftBytes[place] != rightBytes[place]) {
      return leftBytes[place] < rightBytes[place] ? -1 : 1;
    }
  }
  return 0;
}

#pragma GCC visibility pop
}
// NOLINTEND
