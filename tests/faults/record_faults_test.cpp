// Records that are damaged and streams that fail. Whatever comes, the reader takes the fields that
// its version has from the bytes that there are, and says so; what it holds besides stays.

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "faults/faulty_stream.h"
#include "faults/record_kinds.h"

namespace mqp::test {
namespace {

/// A stream may be made for calls up to these sizes.
constexpr ULONG kMostRead = 4096;
constexpr ULONG kMostWritten = 8192;

template <class Kind>
class RecordFaults : public ::testing::Test {
 protected:
  using Object = typename Kind::Object;
  using State = typename Kind::State;

  /// Every version that adds or changes something, and that of the newest layout.
  static std::set<int> Gates() {
    std::set<int> versions(Kind::kGates.begin(), Kind::kGates.end());
    versions.insert(Kind::kNewestVersion);
    return versions;
  }
  /// The same with their neighbours and the extremes.
  static std::set<int> Versions() {
    std::set<int> versions = {INT_MIN, INT_MAX};
    for (const int gate : Gates()) {
      versions.insert({gate - 1, gate, gate + 1});
    }
    return versions;
  }

  /// Reads a stream into an object and compares all of it with what the log of the stream means.
  /// \param row says which case this is; asked for a failure alone
  /// \return how often the stream was called
  template <class Row>
  int CheckRead(const State& held, int version, FaultyStream stream, Row row) {
    ++m_cases;
    Object object;
    Kind::Give(object, held);
    const int result = Kind::Read(object, &stream, version);

    State expected = held;
    LoggedFields log(stream.read);
    const int expectedResult = Kind::Expect(expected, version, log);
    const std::string differences = Kind::Differences(object, expected) + log.Imbalance();
    EXPECT_LE(stream.mostAsked, kMostRead) << row();
    if (result != expectedResult || !differences.empty() || stream.countsAsked != 0) {
      ADD_FAILURE() << row() << ", version " << version << "\nresult: got " << result
                    << ", expected " << expectedResult << "\ncounts asked for: got "
                    << stream.countsAsked << ", expected 0\n"
                    << differences;
    }
    return stream.calls;
  }

  /// Writes an object to a stream. Its answers are not looked at: all of the record is handed over,
  /// once and in order, and the object stays as it was.
  template <class Row>
  int CheckWrite(const State& state, const FaultPlan& plan, Row row) {
    ++m_cases;
    Object object;
    Kind::Give(object, state);
    FaultyStream stream({}, plan);
    EXPECT_EQ(Kind::Write(object, &stream), 1) << row();
    EXPECT_EQ(stream.countsAsked, 0) << row();
    EXPECT_LE(stream.mostAsked, kMostWritten) << row();
    EXPECT_EQ(ByteDifference(stream.written, Kind::Bytes(state, Kind::kNewestVersion)), "")
        << row();
    EXPECT_EQ(Kind::Differences(object, state), "") << row();
    return stream.calls;
  }

  /// Calls `visit(held, stored, version, row)` for every record and everything that it is read
  /// into; `row` says in words which these are.
  template <class Visit>
  void ForEachRecord(const std::set<int>& versions, Visit visit) {
    const std::vector<State> stored = Kind::Stored();
    const std::vector<State> held = Kind::Held();
    for (const int version : versions) {
      for (std::size_t record = 0; record < stored.size(); ++record) {
        const ByteString bytes = Kind::Bytes(stored[record], version);
        for (std::size_t target = 0; target < held.size() && !HasFailure(); ++target) {
          visit(held[target], bytes, version, [record, target] {
            return "record " + std::to_string(record) + " into object " + std::to_string(target);
          });
        }
      }
    }
  }

  void TearDown() override {
    EXPECT_TRUE(m_cases > 0 || IsSkipped());
    RecordProperty("cases", m_cases);
  }

