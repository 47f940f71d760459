#include "curve_data.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

#include "session.h"
#include "text.h"
#include "text_file.h"

namespace mqp::tool {
namespace {

constexpr std::string_view kBlanks = " \t\r";
constexpr std::array kColumnNames = {"temperature", "value"};

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  return first == std::string_view::npos
             ? std::string_view()
             : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// The place of a character that does not stand in quotes, or `npos`.
std::size_t FindUnquoted(std::string_view text, char wanted) {
  bool isQuoted = false;
  for (std::size_t index = 0; index < text.size(); ++index) {
    isQuoted = isQuoted != (text[index] == '"');
    if (!isQuoted && text[index] == wanted) {
      return index;
    }
  }
  return std::string_view::npos;
}

std::string Unquote(std::string_view field) {
  if (field.size() < 2 || !field.starts_with('"') || !field.ends_with('"')) {
    return std::string(field);
  }
  std::string text;
  for (std::size_t index = 1; index + 1 < field.size(); ++index) {
    text += field[index];
    index += field.substr(index, 2) == "\"\"" ? 1U : 0U;
  }
  return text;
}

/// The fields of a line. A tab divides before a semicolon, and that before a comma: the weaker
/// ones may belong to a title.
std::vector<std::string> Divide(std::string_view line) {
  constexpr std::string_view kSeparators = "\t;,";
  const auto separator = std::ranges::find_if(
      kSeparators, [line](char one) { return FindUnquoted(line, one) != std::string_view::npos; });
  std::vector<std::string> fields;
  std::size_t end = std::string_view::npos;
  do {
    end = separator == kSeparators.end() ? std::string_view::npos : FindUnquoted(line, *separator);
    fields.push_back(Unquote(Trim(line.substr(0, end))));
    line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
  } while (end != std::string_view::npos);
  return fields;
}

/// Whether a field can be the title of a column. What begins like a number is a mistyped one.
bool IsTitle(const std::string& field) {
  double number = 0.0;
  const bool isNumber = std::from_chars(field.data(), field.data() + field.size(), number).ptr ==
                        field.data() + field.size();
  return !isNumber && field.find_first_of("+-.0123456789") != 0;
}

class Reader {
 public:
  explicit Reader(const std::string& file) { m_data.file = file; }

  void Read(std::string_view line) {
    ++m_line;
    line = Trim(line);
    if (line.empty() || line.starts_with('#')) {
      return;
    }
    const std::vector<std::string> fields = Divide(line);
    if (fields.size() != kColumnNames.size()) {
      Fail({}, std::string(fields.size() == 1 ? "There is one column" : "There are ") +
                   (fields.size() == 1 ? "" : std::to_string(fields.size()) + " columns") +
                   ", and two are needed: a temperature and its value, divided by a comma, a "
                   "semicolon or a tab.");
    }
    if (!m_isBegun && IsTitle(fields[0]) && IsTitle(fields[1])) {
      m_data.temperatureTitle = fields[0];
      m_data.valueTitle = fields[1];
    } else {
      AddPoint(fields);
    }
    m_isBegun = true;
  }

  CurveData Finish() {
    if (m_data.lines.empty()) {
      throw Problem(ExitCode::Damaged, Printable(m_data.file) +
                                           ": The file has no points. Write a line for each, a "
                                           "temperature and its value, as in 20,2.1e11.");
    }
    m_data.curve.m_nPoints = static_cast<int>(m_data.lines.size());
    return m_data;
  }

 private:
  [[noreturn]] void Fail(const std::string& place, const std::string& sentences) const {
    throw Problem(ExitCode::Damaged, Printable(m_data.file) + " > line " + std::to_string(m_line) +
                                         place + ": " + sentences);
  }

  [[nodiscard]] double ReadNumber(const std::vector<std::string>& fields,
                                  std::size_t column) const {
    const std::string& field = fields[column];
    const std::optional<double> number = ParseNumber(field);
    if (!number) {
      Fail(" > column " + std::to_string(column + 1) + " (" + kColumnNames[column] + ")",
           field.empty() ? std::string("The number is missing. Write it, or take the line out.")
                         : Quoted(field) +
                               " is not a number of double precision. Write it with a decimal "
                               "point and without its unit, as in 20.5 or 2.1e11.");
    }
    return *number;
  }

  void AddPoint(const std::vector<std::string>& fields) {
    m_data.curve.m_vecX.push_back(ReadNumber(fields, 0));
    m_data.curve.m_vecY.push_back(ReadNumber(fields, 1));
    m_data.lines.push_back(m_line);
  }

  CurveData m_data;
  int m_line = 0;
  bool m_isBegun = false;
};

}  // namespace

CurveData ReadCurve(const std::string& file) {
  const std::string text = ReadTextFile(file);
  Reader reader(file);
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    reader.Read(std::string_view(text).substr(begin, end - begin));
    begin = end + 1;
  }
  return reader.Finish();
}

CurveAnswer AskCurve(const CmqTemperatureCurve& curve, double temperature) {
  const std::vector<double>& x = curve.m_vecX;
  const std::size_t last = x.size() - 1;
  const double value = curve.GetYValueAt(temperature);
  const auto answer = [&](CurvePlace place, std::size_t low, std::size_t high) {
    return CurveAnswer{temperature, value, place, low, high};
  };
  // The ends are asked before the points, as the curve itself does: it matters where the file
  // holds a temperature twice or is out of order.
  if (temperature <= x.front() || last == 0) {
    const CurvePlace flat = temperature < x.front() ? CurvePlace::FlatBelow : CurvePlace::FlatAbove;
    return answer(temperature == x.front() ? CurvePlace::Point : flat, 0, 0);
  }
  if (temperature >= x.back()) {
    return answer(temperature == x.back() ? CurvePlace::Point : CurvePlace::FlatAbove, last, last);
  }
  if (const auto exact = std::ranges::find(x, temperature); exact != x.end()) {
    const auto point = static_cast<std::size_t>(exact - x.begin());
    return answer(CurvePlace::Point, point, point);
  }
  const auto above = std::ranges::find_if(x, [=](double other) { return temperature < other; });
  const auto high = static_cast<std::size_t>(above - x.begin());
  return answer(CurvePlace::Between, high - 1, high);
}

std::string ShowPlace(const CmqTemperatureCurve& curve, const CurveAnswer& answer) {
  const std::string low = ShowNumber(curve.m_vecX[answer.low]);
  switch (answer.place) {
    case CurvePlace::Point: return "point";
    case CurvePlace::Between:
      return "between " + low + " and " + ShowNumber(curve.m_vecX[answer.high]);
    case CurvePlace::FlatBelow: return "flat below " + low;
    case CurvePlace::FlatAbove: break;
  }
  return "flat above " + low;
}

std::string ShowValue(const CurveAnswer& answer) {
  return std::isnan(answer.value) ? "nan" : ShowNumber(answer.value);
}

std::optional<double> ParseNumber(std::string_view word) {
  if (word.starts_with('+') && !word.starts_with("+-")) {
    word.remove_prefix(1);
  }
  double number = 0.0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  const bool isNumber =
      error == std::errc() && end == word.data() + word.size() && std::isfinite(number);
  return isNumber ? std::optional(number) : std::nullopt;
}

}  // namespace mqp::tool
