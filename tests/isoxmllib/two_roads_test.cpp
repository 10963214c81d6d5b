// Text that lies in a source's buffer is taken in bulk, everything else one character at a time. Whichever of
// the two roads a document takes, the same must come of it: the tree, the code, the line, every report and
// every question to the host, in order. Here each document is read through both: from a source that shows all
// of it, and from one that has nothing but its next byte.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/each_source.h"
#include "support/memory_read.h"
#include "support/recording_reader.h"
#include "support/split.h"
#include "support/writing.h"

namespace {

namespace fs = std::filesystem;

/// Looks at the value of an unknown attribute before it lets it pass.
class CuriousReader : public RecordingReader {
 public:
  using RecordingReader::RecordingReader;

  lmx::elmx_error on_unknown_attribute(std::string const& name, std::vector<char> const& path,
                                       char const* file, int line) override {
    std::string value;
    const bool has_value = get_attribute_value(&value, lmx::EXWS_PRESERVE);
    m_values += has_value ? '[' + value + ']' : "none";
    return RecordingReader::on_unknown_attribute(name, path, file, line);
  }

  /// The values, in order.
  std::string const& values() const { return m_values; }

 private:
  std::string m_values;
};

/// All that a host can see of a reading, as text.
std::string seen(lmx::c_read& source, bool strictly) {
  Root root;
  CuriousReader reader(source, strictly ? strict() : tolerant());
  const int code = root.unmarshal(reader);
  return "code " + std::to_string(code) + ", line " + std::to_string(reader.line()) + ", last code " +
         std::to_string(reader.error_log().last_code()) + "\nreports " + reader.reports() + "\nrecord " +
         reader.get_error_message() + "\nunknown " + reader.unknown() + "\nvalues " + reader.values() +
         "\nprogram places " + reader.program_places() + '\n' + written(root);
}

/// Reads `document` on both roads, strictly and tolerantly. False when they differ, which is reported.
bool agree(std::string const& document) {
  for (const bool strictly : {true, false}) {
    MemoryRead bytes(document);
    WindowRead whole(document, std::max<std::size_t>(document.size(), 1));
    std::string const by_bytes = seen(bytes, strictly);
    std::string const in_bulk = seen(whole, strictly);
    EXPECT_EQ(by_bytes, in_bulk) << (strictly ? "strict: " : "tolerant: ") << document;
    if (by_bytes != in_bulk) return false;
  }
  return true;
}

std::string content(fs::path const& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// The documents of the example sets and of a generated set, each no longer than `most` bytes.
std::vector<std::string> corpus(std::size_t most) {
  std::vector<std::string> documents;
  for (char const* const directory : {ISOXML_EXAMPLE_SETS, ISOXML_WRITTEN_SET, ISOXML_DOCUMENTS}) {
    for (auto const& entry : fs::recursive_directory_iterator(directory)) {
      if (entry.is_regular_file() && entry.file_size() <= most) documents.push_back(content(entry.path()));
    }
  }
  std::sort(documents.begin(), documents.end());  // a directory has no order of its own
  return documents;
}

/// What a document is made of, and what it may be broken with.
std::vector<std::string> const pieces = split(
    "<TSK|<TZN|<PNT|<PLN|<LSG|<PFD|<PDV|<TIM|<Foo|</TSK>|</TZN>|</PLN>|</LSG>|</PFD>|</Foo>|</|<|>|/>|/| |"
    "\n|\r|\r\n|\t|\v|  | A=\"TSK1\"| A=\"1\"| A=\"2\"| A='10'| B=\"x\"| C=\"52.123456789\"| D=\"-10.5\"|"
    " C=\"90\"| C=\"90.0\"| C=\"-90\"| C=\"+5\"| C=\"005.50\"| C=\".5\"| C=\"5.\"| D=\"-0\"| D=\"-0.0\"|"
    " D=\"180.000000001\"| D=\"\"| D=\" 5 \"| E=\"254\"| E=\"255\"| E=\"-1\"| E=\"007\"| G=\"1\"|"
    " G=\"PNT12\"| G=\"PNT-\"| A=\"0001\"| A=\"00g1\"| B=\"4294967294\"| B=\"2147483648\"| B=\"a&amp;b\"|"
    " B=\"&#65;\"| B=\"\xC3\xA4\"| B=\"\x80\"| B=\"a\nb\"| B=\"<'>\"| B='\"'| xmlns=\"u\"| xmlns:p=\"u\"|"
    " p:A=\"1\"| Unknown=\"1\"| A|=|\"|&x;|<!-- c -->|<?p?>|<![CDATA[x]]>|\x7F|\x01|text");

/// The first two characters of a document are never read in bulk; behind this everything may be.
std::string const declaration = "<?xml version=\"1.0\"?>";

template <class Random>
std::size_t below(Random& random, std::size_t limit) {
  return static_cast<std::size_t>(random() % limit);
}

}  // namespace

TEST(TwoRoads, AgreeOnWholeDocuments) {
  for (std::string const& document : corpus(std::size_t{1} << 20)) {
    if (!agree(document)) return;
  }
}

TEST(TwoRoads, AgreeOnEveryBeginningOfADocument) {
  std::string const document = content(fs::path(ISOXML_EXAMPLE_SETS) / "complete" / "FRM00001.XML");
  ASSERT_FALSE(document.empty());
  for (std::size_t length = 0; length <= document.size(); ++length) {
    if (!agree(document.substr(0, length))) return;
  }
}

TEST(TwoRoads, AgreeOnDocumentsWithFaults) {
  std::mt19937 random(20011783);
  std::vector<std::string> const documents = corpus(3000);
  ASSERT_GT(documents.size(), 100u);
  for (int round = 0; round != 6000; ++round) {
    std::string document = documents[below(random, documents.size())];
    for (std::size_t faults = 1 + below(random, 3); faults != 0; --faults) {
      std::size_t const at = below(random, document.size() + 1);
      switch (below(random, 3)) {
        case 0: document.insert(at, pieces[below(random, pieces.size())]); break;
        case 1: document.erase(at, 1 + below(random, 4)); break;
        default:
          if (at < document.size()) document[at] = static_cast<char>(below(random, 256));
      }
    }
    if (!agree(document)) return;
  }
}

TEST(TwoRoads, AgreeOnRandomDocuments) {
  std::mt19937 random(11783);
  for (int round = 0; round != 100000; ++round) {
    std::string document = below(random, 2) == 0 ? declaration : std::string();
    document += below(random, 2) == 0 ? "<TSK A=\"TSK1\" G=\"1\">" : "<PFD A=\"PFD1\" C=\"x\" D=\"1\">";
    for (std::size_t count = below(random, 20); count != 0; --count) {
      document += pieces[below(random, pieces.size())];
    }
    if (below(random, 2) == 0) document += "</TSK>\n";
    if (!agree(document)) return;
  }
}

// Every attribute of every element with every value that a limit of the format lies near: here the short cut
// for usual values decides most.
TEST(TwoRoads, AgreeOnValuesNearEveryLimit) {
  std::vector<std::string> values = split(
      "|0|00|007|-0|+1|1| 1|1 |1 2|1  2|2|3|4|5|6|7|8|9|10|11|12|13|15|16|17|18|31|32|63|64|254|255|4095|"
      "4096|60000|60001|65534|65535|262143|262144|2147483646|2147483647|2147483648|4294967294|4294967295|"
      "4294967296|99999999999|-1|-|-2147483647|-2147483648|-2147483649|-0012|1a|0.0|-0.0|-0.5|0.5|.5|5.|"
      "5.0|05.0|0.000000001|0.0000000001|1.0|1.0000001|64.9|65|65.0|65.1|89.999999999|90|90.0|90.000000001|"
      "-89.9|-90|-90.0|-90.1|99.8|99.9|99.91|100|179.9|180|180.0|180.1|-180|-180.1|359.9|360|360.0|360.1|"
      "99999999.9|100000000|100000000.1|1000000000|1e3|1.2.3|1,5|NaN|true|00AF|00af|FFF|00ag|0000000|"
      "FF00000000000000|FE000000000000|A00FFF1234567890|\t1|a\x01|FC|USB|API|portal|ABCDEFGH.XML|"
      "ABCDEFGH XML|2024-01-01T00:00:00");
  for (const std::size_t length : {31u, 32u, 33u, 63u, 64u, 65u, 78u, 80u, 127u, 128u, 129u, 153u, 154u}) {
    values.emplace_back(length, 'x');
    values.emplace_back(length, '7');
  }
  std::vector<std::string> identifiers;
  for (lmx::s_known_elements const* row = Root::known_elements; row->mp_name != nullptr; ++row) {
    std::string const tag = row->mp_name;
    for (char const* const rest : {"1", "-1", "", "-", "12345678901", "123456789012", "00001", "0000",
                                   "000011", "1a", " 1", "1 ", "-1234567890", "-12345678901"}) {
      identifiers.push_back(tag + rest);
    }
  }
  std::mt19937 random(90180);
  for (lmx::s_known_elements const* row = Root::known_elements; row->mp_name != nullptr; ++row) {
    for (char letter = 'A'; letter != 'S'; ++letter) {
      std::vector<std::string> tried = values;
      for (int i = 0; i != 40; ++i) tried.push_back(identifiers[below(random, identifiers.size())]);
      for (char const* const rest : {"1", "-1", "", "-", "12345678901", "123456789012", "00001"})
        tried.push_back(row->mp_name + std::string(rest));
      for (std::string const& value : tried) {
        if (!agree(declaration + '<' + row->mp_name + ' ' + letter + "=\"" + value + "\"/>")) return;
      }
    }
  }
}

// The white space mode of the last value stays in force between tags.
TEST(TwoRoads, AgreeOnABlankByReferenceBehindEveryKindOfValue) {
  for (char const* const attributes :
       {"A=\"1\"", "A=\"1\" B=\"Zone\"", "B=\"Zone\" A=\"1\"", "A=\"1\" B=\"\""}) {
    agree(declaration + "<TSK A=\"TSK1\" G=\"1\"><TZN " + attributes + "/>&#32;<TZN A=\"2\"/></TSK>");
  }
}

// Decimals of every length around the words they are looked at in, with the point at every place, with and
// without a sign; then each with a wrong byte at every place.
TEST(TwoRoads, AgreeOnDecimalsOfEveryShape) {
  std::string const digits = "1234567890123456789";
  auto const agree_on = [](std::string const& value) {
    return agree(declaration + "<PNT A=\"2\" C=\"" + value + "\" D=\"1\"/>") &&
           agree(declaration + "<PNT A=\"2\" C=\"1\" D=\"" + value + "\"/>");
  };
  for (std::size_t length = 1; length != 19; ++length) {
    for (std::size_t point = 0; point <= length; ++point) {
      for (char const* const sign : {"", "-"}) {
        std::string value = digits.substr(0, length);
        if (point < length) value[point] = '.';
        if (!agree_on(sign + value)) return;
        for (std::size_t at = 0; at != length; ++at) {
          for (char const wrong : {'/', ':', '.', '-', ' ', '0'}) {
            std::string broken = value;
            broken[at] = wrong;
            if (!agree_on(sign + broken)) return;
          }
        }
      }
    }
  }
}

TEST(TwoRoads, AgreeOnCoordinatesNearTheirLimits) {
  for (char const letter : {'C', 'D'}) {
    for (int whole = 0; whole != 200; ++whole) {
      for (char const* const sign : {"", "-"}) {
        for (char const* const fraction : {"", ".0", ".000000000", ".000000001", ".999999999", ".12345"}) {
          for (char const* const zeros : {"", "0"}) {
            std::string const value = sign + (zeros + std::to_string(whole)) + fraction;
            std::string const other = letter == 'C' ? " D=\"1\"" : " C=\"1\"";
            if (!agree(declaration + "<PNT A=\"2\"" + other + ' ' + letter + "=\"" + value + "\"/>")) return;
          }
        }
      }
    }
  }
}

// A value is looked at sixteen bytes at a time. Every byte there is, at the beginning and the end of values
// around that length.
TEST(TwoRoads, AgreeOnEveryByteInAValue) {
  for (const std::size_t length : {1u, 2u, 14u, 15u, 16u, 17u}) {
    for (const std::size_t at : {std::size_t{0}, length / 2, length - 1}) {
      for (int byte = 0; byte != 256; ++byte) {
        std::string value(length, 'x');
        value[at] = static_cast<char>(byte);
        for (char const quote : {'"', '\''}) {
          if (!agree(declaration + "<PNT A=\"2\" B=" + quote + value + quote + " C=\"1\" D=\"1\"/>")) return;
        }
      }
    }
  }
}

// The beginning of a usual attribute, with every byte at each of its places.
TEST(TwoRoads, AgreeOnEveryByteAroundAnAttributesName) {
  std::string const usual = " B=\"x\" ";
  for (std::size_t at = 0; at != usual.size(); ++at) {
    for (int byte = 0; byte != 256; ++byte) {
      std::string attribute = usual;
      attribute[at] = static_cast<char>(byte);
      if (!agree(declaration + "<PNT A=\"2\"" + attribute + "C=\"1\" D=\"1\"/>")) return;
    }
  }
}

// The name of one tag is compared with that of the tag before.
TEST(TwoRoads, AgreeOnNamesLikeTheOneBefore) {
  using namespace std::string_literals;
  std::vector<std::string> const names{"PNT", "PN",  "PNTX", "PNt", "P:N", ":NT",     "1NT",
                                       "TSK", "TZN", "p:PN", "P",   "",    "\0\0\0"s, "P\0T"s};
  std::vector<std::string> const rests{" A=\"2\" C=\"1\" D=\"1\"/>",
                                       "\tA=\"2\"/>",
                                       "\nA=\"2\"/>",
                                       "/>",
                                       "></PNT>",
                                       "></PNT >",
                                       " ></PNT>",
                                       "\0/>"s};
  for (std::string const& first : names) {
    for (std::string const& second : names) {
      for (std::string const& rest : rests) {
        std::string const siblings = '<' + first + rests.front() + '<' + second + rest + "<PNT A=\"3\"/>";
        if (!agree(declaration + "<LSG A=\"1\">" + siblings + "</LSG>")) return;
        if (!agree('<' + second + rest)) return;
      }
    }
  }
}

// An element that is complete with its start tag, beside the same that is not quite.
TEST(TwoRoads, AgreeOnElementsThatEndAtOnce) {
  for (char const* const tag : {"PNT", "TZN", "TIM", "CTR", "LSG", "PLN", "DLV", "XFC", "LGP"}) {
    for (char const* const attributes :
         {"", " A=\"1\"", " A=\"1\" C=\"1\" D=\"1\"", " A=\"1\" A=\"1\"", " A=\"1\" Unknown=\"1\"",
          " A=\"1\" B=\"&amp;\"", " A=\"CTR1\" B=\"x\"", " A=\"0001\" B=\"1\" C=\"DET1\""}) {
      for (char const* const rest :
           {"/>", " />", "\n/>", ">", "></", "/ >", "/", "", "/><", ">x</", "><!-- --></"}) {
        std::string const element = '<' + std::string(tag) + attributes + rest;
        for (std::string const& whole : {element, element + tag + '>'}) {
          if (!agree(declaration + whole)) return;
          if (!agree(declaration + "<TSK A=\"TSK1\" G=\"1\">" + whole + "</TSK>")) return;
        }
      }
    }
  }
}

// One reader for two documents, one behind the other: nothing of the first is left for the second.
TEST(TwoRoads, AgreeOnASecondDocumentOfAReader) {
  for (char const* const first :
       {"<TSK A=\"TSK1\" G=\"1\"/>", "<TSK A=\"TSK1\" G=\"1\"><Foo><Bar A=\"TSK3\" G=\"1\"/></Foo></TSK>",
        "<TSK A=\"TSK1\" G=\"1\"><Foo A=\"TSK3\" G=\"1\"></Bar></TSK>",
        "<TSK A=\"TSK1\" G=\"1\"><TZN A=\"2\" ?/>"}) {
    for (char const* const second :
         {"", "text", "</TSK>", "<TSK/>", "<TSK A=\"TSK2\"/>", "<!-- -->", "&#65;"}) {
      for (const bool again : {false, true}) {
        std::string const document = std::string(first) + second;
        auto const both = [again](lmx::c_read& source) {
          RecordingReader reader(source, tolerant());
          std::string text;
          for (int i = 0; i != 2; ++i) {
            Task task;
            const int code = task.unmarshal(reader);
            text += std::to_string(code) + ' ' + written(task, "TSK") + ' ' + reader.m_name + '\n';
            if (again) reader.rewind();
          }
          return text + reader.reports() + '\n' + reader.unknown() + '\n' + reader.program_places();
        };
        MemoryRead bytes(document);
        WindowRead whole(document, document.size());
        WindowRead halves(document, document.size() / 2);
        std::string const by_bytes = both(bytes);
        EXPECT_EQ(by_bytes, both(whole)) << document;
        EXPECT_EQ(by_bytes, both(halves)) << document;
      }
    }
  }
}
