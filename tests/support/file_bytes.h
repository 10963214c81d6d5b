// The bytes of a file.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

inline std::string file_bytes(std::filesystem::path const& path) {
  std::ifstream stream(path, std::ios::binary);
  if (!stream) throw std::runtime_error("can not read " + path.string());
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}
