// The fixed part of reading one element: its attributes, the check for missing ones, its content and its end.
// The element's class supplies the pieces through virtual operations. What happens to unknown attributes and
// elements is decided here, and here alone.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"

namespace lmx {

/// Drives the element whose start tag's name has just been read. One helper lives for one element, on the
/// stack; while it lives, the element's name stands in the reader's name stack.
class ISOXML_API c_unmarshal_helper {
 public:
  explicit c_unmarshal_helper(c_xml_reader& reader);
  virtual ~c_unmarshal_helper();
  c_unmarshal_helper(c_unmarshal_helper const&) = delete;
  c_unmarshal_helper& operator=(c_unmarshal_helper const&) = delete;

  /// Takes the current attribute. False when it is none of this class's.
  virtual bool unmarshal_attributes(elmx_error* error);
  /// Checks that the required attributes came.
  virtual elmx_error unmarshal_attributes_check();
  /// Reads text content. A class without any never gets here.
  virtual bool unmarshal_simple_body(elmx_error* error);
  /// Reads the children. A class without any never gets here.
  virtual bool unmarshal_complex_body(elmx_error* error);
  /// True when the body is to be left unread.
  virtual bool is_body_skipped();
  /// False to keep what the body left over from being skipped.
  virtual bool is_skipping_allowed();

  // Each reads one whole element. `file`, which is constant text, and `line` go into error records.

  /// An element with attributes only. Anything but white space, comments and instructions in it is
  /// `ELMX_BAD_END_OF_ELEMENT`.
  elmx_error unmarshal_empty_content(char const* file, int line);
  /// An element with text content.
  elmx_error unmarshal_simple_content(char const* file, int line);
  /// An element with children. Empty where that is not allowed: `ELMX_UNEXPECTED_EMPTY_ELEMENT`.
  elmx_error unmarshal_complex_content(char const* file, int line);

  // State, in the order of construction. A derived class may read all of it; it sets the last two before one
  // of the operations above is called.

 protected:
  c_xml_reader& mr_reader;                 ///< The reader, which outlives the helper.
  std::vector<char>* const mp_name_stack;  ///< Its stack of the open elements' names; never null.
  const std::size_t m_name_offset;         ///< Where this element's name begins in that stack.
  char const* m_code_file = nullptr;       ///< Program file for error records; null until a read begins.
  int m_code_line = 0;                     ///< Program line for error records.

 public:
  /// Where attributes that the class does not take are kept; null, as for every class of this format, when
  /// they are not. The list is borrowed. What is added to it was made by `new` and belongs to the list's
  /// owner.
  std::vector<c_any_info*>* mp_any_attributes = nullptr;
  /// The element may be empty, whatever its children's own rules say.
  bool m_empty_allowed = false;

 protected:
  // The steps of a read, for a derived class that arranges them differently. Each gives 0 or the code that
  // ends the element.

  /// Takes the attributes up to the end of the start tag, and checks that the required ones came.
  elmx_error unmarshal_all_attributes();
  /// Reads from the end of the start tag to the end of an element without content.
  elmx_error unmarshal_empty_content_case();
  /// The same for text content, by `unmarshal_simple_body`.
  elmx_error unmarshal_simple_content_case();
  /// The same for children, by `unmarshal_complex_body`, and drops what it leaves over.
  elmx_error unmarshal_complex_content_case();
  /// Reads the element's end tag, unless the end is there; anything else is `ELMX_BAD_END_OF_ELEMENT`.
  elmx_error verify_element_end();

 private:
  elmx_error p_read_content(char const* file, int line, elmx_error (c_unmarshal_helper::*read_case)());
  elmx_error p_handle_unknown_attribute();
  elmx_error p_keep_any_attribute();
  elmx_error p_next_event();
  elmx_error p_skip_element();
  elmx_error p_check_end_of_element();
  bool p_is_element_event() const;
  char const* p_element_name() const { return mp_name_stack->data() + m_name_offset; }
  elmx_error p_report(elmx_error code, std::string const& item);
};

}  // namespace lmx
