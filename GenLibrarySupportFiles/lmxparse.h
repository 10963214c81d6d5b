// The XML runtime: byte sources, the tag level, the event reader, the framework for elements, and errors.
#pragma once

#include "GenLibrarySupportFiles/lmxparse/c_error.h"               // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/c_read.h"                // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/c_unmarshal_helper.h"    // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/c_xml.h"                 // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/c_xml_list_tokeniser.h"  // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"          // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/c_xml_writer.h"          // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/entity_name_readers.h"   // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/error_codes.h"           // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/getters.h"               // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/internal_dtd.h"          // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/limits.h"                // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/namespaces.h"            // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/stack_guard.h"           // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/transcoder.h"            // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxparse/value_output.h"          // IWYU pragma: export
