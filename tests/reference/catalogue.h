#pragma once

#include <array>

#include "rules.h"
#include "values.h"

/// The catalogue told again, line by line as its tables read and with nothing made fast.
namespace reference {

/// Sets the process-wide flag of the library and of the references.
void SetActualFrequencyFlag(int flag);
int ActualFrequencyFlag();

int ComponentTotal(const Question& question);
int ComponentDefault(const Question& question);

struct DataType {
  int type = 0;
  Numbers members;  ///< empty when none are written
};
DataType ComponentDataType(const Question& question);

int EnvelopeBounds(const Question& question);
int IsReferenceAvailable(const Question& question);
Numbers AvailableAnalyses(int resultType);

std::array<float, 4> VectorDirection(const Question& question);

int UnitType(int analysis, int result, int component, int option, int optionFlag);
int UnitTotal(int unitType);
Text UnitName(int unitType, int index);
int DefaultUnit(int system, int unitType);

Text ResultName(int resultType);
Text FullName(int analysis, int result, int component, int mesh, int alternate);
Text BarName(int analysis, int result, int component, int mesh, int fatigueVariant);
Text BriefName(int analysis, int result, int component);
Text ReportTitle(int analysis, int result, int chartVariant, int dynamicOption);

int ComponentByName(int analysis, int result, int variant, const Text& name, int exact);
int ResultTypeByName(const Text& name);

/// A text cut to six characters, then before a colon and before a blank that it does not begin
/// with.
Text ShortKey(const Text& text);

/// Each table of the catalogue whose lines the references count.
void ResetCountTables();
void CheckTotalTables();
void CheckComponentTables();
void ResetUnitTables();
void CheckUnitTables();
void ResetNameTables();
void CheckNameTables();
void ResetLookupTables();
void CheckLookupTables();

}  // namespace reference
