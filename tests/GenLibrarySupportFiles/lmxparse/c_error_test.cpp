// Error texts, the counting of reports, who supplies source and line, and what a host gets to read.
#include "GenLibrarySupportFiles/lmxparse/c_error.h"

#include <gtest/gtest.h>

#include <iterator>
#include <locale>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "GenLibrarySupportFiles/lmxparse/error_codes.h"
#include "GenLibrarySupportFiles/lmxparse/getters.h"
#include "support/each_source.h"
#include "support/recording_error.h"

namespace {

using lmx::elmx_error;
using lmx::elmx_error_type;

constexpr int any_code_from = -1, any_code_to = 2000;

struct CodeText {
  elmx_error name;
  int code;
  const char* text;
};

const CodeText code_texts[] = {
    {lmx::ELMX_OK, 0, "No Error"},
    {lmx::ELMX_NO_FILE, 1, "Unable to open file"},
    {lmx::ELMX_ALL_CARDINALITY, 2, "Violation of xs:all cardinality constraints"},
    {lmx::ELMX_ATTRIBUTE_ALREADY_READ, 3, "Attribute has already been read"},
    {lmx::ELMX_ATTRIBUTES_IN_ANONYMOUS_COMPOSITOR, 4, "Attributes found in anonymous compositor"},
    {lmx::ELMX_BADLY_FORMED, 5, "XML badly formed"},
    {lmx::ELMX_BAD_CHAR_ENCODING, 6, "XML character encoding not supported"},
    {lmx::ELMX_BAD_CHOICE, 7, "Inappropriate choice option selected"},
    {lmx::ELMX_BAD_COMMENT, 8, "Badly formed comment"},
    {lmx::ELMX_BAD_DTD, 9, "Badly formed DTD"},
    {lmx::ELMX_BAD_END_OF_ELEMENT, 10, "Bad end of element"},
    {lmx::ELMX_BAD_END_OF_START_TAG, 11, "Bad start tag end"},
    {lmx::ELMX_BAD_END_TAG, 12, "Syntax error in end tag"},
    {lmx::ELMX_BAD_XML_DECL, 13, "Bad XML Decl spec"},
    {lmx::ELMX_BAD_XML_VERSION, 14, "Unsupported XML version"},
    {lmx::ELMX_ENCODING_MISMATCH, 15, "Mis-match between specified char encoding and read bytes"},
    {lmx::ELMX_ELEMENT_NOT_FOUND, 16, "Element not found"},
    {lmx::ELMX_EXTERNAL_ENTITY, 17, "Reference to external entity"},
    {lmx::ELMX_FRACTION_DIGITS_EXCEEDED, 18, "Fraction digits exceeded"},
    {lmx::ELMX_LENGTH_TOO_LONG, 19, "Length too long"},
    {lmx::ELMX_LENGTH_TOO_SHORT, 20, "Length too short"},
    {lmx::ELMX_MANDATORY_ELEMENT_MISSING, 21, "Mandatory element missing"},
    {lmx::ELMX_NO_PATTERN_MATCHED, 22, "No pattern matched"},
    {lmx::ELMX_NOT_WELL_FORMED, 23, "Not well formed"},
    {lmx::ELMX_RECURSIVE_ENTITY, 24, "Recursive entity definition"},
    {lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 25, "Required attribute(s) missing"},
    {lmx::ELMX_OCCURRENCE_EXCEEDED, 26, "Element instances exceeds maxOccurs"},
    {lmx::ELMX_TOTAL_DIGITS_EXCEEDED, 27, "Total digits exceeded"},
    {lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE, 28, "Unable to read attribute value"},
    {lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE, 29, "Unable to read element value"},
    {lmx::ELMX_UNEXPECTED_ALL_ELEMENT, 30, "Unknown element in xs:all"},
    {lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, 31, "Unknown element in complexContent"},
    {lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT, 32, "Unexpected empty element"},
    {lmx::ELMX_UNEXPECTED_ENTITY, 33, "Unexpected entity"},
    {lmx::ELMX_UNEXPECTED_EOM, 34, "Unexpected end of message"},
    {lmx::ELMX_VALUE_BAD_FORMAT, 35, "Invalid value format for this type"},
    {lmx::ELMX_VALUE_EXCEEDS_MAX, 36, "Value greater than specified maximum"},
    {lmx::ELMX_VALUE_EXCEEDS_MIN, 37, "Value less than specified minimum"},
    {lmx::ELMX_VALUE_NOT_ENUMERATED, 38, "Value does not match enumerations"},
    {lmx::ELMX_UNEXPECTED_ATTRIBUTE, 39, "Unexpected attribute"},
    {lmx::ELMX_NILLED_ELEMENT_NOT_EMPTY, 40, "Nilled element body not empty"},
    {lmx::ELMX_ENTITY_NOT_FOUND, 41, "Entity not found"},
    {lmx::ELMX_UNDEFINED_ERROR, 42, "Undefined error"},
    {lmx::ELMX_VALUE_NOT_FIXED, 43, "Value does not match specified fixed constraint"},
    {lmx::ELMX_UNKNOWN_XSI_TYPE, 44, "Unknown xsi:type"},
    {lmx::ELMX_TYPE_NOT_SET, 45, "Type not set"},
    {lmx::ELMX_OCCURS_ERROR, 46, "min/max occurs error on marshaling"},
    {lmx::ELMX_USER_DEFINED_1, 1000, "User defined error 1"},
    {lmx::ELMX_USER_DEFINED_2, 1001, "User defined error 2"},
    {lmx::ELMX_USER_DEFINED_3, 1002, "User defined error 3"},
    {lmx::ELMX_USER_DEFINED_4, 1003, "User defined error 4"},
    {lmx::ELMX_USER_DEFINED_5, 1004, "User defined error 5"},
    {lmx::ELMX_USER_DEFINED_6, 1005, "User defined error 6"},
    {lmx::ELMX_USER_DEFINED_7, 1006, "User defined error 7"},
    {lmx::ELMX_USER_DEFINED_8, 1007, "User defined error 8"},
    {lmx::ELMX_USER_DEFINED_9, 1008, "User defined error 9"},
};

TEST(ErrorCodes, HaveTheirNumbersAndTexts) {
  EXPECT_EQ(56u, std::size(code_texts));
  for (auto const& row : code_texts) {
    EXPECT_EQ(row.code, static_cast<int>(row.name)) << row.text;
    EXPECT_STREQ(row.text, lmx::get_error_description(row.name));
  }
}

TEST(ErrorCodes, HaveAnEmptyTextForEveryOtherNumber) {
  std::set<int> known;
  for (auto const& row : code_texts) known.insert(row.code);
  for (int code = any_code_from; code <= any_code_to; ++code)
    if (known.count(code) == 0) {
      EXPECT_STREQ("", lmx::get_error_description(static_cast<elmx_error>(code))) << code;
    }
}

// --- Counting --------------------------------------------------------------------------------------------

TEST(ErrorLog, StartsEmpty) {
  const lmx::c_error log;
  EXPECT_FALSE(log.has_fatal());
  EXPECT_EQ(0u, log.fatal_count());
  EXPECT_EQ(0u, log.error_count());
  EXPECT_EQ(0u, log.warning_count());
  EXPECT_EQ(0u, log.note_count());
  EXPECT_EQ(lmx::EET_NONE, log.last_type());
  EXPECT_EQ(lmx::ELMX_OK, log.last_code());
  EXPECT_EQ(-1, log.last_line());
}

TEST(ErrorLog, CountsEachTypeByItsRow) {
  struct Row {
    const char* caption;
    elmx_error_type type;
    int number;
    unsigned fatals, errors, warnings, notes;
  };
  for (auto const& row :
       {Row{"fatal is an error too", lmx::EET_FATAL, 0, 1, 1, 0, 0},
        Row{"error", lmx::EET_ERROR, 1, 0, 1, 0, 0}, Row{"warning", lmx::EET_WARNING, 2, 0, 0, 1, 0},
        Row{"note is a warning too", lmx::EET_NOTE, 3, 0, 0, 1, 1}}) {
    SCOPED_TRACE(row.caption);
    lmx::c_error log;
    log.error(row.type, lmx::ELMX_BAD_DTD, "source", 12, "message");
    EXPECT_EQ(row.number, static_cast<int>(row.type));
    EXPECT_EQ(row.fatals, log.fatal_count());
    EXPECT_EQ(row.errors, log.error_count());
    EXPECT_EQ(row.warnings, log.warning_count());
    EXPECT_EQ(row.notes, log.note_count());
    EXPECT_EQ(row.fatals > 0, log.has_fatal());
    EXPECT_EQ(row.type, log.last_type());
    EXPECT_EQ(lmx::ELMX_BAD_DTD, log.last_code());
    EXPECT_EQ(12, log.last_line());
  }
  EXPECT_EQ(4, static_cast<int>(lmx::EET_NONE));
}

TEST(ErrorLog, KeepsTheLastReportUntilAFatalOneCloses) {
  RecordingError log;
  log.error(lmx::EET_ERROR, lmx::ELMX_NOT_WELL_FORMED, "a", 1, "first");
  log.error(lmx::EET_WARNING, lmx::ELMX_BAD_COMMENT, "a", 2, "second");
  EXPECT_EQ(lmx::ELMX_BAD_COMMENT, log.last_code());
  log.error(lmx::EET_FATAL, lmx::ELMX_BAD_CHAR_ENCODING, "a", 3, "third");
  for (const auto type : {lmx::EET_FATAL, lmx::EET_ERROR, lmx::EET_WARNING, lmx::EET_NOTE})
    log.error(type, lmx::ELMX_BAD_DTD, "b", 9, "dropped");
  log.error(lmx::EET_FATAL, lmx::ELMX_BAD_DTD, "dropped");

  EXPECT_EQ(1u, log.fatal_count());
  EXPECT_EQ(2u, log.error_count());
  EXPECT_EQ(1u, log.warning_count());
  EXPECT_EQ(0u, log.note_count());
  EXPECT_EQ(lmx::EET_FATAL, log.last_type());
  EXPECT_EQ(lmx::ELMX_BAD_CHAR_ENCODING, log.last_code());
  EXPECT_EQ(3, log.last_line());
  EXPECT_EQ(3u, log.reports.size());  // nor is the hook called
}

TEST(ErrorLog, ShowsWhatItKeeps) {
  lmx::c_error log;
  EXPECT_EQ(nullptr, log.mp_getter);
  log.error(lmx::EET_NOTE, lmx::ELMX_BAD_COMMENT, "a", 1, "");
  log.error(lmx::EET_ERROR, lmx::ELMX_NOT_WELL_FORMED, "a", 2, "");
  log.error(lmx::EET_FATAL, lmx::ELMX_BAD_DTD, "a", 3, "");
  EXPECT_EQ(1u, log.m_fatal_count);
  EXPECT_EQ(2u, log.m_error_count);
  EXPECT_EQ(1u, log.m_warning_count);
  EXPECT_EQ(1u, log.m_note_count);
  EXPECT_EQ(lmx::EET_FATAL, log.m_last_type);
  EXPECT_EQ(lmx::ELMX_BAD_DTD, log.m_last_code);
  EXPECT_EQ(3, log.m_last_line);
}

TEST(ErrorLog, OfAReaderIsThereForDerivedReaders) {
  class OwnReader : public lmx::c_xml_reader {
   public:
    using c_xml_reader::c_xml_reader;
    lmx::c_error& log() { return m_error; }
  };
  MemoryRead memory("<a");
  OwnReader reader(memory);
  EXPECT_NE(nullptr, reader.log().mp_getter);
  elmx_error error;
  reader.get_element_event(&error, &reader.m_name);
  EXPECT_EQ(lmx::ELMX_NOT_WELL_FORMED, reader.log().m_last_code);
  EXPECT_EQ(1u, reader.log().m_error_count);
}

TEST(ErrorLog, HandsAllFiveArgumentsToTheHook) {
  RecordingError log;
  log.error(lmx::EET_NOTE, lmx::ELMX_UNEXPECTED_ENTITY, "file.xml", 7, "text");
  ASSERT_EQ(1u, log.reports.size());
  EXPECT_EQ(lmx::EET_NOTE, log.reports[0].type);
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_ENTITY, log.reports[0].code);
  EXPECT_EQ("file.xml", log.reports[0].source);
  EXPECT_EQ(7, log.reports[0].line);
  EXPECT_EQ("text", log.reports[0].message);
}

