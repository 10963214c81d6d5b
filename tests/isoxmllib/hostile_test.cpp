// Documents made to do harm: nesting, entities, and sizes far beyond use; NUL bytes; every beginning. Each
// gets its exact code, strictly and from a reader whose host lets everything pass, whole and cut off
// anywhere. None may hang, and none may take memory out of proportion: a fixed allowance, and four bytes for
// each byte of the document and of the expansion that its entities are allowed. What each takes in time is
// for scripts/hostile.sh to tell.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <iterator>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse/limits.h"
#include "isoxmllib/isoxmllib.h"
#include "support/code_name.h"
#include "support/counted_heap.h"
#include "support/text_source.h"
#include "support/transfer_set.h"
#include "transfer/reader/xmlReader.h"

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool heap_is_plain = false;  // sanitizers enlarge every block
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
constexpr bool heap_is_plain = false;
#else
constexpr bool heap_is_plain = true;
#endif
#else
constexpr bool heap_is_plain = true;
#endif

constexpr std::size_t mib = std::size_t{1} << 20;

// ---- Reading ----

constexpr std::size_t shown_at_a_time = 16384;  // as much as from a file

enum class Host { Strict, Tolerant };

// Keeps what is reported, however often: equal reports in a row are one entry.
class HostReader : public lmx::xmlReader {
 public:
  HostReader(lmx::c_read& source, Host host) : xmlReader(source), m_host(host) {}

  lmx::elmx_error handle_error(lmx::elmx_error code, std::string const& item, char const*, int) override {
    if (m_runs.empty() || m_runs.back().code != code || m_runs.back().item != item) {
      if (m_runs.size() < runs_kept) m_runs.push_back({code, item, 0});
    }
    ++m_runs.back().count;
    return m_host == Host::Tolerant ? lmx::ELMX_OK : code;
  }

  /// The reports as "code item", those in a row as "code item x count".
  std::string reports() const {
    std::string text;
    for (Run const& run : m_runs) {
      text += (text.empty() ? "" : ", ") + code_name(run.code) + ' ' +
              (run.item.size() <= 40 ? run.item : std::to_string(run.item.size()) + " characters");
      if (run.count > 1) text += " x " + std::to_string(run.count);
    }
    return text;
  }
  int first_code() const { return m_runs.empty() ? 0 : m_runs.front().code; }

 private:
  struct Run {
    int code;
    std::string item;
    std::size_t count;
  };
  static constexpr std::size_t runs_kept = 8;

  const Host m_host;
  std::vector<Run> m_runs;
};

struct Outcome {
  int code;
  int first_code;
  std::string reports;
};

unsigned long long allowed_heap(std::string_view document) {
  const bool has_entities = document.find("<!ENTITY") != std::string_view::npos;
  const unsigned long long expansion =
      has_entities ? std::max(lmx::limits::free_expansion, lmx::limits::expansion_factor * document.size())
                   : 0;
  return 64 * mib + 4 * (document.size() + expansion);
}

Outcome read(std::string_view document, Host host) {
  const std::size_t before = counted_heap::restart();
  Outcome outcome;
  {
    TextSource text(document, shown_at_a_time);
    HostReader reader(text, host);
    Root root;
    const int code = root.unmarshal(reader);
    outcome = {code, reader.first_code(), reader.reports()};
  }
  const std::size_t taken = counted_heap::peak - before;
  testing::Test::RecordProperty("heap", std::to_string(taken));
  EXPECT_TRUE(taken <= allowed_heap(document) || !heap_is_plain) << taken;
  return outcome;
}

// ---- Documents ----

std::string repeated(std::string_view text, std::size_t count) {
  std::string all;
  all.reserve(text.size() * count);
  for (std::size_t i = 0; i != count; ++i) all += text;
  return all;
}

// `text` for each number from 0, with each "#" in it replaced by the number.
std::string numbered(std::string_view text, std::size_t count) {
  std::string all;
  for (std::size_t i = 0; i != count; ++i) {
    for (const char c : text) {
      if (c == '#') {
        all += std::to_string(i);
      } else {
        all += c;
      }
    }
  }
  return all;
}

std::string nested(std::string_view start, std::string_view end, std::size_t depth) {
  return repeated(start, depth) + repeated(end, depth);
}

// A task with more in its start tag, and with content.
std::string task(std::string const& attributes, std::string const& content) {
  return "<TSK A=\"TSK1\" G=\"1\"" + attributes + '>' + content + "</TSK>";
}

std::string with_subset(std::string const& subset, std::string const& document) {
  return "<!DOCTYPE x [" + subset + "]>" + document;
}

constexpr std::size_t long_size = 64 * mib;
std::string long_text(char c = 'x') { return std::string(long_size, c); }

