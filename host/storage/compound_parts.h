/// \file
/// What a compound document is made of: names, the structure that is checked before a backend
/// sees the file, and the two backends.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "compound_document.h"

namespace mqp::host {

/// A reason without the file, which the caller knows and puts before it.
class StorageFailure : public std::runtime_error {
 public:
  explicit StorageFailure(const std::string& reason, std::string path = {})
      : std::runtime_error(reason), m_path(std::move(path)) {}
  /// The stream or storage concerned; empty when it is the whole document.
  [[nodiscard]] const std::string& Path() const noexcept { return m_path; }

 private:
  std::string m_path;
};

// --- names -------------------------------------------------------------------------------------

/// Nothing when the text is not well-formed.
std::optional<std::u16string> Utf16FromUtf8(std::string_view text);
std::optional<std::string> Utf8FromUtf16(std::u16string_view text);
/// The names of a path and back.
std::vector<std::string> SplitPath(std::string_view path);
std::string JoinPath(std::span<const std::string> names);
/// What is wrong with the name of an element; empty when nothing is.
std::string_view FindNameFault(std::u16string_view name);

// --- structure ---------------------------------------------------------------------------------

/// More streams and storages than any study document has, and few enough for libgsf, which
/// descends from neighbour to neighbour: this many need between one and two megabytes of stack.
inline constexpr std::size_t kMaxEntries = 4096;
/// How many names a path has at most, for the same reason.
inline constexpr int kMaxDepth = 64;

struct DocumentStructure {
  std::vector<DocumentEntry> entries;
  ClassId rootClassId{};
};

/// Whether a file begins with the signature of compound documents.
bool BeginsLikeCompound(std::span<const std::byte> file) noexcept;

/// Walks allocation tables and directory of a file with that signature. Every sector has one
/// owner at most and every entry is reached once, so that the walk ends and needs no more memory
/// than a small multiple of the file.
/// \throw StorageFailure when the structure does not hold together
DocumentStructure ReadStructure(std::span<const std::byte> file);

// --- backends ----------------------------------------------------------------------------------

/// Frees a stream that the backend opened.
void CloseStream(IStream* stream) noexcept;

/// The backend's view of a whole document, whose structure has been checked.
class StorageReader {
 public:
  /// \throw StorageFailure
  static std::unique_ptr<StorageReader> Open(std::vector<std::byte> file);
  virtual ~StorageReader() = default;
  /// \throw StorageFailure
  virtual DocumentStream OpenStream(std::span<const std::string> path) = 0;
};

/// Builds a document in memory. Paths are valid and new, and their storages exist.
class StorageBuilder {
 public:
  /// \throw StorageFailure
  static std::unique_ptr<StorageBuilder> Create(const ClassId& rootClassId);
  virtual ~StorageBuilder() = default;
  virtual void AddStorage(std::span<const std::string> path, const ClassId& classId) = 0;
  virtual DocumentStream CreateStream(std::span<const std::string> path, StreamCloser closer) = 0;
  /// The finished file; the last call to the object.
  virtual std::vector<std::byte> Finish() = 0;
};

}  // namespace mqp::host
