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

bool is_all_zeros(char const* digits) noexcept { return digits[std::strspn(digits, "0")] == '\0'; }

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

c_decimal::c_decimal(std::int32_t value, int scale) : m_is_negative(value < 0) {
  std::uint32_t const magnitude = magnitude_of(value);
  std::string digits = std::to_string(magnitude);
  if (scale > 0) {
    std::size_t const fraction_size = std::min(digits.size(), static_cast<std::size_t>(scale));
    std::size_t const integral_size = digits.size() - fraction_size;
    m_fraction.assign(static_cast<std::size_t>(scale) - fraction_size, '0').append(digits, integral_size);
    digits.resize(integral_size);
  } else if (magnitude != 0) {
    digits.append(0u - static_cast<unsigned int>(scale), '0');
  }
  m_integral = digits;
}

c_decimal::c_decimal(double value, unsigned int digits) {
  p_init(print(value, static_cast<int>(std::min(digits, max_fraction_digits_of_double))).c_str(),
         point_or_locale);
  p_cull_right_hand_zeros();
}

void c_decimal::p_init(char const* text, e_decimal_separator_handling handling) {
  if (text == nullptr) text = "";
  m_is_negative = *text == '-';
  if (*text == '-' || *text == '+') ++text;
  m_integral.p_init(text);
  text += count_digits(text);
  if (p_skip_decimal_separator(text, handling)) m_fraction.assign(text, count_digits(text));
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

void c_decimal::p_cull_right_hand_zeros() { m_fraction.erase(m_fraction.find_last_not_of('0') + 1); }

void c_decimal::swap(c_decimal& other) noexcept {
  std::swap(m_is_negative, other.m_is_negative);
  m_integral.swap(other.m_integral);
  m_fraction.swap(other.m_fraction);
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
int c_decimal::p_fraction_comp(std::string const& a, std::string const& b) noexcept {
  std::size_t const shared = std::min(a.size(), b.size());
  int const order = a.compare(0, shared, b, 0, shared);
  if (order != 0) return order < 0 ? -1 : 1;
  if (a.size() > shared) return is_all_zeros(a.c_str() + shared) ? 0 : 1;
  return is_all_zeros(b.c_str() + shared) ? 0 : -1;
}

// Zero is no exception to the sign test: -0 is another value than 0.
bool c_decimal::p_equals(c_decimal const& other) const noexcept {
  return m_is_negative == other.m_is_negative && m_integral == other.m_integral &&
         p_fraction_comp(m_fraction, other.m_fraction) == 0;
}

bool c_decimal::p_is_greater(c_decimal const& other) const noexcept {
  if (m_is_negative != other.m_is_negative) return !m_is_negative;
  if (m_integral != other.m_integral) return (m_integral > other.m_integral) != m_is_negative;
  int const order = p_fraction_comp(m_fraction, other.m_fraction);
  return m_is_negative ? order < 0 : order > 0;
}

std::int32_t c_decimal::get_scaled(int scale, bool* overflow) const {
  std::string digits = m_integral.m_text.substr(m_integral.p_is_negative() ? 1 : 0);
  if (scale > 0) {
    auto const wanted = static_cast<std::size_t>(scale);
    digits.append(m_fraction, 0, wanted);
    if (m_fraction.size() < wanted) {
      digits.append(std::min(wanted - m_fraction.size(), max_zeros_that_count), '0');
    }
  } else {
    std::size_t const dropped = 0u - static_cast<unsigned int>(scale);
    digits.resize(digits.size() - std::min(digits.size(), dropped));
  }
  auto const magnitude = static_cast<std::uint32_t>(c_big_int(digits).get(overflow));
  return static_cast<std::int32_t>(m_is_negative ? 0u - magnitude : magnitude);
}

std::int32_t c_decimal::get_integral(bool* overflow) const noexcept {
  auto const value = static_cast<std::uint32_t>(m_integral.get(overflow));
  return static_cast<std::int32_t>(m_is_negative ? 0u - value : value);
}

// The magnitude stays signed: that of -2147483648 is the same number again and brings its own minus sign.
void c_decimal::set_integral(std::int32_t value) {
  m_integral = static_cast<std::int32_t>(magnitude_of(value));
  m_is_negative = value < 0;
}

std::uint32_t c_decimal::get_fractional(int digits, bool* overflow) const noexcept {
  std::uint32_t value = 0;
  bool too_great = false;
  auto const append = [&](char c) {
    auto const digit = static_cast<std::uint32_t>(c - '0');
    if (digit > ~(10u * value) || value > 429496729u) too_great = true;
    value = 10u * value + digit;
  };
  auto const wanted = static_cast<std::size_t>(std::max(digits, 0));
  std::size_t const present = std::min(wanted, m_fraction.size());
  for (std::size_t i = 0; i != present; ++i) append(m_fraction[i]);
  for (std::size_t i = std::min(wanted - present, max_zeros_that_count); i != 0; --i) append('0');
  if (overflow != nullptr) *overflow = too_great;
  return value;
}

void c_decimal::set_fractional(std::uint32_t value, unsigned int digits) {
  std::string fraction = std::to_string(value);
  if (fraction.size() > digits) fraction.resize(digits);
  fraction.insert(0, digits - fraction.size(), '0');
  m_fraction.swap(fraction);
}

double c_decimal::get_as_float() const noexcept {
  double value = m_integral.get_as_float();
  double scale = 1.0;
  std::size_t const count = std::min(m_fraction.size(), max_digits_in_divisor);
  for (std::size_t i = 0; i != count; ++i) {
    scale = scale * 10.0;
    value = (m_fraction[i] - '0') + value * 10.0;
  }
  value = value / scale;  // once, at the end
  return m_is_negative ? -value : value;
}

std::string c_decimal::get_as_string() const {
  std::string text;
  text.reserve(m_integral.m_text.size() + m_fraction.size() + 2);
  if (m_is_negative) text += '-';
  text += m_integral.m_text;
  if (!m_fraction.empty()) text.append(1, '.').append(m_fraction);
  return text;
}

std::ostream& operator<<(std::ostream& os, c_decimal const& value) {
  std::string const text = value.get_as_string();
  return os.write(text.data(), static_cast<std::streamsize>(text.size()));
}

void v_to_o(velmo::lmx::high_precision_c_decimal& value, std::string const& text) { value = c_decimal(text); }

}  // namespace lmx
