// How a value of each type stands in a document, put into a buffer. The stream output of the types goes this
// way too, so each form is written down once.
//
// Private to the library.
#pragma once

#include <charconv>
#include <iosfwd>
#include <limits>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/output_buffer.h"

namespace velmo::lmx {

class high_precision_c_decimal;

}  // namespace velmo::lmx

namespace lmx {

class c_binary;
class c_datetime;

namespace detail {

void put(output_buffer& out, std::string const& value);  // escaped
void put(output_buffer& out, bool const& value);
void put(output_buffer& out, double const& value);
// The next two leave the stream's width at 0, the first for no bytes apart, and its fill character at "0".
void put(output_buffer& out, c_binary const& value);
void put(output_buffer& out, c_datetime const& value);
void put(output_buffer& out, velmo::lmx::high_precision_c_decimal const& value);

template <class T>
void put_digits(output_buffer& out, T value) {
  constexpr std::size_t most = std::numeric_limits<T>::digits10 + 2;  // one more digit, and a sign
  char* const digits = out.room_for(most);
  out.advance_to(std::to_chars(digits, digits + most, value).ptr);
}

inline void put(output_buffer& out, unsigned char const& value) {
  put_digits(out, static_cast<unsigned int>(value));
}
inline void put(output_buffer& out, unsigned short const& value) { put_digits(out, value); }
inline void put(output_buffer& out, int const& value) { put_digits(out, value); }
inline void put(output_buffer& out, unsigned int const& value) { put_digits(out, value); }

/// Writes a value to a stream.
template <class T>
std::ostream& put_through(std::ostream& stream, T const& value) {
  output_buffer out(stream);
  put(out, value);
  out.flush();
  return stream;
}

}  // namespace detail
}  // namespace lmx
