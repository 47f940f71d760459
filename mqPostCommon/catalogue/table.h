// How the catalogue's tables are written down (rows) and asked (index).
//
// Rows say for which studies, results and components a value holds, and under which condition.
// The index is made of them at compile time: a dense grid of study x result, whose cells point to
// a list of values by component. A query is two clamped codes, a load of the cell and a load of
// the value.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <span>
#include <type_traits>
#include <vector>

#include <mqPostCommon/catalogue/codes.h>

namespace mqp {

// ---------------------------------------------------------------------------------------------
// Sets of codes

/// A set of the integers 0 to 127.
class CodeSet {
 public:
  constexpr CodeSet() = default;
  constexpr CodeSet(std::initializer_list<int> codes) {
    for (const int code : codes) {
      Add(code);
    }
  }
  static constexpr CodeSet Range(int first, int last) {
    CodeSet set;
    for (int code = first; code <= last; ++code) {
      set.Add(code);
    }
    return set;
  }
  [[nodiscard]] constexpr bool Has(int code) const {
    return ((m_words[Word(code)] >> (code & 63)) & 1U) != 0;
  }
  [[nodiscard]] constexpr bool Intersects(const CodeSet& other) const {
    return (m_words[0] & other.m_words[0]) != 0 || (m_words[1] & other.m_words[1]) != 0;
  }
  /// The smallest member; 128 for an empty set.
  [[nodiscard]] constexpr int Lowest() const {
    return m_words[0] != 0 ? std::countr_zero(m_words[0]) : 64 + std::countr_zero(m_words[1]);
  }
  /// One more than the largest member; 0 for an empty set.
  [[nodiscard]] constexpr int End() const {
    return m_words[1] != 0 ? 128 - std::countl_zero(m_words[1]) : 64 - std::countl_zero(m_words[0]);
  }
  friend constexpr CodeSet operator|(CodeSet left, const CodeSet& right) {
    left.m_words[0] |= right.m_words[0];
    left.m_words[1] |= right.m_words[1];
    return left;
  }

 private:
  static constexpr std::size_t Word(int code) { return static_cast<std::size_t>(code) / 64; }
  constexpr void Add(int code) { m_words[Word(code)] |= std::uint64_t{1} << (code & 63); }

  std::array<std::uint64_t, 2> m_words{};
};

/// A code of a study or a result as a place in a dense grid. Negative codes and those behind the
/// last known one share one place.
inline constexpr int kStudySlots = 12;
inline constexpr int kUnknownStudySlot = kStudySlots - 1;
inline constexpr int kResultSlots = 73;
inline constexpr int kUnknownResultSlot = kResultSlots - 1;
inline constexpr std::size_t kCells = std::size_t{kStudySlots} * kResultSlots;

constexpr std::size_t StudySlot(int analysisType) noexcept {
  return std::min<std::size_t>(static_cast<unsigned>(analysisType), kUnknownStudySlot);
}
constexpr std::size_t ResultSlot(int resultType) noexcept {
  return std::min<std::size_t>(static_cast<unsigned>(resultType), kUnknownResultSlot);
}
constexpr std::size_t CellOf(int analysisType, int resultType) noexcept {
  return StudySlot(analysisType) * kResultSlots + ResultSlot(resultType);
}

struct StudySet : CodeSet {
  constexpr StudySet(AnalysisType study) : CodeSet{Code(study)} {}
  constexpr explicit StudySet(const CodeSet& set) : CodeSet(set) {}
};
struct ResultSet : CodeSet {
  constexpr ResultSet(ResultType result) : CodeSet{Code(result)} {}
  constexpr explicit ResultSet(const CodeSet& set) : CodeSet(set) {}
};
constexpr StudySet operator|(StudySet left, StudySet right) {
  return StudySet(static_cast<const CodeSet&>(left) | static_cast<const CodeSet&>(right));
}
constexpr ResultSet operator|(ResultSet left, ResultSet right) {
  return ResultSet(static_cast<const CodeSet&>(left) | static_cast<const CodeSet&>(right));
}
constexpr StudySet operator|(AnalysisType left, AnalysisType right) {
  return StudySet(left) | StudySet(right);
}
constexpr ResultSet operator|(ResultType left, ResultType right) {
  return ResultSet(left) | ResultSet(right);
}

/// The studies that share rules.
inline constexpr StudySet kAnyStudy{CodeSet::Range(0, kStudySlots - 1)};
inline constexpr StudySet kModalStudies = AnalysisType::Frequency | AnalysisType::Buckling;
inline constexpr StudySet kStepStudies = AnalysisType::Stepped | AnalysisType::SteppedReduced;
inline constexpr StudySet kTimeStudies = kStepStudies | AnalysisType::Dynamic;
inline constexpr StudySet kStressStudies = kTimeStudies | AnalysisType::Static;

/// The results that share rules.
inline constexpr ResultSet kAnyResult{CodeSet::Range(0, kResultSlots - 1)};
inline constexpr ResultSet kResultsBelow2{CodeSet{0, 1}};
inline constexpr ResultSet kStrains = ResultType::Strain | ResultType::StrainAlt;
inline constexpr ResultSet kStresses = ResultType::Stress | ResultType::StressAlt;
inline constexpr ResultSet kMotions = ResultType::Velocity | ResultType::Acceleration;

/// Components of a result: listed ones, and whether every other index belongs to them as well.
struct ComponentSet {
  constexpr ComponentSet(std::initializer_list<int> components) : listed(components) {}
  constexpr ComponentSet(const CodeSet& components, bool withOthers = false)
      : listed(components), others(withOthers) {}

