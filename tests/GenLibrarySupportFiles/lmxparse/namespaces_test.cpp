// How a prefix becomes a namespace id: the ids of URIs, the scopes that declarations live in, and the names
// taken apart. Documents are walked with one scope a level, as the element classes do.
#include "GenLibrarySupportFiles/lmxparse/namespaces.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <ostream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "support/each_source.h"
#include "support/memory_read.h"

namespace {

using std::string;

#define XSI_URI "http://www.w3.org/2001/XMLSchema-instance"
#define XML_URI "http://www.w3.org/XML/1998/namespace"

// --- Ids of URIs -----------------------------------------------------------------------------------------

TEST(EnumeratedNamespaces, StartWithTheTwoStandardOnes) {
  lmx::c_enumerated_namespaces namespaces;
  EXPECT_EQ(5, namespaces.find_namespace(XSI_URI));
  EXPECT_EQ(2, namespaces.find_namespace(XML_URI));
  EXPECT_EQ(0, namespaces.find_namespace("u"));
  EXPECT_EQ(0, namespaces.find_namespace(""));
}

TEST(EnumeratedNamespaces, GiveOneIdForEachUri) {
  lmx::c_enumerated_namespaces namespaces;
  EXPECT_EQ(1000, namespaces.add_namespace("u"));
  EXPECT_EQ(1001, namespaces.add_namespace("v"));
  EXPECT_EQ(1000, namespaces.add_namespace("u"));
  EXPECT_EQ(5, namespaces.add_namespace(XSI_URI));
  EXPECT_EQ(1002, namespaces.add_namespace("U")) << "another case is another URI";
  EXPECT_EQ(1001, namespaces.find_namespace("v"));
}

TEST(EnumeratedNamespaces, CountOnAboveAnIdThatWasChosen) {
  lmx::c_enumerated_namespaces namespaces;
  namespaces.add_namespace("low", 7);
  EXPECT_EQ(7, namespaces.find_namespace("low"));
  EXPECT_EQ(1000, namespaces.add_namespace("u"));
  namespaces.add_namespace("high", 2000);
  EXPECT_EQ(2001, namespaces.add_namespace("v"));
  namespaces.add_namespace("u", 3000);
  EXPECT_EQ(1000, namespaces.find_namespace("u")) << "a URI keeps its id";
  EXPECT_EQ(3001, namespaces.add_namespace("w"));
}

TEST(EnumeratedNamespaces, ForgetADocumentsUrisWhenCleared) {
  lmx::c_enumerated_namespaces namespaces;
  namespaces.add_namespace("u");
  namespaces.add_namespace("high", 2000);
  namespaces.clear();
  EXPECT_EQ(0, namespaces.find_namespace("u"));
  EXPECT_EQ(5, namespaces.find_namespace(XSI_URI));
  EXPECT_EQ(1000, namespaces.add_namespace("v"));
}

// --- Scopes ----------------------------------------------------------------------------------------------

TEST(Scope, KnowsWhatIsBoundHereOrOutside) {
  lmx::c_xml_local outer;
  outer.add_namespace("p", 1000);
  outer.add_namespace("q", 1001);
  const lmx::c_xml_local between(&outer);
  lmx::c_xml_local inner(&outer);
  inner.add_namespace("p", 1002);
  EXPECT_EQ(1002, inner.find_namespace_id("p"));
  EXPECT_EQ(1001, inner.find_namespace_id("q"));
  EXPECT_EQ(0, inner.find_namespace_id("r"));
  EXPECT_EQ(1, inner.find_namespace_id("")) << "no default namespace";
  EXPECT_EQ(1000, between.find_namespace_id("p"));
  EXPECT_EQ(1000, outer.find_namespace_id("p"));
}

TEST(Scope, StepsOverScopesWithoutDeclarations) {
  lmx::c_xml_local outermost;
  outermost.add_namespace("", 1000);
  lmx::c_xml_local second(&outermost);
  lmx::c_xml_local third(&second);
  third.add_namespace("p", 1001);
  const lmx::c_xml_local innermost(&third);
  EXPECT_EQ(1000, innermost.find_namespace_id(""));
  EXPECT_EQ(1001, innermost.find_namespace_id("p"));
}

TEST(Scope, RebindsAPrefixOfItsOwn) {
  lmx::c_xml_local scope;
  scope.add_namespace("p", 1000);
  scope.add_namespace("p", 1001);
  EXPECT_EQ(1001, scope.find_namespace_id("p"));
  scope.add_namespace("p", 0);
  EXPECT_EQ(0, scope.find_namespace_id("p"));
}

TEST(Scope, LooksOutwardsOnceItsOwnDeclarationsAreGone) {
  lmx::c_xml_local outer;
  outer.add_namespace("p", 1000);
  lmx::c_xml_local inner(&outer);
  inner.add_namespace("p", 1001);
  inner.clear_declarations();
  EXPECT_EQ(1000, inner.find_namespace_id("p"));
  inner.add_namespace("p", 1002);
  EXPECT_EQ(1002, inner.find_namespace_id("p"));
}

TEST(Scope, DeclarationsOfAnOuterOneCountWhereItHadSomeBefore) {
  lmx::c_xml_local bare, bound;
  bound.add_namespace("q", 1000);
  const lmx::c_xml_local in_bare(&bare), in_bound(&bound);
  for (lmx::c_xml_local* const scope : {&bare, &bound}) scope->add_namespace("p", 1001);
  EXPECT_EQ(0, in_bare.find_namespace_id("p"));
  EXPECT_EQ(1001, in_bound.find_namespace_id("p"));
  EXPECT_EQ(1001, bare.find_namespace_id("p"));
}

// What a scope is told to do, on paper: each looks through its own declarations and then through those
// outside.
struct ModelScope {
  ModelScope* parent = nullptr;
  ModelScope* nearest = nullptr;
  std::vector<std::pair<std::string, int>> ids;

