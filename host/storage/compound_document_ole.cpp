#include <algorithm>
#include <cstring>
#include <exception>
#include <iterator>
#include <map>
#include <string>
#include <utility>

#include "compound_parts.h"
// Behind the platform's stream.h, which keeps the system's headers small.
#include <objbase.h>
#include <ole2.h>

namespace mqp::host {
namespace {

// The modes that structured storage allows for elements; the document itself lies in memory,
// where nobody else can reach it.
constexpr DWORD kReadMode = STGM_READ | STGM_SHARE_EXCLUSIVE;
constexpr DWORD kCreateMode = STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE;

struct ReleaseObject {
  void operator()(IUnknown* object) const noexcept { object->Release(); }
};
template <class Object>
using Reference = std::unique_ptr<Object, ReleaseObject>;

/// Takes over what a call gives back.
template <class Object>
class Result {
 public:
  explicit Result(Reference<Object>& target) : m_target(target) {}
  ~Result() { m_target.reset(m_object); }
  Result(const Result&) = delete;
  Result& operator=(const Result&) = delete;
  operator Object**() noexcept { return &m_object; }  // NOLINT(google-explicit-constructor)

 private:
  Reference<Object>& m_target;
  Object* m_object = nullptr;
};

void Check(HRESULT result, const std::string& what) {
  if (FAILED(result)) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string code;
    for (int shift = 28; shift >= 0; shift -= 4) {
      code += kDigits[static_cast<unsigned long>(result) >> shift & 0xF];
    }
    throw StorageFailure(what + " (structured storage answers 0x" + code + ")");
  }
}

/// Names were checked when the path was.
std::wstring Wide(const std::string& name) {
  const std::u16string units = Utf16FromUtf8(name).value_or(u"");
  return {units.begin(), units.end()};
}

/// The bytes of a document in memory. The system has such an object too, but moves all bytes
/// whenever it grows by a few. Like a local variable it belongs to its scope: reference counts are
/// answered but not acted on.
class MemoryBytes final : public ILockBytes {
 public:
  explicit MemoryBytes(std::vector<std::byte> bytes) : m_bytes(std::move(bytes)) {}
  virtual ~MemoryBytes() = default;
  std::vector<std::byte> Take() { return std::move(m_bytes); }

  HRESULT ReadAt(ULARGE_INTEGER place, void* buffer, ULONG size, ULONG* transferred) override {
    const std::size_t begin = std::min<std::size_t>(place.QuadPart, m_bytes.size());
    const std::size_t count = std::min<std::size_t>(size, m_bytes.size() - begin);
    std::copy_n(m_bytes.begin() + static_cast<std::ptrdiff_t>(begin), count,
                static_cast<std::byte*>(buffer));
    Report(transferred, count);
    return S_OK;
  }
  HRESULT WriteAt(ULARGE_INTEGER place, const void* buffer, ULONG size,
                  ULONG* transferred) override {
    Report(transferred, 0);
    const ULONGLONG end = place.QuadPart + size;
    if (end > m_bytes.size() && FAILED(SetSize({.QuadPart = end}))) {
      return STG_E_MEDIUMFULL;
    }
    std::copy_n(static_cast<const std::byte*>(buffer), size,
                m_bytes.begin() + static_cast<std::ptrdiff_t>(place.QuadPart));
    Report(transferred, size);
    return S_OK;
  }
  HRESULT SetSize(ULARGE_INTEGER size) override {
    try {
      m_bytes.resize(static_cast<std::size_t>(size.QuadPart));
      return S_OK;
    } catch (const std::exception&) {
      return STG_E_MEDIUMFULL;
    }
  }
  HRESULT Stat(STATSTG* statistics, DWORD) override {
    *statistics = {};
    statistics->type = STGTY_LOCKBYTES;
    statistics->cbSize.QuadPart = m_bytes.size();
    return S_OK;
  }
  HRESULT Flush() override { return S_OK; }
  HRESULT LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override {
    return STG_E_INVALIDFUNCTION;
  }
  HRESULT UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override {
    return STG_E_INVALIDFUNCTION;
  }
  HRESULT QueryInterface(REFIID id, void** object) override {
    const bool isOurs = id == IID_IUnknown || id == IID_ILockBytes;
    *object = isOurs ? static_cast<ILockBytes*>(this) : nullptr;
    return isOurs ? S_OK : E_NOINTERFACE;
  }
  ULONG AddRef() override { return 1; }
  ULONG Release() override { return 1; }