constexpr std::size_t million = 1000 * 1000;

struct Hostile {
  std::string name;
  std::function<std::string()> document;
  std::string tolerated;  // what a host hears that lets everything pass; a strict read ends with the first
};

void PrintTo(Hostile const& hostile, std::ostream* out) { *out << hostile.name; }

// How an entity does harm: the internal subset, and the references that set it off.
struct Attack {
  char const* name;
  std::function<std::string()> subset;
  std::string references;
  bool leaves_text;       // some is expanded before the rest is refused
  bool begins_with_text;  // and that is more than blanks
};

// Where a reference may stand. What a document gets depends on the place, and only there on the attack.
struct Place {
  char const* name;
  std::string (*document)(std::string const& references);
  char const* tolerated;
  bool Attack::*exception;  // attacks of this kind get something else; null if there are none
  char const* instead;
};

// Each of 20 entities is ten times the one before.
std::string laughs(std::string const& first) {
  std::string subset = "<!ENTITY l0 '" + first + "'>";
  for (int i = 1; i != 20; ++i) {
    const std::string last = "&l" + std::to_string(i - 1) + ';';
    subset += "<!ENTITY l" + std::to_string(i) + " '" + repeated(last, 10) + "'>";
  }
  return subset;
}

std::string chain(std::size_t length) {
  std::string subset;
  for (std::size_t i = 0; i != length; ++i) {
    subset += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i + 1) + ";'>";
  }
  return subset + "<!ENTITY e" + std::to_string(length) + " ''>";
}

std::vector<Hostile> with_entities() {
  static const Place places[] = {
      {"InAnAttribute", [](std::string const& r) { return task(" B=\"" + r + "\"", ""); },
       "UNABLE_TO_READ_ATTRIBUTE_VALUE @B, BAD_DTD , BAD_DTD TSK, BAD_END_OF_ELEMENT TSK",
       &Attack::leaves_text,
       "UNABLE_TO_READ_ATTRIBUTE_VALUE @B, LENGTH_TOO_LONG B, BAD_DTD , BAD_DTD TSK, BAD_END_OF_ELEMENT "
       "TSK"},
      {"InText", [](std::string const& r) { return task("", "<P917_comment>" + r + "</P917_comment>"); },
       "UNABLE_TO_READ_ELEMENT_VALUE P917_comment, BAD_END_OF_ELEMENT P917_comment, BAD_DTD TSK, "
       "BAD_END_OF_ELEMENT TSK",
       nullptr, nullptr},
      {"BetweenTags", [](std::string const& r) { return task("", r); }, "BAD_DTD TSK, BAD_END_OF_ELEMENT TSK",
       &Attack::begins_with_text, "BAD_END_OF_ELEMENT TSK"},
      {"InSkippedContent", [](std::string const& r) { return task("", "<Foo>" + r + "</Foo>"); },
       "BADLY_FORMED TSK, BAD_END_OF_ELEMENT Foo, BAD_DTD TSK, BAD_END_OF_ELEMENT TSK", nullptr, nullptr},
      {"InANamespace", [](std::string const& r) { return task("", "<TZN xmlns:p=\"" + r + "\" A=\"1\"/>"); },
       "BAD_DTD TSK, BAD_END_OF_ELEMENT TSK", nullptr, nullptr},
      // What is not known is never expanded.
      {"InAnUnknownAttribute", [](std::string const& r) { return task(" x=\"" + r + "\"", ""); }, "", nullptr,
       nullptr},
      {"InASkippedAttribute",
       [](std::string const& r) { return task("", "<Foo><Bar xmlns:p=\"" + r + "\"/></Foo>"); }, "", nullptr,
       nullptr},
  };
  static const Attack attacks[] = {
      {"AnEntityThatNamesItself", [] { return std::string("<!ENTITY a '&a;'>"); }, "&a;", false, false},
      {"OneThatNamesItselfWithoutSemicolon", [] { return std::string("<!ENTITY a '&a'>"); }, "&a;", false,
       false},
      {"TwoThatNameEachOther", [] { return std::string("<!ENTITY a '&b;'><!ENTITY b '&a;'>"); }, "&a;", false,
       false},
      {"ABillionLaughs", [] { return laughs("ha"); }, "&l19;", true, true},
      {"ABillionBlanks", [] { return laughs(" "); }, "&l19;", true, false},
      // Text all the same: in values each second reference loses its "&".
      {"ABillionTimesNothing", [] { return laughs(""); }, "&l19;", true, false},
      {"AHundredThousandInAChain", [] { return chain(100000); }, "&e0;", false, false},
      {"AHundredKilobytesTenThousandTimes", [] { return "<!ENTITY e '" + std::string(100000, 'x') + "'>"; },
       repeated("&e;", 10000), true, true},
      // The character behind each reference is dropped, so nothing but references is left.
      {"AHundredKilobytesOfReferencesTenThousandTimes",
       [] { return "<!ENTITY e '" + repeated("&lt;x", 20000) + "'>"; }, repeated("&e;", 10000), true, true},
  };
  std::vector<Hostile> all;
  for (Attack const& attack : attacks) {
    for (Place const& place : places) {
      const bool is_exception = place.exception != nullptr && attack.*place.exception;
      all.push_back({std::string(attack.name) + place.name,
                     [&] { return with_subset(attack.subset(), place.document(attack.references)); },
                     is_exception ? place.instead : place.tolerated});
    }
  }
  return all;
}

