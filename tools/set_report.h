// What every command that opens a transfer set says about its documents, however it shows the rest.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "tools/exit_status.h"
#include "transfer/IsoXmlParser.h"

/// AllGood, SomeFailed, or NoResult when the main document, which is the first, is among those that failed.
ExitStatus status_of(std::vector<IsoDocument> const& documents);

/// The document's failure as "file:line: code: text", with " (item)" where an item within the document is
/// known.
std::string failure_line(IsoDocument const& document);

/// One such line for each document that failed.
void print_failures(std::vector<IsoDocument> const& documents, std::ostream& out);

/// The document's failure with the reader's full message.
nlohmann::ordered_json failure_as_json(IsoDocument const& document);

/// The failures of all documents as an array.
nlohmann::ordered_json failures_as_json(std::vector<IsoDocument> const& documents);
