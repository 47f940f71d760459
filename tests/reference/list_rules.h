#pragma once

#include <vector>

#include "values.h"

/// The questions that a result list answers, from a snapshot of its members.
namespace reference {

Fields DefaultList();

int ColumnCount(const Fields& list);
Text ColumnName(const Fields& list, int column);
Text ColumnShortName(const Fields& list, int column);
int ColumnComponent(const Fields& list, int column);
int SetComponent(const Fields& list);
Fields ColumnPlot(const Fields& list, int column);
Text ColumnTitle(const Fields& list, int column);
Text StudyName(const Fields& list);
int ListUnitType(const Fields& list);
Text ListUnitName(const Fields& list);

}  // namespace reference
