#include "isoxmllib/rules.h"

#include "GenLibrarySupportFiles/lmxinternals/characters.h"
#include "GenLibrarySupportFiles/lmxinternals/words.h"

namespace binding {

namespace words = lmx::words;

namespace {

std::size_t size_of(lmx::plain_text_view text) { return static_cast<std::size_t>(text.end - text.begin); }

bool is_length_ok(lmx::plain_text_view text, text_rule const& rule) {
  return size_of(text) >= rule.min_length && size_of(text) <= rule.max_length;
}

}  // namespace

lmx::elmx_error check_text(lmx::c_xml_reader& reader, std::string const& text, text_rule const& rule) {
  lmx::elmx_error error = lmx::ELMX_OK;
  if (rule.is_valid != nullptr && !rule.is_valid(text)) {
    error = report_value(reader, lmx::ELMX_VALUE_BAD_FORMAT);
    if (error != lmx::ELMX_OK) return error;
  }
  if (!lmx::is_min_length_ok(text, rule.min_length)) {
    error = report_value(reader, lmx::ELMX_LENGTH_TOO_SHORT);
    if (error != lmx::ELMX_OK) return error;
  }
  if (rule.max_length != no_max_length && !lmx::is_max_length_ok(text, rule.max_length)) {
    error = report_value(reader, lmx::ELMX_LENGTH_TOO_LONG);
    if (error != lmx::ELMX_OK) return error;
  }
  if (rule.pattern != nullptr && !rule.pattern().is_match(text)) {
    return report_value(reader, lmx::ELMX_NO_PATTERN_MATCHED);
  }
  return lmx::ELMX_OK;
}

lmx::elmx_error check_integer(lmx::c_xml_reader& reader, std::string const& text,
                              lmx::c_big_int const& minimum, lmx::c_big_int const& maximum) {
  if (!lmx::is_valid_integer(text)) {
    lmx::elmx_error const error = report_value(reader, lmx::ELMX_VALUE_BAD_FORMAT);
    if (error != lmx::ELMX_OK) return error;
  }
  if (!(minimum <= text)) {
    lmx::elmx_error const error = report_value(reader, lmx::ELMX_VALUE_EXCEEDS_MIN);
    if (error != lmx::ELMX_OK) return error;
  }
  if (!(text <= maximum)) return report_value(reader, lmx::ELMX_VALUE_EXCEEDS_MAX);
  return lmx::ELMX_OK;
}

lmx::elmx_error check_size(lmx::c_xml_reader& reader, std::size_t size, std::size_t minimum,
                           std::size_t maximum) {
  if (size < minimum) {
    lmx::elmx_error const error = report_value(reader, lmx::ELMX_LENGTH_TOO_SHORT);
    if (error != lmx::ELMX_OK) return error;
  }
  if (size > maximum) return report_value(reader, lmx::ELMX_LENGTH_TOO_LONG);
  return lmx::ELMX_OK;
}

bool accept_text(std::string& value, lmx::plain_text_view text, text_rule const& rule) {
  if (!is_length_ok(text, rule)) return false;
  value.assign(text.begin, text.end);
  return true;
}

bool accept_token(std::string& value, lmx::plain_text_view text, text_rule const& rule) {
  for (char const* p = text.begin; p != text.end; ++p) {
    if (lmx::is_space(*p)) return false;
  }
  return accept_text(value, text, rule);
}

bool accept_match(std::string& value, lmx::plain_text_view text, text_rule const& rule,
                  text_matcher const& matcher) {
  if (!is_length_ok(text, rule) || !matcher.matches(text)) return false;
  value.assign(text.begin, text.end);
  return true;
}

bool scan_integer(lmx::plain_text_view text, std::int64_t* value) {
  constexpr std::ptrdiff_t most_digits = 10;  // more than any range of the format
  char const* p = text.begin;
  bool const is_negative = p != text.end && *p == '-';
  if (is_negative) ++p;
  if (p == text.end || text.end - p > most_digits) return false;
  if (*p == '0' && (is_negative || text.end - p > 1)) return false;
  std::int64_t number = 0;
  for (; p != text.end; ++p) {
    unsigned const digit = digit_at(p);
    if (digit > 9) return false;
    number = number * 10 + digit;
  }
  *value = is_negative ? -number : number;
  return true;
}

bool is_decimal(char const* begin, char const* end, whole_parts const& range) {
  constexpr unsigned too_great = 100000000;  // one digit more still fits into the number
  bool const is_negative = begin != end && *begin == '-';
  char const* const digits = begin + (is_negative ? 1 : 0);
  char const* p = digits;
  unsigned whole = 0;
  for (; p != end; ++p) {
    unsigned const digit = digit_at(p);
    if (digit > 9) break;
    if (whole >= too_great) return false;
    whole = whole * 10 + digit;
  }
  if (p == digits || (*digits == '0' && p - digits > 1)) return false;
  if (!range.hold(is_negative, whole)) return false;
  if (p == end) return true;
  if (*p != '.' || ++p == end) return false;
  for (; end - p >= 8; p += 8) {
    if (!words::are_digits(words::load(p))) return false;
  }
  for (; p != end; ++p) {
    if (digit_at(p) > 9) return false;
  }
  return true;
}

bool accept_bytes(lmx::c_binary& value, lmx::plain_text_view text, std::size_t minimum, std::size_t maximum) {
  std::size_t const size = size_of(text) / 2;
  if (size_of(text) % 2 != 0 || size < minimum || size > maximum) return false;
  for (char const* p = text.begin; p != text.end; ++p) {
    if (!lmx::is_hex_digit(*p)) return false;
  }
  value.from_hex_digits({text.begin, size_of(text)});
  return true;
}

bool accept_date_time(lmx::c_datetime& value, lmx::plain_text_view text) {
  static constexpr char shape[] = "0000-00-00T00:00:00";  // a "0" for any digit
  static constexpr char fixed[] = "\0\0\0\0\xFF\0\0\xFF\0\0\xFF\0\0\xFF\0\0\xFF\0";
  constexpr std::size_t shape_size = sizeof shape - 1;
  constexpr std::ptrdiff_t most_decimals = 9;  // then number and scale are exact, whoever divides them
  if (size_of(text) < shape_size) return false;
  char const* p = text.begin;
  for (std::size_t const at : {std::size_t{0}, std::size_t{8}, shape_size - 8}) {
    using words::load;
    if (!words::has_shape(load(p + at), load(shape + at), load(fixed + at))) return false;
  }
  auto const number_at = [&text](std::size_t at) {
    return static_cast<unsigned>(text.begin[at] - '0') * 10 + static_cast<unsigned>(text.begin[at + 1] - '0');
  };
  std::uint64_t seconds = number_at(17);
  std::uint64_t scale = 1;
  p += shape_size;
  if (p != text.end && *p == '.') {
    char const* const decimals = ++p;
    for (; p != text.end && lmx::is_digit(*p); ++p) {
      if (p - decimals == most_decimals) return false;
      seconds = seconds * 10 + static_cast<unsigned>(*p - '0');
      scale *= 10;
    }
    if (p == decimals) return false;
  }
  bool const is_utc = p != text.end && *p == 'Z';
  if (p + (is_utc ? 1 : 0) != text.end) return false;
  value.m_year = static_cast<int>(number_at(0) * 100 + number_at(2));
  value.m_month = number_at(5);
  value.m_day = number_at(8);
  value.m_hours = number_at(11);
  value.m_mins = number_at(14);
  value.m_secs = static_cast<double>(seconds) / static_cast<double>(scale);
  value.m_tz_offset = 0;
  value.m_is_utc = is_utc;
  return true;
}

}  // namespace binding
