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
    {"check", "Tell of transfer sets and lone documents whether they read", prepare_check},
    {"info", "Show what a transfer set consists of, and which documents failed", prepare_info},
    {"map", "Write a page with a map of the set's fields and prescriptions", prepare_map},
};

}  // namespace

std::string refuse_empty(std::string const& text) { return text.empty() ? "must not be empty" : ""; }

void add_main_option(CLI::App& options, std::string& name) {
  options.add_option("--main", name, "Main document, with or without .XML")
      ->check(refuse_empty)
      ->type_name("NAME")
      ->capture_default_str();
}

std::shared_ptr<SetArguments const> add_set_arguments(CLI::App& options) {
  auto arguments = std::make_shared<SetArguments>();
  options.add_option("DIR", arguments->directory, "Directory of the transfer set")
      ->required()
      ->check(refuse_empty)
      ->type_name("");
  add_main_option(options, arguments->main_name);
  return arguments;
}

void add_commands(CLI::App& app, ExitStatus& status) {
  for (Command const& command : commands) {
    CLI::App* const options = app.add_subcommand(command.name, command.summary);
    options->callback([&status, run = command.prepare(*options)] { status = run(); });
  }
  app.require_subcommand(1);
}
