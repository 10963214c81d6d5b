// Where the text of an entity reference is read from: the document itself, a captured attribute, or a
// string in memory. All deliver bytes as 0 to 255 and -1 at the end, which they never step past.
#pragma once

#include <cstddef>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

class c_get_for_xml;
struct c_attribute_data;

class ISOXML_API c_entity_name_reader {
 public:
  virtual ~c_entity_name_reader();
  /// The next byte of the reference, or -1 at the end.
  virtual int get() = 0;
  /// Steps back over `c`, the byte read last. -1 does nothing.
  virtual void unget(int c) = 0;

  /// True when a declared entity's value is to be read as input, markup included, and not as text.
  bool m_push_as_input = false;
};

/// Reads a reference in content.
class ISOXML_API c_entity_name_reader_for_c_get : public c_entity_name_reader {
 public:
  explicit c_entity_name_reader_for_c_get(c_get_for_xml& getter) : mr_getter(getter) {}
  int get() override;
  void unget(int c) override;

 private:
  c_get_for_xml& mr_getter;
};

/// Reads a reference in a captured attribute value, moving the capture's index.
class ISOXML_API c_entity_name_reader_for_attribute_data : public c_entity_name_reader {
 public:
  explicit c_entity_name_reader_for_attribute_data(c_attribute_data& data) : mr_data(data) {}
  int get() override;
  void unget(int c) override;

 private:
  c_attribute_data& mr_data;
};

/// Reads a reference in a string, which is borrowed, from `index` on.
class ISOXML_API c_entity_name_reader_for_c_str : public c_entity_name_reader {
 public:
  explicit c_entity_name_reader_for_c_str(char const* text, std::size_t index = 0)
      : mp_string(text), m_index(index) {}
  int get() override;
  void unget(int c) override;
  /// Where the next byte stands.
  std::size_t index() const { return m_index; }

 protected:
  char const* mp_string;
  std::size_t m_index;
};

/// Reads a reference in an entity's value, moving the caller's position.
class ISOXML_API c_entity_name_reader_for_entity : public c_entity_name_reader {
 public:
  /// `position` is borrowed; it points into NUL-terminated text.
  explicit c_entity_name_reader_for_entity(char const** position)
      : mp_position(position), mp_start(*position) {}
  int get() override;
  void unget(int c) override;

 private:
  char const** mp_position;
  char const* mp_start;
};

}  // namespace lmx