TEST(ErrorInfo, StoresNothingBeforeAReport) {
  const lmx::c_error log;
  auto type = lmx::EET_WARNING;
  auto code = lmx::ELMX_BAD_CHOICE;
  int line = 77;
  EXPECT_FALSE(log.get_error_info(&type, &code, &line));
  EXPECT_EQ(lmx::EET_WARNING, type);
  EXPECT_EQ(lmx::ELMX_BAD_CHOICE, code);
  EXPECT_EQ(77, line);
}

TEST(ErrorInfo, IsTheLastReport) {
  lmx::c_error log;
  log.error(lmx::EET_ERROR, lmx::ELMX_BAD_END_TAG, nullptr, 5, "x");
  auto type = lmx::EET_NONE;
  auto code = lmx::ELMX_OK;
  int line = 0;
  EXPECT_TRUE(log.get_error_info(&type, &code, &line));
  EXPECT_EQ(lmx::EET_ERROR, type);
  EXPECT_EQ(lmx::ELMX_BAD_END_TAG, code);
  EXPECT_EQ(5, line);
}

TEST(ErrorInfo, CountsAReportOfCodeZeroAsNone) {
  lmx::c_error log;
  log.error(lmx::EET_WARNING, lmx::ELMX_OK, nullptr, 5, "x");
  auto type = lmx::EET_NONE;
  auto code = lmx::ELMX_BAD_CHOICE;
  int line = 77;
  EXPECT_FALSE(log.get_error_info(&type, &code, &line));
  EXPECT_EQ(77, line);
  EXPECT_EQ(1u, log.warning_count());
}

