#include "tools/listing.h"

std::string as_text(Json const& value) {
  if (value.is_null()) return std::string();
  if (value.is_string()) return value.get<std::string>();
  if (!value.is_array()) return value.dump();
  std::string text;
  for (Json const& item : value) text += (text.empty() ? "" : ", ") + as_text(item);
  return text;
}

Json null_if_empty(std::string const& text) { return text.empty() ? Json() : Json(text); }
