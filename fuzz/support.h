// What the fuzz targets share: laws that stop the process when they are broken, documents in memory, and all
// that a host can see of a reading.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"
#include "support/text_source.h"
#include "transfer/reader/xmlReader.h"

/// What libFuzzer, and the program that replays kept inputs, call for each input.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace fuzz {

/// Stops the process with the law's text unless it is kept.
inline void require(bool is_kept, char const* law, std::string const& detail = "") {
  if (is_kept) return;
  std::fprintf(stderr, "Law broken: %s\n%s\n", law, detail.c_str());
  std::abort();
}

inline std::string_view text_of(std::uint8_t const* data, std::size_t size) {
  return {reinterpret_cast<char const*>(data), size};
}

/// The input's parts: a line "=====" stands between two of them.
inline std::vector<std::string> parts_of(std::string_view input) {
  constexpr std::string_view separator = "\n=====\n";
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t end = input.find(separator);
    parts.emplace_back(input.substr(0, end));
    if (end == std::string_view::npos) return parts;
    input.remove_prefix(end + separator.size());
  }
}

enum class Host { Strict, Tolerant };

/// Notes whatever the library asks of its host, with the line it has reached.
class NotingReader : public lmx::xmlReader {
 public:
  NotingReader(lmx::c_read& source, Host host) : xmlReader(source), m_host(host) {}

  lmx::elmx_error handle_error(lmx::elmx_error code, std::string const& item, char const*, int) override {
    if (first_code == 0) first_code = code;
    note("error " + std::to_string(code) + ' ' + item);
    return m_host == Host::Strict ? code : lmx::ELMX_OK;
  }
  lmx::elmx_error on_unknown_attribute(std::string const& name, std::vector<char> const& path, char const*,
                                       int) override {
    note("attribute " + std::string(path.begin(), path.end()) + name);
    return lmx::ELMX_OK;
  }
  lmx::elmx_error on_unknown_element(std::string const& name, std::vector<char> const& path, char const*,
                                     int) override {
    note("element " + std::string(path.begin(), path.end()) + name);
    return lmx::ELMX_OK;
  }

  int first_code = 0;
  std::string notes;

 private:
  void note(std::string const& entry) { notes += std::to_string(line()) + ": " + entry + '\n'; }

  const Host m_host;
};

inline std::string written(Root const& root) {
  std::ostringstream out;
  lmx::c_xml_writer writer(out);
  root.marshal(writer, nullptr);
  return out.str();
}

struct Reading {
  int code;
  int first_code;    ///< What the host was told first.
  std::string seen;  ///< Everything else: code, line, record, calls of the host, lists and tree.
};

inline Reading read(Root& root, std::string_view document, Host host, std::size_t window) {
  TextSource source(document, window);
  NotingReader reader(source, host);
  const int code = root.unmarshal(reader);
  std::string seen = "code " + std::to_string(code) + ", line " + std::to_string(reader.line()) +
                     ", last code " + std::to_string(reader.error_log().last_code()) + '\n' +
                     reader.get_error_message() + '\n' + reader.notes + written(root);
  for (const std::size_t count :
       {reader.getGrowerContainer().size(), reader.getFarmContainer().size(),
        reader.getFieldContainer().size(), reader.getExternalFileReferenceContainer().size(),
        reader.getAttachedFileContainer().size(), reader.getTaskContainer().size(),
        reader.getProductContainer().size(), reader.getValuePreContainer().size(),
        reader.getQuestions().size(), reader.getCropTypeContainer().size(),
        reader.getProductGroupContainer().size()}) {
    seen += std::to_string(count) + ' ';
  }
  return {code, reader.first_code, seen};
}

/// Reads `document` in every way that must come to the same.
inline void require_one_reading(std::string_view document) {
  int first_codes[2] = {};
  for (const Host host : {Host::Strict, Host::Tolerant}) {
    Root whole_root, bytes_root, windows_root;
    const Reading whole = read(whole_root, document, host, std::max<std::size_t>(document.size(), 1));
    const Reading bytes = read(bytes_root, document, host, 0);
    require(whole.seen == bytes.seen, "a document gives the same in bulk and byte by byte",
            whole.seen + "\n---- byte by byte\n" + bytes.seen);
    const Reading windows = read(windows_root, document, host, 7);
    require(whole.seen == windows.seen, "a document gives the same in bulk and in windows",
            whole.seen + "\n---- in windows\n" + windows.seen);
    require(host == Host::Tolerant || whole.code == whole.first_code, "a strict read ends at the first error",
            whole.seen);
    first_codes[host == Host::Tolerant] = whole.first_code;
  }
  require(first_codes[0] == first_codes[1], "a tolerant host hears the same error first",
          std::string(document));
}

}  // namespace fuzz