// --- Who supplies source and line ------------------------------------------------------------------------

TEST(GetterBinding, GivesNullAndNoLineWhenNothingIsBound) {
  RecordingError log;
  log.error(lmx::EET_ERROR, lmx::ELMX_BAD_DTD, "m");
  ASSERT_EQ(1u, log.reports.size());
  EXPECT_EQ("(null)", log.reports[0].source);
  EXPECT_EQ(-1, log.reports[0].line);
}

TEST(GetterBinding, IsMadeByEachGetterAndNests) {
  RecordingError log;
  MemoryRead outer_read("<a\n\n", "outer"), inner_read("<a\n", "inner"), unnamed_read("<a");
  {
    lmx::c_get_as_utf8 outer(outer_read, log);
    while (outer.get() != -1) {
    }
    log.error(lmx::EET_ERROR, lmx::ELMX_BAD_DTD, "in the outer");
    {
      lmx::c_get_as_utf8 inner(inner_read, log);
      while (inner.get() != -1) {
      }
      log.error(lmx::EET_ERROR, lmx::ELMX_BAD_DTD, "in the inner");
      outer.error(lmx::EET_ERROR, lmx::ELMX_BAD_DTD, "by the outer itself");
      lmx::c_get_as_utf8 unnamed(unnamed_read, log);
      log.error(lmx::EET_ERROR, lmx::ELMX_BAD_DTD, "without a name");
    }
    log.error(lmx::EET_ERROR, lmx::ELMX_BAD_DTD, std::string("in the outer again").c_str());
    outer.error(lmx::EET_ERROR, lmx::ELMX_BAD_DTD, std::string("a string's characters"));
  }
  log.error(lmx::EET_ERROR, lmx::ELMX_BAD_DTD, "unbound");

  struct Row {
    const char *message, *source;
    int line;
  };
  const Row expected[] = {{"in the outer", "outer", 3},
                          {"in the inner", "inner", 2},
                          {"by the outer itself", "outer", 3},
                          {"without a name", "(null)", 1},
                          {"in the outer again", "outer", 3},
                          {"a string's characters", "outer", 3},
                          {"unbound", "(null)", -1}};
  ASSERT_EQ(std::size(expected), log.reports.size());
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(expected[i].message, log.reports[i].message);
    EXPECT_EQ(expected[i].source, log.reports[i].source) << expected[i].message;
    EXPECT_EQ(expected[i].line, log.reports[i].line) << expected[i].message;
  }
}

