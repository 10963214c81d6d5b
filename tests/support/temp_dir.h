// A directory of a test's own: fresh when made, filled with the files a test needs, gone at the end.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>

class TempDir {
 public:
  TempDir() {
    std::string name = (std::filesystem::temp_directory_path() / "isoxml-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary directory: " + name);
    m_path = name;
  }
  TempDir(TempDir const&) = delete;
  TempDir& operator=(TempDir const&) = delete;
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }

  /// The directory, without a "/" at the end.
  std::string path() const { return m_path.string(); }
  /// The path a file of that name has or would have.
  std::string path(std::string const& name) const { return (m_path / name).string(); }

  /// Writes the bytes as they are; directories named in `name` are made. Returns the file's path.
  std::string write(std::string const& name, std::string const& bytes) const {
    const std::filesystem::path file = m_path / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!stream.flush()) throw std::runtime_error("can not write " + file.string());
    return file.string();
  }

  /// The bytes of a file in the directory; empty when there is none.
  std::string read(std::string const& name) const {
    std::ifstream stream(m_path / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }

 private:
  std::filesystem::path m_path;
};
