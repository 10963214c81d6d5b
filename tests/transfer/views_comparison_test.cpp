// Every view of generated transfer sets, one of more than five megabytes, against the same computed from
// libxml2's trees: each member of each record, coordinates bit for bit. Then what must not change a view:
// other calls in any order, the parser's end, the locale.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <locale>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "lines.h"
#include "reference_views.h"
#include "support/comma_locale.h"
#include "transfer/IsoDDIConstants.h"
#include "transfer/IsoXmlParser.h"

namespace {

// --- Lines of the library's records ----------------------------------------------------------------------

template <class Records, class Add>
void add_each(char const* name, Records const& records, Lines* lines, Add add) {
  for (std::size_t i = 0; i != records.size(); ++i) {
    lines->within(name, i, [&] { add(records[i], lines); });
  }
}

template <class Records, class Add>
Lines lines_of(char const* name, Records const& records, Add add) {
  Lines lines;
  add_each(name, records, &lines, add);
  return lines;
}

template <class Record>
struct StringMember {
  char const* name;
  std::string Record::*place;
};

template <class Record, std::size_t count>
void add_strings(Record const& record, StringMember<Record> const (&members)[count], Lines* lines) {
  for (StringMember<Record> const& member : members) lines->add(member.name, record.*member.place);
}

const StringMember<IsoGrower> grower_strings[] = {
    {"street", &IsoGrower::street},
    {"poBox", &IsoGrower::poBox},
    {"city", &IsoGrower::city},
    {"comment", &IsoGrower::comment},
    {"country", &IsoGrower::country},
    {"county", &IsoGrower::county},
    {"customerNumber", &IsoGrower::customerNumber},
    {"displayName", &IsoGrower::displayName},
    {"email", &IsoGrower::email},
    {"fax", &IsoGrower::fax},
    {"firstName", &IsoGrower::firstName},
    {"id", &IsoGrower::id},
    {"lastName", &IsoGrower::lastName},
    {"middleName", &IsoGrower::middleName},
    {"mobile", &IsoGrower::mobile},
    {"phone", &IsoGrower::phone},
    {"postalCode", &IsoGrower::postalCode},
    {"state", &IsoGrower::state},
};

void add_grower(IsoGrower const& grower, Lines* lines) {
  lines->add("uuid", grower.uuid);
  lines->add("unset", grower.unset);
  add_strings(grower, grower_strings, lines);
}

const StringMember<IsoFarm> farm_strings[] = {
    {"street", &IsoFarm::street},
    {"poBox", &IsoFarm::poBox},
    {"city", &IsoFarm::city},
    {"comment", &IsoFarm::comment},
    {"country", &IsoFarm::country},
    {"county", &IsoFarm::county},
    {"designator", &IsoFarm::designator},
    {"email", &IsoFarm::email},
    {"fax", &IsoFarm::fax},
    {"firstName", &IsoFarm::firstName},
    {"growerIdRef", &IsoFarm::growerIdRef},
    {"id", &IsoFarm::id},
    {"lastName", &IsoFarm::lastName},
    {"middleName", &IsoFarm::middleName},
    {"mobile", &IsoFarm::mobile},
    {"phone", &IsoFarm::phone},
    {"postalCode", &IsoFarm::postalCode},
    {"state", &IsoFarm::state},
};

void add_farm(IsoFarm const& farm, Lines* lines) {
  lines->add("uuid", farm.uuid);
  lines->add("unset", farm.unset);
  lines->add("growerUuid", farm.growerUuid);
  add_strings(farm, farm_strings, lines);
}

void add_attached_file(IsoAttachedFile const& file, Lines* lines) {
  lines->add("fileName", file.fileName);
  lines->add("type", file.type);
}

void add_location(Location const& location, Lines* lines) {
  lines->add("north", location.north);
  lines->add("east", location.east);
}

void add_polygon(IsoPolygon const& polygon, Lines* lines) {
  lines->add("uuid", polygon.uuid);
  lines->add("designator", polygon.designator);
  lines->add("id", polygon.id);
  lines->add("type", static_cast<int>(polygon.type));
  lines->add("isOtherType", polygon.isOtherType);
  lines->add("colour", polygon.colour);
  lines->add("area", polygon.area);
  lines->add("metaData", polygon.metaData);
  lines->add("sprayProperty", static_cast<int>(polygon.sprayProperty));
  lines->add("plantProperty", static_cast<int>(polygon.plantProperty));
  add_each("points", polygon.points, lines, add_location);
  add_each("interiorPoints", polygon.interiorPoints, lines, add_location);
}

void add_vertex(IsoPoint const& point, Lines* lines) {
  lines->add("north", point.north);
  lines->add("east", point.east);
  lines->add("altitude", point.altitude);
}

void add_scout_line(IsoScoutLine const& line, Lines* lines) {
  lines->add("unset", line.unset);
  lines->add("designator", line.designator);
  lines->add("id", line.id);
  lines->add("uuid", line.uuid);
  add_each("points", line.points, lines, add_vertex);
}

void add_scout_point(IsoScoutPoint const& point, Lines* lines) {
  lines->add("unset", point.unset);
  lines->add("designator", point.designator);
  lines->add("id", point.id);
  lines->add("uuid", point.uuid);
  lines->add("north", point.north);
  lines->add("east", point.east);
  lines->add("altitude", point.altitude);
  lines->add("type", static_cast<int>(point.type));
}

void add_guidance_line(IsoGuidanceLine const& line, Lines* lines) {
  lines->add("uuid", line.uuid);
  lines->add("id", line.id);
  lines->add("designator", line.designator);
  lines->add("type", static_cast<int>(line.type));
  lines->add("options", static_cast<int>(line.options));
  lines->add("propagationDirection", static_cast<int>(line.propagationDirection));
  lines->add("extension", static_cast<int>(line.extension));
  lines->add("gnssMethod", static_cast<int>(line.gnssMethod));
  lines->add("radius", line.radius);
  lines->add("heading", line.heading);
  lines->add("metaData", line.metaData);
  add_each("points", line.points, lines, add_location);
}

void add_guidance_group(IsoGuidanceGroup const& group, Lines* lines) {
  lines->add("uuid", group.uuid);
  lines->add("id", group.id);
  lines->add("designator", group.designator);
  lines->add("metaData", group.metaData);
  add_each("guidanceLines", group.guidanceLines, lines, add_guidance_line);
}

const StringMember<IsoField> field_strings[] = {
    {"comment", &IsoField::comment},
    {"county", &IsoField::county},
    {"crop", &IsoField::crop},
    {"cropTypeIdRef", &IsoField::cropTypeIdRef},
    {"cropVarietyIdRef", &IsoField::cropVarietyIdRef},
    {"designator", &IsoField::designator},
    {"farmIdRef", &IsoField::farmIdRef},
    {"fieldIdRef", &IsoField::fieldIdRef},
    {"growerIdRef", &IsoField::growerIdRef},
    {"id", &IsoField::id},
    {"fieldCode", &IsoField::fieldCode},
    {"section", &IsoField::section},
    {"state", &IsoField::state},
    {"township", &IsoField::township},
};

void add_field(IsoField const& field, Lines* lines) {
  lines->add("uuid", field.uuid);
  lines->add("farmUuid", field.farmUuid);
  lines->add("growerUuid", field.growerUuid);
  lines->add("unset", field.unset);
  lines->add("area", field.area);
  lines->add("stringListA", field.stringListA.size());
  lines->add("stringListB", field.stringListB.size());
  lines->add("stringListC", field.stringListC.size());
  add_strings(field, field_strings, lines);
  add_each("guidanceGroups", field.guidanceGroups, lines, add_guidance_group);
  add_each("polygons", field.polygons, lines, add_polygon);
  add_each("scoutLines", field.scoutLines, lines, add_scout_line);
  add_each("scoutPoints", field.scoutPoints, lines, add_scout_point);
  lines->add("hasScoutItem", field.hasScoutItem());
}

void add_task_info(lmx::TaskInfo const& info, Lines* lines) {
  lines->add("id", info.id);
  lines->add("customerIdRef", info.customerIdRef);
  lines->add("farmIdRef", info.farmIdRef);
  lines->add("fieldIdRef", info.fieldIdRef);
  lines->add("designator", info.designator);
  lines->add("jobMetaData", info.jobMetaData);
  lines->add("defaultTreatmentZoneCode", info.defaultTreatmentZoneCode);
  lines->add("positionLostTreatmentZoneCode", info.positionLostTreatmentZoneCode);
  lines->add("outOfFieldTreatmentZoneCode", info.outOfFieldTreatmentZoneCode);
}

void add_ring_point(lmx::Point const& point, Lines* lines) {
  lines->add("east", point.east);
  lines->add("north", point.north);
  lines->add("altitude", point.altitude);
}

void add_ring(lmx::Polygon const& ring, Lines* lines) {
  lines->add("isInterior", ring.isInterior);
  lines->add("name", ring.name);
  lines->add("designator", ring.designator);
  lines->add("colour", ring.colour);
  add_each("points", ring.points, lines, add_ring_point);
}

void add_variable(lmx::ProcessDataVariable const& variable, Lines* lines) {
  lines->add("value", variable.value);
  lines->add("ddi", variable.ddi);
  lines->add("productIdRef", variable.productIdRef);
  lines->add("valuePresentationIdRef", variable.valuePresentationIdRef);
  lines->add("rxMap", variable.rxMap);
  lines->add("rxColumn", variable.rxColumn);
  lines->add("rxUnit", variable.rxUnit);
  lines->add("rxWithoutConversionRate", variable.rxWithoutConversionRate);
}

void add_zone(lmx::TreatmentZone const& zone, Lines* lines) {
  lines->add("name", zone.name);
  lines->add("code", zone.code);
  lines->add("unset", zone.unset);
  add_each("polygons", zone.polygons, lines, add_ring);
  add_each("variables", zone.variables, lines, add_variable);
}

void add_rx_map(lmx::ISORxMap const& map, Lines* lines) {
  lines->add("taskId", map.taskId);
  lines->add("designator", map.designator);
  lines->add("defaultTreatmentZoneCode", map.defaultTreatmentZoneCode);
  lines->add("positionLostTreatmentZoneCode", map.positionLostTreatmentZoneCode);
  lines->add("outOfFieldTreatmentZoneCode", map.outOfFieldTreatmentZoneCode);
  add_each("treatmentZones", map.treatmentZones, lines, add_zone);
}

// --- Lines of elements -----------------------------------------------------------------------------------

std::string shown(std::string const& value) { return value; }
std::string shown(bool value) { return value ? "true" : "false"; }
std::string shown(lmx::c_binary const& value) { return value.get_as_hex_string(); }
std::string shown(lmx::c_decimal const& value) { return value.get_as_string(); }
template <class Number, class = std::enable_if_t<std::is_arithmetic_v<Number>>>
std::string shown(Number value) {
  return std::to_string(value);
}

template <class Value>
void add_attribute(char const* xml, bool is_set, Value const& value, Lines* lines) {
  lines->add(xml, is_set ? shown(value) : "(absent)");
}

void add_task(Task const* task, Lines* lines) {
  add_attribute("A", task->IssetId(), task->GetId(), lines);
  add_attribute("B", task->IssetDesignator(), task->GetDesignator(), lines);
  add_attribute("C", task->IssetCustomerIdRef(), task->GetCustomerIdRef(), lines);
  add_attribute("D", task->IssetFarmIdRef(), task->GetFarmIdRef(), lines);
  add_attribute("E", task->IssetFieldIdRef(), task->GetFieldIdRef(), lines);
  add_attribute("F", task->IssetResponsibleWorkerIdRef(), task->GetResponsibleWorkerIdRef(), lines);
  add_attribute("G", task->IssetStatus(), task->GetStatus(), lines);
  add_attribute("H", task->IssetDefaultTreatmentZoneCode(), task->GetDefaultTreatmentZoneCode(), lines);
  add_attribute("I", task->IssetPositionLostTreatmentZoneCode(), task->GetPositionLostTreatmentZoneCode(),
                lines);
  add_attribute("J", task->IssetOutOfFieldTreatmentZoneCode(), task->GetOutOfFieldTreatmentZoneCode(), lines);
  add_attribute("P007_JobMetaData", task->IssetP007JobMetaData(), task->GetP007JobMetaData(), lines);
}

void add_relation(ProductRelation const& relation, Lines* lines) {
  add_attribute("A", relation.IssetProductIdRef(), relation.GetProductIdRef(), lines);
  add_attribute("B", relation.IssetQuantityValue(), relation.GetQuantityValue(), lines);
  add_attribute("P917_vpn", relation.IssetP917Vpn(), relation.GetP917Vpn(), lines);
}

void add_product(Product const* product, Lines* lines) {
  add_attribute("A", product->IssetId(), product->GetId(), lines);
  add_attribute("B", product->IssetDesignator(), product->GetDesignator(), lines);
  add_attribute("C", product->IssetProductGroupIdRef(), product->GetProductGroupIdRef(), lines);
  add_attribute("D", product->IssetValuePresentationIdRef(), product->GetValuePresentationIdRef(), lines);
  add_attribute("E", product->IssetQuantityDDI(), product->GetQuantityDDI(), lines);
  add_attribute("F", product->IssetType(), product->GetType(), lines);
  add_attribute("G", product->IssetMixtureRecipeQuantity(), product->GetMixtureRecipeQuantity(), lines);
  add_attribute("H", product->IssetDensityMassPerVolume(), product->GetDensityMassPerVolume(), lines);
  add_attribute("I", product->IssetDensityMassPerCount(), product->GetDensityMassPerCount(), lines);
  add_attribute("J", product->IssetDensityVolumePerCount(), product->GetDensityVolumePerCount(), lines);
  add_attribute("P917_ingredientManufacturer", product->IssetP917IngredientManufacturer(),
                product->GetP917IngredientManufacturer(), lines);
  add_attribute("P917_ingredientRegistration", product->IssetP917IngredientRegistration(),
                product->GetP917IngredientRegistration(), lines);
  add_attribute("P917_ingredientComposition", product->IssetP917IngredientComposition(),
                product->GetP917IngredientComposition(), lines);
  add_attribute("P917_ingredientNotes", product->IssetP917IngredientNotes(),
                product->GetP917IngredientNotes(), lines);
  std::size_t count = 0;
  for (std::size_t i = 0; i != product->SizeInnerProduct(); ++i) {
    InnerProduct const& run = product->GetInnerProduct(i);
    for (std::size_t k = 0; k != run.SizeProductRelation(); ++k) {
      lines->within("relations", count++, [&] { add_relation(run.GetProductRelation(k), lines); });
    }
  }
}

void add_product_group(ProductGroup const* group, Lines* lines) {
  add_attribute("A", group->IssetId(), group->GetId(), lines);
  add_attribute("B", group->IssetDesignator(), group->GetDesignator(), lines);
  add_attribute("C", group->IssetType(), group->GetType(), lines);
}

void add_value_presentation(ValuePresentation const* presentation, Lines* lines) {
  add_attribute("A", presentation->IssetId(), presentation->GetId(), lines);
  add_attribute("B", presentation->IssetOffset(), presentation->GetOffset(), lines);
  add_attribute("C", presentation->IssetScale(), presentation->GetScale(), lines);
  add_attribute("D", presentation->IssetNumberOfDecimals(), presentation->GetNumberOfDecimals(), lines);
  add_attribute("E", presentation->IssetUnitDesignator(), presentation->GetUnitDesignator(), lines);
  add_attribute("F", presentation->IssetColourLegendIdRef(), presentation->GetColourLegendIdRef(), lines);
}

void add_question(P917Question const* question, Lines* lines) {
  const auto add_text = [&](char const* tag, std::size_t index, std::string const& text) {
    lines->within(tag, index, [&] { lines->add("text", text); });
  };
  add_attribute("P917_Uuid", question->IssetUuid(), question->GetUuid(), lines);
  add_attribute("P917_ReplyType", question->IssetReplyType(), question->GetReplyType(), lines);
  add_attribute("P917_Required", question->IssetRequired(), question->GetRequired(), lines);
  if (question->IssetPrompt()) add_text("P917_Prompt", 0, question->GetPrompt());
  if (question->IssetReply()) add_text("P917_Reply", 0, question->GetReply());
  for (std::size_t i = 0; i != question->SizeOption(); ++i)
    add_text("P917_Option", i, question->GetOption(i));
}

void add_variety(CropVariety const& variety, Lines* lines) {
  add_attribute("A", variety.IssetId(), variety.GetId(), lines);
  add_attribute("B", variety.IssetDesignator(), variety.GetDesignator(), lines);
  add_attribute("C", variety.IssetProductIdRef(), variety.GetProductIdRef(), lines);
}

void add_crop_type(CropType const* crop, Lines* lines) {
  add_attribute("A", crop->IssetId(), crop->GetId(), lines);
  add_attribute("B", crop->IssetDesignator(), crop->GetDesignator(), lines);
  add_attribute("C", crop->IssetProductGroupIdRef(), crop->GetProductGroupIdRef(), lines);
  std::size_t count = 0;
  for (std::size_t i = 0; i != crop->SizeInnerCropType(); ++i) {
    InnerCropType const& run = crop->GetInnerCropType(i);
    for (std::size_t k = 0; k != run.SizeCropVariety(); ++k) {
      lines->within("varieties", count++, [&] { add_variety(run.GetCropVariety(k), lines); });
    }
  }
}

void add_metadata(P917Metadata const* metadata, Lines* lines) {
  add_attribute("Version", metadata->IssetVersion(), metadata->GetVersion(), lines);
  add_attribute("CloudJob", metadata->IssetCloudJob(), metadata->GetCloudJob(), lines);
  add_attribute("originationId", metadata->IssetOriginationId(), metadata->GetOriginationId(), lines);
  add_attribute("jobStatusId", metadata->IssetJobStatusId(), metadata->GetJobStatusId(), lines);
}

// --- The views -------------------------------------------------------------------------------------------

std::vector<IsoField> filled_fields(IsoXmlParser& parser) {
  std::vector<IsoField> fields;
  for (Field* field : parser.getLmxFields()) fields.push_back(parser.fillIsoField(field));
  return fields;
}

std::vector<lmx::ISORxMap> rx_maps(IsoXmlParser const& parser) {
  std::vector<lmx::ISORxMap> maps;
  for (lmx::TaskInfo const& info : parser.getTaskInfoList()) {
    parser.getISORxMap(info, maps.emplace_back());
  }
  return maps;
}

Lines metadata(IsoXmlParser& parser) {
  std::vector<P917Metadata const*> all;
  if (P917Metadata const* const metadata = parser.getP917Metadata()) all.push_back(metadata);
  return lines_of("metadata", all, add_metadata);
}

Lines uuid_links(IsoXmlParser const& parser) {
  Lines lines;
  for (auto const& [id, uuid] : parser.getUuidLinks()) lines.add(id, parser.getIsoUuid(id));
  return lines;
}

Lines failures(IsoXmlParser const& parser) {
  Lines lines;
  for (IsoXmlError const& error : parser.getErrors()) lines.add("fileName", error.fileName);
  return lines;
}

struct View {
  char const* name;
  Lines (*actual)(IsoXmlParser& parser);
  Lines (ReferenceViews::*expected)() const;
};

using Parser = IsoXmlParser&;
const View views[] = {
    {"growers", [](Parser p) { return lines_of("growers", p.getGrowers(), add_grower); },
     &ReferenceViews::growers},
    {"farms", [](Parser p) { return lines_of("farms", p.getFarms(), add_farm); }, &ReferenceViews::farms},
    {"attached files",
     [](Parser p) { return lines_of("attachedFiles", p.getAttachedFiles(), add_attached_file); },
     &ReferenceViews::attached_files},
    {"tasks", [](Parser p) { return lines_of("tasks", p.getTasks(), add_task); }, &ReferenceViews::tasks},
    {"products", [](Parser p) { return lines_of("products", p.getProducts(), add_product); },
     &ReferenceViews::products},
    {"product groups",
     [](Parser p) { return lines_of("productGroups", p.getProductGroups(), add_product_group); },
     &ReferenceViews::product_groups},
    {"value presentations",
     [](Parser p) {
       return lines_of("valuePresentations", p.getValuePresentations(), add_value_presentation);
     },
     &ReferenceViews::value_presentations},
    {"questions", [](Parser p) { return lines_of("questions", p.getQuestions(), add_question); },
     &ReferenceViews::questions},
    {"crop types", [](Parser p) { return lines_of("cropTypes", p.getCropTypes(), add_crop_type); },
     &ReferenceViews::crop_types},
    {"fields", [](Parser p) { return lines_of("fields", p.getFields(), add_field); },
     &ReferenceViews::fields},
    {"filled fields", [](Parser p) { return lines_of("fields", filled_fields(p), add_field); },
     &ReferenceViews::filled_fields},
    {"task list", [](Parser p) { return lines_of("taskInfos", p.getTaskInfoList(), add_task_info); },
     &ReferenceViews::task_infos},
    {"prescription maps", [](Parser p) { return lines_of("maps", rx_maps(p), add_rx_map); },
     &ReferenceViews::rx_maps},
    {"metadata", [](Parser p) { return metadata(p); }, &ReferenceViews::metadata},
    {"UUID links", [](Parser p) { return uuid_links(p); }, &ReferenceViews::uuid_links},
    {"failures", [](Parser p) { return failures(p); }, &ReferenceViews::failures},
};

const std::string sets = ISOXML_VIEWS_SETS;
const std::string large_set = sets + "/large";
const std::vector<std::string> small_sets = {sets + "/small1", sets + "/small2", sets + "/small3"};

// --- Comparisons -----------------------------------------------------------------------------------------

void expect_equal_views(std::string const& directory) {
  const ReferenceViews reference(directory, "TASKDATA");
  IsoXmlParser parser(directory, "TASKDATA");
  EXPECT_TRUE(parser.isSchemaVersion4());
  for (View const& view : views) {
    const Lines expected = (reference.*view.expected)();
    EXPECT_TRUE(Lines::equal(expected, view.actual(parser))) << view.name << " of " << directory;
    EXPECT_TRUE(Lines::equal(expected, view.actual(parser))) << view.name << " again, of " << directory;
    EXPECT_NE(0u, expected.size()) << "the set has no " << view.name;
  }
}

TEST(ViewsOfALargeSet, AreWhatAnotherLibraryFindsInItsFiles) {
  std::uintmax_t bytes = 0;
  for (auto const& file : std::filesystem::directory_iterator(large_set)) bytes += file.file_size();
  ASSERT_LE(5u << 20, bytes);
  expect_equal_views(large_set);
}

TEST(ViewsOfSmallSets, AreWhatAnotherLibraryFindsInTheirFiles) {
  for (std::string const& directory : small_sets) expect_equal_views(directory);
}

TEST(ViewsOfSmallSets, AreTheSameInWhateverOrderTheyAreCalled) {
  std::mt19937 random(3);
  std::vector<View> calls;
  for (int i = 0; i != 3; ++i) calls.insert(calls.end(), std::begin(views), std::end(views));
  for (std::string const& directory : small_sets) {
    const ReferenceViews reference(directory, "TASKDATA");
    for (int round = 0; round != 3; ++round) {
      std::shuffle(calls.begin(), calls.end(), random);
      IsoXmlParser parser(directory, "TASKDATA");
      std::string order;
      for (View const& view : calls) {
        order += std::string(view.name) + ", ";
        ASSERT_TRUE(Lines::equal((reference.*view.expected)(), view.actual(parser))) << order << directory;
      }
    }
  }
}

TEST(RecordsOfALargeSet, OutliveTheirParser) {
  auto parser = std::make_unique<IsoXmlParser>(large_set, "TASKDATA");
  const std::vector<IsoGrower> growers = parser->getGrowers();
  const std::vector<IsoFarm> farms = parser->getFarms();
  const std::vector<IsoAttachedFile> files = parser->getAttachedFiles();
  const std::vector<IsoField> filled = filled_fields(*parser);
  const std::vector<IsoField> fields = parser->getFields();
  const std::vector<lmx::TaskInfo> infos = parser->getTaskInfoList();
  const std::vector<lmx::ISORxMap> maps = rx_maps(*parser);
  const std::map<std::string, std::string> links = parser->getUuidLinks();
  const std::vector<IsoXmlError> errors = parser->getErrors();
  parser.reset();
  const ReferenceViews reference(large_set, "TASKDATA");
  EXPECT_TRUE(Lines::equal(reference.growers(), lines_of("growers", growers, add_grower)));
  EXPECT_TRUE(Lines::equal(reference.farms(), lines_of("farms", farms, add_farm)));
  EXPECT_TRUE(Lines::equal(reference.attached_files(), lines_of("attachedFiles", files, add_attached_file)));
  EXPECT_TRUE(Lines::equal(reference.filled_fields(), lines_of("fields", filled, add_field)));
  EXPECT_TRUE(Lines::equal(reference.fields(), lines_of("fields", fields, add_field)));
  EXPECT_TRUE(Lines::equal(reference.task_infos(), lines_of("taskInfos", infos, add_task_info)));
  EXPECT_TRUE(Lines::equal(reference.rx_maps(), lines_of("maps", maps, add_rx_map)));
  EXPECT_EQ(reference.uuid_links().size(), links.size());
  EXPECT_EQ(reference.failures().size(), errors.size());
}

// --- Locales ---------------------------------------------------------------------------------------------

TEST(ViewsOfSmallSets, AreTheSameInALocaleWithADecimalComma) {
  const CommaLocale comma;
  ASSERT_STREQ(",", std::localeconv()->decimal_point) << "install the locale de_DE.UTF-8";
  for (std::string const& directory : small_sets) expect_equal_views(directory);
}

// --- Data dictionary identifiers -------------------------------------------------------------------------

TEST(DataDictionaryIdentifiers, AreWhatPrintfMakesOfThem) {
  std::mt19937 random(5);
  for (int i = 0; i != 2000; ++i) {
    const int value = static_cast<int>(static_cast<std::uint32_t>(random()) >> (random() % 32));
    const unsigned int width = static_cast<unsigned int>(random() % 21);
    std::array<char, 32> text;
    std::snprintf(text.data(), text.size(), "%0*x", static_cast<int>(width),
                  static_cast<unsigned int>(value));
    const std::string digits = text.data();
    EXPECT_EQ(digits, IsoDDIConstants::toPaddedHexString(value, width)) << value << " " << width;
    std::string pairs = digits.substr(0, digits.size() / 2 * 2);
    for (char& c : pairs) c = c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c;
    EXPECT_EQ(pairs, IsoDDIConstants::toHexBinary(value, width).get_as_hex_string()) << value << " " << width;
  }
}

}  // namespace
