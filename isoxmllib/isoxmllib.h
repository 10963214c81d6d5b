// Every element class of the format with its wrappers, `Root`, the enumerated texts and the validators.
#pragma once

#include "isoxmllib/enums.h"       // IWYU pragma: export
#include "isoxmllib/root.h"        // IWYU pragma: export
#include "isoxmllib/task_data.h"   // IWYU pragma: export
#include "isoxmllib/validators.h"  // IWYU pragma: export
