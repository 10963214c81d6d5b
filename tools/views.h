// The commands that list what a transfer set holds. All have one form, `isoxml COMMAND DIR [--json]`, and
// each is a table of columns over a view of the set.
#pragma once

#include <functional>
#include <memory>

#include "tools/command.h"
#include "tools/listing.h"

class IsoXmlParser;

/// Prints what the view gives.
using ShowView = void (*)(IsoXmlParser& set, OutputForm form);

void show_growers(IsoXmlParser& set, OutputForm form);
void show_farms(IsoXmlParser& set, OutputForm form);
void show_products(IsoXmlParser& set, OutputForm form);
void show_crops(IsoXmlParser& set, OutputForm form);
void show_tasks(IsoXmlParser& set, OutputForm form);
void show_questions(IsoXmlParser& set, OutputForm form);
void show_devices(IsoXmlParser& set, OutputForm form);

/// Adds `--json`. The result is filled in by parsing.
std::shared_ptr<bool const> add_json_flag(CLI::App& options);

/// Adds `--geojson`, which excludes the `--json` that is there.
std::shared_ptr<bool const> add_geojson_flag(CLI::App& options);

OutputForm form_of(bool is_json);

/// Opens the set, lets `show` work, and tells the failed documents afterwards. The worse of the two outcomes
/// is the result.
ExitStatus run_on_set(SetArguments const& arguments, std::function<ExitStatus(IsoXmlParser&)> const& show);

/// Adds the options that all of these commands have.
RunCommand prepare_view(CLI::App& options, ShowView show);

template <ShowView show>
RunCommand prepare_view(CLI::App& options) {
  return prepare_view(options, show);
}
