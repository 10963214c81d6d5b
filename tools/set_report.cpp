#include "tools/set_report.h"

#include <nlohmann/json.hpp>

#include "tools/output.h"

ExitStatus status_of(std::vector<IsoDocument> const& documents) {
  ExitStatus status = ExitStatus::AllGood;
  for (IsoDocument const& document : documents) {
    if (document.error == lmx::ELMX_OK) continue;
    if (document.role == IsoDocument::Role::Main) return ExitStatus::NoResult;
    status = ExitStatus::SomeFailed;
  }
  return status;
}

std::string failure_line(IsoDocument const& document) {
  std::string line = escape(document.name) + ':' + std::to_string(document.line) + ": " +
                     std::to_string(document.error) + ": " + lmx::get_error_description(document.error);
  const bool is_named = document.item == document.name;  // as for a file that is not there
  if (!document.item.empty() && !is_named) line += " (" + escape(document.item) + ')';
  return line;
}

void print_failures(std::vector<IsoDocument> const& documents, std::ostream& out) {
  for (IsoDocument const& document : documents) {
    if (document.error != lmx::ELMX_OK) out << failure_line(document) << '\n';
  }
}

nlohmann::ordered_json failure_as_json(IsoDocument const& document) {
  return {
      {"file", document.name},
      {"line", document.line},
      {"error", static_cast<int>(document.error)},
      {"text", lmx::get_error_description(document.error)},
      {"item", document.item},
      {"message", document.message},
  };
}

nlohmann::ordered_json failures_as_json(std::vector<IsoDocument> const& documents) {
  auto failures = nlohmann::ordered_json::array();
  for (IsoDocument const& document : documents) {
    if (document.error != lmx::ELMX_OK) failures.push_back(failure_as_json(document));
  }
  return failures;
}