TEST(GetterBinding, IsNotChangedByASecondBind) {
  RecordingError log;
  lmx::c_error elsewhere;  // the getters bind themselves there
  MemoryRead first_read("", "first"), second_read("", "second");
  const lmx::c_get_as_utf8 first(first_read, elsewhere), second(second_read, elsewhere);
  {
    lmx::c_getter_error_binder binder(log);
    binder.bind(&first);
    binder.bind(&second);
    log.error(lmx::EET_NOTE, lmx::ELMX_BAD_DTD, "bound");
  }
  log.error(lmx::EET_NOTE, lmx::ELMX_BAD_DTD, "unbound");
  ASSERT_EQ(2u, log.reports.size());
  EXPECT_EQ("first", log.reports[0].source);
  EXPECT_EQ(1, log.reports[0].line);
  EXPECT_EQ("(null)", log.reports[1].source);
}

TEST(GetterBindingDeathTest, StopsWhenABinderDiesUnbound) {
  EXPECT_DEATH(
      {
        lmx::c_error log;
        lmx::c_getter_error_binder binder(log);
      },
      "m_is_bound");
}

// --- The record a host reads -----------------------------------------------------------------------------

TEST(DebugError, StartsAndClearsToTheSameRecord) {
  lmx::s_debug_error record;
  for (const char* caption : {"new", "cleared"}) {
    SCOPED_TRACE(caption);
    EXPECT_EQ(lmx::ELMX_OK, record.m_code);
    EXPECT_EQ("", record.m_item);
    EXPECT_STREQ("(not set)", record.mp_code_file);
    EXPECT_EQ(-1, record.m_code_line);
    EXPECT_EQ(-1, record.m_xml_line);
    EXPECT_EQ("Error: No Error\n", record.to_string());
    record.set(lmx::ELMX_BAD_DTD, "PNT", "file.cpp", 3, 4);
    EXPECT_EQ(lmx::ELMX_BAD_DTD, record.m_code);
    EXPECT_EQ("PNT", record.m_item);
    EXPECT_STREQ("file.cpp", record.mp_code_file);
    EXPECT_EQ(3, record.m_code_line);
    EXPECT_EQ(4, record.m_xml_line);
    record.clear();
  }
}

