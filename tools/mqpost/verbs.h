/// \file
/// The verbs: each reads its part of the command line, answers, and returns how it ended.
#pragma once

#include "session.h"

namespace mqp::tool {

ExitCode RunList(Session& session);
ExitCode RunShow(Session& session);
ExitCode RunFind(Session& session);
ExitCode RunColumns(Session& session);
ExitCode RunUnits(Session& session);
ExitCode RunStrings(Session& session);
ExitCode RunLs(Session& session);
ExitCode RunGraph(Session& session);
ExitCode RunEquation(Session& session);
ExitCode RunEquationCheck(Session& session);
ExitCode RunConvert(Session& session);
ExitCode RunMaterial(Session& session);
ExitCode RunCurve(Session& session);
ExitCode RunComponents(Session& session);

}  // namespace mqp::tool
