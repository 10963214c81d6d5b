// What all programs of the benchmark share: `program FILE [ROUNDS]` does its one job ROUNDS times, one after
// the other, and prints what each time took. The first one is cold: whatever a library sets up once is in it.
//
// Output, one figure on a line: "job <nanoseconds>" and "release <nanoseconds>" for each round; after the
// first job "memory <bytes>", by which the process has grown at its peak, and "result <number>", which is
// what the job is checked by. Time is the processor time of the process: every job is a single thread on a
// file that is in memory already, and so it equals the time that passes on a machine that does nothing else.
// Run by callgrind, the second round's job and release alone are counted, each into a dump of its own.
#pragma once

#include <malloc.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <fstream>
#include <iostream>
#include <limits>
#include <string>

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#else
#define CALLGRIND_START_INSTRUMENTATION
#define CALLGRIND_STOP_INSTRUMENTATION
#define CALLGRIND_DUMP_STATS_AT(name)
#endif

namespace bench {

inline std::int64_t processor_time() {
  timespec now{};
  if (clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now) != 0) std::abort();
  return std::int64_t{now.tv_sec} * 1000000000 + now.tv_nsec;
}

/// A figure of the process from the kernel, in bytes: "VmRSS" for what it holds, "VmHWM" for the most so far.
inline std::int64_t memory(std::string const& figure) {
  std::ifstream status("/proc/self/status");
  for (std::string name; status >> name; status.ignore(std::numeric_limits<std::streamsize>::max(), '\n')) {
    std::int64_t kibibytes = 0;
    if (name == figure + ':' && status >> kibibytes) return kibibytes * 1024;
  }
  std::abort();
}

inline void keep_memory() {
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

template <class Step>
void measure(char const* name, bool counted, Step step) {
  if (counted) CALLGRIND_START_INSTRUMENTATION;
  const std::int64_t begin = processor_time();
  step();
  const std::int64_t end = processor_time();
  if (counted) {
    CALLGRIND_STOP_INSTRUMENTATION;
    CALLGRIND_DUMP_STATS_AT(name);
  }
  std::cout << name << ' ' << end - begin << '\n';
}

/// `Peer` is made from the file's path, untimed; `job` and `release` throw when they fail. `result` is asked
/// between them, untimed.
template <class Peer>
int run(int argc, char** argv) {
  if (argc < 2 || argc > 3) {
    std::cerr << "usage: " << argv[0] << " FILE [ROUNDS]\n";
    return EXIT_FAILURE;
  }
  try {
    const int rounds = argc == 3 ? std::stoi(argv[2]) : 1;
    if (rounds > 1) keep_memory();
    Peer peer(argv[1]);
    const std::int64_t before = memory("VmRSS");
    for (int round = 0; round < rounds; ++round) {
      measure("job", round == 1, [&peer] { peer.job(); });
      if (round == 0) {
        std::cout << "memory " << memory("VmHWM") - before << "\nresult " << peer.result() << '\n';
      }
      measure("release", round == 1, [&peer] { peer.release(); });
    }
    return EXIT_SUCCESS;
  } catch (std::exception const& error) {
    std::cerr << argv[0] << ": " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}

}  // namespace bench
