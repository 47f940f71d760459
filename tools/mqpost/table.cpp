#include "table.h"

#include <algorithm>
#include <numeric>
#include <ostream>

#include "text.h"

namespace mqp::tool {
namespace {

constexpr int kGap = 2;
constexpr int kNarrowest = 8;  ///< of a wrapped cell on a terminal that is too small for anything

std::string Emphasized(const Session& session, const std::string& text) {
  const bool isColored = session.environment.isTerminal && !session.environment.isColorless;
  return isColored && !text.empty() ? "\x1B[1m" + text + "\x1B[0m" : text;
}

int WidthOf(const Session& session) {
  const Environment& environment = session.environment;
  return environment.isTerminal ? environment.width : 0;
}

/// A column that is shown, and how wide.
struct Place {
  std::size_t column;
  int width;
};

int TotalWidth(const std::vector<Place>& places) {
  return std::accumulate(places.begin(), places.end(), -kGap,
                         [](int sum, const Place& place) { return sum + place.width + kGap; });
}

std::string Pad(const std::string& text, int width, Align align) {
  const std::string blanks(static_cast<std::size_t>(std::max(0, width - CountColumns(text))), ' ');
  return align == Align::Left ? text + blanks : blanks + text;
}

/// Takes the columns off the widest wrapping place until the row fits or each has its least width.
void Shrink(const std::vector<Column>& columns, std::vector<Place>& places, int width) {
  for (int excess = TotalWidth(places) - width; excess > 0; --excess) {
    Place* widest = nullptr;
    for (Place& place : places) {
      const int least = columns[place.column].leastWidth;
      if (least > 0 && place.width > least && (widest == nullptr || place.width > widest->width)) {
        widest = &place;
      }
    }
    if (widest == nullptr) {
      return;
    }
    --widest->width;
  }
}

/// Leaves out what has no room; answers the titles of those columns.
std::vector<std::string> Fit(std::vector<Column> columns, std::vector<Place>& places, int width) {
  std::vector<std::string> dropped;
  while (true) {
    std::vector<Place> shrunk = places;
    Shrink(columns, shrunk, width);
    const auto next = std::ranges::max_element(
        places, {}, [&columns](const Place& place) { return columns[place.column].dropOrder; });
    if (TotalWidth(shrunk) <= width) {
      places = shrunk;
      return dropped;
    }
    if (columns[next->column].dropOrder == 0) {
      break;
    }
    dropped.push_back(columns[next->column].title);
    places.erase(next);
  }
  for (Column& column : columns) {
    column.leastWidth = std::min(column.leastWidth, kNarrowest);
  }
  Shrink(columns, places, width);
  return dropped;
}

void PrintLine(Session& session, std::string line, bool isEmphasized) {
  line.erase(line.find_last_not_of(' ') + 1);
  session.out << (isEmphasized ? Emphasized(session, line) : line) << '\n';
}

/// Prints the cells of one row, in as many lines as the longest cell takes.
void PrintCells(Session& session, const std::vector<Column>& columns,
                const std::vector<Place>& places, const std::vector<std::string>& cells,
                bool isEmphasized) {
  std::vector<std::vector<std::string>> wrapped;
  std::size_t lines = 1;
  for (const Place& place : places) {
    wrapped.push_back(Wrap(cells[place.column], place.width));
    lines = std::max(lines, wrapped.back().size());
  }
  for (std::size_t line = 0; line < lines; ++line) {
    std::string text;
    for (std::size_t index = 0; index < places.size(); ++index) {
      const std::string cell = line < wrapped[index].size() ? wrapped[index][line] : std::string();
      text += Pad(cell, places[index].width, columns[places[index].column].align) +
              std::string(kGap, ' ');
    }
    PrintLine(session, text, isEmphasized);
  }
}

}  // namespace

int Table::NaturalWidth(std::size_t column) const {
  int width = CountColumns(m_columns[column].title);
  for (const Row& row : m_rows) {
    width = std::max(width, CountColumns(row.cells[column]));
  }
  return width;
}

void Table::Print(Session& session) const {
  std::vector<Place> places;
  std::vector<std::string> titles;
  for (std::size_t column = 0; column < m_columns.size(); ++column) {
    places.push_back({column, NaturalWidth(column)});
    titles.push_back(m_columns[column].title);
  }
  const int width = WidthOf(session);
  const std::vector<std::string> dropped =
      width > 0 ? Fit(m_columns, places, width) : std::vector<std::string>();
  std::vector<std::string> rules(m_columns.size());
  for (const Place& place : places) {
    rules[place.column] = std::string(static_cast<std::size_t>(place.width), '-');
  }
  PrintCells(session, m_columns, places, titles, true);
  PrintCells(session, m_columns, places, rules, false);
  for (const Row& row : m_rows) {
    PrintCells(session, m_columns, places, row.cells, row.isEmphasized);
  }
  if (!dropped.empty()) {
    session.err << "note: no room for " << Join(dropped, ", ")
                << "; widen the terminal, pipe the output or use --json\n";
  }
}

void PrintFacts(Session& session, const std::vector<Fact>& facts) {
  int label = 0;
  for (const Fact& fact : facts) {
    label = std::max(label, CountColumns(fact.first));
  }
  const int width = WidthOf(session);
  for (const Fact& fact : facts) {
    std::string begin = Pad(fact.first, label, Align::Left) + "  ";
    const int room = width == 0 ? CountColumns(fact.second) : std::max(20, width - label - kGap);
    for (const std::string& line : Wrap(fact.second, room)) {
      PrintLine(session, begin + line, false);
      begin = std::string(static_cast<std::size_t>(label + kGap), ' ');
    }
  }
}

void PrintHeading(Session& session, const std::string& text) {
  session.out << Emphasized(session, text) << '\n';
}

}  // namespace mqp::tool
