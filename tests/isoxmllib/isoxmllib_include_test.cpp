// What one include of the element classes brings. It stands first, and no other header of the library
// follows.
#include "isoxmllib/isoxmllib.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/every_class.h"

namespace {

// A document of the host's own.
class Text : public lmx::c_read {
 public:
  explicit Text(char const* text) : m_text(text), m_at(text) {}
  int get() override { return *m_at == '\0' ? -1 : static_cast<unsigned char>(*m_at++); }
  int rewind() override {
    m_at = m_text;
    return 0;
  }

 private:
  char const* const m_text;
  char const* m_at;
};

TEST(OneInclude, OfTheElementClassesBringsReaderAndWriter) {
  Text text("<PNT A='8' C='1.5' D='2'/>");
  lmx::xmlReader reader(text);
  Root root;
  ASSERT_EQ(lmx::ELMX_OK, root.unmarshal(reader));
  EXPECT_EQ(elmx_enum_8, root.GetPoint().GetenumType());
  std::ostringstream out;
  lmx::c_xml_writer writer(out);
  ASSERT_EQ(lmx::ELMX_OK, root.marshal(writer, nullptr));
  EXPECT_EQ("<PNT A=\"8\"\n\t\tC=\"1.5\"\n\t\tD=\"2\"/>\n", out.str());
}

}  // namespace
