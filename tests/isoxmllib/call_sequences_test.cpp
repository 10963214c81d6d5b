// A host may call the reader in any order that it finds useful. Whatever it asks for, what it is told depends
// on the document and on what it asked before, never on how the document's bytes arrived: random sequences of
// calls get the same answers from every source.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/each_source.h"
#include "support/recording_reader.h"
#include "support/split.h"
#include "support/writing.h"

namespace {

constexpr lmx::s_event_map names[] = {
    {1, "A", 1, 20}, {1, "B", 1, 21}, {1, "PNT", 3, 22}, {1, "Foo", 3, 23}, {0, nullptr, 0, 0}};
constexpr lmx::s_known_elements known[] = {{1, "TSK", 3}, {1, "PNT", 3}, {1, "TZN", 3}, {0, nullptr, 0}};

// Calls one reader, and writes down what it answers.
class Caller {
 public:
  Caller(lmx::c_read& source, std::uint32_t seed) : m_reader(source, tolerant()), m_random(seed) {}

  std::string call(int times) {
    for (int i = 0; i != times; ++i) call_something();
    return m_answers + "reports " + m_reader.reports() + "\nunknown " + m_reader.unknown() + "\nlast code " +
           std::to_string(m_reader.error_log().last_code());
  }

 private:
  int below(int limit) { return static_cast<int>(m_random() % static_cast<std::uint32_t>(limit)); }
  lmx::elmx_whitespace mode() { return static_cast<lmx::elmx_whitespace>(below(3)); }
  lmx::s_known_elements const* table() { return below(2) == 0 ? known : nullptr; }

  void note(char const* what, std::string const& text = {}, long number = 0) {
    m_answers += std::string(what) + ' ' + std::to_string(number) + " [" + text + "] " +
                 std::to_string(m_reader.line()) + ' ' + std::to_string(m_reader.m_event) + '\n';
  }

  void call_something() {
    lmx::c_xml& xml = m_reader;
    std::string text, other;
    lmx::elmx_error error = lmx::ELMX_OK;
    bool is_empty = false;
    int id = 0;
    switch (below(24)) {
      case 0:
      case 1: {
        lmx::c_known_elements_selector const selector(m_reader, table());
        m_reader.get_element_event(below(2) == 0 ? names : nullptr, &error, &m_reader.m_name);
        return note("element", m_reader.m_name, error);
      }
      case 2: return note("item", text, xml.get_element_name(m_reader.mp_local, &text));
      case 3:
      case 4: {
        const bool more = m_reader.get_attribute_event(names, &error, &m_reader.m_name);
        return note(more ? "attribute" : "no attribute", m_reader.m_name, error);
      }
      case 5: {
        const int event = xml.get_attribute_name(&text, below(8) == 0);
        return note("attribute's name", text, event);
      }
      case 6:
      case 7: {
        const bool good = xml.get_attribute_value(&text, mode());
        return note("attribute's value", text, good);
      }
      case 8: return note("skipped value", text, xml.skip_attribute_value());
      case 9: {
        const bool good = xml.move_to_start_tag_end(&is_empty);
        return note("tag's end", text, good * 2 + is_empty);
      }
      case 10: {
        const bool good = m_reader.skip_start_tag(&is_empty);
        return note("skipped tag", text, good * 2 + is_empty);
      }
      case 11: {
        const bool good = m_reader.get_element_value(&text, mode());
        return note("element's value", text, good);
      }
      case 12: return note("end tag", text, xml.is_element_end_tag(m_reader.m_name));
      case 13: return note("skipped rest", text, xml.skip_rest_of_element(m_reader.m_name));
      case 14: return note("skipped body", text, xml.skip_element_body(m_reader.m_name));
      case 15: {
        const int ns_id = below(2) == 0 ? 1 : static_cast<int>(lmx::nsid_xsi);
        const bool found =
            xml.get_named_attribute(m_reader.mp_local, ns_id, below(2) == 0 ? "B" : "type", &text);
        return note("named attribute", text, found);
      }
      case 16: {
        const bool found = xml.get_xsi_type(m_reader.mp_local, &id, &text);
        return note("type", text, found * 10000 + id);
      }
      case 17: {
        const bool more = xml.get_namespace_attribute_name(&text);
        const bool good =
            below(2) == 0 ? xml.get_namespace_attribute_value(&other) : xml.skip_namespace_attribute_value();
        return note("declaration", text + '=' + other, more * 2 + good);
      }
      case 18: {
        const bool good = xml.get_any_element(m_reader.m_name, &text, mode(), false);
        return note("as text", text, good);
      }
      case 19: {
        const bool good = xml.get_nested_element_value(&text, &other, mode(), false);
        return note("content as text", text + '/' + other, good);
      }
      case 20: {
        const int c = xml.getter().get();
        if (below(4) != 0) xml.getter().unget(c);
        return note("character", text, c);
      }
      case 21: {
        TreatmentZone zone;
        error = zone.unmarshal(m_reader, m_reader.m_name);
        return note("zone", written(zone, "TZN"), error);
      }
      case 22: {
        Point point;
        error = point.unmarshal(m_reader, m_reader.m_name);
        return note("point", written(point, "PNT"), error);
      }
      default:
        if (below(10) != 0) return;
        xml.rewind();
        return note("again");
    }
  }

  RecordingReader m_reader;
  std::mt19937 m_random;
  std::string m_answers;
};

std::vector<std::string> const pieces = split(
    "<TSK|<PNT|<TZN|<Foo|<p:Foo| A=\"2\"| A=\"1\"| B=\"x\"| B='a &lt; b'| C=\"52.5\"| D=\"10.5\"|"
    " xmlns:p=\"u\"| xmlns=\"\"| xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"| xsi:type=\"p:t\"|"
    " long-name=\"a value of more than sixteen bytes\"|/>|/>|>|>|</TSK>|</TZN>|</Foo>|</PNT>|\n|\r\n| |"
    "text|&e;|&e|&#65;|&foo;|<!-- c -->|<?p i?>|<![CDATA[d]]>|\xC3\xA9|\x80|=|\"");

std::string some_document(std::mt19937& random) {
  std::string document = "<?xml version=\"1.0\"?>\n";
  if (random() % 4 == 0) document += "<!DOCTYPE x [<!ENTITY e \"<Foo B='1'>\">]>";
  document += "<TSK A=\"TSK1\" G=\"1\">";
  for (std::size_t count = random() % 24; count != 0; --count) document += pieces[random() % pieces.size()];
  return document;
}

TEST(CallSequences, GetTheSameAnswersFromEachSource) {
  std::mt19937 random(61783);
  for (int round = 0; round != 6000; ++round) {
    std::string const document = some_document(random);
    std::uint32_t const seed = static_cast<std::uint32_t>(random());
    MemoryRead bytes(document);
    std::string const expected = Caller(bytes, seed).call(40);
    for (std::size_t const window : {std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{5},
                                     std::size_t{7}, std::size_t{16}, std::size_t{64}, document.size()}) {
      WindowRead source(document, window);
      ASSERT_EQ(expected, Caller(source, seed).call(40)) << "windows of " << window << " over " << document;
    }
  }
}

}  // namespace
