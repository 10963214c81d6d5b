// Digits are looked up and written as characters, never formatted as numbers: neither the stream's flags
// nor its locale can then reach the text. Base64 goes by groups of 24 bits, four characters of six.
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"

#include <algorithm>
#include <array>
#include <locale>
#include <ostream>
#include <sstream>

#include "GenLibrarySupportFiles/lmxinternals/characters.h"
#include "GenLibrarySupportFiles/lmxtypes/value_text.h"

namespace lmx {

namespace {

constexpr char hex_digits[] = "0123456789ABCDEF";
constexpr char base64_characters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

struct s_hex_row {
  bool is_digit = false;
  unsigned char value = 0;  // for no digit, what the rule for "A" to "F" would make of it
};

constexpr std::array<s_hex_row, 256> make_hex_rows() {
  std::array<s_hex_row, 256> rows{};
  for (int c = 0; c < 256; ++c) {
    int const value = is_digit(c) ? c - '0' : c >= 'a' && c <= 'f' ? c - 'a' + 10 : c - 'A' + 10;
    rows[static_cast<std::size_t>(c)] = {is_hex_digit(c), static_cast<unsigned char>(value)};
  }
  return rows;
}

constexpr std::array<s_hex_row, 256> hex_rows = make_hex_rows();

s_hex_row const& hex_row(char c) { return hex_rows[static_cast<unsigned char>(c)]; }

bool is_base64_character(int c) { return is_letter(c) || is_digit(c) || c == '+' || c == '/'; }

// Padding is "=" or, for the rest of the text, anything behind a white space.
bool is_base64_padding(std::string const& text, std::size_t from) {
  for (std::size_t i = from; i < text.size(); ++i) {
    if (is_space(text[i])) return true;
    if (text[i] != '=') return false;
  }
  return true;
}

template <class Write>
std::string collect(Write write) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out.exceptions(std::ios::badbit);  // or the text could be cut off unnoticed when memory runs out
  write(out);
  return out.str();
}

}  // namespace

c_binary::c_binary(unsigned char const* bytes, unsigned int size) : m_value(bytes, bytes + size) {}

c_binary& c_binary::operator=(c_binary const& other) {
  c_binary copy(other);
  swap(copy);
  return *this;
}

void c_binary::set(unsigned char const* bytes, unsigned int size) {
  c_binary copy(bytes, size);
  swap(copy);
}

unsigned char* c_binary::get(unsigned char* out, unsigned int size) const {
  std::copy_n(data(), std::min<std::size_t>(size, m_value.size()), out);
  return out;
}

unsigned char& c_binary::operator[](unsigned int i_in) {
  LMX_ASSERT(i_in < m_value.size());
  return p_as_byte(m_value[i_in]);
}

unsigned char const& c_binary::operator[](unsigned int i_in) const {
  LMX_ASSERT(i_in < m_value.size());
  return p_as_byte(m_value[i_in]);
}

c_binary& c_binary::operator+=(unsigned char byte) {
  append(byte);
  return *this;
}

bool c_binary::equal(unsigned char const* bytes, unsigned int size) const {
  return std::equal(data(), data() + m_value.size(), bytes, bytes + size);
}

bool c_binary::is_valid_hex(std::string const& text) {
  return text.size() % 2 == 0 &&
         std::all_of(text.begin(), text.end(), [](char c) { return hex_row(c).is_digit; });
}

void c_binary::from_hex_digits(std::string_view text) {
  m_value.assign(text.size() / 2, '\0');
  char const* digit = text.data();
  for (char& byte : m_value) {
    byte = static_cast<char>(hex_row(digit[0]).value << 4 | hex_row(digit[1]).value);
    digit += 2;
  }
}

