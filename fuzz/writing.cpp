// What is read can be written; what was written reads back to the same, and is written the same again.
#include <set>

#include "fuzz/support.h"

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\n'; }

// Characters that XML itself can not carry, or that come back as another: they only get into a value through
// a reference, or as bytes that are no UTF-8.
bool is_plain_text(std::string const& text) {
  for (std::size_t i = 0; i != text.size();) {
    const unsigned char first = static_cast<unsigned char>(text[i]);
    if (first < 0x20 && !is_blank(text[i])) return false;
    const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    int code_point = 0;
    if (length > text.size() - i || !lmx::utf8_to_unicode_char(text.c_str() + i, &code_point)) return false;
    char encoded[8];
    if (text.compare(i, length, lmx::unicode_char_to_utf8(code_point, encoded)) != 0) return false;
    if (code_point == 0x85 || code_point == 0x2028) return false;
    if (!lmx::is_valid_utf8_char_sequence(encoded)) return false;
    i += length;
  }
  return true;
}

// A reference does not bring the blank before it along where white space collapses.
bool has_blank_before_reference(std::string const& text) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '&' && is_blank(text[i - 1])) return true;
  }
  return false;
}

// Times outside of what their form can show: years before 0 with fewer than four digits, and seconds that
// round up to ten.
bool has_lost_time(std::string const& text) {
  if (text.find(":010") != std::string::npos) return true;
  for (std::size_t i = text.find('"'); i != std::string::npos; i = text.find('"', i + 1)) {
    std::size_t p = i + 1;
    while (p < text.size() && text[p] == '0') ++p;
    if (p + 1 < text.size() && text[p] == '-' && text[p + 1] >= '0' && text[p + 1] <= '9') {
      const std::size_t end = text.find_first_not_of("0123456789", p + 1);
      if (end != std::string::npos && end - p <= 4 && text[end] == '-') return true;
    }
  }
  return false;
}

// Every attribute's value and every element's text, as the tag level takes them, into `values`. False when it
// does not get to the end: content that the reader skips need not have good names.
bool collect_values(std::string_view document, lmx::elmx_whitespace mode, std::set<std::string>* values) {
  TextSource source(document, std::max<std::size_t>(document.size(), 1));
  lmx::c_error error;
  lmx::c_xml xml(source, error, true);
  std::string text;
  for (;;) {
    lmx::c_xml_local scope;
    const lmx::elxp_xml_event event = xml.get_element_name(&scope, &text);
    if (event == lmx::EXE_EOM || event == lmx::EXE_ERROR) return event == lmx::EXE_EOM;
    if (event != lmx::EXE_TOKEN) continue;
    lmx::elxp_xml_event attribute = xml.get_attribute_name(&text, false);
    for (; attribute == lmx::EXE_TOKEN; attribute = xml.get_attribute_name(&text, false)) {
      if (xml.get_attribute_value(&text, mode)) values->insert(text);
    }
    if (attribute == lmx::EXE_START_TAG_END && xml.get_element_value(&text, mode, true)) values->insert(text);
  }
}

// Text that has to be escaped comes out as it went in. (That writing is stable does not show it: what is
// escaped twice each time is stable too.)
void require_text_kept(std::string_view document, std::string const& rewritten) {
  std::set<std::string> before, after;
  if (!collect_values(document, lmx::EXWS_PRESERVE, &before)) return;
  collect_values(document, lmx::EXWS_COLLAPSE, &before);
  collect_values(rewritten, lmx::EXWS_PRESERVE, &after);
  for (std::string const& value : after) {
    const bool is_special = value.find_first_of("<>&'\"") != std::string::npos;
    fuzz::require(!is_special || before.count(value) != 0, "a text is written as it was read", value);
  }
}

fuzz::Reading read(Root& root, std::string const& document) {
  return fuzz::read(root, document, fuzz::Host::Strict, std::max<std::size_t>(document.size(), 1));
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  Root first;
  if (read(first, std::string(fuzz::text_of(data, size))).code != 0) return 0;
  fuzz::require(first.Check(), "what was read without an error is complete");
  std::string before = fuzz::written(first);
  const Root copy(first);
  fuzz::require(before == fuzz::written(copy), "a copy is written as its original", before);
  if (!is_plain_text(before)) return 0;
  require_text_kept(fuzz::text_of(data, size), before);
  if (has_lost_time(before)) return 0;

  // Where blanks get lost, they are lost the first time.
  const int passes = has_blank_before_reference(before) ? 2 : 1;
  for (int pass = 1; pass <= passes; ++pass) {
    Root again;
    const fuzz::Reading reading = read(again, before);
    fuzz::require(reading.code == 0, "what was written can be read", before + reading.seen);
    fuzz::require(first.chosen == again.chosen, "the same element is read back");
    const std::string after = fuzz::written(again);
    fuzz::require(before == after || pass != passes, "what was written is written the same again",
                  before + "---- and then\n" + after);
    before = after;
  }
  return 0;
}
