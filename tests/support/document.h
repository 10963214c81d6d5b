// Reading one document of the format: strictly, or with a reader that records every report and lets it pass.
#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/temp_dir.h"
#include "transfer/reader/xmlReader.h"

/// What came of a document.
struct Reading {
  int code;
  int line;
  std::string item;
  friend bool operator==(Reading const& a, Reading const& b) {
    return a.code == b.code && a.line == b.line && a.item == b.item;
  }
  friend std::ostream& operator<<(std::ostream& out, Reading const& reading) {
    return out << "code " << reading.code << ", line " << reading.line << ", item \"" << reading.item << '"';
  }
};

/// Reads `document` into `root`. The line is the one the reader has reached.
inline Reading read_document(Root& root, std::string const& document) {
  TempDir directory;
  lmx::xmlReader reader(directory.write("document.xml", document).c_str());
  const int code = root.unmarshal(reader);
  return {code, reader.line(), reader.debug_error().m_item};
}

inline Reading read_document(std::string const& document) {
  Root root;
  return read_document(root, document);
}

/// One report that a tolerant reader let pass.
using Report = std::pair<int, std::string>;

class TolerantReader : public lmx::xmlReader {
 public:
  explicit TolerantReader(char const* path) : xmlReader(path) {}

  lmx::elmx_error handle_error(lmx::elmx_error code, std::string const& item, char const*, int) override {
    reports.emplace_back(code, item);
    return lmx::ELMX_OK;
  }
  lmx::elmx_error on_unknown_element(std::string const& name, std::vector<char> const&, char const*,
                                     int) override {
    unknown.push_back(name);
    return lmx::ELMX_OK;
  }

  std::vector<Report> reports;
  std::vector<std::string> unknown;
};

/// Everything that a tolerant reader reports of `document`, in order.
inline std::vector<Report> tolerated(Root& root, std::string const& document) {
  TempDir directory;
  TolerantReader reader(directory.write("document.xml", document).c_str());
  root.unmarshal(reader);
  return reader.reports;
}

inline std::vector<Report> tolerated(std::string const& document) {
  Root root;
  return tolerated(root, document);
}
