// Between untyped reading and typed fields. A validation spec says how the text of one simple type is read,
// checked, converted and written; a bridge shows one field to code that does not know its type. Bridges live
// on the stack for one call.
#pragma once

#include <iosfwd>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "GenLibrarySupportFiles/lmxtypes/conversions.h"

namespace lmx {

/// A check of the text as it was read.
using lexical_validator = elmx_error (*)(c_xml_reader& reader, std::string const& text);

/// What reading needs to know of a simple type without knowing the type. Constant data.
struct c_untyped_validation_spec {
  elmx_whitespace m_whitespace;
  char const* mp_default;  ///< Taken by an element whose text is empty; usually empty itself.
  lexical_validator mp_lexical_validator;
};

/// The whole of it. A spec without an `o_to_v` can read but not write.
///
/// `accept` is a short cut for the usual text of an attribute: it stores the value and gives true only where
/// the validators would pass the text and `v_to_o` would store the same; else it changes nothing, and the
/// long road decides and reports. May be null.
template <class T>
struct c_validation_spec : c_untyped_validation_spec {
  constexpr c_validation_spec(elmx_whitespace whitespace, char const* default_text, lexical_validator lexical,
                              elmx_error (*value)(c_xml_reader&, T const&),
                              void (*convert)(T&, std::string const&),
                              std::ostream& (*output)(std::ostream&, T const&) = nullptr,
                              bool (*accept)(T&, plain_text_view) = nullptr)
      : c_untyped_validation_spec{whitespace, default_text, lexical},
        mp_value_validator(value),
        mp_v_to_o(convert),
        mp_o_to_v(output),
        mp_accept(accept) {}

  elmx_error (*mp_value_validator)(c_xml_reader& reader, T const& value);
  void (*mp_v_to_o)(T& value, std::string const& text);
  std::ostream& (*mp_o_to_v)(std::ostream& out, T const& value);
  bool (*mp_accept)(T& value, plain_text_view text);
};

/// For a type without content: any text is `ELMX_VALUE_BAD_FORMAT`.
ISOXML_API elmx_error lexical_validator_empty(c_xml_reader& reader, std::string const& text);

/// Accepts every value.
template <class T>
elmx_error value_validator_empty(c_xml_reader&, T const&) {
  return ELMX_OK;
}

/// The value of a type without content.
struct c_empty {};

/// The spec of a type without content. It must never be used to convert.
inline c_validation_spec<c_empty> const validation_spec_empty(EXWS_PRESERVE, "", &lexical_validator_empty,
                                                              &value_validator_empty<c_empty>,
                                                              &v_to_o_not_used<c_empty>,
                                                              &o_to_v_not_used<c_empty>);

/// A typed field seen from untyped code.
class ISOXML_API c_untyped_unmarshal_bridge {
 public:
  /// False everywhere; the reader does not ask.
  virtual bool first_query();
  /// True when a value has been stored.
  virtual bool is_value_set() = 0;
  /// Records that a value is stored; a repeated field gains an empty element.
  virtual void mark_value_set() = 0;
  /// The text of a mixed-content value; stops the process for any other.
  virtual std::string& ref_text() = 0;
  /// Reads the element's text into the reader's `m_value`; `ELMX_UNABLE_TO_READ_ELEMENT_VALUE` when that
  /// fails.
  virtual elmx_error read_body() = 0;
  /// Turns text into the field's value and checks it. The field counts as set even when the check fails.
  virtual elmx_error convert(std::string const& text) = 0;
  virtual ~c_untyped_unmarshal_bridge();
};

namespace detail {

/// `read_body` of every bridge.
ISOXML_API elmx_error read_body(c_xml_reader& reader, elmx_whitespace whitespace);

}  // namespace detail

template <class R, class T, class V = T>
class c_atomic_unmarshal_bridge : public c_untyped_unmarshal_bridge {
 public:
  c_atomic_unmarshal_bridge(R& reader, c_validation_spec<T> const& spec) : mr_reader(reader), mr_spec(spec) {}

  elmx_error read_body() override { return detail::read_body(mr_reader, mr_spec.m_whitespace); }
  elmx_error convert(std::string const& text) override {
    this->mark_value_set();
    T& value = ref_value();
    mr_spec.mp_v_to_o(value, text);
    return mr_spec.mp_value_validator(mr_reader, value);
  }
  /// The value to be filled.
  virtual T& ref_value() = 0;

 private:
  R& mr_reader;
  c_validation_spec<T> const& mr_spec;
};

template <class R, class C, class T, class V = T>
class c_unmarshal_bridge final : public c_atomic_unmarshal_bridge<R, T, V> {
 public:
  /// All three are borrowed for the bridge's lifetime.
  c_unmarshal_bridge(R& reader, c_validation_spec<T> const& spec, C& container)
      : c_atomic_unmarshal_bridge<R, T, V>(reader, spec), mr_container(container) {}

  bool is_value_set() override { return mr_container.is_set(); }
  void mark_value_set() override { mr_container.mark_value_set(); }
  std::string& ref_text() override { return mr_container.ref_text(); }
  T& ref_value() override { return mr_container.ref_value(); }

 private:
  C& mr_container;
};

}  // namespace lmx
