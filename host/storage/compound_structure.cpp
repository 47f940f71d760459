#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "compound_parts.h"

namespace mqp::host {
namespace {

constexpr std::array<unsigned char, 8> kSignature{0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};

// Places in the header.
constexpr std::size_t kMajorVersion = 26;
constexpr std::size_t kByteOrder = 28;
constexpr std::size_t kSectorShift = 30;
constexpr std::size_t kMiniSectorShift = 32;
constexpr std::size_t kTableSectorCount = 44;
constexpr std::size_t kFirstDirectorySector = 48;
constexpr std::size_t kMiniStreamCutoff = 56;
constexpr std::size_t kFirstMiniTableSector = 60;
constexpr std::size_t kMiniTableSectorCount = 64;
constexpr std::size_t kFirstTableListSector = 68;
constexpr std::size_t kTableListSectorCount = 72;
constexpr std::size_t kTableList = 76;
constexpr std::size_t kTableListLength = 109;
constexpr std::size_t kHeaderSize = 512;

// Places in an entry of the directory.
constexpr std::size_t kNameLength = 64;
constexpr std::size_t kType = 66;
constexpr std::size_t kLeft = 68;
constexpr std::size_t kRight = 72;
constexpr std::size_t kChild = 76;
constexpr std::size_t kClassId = 80;
constexpr std::size_t kFirstSector = 116;
constexpr std::size_t kSize = 120;
constexpr std::size_t kEntrySize = 128;

constexpr std::uint32_t kStorageType = 1;
constexpr std::uint32_t kStreamType = 2;
constexpr std::uint32_t kRootType = 5;

/// From here on, numbers in an allocation table are no sectors: free, end, and sectors that hold
/// the table itself.
constexpr std::uint32_t kFirstMarker = 0xFFFFFFFC;
constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr std::uint32_t kNone = 0xFFFFFFFF;

constexpr std::uint64_t kCutoff = 4096;
constexpr std::size_t kMiniSectorSize = 64;

/// Bytes with little-endian integers in them; a place behind the end is damage.
class ByteView {
 public:
  explicit ByteView(std::span<const std::byte> bytes) : m_bytes(bytes) {}

  [[nodiscard]] std::size_t Size() const noexcept { return m_bytes.size(); }
  [[nodiscard]] std::span<const std::byte> Part(std::size_t place, std::size_t size) const {
    if (place > m_bytes.size() || size > m_bytes.size() - place) {
      throw StorageFailure("the file ends too early");
    }
    return m_bytes.subspan(place, size);
  }
  [[nodiscard]] std::uint32_t Byte(std::size_t place) const { return Integer(place, 1); }
  [[nodiscard]] std::uint32_t Short(std::size_t place) const { return Integer(place, 2); }
  [[nodiscard]] std::uint32_t Integer(std::size_t place, std::size_t width = 4) const {
    std::uint32_t value = 0;
    for (const std::byte byte : Part(place, width)) {
      value = value >> 8 | std::to_integer<std::uint32_t>(byte) << 24;
    }
    return value >> 8 * (4 - width);
  }

 private:
  std::span<const std::byte> m_bytes;
};

/// A table that gives the successor of each sector, and which sectors have an owner already.
class SectorTable {
 public:
  /// \param kind "sector" or "mini sector", for messages
  SectorTable(std::string kind, std::size_t sectorCount)
      : m_kind(std::move(kind)), m_isTaken(sectorCount) {}

  void Append(std::uint32_t successor) {
    if (successor >= m_isTaken.size() && successor < kFirstMarker) {
      Fail(successor, "lies outside the file");
    }
    m_successors.push_back(successor);
  }

  void Take(std::uint32_t sector) {
    if (sector >= m_isTaken.size()) {
      Fail(sector, "lies outside the file");
    }
    if (m_isTaken[sector]) {
      Fail(sector, "is used twice");
    }
    m_isTaken[sector] = true;
  }

  /// Takes the sectors from the first one to the end of their chain.
  std::vector<std::uint32_t> TakeChain(std::uint32_t first) {
    std::vector<std::uint32_t> chain;
    for (std::uint32_t sector = first; sector != kEndOfChain; sector = m_successors[sector]) {
      Take(sector);
      if (sector >= m_successors.size()) {
        Fail(sector, "has no place in the allocation table");
      }
      chain.push_back(sector);
    }
    return chain;
  }

 private:
  [[noreturn]] void Fail(std::uint32_t sector, const char* what) const {
    throw StorageFailure(m_kind + " " + std::to_string(sector) + " " + what);
  }

