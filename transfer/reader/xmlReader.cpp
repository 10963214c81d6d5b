#include "transfer/reader/xmlReader.h"

#include <algorithm>
#include <mutex>
#include <utility>

#include "isoxmllib/task.h"
#include "isoxmllib/task_data.h"
#include "transfer/reader/document_file.h"

namespace lmx {

namespace {

// Hosts may keep a metadata pointer for as long as they like, so clones are never freed; the list keeps
// them reachable. One clone for each "P917_Metadata" read, by whichever thread reads it. The list itself is
// never destroyed either: a host's own static objects may still look at a clone while the process ends.
P917Metadata* keep(std::unique_ptr<P917Metadata> clone) {
  static std::mutex guard;
  static auto& kept = *new std::vector<std::unique_ptr<P917Metadata>>;
  const std::lock_guard<std::mutex> lock(guard);
  kept.push_back(std::move(clone));
  return kept.back().get();
}

}  // namespace

detail::file_input::file_input(char const* fileName)
    : fileInput(std::make_unique<c_read_file>(fileName, open_document)), mr_source(*fileInput) {}

xmlReader::xmlReader(char const* fileName) : detail::file_input(fileName), c_xml_reader(mr_source, true) {}

xmlReader::xmlReader(c_read& given) : detail::file_input(given), c_xml_reader(mr_source, true) {}

xmlReader::~xmlReader() = default;

void xmlReader::forgetElements() {
  growers.clear();
  farms.clear();
  fields.clear();
  externalFileReferences.clear();
  attachedFiles.clear();
  tasks.clear();
  products.clear();
  valuePresentations.clear();
  questions.clear();
  cropTypes.clear();
  productGroups.clear();
}

void xmlReader::setP917Metadata(P917Metadata* metadata) {
  p917Metadata = keep(std::unique_ptr<P917Metadata>(metadata->clone()));
}

Task* xmlReader::findLastTask(std::string const& id) const {
  const auto last =
      std::find_if(tasks.rbegin(), tasks.rend(), [&](Task const* task) { return task->GetId() == id; });
  return last == tasks.rend() ? nullptr : *last;
}

std::vector<TaskInfo> xmlReader::getTaskInfoList() const {
  std::vector<TaskInfo> records;
  for (Task const* task : tasks) {
    TaskInfo record;
    record.id = task->GetId();
    record.customerIdRef = task->GetCustomerIdRef();
    record.farmIdRef = task->GetFarmIdRef();
    record.fieldIdRef = task->GetFieldIdRef();
    record.designator = task->GetDesignator();
    record.jobMetaData = task->GetP007JobMetaData();
    if (task->IssetDefaultTreatmentZoneCode()) {
      record.defaultTreatmentZoneCode = task->GetDefaultTreatmentZoneCode();
    }
    if (task->IssetPositionLostTreatmentZoneCode()) {
      record.positionLostTreatmentZoneCode = task->GetPositionLostTreatmentZoneCode();
    }
    if (task->IssetOutOfFieldTreatmentZoneCode()) {
      record.outOfFieldTreatmentZoneCode = task->GetOutOfFieldTreatmentZoneCode();
    }
    records.push_back(std::move(record));
  }
  return records;
}

}  // namespace lmx