TEST(DebugError, PrintsALineForEachThingItKnows) {
  struct Row {
    const char* caption;
    int code;
    const char *item, *file;
    int line, xml_line;
    const char* text;
  };
  const Row rows[] = {
      {"all known", 25, "TSK", "isoxmllib", 120, 9,
       "Error: Required attribute(s) missing\nItem: TSK\nProgram file: isoxmllib\nProgram line: 120\nXML "
       "line: "
       "9\n"},
      {"no XML line", 7, "@A", "f", 1, -1,
       "Error: Inappropriate choice option selected\nItem: @A\nProgram file: f\nProgram line: 1\n"},
      {"only -1 means not known", 5, "", "f", -1, 0,
       "Error: XML badly formed\nItem: \nProgram file: f\nProgram line: -1\nXML line: 0\n"},
      {"no such code", 5000, "x", "f", 2, 3,
       "Error: \nItem: x\nProgram file: f\nProgram line: 2\nXML line: 3\n"},
      {"code 0 prints no more, whatever is there", 0, "x", "f", 2, 3, "Error: No Error\n"},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    lmx::s_debug_error record;
    record.set(static_cast<elmx_error>(row.code), row.item, row.file, row.line, row.xml_line);
    EXPECT_EQ(row.text, record.to_string());
    std::ostringstream by_member, by_operator;
    EXPECT_EQ(&by_member, &record.to_stream(by_member));
    EXPECT_EQ(&by_operator, &(by_operator << record));
    EXPECT_EQ(row.text, by_member.str());
    EXPECT_EQ(row.text, by_operator.str());
  }
}