std::vector<Hostile> in_the_subset() {
  const auto subset = [](char const* name, std::function<std::string()> text, char const* tolerated) {
    return Hostile{name, [text] { return with_subset(text(), task("", "")); }, tolerated};
  };
  const auto fixed = [](std::string text) { return [text] { return text; }; };
  return {
      subset("AParameterEntityThatNamesItself", fixed("<!ENTITY % a '&#37;a;'> %a;"),
             "BAD_DTD , UNEXPECTED_COMPLEX_ELEMENT "),
      subset("OneThatNamesItselfWithoutSemicolon", fixed("<!ENTITY % a '&#37;a'> %a;"),
             "BAD_DTD , UNEXPECTED_COMPLEX_ELEMENT "),
      subset("TwoParameterEntitiesThatNameEachOther",
             fixed("<!ENTITY % a '&#37;b;'><!ENTITY % b '&#37;a;'> %b;"),
             "BAD_DTD , UNEXPECTED_COMPLEX_ELEMENT "),
      subset("OneThatRedeclaresItselfWhileItIsRead",
             fixed("<!ENTITY % a \"&#60;!ENTITY &#37; a 'z'&#62; \"> %a;"), ""),
      subset("OneThatRedeclaresItselfWithItselfInside",
             fixed("<!ENTITY % a \"&#60;!ENTITY &#37; a '&#37;a;&#37;a;'&#62; \"> %a;"),
             "BAD_DTD , UNEXPECTED_COMPLEX_ELEMENT "),
      subset(
          "ABillionLaughsInParameterEntities",
          [] {
            std::string text = "<!ENTITY % l0 'ha'>";
            for (int i = 1; i != 20; ++i) {
              text += "<!ENTITY % l" + std::to_string(i) + " '" +
                      repeated("%l" + std::to_string(i - 1) + ';', 10) + "'>";
            }
            return text;
          },
          "BAD_DTD , UNEXPECTED_COMPLEX_ELEMENT "),
      subset(
          "AHundredKilobytesCopiedTenThousandTimes",
          [] {
            return "<!ENTITY % p '" + std::string(100000, 'x') + "'>" +
                   repeated("<!ENTITY % q '%p;'>", 10000);
          },
          "BAD_DTD , UNEXPECTED_COMPLEX_ELEMENT "),
      subset(
          "AHundredThousandEntities", [] { return numbered("<!ENTITY e# 'v#'>", 100000); }, ""),
      subset(
          "AHundredThousandTimesTheSameEntity", [] { return numbered("<!ENTITY e '#'>", 100000); }, ""),
      subset(
          "AHundredThousandUnknownParameterEntities", [] { return numbered("%p#; ", 100000); }, ""),
      subset(
          "AMillionOtherDeclarations", [] { return repeated("<!ELEMENT a (b)>", million); }, ""),
  };
}

