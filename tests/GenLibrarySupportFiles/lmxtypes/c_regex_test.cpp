// The pattern facet over libxml2's expressions.
#include "GenLibrarySupportFiles/lmxtypes/c_regex.h"

#include <gtest/gtest.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlregexp.h>

#include <atomic>
#include <new>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include "support/failing_libxml2.h"

namespace {

using namespace std::string_literals;

struct Match {
  const char* caption;
  std::string pattern, text;
  bool is_match;
};

class Patterns : public testing::TestWithParam<Match> {};

TEST_P(Patterns, MatchTheWholeText) {
  auto const& [caption, pattern, text, is_match] = GetParam();
  EXPECT_EQ(is_match, lmx::c_regex(pattern).is_match(text)) << caption;
}

INSTANTIATE_TEST_SUITE_P(
    Regex, Patterns,
    testing::Values(Match{"exact", "abc", "abc", true}, Match{"more behind", "abc", "abcd", false},
                    Match{"more before", "abc", "xabc", false}, Match{"less", "abc", "ab", false},
                    Match{"empty pattern, empty text", "", "", true}, Match{"empty pattern", "", "a", false},
                    Match{"empty text", "a", "", false}, Match{"case counts", "abc", "ABC", false},
                    Match{"either", "(TSK|TSK-)[0-9]+", "TSK-12", true},
                    Match{"neither", "(TSK|TSK-)[0-9]+", "TSK", false},
                    Match{"counted", "[0-9]{2,3}", "1234", false},
                    Match{"within the count", "[0-9]{2,3}", "123", true},
                    Match{"a point takes any character but a line end", "a.c", "a/c", true},
                    Match{"not a line end", "a.c", "a\nc", false},
                    Match{"one character of several bytes", "a.c", "a\xE2\x82\xAC"s + "c", true},
                    Match{"Unicode category", "\\p{Lu}+", "\xC3\x89", true},
                    Match{"Unicode block", "\\p{IsGreek}", "\xCE\xB1", true},
                    Match{"XSD knows no anchors", "^a$", "a", false},
                    Match{"text up to a NUL", "ab", "ab\0cd"s, true},
                    Match{"text starts with a NUL", "ab", "\0ab"s, false},
                    Match{"pattern up to a NUL", "ab\0cd"s, "ab", true}));

struct Bad {
  const char* caption;
  std::string pattern;
};

class BadPatterns : public testing::TestWithParam<Bad> {};

TEST_P(BadPatterns, MatchNothingAndPrintNothing) {
  auto const& [caption, pattern] = GetParam();
  testing::internal::CaptureStderr();
  {
    lmx::c_regex const regex(pattern);
    for (auto const& text : {""s, "a"s, pattern, "\xFF"s}) EXPECT_FALSE(regex.is_match(text)) << caption;
  }
  EXPECT_EQ("", testing::internal::GetCapturedStderr()) << caption;
}

INSTANTIATE_TEST_SUITE_P(Regex, BadPatterns,
                         testing::Values(Bad{"class not closed", "[a"}, Bad{"group not closed", "(a"},
                                         Bad{"unknown property", "\\p{Foo}"}, Bad{"lone star", "*"},
                                         Bad{"unknown escape", "\\y"}, Bad{"no UTF-8", "a\xFF"},
                                         Bad{"group closed too often", "a)"}));

// Bytes that are not UTF-8 are an error of the engine, which reports it by a negative result.
TEST(Regex, TakesAnErrorOfTheEngineForAMatch) {
  xmlRegexp* const engine = xmlRegexpCompile(reinterpret_cast<xmlChar const*>("a"));
  ASSERT_NE(nullptr, engine);
  EXPECT_GT(0, xmlRegexpExec(engine, reinterpret_cast<xmlChar const*>("\xFF")));
  xmlRegFreeRegexp(engine);
  EXPECT_TRUE(lmx::c_regex("a").is_match("\xFF"));
}

int errors_heard;

TEST(Regex, LeavesTheHostsErrorHandlerAsItWas) {
  auto const hear = [](void*, auto) { ++errors_heard; };
  int context = 0;
  xmlSetStructuredErrorFunc(&context, hear);
  xmlStructuredErrorFunc const handler = xmlStructuredError;
  errors_heard = 0;
  lmx::c_regex("[a");
  lmx::c_regex("a");
  EXPECT_EQ(0, errors_heard);
  EXPECT_EQ(handler, xmlStructuredError);
  EXPECT_EQ(&context, xmlStructuredErrorContext);
  EXPECT_EQ(nullptr, xmlRegexpCompile(reinterpret_cast<xmlChar const*>("[a")));
  EXPECT_LT(0, errors_heard) << "the host's own calls still reach it";
  xmlSetStructuredErrorFunc(nullptr, nullptr);
}

TEST(Regex, KeepsTheEnginesErrorsToItselfWhileItMatches) {
  lmx::c_regex const regex("(a|ab)(c|bcd)*d?");  // ways are kept to come back to, which takes memory
  std::string const text = "abcdbcdd";
  EXPECT_TRUE(regex.is_match(text));
  xmlSetStructuredErrorFunc(nullptr, [](void*, auto) { ++errors_heard; });
  xmlResetLastError();
  errors_heard = 0;
  for (long n = 1;; ++n) {
    libxml2_memory::fail_at(n, true);
    bool is_out_of_memory = false;
    try {
      EXPECT_TRUE(regex.is_match(text)) << n;
    } catch (std::bad_alloc const&) {
      is_out_of_memory = true;
    }
    bool const has_failed = libxml2_memory::stop_failing();
    EXPECT_EQ(has_failed, is_out_of_memory) << n;
    if (!has_failed) break;
  }
  EXPECT_EQ(0, errors_heard);
  EXPECT_EQ(nullptr, xmlGetLastError());
  xmlSetStructuredErrorFunc(nullptr, nullptr);
}

TEST(Regex, LeavesTheHostsLastErrorAsItWas) {
  xmlSetStructuredErrorFunc(nullptr, [](void*, auto) {});
  xmlResetLastError();
  lmx::c_regex("[a");
  EXPECT_EQ(nullptr, xmlGetLastError()) << "none before, none after";

  EXPECT_EQ(nullptr, xmlRegexpCompile(reinterpret_cast<xmlChar const*>("\\p{Host}")));
  ASSERT_NE(nullptr, xmlGetLastError());
  std::string const message = xmlGetLastError()->message;
  int const code = xmlGetLastError()->code;
  lmx::c_regex("[a");
  lmx::c_regex("a");
  ASSERT_NE(nullptr, xmlGetLastError());
  EXPECT_EQ(message, xmlGetLastError()->message);
  EXPECT_EQ(code, xmlGetLastError()->code);
  xmlResetLastError();
  xmlSetStructuredErrorFunc(nullptr, nullptr);
}

TEST(Regex, IsNeverCopied) {
  EXPECT_FALSE(std::is_copy_constructible_v<lmx::c_regex>);
  EXPECT_FALSE(std::is_copy_assignable_v<lmx::c_regex>);
  EXPECT_TRUE(std::has_virtual_destructor_v<lmx::c_regex>);
}

TEST(Regex, ServesSeveralThreadsAtOnce) {
  lmx::c_regex const automaton("(FRM|FRM-)([0-9])+");
  lmx::c_regex const counted("[A-Z]{3}[0-9]{5,7}|[0-9a-f]{4}(-[0-9a-f]{4}){2}");
  std::atomic<int> wrong{0};
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([&] {
      for (int round = 0; round < 500; ++round) {
        bool const right = automaton.is_match("FRM-123") && !automaton.is_match("FRM-") &&
                           counted.is_match("GRD00001") && !counted.is_match("GRD0001") &&
                           counted.is_match("00ff-1234-abcd") && !counted.is_match("00ff-1234");
        if (!right) ++wrong;
      }
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_EQ(0, wrong);
}

// Guards against a hang only: time is not judged.
TEST(Regex, MatchesAVeryLongText) {
  lmx::c_regex const regex("([0-9A-Fa-f]{2})*");
  std::string text(4u << 20, 'F');
  EXPECT_TRUE(regex.is_match(text));
  text += 'F';
  EXPECT_FALSE(regex.is_match(text));
}

}  // namespace
