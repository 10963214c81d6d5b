// From bytes to characters: encodings, line ends, push-back, white space, references, and the small scans.
#include "GenLibrarySupportFiles/lmxparse/getters.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse/c_xml.h"
#include "GenLibrarySupportFiles/lmxparse/entity_name_readers.h"
#include "support/each_source.h"
#include "support/recording_error.h"

namespace {

using namespace std::string_literals;

// What is delivered up to the first -1.
template <class Getter>
std::string rest(Getter& getter) {
  std::string text;
  for (int c = getter.get(); c != -1; c = getter.get()) {
    EXPECT_TRUE(c >= 0 && c <= 255) << c;
    text.push_back(static_cast<char>(c));
  }
  return text;
}

// Calls `use(getter, log)` for each kind of source over `bytes`.
template <class Use>
void with_getter(std::string const& bytes, Use use) {
  with_each_source(bytes, [&](lmx::c_read& read) {
    RecordingError log;
    lmx::c_get_for_xml getter(read, log, true);
    use(getter, log);
  });
}

// The same from behind a first "<", so that `bytes` may begin with anything.
template <class Use>
void with_getter_inside(std::string const& bytes, Use use) {
  with_getter("<" + bytes, [&](lmx::c_get_for_xml& getter, RecordingError& log) {
    ASSERT_EQ('<', getter.get());
    use(getter, log);
  });
}

// --- Push-back -------------------------------------------------------------------------------------------

TEST(UngetBuffer, GivesBackTheLastFirst) {
  lmx::c_unget_buffer buffer;
  EXPECT_TRUE(buffer.empty());
  for (const int c : {1, 2, 3}) buffer.unget(c);
  EXPECT_FALSE(buffer.empty());
  for (const int c : {3, 2, 1}) EXPECT_EQ(c, buffer.get());
  EXPECT_TRUE(buffer.empty());
}

TEST(UngetBufferDeathTest, StopsAtAFourthAndWhenEmpty) {
  lmx::c_unget_buffer buffer;
  EXPECT_DEATH(buffer.get(), "m_free_index > 0");
  for (const int c : {1, 2, 3}) buffer.unget(c);
  EXPECT_DEATH(buffer.unget(4), "m_free_index < size");
}

TEST(PushBack, TakesThreeCharactersAndComesBeforeTheInput) {
  with_getter_inside("abc", [](lmx::c_get_for_xml& getter, RecordingError&) {
    EXPECT_EQ('a', getter.get());
    for (const int c : {'1', '2', '3'}) getter.unget(c);
    EXPECT_EQ("321bc", rest(getter));
  });
}

TEST(PushBack, GoesInFrontOfAMultiByteCharacterUnderDelivery) {
  with_getter_inside("\xC3\xA9z", [](lmx::c_get_for_xml& getter, RecordingError&) {
    EXPECT_EQ(0xC3, getter.get());
    getter.unget(0xC3);
    EXPECT_EQ("\xC3\xA9z", rest(getter));
  });
}

TEST(PushBack, OfNoCharacterIsReturnedOnceLikeOne) {
  with_getter_inside("ab", [](lmx::c_get_for_xml& getter, RecordingError&) {
    getter.unget(-1);
    EXPECT_EQ(-1, getter.get());
    EXPECT_EQ('a', getter.get());
    for (const int c : {int{'1'}, -1, int{'2'}}) getter.unget(c);
    for (const int c : {int{'2'}, -1, int{'1'}, int{'b'}, -1, -1}) EXPECT_EQ(c, getter.get());
  });
}

TEST(PushBackDeathTest, StopsAtAFourth) {
  for (const int c : {int{'x'}, -1})
    EXPECT_DEATH(
        {
          MemoryRead read("");
          lmx::c_error log;
          lmx::c_get_as_utf8 getter(read, log);
          for (int i = 0; i < 4; ++i) getter.unget(c);
        },
        "m_free_index < size");
}

TEST(AfterAFatalError, EveryGetIsTheEnd) {
  struct Row {
    const char *caption, *bytes;
    int reads, push_back;
  };
  for (auto const& row :
       {Row{"plain input left", "abc", 1, -1}, Row{"text pushed back before", "abc", 1, 'x'},
        Row{"inside a multi-byte character", "\xE2\x82\xAC", 1, -1}}) {
    SCOPED_TRACE(row.caption);
    with_getter_inside(row.bytes, [&](lmx::c_get_for_xml& getter, RecordingError&) {
      for (int i = 0; i < row.reads; ++i) getter.get();
      getter.unget(row.push_back);
      getter.error(lmx::EET_FATAL, lmx::ELMX_BAD_DTD, "stop");
      for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(-1, getter.get());
        for (const int c : {int{'x'}, -1}) getter.unget(c);  // neither kept nor counted against the three
      }
      EXPECT_EQ(-1, getter.get());
    });
  }
}

TEST(AfterAFatalError, AnEntityBeingReadIsAtItsEndToo) {
  with_getter_inside("e;rest", [](lmx::c_get_for_xml& getter, RecordingError&) {
    getter.add_general_entity("e", "value");
    lmx::c_entity_name_reader_for_c_get reader(getter);
    reader.m_push_as_input = true;
    std::string out;
    ASSERT_TRUE(getter.select_general_entity(reader, &out));
    EXPECT_EQ("", out);
    EXPECT_EQ('v', getter.get());
    for (const int c : {-1, int{'V'}}) getter.unget(c);  // both stay with the entity
    for (const int c : {int{'V'}, -1}) EXPECT_EQ(c, getter.get());
    getter.error(lmx::EET_FATAL, lmx::ELMX_BAD_DTD, "stop");
    for (int i = 0; i < 5; ++i) {
      EXPECT_EQ(-1, getter.get());
      for (const int c : {int{'x'}, -1}) getter.unget(c);
    }
    EXPECT_EQ(-1, getter.get());
  });
}

TEST(AfterAnyOtherReport, ReadingGoesOn) {
  for (const auto type : {lmx::EET_ERROR, lmx::EET_WARNING, lmx::EET_NOTE})
    with_getter_inside("abc", [&](lmx::c_get_for_xml& getter, RecordingError&) {
      getter.error(type, lmx::ELMX_BAD_DTD, "go on");
      EXPECT_EQ("abc", rest(getter));
    });
}

// --- Line ends -------------------------------------------------------------------------------------------

