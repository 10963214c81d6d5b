// What all element classes have in common, and `Root`, through which every document passes: dispatch, items
// of the reports, unknown names, empty elements, copies, and the accessors of children.
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "GenLibrarySupportFiles/lmxtypes.h"
#include "isoxmllib/isoxmllib.h"
#include "support/each_source.h"
#include "support/recording_reader.h"

namespace {

const std::string header =
    "<ISO11783_TaskData VersionMajor='4' VersionMinor='3' ManagementSoftwareManufacturer='m' "
    "ManagementSoftwareVersion='1' DataTransferOrigin='1'>";
const std::string link_header =
    "<ISO11783LinkList VersionMajor='4' VersionMinor='3' ManagementSoftwareManufacturer='m' "
    "ManagementSoftwareVersion='1' DataTransferOrigin='1'>";
const std::string file = "<AFE A='ABCDEFGH.XML' B='1' C='' D='1'/>";
const std::string link = "<LNK A='TSK1' B='v'/>";

// An attached file around `content`.
std::string file_with(std::string const& content) {
  return file.substr(0, file.size() - 2) + ">" + content + "</AFE>";
}

std::string group_with(std::string const& content) { return "<LGP A='LGP1' B='1'>" + content + "</LGP>"; }

template <class X>
constexpr bool is_a_value = std::has_virtual_destructor_v<X>&& std::is_default_constructible_v<X>&&
    std::is_copy_constructible_v<X>&& std::is_copy_assignable_v<X>&& std::is_nothrow_move_constructible_v<X>&&
        std::is_nothrow_move_assignable_v<X>;
static_assert(is_a_value<::Root> && is_a_value<::TaskData> && is_a_value<::InnerTaskData> &&
              is_a_value<::ExternalFileContent> && is_a_value<::ExternalFileReference> &&
              is_a_value<::AttachedFile> && is_a_value<::TaskControllerCapabilities> &&
              is_a_value<::P917Metadata> && is_a_value<::LinkList> && is_a_value<::LinkGroup> &&
              is_a_value<::Link>);
static_assert(std::is_same_v<std::string, lmx::tlmx_unicode_string>);
static_assert(std::is_same_v<std::string const&, decltype(std::declval<Link const&>().GetValue())>);
static_assert(std::is_same_v<lmx::elmx_error, decltype(std::declval<Link&>().SetValue(""))>);
static_assert(std::is_same_v<bool, decltype(std::declval<LinkGroup&>().SetenumType(::elmx_enum_1))>);

// --- Dispatch of the document's first element ------------------------------------------------------------

struct First {
  char const* tag;
  std::string bytes;
  int chosen;
};

TEST(Root, TakesAnyElementAsADocument) {
  const First rows[] = {
      {"AFE", file, 0},
      {"ISO11783_TaskData", header + "</ISO11783_TaskData>", 1},
      {"P917_Metadata", "<P917_Metadata Version='1'/>", 2},
      {"TCC", "<TCC A='A00086000C8000FF' B='' C='3' D='0' E='0' F='0' G='0'/>", 3},
      {"XFR", "<XFR A='CTR00001' B='1'/>", 4},
      {"XFC", "<XFC/>", 57},
      {"ISO11783LinkList", link_header + "</ISO11783LinkList>", 58},
      {"LNK", link, 59},
      {"LGP", group_with(""), 60},
  };
  for (First const& row : rows) {
    Reading<> reading(row.bytes);
    EXPECT_EQ(0, reading.error) << row.tag;
    EXPECT_EQ(row.chosen, reading.top.chosen) << row.tag;
    EXPECT_EQ("", reading.reader.reports());
    EXPECT_EQ("", reading.reader.unknown());
    EXPECT_STREQ("isoxmllib", reading.reader.m_code_file);
    EXPECT_TRUE(reading.reader.m_skip_unknown);
    EXPECT_EQ(nullptr, reading.reader.mp_known_elements);
    EXPECT_TRUE(reading.reader.m_name_stack.empty());
  }
}

TEST(Root, StartsAndEndsWithNothingChosen) {
  Root root;
  EXPECT_EQ(61, root.chosen);
  root.GetLink().SetValue("v");
  EXPECT_EQ(59, root.chosen);
  root.release_choice();
  EXPECT_EQ(61, root.chosen);
  root.GetLinkGroup();
  EXPECT_EQ(60, root.chosen);
  root.reset();
  EXPECT_EQ(61, root.chosen);
  EXPECT_EQ(61, Reading<>("").top.chosen);
}

TEST(Root, SelectKeepsWhatIsChosenAndFreesAnythingElse) {
  Root root;
  root.GetLink().SetValue("kept");
  root.SelectLink();
  EXPECT_EQ("kept", root.GetLink().GetValue());
  root.SelectLinkGroup();
  EXPECT_EQ(60, root.chosen);
  root.SelectLink();
  EXPECT_EQ("", root.GetLink().GetValue());
}

TEST(Root, IsReadByItsConstructor) {
  TempDir directory;
  lmx::xmlReader reader(directory.write("DOCUMENT.XML", group_with(link)).c_str());
  lmx::elmx_error error = lmx::ELMX_UNDEFINED_ERROR;
  const Root root(reader, &error);
  EXPECT_EQ(0, error);
  ASSERT_EQ(60, root.chosen);
  EXPECT_EQ("v", root.GetLinkGroup().GetInnerLinkGroup(0).GetLink(0).GetValue());

  lmx::xmlReader bad(directory.write("BAD.XML", "<LNK A='TSK1'/>").c_str());
  const Root failed(bad, &error);
  EXPECT_EQ(lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, error);
}

TEST(Element, IsReadByItsConstructor) {
  TempDir directory;
  lmx::xmlReader reader(directory.write("DOCUMENT.XML", group_with(link)).c_str());
  lmx::elmx_error error = lmx::ELMX_OK;
  const LinkGroup group(reader, &error);
  EXPECT_EQ(0, error);
  EXPECT_EQ("LGP1", group.GetId());
  lmx::xmlReader other(directory.write("OTHER.XML", link).c_str());
  const LinkGroup none(other, &error);
  EXPECT_EQ(lmx::ELMX_ELEMENT_NOT_FOUND, error);
}

TEST(Element, AsADocumentHasToHaveItsTag) {
  const struct {
    char const* caption;
    std::string bytes;
  } rows[] = {
      {"another element", "<LNK A='LGP1' B='1'></LNK>"},
      {"another case", "<lgp A='LGP1' B='1'></lgp>"},
      {"a longer name", "<LGPX A='LGP1' B='1'></LGPX>"},
      {"a default namespace", "<LGP xmlns='u' A='LGP1' B='1'></LGP>"},
      {"a prefix", "<p:LGP xmlns:p='u' A='LGP1' B='1'></p:LGP>"},
  };
  for (auto const& row : rows) {
    EXPECT_EQ(lmx::ELMX_ELEMENT_NOT_FOUND, Reading<LinkGroup>(row.bytes).error) << row.caption;
    Reading<LinkGroup> reading(row.bytes, tolerate({lmx::ELMX_ELEMENT_NOT_FOUND}));
    EXPECT_EQ(0, reading.error) << row.caption;  // read as if it were the right one
    EXPECT_EQ("LGP1", reading.top.GetId()) << row.caption;
    EXPECT_EQ(0u, reading.reader.reports().find("ELEMENT_NOT_FOUND ")) << row.caption;
  }
  EXPECT_EQ("ELEMENT_NOT_FOUND LNK", Reading<LinkGroup>("<LNK A='LGP1' B='1'/>").reader.reports());
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, Reading<LinkGroup>("").error);
}

