// The scanners work on bytes alone and compare each with the ASCII character it may be, so neither the
// locale nor the sign of `char` can reach a result. The checks on std::string run the scanners over the C
// text and then ask whether they stopped at the string's own end.
#include "GenLibrarySupportFiles/lmxtypes/lexical.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>

#include "GenLibrarySupportFiles/lmxinternals/characters.h"

namespace lmx {

namespace {

template <class Count>
Count saturated(std::size_t count) {
  constexpr Count highest = std::numeric_limits<Count>::max();
  return count < static_cast<std::size_t>(highest) ? static_cast<Count>(count) : highest;
}

int passed(char const* from, char const* to) { return saturated<int>(static_cast<std::size_t>(to - from)); }

bool is_end(char const* p, std::string const& text) { return p == text.c_str() + text.size(); }

unsigned int digit_value(char digit) { return static_cast<unsigned int>(digit - '0'); }

unsigned int byte_at(std::string const& text, std::size_t index) {
  return static_cast<unsigned char>(text[index]);
}

}  // namespace

bool get_sign(char const*& p, bool& is_negative) {
  is_negative = *p == '-';
  return skip_sign(p);
}

bool get_opt_sign(char const*& p, bool& is_negative) {
  get_sign(p, is_negative);
  return true;
}

bool skip_sign(char const*& p) {
  if (*p != '-' && *p != '+') return false;
  ++p;
  return true;
}

bool skip_opt_sign(char const*& p) {
  skip_sign(p);
  return true;
}

int get_digits(char const*& p, unsigned int& value) {
  char const* const start = p;
  value = 0;
  for (; is_digit(*p); ++p) value = value * 10 + digit_value(*p);
  return passed(start, p);
}

int get_digits(char const*& p, int& value) {
  unsigned int wrapped = 0;
  int const count = get_digits(p, wrapped);
  value = static_cast<int>(wrapped);
  return count;
}

int skip_digits(char const*& p) {
  char const* const start = p;
  while (is_digit(*p)) ++p;
  return passed(start, p);
}

int get_decimal(char const*& p, double& value) {
  // Beyond this, value and scale would both overflow, and infinity over infinity is no number.
  constexpr double highest_scale = 1e290;
  char const* const start = p;
  value = 0.0;
  for (; is_digit(*p); ++p) value = value * 10.0 + digit_value(*p);
  if (*p != '.') return passed(start, p);
  double scale = 1.0;
  for (++p; is_digit(*p); ++p) {
    if (scale >= highest_scale) continue;
    value = value * 10.0 + digit_value(*p);
    scale *= 10.0;
  }
  value /= scale;
  return passed(start, p);
}

int get_decimal(char const*& p, float& value) {
  double wide = 0.0;
  int const count = get_decimal(p, wide);
  value = static_cast<float>(wide);
  return count;
}

int skip_decimal(char const*& p) {
  char const* const start = p;
  skip_digits(p);
  if (*p != '.') return passed(start, p);
  ++p;
  if (*start == '.' && *p == '\0') return 0;
  skip_digits(p);
  return passed(start, p);
}

bool skip_const(char const*& p, char const* literal) {
  char const* ahead = p;
  for (; *literal != '\0'; ++literal, ++ahead) {
    if (*ahead != *literal) return false;
  }
  p = ahead;
  return true;
}

bool skip_ws(char const*& p) {
  char const* const start = p;
  while (is_space(*p)) ++p;
  return p != start;
}

bool skip_opt_ws(char const*& p) {
  skip_ws(p);
  return true;
}

int skip_non_ws(char const*& p) {
  char const* const start = p;
  while (*p != '\0' && !is_space(*p)) ++p;
  return passed(start, p);
}

bool skip_opt_non_ws(char const*& p) {
  skip_non_ws(p);
  return true;
}

bool get_non_ws(char const*& p, std::string* word) {
  char const* const start = p;
  skip_non_ws(p);
  word->assign(start, p);
  return p != start;
}

bool is_valid_bool(std::string const& text) {
  return text == "true" || text == "1" || text == "false" || text == "0";
}

bool is_valid_integer(std::string const& text) {
  char const* p = text.c_str();
  skip_sign(p);
  return skip_digits(p) > 0 && is_end(p, text);
}

bool is_valid_float(std::string const& text) {
  if (text == "INF" || text == "-INF" || text == "NaN") return true;
  char const* p = text.c_str();
  skip_sign(p);
  if (skip_decimal(p) == 0) return false;
  if (*p == 'e' || *p == 'E') {
    skip_sign(++p);
    if (skip_digits(p) == 0) return false;
  }
  return is_end(p, text);
}

namespace {

// How many bytes the character announced by `lead` takes; 0 if it announces none. A surrogate half in
// three bytes takes its other half with it.
std::size_t announced_length(unsigned int lead, unsigned int next) {
  if (lead < 0x80) return 1;
  if ((lead & 0xE0) == 0xC0) return 2;
  if (lead == 0xED && (next & 0xE0) == 0xA0) return 6;
  if ((lead & 0xF0) == 0xE0) return 3;
  if ((lead & 0xF8) == 0xF0) return 4;
  return 0;
}

// The byte after the last one is the string's own NUL, so looking one ahead is safe.
std::size_t count_characters(std::string const& text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size();) {
    ++count;
    std::size_t const step = announced_length(byte_at(text, i), byte_at(text, i + 1));
    if (step == 0) break;
    i += step;
  }
  return count;
}

constexpr bool is_high_surrogate(std::uint32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
constexpr bool is_low_surrogate(std::uint32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }
constexpr std::uint32_t join(std::uint32_t high, std::uint32_t low) {
  return (low & 0x3FF) + ((high & 0x3FF) << 10) + 0x10000;
}

std::uint32_t unit_at(std::wstring const& text, std::size_t index) {
  return static_cast<std::uint32_t>(text[index]);
}

}  // namespace

unsigned int length(std::string const& text) { return saturated<unsigned int>(count_characters(text)); }

unsigned int length(std::wstring const& text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++i, ++count) {
    if (is_high_surrogate(unit_at(text, i))) ++i;
  }
  return saturated<unsigned int>(count);
}