  std::string m_kind;
  std::vector<std::uint32_t> m_successors;
  std::vector<bool> m_isTaken;
};

class StructureReader {
 public:
  explicit StructureReader(std::span<const std::byte> file)
      : m_file(file),
        m_sectorSize(ReadSectorSize()),
        m_sectors("sector", std::max(m_file.Size() / m_sectorSize, std::size_t{1}) - 1),
        m_miniSectors("mini sector", 0) {
    ReadTable();
    m_directory = ReadChain(m_file.Integer(kFirstDirectorySector));
    ReadRoot();
  }

  DocumentStructure Walk() {
    m_isReached.assign(m_directory.size() / kEntrySize, false);
    m_isReached[0] = true;
    WalkStorage(Entry(0).Integer(kChild), "", 1);
    return std::move(m_structure);
  }

 private:
  [[nodiscard]] std::size_t ReadSectorSize() const {
    if (m_file.Size() < kHeaderSize) {
      throw StorageFailure("the file ends inside its header");
    }
    const std::uint32_t version = m_file.Short(kMajorVersion);
    const std::uint32_t shift = m_file.Short(kSectorShift);
    const bool isKnown = (version == 3 && shift == 9) || (version == 4 && shift == 12);
    if (!isKnown || m_file.Short(kByteOrder) != 0xFFFE || m_file.Short(kMiniSectorShift) != 6 ||
        m_file.Integer(kMiniStreamCutoff) != kCutoff) {
      throw StorageFailure("the header holds values that no document has");
    }
    return std::size_t{1} << shift;
  }

  /// The header takes the place of a sector before the first.
  [[nodiscard]] ByteView Sector(std::uint32_t sector) const {
    return ByteView(m_file.Part((std::size_t{sector} + 1) * m_sectorSize, m_sectorSize));
  }

  void AppendTableSector(std::uint32_t sector) {
    m_sectors.Take(sector);
    const ByteView table = Sector(sector);
    for (std::size_t place = 0; place < m_sectorSize; place += 4) {
      m_sectors.Append(table.Integer(place));
    }
  }

  /// The header lists the first sectors of the allocation table; a chain of sectors, each of
  /// which ends with the number of the next, lists the others.
  void ReadTable() {
    std::uint32_t missing = m_file.Integer(kTableSectorCount);
    for (std::size_t index = 0; index < kTableListLength && missing > 0; ++index, --missing) {
      AppendTableSector(m_file.Integer(kTableList + 4 * index));
    }
    std::uint32_t list = m_file.Integer(kFirstTableListSector);
    std::uint32_t listCount = 0;
    for (; missing > 0; ++listCount) {
      m_sectors.Take(list);
      const ByteView entries = Sector(list);
      for (std::size_t place = 0; place < m_sectorSize - 4 && missing > 0; place += 4, --missing) {
        AppendTableSector(entries.Integer(place));
      }
      list = entries.Integer(m_sectorSize - 4);
    }
    if (listCount != m_file.Integer(kTableListSectorCount)) {
      throw StorageFailure("the header counts its allocation tables wrongly");
    }
  }

  std::vector<std::byte> ReadChain(std::uint32_t first) {
    std::vector<std::byte> bytes;
    for (const std::uint32_t sector : m_sectors.TakeChain(first)) {
      const auto part = m_file.Part((std::size_t{sector} + 1) * m_sectorSize, m_sectorSize);
      bytes.insert(bytes.end(), part.begin(), part.end());
    }
    return bytes;
  }

  [[nodiscard]] ByteView Entry(std::uint32_t index) const {
    return ByteView(ByteView(m_directory).Part(std::size_t{index} * kEntrySize, kEntrySize));
  }

  /// Version 3 leaves the upper half of the size undefined.
  [[nodiscard]] std::uint64_t EntryStreamSize(const ByteView& entry) const {
    const std::uint64_t upper = m_sectorSize == 512 ? 0 : entry.Integer(kSize + 4);
    return upper << 32 | entry.Integer(kSize);
  }

  static ClassId EntryClassId(const ByteView& entry) {
    ClassId classId{};
    std::ranges::copy(entry.Part(kClassId, classId.size()), classId.begin());
    return classId;
  }

  /// The root owns the mini stream, in which the mini sectors lie.
  void ReadRoot() {
    const ByteView root = Entry(0);
    if (root.Byte(kType) != kRootType) {
      throw StorageFailure("the directory does not begin with the root");
    }
    if (root.Integer(kLeft) != kNone || root.Integer(kRight) != kNone) {
      throw StorageFailure("the root has neighbours");
    }
    m_structure.rootClassId = EntryClassId(root);
    const std::uint64_t size = EntryStreamSize(root);
    if (size > m_file.Size()) {
      throw StorageFailure("the mini stream is larger than the file");
    }
    TakeStream(m_sectors, m_sectorSize, size, root.Integer(kFirstSector));
    m_miniSectors = SectorTable("mini sector", SectorCount(size, kMiniSectorSize));
    const std::vector<std::byte> table = ReadChain(m_file.Integer(kFirstMiniTableSector));
    for (std::size_t place = 0; place < table.size(); place += 4) {
      m_miniSectors.Append(ByteView(table).Integer(place));
    }
    if (table.size() / m_sectorSize != m_file.Integer(kMiniTableSectorCount)) {
      throw StorageFailure("the header counts its allocation tables wrongly");
    }
  }

