// Prescription maps: what of a task's treatment zones reaches a host, and what stays as the host left it.
#include <gtest/gtest.h>

#include <cstdint>
#include <locale>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/transfer_set.h"

namespace {

// --- Texts -----------------------------------------------------------------------------------------------

std::string number(double value) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << value;
  return text.str();
}

std::string text(lmx::Point const& point) {
  return "(" + number(point.east) + " " + number(point.north) + " " + std::to_string(point.altitude) + ")";
}

std::string text(lmx::Polygon const& polygon) {
  std::string all = "[" + std::string(polygon.isInterior ? "interior" : "") + "/" + polygon.name + "/" +
                    polygon.designator + "/";
  for (const char c : polygon.colour) all += std::to_string(static_cast<unsigned char>(c)) + ";";
  for (lmx::Point const& point : polygon.points) all += text(point);
  return all + "]";
}

std::string text(lmx::ProcessDataVariable const& variable) {
  return "{" + variable.ddi + "=" + std::to_string(variable.value) + "/" + variable.productIdRef + "/" +
         variable.valuePresentationIdRef + "/" + variable.rxMap + "/" + variable.rxColumn + "/" +
         variable.rxUnit + "/" + number(variable.rxWithoutConversionRate) + "}";
}

std::string text(lmx::TreatmentZone const& zone) {
  std::string all = std::to_string(zone.code) + zone.name + ":";
  for (lmx::Polygon const& polygon : zone.polygons) all += text(polygon);
  for (lmx::ProcessDataVariable const& variable : zone.variables) all += text(variable);
  EXPECT_EQ(0, zone.unset);
  return all + "\n";
}

std::string text(std::vector<lmx::TreatmentZone> const& zones) {
  std::string all;
  for (lmx::TreatmentZone const& zone : zones) all += text(zone);
  return all;
}

std::string text(lmx::ISORxMap const& map) {
  return map.taskId + "/" + map.designator + "/" + std::to_string(map.defaultTreatmentZoneCode) + "/" +
         std::to_string(map.positionLostTreatmentZoneCode) + "/" +
         std::to_string(map.outOfFieldTreatmentZoneCode) + "\n" + text(map.treatmentZones);
}

// --- Documents -------------------------------------------------------------------------------------------

std::string task(std::string const& children, char const* id = "TSK1") {
  return std::string("<TSK A='") + id + "' G='1'>" + children + "</TSK>";
}

std::string zone(std::string const& children, std::string const& attributes = " A='5' B='zone'") {
  return "<TZN" + attributes + ">" + children + "</TZN>";
}

std::string ring(char const* type = "1", std::string const& attributes = "") {
  return std::string("<LSG A='") + type + "'" + attributes + "><PNT A='2' C='1' D='2'/></LSG>";
}

std::string polygon(char const* designator, std::string const& rings = ring()) {
  return std::string("<PLN A='2' B='") + designator + "'>" + rings + "</PLN>";
}

std::string variable(int value, std::string const& attributes = "") {
  return "<PDV A='0006' B='" + std::to_string(value) + "'" + attributes + "/>";
}

lmx::TaskInfo info(std::string const& id) {
  lmx::TaskInfo result;
  result.id = id;
  result.designator = "given";
  result.defaultTreatmentZoneCode = 1;
  result.positionLostTreatmentZoneCode = 2;
  result.outOfFieldTreatmentZoneCode = 3;
  return result;
}

// The zones that the set of one task with these children gives.
std::string zones(std::string const& children) {
  const TransferSet set(task(children));
  EXPECT_EQ(0u, set->getErrors().size());
  lmx::ISORxMap map;
  set->getISORxMap(info("TSK1"), map);
  EXPECT_EQ("TSK1", map.taskId);
  return text(map.treatmentZones);
}

// A map that has been used before.
lmx::ISORxMap stale_map() {
  lmx::ISORxMap map;
  map.taskId = "stale";
  map.designator = "stale";
  map.treatmentZones.resize(1);
  map.treatmentZones[0].name = "stale";
  map.defaultTreatmentZoneCode = 99;
  return map;
}

