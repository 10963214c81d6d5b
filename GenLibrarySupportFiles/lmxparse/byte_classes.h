// What a byte may be taken as in bulk. Everything else goes through `get`, one character at a time: line
// ends, NUL and whatever is not ASCII are in no class.
//
// Private to the runtime.
#pragma once

#include <array>
#include <cstddef>

#include "GenLibrarySupportFiles/lmxinternals/characters.h"

namespace lmx {

enum byte_class : unsigned char {
  plain_blank = 1,       // white space that ends no line
  plain_name_start = 2,  // may start a name
  plain_name = 4,        // a name character
  plain_value = 8,       // inside an attribute value, once the quotes are minded
  plain_literal = 16,    // the same, but no quote and no reference
  plain_text = 32,       // inside character data
};

constexpr std::array<unsigned char, 256> make_byte_classes() {
  std::array<unsigned char, 256> classes{};
  for (int c = 1; c < 127; ++c) {
    if (c == '\n' || c == '\r') continue;
    unsigned bits = plain_value;
    if (is_space(c)) bits |= plain_blank;
    if (is_name_start(c)) bits |= plain_name_start;
    if (is_name_char(c)) bits |= plain_name;
    if (c != '&' && c != '"' && c != '\'') bits |= plain_literal;
    if (c != '<' && c != '&') bits |= plain_text;
    classes[static_cast<std::size_t>(c)] = static_cast<unsigned char>(bits);
  }
  return classes;
}

inline constexpr auto byte_classes = make_byte_classes();

inline bool is_in_class(unsigned char c, byte_class wanted) { return (byte_classes[c] & wanted) != 0; }

}  // namespace lmx