struct LineEnd {
  const char* caption;
  std::string bytes, delivered;
  int line;
};
class LineEnds : public testing::TestWithParam<LineEnd> {};
TEST_P(LineEnds, FoldToOneLineFeedAndCountOneLine) {
  const auto& [caption, bytes, delivered, line] = GetParam();
  SCOPED_TRACE(caption);
  with_getter(bytes,
              [&, &delivered = delivered, &line = line](lmx::c_get_for_xml& getter, RecordingError& log) {
                EXPECT_EQ(1, getter.line());
                EXPECT_EQ(delivered, rest(getter));
                EXPECT_EQ(line, getter.line());
                EXPECT_EQ("", log.text());
              });
}
INSTANTIATE_TEST_SUITE_P(
    Getter, LineEnds,
    testing::Values(LineEnd{"none", "<a", "<a", 1}, LineEnd{"LF", "<a\nb", "<a\nb", 2},
                    LineEnd{"CR", "<a\rb", "<a\nb", 2}, LineEnd{"CR LF is one", "<a\r\nb", "<a\nb", 2},
                    LineEnd{"CR CR is two", "<a\r\rb", "<a\n\nb", 3},
                    LineEnd{"LF LF is two", "<a\n\nb", "<a\n\nb", 3},
                    LineEnd{"LF CR is two", "<a\n\rb", "<a\n\nb", 3},
                    LineEnd{"LF CR LF is two", "<a\n\r\nb", "<a\n\nb", 3},
                    LineEnd{"CR CR LF is two", "<a\r\r\nb", "<a\n\nb", 3},
                    LineEnd{"CR LF LF is two", "<a\r\n\nb", "<a\n\nb", 3},
                    LineEnd{"CR LF CR is two", "<a\r\n\rb", "<a\n\nb", 3},
                    LineEnd{"CR LF twice is two", "<a\r\n\r\nb", "<a\n\nb", 3},
                    LineEnd{"CR LF at the end", "<a\r\n", "<a\n", 2},
                    LineEnd{"CR at the end", "<a\r", "<a\n", 2},
                    LineEnd{"as the first byte, LF", "\n<a", "\n<a", 2},
                    LineEnd{"as the first byte, CR", "\r<a", "\n<a", 2},
                    LineEnd{"as the first bytes, CR LF", "\r\n<a", "\n<a", 2},
                    LineEnd{"as the second byte, LF", "<\na", "<\na", 2},
                    LineEnd{"as the second byte, CR", "<\ra", "<\na", 2},
                    LineEnd{"as the second byte, CR LF", "<\r\na", "<\na", 2},
                    LineEnd{"a vertical tab is none", "<a\v\fb", "<a\v\fb", 1},
                    LineEnd{"NEL is one", "<a\xC2\x85z", "<a\nz", 2},
                    LineEnd{"LINE SEPARATOR is one", "<a\xE2\x80\xA8z", "<a\nz", 2},
                    LineEnd{"NEL as the second character", "<\xC2\x85z", "<\nz", 2},
                    LineEnd{"PARAGRAPH SEPARATOR is none", "<a\xE2\x80\xA9z", "<a\xE2\x80\xA9z", 1},
                    LineEnd{"CR NEL is one", "<a\r\xC2\x85z", "<a\nz", 2},
                    LineEnd{"between CR and LF anything parts them", "<a\r \nb", "<a\n \nb", 3},
                    LineEnd{"a multi-byte character parts them", "<a\r\xC3\xA9\nb", "<a\n\xC3\xA9\nb", 3}));

struct PushedBack {
  const char* caption;
  std::string bytes;
  int line;          // after the first line feed was pushed back and read again
  std::string rest;  // what reading again delivers
};
class PushedBackLineFeed : public testing::TestWithParam<PushedBack> {};
TEST_P(PushedBackLineFeed, PassesTheFoldingAgain) {
  const auto& row = GetParam();
  SCOPED_TRACE(row.caption);
  with_getter_inside(row.bytes, [&](lmx::c_get_for_xml& getter, RecordingError&) {
    EXPECT_EQ('\n', getter.get());
    EXPECT_EQ(2, getter.line());
    getter.unget('\n');
    EXPECT_EQ(2, getter.line());
    EXPECT_EQ(row.rest, rest(getter));
    EXPECT_EQ(row.line, getter.line());
  });
}
INSTANTIATE_TEST_SUITE_P(Getter, PushedBackLineFeed,
                         testing::Values(PushedBack{"LF counts again", "\nb", 3, "\nb"},
                                         PushedBack{"CR LF counts again", "\r\nb", 3, "\nb"},
                                         PushedBack{"a lone CR's is swallowed", "\rb", 2, "b"},
                                         PushedBack{"CR CR gives the second", "\r\rb", 3, "\nb"},
                                         PushedBack{"CR at the end", "\r", 2, ""}));

// --- Encodings -------------------------------------------------------------------------------------------

struct FirstBytes {
  const char* caption;
  std::string bytes, delivered;  // up to the first -1
  lmx::elxp_char_encoding encoding;
  const char* reports;
};
const char unrecognised[] = "fatal BAD_CHAR_ENCODING Unrecognised character encoding\n";
class FirstBytesOfADocument : public testing::TestWithParam<FirstBytes> {};
TEST_P(FirstBytesOfADocument, DecideTheEncoding) {
  const auto& row = GetParam();
  SCOPED_TRACE(row.caption);
  with_getter(row.bytes, [&](lmx::c_get_for_xml& getter, RecordingError& log) {
    EXPECT_EQ(lmx::EXCE_UNKNOWN, getter.encoding());
    EXPECT_EQ(row.delivered, rest(getter));
    EXPECT_EQ(row.encoding, getter.encoding());
    EXPECT_EQ(row.reports, log.text());
    for (auto const& report : log.reports) EXPECT_EQ(1, report.line);
  });
}
INSTANTIATE_TEST_SUITE_P(
    Getter, FirstBytesOfADocument,
    testing::Values(FirstBytes{"no byte", "", "", lmx::EXCE_UNKNOWN, ""},
                    FirstBytes{"a tag", "<a>", "<a>", lmx::EXCE_UTF8, ""},
                    FirstBytes{"one byte", "<", "<", lmx::EXCE_UTF8, ""},
                    FirstBytes{"a blank", " <a", " <a", lmx::EXCE_UTF8, ""},
                    FirstBytes{"a vertical tab", "\v<a", "\v<a", lmx::EXCE_UTF8, ""},
                    FirstBytes{"a form feed", "\f<a", "\f<a", lmx::EXCE_UTF8, ""},
                    FirstBytes{"then a two-byte character", "<\xC3\xA9z", "<\xC3\xA9z", lmx::EXCE_UTF8, ""},
                    FirstBytes{"then a cut one", "<\xC3", "<", lmx::EXCE_UTF8, ""},
                    FirstBytes{"a mark", "\xEF\xBB\xBF<a>", "<a>", lmx::EXCE_UTF8, ""},
                    FirstBytes{"a mark before text", "\xEF\xBB\xBFtext", "text", lmx::EXCE_UTF8, ""},
                    FirstBytes{"a mark alone", "\xEF\xBB\xBF", "", lmx::EXCE_UTF8, ""},
                    FirstBytes{"a character behind a mark is not assembled", "\xEF\xBB\xBF\xC3\xA9z", "\xC3",
                               lmx::EXCE_UTF8, ""},
                    FirstBytes{"the one after it is", "\xEF\xBB\xBF<\xC3\xA9z", "<\xC3\xA9z", lmx::EXCE_UTF8,
                               ""},
                    FirstBytes{"a second mark is a character", "\xEF\xBB\xBF \xEF\xBB\xBFz", " \xEF\xBB\xBFz",
                               lmx::EXCE_UTF8, ""},
                    FirstBytes{"a broken mark", "\xEF\xBB<a>", "", lmx::EXCE_UNKNOWN, unrecognised},
                    FirstBytes{"a cut mark", "\xEF\xBB", "", lmx::EXCE_UNKNOWN, unrecognised},
                    FirstBytes{"text", "text", "", lmx::EXCE_UNKNOWN, unrecognised},
                    FirstBytes{"a two-byte character", "\xC3\xA9<a>", "", lmx::EXCE_UNKNOWN, unrecognised},
                    FirstBytes{"a bad byte", "\x80<a>", "", lmx::EXCE_UNKNOWN, unrecognised},
                    FirstBytes{"another mark without what must follow", "\xFF\xFE<a>", "", lmx::EXCE_UNKNOWN,
                               unrecognised}));

