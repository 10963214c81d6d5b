// The tables that match patterns against the engine that they stand in for. Two deterministic automata of at
// most n states are equal if they agree on every text made of a way to each state, one further byte, and an
// ending that tells two states apart; that is what is tried here, and then texts at random.

#include "isoxmllib/matchers.h"

#include <gtest/gtest.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlregexp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <map>
#include <new>
#include <queue>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxtypes/c_regex.h"
#include "isoxmllib/isoxmllib.h"
#include "support/failing_libxml2.h"
#include "support/memory_read.h"
#include "transfer/reader/xmlReader.h"

namespace {

using binding::text_matcher;

constexpr unsigned start = 1;
constexpr char first_printable = ' ';
constexpr char last_printable = '~';

bool matches(text_matcher const& matcher, std::string const& text) {
  return matcher.matches({text.data(), text.data() + text.size()});
}

/// The engine counts one repetition of a pattern too generously: where what is repeated also fits what stands
/// before it, as in "x\.[x.]{1,10}", it takes longer texts. Texts that a table refuses are left to the
/// engine, so that stays as it is; what a table takes, the engine must take too.
bool is_taken_generously(text_matcher const& matcher) {
  return std::string(matcher.pattern).find("\\.([0-9A-Z.]){1,10}") != std::string::npos;
}

void expect_agreement(text_matcher const& matcher, lmx::c_regex const& engine, std::string const& text) {
  bool const taken = matches(matcher, text);
  if (is_taken_generously(matcher) && !taken) return;
  ASSERT_EQ(engine.is_match(text), taken) << matcher.pattern << ": " << text;
}

/// A shortest text that leads to each state.
std::map<unsigned, std::string> ways(text_matcher const& matcher) {
  std::map<unsigned, std::string> found{{start, ""}};
  std::queue<unsigned> pending({start});
  for (; !pending.empty(); pending.pop()) {
    for (char c = first_printable; c <= last_printable; ++c) {
      unsigned const next = matcher.step(pending.front(), c);
      if (found.emplace(next, found[pending.front()] + c).second) pending.push(next);
    }
  }
  return found;
}

/// A shortest text for each two states that is accepted from one of them and not from the other.
std::set<std::string> endings(text_matcher const& matcher) {
  std::set<std::string> found{""};
  for (unsigned a = 0; a != matcher.state_count; ++a) {
    for (unsigned b = a + 1; b != matcher.state_count; ++b) {
      std::set<std::pair<unsigned, unsigned>> seen{{a, b}};
      std::queue<std::pair<std::pair<unsigned, unsigned>, std::string>> pending;
      pending.push({{a, b}, ""});
      for (bool apart = false; !apart && !pending.empty();) {
        auto const [states, text] = pending.front();
        pending.pop();
        apart = matcher.accepting[states.first] != matcher.accepting[states.second];
        if (apart) found.insert(text);
        for (char c = first_printable; !apart && c <= last_printable; ++c) {
          std::pair<unsigned, unsigned> const next{matcher.step(states.first, c),
                                                   matcher.step(states.second, c)};
          if (next.first != next.second && seen.insert(next).second) pending.push({next, text + c});
        }
      }
    }
  }
  return found;
}

class Matchers : public testing::TestWithParam<text_matcher const*> {};

TEST_P(Matchers, ReachEveryState) {
  text_matcher const& matcher = *GetParam();
  EXPECT_EQ(matcher.state_count, ways(matcher).size());
}

TEST_P(Matchers, AgreeWithTheEngineOnEveryStepFromEveryState) {
  text_matcher const& matcher = *GetParam();
  lmx::c_regex const engine(matcher.pattern);
  std::set<std::string> const ends = endings(matcher);
  unsigned accepted = 0;
  for (auto const& [state, way] : ways(matcher)) {
    for (char c = first_printable; c <= last_printable; ++c) {
      for (std::string const& end : ends) {
        std::string const text = way + c + end;
        expect_agreement(matcher, engine, text);
        if (HasFatalFailure()) return;
        accepted += matches(matcher, text);
      }
    }
  }
  EXPECT_GT(accepted, 0u);
}

TEST_P(Matchers, AgreeWithTheEngineOnRandomTexts) {
  text_matcher const& matcher = *GetParam();
  lmx::c_regex const engine(matcher.pattern);
  std::vector<std::string> alive(matcher.state_count);  // the bytes that keep a match possible
  for (unsigned state = 0; state != matcher.state_count; ++state) {
    for (char c = first_printable; c <= last_printable; ++c) {
      if (matcher.step(state, c) != 0) alive[state] += c;
    }
  }
  std::mt19937 random(36);
  std::string text;
  for (int round = 0; round != 60000; ++round) {
    text.clear();
    unsigned state = start;
    for (std::size_t length = random() % 45; length != 0; --length) {
      if (matcher.accepting[state] && random() % 8 == 0) break;
      bool const is_any = alive[state].empty() || random() % 100 == 0;
      text += is_any ? static_cast<char>(first_printable + static_cast<int>(random() % 95))
                     : alive[state][random() % alive[state].size()];
      state = matcher.step(state, text.back());
    }
    expect_agreement(matcher, engine, text);
    if (HasFatalFailure()) return;
  }
}

// What these mean is the engine's to say.
TEST_P(Matchers, MatchNothingBesidesPrintableCharacters) {
  text_matcher const& matcher = *GetParam();
  for (auto const& [state, way] : ways(matcher)) {
    for (int c = 1; c != 128; ++c) {
      if (c >= first_printable && c <= last_printable) continue;
      EXPECT_EQ(0u, matcher.step(state, static_cast<char>(c))) << matcher.pattern << ": " << way << ' ' << c;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Patterns, Matchers, testing::ValuesIn(binding::matchers),
                         [](auto const& row) { return "pattern_" + std::to_string(row.index); });

// ---- Without memory ----

std::string accepted_text(text_matcher const& matcher) {
  for (auto const& [state, way] : ways(matcher)) {
    if (matcher.accepting[state]) return way;
  }
  return {};
}

/// Whether the engine itself, in a process of its own, gets by without its `n`-th allocation: releases
/// differ.
bool engine_survives(std::string const& pattern, long n, bool for_ever) {
  pid_t const child = fork();
  if (child == 0) {
    std::signal(SIGSEGV, SIG_DFL);
    xmlSetStructuredErrorFunc(nullptr, [](void*, auto) {});
    libxml2_memory::fail_at(n, for_ever);
    xmlRegexpCompile(reinterpret_cast<xmlChar const*>(pattern.c_str()));
    _exit(0);
  }
  int status = -1;
  return child > 0 && waitpid(child, &status, 0) == child && status == 0;
}

TEST(Patterns, AreNotTakenForBadOnesWhenMemoryRunsOut) {
  for (text_matcher const* const matcher : binding::matchers) {
    std::string const text = accepted_text(*matcher);
    ASSERT_TRUE(lmx::c_regex(matcher->pattern).is_match(text)) << matcher->pattern;
    std::string const other = text + ' ';
    bool const is_other_taken = lmx::c_regex(matcher->pattern).is_match(other);
    for (bool const for_ever : {false, true}) {
      bool has_failed = true;
      long const step = for_ever ? 7 : 1;
      for (long n = 1; has_failed; n += step) {
        if (!engine_survives(matcher->pattern, n, for_ever)) continue;
        SCOPED_TRACE(std::string(matcher->pattern) + ", allocation " + std::to_string(n));
        lmx::c_regex const regex(matcher->pattern);
        bool is_taken_or_out_of_memory = false;
        testing::internal::CaptureStderr();
        libxml2_memory::fail_at(n, for_ever);
        try {
          is_taken_or_out_of_memory = regex.is_match(text);
        } catch (std::bad_alloc const&) {
          is_taken_or_out_of_memory = true;
        }
        has_failed = libxml2_memory::stop_failing();
        ASSERT_EQ("", testing::internal::GetCapturedStderr());
        ASSERT_TRUE(is_taken_or_out_of_memory);
        ASSERT_TRUE(regex.is_match(text)) << "the next call tries again";
        ASSERT_EQ(is_other_taken, regex.is_match(other));
      }
    }
  }
}

// The reference makes the engine decide, which then compiles its pattern.
TEST(Patterns, DoNotRefuseAGoodDocumentAfterMemoryRanOut) {
  ASSERT_TRUE(lmx::c_regex("a").is_match("a"));  // what is made once for all patterns
  MemoryRead document("<TSK A='TSK&#49;' G='1'/>");
  int failures = 0;
  bool has_failed = true;
  for (long n = 1; has_failed; ++n) {
    if (!engine_survives("(TSK|TSK-)([0-9])+", n, false)) continue;
    document.rewind();
    lmx::xmlReader reader(document);
    Root root;
    int error = -1;
    bool is_out_of_memory = false;
    libxml2_memory::fail_at(n, false);
    try {
      error = root.unmarshal(reader);
    } catch (std::bad_alloc const&) {
      is_out_of_memory = true;
    }
    has_failed = libxml2_memory::stop_failing();
    ASSERT_TRUE(is_out_of_memory || error == 0) << "allocation " << n;
    if (is_out_of_memory) ++failures;
  }
  EXPECT_LT(5, failures);
}

}  // namespace
