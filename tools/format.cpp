// `isoxml format FILE`: the document in the writer's layout, on standard output. What the format does not
// know is lost on the way, so each kind of it is told.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <filesystem>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"
#include "tools/command.h"
#include "tools/lone_document.h"
#include "tools/output.h"
#include "tools/set_report.h"

namespace {

constexpr char const standard_input[] = "-";
constexpr int most_blanks = 16;  // for each level; more is a slip of the finger

struct FormatArguments {
  std::string path;
  int blanks = 0;
  CLI::Option const* indent = nullptr;
  bool compact = false;
};

// Reads as any reader does, and notes what the document loses by that.
class NotingReader : public lmx::xmlReader {
 public:
  using xmlReader::xmlReader;

  lmx::elmx_error on_unknown_attribute(std::string const& name, std::vector<char> const&, char const*,
                                       int) override {
    return note("attribute " + name);
  }
  lmx::elmx_error on_unknown_element(std::string const& name, std::vector<char> const&, char const*,
                                     int) override {
    return note("element " + name);
  }

  /// One line for each name, in alphabetical order.
  void print_losses(std::string const& document, std::ostream& out) const {
    for (auto const& [name, place] : losses) {
      out << escape(document) << ':' << place.first_line << ": left out: " << escape(name);
      if (place.count > 1) out << " (" << place.count << " of them)";
      out << '\n';
    }
  }

 private:
  struct Place {
    int first_line = 0;
    int count = 0;
  };

  lmx::elmx_error note(std::string const& name) {
    Place& place = losses[name];
    if (place.count++ == 0) place.first_line = line();
    return lmx::ELMX_OK;
  }

  std::map<std::string, Place> losses;
};

// A null text stands for the writer's default.
struct Layout {
  char const* tab = nullptr;
  char const* line_end = nullptr;
};

void write_document(Root const& root, Layout const& layout) {
  lmx::c_xml_writer writer(std::cout, lmx::c_xml_writer::include_xml_decl, layout.tab, layout.line_end,
                           nullptr, nullptr);
  root.marshal(writer, nullptr);
}

bool is_told_as_failed(IsoDocument const& verdict) {
  if (verdict.error != lmx::ELMX_OK) std::cerr << failure_line(verdict) << '\n';
  return verdict.error != lmx::ELMX_OK;
}

// Gives the document as it reads once it was written, which is what it stays from then on.
bool read_settled(NotingReader& reader, std::string const& name, Root* root) {
  if (is_told_as_failed(read_document(reader, name, root))) return false;
  if (is_told_as_failed(read_back(name + " as rewritten", root))) return false;
  reader.print_losses(name, std::cerr);
  return true;
}

// All that is left of it. False when it cannot be read.
bool read_standard_input(std::string* text) {
  char buffer[16384];
  for (;;) {
    const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
    if (count > 0) {
      text->append(buffer, static_cast<std::size_t>(count));
    } else if (count == 0 || errno != EINTR) {
      return count == 0;
    }
  }
}

bool read_settled(std::string const& path, Root* root) {
  if (path != standard_input) {
    NotingReader reader(path.c_str());
    return read_settled(reader, path, root);
  }
  std::string text;
  if (!read_standard_input(&text)) {
    NotingReader reader("");  // no file has an empty path
    return read_settled(reader, path, root);
  }
  MemorySource source(std::move(text));
  NotingReader reader(source);
  return read_settled(reader, path, root);
}

ExitStatus format(FormatArguments const& arguments) {
  Root root;
  if (!read_settled(arguments.path, &root)) return ExitStatus::NoResult;
  const std::string tab(static_cast<std::size_t>(arguments.blanks), ' ');
  Layout layout;
  if (arguments.indent->count() != 0) layout.tab = tab.c_str();
  if (arguments.compact) layout = {"", ""};
  write_document(root, layout);
  return ExitStatus::AllGood;
}

std::string refuse_directory(std::string const& path) {
  std::error_code ignored;
  const bool is_directory = path != standard_input && std::filesystem::is_directory(path, ignored);
  return is_directory ? "must be a document, not a directory" : "";
}

}  // namespace

RunCommand prepare_format(CLI::App& options) {
  auto arguments = std::make_shared<FormatArguments>();
  options.add_option("FILE", arguments->path, "Document to rewrite; - for standard input")
      ->required()
      ->check(refuse_empty)
      ->check(refuse_directory)
      ->type_name("");
  arguments->indent = options
                          .add_option("--indent", arguments->blanks,
                                      "Blanks for each level; a tab character without the option")
                          ->check(CLI::Range(0, most_blanks))
                          ->type_name("N");
  options.add_flag("--compact", arguments->compact, "Write one line, with no indentation")
      ->excludes(const_cast<CLI::Option*>(arguments->indent));
  return [arguments] { return format(*arguments); };
}
