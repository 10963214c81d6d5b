// The tokens of a list: what white space separates in the text of a list-typed value (XML Schema Part 2,
// 2.5.1.2).
#pragma once

#include <cstddef>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

/// Splits one text after the other. White space is what the C locale takes for it, whatever locale is set.
class ISOXML_API c_xml_list_tokeniser {
 public:
  /// The text is copied.
  explicit c_xml_list_tokeniser(std::string const& text) : m_text(text) {}
  /// Begins with another text, which is copied.
  void set(std::string const& text);
  /// Stores the next token, which is never empty. False, and nothing stored, when there is none.
  bool get(std::string* token);
  /// How many tokens the text has.
  static int count(std::string const& text);

 private:
  std::string m_text;
  std::size_t m_next = 0;
};

}  // namespace lmx
