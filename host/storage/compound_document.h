/// \file
/// OLE compound documents: libgsf on Linux, structured storage on Windows, behind one small
/// interface that answers alike on both. What one of them writes the other reads.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include <mqPostCommon/platform/stream.h>

namespace mqp::host {

/// The 16 bytes that name the program a storage belongs to, as they lie in the file.
using ClassId = std::array<std::byte, 16>;

/// One stream or storage of a document.
struct DocumentEntry {
  std::string path;  ///< from the root, UTF-8, parts joined by "/": "Graphs/Graph1"
  bool isStorage = false;
  std::uint64_t size = 0;  ///< bytes of a stream; 0 for a storage
  ClassId classId{};       ///< of a storage; zeros for a stream
};

/// Why a document could not be read or written.
enum class DocumentProblem {
  File,         ///< the file cannot be opened, read, written or renamed
  NotCompound,  ///< the file is no OLE compound document
  Damaged,      ///< it begins like one, but its structure does not hold together
  NoStream,     ///< it has no stream of that name
  BadPath,      ///< no document can hold an element of that path, or it holds one already
};

/// The text says what happened, where ("study.cfb > Graphs/Graph1") and what to do.
class DocumentError : public std::runtime_error {
 public:
  DocumentError(DocumentProblem problem, const std::string& what)
      : std::runtime_error(what), m_problem(problem) {}
  [[nodiscard]] DocumentProblem Problem() const noexcept { return m_problem; }

 private:
  DocumentProblem m_problem;
};

/// Ends the use of a stream that a document opened.
class StreamCloser {
 public:
  StreamCloser() = default;
  explicit StreamCloser(bool* isOpen) : m_isOpen(isOpen) {}
  void operator()(IStream* stream) const noexcept;

 private:
  bool* m_isOpen = nullptr;
};

/// A stream inside a document. It must not outlive the document it came from.
using DocumentStream = std::unique_ptr<IStream, StreamCloser>;

class StorageReader;
class StorageBuilder;

/// A document opened for reading. The whole file is read and its structure checked when it is
/// opened: allocation tables, directory and the place of every stream. Damage that leaves the
/// structure whole, inside the bytes of a stream, cannot be noticed: the format has no checksums.
class CompoundDocument {
 public:
  /// \throw DocumentError `File`, `NotCompound` or `Damaged`
  explicit CompoundDocument(std::filesystem::path file);
  ~CompoundDocument();
  CompoundDocument(CompoundDocument&&) noexcept;
  CompoundDocument& operator=(CompoundDocument&&) noexcept;

  /// Every storage and stream in the order of the directory, a storage before what it holds.
  [[nodiscard]] const std::vector<DocumentEntry>& Entries() const noexcept { return m_entries; }
  [[nodiscard]] const ClassId& RootClassId() const noexcept { return m_rootClassId; }

  /// The stream itself, at its first byte and for reading only; several may be open at once.
  /// \param path as `Entries` gives it, letter case included
  /// \throw DocumentError `NoStream` or `Damaged`
  [[nodiscard]] DocumentStream OpenStream(const std::string& path) const;
  /// All bytes of a stream.
  [[nodiscard]] std::vector<std::byte> ReadStream(const std::string& path) const;

 private:
  [[nodiscard]] const DocumentEntry& FindStream(const std::string& path) const;

  std::filesystem::path m_file;
  std::vector<DocumentEntry> m_entries;
  ClassId m_rootClassId{};
  std::unique_ptr<StorageReader> m_reader;
};

/// A new document. Nothing reaches the disk before `Commit`, which replaces the target in one
/// step: whatever fails, the old document stays as it was and no temporary file stays behind.
class CompoundDocumentWriter {
 public:
  explicit CompoundDocumentWriter(std::filesystem::path target, const ClassId& rootClassId = {});
  ~CompoundDocumentWriter();
  CompoundDocumentWriter(const CompoundDocumentWriter&) = delete;
  CompoundDocumentWriter& operator=(const CompoundDocumentWriter&) = delete;

  /// Storages above an element are made where they are missing. Names have 1 to 31 UTF-16 units
  /// without / \ : ! and differ by more than letter case from their neighbours.
  /// \throw DocumentError `BadPath`
  void AddStorage(const std::string& path, const ClassId& classId = {});
  void AddStream(const std::string& path, std::span<const std::byte> bytes);
  /// An empty stream to be written to. It is closed before the next element is added.
  [[nodiscard]] DocumentStream CreateStream(const std::string& path);

  /// Writes the document; the last call to the object.
  /// \throw DocumentError `File`
  void Commit();

 private:
  std::vector<std::string> Prepare(const std::string& path);
  void CheckNoStreamOpen() const;

  std::filesystem::path m_target;
  std::set<std::u16string> m_foldedPaths;
  std::set<std::string> m_storages;
  std::unique_ptr<StorageBuilder> m_builder;
  bool m_isStreamOpen = false;
};

/// Copies a document and puts other bytes into some of its streams. All other streams, empty
/// storages and class ids are kept; times and state bits of storages are not.
/// \param target another file than `source`; a document there is replaced as by `Commit`
/// \param replacements new bytes by path
/// \throw DocumentError also `NoStream` when the source lacks a replaced stream
void RewriteDocument(const std::filesystem::path& source, const std::filesystem::path& target,
                     const std::map<std::string, std::vector<std::byte>>& replacements);

}  // namespace mqp::host
