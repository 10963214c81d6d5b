// The files of a transfer set: which of them are opened, and which are one and the same. Not installed.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <utility>

namespace lmx::detail {

/// Opens a file or a directory for reading. Null when that fails, and at once for a FIFO, a socket or a
/// device, which is neither read nor waited for.
std::FILE* open_document(char const* path);

/// What tells a file from all others, under whatever name: its device, and its number there.
using file_identity = std::pair<std::uintmax_t, std::uintmax_t>;

/// Of what `path` leads to; none when there is no such file.
std::optional<file_identity> identity_of(char const* path);

}  // namespace lmx::detail