std::vector<Hostile> in_number() {
  return {
      {"AMillionUnknownElementsDeep", [] { return task("", nested("<Foo>", "</Foo>", million)); }, ""},
      {"AMillionVariablesDeep", [] { return nested("<PDV A=\"0001\" B=\"1\">", "</PDV>", million); },
       "BADLY_FORMED PDV"},
      {"AMillionUnknownElements", [] { return task("", repeated("<Foo/>", million)); }, ""},
      {"AMillionAttributes", [] { return task(numbered(" a#=\"v\"", million), ""); }, ""},
      {"AMillionSkippedAttributes", [] { return task("", "<Foo" + numbered(" a#=\"v\"", million) + "/>"); },
       ""},
      {"AMillionTimesTheSameAttribute", [] { return task(repeated(" B=\"v\"", million), ""); },
       "ATTRIBUTE_ALREADY_READ @B x 999999"},
      {"AHundredThousandNamespacesOnATag",
       [] { return task(numbered(" xmlns:p#=\"u#\"", 100000), "<TZN A=\"1\"/>"); }, ""},
      {"AHundredThousandNamespacesThatAreUsed",
       [] {
         return task(numbered(" xmlns:p#=\"u#\"", 100000),
                     numbered("<p#:Foo/>", 100000) + numbered("<TZN A=\"1\" p#:x=\"1\"/>", 100000));
       },
       ""},
      {"AHundredThousandNamespacesOnSiblings",
       [] { return task("", numbered("<TZN xmlns:p#=\"u#\" A=\"1\"/>", 100000)); }, ""},
      {"AHundredThousandSkippedNamespaces",
       [] { return task("", "<Foo>" + numbered("<Bar xmlns:p#=\"u#\"/>", 100000) + "</Foo>"); }, ""},
      {"AHundredThousandTimesTheSamePrefix", [] { return task(numbered(" xmlns:p=\"u#\"", 100000), ""); },
       ""},
      {"AHundredThousandLooksOutwardsThroughManyScopes",
       [] {
         std::string scopes, ends;
         for (int i = 0; i != 900; ++i) {
           scopes += "<PDV A=\"0001\" B=\"1\" xmlns:p" + std::to_string(i) + "=\"u\">";
           ends += "</PDV>";
         }
         return task(" xmlns:q=\"v\"", "<TZN A=\"1\">" + scopes +
                                           repeated("<PDV A=\"0001\" B=\"1\" q:x=\"1\"/>", 100000) + ends +
                                           "</TZN>");
       },
       ""},
      {"AMillionComments", [] { return task("", repeated("<!---->", million)); }, ""},
      {"AMillionReferencesInText",
       [] { return task("", "<P917_comment>" + repeated("&lt;", million) + "</P917_comment>"); }, ""},
  };
}

std::vector<Hostile> in_size() {
  return {
      {"AnElementName", [] { return task("", '<' + long_text() + "/>"); }, ""},
      {"AnElementNameWithContent", [] { return task("", '<' + long_text() + ">t</x>"); },
       "BADLY_FORMED TSK, BAD_END_OF_ELEMENT 67108864 characters, UNEXPECTED_EOM TSK, BAD_END_OF_ELEMENT "
       "TSK"},
      {"AnotherEndTag", [] { return "<TSK A=\"TSK1\" G=\"1\"></" + long_text() + '>'; },
       "BAD_END_OF_ELEMENT TSK"},
      {"ASkippedEndTag", [] { return task("", "<Foo></" + long_text() + '>'); },
       "BADLY_FORMED TSK, BAD_END_OF_ELEMENT Foo, UNEXPECTED_EOM TSK, BAD_END_OF_ELEMENT TSK"},
      {"AnAttributeName", [] { return task(' ' + long_text() + "=\"1\"", ""); }, ""},
      {"AnUnknownValue", [] { return task(" x=\"" + long_text() + '"', ""); }, ""},
      {"AKnownValue", [] { return task(" B=\"" + long_text() + '"', ""); }, "LENGTH_TOO_LONG B"},
      {"AnUnquotedValue", [] { return task(" B=" + long_text(), ""); },
       "NOT_WELL_FORMED TSK, UNEXPECTED_COMPLEX_ELEMENT TSK"},
      {"AText", [] { return task("", "<P917_comment>" + long_text() + "</P917_comment>"); }, ""},
      {"ATextOfBlanks", [] { return task("", "<P917_comment>" + long_text(' ') + "</P917_comment>"); }, ""},
      {"ASection", [] { return task("", "<P917_comment><![CDATA[" + long_text(']') + "]]></P917_comment>"); },
       ""},
      {"ATextBetweenTags", [] { return task("", long_text()); }, "BAD_END_OF_ELEMENT TSK"},
      {"ASectionBetweenTags", [] { return task("", "<![CDATA[" + long_text() + "]]>"); },
       "BAD_END_OF_ELEMENT TSK"},
      {"BlanksBetweenTags", [] { return task("", long_text(' ')); }, ""},
      {"BlanksBetweenAttributes", [] { return task(long_text(' '), ""); }, ""},
      {"LineEndsBetweenTags", [] { return task("", long_text('\r')); }, ""},
      {"AComment", [] { return task("", "<!--" + long_text() + "-->"); }, ""},
      {"ACommentOfHyphens", [] { return task("", "<!--" + long_text('-') + "-->"); }, ""},
      {"AnInstruction", [] { return task("", "<?p " + long_text('?') + "?>"); }, ""},
      {"ADocumentType", [] { return "<!DOCTYPE " + long_text() + '>' + task("", ""); }, ""},
      {"ADeclaration", [] { return with_subset("<!ELEMENT " + long_text() + '>', task("", "")); }, ""},
      {"AVersion", [] { return "<?xml version=\"" + long_text() + "\"?>" + task("", ""); },
       "BAD_XML_VERSION , UNEXPECTED_COMPLEX_ELEMENT "},
      {"AnEncoding", [] { return "<?xml version=\"1.0\" encoding=\"" + long_text() + "\"?>" + task("", ""); },
       "BAD_CHAR_ENCODING , UNEXPECTED_COMPLEX_ELEMENT "},
      {"ANamespace", [] { return task(" xmlns:p=\"" + long_text() + '"', ""); }, ""},
      {"APrefix", [] { return task(" xmlns:" + long_text() + "=\"u\"", ""); }, ""},
      {"AReferenceInAnAttribute", [] { return task(" B=\"&" + long_text() + ";\"", ""); },
       "UNABLE_TO_READ_ATTRIBUTE_VALUE @B, LENGTH_TOO_LONG B"},
      {"AReferenceInText", [] { return task("", "<P917_comment>&" + long_text() + ";</P917_comment>"); },
       "UNABLE_TO_READ_ELEMENT_VALUE P917_comment"},
      {"AReferenceBetweenTags", [] { return task("", '&' + long_text() + ';'); }, "BAD_END_OF_ELEMENT TSK"},
      {"ANumberOfACharacter", [] { return task(" B=\"&#" + long_text('1') + ";\"", ""); },
       "UNABLE_TO_READ_ATTRIBUTE_VALUE @B"},
      {"AnEntityName",
       [] {
         return with_subset("<!ENTITY " + long_text() + " 'v'>", task(" B=\"&" + long_text() + ";\"", ""));
       },
       ""},
      {"AnEntityValue",
       [] {
         return with_subset("<!ENTITY e '" + long_text() + "'>",
                            task("", "<P917_comment>&e;</P917_comment>"));
       },
       ""},
      {"AnEntityValueInAnAttribute",
       [] { return with_subset("<!ENTITY e '" + long_text() + "'>", task(" B=\"&e;\"", "")); },
       "LENGTH_TOO_LONG B"},
      {"AParameterEntity", [] { return with_subset("<!ENTITY % p '" + long_text() + "'>%p;", task("", "")); },
       "BAD_DTD , UNEXPECTED_COMPLEX_ELEMENT "},
  };
}