struct Bytes {
  int first_from, first_to, second_from, second_to;
};
const Bytes valid_starts[] = {
    {0x00, 0x7F, 0x00, 0xFF}, {0xC2, 0xDF, 0x00, 0xFF}, {0xE0, 0xE0, 0xA0, 0xBF},
    {0xE1, 0xEC, 0x00, 0xFF}, {0xED, 0xED, 0x80, 0x9F}, {0xEE, 0xEF, 0x00, 0xFF},
    {0xF0, 0xF0, 0x90, 0xBF}, {0xF1, 0xF3, 0x00, 0xFF}, {0xF4, 0xF4, 0x80, 0x8F},
};
bool is_valid_start(int first, int second) {
  for (auto const& row : valid_starts)
    if (first >= row.first_from && first <= row.first_to)
      return second >= row.second_from && second <= row.second_to;
  return false;
}

TEST(Utf8Validity, IsDecidedByTheFirstTwoBytes) {
  for (int first = 0; first < 256; ++first)
    for (int second = 0; second < 256; ++second) {
      const char bytes[] = {static_cast<char>(first), static_cast<char>(second), 'x', 'x', 'x', 'x', '\0'};
      ASSERT_EQ(is_valid_start(first, second), lmx::is_valid_utf8_char_sequence(bytes))
          << std::hex << first << " " << second;
    }
}

int sequence_length(int first) {
  return first > 251 ? 6 : first > 247 ? 5 : first > 239 ? 4 : first > 223 ? 3 : first > 191 ? 2 : 1;
}

TEST(Utf8Input, EndsOnceAtABadSequenceAndTakesItsLength) {
  for (int first = 0x80; first < 256; ++first) {
    const std::string bytes = "a"s + static_cast<char>(first) + "12345678";
    SCOPED_TRACE(first);
    with_getter_inside(bytes, [&](lmx::c_get_for_xml& getter, RecordingError& log) {
      if (is_valid_start(first, '1')) {  // further bytes of the sequence are taken as they are
        EXPECT_EQ(bytes, rest(getter));
      } else {
        EXPECT_EQ("a", rest(getter));
        EXPECT_EQ(bytes.substr(1 + static_cast<std::size_t>(sequence_length(first))), rest(getter));
      }
      EXPECT_EQ("", log.text());
    });
  }
}

TEST(Utf8Input, PassesCharactersAndEndsWhereOneIsCutOrBad) {
  struct Row {
    const char* caption;
    std::string bytes, delivered;
  };
  const Row rows[] = {
      {"two bytes", "\xC3\xA9z", "\xC3\xA9z"},
      {"three bytes", "\xE2\x82\xACz", "\xE2\x82\xACz"},
      {"four bytes", "\xF0\x9F\x98\x80z", "\xF0\x9F\x98\x80z"},
      {"only the second byte is looked at", "\xE2\x82xz", "\xE2\x82xz"},
      {"two bytes cut", "a\xC3", "a"},
      {"three bytes cut after one", "a\xE2", "a"},
      {"three bytes cut after two", "a\xE2\x82", "a"},
      {"four bytes cut after three", "a\xF0\x9F\x98", "a"},
      {"overlong NUL", "a\xC0\x80z", "a"},
      {"overlong, three bytes", "a\xE0\x80\x80z", "a"},
      {"high surrogate", "a\xED\xA0\x80\xED\xB0\x80z", "a"},
      {"low surrogate", "a\xED\xB0\x80z", "a"},
      {"beyond the last character", "a\xF4\x90\x80\x80z", "a"},
      {"continuation alone", "a\x80z", "a"},
      {"control characters", "\x01\x1F\x7Fz", "\x01\x1F\x7Fz"},
      {"NUL", "a\0z"s, "a\0z"s},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    with_getter_inside(row.bytes, [&](lmx::c_get_for_xml& getter, RecordingError& log) {
      EXPECT_EQ(row.delivered, rest(getter));
      EXPECT_EQ("", log.text());
    });
  }
}

TEST(Utf8Input, EndsOnceAtABadSecondByteOfADocument) {
  struct Row {
    const char* caption;
    std::string bytes, then;
  };
  for (auto const& row : {Row{"continuation", "<\x80z", "z"}, Row{"bad lead", "<\xC0\xAFz", "z"},
                          Row{"bad second byte", "<\xE0\x80\x80z", "z"}}) {
    SCOPED_TRACE(row.caption);
    with_getter(row.bytes, [&](lmx::c_get_for_xml& getter, RecordingError& log) {
      EXPECT_EQ("<", rest(getter));  // and no byte of an emptied buffer
      EXPECT_EQ(row.then, rest(getter));
      EXPECT_EQ("", log.text());
    });
  }
}

struct EncodingName {
  const char *caption, *name;
  bool result;
  lmx::elxp_char_encoding encoding;
  const char* reports;
};
const char mismatch[] = "fatal ENCODING_MISMATCH Mis-match between specfied encoding and byte format\n";
const char unknown_name[] = "fatal BAD_CHAR_ENCODING Unknown character encoding specified\n";
class EncodingNames : public testing::TestWithParam<EncodingName> {};
TEST_P(EncodingNames, AreJudgedAgainstUtf8Bytes) {
  const auto& row = GetParam();
  SCOPED_TRACE(row.caption);
  with_getter_inside("", [&](lmx::c_get_for_xml& getter, RecordingError& log) {
    EXPECT_EQ(row.result, getter.set_encoding(row.name));
    EXPECT_EQ(row.encoding, getter.encoding());
    EXPECT_EQ(row.reports, log.text());
  });
}
INSTANTIATE_TEST_SUITE_P(
    Getter, EncodingNames,
    testing::Values(EncodingName{"utf-8", "UTF-8", true, lmx::EXCE_UTF8, ""},
                    EncodingName{"lower case", "utf-8", true, lmx::EXCE_UTF8, ""},
                    EncodingName{"latin-1", "ISO-8859-1", true, lmx::EXCE_SINGLE_BYTE, ""},
                    EncodingName{"latin-1 in mixed case", "iSo-8859-1", true, lmx::EXCE_SINGLE_BYTE, ""},
                    EncodingName{"ascii", "us-ascii", true, lmx::EXCE_SINGLE_BYTE, ""},
                    EncodingName{"utf-16", "UTF-16", false, lmx::EXCE_UTF8, mismatch},
                    EncodingName{"ucs-2", "ISO-10646-UCS-2", false, lmx::EXCE_UTF8, mismatch},
                    EncodingName{"not known", "KOI8-R", false, lmx::EXCE_UTF8, unknown_name},
                    EncodingName{"empty", "", false, lmx::EXCE_UTF8, unknown_name},
                    EncodingName{"nearly", "UTF8", false, lmx::EXCE_UTF8, unknown_name},
                    EncodingName{"longer", "UTF-8 ", false, lmx::EXCE_UTF8, unknown_name}));

TEST(EncodingName, OfASingleByteIsKeptEvenWhenItDoesNotFit) {
  for (const char* name : {"ISO-8859-1", "US-ASCII"})
    with_getter("<a", [&](lmx::c_get_for_xml& getter, RecordingError& log) {
      EXPECT_FALSE(getter.set_encoding(name));  // nothing was read, so the bytes are not known to fit
      EXPECT_EQ(lmx::EXCE_SINGLE_BYTE, getter.encoding());
      EXPECT_EQ(mismatch, log.text());
    });
}

