// What a document may make the reader do. Documents within any use known come nowhere near; one beyond a
// limit is refused with the code that stands beside it.
#pragma once

#include <cstddef>

namespace lmx::limits {

/// Entities that may stand inside one another while a value is expanded as text (fatal `ELMX_BAD_DTD`).
inline constexpr std::size_t nested_entities_in_values = 64;

/// Entities that may be active at once while their text is read as input (fatal `ELMX_BAD_DTD`).
inline constexpr std::size_t active_entities = 1024;

/// The expansion that every document may cause, in bytes delivered from entities; and the multiple of its own
/// bytes that a larger document may. Beyond both: fatal `ELMX_BAD_DTD`.
inline constexpr unsigned long long free_expansion = 8ull * 1024 * 1024;
inline constexpr unsigned long long expansion_factor = 100;
/// What one reference costs, however short its text.
inline constexpr unsigned long long reference_cost = 20;

/// The highest code point that a character reference may name (else the reference fails).
inline constexpr int highest_char_ref = 0x100000;

/// Stack that must be left for one more level of nested elements, which is `ELMX_BADLY_FORMED` else: its
/// attributes, patterns and a host's hooks, and later the calls that copy, check or destroy what was read. On
/// a small stack half of what there is counts.
inline constexpr std::size_t stack_margin = 96 * 1024;
/// What is taken to be there on a stack that is not the thread's own, such as a coroutine's.
inline constexpr std::size_t foreign_stack = 32 * 1024;

}  // namespace lmx::limits
