#include "GenLibrarySupportFiles/lmxparse/entity_name_readers.h"

#include "GenLibrarySupportFiles/lmxparse/c_xml.h"

namespace lmx {

c_entity_name_reader::~c_entity_name_reader() = default;

int c_entity_name_reader_for_c_get::get() { return mr_getter.get(); }

void c_entity_name_reader_for_c_get::unget(int c) {
  if (c != -1) mr_getter.unget(c);
}

int c_entity_name_reader_for_attribute_data::get() {
  const int c = static_cast<unsigned char>(mr_data.m_data[mr_data.m_index]);
  if (c == 0) return -1;
  ++mr_data.m_index;
  return c;
}

void c_entity_name_reader_for_attribute_data::unget(int c_in) {
  if (c_in == -1) return;
  LMX_ASSERT_TEXT(mr_data.m_index > 0, "m_index > 0");
  --mr_data.m_index;
  LMX_ASSERT_TEXT(static_cast<unsigned char>(mr_data.m_data[mr_data.m_index]) == c_in,
                  "m_data[m_index] == c_in");
}

int c_entity_name_reader_for_c_str::get() {
  const int c = static_cast<unsigned char>(mp_string[m_index]);
  if (c == 0) return -1;
  ++m_index;
  return c;
}

void c_entity_name_reader_for_c_str::unget(int c_in) {
  if (c_in == -1) return;
  LMX_ASSERT(m_index > 0);
  --m_index;
  LMX_ASSERT_TEXT(c_in == static_cast<unsigned char>(mp_string[m_index]),
                  "c_in == static_cast<unsigned char>( mp_string[m_index] )");
}

int c_entity_name_reader_for_entity::get() {
  const int c = static_cast<unsigned char>(**mp_position);
  if (c == 0) return -1;
  ++*mp_position;
  return c;
}

void c_entity_name_reader_for_entity::unget(int c) {
  if (c != -1 && *mp_position != mp_start) --*mp_position;
}

}  // namespace lmx
