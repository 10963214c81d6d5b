#include "GenLibrarySupportFiles/lmxparse/internal_dtd.h"

#include "GenLibrarySupportFiles/lmxparse/entity_name_readers.h"
#include "GenLibrarySupportFiles/lmxparse/getters.h"

namespace lmx {

// ---- c_dtd_util ----

bool c_dtd_util::select_parameter_entity() {
  std::string name;
  const int stopper = mp_getter->get_name_chars(&name);
  if (stopper != ';') mp_getter->unget(stopper);
  bool known = false;
  const bool good = mp_getter->select_parameter_entity(name, &known);
  if (!known) mp_getter->error(EET_ERROR, ELMX_ENTITY_NOT_FOUND, "Entity '%" + name + "' not found");
  return good;
}

bool c_dtd_util::get_entity_value(std::string* out) {
  out->clear();
  int c = mp_getter->get_non_space();
  if (c == -1) return false;
  while (c != -1 && c != '>' && !is_space(c)) {
    if (c == '%') {
      if (!select_parameter_entity()) return false;
    } else {
      out->push_back(static_cast<char>(c));
    }
    c = mp_getter->get();
  }
  mp_getter->unget(c);
  return true;
}

// A quote that comes out of a parameter entity does not close the value. The end of the input does.
bool c_dtd_util::get_quoted_entity_value(std::string* out) {
  const int quote = mp_getter->get_non_space();
  if (quote != '"' && quote != '\'') return false;
  out->clear();
  const std::size_t depth = mp_getter->active_entities();
  for (;;) {
    int c = mp_getter->get();
    if (c == -1 || (c == quote && mp_getter->active_entities() == depth)) return true;
    if (c == '%') {
      if (!select_parameter_entity()) return false;
      continue;
    }
    if (c == '&') {
      c = mp_getter->get();
      if (c == '#') {
        c_entity_name_reader_for_c_get reader(*mp_getter);
        if (!mp_getter->insert_character_entity(reader, out)) return false;
        continue;
      }
      out->push_back('&');  // other references wait until the entity is used
    }
    if (c != -1) out->push_back(static_cast<char>(c));
  }
}

// ---- c_internal_dtd ----

bool c_internal_dtd::p_bad_character(char const* before, int c, char const* after) {
  std::string message = before;
  if (c != -1) message += static_cast<char>(c);
  mp_getter->error(EET_FATAL, ELMX_BAD_DTD, message + after);
  return false;
}

// Name and external identifier are passed over, and quotes do not count: a ">" in a quoted identifier ends
// it.
bool c_internal_dtd::read_doctype_decl() {
  for (;;) {
    const int c = mp_getter->get();
    if (c == -1) return false;
    if (c == '>') return true;
    if (c == '[') return p_read_subset();
  }
}

bool c_internal_dtd::p_read_subset() {
  for (;;) {
    int c = mp_getter->get_non_space();
    switch (c) {
      case '<':
        if (!p_read_declaration()) return false;
        break;
      case '%':
        if (!select_parameter_entity()) return false;
        break;
      case ']':
        c = mp_getter->get_non_space();
        return c == '>' || p_bad_character("DTD not Well Formed (expected '>', got ", c, ")");
      default: return p_bad_character("DTD not Well Formed (got ", c, ")");
    }
  }
}

bool c_internal_dtd::p_read_declaration() {
  std::string name;
  p_get_markupdecl_name(&name);
  if (name == "!--") return mp_getter->skip_comment();
  if (name == "!ENTITY") return p_read_dtd_entity();
  if (!name.empty() && name.front() == '?') return mp_getter->skip_PI();
  return p_skip_to_end_of_markupdecl();
}

void c_internal_dtd::p_get_markupdecl_name(std::string* out) {
  out->clear();
  int c = mp_getter->get();
  while (c != -1 && c != '>' && c != '[' && !is_space(c)) {
    out->push_back(static_cast<char>(c));
    if (*out == "!--") return;
    c = mp_getter->get();
  }
  mp_getter->unget(c);
}

bool c_internal_dtd::p_skip_to_end_of_markupdecl() {
  int quote = 0;
  for (;;) {
    const int c = mp_getter->get();
    if (c == -1) return false;
    if (quote != 0) {
      if (c == quote) quote = 0;
    } else if (c == '"' || c == '\'') {
      quote = c;
    } else if (c == '>') {
      return true;
    }
  }
}

// An external entity, and one whose value is damaged, has an empty value, and reading goes on.
bool c_internal_dtd::p_read_dtd_entity() {
  int c = mp_getter->get_non_space();
  const bool is_parameter = c == '%';
  if (!is_parameter) mp_getter->unget(c);
  std::string name;
  if (!get_entity_value(&name)) return false;
  std::string value;
  c = mp_getter->get_non_space();
  mp_getter->unget(c);
  if (c == '"' || c == '\'') {
    if (!get_quoted_entity_value(&value)) return false;
  } else {
    std::string word;
    if (!get_entity_value(&word)) return false;
    if (word == "SYSTEM" || word == "PUBLIC") {
      mp_getter->error(EET_WARNING, ELMX_EXTERNAL_ENTITY, "External Entity definitions not supported");
    } else {
      mp_getter->error(EET_ERROR, ELMX_UNEXPECTED_ENTITY, "Unexpected value in Entity definition: " + word);
    }
  }
  if (is_parameter) {
    mp_getter->add_parameter_entity(name, value);
  } else {
    mp_getter->add_general_entity(name, value);
  }
  return p_skip_to_end_of_markupdecl();
}

}  // namespace lmx