  CodeSet listed;
  bool others = false;  ///< every index that no row lists, negative ones included
};

constexpr ComponentSet To(int first, int last) {
  return CodeSet::Range(first, last);
}
constexpr ComponentSet operator|(const ComponentSet& left, const ComponentSet& right) {
  return {left.listed | right.listed, left.others || right.others};
}
inline constexpr ComponentSet kOthers{CodeSet(), true};

// ---------------------------------------------------------------------------------------------
// Conditions

/// Under which condition a row holds. The functions translate their options into these bits.
// clang-format off
enum class When : std::uint16_t {
  Always             = 0,
  Rotational         = 1 << 0,   ///< shell, beam, or a mixed mesh with rotational elements
  AnyMeshButSolid    = 1 << 1,   ///< a mesh kind other than 0, unknown ones included
  BeamMesh           = 1 << 2,
  ExtraStress        = 1 << 3,
  ExtraAndMoreStress = 1 << 4,
  WideDynamicStress  = 1 << 5,   ///< dynamic option 1 and choice 7
  DynamicOption1     = 1 << 6,
  DynamicOption1Or2  = 1 << 7,
  Spectral           = 1 << 8,
  RealModes          = 1 << 9,   ///< the actual-frequency display flag is set
  Alternate          = 1 << 10,  ///< the second list of names, the variant of a look-up
  ForcedDirectional  = 1 << 11,
  StressComponent12  = 1 << 12,
  FatigueVariant     = 1 << 13,
  ChartVariant       = 1 << 14,
};
// clang-format on

/// Without a jump: nobody could guess what is asked for next.
constexpr When If(bool holds, When condition) noexcept {
  return static_cast<When>(static_cast<unsigned>(holds) * static_cast<unsigned>(condition));
}
constexpr When operator|(When left, When right) noexcept {
  return static_cast<When>(static_cast<unsigned>(left) | static_cast<unsigned>(right));
}
constexpr bool Holds(When given, When condition) noexcept {
  return (static_cast<unsigned>(given) & static_cast<unsigned>(condition)) != 0;
}

// ---------------------------------------------------------------------------------------------
// Rows

/// One value for a set of components. Rows with a condition change single components of the plain
/// list.
template <class V>
struct ComponentRow {
  using Value = V;
  static constexpr bool kReplacesList = false;
  StudySet studies;
  ResultSet results;
  When when;
  ComponentSet components;
  V value;

