// The elements that frame a transfer set: each attribute's rule at its bounds and one step outside, each name
// table, and how the children are kept.
//
// Every text of the tables is read twice. A strict reader gives the first report as its result; one that
// tolerates everything sees all of them, in order, and keeps the value.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <ostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/recording_reader.h"

namespace {

struct Attribute {
  std::string name, text;
  bool required;
};

struct Element {
  std::string tag;
  std::vector<Attribute> attributes;  // in the order in which missing ones are looked for
};

constexpr bool required = true;
constexpr bool optional = false;

// One good text for every attribute.
std::vector<Element> const& elements() {
  static const std::vector<Element> all = {
      {"ISO11783_TaskData",
       {{"VersionMajor", "4", required},
        {"VersionMinor", "3", required},
        {"ManagementSoftwareManufacturer", "maker", required},
        {"ManagementSoftwareVersion", "1.2", required},
        {"TaskControllerManufacturer", "controller", optional},
        {"TaskControllerVersion", "5.6", optional},
        {"DataTransferOrigin", "1", required},
        {"lang", "en", optional}}},
      {"XFC", {}},
      {"XFR", {{"A", "CTR00001", required}, {"B", "1", required}}},
      {"AFE",
       {{"A", "ABCDEFGH.XML", required},
        {"B", "2", required},
        {"C", "4012345000009", required},
        {"D", "7", required},
        {"E", "9.1", optional},
        {"F", "4096", optional}}},
      {"TCC",
       {{"A", "A00086000C8000FF", required},
        {"B", "controller", required},
        {"C", "3", required},
        {"D", "31", required},
        {"E", "2", required},
        {"F", "32", required},
        {"G", "16", required}}},
      {"P917_Metadata",
       {{"Version", "1", required},
        {"CloudJob", "true", optional},
        {"originationId", "API", optional},
        {"jobStatusId", "4", optional}}},
      {"ISO11783LinkList",
       {{"VersionMajor", "4", required},
        {"VersionMinor", "3", required},
        {"ManagementSoftwareManufacturer", "maker", required},
        {"ManagementSoftwareVersion", "1.2", required},
        {"TaskControllerManufacturer", "controller", optional},
        {"TaskControllerVersion", "5.6", optional},
        {"FileVersion", "7.8", optional},
        {"DataTransferOrigin", "2", required}}},
      {"LGP",
       {{"A", "LGP1", required},
        {"B", "1", required},
        {"C", "gln", optional},
        {"D", "space", optional},
        {"E", "group", optional}}},
      {"LNK", {{"A", "TSK1", required}, {"B", "value", required}, {"C", "link", optional}}},
  };
  return all;
}

Element const& element(std::string const& tag) {
  for (Element const& candidate : elements()) {
    if (candidate.tag == tag) return candidate;
  }
  throw std::out_of_range(tag);
}

// Those attributes of the element that `wanted` takes; a text of `changed` replaces the good one.
std::string document(Element const& element, std::function<bool(Attribute const&)> const& wanted,
                     std::map<std::string, std::string> const& changed = {}) {
  std::string text = "<" + element.tag;
  for (Attribute const& attribute : element.attributes) {
    if (!wanted(attribute)) continue;
    const auto other = changed.find(attribute.name);
    text += " " + attribute.name + "=\"" + (other == changed.end() ? attribute.text : other->second) + "\"";
  }
  return text + "/>";
}

std::string with(std::string const& tag, std::string const& name, std::string const& text) {
  return document(element(tag), [](Attribute const&) { return true; }, {{name, text}});
}

std::string header(std::string const& tag) {
  std::string text = document(element(tag), [](Attribute const& attribute) { return attribute.required; });
  return text.erase(text.size() - 2) + ">";
}

std::string task_data(std::string const& children) {
  return header("ISO11783_TaskData") + children + "</ISO11783_TaskData>";
}

std::string good(std::string const& tag) {
  return document(element(tag), [](Attribute const&) { return true; });
}

// --- Presence --------------------------------------------------------------------------------------------

TEST(Presence, OptionalAttributesMayBeLeftOut) {
  for (Element const& candidate : elements()) {
    const std::string bytes = document(candidate, [](Attribute const& a) { return a.required; });
    Reading<> reading(bytes);
    EXPECT_EQ(0, reading.error) << bytes;
    EXPECT_EQ("", reading.reader.reports()) << bytes;
    EXPECT_EQ(0, Reading<>(good(candidate.tag)).error) << candidate.tag;
  }
}

TEST(Presence, EachRequiredAttributeIsMissed) {
  for (Element const& candidate : elements()) {
    for (Attribute const& missing : candidate.attributes) {
      if (!missing.required) continue;
      const std::string bytes =
          document(candidate, [&](Attribute const& a) { return a.name != missing.name; });
      Reading<> reading(bytes);
      EXPECT_EQ(25, reading.error) << bytes;
      EXPECT_EQ("25 " + candidate.tag, reading.reader.reports()) << bytes;
    }
  }
}

TEST(Presence, OneReportCoversAllThatIsMissing) {
  for (Element const& candidate : elements()) {
    if (candidate.attributes.empty()) continue;
    Reading<> reading("<" + candidate.tag + "/>", tolerant());
    EXPECT_EQ(0, reading.error) << candidate.tag;
    EXPECT_EQ("25 " + candidate.tag, reading.reader.reports());
  }
}

TEST(Presence, EachAttributeIsTakenOnce) {
  for (Element const& candidate : elements()) {
    for (Attribute const& repeated : candidate.attributes) {
      std::string bytes = good(candidate.tag);
      bytes.insert(bytes.size() - 2, " " + repeated.name + "=\"" + repeated.text + "\"");
      Reading<> reading(bytes);
      EXPECT_EQ(3, reading.error) << bytes;
      EXPECT_EQ("3 @" + repeated.name, reading.reader.reports()) << bytes;
    }
  }
}

TEST(Presence, AToleratedSecondValueReplacesTheFirst) {
  Reading<Link> reading("<LNK A=\"TSK1\" B=\"first\" B=\"second\"/>", tolerant());
  EXPECT_EQ(0, reading.error);
  EXPECT_EQ("3 @B", reading.reader.reports());
  EXPECT_EQ("second", reading.top.GetValue());
}

// --- Values at their bounds ------------------------------------------------------------------------------

struct Text {
  std::string tag, attribute, text;
  std::string reports;  // what a reader sees that tolerates everything
};

std::ostream& operator<<(std::ostream& stream, Text const& row) {
  return stream << row.tag << " " << row.attribute << "=\"" << row.text << '"';
}

int first_code(std::string const& reports) { return reports.empty() ? 0 : std::stoi(reports); }

std::string x(std::size_t count) { return std::string(count, 'x'); }

// `count` characters of two bytes.
std::string umlauts(std::size_t count) {
  std::string text;
  while (count-- > 0) text += "\u00e4";
  return text;
}

void expect_texts(std::vector<Text> const& rows) {
  for (auto const& [tag, attribute, text, reports] : rows) {
    SCOPED_TRACE(tag + " " + attribute + " \"" + text + "\"");
    const std::string bytes = with(tag, attribute, text);
    EXPECT_EQ(first_code(reports), Reading<>(bytes).error);
    Reading<> reading(bytes, tolerant());
    EXPECT_EQ(0, reading.error);
    EXPECT_EQ(reports, reading.reader.reports());
  }
}

TEST(Texts, OfExternalFileReferences) {
  expect_texts({{"XFR", "A", "CTR0001", "20 A, 22 A"},
                {"XFR", "A", "CTR000001", "19 A, 22 A"},
                {"XFR", "A", "", "20 A, 22 A"},
                {"XFR", "A", "XYZ00001", "22 A"},
                {"XFR", "A", "ctr00001", "22 A"},
                {"XFR", "A", "CTR0000A", "22 A"},
                {"XFR", "A", "GGP00001", "22 A"},
                {"XFR", "A", "PLN00001", "22 A"},
                {"XFR", "A", "XFR00001", "22 A"},
                {"XFR", "A", "AFE00001", "22 A"},
                {"XFR", "A", "CTR99999", ""},
                {"XFR", "A", " CTR00001 ", ""},
                {"XFR", "B", "1", ""},
                {"XFR", "B", " 1 ", ""},
                {"XFR", "B", "2", "38 B"},
                {"XFR", "B", "0", "38 B"},
                {"XFR", "B", "01", "38 B"},
                {"XFR", "B", "1 1", "38 B"},
                {"XFR", "B", "", "38 B"}});
}

TEST(Texts, OfAttachedFiles) {
  expect_texts({{"AFE", "A", "12345678.999", ""},
                {"AFE", "A", "ABCDEFGH/XML", ""},
                {"AFE", "A", "ABCDEFGHIXML", ""},
                {"AFE", "A", "ABCDEFGH\u00e4XML", ""},
                {"AFE", "A", "ABCDEFGH.xml", "22 A"},
                {"AFE", "A", "abcdefgh.XML", "22 A"},
                {"AFE", "A", "ABCDEFG.XML", "20 A, 22 A"},
                {"AFE", "A", "ABCDEFGHI.XML", "19 A, 22 A"},
                {"AFE", "A", "ABCDEFGH.XM.", "22 A"},
                {"AFE", "A", "", "20 A, 22 A"},
                {"AFE", "B", "1", ""},
                {"AFE", "B", "2", ""},
                {"AFE", "B", "0", "38 B"},
                {"AFE", "B", "3", "38 B"},
                {"AFE", "B", "", "38 B"},
                {"AFE", "C", "", ""},
                {"AFE", "C", x(32), ""},
                {"AFE", "C", x(33), "19 C"},
                {"AFE", "C", "  " + x(32) + " ", ""},
                {"AFE", "D", "1", ""},
                {"AFE", "D", "254", ""},
                {"AFE", "D", "0", "37 D"},
                {"AFE", "D", "-0", "37 D"},
                {"AFE", "D", "-1", "37 D"},
                {"AFE", "D", "255", "36 D"},
                {"AFE", "D", "256", "36 D"},
                {"AFE", "D", "+5", ""},
                {"AFE", "D", "0005", ""},
                {"AFE", "D", " 5 ", ""},
                {"AFE", "D", "", "35 D, 36 D"},
                {"AFE", "D", std::string(300, '9'), "36 D"},
                {"AFE", "E", "", ""},
                {"AFE", "E", x(32), ""},
                {"AFE", "E", umlauts(32), ""},
                {"AFE", "E", umlauts(33), "19 E"},
                {"AFE", "E", " " + x(31), ""},
                {"AFE", "E", " " + x(32), "19 E"},
                {"AFE", "F", "0", ""},
                {"AFE", "F", "-0", ""},
                {"AFE", "F", "4294967294", ""},
                {"AFE", "F", "4294967295", "36 F"},
                {"AFE", "F", "4294967296", "36 F"},
                {"AFE", "F", "-1", "37 F"},
                {"AFE", "F", "00004294967294", ""}});
}

TEST(Texts, OfTaskControllerCapabilities) {
  expect_texts({{"TCC", "A", "a00086000c8000ff", ""},
                {"TCC", "A", "aB00cD00eF00FF00", ""},
                {"TCC", "A", "A00086000C8000", "20 A"},
                {"TCC", "A", "A00086000C8000FF00", "19 A"},
                {"TCC", "A", "", "20 A"},
                {"TCC", "B", "", ""},
                {"TCC", "B", x(153), ""},
                {"TCC", "B", x(154), "19 B"},
                {"TCC", "B", umlauts(153), ""},
                {"TCC", "C", "0", ""},
                {"TCC", "C", "1", ""},
                {"TCC", "C", "2", ""},
                {"TCC", "C", "3", ""},
                {"TCC", "C", "4", ""},
                {"TCC", "C", "5", "38 C"},
                {"TCC", "C", "-1", "38 C"},
                {"TCC", "C", "", "38 C"},
                {"TCC", "D", "0", ""},
                {"TCC", "D", "63", ""},
                {"TCC", "D", "64", "36 D"},
                {"TCC", "D", "-1", "37 D"},
                {"TCC", "E", "0", ""},
                {"TCC", "E", "-0", ""},
                {"TCC", "E", "254", ""},
                {"TCC", "E", "255", "36 E"},
                {"TCC", "E", "-1", "37 E"},
                {"TCC", "E", "", "35 E, 36 E"},
                {"TCC", "F", "0", ""},
                {"TCC", "F", "254", ""},
                {"TCC", "F", "255", "36 F"},
                {"TCC", "F", "-1", "37 F"},
                {"TCC", "G", "0", ""},
                {"TCC", "G", "254", ""},
                {"TCC", "G", "255", "36 G"},
                {"TCC", "G", "-1", "37 G"}});
}

TEST(Texts, OfP917Metadata) {
  expect_texts({{"P917_Metadata", "Version", "", ""},
                {"P917_Metadata", "Version", x(5000), ""},
                {"P917_Metadata", "CloudJob", "true", ""},
                {"P917_Metadata", "CloudJob", "false", ""},
                {"P917_Metadata", "CloudJob", "1", ""},
                {"P917_Metadata", "CloudJob", "0", ""},
                {"P917_Metadata", "CloudJob", " true ", ""},
                {"P917_Metadata", "CloudJob", "TRUE", "35 CloudJob"},
                {"P917_Metadata", "CloudJob", "2", "35 CloudJob"},
                {"P917_Metadata", "CloudJob", "", "35 CloudJob"},
                {"P917_Metadata", "originationId", "FC", ""},
                {"P917_Metadata", "originationId", "USB", ""},
                {"P917_Metadata", "originationId", "API", ""},
                {"P917_Metadata", "originationId", "PORTAL", ""},
                {"P917_Metadata", "originationId", "fc", "38 originationId"},
                {"P917_Metadata", "originationId", "PORTA", "38 originationId"},
                {"P917_Metadata", "originationId", "", "38 originationId"},
                {"P917_Metadata", "jobStatusId", "1", ""},
                {"P917_Metadata", "jobStatusId", "2", ""},
                {"P917_Metadata", "jobStatusId", "3", ""},
                {"P917_Metadata", "jobStatusId", "4", ""},
                {"P917_Metadata", "jobStatusId", "0", "38 jobStatusId"},
                {"P917_Metadata", "jobStatusId", "5", "38 jobStatusId"}});
}

std::vector<Text> header_texts() {
  std::vector<Text> rows;
  for (char const* const tag : {"ISO11783_TaskData", "ISO11783LinkList"}) {
    for (char const* const free : {"VersionMajor", "VersionMinor"}) {
      rows.push_back({tag, free, "", ""});
      rows.push_back({tag, free, x(1000), ""});
    }
    rows.push_back({tag, "DataTransferOrigin", "1", ""});
    rows.push_back({tag, "DataTransferOrigin", "2", ""});
    for (char const* const other : {"0", "3", "", "1 2"}) {
      rows.push_back({tag, "DataTransferOrigin", other, "38 DataTransferOrigin"});
    }
    std::vector<std::string> limited = {"ManagementSoftwareManufacturer", "ManagementSoftwareVersion",
                                        "TaskControllerManufacturer", "TaskControllerVersion"};
    limited.push_back(std::string(tag) == "ISO11783LinkList" ? "FileVersion" : "lang");
    for (std::string const& name : limited) {
      rows.push_back({tag, name, "", ""});
      rows.push_back({tag, name, umlauts(32), ""});
      rows.push_back({tag, name, x(33), "19 " + name});
    }
  }
  return rows;
}

TEST(Texts, OfBothHeaders) { expect_texts(header_texts()); }

TEST(Texts, OfLinks) {
  expect_texts({{"LGP", "A", "LGP-1", ""},
                {"LGP", "A", "LGP12345678901", ""},
                {"LGP", "A", "LGP-", "22 A"},
                {"LGP", "A", "LGP", "20 A, 22 A"},
                {"LGP", "A", "LGP123456789012", "19 A"},
                {"LGP", "A", "LGPA23456789012", "19 A, 22 A"},
                {"LGP", "A", "lgp1", "22 A"},
                {"LGP", "A", "LGP--1", "22 A"},
                {"LGP", "A", "TSK1", "22 A"},
                {"LGP", "B", "1", ""},
                {"LGP", "B", "2", ""},
                {"LGP", "B", "3", ""},
                {"LGP", "B", "4", ""},
                {"LGP", "B", "0", "38 B"},
                {"LGP", "B", "5", "38 B"},
                {"LGP", "C", x(64), ""},
                {"LGP", "C", x(65), "19 C"},
                {"LGP", "C", "", ""},
                {"LGP", "D", x(255), ""},
                {"LGP", "D", x(256), "19 D"},
                {"LGP", "D", "", ""},
                {"LGP", "E", x(32), ""},
                {"LGP", "E", x(33), "19 E"},
                {"LGP", "E", "", ""},
                {"LNK", "A", "TSK-1", ""},
                {"LNK", "A", "TSK12345678901", ""},
                {"LNK", "A", "TSK123456789012", "19 A"},
                {"LNK", "A", "TSK", "20 A, 22 A"},
                {"LNK", "A", "TSK-", "22 A"},
                {"LNK", "A", "TSKX", "22 A"},
                {"LNK", "A", "tsk1", "22 A"},
                {"LNK", "A", "DET1", "22 A"},
                {"LNK", "A", "LSG1", "22 A"},
                {"LNK", "A", "PNT1", "22 A"},
                {"LNK", "A", "CVT1", "22 A"},
                {"LNK", "A", "CCL1", "22 A"},
                {"LNK", "A", "LGP1", "22 A"},
                {"LNK", "A", "A.B", "20 A"},
                {"LNK", "A", "A.BC", ""},
                {"LNK", "A", "A.BC.D", ""},
                {"LNK", "A", "ABCDEFGHIJ.XML", ""},
                {"LNK", "A", "ABCDEFGHIJK.XM", "22 A"},
                {"LNK", "A", "ABCD/XML", "22 A"},
                {"LNK", "A", ".XML", "22 A"},
                {"LNK", "A", "", "20 A, 22 A"},
                {"LNK", "B", "", ""},
                {"LNK", "B", x(255), ""},
                {"LNK", "B", umlauts(255), ""},
                {"LNK", "B", x(256), "19 B"},
                {"LNK", "C", x(32), ""},
                {"LNK", "C", x(33), "19 C"}});
}

std::vector<Text> listed_names() {
  std::vector<Text> rows;
  for (char const* const list : {"BSN", "CCG", "CCT", "CLD", "CPC", "CTP", "CTR", "DVC", "FRM", "OTQ", "PDT",
                                 "PFD", "PGP", "TSK", "VPN", "WKR"}) {
    rows.push_back({"XFR", "A", std::string(list) + "00000", ""});
  }
  for (char const* const kind : {"BSN", "CCT", "CCG", "CLD", "CTP", "CPC", "CTR", "DVC", "FRM", "GGP", "GPN",
                                 "OTQ", "PFD", "PDT", "PGP", "PLN", "TSK", "VPN", "WKR"}) {
    rows.push_back({"LNK", "A", std::string(kind) + "1", ""});
    rows.push_back({"LNK", "A", std::string(kind) + "-20", ""});
  }
  return rows;
}

TEST(Texts, ThatNameAListOrKind) { expect_texts(listed_names()); }

TEST(Texts, OfTheWrongFormAreRefused) {
  const Text rows[] = {
      {"AFE", "D", "+", "35"},
      {"AFE", "D", "-", "35"},
      {"AFE", "D", "1.0", "35"},
      {"AFE", "D", "1e1", "35"},
      {"AFE", "D", "1 1", "35"},
      {"AFE", "F", "12a", "35"},
      {"AFE", "F", "0x10", "35"},
      {"AFE", "F", "\u0661", "35"},
      {"TCC", "D", "x", "35"},
      {"TCC", "F", "--1", "35"},
      {"TCC", "A", "A00086000C8000F", "35"},
      {"TCC", "A", "A00086000C8000FG", "35"},
      {"TCC", "A", "A0 086000C8000FF", "35"},
  };
  for (Text const& row : rows) {
    Reading<> reading(with(row.tag, row.attribute, row.text));
    EXPECT_EQ(35, reading.error) << row;
    EXPECT_EQ("35 " + row.attribute, reading.reader.reports()) << row;
  }
}

TEST(Texts, FileNamesMayHaveAnyCharacterButALineEndForTheDot) {
  Reading<> reading(good("LNK"));
  lmx::c_xml_reader& reader = reading.reader;
  EXPECT_EQ(0, LexicalValidator1(reader, "ABCDEFGH/XML"));
  EXPECT_EQ(0, LexicalValidator1(reader, "ABCDEFGH\tXML"));
  EXPECT_EQ(22, LexicalValidator1(reader, "ABCDEFGH\nXML"));
  EXPECT_EQ(22, LexicalValidator1(reader, "ABCDEFGH\rXML"));
}

TEST(Texts, ToleratedNumbersAreClampedTo32BitsAndCutToTheirField) {
  const struct {
    char const* attribute;
    char const* text;
    unsigned value;
  } rows[] = {{"D", "300", 44},         {"D", "99999999999", 255},         {"D", "255", 255},
              {"F", "-1", 4294967295u}, {"F", "99999999999", 4294967295u}, {"F", "4294967295", 4294967295u}};
  for (auto const& row : rows) {
    Reading<AttachedFile> reading(with("AFE", row.attribute, row.text), tolerant());
    EXPECT_EQ(0, reading.error);
    EXPECT_EQ(row.value, *row.attribute == 'D' ? reading.top.GetType() : reading.top.GetFileLength())
        << row.text;
  }
}

TEST(Texts, AFieldCountsAsSetThoughItsCheckFailed) {
  Reading<AttachedFile> strict_reading(with("AFE", "B", "9"));
  EXPECT_EQ(38, strict_reading.error);
  EXPECT_TRUE(strict_reading.top.IssetPreserve());
  EXPECT_EQ("9", strict_reading.top.GetPreserve());

  Reading<AttachedFile> text_failed(with("AFE", "D", "255"));
  EXPECT_EQ(36, text_failed.error);
  EXPECT_FALSE(text_failed.top.IssetType());  // the text's check comes before the field is touched
}

// --- White space -----------------------------------------------------------------------------------------

struct Blanks {
  std::string tag, attribute;
  bool kept;
  std::function<std::string(Root const&)> value;
};

TEST(WhiteSpace, IsKeptInDesignatorsAndCollapsedElsewhere) {
  constexpr bool kept = true;
  constexpr bool collapsed = false;
  const Blanks rows[] = {
      {"ISO11783_TaskData", "VersionMajor", collapsed,
       [](Root const& r) { return r.GetTaskData().GetVersionMajor(); }},
      {"ISO11783_TaskData", "VersionMinor", collapsed,
       [](Root const& r) { return r.GetTaskData().GetVersionMinor(); }},
      {"ISO11783_TaskData", "ManagementSoftwareManufacturer", kept,
       [](Root const& r) { return r.GetTaskData().GetManagementSoftwareManufacturer(); }},
      {"ISO11783_TaskData", "ManagementSoftwareVersion", kept,
       [](Root const& r) { return r.GetTaskData().GetManagementSoftwareVersion(); }},
      {"ISO11783_TaskData", "TaskControllerManufacturer", kept,
       [](Root const& r) { return r.GetTaskData().GetTaskControllerManufacturer(); }},
      {"ISO11783_TaskData", "TaskControllerVersion", kept,
       [](Root const& r) { return r.GetTaskData().GetTaskControllerVersion(); }},
      {"ISO11783_TaskData", "lang", collapsed, [](Root const& r) { return r.GetTaskData().GetLanguage(); }},
      {"ISO11783LinkList", "VersionMajor", collapsed,
       [](Root const& r) { return r.GetLinkList().GetVersionMajor(); }},
      {"ISO11783LinkList", "VersionMinor", collapsed,
       [](Root const& r) { return r.GetLinkList().GetVersionMinor(); }},
      {"ISO11783LinkList", "FileVersion", kept,
       [](Root const& r) { return r.GetLinkList().GetFileVersion(); }},
      {"P917_Metadata", "Version", collapsed, [](Root const& r) { return r.GetP917Metadata().GetVersion(); }},
      {"AFE", "C", collapsed, [](Root const& r) { return r.GetAttachedFile().GetManufacturerGLN(); }},
      {"AFE", "E", kept, [](Root const& r) { return r.GetAttachedFile().GetFileVersion(); }},
      {"TCC", "B", kept, [](Root const& r) { return r.GetTaskControllerCapabilities().GetDesignator(); }},
      {"LGP", "C", collapsed, [](Root const& r) { return r.GetLinkGroup().GetManufacturerGLN(); }},
      {"LGP", "D", collapsed, [](Root const& r) { return r.GetLinkGroup().GetNamespace(); }},
      {"LGP", "E", kept, [](Root const& r) { return r.GetLinkGroup().GetDesignator(); }},
      {"LNK", "B", collapsed, [](Root const& r) { return r.GetLink().GetValue(); }},
      {"LNK", "C", kept, [](Root const& r) { return r.GetLink().GetDesignator(); }},
  };
  for (Blanks const& row : rows) {
    Reading<> reading(with(row.tag, row.attribute, "  a \t b\n "));
    ASSERT_EQ(0, reading.error) << row.tag << " " << row.attribute;
    EXPECT_EQ(row.kept ? "  a \t b\n " : "a b", row.value(reading.top)) << row.tag << " " << row.attribute;
  }
}

TEST(WhiteSpace, AroundAVersionDoesNotMatter) {
  Reading<TaskData> reading(with("ISO11783_TaskData", "VersionMajor", " 4 "));
  EXPECT_EQ(0, reading.error);
  EXPECT_EQ("4", reading.top.GetVersionMajor());
}

TEST(Texts, ReferencesAreReplaced) {
  Reading<Link> reading(with("LNK", "C", "&lt;&gt;&amp;&quot;&apos;&#65;&#x42;&#xe4;"));
  EXPECT_EQ(0, reading.error);
  EXPECT_EQ("<>&\"'AB\u00e4", reading.top.GetDesignator());
}

// --- Each attribute in its field -------------------------------------------------------------------------

TEST(Fields, OfTaskDataHoldTheirAttributes) {
  Reading<TaskData> reading(good("ISO11783_TaskData"));
  ASSERT_EQ(0, reading.error);
  TaskData const& read = reading.top;
  EXPECT_EQ("4", read.GetVersionMajor());
  EXPECT_EQ("3", read.GetVersionMinor());
  EXPECT_EQ("maker", read.GetManagementSoftwareManufacturer());
  EXPECT_EQ("1.2", read.GetManagementSoftwareVersion());
  EXPECT_EQ("controller", read.GetTaskControllerManufacturer());
  EXPECT_EQ("5.6", read.GetTaskControllerVersion());
  EXPECT_EQ("1", read.GetDataTransferOrigin());
  EXPECT_EQ("en", read.GetLanguage());
}

TEST(Fields, OfLinkListHoldTheirAttributes) {
  Reading<LinkList> reading(good("ISO11783LinkList"));
  ASSERT_EQ(0, reading.error);
  LinkList const& read = reading.top;
  EXPECT_EQ("4", read.GetVersionMajor());
  EXPECT_EQ("3", read.GetVersionMinor());
  EXPECT_EQ("maker", read.GetManagementSoftwareManufacturer());
  EXPECT_EQ("1.2", read.GetManagementSoftwareVersion());
  EXPECT_EQ("controller", read.GetTaskControllerManufacturer());
  EXPECT_EQ("5.6", read.GetTaskControllerVersion());
  EXPECT_EQ("7.8", read.GetFileVersion());
  EXPECT_EQ("2", read.GetDataTransferOrigin());
}

TEST(Fields, OfFileElementsHoldTheirAttributes) {
  Reading<ExternalFileReference> reference(good("XFR"));
  ASSERT_EQ(0, reference.error);
  EXPECT_EQ("CTR00001", reference.top.GetFileName());
  EXPECT_EQ("1", reference.top.GetType());

  Reading<AttachedFile> file(good("AFE"));
  ASSERT_EQ(0, file.error);
  EXPECT_EQ("ABCDEFGH.XML", file.top.GetFileNameWithExtension());
  EXPECT_EQ("2", file.top.GetPreserve());
  EXPECT_EQ("4012345000009", file.top.GetManufacturerGLN());
  EXPECT_EQ(7, file.top.GetType());
  EXPECT_EQ("9.1", file.top.GetFileVersion());
  EXPECT_EQ(4096u, file.top.GetFileLength());
}

TEST(Fields, OfTaskControllerCapabilitiesHoldTheirAttributes) {
  Reading<TaskControllerCapabilities> reading(good("TCC"));
  ASSERT_EQ(0, reading.error);
  TaskControllerCapabilities const& read = reading.top;
  EXPECT_EQ("A00086000C8000FF", read.GetControlFunctionName().get_as_hex_string());
  EXPECT_EQ("controller", read.GetDesignator());
  EXPECT_EQ("3", read.GetVersionNumber());
  EXPECT_EQ(31, read.GetProvidedCapabilites());
  EXPECT_EQ(2, read.GetNumberOfBoomsSectionControl());
  EXPECT_EQ(32, read.GetNumberOfSectionsSectionControl());
  EXPECT_EQ(16, read.GetNumberOfControlChannels());
}

TEST(Fields, OfP917MetadataHoldTheirAttributes) {
  Reading<P917Metadata> reading(good("P917_Metadata"));
  ASSERT_EQ(0, reading.error);
  P917Metadata const& read = reading.top;
  EXPECT_EQ("1", read.GetVersion());
  EXPECT_TRUE(read.GetCloudJob());
  EXPECT_EQ("API", read.GetOriginationId());
  EXPECT_EQ("4", read.GetJobStatusId());
  EXPECT_FALSE(Reading<P917Metadata>(with("P917_Metadata", "CloudJob", "0")).top.GetCloudJob());
  EXPECT_TRUE(Reading<P917Metadata>(with("P917_Metadata", "CloudJob", "1")).top.GetCloudJob());
  EXPECT_FALSE(Reading<P917Metadata>(with("P917_Metadata", "CloudJob", "false")).top.GetCloudJob());
}

TEST(Fields, OfLinksHoldTheirAttributes) {
  Reading<LinkGroup> group(good("LGP"));
  ASSERT_EQ(0, group.error);
  EXPECT_EQ("LGP1", group.top.GetId());
  EXPECT_EQ("1", group.top.GetType());
  EXPECT_EQ("gln", group.top.GetManufacturerGLN());
  EXPECT_EQ("space", group.top.GetNamespace());
  EXPECT_EQ("group", group.top.GetDesignator());

  Reading<Link> link(good("LNK"));
  ASSERT_EQ(0, link.error);
  EXPECT_EQ("TSK1", link.top.GetObjectIdRef());
  EXPECT_EQ("value", link.top.GetValue());
  EXPECT_EQ("link", link.top.GetDesignator());
}

TEST(Fields, ThatWereLeftOutAreUnsetAndDefault) {
  Reading<AttachedFile> file("<AFE A=\"ABCDEFGH.XML\" B=\"1\" C=\"\" D=\"1\"/>");
  ASSERT_EQ(0, file.error);
  EXPECT_TRUE(file.top.IssetManufacturerGLN());  // present, though empty
  EXPECT_FALSE(file.top.IssetFileVersion());
  EXPECT_EQ("", file.top.GetFileVersion());
  EXPECT_FALSE(file.top.IssetFileLength());
  EXPECT_EQ(0u, file.top.GetFileLength());
  Reading<P917Metadata> metadata("<P917_Metadata Version=\"\"/>");
  ASSERT_EQ(0, metadata.error);
  EXPECT_FALSE(metadata.top.IssetCloudJob());
  EXPECT_FALSE(metadata.top.GetCloudJob());
  EXPECT_EQ(elmx_enum_none, metadata.top.GetenumJobStatusId());
}

// --- Enumerated fields -----------------------------------------------------------------------------------

template <class X>
struct Enumerated {
  bool (X::*set_code)(elmx_enums);
  elmx_enums (X::*code)() const;
  lmx::elmx_error (X::*set_text)(std::string const&);
  std::string const& (X::*text)() const;
  bool (X::*is_set)() const;
};

template <class X>
void expect_codes(Enumerated<X> const& field, std::map<int, std::string> const& listed) {
  for (int code = -1; code < 30; ++code) {
    SCOPED_TRACE(code);
    X object;
    const auto row = listed.find(code);
    EXPECT_EQ(row != listed.end(), (object.*field.set_code)(static_cast<elmx_enums>(code)));
    EXPECT_EQ(row != listed.end(), (object.*field.is_set)());
    EXPECT_EQ(row != listed.end() ? code : 0, static_cast<int>((object.*field.code)()));
    EXPECT_EQ(row != listed.end() ? row->second : "", (object.*field.text)());
  }
  X object;
  (object.*field.set_text)("kept");
  EXPECT_EQ(elmx_enum_none, (object.*field.code)());
  EXPECT_FALSE((object.*field.set_code)(elmx_enum_17));
  EXPECT_EQ("kept", (object.*field.text)());
}

TEST(EnumeratedFields, TakeTheCodesOfTheirOwnTextsAlone) {
  const std::map<int, std::string> one = {{1, "1"}};
  const std::map<int, std::string> one_to_two = {{1, "1"}, {2, "2"}};
  const std::map<int, std::string> one_to_four = {{1, "1"}, {2, "2"}, {7, "3"}, {8, "4"}};
  const std::map<int, std::string> zero_to_four = {{17, "0"}, {1, "1"}, {2, "2"}, {7, "3"}, {8, "4"}};
  const std::map<int, std::string> origins = {{3, "FC"}, {4, "USB"}, {5, "API"}, {6, "PORTAL"}};
  expect_codes<ExternalFileReference>(
      {&ExternalFileReference::SetenumType, &ExternalFileReference::GetenumType,
       &ExternalFileReference::SetType, &ExternalFileReference::GetType, &ExternalFileReference::IssetType},
      one);
  expect_codes<AttachedFile>(
      {&AttachedFile::SetenumPreserve, &AttachedFile::GetenumPreserve, &AttachedFile::SetPreserve,
       &AttachedFile::GetPreserve, &AttachedFile::IssetPreserve},
      one_to_two);
  expect_codes<TaskData>({&TaskData::SetenumDataTransferOrigin, &TaskData::GetenumDataTransferOrigin,
                          &TaskData::SetDataTransferOrigin, &TaskData::GetDataTransferOrigin,
                          &TaskData::IssetDataTransferOrigin},
                         one_to_two);
  expect_codes<LinkList>({&LinkList::SetenumDataTransferOrigin, &LinkList::GetenumDataTransferOrigin,
                          &LinkList::SetDataTransferOrigin, &LinkList::GetDataTransferOrigin,
                          &LinkList::IssetDataTransferOrigin},
                         one_to_two);
  expect_codes<LinkGroup>({&LinkGroup::SetenumType, &LinkGroup::GetenumType, &LinkGroup::SetType,
                           &LinkGroup::GetType, &LinkGroup::IssetType},
                          one_to_four);
  expect_codes<P917Metadata>(
      {&P917Metadata::SetenumJobStatusId, &P917Metadata::GetenumJobStatusId, &P917Metadata::SetJobStatusId,
       &P917Metadata::GetJobStatusId, &P917Metadata::IssetJobStatusId},
      one_to_four);
  expect_codes<P917Metadata>(
      {&P917Metadata::SetenumOriginationId, &P917Metadata::GetenumOriginationId,
       &P917Metadata::SetOriginationId, &P917Metadata::GetOriginationId, &P917Metadata::IssetOriginationId},
      origins);
  expect_codes<TaskControllerCapabilities>(
      {&TaskControllerCapabilities::SetenumVersionNumber, &TaskControllerCapabilities::GetenumVersionNumber,
       &TaskControllerCapabilities::SetVersionNumber, &TaskControllerCapabilities::GetVersionNumber,
       &TaskControllerCapabilities::IssetVersionNumber},
      zero_to_four);
}

// --- Name tables -----------------------------------------------------------------------------------------

using Events = std::vector<std::pair<std::string, int>>;

Events events(lmx::s_event_map const* row) {
  Events found;
  for (; row->mp_name != nullptr; ++row) {
    EXPECT_EQ(1, row->m_ns_id) << row->mp_name;
    EXPECT_EQ(std::string(row->mp_name).size(), row->m_length) << row->mp_name;
    found.emplace_back(row->mp_name, row->m_event);
  }
  return found;
}

std::vector<std::string> names(lmx::s_known_elements const* row) {
  std::vector<std::string> found;
  for (; row->mp_name != nullptr; ++row) {
    EXPECT_EQ(1, row->m_ns_id) << row->mp_name;
    EXPECT_EQ(std::string(row->mp_name).size(), row->m_length) << row->mp_name;
    found.emplace_back(row->mp_name);
  }
  return found;
}

TEST(NameTables, GiveEachAttributeItsNumber) {
  EXPECT_EQ((Events{{"VersionMajor", 22},
                    {"VersionMinor", 23},
                    {"ManagementSoftwareManufacturer", 24},
                    {"ManagementSoftwareVersion", 25},
                    {"TaskControllerManufacturer", 26},
                    {"TaskControllerVersion", 27},
                    {"DataTransferOrigin", 28},
                    {"lang", 29}}),
            events(TaskData::attr_event_map));
  EXPECT_EQ(Events{}, events(ExternalFileContent::attr_event_map));
  EXPECT_EQ((Events{{"A", 276}, {"B", 18}}), events(ExternalFileReference::attr_event_map));
  EXPECT_EQ((Events{{"A", 15}, {"B", 16}, {"C", 17}, {"D", 18}, {"E", 19}, {"F", 20}}),
            events(AttachedFile::attr_event_map));
  EXPECT_EQ((Events{{"A", 265}, {"B", 45}, {"C", 266}, {"D", 267}, {"E", 268}, {"F", 269}, {"G", 270}}),
            events(TaskControllerCapabilities::attr_event_map));
  EXPECT_EQ((Events{{"Version", 31}, {"CloudJob", 32}, {"originationId", 33}, {"jobStatusId", 34}}),
            events(P917Metadata::attr_event_map));
  EXPECT_EQ((Events{{"VersionMajor", 22},
                    {"VersionMinor", 23},
                    {"ManagementSoftwareManufacturer", 24},
                    {"ManagementSoftwareVersion", 25},
                    {"TaskControllerManufacturer", 26},
                    {"TaskControllerVersion", 27},
                    {"FileVersion", 19},
                    {"DataTransferOrigin", 28}}),
            events(LinkList::attr_event_map));
  EXPECT_EQ((Events{{"A", 44}, {"B", 18}, {"C", 17}, {"D", 280}, {"E", 45}}),
            events(LinkGroup::attr_event_map));
  EXPECT_EQ((Events{{"A", 282}, {"B", 99}, {"C", 45}}), events(Link::attr_event_map));
}

TEST(NameTables, OfLinksNameTheirOwnChildren) {
  EXPECT_EQ((Events{{"LGP", 279}}), events(LinkList::elem_event_map));
  EXPECT_EQ((Events{{"LGP", 279}}), events(InnerLinkList::elem_event_map));
  EXPECT_EQ((Events{{"LNK", 281}}), events(LinkGroup::elem_event_map));
  EXPECT_EQ((Events{{"LNK", 281}}), events(InnerLinkGroup::elem_event_map));
  EXPECT_EQ(std::vector<std::string>{"LGP"}, names(LinkList::known_elements));
  EXPECT_EQ(std::vector<std::string>{"LNK"}, names(LinkGroup::known_elements));
}

TEST(NameTables, OfElementsWithoutChildrenAreEmpty) {
  for (lmx::s_event_map const* const table :
       {ExternalFileReference::elem_event_map, AttachedFile::elem_event_map, P917Metadata::elem_event_map,
        TaskControllerCapabilities::elem_event_map, Link::elem_event_map}) {
    EXPECT_EQ(Events{}, events(table));
  }
  for (lmx::s_known_elements const* const table :
       {ExternalFileReference::known_elements, AttachedFile::known_elements, P917Metadata::known_elements,
        TaskControllerCapabilities::known_elements, Link::known_elements}) {
    EXPECT_TRUE(names(table).empty());
  }
}

std::vector<std::string> names(Events const& events) {
  std::vector<std::string> found;
  for (auto const& event : events) found.push_back(event.first);
  return found;
}

TEST(NameTables, OfTheMainDocumentNameAllTopLevelElements) {
  const Events children = {{"P917_Metadata", 30}, {"P917_Questions", 35},
                           {"AFE", 14},           {"BSN", 43},
                           {"CCT", 49},           {"CCG", 53},
                           {"CLD", 54},           {"CTP", 60},
                           {"CPC", 64},           {"CTR", 67},
                           {"DVC", 85},           {"FRM", 109},
                           {"OTQ", 111},          {"PFD", 112},
                           {"PDT", 160},          {"PGP", 174},
                           {"TSK", 175},          {"TCC", 264},
                           {"VPN", 271},          {"WKR", 273},
                           {"XFR", 275}};
  EXPECT_EQ(children, events(InnerTaskData::elem_event_map));
  EXPECT_EQ(children, events(TaskData::elem_event_map));
  EXPECT_EQ(names(children), names(TaskData::known_elements));
}

TEST(NameTables, OfAnExternalFileHaveNoneOfTheFrame) {
  const Events children = {{"BSN", 43},  {"CCT", 49},  {"CCG", 53},  {"CLD", 54},  {"CTP", 60},  {"CPC", 64},
                           {"CTR", 67},  {"DVC", 85},  {"FRM", 109}, {"OTQ", 111}, {"PFD", 112}, {"PDT", 160},
                           {"PGP", 174}, {"TSK", 175}, {"VPN", 271}, {"WKR", 273}};
  EXPECT_EQ(children, events(InnerExternalFileContent::elem_event_map));
  EXPECT_EQ(children, events(ExternalFileContent::elem_event_map));
  EXPECT_EQ(names(children), names(ExternalFileContent::known_elements));
}

// A polygon has one number as a part of a field or a zone, another as the boundary of guidance.
TEST(NameTables, GivePolygonsTheNumberOfWhatTheyStandIn) {
  struct Row {
    char const* caption;
    lmx::s_event_map const *of_class, *of_wrapper;
    int event;
  };
  for (Row const& row :
       {Row{"PFD", Field::elem_event_map, InnerField::elem_event_map, 134},
        Row{"TZN", TreatmentZone::elem_event_map, InnerTreatmentZone::elem_event_map, 134},
        Row{"GGP", GuidanceGroup::elem_event_map, InnerGuidanceGroup::elem_event_map, 159},
        Row{"GPN", GuidancePattern::elem_event_map, InnerGuidancePattern::elem_event_map, 159}}) {
    const Events of_class = events(row.of_class);
    EXPECT_EQ(1, std::count(of_class.begin(), of_class.end(), std::make_pair(std::string("PLN"), row.event)))
        << row.caption;
    EXPECT_EQ(of_class, events(row.of_wrapper)) << row.caption;
  }
}

TEST(NameTables, GiveACommentOneNumberAsAnAttributeAndAnotherAsAnElement) {
  const std::pair<std::string, int> attribute("P917_comment", 82), element("P917_comment", 263);
  for (lmx::s_event_map const* table :
       {Grower::attr_event_map, Farm::attr_event_map, Field::attr_event_map}) {
    const Events found = events(table);
    EXPECT_EQ(1, std::count(found.begin(), found.end(), attribute));
  }
  for (lmx::s_event_map const* table :
       {Task::elem_event_map, InnerTask::elem_event_map, Root::elem_event_map}) {
    const Events found = events(table);
    EXPECT_EQ(1, std::count(found.begin(), found.end(), element));
  }
}

TEST(NameTables, OfRootNameEveryElement) {
  const Events alternatives = {{"AFE", 14},
                               {"ISO11783_TaskData", 21},
                               {"P917_Metadata", 30},
                               {"TCC", 264},
                               {"XFR", 275},
                               {"ASP", 214},
                               {"BSN", 43},
                               {"CCT", 49},
                               {"CCG", 53},
                               {"CCL", 52},
                               {"CLD", 54},
                               {"CRG", 56},
                               {"CAN", 234},
                               {"CNN", 219},
                               {"CAT", 248},
                               {"CTP", 60},
                               {"CVT", 62},
                               {"CPC", 64},
                               {"CTR", 67},
                               {"DLT", 227},
                               {"DLV", 204},
                               {"DVC", 85},
                               {"DAN", 215},
                               {"DET", 91},
                               {"DOR", 95},
                               {"DPD", 101},
                               {"DPT", 97},
                               {"DVP", 104},
                               {"FRM", 109},
                               {"GRD", 240},
                               {"GAN", 256},
                               {"GGP", 145},
                               {"GPN", 147},
                               {"GST", 258},
                               {"LSG", 138},
                               {"OTQ", 111},
                               {"OTR", 65},
                               {"OTP", 210},
                               {"PFD", 112},
                               {"PNT", 141},
                               {"PLN", 134},
                               {"PTN", 198},
                               {"PDV", 185},
                               {"PDT", 160},
                               {"PAN", 224},
                               {"PGP", 174},
                               {"PRN", 171},
                               {"TSK", 175},
                               {"TIM", 194},
                               {"TLG", 238},
                               {"TZN", 183},
                               {"VPN", 271},
                               {"WKR", 273},
                               {"WAN", 212},
                               {"P917_comment", 263},
                               {"P917_Questions", 35},
                               {"P917_Question", 36},
                               {"XFC", 277},
                               {"ISO11783LinkList", 278},
                               {"LNK", 281},
                               {"LGP", 279}};
  ASSERT_EQ(61u, alternatives.size());
  EXPECT_EQ(alternatives, events(Root::elem_event_map));
  EXPECT_EQ(names(alternatives), names(Root::known_elements));
}

// --- Children --------------------------------------------------------------------------------------------

TEST(Children, AreHeldInOneWrapperForEachRunOfLikeSiblings) {
  Reading<TaskData> reading(task_data(good("AFE") + good("AFE") + good("XFR") + good("AFE") +
                                      good("P917_Metadata") + good("P917_Metadata") + good("TCC")));
  ASSERT_EQ(0, reading.error);
  TaskData const& read = reading.top;
  std::vector<int> chosen;
  for (std::size_t i = 0; i != read.SizeInnerTaskData(); ++i)
    chosen.push_back(read.GetInnerTaskData(i).chosen);
  EXPECT_EQ((std::vector<int>{2, 20, 2, 0, 0, 17}), chosen);
  EXPECT_EQ(2u, read.GetInnerTaskData(0).SizeAttachedFile());
  EXPECT_EQ(1u, read.GetInnerTaskData(1).SizeExternalFileReference());
  EXPECT_EQ(1u, read.GetInnerTaskData(2).SizeAttachedFile());
  EXPECT_EQ("API", read.GetInnerTaskData(4).GetP917Metadata().GetOriginationId());
  EXPECT_EQ("controller", read.GetInnerTaskData(5).GetTaskControllerCapabilities().GetDesignator());
}

TEST(Children, ThatAreUnknownVanishAndDoNotBreakARun) {
  Reading<TaskData> reading(
      task_data("<Foo><AFE/></Foo>" + good("AFE") + "<Foo x='1'/><Bar/>" + good("AFE") + "<LNK/>"));
  EXPECT_EQ(0, reading.error);
  ASSERT_EQ(1u, reading.top.SizeInnerTaskData());
  EXPECT_EQ(2u, reading.top.GetInnerTaskData(0).SizeAttachedFile());
  EXPECT_EQ("ISO11783_TaskData/Foo, ISO11783_TaskData/Foo, ISO11783_TaskData/Bar, ISO11783_TaskData/LNK",
            reading.reader.unknown());
  EXPECT_EQ("", reading.reader.reports());
}

TEST(Children, OfTheMainDocumentAreUnknownInAnExternalFile) {
  Reading<ExternalFileContent> reading("<XFC>" + good("XFR") + good("AFE") + good("TCC") + "</XFC>");
  EXPECT_EQ(0, reading.error);
  EXPECT_EQ(0u, reading.top.SizeInnerExternalFileContent());
  EXPECT_EQ("XFC/XFR, XFC/AFE, XFC/TCC", reading.reader.unknown());
  EXPECT_TRUE(reading.reader.getExternalFileReferenceContainer().empty());
  EXPECT_TRUE(reading.reader.getAttachedFileContainer().empty());
}

TEST(Children, OfALinkListAreGroupsOfLinks) {
  const std::string group = "<LGP A=\"LGP1\" B=\"1\">" + good("LNK") + good("LNK") + "</LGP>";
  Reading<LinkList> reading(header("ISO11783LinkList") + group + "<LGP A=\"LGP2\" B=\"2\"/>" + group +
                            "</ISO11783LinkList>");
  ASSERT_EQ(0, reading.error);
  ASSERT_EQ(1u, reading.top.SizeInnerLinkList());
  InnerLinkList const& groups = reading.top.GetInnerLinkList(0);
  EXPECT_EQ(0, groups.chosen);
  ASSERT_EQ(3u, groups.SizeLinkGroup());
  EXPECT_EQ("LGP2", groups.GetLinkGroup(1).GetId());
  EXPECT_EQ(0u, groups.GetLinkGroup(1).SizeInnerLinkGroup());
  ASSERT_EQ(1u, groups.GetLinkGroup(2).SizeInnerLinkGroup());
  InnerLinkGroup const& links = groups.GetLinkGroup(2).GetInnerLinkGroup(0);
  EXPECT_EQ(0, links.chosen);
  EXPECT_EQ(2u, links.SizeLink());
  EXPECT_EQ("value", links.GetLink(1).GetValue());
}

TEST(Children, OfAFailedElementStayAsFarAsTheyWereRead) {
  Reading<TaskData> reading(task_data(good("AFE") + good("XFR") + with("AFE", "B", "9") + good("AFE")));
  EXPECT_EQ(38, reading.error);
  ASSERT_EQ(3u, reading.top.SizeInnerTaskData());
  EXPECT_EQ("9", reading.top.GetInnerTaskData(2).GetAttachedFile(0).GetPreserve());
  EXPECT_EQ(1u, reading.top.GetInnerTaskData(2).SizeAttachedFile());
  reading.top.reset();
  EXPECT_EQ(0u, reading.top.SizeInnerTaskData());
  EXPECT_FALSE(reading.top.IssetVersionMajor());
}

TEST(Children, MayBeMany) {
  std::string links;
  for (std::size_t i = 0; i != 5000; ++i)
    links += "<LNK A=\"TSK" + std::to_string(i) + "\" B=\"" + x(i % 40) + "\"/>\n";
  Reading<LinkGroup> reading("<LGP A=\"LGP1\" B=\"1\">" + links + "</LGP>");
  ASSERT_EQ(0, reading.error);
  ASSERT_EQ(5000u, reading.top.GetInnerLinkGroup(0).SizeLink());
  for (std::size_t i = 0; i != 5000; ++i) {
    EXPECT_EQ("TSK" + std::to_string(i), reading.top.GetInnerLinkGroup(0).GetLink(i).GetObjectIdRef());
    EXPECT_EQ(i % 40, reading.top.GetInnerLinkGroup(0).GetLink(i).GetValue().size());
  }
}

}  // namespace
