#include "tools/command.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "tools/views.h"

namespace {

struct Command {
  char const* name;
  char const* summary;
  RunCommand (*prepare)(CLI::App& options);
};

constexpr Command commands[] = {
    {"check", "Tell of transfer sets and lone documents whether they read", prepare_check},
    {"info", "Show what a transfer set consists of, and which documents failed", prepare_info},
    {"growers", "List the growers, who are the customers", prepare_view<show_growers>},
    {"farms", "List the farms", prepare_view<show_farms>},
    {"fields", "List the fields with their geometry", prepare_fields},
    {"products", "List the products", prepare_view<show_products>},
    {"crops", "List the crop types and their varieties", prepare_view<show_crops>},
    {"tasks", "List the tasks", prepare_view<show_tasks>},
    {"rx", "Show what tasks prescribe: treatment zones and their values", prepare_rx},
    {"questions", "List the questions to the operator, with the replies", prepare_view<show_questions>},
    {"devices", "List the devices", prepare_view<show_devices>},
    {"format", "Rewrite a document in one layout, on standard output", prepare_format},
    {"new", "Make a minimal transfer set to begin from", prepare_new},
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
