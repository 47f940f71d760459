#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <ostream>
#include <random>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <storage/atomic_file.h>
#include <storage/compound_document.h>

namespace fs = std::filesystem;

namespace mqp::host {

void PrintTo(DocumentProblem problem, std::ostream* out) {
  static constexpr std::array<const char*, 5> kNames{"File", "NotCompound", "Damaged", "NoStream",
                                                     "BadPath"};
  *out << kNames[static_cast<std::size_t>(problem)];
}

namespace {

using Bytes = std::vector<std::byte>;

const fs::path kDocuments = MQ_DOCUMENTS_FOLDER;

/// A folder of its own for each test.
class CompoundDocuments : public testing::Test {
 protected:
  void SetUp() override {
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    m_folder = fs::temp_directory_path() /
               ("mq-" + std::string(test.name()) + "-" + std::to_string(std::random_device()()));
    fs::create_directories(m_folder);
  }
  void TearDown() override {
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
  }

  [[nodiscard]] fs::path File(const std::string& name) const { return m_folder / name; }
  [[nodiscard]] std::set<std::string> FolderContents() const {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_folder)) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }

  fs::path m_folder;
};

Bytes Text(const std::string& text) {
  const auto* begin = reinterpret_cast<const std::byte*>(text.data());
  return {begin, begin + text.size()};
}

/// Bytes that differ from place to place and from stream to stream.
Bytes Pattern(std::size_t size, unsigned seed) {
  std::mt19937 random(seed);
  Bytes bytes(size);
  std::ranges::generate(bytes, [&] { return static_cast<std::byte>(random() & 0xFF); });
  return bytes;
}

Bytes Load(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(stream)),
                         std::istreambuf_iterator<char>());
  return Text(text);
}

