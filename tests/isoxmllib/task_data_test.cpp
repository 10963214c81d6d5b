// The elements that frame a transfer set: texts that are odd but good, and all that is told of bad ones;
// which white space is kept; and how the children are kept. What holds for every attribute alike,
// attributes_test tries.
//
// Every text of the tables is read twice. A strict reader gives the first report as its result; one that
// tolerates everything sees all of them, in order, and keeps the value.
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/recording_reader.h"

namespace {

// Every attribute of each element, with a good text.
std::map<std::string, std::string> const attributes_of = {
    {"ISO11783_TaskData",
     "VersionMajor='4' VersionMinor='3' ManagementSoftwareManufacturer='maker' "
     "ManagementSoftwareVersion='1.2' "
     "TaskControllerManufacturer='controller' TaskControllerVersion='5.6' DataTransferOrigin='1' lang='en'"},
    {"XFR", "A='CTR00001' B='1'"},
    {"AFE", "A='ABCDEFGH.XML' B='2' C='4012345000009' D='7' E='9.1' F='4096'"},
    {"TCC", "A='A00086000C8000FF' B='controller' C='3' D='31' E='2' F='32' G='16'"},
    {"P917_Metadata", "Version='1' CloudJob='true' originationId='API' jobStatusId='4'"},
    {"ISO11783LinkList",
     "VersionMajor='4' VersionMinor='3' ManagementSoftwareManufacturer='maker' "
     "ManagementSoftwareVersion='1.2' "
     "TaskControllerManufacturer='controller' TaskControllerVersion='5.6' FileVersion='7.8' "
     "DataTransferOrigin='2'"},
    {"LGP", "A='LGP1' B='1' C='gln' D='space' E='group'"},
    {"LNK", "A='TSK1' B='value' C='link'"},
};

std::string good(std::string const& tag) { return "<" + tag + " " + attributes_of.at(tag) + "/>"; }

// A good element but for the text of one attribute.
std::string with(std::string const& tag, std::string const& name, std::string const& text) {
  std::string element = good(tag);
  const std::size_t begin = element.find(" " + name + "='") + name.size() + 3;
  return element.replace(begin, element.find("'", begin) - begin, text);
}

std::string header(std::string const& tag) { return "<" + tag + " " + attributes_of.at(tag) + ">"; }

std::string task_data(std::string const& children) {
  return header("ISO11783_TaskData") + children + "</ISO11783_TaskData>";
}

TEST(Texts, AToleratedSecondValueReplacesTheFirst) {
  Reading<Link> reading("<LNK A=\"TSK1\" B=\"first\" B=\"second\"/>", tolerant());
  EXPECT_EQ(0, reading.error);
  EXPECT_EQ("ATTRIBUTE_ALREADY_READ @B", reading.reader.reports());
  EXPECT_EQ("second", reading.top.GetValue());
}

// --- Texts beyond the limits that every attribute is tried at --------------------------------------------

struct Text {
  std::string tag, attribute, text;
  std::vector<lmx::elmx_error> codes;  // what a reader sees that tolerates everything
};

std::string x(std::size_t count) { return std::string(count, 'x'); }

void expect_texts(std::vector<Text> const& rows) {
  for (Text const& row : rows) {
    SCOPED_TRACE(row.tag + " " + row.attribute + " \"" + row.text + "\"");
    const std::string bytes = with(row.tag, row.attribute, row.text);
    EXPECT_EQ(row.codes.empty() ? lmx::ELMX_OK : row.codes.front(), Reading<>(bytes).error);
    Reading<> reading(bytes, tolerant());
    EXPECT_EQ(0, reading.error);
    std::string reports;
    for (const lmx::elmx_error code : row.codes)
      reports += (reports.empty() ? "" : ", ") + report(code, row.attribute);
    EXPECT_EQ(reports, reading.reader.reports());
  }
}

TEST(Texts, AreTakenInEveryFormThatTheirRuleAllows) {
  expect_texts({{"XFR", "A", " CTR00001 ", {}},
                {"AFE", "A", "12345678.999", {}},
                {"AFE", "A", "ABCDEFGH/XML", {}},
                {"AFE", "A", "ABCDEFGH\u00e4XML", {}},
                {"AFE", "C", "  " + x(32) + " ", {}},
                {"AFE", "E", " " + x(31), {}},
                {"AFE", "F", "-0", {}},
                {"TCC", "A", "aB00cD00eF00FF00", {}},
                {"LNK", "A", "A.BC", {}},
                {"LNK", "A", "A.BC.D", {}},
                {"LNK", "A", "ABCDEFGHIJ.XML", {}},
                {"P917_Metadata", "CloudJob", " true ", {}}});
}

TEST(Texts, AreRefusedForAnythingElse) {
  constexpr auto too_long = lmx::ELMX_LENGTH_TOO_LONG, too_short = lmx::ELMX_LENGTH_TOO_SHORT,
                 no_match = lmx::ELMX_NO_PATTERN_MATCHED, not_listed = lmx::ELMX_VALUE_NOT_ENUMERATED;
  expect_texts({{"XFR", "A", "CTR0001", {too_short, no_match}},
                {"XFR", "A", "CTR000001", {too_long, no_match}},
                {"XFR", "A", "ctr00001", {no_match}},
                {"XFR", "A", "GGP00001", {no_match}},
                {"XFR", "B", "01", {not_listed}},
                {"XFR", "B", "1 1", {not_listed}},
                {"AFE", "A", "ABCDEFGH.XM.", {no_match}},
                {"AFE", "D", "-0", {lmx::ELMX_VALUE_EXCEEDS_MIN}},
                {"AFE", "D", "", {lmx::ELMX_VALUE_BAD_FORMAT, lmx::ELMX_VALUE_EXCEEDS_MAX}},
                {"AFE", "E", " " + x(32), {too_long}},
                {"LGP", "A", "LGPA23456789012", {too_long, no_match}},
                {"LGP", "A", "LGP--1", {no_match}},
                {"LNK", "A", "DET1", {no_match}},
                {"LNK", "A", "LGP1", {no_match}},
                {"LNK", "A", "A.B", {too_short}},
                {"LNK", "A", "ABCDEFGHIJK.XM", {no_match}},
                {"LNK", "A", "ABCD/XML", {no_match}},
                {"LNK", "A", ".XML", {no_match}}});
}

TEST(Texts, OfABooleanAreTwoWordsAndTwoDigits) {
  const std::map<std::string, bool> rows = {{"true", true}, {"1", true}, {"false", false}, {"0", false}};
  for (auto const& [text, value] : rows) {
    Reading<P917Metadata> reading(with("P917_Metadata", "CloudJob", text));
    EXPECT_EQ(0, reading.error) << text;
    EXPECT_EQ(value, reading.top.GetCloudJob()) << text;
  }
}

TEST(Texts, FileNamesMayHaveAnyCharacterButALineEndForTheDot) {
  Reading<> reading(good("LNK"));
  lmx::c_xml_reader& reader = reading.reader;
  EXPECT_EQ(0, LexicalValidator1(reader, "ABCDEFGH/XML"));
  EXPECT_EQ(0, LexicalValidator1(reader, "ABCDEFGH\tXML"));
  EXPECT_EQ(lmx::ELMX_NO_PATTERN_MATCHED, LexicalValidator1(reader, "ABCDEFGH\nXML"));
  EXPECT_EQ(lmx::ELMX_NO_PATTERN_MATCHED, LexicalValidator1(reader, "ABCDEFGH\rXML"));
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
  EXPECT_EQ(lmx::ELMX_VALUE_NOT_ENUMERATED, strict_reading.error);
  EXPECT_TRUE(strict_reading.top.IssetPreserve());
  EXPECT_EQ("9", strict_reading.top.GetPreserve());

  Reading<AttachedFile> text_failed(with("AFE", "D", "255"));
  EXPECT_EQ(lmx::ELMX_VALUE_EXCEEDS_MAX, text_failed.error);
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
  EXPECT_EQ(lmx::ELMX_VALUE_NOT_ENUMERATED, reading.error);
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