  static std::size_t SectorCount(std::uint64_t size, std::size_t sectorSize) {
    return static_cast<std::size_t>(size / sectorSize + (size % sectorSize == 0 ? 0 : 1));
  }

  static void TakeStream(SectorTable& table, std::size_t sectorSize, std::uint64_t size,
                         std::uint32_t first) {
    if (size > 0 && table.TakeChain(first).size() < SectorCount(size, sectorSize)) {
      throw StorageFailure("its sectors hold less than its " + std::to_string(size) + " bytes");
    }
  }

  void WalkStorage(std::uint32_t child, const std::string& path, int depth) {
    if (depth > kMaxDepth && child != kNone) {
      throw StorageFailure("storages lie too deep inside each other", path);
    }
    std::vector<std::string> names;
    std::vector<std::uint32_t> waiting;
    std::uint32_t index = child;
    while (index != kNone || !waiting.empty()) {
      for (; index != kNone; index = Entry(index).Integer(kLeft)) {
        Reach(index);
        waiting.push_back(index);
      }
      index = waiting.back();
      waiting.pop_back();
      names.push_back(ReadName(Entry(index), path));
      AddEntry(Entry(index), path.empty() ? names.back() : path + "/" + names.back(), depth);
      index = Entry(index).Integer(kRight);
    }
    std::ranges::sort(names);
    if (const auto twin = std::ranges::adjacent_find(names); twin != names.end()) {
      throw StorageFailure("two elements have the name \"" + *twin + "\"", path);
    }
  }

  void Reach(std::uint32_t index) {
    if (index >= m_isReached.size()) {
      throw StorageFailure("the directory refers to an entry that it does not have");
    }
    if (m_isReached[index]) {
      throw StorageFailure("the directory refers to an entry twice");
    }
    m_isReached[index] = true;
    if (++m_reachedCount > kMaxEntries) {
      throw StorageFailure("the directory has more than " + std::to_string(kMaxEntries) +
                           " streams and storages");
    }
  }

  static std::string ReadName(const ByteView& entry, const std::string& path) {
    const std::size_t length = entry.Short(kNameLength);  // bytes, with the zero at the end
    if (length < 2 || length > kNameLength || length % 2 != 0 || entry.Short(length - 2) != 0) {
      throw StorageFailure("the name of an element is damaged", path);
    }
    std::u16string name;
    for (std::size_t place = 0; place + 2 < length; place += 2) {
      name.push_back(static_cast<char16_t>(entry.Short(place)));
    }
    const std::optional<std::string> converted = Utf8FromUtf16(name);
    if (!converted || !FindNameFault(name).empty()) {
      throw StorageFailure("the name of an element is damaged", path);
    }
    return *converted;
  }

  void AddEntry(const ByteView& entry, const std::string& path, int depth) {
    const std::uint32_t type = entry.Byte(kType);
    if (type == kStorageType) {
      m_structure.entries.push_back(
          {.path = path, .isStorage = true, .size = 0, .classId = EntryClassId(entry)});
      WalkStorage(entry.Integer(kChild), path, depth + 1);
      return;
    }
    if (type != kStreamType) {
      throw StorageFailure("it is neither a stream nor a storage", path);
    }
    const std::uint64_t size = EntryStreamSize(entry);
    try {
      const bool isMini = size < kCutoff;
      TakeStream(isMini ? m_miniSectors : m_sectors, isMini ? kMiniSectorSize : m_sectorSize, size,
                 entry.Integer(kFirstSector));
    } catch (const StorageFailure& failure) {
      throw StorageFailure(failure.what(), path);
    }
    m_structure.entries.push_back({.path = path, .isStorage = false, .size = size, .classId = {}});
  }

  ByteView m_file;
  std::size_t m_sectorSize;
  SectorTable m_sectors;
  SectorTable m_miniSectors;
  std::vector<std::byte> m_directory;
  std::vector<bool> m_isReached;
  std::size_t m_reachedCount = 0;
  DocumentStructure m_structure;
};

}  // namespace

bool BeginsLikeCompound(std::span<const std::byte> file) noexcept {
  return file.size() >= kSignature.size() &&
         std::memcmp(file.data(), kSignature.data(), kSignature.size()) == 0;
}

DocumentStructure ReadStructure(std::span<const std::byte> file) {
  return StructureReader(file).Walk();
}

}  // namespace mqp::host
