// Text goes out in runs: bytes are looked at one by one, but only a byte that needs a reference splits a run.
#include "GenLibrarySupportFiles/lmxparse/value_output.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <ostream>

#include "GenLibrarySupportFiles/lmxparse/getters.h"
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"

namespace lmx {

namespace {

std::ostream& write(std::ostream& out, char const* from, char const* to) {
  return out.write(from, to - from);
}

std::ostream& write(std::ostream& out, char const* text) {
  return write(out, text, text + std::strlen(text));
}

// The reference that stands for the character at `index`, null for one that stands for itself.
template <class Char>
char const* reference_for(Char const* text, std::size_t index) {
  switch (text[index]) {
    case '"': return "&quot;";
    case '\'': return "&apos;";
    case '&': return "&amp;";
    case '<': return "&lt;";
    // One "]" is enough. Kept: "]>" at the very beginning can not end a "]]>" and stays.
    case '>': return index >= 2 && text[index - 1] == ']' ? "&gt;" : nullptr;
    default: return nullptr;
  }
}

std::ostream& write_escaped(std::ostream& out, char const* text, std::size_t size) {
  std::size_t run = 0;
  for (std::size_t index = 0; index != size; ++index) {
    char const* const reference = reference_for(text, index);
    if (reference == nullptr) continue;
    write(out, text + run, text + index);
    write(out, reference);
    run = index + 1;
  }
  return write(out, text + run, text + size);
}

bool is_high_surrogate(std::uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool is_low_surrogate(std::uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

template <class Number>
std::ostream& write_number(std::ostream& out, Number value, int precision) {
  if (std::isnan(value)) return write(out, "NaN");
  if (std::isinf(value)) return write(out, value < 0 ? "-INF" : "INF");
  char digits[32];  // a sign, 14 digits, a point and up to four zeros, or an exponent
  char const* const end =
      std::to_chars(std::begin(digits), std::end(digits), value, std::chars_format::general, precision).ptr;
  return write(out, digits, end);
}

}  // namespace

std::ostream& output_convert_to_xml(std::ostream& out, std::string const& text) {
  return write_escaped(out, text.data(), text.size());
}

std::ostream& output_convert_to_xml(std::ostream& out, char const* text) {
  return write_escaped(out, text, std::strlen(text));
}

std::ostream& output_convert_to_xml(std::ostream& out, std::wstring const& text) {
  for (std::size_t index = 0; index != text.size(); ++index) {
    auto character = static_cast<std::uint32_t>(text[index]);
    if (char const* const reference = reference_for(text.data(), index)) {
      write(out, reference);
      continue;
    }
    if (character < 0x80) {
      out.put(static_cast<char>(character));
      continue;
    }
    if (is_high_surrogate(character)) {
      auto const low = static_cast<std::uint32_t>(text[++index]);  // at the end the NUL, which is none
      if (!is_low_surrogate(low)) return out;
      character = 0x10000 + ((character & 0x3FF) << 10) + (low & 0x3FF);
    }
    char bytes[5];
    write(out, unicode_char_to_utf8(static_cast<int>(character), bytes));
  }
  return out;
}

std::ostream& output_convert_to_xml(std::ostream& out, wchar_t const* text) {
  return output_convert_to_xml(out, std::wstring(text));
}

std::ostream& output_convert_to_xml(std::ostream& out, bool value) {
  return write(out, value ? "true" : "false");
}

std::ostream& output_convert_to_xml(std::ostream& out, float value) {
  constexpr int precision = 7;
  return write_number(out, value, precision);
}

std::ostream& output_convert_to_xml(std::ostream& out, double value) {
  constexpr int precision = 14;
  return write_number(out, value, precision);
}

std::ostream& output_convert_to_escaped(std::ostream& out, std::string const& text) {
  return output_convert_to_xml(out, text);
}

std::ostream& output_convert_to_ascii(std::ostream& out, std::wstring const& text) {
  for (wchar_t const element : text) {
    bool const is_ascii = static_cast<std::uint32_t>(element) <= 127;
    out.put(is_ascii ? static_cast<char>(element) : '.');
  }
  return out;
}

std::ostream& output_convert_to_bool_digit(std::ostream& out, bool value) {
  return write(out, value ? "1" : "0");
}

std::ostream& o_to_v(std::ostream& out, std::string const& value) {
  return output_convert_to_xml(out, value);
}

std::ostream& o_to_v(std::ostream& out, bool const& value) { return output_convert_to_xml(out, value); }

std::ostream& o_to_v(std::ostream& out, double const& value) { return output_convert_to_xml(out, value); }

std::ostream& o_to_v(std::ostream& out, c_datetime const& value) { return out << value; }

std::ostream& o_to_v(std::ostream& out, velmo::lmx::high_precision_c_decimal const& value) {
  return out << static_cast<c_decimal const&>(value);
}

}  // namespace lmx
