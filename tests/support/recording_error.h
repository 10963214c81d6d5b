// An error log that keeps every report it was handed.
#pragma once

#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse/c_error.h"
#include "support/code_name.h"

struct Report {
  lmx::elmx_error_type type;
  lmx::elmx_error code;
  std::string source;  // "(null)" when there was none
  int line;
  std::string message;
};

class RecordingError : public lmx::c_error {
 public:
  void report(lmx::elmx_error_type type, lmx::elmx_error code, char const* source, int line,
              char const* message) override {
    reports.push_back({type, code, source == nullptr ? "(null)" : source, line, message});
  }
  /// The reports as "type code message", a line each.
  std::string text() const {
    std::string all;
    for (auto const& report : reports) {
      static const char* const types[] = {"fatal", "error", "warning", "note"};
      all += std::string(types[report.type]) + " " + code_name(report.code) + " " + report.message + "\n";
    }
    return all;
  }

  std::vector<Report> reports;
};