 private:
  static void Report(ULONG* transferred, std::size_t count) {
    if (transferred != nullptr) {
      *transferred = static_cast<ULONG>(count);
    }
  }

  std::vector<std::byte> m_bytes;
};

class OleReader final : public StorageReader {
 public:
  explicit OleReader(std::vector<std::byte> file) : m_bytes(std::move(file)) {
    Check(StgOpenStorageOnILockBytes(&m_bytes, nullptr, kReadMode, nullptr, 0,
                                     Result(m_storages[""])),
          "it cannot be opened");
  }

  /// Elements allow one user at a time: the first opening is kept, and clones are given away.
  DocumentStream OpenStream(std::span<const std::string> path) override {
    Reference<IStream>& original = m_streams[JoinPath(path)];
    if (original == nullptr) {
      Check(OpenStorage(path.first(path.size() - 1))
                .OpenStream(Wide(path.back()).c_str(), nullptr, kReadMode, 0, Result(original)),
            "it cannot be opened");
    }
    IStream* clone = nullptr;
    Check(original->Clone(&clone), "it cannot be opened");
    return DocumentStream(clone, StreamCloser());
  }

 private:
  IStorage& OpenStorage(std::span<const std::string> path) {
    Reference<IStorage>& storage = m_storages[JoinPath(path)];
    if (storage == nullptr) {
      Check(OpenStorage(path.first(path.size() - 1))
                .OpenStorage(Wide(path.back()).c_str(), nullptr, kReadMode, nullptr, 0,
                             Result(storage)),
            "it cannot be opened");
    }
    return *storage;
  }

  MemoryBytes m_bytes;  // outlives the storages in it
  std::map<std::string, Reference<IStorage>> m_storages;
  std::map<std::string, Reference<IStream>> m_streams;
};

class OleBuilder final : public StorageBuilder {
 public:
  explicit OleBuilder(const ClassId& rootClassId) : m_bytes({}) {
    Check(StgCreateDocfileOnILockBytes(&m_bytes, kCreateMode, 0, Result(m_storages[""])),
          "it cannot be created");
    SetClassId("", rootClassId);
  }

  void AddStorage(std::span<const std::string> path, const ClassId& classId) override {
    Check(Parent(path).CreateStorage(Wide(path.back()).c_str(), kCreateMode, 0, 0,
                                     Result(m_storages[JoinPath(path)])),
          "a storage cannot be created");
    SetClassId(JoinPath(path), classId);
  }

  DocumentStream CreateStream(std::span<const std::string> path, StreamCloser closer) override {
    IStream* stream = nullptr;
    Check(Parent(path).CreateStream(Wide(path.back()).c_str(), kCreateMode, 0, 0, &stream),
          "a stream cannot be created");
    return DocumentStream(stream, closer);
  }

  std::vector<std::byte> Finish() override {
    for (auto storage = m_storages.rbegin(); storage != m_storages.rend(); ++storage) {
      Check(storage->second->Commit(STGC_DEFAULT), "structured storage cannot complete it");
    }
    while (!m_storages.empty()) {
      m_storages.erase(std::prev(m_storages.end()));  // what a storage holds sorts behind it
    }
    return m_bytes.Take();
  }

 private:
  IStorage& Parent(std::span<const std::string> path) {
    return *m_storages.at(JoinPath(path.first(path.size() - 1)));
  }

  void SetClassId(const std::string& path, const ClassId& classId) {
    CLSID id{};
    std::memcpy(&id, classId.data(), classId.size());
    Check(m_storages.at(path)->SetClass(id), "a class id cannot be written");
  }

  MemoryBytes m_bytes;  // outlives the storages in it
  std::map<std::string, Reference<IStorage>> m_storages;
};

}  // namespace

void CloseStream(IStream* stream) noexcept {
  stream->Release();
}

std::unique_ptr<StorageReader> StorageReader::Open(std::vector<std::byte> file) {
  return std::make_unique<OleReader>(std::move(file));
}

std::unique_ptr<StorageBuilder> StorageBuilder::Create(const ClassId& rootClassId) {
  return std::make_unique<OleBuilder>(rootClassId);
}

}  // namespace mqp::host