struct Grouping : std::numpunct<char> {
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(DebugError, PrintsPlainDigitsUnderAnyLocaleAndLeavesTheStreamsAlone) {
  lmx::s_debug_error record;
  record.set(lmx::ELMX_BAD_DTD, "x", "f", 12345, 1234567);
  const std::string text =
      "Error: Badly formed DTD\nItem: x\nProgram file: f\nProgram line: 12345\nXML line: 1234567\n";
  const std::locale grouping(std::locale::classic(), new Grouping);
  std::ostringstream stream;
  stream.imbue(grouping);
  stream << record << 1234;
  EXPECT_EQ(text + "1.234", stream.str());

  const std::locale before = std::locale::global(grouping);
  const std::string printed = record.to_string();
  std::locale::global(before);
  EXPECT_EQ(text, printed);
}

// --- Capture and report ----------------------------------------------------------------------------------

class TolerantReader : public lmx::c_xml_reader {
 public:
  using lmx::c_xml_reader::c_xml_reader;
  elmx_error handle_error(elmx_error code, std::string const& item, char const* file, int line) override {
    asked.push_back({lmx::EET_NONE, code, item, line, file});
    return verdict;
  }
  std::vector<Report> asked;
  elmx_error verdict = lmx::ELMX_OK;
};

class ReaderWithOnError : public lmx::c_xml_reader {
 public:
  using lmx::c_xml_reader::c_xml_reader;
  elmx_error on_error(elmx_error code, std::string const& item) override {
    asked.emplace_back(code, item);
    return lmx::ELMX_USER_DEFINED_3;
  }
  std::vector<std::pair<elmx_error, std::string>> asked;
};

TEST(CaptureError, RecordsWithTheReadersLineAndDecidesNothing) {
  MemoryRead read("\n\n<a/>");
  TolerantReader reader(read);
  elmx_error error = lmx::ELMX_OK;
  reader.get_element_event(&error, &reader.m_name);
  EXPECT_EQ(lmx::ELMX_BAD_CHOICE, reader.capture_error(lmx::ELMX_BAD_CHOICE, "item", "file", 8));
  EXPECT_TRUE(reader.asked.empty());
  const std::string text =
      "Error: Inappropriate choice option selected\nItem: item\nProgram file: file\nProgram line: 8\nXML "
      "line: "
      "3\n";
  EXPECT_EQ(text, reader.get_error_message());
  std::string stored = "old";
  EXPECT_EQ(&stored, &reader.get_error_message(&stored));
  EXPECT_EQ(text, stored);

  reader.capture_error(lmx::ELMX_BAD_DTD, "later", "file", 9);  // the last one is what a host reads
  EXPECT_EQ(lmx::ELMX_BAD_DTD, reader.debug_error().m_code);
  EXPECT_EQ("later", reader.debug_error().m_item);
}

TEST(CaptureError, TellsTheFatalCodeInPlaceOfTheEndItCaused) {
  struct Row {
    const char *caption, *document;
    elmx_error captured, recorded;
  };
  const Row rows[] = {
      {"fatal 15", "<?xml version='1.0' encoding='UTF-16'?><a/>", lmx::ELMX_UNEXPECTED_EOM,
       lmx::ELMX_ENCODING_MISMATCH},
      {"fatal 6", "text", lmx::ELMX_UNEXPECTED_EOM, lmx::ELMX_BAD_CHAR_ENCODING},
      {"fatal 23", "<a b=c/>", lmx::ELMX_UNEXPECTED_EOM, lmx::ELMX_NOT_WELL_FORMED},
      {"only the end of the input is replaced", "text", lmx::ELMX_BAD_END_OF_ELEMENT,
       lmx::ELMX_BAD_END_OF_ELEMENT},
      {"an error is not fatal", "<1/>", lmx::ELMX_UNEXPECTED_EOM, lmx::ELMX_UNEXPECTED_EOM},
      {"a warning is not fatal", "<!-- --->", lmx::ELMX_UNEXPECTED_EOM, lmx::ELMX_UNEXPECTED_EOM},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      lmx::c_xml_reader reader(read);
      elmx_error ignored = lmx::ELMX_OK;
      reader.get_element_event(&ignored, &reader.m_name);
      EXPECT_EQ(row.recorded, reader.capture_error(row.captured, "x", "f", 1));
      EXPECT_EQ(row.recorded, reader.debug_error().m_code);
    });
  }
}