// --- Which task, and what comes from where ---------------------------------------------------------------

TEST(RxMap, TakesZonesFromTheTaskAndAllElseFromTheInfo) {
  const TransferSet set("<TSK A='TSK1' B='own' G='1' H='7' I='8' J='9'>" + zone("") + "</TSK>");
  lmx::ISORxMap map = stale_map();
  set->getISORxMap(info("TSK1"), map);
  EXPECT_EQ("TSK1/given/1/2/3\n5zone:\n", text(map));
}

struct Search {
  char const* caption;
  char const* id;
  char const* map;
};

TEST(RxMap, KeepsStaleZonesWhenNoTaskMatches) {
  const TransferSet set(task(zone("")) + task("", "TSK2"));
  const TransferSet failed(SetFiles{});
  const Search rows[] = {
      {"no identifier", "", "stale/given/1/2/3\n0stale:\n"},
      {"an unknown one", "TSK3", "stale/given/1/2/3\n0stale:\n"},
      {"a part of one", "TSK", "stale/given/1/2/3\n0stale:\n"},
      {"in another case", "tsk1", "stale/given/1/2/3\n0stale:\n"},
      {"a task", "TSK1", "TSK1/given/1/2/3\n5zone:\n"},
      {"a task without zones, which has none", "TSK2", "TSK2/given/1/2/3\n"},
  };
  for (Search const& row : rows) {
    lmx::ISORxMap map = stale_map();
    set->getISORxMap(info(row.id), map);
    EXPECT_EQ(row.map, text(map)) << row.caption;
    map = stale_map();
    failed->getISORxMap(info(row.id), map);
    EXPECT_EQ("stale/given/1/2/3\n0stale:\n", text(map)) << row.caption << ", without documents";
  }
}

TEST(RxMap, AnEmptyIdentifierMatchesNotEvenATaskWithoutOne) {
  // No document can hold such a task: one is made in the tree.
  const TransferSet set(task(zone("")));
  set->getTasks().at(0)->SetId("");
  lmx::ISORxMap map = stale_map();
  set->getISORxMap(info(""), map);
  EXPECT_EQ("stale/given/1/2/3\n0stale:\n", text(map));
}

TEST(RxMap, TakesTheLastOfSeveralTasksWithTheIdentifier) {
  const TransferSet set(SetFiles{
      {"TASKDATA.XML",
       task_data(task(zone("", " A='1'")) + task(zone("", " A='2'")) + reference("TSK00001"))},
      {"TSK00001.XML", external_file(task(zone("", " A='3'") + zone("", " A='4'")) + task("", "TSK2"))}});
  lmx::ISORxMap map;
  set->getISORxMap(info("TSK1"), map);
  EXPECT_EQ("3:\n4:\n", text(map.treatmentZones));
}

TEST(RxMap, AnswersFromTheIdentifiersAsTheyAreAtEachCall) {
  const TransferSet set(SetFiles{
      {"TASKDATA.XML",
       task_data(task(zone("", " A='1'")) + task(zone("", " A='2'"), "TSK2") + reference("TSK00003"))},
      {"TSK00003.XML", external_file(task(zone("", " A='3'"), "TSK3") + task(zone("", " A='4'"), "TSK4"))}});
  const std::vector<Task*> tasks = set->getTasks();
  const auto zones_of = [&](char const* id) {
    lmx::ISORxMap map = stale_map();
    set->getISORxMap(info(id), map);
    return text(map.treatmentZones);
  };
  EXPECT_EQ("2:\n", zones_of("TSK2"));
  tasks[3]->SetId("TSK2");
  EXPECT_EQ("4:\n", zones_of("TSK2")) << "changed: a later task has it now";
  EXPECT_EQ("0stale:\n", zones_of("TSK4"));
  tasks[3]->SetId("");
  EXPECT_EQ("2:\n", zones_of("TSK2")) << "removed";
  tasks[0]->SetId("TSK2");
  EXPECT_EQ("2:\n", zones_of("TSK2")) << "an earlier task has it too";
  EXPECT_EQ("0stale:\n", zones_of("TSK1"));
  tasks[1]->SetId("TSK9");
  EXPECT_EQ("1:\n", zones_of("TSK2"));
  tasks[2]->SetId("TSK5");
  EXPECT_EQ("3:\n", zones_of("TSK5")) << "added";
  EXPECT_EQ("0stale:\n", zones_of("TSK3"));
}

