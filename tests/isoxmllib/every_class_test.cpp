// What each of the 61 classes takes as its content: which of them may be empty, which children each knows,
// and what it makes of anything else. The documents follow from the description of the format; what must come
// of them stands here, class by class.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"
#include "support/memory_read.h"
#include "support/recording_reader.h"
#include "support/writing.h"

namespace {

struct ElementRow {
  char const* tag;
  void (*select)(Root& root);
  lmx::elmx_error (*marshal)(Root const& root, lmx::c_xml_writer& writer);
  char const* new_object;
  char const* filled;
};

struct ChoiceRow {
  char const* name;
  std::int32_t nothing_chosen;
  lmx::elmx_error (*marshal)(lmx::c_xml_writer& writer, std::int32_t chosen);
};

#include "element_rows.inc"

using Names = std::vector<std::string>;

Names words(std::string const& text) {
  std::istringstream in(text);
  Names all;
  for (std::string word; in >> word;) all.push_back(word);
  return all;
}

// The classes with children.
struct Parent {
  char const* children;
  bool is_mandatory;  // one of them must be there, and the first one named here will do
};

constexpr bool mandatory = true;
constexpr bool optional = false;

std::map<std::string, Parent> const& parents() {
  static const std::map<std::string, Parent> all = {
      {"ISO11783_TaskData",
       {"P917_Metadata P917_Questions AFE BSN CCT CCG CLD CTP CPC CTR DVC FRM OTQ PFD PDT PGP TSK TCC VPN "
        "WKR "
        "XFR",
        optional}},
      {"XFC", {"BSN CCT CCG CLD CTP CPC CTR DVC FRM OTQ PFD PDT PGP TSK VPN WKR", optional}},
      {"ISO11783LinkList", {"LGP", optional}},
      {"LGP", {"LNK", optional}},
      {"PDT", {"PRN", optional}},
      {"CTP", {"CVT", optional}},
      {"CPC", {"OTR", optional}},
      {"CCT", {"CCL", optional}},
      {"CLD", {"CRG", mandatory}},
      {"PFD", {"PLN LSG PNT GGP", optional}},
      {"PLN", {"LSG", mandatory}},
      {"LSG", {"PNT", mandatory}},
      {"GGP", {"GPN PLN", mandatory}},
      {"GPN", {"LSG PLN", mandatory}},
      {"GAN", {"ASP GST", mandatory}},
      {"GST", {"ASP", optional}},
      {"TSK", {"TZN TIM OTP WAN DAN CNN PAN DLT CAN TLG GRD CAT GAN P917_comment", optional}},
      {"TZN", {"PLN PDV", optional}},
      {"PDV", {"PDV", optional}},
      {"TIM", {"PTN DLV", optional}},
      {"ASP", {"PTN", optional}},
      {"CAN", {"ASP", optional}},
      {"DAN", {"ASP", optional}},
      {"WAN", {"ASP", optional}},
      {"PAN", {"ASP", optional}},
      {"CAT", {"ASP", optional}},
      {"DVC", {"DET DPT DPD DVP", mandatory}},
      {"DET", {"DOR", optional}},
      {"P917_Questions", {"P917_Question", optional}},
      {"P917_Question", {"P917_Prompt P917_Reply P917_Option", mandatory}},
  };
  return all;
}

constexpr char const* text_only = "P917_comment";

enum class Kind { AttributesOnly, Text, Children, MandatoryChildren };

Kind kind_of(std::string const& tag) {
  if (tag == text_only) return Kind::Text;
  const auto row = parents().find(tag);
  if (row == parents().end()) return Kind::AttributesOnly;
  return row->second.is_mandatory ? Kind::MandatoryChildren : Kind::Children;
}

// A class's start tag with every attribute, but for its end.
std::string start_of(ElementRow const& row) {
  const std::string filled = row.filled;
  const std::string start = filled.substr(0, filled.find('>'));
  return start.back() == '/' ? start.substr(0, start.size() - 1) : start;
}

std::string with_content(ElementRow const& row, std::string const& content) {
  return start_of(row) + '>' + content + "</" + row.tag + '>';
}

// What a class's document brings: to a strict reader the first report, to one that tolerates everything all
// of them, and then the object is kept.
void expect_reports(std::string const& document, std::string const& reports) {
  SCOPED_TRACE(document);
  Reading<> strictly(document, strict());
  EXPECT_EQ(reports.empty() ? 0 : std::stoi(reports), strictly.error);
  EXPECT_EQ(reports.substr(0, reports.find(',')), strictly.reader.reports());
  Reading<> tolerantly(document, tolerant());
  EXPECT_EQ(0, tolerantly.error);
  EXPECT_EQ(reports, tolerantly.reader.reports());
  EXPECT_NE(61, tolerantly.top.chosen);
}

std::string report(int code, ElementRow const& row) { return std::to_string(code) + ' ' + row.tag; }

// What is told of an element that has something in it, but nothing that counts. A question looks for its
// prompt alone; the others look before and behind the run of their children.
std::string missing(ElementRow const& row) {
  const std::string once = report(21, row);
  return std::string(row.tag) == "P917_Question" ? once : once + ", " + once;
}

template <class Check>
void for_each_class(Check check) {
  for (ElementRow const& row : element_rows) {
    SCOPED_TRACE(row.tag);
    check(row, kind_of(row.tag));
  }
}

// ---- Nothing inside ----

TEST(EveryClass, MayBeEmptyUnlessItMustHaveChildren) {
  for_each_class([](ElementRow const& row, Kind kind) {
    const bool is_refused = kind == Kind::MandatoryChildren;
    const std::string empty_tag = start_of(row) + "/>";
    expect_reports(empty_tag, is_refused ? report(32, row) + ", " + report(10, row) : "");
    for (char const* const nothing : {"", " \n\t", "<!-- c -->", "<?p i?>", "\n<!-- c --> <?p i?>\n"}) {
      expect_reports(with_content(row, nothing), is_refused ? report(32, row) : "");
    }
  });
}

// ---- Anything but children ----

TEST(EveryClass, RefusesTextUnlessItHoldsText) {
  for_each_class([](ElementRow const& row, Kind kind) {
    for (char const* const text : {"text", " text ", "<![CDATA[x]]>", "<![CDATA[]]>"}) {
      const std::string reports = kind == Kind::Text                ? ""
                                  : kind == Kind::MandatoryChildren ? missing(row) + ", " + report(10, row)
                                                                    : report(10, row);
      expect_reports(with_content(row, text), reports);
    }
  });
}

// Elements that none of them has as a child, known to the format or not.
constexpr char const* strangers[] = {"<Foo/>", "<Foo a='1'>text<Bar/></Foo>", "<ISO11783_TaskData/>"};

TEST(EveryClass, MissesItsChildrenBehindStrangers) {
  for_each_class([](ElementRow const& row, Kind kind) {
    for (char const* const stranger : strangers) {
      const bool is_refused = kind == Kind::AttributesOnly || kind == Kind::Text;
      expect_reports(with_content(row, stranger), is_refused                        ? report(10, row)
                                                  : kind == Kind::MandatoryChildren ? missing(row)
                                                                                    : "");
    }
  });
}

TEST(EveryClass, LosesNothingToStrangersAmongItsChildren) {
  for_each_class([](ElementRow const& row, Kind kind) {
    if (kind == Kind::AttributesOnly || kind == Kind::Text) return;
    const std::string filled = row.filled;
    for (std::size_t at = filled.find('\n', start_of(row).size()); at != std::string::npos;
         at = filled.find('\n', at + 1)) {
      // Only between its own children, which stand one tab deep.
      if (filled.compare(at, 3, "\n\t<") != 0 && filled.compare(at, 3, "\n</") != 0) continue;
      if (filled.compare(at, 4, "\n\t</") == 0) continue;
      std::string document = filled;
      document.insert(at, "<ISO11783_TaskData/><Foo/>");
      SCOPED_TRACE(document);
      Reading<> reading(document);
      ASSERT_EQ(0, reading.error);
      EXPECT_EQ(filled, written(reading.top));
      const std::string path = std::string(row.tag) + '/';
      EXPECT_EQ(path + "ISO11783_TaskData, " + path + "Foo", reading.reader.unknown());
    }
  });
}

// ---- Cut off ----

TEST(EveryClass, IsNotReadBeyondItsStartTag) {
  for_each_class([](ElementRow const& row, Kind kind) {
    const std::string name = row.tag;
    const std::string end = "34 " + name;
    const std::string rest =
        kind == Kind::MandatoryChildren ? missing(row) + ", " + report(10, row) : report(10, row);
    if (kind == Kind::Text) {
      expect_reports(start_of(row) + '>', report(29, row) + ", " + report(10, row));
    } else {
      expect_reports(start_of(row) + '>', end + ", " + rest);
    }
  });
}

TEST(EveryClass, ThatMustHaveChildrenMissesOneThatIsCutOffInItsStartTag) {
  for_each_class([](ElementRow const& row, Kind kind) {
    if (kind != Kind::MandatoryChildren && kind != Kind::Children) return;
    const int code = kind == Kind::MandatoryChildren ? 21 : 10;
    const std::string child = words(parents().at(row.tag).children).front();
    for (char const* const cut : {" ", "\n", " A='1'", " A='1' ", " A='1'B='2'"}) {
      const std::string document = start_of(row) + "><" + child + cut;
      Reading<> reading(document);
      EXPECT_EQ(code, reading.error) << document;
      EXPECT_EQ(report(code, row), reading.reader.reports()) << document;
    }
  });
}

// ---- Name tables ----

// The tables of a class with children and of its wrapper.
struct Tables {
  char const* tag;
  lmx::s_known_elements const* known_elements;
  lmx::s_event_map const* of_class;
  lmx::s_event_map const* of_wrapper;
};

template <class X, class Inner>
constexpr Tables tables(char const* tag) {
  return {tag, X::known_elements, X::elem_event_map, Inner::elem_event_map};
}

const Tables tables_of_parents[] = {
    tables<TaskData, InnerTaskData>("ISO11783_TaskData"),
    tables<ExternalFileContent, InnerExternalFileContent>("XFC"),
    tables<LinkList, InnerLinkList>("ISO11783LinkList"),
    tables<LinkGroup, InnerLinkGroup>("LGP"),
    tables<Product, InnerProduct>("PDT"),
    tables<CropType, InnerCropType>("CTP"),
    tables<CulturalPractice, InnerCulturalPractice>("CPC"),
    tables<CodedComment, InnerCodedComment>("CCT"),
    tables<ColourLegend, InnerColourLegend>("CLD"),
    tables<Field, InnerField>("PFD"),
    tables<Polygon, InnerPolygon>("PLN"),
    tables<LineString, InnerLineString>("LSG"),
    tables<GuidanceGroup, InnerGuidanceGroup>("GGP"),
    tables<GuidancePattern, InnerGuidancePattern>("GPN"),
    tables<GuidanceAllocation, InnerGuidanceAllocation>("GAN"),
    tables<GuidanceShift, InnerGuidanceShift>("GST"),
    tables<Task, InnerTask>("TSK"),
    tables<TreatmentZone, InnerTreatmentZone>("TZN"),
    tables<ProcessDataVariable, InnerProcessDataVariable>("PDV"),
    tables<Time, InnerTime>("TIM"),
    tables<AllocationStamp, InnerAllocationStamp>("ASP"),
    tables<CommentAllocation, InnerCommentAllocation>("CAN"),
    tables<DeviceAllocation, InnerDeviceAllocation>("DAN"),
    tables<WorkerAllocation, InnerWorkerAllocation>("WAN"),
    tables<ProductAllocation, InnerProductAllocation>("PAN"),
    tables<ControlAssignment, InnerControlAssignment>("CAT"),
    tables<Device, InnerDevice>("DVC"),
    tables<DeviceElement, InnerDeviceElement>("DET"),
    // Without a wrapper.
    tables<P917Questions, P917Questions>("P917_Questions"),
    tables<P917Question, P917Question>("P917_Question"),
};

template <class Row>
Names names(Row const* row) {
  Names all;
  for (; row->mp_name != nullptr; ++row) {
    EXPECT_EQ(1, row->m_ns_id) << row->mp_name;
    EXPECT_EQ(std::string(row->mp_name).size(), row->m_length) << row->mp_name;
    all.emplace_back(row->mp_name);
  }
  return all;
}

TEST(NameTables, HoldTheOwnChildrenOfEachClassInOrder) {
  EXPECT_EQ(parents().size(), std::size(tables_of_parents));
  for (Tables const& row : tables_of_parents) {
    SCOPED_TRACE(row.tag);
    const Names children = words(parents().at(row.tag).children);
    EXPECT_EQ(children, names(row.known_elements));
    EXPECT_EQ(children, names(row.of_class));
    EXPECT_EQ(children, names(row.of_wrapper));
  }
}

TEST(NameTables, AreEmptyForClassesWithoutChildren) {
  for (lmx::s_known_elements const* const table : {AttachedFile::known_elements,
                                                   P917Metadata::known_elements,
                                                   TaskControllerCapabilities::known_elements,
                                                   ExternalFileReference::known_elements,
                                                   BaseStation::known_elements,
                                                   CoddedCommentGroup::known_elements,
                                                   CodedCommentListValue::known_elements,
                                                   ColourRange::known_elements,
                                                   Connection::known_elements,
                                                   CropVariety::known_elements,
                                                   Grower::known_elements,
                                                   DataLogTrigger::known_elements,
                                                   DataLogValue::known_elements,
                                                   DeviceObjectReference::known_elements,
                                                   DeviceProcessData::known_elements,
                                                   DeviceProperty::known_elements,
                                                   DeviceValuePresentation::known_elements,
                                                   Farm::known_elements,
                                                   Grid::known_elements,
                                                   OperationTechnique::known_elements,
                                                   OperationTechniqueReference::known_elements,
                                                   OperTechPractice::known_elements,
                                                   Point::known_elements,
                                                   Position::known_elements,
                                                   ProductGroup::known_elements,
                                                   ProductRelation::known_elements,
                                                   TimeLog::known_elements,
                                                   ValuePresentation::known_elements,
                                                   Worker::known_elements,
                                                   Link::known_elements}) {
    EXPECT_EQ(Names{}, names(table));
  }
}

int event_of(lmx::s_event_map const* row, std::string const& name) {
  for (; row->mp_name != nullptr; ++row) {
    if (row->mp_name == name) return row->m_event;
  }
  return 0;
}

TEST(NameTables, TellABoundaryInGuidanceFromAnyOtherPolygon) {
  const std::map<std::string, int> expected = {{"PFD", 134}, {"TZN", 134}, {"GGP", 159}, {"GPN", 159}};
  for (Tables const& row : tables_of_parents) {
    SCOPED_TRACE(row.tag);
    const auto event = expected.find(row.tag);
    EXPECT_EQ(event == expected.end() ? 0 : event->second, event_of(row.of_class, "PLN"));
    EXPECT_EQ(event == expected.end() ? 0 : event->second, event_of(row.of_wrapper, "PLN"));
  }
  EXPECT_EQ(134, event_of(Root::elem_event_map, "PLN"));
}

// ---- Moved-from objects ----

// Nothing that it shows tells it from a new one.
template <class X>
void expect_new(X const& object, char const* tag) {
  const X fresh;
  EXPECT_EQ(written(fresh, tag), written(object, tag));
  EXPECT_EQ(fresh.IsOccursOk(), object.IsOccursOk());
  EXPECT_EQ(fresh.Check(), object.Check());
}

template <class X>
int read_again(X& object, ElementRow const& row) {
  MemoryRead document(row.filled);
  lmx::xmlReader reader(document);
  return object.unmarshal(reader);
}

template <class X>
void check_moved(ElementRow const& row) {
  SCOPED_TRACE(row.tag);
  X object;
  ASSERT_EQ(0, read_again(object, row));
  X target(std::move(object));
  // NOLINTBEGIN(bugprone-use-after-move): promised
  expect_new(object, row.tag);
  const X copy(object);
  expect_new(copy, row.tag);
  X assigned;
  ASSERT_EQ(0, read_again(assigned, row));
  assigned = object;
  expect_new(assigned, row.tag);
  EXPECT_EQ(row.filled, written(target, row.tag));
  object = std::move(target);
  EXPECT_EQ(row.filled, written(object, row.tag));
  expect_new(target, row.tag);
  ASSERT_EQ(0, read_again(target, row));
  EXPECT_EQ(row.filled, written(target, row.tag));
  // NOLINTEND(bugprone-use-after-move)
}

TEST(MovedFrom, ElementsAreLikeNewOnes) {
  std::size_t at = 0;
#define CHECK(X) check_moved<X>(element_rows.at(at++));
  FOR_EACH_ELEMENT(CHECK)
#undef CHECK
  EXPECT_EQ(element_rows.size(), at);
}

TEST(MovedFrom, RootsAreLikeNewOnes) {
  for (ElementRow const& row : element_rows) check_moved<Root>(row);
}

// Both what it was moved from and a copy of that.
template <class Choice>
void expect_nothing_chosen(Choice const& choice) {
  EXPECT_EQ(Choice::NothingChosen, choice.chosen);
  expect_new(choice, nullptr);
  const Choice copy(choice);
  EXPECT_EQ(Choice::NothingChosen, copy.chosen);
  expect_new(copy, nullptr);
}

// Takes a wrapper out of its filled parent, by construction and by assignment.
template <class Choice>
void check_moved_wrapper(Choice& filled, Choice const& same) {
  const std::string before = written(same);
  EXPECT_NE("", before);
  Choice target(std::move(filled));
  expect_nothing_chosen(filled);
  EXPECT_EQ(before, written(target));
  filled = std::move(target);
  expect_nothing_chosen(target);
  EXPECT_EQ(before, written(filled));
}

ElementRow const& row_of(char const* class_name) {
  static const std::map<std::string, std::size_t> places = [] {
    std::map<std::string, std::size_t> all;
#define ADD(Class) all.emplace(#Class, all.size());
    FOR_EACH_ELEMENT(ADD)
#undef ADD
    return all;
  }();
  return element_rows.at(places.at(class_name));
}

TEST(MovedFrom, WrappersAreLikeNewOnes) {
#define CHECK_FIRST(X, Wrapper)                                            \
  {                                                                        \
    SCOPED_TRACE(#X);                                                      \
    X object;                                                              \
    ASSERT_EQ(0, read_again(object, row_of(#X)));                          \
    for (std::size_t i = 0; i != object.Size##Wrapper(); ++i)              \
      check_moved_wrapper(object.Get##Wrapper(i), object.Get##Wrapper(i)); \
    EXPECT_EQ(row_of(#X).filled, written(object, row_of(#X).tag));         \
  }
  FOR_EACH_CHILD_LIST(CHECK_FIRST)
#undef CHECK_FIRST
#define CHECK_ONLY(X, Wrapper)                                         \
  {                                                                    \
    SCOPED_TRACE(#X);                                                  \
    X object;                                                          \
    ASSERT_EQ(0, read_again(object, row_of(#X)));                      \
    check_moved_wrapper(object.Get##Wrapper(), object.Get##Wrapper()); \
    EXPECT_EQ(row_of(#X).filled, written(object, row_of(#X).tag));     \
  }
  FOR_EACH_ONLY_CHILD(CHECK_ONLY)
#undef CHECK_ONLY
}

// Each function on a wrapper of its own, from which a run was moved, and on a copy of that.
template <class Choice, class Fill, class Use>
void use_after_move(Fill fill, Use use) {
  Choice choice;
  fill(choice);
  Choice target(std::move(choice));
  Choice copy(choice);  // NOLINT(bugprone-use-after-move): promised
  use(choice);
  use(copy);
  Choice assigned;
  assigned = std::move(target);
  use(target);  // NOLINT(bugprone-use-after-move): promised
}

TEST(MovedFrom, ChoicesTakeEveryRun){
#define CHECK_RUN(Choice, Y)                                                               \
  {                                                                                        \
    SCOPED_TRACE(#Choice "." #Y);                                                          \
    const auto fill = [](Choice& choice) { choice.Append##Y(); };                          \
    use_after_move<Choice>(fill, [](Choice& choice) { EXPECT_EQ(0u, choice.Size##Y()); }); \
    use_after_move<Choice>(fill, [](Choice& choice) {                                      \
      auto const& added = choice.Append##Y();                                              \
      EXPECT_EQ(&added, &choice.Back##Y());                                                \
    });                                                                                    \
    use_after_move<Choice>(fill, [](Choice& choice) {                                      \
      choice.Get##Y(1);                                                                    \
      EXPECT_EQ(2u, choice.Size##Y());                                                     \
      EXPECT_EQ(Choice::Y##Chosen, choice.chosen);                                         \
    });                                                                                    \
    use_after_move<Choice>(fill, [](Choice& choice) {                                      \
      choice.Insert##Y(0);                                                                 \
      choice.Delete##Y(0);                                                                 \
      EXPECT_EQ(0u, choice.Size##Y());                                                     \
    });                                                                                    \
    use_after_move<Choice>(fill, [](Choice& choice) {                                      \
      choice.Assign##Y(0, choice.Get##Y(0));                                               \
      EXPECT_EQ(1u, choice.Size##Y());                                                     \
    });                                                                                    \
    use_after_move<Choice>(fill, [](Choice& choice) {                                      \
      choice.Clear##Y();                                                                   \
      EXPECT_EQ(0u, choice.Size##Y());                                                     \
    });                                                                                    \
    use_after_move<Choice>(fill, [](Choice& choice) {                                      \
      choice.Select##Y();                                                                  \
      EXPECT_EQ(0u, choice.Size##Y());                                                     \
    });                                                                                    \
  }
    FOR_EACH_RUN(CHECK_RUN)
#undef CHECK_RUN
}

TEST(MovedFrom, ChoicesTakeEverySingleChild){
#define CHECK_SINGLE(Choice, Y)                                                                          \
  {                                                                                                      \
    SCOPED_TRACE(#Choice "." #Y);                                                                        \
    const auto fill = [](Choice& choice) { choice.Get##Y(); };                                           \
    use_after_move<Choice>(fill, [](Choice& choice) { EXPECT_EQ(&choice.Get##Y(), &choice.Get##Y()); }); \
    use_after_move<Choice>(fill, [](Choice& choice) {                                                    \
      choice.Select##Y();                                                                                \
      EXPECT_EQ(Choice::Y##Chosen, choice.chosen);                                                       \
    });                                                                                                  \
    use_after_move<Choice>(fill, [](Choice& choice) { choice.release_choice(); });                       \
  }
    FOR_EACH_SINGLE(CHECK_SINGLE)
#undef CHECK_SINGLE
}

TEST(MovedFromDeathTest, ChoicesHoldNothing) {
  InnerTask choice;
  choice.AppendTime();
  const InnerTask target(std::move(choice));
  // NOLINTBEGIN(bugprone-use-after-move): promised
  EXPECT_DEATH(std::as_const(choice).GetTime(0), "chosen == TimeChosen");
  EXPECT_DEATH(choice.DeleteTime(0), "chosen == TimeChosen");
  // NOLINTEND(bugprone-use-after-move)
}

}  // namespace
