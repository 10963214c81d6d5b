// What each of the 61 classes takes as its content: which of them may be empty, which children each knows,
// and what it makes of anything else. The documents follow from the description of the format; what must come
// of them stands here, class by class.
#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"
#include "support/element_rows.h"
#include "support/file_bytes.h"
#include "support/memory_read.h"
#include "support/recording_reader.h"
#include "support/writing.h"

namespace {

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
  EXPECT_EQ(first_code(reports), code_name(strictly.error));
  EXPECT_EQ(reports.substr(0, reports.find(',')), strictly.reader.reports());
  Reading<> tolerantly(document, tolerant());
  EXPECT_EQ(0, tolerantly.error);
  EXPECT_EQ(reports, tolerantly.reader.reports());
  EXPECT_NE(61, tolerantly.top.chosen);
}

std::string report(int code, ElementRow const& row) { return ::report(code, row.tag); }

// What is told of an element that has something in it, but nothing that counts. A question looks for its
// prompt alone; the others look before and behind the run of their children.
std::string missing(ElementRow const& row) {
  const std::string once = report(lmx::ELMX_MANDATORY_ELEMENT_MISSING, row);
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
    expect_reports(empty_tag, is_refused ? report(lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT, row) + ", " +
                                               report(lmx::ELMX_BAD_END_OF_ELEMENT, row)
                                         : "");
    for (char const* const nothing : {"", " \n\t", "<!-- c -->", "<?p i?>", "\n<!-- c --> <?p i?>\n"}) {
      expect_reports(with_content(row, nothing),
                     is_refused ? report(lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT, row) : "");
    }
  });
}

// ---- Anything but children ----

TEST(EveryClass, RefusesTextUnlessItHoldsText) {
  for_each_class([](ElementRow const& row, Kind kind) {
    for (char const* const text : {"text", " text ", "<![CDATA[x]]>", "<![CDATA[]]>"}) {
      const std::string reports = kind == Kind::Text ? ""
                                  : kind == Kind::MandatoryChildren
                                      ? missing(row) + ", " + report(lmx::ELMX_BAD_END_OF_ELEMENT, row)
                                      : report(lmx::ELMX_BAD_END_OF_ELEMENT, row);
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
      expect_reports(with_content(row, stranger), is_refused ? report(lmx::ELMX_BAD_END_OF_ELEMENT, row)
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
    const std::string end = ::report(lmx::ELMX_UNEXPECTED_EOM, name);
    const std::string rest = kind == Kind::MandatoryChildren
                                 ? missing(row) + ", " + report(lmx::ELMX_BAD_END_OF_ELEMENT, row)
                                 : report(lmx::ELMX_BAD_END_OF_ELEMENT, row);
    if (kind == Kind::Text) {
      expect_reports(start_of(row) + '>', report(lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE, row) + ", " +
                                              report(lmx::ELMX_BAD_END_OF_ELEMENT, row));
    } else {
      expect_reports(start_of(row) + '>', end + ", " + rest);
    }
  });
}

TEST(EveryClass, ThatMustHaveChildrenMissesOneThatIsCutOffInItsStartTag) {
  for_each_class([](ElementRow const& row, Kind kind) {
    if (kind != Kind::MandatoryChildren && kind != Kind::Children) return;
    const lmx::elmx_error code =
        kind == Kind::MandatoryChildren ? lmx::ELMX_MANDATORY_ELEMENT_MISSING : lmx::ELMX_BAD_END_OF_ELEMENT;
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

using Events = std::vector<std::pair<std::string, int>>;

// The names and numbers that are pinned for a class, in the order of the format.
Events pinned(std::string const& kind, std::string const& owner) {
  Events found;
  std::istringstream rows(file_bytes(ISOXML_PINNED_NUMBERS));
  for (std::string row; std::getline(rows, row);) {
    std::istringstream cells(row);
    std::string cell[5];  // kind, class, name, field, event
    for (std::string& text : cell) std::getline(cells, text, ',');
    if (cell[0] == kind && cell[1] == owner) found.emplace_back(cell[2], std::stoi(cell[4]));
  }
  return found;
}

Events pinned_children(std::string const& owner) {
  if (owner == "P917Questions") return {{"P917_Question", 36}};  // a list, which is no choice
  const Events children = pinned("child", owner);
  return children.empty() ? pinned("alternative", owner) : children;
}

template <class Row>
void expect_name(Row const& row) {
  EXPECT_EQ(1, row.m_ns_id) << row.mp_name;
  EXPECT_EQ(std::string(row.mp_name).size(), row.m_length) << row.mp_name;
}

Events events(lmx::s_event_map const* row) {
  Events all;
  for (; row->mp_name != nullptr; ++row) {
    expect_name(*row);
    all.emplace_back(row->mp_name, row->m_event);
  }
  return all;
}

Names names(lmx::s_known_elements const* row) {
  Names all;
  for (; row->mp_name != nullptr; ++row) {
    expect_name(*row);
    all.emplace_back(row->mp_name);
  }
  return all;
}

Names names(Events const& events) {
  Names all;
  for (auto const& event : events) all.push_back(event.first);
  return all;
}

TEST(NameTables, GiveEachAttributeItsNumber) {
  for (TableRow const& row : table_rows) {
    SCOPED_TRACE(row.name);
    if (row.attributes == nullptr) continue;
    EXPECT_EQ(pinned("attribute", row.name), events(row.attributes));
  }
}

TEST(NameTables, HoldTheOwnChildrenOfEachClassInOrder) {
  EXPECT_EQ(62u, table_rows.size()) << "61 classes and Root";
  for (TableRow const& row : table_rows) {
    SCOPED_TRACE(row.name);
    const Events children = pinned_children(row.name);
    EXPECT_EQ(children, events(row.children));
    EXPECT_EQ(names(children), names(row.known_elements));
    if (row.children_of_wrapper == nullptr) continue;
    EXPECT_EQ(children, events(row.children_of_wrapper));
  }
}

TEST(NameTables, HoldTheChildrenThatTheDocumentsAreMadeOf) {
  for (ElementRow const& row : element_rows) {
    const auto parent = parents().find(row.tag);
    const Names expected = parent == parents().end() ? Names{} : words(parent->second.children);
    EXPECT_EQ(expected,
              names(table_rows[static_cast<std::size_t>(&row - element_rows.data())].known_elements))
        << row.tag;
  }
}

// A polygon has one number as a part of a field or a zone, another as the boundary of guidance.
TEST(NameTables, TellABoundaryInGuidanceFromAnyOtherPolygon) {
  const std::map<std::string, int> expected = {{"Root", 134},
                                               {"Field", 134},
                                               {"TreatmentZone", 134},
                                               {"GuidanceGroup", 159},
                                               {"GuidancePattern", 159}};
  std::map<std::string, int> found;
  for (TableRow const& row : table_rows) {
    for (auto const& [name, event] : events(row.children)) {
      if (name == "PLN") found[row.name] = event;
    }
  }
  EXPECT_EQ(expected, found);
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
