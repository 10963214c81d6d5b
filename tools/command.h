// The commands of the program. Those about a transfer set have one form, `isoxml COMMAND DIR [--main NAME]`,
// so what names the set stands in one place; a command adds options of its own and says what it does.
//
// A new command is a source file with its `prepare_...` function, a declaration here and a row in
// command.cpp; one that only lists what a view gives is a function in views.cpp and a row in command.cpp.
#pragma once

#include <functional>
#include <memory>
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
using RunCommand = std::function<ExitStatus()>;

/// Adds `DIR` and `--main`; parsing fills the result in.
std::shared_ptr<SetArguments const> add_set_arguments(CLI::App& options);
/// Adds `--main` alone, for commands that name their sets in another way.
void add_main_option(CLI::App& options, std::string& name);
/// What a path on the command line must not be: an empty one, as from an unset shell variable, would mean the
/// root of the file system.
std::string refuse_empty(std::string const& text);

// Each adds the command's options to `options`, and gives what runs the command after parsing.
RunCommand prepare_check(CLI::App& options);
RunCommand prepare_fields(CLI::App& options);
RunCommand prepare_format(CLI::App& options);
RunCommand prepare_info(CLI::App& options);
RunCommand prepare_map(CLI::App& options);
RunCommand prepare_new(CLI::App& options);
RunCommand prepare_rx(CLI::App& options);

/// Adds every command to `app`. The one that the command line chooses stores its outcome in `status`, which
/// has to live until parsing ends.
void add_commands(CLI::App& app, ExitStatus& status);