  [[nodiscard]] constexpr int End() const { return components.listed.End(); }
  [[nodiscard]] constexpr bool Lists(int component) const {
    return components.listed.Has(component);
  }
  [[nodiscard]] constexpr V At(int /*component*/) const { return value; }
  [[nodiscard]] constexpr bool HasOthers() const { return components.others; }
  [[nodiscard]] constexpr V Others() const { return value; }
};

/// Values by component, from a first component on.
template <class V>
struct Sequence {
  static constexpr int kCapacity = 16;

  std::array<V, kCapacity> values{};
  int count = 0;
  int first = 0;
  bool hasOthers = false;
  V others{};  ///< the value of every component that is not listed

  [[nodiscard]] constexpr bool Lists(int component) const {
    return component >= first && component < first + count;
  }
  [[nodiscard]] constexpr V At(int component) const {
    return Lists(component) ? values[static_cast<std::size_t>(component - first)] : others;
  }
  friend constexpr Sequence operator+(Sequence left, const Sequence& right) {
    for (int place = 0; place < right.count; ++place) {
      left.values.at(static_cast<std::size_t>(left.count++)) =
          right.values[static_cast<std::size_t>(place)];
    }
    return left;
  }
};

/// A list of values. Rows with a condition replace the plain list as a whole.
template <class V>
struct SequenceRow {
  using Value = V;
  static constexpr bool kReplacesList = true;
  StudySet studies;
  ResultSet results;
  When when;
  Sequence<V> sequence;

  [[nodiscard]] constexpr int End() const {
    return sequence.count == 0 ? 0 : sequence.first + sequence.count;
  }
  [[nodiscard]] constexpr bool Lists(int component) const { return sequence.Lists(component); }
  [[nodiscard]] constexpr V At(int component) const { return sequence.At(component); }
  [[nodiscard]] constexpr bool HasOthers() const { return sequence.hasOthers; }
  [[nodiscard]] constexpr V Others() const { return sequence.others; }
};

/// One value under a condition, whatever the component.
struct ChoiceRow {
  StudySet studies;
  ResultSet results;
  When when;
  std::uint8_t value;
};

// ---------------------------------------------------------------------------------------------
// What must hold of rows. Each check gives the place of the first row that breaks it, so that the
// compiler names the row; kNone when all is well.

inline constexpr int kNone = -1;

/// Rows stand in order of their first study, then of their first result.
template <class Rows>
constexpr int FirstUnsorted(const Rows& rows) {
  for (std::size_t place = 1; place < rows.size(); ++place) {
    const auto& before = rows[place - 1];
    const auto& row = rows[place];
    const int step = row.studies.Lowest() - before.studies.Lowest();
    if (step < 0 || (step == 0 && row.results.Lowest() < before.results.Lowest())) {
      return static_cast<int>(place);
    }
  }
  return kNone;
}

/// Rows with a key of their own stand in order of it, none twice.
template <class Rows, class Key>
constexpr int FirstUnsorted(const Rows& rows, Key key) {
  for (std::size_t place = 1; place < rows.size(); ++place) {
    if (rows[place].*key <= rows[place - 1].*key) {
      return static_cast<int>(place);
    }
  }
  return kNone;
}

/// Each row stands at the place of its code.
template <class Rows, class Key>
constexpr int FirstOutOfPlace(const Rows& rows, Key key) {
  for (std::size_t place = 0; place < rows.size(); ++place) {
    if (Code(rows[place].*key) != static_cast<int>(place)) {
      return static_cast<int>(place);
    }
  }
  return kNone;
}

template <class Row>
constexpr bool Collide(const Row& left, const Row& right) {
  if (left.when != right.when || !left.studies.Intersects(right.studies) ||
      !left.results.Intersects(right.results)) {
    return false;
  }
  if constexpr (requires { left.HasOthers(); }) {
    if (left.HasOthers() && right.HasOthers()) {
      return true;
    }
    for (int component = 0; component < std::min(left.End(), right.End()); ++component) {
      if (left.Lists(component) && right.Lists(component)) {
        return true;
      }
    }
    return false;
  } else {
    return true;
  }
}

/// No two rows answer the same question.
template <class Rows>
constexpr int FirstRepeated(const Rows& rows) {
  for (std::size_t place = 0; place < rows.size(); ++place) {
    for (std::size_t before = 0; before < place; ++before) {
      if (Collide(rows[before], rows[place])) {
        return static_cast<int>(place);
      }
    }
  }
  return kNone;
}

// ---------------------------------------------------------------------------------------------
// Index

/// Where a cell's values lie: `count` of them, and behind them one for every other component.
struct ValueList {
  std::uint16_t first;
  std::uint16_t count;
};

struct Cell {
  std::array<ValueList, 2> lists;  ///< the plain one, and what is taken while the condition holds
  When condition;
};

template <class V, std::size_t Size>
struct ComponentIndex {
  std::array<Cell, kCells> cells;
  std::array<V, Size> values;

