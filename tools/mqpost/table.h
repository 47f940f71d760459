/// \file
/// Tables and lists of facts, laid out for the width of the terminal.
#pragma once

#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

#include "session.h"

namespace mqp::tool {

enum class Align { Left, Right };

struct Column {
  std::string title;
  Align align = Align::Left;
  int dropOrder = 0;   ///< 0: always shown; otherwise the highest goes first where room is short
  int leastWidth = 0;  ///< above 0: cells are wrapped down to this width before a column goes
};

class Table {
 public:
  explicit Table(std::vector<Column> columns) : m_columns(std::move(columns)) {}

  /// A row has a cell for every column.
  void Add(std::vector<std::string> cells, bool isEmphasized = false) {
    m_rows.push_back({std::move(cells), isEmphasized});
  }

  /// Prints to the standard output of the session. Piped output has no limit of its width.
  /// Columns without room are named in a note on its error output.
  void Print(Session& session) const;

 private:
  struct Row {
    std::vector<std::string> cells;
    bool isEmphasized;
  };

  [[nodiscard]] int NaturalWidth(std::size_t column) const;

  std::vector<Column> m_columns;
  std::vector<Row> m_rows;
};

/// A label and what is to be said about it.
using Fact = std::pair<std::string, std::string>;

/// Prints facts below one another, their texts aligned and wrapped.
void PrintFacts(Session& session, const std::vector<Fact>& facts);

void PrintHeading(Session& session, const std::string& text);

}  // namespace mqp::tool