TEST(SingleByteInput, IsEncodedByteByByte) {
  struct Row {
    const char* caption;
    std::string bytes, delivered;
    int line;
  };
  const Row rows[] = {{"ASCII up to 127", "~\x7F", "~\x7F", 1}, {"the first beyond", "\x80z", "\xC2\x80z", 1},
                      {"e acute", "\xE9z", "\xC3\xA9z", 1},     {"the last", "\xFF", "\xC3\xBF", 1},
                      {"NEL is a line end", "\x85z", "\nz", 2}, {"CR NEL is one", "\r\x85z", "\nz", 2}};
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    with_getter_inside(">" + row.bytes, [&](lmx::c_get_for_xml& getter, RecordingError&) {
      EXPECT_EQ('>', getter.get());
      ASSERT_TRUE(getter.set_encoding("ISO-8859-1"));
      EXPECT_EQ(row.delivered, rest(getter));
      EXPECT_EQ(row.line, getter.line());
    });
  }
}

TEST(Rewind, ForgetsEverythingAndReadsTheSameAgain) {
  with_getter("<\n\xC3\xA9\r\nz", [](lmx::c_get_for_xml& getter, RecordingError&) {
    for (int round = 0; round < 2; ++round) {
      EXPECT_EQ(1, getter.line());
      EXPECT_EQ(lmx::EXCE_UNKNOWN, getter.encoding());
      EXPECT_EQ('<', getter.get());
      ASSERT_TRUE(getter.set_encoding("UTF-8"));
      EXPECT_EQ('\n', getter.get());
      EXPECT_EQ(0xC3, getter.get());
      getter.unget('x');  // pushed back, and half a character to come
      getter.set_ws_mode(lmx::EXWS_COLLAPSE);
      getter.rewind();
      EXPECT_EQ(lmx::EXWS_PRESERVE, getter.ws_mode());
    }
    EXPECT_EQ("<\n\xC3\xA9\nz", rest(getter));
    EXPECT_EQ(3, getter.line());
  });
}

TEST(Rewind, ForgetsAFinalCarriageReturn) {
  with_getter("\n<\r", [](lmx::c_get_for_xml& getter, RecordingError&) {
    rest(getter);
    getter.rewind();
    EXPECT_EQ("\n<\n", rest(getter));
    EXPECT_EQ(3, getter.line());
  });
}

TEST(CodePoints, AreEncodedWithoutARangeCheck) {
  struct Row {
    int code_point;
    std::string bytes;
  };
  for (auto const& row : {Row{0x41, "A"}, Row{0x7F, "\x7F"}, Row{0x80, "\xC2\x80"}, Row{0x7FF, "\xDF\xBF"},
                          Row{0x800, "\xE0\xA0\x80"}, Row{0xD800, "\xED\xA0\x80"},
                          Row{0xFFFF, "\xEF\xBF\xBF"}, Row{0x10000, "\xF0\x90\x80\x80"},
                          Row{0x10FFFF, "\xF4\x8F\xBF\xBF"}, Row{0x110000, "\xF4\x90\x80\x80"}, Row{0, ""}}) {
    char out[8] = "*******";
    EXPECT_EQ(out, lmx::unicode_char_to_utf8(row.code_point, out));
    EXPECT_EQ(row.bytes, out) << std::hex << row.code_point;  // closed by a NUL
  }
}

TEST(CodePoints, AreDecodedByTheFormOfTheBytesAlone) {
  struct Row {
    const char* caption;
    const char* bytes;
    bool result;
    int code_point;  // -2: not looked at
  };
  const Row rows[] = {{"one byte", "A", true, 0x41},
                      {"NUL", "", true, 0},
                      {"two bytes", "\xC3\xA9", true, 0xE9},
                      {"three bytes", "\xE2\x82\xAC", true, 0x20AC},
                      {"four bytes", "\xF0\x9F\x98\x80", true, 0x1F600},
                      {"surrogate", "\xED\xA0\x80", true, 0xD800},
                      {"overlong", "\xC0\x80", true, 0},
                      {"overlong, four bytes", "\xF0\x80\x80\x81", true, 1},
                      {"continuation first", "\x80", false, -1},
                      {"last continuation first", "\xBF", false, -1},
                      {"five-byte form", "\xF8\x88\x80\x80\x80", false, -1},
                      {"0xFF", "\xFF", false, -1},
                      {"no continuation", "\xC3z", false, -2},
                      {"cut", "\xE2\x82", false, -2},
                      {"a lead in its place", "\xE2\xC2\x80", false, -2}};
  for (auto const& row : rows) {
    int code_point = -7;
    EXPECT_EQ(row.result, lmx::utf8_to_unicode_char(row.bytes, &code_point)) << row.caption;
    if (row.code_point != -2) {
      EXPECT_EQ(row.code_point, code_point) << row.caption;
    }
  }
}

// --- White space and references --------------------------------------------------------------------------

struct WhiteSpace {
  const char* caption;
  const char* text;
  const char *preserve, *replace, *collapse;
};

// `text` as an attribute value is read: bytes one at a time, a reference at each "&".
std::string expand(std::string const& text, lmx::elmx_whitespace mode, bool normalise) {
  MemoryRead read("");
  RecordingError log;
  lmx::c_get_for_xml getter(read, log, normalise);
  getter.set_ws_mode(mode);
  EXPECT_EQ(mode, getter.ws_mode());
  lmx::c_entity_name_reader_for_c_str reader(text.c_str());
  std::string out;
  for (int c = reader.get(); c != -1; c = reader.get()) {
    if (c != '&') {
      getter.add_char_wsp(&out, c, false);
    } else if (!getter.select_general_entity(reader, &out)) {
      out += "(failed)";
    }
  }
  EXPECT_EQ("", log.text());
  return out;
}

TEST(WhiteSpaceModes, ShapeAValue) {
  const WhiteSpace rows[] = {
      {"inside and around", "  a  b  ", "  a  b  ", "  a  b  ", "a b"},
      {"every kind", "a\tb\nc\vd\fe\rf", "a\tb\nc\vd\fe\rf", "a b c d e f", "a b c d e f"},
      {"none", "abc", "abc", "abc", "abc"},
      {"nothing else", " \t\n", " \t\n", "   ", ""},
      {"empty", "", "", "", ""},
      {"bytes beyond ASCII are none", " \xC3\xA9 \xC2\xA0 ", " \xC3\xA9 \xC2\xA0 ", " \xC3\xA9 \xC2\xA0 ",
       "\xC3\xA9 \xC2\xA0"},
      {"a predefined entity does not flush the blank", "a &lt;b", "a <b", "a <b", "a< b"},
      {"nor at the start", " &lt;a", " <a", " <a", "< a"},
      {"nor at the end", "a &lt;", "a <", "a <", "a<"},
      {"nor a reference beyond ASCII", "a &#233;b",
       "a \xC3\xA9"
       "b",
       "a \xC3\xA9"
       "b",
       "a\xC3\xA9 b"},
      {"a reference to ASCII does", "a &#65;b", "a Ab", "a Ab", "a Ab"},
      {"DEL is the last that does", "a &#127;b", "a \x7F\x62", "a \x7F\x62", "a \x7F\x62"},
      {"a referenced blank", "&#32;a", " a", " a", "a"},
      {"a referenced line feed", "a&#10;b", "a\nb", "a b", "a b"},
      {"a referenced NEL is a line feed", "a&#133;b", "a\nb", "a b", "a b"},
      {"a referenced LINE SEPARATOR too", "a&#x2028;b", "a\nb", "a b", "a b"},
      {"a referenced line feed at the end", "a&#10;", "a\n", "a ", "a"},
      {"without the semicolon", "&#65 b", "A b", "A b", "A b"},
      {"all five", "&lt;&gt;&amp;&apos;&quot;", "<>&'\"", "<>&'\"", "<>&'\""},
  };
  for (auto const& row : rows) {
    EXPECT_EQ(row.preserve, expand(row.text, lmx::EXWS_PRESERVE, true)) << row.caption;
    EXPECT_EQ(row.replace, expand(row.text, lmx::EXWS_REPLACE, true)) << row.caption;
    EXPECT_EQ(row.collapse, expand(row.text, lmx::EXWS_COLLAPSE, true)) << row.caption;
  }
}