// No character is longer than four bytes but the six of a surrogate pair, so the size alone decides most
// texts and nothing is counted.
bool is_min_length_ok(std::string const& text, unsigned int n) {
  return text.size() / 4 >= n || n <= count_characters(text);
}

bool is_max_length_ok(std::string const& text, unsigned int n) {
  if (text.size() <= n) return true;
  if (text.size() > 4 * std::uint64_t{n}) return false;
  return count_characters(text) <= n;
}

unsigned int total_digits(std::string const& text) {
  return saturated<unsigned int>(
      static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) { return is_digit(c); })));
}

unsigned int fraction_digits(std::string const& text) {
  auto const point = std::find(text.begin(), text.end(), '.');
  return saturated<unsigned int>(
      static_cast<std::size_t>(std::count_if(point, text.end(), [](char c) { return is_digit(c); })));
}

void vtostring(std::string& out, std::string const& text) { out = text; }

namespace {

// Decodes the sequence at `i` and moves `i` past it. False, with `i` anywhere, when it is malformed.
bool decode_sequence(std::string const& text, std::size_t& i, std::uint32_t& c) {
  c = byte_at(text, i++);
  if (c < 0x80) return true;
  int continuations = 0;
  if ((c & 0xE0) == 0xC0) {
    continuations = 1;
    c &= 0x1F;
  } else if ((c & 0xF0) == 0xE0) {
    continuations = 2;
    c &= 0x0F;
  } else if ((c & 0xF8) == 0xF0) {
    continuations = 3;
    c &= 0x07;
  } else {
    return false;
  }
  for (; continuations > 0; --continuations, ++i) {
    if ((byte_at(text, i) & 0xC0) != 0x80) return false;  // the NUL behind the text included
    c = (c << 6) | (byte_at(text, i) & 0x3F);
  }
  return true;
}

void append_utf8(std::string& out, std::uint32_t c) {
  auto const put = [&out](std::uint32_t byte) { out += static_cast<char>(static_cast<unsigned char>(byte)); };
  auto const put_continuation = [&put](std::uint32_t bits) { put(0x80 | (bits & 0x3F)); };
  if (c < 0x80) return put(c);
  if (c < 0x800) {
    put(0xC0 | (c >> 6));
  } else {
    if (c < 0x10000) {
      put(0xE0 | (c >> 12));
    } else {
      put(0xF0 | ((c >> 18) & 0x07));
      put_continuation(c >> 12);
    }
    put_continuation(c >> 6);
  }
  put_continuation(c);
}

}  // namespace

