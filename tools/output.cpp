#include "tools/output.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
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

// The columns that a terminal gives to a character: Unicode's wide and zero-width blocks, in coarse ranges.
std::size_t width_of(unsigned character) {
  struct Range {
    unsigned first, last;
    std::size_t width;
  };
  constexpr Range ranges[] = {
      {0x0300, 0x036F, 0},   {0x1100, 0x115F, 2},   {0x1AB0, 0x1AFF, 0},   {0x1DC0, 0x1DFF, 0},
      {0x200B, 0x200D, 0},   {0x2060, 0x2060, 0},   {0x20D0, 0x20FF, 0},   {0x2E80, 0x303E, 2},
      {0x3041, 0xA4CF, 2},   {0xA960, 0xA97F, 2},   {0xAC00, 0xD7A3, 2},   {0xF900, 0xFAFF, 2},
      {0xFE00, 0xFE0F, 0},   {0xFE20, 0xFE2F, 0},   {0xFE30, 0xFE6F, 2},   {0xFEFF, 0xFEFF, 0},
      {0xFF00, 0xFF60, 2},   {0xFFE0, 0xFFE6, 2},   {0x1F300, 0x1F64F, 2}, {0x1F680, 0x1F6FF, 2},
      {0x1F900, 0x1FAFF, 2}, {0x20000, 0x3FFFD, 2},
  };
  for (Range const& range : ranges) {
    if (character >= range.first && character <= range.last) return range.width;
  }
  return 1;
}

// Of escaped text, which is valid UTF-8.
std::size_t width_of(std::string_view text) {
  std::size_t width = 0;
  while (!text.empty()) {
    const CodePoint character = decode(text);
    width += width_of(character.value);
    text.remove_prefix(character.length);
  }
  return width;
}

// The beginning of escaped text, with "…" in the place of what would be beyond `width`.
std::string shorten(std::string_view text, std::size_t width) {
  if (width_of(text) <= width) return std::string(text);
  if (width == 0) return std::string();
  std::size_t taken = 0;
  std::size_t room = width - 1;
  while (true) {
    const CodePoint character = decode(text.substr(taken));
    if (width_of(character.value) > room) return std::string(text.substr(0, taken)) + "…";
    room -= width_of(character.value);
    taken += character.length;
  }
}

// How wide each shown column is. Of many columns the last ones may be left out.
struct Layout {
  std::vector<std::size_t> widths;
  bool is_cut = false;
};

constexpr std::size_t least_width = 8;  // to which a column gives way before others are left out
constexpr char cut_mark[] = "…";

std::size_t total(std::vector<std::size_t> const& widths, std::size_t most) {
  std::size_t sum = widths.empty() ? 0 : column_gap * (widths.size() - 1);
  for (std::size_t width : widths) sum += std::min(width, most);
  return sum;
}

Layout fit(std::vector<std::size_t> widths, std::size_t available) {
  Layout layout;
  const bool is_too_wide = total(widths, std::string::npos) > available;
  while (widths.size() > 1 && is_too_wide && (!layout.is_cut || total(widths, least_width) > available)) {
    if (!layout.is_cut) available -= std::min(available, column_gap + 1);  // for the mark
    layout.is_cut = true;
    widths.pop_back();
  }
  std::size_t most = 1;
  for (std::size_t beyond = available + 1; most + 1 < beyond;) {
    const std::size_t middle = most + (beyond - most) / 2;
    (total(widths, middle) <= available ? most : beyond) = middle;
  }
  for (std::size_t& width : widths) width = std::min(width, most);
  layout.widths = std::move(widths);
  return layout;
}

std::string line_of(Table::Row const& row, Layout const& layout) {
  std::string line;
  std::size_t blanks = 0;
  for (std::size_t i = 0; i != std::min(row.size(), layout.widths.size()); ++i) {
    const std::string cell = shorten(row[i], layout.widths[i]);
    line.append(blanks, ' ').append(cell);
    blanks = layout.widths[i] - width_of(cell) + column_gap;
  }
  if (layout.is_cut) line.append(blanks, ' ').append(cut_mark);
  return line;
}

Table::Row escaped_row(Table::Row const& row) {
  Table::Row escaped;
  for (std::string const& cell : row) escaped.push_back(cell.empty() ? "-" : escape(cell));
  return escaped;
}

constexpr int json_indentation = 2;

// Only ASCII: a terminal may be what reads it, and its encoding is not ours to know.
template <class Json>
std::string json_text(Json const& document) {
  return document.dump(json_indentation, ' ', true, Json::error_handler_t::replace);
}

std::string environment(char const* name) {
  char const* const value = std::getenv(name);
  return value == nullptr ? "" : value;
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

bool is_plain_text(std::string_view text) {
  while (!text.empty()) {
    const CodePoint character = decode(text);
    if (character.length == 0 || drives_terminal(character.value)) return false;
    text.remove_prefix(character.length);
  }
  return true;
}

TextStyle style_of_standard_output() {
  constexpr std::size_t usual_width = 80;
  TextStyle style;
  if (isatty(STDOUT_FILENO) == 0) return style;
  winsize size{};
  const bool is_known = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col != 0;
  style.width = is_known ? size.ws_col : usual_width;
  const std::string terminal = environment("TERM");
  style.has_emphasis = environment("NO_COLOR").empty() && !terminal.empty() && terminal != "dumb";
  return style;
}

void Table::add(Row const& row) { rows.push_back(escaped_row(row)); }

void Table::set_header(Row const& row) { header = escaped_row(row); }

void Table::print(std::ostream& out, std::string const& indentation, TextStyle const& style) const {
  if (rows.empty()) {
    out << indentation << "none\n";
    return;
  }
  Layout layout;
  const auto measure = [&widths = layout.widths](Row const& row) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i != row.size(); ++i) widths[i] = std::max(widths[i], width_of(row[i]));
  };
  measure(header);
  for (Row const& row : rows) measure(row);
  const std::size_t available = style.width - std::min(style.width, indentation.size());
  if (style.width != 0) layout = fit(std::move(layout.widths), available);
  const auto line_within = [&](Row const& row) {
    return style.width == 0 ? line_of(row, layout) : shorten(line_of(row, layout), available);
  };
  if (!header.empty()) {
    char const* const bold = style.has_emphasis ? "\x1b[1m" : "";
    char const* const plain = style.has_emphasis ? "\x1b[0m" : "";
    out << indentation << bold << line_within(header) << plain << '\n';
  }
  for (Row const& row : rows) out << indentation << line_within(row) << '\n';
}

void print_json(nlohmann::ordered_json const& document, std::ostream& out) {
  out << json_text(document) << '\n';
}

void print_json(nlohmann::json const& document, std::ostream& out) { out << json_text(document) << '\n'; }

void JsonArrayPrinter::add(nlohmann::ordered_json const& element) {
  const std::string indentation(json_indentation, ' ');
  const std::string text = json_text(element);
  out << (is_empty ? "[\n" : ",\n");
  is_empty = false;
  for (std::size_t begin = 0; begin < text.size();) {  // line by line: within a text a line end is escaped
    const std::size_t end = std::min(text.find('\n', begin), text.size() - 1) + 1;
    out << indentation << std::string_view(text).substr(begin, end - begin);
    begin = end;
  }
}

void JsonArrayPrinter::finish() { out << (is_empty ? "[]\n" : "\n]\n"); }