TEST(WhiteSpaceModes, LeaveReferencesAloneWithoutNormalisation) {
  const WhiteSpace rows[] = {
      {"literal white space as ever", " a \n b ", " a \n b ", " a   b ", "a b"},
      {"a referenced line feed survives", "a&#10;b", "a\nb", "a\nb", "a\nb"},
      {"at the end too", "a&#9;", "a\t", "a\t", "a\t"},
      {"and flushes a blank", "a &#10;b", "a \nb", "a \nb", "a \nb"},
      {"a referenced blank does not survive collapse", "a&#32;&#32;b", "a  b", "a  b", "a b"},
      {"nor at the ends", "&#32;a&#32;", " a ", " a ", "a"},
      {"a referenced NEL survives as a line feed", "a&#133;b", "a\nb", "a\nb", "a\nb"},
  };
  for (auto const& row : rows) {
    EXPECT_EQ(row.preserve, expand(row.text, lmx::EXWS_PRESERVE, false)) << row.caption;
    EXPECT_EQ(row.replace, expand(row.text, lmx::EXWS_REPLACE, false)) << row.caption;
    EXPECT_EQ(row.collapse, expand(row.text, lmx::EXWS_COLLAPSE, false)) << row.caption;
  }
}

TEST(WhiteSpaceModes, AreTheSameForARunAsForItsCharacters) {
  const std::string text = "  a \t b\n\n\xC3\xA9\v c  ";
  for (const auto mode : {lmx::EXWS_PRESERVE, lmx::EXWS_REPLACE, lmx::EXWS_COLLAPSE})
    for (std::size_t cut = 0; cut <= text.size(); ++cut) {
      MemoryRead read("");
      lmx::c_error log;
      lmx::c_get_with_entities getter(read, log, true);
      std::string out;
      getter.set_ws_mode(mode);
      getter.add_run_wsp(&out, text.data(), cut);
      getter.add_run_wsp(&out, text.data() + cut, text.size() - cut);
      EXPECT_EQ(expand(text, mode, true), out) << mode << " cut at " << cut;
    }
}

TEST(WhiteSpaceModes, ArePreserveAtTheStartAndForgetABlankWhenSet) {
  MemoryRead read("");
  lmx::c_error log;
  lmx::c_get_with_entities getter(read, log, true);
  EXPECT_EQ(lmx::EXWS_PRESERVE, getter.ws_mode());
  std::string out = "x";
  getter.set_ws_mode(lmx::EXWS_COLLAPSE);
  getter.add_char_wsp(&out, ' ', false);
  getter.set_ws_mode(lmx::EXWS_COLLAPSE);
  getter.add_char_wsp(&out, 'y', false);
  EXPECT_EQ("xy", out);
}

TEST(WhiteSpaceModes, HaveTheirNumbers) {
  EXPECT_EQ(0, lmx::EXWS_PRESERVE);
  EXPECT_EQ(1, lmx::EXWS_REPLACE);
  EXPECT_EQ(2, lmx::EXWS_COLLAPSE);
}

TEST(WhiteSpaceModesDeathTest, StopAtAModeThatIsNone) {
  EXPECT_DEATH(
      {
        MemoryRead read("");
        lmx::c_error log;
        lmx::c_get_with_entities getter(read, log, true);
        getter.set_ws_mode(static_cast<lmx::elmx_whitespace>(3));
        std::string out;
        getter.add_char_wsp(&out, 'a', false);
      },
      "assertion failed");
}

struct Reference {
  const char* caption;
  std::string text, out;  // `text` follows the "&"
  bool result;
  std::string rest;
};
class References : public testing::TestWithParam<Reference> {};
TEST_P(References, AppendWhatTheyStandFor) {
  const auto& row = GetParam();
  SCOPED_TRACE(row.caption);
  const auto check = [&](lmx::c_get_for_xml& getter, lmx::c_entity_name_reader& reader) {
    std::string out = "before ";
    EXPECT_EQ(row.result, getter.select_general_entity(reader, &out));
    if (row.result || row.text[0] != '#') {
      EXPECT_EQ("before " + row.out, out);
    }
    EXPECT_EQ(row.rest, rest(reader));
  };
  with_getter_inside(row.text, [&](lmx::c_get_for_xml& getter, RecordingError& log) {
    lmx::c_entity_name_reader_for_c_get from_input(getter);
    EXPECT_FALSE(from_input.m_push_as_input);
    check(getter, from_input);
    lmx::c_entity_name_reader_for_c_str from_string(row.text.c_str());
    check(getter, from_string);
    lmx::c_attribute_data data;
    data.m_data.append(row.text).append(2, '\0');
    lmx::c_entity_name_reader_for_attribute_data from_attribute(data);
    check(getter, from_attribute);
    EXPECT_EQ("", log.text());  // an unknown name is the caller's failure to report
  });
}
INSTANTIATE_TEST_SUITE_P(
    Predefined, References,
    testing::Values(Reference{"lt", "lt;x", "<", true, "x"}, Reference{"gt", "gt;x", ">", true, "x"},
                    Reference{"amp", "amp;x", "&", true, "x"}, Reference{"apos", "apos;x", "'", true, "x"},
                    Reference{"quot", "quot;x", "\"", true, "x"},
                    Reference{"no semicolon", "lt x", "<", true, " x"},
                    Reference{"no semicolon at the end", "lt", "<", true, ""},
                    Reference{"no semicolon before a multi-byte character belongs to the name", "lt\xC3\xA9;",
                              "&lt\xC3\xA9;", false, ""},
                    Reference{"case matters", "LT;x", "&LT;", false, "x"},
                    Reference{"longer", "ltx;y", "&ltx;", false, "y"},
                    Reference{"unknown", "foo;x", "&foo;", false, "x"},
                    Reference{"unknown without the semicolon", "foo x", "&foo", false, " x"},
                    Reference{"a blank is taken as a name's start", " B c", "& B", false, " c"},
                    Reference{"a digit is taken as a name's start", "1a;x", "&1a;", false, "x"},
                    Reference{"nothing", "", "&", false, ""}));
