#include "tools/output.h"

#include <algorithm>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <utility>

namespace {

constexpr std::size_t column_gap = 2;

struct CodePoint {
  unsigned value;
  std::size_t length;  // in bytes; 0 when the bytes are not valid UTF-8
};

// Refuses what no valid UTF-8 has: overlong forms, surrogates, and values beyond U+10FFFF.
CodePoint decode(std::string_view text) {
  struct Form {
    unsigned char mask, lead;
    std::size_t length;
    unsigned lowest;
  };
  constexpr Form forms[] = {
      {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};
  constexpr CodePoint invalid{0, 0};
  const auto byte_at = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
  for (Form const& form : forms) {
    if ((byte_at(0) & form.mask) != form.lead) continue;
    if (text.size() < form.length) return invalid;
    unsigned value = byte_at(0) & static_cast<unsigned char>(~form.mask);
    for (std::size_t i = 1; i != form.length; ++i) {
      if ((byte_at(i) & 0xC0) != 0x80) return invalid;
      value = value << 6 | (byte_at(i) & 0x3Fu);
    }
    const bool is_surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < form.lowest || value > 0x10FFFF || is_surrogate) return invalid;
    return {value, form.length};
  }
  return invalid;
}

bool drives_terminal(unsigned value) {
  const bool is_control = value < 0x20 || (value >= 0x7F && value <= 0x9F);
  const bool is_line_end = value == 0x2028 || value == 0x2029;
  const bool turns_direction = value == 0x061C || value == 0x200E || value == 0x200F ||
                               (value >= 0x202A && value <= 0x202E) || (value >= 0x2066 && value <= 0x2069);
  return is_control || is_line_end || turns_direction;
}

std::string in_hex(std::string_view bytes) {
  constexpr char digits[] = "0123456789abcdef";
  std::string text;
  for (char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    text += {'\\', 'x', digits[value >> 4], digits[value & 0xF]};
  }
  return text;
}

// Of escaped text, which is valid UTF-8.
std::size_t count_characters(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

}  // namespace

std::string escape(std::string_view text) {
  std::string escaped;
  while (!text.empty()) {
    const CodePoint character = decode(text);
    const std::string_view bytes = text.substr(0, std::max<std::size_t>(character.length, 1));
    if (character.length == 0 || drives_terminal(character.value)) {
      escaped += in_hex(bytes);
    } else if (character.value == '\\') {
      escaped += "\\\\";
    } else {
      escaped += bytes;
    }
    text.remove_prefix(bytes.size());
  }
  return escaped;
}

void Table::add(Row const& row) {
  Row escaped;
  for (std::string const& cell : row) escaped.push_back(cell.empty() ? "-" : escape(cell));
  rows.push_back(std::move(escaped));
}

void Table::print(std::ostream& out) const {
  if (rows.empty()) out << std::string(column_gap, ' ') << "none\n";
  std::vector<std::size_t> widths;
  for (Row const& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i != row.size(); ++i) widths[i] = std::max(widths[i], count_characters(row[i]));
  }
  for (Row const& row : rows) {
    std::size_t blanks = column_gap;
    for (std::size_t i = 0; i != row.size(); ++i) {
      out << std::string(blanks, ' ') << row[i];
      blanks = widths[i] - count_characters(row[i]) + column_gap;
    }
    out << '\n';
  }
}

void print_json(nlohmann::ordered_json const& document, std::ostream& out) {
  constexpr int indentation = 2;
  constexpr bool ascii_only = true;  // a terminal may be what reads it, and its encoding is not ours to know
  out << document.dump(indentation, ' ', ascii_only, nlohmann::ordered_json::error_handler_t::replace)
      << '\n';
}
