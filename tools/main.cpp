// The program `isoxml`: reads the command line, lets the chosen command work, and says by its exit status how
// it went.
#include <CLI/CLI.hpp>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>

#include "tools/command.h"
#include "tools/exit_status.h"
#include "tools/output.h"

namespace {

// The parser's own exit numbers are not part of this program's interface: all of them are wrong usage.
ExitStatus report(CLI::App const& app, CLI::ParseError const& error) {
  if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {  // help or version
    app.exit(error, std::cout, std::cerr);
    return ExitStatus::AllGood;
  }
  std::cerr << "isoxml: " << escape(error.what()) << "\nRun with --help for more information.\n";
  return ExitStatus::WrongUsage;
}

ExitStatus run(int argc, char** argv) {
  CLI::App app("Shows ISO 11783-10 transfer sets: farm task data in XML.", "isoxml");
  app.footer(exit_status_help());  // commands take it over when they are added
  app.set_version_flag("--version", "isoxml " ISOXML_TOOL_VERSION);
  ExitStatus status = ExitStatus::AllGood;
  add_commands(app, status);
  if (argc <= 1) {
    std::cerr << app.help();
    return ExitStatus::WrongUsage;
  }
  try {
    app.parse(argc, argv);
  } catch (CLI::ParseError const& error) {
    return report(app, error);
  }
  return status;
}

constexpr char out_of_memory[] = "isoxml: out of memory\n";

// JSON values free themselves with a list that they allocate. Where memory has run out, that can fail in its
// turn, within a destructor, and then no handler below is reached.
[[noreturn]] void end_after_failed_cleanup() {
  if (!std::current_exception()) std::abort();
  try {
    throw;
  } catch (std::bad_alloc const&) {
    std::cerr << out_of_memory;
    std::_Exit(static_cast<int>(ExitStatus::NoResult));
  } catch (...) {
    std::abort();
  }
}

}  // namespace

int main(int argc, char** argv) {
  // A reader that went away, or a full file, is an output that could not be written, and is told as one.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  std::set_terminate(end_after_failed_cleanup);
  ExitStatus status = ExitStatus::NoResult;
  try {
    status = run(argc, argv);
  } catch (std::bad_alloc const&) {
    std::cerr << out_of_memory;
  } catch (std::exception const& error) {
    std::cerr << "isoxml: " << escape(error.what()) << '\n';
  }
  std::cout.flush();
  if (!std::cout) {
    std::cerr << "isoxml: cannot write to standard output\n";
    status = ExitStatus::NoResult;
  }
  return static_cast<int>(status);
}