INSTANTIATE_TEST_SUITE_P(
    Numeric, References,
    testing::Values(Reference{"decimal", "#65;x", "A", true, "x"},
                    Reference{"hexadecimal", "#x41;x", "A", true, "x"},
                    Reference{"hex digits in lower case", "#x4a;", "J", true, ""},
                    Reference{"hex digits in upper case", "#x4A;", "J", true, ""},
                    Reference{"leading zeros", "#00000000000000000065;", "A", true, ""},
                    Reference{"no semicolon", "#65 b", "A", true, " b"},
                    Reference{"no semicolon at the end", "#65", "A", true, ""},
                    Reference{"no semicolon before a multi-byte character", "#65\xC3\xA9", "A", true,
                              "\xC3\xA9"},
                    Reference{"no semicolon before another reference", "#65&lt;", "A", true, "&lt;"},
                    Reference{"hex digits end a decimal", "#65A;", "A", true, "A;"},
                    Reference{"NUL", "#0;x", "\0"s, true, "x"},
                    Reference{"a control character", "#x1;", "\x01", true, ""},
                    Reference{"DEL", "#127;", "\x7F", true, ""},
                    Reference{"the first of two bytes", "#128;", "\xC2\x80", true, ""},
                    Reference{"the last of two bytes", "#x7FF;", "\xDF\xBF", true, ""},
                    Reference{"the first of three", "#x800;", "\xE0\xA0\x80", true, ""},
                    Reference{"a surrogate", "#xD800;", "\xED\xA0\x80", true, ""},
                    Reference{"the last of three", "#xFFFF;", "\xEF\xBF\xBF", true, ""},
                    Reference{"four bytes", "#x1F600;", "\xF0\x9F\x98\x80", true, ""},
                    Reference{"the limit", "#x100000;", "\xF4\x80\x80\x80", true, ""},
                    Reference{"the limit, decimal", "#1048576;", "\xF4\x80\x80\x80", true, ""},
                    Reference{"NEL is a line feed", "#x85;", "\n", true, ""},
                    Reference{"LINE SEPARATOR is a line feed", "#8232;", "\n", true, ""},
                    Reference{"PARAGRAPH SEPARATOR is not", "#8233;", "\xE2\x80\xA9", true, ""}));

class BadReferences : public testing::TestWithParam<std::pair<const char*, const char*>> {};
TEST_P(BadReferences, FailWithoutAReport) {
  const auto& [caption, text] = GetParam();
  SCOPED_TRACE(caption);
  with_getter_inside(text, [](lmx::c_get_for_xml& getter, RecordingError& log) {
    lmx::c_entity_name_reader_for_c_get reader(getter);
    std::string out;
    EXPECT_FALSE(getter.insert_character_entity(reader, &out));
    EXPECT_EQ("", out);
    EXPECT_EQ("", log.text());
  });
}
using std::make_pair;
INSTANTIATE_TEST_SUITE_P(
    Numeric, BadReferences,
    testing::Values(make_pair("upper-case X", "X41;"), make_pair("no digits", ";"),
                    make_pair("no hex digits", "x;"), make_pair("no hex digits but a letter", "xg;"),
                    make_pair("a letter", "a;"), make_pair("a sign", "-5;"), make_pair("a plus", "+5;"),
                    make_pair("a blank", " 65;"), make_pair("a hex sign", "x-5;"), make_pair("the end", ""),
                    make_pair("the end after x", "x"), make_pair("above the limit", "x100001;"),
                    make_pair("above the limit, decimal", "1048577;"),
                    make_pair("the last of Unicode", "x10FFFF;"),
                    make_pair("2 to the 32nd and 65, decimal", "4294967361;"),
                    make_pair("2 to the 32nd and 65, hex", "x100000041;"),
                    make_pair("2 to the 64th and 65", "18446744073709551681;"),
                    make_pair("many digits", "999999999999999999999999999999999999")));

TEST(CharacterReference, GoesThroughWhiteSpaceAsAReference) {
  with_getter_inside("10;", [](lmx::c_get_for_xml& getter, RecordingError&) {
    getter.set_ws_mode(lmx::EXWS_COLLAPSE);
    lmx::c_entity_name_reader_for_c_get reader(getter);
    std::string out = "a";
    EXPECT_TRUE(getter.insert_character_entity(reader, &out));
    EXPECT_EQ("a", out);
    getter.add_char_wsp(&out, 'b', false);
    EXPECT_EQ("a b", out);
  });
}

// --- Readers of references -------------------------------------------------------------------------------

TEST(ReferenceReaders, DeliverBytesUnsignedAndStayAtTheEnd) {
  const std::string text = "a\xC3\xFFz";
  const auto check = [&](lmx::c_entity_name_reader& reader) {
    for (const int c : {int{'a'}, 0xC3, 0xFF}) EXPECT_EQ(c, reader.get());
    reader.unget(0xFF);
    reader.unget(-1);  // does nothing
    for (const int c : {0xFF, int{'z'}, -1, -1}) EXPECT_EQ(c, reader.get());
    reader.unget(-1);
    EXPECT_EQ(-1, reader.get());
  };
  lmx::c_entity_name_reader_for_c_str from_string(text.c_str());
  check(from_string);
  EXPECT_EQ(text.size(), from_string.index());
  lmx::c_attribute_data data;
  data.m_data.append(text).append("\0next\0"s);
  lmx::c_entity_name_reader_for_attribute_data from_attribute(data);
  check(from_attribute);
  EXPECT_EQ(text.size(), data.m_index);  // at the NUL, not behind it
}

TEST(ReferenceReaders, ReadAStringFromAnIndex) {
  lmx::c_entity_name_reader_for_c_str reader("abcd", 2);
  EXPECT_EQ("cd", rest(reader));
}

TEST(ReferenceReaders, ForwardToTheGetter) {
  with_getter_inside("ab", [](lmx::c_get_for_xml& getter, RecordingError&) {
    lmx::c_entity_name_reader_for_c_get reader(getter);
    EXPECT_EQ('a', reader.get());
    reader.unget('x');
    reader.unget(-1);
    EXPECT_EQ('x', getter.get());
    EXPECT_EQ("b", rest(reader));
  });
}

TEST(ReferenceReadersDeathTest, StopWhenAnotherByteIsPutBack) {
  lmx::c_attribute_data data;
  data.m_data = "ab\0\0"s;
  lmx::c_entity_name_reader_for_attribute_data from_attribute(data);
  EXPECT_DEATH(from_attribute.unget('a'), "m_index > 0");
  EXPECT_EQ('a', from_attribute.get());
  EXPECT_DEATH(from_attribute.unget('b'), "m_data\\[m_index\\] == c_in");

  lmx::c_entity_name_reader_for_c_str from_string("ab");
  EXPECT_EQ('a', from_string.get());
  EXPECT_DEATH(from_string.unget('b'), "c_in == static_cast<unsigned char>\\( mp_string\\[m_index\\] \\)");
}

TEST(Entity, ThatAHostReplacesWhileItIsReadIsReadToItsEnd) {
  with_getter_inside("e;e;", [](lmx::c_get_for_xml& getter, RecordingError&) {
    getter.add_general_entity("e", "old text");
    lmx::c_entity_name_reader_for_c_get reader(getter);
    reader.m_push_as_input = true;
    std::string out;
    ASSERT_TRUE(getter.select_general_entity(reader, &out));
    EXPECT_EQ('o', getter.get());
    for (int i = 0; i != 100; ++i) getter.add_general_entity("e", "new" + std::to_string(i));
    for (const char c : std::string("ld text")) EXPECT_EQ(c, getter.get());
    ASSERT_TRUE(getter.select_general_entity(reader, &out));
    EXPECT_EQ("new99", rest(getter));
  });
}

TEST(InputEntity, IsReadNextAndThenWhatStoodBehindIt) {
  with_getter_inside("after", [](lmx::c_get_for_xml& getter, RecordingError& log) {
    const std::string outer = "outer", inner = "<&;", empty;
    EXPECT_TRUE(getter.set_input_entity_value(outer.c_str()));
    EXPECT_EQ('o', getter.get());
    EXPECT_TRUE(getter.set_input_entity_value(inner.c_str()));
    EXPECT_TRUE(getter.set_input_entity_value(empty.c_str()));
    EXPECT_EQ("<&;uterafter", rest(getter));
    EXPECT_EQ(0u, log.reports.size());
  });
}

