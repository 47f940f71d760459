#include <cmath>
#include <ostream>
#include <set>

#include "command_line.h"
#include "curve_data.h"
#include "curve_picture.h"
#include "json_output.h"
#include "table.h"
#include "target_file.h"
#include "text.h"
#include "text_file.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

using Answers = std::vector<CurveAnswer>;

/// The points whose temperature does not go up, as the curve does not check.
struct Disorder {
  std::vector<std::size_t> falling;   ///< below the point before
  std::vector<std::size_t> repeated;  ///< as an earlier point
};

Disorder FindDisorder(const CmqTemperatureCurve& curve) {
  Disorder disorder;
  std::set<double> seen;
  for (std::size_t index = 0; index < curve.m_vecX.size(); ++index) {
    if (index > 0 && curve.m_vecX[index] < curve.m_vecX[index - 1]) {
      disorder.falling.push_back(index);
    }
    if (!seen.insert(curve.m_vecX[index]).second) {
      disorder.repeated.push_back(index);
    }
  }
  return disorder;
}

void Warn(Session& session, const CurveData& data, const std::vector<std::size_t>& points,
          const std::string& what, const std::string& consequence) {
  if (points.empty()) {
    return;
  }
  const std::size_t first = points.front();
  session.err << "warning: " << Printable(data.file) << " > line " << data.lines[first]
              << ": The temperature " << ShowNumber(data.curve.m_vecX[first]) << ' ' << what;
  if (points.size() > 1) {
    session.err << ", and " << points.size() - 1 << " more";
  }
  session.err << ". " << consequence << '\n';
}

void WarnAboutDisorder(Session& session, const CurveData& data) {
  const Disorder disorder = FindDisorder(data.curve);
  Warn(session, data, disorder.falling, "is below the one before",
       "The curve takes its points in this order: sort the lines.");
  Warn(session, data, disorder.repeated, "stands there already",
       "The curve answers with one of the values: keep one line for each temperature.");
}

void WarnAboutOverflow(Session& session, const CurveData& data, const Answers& answers) {
  for (const CurveAnswer& answer : answers) {
    if (!std::isfinite(answer.value)) {
      session.err << "warning: " << Printable(data.file) << ": The value at "
                  << ShowNumber(answer.temperature)
                  << " is beyond the largest number, as the points beside it lie too far apart.\n";
    }
  }
}

double ParseTemperature(const std::string& word) {
  const std::optional<double> number = ParseNumber(word);
  if (!number) {
    throw Problem(ExitCode::Usage,
                  "--at takes a number with a decimal point, not " + Quoted(word) + ".");
  }
  return *number;
}

void CheckPicture(const CurveData& data) {
  if (data.curve.m_nPoints > kMostPicturedPoints) {
    throw Problem(ExitCode::Usage,
                  Printable(data.file) + ": These are " + std::to_string(data.curve.m_nPoints) +
                      " points, and a picture takes " + std::to_string(kMostPicturedPoints) +
                      ". Leave some out, or --svg.");
  }
}

void PrintAnswers(Session& session, const CurveData& data, const Answers& answers) {
  Table table({{"temperature", Align::Right}, {"value", Align::Right}, {"how", Align::Left, 0, 8}});
  for (const CurveAnswer& answer : answers) {
    table.Add({ShowNumber(answer.temperature), ShowValue(answer), ShowPlace(data.curve, answer)});
  }
  table.Print(session);
}

/// A text where JSON has no number.
Json ValueToJson(const CurveAnswer& answer) {
  return std::isfinite(answer.value) ? Json(answer.value) : Json(ShowValue(answer));
}

std::string_view NamePlace(CurvePlace place) {
  switch (place) {
    case CurvePlace::Point: return "point";
    case CurvePlace::Between: return "interpolated";
    case CurvePlace::FlatBelow:
    case CurvePlace::FlatAbove: break;
  }
  return "flat";
}

Json AnswersToJson(const CurveData& data, const Answers& answers,
                   const std::optional<std::string>& picture) {
  const auto titleToJson = [](const std::string& title) {
    return title.empty() ? Json() : Json(title);
  };
  const Disorder disorder = FindDisorder(data.curve);
  Json json = NewJson();
  json["file"] = data.file;
  json["titles"] = {titleToJson(data.temperatureTitle), titleToJson(data.valueTitle)};
  json["ascending"] = disorder.falling.empty() && disorder.repeated.empty();
  json["points"] = Json::array();
  for (std::size_t index = 0; index < data.lines.size(); ++index) {
    json["points"].push_back({{"temperature", data.curve.m_vecX[index]},
                              {"value", data.curve.m_vecY[index]},
                              {"line", data.lines[index]}});
  }
  json["answers"] = Json::array();
  for (const CurveAnswer& answer : answers) {
    Json points = Json::array({answer.low});
    if (answer.high != answer.low) {
      points.push_back(answer.high);
    }
    json["answers"].push_back({{"temperature", answer.temperature},
                               {"value", ValueToJson(answer)},
                               {"place", NamePlace(answer.place)},
                               {"points", std::move(points)}});
  }
  json["svg"] = picture ? Json(*picture) : Json();
  return json;
}

}  // namespace

ExitCode RunCurve(Session& session) {
  std::string file;
  std::vector<std::string> words;
  std::optional<std::string> picture;
  bool isForced = false;
  bool isJson = false;
  CommandLine line(
      session, "curve",
      "The value of a material property at temperatures, from points in a file, and how\n"
      "it came about: a point, interpolated, or on a flat end. A line of the file is a\n"
      "temperature and a value, divided by a comma, a semicolon or a tab, with decimal\n"
      "points; a first line with titles, empty lines and # comments may be there.",
      "mqpost curve examples/curve.csv --at 20 --at 250 --at 700 --svg curve.svg");
  line.Positional("FILE.csv", file, "the points");
  line.Texts("--at", words, "a temperature; give it as often as you like", "T");
  line.Text("--svg", picture, "draw the curve into this file as well", "OUT.svg");
  line.Flag("--force", isForced, "replace an existing picture");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  if (words.empty() && !picture) {
    throw Problem(ExitCode::Usage, "Name a temperature, as in --at 20, or a picture with --svg.");
  }
  std::vector<double> temperatures;
  for (const std::string& word : words) {
    temperatures.push_back(ParseTemperature(word));
  }
  if (picture) {
    CheckTarget(file, *picture, isForced);
  }
  const CurveData data = ReadCurve(file);
  WarnAboutDisorder(session, data);
  Answers answers;
  for (const double temperature : temperatures) {
    answers.push_back(AskCurve(data.curve, temperature));
  }
  WarnAboutOverflow(session, data, answers);
  if (picture) {
    CheckPicture(data);
    WriteTextFile(*picture, DrawCurve(data, answers));
  }
  if (isJson) {
    Print(session, AnswersToJson(data, answers, picture));
    return ExitCode::Fine;
  }
  if (!answers.empty()) {
    PrintAnswers(session, data, answers);
  }
  if (picture) {
    session.out << "Drawn: " << Printable(*picture) << '\n';
  }
  return ExitCode::Fine;
}

}  // namespace mqp::tool
