// The views of a transfer set, computed a second time and in another way: from libxml2's trees of the same
// files, without any code of the library. Each gives the lines of its records.
#pragma once

#include <libxml/tree.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "lines.h"

class ReferenceViews {
 public:
  ReferenceViews(std::string const& directory, std::string const& main_name);

  Lines growers() const;
  Lines farms() const;
  Lines attached_files() const;
  Lines tasks() const;
  Lines products() const;
  Lines product_groups() const;
  Lines value_presentations() const;
  Lines questions() const;
  Lines crop_types() const;
  /// With all UUIDs.
  Lines fields() const;
  /// With the UUIDs of the field, its farm, its customer and its guidance lines.
  Lines filled_fields() const;
  Lines task_infos() const;
  /// The map for each entry of the task list, in a record that is new for each.
  Lines rx_maps() const;
  Lines metadata() const;
  Lines uuid_links() const;
  /// The names of the documents that could not be read.
  Lines failures() const;

 private:
  using Document = std::shared_ptr<xmlDoc>;

  Document open(std::string const& name);
  void read_links(std::string const& name);
  void deliver(xmlNode const* element);
  std::vector<xmlNode const*> const& all(char const* tag) const;

  std::string m_directory;
  std::vector<Document> m_documents;
  std::vector<std::string> m_failures;
  std::map<std::string, std::vector<xmlNode const*>> m_delivered;
  std::map<std::string, std::string> m_links;
  xmlNode const* m_metadata = nullptr;
};
