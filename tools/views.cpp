// The views that need nothing but a table of columns: master data, tasks, questions and devices.
#include "tools/views.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <utility>

#include "isoxmllib/isoxmllib.h"
#include "tools/set_report.h"
#include "tools/task_state.h"
#include "tools/zone_values.h"
#include "transfer/IsoXmlParser.h"

namespace {

// The UUID of an element of which the view has no record.
template <class Element>
auto uuid_of(IsoXmlParser const& set) {
  return [&set](Element const* element) { return null_if_empty(set.getIsoUuid(element->GetId())); };
}

// Names of elements by their identifiers; of those that share one, the first's.
using Names = std::map<std::string, std::string>;

template <class Element>
Names names_of(std::vector<Element*> const& elements) {
  Names names;
  for (Element const* element : elements) names.emplace(element->GetId(), element->GetDesignator());
  return names;
}

Json name_of(std::string const& id, Names const& names) {
  const auto name = names.find(id);
  return name == names.end() ? Json() : Json(name->second);
}

// What a coded value means, for people: the code where it has no meaning here.
template <std::size_t size>
Json meaning_of(std::string const& code, char const* const (&meanings)[size]) {
  for (std::size_t i = 0; i != size; ++i) {
    if (code == std::to_string(i + 1)) return meanings[i];
  }
  return code;
}

// ---- Growers and farms ----

Columns<IsoGrower> grower_columns() {
  return {
      {"id", "Id", &IsoGrower::id},
      {"lastName", "Name", &IsoGrower::lastName},
      {"firstName", "First name", &IsoGrower::firstName},
      {"middleName", nullptr, &IsoGrower::middleName},
      {"displayName", nullptr, &IsoGrower::displayName},
      {"customerNumber", nullptr, &IsoGrower::customerNumber},
      {"street", "Street", &IsoGrower::street},
      {"poBox", nullptr, &IsoGrower::poBox},
      {"postalCode", nullptr, &IsoGrower::postalCode},
      {"city", "City", &IsoGrower::city},
      {"county", nullptr, &IsoGrower::county},
      {"state", nullptr, &IsoGrower::state},
      {"country", nullptr, &IsoGrower::country},
      {"phone", "Phone", &IsoGrower::phone},
      {"mobile", nullptr, &IsoGrower::mobile},
      {"fax", nullptr, &IsoGrower::fax},
      {"email", nullptr, &IsoGrower::email},
      {"comment", nullptr, &IsoGrower::comment},
      {"uuid", "UUID", [](IsoGrower const& grower) { return null_if_empty(grower.uuid); }},
  };
}

Columns<IsoFarm> farm_columns() {
  return {
      {"id", "Id", &IsoFarm::id},
      {"designator", "Name", &IsoFarm::designator},
      {"growerIdRef", "Grower", &IsoFarm::growerIdRef},
      {"growerUuid", nullptr, [](IsoFarm const& farm) { return null_if_empty(farm.growerUuid); }},
      {"lastName", nullptr, &IsoFarm::lastName},
      {"firstName", nullptr, &IsoFarm::firstName},
      {"middleName", nullptr, &IsoFarm::middleName},
      {"street", "Street", &IsoFarm::street},
      {"poBox", nullptr, &IsoFarm::poBox},
      {"postalCode", nullptr, &IsoFarm::postalCode},
      {"city", "City", &IsoFarm::city},
      {"county", nullptr, &IsoFarm::county},
      {"state", nullptr, &IsoFarm::state},
      {"country", nullptr, &IsoFarm::country},
      {"phone", "Phone", &IsoFarm::phone},
      {"mobile", nullptr, &IsoFarm::mobile},
      {"fax", nullptr, &IsoFarm::fax},
      {"email", nullptr, &IsoFarm::email},
      {"comment", nullptr, &IsoFarm::comment},
      {"uuid", "UUID", [](IsoFarm const& farm) { return null_if_empty(farm.uuid); }},
  };
}

// ---- Products and crops ----

template <class Element>
using ElementColumns = Columns<Element const*>;

ElementColumns<CropVariety> variety_columns(IsoXmlParser const& set) {
  return {
      {"id", nullptr, if_set(&CropVariety::IssetId, &CropVariety::GetId)},
      {"designator", nullptr, if_set(&CropVariety::IssetDesignator, &CropVariety::GetDesignator)},
      {"productIdRef", nullptr, if_set(&CropVariety::IssetProductIdRef, &CropVariety::GetProductIdRef)},
      {"uuid", nullptr, uuid_of<CropVariety>(set)},
  };
}

ElementColumns<ProductRelation> relation_columns() {
  return {
      {"productIdRef", nullptr,
       if_set(&ProductRelation::IssetProductIdRef, &ProductRelation::GetProductIdRef)},
      {"quantityValue", nullptr,
       if_set(&ProductRelation::IssetQuantityValue, &ProductRelation::GetQuantityValue)},
      {"valuePresentationIdRef", nullptr,
       if_set(&ProductRelation::IssetP917Vpn, &ProductRelation::GetP917Vpn)},
  };
}

std::vector<CropVariety const*> varieties_of(CropType const& crop) {
  std::vector<CropVariety const*> varieties;
  for (std::size_t i = 0; i != crop.SizeInnerCropType(); ++i) {
    InnerCropType const& run = crop.GetInnerCropType(i);
    if (run.chosen != InnerCropType::CropVarietyChosen) continue;
    for (std::size_t j = 0; j != run.SizeCropVariety(); ++j) varieties.push_back(&run.GetCropVariety(j));
  }
  return varieties;
}

std::vector<ProductRelation const*> relations_of(Product const& product) {
  std::vector<ProductRelation const*> relations;
  for (std::size_t i = 0; i != product.SizeInnerProduct(); ++i) {
    InnerProduct const& run = product.GetInnerProduct(i);
    if (run.chosen != InnerProduct::ProductRelationChosen) continue;
    for (std::size_t j = 0; j != run.SizeProductRelation(); ++j) {
      relations.push_back(&run.GetProductRelation(j));
    }
  }
  return relations;
}

Json varieties_in_text(CropType const& crop) {
  Json varieties = Json::array();
  for (CropVariety const* variety : varieties_of(crop)) {
    std::string text = variety->GetDesignator();
    if (variety->IssetProductIdRef()) text += " (" + variety->GetProductIdRef() + ')';
    varieties.push_back(std::move(text));
  }
  return varieties;
}

ElementColumns<CropType> crop_columns(IsoXmlParser const& set) {
  const auto groups = std::make_shared<Names>(names_of(set.getProductGroups()));
  return {
      {"id", "Id", if_set(&CropType::IssetId, &CropType::GetId)},
      {"designator", "Name", if_set(&CropType::IssetDesignator, &CropType::GetDesignator)},
      {"productGroupIdRef", nullptr,
       if_set(&CropType::IssetProductGroupIdRef, &CropType::GetProductGroupIdRef)},
      {"productGroup", "Group",
       [groups](CropType const* crop) { return name_of(crop->GetProductGroupIdRef(), *groups); }},
      {"varieties", nullptr,
       [columns = variety_columns(set)](CropType const* crop) {
         return as_json(varieties_of(*crop), columns);
       }},
      {nullptr, "Varieties", [](CropType const* crop) { return varieties_in_text(*crop); }},
      {"uuid", "UUID", uuid_of<CropType>(set)},
  };
}

Json parts_in_text(Product const& product) {
  Json parts = Json::array();
  for (ProductRelation const* part : relations_of(product)) {
    parts.push_back(part->GetProductIdRef() + ' ' + std::to_string(part->GetQuantityValue()));
  }
  return parts;
}

constexpr char const* product_types[] = {"single", "mixture", "temporary mixture"};

ElementColumns<Product> product_columns(IsoXmlParser const& set) {
  const auto groups = std::make_shared<Names>(names_of(set.getProductGroups()));
  return {
      {"id", "Id", if_set(&Product::IssetId, &Product::GetId)},
      {"designator", "Name", if_set(&Product::IssetDesignator, &Product::GetDesignator)},
      {"type", nullptr, if_set(&Product::IssetType, &Product::GetType)},
      {nullptr, "Type", [](Product const* product) { return meaning_of(product->GetType(), product_types); }},
      {"productGroupIdRef", nullptr,
       if_set(&Product::IssetProductGroupIdRef, &Product::GetProductGroupIdRef)},
      {"productGroup", "Group",
       [groups](Product const* product) { return name_of(product->GetProductGroupIdRef(), *groups); }},
      {"quantityDdi", "DDI", if_set(&Product::IssetQuantityDDI, &Product::GetQuantityDDI)},
      {"valuePresentationIdRef", nullptr,
       if_set(&Product::IssetValuePresentationIdRef, &Product::GetValuePresentationIdRef)},
      {"mixtureRecipeQuantity", "Amount",
       if_set(&Product::IssetMixtureRecipeQuantity, &Product::GetMixtureRecipeQuantity)},
      {"parts", nullptr,
       [columns = relation_columns()](Product const* product) {
         return as_json(relations_of(*product), columns);
       }},
      {nullptr, "Parts", [](Product const* product) { return parts_in_text(*product); }},
      {"densityMassPerVolume", nullptr,
       if_set(&Product::IssetDensityMassPerVolume, &Product::GetDensityMassPerVolume)},
      {"densityMassPerCount", nullptr,
       if_set(&Product::IssetDensityMassPerCount, &Product::GetDensityMassPerCount)},
      {"densityVolumePerCount", nullptr,
       if_set(&Product::IssetDensityVolumePerCount, &Product::GetDensityVolumePerCount)},
      {"ingredientManufacturer", nullptr,
       if_set(&Product::IssetP917IngredientManufacturer, &Product::GetP917IngredientManufacturer)},
      {"ingredientRegistration", nullptr,
       if_set(&Product::IssetP917IngredientRegistration, &Product::GetP917IngredientRegistration)},
      {"ingredientComposition", nullptr,
       if_set(&Product::IssetP917IngredientComposition, &Product::GetP917IngredientComposition)},
      {"ingredientNotes", nullptr,
       if_set(&Product::IssetP917IngredientNotes, &Product::GetP917IngredientNotes)},
      {"uuid", "UUID", uuid_of<Product>(set)},
  };
}

// ---- Tasks ----

// The record, and the element for what the record does not carry.
struct TaskRow : lmx::TaskInfo {
  Task const* element = nullptr;
};

std::vector<TaskRow> task_rows(IsoXmlParser const& set) {
  const std::vector<lmx::TaskInfo> records = set.getTaskInfoList();
  const std::vector<Task*> elements = set.getTasks();  // in the same order
  std::vector<TaskRow> rows;
  for (std::size_t i = 0; i != records.size(); ++i) rows.push_back({records[i], elements[i]});
  return rows;
}

Json count_zones(TaskRow const& row) { return zones_of(*row.element).size(); }

Columns<TaskRow> task_columns(IsoXmlParser const& set) {
  return {
      {"id", "Id", &TaskRow::id},
      {"designator", "Name", &TaskRow::designator},
      {"status", nullptr, [](TaskRow const& row) { return row.element->GetStatus(); }},
      {nullptr, "Status", [](TaskRow const& row) { return state_of(*row.element); }},
      {"customerIdRef", "Grower", &TaskRow::customerIdRef},
      {"farmIdRef", "Farm", &TaskRow::farmIdRef},
      {"fieldIdRef", "Field", &TaskRow::fieldIdRef},
      {"treatmentZones", "Zones", count_zones},
      {"defaultTreatmentZoneCode", nullptr, &TaskRow::defaultTreatmentZoneCode},
      {"positionLostTreatmentZoneCode", nullptr, &TaskRow::positionLostTreatmentZoneCode},
      {"outOfFieldTreatmentZoneCode", nullptr, &TaskRow::outOfFieldTreatmentZoneCode},
      {"jobMetaData", nullptr, &TaskRow::jobMetaData},
      {"uuid", "UUID", [&set](TaskRow const& row) { return null_if_empty(set.getIsoUuid(row.id)); }},
  };
}

// ---- Questions ----

Json options_of(P917Question const* question) {
  Json options = Json::array();
  for (std::size_t i = 0; i != question->SizeOption(); ++i) options.push_back(question->GetOption(i));
  return options;
}

ElementColumns<P917Question> question_columns() {
  return {
      {"prompt", "Prompt", if_set(&P917Question::IssetPrompt, &P917Question::GetPrompt)},
      {"replyType", "Reply type", if_set(&P917Question::IssetReplyType, &P917Question::GetReplyType)},
      {"required", "Required", if_set(&P917Question::IssetRequired, &P917Question::GetRequired)},
      {"reply", "Reply", if_set(&P917Question::IssetReply, &P917Question::GetReply)},
      {"options", "Options", options_of},
      {"uuid", "UUID", if_set(&P917Question::IssetUuid, &P917Question::GetUuid)},
  };
}

// ---- Devices ----

template <class InnerContent, class Content>
void add_devices(Content const& content, InnerContent const& (Content::*run_at)(std::size_t) const,
                 std::size_t runs, std::vector<Device const*>* devices) {
  for (std::size_t i = 0; i != runs; ++i) {
    InnerContent const& run = (content.*run_at)(i);
    if (run.chosen != InnerContent::DeviceChosen) continue;
    for (std::size_t j = 0; j != run.SizeDevice(); ++j) devices->push_back(&run.GetDevice(j));
  }
}

// No view has them, so they are taken from the documents: where the format lets them stand.
std::vector<Device const*> devices_of(IsoXmlParser const& set) {
  std::vector<Device const*> devices;
  for (IsoDocument const& document : set.getDocuments()) {
    if (document.root == nullptr) continue;
    if (document.root->chosen == Root::TaskDataChosen) {
      TaskData const& data = document.root->GetTaskData();
      add_devices<InnerTaskData>(data, &TaskData::GetInnerTaskData, data.SizeInnerTaskData(), &devices);
    } else if (document.root->chosen == Root::ExternalFileContentChosen) {
      ExternalFileContent const& content = document.root->GetExternalFileContent();
      add_devices<InnerExternalFileContent>(content, &ExternalFileContent::GetInnerExternalFileContent,
                                            content.SizeInnerExternalFileContent(), &devices);
    }
  }
  return devices;
}

template <std::int32_t kind>
Json count_children(Device const* device, std::size_t (InnerDevice::*size)() const) {
  std::size_t count = 0;
  for (std::size_t i = 0; i != device->SizeInnerDevice(); ++i) {
    InnerDevice const& run = device->GetInnerDevice(i);
    if (run.chosen == kind) count += (run.*size)();
  }
  return count;
}

template <std::int32_t kind>
auto count_of(std::size_t (InnerDevice::*size)() const) {
  return [size](Device const* device) { return count_children<kind>(device, size); };
}

ElementColumns<Device> device_columns(IsoXmlParser const& set) {
  return {
      {"id", "Id", if_set(&Device::IssetId, &Device::GetId)},
      {"designator", "Name", if_set(&Device::IssetDesignator, &Device::GetDesignator)},
      {"softwareVersion", "Software", if_set(&Device::IssetSoftwareVersion, &Device::GetSoftwareVersion)},
      {"serialNumber", "Serial", if_set(&Device::IssetSerialNumber, &Device::GetSerialNumber)},
      {"clientName", "NAME", if_set(&Device::IssetClientName, &Device::GetClientName)},
      {"elements", "Elements", count_of<InnerDevice::DeviceElementChosen>(&InnerDevice::SizeDeviceElement)},
      {"properties", "Properties",
       count_of<InnerDevice::DevicePropertyChosen>(&InnerDevice::SizeDeviceProperty)},
      {"processData", "Process data",
       count_of<InnerDevice::DeviceProcessDataChosen>(&InnerDevice::SizeDeviceProcessData)},
      {"valuePresentations", nullptr,
       count_of<InnerDevice::DeviceValuePresentationChosen>(&InnerDevice::SizeDeviceValuePresentation)},
      {"structureLabel", "Structure", if_set(&Device::IssetStructureLabel, &Device::GetStructureLabel)},
      {"localizationLabel", "Localization",
       if_set(&Device::IssetLocalizationLabel, &Device::GetLocalizationLabel)},
      {"uuid", "UUID", uuid_of<Device>(set)},
  };
}

template <class Element>
std::vector<Element const*> read_only(std::vector<Element*> const& elements) {
  return {elements.begin(), elements.end()};
}

}  // namespace