// So many names that a look at all others for each of them would outlast the hang guard. What they take in
// memory is not measured here: each is kept with what finds it.
int code_of(std::string const& document) {
  TextSource text(document, shown_at_a_time);
  lmx::xmlReader reader(text);
  Root root;
  return root.unmarshal(reader);
}

TEST(AMillionNames, OfEntitiesAreTakenInOneByOne) {
  EXPECT_EQ(0, code_of(with_subset(numbered("<!ENTITY e# 'v'>", million), task(" B=\"&e0;&e999999;\"", ""))));
}

TEST(AMillionNames, OfParameterEntitiesAreTakenInOneByOne) {
  EXPECT_EQ(0, code_of(with_subset(numbered("<!ENTITY % e# ''>", million) + "%e0;%e999999;", task("", ""))));
}

TEST(AMillionNames, OfNamespacesAreTakenInOneByOne) {
  EXPECT_EQ(0, code_of(task(numbered(" xmlns:p#=\"u#\"", million), "<p0:Foo/><p999999:Foo/>")));
}

class HostileDocuments : public testing::TestWithParam<Hostile> {};

TEST_P(HostileDocuments, GetTheirCode) {
  const std::string document = GetParam().document();
  EXPECT_EQ(first_code(GetParam().tolerated), code_name(read(document, Host::Strict).code));
}

TEST_P(HostileDocuments, ComeToAnEndWhenEverythingIsTolerated) {
  const std::string document = GetParam().document();
  EXPECT_EQ(GetParam().tolerated, read(document, Host::Tolerant).reports);
}

// What a cut may bring, beside what the document brings before it.
bool is_code_of_a_hostile_cut(int code) {
  return is_code_of_a_cut(code) || code == lmx::ELMX_BAD_DTD ||
         code == lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE || code == lmx::ELMX_ENTITY_NOT_FOUND;
}

TEST_P(HostileDocuments, AreRefusedWhereverTheyAreCutOff) {
  const std::string document = GetParam().document();
  const std::string_view whole = document;
  std::mt19937 random(4711);
  const std::size_t edge = std::min<std::size_t>(whole.size(), 200);
  std::vector<std::size_t> cuts;
  for (int i = 0; i != 2; ++i) {
    cuts.push_back(random() % edge);
    cuts.push_back(random() % whole.size());
    cuts.push_back(whole.size() - 1 - random() % edge);
  }
  for (const std::size_t cut : cuts) {
    SCOPED_TRACE("cut at " + std::to_string(cut) + " of " + std::to_string(whole.size()));
    const std::string_view rest = whole.substr(0, cut);
    const Outcome strict = read(rest, Host::Strict);
    EXPECT_TRUE(is_code_of_a_hostile_cut(strict.code) ||
                (strict.code != 0 && code_name(strict.code) == first_code(GetParam().tolerated)))
        << strict.code;
    EXPECT_EQ(strict.code, read(rest, Host::Tolerant).first_code);
  }
}

