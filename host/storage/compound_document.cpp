#include "compound_document.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

#include <mqPostCommon/platform/case_folding.h>

#include "atomic_file.h"
#include "compound_parts.h"

namespace fs = std::filesystem;

namespace mqp::host {
namespace {

using Bytes = std::vector<std::byte>;

/// Structured storage with small sectors ends here.
constexpr std::uintmax_t kMaxFileSize = 0x7FFFFFFF;

[[noreturn]] void Fail(DocumentProblem problem, const fs::path& file, const std::string& path,
                       const std::string& sentences) {
  const std::u8string name = file.u8string();
  throw DocumentError(problem, std::string(name.begin(), name.end()) +
                                   (path.empty() ? "" : " > " + path) + ": " + sentences);
}

[[noreturn]] void FailDamaged(const fs::path& file, const StorageFailure& failure) {
  Fail(DocumentProblem::Damaged, file, failure.Path(),
       "The document is damaged: " + std::string(failure.what()) +
           ". Take an undamaged copy of it.");
}

Bytes ReadFile(const fs::path& file) {
  const auto fail = [&file](const std::string& sentences) {
    Fail(DocumentProblem::File, file, {}, sentences);
  };
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (status.type() == fs::file_type::none) {
    fail("The file cannot be reached: " + error.message() + ". Check the permissions above it.");
  }
  if (!fs::exists(status)) {
    fail("There is no such file. Check the path.");
  }
  if (fs::is_directory(status)) {
    fail("This is a folder, not a document. Name the file in it.");
  }
  if (!fs::is_regular_file(status)) {
    fail("This is not a regular file. Name a document.");
  }
  const std::uintmax_t size = fs::file_size(file, error);
  if (error || size > kMaxFileSize) {
    fail(error ? "The size cannot be read: " + error.message() + "."
               : "The file is larger than 2 GB, more than a document can be.");
  }
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  Bytes bytes(static_cast<std::size_t>(size));
  stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
  if (!stream) {
    fail("The file cannot be read: " +
         (errno != 0 ? std::generic_category().message(errno) : "it changed meanwhile") +
         ". Check its permissions and whether another program holds it open.");
  }
  return bytes;
}

/// What a file is instead of a compound document, as far as its first bytes tell.
std::string Describe(const Bytes& bytes) {
  struct Kind {
    std::string_view beginning;
    const char* name;
  };
  // clang-format off
  static constexpr auto kKinds = std::to_array<Kind>({
      {"PK\x03\x04", "It is a ZIP archive."},
      {"%PDF",       "It is a PDF document."},
      {"<?xml",      "It is an XML file."},
  });
  // clang-format on
  if (bytes.empty()) {
    return "It is empty.";
  }
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()),
                              std::min<std::size_t>(bytes.size(), 512));
  for (const Kind& kind : kKinds) {
    if (text.starts_with(kind.beginning)) {
      return kind.name;
    }
  }
  const auto isControl = [](char unit) {
    return unit >= 0 && unit < ' ' && (unit < 8 || unit > 13);
  };
  if (std::ranges::none_of(text, isControl)) {
    return "It is a text file.";
  }
  return "It begins with other bytes than D0 CF 11 E0 A1 B1 1A E1.";
}

/// Documents tell names apart by more than letter case.
std::u16string Fold(std::u16string text) {
  for (char16_t& unit : text) {
    unit = static_cast<char16_t>(FoldCase(static_cast<mqChar>(unit)));
  }
  return text;
}

}  // namespace

void StreamCloser::operator()(IStream* stream) const noexcept {
  CloseStream(stream);
  if (m_isOpen != nullptr) {
    *m_isOpen = false;
  }
}

CompoundDocument::CompoundDocument(fs::path file) : m_file(std::move(file)) {
  Bytes bytes = ReadFile(m_file);
  if (!BeginsLikeCompound(bytes)) {
    Fail(DocumentProblem::NotCompound, m_file, {},
         "This is not an OLE compound document. " + Describe(bytes) + " Name a study document.");
  }
  try {
    DocumentStructure structure = ReadStructure(bytes);
    m_entries = std::move(structure.entries);
    m_rootClassId = structure.rootClassId;
    m_reader = StorageReader::Open(std::move(bytes));
  } catch (const StorageFailure& failure) {
    FailDamaged(m_file, failure);
  }
}

CompoundDocument::~CompoundDocument() = default;
CompoundDocument::CompoundDocument(CompoundDocument&&) noexcept = default;
CompoundDocument& CompoundDocument::operator=(CompoundDocument&&) noexcept = default;

const DocumentEntry& CompoundDocument::FindStream(const std::string& path) const {
  const auto entry = std::ranges::find(m_entries, path, &DocumentEntry::path);
  if (entry == m_entries.end() || entry->isStorage) {
    Fail(DocumentProblem::NoStream, m_file, path,
         entry == m_entries.end()
             ? "The document has no such stream. List the document to see what it has."
             : "This is a storage, not a stream. Name a stream in it.");
  }
  return *entry;
}

DocumentStream CompoundDocument::OpenStream(const std::string& path) const {
  const std::vector<std::string> names = SplitPath(FindStream(path).path);
  try {
    return m_reader->OpenStream(names);
  } catch (const StorageFailure& failure) {
    FailDamaged(m_file, StorageFailure(failure.what(), path));
  }
}