TEST(Element, BehindItsStartTagNeedsNoDocument) {
  TempDir directory;
  const std::string unknown = "<LNK A='TSK1' Z='1' B='v'/>";
  RecordingReader reader(directory.write("DOCUMENT.XML", unknown), tolerant());
  lmx::elmx_error error = lmx::ELMX_OK;
  reader.get_element_event(&error, &reader.m_name);
  ASSERT_EQ(0, error);
  ASSERT_TRUE(Root::IsMember(reader));
  Link read;
  EXPECT_EQ(0, read.unmarshal(reader, reader.m_name));
  EXPECT_EQ("v", read.GetValue());
  EXPECT_EQ("UNEXPECTED_ATTRIBUTE Z",
            reader.reports());  // only a document's own start makes unknown names welcome
  EXPECT_EQ(nullptr, reader.mp_known_elements);
  EXPECT_TRUE(reader.m_name_stack.empty());
}

// --- What is reported, in order, and for which item ------------------------------------------------------

struct Story {
  char const* caption;
  std::string bytes;
  std::string reports;  // by a reader that tolerates everything; a strict one sees the first alone
  std::string unknown;
};

void expect_stories(std::vector<Story> const& rows) {
  for (auto const& [caption, bytes, reports, unknown] : rows) {
    Reading<> reading(bytes, tolerant());
    EXPECT_EQ(0, reading.error) << caption;
    EXPECT_EQ(reports, reading.reader.reports()) << caption;
    EXPECT_EQ(unknown, reading.reader.unknown()) << caption;

    Reading<> strict_reading(bytes);
    EXPECT_EQ(first_code(reports), code_name(strict_reading.error)) << caption;
    EXPECT_EQ(reports.substr(0, reports.find(',')), strict_reading.reader.reports()) << caption;
    EXPECT_EQ(strict_reading.error, strict_reading.reader.debug_error().m_code) << caption;
  }
}

