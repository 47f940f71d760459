// A fixed set of records, written by the platform that this program is built for and read by
// whichever wants to:
//
//   mqRecordSet write FOLDER   each record as FOLDER/NAME.bin, through a stream of the system, and
//                              all of them in the document FOLDER/records.cfb
//   mqRecordSet read DOCUMENT  every member of every record of such a document, a line each
//   mqRecordSet extract DOCUMENT FOLDER
//                              the bytes of each record of a document as FOLDER/NAME.bin
#include <array>
#include <bit>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <storage/compound_document.h>
#include <storage/memory_stream.h>
#include <mqPostCommon/params/equation_plot.h>
#include <mqPostCommon/params/graph.h>
#include <mqPostCommon/params/stream/strings.h>
#include <mqPostCommon/platform/stream.h>
#include <mqPostCommon/platform/text.h>
#include <mqPostCommon/platform/wide_string.h>

#include "loading/system_stream.h"
#include "params/record_test_support.h"

namespace mqp::test {
namespace {

constexpr int kNewestVersion = 890110;

struct Record {
  std::string name;  ///< begins with the name of its kind
  std::function<void(IStream&)> write;
};

// ---- the set ------------------------------------------------------------------------------

// Bit patterns, since a program may not keep what it calculates with.
constexpr auto kDoubles = std::to_array<std::uint64_t>({
    0x0000'0000'0000'0000,  // 0
    0x8000'0000'0000'0000,  // -0
    0x0000'0000'0000'0001,  // the smallest denormal
    0x800F'FFFF'FFFF'FFFF,  // the largest negative denormal
    0x0010'0000'0000'0000,  // the smallest normal number
    0x7FEF'FFFF'FFFF'FFFF,  // the largest number
    0xFFEF'FFFF'FFFF'FFFF,  // the same below 0
    0x7FF0'0000'0000'0000,  // infinity
    0xFFF0'0000'0000'0000,  // negative infinity
    0x7FF8'0000'0000'0000,  // a quiet NaN
    0xFFFF'FFFF'FFFF'FFFF,  // a quiet NaN with all bits
    0x7FF0'0000'0000'0001,  // a signalling NaN
    0xFFF4'0123'4567'89AB,  // a negative one with a payload
    0x3FB9'9999'9999'999A,  // 0.1
});

constexpr auto kIntegers = std::to_array<int>({INT_MIN, -1, 1, 0x0102'0304, INT_MAX});

std::vector<std::pair<std::string, CString>> Texts() {
  CString atTheCut(MQ_TEXT('x'), 1023);  // the pair behind it straddles the last unit of a record
  atTheCut += MQ_TEXT("\U0001F600 end");
  return {
      {"Empty", {}},
      {"Blank", MQ_TEXT(" ")},
      {"Umlauts", MQ_TEXT("\u00C4\u00D6\u00DC\u00E4\u00F6\u00FC\u00DF, \u20AC und \u00B0C")},
      {"Surrogates", MQ_TEXT("a\U0001F600b\U0010FFFFc")},
      {"LoneSurrogates", CString(mqChar{0xDC00}) + CString(mqChar{0xD800})},
      {"Noncharacters",
       CString(mqChar{0xFFFF}) + CString(mqChar{0xFEFF}) + CString(mqChar{0x0001})},
      {"ZeroInside", CString(MQ_TEXT("front\0back"), 10)},
      {"LineEnds", MQ_TEXT("one\r\ntwo\nthree\x1A")},
      {"Full", CString(MQ_TEXT('f'), 1024)},
      {"TooLong", CString(MQ_TEXT('t'), 5000)},
      {"PairAtTheCut", atTheCut},
  };
}

/// A graph whose doubles and integers are extremes, each at another place for another `first`.
CmqPostGraphParam ExtremeGraph(std::size_t first) {
  CmqPostGraphParam graph;
  VisitMembers(graph, [next = first](const char*, int, auto& member) mutable {
    if constexpr (std::is_same_v<decltype(member), int&>) {
      member = kIntegers[next++ % kIntegers.size()];
    } else if constexpr (std::is_same_v<decltype(member), double&>) {
      member = std::bit_cast<double>(kDoubles[next++ % kDoubles.size()]);
    }
  });
  return graph;
}

EquationState EquationWithTexts() {
  const auto texts = Texts();
  EquationState state{MQ_TEXT("\"Variable0\" + \U0001F600"), INT_MIN, {}, {}, {}};
  state.host3 = {MQ_TEXT("\u00DCberh\u00F6hung"), MQ_TEXT("")};
  for (std::size_t place = 0; place < kDoubles.size(); ++place) {
    state.variables.push_back({texts[place % texts.size()].second, INT_MAX, INT_MIN,
                               std::bit_cast<double>(kDoubles[place])});
  }
  return state;
}

Record GraphRecord(const std::string& name, CmqPostGraphParam graph) {
  return {"Graph" + name,
          [graph = std::move(graph)](IStream& stream) { graph.WriteToStream(&stream); }};
}

Record EquationRecord(const std::string& name, const EquationState& state) {
  CmqEquationPlotParam plot;
  SetState(plot, state);
  return {"Equation" + name, [plot = std::move(plot)](IStream& stream) {
            plot.WriteToStream(&stream, kNewestVersion);
          }};
}

std::vector<Record> AllRecords() {
  std::vector<Record> records;
  records.push_back(GraphRecord("New", {}));
  records.push_back(GraphRecord("OfFatigue", CmqPostGraphParam(7, 52, 0, 0, -1)));
  for (int seed = 1; seed <= 7; ++seed) {
    records.push_back(GraphRecord("Filled" + std::to_string(seed), FilledGraph(seed)));
  }
  for (std::size_t first = 0; first < kDoubles.size(); ++first) {
    records.push_back(GraphRecord("Extreme" + std::to_string(first), ExtremeGraph(first)));
  }
  for (const int variables : {0, 1, 40}) {
    records.push_back(
        EquationRecord("Of" + std::to_string(variables), FilledEquation(3, variables)));
  }
  records.push_back(EquationRecord("OfTexts", EquationWithTexts()));
  for (const auto& [name, text] : Texts()) {
    records.push_back({"Text" + name, [copy = text](IStream& stream) mutable {
                         CStringWriteToStream(&stream, &copy);
                       }});
    CmqPostGraphParam graph;
    graph.m_strHost18[1] = text;
    graph.m_strHost20 = text;
    records.push_back(GraphRecord("With" + name, std::move(graph)));
  }
  return records;
}

// ---- writing ------------------------------------------------------------------------------

void Write(const std::filesystem::path& folder) {
  host::CompoundDocumentWriter document(folder / "records.cfb");
  for (const Record& record : AllRecords()) {
    WriteThroughSystemStream(folder / (record.name + ".bin"), record.write);
    record.write(*document.CreateStream("Records/" + record.name));
  }
  document.Commit();
}

// ---- reading ------------------------------------------------------------------------------

/// Doubles by their bits alone: each platform has words of its own for what is not a number.
template <class Member>
std::string ShowAlike(const Member& member) {
  if constexpr (std::is_same_v<Member, double>) {
    return std::to_string(std::bit_cast<std::uint64_t>(member));
  } else {
    return Show(member);
  }
}

std::string MembersOf(const CmqPostGraphParam& graph) {
  std::string text;
  VisitMembers(graph, [&text](const char* name, int index, const auto& member) {
    text +=
        "  " + std::string(name) + '[' + std::to_string(index) + "] " + ShowAlike(member) + '\n';
  });
  return text;
}

std::string MembersOf(const CmqEquationPlotParam& plot) {
  const EquationState state = StateOf(plot);
  std::string text = "  equation " + Show(state.equation) + "\n  flag " +
                     Show(state.coefficientsFlag) + "\n  strings " + Show(state.host3[0]) + ' ' +
                     Show(state.host3[1]) + '\n';
  for (const VariableState& variable : state.variables) {
    text += "  variable " + Show(variable.name) + ' ' + Show(variable.resultType) + ' ' +
            Show(variable.component) + ' ' + ShowAlike(variable.coefficient) + '\n';
  }
  return text;
}

/// Reads a record of one kind, and writes it again.
template <class Object>
std::string ReadAs(IStream& stream, host::MemoryStream& again) {
  Object object;
  const int answer = object.ReadFromStream(&stream, kNewestVersion);
  if constexpr (std::is_same_v<Object, CmqPostGraphParam>) {
    object.WriteToStream(&again);
  } else {
    object.WriteToStream(&again, kNewestVersion);
  }
  return "  answer " + std::to_string(answer) + '\n' + MembersOf(object);
}

std::string ReadAsText(IStream& stream, host::MemoryStream& again) {
  CString text;
  const int answer = CStringReadFromStream(&stream, &text);
  CStringWriteToStream(&again, &text);
  return "  answer " + std::to_string(answer) + "\n  " + Show(text) + '\n';
}

/// Calls `use(name, entry)` for every record.
template <class Use>
void ForEachRecord(const host::CompoundDocument& document, Use use) {
  for (const host::DocumentEntry& entry : document.Entries()) {
    if (!entry.isStorage) {
      use(entry.path.substr(std::strlen("Records/")), entry);
    }
  }
}

void Extract(const std::filesystem::path& file, const std::filesystem::path& folder) {
  const host::CompoundDocument document(file);
  ForEachRecord(document, [&](const std::string& name, const host::DocumentEntry& entry) {
    const ByteString bytes = document.ReadStream(entry.path);
    std::ofstream(folder / (name + ".bin"), std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  });
}

void Read(const std::filesystem::path& file) {
  const host::CompoundDocument document(file);
  ForEachRecord(document, [&](const std::string& name, const host::DocumentEntry& entry) {
    const host::DocumentStream stream = document.OpenStream(entry.path);
    host::MemoryStream again;
    std::cout << name << ", " << entry.size << " bytes\n"
              << (name.starts_with("Graph")      ? ReadAs<CmqPostGraphParam>(*stream, again)
                  : name.starts_with("Equation") ? ReadAs<CmqEquationPlotParam>(*stream, again)
                                                 : ReadAsText(*stream, again))
              << "  written again:\n"
              << Hex(again.Bytes()) << '\n';
  });
}

}  // namespace
}  // namespace mqp::test

int main(int count, char** arguments) {
  const std::vector<std::string_view> words(arguments + 1, arguments + count);
  try {
    if (words.size() == 2 && words[0] == "write") {
      mqp::test::Write(words[1]);
    } else if (words.size() == 2 && words[0] == "read") {
      mqp::test::Read(words[1]);
    } else if (words.size() == 3 && words[0] == "extract") {
      mqp::test::Extract(words[1], words[2]);
    } else {
      std::cerr << "usage: mqRecordSet write FOLDER | read DOCUMENT | extract DOCUMENT FOLDER\n";
      return 2;
    }
  } catch (const std::exception& problem) {
    std::cerr << "mqRecordSet: " << problem.what() << '\n';
    return 1;
  }
  return 0;
}
