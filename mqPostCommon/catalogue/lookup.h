/// \file
/// From a display text back to a code. The names are loaded from the string table one after the
/// other in a fixed order, which is part of the contract: the first that begins with the key
/// decides. The comparison is by code unit and with case. When memory runs out for a text they
/// throw `std::bad_alloc`, and nothing else.
#pragma once

#include <mqPostCommon/export.h>
#include <mqPostCommon/platform/wide_string.h>

/// The component whose name begins with the key made of `name`.
/// \param analysisType an `AnalysisType`
/// \param resultType   a `ResultType`
/// \param variant      non-zero: a `Static` stress knows its components 14 and 15 as well
/// \param name         the text of a component, or a longer one that begins with it
/// \param exactName    non-zero: the key is `name` without white space at its ends, and blanks
///                     alone match the first name; 0: the key is the first six code units, cut
///                     before a colon and then before a blank where these stand behind the first
///                     position
/// \return the 0-based index (0 to 2 for the angular accelerations of stepped studies), 100 for
///         the component that a `Dynamic` stress keeps outside its count; -1 for an empty name,
///         unknown codes and a key that no name begins with
MQPOSTCOMMON_API int vekPostCommonGetComponentIndexByName(int analysisType, int resultType,
                                                          int variant, CString name, int exactName);

/// The result type that has a component whose name begins with the key made of `name` as with
/// `exactName` 0 above. An empty name matches the first candidate and gives `Displacement`.
/// \return a `ResultType`; 9999 when no name begins with the key
MQPOSTCOMMON_API int vekPostCommonGetResultTypeByComponentName(CString name);
