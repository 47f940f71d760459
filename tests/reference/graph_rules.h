#pragma once

#include "values.h"

/// The questions that a graph answers, from a snapshot of its members.
namespace reference {

/// Sets every member but the text and the map that an initialisation leaves alone.
void InitialiseGraph(Fields& graph, int analysis, int result, int option, int mesh, int dynamic);

int IsDamageMatrix(const Fields& graph);
int IsTransient(const Fields& graph);
int GraphType(const Fields& graph);
Text FolderName(const Fields& graph);
Text PlotName(const Fields& graph, int nameOption);
Text YTitle(const Fields& graph, int nameOption, int flag);
void UsePreferences(Fields& graph, int stress, int length, int temperature);

}  // namespace reference
