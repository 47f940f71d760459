#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <numeric>
#include <queue>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include <mqPostCommon/display/assembly_index.h>
#include <mqPostCommon/platform/lookup_tables.h>

namespace mqp {
namespace {

using Components = std::span<const CDspAsmComp>;

constexpr std::size_t Place(int index) noexcept {
  return static_cast<std::size_t>(index);
}

/// Sums wrap around as the list's do.
constexpr unsigned Wrapping(int value) noexcept {
  return static_cast<unsigned>(value);
}

// ---------------------------------------------------------------------------------------------
// Elements

/// The elements from `first` to that of the next segment.
struct Segment {
  unsigned first;
  unsigned toVisible;  ///< added to an element, with wrapping, it makes the visible index
  bool isHeld;
};

/// The components that may hold elements, by their first element.
std::vector<int> FindShown(Components components) {
  std::vector<int> shown;
  for (std::size_t place = 0; place < components.size(); ++place) {
    if (components[place].m_bHidden == 0 && components[place].PostAvailable() != 0) {
      shown.push_back(static_cast<int>(place));
    }
  }
  std::ranges::sort(shown, {}, [&](int index) { return components[Place(index)].m_nFirstElem; });
  return shown;
}

/// Segments from element 0 on, of which the last one, held by none, stands behind all elements.
/// None at all when nothing is shown.
std::vector<Segment> MakeSegments(Components components) {
  const auto first = [&](int index) { return Wrapping(components[Place(index)].m_nFirstElem); };
  const auto end = [&](int index) { return Wrapping(components[Place(index)].m_nLastElem) + 1U; };
  const std::vector<int> shown = FindShown(components);
  std::vector<Segment> segments;
  // Those that began at or before `element`. The first one in the order of the list is on top and
  // holds it; others may have ended.
  std::priority_queue<int, std::vector<int>, std::greater<>> begun;
  unsigned element = 0;
  for (auto next = shown.begin(); next != shown.end() || !begun.empty();) {
    for (; next != shown.end() && first(*next) <= element; ++next) {
      begun.push(*next);
    }
    while (!begun.empty() && end(begun.top()) <= element) {
      begun.pop();
    }
    if (begun.empty()) {
      segments.push_back({element, 0, false});
      element = next == shown.end() ? element : first(*next);
      continue;
    }
    const int holder = begun.top();
    segments.push_back(
        {element, Wrapping(components[Place(holder)].m_nVisIndexBase) - first(holder), true});
    element = end(holder);
    for (; next != shown.end() && first(*next) < element; ++next) {
      if (*next < holder) {
        element = first(*next);
      }
      begun.push(*next);
    }
  }
  return segments;
}

/// Finds the segment of an element: buckets of equal width say where to look, and where many
/// segments crowd in one, it has buckets of its own. Each such level splits elements by eight at
/// least, so there are ten levels at most, and one where ranges are of similar length.
class SegmentFinder {
 public:
  explicit SegmentFinder(std::vector<Segment> segments) : m_segments(std::move(segments)) {
    if (!m_segments.empty()) {
      m_end = m_segments.back().first;
      AddLevel(0, m_end, 0, m_segments.size() - 1);
    }
  }

  /// The segment of an element, or null behind all segments.
  [[nodiscard]] const Segment* Find(unsigned element) const noexcept {
    if (element >= m_end) {
      return nullptr;
    }
    int bucket = BucketOf(m_levels.front(), element);
    while (bucket < 0) {
      bucket = BucketOf(m_levels[Place(~bucket)], element);
    }
    const Segment* segment = &m_segments[Place(bucket)];
    while (segment[1].first <= element) {
      ++segment;
    }
    return segment;
  }

 private:
  static constexpr std::size_t kCrowd = 8;

  struct Level {
    unsigned first;       ///< element
    int shift;            ///< the width of a bucket is a power of 2
    std::size_t buckets;  ///< where they begin
  };

  [[nodiscard]] int BucketOf(const Level& level, unsigned element) const noexcept {
    return m_buckets[level.buckets + ((element - level.first) >> level.shift)];
  }

  /// Adds buckets for the elements from `first` to the one before `end`, in which the segments from
  /// `segment` to the one before `endSegment` begin; the first of these may begin earlier.
  void AddLevel(unsigned first, unsigned end, std::size_t segment, std::size_t endSegment) {
    const unsigned widest = (end - first - 1) / static_cast<unsigned>(endSegment - segment) / 2;
    const int shift = static_cast<int>(std::bit_width(widest));
    const std::size_t buckets = m_buckets.size();
    m_levels.push_back({first, shift, buckets});
    m_buckets.resize(buckets + ((end - first - 1) >> shift) + 1);
    for (std::size_t bucket = buckets; first < end; ++bucket) {
      const unsigned next = first + std::min(end - first, 1U << shift);
      while (m_segments[segment + 1].first <= first) {
        ++segment;
      }
      std::size_t last = segment + 1;
      while (m_segments[last].first < next) {
        ++last;
      }
      m_buckets[bucket] = static_cast<int>(segment);
      if (last - segment > kCrowd) {
        m_buckets[bucket] = ~static_cast<int>(m_levels.size());
        AddLevel(first, next, segment, last);
      }
      first = next;
    }
  }