// --- All maps at once ------------------------------------------------------------------------------------

std::string all_maps(IsoXmlParser const& set) {
  std::string all;
  for (lmx::ISORxMap const& map : set.getISORxMaps()) all += text(map);
  return all;
}

TEST(RxMaps, AreThoseOfAllTasksTheLastOfEachIdentifier) {
  const TransferSet set(
      SetFiles{{"TASKDATA.XML",
                task_data("<TSK A='TSK1' B='first' G='1' H='7' I='8' J='9'>" + zone("", " A='1'") + "</TSK>" +
                          "<TSK A='TSK2' B='second' G='1' H='1' I='2' J='254'>" + zone("", " A='2'") +
                          "</TSK>" + "<TSK A='TSK3' G='1'/>" + reference("TSK00001"))},
               {"TSK00001.XML", external_file("<TSK A='TSK1' B='last' G='1' H='4' I='5' J='6'>" +
                                              zone("", " A='3'") + zone("", " A='4'") + "</TSK>")}});
  EXPECT_EQ("TSK2/second/1/2/254\n2:\nTSK3//0/0/0\nTSK1/last/4/5/6\n3:\n4:\n", all_maps(*set));
}

TEST(RxMaps, AreNoneWithoutATaskOrAnIdentifier) {
  EXPECT_EQ("", all_maps(*TransferSet("")));
  EXPECT_EQ("", all_maps(*TransferSet(SetFiles{})));
  const TransferSet set(task(zone("")) + task(zone(""), "TSK2") + task(zone(""), "TSK3"));
  set->getTasks().at(0)->SetId("");
  set->getTasks().at(2)->SetId("");
  EXPECT_EQ("TSK2//0/0/0\n5zone:\n", all_maps(*set));
}

TEST(RxMaps, AreWhatIsAskedForEachTask) {
  std::string children;
  for (int i = 0; i != 300; ++i) {  // a hundred identifiers, each of three tasks
    children += task(zone(polygon("p") + variable(i)), ("TSK" + std::to_string(i * 7 % 100)).c_str());
  }
  const TransferSet set(children);
  const std::vector<lmx::TaskInfo> infos = set->getTaskInfoList();
  ASSERT_EQ(300u, infos.size());
  std::string asked;
  for (std::size_t i = 200; i != 300; ++i) {
    lmx::ISORxMap map;
    set->getISORxMap(infos[i], map);
    asked += text(map);
  }
  EXPECT_EQ(asked, all_maps(*set));
}

TEST(RxMap, IsEqualAtEachCallAndOutlivesTheParser) {
  TransferSet set(task(zone(polygon("p") + variable(1))));
  lmx::ISORxMap first;
  lmx::ISORxMap second;
  set->getISORxMap(info("TSK1"), first);
  set->getISORxMap(info("TSK1"), second);
  set->getISORxMap(info("TSK1"), second);
  EXPECT_EQ(text(first), text(second));
  set.close();
  EXPECT_EQ("TSK1/given/1/2/3\n5zone:[/p//0;(2 1 0)]{0006=1//////0}\n", text(first));
}

TEST(RxMap, TakesTheInfosOfTheList) {
  const TransferSet set("<TSK A='TSK1' B='own' G='1' H='7' I='8' J='254'>" + zone("") + "</TSK>");
  lmx::ISORxMap map;
  set->getISORxMap(set->getTaskInfoList().at(0), map);
  EXPECT_EQ("TSK1/own/7/8/254\n5zone:\n", text(map));
}

