// Records as text, a line for each member: where it stands, such as "fields[3].polygons[0].area", and what it
// holds. Two lists of records are equal when their lines are; the first lines that differ tell how they are
// not.
#pragma once

#include <gtest/gtest.h>

#include <charconv>
#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

class Lines {
 public:
  void add(std::string const& member, std::string const& value) {
    m_lines.push_back({m_path + "." + member, value});
  }
  template <class Number, class = std::enable_if_t<std::is_arithmetic_v<Number>>>
  void add(std::string const& member, Number value) {
    if constexpr (std::is_floating_point_v<Number>) {
      char digits[64];  // hexadecimal: two doubles give one text only when all their bits are equal
      const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::hex);
      add(member, std::string(digits, end.ptr));
    } else {
      add(member, std::to_string(value));
    }
  }
  /// Calls `fill()`, whose lines stand under `name[index]`.
  template <class Fill>
  void within(std::string const& name, std::size_t index, Fill fill) {
    const std::size_t length = m_path.size();
    m_path += (m_path.empty() ? "" : ".") + name + "[" + std::to_string(index) + "]";
    fill();
    m_path.resize(length);
  }

  std::size_t size() const { return m_lines.size(); }

  /// Success, or the first members that differ.
  static testing::AssertionResult equal(Lines const& expected, Lines const& actual) {
    std::string differences;
    int count = 0;
    for (std::size_t i = 0; count != 10 && (i < expected.size() || i < actual.size()); ++i) {
      const Line none = {"nothing", ""};
      Line const& left = i < expected.size() ? expected.m_lines[i] : none;
      Line const& right = i < actual.size() ? actual.m_lines[i] : none;
      if (left.where == right.where && left.value == right.value) continue;
      ++count;
      differences += "\n  expected " + left.where + " = \"" + left.value + "\"\n       got " + right.where +
                     " = \"" + right.value + "\"";
      if (left.where != right.where) break;  // from here on all lines are shifted
    }
    return count == 0 ? testing::AssertionSuccess() : testing::AssertionFailure() << differences;
  }

 private:
  struct Line {
    std::string where, value;
  };
  std::string m_path;
  std::vector<Line> m_lines;
};
