// Decimals as digit text: reading takes the text apart at the point, comparing goes from the left without
// any conversion, and the machine numbers are built digit by digit in a fixed order.
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"

#include <algorithm>
#include <cfloat>
#include <clocale>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <new>
#include <ostream>

#include "GenLibrarySupportFiles/lmxinternals/characters.h"
#include "GenLibrarySupportFiles/lmxtypes/value_text.h"

namespace lmx {

// Wider intermediate results would change the last bit of a coordinate: 32-bit x86 needs SSE2 arithmetic.
static_assert(FLT_EVAL_METHOD >= 0 && FLT_EVAL_METHOD != 2, "doubles must be calculated as doubles");

namespace {

constexpr unsigned int max_fraction_digits_of_double = 15;
// Ten to this power is well within a double, so a divisor made of as many steps is finite.
constexpr std::size_t max_digits_in_divisor = 290;
// Ten to this power is a multiple of two to the 32nd: more zeros behind a number change nothing in 32 bits.
constexpr std::size_t max_zeros_that_count = 32;

std::size_t count_digits(char const* text) noexcept {
  std::size_t count = 0;
  while (is_digit(text[count])) ++count;
  return count;
}

bool is_all_zeros(std::string_view digits) noexcept {
  return digits.find_first_not_of('0') == std::string_view::npos;
}

std::uint32_t magnitude_of(std::int32_t value) noexcept {
  auto const bits = static_cast<std::uint32_t>(value);
  return value < 0 ? 0u - bits : bits;
}

// The largest doubles have more than 300 digits before the point, so the length is measured first.
std::string print(double value, int fraction_digits) {
  int const length = std::snprintf(nullptr, 0, "%.*f", fraction_digits, value);
  if (length < 0) throw std::bad_alloc();  // a conversion of a number fails for no other reason
  std::string text(static_cast<std::size_t>(length), '\0');
  std::snprintf(text.data(), text.size() + 1, "%.*f", fraction_digits, value);
  return text;
}

}  // namespace

c_decimal::c_decimal(std::int32_t value, int scale) {
  std::uint32_t const magnitude = magnitude_of(value);
  std::string digits = std::to_string(magnitude);
  std::string text(value < 0 ? "-" : "");
  if (scale > 0) {
    std::size_t const fraction_size = std::min(digits.size(), static_cast<std::size_t>(scale));
    std::size_t const integral_size = digits.size() - fraction_size;
    text.append(integral_size == 0 ? std::string(1, '0') : digits.substr(0, integral_size))
        .append(1, '.')
        .append(static_cast<std::size_t>(scale) - fraction_size, '0')
        .append(digits, integral_size);
  } else {
    text.append(digits);
    if (magnitude != 0) text.append(0u - static_cast<unsigned int>(scale), '0');
  }
  m_text.assign(text);
}

c_decimal::c_decimal(long long value) { m_text.assign(std::to_string(value)); }
c_decimal::c_decimal(unsigned long long value) { m_text.assign(std::to_string(value)); }

c_decimal::c_decimal(double value, unsigned int digits) {
  p_init(print(value, static_cast<int>(std::min(digits, max_fraction_digits_of_double))).c_str(),
         point_or_locale);
  std::string_view text = m_text.view();
  if (text.find('.') == std::string_view::npos) return;
  text = text.substr(0, text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.remove_suffix(1);
  m_text.assign(text);
}

void c_decimal::p_init(char const* text, e_decimal_separator_handling handling) {
  if (text == nullptr) text = "";
  bool const is_negative = *text == '-';
  if (*text == '-' || *text == '+') ++text;
  std::string number = c_big_int(text).m_text;
  if (is_negative) number.insert(0, 1, '-');
  text += count_digits(text);
  if (p_skip_decimal_separator(text, handling)) {
    std::size_t const count = count_digits(text);
    if (count != 0) number.append(1, '.').append(text, count);
  }
  m_text.assign(number);
}

// The locale is asked only where "." was not found and something else stands there.
bool c_decimal::p_skip_decimal_separator(char const*& text, e_decimal_separator_handling handling) {
  if (*text == '.') {
    ++text;
    return true;
  }
  if (handling == point_only || *text == '\0') return false;
  char const* const separator = std::localeconv()->decimal_point;
  std::size_t const size = std::strlen(separator);
  if (std::strncmp(text, separator, size) != 0) return false;
  text += size;
  return true;
}

c_decimal::s_parts c_decimal::p_parts() const noexcept {
  std::string_view number = m_text.view();
  bool const is_negative = number.front() == '-';
  if (is_negative) number.remove_prefix(1);
  std::size_t const point = number.find('.');
  if (point == std::string_view::npos) return {is_negative, number, {}};
  return {is_negative, number.substr(0, point), number.substr(point + 1)};
}

bool c_decimal::is_valid(std::string const& text) noexcept {
  char const* const begin = text.c_str();
  char const* const number = begin + (*begin == '-' || *begin == '+' ? 1 : 0);
  std::size_t const integral_size = count_digits(number);
  char const* end = number + integral_size;
  if (*end == '.') {
    std::size_t const fraction_size = count_digits(++end);
    end += fraction_size;
    if (integral_size + fraction_size == 0) return false;
  }
  return end != number && end == begin + text.size();
}

// -1, 0 or 1. Zeros that only one of the two has at its end make no difference.
int c_decimal::p_fraction_comp(std::string_view a, std::string_view b) noexcept {
  std::size_t const shared = std::min(a.size(), b.size());
  int const order = a.substr(0, shared).compare(b.substr(0, shared));
  if (order != 0) return order < 0 ? -1 : 1;
  if (a.size() > shared) return is_all_zeros(a.substr(shared)) ? 0 : 1;
  return is_all_zeros(b.substr(shared)) ? 0 : -1;
}

// Zero is no exception to the sign test: -0 is another value than 0.
bool c_decimal::p_equals(c_decimal const& other) const noexcept {
  s_parts const a = p_parts();
  s_parts const b = other.p_parts();
  return a.is_negative == b.is_negative && a.integral == b.integral &&
         p_fraction_comp(a.fraction, b.fraction) == 0;
}

bool c_decimal::p_is_greater(c_decimal const& other) const noexcept {
  s_parts const a = p_parts();
  s_parts const b = other.p_parts();
  if (a.is_negative != b.is_negative) return !a.is_negative;
  if (a.integral != b.integral) return c_big_int::p_is_greater(a.integral, b.integral) != a.is_negative;
  int const order = p_fraction_comp(a.fraction, b.fraction);
  return a.is_negative ? order < 0 : order > 0;
}

std::int32_t c_decimal::get_scaled(int scale, bool* overflow) const {
  s_parts const parts = p_parts();
  std::string digits(parts.integral.substr(parts.integral.front() == '-' ? 1 : 0));
  if (scale > 0) {
    auto const wanted = static_cast<std::size_t>(scale);
    digits.append(parts.fraction.substr(0, wanted));
    if (parts.fraction.size() < wanted) {
      digits.append(std::min(wanted - parts.fraction.size(), max_zeros_that_count), '0');
    }
  } else {
    std::size_t const dropped = 0u - static_cast<unsigned int>(scale);
    digits.resize(digits.size() - std::min(digits.size(), dropped));
  }
  auto const magnitude = static_cast<std::uint32_t>(c_big_int(digits).get(overflow));
  return static_cast<std::int32_t>(parts.is_negative ? 0u - magnitude : magnitude);
}

std::int32_t c_decimal::get_integral(bool* overflow) const noexcept {
  s_parts const parts = p_parts();
  auto const value = static_cast<std::uint32_t>(c_big_int::p_get(parts.integral, overflow));
  return static_cast<std::int32_t>(parts.is_negative ? 0u - value : value);
}

// The magnitude stays signed: that of -2147483648 is the same number again and brings its own minus sign.
void c_decimal::set_integral(std::int32_t value) {
  std::string number = value < 0 ? "-" : "";
  number += std::to_string(static_cast<std::int32_t>(magnitude_of(value)));
  std::string_view const text = m_text.view();
  std::size_t const point = text.find('.');
  if (point != std::string_view::npos) number.append(text.substr(point));
  m_text.assign(number);
}

std::uint32_t c_decimal::get_fractional(int digits, bool* overflow) const noexcept {
  std::string_view const fraction = p_parts().fraction;
  std::uint32_t value = 0;
  bool too_great = false;
  auto const append = [&](char c) {
    auto const digit = static_cast<std::uint32_t>(c - '0');
    if (digit > ~(10u * value) || value > 429496729u) too_great = true;
    value = 10u * value + digit;
  };
  auto const wanted = static_cast<std::size_t>(std::max(digits, 0));
  std::size_t const present = std::min(wanted, fraction.size());
  for (std::size_t i = 0; i != present; ++i) append(fraction[i]);
  for (std::size_t i = std::min(wanted - present, max_zeros_that_count); i != 0; --i) append('0');
  if (overflow != nullptr) *overflow = too_great;
  return value;
}

void c_decimal::set_fractional(std::uint32_t value, unsigned int digits) {
  std::string fraction = std::to_string(value);
  if (fraction.size() > digits) fraction.resize(digits);
  fraction.insert(0, digits - fraction.size(), '0');
  std::string number(m_text.view().substr(0, m_text.view().find('.')));
  if (!fraction.empty()) number.append(1, '.').append(fraction);
  m_text.assign(number);
}

double c_decimal::get_as_float() const noexcept {
  s_parts const parts = p_parts();
  double value = c_big_int::p_get_as_float(parts.integral);
  double scale = 1.0;
  for (char const digit : parts.fraction.substr(0, max_digits_in_divisor)) {
    scale = scale * 10.0;
    value = (digit - '0') + value * 10.0;
  }
  value = value / scale;  // once, at the end
  return parts.is_negative ? -value : value;
}

std::ostream& operator<<(std::ostream& os, c_decimal const& value) { return os << value.view(); }

void detail::put(output_buffer& out, velmo::lmx::high_precision_c_decimal const& value) {
  out.append(value.view());
}

void v_to_o(velmo::lmx::high_precision_c_decimal& value, std::string const& text) { value = c_decimal(text); }

}  // namespace lmx