TEST(RxMap, RecordsHoldTheirMembersInTheirOrder) {
  const lmx::Point point = {2.0, 1.0, -3};
  EXPECT_EQ("(2 1 -3)", text(point)) << "east first";
  const lmx::Polygon polygon = {true, "name", {point}, "designator", "A"};
  EXPECT_EQ("[interior/name/designator/65;(2 1 -3)]", text(polygon));
  const lmx::ProcessDataVariable variable = {7, "0006", "PDT1", "VPN1", "map", "column", "unit", 0.5};
  EXPECT_EQ("{0006=7/PDT1/VPN1/map/column/unit/0.5}", text(variable));
  const lmx::TreatmentZone zone = {{polygon}, {variable}, "zone", 254, 0};
  const lmx::ISORxMap map = {"TSK1", "designator", {zone}, 1, 2, 3};
  EXPECT_EQ("TSK1/designator/1/2/3\n254zone:" + text(polygon) + text(variable) + "\n", text(map));
  EXPECT_EQ("//0/0/0\n", text(lmx::ISORxMap()));
  EXPECT_EQ("0:\n", text(lmx::TreatmentZone()));
  EXPECT_EQ("(0 0 0)", text(lmx::Point()));
  EXPECT_EQ("{=0//////0}", text(lmx::ProcessDataVariable()));
  EXPECT_FALSE(lmx::Polygon().isInterior);
  static_assert(std::is_same_v<std::uint16_t, decltype(lmx::TreatmentZone::code)>);
  static_assert(std::is_same_v<std::int32_t, decltype(lmx::ProcessDataVariable::value)>);
  static_assert(std::is_same_v<std::int32_t, decltype(lmx::Point::altitude)>);
}

// --- Zones -----------------------------------------------------------------------------------------------

struct Content {
  char const* caption;
  std::string children;
  char const* zones;
};

TEST(Zones, HoldWhatTheirOrderOfChildrenLeaves) {
  const Content rows[] = {
      {"nothing", zone(""), "5zone:\n"},
      {"no designator, greatest code", zone("", " A='254'"), "254:\n"},
      {"polygons, then variables: all kept", zone(polygon("p") + variable(1) + variable(2)),
       "5zone:[/p//0;(2 1 0)]{0006=1//////0}{0006=2//////0}\n"},
      {"variables, then polygons: no variables", zone(variable(1) + variable(2) + polygon("p")),
       "5zone:[/p//0;(2 1 0)]\n"},
      {"interleaved: only variables after the last polygon",
       zone(variable(1) + polygon("p") + variable(2) + polygon("q") + variable(3)),
       "5zone:[/q//0;(2 1 0)][///0;(2 1 0)]{0006=3//////0}\n"},
      {"variables alone", zone(variable(1)), "5zone:{0006=1//////0}\n"},
      {"several zones do not mix", zone(polygon("p") + variable(1)) + zone("", " A='6'") + zone(variable(2)),
       "5zone:[/p//0;(2 1 0)]{0006=1//////0}\n6:\n5zone:{0006=2//////0}\n"},
      {"zones with other children between",
       zone("") + "<TIM A='2024-01-01T00:00:00' D='1'/>" + zone("", " A='6'"), "5zone:\n6:\n"},
  };
  for (Content const& row : rows) EXPECT_EQ(row.zones, zones(row.children)) << row.caption;
}

TEST(Zones, AreNoneForATaskWithoutAny) {
  const std::string grid = "<GRD A='1' B='1' C='0.5' D='0.5' E='1' F='1' G='GRD00001' I='1'/>";
  const std::string time = "<TIM A='2024-01-01T00:00:00' D='1'/>";
  for (std::string const& children :
       {std::string(), grid, time, time + grid + "<P917_comment>c</P917_comment>"}) {
    EXPECT_EQ("", zones(children)) << children;
  }
}

