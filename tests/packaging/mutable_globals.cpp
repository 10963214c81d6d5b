// The program's linker may move an exported object into the program. The library must then use it there.
#include <gtest/gtest.h>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"

TEST(MutableGlobals, ShowTheHostWhatTheLibraryStored) {
  lmx::global_check_exception = lmx::c_check_exception("the host's", "", 0);
  EXPECT_FALSE(Link().Check(nullptr, "LNK"));
  EXPECT_EQ("/LNK/A", lmx::global_check_exception.get_path());
}

class Writer : public lmx::c_xml_writer {
 public:
  static void set_tab(std::string const& tab) { m_default_tab = tab; }
  static std::string const* formats[4];
};
std::string const* Writer::formats[4] = {&m_default_tab, &m_default_nl, &m_default_attribute_tab,
                                         &m_default_attribute_nl};

TEST(MutableGlobals, ShowTheLibraryWhatTheHostStored) {
  Writer::set_tab("the host's");
  EXPECT_EQ("the host's", lmx::c_xml_writer::get_default_tab());
  EXPECT_EQ(Writer::formats[0], &lmx::c_xml_writer::get_default_tab());
  EXPECT_EQ(Writer::formats[1], &lmx::c_xml_writer::get_default_nl());
  EXPECT_EQ(Writer::formats[2], &lmx::c_xml_writer::get_default_attribute_tab());
  EXPECT_EQ(Writer::formats[3], &lmx::c_xml_writer::get_default_attribute_nl());
}