TEST(Stories, OfElementsWithoutChildren) {
  expect_stories(
      {{"an unknown child", file_with("<Foo/>"), "BAD_END_OF_ELEMENT AFE", "AFE/Foo"},
       {"a bad tag and an unknown child", "<AFE A='x'><Foo/></AFE>",
        "LENGTH_TOO_SHORT A, NO_PATTERN_MATCHED A, REQUIRED_ATTRIBUTES_MISSING AFE, BAD_END_OF_ELEMENT AFE",
        "AFE/Foo"},
       {"a child known elsewhere", file_with(link), "BAD_END_OF_ELEMENT AFE", "AFE/LNK"},
       {"itself as a child", file_with(file), "BAD_END_OF_ELEMENT AFE", "AFE/AFE"},
       {"text", file_with("text"), "BAD_END_OF_ELEMENT AFE", ""},
       {"text and its ancestors", header + file_with("text") + "</ISO11783_TaskData>",
        "BAD_END_OF_ELEMENT AFE, BAD_END_OF_ELEMENT ISO11783_TaskData", ""},
       {"another end tag", "<LNK A='TSK1' B='v'></LNX>", "BAD_END_OF_ELEMENT LNK", ""},
       {"nothing", file_with(""), "", ""},
       {"white space", file_with(" \r\n\t"), "", ""},
       {"a comment and an instruction", file_with("<!-- a -- b --> <?p i?>\n"), "", ""}});
}

TEST(Stories, OfAttributes) {
  expect_stories(
      {{"several faults in one", "<LNK C='x' A='TSKA23456789012'/>",
        "LENGTH_TOO_LONG A, NO_PATTERN_MATCHED A, REQUIRED_ATTRIBUTES_MISSING LNK", ""},
       {"faults in document order", "<AFE D='0' C='' B='3' A='abcdefgh.xml'/>",
        "VALUE_EXCEEDS_MIN D, VALUE_NOT_ENUMERATED B, NO_PATTERN_MATCHED A", ""},
       {"one taken twice", "<LNK A='TSK1' B='v' A='TSK2'/>", "ATTRIBUTE_ALREADY_READ @A", ""},
       {"one taken three times", "<LNK A='TSK1' B='v' A='TSK2' A='X'/>",
        "ATTRIBUTE_ALREADY_READ @A, ATTRIBUTE_ALREADY_READ @A, LENGTH_TOO_SHORT A, NO_PATTERN_MATCHED A", ""},
       {"unknown ones", "<LNK a='1' A='TSK1' Z='&foo;' B='v'/>", "", "LNK/@a, LNK/@Z"},
       {"a prefix makes it another", "<LNK xmlns:p='u' p:A='x' A='TSK1' B='v'/>", "", "LNK/@p:A"},
       {"a default namespace does not reach attributes", "<p:x xmlns:p='u'/><LNK A='TSK1' B='v'/>", "",
        "p:x"},
       {"of the schema instance namespace",
        "<LNK xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:type='x' xsi:foo='y' A='TSK1' "
        "B='v'/>",
        "", ""}});
}

TEST(Stories, OfChildren) {
  expect_stories(
      {{"nested missing attributes", "<LGP A='LGP1'><LNK A='TSK1'/><LNK B='v'/></LGP>",
        "REQUIRED_ATTRIBUTES_MISSING LGP, REQUIRED_ATTRIBUTES_MISSING LNK, REQUIRED_ATTRIBUTES_MISSING LNK",
        ""},
       {"end of input in an empty body", "<LGP A='LGP1' B='1'>", "UNEXPECTED_EOM LGP, BAD_END_OF_ELEMENT LGP",
        ""},
       {"end of input after a child", "<LGP A='LGP1' B='1'>" + link,
        "UNEXPECTED_EOM LGP, BAD_END_OF_ELEMENT LGP", ""},
       {"end of input two levels deep", header + file,
        "UNEXPECTED_EOM ISO11783_TaskData, BAD_END_OF_ELEMENT ISO11783_TaskData", ""},
       {"another end tag", "<LGP A='LGP1' B='1'></LGX>", "BAD_END_OF_ELEMENT LGP", ""},
       {"text", group_with("text"), "BAD_END_OF_ELEMENT LGP", ""},
       {"text after a child", group_with(link + "text"), "BAD_END_OF_ELEMENT LGP", ""},
       {"an empty CDATA section", group_with("<![CDATA[]]>"), "BAD_END_OF_ELEMENT LGP", ""},
       {"unknown children around known ones", group_with("<a/>" + link + "<b><c/></b>" + link + "<d/>"), "",
        "LGP/a, LGP/b, LGP/d"},
       {"only unknown children", group_with("<a/><b>text</b>"), "", "LGP/a, LGP/b"},
       {"known elsewhere", group_with("<XFR A='CTR00001' B='1'/>"), "", "LGP/XFR"},
       {"another namespace", group_with("<LNK xmlns='u' A='TSK1' B='v'/>"), "", "LGP/LNK"}});
}