  explicit ModelScope(ModelScope* outer)
      : parent(outer), nearest(outer == nullptr ? nullptr : outer->nearest) {}
  void declare(std::string const& prefix, int id) {
    nearest = this;
    for (auto& [known, known_id] : ids) {
      if (known == prefix) {
        known_id = id;
        return;
      }
    }
    ids.emplace_back(prefix, id);
  }
  int find(std::string const& prefix) const {
    for (ModelScope const* scope = nearest; scope != nullptr;
         scope = scope->parent == nullptr ? nullptr : scope->parent->nearest) {
      for (auto const& [known, id] : scope->ids) {
        if (known == prefix) return id;
      }
    }
    return prefix.empty() ? 1 : 0;
  }
};

// Readers open and close scopes like brackets and declare in the innermost. A host may do as it likes.
TEST(Scope, FindsWhatAWalkThroughAllFindsInWhateverOrderTheyAreUsed) {
  std::mt19937 random(1000);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  for (const std::size_t disorder : {0u, 20u, 3u}) {
    for (int round = 0; round != 300; ++round) {
      std::vector<std::unique_ptr<lmx::c_xml_local>> scopes;
      std::vector<std::unique_ptr<ModelScope>> models;
      for (int step = 0; step != 200; ++step) {
        const bool anywhere = disorder != 0 && below(disorder) == 0;
        const std::size_t count = scopes.size();
        const std::size_t at = count == 0 ? 0 : anywhere ? below(count) : count - 1;
        const std::string prefix = std::string("pqrst").substr(0, below(6)).substr(0, 2);
        const std::size_t action = count == 0 ? 0 : below(8);
        if (action == 0) {
          scopes.push_back(std::make_unique<lmx::c_xml_local>(count == 0 ? nullptr : scopes[at].get()));
          models.push_back(std::make_unique<ModelScope>(count == 0 ? nullptr : models[at].get()));
        } else if (action == 1 && count > 1) {
          scopes.pop_back();
          models.pop_back();
        } else if (action == 2) {
          scopes[at]->clear_declarations();
          models[at]->ids.clear();
        } else if (action < 6) {
          scopes[at]->add_namespace(prefix.c_str(), 1000 + step);
          models[at]->declare(prefix, 1000 + step);
        } else {
          const std::size_t looked_at = below(count);
          for (char const* const sought : {"", "p", "pq"}) {
            ASSERT_EQ(models[looked_at]->find(sought), scopes[looked_at]->find_namespace_id(sought));
            ASSERT_EQ(models.back()->find(sought), scopes.back()->find_namespace_id(sought));
          }
        }
      }
      while (!scopes.empty()) scopes.pop_back();  // the inner ones first
    }
  }
}

TEST(Scope, NeverRebindsThePrefixXml) {
  lmx::c_xml_local scope;
  EXPECT_EQ(2, scope.find_namespace_id("xml"));
  scope.add_namespace("xml", 1000);
  EXPECT_EQ(2, scope.find_namespace_id("xml"));
}

TEST(Scope, CopiesThePrefix) {
  lmx::c_xml_local scope;
  string prefix = "p";
  scope.add_namespace(prefix.c_str(), 1000);
  prefix = "q";
  EXPECT_EQ(1000, scope.find_namespace_id("p"));
}

TEST(ReaderScope, IsTheReadersOwnForItsLifetime) {
  MemoryRead memory("");
  lmx::c_xml_reader reader(memory);
  lmx::c_xml_local* const root = reader.mp_local;
  root->add_namespace("p", 1000);
  {
    lmx::c_xml_reader_local outer(reader);
    EXPECT_EQ(&outer, reader.mp_local);
    outer.add_namespace("p", 1001);
    {
      const lmx::c_xml_reader_local inner(reader);
      EXPECT_EQ(1001, reader.mp_local->find_namespace_id("p"));
    }
    EXPECT_EQ(&outer, reader.mp_local);
  }
  EXPECT_EQ(root, reader.mp_local);
  EXPECT_EQ(1000, root->find_namespace_id("p"));
}

// --- Names -----------------------------------------------------------------------------------------------

struct Cracked {
  const char* caption;
  string name;
  bool has_prefix;
  string local_name;
  int id, element_id, attribute_id;
};

void expect_cracked(lmx::c_xml_local const& scope, Cracked const& row) {
  SCOPED_TRACE(row.caption);
  lmx::c_cracked_name cracked;
  cracked.set(&scope, row.name);
  EXPECT_EQ(row.name, cracked.name());
  EXPECT_EQ(row.has_prefix, cracked.has_prefix());
  EXPECT_EQ(row.local_name, string(cracked.local_name(), cracked.local_length()));
  const std::size_t colon = row.name.find(':');
  EXPECT_EQ(row.name.substr(0, colon == string::npos ? 0 : colon), cracked.prefix());
  EXPECT_EQ(row.id, cracked.ns_id());
  EXPECT_EQ(row.element_id, cracked.get_element_ns_id());
  cracked.set_for_attribute(&scope, row.name);
  EXPECT_EQ(row.attribute_id, cracked.ns_id());
  EXPECT_EQ(row.local_name, string(cracked.local_name(), cracked.local_length()));
}

TEST(CrackedName, PartsAtTheFirstColon) {
  lmx::c_xml_local scope;
  scope.add_namespace("p", 1000);
  scope.add_namespace("gone", 0);
  for (auto const& row : {Cracked{"no prefix, no default", "a", false, "a", 1, 1, 1},
                          Cracked{"bound prefix", "p:a", true, "a", 1000, 1000, 1000},
                          Cracked{"unbound prefix", "q:a", true, "a", 0, 0, 0},
                          Cracked{"prefix bound to nothing", "gone:a", true, "a", 0, 0, 0},
                          Cracked{"xml", "xml:lang", true, "lang", 2, 2, 2},
                          Cracked{"second colon", "p:a:b", true, "a:b", 1000, 1000, 1000},
                          Cracked{"two colons", "p::b", true, ":b", 1000, 1000, 1000},
                          Cracked{"empty prefix", ":a", true, "a", 1, 1, 1},
                          Cracked{"nothing behind the colon", "p:", true, "", 1000, 1000, 1000},
                          Cracked{"nothing", "", false, "", 1, 1, 1}}) {
    expect_cracked(scope, row);
  }
}

TEST(CrackedName, OfAReaderIsThereForDerivedReaders) {
  class OwnReader : public lmx::c_xml_reader {
   public:
    using c_xml_reader::c_xml_reader;
    lmx::c_cracked_name const& cracked() const { return m_cracked_name; }
  };
  MemoryRead memory("<p:a/>");
  OwnReader reader(memory);
  lmx::elmx_error error;
  reader.get_element_event(&error, &reader.m_name);
  EXPECT_EQ("p", reader.cracked().prefix());
  EXPECT_STREQ("a", reader.cracked().local_name());
  EXPECT_EQ(0, reader.cracked().ns_id());
}

TEST(CrackedName, TakesTheDefaultNamespaceForElementsOnly) {
  lmx::c_xml_local scope;
  scope.add_namespace("", 1000);
  expect_cracked(scope, {"bound default", "a", false, "a", 1000, 1000, 1});
  scope.add_namespace("", 1);
  expect_cracked(scope, {"default taken back", "a", false, "a", 1, 1, 1});
  scope.add_namespace("", 0);
  expect_cracked(scope, {"default bound to nothing", "a", false, "a", 0, 1, 1});
}

TEST(AnyInfo, IsMadeOfItsThreeTexts) {
  const lmx::c_any_info info("urn:p", "p:a", "1");
  EXPECT_EQ("urn:p", info.m_namespace);
  EXPECT_EQ("p:a", info.m_name);
  EXPECT_EQ("1", info.m_value);
  EXPECT_TRUE(info.m_context.m_items.empty());
}

// --- Documents -------------------------------------------------------------------------------------------

/// The id of each element's name, in document order: "a=1 p:b=1000 ". One scope for each level of content.
string resolve(lmx::c_xml_reader& reader) {
  string seen;
  const lmx::c_xml_reader_local scope(reader);
  for (;;) {
    lmx::elmx_error error;
    string name;
    reader.get_element_event(&error, &name);
    if (error != lmx::ELMX_OK || reader.m_event != lmx::EXE_TOKEN) return seen;
    seen += name + "=" + std::to_string(reader.get_ns_id(reader.mp_local, name)) + " ";
    bool is_empty = false;
    reader.skip_start_tag(&is_empty);
    if (!is_empty) seen += resolve(reader);
  }
}

struct Ids {
  const char* caption;
  string document, ids;
};
std::ostream& operator<<(std::ostream& out, Ids const& row) { return out << row.caption; }
class NamesInDocuments : public testing::TestWithParam<Ids> {};
TEST_P(NamesInDocuments, ResolveInTheirScope) {
  with_each_source(GetParam().document, [](lmx::c_read& read) {
    lmx::c_xml_reader reader(read);
    EXPECT_EQ(GetParam().ids, resolve(reader));
  });
}
INSTANTIATE_TEST_SUITE_P(
    Namespaces, NamesInDocuments,
    testing::Values(
        Ids{"none declared", "<a><p:b/><xml:c/></a>", "a=1 p:b=0 xml:c=2 "},
        Ids{"a default", "<a xmlns='u'><b><c/></b></a>", "a=1000 b=1000 c=1000 "},
        Ids{"taken back inside", "<a xmlns='u'><b xmlns=''><c/></b><d/></a>", "a=1000 b=1 c=1 d=1000 "},
        Ids{"a prefix", "<p:a xmlns:p='u'><b/><p:c/></p:a>", "p:a=1000 b=1 p:c=1000 "},
        Ids{"taken back inside", "<p:a xmlns:p='u'><p:b xmlns:p=''><p:c/></p:b><p:d/></p:a>",
            "p:a=1000 p:b=0 p:c=0 p:d=1000 "},
        Ids{"bound anew inside", "<p:a xmlns:p='u'><p:b xmlns:p='v'><p:c/></p:b><p:d/></p:a>",
            "p:a=1000 p:b=1001 p:c=1001 p:d=1000 "},
        Ids{"siblings see their own", "<a><p:b xmlns:p='u'/><p:c xmlns:p='v'/><p:d/></a>",
            "a=1 p:b=1000 p:c=1001 p:d=0 "},
        Ids{"siblings with content", "<a><p:b xmlns:p='u'><p:c/></p:b><p:d xmlns:p='v'><p:e/></p:d></a>",
            "a=1 p:b=1000 p:c=1000 p:d=1001 p:e=1001 "},
        Ids{"an emptied scope looks outwards", "<a xmlns='u'><b xmlns:p='v'/><c/><p:d/></a>",
            "a=1000 b=1000 c=1000 p:d=0 "},
        Ids{"one URI, two prefixes", "<a xmlns:p='u' xmlns:q='u'><p:b/><q:c/></a>", "a=1 p:b=1000 q:c=1000 "},
        Ids{"a URI comes back", "<a><p:b xmlns:p='u'/><p:c xmlns:p='v'/><q:d xmlns:q='u'/></a>",
            "a=1 p:b=1000 p:c=1001 q:d=1000 "},
        Ids{"twice in one tag", "<p:a xmlns:p='u' xmlns:p='v'/>", "p:a=1001 "},
        Ids{"the standard ones", "<a xmlns:i='" XSI_URI "' xmlns:x='" XML_URI "'><i:b/><x:c/></a>",
            "a=1 i:b=5 x:c=2 "},
        Ids{"xml stays", "<xml:a xmlns:xml='u'/>", "xml:a=2 "},
        Ids{"references in a URI", "<a xmlns:p='x&amp;y' xmlns:q='x&#38;y'><p:b/><q:c/></a>",
            "a=1 p:b=1000 q:c=1000 "},
        Ids{"references and plain text", "<a xmlns:p='&#117;' xmlns:q='u'><p:b/><q:c/></a>",
            "a=1 p:b=1000 q:c=1000 "},
        Ids{"up to a reference that means nothing", "<a xmlns:p='x&y;z' xmlns:q='x&amp;y;'><p:b/><q:c/></a>",
            "a=1 p:b=1000 q:c=1000 "},
        Ids{"either quote, blanks and line ends around", "<p:a\n xmlns:p\n = \n\"it's\" />", "p:a=1000 "},
        Ids{"only looks like a declaration", "<a xmlnsp='u' xmlns-p='v'><p:b/></a>", "a=1 p:b=0 "}));

TEST(Declarations, AreNoAttributes) {
  with_each_source("<a xmlns='u' b='1' xmlns:p='v' xmlns:q=''/>", [](lmx::c_read& read) {
    lmx::c_xml_reader reader(read);
    lmx::elmx_error error;
    string name;
    reader.get_element_event(&error, &name);
    ASSERT_TRUE(reader.get_attribute_event(nullptr, &error, &name));
    EXPECT_EQ("b", name);
    reader.skip_attribute_value();
    EXPECT_FALSE(reader.get_attribute_event(nullptr, &error, &name));
    EXPECT_EQ(lmx::EXE_ELEMENT_END, reader.m_event);
  });
}

TEST(Declarations, OfSkippedContentEndWithIt) {
  with_each_source("<a xmlns:p='u'><q:b/></a><p:c/>", [](lmx::c_read& read) {
    lmx::c_xml_reader reader(read);
    lmx::elmx_error error;
    string name;
    reader.get_element_event(&error, &name);
    EXPECT_TRUE(reader.skip_rest_of_element(name));
    reader.get_element_event(&error, &name);
    EXPECT_EQ("p:c", name);
    EXPECT_EQ(0, reader.get_ns_id(reader.mp_local, name));
  });
}

TEST(Declarations, CostTheSameHoweverManyThereAre) {
  string document = "<a";
  for (int i = 0; i != 100000; ++i) {
    const string number = std::to_string(i);
    document += " xmlns:p" + number + "='u" + number + "'";
  }
  document += "><p0:b/><p99999:c/></a>";
  MemoryRead memory(document);
  lmx::c_xml_reader reader(memory);
  EXPECT_EQ("a=1 p0:b=1000 p99999:c=100999 ", resolve(reader));
}

TEST(SchemaInstanceAttribute, IsKnownByItsNamespaceAlone) {
  MemoryRead memory("");
  lmx::c_xml_reader reader(memory);
  lmx::c_xml_local scope;
  scope.add_namespace("i", 5);
  scope.add_namespace("p", 1000);
  EXPECT_TRUE(reader.is_xsi_attribute(&scope, "i:type"));
  EXPECT_TRUE(reader.is_xsi_attribute(&scope, "i:anything"));
  EXPECT_FALSE(reader.is_xsi_attribute(&scope, "p:type"));
  EXPECT_FALSE(reader.is_xsi_attribute(&scope, "xsi:type")) << "a name like any other until it is bound";
  EXPECT_FALSE(reader.is_xsi_attribute(&scope, "type"));
  scope.add_namespace("", 5);
  EXPECT_TRUE(reader.is_xsi_attribute(&scope, "type")) << "here the default namespace counts";
}

TEST(NamespaceMap, BindsTheUrisOfASchemaToItsIds) {
  constexpr lmx::s_ns_map map[] = {{7, "s", "schema"}, {1000, "t", "other"}, {0, nullptr, nullptr}};
  with_each_source("<p:a xmlns:p='schema' xmlns:q='other' xmlns:r='new'><q:b/><r:c/><s:d/></p:a>",
                   [&](lmx::c_read& read) {
                     lmx::c_xml_reader reader(read);
                     reader.set_ns_map(map);
                     EXPECT_EQ("p:a=7 q:b=1000 r:c=1001 s:d=0 ", resolve(reader));
                   });
}

TEST(NamespaceMapping, BindsAPrefixForTheWholeDocumentOnceTheMapIsSet) {
  constexpr lmx::s_ns_map empty[] = {{0, nullptr, nullptr}};
  with_each_source("<p:a><p:b xmlns:p='v'/><p:c/><q:d xmlns:q='u'/></p:a>", [&](lmx::c_read& read) {
    lmx::c_xml_reader reader(read);
    reader.add_namespace_mapping("p", "u");
    EXPECT_EQ(0, reader.mp_local->find_namespace_id("p")) << "only noted so far";
    EXPECT_EQ(0, reader.find_enumerated_namespace("u"));
    reader.set_ns_map(empty);
    EXPECT_EQ(1000, reader.mp_local->find_namespace_id("p"));
    EXPECT_EQ("p:a=1000 p:b=1001 p:c=1000 q:d=1000 ", resolve(reader));
  });
}

TEST(Rewind, ForgetsTheIdsOfADocument) {
  with_each_source("<p:a xmlns:p='u'/>", [](lmx::c_read& read) {
    lmx::c_xml_reader reader(read);
    EXPECT_EQ("p:a=1000 ", resolve(reader));
    EXPECT_EQ(1000, reader.find_enumerated_namespace("u"));
    reader.rewind();
    EXPECT_EQ(0, reader.find_enumerated_namespace("u"));
    EXPECT_EQ("p:a=1000 ", resolve(reader));
  });
}

}  // namespace