TEST(ReportError, ReturnsWhatTheHandlerSaysAndRecordsFirst) {
  MemoryRead read("");
  TolerantReader reader(read);
  for (const auto verdict : {lmx::ELMX_OK, lmx::ELMX_USER_DEFINED_1}) {
    reader.verdict = verdict;
    EXPECT_EQ(verdict, reader.report_error(lmx::ELMX_LENGTH_TOO_LONG, "A", "file", 4));
    EXPECT_EQ(lmx::ELMX_LENGTH_TOO_LONG, reader.debug_error().m_code);
  }
  ASSERT_EQ(2u, reader.asked.size());
  EXPECT_EQ(lmx::ELMX_LENGTH_TOO_LONG, reader.asked[0].code);
  EXPECT_EQ("A", reader.asked[0].source);
  EXPECT_EQ("file", reader.asked[0].message);
  EXPECT_EQ(4, reader.asked[0].line);
}

TEST(ReportError, AsksTheHandlerWithTheCodeThatWasRecorded) {
  MemoryRead read("text");  // no encoding begins so
  TolerantReader reader(read);
  elmx_error ignored = lmx::ELMX_OK;
  reader.get_element_event(&ignored, &reader.m_name);
  reader.report_error(lmx::ELMX_UNEXPECTED_EOM, "", "f", 1);
  ASSERT_EQ(1u, reader.asked.size());
  EXPECT_EQ(lmx::ELMX_BAD_CHAR_ENCODING, reader.asked[0].code);
}

TEST(ReportError, EndsTheReadUnlessAHookIsOverridden) {
  MemoryRead read("");
  lmx::c_xml_reader reader(read);
  EXPECT_EQ(lmx::ELMX_BAD_DTD, reader.on_error(lmx::ELMX_BAD_DTD, "x"));
  EXPECT_EQ(lmx::ELMX_BAD_DTD, reader.handle_error(lmx::ELMX_BAD_DTD, "x", "f", 1));
  EXPECT_EQ(lmx::ELMX_BAD_DTD, reader.report_error(lmx::ELMX_BAD_DTD, "x", "f", 1));

  ReaderWithOnError with_on_error(read);
  EXPECT_EQ(lmx::ELMX_USER_DEFINED_3, with_on_error.report_error(lmx::ELMX_BAD_DTD, "x", "f", 1));
  ASSERT_EQ(1u, with_on_error.asked.size());
  EXPECT_EQ(lmx::ELMX_BAD_DTD, with_on_error.asked[0].first);
  EXPECT_EQ("x", with_on_error.asked[0].second);
}

TEST(ReportError, NamesAnAttributeAfterAnAtSign) {
  MemoryRead read("");
  TolerantReader reader(read);
  reader.m_name = "A";
  reader.m_code_file = "isoxmllib";
  reader.m_code_line = 55;
  EXPECT_EQ(lmx::ELMX_OK, reader.report_attribute_error(lmx::ELMX_ATTRIBUTE_ALREADY_READ));
  EXPECT_EQ("@A", reader.debug_error().m_item);
  EXPECT_EQ(lmx::ELMX_ATTRIBUTE_ALREADY_READ, reader.debug_error().m_code);
  EXPECT_STREQ("isoxmllib", reader.debug_error().mp_code_file);
  EXPECT_EQ(55, reader.debug_error().m_code_line);
  ASSERT_EQ(1u, reader.asked.size());
  EXPECT_EQ("@A", reader.asked[0].source);
}

TEST(EndTagAtTheEndOfInput, GivesItsCodeWhateverTheHandlerSaid) {
  MemoryRead read("<a>");
  TolerantReader reader(read);
  elmx_error error = lmx::ELMX_OK;
  reader.get_element_event(&error, &reader.m_name);
  ASSERT_TRUE(reader.skip_start_tag(nullptr));
  int event = -1;
  EXPECT_FALSE(reader.get_end_tag(nullptr, "a", &event, &error));
  EXPECT_EQ(lmx::EXE_EOM, event);
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, error);
  ASSERT_EQ(1u, reader.asked.size());
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, reader.asked[0].code);
  EXPECT_EQ("a", reader.asked[0].source);
}

struct EventFailure {
  const char *caption, *document;
  elmx_error error;
  int event;
  elmx_error_type type;
  int line;
};

