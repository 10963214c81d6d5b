// Long lists of short texts, written in one.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The texts between the bars of "one|two||four".
inline std::vector<std::string> split(std::string_view text) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t bar = text.find('|');
    parts.emplace_back(text.substr(0, bar));
    if (bar == std::string_view::npos) return parts;
    text.remove_prefix(bar + 1);
  }
}
