// A transfer set opened through this library, for the programs that measure it.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <streambuf>
#include <string>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"
#include "transfer/IsoXmlParser.h"

namespace bench {

inline std::unique_ptr<IsoXmlParser> open_set(std::filesystem::path const& path) {
  auto set = std::make_unique<IsoXmlParser>(path.parent_path().string(), path.filename().string());
  if (!set->getErrors().empty()) throw std::runtime_error(set->getErrors().front().message);
  return set;
}

/// Counts the start tags of what is written to it, and keeps nothing.
class ElementCounter : public std::streambuf {
 public:
  std::size_t count() const { return m_count; }

 protected:
  int_type overflow(int_type c) override {
    const bool begins_name = c != '/' && c != '?' && c != '!';
    if (m_last == '<' && begins_name) ++m_count;
    m_last = c;
    return traits_type::not_eof(c);
  }

 private:
  int_type m_last = 0;
  std::size_t m_count = 0;
};

/// The elements of all documents, as they would be written.
inline std::size_t count_elements(IsoXmlParser const& set) {
  ElementCounter counter;
  std::ostream stream(&counter);
  lmx::c_xml_writer writer(stream);
  for (IsoDocument const& document : set.getDocuments()) {
    if (document.root != nullptr) document.root->marshal(writer, nullptr);
  }
  return counter.count();
}

}  // namespace bench