std::string name_of(testing::TestParamInfo<Hostile> const& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(OfEntities, HostileDocuments, testing::ValuesIn(with_entities()), name_of);
INSTANTIATE_TEST_SUITE_P(InTheSubset, HostileDocuments, testing::ValuesIn(in_the_subset()), name_of);
INSTANTIATE_TEST_SUITE_P(InNumber, HostileDocuments, testing::ValuesIn(in_number()), name_of);
INSTANTIATE_TEST_SUITE_P(OfManyMegabytes, HostileDocuments, testing::ValuesIn(in_size()), name_of);

// ---- Files ----

std::size_t open_files() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(all), end(all))) - 1;  // the listing's own
}

// Fewer files may be open than the set has, for as long as this lives.
class FileLimit {
 public:
  explicit FileLimit(rlim_t most) {
    getrlimit(RLIMIT_NOFILE, &m_before);
    const rlimit lower{most, m_before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &lower);
  }
  ~FileLimit() { setrlimit(RLIMIT_NOFILE, &m_before); }
  FileLimit(FileLimit const&) = delete;
  FileLimit& operator=(FileLimit const&) = delete;

 private:
  rlimit m_before{};
};

TEST(HostileSet, WithMoreFilesThanMayBeOpenKeepsThoseThatCouldBeOpened) {
  constexpr std::size_t references = 2000, most = 256;
  SetFiles files;
  std::string content;
  for (std::size_t i = 0; i != references; ++i) {
    const std::string number = std::to_string(10000 + i);
    content += reference("TSK" + number);
    files["TSK" + number + ".XML"] = external_file("<TSK A='TSK" + number + "' G='1'/>");
  }
  files["TASKDATA.XML"] = task_data(content);
  const std::size_t open_before = open_files();
  const std::size_t read = most - open_before - 1;  // the main document holds one
  const FileLimit limit(most);
  TransferSet set(files);
  EXPECT_EQ(read, set->getTasks().size());
  ASSERT_EQ(references - read, set->getErrors().size());
  for (std::size_t i = 0; i != set->getErrors().size(); ++i) {
    IsoXmlError const& error = set->getErrors()[i];
    EXPECT_EQ(lmx::ELMX_NO_FILE, error.error);
    EXPECT_EQ("TSK" + std::to_string(10000 + read + i), error.fileName);
    EXPECT_EQ(1, error.line);
  }
  EXPECT_EQ(1 + references, set->getDocuments().size());
  set.close();
  EXPECT_EQ(open_before, open_files());
}

std::string numbered_tasks(std::size_t count) {
  return numbered("<TSK A='TSK#' G='1'><TZN A='1'/></TSK>", count);
}

TEST(HostileSet, WithAMillionTasksGivesAllTheirMaps) {
  const TransferSet set(numbered_tasks(million));
  ASSERT_EQ(0u, set->getErrors().size());
  const std::vector<lmx::ISORxMap> maps = set->getISORxMaps();
  ASSERT_EQ(million, maps.size());
  EXPECT_EQ("TSK0", maps.front().taskId);
  EXPECT_EQ("TSK999999", maps.back().taskId);
  EXPECT_EQ(1u, maps.back().treatmentZones.size());
}

// No list of the tasks is made for it.
TEST(HostileSet, WithManyTasksGivesOneMapWithoutMemoryForEachTask) {
  constexpr std::size_t tasks = 100000;
  const TransferSet set(numbered_tasks(tasks));
  const std::size_t before = counted_heap::restart();
  for (char const* id : {"TSK0", "TSK99999", "TSK100000"}) {
    lmx::TaskInfo info;
    info.id = id;
    lmx::ISORxMap map;
    set->getISORxMap(info, map);
    EXPECT_EQ(id == std::string("TSK100000") ? 0u : 1u, map.treatmentZones.size()) << id;
  }
  EXPECT_LT(counted_heap::peak - before, tasks);
}

TEST(HostileSet, ThatNamesOneFileTenThousandTimesReadsItSixteenTimes) {
  const std::string file = external_file(numbered_tasks(10000));
  constexpr std::size_t references = 10000, openings = 16;
  const std::size_t before = counted_heap::restart();
  const TransferSet set(SetFiles{{"TASKDATA.XML", task_data(repeated(reference("TSK00001"), references))},
                                 {"TSK00001.XML", file}});
  const std::size_t taken = counted_heap::peak - before;
  EXPECT_EQ(openings * 10000, set->getTasks().size());
  EXPECT_EQ(references - openings, set->getErrors().size());
  EXPECT_EQ(1 + references, set->getDocuments().size());
  EXPECT_TRUE(taken <= 64 * mib + openings * 8 * file.size() || !heap_is_plain) << taken;
}

