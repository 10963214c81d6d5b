// The namespaces that the format binds, as the runtime takes them: none, so each table is its end alone.
#pragma once

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxparse/namespaces.h"

/// For reading.
extern ISOXML_API lmx::s_ns_map const ns_map_reader[1];

// For writing.
extern ISOXML_API lmx::s_ns_map const ns_map_writer_1[1];
extern ISOXML_API lmx::s_ns_map const ns_map_writer_2[1];
extern ISOXML_API lmx::s_ns_map const ns_map_writer_3[1];
extern ISOXML_API lmx::s_ns_map const ns_map_writer_4[1];
extern ISOXML_API lmx::s_ns_map const ns_map_writer_5[1];
