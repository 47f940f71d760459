/// \file
/// The stream records as plain structures, which the peers serialise. `serialize` lists the fields
/// in the order of the stream.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace mqp::bench {

struct PlainGraph {
  std::array<int, 17> heading{};  ///< from the analysis type to the axes
  std::array<std::u16string, 3> titles;
  std::array<int, 24> options{};
  int beforeText = 0;
  std::u16string text;
  std::array<double, 16> matrix{};
  std::array<int, 3> behindMatrix{};
  int beforePair = 0;
  std::array<double, 2> pair{};
  std::array<int, 2> behindPair{};
  int behindUnitFlag = 0;
  std::array<int, 6> response{};
  double factor = 0.0;
  int last = 0;

  template <class Archive>
  void serialize(Archive& archive) {
    archive & heading & titles & options & beforeText & text & matrix & behindMatrix & beforePair &
        pair & behindPair & behindUnitFlag & response & factor & last;
  }
  bool operator==(const PlainGraph&) const = default;
};

struct PlainVariable {
  std::u16string name;
  int resultType = 0;
  int component = 0;
  double coefficient = 0.0;

  template <class Archive>
  void serialize(Archive& archive) {
    archive & name & resultType & component & coefficient;
  }
  bool operator==(const PlainVariable&) const = default;
};

struct PlainEquation {
  std::u16string equation;
  int flag = 0;
  std::array<std::u16string, 2> texts;
  std::vector<PlainVariable> variables;

  template <class Archive>
  void serialize(Archive& archive) {
    archive & equation & flag & texts & variables;
  }
  bool operator==(const PlainEquation&) const = default;
};

/// A list is read into an empty one.
inline void EmptyLists(PlainGraph& /*record*/) {}
inline void EmptyLists(PlainEquation& record) {
  record.variables.clear();
}

}  // namespace mqp::bench