TEST(Stories, OfTheFirstElement) {
  expect_stories(
      {{"no element", "", "UNEXPECTED_EOM , UNEXPECTED_COMPLEX_ELEMENT ", ""},
       {"an end tag", "</x>", "UNEXPECTED_COMPLEX_ELEMENT x", ""},
       {"text", " text<LNK/>", "UNEXPECTED_COMPLEX_ELEMENT text", ""},
       {"an unknown one before", "<Foo><LNK/></Foo>" + link, "", "Foo"},
       {"none but an unknown one", "<Foo/>", "UNEXPECTED_EOM , UNEXPECTED_COMPLEX_ELEMENT ", "Foo"}});
}

TEST(Reports, OfWhatCannotBeReadNameTheElementOrAttribute) {
  const struct {
    char const* caption;
    std::string bytes, report;
  } rows[] = {
      {"an undeclared entity in an attribute", "<LNK A='TSK1' B='&foo;'/>",
       "UNABLE_TO_READ_ATTRIBUTE_VALUE @B"},
      {"a child's attribute without a quote", group_with("<LNK A=TSK1/>"), "NOT_WELL_FORMED LGP"},
      {"a second child's attribute without a quote", group_with(link + "<LNK A=TSK1/>"),
       "NOT_WELL_FORMED LGP"},
      {"a stray character in a start tag", "<LNK A='TSK1' ; B='v'/>", "NOT_WELL_FORMED "},
      {"an unknown child without an end", group_with("<Foo>"), "BADLY_FORMED LGP"},
      {"an unknown child with another's end", group_with(link + "<Foo><Bar></Foo></Bar>"),
       "BADLY_FORMED LGP"},
  };
  for (auto const& row : rows) {
    Reading<> reading(row.bytes);
    EXPECT_EQ(first_code(row.report), code_name(reading.error)) << row.caption;
    EXPECT_EQ(row.report, reading.reader.reports()) << row.caption;
  }
}

TEST(Reports, EndWithTheFirstThatTheHostDoesNotTolerate) {
  Reading<> reading("<AFE A='x'><Foo/></AFE>",
                    tolerate({lmx::ELMX_LENGTH_TOO_SHORT, lmx::ELMX_NO_PATTERN_MATCHED,
                              lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING}));
  EXPECT_EQ(lmx::ELMX_BAD_END_OF_ELEMENT, reading.error);
  EXPECT_EQ(
      "LENGTH_TOO_SHORT A, NO_PATTERN_MATCHED A, REQUIRED_ATTRIBUTES_MISSING AFE, BAD_END_OF_ELEMENT AFE",
      reading.reader.reports());
  EXPECT_EQ(lmx::ELMX_BAD_END_OF_ELEMENT, reading.reader.debug_error().m_code);
  EXPECT_EQ(lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING,
            Reading<>("<AFE A='x'><Foo/></AFE>",
                      tolerate({lmx::ELMX_LENGTH_TOO_SHORT, lmx::ELMX_NO_PATTERN_MATCHED}))
                .error);
}

TEST(Reports, AreWhatTheHostReads) {
  Reading<> reading("<LGP A='LGP1' B='1'>\n<LNK A='TSK1'/>\n</LGP>");
  EXPECT_EQ(lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, reading.error);
  const std::string text = reading.reader.get_error_message();
  EXPECT_EQ(
      0u,
      text.find("Error: Required attribute(s) missing\nItem: LNK\nProgram file: isoxmllib\nProgram line: "));
  EXPECT_NE(std::string::npos, text.find("\nXML line: 2\n"));
}

// --- Elements that may be empty --------------------------------------------------------------------------

TEST(EmptyElement, IsGoodForEachClassWithoutMandatoryChildren) {
  const struct {
    std::string start, tag;
  } rows[] = {{header, "ISO11783_TaskData"},
              {"<XFC>", "XFC"},
              {link_header, "ISO11783LinkList"},
              {"<LGP A='LGP1' B='1'>", "LGP"}};
  for (auto const& row : rows) {
    EXPECT_EQ(0, Reading<>(row.start.substr(0, row.start.size() - 1) + "/>").error) << row.tag;
    for (char const* const content :
         {"", " \n ", "<!-- c -->", "<?p i?>", "<Foo/>", "<Foo><Bar/></Foo> <!-- c -->"}) {
      Reading<> reading(row.start + content + "</" + row.tag + ">");
      EXPECT_EQ(0, reading.error) << row.tag << content;
      EXPECT_EQ("", reading.reader.reports());
    }
  }
}

