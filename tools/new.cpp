// `isoxml new DIR`: a transfer set with nothing in it but the header of its main document, to begin from.
#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <system_error>

#include "GenLibrarySupportFiles/lmxinternals.h"
#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"
#include "tools/command.h"
#include "tools/lone_document.h"
#include "tools/output.h"
#include "tools/set_report.h"

namespace fs = std::filesystem;

namespace {

struct NewArguments {
  std::string directory;
  std::string manufacturer = "isoxml";
  std::string software_version = ISOXML_TOOL_VERSION;
};

constexpr elmx_enums from_management_software = elmx_enum_1;

void fill_header(NewArguments const& arguments, TaskData& data) {
  data.SetVersionMajor("4");
  data.SetVersionMinor("3");
  data.SetManagementSoftwareManufacturer(arguments.manufacturer);
  data.SetManagementSoftwareVersion(arguments.software_version);
  data.SetenumDataTransferOrigin(from_management_software);
}

bool is_complete(Root const& root) {
  lmx::c_check_exception gap;
  lmx::c_check_tracker top(nullptr, nullptr, &gap);
  const bool is_complete = root.Check(&top);
  if (!is_complete) std::cerr << "isoxml: the new document lacks " << gap.get_path() << '\n';
  return is_complete;
}

// Setters take any value, so what they were given is proven by reading it from where it now stands.
bool is_readable(fs::path const& path) {
  Root root;
  lmx::xmlReader reader(path.c_str());
  const IsoDocument verdict = read_document(reader, path.filename(), &root);
  if (verdict.error != lmx::ELMX_OK) {
    std::cerr << "isoxml: would be refused: " << failure_line(verdict) << '\n';
  }
  return verdict.error == lmx::ELMX_OK;
}

// Takes back what was made, in reverse order, unless it is kept.
class Creation {
 public:
  Creation() = default;
  Creation(Creation const&) = delete;
  Creation& operator=(Creation const&) = delete;
  ~Creation() {
    std::error_code ignored;
    if (!file.empty()) fs::remove(file, ignored);
    if (!directory.empty()) fs::remove(directory, ignored);
  }
  void keep() { file = directory = fs::path(); }

  fs::path directory;  // each empty while it was not made here
  fs::path file;
};

// Makes the directory where it is missing. The result tells why it cannot take the set; "" for nothing.
std::string prepare_directory(fs::path const& directory, Creation& creation) {
  std::error_code error;
  if (fs::create_directory(directory, error)) {
    creation.directory = directory;
    return "";
  }
  if (error) return error.message();
  const bool is_empty = fs::is_empty(directory, error);
  if (error) return error.message();
  return is_empty ? "" : "the directory is not empty";
}

// The same for the document, which must not be there.
std::string write_file(fs::path const& path, std::string const& text, Creation& creation) {
  const auto last_error = [] { return std::system_category().message(errno); };
  std::FILE* const file = std::fopen(path.c_str(), "wbx");
  if (file == nullptr) return last_error();
  creation.file = path;
  const bool is_written =
      std::fwrite(text.data(), 1, text.size(), file) == text.size() && std::fflush(file) == 0;
  const std::string reason = is_written ? "" : last_error();
  const bool is_closed = std::fclose(file) == 0;
  return is_written && !is_closed ? last_error() : reason;
}

std::string written(Root const& root) {
  std::ostringstream text;
  lmx::c_xml_writer writer(text, lmx::c_xml_writer::include_xml_decl);
  root.marshal(writer, nullptr);
  return text.str();
}

ExitStatus create(NewArguments const& arguments) {
  Root root;
  fill_header(arguments, root.GetTaskData());
  if (!is_complete(root)) return ExitStatus::NoResult;

  const fs::path directory = arguments.directory;
  const fs::path document = directory / SetArguments().main_name;
  Creation creation;
  std::string fault = prepare_directory(directory, creation);
  if (fault.empty()) fault = write_file(document, written(root), creation);
  if (!fault.empty()) {
    std::cerr << "isoxml: cannot make a set in " << escape(arguments.directory) << ": " << fault << '\n';
    return ExitStatus::NoResult;
  }
  if (!is_readable(document)) return ExitStatus::WrongUsage;
  creation.keep();
  return ExitStatus::AllGood;
}

// The reader is lenient about both, other programs' readers are not.
std::string refuse_bytes_and_controls(std::string const& text) {
  return is_plain_text(text) ? "" : "must be UTF-8 without control characters";
}

}  // namespace

RunCommand prepare_new(CLI::App& options) {
  auto arguments = std::make_shared<NewArguments>();
  options
      .add_option("DIR", arguments->directory, "Directory of the new set: an empty one, or one to be made")
      ->required()
      ->check(refuse_empty)
      ->type_name("");
  options.add_option("--manufacturer", arguments->manufacturer, "Maker of the management software")
      ->check(refuse_empty)
      ->check(refuse_bytes_and_controls)
      ->type_name("NAME")
      ->capture_default_str();
  options.add_option("--software-version", arguments->software_version, "Version of the management software")
      ->check(refuse_empty)
      ->check(refuse_bytes_and_controls)
      ->type_name("TEXT")
      ->capture_default_str();
  return [arguments] { return create(*arguments); };
}
