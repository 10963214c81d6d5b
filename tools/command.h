// The commands of the program. All have one form, `isoxml COMMAND DIR [--main NAME]`, so that what names the
// transfer set stands in one place; a command adds options of its own and says what it does.
//
// A new command is a source file with its `prepare_...` function, a declaration here and a row in
// command.cpp.
#pragma once

#include <functional>
#include <string>

#include "tools/exit_status.h"

namespace CLI {
class App;
}

/// The transfer set that a command is about.
struct SetArguments {
  std::string directory;
  std::string main_name = "TASKDATA.XML";
};

/// Does the command's work. Data goes to standard output, everything else to standard error.
using RunCommand = std::function<ExitStatus(SetArguments const&)>;

/// Adds the command's own options to `options`, and gives what runs the command after parsing.
RunCommand prepare_info(CLI::App& options);

/// Adds every command to `app`. The one that the command line chooses stores its outcome in `status`, which
/// has to live until parsing ends.
void add_commands(CLI::App& app, ExitStatus& status);