TEST(InputEntity, WithinItselfIsFatalAndKnownByItsAddress) {
  with_getter_inside("after", [](lmx::c_get_for_xml& getter, RecordingError& log) {
    const std::string value = "text", same_text = "text";
    EXPECT_TRUE(getter.set_input_entity_value(value.c_str()));
    EXPECT_TRUE(getter.set_input_entity_value(same_text.c_str()));
    EXPECT_FALSE(getter.set_input_entity_value(value.c_str()));
    ASSERT_EQ(1u, log.reports.size());
    EXPECT_EQ(lmx::EET_FATAL, log.last_type());
    EXPECT_EQ(lmx::ELMX_BAD_DTD, log.last_code());
    EXPECT_EQ("Recursive entity definition for: text", log.reports[0].message);
    EXPECT_EQ("", rest(getter));
  });
}

// --- Scans -----------------------------------------------------------------------------------------------

struct Scan {
  const char *caption, *text;
  bool result;
  const char *rest, *reports;
};

template <class Operation>
void expect_scans(std::vector<Scan> const& rows, Operation operation) {
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    with_getter_inside(row.text, [&](lmx::c_get_for_xml& getter, RecordingError& log) {
      EXPECT_EQ(row.result, operation(getter));
      EXPECT_EQ(row.rest, rest(getter));
      EXPECT_EQ(row.reports, log.text());
    });
  }
}

TEST(SpecifiedString, UsesUpTheFirstDifference) {
  expect_scans({{"all there", "xmlr", true, "r", ""},
                {"differs at once", "?>r", false, ">r", ""},
                {"differs at the end", "xm>r", false, "r", ""},
                {"case matters", "XMLr", false, "MLr", ""},
                {"the end", "xm", false, "", ""}},
               [](lmx::c_get_for_xml& getter) { return getter.read_specified_string_from_input("xml"); });
  expect_scans({{"nothing asked", "xml", true, "xml", ""}},
               [](lmx::c_get_for_xml& getter) { return getter.read_specified_string_from_input(""); });
}

TEST(Comment, EndsAtTwoHyphensOrMoreAndAngle) {
  const char warning[] = "warning BAD_COMMENT End of comment not Well-Formed\n";
  expect_scans({{"plain", " a -->r", true, "r", ""},
                {"empty", "-->r", true, "r", ""},
                {"three hyphens", " a --->r", true, "r", warning},
                {"many hyphens", "------>r", true, "r", warning},
                {"hyphens inside", " a -- b --- c -->r", true, "r", ""},
                {"one hyphen before angle", " a ->b-->r", true, "r", ""},
                {"an angle at once", ">-->r", true, "r", ""},
                {"markup inside", "<a>&x;]]>?>-->r", true, "r", ""},
                {"unterminated", " a --", false, "", ""},
                {"no input", "", false, "", ""}},
               [](lmx::c_get_for_xml& getter) { return getter.skip_comment(); });
}

TEST(ProcessingInstruction, EndsAtQuestionMarkAndAngle) {
  expect_scans({{"plain", " a?>r", true, "r", ""},
                {"at once", "?>r", true, "r", ""},
                {"an angle inside", " a>b?c?>r", true, "r", ""},
                {"two question marks", " a?\?>r", true, "r", ""},
                {"a blank between", " a? >b?>r", true, "r", ""},
                {"unterminated", " a?", false, "", ""}},
               [](lmx::c_get_for_xml& getter) { return getter.skip_PI(); });
}

TEST(QuotedValue, IsReadToTheSameQuoteUnexpanded) {
  struct Row {
    const char *caption, *text;
    bool result;
    std::string value;
    const char* rest;
  };
  const Row rows[] = {{"double quotes", "\"a'b\"r", true, "a'b", "r"},
                      {"single quotes", "'a\"b'r", true, "a\"b", "r"},
                      {"white space before", " \t\n\v\f'a'r", true, "a", "r"},
                      {"empty", "''r", true, "", "r"},
                      {"references and markup stay", "'&lt;&x<>?'r", true, "&lt;&x<>?", "r"},
                      {"line ends are folded", "'a\r\nb'r", true, "a\nb", "r"},
                      {"bytes beyond ASCII", "'\xC3\xA9'r", true, "\xC3\xA9", "r"},
                      {"no quote", "ar", false, "", ""},
                      {"no input", "", false, "", ""},
                      {"only blanks", "  ", false, "", ""}};
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    with_getter_inside(row.text, [&](lmx::c_get_for_xml& getter, RecordingError& log) {
      std::string value = "old";
      EXPECT_EQ(row.result, getter.get_simple_quoted_value(&value));
      EXPECT_EQ(row.value, value);
      EXPECT_EQ("", log.text());
      if (row.result) {
        EXPECT_EQ(row.rest, rest(getter));
      }
    });
  }
  with_getter_inside("'abc", [&](lmx::c_get_for_xml& getter, RecordingError&) {
    std::string value;
    EXPECT_FALSE(getter.get_simple_quoted_value(&value));
  });
}

TEST(StartTagEnd, IsFoundBehindQuotes) {
  struct Row {
    const char *caption, *text;
    bool result;
    int is_empty;  // -1: not stored
    const char *rest, *reports;
  };
  const char illegal[] = "error BAD_END_TAG Illegal character(s) after / at end of tag - x\n";
  const Row rows[] = {{"at once", ">r", true, 0, "r", ""},
                      {"empty tag", "/>r", true, 1, "r", ""},
                      {"behind attributes", " a='1' b=\"2\">r", true, 0, "r", ""},
                      {"angle in quotes", " a='>' b=\">\"/>r", true, 1, "r", ""},
                      {"the other quote inside", " a=\"'>\" b='\">'>r", true, 0, "r", ""},
                      {"slash in quotes", " a='/'>r", true, 0, "r", ""},
                      {"blanks behind the slash", "/ \t\n\v\f>r", true, 1, "r", ""},
                      {"slash at the end", "/", true, 1, "", ""},
                      {"slash and blanks at the end", "/  ", true, 1, "", ""},
                      {"a character behind the slash", "/ x>r", false, 1, "r", illegal},
                      {"two, reported once", "/x y>r", false, 1, "r", illegal},
                      {"quotes do not count behind the slash", "/x'>r", false, 1, "r", illegal},
                      {"a character, then the end", "/x", false, 1, "", illegal},
                      {"a second slash", "//>r", false, 1, "r",
                       "error BAD_END_TAG Illegal character(s) after / at end of tag - /\n"},
                      {"no end", " a='1' ", false, -1, "", ""},
                      {"no closing quote", " a='1>", false, -1, "", ""},
                      {"no input", "", false, -1, "", ""}};
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    with_getter_inside(row.text, [&](lmx::c_get_for_xml& getter, RecordingError& log) {
      bool is_empty = row.is_empty != 1;  // differs from what is to be stored
      const bool before = is_empty;
      EXPECT_EQ(row.result, getter.move_to_start_tag_end(&is_empty));
      EXPECT_EQ(row.is_empty == -1 ? before : row.is_empty == 1, is_empty);
      EXPECT_EQ(row.rest, rest(getter));
      EXPECT_EQ(row.reports, log.text());
    });
    with_getter_inside(row.text, [&](lmx::c_get_for_xml& getter, RecordingError&) {
      EXPECT_EQ(row.result, getter.move_to_start_tag_end(nullptr));
    });
  }
}

