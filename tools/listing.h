// Lists of records as commands show them: a view says once, as a table of columns, what its records have, and
// both forms of output are made from that.
#pragma once

#include <functional>
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"
#include "tools/output.h"

using Json = nlohmann::ordered_json;

enum class OutputForm { AsText, AsJson };

/// One thing that a view shows of each record.
template <class Record>
struct Column {
  char const* key;     ///< In JSON; null for what is in text only.
  char const* header;  ///< In text; null for what is in JSON only.
  std::function<Json(Record const&)> value;
};

template <class Record>
using Columns = std::vector<Column<Record>>;

/// A value for people: null is empty, an array its values with commas between.
std::string as_text(Json const& value);

/// What cannot tell whether it is there: empty means that it is not.
Json null_if_empty(std::string const& text);

/// An attribute's value; a binary one is in capital hexadecimal digits.
template <class Value>
Json attribute(Value const& value) {
  if constexpr (std::is_same_v<Value, lmx::c_binary>) {
    return value.get_as_hex_string();
  } else {
    return value;
  }
}

/// What an element's attribute holds, null when it is not there.
template <class Element, class Value>
auto if_set(bool (Element::*is_set)() const, Value const& (Element::*get)() const) {
  return [is_set, get](Element const* element) {
    return (element->*is_set)() ? attribute((element->*get)()) : Json();
  };
}

template <class Record>
Json as_json(Record const& record, Columns<Record> const& columns) {
  Json object = Json::object();
  for (Column<Record> const& column : columns) {
    if (column.key != nullptr) object[column.key] = column.value(record);
  }
  return object;
}

template <class Record>
Json as_json(std::vector<Record> const& records, Columns<Record> const& columns) {
  Json array = Json::array();
  for (Record const& record : records) array.push_back(as_json(record, columns));
  return array;
}

/// A member that is itself a list of records.
template <class Owner, class Record>
auto list_of(std::vector<Record> Owner::*member, Columns<Record> columns) {
  return
      [member, columns = std::move(columns)](Owner const& owner) { return as_json(owner.*member, columns); };
}

template <class Record>
void print_as_json(std::vector<Record> const& records, Columns<Record> const& columns) {
  JsonArrayPrinter array(std::cout);
  for (Record const& record : records) array.add(as_json(record, columns));
  array.finish();
}

template <class Record>
void print_as_text(std::vector<Record> const& records, Columns<Record> const& columns) {
  Table table;
  Table::Row header;
  for (Column<Record> const& column : columns) {
    if (column.header != nullptr) header.emplace_back(column.header);
  }
  table.set_header(header);
  for (Record const& record : records) {
    Table::Row row;
    for (Column<Record> const& column : columns) {
      if (column.header != nullptr) row.push_back(as_text(column.value(record)));
    }
    table.add(row);
  }
  table.print(std::cout, "", style_of_standard_output());
}

template <class Record>
void print_list(std::vector<Record> const& records, Columns<Record> const& columns, OutputForm form) {
  if (form == OutputForm::AsJson) {
    print_as_json(records, columns);
  } else {
    print_as_text(records, columns);
  }
}
