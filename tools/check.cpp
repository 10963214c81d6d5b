// `isoxml check PATH...`: one verdict for each document. A directory is a transfer set, with all the
// documents that it names; any other path is a document by itself, whatever element of the format it begins
// with.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <system_error>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "tools/command.h"
#include "tools/lone_document.h"
#include "tools/output.h"
#include "tools/set_report.h"

namespace {

struct CheckArguments {
  std::vector<std::string> paths;
  std::string main_name = SetArguments().main_name;
  bool json = false;
};

// The set's documents, named as paths.
void check_set(std::string const& directory, std::string const& main_name,
               std::vector<IsoDocument>* verdicts) {
  const IsoXmlParser set(directory, main_name);
  const std::string prefix = directory.back() == '/' ? directory : directory + '/';
  for (IsoDocument document : set.getDocuments()) {
    if (document.item == document.name) document.item.clear();
    document.name = prefix + document.name;
    document.root = nullptr;
    verdicts->push_back(std::move(document));
  }
}

void check_document(std::string const& path, std::vector<IsoDocument>* verdicts) {
  Root root;
  lmx::xmlReader reader(path.c_str());
  verdicts->push_back(read_document(reader, path, &root));
}

void print_text(std::vector<IsoDocument> const& verdicts) {
  for (IsoDocument const& verdict : verdicts) {
    std::cout << (verdict.error == lmx::ELMX_OK ? escape(verdict.name) + ": good" : failure_line(verdict))
              << '\n';
  }
}

void print_as_json(std::vector<IsoDocument> const& verdicts) {
  auto documents = nlohmann::ordered_json::array();
  for (IsoDocument const& verdict : verdicts) documents.push_back(failure_as_json(verdict));
  print_json(documents, std::cout);
}

ExitStatus status_of_verdicts(std::vector<IsoDocument> const& verdicts) {
  const auto failed = std::count_if(verdicts.begin(), verdicts.end(),
                                    [](IsoDocument const& verdict) { return verdict.error != lmx::ELMX_OK; });
  if (failed == 0) return ExitStatus::AllGood;
  return static_cast<std::size_t>(failed) == verdicts.size() ? ExitStatus::NoResult : ExitStatus::SomeFailed;
}

ExitStatus check(CheckArguments const& arguments) {
  std::vector<IsoDocument> verdicts;
  for (std::string const& path : arguments.paths) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
      check_set(path, arguments.main_name, &verdicts);
    } else {
      check_document(path, &verdicts);
    }
  }
  if (arguments.json) {
    print_as_json(verdicts);
  } else {
    print_text(verdicts);
  }
  return status_of_verdicts(verdicts);
}

}  // namespace

RunCommand prepare_check(CLI::App& options) {
  auto arguments = std::make_shared<CheckArguments>();
  options.add_option("PATH", arguments->paths, "Directories of transfer sets, or lone documents")
      ->required()
      ->check(refuse_empty)
      ->type_name("");
  add_main_option(options, arguments->main_name);
  options.add_flag("--json", arguments->json, "Print one JSON document instead of text");
  return [arguments] { return check(*arguments); };
}
