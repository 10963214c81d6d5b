#include "isoxmllib/rules.h"

namespace binding {

lmx::elmx_error check_text(lmx::c_xml_reader& reader, std::string const& text, text_rule const& rule) {
  lmx::elmx_error error = lmx::ELMX_OK;
  if (rule.is_valid != nullptr && !rule.is_valid(text)) {
    error = report_value(reader, lmx::ELMX_VALUE_BAD_FORMAT);
    if (error != lmx::ELMX_OK) return error;
  }
  if (!lmx::is_min_length_ok(text, rule.min_length)) {
    error = report_value(reader, lmx::ELMX_LENGTH_TOO_SHORT);
    if (error != lmx::ELMX_OK) return error;
  }
  if (rule.max_length != no_max_length && !lmx::is_max_length_ok(text, rule.max_length)) {
    error = report_value(reader, lmx::ELMX_LENGTH_TOO_LONG);
    if (error != lmx::ELMX_OK) return error;
  }
  if (rule.pattern != nullptr && !rule.pattern->is_match(text)) {
    return report_value(reader, lmx::ELMX_NO_PATTERN_MATCHED);
  }
  return lmx::ELMX_OK;
}

lmx::elmx_error check_integer(lmx::c_xml_reader& reader, std::string const& text,
                              lmx::c_big_int const& minimum, lmx::c_big_int const& maximum) {
  if (!lmx::is_valid_integer(text)) {
    lmx::elmx_error const error = report_value(reader, lmx::ELMX_VALUE_BAD_FORMAT);
    if (error != lmx::ELMX_OK) return error;
  }
  if (!(minimum <= text)) {
    lmx::elmx_error const error = report_value(reader, lmx::ELMX_VALUE_EXCEEDS_MIN);
    if (error != lmx::ELMX_OK) return error;
  }
  if (!(text <= maximum)) return report_value(reader, lmx::ELMX_VALUE_EXCEEDS_MAX);
  return lmx::ELMX_OK;
}

lmx::elmx_error check_size(lmx::c_xml_reader& reader, std::size_t size, std::size_t minimum,
                           std::size_t maximum) {
  if (size < minimum) {
    lmx::elmx_error const error = report_value(reader, lmx::ELMX_LENGTH_TOO_SHORT);
    if (error != lmx::ELMX_OK) return error;
  }
  if (size > maximum) return report_value(reader, lmx::ELMX_LENGTH_TOO_LONG);
  return lmx::ELMX_OK;
}

}  // namespace binding
