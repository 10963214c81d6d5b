// One text for every value type. The first byte is the type, the rest its text; where two texts are compared,
// a line "=====" stands between them. A valid text makes a value that is written and read back as the same;
// any text makes some value, without a step past its end.
#include <cmath>
#include <memory>

#include "GenLibrarySupportFiles/lmxtypes.h"
#include "fuzz/support.h"

namespace {

template <class T>
std::string written(T const& value) {
  std::ostringstream out;
  lmx::o_to_v(out, value);
  return out.str();
}

// Reading what was written changes nothing more.
template <class T>
void settle(std::string const& text) {
  T value{}, again{};
  lmx::v_to_o(value, text);
  const std::string once = written(value);
  lmx::v_to_o(again, once);
  fuzz::require(once == written(again), "a value is written the same again", once);
}

void numbers(std::string const& text) {
  settle<unsigned char>(text);
  settle<unsigned short>(text);
  settle<int>(text);
  settle<unsigned int>(text);
  settle<bool>(text);
  settle<double>(text);
  lmx::text_to_int32(text.c_str());
  lmx::text_to_uint32(text.c_str(), 16);
  if (lmx::is_valid_float(text) && text.find_first_of("IN") == std::string::npos) {
    double value = 0;
    lmx::v_to_o(value, text);
    fuzz::require(!std::isnan(value), "digits are a number", text);
  }
}

// Of two values exactly one of the three relations holds.
template <class T>
void order(T const& a, T const& b) {
  fuzz::require((a == b) + (a < b) + (a > b) == 1, "one of <, == and > holds");
  fuzz::require((a < b) == (b > a) && (a == b) == (b == a), "relations can be turned round");
  fuzz::require((a <= b) == !(a > b) && (a >= b) == !(a < b) && (a != b) == !(a == b), "relations agree");
}

void big_integers(std::string const& a, std::string const& b) {
  const lmx::c_big_int one(a), other(b);
  fuzz::require(lmx::c_big_int(one.get_as_string()) == one, "an integer's text is the integer");
  bool overflow = false;
  one.get(&overflow);
  one.get_as_float();
  if (!lmx::is_valid_integer(a) || !lmx::is_valid_integer(b)) return;
  order(one, other);
  fuzz::require((one < other) == (one < b) && (one == other) == (one == b) && (one > other) == (a > other),
                "a text compares as its value", a + ' ' + b);
}

void decimals(std::string const& a, std::string const& b) {
  using decimal = velmo::lmx::high_precision_c_decimal;
  const decimal one(a), other(b);
  one.get_as_float();
  one.get_integral();
  one.get_fractional(3);
  one.get_scaled(2);
  if (!lmx::c_decimal::is_valid(a) || !lmx::c_decimal::is_valid(b)) return;
  settle<decimal>(a);
  fuzz::require(decimal(one.get_as_string()) == one, "a decimal's text is the decimal", a);
  order(one, other);
}

void binaries(std::string const& text) {
  lmx::c_binary value, again;
  if (lmx::c_binary::is_valid_hex(text)) {
    value.from_hex(text);
    again.from_hex(value.get_as_hex_string());
    fuzz::require(value == again && value.size() == text.size() / 2, "hexadecimal digits are kept", text);
  }
  value.from_hex(text);
  if (lmx::c_binary::is_valid_base64(text)) {
    value.from_base64(text);
    const std::string once = value.get_as_base64_string();
    again.from_base64(once);
    fuzz::require(lmx::c_binary::is_valid_base64(once) && value == again, "base 64 is kept", text);
  }
  value.from_base64(text);
}

// The text of a time that shows all of it: no sign, and seconds that do not round up to ten.
template <class T>
void one_time(std::string const& text) {
  const T value(text);
  const std::string once = value.get_as_string();
  if (!T::is_valid(text) || value.get_year() < 0 || once.find("010") != std::string::npos) return;
  const T again(once);
  fuzz::require(T::is_valid(once), "what was written is valid", text + " as " + once);
  fuzz::require(once == again.get_as_string(), "a time is written the same again", text + " as " + once);
}

void times(std::string const& text) {
  one_time<lmx::c_datetime>(text);
  one_time<lmx::c_date>(text);
  one_time<lmx::c_time>(text);
  one_time<lmx::c_gyear>(text);
  one_time<lmx::c_gyearmonth>(text);
  one_time<lmx::c_gmonthday>(text);
  one_time<lmx::c_gday>(text);
  one_time<lmx::c_gmonth>(text);
}

void durations(std::string const& a, std::string const& b) {
  lmx::c_duration one(a), other(b);
  const std::string once = one.get_as_string();
  // More seconds than fourteen digits can hold are written with an exponent, which no duration has.
  constexpr double most_seconds = 9e13;
  if (lmx::c_duration::is_valid(a.c_str()) && one.m_secs < most_seconds) {
    fuzz::require(lmx::c_duration::is_valid(once.c_str()), "what was written is valid", a + " as " + once);
    fuzz::require(lmx::c_duration(once).get_as_string() == once, "a duration is written the same again",
                  once);
  }
  fuzz::require(!(one == other) || !(one < other), "equal is not less");
  fuzz::require((one == other) == (other == one), "equality can be turned round");
  one.normalize();
}

void texts(std::string const& text) {
  const unsigned length = lmx::length(text);
  fuzz::require(length <= text.size(), "a character has a byte");
  fuzz::require(lmx::is_min_length_ok(text, length), "a text has its length", text);
  std::wstring wide;
  std::string narrow, escaped;
  lmx::convert(&wide, text);
  lmx::convert(&narrow, wide);
  std::wstring wide_again;
  lmx::convert(&wide_again, narrow);
  lmx::total_digits(text);
  lmx::fraction_digits(text);
  lmx::bool_must_understand(text);
  std::ostringstream out;
  lmx::output_convert_to_xml(out, text);
  lmx::output_convert_to_escaped(out, text);
  lmx::output_convert_to_ascii(out, wide);
  char const* const end = text.c_str() + text.size();
  const auto scan = [&](auto scanner) {
    for (char const* p = text.c_str(); *p != '\0';) {
      char const* const before = p;
      scanner(p);
      fuzz::require(p >= before && p <= end, "a scanner stays in its text", text);
      if (p == before) ++p;
    }
  };
  bool negative = false;
  unsigned digits = 0;
  double number = 0;
  std::string word;
  scan([&](char const*& p) { lmx::get_opt_sign(p, negative); });
  scan([&](char const*& p) { lmx::get_digits(p, digits); });
  scan([&](char const*& p) { lmx::get_decimal(p, number); });
  scan([](char const*& p) { lmx::skip_decimal(p); });
  scan([](char const*& p) { lmx::skip_opt_ws(p); });
  scan([](char const*& p) { lmx::skip_non_ws(p); });
  scan([&](char const*& p) { lmx::get_non_ws(p, &word); });
}

// ---- Validators ----

constexpr unsigned any_length = ~0u;

// A validator, and the rule it stands for.
struct Row {
  lmx::elmx_error (*validator)(lmx::c_xml_reader& reader, std::string const& text);
  bool (*is_valid)(std::string const& text);
  unsigned min_length, max_length;
  char const *pattern, *minimum, *maximum;  // null for none
};

const Row rows[] = {
#include "lexical_validators.inc"
};

// The codes that the rule gives, in the order of its tests.
std::vector<int> codes_of(Row const& row, lmx::c_regex const* pattern, std::string const& text) {
  std::vector<int> codes;
  if (row.is_valid != nullptr && !row.is_valid(text)) codes.push_back(lmx::ELMX_VALUE_BAD_FORMAT);
  if (!lmx::is_min_length_ok(text, row.min_length)) codes.push_back(lmx::ELMX_LENGTH_TOO_SHORT);
  if (!lmx::is_max_length_ok(text, row.max_length)) codes.push_back(lmx::ELMX_LENGTH_TOO_LONG);
  if (pattern != nullptr && !pattern->is_match(text)) codes.push_back(lmx::ELMX_NO_PATTERN_MATCHED);
  if (row.minimum != nullptr && !(lmx::c_big_int(row.minimum) <= text))
    codes.push_back(lmx::ELMX_VALUE_EXCEEDS_MIN);
  if (row.maximum != nullptr && !(text <= lmx::c_big_int(row.maximum)))
    codes.push_back(lmx::ELMX_VALUE_EXCEEDS_MAX);
  return codes;
}

class CodeReader : public lmx::c_xml_reader {
 public:
  explicit CodeReader(lmx::c_read& read) : c_xml_reader(read) {}
  lmx::elmx_error handle_error(lmx::elmx_error code, std::string const&, char const*, int) override {
    codes.push_back(code);
    return lmx::ELMX_OK;
  }
  std::vector<int> codes;
};

void validators(std::string const& text) {
  static const std::vector<std::unique_ptr<lmx::c_regex>> patterns = [] {
    std::vector<std::unique_ptr<lmx::c_regex>> all;
    for (Row const& row : rows) {
      all.push_back(row.pattern == nullptr ? nullptr : std::make_unique<lmx::c_regex>(row.pattern));
    }
    return all;
  }();
  TextSource nothing("", 1);
  for (std::size_t i = 0; i != std::size(rows); ++i) {
    CodeReader reader(nothing);
    rows[i].validator(reader, text);
    fuzz::require(reader.codes == codes_of(rows[i], patterns[i].get(), text),
                  ("lexical validator " + std::to_string(i + 1) + " keeps its rule").c_str(), text);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string text(fuzz::text_of(data + 1, size - 1));
  std::vector<std::string> two = fuzz::parts_of(text);
  two.resize(2);
  switch (data[0]) {
    case 'n': numbers(text); break;
    case 'i': big_integers(two[0], two[1]); break;
    case 'd': decimals(two[0], two[1]); break;
    case 'b': binaries(text); break;
    case 't': times(text); break;
    case 'p': durations(two[0], two[1]); break;
    case 's': texts(text); break;
    case 'v': validators(text); break;
    default: break;
  }
  return 0;
}
