// All integers go through one scanner that saturates just above 32 bits, so a 64-bit `long` cannot let a
// longer number through and the cut to a narrow type sees the same bits everywhere.
#include "GenLibrarySupportFiles/lmxtypes/conversions.h"

#include <locale.h>  // newlocale, which <clocale> does not promise
#include <stdlib.h>  // strtod_l

#include <algorithm>
#include <limits>
#include <ostream>

#include "GenLibrarySupportFiles/lmxinternals/characters.h"
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"
#include "GenLibrarySupportFiles/lmxtypes/lexical.h"
#include "GenLibrarySupportFiles/lmxtypes/value_text.h"

namespace lmx {

namespace {

struct s_scanned_integer {
  bool is_negative = false;
  std::uint64_t magnitude = 0;  // exact up to 2^32, which stands for anything larger as well
};

// The value of a digit, or `base` and more for any other byte.
unsigned int digit_value(char c) {
  if (is_digit(c)) return static_cast<unsigned int>(c - '0');
  if (is_hex_digit(c)) return static_cast<unsigned int>(to_lower(c) - 'a' + 10);
  return 16;
}

s_scanned_integer scan_integer(char const* p, unsigned int base) {
  constexpr std::uint64_t too_large = std::uint64_t{1} << 32;
  s_scanned_integer scanned;
  skip_ws(p);
  get_sign(p, scanned.is_negative);
  for (; digit_value(*p) < base; ++p) {
    scanned.magnitude = std::min(scanned.magnitude * base + digit_value(*p), too_large);
  }
  return scanned;
}

}  // namespace

std::int32_t text_to_int32(char const* text, unsigned int base) {
  auto const [is_negative, magnitude] = scan_integer(text, base);
  constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
  auto const size = static_cast<std::int64_t>(magnitude);
  return static_cast<std::int32_t>(is_negative ? -std::min(size, highest + 1) : std::min(size, highest));
}

std::uint32_t text_to_uint32(char const* text, unsigned int base) {
  auto const [is_negative, magnitude] = scan_integer(text, base);
  constexpr std::uint32_t highest = std::numeric_limits<std::uint32_t>::max();
  if (magnitude > highest) return highest;
  return static_cast<std::uint32_t>(is_negative ? 0 - magnitude : magnitude);
}

void v_to_o(std::string& value, std::string const& text) { vtostring(value, text); }

void v_to_o(unsigned char& value, std::string const& text) {
  value = static_cast<unsigned char>(text_to_int32(text.c_str()));
}

void v_to_o(unsigned short& value, std::string const& text) {
  value = static_cast<unsigned short>(text_to_int32(text.c_str()));
}

void v_to_o(int& value, std::string const& text) { value = text_to_int32(text.c_str()); }

void v_to_o(unsigned int& value, std::string const& text) { value = text_to_uint32(text.c_str()); }

void v_to_o(bool& value, std::string const& text) { value = text == "true" || text == "1"; }

void v_to_o(double& value, std::string const& text) {
  // The C library's own object for "C": nothing is allocated, and asking for it cannot fail.
  static locale_t const c_locale = newlocale(LC_ALL_MASK, "C", nullptr);
  constexpr double infinity = std::numeric_limits<double>::infinity();
  if (text == "NaN") {
    value = std::numeric_limits<double>::quiet_NaN();
  } else if (text == "INF" || text == "-INF") {
    value = text == "INF" ? infinity : -infinity;
  } else {
    value = strtod_l(text.c_str(), nullptr, c_locale);
  }
}

void v_to_o(c_binary& value, std::string const& text) { value.from_hex(text); }

std::ostream& o_to_v(std::ostream& out, unsigned char const& value) {
  return detail::put_through(out, value);
}
std::ostream& o_to_v(std::ostream& out, unsigned short const& value) {
  return detail::put_through(out, value);
}
std::ostream& o_to_v(std::ostream& out, int const& value) { return detail::put_through(out, value); }
std::ostream& o_to_v(std::ostream& out, unsigned int const& value) { return detail::put_through(out, value); }
std::ostream& o_to_v(std::ostream& out, c_binary const& value) { return detail::put_through(out, value); }

}  // namespace lmx