void show_growers(IsoXmlParser& set, OutputForm form) {
  print_list(set.getGrowers(), grower_columns(), form);
}

void show_farms(IsoXmlParser& set, OutputForm form) { print_list(set.getFarms(), farm_columns(), form); }

void show_products(IsoXmlParser& set, OutputForm form) {
  print_list(read_only(set.getProducts()), product_columns(set), form);
}

void show_crops(IsoXmlParser& set, OutputForm form) {
  print_list(read_only(set.getCropTypes()), crop_columns(set), form);
}

void show_tasks(IsoXmlParser& set, OutputForm form) { print_list(task_rows(set), task_columns(set), form); }

void show_questions(IsoXmlParser& set, OutputForm form) {
  print_list(read_only(set.getQuestions()), question_columns(), form);
}

void show_devices(IsoXmlParser& set, OutputForm form) {
  print_list(devices_of(set), device_columns(set), form);
}

std::shared_ptr<bool const> add_json_flag(CLI::App& options) {
  auto is_json = std::make_shared<bool>(false);
  options.add_flag("--json", *is_json, "Print one JSON document instead of text");
  return is_json;
}

std::shared_ptr<bool const> add_geojson_flag(CLI::App& options) {
  auto is_geojson = std::make_shared<bool>(false);
  options.add_flag("--geojson", *is_geojson, "Print one GeoJSON document, for maps")
      ->excludes(options.get_option("--json"));
  return is_geojson;
}

OutputForm form_of(bool is_json) { return is_json ? OutputForm::AsJson : OutputForm::AsText; }

ExitStatus run_on_set(SetArguments const& arguments, std::function<ExitStatus(IsoXmlParser&)> const& show) {
  IsoXmlParser set(arguments.directory, arguments.main_name);
  const ExitStatus outcome = show(set);
  std::cout.flush();  // before the failures, where both go to one terminal
  print_failures(set.getDocuments(), std::cerr);
  return std::max(outcome, status_of(set.getDocuments()));
}

RunCommand prepare_view(CLI::App& options, ShowView show) {
  auto arguments = add_set_arguments(options);
  auto is_json = add_json_flag(options);
  return [arguments, is_json, show] {
    return run_on_set(*arguments, [&](IsoXmlParser& set) {
      show(set, form_of(*is_json));
      return ExitStatus::AllGood;
    });
  };
}