// A class with children, reduced to its one switch.
class ComplexHelper : public lmx::c_unmarshal_helper {
 public:
  using c_unmarshal_helper::c_unmarshal_helper;
  bool unmarshal_complex_body(lmx::elmx_error* error) override {
    *error = lmx::ELMX_OK;
    return true;
  }
};

TEST(EmptyElement, IsRefusedWhereItsClassDoesNotAllowIt) {
  const struct {
    char const* bytes;
    bool is_allowed;
    char const* tolerant;
  } rows[] = {
      // Behind "/>" no name is left to compare.
      {"<X/>", false, "UNEXPECTED_EMPTY_ELEMENT X, BAD_END_OF_ELEMENT X"},
      {"<X></X>", false, "UNEXPECTED_EMPTY_ELEMENT X"},
      {"<X> <!-- c --> </X>", false, "UNEXPECTED_EMPTY_ELEMENT X"},
      {"<X/>", true, ""},
      {"<X></X>", true, ""},
      {"<X> <!-- c --> </X>", true, ""},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.bytes);
    for (const bool is_tolerant : {false, true}) {
      with_each_source(row.bytes, [&](lmx::c_read& read) {
        Recording<lmx::c_xml_reader> reader(read);
        reader.is_tolerated = is_tolerant ? tolerant() : strict();
        lmx::elmx_error error = lmx::ELMX_OK;
        reader.get_element_event(&error, &reader.m_name);
        ComplexHelper helper(reader);
        helper.m_empty_allowed = row.is_allowed;
        EXPECT_EQ(is_tolerant || row.is_allowed ? lmx::ELMX_OK : lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT,
                  helper.unmarshal_complex_content("test", 1));
        EXPECT_EQ(is_tolerant || row.is_allowed ? row.tolerant : "UNEXPECTED_EMPTY_ELEMENT X",
                  reader.reports());
      });
    }
  }
}

// --- Membership ------------------------------------------------------------------------------------------

TEST(Membership, PutsTheEventOfAStrangerBack) {
  TempDir directory;
  lmx::xmlReader reader(directory.write("DOCUMENT.XML", link).c_str());
  EXPECT_FALSE(Root::IsMember(reader));  // nothing read yet
  EXPECT_FALSE(InnerLinkGroup::IsMember(reader));
  EXPECT_EQ(lmx::EXE_EOM, reader.m_event);

  lmx::elmx_error error = lmx::ELMX_OK;
  reader.get_element_event(&error, &reader.m_name);
  ASSERT_EQ(lmx::EXE_TOKEN, reader.m_event);
  EXPECT_FALSE(InnerLinkList::IsMember(reader));
  EXPECT_EQ(lmx::EXE_TOKEN, reader.m_event);
  EXPECT_FALSE(InnerExternalFileContent::IsMember(reader));
  EXPECT_EQ(lmx::EXE_TOKEN, reader.m_event);
  EXPECT_TRUE(InnerLinkGroup::IsMember(reader));
  EXPECT_EQ(281, reader.m_event);
  EXPECT_FALSE(InnerTaskData::IsMember(reader));
  EXPECT_EQ(281, reader.m_event);
  EXPECT_TRUE(Root::IsMember(reader));
  reader.m_event = lmx::EXE_ELEMENT_END;
  EXPECT_FALSE(Root::IsMember(reader));
  EXPECT_EQ(lmx::EXE_ELEMENT_END, reader.m_event);
}

TEST(Membership, OfNoAlternativeReadsNothing) {
  TempDir directory;
  RecordingReader reader(directory.write("DOCUMENT.XML", "<LGP A='LGP1' B='1'/>"), strict());
  lmx::elmx_error error = lmx::ELMX_OK;
  reader.get_element_event(&error, &reader.m_name);
  InnerLinkGroup wrapper;
  EXPECT_TRUE(wrapper.unmarshal(reader, &error));
  EXPECT_EQ(0, error);
  EXPECT_EQ(InnerLinkGroup::NothingChosen, wrapper.chosen);
  EXPECT_EQ("", reader.reports());
  LinkGroup group;
  EXPECT_EQ(0, group.unmarshal(reader, reader.m_name));  // still there to be read
}

// What a wrapper makes of a start tag that is none of its alternatives' when a host hands it one: nothing,
// unless its run must not be empty.
template <class Inner>
void expect_of_a_stranger(char const* name, std::string const& reports) {
  SCOPED_TRACE(name);
  TempDir directory;
  const std::string path = directory.write("DOCUMENT.XML", header + "</ISO11783_TaskData>");
  for (const bool is_tolerant : {false, true}) {
    RecordingReader reader(path, is_tolerant ? tolerant() : strict());
    lmx::elmx_error error = lmx::ELMX_OK;
    reader.get_element_event(&error, &reader.m_name);
    Inner wrapper;
    EXPECT_EQ(is_tolerant || reports.empty(), wrapper.unmarshal(reader, &error));
    EXPECT_EQ(is_tolerant ? "OK" : first_code(reports), code_name(error));
    EXPECT_EQ(reports, reader.reports());
    EXPECT_EQ(Inner::NothingChosen, wrapper.chosen);
    TaskData data;
    EXPECT_EQ(0, data.unmarshal(reader, reader.m_name)) << "still there to be read";
  }
}

