// How commands write: text for a terminal, and JSON for programs. Whatever comes from a document is hostile
// until it has passed through here.
#pragma once

#include <cstddef>
#include <nlohmann/json_fwd.hpp>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

/// `text` made safe for a terminal and for one line: each byte of a control character (C0, DEL, C1), of a
/// line or paragraph separator, of a mark that turns the direction of writing, and each byte that is not part
/// of valid UTF-8 becomes "\xHH", and a backslash becomes two. Everything else stays.
std::string escape(std::string_view text);

/// Whether `text` is valid UTF-8 without any of the characters that are escaped for what they do.
bool is_plain_text(std::string_view text);

/// How text is laid out for the place it goes to.
struct TextStyle {
  std::size_t width = 0;      ///< In columns of a terminal; no line is wider. 0 is no limit.
  bool has_emphasis = false;  ///< Whether escape sequences may emphasise.
};

/// What standard output takes: a terminal has a width (80 where it does not tell) and emphasis, unless the
/// variable NO_COLOR is not empty or TERM is empty or "dumb"; everything else gets plain, whole text.
TextStyle style_of_standard_output();

/// Rows of cells in columns as wide as their widest cell, two blanks apart. Cells are escaped here, so that
/// no command can forget it. Widths are those a terminal gives to characters: 2 to an ideograph, 0 to a
/// combining mark.
class Table {
 public:
  using Row = std::vector<std::string>;

  void add(Row const& row);
  /// The first row, which a table without other rows does not show.
  void set_header(Row const& row);
  /// An empty cell is shown as "-", and a table without rows as "none". Each row begins with `indentation`.
  /// Where the rows are too wide for the style, the last column is left out, which is the one to do without;
  /// then the widest columns give way, cells ending with "…", and at last more columns. Each row that lacks
  /// columns ends with "…".
  void print(std::ostream& out, std::string const& indentation = "  ", TextStyle const& style = {}) const;

 private:
  Row header;  // escaped, and so are the rows
  std::vector<Row> rows;
};

/// One JSON document with an indentation of two and a line end. Only ASCII is written: other characters as
/// "\uXXXX", bytes that are not valid UTF-8 as "\ufffd". Throws nothing for any text.
void print_json(nlohmann::ordered_json const& document, std::ostream& out);
void print_json(nlohmann::json const& document, std::ostream& out);

/// Prints an array as `print_json` does, but element by element, so that only one need be in memory.
class JsonArrayPrinter {
 public:
  explicit JsonArrayPrinter(std::ostream& output) : out(output) {}

  void add(nlohmann::ordered_json const& element);
  /// To be called once, at the end.
  void finish();

 private:
  std::ostream& out;
  bool is_empty = true;
};