// A field whose guidance is one pivot line of these points.
std::string pivot(std::string const& points) {
  return "<PFD A='PFD1' C='f' D='1'><GGP A='GGP1'><GPN A='GPN1' C='4'><LSG A='5'>" + points +
         "</LSG></GPN></GGP></PFD>";
}

std::string centres(std::size_t count) { return numbered("<PNT A='8' C='0.#' D='1'/>", count); }

TEST(HostileSet, WithAPivotOfAMillionCentresGivesThemLastFirst) {
  const TransferSet set(pivot("<PNT A='2' C='7' D='7'/>" + centres(million)));
  ASSERT_EQ(0u, set->getErrors().size());
  const std::vector<IsoField> fields = set->getFields();
  std::vector<Location> const& points = fields.at(0).guidanceGroups.at(0).guidanceLines.at(0).points;
  ASSERT_EQ(million + 1, points.size());
  EXPECT_EQ(0.999999, points[0].north);
  EXPECT_EQ(0.999998, points[1].north);
  EXPECT_EQ(0.0, points[million - 1].north);
  EXPECT_EQ(7.0, points[million].north);
}

// ---- NUL bytes ----

// A good document in pieces: what comes of a NUL in front of each of a piece's characters.
struct Piece {
  char const* text;
  int code;
};