TEST(Wrapper, RefusesAStrangerOnlyWhereItsRunMustNotBeEmpty) {
#define OF_A_STRANGER(X, reports) expect_of_a_stranger<Inner##X>(#X, reports)
  OF_A_STRANGER(ColourLegend, "UNEXPECTED_COMPLEX_ELEMENT CLD");
  OF_A_STRANGER(LineString, "UNEXPECTED_COMPLEX_ELEMENT LSG");
  OF_A_STRANGER(Polygon, "UNEXPECTED_COMPLEX_ELEMENT PLN");
  OF_A_STRANGER(TaskData, "");
  OF_A_STRANGER(ExternalFileContent, "");
  OF_A_STRANGER(LinkList, "");
  OF_A_STRANGER(LinkGroup, "");
  OF_A_STRANGER(Product, "");
  OF_A_STRANGER(CropType, "");
  OF_A_STRANGER(CulturalPractice, "");
  OF_A_STRANGER(CodedComment, "");
  OF_A_STRANGER(Field, "");
  OF_A_STRANGER(GuidanceGroup, "");
  OF_A_STRANGER(GuidancePattern, "");
  OF_A_STRANGER(GuidanceAllocation, "");
  OF_A_STRANGER(GuidanceShift, "");
  OF_A_STRANGER(Task, "");
  OF_A_STRANGER(TreatmentZone, "");
  OF_A_STRANGER(ProcessDataVariable, "");
  OF_A_STRANGER(Time, "");
  OF_A_STRANGER(AllocationStamp, "");
  OF_A_STRANGER(CommentAllocation, "");
  OF_A_STRANGER(DeviceAllocation, "");
  OF_A_STRANGER(WorkerAllocation, "");
  OF_A_STRANGER(ProductAllocation, "");
  OF_A_STRANGER(ControlAssignment, "");
  OF_A_STRANGER(Device, "");
  OF_A_STRANGER(DeviceElement, "");
#undef OF_A_STRANGER
}

// --- Values and copies -----------------------------------------------------------------------------------

TEST(Element, SettersStoreAndUnsetClearsTheFlagAlone) {
  Link object;
  EXPECT_FALSE(object.IssetObjectIdRef());
  EXPECT_EQ("", object.GetObjectIdRef());
  EXPECT_EQ(0, object.SetObjectIdRef("no identifier at all"));
  EXPECT_TRUE(object.IssetObjectIdRef());
  object.UnsetObjectIdRef();
  EXPECT_FALSE(object.IssetObjectIdRef());
  EXPECT_EQ("no identifier at all", object.GetObjectIdRef());

  AttachedFile numbers;
  EXPECT_EQ(0, numbers.GetType());
  EXPECT_EQ(0u, numbers.GetFileLength());
  EXPECT_EQ(0, numbers.SetType(255));
  EXPECT_EQ(255, numbers.GetType());
  EXPECT_FALSE(P917Metadata().GetCloudJob());
  EXPECT_TRUE(TaskControllerCapabilities().GetControlFunctionName().empty());
}

TEST(Element, CopiesAreDeep) {
  LinkGroup original;
  original.SetId("LGP1");
  original.AppendInnerLinkGroup().GetLink(1).SetValue("v");

  LinkGroup copy(original);
  LinkGroup assigned;
  assigned.SetNamespace("gone");
  assigned = original;
  const std::unique_ptr<LinkGroup> clone(original.clone());
  original.GetInnerLinkGroup(0).GetLink(1).SetValue("changed");
  original.SetId("LGP2");
  for (LinkGroup const* const other :
       {&std::as_const(copy), &std::as_const(assigned), &std::as_const(*clone)}) {
    EXPECT_EQ("LGP1", other->GetId());
    EXPECT_FALSE(other->IssetNamespace());
    ASSERT_EQ(1u, other->SizeInnerLinkGroup());
    EXPECT_EQ(2u, other->GetInnerLinkGroup(0).SizeLink());
    EXPECT_EQ("v", other->GetInnerLinkGroup(0).GetLink(1).GetValue());
    EXPECT_FALSE(other->GetInnerLinkGroup(0).GetLink(1).IssetObjectIdRef());
  }
  LinkGroup& same = copy;
  copy = same;
  EXPECT_EQ("v", copy.GetInnerLinkGroup(0).GetLink(1).GetValue());
}

