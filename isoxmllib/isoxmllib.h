// Every element class of the format with its wrappers, `Root`, the enumerated texts and the validators, and
// the reader and the writer that they go through.
#pragma once

#include "GenLibrarySupportFiles/lmxparse/c_xml_writer.h"  // IWYU pragma: export
#include "isoxmllib/device.h"                              // IWYU pragma: export
#include "isoxmllib/enums.h"                               // IWYU pragma: export
#include "isoxmllib/field_geometry.h"                      // IWYU pragma: export
#include "isoxmllib/master_data.h"                         // IWYU pragma: export
#include "isoxmllib/namespace_maps.h"                      // IWYU pragma: export
#include "isoxmllib/question.h"                            // IWYU pragma: export
#include "isoxmllib/root.h"                                // IWYU pragma: export
#include "isoxmllib/task.h"                                // IWYU pragma: export
#include "isoxmllib/task_data.h"                           // IWYU pragma: export
#include "isoxmllib/validators.h"                          // IWYU pragma: export
#include "transfer/reader/xmlReader.h"                     // IWYU pragma: export