void detail::put(output_buffer& out, c_binary const& value) {
  out.stream().fill('0');  // kept: the old fill character does not come back
  if (value.empty()) return;
  out.stream().width(0);
  constexpr std::size_t bytes_at_once = 256;
  for (std::size_t from = 0; from < value.size(); from += bytes_at_once) {
    std::size_t const to = std::min(value.size(), from + bytes_at_once);
    char* end = out.room_for(2 * (to - from));
    for (std::size_t i = from; i < to; ++i) {
      unsigned char const byte = value.data()[i];
      *end++ = hex_digits[byte >> 4];
      *end++ = hex_digits[byte & 0x0F];
    }
    out.advance_to(end);
  }
}

void c_binary::out_hex(std::ostream& out) const { detail::put_through(out, *this); }

std::string c_binary::get_as_hex_string() const {
  return collect([this](std::ostream& out) { out_hex(out); });
}

unsigned int c_binary::p_base64_char_to_6_bits(int c) {
  if (c >= 'A' && c <= 'Z') return static_cast<unsigned int>(c - 'A');
  if (c >= 'a' && c <= 'z') return static_cast<unsigned int>(c - 'a' + 26);
  if (is_digit(c)) return static_cast<unsigned int>(c - '0' + 52);
  return c == '+' ? 62 : 63;
}

char c_binary::p_6_bits_to_base64_char(unsigned int bits) { return base64_characters[bits < 63 ? bits : 63]; }

bool c_binary::is_valid_base64(std::string const& text) {
  if (text.empty()) return true;
  std::size_t data = 0;
  std::size_t i = 0;
  for (; i < text.size() && (is_base64_character(text[i]) || is_space(text[i])); ++i) {
    if (!is_space(text[i])) ++data;
  }
  std::size_t const padding = text.size() - i;
  if (i < 2 || padding > 2 || (data + padding) % 4 != 0) return false;
  return is_base64_padding(text, i);
}

void c_binary::from_base64(std::string const& text) {
  m_value.clear();
  m_value.reserve(text.size() / 4 * 3);
  unsigned int bits = 0;
  unsigned int count = 0;
  for (char const c : text) {
    if (!is_base64_character(c)) continue;
    bits = bits << 6 | p_base64_char_to_6_bits(c);
    if (++count < 4) continue;
    p_base64_convert_24bits_to_bytes(bits, count);
    bits = count = 0;
  }
  if (count > 0) p_base64_convert_24bits_to_bytes(bits << (24 - 6 * count), count);
}

// Kept: a single character left over gives a byte too, of its six bits and two zeros.
void c_binary::p_base64_convert_24bits_to_bytes(unsigned int bits, unsigned int count) {
  append(static_cast<unsigned char>(bits >> 16));
  if (count >= 3) append(static_cast<unsigned char>(bits >> 8));
  if (count == 4) append(static_cast<unsigned char>(bits));
}

void c_binary::out_base64(std::ostream& out) const {
  unsigned int bits = 0;
  unsigned int count = 0;
  for (char const byte : m_value) {
    bits = bits << 8 | static_cast<unsigned char>(byte);
    if (++count < 3) continue;
    p_convert_24bits_to_4x6bits(out, bits, count);
    bits = count = 0;
  }
  p_convert_24bits_to_4x6bits(out, bits, count);
}

// `count` bytes, 0 to 3, stand in the low end of `bits`.
void c_binary::p_convert_24bits_to_4x6bits(std::ostream& out, unsigned int bits, unsigned int count) {
  if (count == 0) return;
  bits <<= 8 * (3 - count);
  char text[4] = {'=', '=', '=', '='};
  for (unsigned int i = 0; i <= count; ++i) text[i] = p_6_bits_to_base64_char(bits >> (18 - 6 * i) & 0x3F);
  out.write(text, sizeof text);
}

std::string c_binary::get_as_base64_string() const {
  return collect([this](std::ostream& out) { out_base64(out); });
}

std::ostream& output_convert_to_hex(std::ostream& out, c_binary const& value) {
  value.out_hex(out);
  return out;
}

std::ostream& output_convert_to_base64(std::ostream& out, c_binary const& value) {
  value.out_base64(out);
  return out;
}

}  // namespace lmx
