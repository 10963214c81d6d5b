// The document type declaration. Of all that an internal subset may declare only entities have an effect; the
// rest is skipped, and nothing external is fetched.
#pragma once

#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

class c_get_for_xml;

/// Names and values as they stand in declarations.
class ISOXML_API c_dtd_util {
 public:
  /// `getter` is borrowed and must outlive the object.
  explicit c_dtd_util(c_get_for_xml& getter) : mp_getter(&getter) {}

  /// Entered after "%". The entity's text is what is read next. An unknown name is `ELMX_ENTITY_NOT_FOUND`
  /// and passed over.
  bool select_parameter_entity();
  /// Reads a word, up to white space or ">". False at the end of the input.
  bool get_entity_value(std::string* out);
  /// Reads a quoted value; parameter entities and character references are expanded. False when there is
  /// none.
  bool get_quoted_entity_value(std::string* out);

 protected:
  c_get_for_xml* mp_getter;
};

class ISOXML_API c_internal_dtd : public c_dtd_util {
 public:
  using c_dtd_util::c_dtd_util;

  /// Entered after "<!DOCTYPE". Enters the entities that are declared. False for bad syntax, a fatal
  /// `ELMX_BAD_DTD`, and at the end of the input, which is not reported.
  bool read_doctype_decl();
  void reset() {}

 private:
  bool p_read_subset();
  bool p_read_declaration();
  bool p_read_dtd_entity();
  void p_get_markupdecl_name(std::string* out);
  bool p_skip_to_end_of_markupdecl();
  bool p_bad_character(char const* before, int c, char const* after);
};

}  // namespace lmx
