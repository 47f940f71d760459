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
#include <mqPostCommon/lists/list.h>
#include <mqPostCommon/params/animation.h>
#include <mqPostCommon/params/equation_plot.h>
#include <mqPostCommon/params/graph.h>
#include <mqPostCommon/params/owned.h>
#include <mqPostCommon/params/plot.h>
#include <mqPostCommon/params/stream/record_field.h>
#include <mqPostCommon/params/stream/strings.h>
#include <mqPostCommon/params/view_matrix.h>
