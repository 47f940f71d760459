/// \file
/// Every public header of the library.
#pragma once

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/components.h>
#include <mqPostCommon/catalogue/directions.h>
#include <mqPostCommon/catalogue/lookup.h>
#include <mqPostCommon/catalogue/names.h>
#include <mqPostCommon/catalogue/unit_lists.h>
#include <mqPostCommon/catalogue/units.h>
#include <mqPostCommon/display/assembly_component.h>
#include <mqPostCommon/display/assembly_list.h>
#include <mqPostCommon/display/shell_flip_data.h>
#include <mqPostCommon/display/stl_facet.h>
#include <mqPostCommon/lists/list.h>
#include <mqPostCommon/lists/pairs.h>
#include <mqPostCommon/materials/element_values.h>
#include <mqPostCommon/materials/material.h>
#include <mqPostCommon/materials/property_tables.h>
#include <mqPostCommon/materials/temperature_curve.h>
#include <mqPostCommon/params/animation.h>
#include <mqPostCommon/params/equation_plot.h>
#include <mqPostCommon/params/graph.h>
#include <mqPostCommon/params/plot.h>
#include <mqPostCommon/params/stream/record_field.h>
#include <mqPostCommon/params/stream/strings.h>
#include <mqPostCommon/params/view_matrix.h>