void Save(const fs::path& file, const Bytes& bytes) {
  std::ofstream stream(file, std::ios::binary);
  stream.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

/// The error of an action, or nothing when it succeeds.
std::optional<DocumentError> ErrorOf(const std::function<void()>& action) {
  try {
    action();
    return std::nullopt;
  } catch (const DocumentError& error) {
    return error;
  }
}

void ExpectError(const std::optional<DocumentError>& error, DocumentProblem problem,
                 const std::vector<std::string>& parts, const std::string& row) {
  ASSERT_TRUE(error.has_value()) << row;
  EXPECT_EQ(error->Problem(), problem) << row << ": " << error->what();
  for (const std::string& part : parts) {
    EXPECT_NE(std::string(error->what()).find(part), std::string::npos)
        << row << ": expected \"" << part << "\" in: " << error->what();
  }
}

struct Element {
  std::string path;
  bool isStorage;
  std::uint64_t size;

  friend bool operator==(const Element&, const Element&) = default;
  friend void PrintTo(const Element& element, std::ostream* out) {
    *out << element.path << (element.isStorage ? " (storage)" : " ") << element.size;
  }
};

std::vector<Element> Elements(const CompoundDocument& document) {
  std::vector<Element> elements;
  for (const DocumentEntry& entry : document.Entries()) {
    elements.push_back({entry.path, entry.isStorage, entry.size});
  }
  return elements;
}

std::map<std::string, Bytes> Contents(const CompoundDocument& document) {
  std::map<std::string, Bytes> contents;
  for (const DocumentEntry& entry : document.Entries()) {
    if (!entry.isStorage) {
      contents[entry.path] = document.ReadStream(entry.path);
    }
  }
  return contents;
}

// --- real documents ----------------------------------------------------------------------------

struct RealDocument {
  const char* file;
  std::vector<Element> elements;
};

// clang-format off
const RealDocument kRealDocuments[] = {
    {"study_800018.cfb", {{"Graphs", true, 0}, {"Graphs/Graph1", false, 210}, {"Graphs/Graph2", false,  254}}},
    {"study_800062.cfb", {{"Graphs", true, 0}, {"Graphs/Graph1", false, 392}, {"Graphs/Graph2", false,  402}}},
    {"study_820022.cfb", {{"Graphs", true, 0}, {"Graphs/Graph1", false, 420}, {"Graphs/Graph2", false,  436}}},
    {"study_870002.cfb", {{"Graphs", true, 0}, {"Graphs/Graph1", false, 432}, {"Graphs/Graph2", false, 6508}}},
    {"study_890005.cfb", {{"Graphs", true, 0}, {"Graphs/Graph1", false, 464}, {"Graphs/Graph2", false,  480}}},
    {"study_890110.cfb", {{"Plots",  true, 0}, {"Plots/EquationPlot1", false, 200},
                          {"Graphs", true, 0}, {"Graphs/Graph1", false, 468}, {"Graphs/Graph2", false, 3072}}},
};
// clang-format on

TEST_F(CompoundDocuments, AStudyListsItsStoragesAndRecords) {
  for (const RealDocument& row : kRealDocuments) {
    EXPECT_EQ(Elements(CompoundDocument(kDocuments / row.file)), row.elements) << row.file;
  }
}

TEST_F(CompoundDocuments, ARecordHasTheBytesThatLieInTheFile) {
  const fs::path file = kDocuments / "study_800018.cfb";
  const Bytes bytes = Load(file);
  const CompoundDocument document(file);
  // The mini stream is the sector at 0x800; the second record begins at its fifth mini sector.
  EXPECT_EQ(document.ReadStream("Graphs/Graph1"),
            Bytes(bytes.begin() + 0x800, bytes.begin() + 0x8D2));
  EXPECT_EQ(document.ReadStream("Graphs/Graph2"),
            Bytes(bytes.begin() + 0x900, bytes.begin() + 0x9FE));
}

TEST_F(CompoundDocuments, AStreamIsReadPieceByPieceUpToItsEnd) {
  const CompoundDocument document(kDocuments / "study_870002.cfb");
  const Bytes whole = document.ReadStream("Graphs/Graph2");
  const DocumentStream stream = document.OpenStream("Graphs/Graph2");
  Bytes pieces;
  std::array<std::byte, 500> buffer{};
  ULONG count = 0;
  do {
    ASSERT_GE(stream->Read(buffer.data(), 500, &count), 0);
    pieces.insert(pieces.end(), buffer.begin(), buffer.begin() + count);
  } while (count == 500);
  EXPECT_EQ(count, 8U);  // 13 pieces of 500 and the rest of 6508
  EXPECT_EQ(pieces, whole);
  ASSERT_GE(stream->Read(buffer.data(), 500, &count), 0);
  EXPECT_EQ(count, 0U);
  EXPECT_GE(stream->Read(buffer.data(), 500, nullptr), 0);
}

TEST_F(CompoundDocuments, StreamsAreOpenAtTheSameTimeEachWithItsOwnPlace) {
  const CompoundDocument document(kDocuments / "study_890110.cfb");
  const Bytes graph = document.ReadStream("Graphs/Graph2");
  const Bytes plot = document.ReadStream("Plots/EquationPlot1");
  const DocumentStream first = document.OpenStream("Graphs/Graph2");
  const DocumentStream second = document.OpenStream("Graphs/Graph2");
  const DocumentStream other = document.OpenStream("Plots/EquationPlot1");
  for (std::size_t place = 0; place < 200; place += 100) {
    for (const auto& [stream, expected] :
         {std::pair(first.get(), &graph), std::pair(other.get(), &plot),
          std::pair(second.get(), &graph)}) {
      Bytes piece(100);
      ASSERT_EQ(stream->Read(piece.data(), 100, nullptr), S_OK);
      EXPECT_TRUE(std::ranges::equal(piece, std::span(*expected).subspan(place, 100))) << place;
    }
  }
}

TEST_F(CompoundDocuments, AnOpenedStreamCannotBeWrittenTo) {
  const CompoundDocument document(kDocuments / "study_800018.cfb");
  const DocumentStream stream = document.OpenStream("Graphs/Graph1");
  EXPECT_LT(stream->Write("abcd", 4, nullptr), 0);
}

TEST_F(CompoundDocuments, AStreamThatIsNotThereIsNamed) {
  const CompoundDocument document(kDocuments / "study_800018.cfb");
  struct Row {
    const char* path;
    const char* part;
  };
  // clang-format off
  const Row rows[] = {
      {"Graphs/Graph3",   "study_800018.cfb > Graphs/Graph3: The document has no such stream."},
      {"Plots/Graph1",    "study_800018.cfb > Plots/Graph1: "},
      {"Graph1",          "study_800018.cfb > Graph1: "},
      {"graphs/graph1",   "study_800018.cfb > graphs/graph1: "},
      {"Graphs",          "study_800018.cfb > Graphs: This is a storage"},
      {"Graphs/",         "study_800018.cfb > Graphs/: "},
      {"",                "study_800018.cfb: "},
  };
  // clang-format on
  for (const Row& row : rows) {
    ExpectError(ErrorOf([&] { static_cast<void>(document.ReadStream(row.path)); }),
                DocumentProblem::NoStream, {row.part}, row.path);
    ExpectError(ErrorOf([&] { static_cast<void>(document.OpenStream(row.path)); }),
                DocumentProblem::NoStream, {row.part}, row.path);
  }
}

// --- files that are no documents ---------------------------------------------------------------

TEST_F(CompoundDocuments, AFileThatIsNoDocumentIsToldApart) {
  struct Row {
    const char* name;
    std::string bytes;
    DocumentProblem problem;
    const char* part;
  };
  const std::string signature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
  // clang-format off
  const Row rows[] = {
      {"empty.cfb",     "",                                 DocumentProblem::NotCompound, "It is empty."},
      {"text.cfb",      "analysis\tStatic\r\n\xC3\x9C",     DocumentProblem::NotCompound, "It is a text file."},
      {"archive.cfb",   std::string("PK\x03\x04\0\0", 6),   DocumentProblem::NotCompound, "It is a ZIP archive."},
      {"xml.cfb",       "<?xml version=\"1.0\"?>",          DocumentProblem::NotCompound, "It is an XML file."},
      {"zeros.cfb",     std::string(4096, '\0'),            DocumentProblem::NotCompound, "other bytes than D0 CF"},
      {"seven.cfb",     signature.substr(0, 7),             DocumentProblem::NotCompound, "other bytes than D0 CF"},
      {"signature.cfb", signature,                          DocumentProblem::Damaged,     "ends inside its header"},
      {"header.cfb",    signature + std::string(504, '\0'), DocumentProblem::Damaged,     "header"},
  };
  // clang-format on
  for (const Row& row : rows) {
    Save(File(row.name), Text(row.bytes));
    ExpectError(ErrorOf([&] { CompoundDocument{File(row.name)}; }), row.problem,
                {row.part, std::string(row.name) + ": "}, row.name);
  }
}

TEST_F(CompoundDocuments, AMissingFileAndAFolderAreFileProblems) {
  ExpectError(ErrorOf([&] { CompoundDocument{File("missing.cfb")}; }), DocumentProblem::File,
              {"missing.cfb: There is no such file."}, "missing");
  ExpectError(ErrorOf([&] { CompoundDocument{File("no folder") / "a.cfb"}; }),
              DocumentProblem::File, {"a.cfb: There is no such file."}, "missing folder");
  ExpectError(ErrorOf([&] { CompoundDocument{m_folder}; }), DocumentProblem::File,
              {"This is a folder"}, "folder");
}

// --- damage ------------------------------------------------------------------------------------

TEST_F(CompoundDocuments, ADocumentTruncatedAtAnyByteIsDamaged) {
  for (const RealDocument& row : kRealDocuments) {
    const fs::path file = File(row.file);
    fs::copy_file(kDocuments / row.file, file);
    fs::permissions(file, fs::perms::owner_write, fs::perm_options::add);
    // Each byte of the smallest; each edge of a sector and prime steps between for the others.
    const bool isSmallest = std::string(row.file) == "study_800018.cfb";
    for (std::uintmax_t length = fs::file_size(file); length-- > 0;) {
      if (!isSmallest && length % 61 != 0 && (length + 1) % 512 > 2) {
        continue;
      }
      fs::resize_file(file, length);
      ExpectError(ErrorOf([&] { CompoundDocument{file}; }),
                  length < 8 ? DocumentProblem::NotCompound : DocumentProblem::Damaged, {},
                  std::string(row.file) + " at byte " + std::to_string(length));
    }
  }
}

struct Patch {
  const char* what;
  std::size_t place;
  std::vector<int> old;
  std::vector<int> now;
  const char* part;
};

TEST_F(CompoundDocuments, ADamagedStructureIsToldByWhatIsWrong) {
  // clang-format off
  const Patch patches[] = {
      // what                                place  old                       now                       part of the message
      {"version 5",                          26,    {3, 0},                   {5, 0},                   "header"},
      {"big-endian",                         28,    {0xFE, 0xFF},             {0xFF, 0xFE},             "header"},
      {"sectors of 2 GB",                    30,    {9, 0},                   {31, 0},                  "header"},
      {"mini sectors of 2 GB",               32,    {6, 0},                   {31, 0},                  "header"},
      {"everything in the mini stream",      56,    {0, 0x10, 0, 0},          {0, 0, 0, 0x10},          "header"},
      {"more table than file",               44,    {1, 0, 0, 0},             {0xFF, 0xFF, 0xFF, 0xFF}, "sector 4294967295 lies outside the file"},
      {"table of a directory",               76,    {0, 0, 0, 0},             {1, 0, 0, 0},             "sector"},
      {"table behind the end",               76,    {0, 0, 0, 0},             {4, 0, 0, 0},             "sector 4 lies outside the file"},
      {"list of tables behind the end",      44,    {1, 0, 0, 0},             {200, 0, 0, 0},           "sector 4294967295 lies outside the file"},
      {"directory behind the end",           48,    {1, 0, 0, 0},             {9, 0, 0, 0},             "sector 9 lies outside the file"},
      {"directory that is the table",        48,    {1, 0, 0, 0},             {0, 0, 0, 0},             "sector 0 is used twice"},
      {"directory without an end",           0x204, {0xFE, 0xFF, 0xFF, 0xFF}, {1, 0, 0, 0},             "sector 1 is used twice"},
      {"directory that runs into the table", 0x204, {0xFE, 0xFF, 0xFF, 0xFF}, {0, 0, 0, 0},             "sector 0 is used twice"},
      {"mini stream without an end",         0x20C, {0xFE, 0xFF, 0xFF, 0xFF}, {3, 0, 0, 0},             "sector 3 is used twice"},
      {"mini stream that ends nowhere",      0x20C, {0xFE, 0xFF, 0xFF, 0xFF}, {0xFF, 0xFF, 0xFF, 0xFF}, "sector 4294967295 lies outside the file"},
      {"table with a successor outside",     0x210, {0xFF, 0xFF, 0xFF, 0xFF}, {9, 0, 0, 0},             "sector 9 lies outside the file"},
      {"miscounted list of tables",          72,    {0, 0, 0, 0},             {1, 0, 0, 0},             "counts its allocation tables wrongly"},
      {"mini table of 2 TB",                 64,    {1, 0, 0, 0},             {0xFF, 0xFF, 0xFF, 0xFF}, "counts its allocation tables wrongly"},
      {"root with a neighbour",              0x444, {0xFF, 0xFF, 0xFF, 0xFF}, {2, 0, 0, 0},             "the root has neighbours"},
      {"root with another neighbour",        0x448, {0xFF, 0xFF, 0xFF, 0xFF}, {0, 0, 0, 0},             "the root has neighbours"},
      {"no root",                            0x442, {5},                      {1},                      "does not begin with the root"},
      {"mini stream larger than the file",   0x478, {0, 2, 0, 0},             {0, 2, 0, 0x40},          "mini stream is larger"},
      {"mini stream larger than its chain",  0x478, {0, 2, 0, 0},             {1, 2, 0, 0},             "less than its 513 bytes"},
      {"root with a child it lacks",         0x44C, {1, 0, 0, 0},             {4, 0, 0, 0},             "an entry that it does not have"},
      {"storage inside itself",              0x4CC, {2, 0, 0, 0},             {1, 0, 0, 0},             "an entry twice"},
      {"root inside a storage",              0x4CC, {2, 0, 0, 0},             {0, 0, 0, 0},             "an entry twice"},
      {"stream that is its own neighbour",   0x544, {0xFF, 0xFF, 0xFF, 0xFF}, {2, 0, 0, 0},             "an entry twice"},
      {"neighbours that follow each other",  0x5C8, {0xFF, 0xFF, 0xFF, 0xFF}, {2, 0, 0, 0},             "an entry twice"},
      {"name without an end",                0x540, {14, 0},                  {12, 0},                  "> Graphs: The document is damaged: the name"},
      {"name that is too long",              0x540, {14, 0},                  {66, 0},                  "the name of an element is damaged"},
      {"name of half a unit",                0x540, {14, 0},                  {13, 0},                  "the name of an element is damaged"},
      {"no name",                            0x540, {14, 0},                  {0, 0},                   "the name of an element is damaged"},
      {"name with a separator",              0x50A, {'1', 0},                 {'/', 0},                 "the name of an element is damaged"},
      {"name that is not UTF-16",            0x50A, {'1', 0},                 {0x00, 0xD8},             "the name of an element is damaged"},
      {"two elements of one name",           0x58A, {'2', 0},                 {'1', 0},                 "two elements have the name \"Graph1\""},
      {"unknown type",                       0x542, {2},                      {7},                      "> Graphs/Graph1: The document is damaged: it is neither"},
      {"stream in no sector",                0x574, {0, 0, 0, 0},             {0x50, 0, 0, 0},          "> Graphs/Graph1: The document is damaged: mini sector 80 lies outside"},
      {"stream in the sectors of another",   0x574, {0, 0, 0, 0},             {4, 0, 0, 0},             "> Graphs/Graph2: The document is damaged: mini sector 4 is used twice"},
      {"stream longer than its chain",       0x578, {0xD2, 0, 0, 0},          {0x01, 1, 0, 0},          "> Graphs/Graph1: The document is damaged: its sectors hold less than its 257 bytes"},
      {"stream larger than the file",        0x578, {0xD2, 0, 0, 0},          {0xD2, 0, 0, 0x7F},       "> Graphs/Graph1: "},
      {"mini chain without an end",          0x60C, {0xFE, 0xFF, 0xFF, 0xFF}, {0, 0, 0, 0},             "> Graphs/Graph1: The document is damaged: mini sector 0 is used twice"},
  };
  // clang-format on
  const Bytes whole = Load(kDocuments / "study_800018.cfb");
  const fs::path file = File("damaged.cfb");
  for (const Patch& patch : patches) {
    Bytes bytes = whole;
    for (std::size_t index = 0; index < patch.old.size(); ++index) {
      ASSERT_EQ(bytes[patch.place + index], static_cast<std::byte>(patch.old[index])) << patch.what;
      bytes[patch.place + index] = static_cast<std::byte>(patch.now[index]);
    }
    Save(file, bytes);
    ExpectError(ErrorOf([&] { CompoundDocument{file}; }), DocumentProblem::Damaged,
                {"damaged.cfb", "The document is damaged: ", patch.part}, patch.what);
  }
}

TEST_F(CompoundDocuments, ValuesThatTheFormatLeavesOpenAreNoDamage) {
  const Bytes whole = Load(kDocuments / "study_800018.cfb");
  const std::map<std::string, Bytes> expected =
      Contents(CompoundDocument(kDocuments / "study_800018.cfb"));
  // clang-format off
  const std::pair<const char*, std::size_t> rows[] = {
      {"upper half of a stream's size", 0x57C},
      {"time of a storage",             0x4E4},
      {"state bits of a storage",       0x4E0},
      {"class id of a stream",          0x550},
      {"minor version",                 24},
      {"space behind a stream",         0x8D2},
  };
  // clang-format on
  for (const auto& [what, place] : rows) {
    Bytes bytes = whole;
    bytes[place] = std::byte{0xA5};
    Save(File("open.cfb"), bytes);
    EXPECT_EQ(Contents(CompoundDocument(File("open.cfb"))), expected) << what;
  }
}

/// Changes one to eight bytes; every other time inside the header, the tables and the directory.
Bytes DamageAtRandom(Bytes bytes, std::mt19937& random) {
  const std::size_t range =
      random() % 2 == 0 ? bytes.size() : std::min<std::size_t>(bytes.size(), 1664);
  for (unsigned count = 1 + static_cast<unsigned>(random() % 8); count > 0; --count) {
    std::size_t place = random() % range;
    if (range < bytes.size() && place >= 96 && place < 512) {
      place = 512 + place;  // the header's list of tables is all padding
    }
    static constexpr std::array<unsigned, 6> kTelling{0, 1, 2, 0x7F, 0xFE, 0xFF};
    const auto value = random() % 2 == 0 ? kTelling[random() % 6] : random() & 0xFF;
    bytes[place] = static_cast<std::byte>(value);
  }
  return bytes;
}

TEST_F(CompoundDocuments, RandomDamageIsAnErrorOrReadableAndNeverPrinted) {
  std::mt19937 random(20240229);
  const fs::path file = File("damaged.cfb");
  int readable = 0;
  int damaged = 0;
  testing::internal::CaptureStderr();
  for (int round = 0; round < 2000; ++round) {
    const char* original = kRealDocuments[random() % std::size(kRealDocuments)].file;
    const Bytes bytes = DamageAtRandom(Load(kDocuments / original), random);
    Save(file, bytes);
    std::uint64_t total = 0;
    const auto error = ErrorOf([&] {
      for (const auto& [path, stream] : Contents(CompoundDocument(file))) {
        total += stream.size();
      }
    });
    EXPECT_LE(total, bytes.size()) << "round " << round;
    if (error) {
      EXPECT_TRUE(error->Problem() == DocumentProblem::Damaged ||
                  error->Problem() == DocumentProblem::NotCompound)
          << "round " << round << ": " << error->what();
    }
    ++(error ? damaged : readable);
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_GT(readable, 200);
  EXPECT_GT(damaged, 200);
}

// --- writing -----------------------------------------------------------------------------------

TEST_F(CompoundDocuments, StreamsOfEverySizeComeBack) {
  // Around a mini sector, around the size from which streams have sectors of their own, and one
  // of many sectors.
  const std::vector<std::size_t> sizes{0, 1, 63, 64, 65, 511, 512, 513, 4095, 4096, 4097, 200000};
  const fs::path file = File("sizes.cfb");
  CompoundDocumentWriter writer(file);
  for (const std::size_t size : sizes) {
    writer.AddStream("S" + std::to_string(size), Pattern(size, static_cast<unsigned>(size)));
  }
  writer.Commit();
  const CompoundDocument document(file);
  EXPECT_EQ(document.Entries().size(), sizes.size());
  for (const std::size_t size : sizes) {
    EXPECT_EQ(document.ReadStream("S" + std::to_string(size)),
              Pattern(size, static_cast<unsigned>(size)))
        << size;
  }
}

TEST_F(CompoundDocuments, EverySizeComesBackFromADocumentOfItsOwn) {
  // The last two need a list of tables beside the header: one sector of it, then two.
  for (const std::size_t size : {0U, 1U, 64U, 4095U, 4096U, 7143424U, 15500000U}) {
    const fs::path file = File("one.cfb");
    CompoundDocumentWriter writer(file);
    writer.AddStream("Stream", Pattern(size, 7));
    writer.Commit();
    const CompoundDocument document(file);
    EXPECT_EQ(Elements(document), (std::vector<Element>{{"Stream", false, size}})) << size;
    EXPECT_TRUE(document.ReadStream("Stream") == Pattern(size, 7)) << size;
  }
}

TEST_F(CompoundDocuments, ADocumentWithoutElementsIsOne) {
  CompoundDocumentWriter(File("empty.cfb")).Commit();
  EXPECT_TRUE(CompoundDocument(File("empty.cfb")).Entries().empty());
}

TEST_F(CompoundDocuments, AStreamWrittenPieceByPieceComesBack) {
  const Bytes whole = Pattern(10000, 3);
  CompoundDocumentWriter writer(File("pieces.cfb"));
  for (const char* path : {"Graphs/Graph1", "Graphs/Graph2"}) {
    const DocumentStream stream = writer.CreateStream(path);
    for (std::size_t place = 0; place < whole.size(); place += 4) {
      ULONG count = 0;
      ASSERT_EQ(stream->Write(&whole[place], 4, place % 8 == 0 ? &count : nullptr), S_OK);
      ASSERT_EQ(count, place % 8 == 0 ? 4U : 0U);
    }
  }
  writer.Commit();
  const CompoundDocument document(File("pieces.cfb"));
  EXPECT_EQ(document.ReadStream("Graphs/Graph1"), whole);
  EXPECT_EQ(document.ReadStream("Graphs/Graph2"), whole);
}

TEST_F(CompoundDocuments, TheNextElementWaitsUntilTheStreamIsClosed) {
  CompoundDocumentWriter writer(File("open.cfb"));
  DocumentStream stream = writer.CreateStream("First");
  EXPECT_THROW(static_cast<void>(writer.CreateStream("Second")), std::logic_error);
  EXPECT_THROW(writer.AddStorage("Third"), std::logic_error);
  EXPECT_THROW(writer.Commit(), std::logic_error);
  stream.reset();
  writer.AddStorage("Third");
  writer.Commit();
  EXPECT_EQ(Elements(CompoundDocument(File("open.cfb"))),
            (std::vector<Element>{{"First", false, 0}, {"Third", true, 0}}));
}

TEST_F(CompoundDocuments, NestedAndEmptyStoragesComeBackInTheOrderOfTheDirectory) {
  CompoundDocumentWriter writer(File("nested.cfb"));
  writer.AddStorage("Empty");
  writer.AddStream("Outer/Middle/Inner/Deep", Text("deep"));
  writer.AddStorage("Outer/Middle/Hollow");
  writer.AddStream("Z", Text("z"));
  writer.AddStream("Outer/A", Text("a"));
  writer.Commit();
  // Shorter names come first, then the alphabet.
  const CompoundDocument document(File("nested.cfb"));
  EXPECT_EQ(Elements(document), (std::vector<Element>{{"Z", false, 1},
                                                      {"Empty", true, 0},
                                                      {"Outer", true, 0},
                                                      {"Outer/A", false, 1},
                                                      {"Outer/Middle", true, 0},
                                                      {"Outer/Middle/Inner", true, 0},
                                                      {"Outer/Middle/Inner/Deep", false, 4},
                                                      {"Outer/Middle/Hollow", true, 0}}));
  EXPECT_EQ(document.ReadStream("Outer/Middle/Inner/Deep"), Text("deep"));
}

TEST_F(CompoundDocuments, NamesOutsideAsciiComeBackInNamesAndFiles) {
  const fs::path file = m_folder / u8"Prüfung-Ω-文.cfb";
  const std::vector<std::string> paths{"Übersicht/Größe", "Übersicht/σ₁", "文書", "𝜎 max",
                                       "\x05SummaryInformation"};
  CompoundDocumentWriter writer(file);
  for (const std::string& path : paths) {
    writer.AddStream(path, Text(path));
  }
  writer.Commit();
  const CompoundDocument document(file);
  EXPECT_EQ(document.Entries().size(), 6U);
  for (const std::string& path : paths) {
    EXPECT_EQ(document.ReadStream(path), Text(path)) << path;
  }
  ExpectError(ErrorOf([&] { static_cast<void>(document.ReadStream("Größe")); }),
              DocumentProblem::NoStream, {"Prüfung-Ω-文.cfb > Größe: "}, "file and stream");
}

TEST_F(CompoundDocuments, AsManyElementsAsAllowedComeBack) {
  CompoundDocumentWriter writer(File("many.cfb"));
  for (int number = 0; number < 4096; ++number) {
    writer.AddStream("Stream" + std::to_string(number), Text(std::to_string(number)));
  }
  ExpectError(ErrorOf([&] { writer.AddStorage("One more"); }), DocumentProblem::BadPath,
              {"4096 elements"}, "one more");
  writer.Commit();
  const CompoundDocument document(File("many.cfb"));
  EXPECT_EQ(document.Entries().size(), 4096U);
  EXPECT_EQ(document.ReadStream("Stream0"), Text("0"));
  EXPECT_EQ(document.ReadStream("Stream4095"), Text("4095"));
}

TEST_F(CompoundDocuments, AsDeepAsAllowedComesBack) {
  std::string path = "S";
  for (int depth = 2; depth <= 64; ++depth) {
    path += "/S";
  }
  CompoundDocumentWriter writer(File("deep.cfb"));
  writer.AddStorage(path);
  ExpectError(ErrorOf([&] { writer.AddStream(path + "/S", {}); }), DocumentProblem::BadPath,
              {"64 storages"}, "one more");
  writer.Commit();
  const CompoundDocument document(File("deep.cfb"));
  EXPECT_EQ(document.Entries().size(), 64U);
  EXPECT_EQ(document.Entries().back().path, path);
}

TEST_F(CompoundDocuments, APathThatNoDocumentCanHoldIsRefused) {
  struct Row {
    const char* path;
    const char* part;
  };
  // clang-format off
  const Row rows[] = {
      {"",                                   "a name is empty"},
      {"/Graph1",                            "a name is empty"},
      {"Graphs/",                            "a name is empty"},
      {"Graphs//Graph1",                     "a name is empty"},
      {"12345678901234567890123456789012",   "longer than 31"},
      {"1234567890123456789012345678901𝜎",   "longer than 31"},
      {"a:b",                                "one of / \\ : !"},
      {"a\\b",                               "one of / \\ : !"},
      {"a!",                                 "one of / \\ : !"},
      {"\xFF",                               "not UTF-8"},
      {"\xC3",                               "not UTF-8"},
      {"\xED\xA0\x80",                       "not UTF-8"},
      {"Taken",                              "already"},
      {"taken",                              "already"},
      {"ÜBERSICHT",                          "already"},
      {"Taken/Inside",                       "already"},
  };
  // clang-format on
  CompoundDocumentWriter writer(File("new.cfb"));
  writer.AddStream("Taken", Text("taken"));
  writer.AddStorage("Übersicht");
  for (const Row& row : rows) {
    ExpectError(ErrorOf([&] { writer.AddStream(row.path, Text("x")); }), DocumentProblem::BadPath,
                {"new.cfb", row.part}, row.path);
  }
  writer.AddStream("1234567890123456789012345678901", Text("31"));
  writer.Commit();
  const CompoundDocument document(File("new.cfb"));
  EXPECT_EQ(Elements(document),
            (std::vector<Element>{{"Taken", false, 5},
                                  {"Übersicht", true, 0},
                                  {"1234567890123456789012345678901", false, 2}}));
}

TEST_F(CompoundDocuments, NothingIsLeftOfADocumentThatIsNotCommitted) {
  Save(File("old.cfb"), Text("old"));
  {
    CompoundDocumentWriter writer(File("old.cfb"));
    writer.AddStream("Graphs/Graph1", Pattern(5000, 1));
  }
  EXPECT_EQ(FolderContents(), (std::set<std::string>{"old.cfb"}));
  EXPECT_EQ(Load(File("old.cfb")), Text("old"));
}

TEST_F(CompoundDocuments, ACommittedDocumentReplacesTheOldOne) {
  Save(File("study.cfb"), Pattern(100000, 1));
  CompoundDocumentWriter writer(File("study.cfb"));
  writer.AddStream("New", Text("new"));
  writer.Commit();
  EXPECT_EQ(FolderContents(), (std::set<std::string>{"study.cfb"}));
  EXPECT_EQ(CompoundDocument(File("study.cfb")).ReadStream("New"), Text("new"));
}

TEST_F(CompoundDocuments, AFileNameWithoutAFolderIsWrittenInTheCurrentOne) {
  const fs::path before = fs::current_path();
  fs::current_path(m_folder);
  CompoundDocumentWriter("here.cfb").Commit();
  const bool isThere = fs::exists("here.cfb");
  fs::current_path(before);
  EXPECT_TRUE(isThere);
  EXPECT_EQ(FolderContents(), (std::set<std::string>{"here.cfb"}));
}

// --- rewriting ---------------------------------------------------------------------------------

TEST_F(CompoundDocuments, ARewrittenStudyDiffersInTheReplacedRecordAlone) {
  for (const RealDocument& row : kRealDocuments) {
    for (const std::size_t size : {0U, 100U, 6000U}) {
      const fs::path target = File(row.file);
      RewriteDocument(kDocuments / row.file, target, {{"Graphs/Graph1", Pattern(size, 5)}});
      std::map<std::string, Bytes> expected = Contents(CompoundDocument(kDocuments / row.file));
      expected["Graphs/Graph1"] = Pattern(size, 5);
      const CompoundDocument rewritten(target);
      EXPECT_EQ(Contents(rewritten), expected) << row.file << " with " << size << " bytes";
      EXPECT_EQ(rewritten.Entries().size(), row.elements.size()) << row.file;
    }
  }
}

TEST_F(CompoundDocuments, ARewrittenStudyWithoutReplacementsIsTheSame) {
  for (const RealDocument& row : kRealDocuments) {
    RewriteDocument(kDocuments / row.file, File(row.file), {});
    const CompoundDocument rewritten(File(row.file));
    EXPECT_EQ(Elements(rewritten), row.elements) << row.file;
    EXPECT_EQ(Contents(rewritten), Contents(CompoundDocument(kDocuments / row.file))) << row.file;
  }
}

ClassId NumberedClassId(int first) {
  ClassId classId{};
  for (std::byte& byte : classId) {
    byte = static_cast<std::byte>(first++);
  }
  return classId;
}

TEST_F(CompoundDocuments, ClassIdsAndEmptyStoragesOutliveRewriting) {
  CompoundDocumentWriter writer(File("old.cfb"), NumberedClassId(1));
  writer.AddStorage("Graphs", NumberedClassId(0x21));
  writer.AddStorage("Graphs/Empty", NumberedClassId(0x41));
  writer.AddStorage("Plain");
  writer.AddStream("Graphs/Graph1", Text("one"));
  writer.Commit();
  RewriteDocument(File("old.cfb"), File("new.cfb"), {{"Graphs/Graph1", Text("two")}});
  // The root's directory entry holds its class id at byte 80, as it was given.
  const CompoundDocument document(File("new.cfb"));
  EXPECT_EQ(document.RootClassId(), NumberedClassId(1));
  ASSERT_EQ(Elements(document), (std::vector<Element>{{"Plain", true, 0},
                                                      {"Graphs", true, 0},
                                                      {"Graphs/Empty", true, 0},
                                                      {"Graphs/Graph1", false, 3}}));
  EXPECT_EQ(document.Entries()[0].classId, ClassId{});
  EXPECT_EQ(document.Entries()[1].classId, NumberedClassId(0x21));
  EXPECT_EQ(document.Entries()[2].classId, NumberedClassId(0x41));
  EXPECT_EQ(document.Entries()[3].classId, ClassId{});
  EXPECT_EQ(document.ReadStream("Graphs/Graph1"), Text("two"));
}

TEST_F(CompoundDocuments, AReplacementForAStreamThatIsNotThereIsRefused) {
  Save(File("target.cfb"), Text("old"));
  for (const char* path : {"Graphs/Graph9", "Graphs"}) {
    ExpectError(ErrorOf([&] {
                  RewriteDocument(kDocuments / "study_800018.cfb", File("target.cfb"),
                                  {{"Graphs/Graph1", {}}, {path, {}}});
                }),
                DocumentProblem::NoStream, {std::string("study_800018.cfb > ") + path}, path);
  }
  EXPECT_EQ(Load(File("target.cfb")), Text("old"));
  EXPECT_EQ(FolderContents(), (std::set<std::string>{"target.cfb"}));
}

TEST_F(CompoundDocuments, WritingOntoTheInputIsRefused) {
  const fs::path source = File("study.cfb");
  Save(source, Load(kDocuments / "study_800018.cfb"));
  fs::create_directory(File("sub"));
  fs::create_hard_link(source, File("link.cfb"));
  for (const fs::path& target : {source, m_folder / "sub" / ".." / "study.cfb",
                                 m_folder / "." / "study.cfb", File("link.cfb")}) {
    ExpectError(ErrorOf([&] { RewriteDocument(source, target, {{"Graphs/Graph1", {}}}); }),
                DocumentProblem::File, {"This is the document that is read."}, target.string());
  }
  EXPECT_EQ(Load(source), Load(kDocuments / "study_800018.cfb"));
}

TEST_F(CompoundDocuments, ADamagedSourceLeavesTheTargetAlone) {
  Save(File("target.cfb"), Text("old"));
  Bytes bytes = Load(kDocuments / "study_800018.cfb");
  bytes.resize(2000);
  Save(File("source.cfb"), bytes);
  ExpectError(ErrorOf([&] { RewriteDocument(File("source.cfb"), File("target.cfb"), {}); }),
              DocumentProblem::Damaged, {"source.cfb"}, "truncated source");
  EXPECT_EQ(Load(File("target.cfb")), Text("old"));
  EXPECT_EQ(FolderContents(), (std::set<std::string>{"source.cfb", "target.cfb"}));
}

// --- saving that fails -------------------------------------------------------------------------

std::optional<DocumentError> TryToSave(const fs::path& target) {
  return ErrorOf([&] {
    RewriteDocument(kDocuments / "study_800018.cfb", target, {{"Graphs/Graph1", Text("new")}});
  });
}

TEST_F(CompoundDocuments, AMissingFolderIsNamed) {
  ExpectError(TryToSave(File("missing") / "study.cfb"), DocumentProblem::File,
              {"study.cfb: The document cannot be written: ", "Check that the folder exists"},
              "missing folder");
  EXPECT_TRUE(FolderContents().empty());
}

TEST_F(CompoundDocuments, AFolderInThePlaceOfTheTargetStays) {
  fs::create_directory(File("study.cfb"));
  Save(File("study.cfb") / "inside", Text("inside"));
  ExpectError(TryToSave(File("study.cfb")), DocumentProblem::File, {"This is a folder."}, "folder");
  EXPECT_EQ(FolderContents(), (std::set<std::string>{"study.cfb"}));
  EXPECT_EQ(Load(File("study.cfb") / "inside"), Text("inside"));
}

TEST_F(CompoundDocuments, AWriteProtectedTargetStays) {
  Save(File("study.cfb"), Text("old"));
  fs::permissions(File("study.cfb"), fs::perms::owner_read | fs::perms::group_read);
  ExpectError(TryToSave(File("study.cfb")), DocumentProblem::File,
              {"study.cfb: The document cannot be written: "}, "write-protected");
  EXPECT_EQ(Load(File("study.cfb")), Text("old"));
  EXPECT_EQ(FolderContents(), (std::set<std::string>{"study.cfb"}));
  fs::permissions(File("study.cfb"), fs::perms::owner_all);
}

TEST_F(CompoundDocuments, ATargetInAWriteProtectedFolderStays) {
  Save(File("study.cfb"), Text("old"));
  fs::permissions(m_folder, fs::perms::owner_read | fs::perms::owner_exec);
  if (std::ofstream(File("probe")).is_open()) {
    fs::permissions(m_folder, fs::perms::owner_all);
    GTEST_SKIP() << "this user may write to every folder";
  }
  const auto error = TryToSave(File("study.cfb"));
  fs::permissions(m_folder, fs::perms::owner_all);
  ExpectError(error, DocumentProblem::File, {"study.cfb: "}, "write-protected folder");
  EXPECT_EQ(Load(File("study.cfb")), Text("old"));
  EXPECT_EQ(FolderContents(), (std::set<std::string>{"study.cfb"}));
}

TEST_F(CompoundDocuments, APathBehindAFileIsNoFolder) {
  Save(File("file"), Text("old"));
  ExpectError(TryToSave(File("file") / "study.cfb"), DocumentProblem::File,
              {"study.cfb: The document cannot be written: "}, "file as a folder");
  EXPECT_EQ(Load(File("file")), Text("old"));
  EXPECT_EQ(FolderContents(), (std::set<std::string>{"file"}));
}

TEST_F(CompoundDocuments, ARenameThatFailsLeavesNoTemporaryFile) {
  fs::create_directory(File("study.cfb"));
  Save(File("study.cfb") / "inside", Text("inside"));
  EXPECT_THROW(WriteAtomically(File("study.cfb"), Text("new")), std::system_error);
  EXPECT_EQ(FolderContents(), (std::set<std::string>{"study.cfb"}));
  EXPECT_EQ(Load(File("study.cfb") / "inside"), Text("inside"));
}

TEST_F(CompoundDocuments, TheNewDocumentHasThePermissionsOfTheOld) {
  Save(File("study.cfb"), Text("old"));
  const fs::perms kept = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_write;
  fs::permissions(File("study.cfb"), kept);
  if (fs::status(File("study.cfb")).permissions() != kept) {
    GTEST_SKIP() << "this file system keeps no such permissions";
  }
  EXPECT_FALSE(TryToSave(File("study.cfb")).has_value());
  EXPECT_EQ(fs::status(File("study.cfb")).permissions(), kept);
}

TEST_F(CompoundDocuments, ALinkToTheTargetStaysALink) {
  fs::create_directory(File("elsewhere"));
  Save(File("elsewhere") / "study.cfb", Text("old"));
  std::error_code error;
  fs::create_symlink(File("elsewhere") / "study.cfb", File("link.cfb"), error);
  if (error) {
    GTEST_SKIP() << "no symbolic links here: " << error.message();
  }
  EXPECT_FALSE(TryToSave(File("link.cfb")).has_value());
  EXPECT_TRUE(fs::is_symlink(File("link.cfb")));
  EXPECT_EQ(CompoundDocument(File("elsewhere") / "study.cfb").ReadStream("Graphs/Graph1"),
            Text("new"));
}

}  // namespace
}  // namespace mqp::host