void vtostring(std::wstring& out, std::string const& text) {
  out.clear();
  for (std::size_t i = 0; i < text.size();) {
    std::uint32_t c = 0;
    if (!decode_sequence(text, i, c)) return;
    if (is_high_surrogate(c)) {
      std::uint32_t low = 0;
      if (i == text.size() || !decode_sequence(text, i, low) || !is_low_surrogate(low)) return;
      c = join(c, low);
    }
    out += static_cast<wchar_t>(c);
  }
}

void convert(std::wstring* out, std::string const& text) { vtostring(*out, text); }

void convert(std::string* out, std::wstring const& text) {
  out->clear();
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::uint32_t c = unit_at(text, i);
    if (is_high_surrogate(c) && ++i < text.size() && is_low_surrogate(unit_at(text, i))) {
      c = join(c, unit_at(text, i));
    }
    // Kept: the element after an unpaired high surrogate is gone by now.
    append_utf8(*out, c);
  }
}

namespace {

template <class S>
void store_qname(ct_qname<S>* out, std::string const&, std::string const& name_space,
                 std::string const& name) {
  out->m_namespace = name_space;
  vtostring(out->m_name, name);
}

template <class S>
void store_qname(S* out, std::string const& qname, std::string const&, std::string const&) {
  vtostring(*out, qname);
}

template <class T>
void unpack_qname(T* out, std::string const& packed) {
  auto const is_white = [](char c) { return is_space(c); };
  auto const qname_end = std::find_if(packed.begin(), packed.end(), is_white);
  auto const name = std::find_if_not(qname_end, packed.end(), is_white);
  auto const name_end = std::find_if(name, packed.end(), is_white);
  auto const name_space = std::find_if_not(name_end, packed.end(), is_white);
  make_qname(out, std::string(packed.begin(), qname_end), std::string(name_space, packed.end()),
             std::string(name, name_end));
}

}  // namespace

void make_qname(ct_qname<std::string>* out, std::string const& qname, std::string const& name_space,
                std::string const& name) {
  store_qname(out, qname, name_space, name);
}

void make_qname(ct_qname<std::wstring>* out, std::string const& qname, std::string const& name_space,
                std::string const& name) {
  store_qname(out, qname, name_space, name);
}

void make_qname(std::string* out, std::string const& qname, std::string const& name_space,
                std::string const& name) {
  store_qname(out, qname, name_space, name);
}

void make_qname(std::wstring* out, std::string const& qname, std::string const& name_space,
                std::string const& name) {
  store_qname(out, qname, name_space, name);
}

void make_qname(ct_qname<std::string>* out, std::string const& packed) { unpack_qname(out, packed); }
void make_qname(ct_qname<std::wstring>* out, std::string const& packed) { unpack_qname(out, packed); }
void make_qname(std::string* out, std::string const& packed) { unpack_qname(out, packed); }
void make_qname(std::wstring* out, std::string const& packed) { unpack_qname(out, packed); }

elmx_must_understand bool_must_understand(std::string const& text) {
  if (text == "1" || text == "true") return EMU_TRUE;
  if (text == "0" || text == "false") return EMU_FALSE;
  return EMU_INVALID;
}

char* xstrdup(char const* text) {
  std::size_t const size = std::strlen(text) + 1;
  return static_cast<char*>(std::memcpy(::operator new(size), text, size));
}

int xstricmp(char const* a, char const* b) {
  for (;; ++a, ++b) {
    int const from_a = to_lower(static_cast<unsigned char>(*a));
    int const from_b = to_lower(static_cast<unsigned char>(*b));
    if (from_a != from_b || from_a == '\0') return from_a - from_b;
  }
}

void* bswap(void* a, void* b, unsigned int n) {
  auto* const bytes = static_cast<unsigned char*>(a);
  std::swap_ranges(bytes, bytes + n, static_cast<unsigned char*>(b));
  return a;
}

double float_zero() { return 0.0; }

}  // namespace lmx