TEST(EventFailures, AreTheLastCodeAndCaptureNothing) {
  const EventFailure rows[] = {
      {"end of input", "\n", lmx::ELMX_UNEXPECTED_EOM, lmx::EXE_EOM, lmx::EET_NONE, -1},
      {"an error's code, with its true line", "\n<1>", lmx::ELMX_NOT_WELL_FORMED, lmx::EXE_ERROR,
       lmx::EET_ERROR, 2},
      {"a warning before an error", "<!-- --->\n<1>", lmx::ELMX_NOT_WELL_FORMED, lmx::EXE_ERROR,
       lmx::EET_ERROR, 2},
      {"a warning before a failure without a report", "<!-- x --->\n<!x>", lmx::ELMX_BAD_COMMENT,
       lmx::EXE_ERROR, lmx::EET_WARNING, 1},
      {"a failure without a report", "<!x>", lmx::ELMX_OK, lmx::EXE_ERROR, lmx::EET_NONE, -1},
      {"a warning alone", "<!-- x --->\n<a/>", lmx::ELMX_OK, lmx::EXE_TOKEN, lmx::EET_WARNING, 1},
      {"a fatal report", "\n\n<a b=c>", lmx::ELMX_NOT_WELL_FORMED, lmx::EXE_ERROR, lmx::EET_FATAL, 3},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      TolerantReader reader(read);
      elmx_error error = lmx::ELMX_UNDEFINED_ERROR;
      reader.get_element_event(&error, &reader.m_name);
      EXPECT_EQ(row.error, error);
      EXPECT_EQ(row.event, reader.m_event);
      EXPECT_EQ(row.type, reader.error_log().last_type());
      EXPECT_EQ(row.line, reader.error_log().last_line());
      EXPECT_EQ(lmx::ELMX_OK, reader.debug_error().m_code);
      EXPECT_TRUE(reader.asked.empty());
    });
  }
}

TEST(Reader, ShowsAnErrorWithoutAProgramFile) {
  MemoryRead read("<a/>");
  lmx::c_xml_reader reader(read);
  EXPECT_EQ(lmx::ELMX_BADLY_FORMED, reader.capture_error(lmx::ELMX_BADLY_FORMED, "x", nullptr, 3));
  EXPECT_NE(std::string::npos, reader.get_error_message().find("Program file: (not set)\nProgram line: 3\n"));

  lmx::s_debug_error error;
  error.set(lmx::ELMX_BADLY_FORMED, "x", nullptr, 3, -1);
  std::ostringstream out;
  out << error;
  EXPECT_EQ(error.to_string(), out.str());
}

TEST(Reader, StartsWithoutAnEventOrAnError) {
  MemoryRead read("<a/>");
  const lmx::c_xml_reader reader(read);
  EXPECT_EQ(0, reader.m_event);
  EXPECT_EQ("Error: No Error\n", reader.get_error_message());
  EXPECT_EQ(lmx::ELMX_OK, reader.error_log().last_code());
}

// --- Failed checks ---------------------------------------------------------------------------------------

TEST(CheckFailure, StoresThePathInTheRootsExceptionAndInTheGlobalOne) {
  lmx::c_check_exception mine;
  EXPECT_STREQ("lmx check exception", mine.what());
  EXPECT_EQ("", mine.get_path());
  lmx::c_check_exception ignored;
  lmx::c_check_tracker root(nullptr, "ISO11783_TaskData", &mine);
  lmx::c_check_tracker unnamed(&root, nullptr, &ignored);  // only the outermost one's counts
  lmx::c_check_tracker leaf(&unnamed, "TSK");
  const lmx::c_check_tracker item(&leaf, "G");
  EXPECT_FALSE(lmx::report_check_failure(&item, "isoxmllib", 42));
  for (auto const* exception : {&mine, &lmx::global_check_exception}) {
    EXPECT_EQ("/ISO11783_TaskData/TSK/G", exception->get_path());
    EXPECT_STREQ("isoxmllib", exception->get_file());
    EXPECT_EQ(42, exception->get_line());
    EXPECT_STREQ("lmx check exception", exception->what());
  }
  EXPECT_EQ("", ignored.get_path());
}

TEST(CheckFailure, NeedsNoExceptionOfTheHosts) {
  const lmx::c_check_tracker root(nullptr, "PNT");
  EXPECT_FALSE(lmx::report_check_failure(&root, "file", 7));
  EXPECT_EQ("/PNT", lmx::global_check_exception.get_path());
  EXPECT_EQ(7, lmx::global_check_exception.get_line());
}

}  // namespace
