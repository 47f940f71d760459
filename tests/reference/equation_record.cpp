#include "records.h"
#include "tally.h"

namespace reference {

namespace {

constexpr int kFirstVersion = 890109;

}  // namespace

void WriteVariable(Writer& writer, const Variable& variable) {
  writer.String(variable.name);
  writer.Int(variable.resultType);
  writer.Int(variable.component);
  writer.Double(variable.coefficient);
}

int ReadVariable(Variable& variable, Reader& reader, int version) {
  if (version < kFirstVersion) {
    Hit("variable: too old");
    return 0;
  }
  Hit("variable: read");
  reader.String(variable.name);
  reader.Int(variable.resultType);
  reader.Int(variable.component);
  reader.Double(variable.coefficient);
  return 1;
}

void WriteEquationPlot(Writer& writer, const EquationPlot& plot) {
  writer.String(plot.equation);
  writer.Int(plot.coefficientsFlag);
  writer.String(plot.strings[0]);
  writer.String(plot.strings[1]);
  writer.Int(static_cast<int>(plot.variables.size()));
  for (const Variable& variable : plot.variables) {
    WriteVariable(writer, variable);
  }
}

int ReadEquationPlot(EquationPlot& plot, Reader& reader, int version) {
  if (version < kFirstVersion) {
    Hit("equation: too old");
    return 0;
  }
  reader.String(plot.equation);
  reader.Int(plot.coefficientsFlag);
  reader.String(plot.strings[0]);
  reader.String(plot.strings[1]);
  int count = 0;
  reader.Int(count);
  if (count > kMostVariables) {
    Hit("equation: too many variables");
    count = kMostVariables;
  }
  Hit(count < 0                ? "equation: negative count"
      : count == 0             ? "equation: no variables"
      : plot.variables.empty() ? "equation: variables"
                               : "equation: variables behind others");
  for (int index = 0; index < count; ++index) {
    Variable variable;
    ReadVariable(variable, reader, version);
    plot.variables.push_back(variable);
  }
  return 1;
}

void PutFields(Fields& fields, const EquationPlot& plot) {
  fields[{"equation", 0}] = ValueOf(plot.equation);
  fields[{"coefficients flag", 0}] = ValueOf(plot.coefficientsFlag);
  fields[{"equation row 3", 0}] = ValueOf(plot.strings[0]);
  fields[{"equation row 3", 1}] = ValueOf(plot.strings[1]);
  fields[{"display equation", 0}] = ValueOf(plot.display);
  fields[{"variables", 0}] = ValueOf(static_cast<int>(plot.variables.size()));
  int place = 0;
  for (const Variable& variable : plot.variables) {
    ++place;
    fields[{"variable name", place}] = ValueOf(variable.name);
    fields[{"variable result type", place}] = ValueOf(variable.resultType);
    fields[{"variable component", place}] = ValueOf(variable.component);
    fields[{"variable coefficient", place}] = {variable.coefficient, {}};
  }
}

EquationPlot EquationPlotOf(const Fields& fields) {
  EquationPlot plot;
  plot.equation = fields.at({"equation", 0}).text;
  plot.coefficientsFlag = IntOf(fields.at({"coefficients flag", 0}));
  plot.strings[0] = fields.at({"equation row 3", 0}).text;
  plot.strings[1] = fields.at({"equation row 3", 1}).text;
  plot.display = fields.at({"display equation", 0}).text;
  const int count = IntOf(fields.at({"variables", 0}));
  for (int place = 1; place <= count; ++place) {
    plot.variables.push_back({fields.at({"variable name", place}).text,
                              IntOf(fields.at({"variable result type", place})),
                              IntOf(fields.at({"variable component", place})),
                              fields.at({"variable coefficient", place}).bits});
  }
  return plot;
}

}  // namespace reference
