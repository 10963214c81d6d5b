// Writing an element of the format into memory.
#pragma once

#include <sstream>
#include <string>

#include "GenLibrarySupportFiles/lmxparse/c_xml_writer.h"

/// What came of writing.
struct Writing {
  int code;
  std::string bytes;
};

/// Writes in the default layout, under the tag `name` where the class has none of its own.
template <class X>
Writing write_element(X const& element, char const* name = nullptr) {
  std::ostringstream out;
  lmx::c_xml_writer writer(out);
  const int code = element.marshal(writer, name);
  return {code, out.str()};
}

/// The bytes alone; whoever wants the code asks `write_element`.
template <class X>
std::string written(X const& element, char const* name = nullptr) {
  return write_element(element, name).bytes;
}
