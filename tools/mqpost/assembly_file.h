/// \file
/// Display lists of an assembly from files.
#pragma once

#include <string>

#include <mqPostCommon/mqPostCommon.h>

namespace mqp::tool {

/// The components of a JSON file, in its order.
/// \throw Problem that names the line and column, or the place as in components[2].color
CDspAsmCompList ReadAssembly(const std::string& file);

/// "#RRGGBB", or the four parts of a colour that cannot be written so.
std::string ShowColor(const COGLColor& color);

}  // namespace mqp::tool
