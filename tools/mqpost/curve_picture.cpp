#include "curve_picture.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "text.h"

namespace mqp::tool {
namespace {

// Lengths are pixels, y grows downwards.
constexpr double kWidth = 800;
constexpr double kPlotHeight = 340;
constexpr double kRight = 770;
constexpr double kTitleHeight = 58;
constexpr double kBadge = 20;  ///< a number and the gap beside it
constexpr double kLine = 22;
constexpr double kDigit = 7.5;  ///< of a tick label, at most

// Numbers that are labelled as they are, without a power of ten.
constexpr double kPlainFrom = 1e-2;
constexpr double kPlainBelow = 1e5;

constexpr std::string_view kStyle = R"(<style>
  text { font-family: "Segoe UI", "DejaVu Sans", Arial, sans-serif; font-size: 13px; fill: #1f2937 }
  .title { font-size: 17px; font-weight: 600 }
  .tick { font-size: 12px; fill: #4b5563 }
  .badge { font-size: 11px; font-weight: 600; fill: #ffffff; text-anchor: middle }
  .middle { text-anchor: middle }
  .end { text-anchor: end }
  .grid { stroke: #e5e7eb }
  .frame { fill: none; stroke: #9ca3af }
  .curve { fill: none; stroke: #1d4ed8; stroke-width: 2; stroke-linejoin: round }
  .flat { fill: none; stroke: #1d4ed8; stroke-width: 2; stroke-dasharray: 6 4 }
  .point { fill: #1d4ed8; stroke: #ffffff }
  .asked { stroke: #c2410c; stroke-dasharray: 2 3 }
  .answer { fill: #ffffff; stroke: #c2410c; stroke-width: 2 }
  .number { fill: #c2410c; stroke: #ffffff }
</style>
)";

std::string Fixed(double value, int decimals) {
  std::array<char, 64> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                 std::chars_format::fixed, decimals)
                       .ptr;
  return {digits.data(), end};
}

/// The value in as many digits as somebody compares in a picture.
std::string Rounded(const CurveAnswer& answer) {
  constexpr int kDigits = 6;
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), answer.value,
                                 std::chars_format::general, kDigits)
                       .ptr;
  return std::isfinite(answer.value) ? std::string(digits.data(), end) : ShowValue(answer);
}

std::string Px(double length) {
  return Fixed(length, 1);
}

/// Text for a document of XML, which has no control characters, stray surrogates or
/// noncharacters, written or spelled out.
std::string Xml(const std::string& utf8) {
  std::string text;
  for (const char unit : Printable(Utf8(Wide(utf8)))) {
    switch (unit) {
      case '&': text += "&amp;"; break;
      case '<': text += "&lt;"; break;
      case '>': text += "&gt;"; break;
      case '"': text += "&quot;"; break;
      default: text += unit;
    }
  }
  for (const std::string_view nonCharacter : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"}) {
    for (std::size_t at = 0; (at = text.find(nonCharacter)) != std::string::npos;) {
      text.replace(at, nonCharacter.size(), "\xEF\xBF\xBD");
    }
  }
  return text;
}

std::string Text(double x, double y, std::string_view style, const std::string& content) {
  return "<text class=\"" + std::string(style) + "\" x=\"" + Px(x) + "\" y=\"" + Px(y) + "\">" +
         Xml(content) + "</text>\n";
}

std::string Line(double x1, double y1, double x2, double y2, std::string_view style) {
  return "<line class=\"" + std::string(style) + "\" x1=\"" + Px(x1) + "\" y1=\"" + Px(y1) +
         "\" x2=\"" + Px(x2) + "\" y2=\"" + Px(y2) + "\"/>\n";
}

/// A circle that tells `hint` under the mouse.
std::string Circle(double x, double y, double radius, std::string_view style,
                   const std::string& hint) {
  return "<circle class=\"" + std::string(style) + "\" cx=\"" + Px(x) + "\" cy=\"" + Px(y) +
         "\" r=\"" + Px(radius) + "\"><title>" + Xml(hint) + "</title></circle>\n";
}

std::string Badge(double x, double y, std::size_t number) {
  constexpr double kRadius = 8.5;
  constexpr double kBaseline = 4;
  const std::string text = std::to_string(number);
  return Circle(x, y, kRadius, "number", text) + Text(x, y + kBaseline, "badge", text);
}

// ---------------------------------------------------------------------------------------------
// Axes

struct Tick {
  double value;  ///< in the power of ten of the axis
  std::string label;
};

/// A range of values, its ticks, and where they lie in the picture. Large and small numbers are
/// divided by a power of a thousand.
class Axis {
 public:
  explicit Axis(std::vector<double> values) {
    std::erase_if(values, [](double value) { return !std::isfinite(value); });
    const auto [least, most] = std::ranges::minmax(values);
    ChoosePower(std::max(std::abs(least), std::abs(most)));
    ChooseRange(Scale(least), Scale(most));
    ChooseTicks();
  }

  void Span(double begin, double end) {
    m_begin = begin;
    m_end = end;
  }
  [[nodiscard]] double Place(double value) const { return PlaceScaled(Scale(value)); }
  [[nodiscard]] double PlaceScaled(double value) const {
    return m_begin + (m_end - m_begin) * ((value - m_low) / (m_high - m_low));
  }
  /// The ends as values; no infinity for ends beyond the largest number.
  [[nodiscard]] double Low() const { return Unscale(m_low); }
  [[nodiscard]] double High() const { return Unscale(m_high); }
  [[nodiscard]] const std::vector<Tick>& Ticks() const { return m_ticks; }
  [[nodiscard]] int Power() const { return m_power; }
  [[nodiscard]] double LabelWidth() const {
    double width = 0;
    for (const Tick& tick : m_ticks) {
      width = std::max(width, kDigit * CountColumns(tick.label));
    }
    return width;
  }

 private:
  [[nodiscard]] double Scale(double value) const { return value / std::pow(10.0, m_power); }
  [[nodiscard]] double Unscale(double value) const {
    constexpr double kLargest = std::numeric_limits<double>::max();
    return std::clamp(value * std::pow(10.0, m_power), -kLargest, kLargest);
  }

  void ChoosePower(double size) {
    constexpr double kNothing = 1e-290;  // whose power of ten would not be a number
    if (size > kNothing && (size < kPlainFrom || size >= kPlainBelow)) {
      m_power = static_cast<int>(std::floor(std::log10(size) / 3)) * 3;
    }
  }

  /// With room at both ends. Values that differ in their last digits alone count as one: labels
  /// cannot tell them apart.
  void ChooseRange(double least, double most) {
    constexpr double kRoom = 0.08;
    constexpr double kSameness = 1e-8;
    const double size = std::max(std::abs(least), std::abs(most));
    const bool isOne = most - least <= kSameness * std::max(size, kPlainFrom);
    const double room = isOne ? (size > kSameness ? 0.1 * size : 1) : kRoom * (most - least);
    m_low = least - room;
    m_high = most + room;
  }

  void ChooseTicks() {
    constexpr double kAbout = 6;
    const double raw = (m_high - m_low) / kAbout;
    int power = static_cast<int>(std::floor(std::log10(raw)));
    const double lead = raw / std::pow(10.0, power);
    const double factor = lead < 1.5 ? 1 : lead < 3.5 ? 2 : lead < 7.5 ? 5 : 10;
    const double step = factor * std::pow(10.0, power);
    power += factor == 10 ? 1 : 0;
    const double first = std::ceil(m_low / step);
    const int count = static_cast<int>(std::floor(m_high / step) - first) + 1;
    for (int place = 0; place < count; ++place) {
      const double index = first + place;
      const std::string digits = Fixed(std::abs(index) * step, std::max(0, -power));
      m_ticks.push_back({index * step, (index < 0 ? "−" : "") + digits});
    }
  }

  double m_low = 0;
  double m_high = 0;
  double m_begin = 0;
  double m_end = 0;
  int m_power = 0;
  std::vector<Tick> m_ticks;
};

std::string PowerLabel(double x, double y, std::string_view style, int power) {
  if (power == 0) {
    return {};
  }
  return "<text class=\"" + std::string(style) + "\" x=\"" + Px(x) + "\" y=\"" + Px(y) +
         "\">×10<tspan dy=\"-5\" font-size=\"9\">" + (power < 0 ? "−" : "") +
         std::to_string(std::abs(power)) + "</tspan></text>\n";
}

std::vector<double> Temperatures(const CurveData& data, std::span<const CurveAnswer> answers) {
  std::vector<double> temperatures = data.curve.m_vecX;
  for (const CurveAnswer& answer : answers) {
    temperatures.push_back(answer.temperature);
  }
  return temperatures;
}

// ---------------------------------------------------------------------------------------------
// The picture

class Picture {
 public:
  Picture(const CurveData& data, std::span<const CurveAnswer> answers)
      : m_data(data),
        m_answers(answers),
        m_x(Temperatures(data, answers)),
        m_y(data.curve.m_vecY),
        m_left(62 + m_y.LabelWidth()),
        m_badgeRows(PlaceBadges()),
        m_top(kTitleHeight + kBadge * m_badgeRows),
        m_bottom(m_top + kPlotHeight) {
    m_x.Span(m_left, kRight);
    m_y.Span(m_bottom, m_top);
  }

  [[nodiscard]] std::string Draw() const {
    const double height =
        m_bottom + 76 + kLine * static_cast<double>(m_answers.size() + (m_answers.empty() ? 0 : 1));
    const std::string name = Utf8(PathOf(m_data.file).filename());
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + Fixed(kWidth, 0) +
                      "\" height=\"" + Fixed(height, 0) + "\" viewBox=\"0 0 " + Fixed(kWidth, 0) +
                      " " + Fixed(height, 0) + "\" role=\"img\">\n<title>" + Xml(name) +
                      "</title>\n";
    svg += kStyle;
    svg += "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
    svg += Text(m_left, 28, "title", Shorten(Printable(name), 60));
    return svg + DrawAxes() + DrawCurve() + DrawPoints() + DrawAnswers() + DrawLegend() +
           "</svg>\n";
  }

 private:
  /// A row for each badge above the plot, so that none lies over another.
  int PlaceBadges() {
    m_x.Span(m_left, kRight);
    std::vector<std::size_t> order(m_answers.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [this](std::size_t index) {
      return std::pair(m_answers[index].temperature, index);
    });
    std::vector<double> ends;  // of each row, the place of its last badge
    m_rows.resize(m_answers.size());
    for (const std::size_t index : order) {
      const double place = m_x.Place(m_answers[index].temperature);
      const auto row =
          std::ranges::find_if(ends, [place](double end) { return place - end >= kBadge; });
      m_rows[index] = static_cast<int>(row - ends.begin());
      if (row == ends.end()) {
        ends.push_back(place);
      } else {
        *row = place;
      }
    }
    return static_cast<int>(ends.size());
  }

  [[nodiscard]] std::string DrawAxes() const {
    std::string svg;
    double free = 0;  // where the next label may begin
    for (const Tick& tick : m_x.Ticks()) {
      const double x = m_x.PlaceScaled(tick.value);
      const double half = kDigit * CountColumns(tick.label) / 2;
      svg += Line(x, m_top, x, m_bottom, "grid");
      if (x - half >= free && x + half <= kWidth) {
        svg += Text(x, m_bottom + 18, "tick middle", tick.label);
        free = x + half + kDigit;
      }
    }
    for (const Tick& tick : m_y.Ticks()) {
      const double y = m_y.PlaceScaled(tick.value);
      svg += Line(m_left, y, kRight, y, "grid") + Text(m_left - 8, y + 4, "tick end", tick.label);
    }
    svg += "<rect class=\"frame\" x=\"" + Px(m_left) + "\" y=\"" + Px(m_top) + "\" width=\"" +
           Px(kRight - m_left) + "\" height=\"" + Px(kPlotHeight) + "\"/>\n";
    svg += PowerLabel(m_left - 8, m_top - 12, "tick end", m_y.Power());
    svg += PowerLabel(kRight, m_bottom + 40, "tick end", m_x.Power());
    svg += Text((m_left + kRight) / 2, m_bottom + 42, "middle",
                Title(m_data.temperatureTitle, "Temperature", 80));
    return svg + "<g transform=\"rotate(-90 24 " + Px((m_top + m_bottom) / 2) + ")\">\n" +
           Text(24, (m_top + m_bottom) / 2, "middle", Title(m_data.valueTitle, "Value", 50)) +
           "</g>\n";
  }

  static std::string Title(const std::string& title, const std::string& otherwise, int columns) {
    return title.empty() ? otherwise : Shorten(Printable(title), columns);
  }

  /// Between two neighbouring temperatures the curve is a straight line, whatever their order in
  /// the file. It is asked just inside its ends: at an end it may jump.
  [[nodiscard]] std::string DrawCurve() const {
    const CmqTemperatureCurve& curve = m_data.curve;
    std::vector<double> ends = curve.m_vecX;
    ends.insert(ends.end(), {m_x.Low(), m_x.High()});
    std::ranges::sort(ends);
    std::string svg;
    std::string path;
    std::string pen;  // where the path has come to
    std::string style;
    const auto finish = [&] {
      svg += path.empty() ? "" : "<path class=\"" + style + "\" d=\"" + path + "\"/>\n";
      path.clear();
    };
    for (std::size_t index = 1; index < ends.size(); ++index) {
      const double low = ends[index - 1];
      const double high = ends[index];
      const bool isFlat = high <= curve.m_vecX.front() || low >= curve.m_vecX.back();
      const std::string begin = PlaceAnswer(low, std::nextafter(low, high));
      const std::string end = PlaceAnswer(high, std::nextafter(high, low));
      if (low == high || begin.empty() || end.empty()) {
        continue;
      }
      if (begin != pen || style != (isFlat ? "flat" : "curve")) {
        finish();
        style = isFlat ? "flat" : "curve";
        path = "M" + begin;
      }
      path += " L" + end;
      pen = end;
    }
    finish();
    return svg;
  }

  /// The point of the picture at a temperature with the value at another one; empty where numbers
  /// are too large for an answer.
  [[nodiscard]] std::string PlaceAnswer(double temperature, double asked) const {
    const double value = m_data.curve.GetYValueAt(asked);
    return std::isfinite(value) ? Px(m_x.Place(temperature)) + " " + Px(m_y.Place(value)) : "";
  }

  [[nodiscard]] std::string DrawPoints() const {
    const CmqTemperatureCurve& curve = m_data.curve;
    const double radius = curve.m_vecX.size() > 60 ? 2 : 4;
    std::string svg;
    for (std::size_t index = 0; index < curve.m_vecX.size(); ++index) {
      svg += Circle(m_x.Place(curve.m_vecX[index]), m_y.Place(curve.m_vecY[index]), radius, "point",
                    ShowNumber(curve.m_vecX[index]) + ": " + ShowNumber(curve.m_vecY[index]));
    }
    return svg;
  }

  [[nodiscard]] std::string DrawAnswers() const {
    std::string lines;
    std::string marks;
    for (std::size_t index = 0; index < m_answers.size(); ++index) {
      const CurveAnswer& answer = m_answers[index];
      const double x = m_x.Place(answer.temperature);
      const double badge = m_top - kBadge * (m_rows[index] + 0.5) - 2;
      lines += Line(x, badge, x, m_bottom, "asked");
      marks += Badge(x, badge, index + 1);
      if (std::isfinite(answer.value)) {
        marks += Circle(x, m_y.Place(answer.value), 4.5, "answer",
                        ShowNumber(answer.temperature) + ": " + ShowValue(answer));
      }
    }
    return lines + marks;
  }

  [[nodiscard]] std::string DrawLegend() const {
    double y = m_bottom + 66;
    std::string svg = Circle(m_left + 6, y - 4, 4, "point", "point") +
                      Text(m_left + 18, y, "tick", "point") +
                      Line(m_left + 80, y - 4, m_left + 108, y - 4, "curve") +
                      Text(m_left + 116, y, "tick", "interpolated") +
                      Line(m_left + 220, y - 4, m_left + 248, y - 4, "flat") +
                      Text(m_left + 256, y, "tick", "flat beyond the first and the last point");
    y += kLine / 2;
    for (std::size_t index = 0; index < m_answers.size(); ++index) {
      const CurveAnswer& answer = m_answers[index];
      y += kLine;
      svg += Badge(m_left + 6, y - 4.5, index + 1) +
             Text(m_left + 24, y, "tick",
                  ShowNumber(answer.temperature) + " → " + Rounded(answer) + ", " +
                      ShowPlace(m_data.curve, answer));
    }
    return svg;
  }

  const CurveData& m_data;
  std::span<const CurveAnswer> m_answers;
  std::vector<int> m_rows;  ///< of the badges, the lowest is 0
  Axis m_x;
  Axis m_y;
  double m_left;
  int m_badgeRows;
  double m_top;
  double m_bottom;
};

}  // namespace

std::string DrawCurve(const CurveData& data, std::span<const CurveAnswer> answers) {
  return Picture(data, answers).Draw();
}

}  // namespace mqp::tool