Bytes CompoundDocument::ReadStream(const std::string& path) const {
  Bytes bytes(static_cast<std::size_t>(FindStream(path).size));
  const DocumentStream stream = OpenStream(path);
  ULONG count = 0;
  // Structured storage refuses the null pointer of an empty vector.
  const HRESULT result =
      bytes.empty() ? S_OK : stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &count);
  if (result < 0 || count != bytes.size()) {
    FailDamaged(m_file, StorageFailure("only " + std::to_string(count) + " of " +
                                           std::to_string(bytes.size()) + " bytes can be read",
                                       path));
  }
  return bytes;
}

CompoundDocumentWriter::CompoundDocumentWriter(fs::path target, const ClassId& rootClassId)
    : m_target(std::move(target)), m_builder(StorageBuilder::Create(rootClassId)) {}

CompoundDocumentWriter::~CompoundDocumentWriter() = default;

void CompoundDocumentWriter::CheckNoStreamOpen() const {
  if (m_isStreamOpen) {
    throw std::logic_error("A stream of the new document is still open.");
  }
}

/// Checks the path of a new element, makes the storages above it and answers its names.
std::vector<std::string> CompoundDocumentWriter::Prepare(const std::string& path) {
  CheckNoStreamOpen();
  const auto fail = [&](const std::string& sentence) {
    Fail(DocumentProblem::BadPath, m_target, path, sentence + " Choose another name.");
  };
  std::vector<std::string> names = SplitPath(path);
  for (const std::string& name : names) {
    const std::optional<std::u16string> units = Utf16FromUtf8(name);
    const std::string_view fault = units ? FindNameFault(*units) : "a name is not UTF-8";
    if (!fault.empty()) {
      fail("No document can hold this path: " + std::string(fault) + ".");
    }
  }
  const std::size_t end = path.rfind('/');
  if (end != std::string::npos && !m_storages.contains(path.substr(0, end))) {
    AddStorage(path.substr(0, end));
  }
  if (!m_foldedPaths.insert(Fold(*Utf16FromUtf8(path))).second) {
    fail("The new document has an element of this name already; letter case does not count.");
  }
  if (m_foldedPaths.size() > kMaxEntries || names.size() > static_cast<std::size_t>(kMaxDepth)) {
    fail("The new document would have more than " + std::to_string(kMaxEntries) +
         " elements or more than " + std::to_string(kMaxDepth) + " storages inside each other.");
  }
  return names;
}

void CompoundDocumentWriter::AddStorage(const std::string& path, const ClassId& classId) {
  m_builder->AddStorage(Prepare(path), classId);
  m_storages.insert(path);
}

DocumentStream CompoundDocumentWriter::CreateStream(const std::string& path) {
  const std::vector<std::string> names = Prepare(path);
  DocumentStream stream = m_builder->CreateStream(names, StreamCloser(&m_isStreamOpen));
  m_isStreamOpen = true;
  return stream;
}

void CompoundDocumentWriter::AddStream(const std::string& path, std::span<const std::byte> bytes) {
  const DocumentStream stream = CreateStream(path);
  ULONG count = 0;
  HRESULT result = S_OK;
  if (bytes.size() > kMaxFileSize) {
    result = E_FAIL;
  } else if (!bytes.empty()) {
    result = stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), &count);
  }
  if (result < 0 || count != bytes.size()) {
    Fail(DocumentProblem::File, m_target, path,
         "The new document cannot take the " + std::to_string(bytes.size()) +
             " bytes of this stream. Nothing was saved.");
  }
}

void CompoundDocumentWriter::Commit() {
  CheckNoStreamOpen();
  const auto fail = [this](const std::string& sentences) {
    Fail(DocumentProblem::File, m_target, {},
         sentences + " Nothing was saved; a document that was there is as it was.");
  };
  std::error_code ignored;
  if (fs::is_directory(m_target, ignored)) {
    fail("This is a folder. Name a file in it.");
  }
  try {
    const Bytes bytes = m_builder->Finish();
    ReadStructure(bytes);  // nothing takes the place of a document that could not be read again
    WriteAtomically(m_target, bytes);
  } catch (const StorageFailure& failure) {
    fail("The new document cannot be built: " + std::string(failure.what()) + ".");
  } catch (const std::system_error& error) {
    fail("The document cannot be written: " + error.code().message() +
         ". Check that the folder exists, may be written to and has room.");
  }
}

void RewriteDocument(const fs::path& source, const fs::path& target,
                     const std::map<std::string, Bytes>& replacements) {
  std::error_code ignored;
  if (fs::equivalent(source, target, ignored)) {
    Fail(DocumentProblem::File, target, {},
         "This is the document that is read. Name another file to write to.");
  }
  const CompoundDocument document(source);
  for (const auto& replacement : replacements) {
    static_cast<void>(document.OpenStream(replacement.first));
  }
  CompoundDocumentWriter writer(target, document.RootClassId());
  for (const DocumentEntry& entry : document.Entries()) {
    const auto replacement = replacements.find(entry.path);
    if (entry.isStorage) {
      writer.AddStorage(entry.path, entry.classId);
    } else if (replacement != replacements.end()) {
      writer.AddStream(entry.path, replacement->second);
    } else {
      writer.AddStream(entry.path, document.ReadStream(entry.path));
    }
  }
  writer.Commit();
}

}  // namespace mqp::host
