// How fast a document goes from bytes in a file to typed elements, against reading the bytes alone.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "transfer/IsoXmlParser.h"

namespace {

constexpr char const header[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<ISO11783_TaskData VersionMajor=\"4\" VersionMinor=\"3\" ManagementSoftwareManufacturer=\"bench\" "
    "ManagementSoftwareVersion=\"1\" DataTransferOrigin=\"1\">\n";

// A document of `count` times `element`, in a directory of its own.
class BenchSet {
 public:
  BenchSet(std::string const& element, int count)
      : m_directory(std::filesystem::temp_directory_path() / "isoxml_bench_XXXXXX") {
    std::string name = m_directory.string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    m_directory = name;
    std::ofstream out(path(), std::ios::binary);
    out << header;
    for (int i = 0; i != count; ++i) out << element;
    out << "</ISO11783_TaskData>\n";
  }
  ~BenchSet() { std::filesystem::remove_all(m_directory); }
  BenchSet(BenchSet const&) = delete;
  BenchSet& operator=(BenchSet const&) = delete;

  std::string directory() const { return m_directory.string(); }
  std::string path() const { return (m_directory / "TASKDATA.XML").string(); }
  std::int64_t size() const { return static_cast<std::int64_t>(std::filesystem::file_size(path())); }

 private:
  std::filesystem::path m_directory;
};

void open_set(benchmark::State& state, std::string const& element) {
  const BenchSet set(element, 20000);
  for (auto _ : state) {
    const IsoXmlParser parser(set.directory(), "TASKDATA.XML");
    if (!parser.getErrors().empty()) state.SkipWithError("the document was refused");
  }
  state.SetBytesProcessed(state.iterations() * set.size());
}

void read_bytes(benchmark::State& state) {
  const BenchSet set("<Foo A=\"1\" B=\"some text\"/>\n", 20000);
  for (auto _ : state) {
    lmx::c_read_file file(set.path().c_str());
    unsigned sum = 0;
    for (int c = file.get(); c != -1; c = file.get()) sum += static_cast<unsigned>(c);
    benchmark::DoNotOptimize(sum);
  }
  state.SetBytesProcessed(state.iterations() * set.size());
}

BENCHMARK(read_bytes);
BENCHMARK_CAPTURE(
    open_set, capabilities,
    "  <TCC A=\"0102030405060708\" B=\"Some designator\" C=\"4\" D=\"63\" E=\"1\" F=\"2\" G=\"3\"/>\n");
BENCHMARK_CAPTURE(open_set, skipped, "  <Foo A=\"1\" B=\"some text\"><Bar/>text</Foo>\n");

}  // namespace
