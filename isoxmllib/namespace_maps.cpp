#include "isoxmllib/namespace_maps.h"

lmx::s_ns_map const ns_map_reader[1] = {{0, nullptr, nullptr}};
lmx::s_ns_map const ns_map_writer_1[1] = {{0, nullptr, nullptr}};
lmx::s_ns_map const ns_map_writer_2[1] = {{0, nullptr, nullptr}};
lmx::s_ns_map const ns_map_writer_3[1] = {{0, nullptr, nullptr}};
lmx::s_ns_map const ns_map_writer_4[1] = {{0, nullptr, nullptr}};
lmx::s_ns_map const ns_map_writer_5[1] = {{0, nullptr, nullptr}};
