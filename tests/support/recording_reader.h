// Readers that note what the library asks of its host: each error, and each name that no table has. And a
// document read through one from a file of its own.
#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/code_name.h"
#include "support/temp_dir.h"
#include "transfer/reader/xmlReader.h"

/// True for each code that reading is to go on after.
using Tolerance = std::function<bool(lmx::elmx_error code)>;

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
inline std::string report(int code, std::string const& item) { return code_name(code) + ' ' + item; }

/// A reader that notes every call of a hook. What it answers is up to the test.
template <class Base>
class Recording : public Base {
 public:
  using Base::Base;

  lmx::elmx_error on_error(lmx::elmx_error code, std::string const& item) override {
    errors_asked.push_back(report(code, item));
    return is_tolerated(code) ? lmx::ELMX_OK : Base::on_error(code, item);
  }
  lmx::elmx_error handle_error(lmx::elmx_error code, std::string const& item, char const* file,
                               int line) override {
    m_reports.push_back(report(code, item));
    note(m_reports.back(), file, line);
    return Base::handle_error(code, item, file, line);
  }
  lmx::elmx_error on_unknown_attribute(std::string const& name, std::vector<char> const& path,
                                       char const* file, int line) override {
    m_unknown.push_back(names(path) + '@' + name);
    note('@' + name + " in " + names(path), file, line);
    return attribute_verdict;
  }
  lmx::elmx_error on_unknown_element(std::string const& name, std::vector<char> const& path, char const* file,
                                     int line) override {
    m_unknown.push_back(names(path) + name);
    note('?' + name + " in " + names(path), file, line);
    return element_vetoes-- > 0 ? lmx::ELMX_USER_DEFINED_2 : lmx::ELMX_OK;
  }

  Tolerance is_tolerated = strict();
  lmx::elmx_error attribute_verdict = lmx::ELMX_OK;
  int element_vetoes = 0;  // how many unknown elements are refused before one may be skipped

  /// Each call: "BAD_END_OF_ELEMENT T" an error and its item, "?Foo in T/S/" an unknown element with the open
  /// elements, "@x in T/" an unknown attribute.
  std::vector<std::string> log;
  /// Where in the program each came from, such as "isoxmllib:12".
  std::vector<std::string> places;
  /// The errors that `on_error` was asked about.
  std::vector<std::string> errors_asked;

  std::string story() const { return joined(log, "; "); }
  /// Code and item of each error, such as "LENGTH_TOO_SHORT A, REQUIRED_ATTRIBUTES_MISSING AFE".
  std::string reports() const { return joined(m_reports, ", "); }
  /// Each unknown name behind the elements it stands in, such as "LGP/Foo, LGP/LNK/@x".
  std::string unknown() const { return joined(m_unknown, ", "); }
  std::string program_places() const { return joined(places, ", "); }

 private:
  static constexpr std::size_t most_calls = 1000 * 1000;

  void note(std::string const& entry, char const* file, int line) {
    if (log.size() > most_calls) throw std::runtime_error("reading does not come to an end: " + entry);
    log.push_back(entry);
    places.push_back(std::string(file) + ':' + std::to_string(line));
  }
  static std::string names(std::vector<char> const& path) {
    std::string text(path.begin(), path.end());
    for (char& c : text) c = c == '\0' ? '/' : c;
    return text;
  }
  static std::string joined(std::vector<std::string> const& entries, char const* separator) {
    std::string text;
    for (std::string const& entry : entries) text += (text.empty() ? "" : separator) + entry;
    return text;
  }

  std::vector<std::string> m_reports, m_unknown;
};

class RecordingReader : public Recording<lmx::xmlReader> {
 public:
  RecordingReader(std::string const& path, Tolerance tolerance) : Recording(path.c_str()) {
    is_tolerated = std::move(tolerance);
  }
  RecordingReader(lmx::c_read& source, Tolerance tolerance) : Recording(source) {
    is_tolerated = std::move(tolerance);
  }
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