TEST(Element, SwapExchangesEverything) {
  LinkGroup left;
  LinkGroup right;
  left.SetId("LGP1");
  left.AppendInnerLinkGroup().AppendLink().SetValue("v");
  Link const* const child = &left.GetInnerLinkGroup(0).GetLink(0);
  left.swap(right);
  EXPECT_FALSE(left.IssetId());
  EXPECT_EQ(0u, left.SizeInnerLinkGroup());
  EXPECT_EQ("LGP1", right.GetId());
  EXPECT_EQ(child, &right.GetInnerLinkGroup(0).GetLink(0));  // children keep their address
  right.reset();
  EXPECT_FALSE(right.IssetId());
  EXPECT_EQ("", right.GetId());
  EXPECT_EQ(0u, right.SizeInnerLinkGroup());
}

TEST(Element, ARootCopiesWhatItHolds) {
  Root original;
  original.GetLinkGroup().AppendInnerLinkGroup().AppendLink().SetValue("v");
  const Root copy(original);
  const std::unique_ptr<Root> clone(original.clone());
  original.SelectLink();
  EXPECT_EQ("v", copy.GetLinkGroup().GetInnerLinkGroup(0).GetLink(0).GetValue());
  EXPECT_EQ("v", std::as_const(*clone).GetLinkGroup().GetInnerLinkGroup(0).GetLink(0).GetValue());
  Root moved(std::move(*clone));
  moved.swap(original);
  EXPECT_EQ(59, moved.chosen);
  EXPECT_EQ(60, original.chosen);
  moved = copy;
  EXPECT_EQ(60, moved.chosen);
}

// --- Children --------------------------------------------------------------------------------------------

std::vector<std::string> values(InnerLinkGroup const& links) {
  std::vector<std::string> found;
  for (std::size_t i = 0; i != links.SizeLink(); ++i) found.push_back(links.GetLink(i).GetValue());
  return found;
}

Link* new_link(char const* value) {
  auto object = std::make_unique<Link>();
  object->SetValue(value);
  return object.release();
}

TEST(Run, IsEditedLikeAVector) {
  using Values = std::vector<std::string>;
  InnerLinkGroup links;
  EXPECT_EQ(1, links.chosen);
  links.SelectLink();
  EXPECT_EQ(0, links.chosen);
  EXPECT_EQ(0u, links.SizeLink());
  links.AppendLink().SetValue("b");
  links.AppendLink(new_link("d"));
  links.InsertLink(0).SetValue("a");
  links.InsertLink(2, new_link("c"));
  EXPECT_EQ((Values{"a", "b", "c", "d"}), values(links));
  links.SelectLink();
  EXPECT_EQ(4u, links.SizeLink());
  Link other;
  other.SetValue("B");
  links.AssignLink(1, other);
  links.AssignLink(2, new_link("C"));
  links.BackLink().SetValue("D");
  EXPECT_EQ((Values{"a", "B", "C", "D"}), values(links));
  links.DeleteLink(1);
  EXPECT_EQ((Values{"a", "C", "D"}), values(links));
  links.GetLink(4).SetValue("e");
  EXPECT_EQ((Values{"a", "C", "D", "", "e"}), values(links));
  links.ClearLink();
  EXPECT_EQ(0u, links.SizeLink());
  links.release_choice();
  EXPECT_EQ(1, links.chosen);
  links.GetLink(0);
  EXPECT_EQ(0, links.chosen);
}

TEST(Run, HasAsManyWrappersAsWanted) {
  LinkGroup group;
  group.AppendInnerLinkGroup().AppendLink().SetValue("b");
  group.AppendInnerLinkGroup(std::make_unique<InnerLinkGroup>().release());
  group.InsertInnerLinkGroup(0).AppendLink().SetValue("a");
  group.InsertInnerLinkGroup(3, std::make_unique<InnerLinkGroup>(group.GetInnerLinkGroup(0)).release());
  ASSERT_EQ(4u, group.SizeInnerLinkGroup());
  EXPECT_EQ("a", group.BackInnerLinkGroup().GetLink(0).GetValue());
  group.AssignInnerLinkGroup(0, group.GetInnerLinkGroup(1));
  EXPECT_EQ("b", group.GetInnerLinkGroup(0).GetLink(0).GetValue());
  group.AssignInnerLinkGroup(1, std::make_unique<InnerLinkGroup>().release());
  EXPECT_EQ(InnerLinkGroup::NothingChosen, group.GetInnerLinkGroup(1).chosen);
  group.DeleteInnerLinkGroup(0);
  EXPECT_EQ(3u, group.SizeInnerLinkGroup());
  group.GetInnerLinkGroup(5);
  EXPECT_EQ(6u, group.SizeInnerLinkGroup());
  group.ClearInnerLinkGroup();
  EXPECT_EQ(0u, group.SizeInnerLinkGroup());
}

