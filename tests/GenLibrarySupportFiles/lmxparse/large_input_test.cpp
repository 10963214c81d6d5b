// Inputs so large that a count or a copy could run away: seconds and memory, so not for sanitized builds.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "GenLibrarySupportFiles/lmxparse/c_xml.h"
#include "GenLibrarySupportFiles/lmxparse/getters.h"
#include "support/counted_heap.h"

namespace {

// A document that exists only as a rule: `head`, then `count` times `c`, then `tail`. Shown window by window.
class GeneratedRead : public lmx::c_read {
 public:
  GeneratedRead(std::string head, char c, std::size_t count, std::string tail)
      : m_count(count), m_head(std::move(head)), m_run(65536, c), m_tail(std::move(tail)) {
    show(m_head, m_head.size());
  }
  int get() override {
    if (mp_next == mp_end && m_count > 0) {
      const std::size_t length = std::min(m_count, m_run.size());
      m_count -= length;
      show(m_run, length);
    } else if (mp_next == mp_end && !m_tail_shown) {
      m_tail_shown = true;
      show(m_tail, m_tail.size());
    }
    return mp_next == mp_end ? -1 : *mp_next++;
  }
  int rewind() override { return 1; }

 private:
  void show(std::string const& bytes, std::size_t length) {
    mp_next = reinterpret_cast<unsigned char const*>(bytes.data());
    mp_end = mp_next + length;
  }
  std::size_t m_count;
  bool m_tail_shown = false;
  std::string m_head, m_run, m_tail;
};

TEST(LineNumber, StaysAtTheLargestIntBehindMoreLines) {
  constexpr std::size_t more_than_an_int_holds = (std::size_t{1} << 31) + 10;
  GeneratedRead read("<", '\n', more_than_an_int_holds, ">");
  lmx::c_error log;
  lmx::c_get_as_utf8 getter(read, log);
  EXPECT_EQ('<', getter.get());
  int c = getter.get();
  for (; c == '\n'; c = getter.get()) {
  }
  EXPECT_EQ('>', c);
  EXPECT_EQ(std::numeric_limits<int>::max(), getter.line());
}

struct LargeItem {
  const char *caption, *head, *tail;
  void (*read)(lmx::c_xml& xml, std::string* item);
};
class LargeItems : public testing::TestWithParam<LargeItem> {};

// Storage that doubles may hold twice what is in it, and each copy counts with that: three at the most.
TEST_P(LargeItems, AreReadWholeInAtMostThreeCopies) {
  SCOPED_TRACE(GetParam().caption);
  constexpr std::size_t size = std::size_t{48} << 20;
  std::string item;
  const std::size_t before = counted_heap::restart();
  {
    GeneratedRead read(GetParam().head, 'x', size, GetParam().tail);
    lmx::c_error log;
    lmx::c_xml xml(read, log, true);
    GetParam().read(xml, &item);
    EXPECT_EQ(0u, log.error_count());
  }
  EXPECT_EQ(size, item.size());
  EXPECT_EQ(std::string::npos, item.find_first_not_of('x'));
  EXPECT_LE(counted_heap::peak - before, 3 * 2 * size);
}

INSTANTIATE_TEST_SUITE_P(
    Reader, LargeItems,
    testing::Values(LargeItem{"attribute value", "<a b='", "'/>",
                              [](lmx::c_xml& xml, std::string* item) {
                                std::string name;
                                EXPECT_EQ(lmx::EXE_TOKEN, xml.get_element_name(nullptr, &name));
                                EXPECT_EQ(lmx::EXE_TOKEN, xml.get_attribute_name(&name, false));
                                EXPECT_TRUE(xml.get_attribute_value(item, lmx::EXWS_COLLAPSE));
                              }},
                    LargeItem{"element value", "<a>", "</a>",
                              [](lmx::c_xml& xml, std::string* item) {
                                std::string name;
                                EXPECT_EQ(lmx::EXE_TOKEN, xml.get_element_name(nullptr, &name));
                                EXPECT_TRUE(xml.move_to_start_tag_end(nullptr));
                                EXPECT_TRUE(xml.get_element_value(item, lmx::EXWS_COLLAPSE, true));
                              }},
                    LargeItem{"text between tags", " ", "<a>",
                              [](lmx::c_xml& xml, std::string* item) {
                                EXPECT_EQ(lmx::EXE_TEXT, xml.get_element_name(nullptr, item));
                              }},
                    LargeItem{"name", "<", ">", [](lmx::c_xml& xml, std::string* item) {
                                EXPECT_EQ(lmx::EXE_TOKEN, xml.get_element_name(nullptr, item));
                              }}));

}  // namespace
