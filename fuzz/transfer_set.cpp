// A transfer set: the input's parts are the main document, the link list and external files. Opening it and
// asking for every view must come to an end, and what is told of errors must fit together.
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include "fuzz/support.h"
#include "transfer/IsoXmlParser.h"

namespace {

namespace fs = std::filesystem;

// One directory for all inputs, in memory where the machine has such a place.
class SetDirectory {
 public:
  SetDirectory() {
    const fs::path memory = "/dev/shm";
    std::error_code error;
    std::string name =
        ((fs::is_directory(memory, error) ? memory : fs::temp_directory_path()) / "isoxml-fuzz-XXXXXX");
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary directory: " + name);
    m_path = name;
  }
  ~SetDirectory() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
  }
  SetDirectory(SetDirectory const&) = delete;
  SetDirectory& operator=(SetDirectory const&) = delete;

  std::string path() const { return m_path.string(); }

  // As many files as there are parts; those of an earlier input go.
  void fill(std::vector<std::string> const& parts) {
    for (std::size_t i = 0; i != parts.size(); ++i) {
      std::ofstream file(m_path / name_of(i), std::ios::binary);
      file.write(parts[i].data(), static_cast<std::streamsize>(parts[i].size()));
    }
    for (std::size_t i = parts.size(); i < m_count; ++i) fs::remove(m_path / name_of(i));
    m_count = parts.size();
  }

 private:
  static std::string name_of(std::size_t index) {
    if (index == 0) return "TASKDATA.XML";
    if (index == 1) return "LINKLIST.XML";
    return "TSK0000" + std::to_string(index - 1) + ".XML";
  }

  fs::path m_path;
  std::size_t m_count = 0;
};

constexpr std::size_t most_parts = 8;

void ask_for_everything(IsoXmlParser& set) {
  std::size_t fields = set.getLmxFields().size();
  fuzz::require(fields == set.getFields().size(), "each field has a record");
  for (Field* field : set.getLmxFields()) set.fillIsoField(field);
  std::vector<Task*> tasks = set.getTasks();
  const std::vector<lmx::TaskInfo> infos = set.getTaskInfoList();
  fuzz::require(tasks.size() == infos.size(), "each task has a record");
  for (lmx::TaskInfo const& info : infos) {
    lmx::ISORxMap map;
    set.getISORxMap(info, map);
  }
  fuzz::require(set.getISORxMaps().size() <= infos.size(), "no task has more than one map");
  for (Task* task : tasks) lmx::xmlReader::getTZNList(task);
  set.getFarms();
  set.getGrowers();
  set.getAttachedFiles();
  set.getProducts();
  set.getProductGroups();
  set.getValuePresentations();
  set.getQuestions();
  set.getCropTypes();
  set.isSchemaVersion4();
  set.getP917Metadata();
  for (auto const& [id, uuid] : set.getUuidLinks()) {
    fuzz::require(set.getIsoUuid(id) == uuid, "each link is found");
  }
}

void require_consistent_errors(IsoXmlParser const& set) {
  std::vector<IsoDocument> const documents = set.getDocuments();
  fuzz::require(!documents.empty(), "the main document was tried");
  std::size_t failed = 0;
  for (IsoDocument const& document : documents) {
    if (document.error == lmx::ELMX_OK) continue;
    fuzz::require(failed < set.getErrors().size(), "each failure has a record");
    IsoXmlError const& error = set.getErrors()[failed++];
    fuzz::require(
        error.error == document.error && error.line == document.line && error.fileName == document.name,
        "a failure's record fits its document");
    fuzz::require(document.root == nullptr, "a document that failed has no elements");
  }
  fuzz::require(failed == set.getErrors().size(), "each record has a failure");
  fuzz::require(documents[0].error == lmx::ELMX_OK || documents.size() == 1,
                "nothing is opened after a main document that failed");
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  static SetDirectory directory;
  std::vector<std::string> parts = fuzz::parts_of(fuzz::text_of(data, size));
  if (parts.size() > most_parts) parts.resize(most_parts);
  directory.fill(parts);
  IsoXmlParser set(directory.path(), "TASKDATA");
  require_consistent_errors(set);
  ask_for_everything(set);
  return 0;
}
