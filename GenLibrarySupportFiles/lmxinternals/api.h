// What every public header starts from: the export mark and the assertion for callers' errors.
#pragma once

#include <cstddef>

/// Marks a class, function or object as part of the library's binary interface.
#define ISOXML_API __attribute__((visibility("default")))

namespace lmx::detail {

/// Writes the condition's text with its place to standard error and stops the process.
/// Never returns, and never throws: the caller has broken a contract.
[[noreturn]] ISOXML_API void assertion_failed(char const* condition, char const* file, int line) noexcept;

/// Throws `std::out_of_range` in the words of `vector::at`.
[[noreturn]] ISOXML_API void throw_range_check(std::size_t index, std::size_t size);

}  // namespace lmx::detail

/// Stops the process, also in release builds, when a caller breaks a contract. `text` is what is
/// printed as the condition. Content of a document never gets here.
#define LMX_ASSERT_TEXT(condition, text) \
  ((condition) ? static_cast<void>(0) : ::lmx::detail::assertion_failed((text), __FILE__, __LINE__))

/// The same with the condition's own text.
#define LMX_ASSERT(condition) LMX_ASSERT_TEXT(condition, #condition)
