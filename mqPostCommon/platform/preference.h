/// \file
/// The head of the host's record of user preferences.
#pragma once

/// The first three members of the host's record; the host's own continues behind them. The
/// library only reads these through a pointer and never copies or creates a record.
struct preference {
  int m_nStressUnit;       ///< unit index within the stress units, 0 to 4
  int m_nLengthUnit;       ///< unit index within the length units, 0 to 9
  int m_nTemperatureUnit;  ///< unit index within the temperature units, 0 to 2
};