  [[nodiscard]] constexpr ValueList ListOf(int analysisType, int resultType,
                                           When given) const noexcept {
    const Cell& cell = cells[CellOf(analysisType, resultType)];
    // Without a jump: nobody could guess whether the condition holds.
    return cell.lists[static_cast<std::size_t>(Holds(given, cell.condition))];
  }
  /// The value of a component; a negative one counts as beyond the list.
  [[nodiscard]] constexpr const V& At(int analysisType, int resultType, When given,
                                      int component) const noexcept {
    const ValueList list = ListOf(analysisType, resultType, given);
    return values[list.first + std::min<std::size_t>(static_cast<unsigned>(component), list.count)];
  }
  /// The listed values in order.
  [[nodiscard]] constexpr std::span<const V> Listed(int analysisType, int resultType,
                                                    When given) const noexcept {
    const ValueList list = ListOf(analysisType, resultType, given);
    return std::span(values).subspan(list.first, list.count);
  }
};

/// Collects the lists of an index while it is built; equal lists are kept once.
template <class V>
class ListPool {
 public:
  constexpr ValueList Keep(const std::vector<V>& list) {
    const auto count = static_cast<std::uint16_t>(list.size() - 1);
    for (const ValueList& kept : m_lists) {
      if (kept.count == count &&
          std::equal(list.begin(), list.end(), m_values.begin() + kept.first)) {
        return kept;
      }
    }
    m_lists.push_back({static_cast<std::uint16_t>(m_values.size()), count});
    m_values.insert(m_values.end(), list.begin(), list.end());
    return m_lists.back();
  }
  [[nodiscard]] constexpr const std::vector<V>& Values() const { return m_values; }

 private:
  std::vector<ValueList> m_lists;
  std::vector<V> m_values;
};

/// The values of one cell under one condition, for each component that of the first row that knows
/// it. Rows with the condition go before those without one, or replace them.
template <class Row>
constexpr std::vector<typename Row::Value> MergeRows(const std::vector<const Row*>& rows,
                                                     When condition, typename Row::Value nothing) {
  std::vector<const Row*> merging;
  for (const When pass : {condition, When::Always}) {
    if constexpr (Row::kReplacesList) {
      if (pass == When::Always && !merging.empty()) {
        break;
      }
    }
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(merging),
                 [pass](const Row* row) { return row->when == pass; });
  }
  int end = 0;
  for (const Row* row : merging) {
    end = std::max(end, row->End());
  }
  std::vector<typename Row::Value> list;
  for (int component = 0; component <= end; ++component) {
    const auto lists = [component](const Row* row) {
      return component < row->End() && row->Lists(component);
    };
    const auto listing = std::find_if(merging.begin(), merging.end(), lists);
    const auto others = std::find_if(merging.begin(), merging.end(),
                                     [](const Row* row) { return row->HasOthers(); });
    list.push_back(listing != merging.end()  ? (*listing)->At(component)
                   : others != merging.end() ? (*others)->Others()
                                             : nothing);
  }
  return list;
}