constexpr Piece pieces[] = {
    // In the first two bytes it tells of UTF-16, and the document is one long name.
    {"<?", lmx::ELMX_NOT_WELL_FORMED},
    // No "xml ", so it is an instruction, which is skipped.
    {"xml ", 0},
    {"version=\"", lmx::ELMX_BAD_XML_DECL},
    {"1.0\"", lmx::ELMX_BAD_XML_VERSION},
    {" encoding=\"", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
    {"UTF-8", lmx::ELMX_BAD_CHAR_ENCODING},
    {"\"", 0},  // the name ends at the NUL
    {"?>", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
    {"<", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
    {"!", lmx::ELMX_NOT_WELL_FORMED},
    {"DOCTYPE", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
    {" x [", 0},
    {"<", lmx::ELMX_BAD_DTD},
    // The entity is then another, or none.
    {"!ENTITY e ", lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE},
    {"\"v\">", 0},
    {"]>", lmx::ELMX_BAD_DTD},
    {"<", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
    {"!", lmx::ELMX_NOT_WELL_FORMED},
    {"--", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
    {" c -", 0},
    {"->", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},  // the comment goes on
    {"<", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
    {"?", lmx::ELMX_NOT_WELL_FORMED},
    {"p i?", 0},
    {">", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},  // the instruction goes on
    {"<", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
    {"T", lmx::ELMX_NOT_WELL_FORMED},
    {"SK", lmx::ELMX_BADLY_FORMED},  // an unknown element, whose end tag does not come
    {" A=\"TSK1\" G=\"1\" B=\"b&e;\">", lmx::ELMX_NOT_WELL_FORMED},
    {"\n<", lmx::ELMX_BAD_END_OF_ELEMENT},
    {"F", lmx::ELMX_NOT_WELL_FORMED},
    {"oo", lmx::ELMX_BADLY_FORMED},
    {" x", 0},
    {"=\"1\"", lmx::ELMX_NOT_WELL_FORMED},
    {">t<", 0},
    {"/Foo>", lmx::ELMX_BADLY_FORMED},
    {"<", lmx::ELMX_BAD_END_OF_ELEMENT},
    {"P", lmx::ELMX_NOT_WELL_FORMED},
    {"917_comment", lmx::ELMX_BADLY_FORMED},
    {">", lmx::ELMX_NOT_WELL_FORMED},
    {"text<", 0},
    {"!", lmx::ELMX_BAD_END_OF_ELEMENT},
    {"[CDATA[", lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE},
    {"cd]", 0},
    {"]>", lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE},  // the section goes on
    {"<", 0},
    {"/P917_comment>", lmx::ELMX_BAD_END_OF_ELEMENT},
    {"<", lmx::ELMX_BAD_END_OF_ELEMENT},
    {"T", lmx::ELMX_NOT_WELL_FORMED},
    {"ZN", 0},  // an unknown element, and an empty one
    {" A=\"1\"/>", lmx::ELMX_NOT_WELL_FORMED},
    {"<", lmx::ELMX_BAD_END_OF_ELEMENT},
    {"/",
     lmx::ELMX_BAD_END_TAG},  // the tag's end is looked for, and what stands behind the "/" is wrong as well
    {"T", lmx::ELMX_BAD_END_OF_ELEMENT},
    {"SK>", lmx::ELMX_NOT_WELL_FORMED},
};

std::string pieces_together() {
  std::string document;
  for (Piece const& piece : pieces) document += piece.text;
  return document;
}

TEST(NulBytes, GetTheCodeOfWhereTheyStand) {
  const std::string document = pieces_together();
  ASSERT_EQ(0, read(document, Host::Strict).code);
  std::string::size_type position = 0;
  for (Piece const& piece : pieces) {
    for (char const* p = piece.text; *p != '\0'; ++p, ++position) {
      const std::string with_nul = document.substr(0, position) + '\0' + document.substr(position);
      EXPECT_EQ(piece.code, read(with_nul, Host::Strict).code)
          << position << ": " << document.substr(position);
      EXPECT_EQ(piece.code, read(with_nul, Host::Tolerant).first_code) << position;
    }
  }
  EXPECT_EQ(0, read(document + '\0', Host::Strict).code) << "what follows the root is not read";
}

TEST(NulBytes, InPlaceOfAnyByteEndTheReading) {
  const std::string document = pieces_together();
  for (std::string::size_type i = 0; i != document.size(); ++i) {
    std::string with_nul = document;
    with_nul[i] = '\0';
    const int code = read(with_nul, Host::Strict).code;
    EXPECT_TRUE(code == lmx::ELMX_OK || code == lmx::ELMX_BAD_CHAR_ENCODING ||
                code == lmx::ELMX_BAD_XML_VERSION || is_code_of_a_hostile_cut(code))
        << i << ": " << code;
    EXPECT_EQ(code, read(with_nul, Host::Tolerant).first_code) << i;
  }
}

TEST(NulBytes, AloneAreNoEncoding) {
  const std::string nothing(million, '\0');
  EXPECT_EQ(lmx::ELMX_BAD_CHAR_ENCODING, read(nothing, Host::Strict).code);
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, read("", Host::Strict).code);
}

// ---- The first two bytes ----

bool is_blank(int c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool is_name_start(int c) {
  return c > 127 || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == ':' || c == '_';
}

// What a task behind the bytes `a` and `b` gets.
int code_behind(int a, int b) {
  constexpr auto unknown_encoding = lmx::ELMX_BAD_CHAR_ENCODING, not_well_formed = lmx::ELMX_NOT_WELL_FORMED,
                 no_element = lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, end_of_input = lmx::ELMX_UNEXPECTED_EOM;
  // Two bytes a character: the task's tag is then one long name, or text.
  if (a == 0 && (b == '<' || is_blank(b))) return b == '<' ? not_well_formed : no_element;
  if (a != '<' && !is_blank(a)) return unknown_encoding;
  if (b == 0) return a == '<' ? not_well_formed : no_element;
  // No first byte of a character reads as the end of the input.
  const bool is_cut = (b >= 0x80 && b < 0xC2) || b > 0xF4 || b == 0xE0 || b == 0xED || b == 0xF0 || b == 0xF4;
  if (a == '<') {
    if (is_cut) return not_well_formed;
    if (is_name_start(b)) return end_of_input;  // an unknown element, and nothing else
    return b == '/' || b == '?' || b == '!' ? no_element : not_well_formed;
  }
  if (is_cut) return end_of_input;
  if (is_blank(b)) return 0;
  return b == '<' ? not_well_formed : no_element;
}

TEST(FirstTwoBytes, OfAllKindsGetTheirCode) {
  std::string document = "..<TSK A=\"TSK1\" G=\"1\"/>\n";
  for (int a = 0; a != 256; ++a) {
    for (int b = 0; b != 256; ++b) {
      document[0] = static_cast<char>(a);
      document[1] = static_cast<char>(b);
      const int code = code_behind(a, b);
      ASSERT_EQ(code, read(document, Host::Strict).code) << a << ' ' << b;
      ASSERT_EQ(code, read(document, Host::Tolerant).first_code) << a << ' ' << b;
    }
  }
}

TEST(FirstTwoBytes, AloneNeverMakeADocument) {
  std::string document = "..";
  for (int a = 0; a != 256; ++a) {
    for (int b = 0; b != 256; ++b) {
      document[0] = static_cast<char>(a);
      document[1] = static_cast<char>(b);
      const int code = read(document, Host::Strict).code;
      ASSERT_TRUE(code == lmx::ELMX_BAD_CHAR_ENCODING || code == lmx::ELMX_NOT_WELL_FORMED ||
                  code == lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT || code == lmx::ELMX_UNEXPECTED_EOM)
          << a << ' ' << b << ": " << code;
    }
  }
}

}  // namespace