TEST(Wrapper, HoldsOneAlternativeAtATime) {
  InnerTaskData wrapper;
  EXPECT_EQ(21, wrapper.chosen);
  wrapper.SelectP917Metadata();
  EXPECT_EQ(0, wrapper.chosen);
  wrapper.GetP917Metadata().SetVersion("1");
  wrapper.SelectP917Metadata();
  EXPECT_EQ("1", wrapper.GetP917Metadata().GetVersion());
  wrapper.GetAttachedFile(0).SetType(1);
  EXPECT_EQ(2, wrapper.chosen);
  wrapper.SelectExternalFileReference();
  EXPECT_EQ(20, wrapper.chosen);
  EXPECT_EQ(0u, wrapper.SizeExternalFileReference());
  wrapper.SelectAttachedFile();
  EXPECT_EQ(0u, wrapper.SizeAttachedFile());
  wrapper.GetTaskControllerCapabilities();
  EXPECT_EQ(17, wrapper.chosen);
  EXPECT_FALSE(wrapper.GetTaskControllerCapabilities().IssetDesignator());
  wrapper.reset();
  EXPECT_EQ(21, wrapper.chosen);
}

TEST(AccessorDeathTest, ConstGetStopsWithItsConditionsText) {
  const LinkGroup group;
  const InnerLinkGroup nothing;
  const Root root;
  const InnerTaskData data;
  InnerLinkGroup selected;
  selected.SelectLink();
  InnerLinkGroup empty;
  EXPECT_DEATH(group.GetInnerLinkGroup(0), "index < mInnerLinkGroup\\.size\\(\\)");
  EXPECT_DEATH(nothing.GetLink(0), "chosen == LinkChosen");
  EXPECT_DEATH(std::as_const(selected).GetLink(0), "index < u\\.mLink->size\\(\\)");
  EXPECT_DEATH(selected.DeleteLink(0), "index < u\\.mLink->size\\(\\)");
  EXPECT_DEATH(empty.DeleteLink(0), "chosen == LinkChosen");
  EXPECT_DEATH(root.GetTaskData(), "chosen == TaskDataChosen");
  EXPECT_DEATH(data.GetP917Metadata(), "chosen == P917MetadataChosen");
  EXPECT_DEATH(data.GetTaskControllerCapabilities(), "chosen == TaskControllerCapabilitiesChosen");
  EXPECT_DEATH(data.GetAttachedFile(0), "chosen == AttachedFileChosen");
}

TEST(AccessorDeathTest, OfEachClassNamesItsOwnMember) {
  const Task task;
  const InnerTaskData data;
  InnerExternalFileContent content;
  content.SelectTask();
  EXPECT_DEATH(task.GetInnerTask(0), "index < mInnerTask\\.size\\(\\)");
  EXPECT_DEATH(data.GetTask(0), "chosen == TaskChosen");
  EXPECT_DEATH(std::as_const(content).GetTask(0), "index < u\\.mTask->size\\(\\)");
}

TEST(Accessors, AddChildrenWhereOthersWereDeleted) {
  InnerTaskData data;
  std::set<Task const*> places;
  for (int i = 0; i != 1000; ++i) {
    places.insert(&data.AppendTask());
    data.DeleteTask(0);
  }
  EXPECT_EQ(1u, places.size());
}

TEST(AccessorDeathTest, ARunOfTwoHasNoThirdWhereThereIsOneRunOnly) {
  InnerAllocationStamp stamp;
  stamp.GetPosition(1);
  EXPECT_DEATH(stamp.GetPosition(2), "index < 2");
  EXPECT_DEATH(std::as_const(stamp).GetPosition(2), "index < 2");
}

// Reading ends such a run after two, and what follows begins another; a host may fill it as any other.
TEST(AccessorDeathTest, ARunThatMayBeFollowedByAnotherIsFilledLikeAny) {
  InnerTime times;
  Position const& fifth = times.GetPosition(4);
  EXPECT_EQ(5u, times.SizePosition());
  EXPECT_EQ(&fifth, &std::as_const(times).GetPosition(4));
  EXPECT_DEATH(std::as_const(times).GetPosition(5), "index < u\\.mPosition->size\\(\\)");
  InnerTime one;
  one.AppendPosition();
  EXPECT_DEATH(std::as_const(one).GetPosition(1), "index < u\\.mPosition->size\\(\\)");
}

TEST(NamespaceMaps, BindNothing) {
  for (lmx::s_ns_map const* map :
       {ns_map_reader, ns_map_writer_1, ns_map_writer_2, ns_map_writer_3, ns_map_writer_4, ns_map_writer_5}) {
    EXPECT_EQ(0, map->m_id);
    EXPECT_EQ(nullptr, map->mp_prefix);
    EXPECT_EQ(nullptr, map->mp_uri);
  }
}

}  // namespace