/// Calls `visit` with every cell that a row covers.
template <class Row, class Visit>
constexpr void ForEachCell(const Row& row, Visit visit) {
  for (int study = row.studies.Lowest(); study < row.studies.End(); ++study) {
    for (int result = row.results.Lowest(); result < row.results.End(); ++result) {
      if (row.studies.Has(study) && row.results.Has(result)) {
        visit(static_cast<std::size_t>(study) * kResultSlots + static_cast<std::size_t>(result));
      }
    }
  }
}

template <class V>
struct BuiltIndex {
  std::array<Cell, kCells> cells{};
  std::vector<V> values;
};

/// Lays out the rows of all groups: of the groups that cover a cell the first owns it. A cell has
/// at most one condition.
template <class Row, std::size_t... Sizes>
constexpr BuiltIndex<typename Row::Value> BuildIndex(typename Row::Value nothing,
                                                     const std::array<Row, Sizes>&... groups) {
  std::vector<std::vector<const Row*>> covering(kCells);
  std::vector<const Row*> owners(kCells, nullptr);
  const auto cover = [&](const auto& group) {
    for (const Row& row : group) {
      ForEachCell(row, [&](std::size_t cell) {
        if (owners[cell] == nullptr) {
          owners[cell] = group.data();
        }
        if (owners[cell] == group.data()) {
          covering[cell].push_back(&row);
        }
      });
    }
  };
  (cover(groups), ...);

  BuiltIndex<typename Row::Value> built;
  ListPool<typename Row::Value> pool;
  const ValueList nothingList = pool.Keep({nothing});
  for (std::size_t cell = 0; cell < kCells; ++cell) {
    if (covering[cell].empty()) {
      built.cells[cell] = {{nothingList, nothingList}, When::Always};
      continue;
    }
    if (cell > 0 && std::ranges::equal(covering[cell], covering[cell - 1],
                                       [](auto* left, auto* right) { return left == right; })) {
      built.cells[cell] = built.cells[cell - 1];
      continue;
    }
    When condition = When::Always;
    for (const Row* row : covering[cell]) {
      if (row->when != When::Always && condition != When::Always && row->when != condition) {
        throw "a cell has two conditions";  // stops the compilation
      }
      condition = condition | row->when;
    }
    const ValueList plain = pool.Keep(MergeRows(covering[cell], When::Always, nothing));
    const ValueList special = condition == When::Always
                                  ? plain
                                  : pool.Keep(MergeRows(covering[cell], condition, nothing));
    built.cells[cell] = {{plain, special}, condition};
  }
  built.values = pool.Values();
  return built;
}

/// The index of one or several groups of rows; what no row covers has the value `Nothing`.
template <auto Nothing, const auto&... Groups>
consteval auto MakeIndex() {
  constexpr std::size_t kSize = BuildIndex(Nothing, Groups...).values.size();
  const auto built = BuildIndex(Nothing, Groups...);
  ComponentIndex<std::remove_const_t<decltype(Nothing)>, kSize> index{};
  index.cells = built.cells;
  std::ranges::copy(built.values, index.values.begin());
  return index;
}

/// Of the rows of one cell, in their order, the first whose condition holds.
struct Choice {
  std::array<When, 2> conditions;
  std::array<std::uint8_t, 4> values;  ///< while none holds, the first, the second, both

  [[nodiscard]] constexpr int Pick(When given) const noexcept {
    const auto first = static_cast<std::size_t>(Holds(given, conditions[0]));
    const auto second = static_cast<std::size_t>(Holds(given, conditions[1]));
    return values[first + 2 * second];
  }
};

using ChoiceIndex = std::array<Choice, kCells>;

template <const auto& Rows>
consteval ChoiceIndex MakeChoices() {
  ChoiceIndex index{};
  std::array<std::size_t, kCells> conditions{};
  for (const ChoiceRow& row : Rows) {
    ForEachCell(row, [&](std::size_t cell) {
      Choice& choice = index[cell];
      if (row.when == When::Always) {
        choice.values[0] = row.value;
        return;
      }
      const std::size_t place = conditions[cell]++;
      choice.conditions.at(place) = row.when;
      choice.values[1 + place] = row.value;
      choice.values[3] = place == 0 ? row.value : choice.values[3];
    });
  }
  return index;
}

}  // namespace mqp
