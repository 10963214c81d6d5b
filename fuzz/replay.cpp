// Runs a target's kept inputs where there is no fuzzer:  replay_TARGET FILE_OR_DIRECTORY...
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

int main(int count, char** arguments) {
  namespace fs = std::filesystem;
  std::vector<fs::path> files;
  for (int i = 1; i < count; ++i) {
    if (!fs::is_directory(arguments[i])) {
      files.emplace_back(arguments[i]);
      continue;
    }
    for (auto const& entry : fs::directory_iterator(arguments[i])) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  for (fs::path const& file : files) {
    std::ifstream stream(file, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream) {
      std::fprintf(stderr, "%s: can not be read\n", file.c_str());
      return 1;
    }
    std::printf("%s\n", file.filename().c_str());
    std::fflush(stdout);  // so that the last name is that of an input that stops the process
    // Of exactly the input's size, so that a step past its end is seen.
    std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
    input.shrink_to_fit();
    LLVMFuzzerTestOneInput(input.data(), input.size());
  }
  std::printf("%zu inputs\n", files.size());
  return files.empty() ? 1 : 0;
}
