#include "tools/command.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace {

struct Command {
  char const* name;
  char const* summary;
  RunCommand (*prepare)(CLI::App& options);
};

constexpr Command commands[] = {
    {"info", "Show what a transfer set consists of, and which documents failed", prepare_info},
};

// An empty directory, as from an unset shell variable, would mean the root of the file system.
std::string refuse_empty(std::string const& text) { return text.empty() ? "must not be empty" : ""; }

void add_set_arguments(CLI::App& options, SetArguments& arguments) {
  options.add_option("DIR", arguments.directory, "Directory of the transfer set")
      ->required()
      ->check(refuse_empty)
      ->type_name("");
  options.add_option("--main", arguments.main_name, "Main document, with or without .XML")
      ->check(refuse_empty)
      ->type_name("NAME")
      ->capture_default_str();
}

}  // namespace

void add_commands(CLI::App& app, ExitStatus& status) {
  for (Command const& command : commands) {
    CLI::App* const options = app.add_subcommand(command.name, command.summary);
    auto arguments = std::make_shared<SetArguments>();
    add_set_arguments(*options, *arguments);
    options->callback([&status, arguments, run = command.prepare(*options)] { status = run(*arguments); });
  }
  app.require_subcommand(1);
}
