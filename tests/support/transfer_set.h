// A transfer set of a test's own, written from the texts of its documents and opened.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/temp_dir.h"
#include "transfer/IsoXmlParser.h"

/// The attributes that both main documents need.
inline std::string document_attributes() {
  return " VersionMajor='4' VersionMinor='3' ManagementSoftwareManufacturer='m' "
         "ManagementSoftwareVersion='1' DataTransferOrigin='1'";
}

inline std::string task_data(std::string const& children) {
  return "<ISO11783_TaskData" + document_attributes() + ">" + children + "</ISO11783_TaskData>";
}

inline std::string external_file(std::string const& children) { return "<XFC>" + children + "</XFC>"; }

/// Main document content that names the link list, and external files.
inline std::string link_list_file() { return "<AFE A='LINKLIST.XML' B='1' C='' D='1'/>"; }
inline std::string reference(std::string const& name) { return "<XFR A='" + name + "' B='1'/>"; }

/// A link list that gives each identifier the UUID "uuid of " and itself.
inline std::string link_list(std::vector<std::string> const& ids) {
  std::string links;
  for (std::string const& id : ids) links += "<LNK A='" + id + "' B='uuid of " + id + "'/>";
  return "<ISO11783LinkList" + document_attributes() + "><LGP A='LGP1' B='1'>" + links +
         "</LGP></ISO11783LinkList>";
}

/// Texts by file name.
using SetFiles = std::map<std::string, std::string>;

/// The parser of a set with the main document TASKDATA.XML. The files are gone at the end.
class TransferSet {
 public:
  explicit TransferSet(SetFiles const& files) {
    for (auto const& [name, text] : files) m_directory.write(name, text);
    mp_parser = std::make_unique<IsoXmlParser>(m_directory.path(), "TASKDATA");
  }
  /// A set of the main document alone.
  explicit TransferSet(std::string const& main_content)
      : TransferSet(SetFiles{{"TASKDATA.XML", task_data(main_content)}}) {}
  /// The main document with a link list for `linked_ids`.
  TransferSet(std::string const& main_content, std::vector<std::string> const& linked_ids)
      : TransferSet(SetFiles{{"TASKDATA.XML", task_data(link_list_file() + main_content)},
                             {"LINKLIST.XML", link_list(linked_ids)}}) {}

  IsoXmlParser& operator*() const { return *mp_parser; }
  IsoXmlParser* operator->() const { return mp_parser.get(); }
  /// Destroys the parser.
  void close() { mp_parser.reset(); }

 private:
  TempDir m_directory;
  std::unique_ptr<IsoXmlParser> mp_parser;
};
