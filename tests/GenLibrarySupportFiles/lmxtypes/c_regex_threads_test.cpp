// The first patterns of a process, asked for in several threads at once. Each test runs in a process of its
// own, so nothing was initialised before it; the sanitized build tells whether one thread meets another.
#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "GenLibrarySupportFiles/lmxtypes/c_regex.h"
#include "isoxmllib/isoxmllib.h"
#include "support/memory_read.h"
#include "transfer/reader/xmlReader.h"

namespace {

constexpr std::size_t thread_count = 8;

// Runs `work(i)` in each thread at the same moment.
template <class Work>
void start_together(Work work) {
  std::atomic<std::size_t> ready{0};
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i != thread_count; ++i) {
    threads.emplace_back([&, i] {
      for (++ready; ready != thread_count;) std::this_thread::yield();
      work(i);
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(ColdThreads, CompileDifferentPatternsAtOnce) {
  std::vector<int> right(thread_count);
  start_together([&](std::size_t i) {
    std::string const number = std::to_string(i);
    lmx::c_regex const regex("(ABC|ABC-)([0-9]){1,5}\\p{Lu}\\p{IsGreek}" + number);
    right[i] = regex.is_match("ABC-12A\xCE\xB1" + number) && !regex.is_match("ABC-12A" + number);
  });
  EXPECT_EQ(std::vector<int>(thread_count, 1), right);
}

TEST(ColdThreads, CompileOnePatternTogether) {
  lmx::c_regex const regex("(ABC|ABC-)([0-9]){1,5}\\p{Lu}");
  std::vector<int> right(thread_count);
  start_together([&](std::size_t i) { right[i] = regex.is_match("ABC-12A") && !regex.is_match("ABC-12"); });
  EXPECT_EQ(std::vector<int>(thread_count, 1), right);
}

TEST(ColdThreads, RefuseBadPatternsAtOnce) {
  std::vector<int> right(thread_count);
  start_together(
      [&](std::size_t i) { right[i] = !lmx::c_regex(i % 2 == 0 ? "[a" : "\\p{Foo}").is_match("a"); });
  EXPECT_EQ(std::vector<int>(thread_count, 1), right);
}

// The references make the engine decide.
TEST(ColdThreads, ReadDocumentsWhosePatternsDiffer) {
  char const* const documents[] = {"<TSK A='TSK&#49;' G='1'/>",
                                   "<FRM A='FRM&#49;' B='b'/>",
                                   "<CTR A='CTR&#49;' B='b'/>",
                                   "<WKR A='WKR&#49;' B='b'/>",
                                   "<VPN A='VPN&#49;' B='0' C='1' D='1'/>",
                                   "<PGP A='PGP&#49;' B='b'/>",
                                   "<CTP A='CTP&#49;' B='b'/>",
                                   "<TSK A='TSK&#50;' G='1' D='FRM&#49;'/>"};
  std::vector<int> errors(thread_count, -1);
  start_together([&](std::size_t i) {
    MemoryRead document(documents[i % std::size(documents)]);
    lmx::xmlReader reader(document);
    errors[i] = Root().unmarshal(reader);
  });
  EXPECT_EQ(std::vector<int>(thread_count, 0), errors);
}

}  // namespace
