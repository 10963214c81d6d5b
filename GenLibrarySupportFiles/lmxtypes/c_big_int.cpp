// Integers as digit text. Every text is read by the same rule: an optional sign, leading zeros, then the
// digits that count. The relations apply that rule to the text where it stands instead of making a value
// of it, since they run twice for each integer attribute of a document.
#include "GenLibrarySupportFiles/lmxtypes/c_big_int.h"

#include <cfloat>
#include <cstddef>
#include <ostream>

#include "GenLibrarySupportFiles/lmxinternals/characters.h"

namespace lmx {

// Wider intermediate results would change the last bit of a conversion: 32-bit x86 needs SSE2 arithmetic.
static_assert(FLT_EVAL_METHOD >= 0 && FLT_EVAL_METHOD != 2, "doubles must be calculated as doubles");

namespace {

// Past an optional sign and the zeros in front: at a digit, unless the number is zero.
char const* first_digit_that_counts(char const* text) noexcept {
  if (*text == '-' || *text == '+') ++text;
  while (*text == '0') ++text;
  return text;
}

std::size_t count_digits(char const* text) noexcept {
  std::size_t count = 0;
  while (is_digit(text[count])) ++count;
  return count;
}

}  // namespace

c_big_int::c_big_int(std::int32_t value) : m_text(std::to_string(value)) {}
c_big_int::c_big_int(long long value) : m_text(std::to_string(value)) {}
c_big_int::c_big_int(unsigned long long value) : m_text(std::to_string(value)) {}

void c_big_int::p_init(char const* text) {
  if (text == nullptr) text = "";
  char const* const digits = first_digit_that_counts(text);
  std::size_t const count = count_digits(digits);
  bool const is_negative = *text == '-' && count != 0;  // a negative zero loses its sign
  m_text.clear();
  m_text.reserve(count + 1);
  if (is_negative) m_text += '-';
  if (count == 0) m_text += '0';
  m_text.append(digits, count);
}

// Wraps in 32 bits as unsigned arithmetic does, so that no digit text can overflow a signed number.
std::int32_t c_big_int::p_get(std::string_view text, bool* overflow) noexcept {
  std::uint32_t value = 0;
  bool too_great = false;
  for (char const c : text) {
    if (!is_digit(c)) continue;  // the sign
    auto const digit = static_cast<std::uint32_t>(c - '0');
    if (value > 214748364u || digit > 2147483647u - 10u * value) too_great = true;
    value = 10u * value + digit;
  }
  if (overflow != nullptr) *overflow = too_great;
  return static_cast<std::int32_t>(text.front() == '-' ? 0u - value : value);
}

double c_big_int::p_get_as_float(std::string_view text) noexcept {
  double value = 0.0;
  for (char const c : text) {
    if (is_digit(c)) value = (c - '0') + value * 10.0;
  }
  return text.front() == '-' ? -value : value;
}

// Without leading zeros the longer number has the greater magnitude.
bool c_big_int::p_is_greater(std::string_view a, std::string_view b) noexcept {
  bool const is_negative = a.front() == '-';
  if (is_negative != (b.front() == '-')) return !is_negative;
  if (a.size() != b.size()) return (a.size() > b.size()) != is_negative;
  return is_negative ? a < b : a > b;
}

bool c_big_int::p_equals(char const* text) const noexcept {
  if (text == nullptr) text = "0";
  if (*text == '\0') return false;
  char const* const digits = first_digit_that_counts(text);
  bool const counts_as_zero = !is_digit(*digits);
  if ((*text == '-') != p_is_negative())
    return text[0] == '-' && text[1] == '0' && counts_as_zero && p_is_zero();
  if (counts_as_zero) return p_is_zero();
  // The whole rest of the text, so that anything behind the digits makes a difference.
  return m_text.compare(p_is_negative() ? 1 : 0, std::string::npos, digits) == 0;
}

bool c_big_int::p_is_greater(char const* text) const noexcept {
  if (text == nullptr) text = "0";
  if (*text == '\0') return false;
  bool const is_negative = p_is_negative();
  char const* const digits = first_digit_that_counts(text);
  if ((*text == '-') != is_negative) {
    bool const both_are_zero = p_is_zero() && text[1] == '0' && *digits == '\0';
    return !is_negative && !both_are_zero;
  }
  if (!is_digit(*digits)) return !is_negative && !p_is_zero();

  // Without leading zeros the longer number has the greater magnitude.
  std::size_t const sign_size = is_negative ? 1 : 0;
  std::size_t const own_count = m_text.size() - sign_size;
  std::size_t const text_count = count_digits(digits);
  if (own_count != text_count) return (own_count > text_count) != is_negative;
  int const order = m_text.compare(sign_size, own_count, digits, text_count);
  return is_negative ? order < 0 : order > 0;
}

std::ostream& operator<<(std::ostream& os, c_big_int const& value) { return os << value.m_text; }

}  // namespace lmx
