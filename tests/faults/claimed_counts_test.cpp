// Records that claim more than they hold: what reading them takes in memory and in time.

#include <algorithm>
#include <climits>
#include <cstddef>
#include <ctime>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "faults/allocations.h"
#include "faults/record_kinds.h"

namespace mqp::test {
namespace {

/// A variable takes its members and a node of its list, below this.
constexpr std::size_t kBytesOfAVariable = 176;
constexpr int kMostVariables = 65536;
/// What a text of 1024 units takes with its terminator, rounded up.
constexpr std::size_t kBytesOfAText = 2064;
/// A guard against hanging, not a measure; wider where a sanitizer or an emulator takes its time.
constexpr double kMostSeconds = MQ_MOST_MILLISECONDS / 1000.0;

/// Delivers its bytes and then one byte over and over.
class EndlessStream : public host::MemoryStream {
 public:
  EndlessStream(ByteString bytes, std::byte behind)
      : MemoryStream(std::move(bytes)), m_behind(behind) {}
  HRESULT Read(void* buffer, ULONG size, ULONG* transferred) override {
    ULONG read = 0;
    MemoryStream::Read(buffer, size, &read);
    std::fill_n(static_cast<std::byte*>(buffer) + read, size - read, m_behind);
    delivered += size;
    Answer(transferred, size);
    return S_OK;
  }
  std::size_t delivered = 0;

 private:
  std::byte m_behind;
};

struct Claim {
  std::string name;
  ByteString bytes;       ///< the last four are the count
  std::size_t texts;      ///< that the record has at most, beside those of variables
  std::size_t variables;  ///< that may be made
};

constexpr int kCounts[] = {-1, 0, 1025, 65536, 65537, 1 << 30, INT_MAX};

/// The fields in front of each count of a kind, which is then one of the above.
std::vector<Claim> Claims(const std::string& kind, const std::vector<ByteString>& heads,
                          std::size_t texts, std::size_t variableCount) {
  std::vector<Claim> claims;
  for (std::size_t place = 0; place < heads.size(); ++place) {
    for (const int count : kCounts) {
      ByteString bytes = heads[place];
      const ByteString claimed = RecordBytes().Integer(count).Get();
      bytes.insert(bytes.end(), claimed.begin(), claimed.end());
      const int variables = place == variableCount ? std::clamp(count, 0, kMostVariables) : 0;
      claims.push_back({kind + ", count " + std::to_string(place) + " is " + std::to_string(count),
                        bytes, texts, static_cast<std::size_t>(variables)});
    }
  }
  return claims;
}

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

std::vector<Claim> TextClaims() {
  return Claims("text", {{}}, 1, kNone);
}
std::vector<Claim> VariableClaims() {
  return Claims("variable", {{}}, 1, kNone);
}
std::vector<Claim> PlotClaims() {
  const auto head = [](int field) {
    RecordBytes bytes;
    if (field > 0) {
      bytes.Text(MQ_TEXT("e")).Integer(7);
    }
    for (; field > 1; --field) {
      bytes.Text(MQ_TEXT("t"));
    }
    return bytes.Get();
  };
  return Claims("plot", {head(0), head(1), head(2), head(3)}, 3, 3);
}
std::vector<Claim> GraphClaims() {
  const CmqPostGraphParam graph;
  const ByteString record = BuildRecord(graph, GraphKind::kNewestVersion);
  // Seventeen integers stand before the three texts; two rows and one integer before the fourth.
  constexpr std::size_t kFirstText = 4 * 17;
  constexpr std::size_t kFourthText = kFirstText + 4 * (3 + 6 + 18 + 1);
  return Claims("graph",
                {FirstBytes(record, kFirstText), FirstBytes(record, kFirstText + 4),
                 FirstBytes(record, kFirstText + 8), FirstBytes(record, kFourthText)},
                4, kNone);
}

double SecondsOfProcessor() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

class ClaimedCounts : public testing::Test {
 protected:
  void SetUp() override { RequireLibraryWatched(); }
  void TearDown() override { RecordProperty("cases", m_cases); }

  /// Reads a claim from a stream that a factory makes.
  template <class Kind, class MakeStream>
  void Check(const Claim& claim, const char* behind, MakeStream makeStream) {
    ++m_cases;
    const std::string row = claim.name + ", behind it " + behind;
    const std::size_t bound = claim.texts * kBytesOfAText + claim.variables * kBytesOfAVariable;
    double fastest = std::numeric_limits<double>::max();
    for (int time = 0; time < 3; ++time) {
      auto stream = makeStream(claim.bytes);
      typename Kind::Object object;
      const double start = SecondsOfProcessor();
      const Outcome outcome =
          RunWith({}, [&] { Kind::Read(object, &stream, Kind::kNewestVersion); });
      fastest = std::min(fastest, SecondsOfProcessor() - start);
      EXPECT_TRUE(outcome.isComplete) << row;
      EXPECT_LE(outcome.bytes, bound) << row;
    }
    EXPECT_LT(fastest, kMostSeconds) << row;
  }
  template <class Kind>
  void CheckAll(const std::vector<Claim>& claims) {
    for (const Claim& claim : claims) {
      Check<Kind>(claim, "nothing", [](const ByteString& bytes) { return FaultyStream(bytes); });
      Check<Kind>(claim, "zeros without an end",
                  [](const ByteString& bytes) { return EndlessStream(bytes, std::byte{0}); });
    }
  }

  int m_cases = 0;
};

TEST_F(ClaimedCounts, ATextTakesNoMoreThanItsUnits) {
  CheckAll<TextKind>(TextClaims());
}

TEST_F(ClaimedCounts, AVariableTakesNoMoreThanItsName) {
  CheckAll<VariableKind>(VariableClaims());
}

TEST_F(ClaimedCounts, AnEquationPlotTakesNoMoreThanItsVariables) {
  CheckAll<PlotKind>(PlotClaims());
}

TEST_F(ClaimedCounts, AGraphTakesNoMoreThanItsTexts) {
  CheckAll<GraphKind>(GraphClaims());
}

TEST_F(ClaimedCounts, AStreamWithoutAnEndIsPaidForByWhatItDelivers) {
  m_cases = 1;
  EndlessStream stream(PlotClaims().back().bytes, std::byte{'x'});
  CmqEquationPlotParam plot;
  const Outcome outcome = RunWith({}, [&] { plot.ReadFromStream(&stream, 890110); });
  EXPECT_EQ(plot.m_listVariables.GetCount(), kMostVariables);
  EXPECT_LE(outcome.bytes, stream.delivered + kMostVariables * kBytesOfAVariable);
}

}  // namespace
}  // namespace mqp::test