TEST(XmlDeclaration, IsReadFromBehindItsName) {
  const char no_version[] = "error BAD_XML_DECL Version not present in XML Decl\n";
  const std::vector<Scan> rows = {
      {"version 1.0", "version=\"1.0\"?>r", true, "r", ""},
      {"version 1.1", "version='1.1'?>r", true, "r", ""},
      {"blanks everywhere", " \n version \t = \n '1.0' encoding = 'UTF-8' standalone = 'no' ?>r", true, "r",
       ""},
      {"no blanks", "version='1.0'encoding='UTF-8'standalone='yes'?>r", true, "r", ""},
      {"encoding in lower case", "version='1.0' encoding='utf-8'?>r", true, "r", ""},
      {"standalone alone", "version='1.0' standalone='yes'?>r", true, "r", ""},
      {"standalone is not looked at", "version='1.0' standalone='perhaps'?>r", true, "r", ""},
      {"encoding without a value", "version='1.0' encoding?>r", true, "r", ""},
      {"encoding without a value, then standalone", "version='1.0' encoding standalone='no'?>r", true, "r",
       ""},
      {"standalone without a value", "version='1.0' standalone ?>r", true, "r", ""},
      {"no version", "encoding='UTF-8'?>", false, "", no_version},
      {"version misspelt", "versiom='1.0'?>", false, "", no_version},
      {"version without a quote", "version=1.0?>", false, "", no_version},
      {"version without =", "version '1.0'?>", false, "", no_version},
      {"nothing at all", "?>r", false, "", no_version},
      {"cut in the version", "version='1.", false, "", no_version},
      {"version 2.0", "version='2.0'?>", false, "", "error BAD_XML_VERSION XML version 2.0 not understood\n"},
      {"empty version", "version=''?>", false, "", "error BAD_XML_VERSION XML version  not understood\n"},
      {"blanks in the version", "version=' 1.0'?>", false, "",
       "error BAD_XML_VERSION XML version  1.0 not understood\n"},
      {"encoding misspelt", "version='1.0' encodinh='UTF-8'?>", false, "", ""},
      {"encoding without a quote", "version='1.0' encoding=UTF-8?>", false, "", ""},
      {"encoding without =", "version='1.0' encoding 'UTF-8'?>", false, "", ""},
      {"unknown encoding", "version='1.0' encoding='KOI8-R'?>r", false, "", unknown_name},
      {"encoding that the bytes are not", "version='1.0' encoding='UTF-16'?>r", false, "", mismatch},
      {"standalone before encoding", "version='1.0' standalone='no' encoding='UTF-8'?>", false, "", ""},
      {"something else", "version='1.0' other='x'?>", false, "", ""},
      {"no question mark", "version='1.0'>r", false, "", ""},
      {"a blank in the end mark", "version='1.0'? >r", false, "", ""},
      {"cut at the end", "version='1.0'?", false, "", ""},
      {"no character behind encoding", "version='1.0' encoding\x80?>", false, "", ""},
      {"no character behind standalone", "version='1.0' standalone\x80?>", false, "", ""}};
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    with_getter_inside(row.text, [&](lmx::c_get_for_xml& getter, RecordingError& log) {
      EXPECT_EQ(row.result, getter.read_xml_decl());
      EXPECT_EQ(row.reports, log.text());
      if (row.result) {
        EXPECT_EQ(row.rest, rest(getter));
      }
    });
  }
}

TEST(XmlDeclaration, NarrowsTheEncodingFromItsEndOn) {
  with_getter_inside("version='1.0' encoding='ISO-8859-1'?>\xE9\x85z",
                     [](lmx::c_get_for_xml& getter, RecordingError&) {
                       EXPECT_TRUE(getter.read_xml_decl());
                       EXPECT_EQ(lmx::EXCE_SINGLE_BYTE, getter.encoding());
                       EXPECT_EQ("\xC3\xA9\nz", rest(getter));
                       EXPECT_EQ(2, getter.line());
                     });
}

TEST(NonSpace, IsTheFirstBehindWhiteSpace) {
  with_getter_inside(" \t\n\v\f\r x ", [](lmx::c_get_for_xml& getter, RecordingError&) {
    EXPECT_EQ('x', getter.get_non_space());
    EXPECT_EQ(-1, getter.get_non_space());
  });
  with_getter_inside("  \xC2\xA0", [](lmx::c_get_for_xml& getter, RecordingError&) {
    EXPECT_EQ(0xC2, getter.get_non_space());
  });
}

TEST(NameCharacters, AreLettersDigitsColonUnderscoreHyphenStopAndAllBeyondAscii) {
  const std::string name = "aZ09:_-.\xC3\xA9\xE2\x82\xAC";
  for (int stop = 0; stop < 128; ++stop) {
    const std::string only(1, static_cast<char>(stop));
    if (name.find(only) != std::string::npos || (stop >= '0' && stop <= '9') ||
        (stop >= 'A' && stop <= 'Z') || (stop >= 'a' && stop <= 'z') || stop == '\r')
      continue;
    with_getter_inside(name + only + "r", [&](lmx::c_get_for_xml& getter, RecordingError&) {
      std::string out = "before ";
      EXPECT_EQ(stop, getter.get_name_chars(&out));
      EXPECT_EQ("before " + name, out);
      EXPECT_EQ("r", rest(getter));
    });
  }
  with_getter_inside("abc", [](lmx::c_get_for_xml& getter, RecordingError&) {
    std::string out;
    EXPECT_EQ(-1, getter.get_name_chars(&out));
    EXPECT_EQ("abc", out);
  });
}

// The window is an offer: what it does not take, `get` delivers, so together they are the whole text.
TEST(PlainText, IsTakenOnlyAsFarAsItIsPlain) {
  with_getter_inside("ab 'c\td<e&f\ng\xC3\xA9h", [](lmx::c_get_for_xml& getter, RecordingError&) {
    const std::string all = "ab 'c\td<e&f\ng\xC3\xA9h";
    std::string seen;
    for (int c = 0; c != -1; c = getter.get()) {
      if (c > 0) seen.push_back(static_cast<char>(c));
      std::string taken;
      getter.take_plain_text(&taken);
      EXPECT_EQ(std::string::npos, taken.find_first_of("<&\n\xC3\xA9")) << taken;
      seen += taken;
    }
    EXPECT_EQ(all, seen);
  });
  with_getter_inside("ab 'c\td<e&f\ng\xC3\xA9h", [](lmx::c_get_for_xml& getter, RecordingError&) {
    const std::string all = "ab 'c\td<e&f\ng\xC3\xA9h";
    std::string seen;
    for (int c = 0; c != -1; c = getter.get()) {
      if (c > 0) seen.push_back(static_cast<char>(c));
      std::string taken;
      getter.take_plain_value(&taken, '\'');
      EXPECT_EQ(std::string::npos, taken.find_first_of("'\n\xC3\xA9")) << taken;
      seen += taken;
    }
    EXPECT_EQ(all, seen);
  });
}

TEST(PlainText, DoesNotOvertakeWhatWasPushedBackOrAFatalError) {
  with_getter_inside("abc", [](lmx::c_get_for_xml& getter, RecordingError&) {
    std::string taken;
    EXPECT_EQ('a', getter.get());
    getter.unget('a');
    getter.take_plain_text(&taken);
    EXPECT_EQ("abc", taken + rest(getter));
  });
  with_getter_inside("abc", [](lmx::c_get_for_xml& getter, RecordingError&) {
    getter.error(lmx::EET_FATAL, lmx::ELMX_BAD_DTD, "stop");
    std::string taken;
    getter.take_plain_text(&taken);
    getter.take_plain_value(&taken, '"');
    EXPECT_EQ("", taken);
  });
}

}  // namespace
