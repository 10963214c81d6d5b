// How commands write: text for a terminal, and JSON for programs. Whatever comes from a document is hostile
// until it has passed through here.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

/// `text` made safe for a terminal and for one line: each byte of a control character (C0, DEL, C1), of a
/// line or paragraph separator, of a mark that turns the direction of writing, and each byte that is not part
/// of valid UTF-8 becomes "\xHH", and a backslash becomes two. Everything else stays.
std::string escape(std::string_view text);

/// Rows of cells in columns as wide as their widest cell, two blanks apart. Cells are escaped here, so that
/// no command can forget it. Widths are counted in characters.
class Table {
 public:
  using Row = std::vector<std::string>;

  void add(Row const& row);
  /// Each row begins with two blanks; an empty cell is shown as "-", and a table without rows as "none".
  void print(std::ostream& out) const;

 private:
  std::vector<Row> rows;  // escaped
};

/// One JSON document with an indentation of two and a line end. Only ASCII is written: other characters as
/// "\uXXXX", bytes that are not valid UTF-8 as "\ufffd". Throws nothing for any text.
void print_json(nlohmann::ordered_json const& document, std::ostream& out);
