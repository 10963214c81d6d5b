// A document read from a file of its own through a reader that notes what the library asks of its host: each
// error, in order, and each name that no table has. What it answers is up to the test.
#pragma once

#include <functional>
#include <initializer_list>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/temp_dir.h"
#include "transfer/reader/xmlReader.h"

/// True for each code that reading is to go on after.
using Tolerance = std::function<bool(int code)>;

inline Tolerance strict() {
  return [](int) { return false; };
}
inline Tolerance tolerant() {
  return [](int) { return true; };
}
inline Tolerance tolerate(std::initializer_list<int> codes) {
  return [allowed = std::set<int>(codes)](int code) { return allowed.count(code) > 0; };
}

/// How a report is noted.
inline std::string report(int code, std::string const& item) { return std::to_string(code) + ' ' + item; }

class RecordingReader : public lmx::xmlReader {
 public:
  RecordingReader(std::string const& path, Tolerance tolerance)
      : xmlReader(path.c_str()), m_tolerance(std::move(tolerance)) {}
  RecordingReader(lmx::c_read& source, Tolerance tolerance)
      : xmlReader(source), m_tolerance(std::move(tolerance)) {}

  lmx::elmx_error handle_error(lmx::elmx_error code, std::string const& item, char const*,
                               int line) override {
    note(m_reports, report(code, item));
    note(m_program_lines, std::to_string(line));
    return m_tolerance(code) ? lmx::ELMX_OK : code;
  }
  lmx::elmx_error on_unknown_attribute(std::string const& name, std::vector<char> const& path, char const*,
                                       int line) override {
    note(m_unknown, names(path) + '@' + name);
    note(m_program_lines, std::to_string(line));
    return lmx::ELMX_OK;
  }
  lmx::elmx_error on_unknown_element(std::string const& name, std::vector<char> const& path, char const*,
                                     int line) override {
    note(m_unknown, names(path) + name);
    note(m_program_lines, std::to_string(line));
    return lmx::ELMX_OK;
  }

  /// Code and item of each error, such as "20 A, 25 AFE".
  std::string const& reports() const { return m_reports; }
  /// Each unknown name behind the elements it stands in, such as "LGP/Foo, LGP/LNK/@x".
  std::string const& unknown() const { return m_unknown; }
  /// The program's line that came with each of both, in the order they came in.
  std::string const& program_lines() const { return m_program_lines; }

 private:
  static void note(std::string& list, std::string const& entry) {
    list += (list.empty() ? "" : ", ") + entry;
  }
  static std::string names(std::vector<char> const& path) {
    std::string text(path.begin(), path.end());
    for (char& c : text) c = c == '\0' ? '/' : c;
    return text;
  }

  const Tolerance m_tolerance;
  std::string m_reports;
  std::string m_unknown;
  std::string m_program_lines;
};

/// The outcome of reading `bytes`, with the objects that were filled. The tree outlives the reader.
template <class Top = Root>
struct Reading {
  explicit Reading(std::string const& bytes, Tolerance tolerance = strict())
      : reader(directory.write("DOCUMENT.XML", bytes), std::move(tolerance)), error(top.unmarshal(reader)) {}

  TempDir directory;
  Top top;
  RecordingReader reader;
  lmx::elmx_error error;
};
