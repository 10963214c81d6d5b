// Rows for every class, made from the description of the format while building.
#pragma once

#include <cstdint>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"

struct ElementRow {
  char const* tag;
  void (*select)(Root& root);
  lmx::elmx_error (*marshal)(Root const& root, lmx::c_xml_writer& writer);
  char const* new_object;  ///< What a new object is written as.
  char const* filled;      ///< A document of it with everything that it can hold.
};

/// A class that holds a choice.
struct ChoiceRow {
  char const* name;
  std::int32_t nothing_chosen;
  lmx::elmx_error (*marshal)(lmx::c_xml_writer& writer, std::int32_t chosen);
};

/// The name tables of a class. Null where it has none: the attributes of `Root`, a wrapper.
struct TableRow {
  char const* name;
  lmx::s_event_map const* attributes;
  lmx::s_event_map const* children;
  lmx::s_known_elements const* known_elements;
  lmx::s_event_map const* children_of_wrapper;
};

#include "element_rows.inc"
