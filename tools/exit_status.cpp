#include "tools/exit_status.h"

namespace {

struct Row {
  ExitStatus status;
  char const* meaning;
};

constexpr Row rows[] = {
    {ExitStatus::AllGood, "all documents of the set are good"},
    {ExitStatus::SomeFailed, "some documents failed, the rest is shown"},
    {ExitStatus::WrongUsage, "wrong usage"},
    {ExitStatus::NoResult,
     "no result: the main document could not be read, there is no such task, or the output could not be "
     "written"},
};

}  // namespace

std::string exit_status_help() {
  std::string text = "Exit status:\n";
  for (Row const& row : rows) {
    text += "  " + std::to_string(static_cast<int>(row.status)) + "  " + row.meaning + '\n';
  }
  return text;
}