  std::vector<Segment> m_segments;
  std::vector<Level> m_levels;
  std::vector<int> m_buckets;  ///< the segment of the first element, or the complement of a level
  unsigned m_end = 0;
};

/// The lengths of all ranges before each component, and of all at last.
std::vector<unsigned> AddUpRanges(Components components) {
  std::vector<unsigned> sums(1);
  for (const CDspAsmComp& component : components) {
    sums.push_back(sums.back() + Wrapping(component.m_nLastElem) -
                   Wrapping(component.m_nFirstElem) + 1U);
  }
  return sums;
}

// ---------------------------------------------------------------------------------------------
// Bodies and names

KeyTable FindBodies(Components components) {
  KeyTable bodies;
  for (std::size_t place = 0; place < components.size(); ++place) {
    bodies.FindOrAdd(Wrapping(components[place].m_nBodyID), static_cast<int>(place),
                     [](int) { return true; });
  }
  return bodies;
}

TextTable FindNames(Components components) {
  TextTable names;
  for (const CDspAsmComp& component : components) {
    names.FindOrAdd(component.m_strCompName.View());
  }
  return names;
}

/// The components of each name, whatever its letter case.
class NameGroups {
 public:
  explicit NameGroups(Components components) {
    std::vector<int> groupOf;
    std::basic_string<mqChar> folded;
    for (const CDspAsmComp& component : components) {
      FoldText(component.m_strCompName.View(), folded);
      groupOf.push_back(m_names.FindOrAdd(folded));
    }
    m_starts.resize(Place(m_names.GetSize()) + 1);
    for (const int group : groupOf) {
      ++m_starts[Place(group) + 1];
    }
    std::partial_sum(m_starts.begin(), m_starts.end(), m_starts.begin());
    m_members.resize(components.size());
    std::vector<std::size_t> next = m_starts;
    for (std::size_t place = 0; place < components.size(); ++place) {
      m_members[next[Place(groupOf[place])]++] = static_cast<int>(place);
    }
  }

  [[nodiscard]] std::span<const int> Find(const CString& name) const {
    std::basic_string<mqChar> folded;
    FoldText(name.View(), folded);
    const int group = m_names.Find(folded);
    if (group == KeyTable::kNone) {
      return {};
    }
    const std::size_t start = m_starts[Place(group)];
    return std::span(m_members).subspan(start, m_starts[Place(group) + 1] - start);
  }

 private:
  TextTable m_names;                  ///< folded
  std::vector<int> m_members;         ///< indices, group by group
  std::vector<std::size_t> m_starts;  ///< of the groups, and the end of the last one
};

}  // namespace

class AsmCompSnapshot {
 public:
  explicit AsmCompSnapshot(Components components)
      : finder(MakeSegments(components)),
        rangeSums(AddUpRanges(components)),
        bodies(FindBodies(components)),
        names(FindNames(components)),
        groups(components) {}

  SegmentFinder finder;
  std::vector<unsigned> rangeSums;
  KeyTable bodies;
  TextTable names;
  NameGroups groups;
};

}  // namespace mqp

CDspAsmCompIndex::CDspAsmCompIndex(const CDspAsmCompList& list)
    : m_snapshot(std::make_shared<mqp::AsmCompSnapshot>(
          mqp::Components(list.m_arrComps.GetData(), mqp::Place(list.GetSize())))) {}
CDspAsmCompIndex::CDspAsmCompIndex(const CDspAsmCompIndex&) noexcept = default;
CDspAsmCompIndex& CDspAsmCompIndex::operator=(const CDspAsmCompIndex&) noexcept = default;
CDspAsmCompIndex::~CDspAsmCompIndex() = default;

int CDspAsmCompIndex::GetSize() const noexcept {
  return static_cast<int>(m_snapshot->rangeSums.size()) - 1;
}

int CDspAsmCompIndex::GetVisPartIndex_1based(int elem, int* index) const noexcept {
  const mqp::Segment* segment = m_snapshot->finder.Find(mqp::Wrapping(elem));
  if (segment == nullptr || !segment->isHeld) {
    return 0;
  }
  *index = static_cast<int>(segment->toVisible + mqp::Wrapping(elem));
  return 1;
}

int CDspAsmCompIndex::GetActiveElemIndex(int compIndex, int base) const noexcept {
  if (compIndex < 0 || compIndex >= GetSize()) {
    return 1;  // whatever the base
  }
  return static_cast<int>(mqp::Wrapping(base) + m_snapshot->rangeSums[mqp::Place(compIndex)]);
}

int CDspAsmCompIndex::GetIndexByBodyID(long bodyId) const noexcept {
  if (!std::in_range<int>(bodyId)) {  // where `long` is wider
    return mqp::KeyTable::kNone;
  }
  return m_snapshot->bodies.Find(static_cast<std::uint32_t>(bodyId), [](int) { return true; });
}

void CDspAsmCompIndex::GetBodyListByPartName(std::vector<int>* out, const CString& name) const {
  const std::span<const int> found = m_snapshot->groups.Find(name);
  out->insert(out->end(), found.begin(), found.end());
}

int CDspAsmCompIndex::IsComponentExistByName(const CString& name) const noexcept {
  return m_snapshot->names.Find(name.View()) == mqp::KeyTable::kNone ? 0 : 1;
}