TEST(Zones, NameTheirFirstRingAfterTheLastPolygonAndNoOther) {
  const Content rows[] = {
      {"one polygon of two rings", zone(polygon("p", ring("1", " B='a'") + ring("2", " B='b'"))),
       "5zone:[/p/a/0;(2 1 0)][interior//b/0;(2 1 0)]\n"},
      {"two polygons: the last name wins", zone(polygon("p") + polygon("q")),
       "5zone:[/q//0;(2 1 0)][///0;(2 1 0)]\n"},
      {"also an empty name", zone(polygon("p") + "<PLN A='2'>" + ring() + "</PLN>"),
       "5zone:[///0;(2 1 0)][///0;(2 1 0)]\n"},
      {"polygons in several runs", zone(polygon("p") + variable(1) + polygon("q")),
       "5zone:[/q//0;(2 1 0)][///0;(2 1 0)]\n"},
      {"each zone by itself", zone(polygon("p")) + zone(polygon("q")),
       "5zone:[/p//0;(2 1 0)]\n5zone:[/q//0;(2 1 0)]\n"},
  };
  for (Content const& row : rows) EXPECT_EQ(row.zones, zones(row.children)) << row.caption;
}

// --- Rings -----------------------------------------------------------------------------------------------

TEST(Rings, AreInteriorOnlyWhenOfTypeTwo) {
  for (char const* type : {"1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
    EXPECT_EQ(std::string("5zone:[") + (*type == '2' ? "interior" : "") + "/p//0;(2 1 0)]\n",
              zones(zone(polygon("p", ring(type)))))
        << type;
  }
}

struct Colour {
  char const* caption;
  std::string attribute;
  std::string expected;
};

TEST(Rings, HaveTheirColourAsOneRawByte) {
  const Colour rows[] = {
      {"a letter", " E='65'", "A"},
      {"absent", "", std::string(1, '\0')},
      {"zero", " E='0'", std::string(1, '\0')},
      {"above ASCII", " E='254'", "\xFE"},
  };
  for (Colour const& row : rows) {
    const TransferSet set(task(zone(polygon("p", ring("1", row.attribute)))));
    lmx::ISORxMap map;
    set->getISORxMap(info("TSK1"), map);
    EXPECT_EQ(row.expected, map.treatmentZones.at(0).polygons.at(0).colour) << row.caption;
  }
}

TEST(Rings, KeepTheirPointsInOrderWhateverTheirTypes) {
  const std::string points =
      "<PNT A='1' C='-1.25' D='2.5' E='-2147483647'/><PNT A='8' C='3' D='4'/><PNT A='11' C='5' D='-6' "
      "E='7'/>";
  EXPECT_EQ("5zone:[/p//0;(2.5 -1.25 -2147483647)(4 3 0)(-6 5 7)]\n",
            zones(zone(polygon("p", "<LSG A='1'>" + points + "</LSG>"))));
}

// --- Variables -------------------------------------------------------------------------------------------

TEST(Variables, CarryTheirAttributes) {
  const Content rows[] = {
      {"the required ones", variable(-5), "{0006=-5//////0}"},
      {"the least value", "<PDV A='abCD' B='-2147483648'/>", "{ABCD=-2147483648//////0}"},
      {"product", variable(1, " C='PDT1'"), "{0006=1/PDT1/////0}"},
      {"device element, which is not carried", variable(1, " D='DET1'"), "{0006=1//////0}"},
      {"value presentation", variable(1, " E='VPN1'"), "{0006=1//VPN1////0}"},
      {"values that are not carried", variable(1, " F='2' G='3'"), "{0006=1//////0}"},
      {"map", variable(1, " P917_rxmap='ABCDEFGH.SHP'"), "{0006=1///ABCDEFGH.SHP///0}"},
      {"column", variable(1, " P917_rxcolumn='rate'"), "{0006=1////rate//0}"},
      {"unit", variable(1, " P917_rxunit='kg'"), "{0006=1/////kg/0}"},
      {"the rate that is not carried", variable(1, " P917_rxconvrate='2.5'"), "{0006=1//////0}"},
      {"the rate that is", variable(1, " P917_rxwoconvrate='2.5'"), "{0006=1//////2.5}"},
      {"nested ones, which are not visited", "<PDV A='0001' B='1'>" + variable(2) + "</PDV>" + variable(3),
       "{0001=1//////0}{0006=3//////0}"},
  };
  for (Content const& row : rows) {
    EXPECT_EQ("5zone:" + std::string(row.zones) + "\n", zones(zone(row.children))) << row.caption;
  }
}

// --- Trees built by hand ---------------------------------------------------------------------------------

TEST(HandBuilt, TasksWithNothingInThemGiveNothing) {
  Task task;
  Task* pointer = &task;
  EXPECT_TRUE(lmx::xmlReader::getTZNList(pointer).empty());
  task.AppendInnerTask();
  task.AppendInnerTask().SelectTreatmentZone();
  task.AppendInnerTask().SelectGrid();
  task.AppendInnerTask().SelectP917Comment();
  EXPECT_TRUE(lmx::xmlReader::getTZNList(pointer).empty());
  EXPECT_EQ(&task, pointer);
}

TEST(HandBuilt, ZonesWithEmptyRunsHaveNoRingToName) {
  Task task;
  TreatmentZone& built = task.AppendInnerTask().AppendTreatmentZone();
  built.AppendInnerTreatmentZone();
  built.AppendInnerTreatmentZone().SelectPolygon();
  built.AppendInnerTreatmentZone().SelectProcessDataVariable();
  Polygon& polygon = built.AppendInnerTreatmentZone().AppendPolygon();
  polygon.SetDesignator("p");
  polygon.AppendInnerPolygon();
  polygon.AppendInnerPolygon().SelectLineString();
  Task* pointer = &task;
  EXPECT_EQ("0:\n", text(lmx::xmlReader::getTZNList(pointer)));
  polygon.AppendInnerPolygon().AppendLineString().AppendInnerLineString();
  EXPECT_EQ("0:[/p//0;]\n", text(lmx::xmlReader::getTZNList(pointer)));
  built.AppendInnerTreatmentZone().AppendPolygon().AppendInnerPolygon().SelectLineString();
  EXPECT_EQ("0:[///0;]\n", text(lmx::xmlReader::getTZNList(pointer))) << "an empty run's name counts then";
}

TEST(HandBuilt, ARunWithNothingChosenStillTakesTheVariablesAway) {
  Task task;
  TreatmentZone& built = task.AppendInnerTask().AppendTreatmentZone();
  built.AppendInnerTreatmentZone().AppendProcessDataVariable().SetValue(1);
  Task* pointer = &task;
  EXPECT_EQ("0:{=1//////0}\n", text(lmx::xmlReader::getTZNList(pointer)));
  built.AppendInnerTreatmentZone();
  EXPECT_EQ("0:\n", text(lmx::xmlReader::getTZNList(pointer)));
}

TEST(HandBuilt, VariablesOfTwoRunsAreThoseOfTheLast) {
  Task task;
  TreatmentZone& built = task.AppendInnerTask().AppendTreatmentZone();
  built.AppendInnerTreatmentZone().AppendProcessDataVariable().SetValue(1);
  built.AppendInnerTreatmentZone().AppendProcessDataVariable().SetValue(2);
  Task* pointer = &task;
  EXPECT_EQ("0:{=2//////0}\n", text(lmx::xmlReader::getTZNList(pointer)));
}

TEST(HandBuilt, RingsOfSeveralRunsOfPointsAreWhole) {
  InnerPolygon rings;
  InnerPolygon* pointer = &rings;
  EXPECT_TRUE(lmx::xmlReader::getPolygonList(pointer).empty()) << "nothing chosen";
  rings.SelectLineString();
  EXPECT_TRUE(lmx::xmlReader::getPolygonList(pointer).empty()) << "an empty run";
  LineString& built = rings.AppendLineString();
  for (int altitude : {1, 2}) built.AppendInnerLineString().AppendPoint().SetAltitude(altitude);
  rings.AppendLineString().SetDesignator("second");
  const std::vector<lmx::Polygon> records = lmx::xmlReader::getPolygonList(pointer);
  ASSERT_EQ(2u, records.size());
  EXPECT_EQ("[///0;(0 0 1)(0 0 2)]", text(records[0]));
  EXPECT_EQ("[//second/0;]", text(records[1]));
  EXPECT_EQ(&rings, pointer);
}

TEST(HandBuilt, ChoicesThatWereSetWithoutTheirObjectsGiveNothing) {
  for (const std::int32_t chosen : {-1, 0, 1, 2, 3, 14, 15}) {
    Task task;
    task.AppendInnerTask().chosen = chosen;
    task.AppendInnerTask().AppendTime();
    task.GetInnerTask(1).chosen = chosen;
    TreatmentZone& built = task.AppendInnerTask().AppendTreatmentZone();
    built.AppendInnerTreatmentZone().AppendProcessDataVariable();
    built.GetInnerTreatmentZone(0).chosen = chosen;
    built.AppendInnerTreatmentZone().chosen = chosen;
    built.AppendInnerTreatmentZone().AppendPolygon().AppendInnerPolygon().chosen = chosen;
    InnerPolygon& rings = built.GetInnerTreatmentZone(2).GetPolygon(0).AppendInnerPolygon();
    rings.AppendLineString().AppendInnerLineString().chosen = chosen;
    Task* pointer = &task;
    EXPECT_EQ("0:[///0;]\n", text(lmx::xmlReader::getTZNList(pointer))) << chosen;
    rings.chosen = chosen;
    InnerPolygon* rings_pointer = &rings;
    const bool is_ring = chosen == InnerPolygon::LineStringChosen;
    EXPECT_EQ(is_ring ? 1u : 0u, lmx::xmlReader::getPolygonList(rings_pointer).size()) << chosen;
  }
}

TEST(HandBuilt, RunsAreNotReadWhenTheChoiceWasSetToAnother) {
  for (const std::int32_t chosen : {-1, 1, 2, 14}) {
    Task task;
    InnerTask& zones_run = task.AppendInnerTask();
    InnerTreatmentZone& polygons_run = zones_run.AppendTreatmentZone().AppendInnerTreatmentZone();
    polygons_run.AppendPolygon().AppendInnerPolygon().AppendLineString();
    polygons_run.chosen = chosen;
    Task* pointer = &task;
    EXPECT_EQ("0:\n", text(lmx::xmlReader::getTZNList(pointer))) << chosen;
    zones_run.chosen = chosen;
    EXPECT_EQ("", text(lmx::xmlReader::getTZNList(pointer))) << chosen;
    zones_run.chosen = InnerTask::TreatmentZoneChosen;
    polygons_run.chosen = InnerTreatmentZone::PolygonChosen;
    EXPECT_EQ("0:[///0;]\n", text(lmx::xmlReader::getTZNList(pointer))) << chosen << ", nor freed";
  }
}

TEST(HandBuilt, TasksAreLeftAsTheyAre) {
  const TransferSet set(task(zone(polygon("p") + variable(1)) + "<P917_comment>c</P917_comment>"));
  Task* element = set->getTasks().at(0);
  TreatmentZone const* const zone_element = &element->GetInnerTask(0).GetTreatmentZone(0);
  lmx::xmlReader::getTZNList(element);
  EXPECT_EQ(set->getTasks().at(0), element);
  EXPECT_EQ(2u, element->SizeInnerTask());
  EXPECT_EQ(zone_element, &element->GetInnerTask(0).GetTreatmentZone(0));
  EXPECT_EQ(InnerTask::P917CommentChosen, element->GetInnerTask(1).chosen);
}

}  // namespace
