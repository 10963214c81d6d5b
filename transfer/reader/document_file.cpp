#include "transfer/reader/document_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lmx::detail {

namespace {

bool is_document(struct stat const& status) { return S_ISREG(status.st_mode) || S_ISDIR(status.st_mode); }

}  // namespace

std::FILE* open_document(char const* path) {
  struct stat status;
  // Asked before it is opened: to be opened is enough to let a FIFO's writer go on, or to start a device.
  if (::stat(path, &status) != 0 || !is_document(status)) return nullptr;
  // What took the file's place in between is not waited for either. Files and directories know no difference.
  const int descriptor = ::open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
  if (descriptor == -1) return nullptr;
  std::FILE* const file =
      ::fstat(descriptor, &status) == 0 && is_document(status) ? ::fdopen(descriptor, "rb") : nullptr;
  if (file == nullptr) ::close(descriptor);
  return file;
}

std::optional<file_identity> identity_of(char const* path) {
  struct stat status;
  if (::stat(path, &status) != 0) return std::nullopt;
  return file_identity(status.st_dev, status.st_ino);
}

}  // namespace lmx::detail