  int m_cases = 0;
};

struct KindNames {
  template <class Kind>
  static std::string GetName(int place) {
    constexpr const char* kNames[] = {"Text", "EquationVariable", "EquationPlot", "Graph"};
    return kNames[place];
  }
};

using Kinds = ::testing::Types<TextKind, VariableKind, PlotKind, GraphKind>;
TYPED_TEST_SUITE(RecordFaults, Kinds, KindNames);

// --- records that end early ---

TYPED_TEST(RecordFaults, ARecordOfAnyVersionMayEndAtAnyByte) {
  this->ForEachRecord(this->Versions(), [this](const auto& held, const ByteString& bytes,
                                               int version, const auto& row) {
    for (std::size_t cut = 0; cut <= bytes.size() && !this->HasFailure(); ++cut) {
      this->CheckRead(held, version, FaultyStream(FirstBytes(bytes, cut)),
                      [&] { return row() + ", cut at byte " + std::to_string(cut); });
    }
  });
}

// --- records with wrong bits ---

void Flip(ByteString& bytes, std::size_t bit) {
  bytes[bit / 8] ^= std::byte{1} << (bit % 8);
}

TYPED_TEST(RecordFaults, AnyBitMayBeWrong) {
  this->ForEachRecord(this->Gates(), [this](const auto& held, const ByteString& bytes, int version,
                                            const auto& row) {
    for (std::size_t bit = 0; bit < 8 * bytes.size() && !this->HasFailure(); ++bit) {
      ByteString damaged = bytes;
      Flip(damaged, bit);
      this->CheckRead(held, version, FaultyStream(damaged), [&] {
        return row() + ", bit " + std::to_string(bit % 8) + " of byte " + std::to_string(bit / 8);
      });
    }
  });
}

/// Pairs are tried within the first bytes of the first record, into a new and a filled object.
constexpr std::size_t kPairBytes = 512;

TYPED_TEST(RecordFaults, AnyTwoBitsMayBeWrong) {
  if (const char* soak = std::getenv("MQ_SOAK"); soak == nullptr || std::string(soak) != "1") {
    GTEST_SKIP() << "takes minutes; set MQ_SOAK=1";
  }
  const auto held = TypeParam::Held();
  const ByteString bytes = TypeParam::Bytes(TypeParam::Stored()[0], TypeParam::kNewestVersion);
  const std::size_t bits = 8 * std::min(bytes.size(), kPairBytes);
  for (std::size_t first = 0; first < bits; ++first) {
    for (std::size_t second = first + 1; second < bits && !this->HasFailure(); ++second) {
      ByteString damaged = bytes;
      Flip(damaged, first);
      Flip(damaged, second);
      for (const std::size_t target : {0U, 1U}) {
        this->CheckRead(held[target], TypeParam::kNewestVersion, FaultyStream(damaged), [&] {
          return "into object " + std::to_string(target) + ", bits " + std::to_string(first) +
                 " and " + std::to_string(second);
        });
      }
    }
  }
}

// --- streams that fail ---

// Counts made of what a failing read leaves behind are 2 and negative.
const ByteString kSmallCounts = RecordBytes().Raw({2, 0, 0, 0}).Get();
const ByteString kNegativeCounts = RecordBytes().Raw({0xA5}).Get();

// clang-format off
const std::vector<Fault> kFaults = {
    // name                                     answer               transferred  left in the buffer
    {"fails, the buffer is as it was",          E_FAIL,              None,        {}},
    {"is refused, the buffer is as it was",     STG_E_ACCESSDENIED,  None,        {}},
    {"fails with small counts in the buffer",   E_FAIL,              None,        kSmallCounts},
    {"fails with negative ones in the buffer",  E_FAIL,              None,        kNegativeCounts},
    {"fails half-way, the rest is scribble",    E_FAIL,              Half,        kSmallCounts},
    {"fails with all transferred",              E_FAIL,              All,         {}},
    {"is short by half with S_OK",              S_OK,                Half,        {}},
    {"is short by half with S_FALSE",           S_FALSE,             Half,        {}},
    {"is short by one byte with S_OK",          S_OK,                AllButOne,   {}},
    {"is short by one byte with S_FALSE",       S_FALSE,             AllButOne,   {}},
    {"transfers one byte with S_OK",            S_OK,                One,         {}},
    {"transfers one byte with S_FALSE",         S_FALSE,             One,         {}},
    {"transfers nothing with S_OK",             S_OK,                None,        {}},
    {"transfers nothing with S_FALSE",          S_FALSE,             None,        {}},
};
// clang-format on

/// Calls `visit(plan, row)` for each fault at each of a number of calls, once and from then on.
template <class Visit>
void ForEachPlan(int calls, Visit visit) {
  for (const Fault& fault : kFaults) {
    for (int call = 0; call < calls; ++call) {
      for (const bool isOnce : {true, false}) {
        visit(FaultPlan{&fault, call, isOnce}, [&fault, call, isOnce] {
          return "call " + std::to_string(call) + (isOnce ? " " : " and all behind it: ") +
                 fault.name;
        });
      }
    }
  }
}

TYPED_TEST(RecordFaults, AnyReadMayFail) {
  this->ForEachRecord(this->Gates(), [this](const auto& held, const ByteString& bytes, int version,
                                            const auto& row) {
    const int calls = this->CheckRead(held, version, FaultyStream(bytes), row);
    ASSERT_GT(calls, 0) << row() << ", version " << version;
    ForEachPlan(calls, [&](const FaultPlan& plan, const auto& planRow) {
      this->CheckRead(held, version, FaultyStream(bytes, plan),
                      [&] { return row() + ", " + planRow(); });
    });
  });
}

TYPED_TEST(RecordFaults, AnyWriteMayFail) {
  auto written = TypeParam::Stored();
  written.push_back(TypeParam::Long());
  for (std::size_t record = 0; record < written.size() && !this->HasFailure(); ++record) {
    const auto row = [record] { return "record " + std::to_string(record); };
    const int calls = this->CheckWrite(written[record], {}, row);
    ASSERT_GT(calls, 0) << row();
    ForEachPlan(calls, [&](const FaultPlan& plan, const auto& planRow) {
      this->CheckWrite(written[record], plan, [&] { return row() + ", " + planRow(); });
    });
  }
}

}  // namespace
}  // namespace mqp::test
