#include "GenLibrarySupportFiles/lmxparse/value_output.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <ostream>
#include <string_view>

#include "GenLibrarySupportFiles/lmxparse/getters.h"
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"
#include "GenLibrarySupportFiles/lmxtypes/value_text.h"

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

void put_escaped(detail::output_buffer& out, std::string_view text) {
  constexpr std::size_t bytes_at_once = 64;
  constexpr std::size_t longest_reference = 6;
  for (std::size_t from = 0; from < text.size(); from += bytes_at_once) {
    std::size_t const to = std::min(text.size(), from + bytes_at_once);
    char* end = out.room_for(longest_reference * (to - from));
    for (std::size_t i = from; i != to; ++i) {
      char const* const reference = reference_for(text.data(), i);
      if (reference == nullptr) {
        *end++ = text[i];
      } else {
        for (char const* p = reference; *p != '\0'; ++p) *end++ = *p;
      }
    }
    out.advance_to(end);
  }
}

std::ostream& write_escaped(std::ostream& stream, std::string_view text) {
  detail::output_buffer out(stream);
  put_escaped(out, text);
  out.flush();
  return stream;
}

bool is_high_surrogate(std::uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool is_low_surrogate(std::uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

template <class Number>
void put_number(detail::output_buffer& out, Number value, int precision) {
  if (std::isnan(value)) return out.append("NaN");
  if (std::isinf(value)) return out.append(value < 0 ? "-INF" : "INF");
  constexpr std::size_t most = 32;  // a sign, 14 digits, a point and up to four zeros, or an exponent
  char* const digits = out.room_for(most);
  out.advance_to(std::to_chars(digits, digits + most, value, std::chars_format::general, precision).ptr);
}

}  // namespace

void detail::put(output_buffer& out, std::string const& value) { put_escaped(out, value); }
void detail::put(output_buffer& out, bool const& value) { out.append(value ? "true" : "false"); }
void detail::put(output_buffer& out, double const& value) {
  constexpr int precision = 14;
  put_number(out, value, precision);
}

std::ostream& output_convert_to_xml(std::ostream& out, std::string const& text) {
  return write_escaped(out, text);
}

std::ostream& output_convert_to_xml(std::ostream& out, char const* text) { return write_escaped(out, text); }

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

std::ostream& output_convert_to_xml(std::ostream& out, bool value) { return detail::put_through(out, value); }

std::ostream& output_convert_to_xml(std::ostream& stream, float value) {
  constexpr int precision = 7;
  detail::output_buffer out(stream);
  put_number(out, value, precision);
  out.flush();
  return stream;
}

std::ostream& output_convert_to_xml(std::ostream& out, double value) {
  return detail::put_through(out, value);
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

std::ostream& o_to_v(std::ostream& out, std::string const& value) { return detail::put_through(out, value); }

std::ostream& o_to_v(std::ostream& out, bool const& value) { return detail::put_through(out, value); }

std::ostream& o_to_v(std::ostream& out, double const& value) { return detail::put_through(out, value); }

std::ostream& o_to_v(std::ostream& out, c_datetime const& value) { return out << value; }

std::ostream& o_to_v(std::ostream& out, velmo::lmx::high_precision_c_decimal const& value) {
  return detail::put_through(out, value);
}

}  // namespace lmx
