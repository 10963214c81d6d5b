// The views of a transfer set. Each walks all documents, the main one first, then the external files in the
// order of their references; nothing is filtered, sorted or cached.
#include <cstddef>
#include <utility>

#include "GenLibrarySupportFiles/lmxinternals/c_repository.h"
#include "isoxmllib/field_geometry.h"
#include "isoxmllib/task.h"
#include "isoxmllib/task_data.h"
#include "transfer/IsoXmlParser.h"

namespace {

using Documents = std::vector<std::shared_ptr<IsoXmlParser::Xml>>;

// What all readers give, one behind the other.
template <class T>
std::vector<T> from_all(Documents const& documents, std::vector<T> (lmx::xmlReader::*list)() const) {
  std::vector<T> all;
  for (auto const& xml : documents) {
    const std::vector<T> part = (xml->reader.*list)();
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

// Kept: hosts rely on the last task of an identifier winning.
Task* last_task(Documents const& documents, std::string const& id) {
  for (auto xml = documents.rbegin(); xml != documents.rend(); ++xml) {
    if (Task* const task = (*xml)->reader.findLastTask(id)) return task;
  }
  return nullptr;
}

// What of a map the task's element gives, and what its record.
void add_zones(Task* task, lmx::ISORxMap& map) {
  map.taskId = task->GetId();
  map.treatmentZones = lmx::xmlReader::getTZNList(task);
}

void add_codes(lmx::TaskInfo const& info, lmx::ISORxMap& map) {
  map.designator = info.designator;
  map.defaultTreatmentZoneCode = info.defaultTreatmentZoneCode;
  map.positionLostTreatmentZoneCode = info.positionLostTreatmentZoneCode;
  map.outOfFieldTreatmentZoneCode = info.outOfFieldTreatmentZoneCode;
}

}  // namespace

std::vector<IsoFarm> IsoXmlParser::getFarms() const {
  std::vector<IsoFarm> records;
  for (Farm const* farm : from_all(xmlDocuments, &lmx::xmlReader::getFarmContainer)) {
    IsoFarm record(farm);
    if (!record.growerIdRef.empty()) record.growerUuid = getIsoUuid(record.growerIdRef);
    record.uuid = getIsoUuid(record.id);
    records.push_back(std::move(record));
  }
  return records;
}

std::vector<IsoGrower> IsoXmlParser::getGrowers() const {
  std::vector<IsoGrower> records;
  for (Grower const* grower : from_all(xmlDocuments, &lmx::xmlReader::getGrowerContainer)) {
    IsoGrower record(grower);
    record.uuid = getIsoUuid(record.id);
    records.push_back(std::move(record));
  }
  return records;
}

std::vector<IsoAttachedFile> IsoXmlParser::getAttachedFiles() const {
  std::vector<IsoAttachedFile> records;
  for (AttachedFile const* file : from_all(xmlDocuments, &lmx::xmlReader::getAttachedFileContainer)) {
    records.push_back({file->GetFileNameWithExtension(), file->GetType()});
  }
  return records;
}

std::vector<Task*> IsoXmlParser::getTasks() const {
  return from_all(xmlDocuments, &lmx::xmlReader::getTaskContainer);
}

std::vector<Product*> IsoXmlParser::getProducts() const {
  return from_all(xmlDocuments, &lmx::xmlReader::getProductContainer);
}

std::vector<ProductGroup*> IsoXmlParser::getProductGroups() const {
  return from_all(xmlDocuments, &lmx::xmlReader::getProductGroupContainer);
}

std::vector<ValuePresentation*> IsoXmlParser::getValuePresentations() const {
  return from_all(xmlDocuments, &lmx::xmlReader::getValuePreContainer);
}

std::vector<P917Question*> IsoXmlParser::getQuestions() const {
  return from_all(xmlDocuments, &lmx::xmlReader::getQuestions);
}

std::vector<CropType*> IsoXmlParser::getCropTypes() const {
  return from_all(xmlDocuments, &lmx::xmlReader::getCropTypeContainer);
}

std::vector<Field*> IsoXmlParser::getLmxFields() const {
  return from_all(xmlDocuments, &lmx::xmlReader::getFieldContainer);
}

std::vector<IsoField> IsoXmlParser::getFields() {
  std::vector<IsoField> records;
  for (Field* field : getLmxFields()) records.emplace_back(field, uuidLinks);
  return records;
}

// Kept: hosts rely on groups, polygons, scout lines and scout points having no UUID here.
IsoField IsoXmlParser::fillIsoField(Field* field) {
  IsoField record(field);
  if (!record.growerIdRef.empty()) record.growerUuid = getIsoUuid(record.growerIdRef);
  if (!record.farmIdRef.empty()) record.farmUuid = getIsoUuid(record.farmIdRef);
  for (IsoGuidanceGroup& group : record.guidanceGroups) {
    for (IsoGuidanceLine& line : group.guidanceLines) {
      if (!line.id.empty()) line.uuid = getIsoUuid(line.id);
    }
  }
  record.uuid = getIsoUuid(record.id);
  return record;
}

std::vector<lmx::TaskInfo> IsoXmlParser::getTaskInfoList() const {
  return from_all(xmlDocuments, &lmx::xmlReader::getTaskInfoList);
}

void IsoXmlParser::getISORxMap(lmx::TaskInfo info, lmx::ISORxMap& map) const {
  if (!info.id.empty()) {
    if (Task* task = last_task(xmlDocuments, info.id)) add_zones(task, map);
  }
  // Kept: without such a task its zones stay as the caller left them, and hosts rely on that.
  add_codes(info, map);
}

std::vector<lmx::ISORxMap> IsoXmlParser::getISORxMaps() const {
  const std::vector<lmx::TaskInfo> infos = getTaskInfoList();
  const std::vector<Task*> tasks = getTasks();  // in the same order
  lmx::c_repository<std::size_t> last_of_id;
  for (std::size_t i = 0; i != infos.size(); ++i) last_of_id.set(infos[i].id, i);
  std::vector<lmx::ISORxMap> maps;
  maps.reserve(last_of_id.size());
  for (std::size_t i = 0; i != infos.size(); ++i) {
    if (infos[i].id.empty() || *last_of_id.find(infos[i].id) != i) continue;
    lmx::ISORxMap& map = maps.emplace_back();
    add_zones(tasks[i], map);
    add_codes(infos[i], map);
  }
  return maps;
}
