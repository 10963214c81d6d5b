// An internal subset, an attribute value and content that use its entities. Expansion stays within what a
// document of that size may cause, under each white space mode, and does not depend on how the bytes come.
#include "GenLibrarySupportFiles/lmxparse/limits.h"
#include "fuzz/support.h"

namespace {

// What the tag level makes of the document: each item, each attribute's value, each element's text.
std::string items(std::string_view document, lmx::elmx_whitespace mode, bool normalise, std::size_t window) {
  TextSource source(document, window);
  lmx::c_error error;
  lmx::c_xml xml(source, error, normalise);
  std::string seen, text;
  for (;;) {
    lmx::c_xml_local scope;
    const lmx::elxp_xml_event event = xml.get_element_name(&scope, &text);
    seen += std::to_string(event) + ' ' + text + '\n';
    if (event == lmx::EXE_EOM || event == lmx::EXE_ERROR) break;
    if (event != lmx::EXE_TOKEN) continue;
    while (xml.get_attribute_name(&text, false) == lmx::EXE_TOKEN) {
      seen += '@' + text;
      const bool is_expanded = xml.get_attribute_value(&text, mode);
      seen += (is_expanded ? " good " : " bad ") + text + '\n';
    }
    if (!xml.get_element_value(&text, mode, true)) seen += "no text: ";
    seen += text + '\n';
  }
  return seen + std::to_string(error.last_code()) + " at " + std::to_string(xml.line());
}

// Text costs at least a byte for each byte, and a reference gives at most a few beyond its cost.
std::size_t most_text(std::size_t size) {
  const auto expansion = std::max(lmx::limits::free_expansion, lmx::limits::expansion_factor * size);
  return 2 * (static_cast<std::size_t>(expansion) + 2 * size) + 1000;
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::vector<std::string> parts = fuzz::parts_of(fuzz::text_of(data, size));
  parts.resize(3);
  const std::string document =
      "<!DOCTYPE x [" + parts[0] + "]><TSK A=\"TSK1\" G=\"1\" B=\"" + parts[1] + "\">" + parts[2] + "</TSK>";
  fuzz::require_one_reading(document);
  for (const lmx::elmx_whitespace mode : {lmx::EXWS_PRESERVE, lmx::EXWS_REPLACE, lmx::EXWS_COLLAPSE}) {
    for (const bool normalise : {true, false}) {
      const std::string whole = items(document, mode, normalise, document.size());
      fuzz::require(whole.size() <= most_text(document.size()), "expansion stays in proportion");
      fuzz::require(whole == items(document, mode, normalise, 0), "items do not depend on the source", whole);
    }
  }
  return 0;
}
