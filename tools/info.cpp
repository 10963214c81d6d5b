// The command `info`: what a transfer set consists of. Both forms of output are made from the same lists of
// facts, so that neither can miss what the other shows.
#include <CLI/CLI.hpp>
#include <cstddef>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "tools/command.h"
#include "tools/output.h"
#include "tools/set_report.h"
#include "transfer/IsoXmlParser.h"

namespace {

using Json = nlohmann::ordered_json;

/// One value with its names. An attribute that is not there is null, which tells it from an empty one.
struct Fact {
  char const* key;    // in JSON
  char const* label;  // in text
  Json value;
  char const* meaning = "";  // of a coded value, for people
};

using Facts = std::vector<Fact>;

struct SetInfo {
  Facts header;    // empty when the main document failed or is no "ISO11783_TaskData"
  Facts metadata;  // empty when there is none
  bool is_schema_version_4 = false;
  std::vector<IsoDocument> documents;
  std::vector<Facts> attached_files;
  std::size_t uuid_links = 0;
};

template <class T>
Json value_if(bool is_set, T const& value) {
  return is_set ? Json(value) : Json();
}

char const* meaning_of_origin(std::string const& origin) {
  if (origin == "1") return "farm management software";
  if (origin == "2") return "task controller";
  return "";
}

// ---- Collecting ----

Facts header_of(TaskData const& data) {
  return {
      {"version", "Version", data.GetVersionMajor() + "." + data.GetVersionMinor()},
      {"managementSoftwareManufacturer", "Management software, manufacturer",
       value_if(data.IssetManagementSoftwareManufacturer(), data.GetManagementSoftwareManufacturer())},
      {"managementSoftwareVersion", "Management software, version",
       value_if(data.IssetManagementSoftwareVersion(), data.GetManagementSoftwareVersion())},
      {"taskControllerManufacturer", "Task controller, manufacturer",
       value_if(data.IssetTaskControllerManufacturer(), data.GetTaskControllerManufacturer())},
      {"taskControllerVersion", "Task controller, version",
       value_if(data.IssetTaskControllerVersion(), data.GetTaskControllerVersion())},
      {"dataTransferOrigin", "Data transfer origin",
       value_if(data.IssetDataTransferOrigin(), data.GetDataTransferOrigin()),
       meaning_of_origin(data.GetDataTransferOrigin())},
      {"language", "Language", value_if(data.IssetLanguage(), data.GetLanguage())},
  };
}

Facts metadata_of(P917Metadata const& metadata) {
  return {
      {"version", "Version", value_if(metadata.IssetVersion(), metadata.GetVersion())},
      {"cloudJob", "Cloud job", value_if(metadata.IssetCloudJob(), metadata.GetCloudJob())},
      {"originationId", "Origination", value_if(metadata.IssetOriginationId(), metadata.GetOriginationId())},
      {"jobStatusId", "Job status", value_if(metadata.IssetJobStatusId(), metadata.GetJobStatusId())},
  };
}

Facts facts_of(AttachedFile const& file) {
  return {
      {"name", "Name", value_if(file.IssetFileNameWithExtension(), file.GetFileNameWithExtension())},
      {"type", "Type", value_if(file.IssetType(), file.GetType())},
      {"preserve", "Preserve", value_if(file.IssetPreserve(), file.GetPreserve())},
      {"manufacturerGln", "GLN", value_if(file.IssetManufacturerGLN(), file.GetManufacturerGLN())},
      {"fileVersion", "Version", value_if(file.IssetFileVersion(), file.GetFileVersion())},
      {"fileLength", "Length", value_if(file.IssetFileLength(), file.GetFileLength())},
  };
}

std::vector<Facts> attached_files_of(TaskData const& data) {
  std::vector<Facts> files;
  for (std::size_t i = 0; i != data.SizeInnerTaskData(); ++i) {
    InnerTaskData const& run = data.GetInnerTaskData(i);
    if (run.chosen != InnerTaskData::AttachedFileChosen) continue;
    for (std::size_t j = 0; j != run.SizeAttachedFile(); ++j)
      files.push_back(facts_of(run.GetAttachedFile(j)));
  }
  return files;
}

SetInfo info_of(IsoXmlParser& set) {
  SetInfo info;
  info.documents = set.getDocuments();
  info.is_schema_version_4 = set.isSchemaVersion4();
  info.uuid_links = set.getUuidLinks().size();
  Root const* const main_root = info.documents.front().root;
  if (main_root != nullptr && main_root->chosen == Root::TaskDataChosen) {
    info.header = header_of(main_root->GetTaskData());
    info.attached_files = attached_files_of(main_root->GetTaskData());
  }
  if (P917Metadata const* const metadata = set.getP917Metadata()) info.metadata = metadata_of(*metadata);
  return info;
}

// ---- JSON ----

Json as_json(Facts const& facts) {
  if (facts.empty()) return Json();
  Json object = Json::object();
  for (Fact const& fact : facts) object[fact.key] = fact.value;
  return object;
}

char const* role_in_json(IsoDocument::Role role) {
  switch (role) {
    case IsoDocument::Role::Main: return "main";
    case IsoDocument::Role::LinkList: return "linkList";
    case IsoDocument::Role::External: return "externalFile";
  }
  return "";
}

Json as_json(IsoDocument const& document) {
  Json object = Json::object();
  object["name"] = document.name;
  object["role"] = role_in_json(document.role);
  object["error"] = static_cast<int>(document.error);
  return object;
}

template <class T>
Json as_json(std::vector<T> const& items) {
  Json array = Json::array();
  for (T const& item : items) array.push_back(as_json(item));
  return array;
}

Json as_json(SetInfo const& info) {
  Json object = Json::object();
  object["header"] = as_json(info.header);
  object["schemaVersion4"] = info.is_schema_version_4;
  object["metadata"] = as_json(info.metadata);
  object["documents"] = as_json(info.documents);
  object["attachedFiles"] = as_json(info.attached_files);
  object["uuidLinks"] = info.uuid_links;
  object["failures"] = failures_as_json(info.documents);
  return object;
}

// ---- Text ----

std::string as_text(Fact const& fact) {
  if (fact.value.is_null()) return std::string();
  std::string text = fact.value.is_string() ? fact.value.get<std::string>() : fact.value.dump();
  if (*fact.meaning != '\0') text += std::string(" (") + fact.meaning + ')';
  return text;
}

char const* role_as_text(IsoDocument::Role role) {
  switch (role) {
    case IsoDocument::Role::Main: return "main";
    case IsoDocument::Role::LinkList: return "link list";
    case IsoDocument::Role::External: return "external file";
  }
  return "";
}

// One row for each fact.
Table as_table(Facts const& facts) {
  Table table;
  for (Fact const& fact : facts) table.add({fact.label, as_text(fact)});
  return table;
}

// One row for each record, under the labels of its facts.
Table as_table(std::vector<Facts> const& records) {
  Table table;
  if (records.empty()) return table;
  Table::Row labels;
  for (Fact const& fact : records.front()) labels.push_back(fact.label);
  table.add(labels);
  for (Facts const& facts : records) {
    Table::Row row;
    for (Fact const& fact : facts) row.push_back(as_text(fact));
    table.add(row);
  }
  return table;
}

Table as_table(std::vector<IsoDocument> const& documents) {
  Table table;
  table.add({"Name", "Role", "Outcome"});
  for (IsoDocument const& document : documents) {
    const bool is_good = document.error == lmx::ELMX_OK;
    table.add({document.name, role_as_text(document.role),
               is_good ? "read" : "failed, code " + std::to_string(document.error)});
  }
  return table;
}

void print_text(SetInfo const& info, std::ostream& out) {
  const auto section = [&out](char const* title, Table const& table) {
    out << title << '\n';
    table.print(out);
    out << '\n';
  };
  section("Header", as_table(info.header));
  section("P917 metadata", as_table(info.metadata));
  section("Documents", as_table(info.documents));
  section("Attached files", as_table(info.attached_files));
  out << "Schema version 4: " << (info.is_schema_version_4 ? "yes" : "no") << '\n';
  out << "UUID links: " << info.uuid_links << '\n';
}

ExitStatus show_info(SetArguments const& arguments, bool json) {
  IsoXmlParser set(arguments.directory, arguments.main_name);
  const SetInfo info = info_of(set);
  if (json) {
    print_json(as_json(info), std::cout);
  } else {
    print_text(info, std::cout);
  }
  std::cout.flush();  // before the failures, where both go to one terminal
  print_failures(info.documents, std::cerr);
  return status_of(info.documents);
}

}  // namespace

RunCommand prepare_info(CLI::App& options) {
  auto arguments = add_set_arguments(options);
  auto json = std::make_shared<bool>(false);
  options.add_flag("--json", *json, "Print one JSON document instead of text");
  return [arguments, json] { return show_info(*arguments, *json); };
}
