// The record of a field: its attributes, its geometry sorted into lists, its UUIDs by either road, and trees
// that a host has built by hand.
#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <locale>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/transfer_set.h"

namespace {

// --- Documents -------------------------------------------------------------------------------------------

// Attribute text, such as " B='name'".
using Attributes = std::string;

std::string field(std::string const& children, Attributes const& attributes = "") {
  return "<PFD A='PFD1' C='field' D='100'" + attributes + ">" + children + "</PFD>";
}

// A point at `north` degrees north and the same and a half east.
std::string point(int north, char const* type = "9", Attributes const& attributes = "") {
  const std::string degrees = std::to_string(north);
  return std::string("<PNT A='") + type + "' C='" + degrees + "' D='" + degrees + ".5'" + attributes + "/>";
}

std::string line(char const* type, std::string const& points, Attributes const& attributes = "") {
  return std::string("<LSG A='") + type + "'" + attributes + ">" + points + "</LSG>";
}

std::string polygon(std::string const& rings, char const* type = "1", Attributes const& attributes = "") {
  return std::string("<PLN A='") + type + "'" + attributes + ">" + rings + "</PLN>";
}

std::string pattern(char const* type, std::string const& lines, Attributes const& attributes = "") {
  return std::string("<GPN A='GPN1' C='") + type + "'" + attributes + ">" + lines + "</GPN>";
}

std::string group(std::string const& patterns, Attributes const& attributes = "") {
  return "<GGP A='GGP1'" + attributes + ">" + patterns + "</GGP>";
}

// Every key of `ids` with its UUID, for identifiers that a link list can not name, such as those of points.
IsoField::UuidLinks links_for(std::vector<std::string> const& ids) {
  IsoField::UuidLinks links;
  for (std::string const& id : ids) links.emplace(id, "uuid of " + id);
  return links;
}

// The record of the set's only field.
IsoField only_field(TransferSet const& set) {
  EXPECT_EQ(0u, set->getErrors().size());
  return set->getFields().at(0);
}
IsoField only_field(std::string const& main_content) { return only_field(TransferSet(main_content)); }

// --- Texts of records ------------------------------------------------------------------------------------

std::string number(double value) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << value;
  return text.str();
}

// Such as "1,1.5 2,2.5".
std::string text(std::vector<Location> const& points) {
  std::string all;
  for (Location const& at : points) {
    all += (all.empty() ? "" : " ") + number(at.north) + "," + number(at.east);
  }
  return all;
}

std::string text(std::vector<IsoPoint> const& points) {
  std::string all;
  for (IsoPoint const& at : points) {
    all += (all.empty() ? "" : " ") + number(at.north) + "," + number(at.east) + "," + number(at.altitude);
  }
  return all;
}

std::string text(IsoPolygon const& record) {
  return "polygon " + record.uuid + "/" + record.designator + "/" + record.id + "/" +
         std::to_string(record.type) + "/" + (record.isOtherType ? "other" : "") + "/" +
         std::to_string(record.colour) + "/" + number(record.area) + "/" + text(record.points) + "/" +
         text(record.interiorPoints) + "/" + record.metaData + "/" + std::to_string(record.sprayProperty) +
         "/" + std::to_string(record.plantProperty) + "\n";
}

std::string text(IsoScoutLine const& record) {
  return "line " + record.unset + "/" + record.designator + "/" + record.id + "/" + record.uuid + "/" +
         text(record.points) + "\n";
}

std::string text(IsoScoutPoint const& record) {
  return "point " + record.unset + "/" + record.designator + "/" + record.id + "/" + record.uuid + "/" +
         number(record.north) + "/" + number(record.east) + "/" + number(record.altitude) + "/" +
         std::to_string(record.type) + "\n";
}

std::string text(IsoGuidanceLine const& record) {
  return "guidance line " + record.uuid + "/" + record.id + "/" + record.designator + "/" +
         std::to_string(record.type) + "/" + std::to_string(record.options) + "/" +
         std::to_string(record.propagationDirection) + "/" + std::to_string(record.extension) + "/" +
         std::to_string(record.gnssMethod) + "/" + std::to_string(record.radius) + "/" +
         number(record.heading) + "/" + record.metaData + "/" + text(record.points) + "\n";
}

std::string text(IsoGuidanceGroup const& record);
std::string text(IsoField const& record);

template <class Record>
std::string text(std::vector<Record> const& records) {
  std::string all;
  for (Record const& record : records) all += text(record);
  return all;
}

std::string text(IsoGuidanceGroup const& record) {
  return "group " + record.uuid + "/" + record.id + "/" + record.designator + "/" + record.metaData + "\n" +
         text(record.guidanceLines);
}

struct Member {
  char const* name;
  char const* xml;  // the attribute it comes from; null for one that a link gives
  std::string IsoField::*place;
};

// In the order in which the record holds them.
const Member members[] = {
    {"uuid", nullptr, &IsoField::uuid},
    {"comment", "P917_comment", &IsoField::comment},
    {"county", "P917_county", &IsoField::county},
    {"crop", "P917_crop", &IsoField::crop},
    {"cropTypeIdRef", "G", &IsoField::cropTypeIdRef},
    {"cropVarietyIdRef", "H", &IsoField::cropVarietyIdRef},
    {"designator", "C", &IsoField::designator},
    {"farmIdRef", "F", &IsoField::farmIdRef},
    {"farmUuid", nullptr, &IsoField::farmUuid},
    {"fieldIdRef", "I", &IsoField::fieldIdRef},
    {"growerIdRef", "E", &IsoField::growerIdRef},
    {"growerUuid", nullptr, &IsoField::growerUuid},
    {"id", "A", &IsoField::id},
    {"fieldCode", "B", &IsoField::fieldCode},
    {"section", "P917_section", &IsoField::section},
    {"state", "P917_state", &IsoField::state},
    {"township", "P917_township", &IsoField::township},
};

std::string attributes_text(IsoField const& record) {
  std::string all = "area=" + std::to_string(record.area) + ";";
  for (Member const& member : members) {
    std::string const& value = record.*member.place;
    if (!value.empty()) all += std::string(member.name) + "=" + value + ";";
  }
  return all + "\n";
}

std::string text(IsoField const& record) {
  return attributes_text(record) + text(record.guidanceGroups) + text(record.polygons) +
         text(record.scoutLines) + text(record.scoutPoints);
}

// --- Attributes ------------------------------------------------------------------------------------------

struct Value {
  char const* name;
  char const* value;
};

TEST(FieldRecord, CarriesEachAttributeInItsOwnMember) {
  const Value rows[] = {
      {"comment", "comment"},       {"county", "county"},   {"crop", "crop"},       {"cropTypeIdRef", "CTP7"},
      {"cropVarietyIdRef", "CVT7"}, {"farmIdRef", "FRM7"},  {"fieldIdRef", "PFD7"}, {"growerIdRef", "CTR7"},
      {"fieldCode", "code"},        {"section", "section"}, {"state", "state"},     {"township", "township"},
  };
  for (Value const& row : rows) {
    for (Member const& member : members) {
      if (member.name != std::string(row.name)) continue;
      const IsoField record = only_field(field("", std::string(" ") + member.xml + "='" + row.value + "'"));
      for (Member const& other : members) {
        const std::string name = other.name;
        const std::string expected = name == "id"           ? "PFD1"
                                     : name == "designator" ? "field"
                                     : name == row.name     ? row.value
                                                            : "";
        EXPECT_EQ(expected, record.*other.place) << row.name << " in " << name;
      }
      EXPECT_EQ(100u, record.area);
    }
  }
}

TEST(FieldRecord, DoesNotCarryTheOtherExtensions) {
  const IsoField record = only_field(
      field("",
            " P917_firstName='x' P917_middleName='x' P917_lastName='x' P917_phoneNumber='x' "
            "P917_mobileNumber='x' P917_faxNumber='x' P917_Email='x' P917_street='x' P917_poBox='x' "
            "P917_postalCode='x' P917_city='x' P917_country='x'"));
  EXPECT_EQ("area=100;designator=field;id=PFD1;\n", text(record));
}

TEST(FieldRecord, HoldsItsMembersInTheirOrder) {
  Field element;
  const IsoField record(&element);
  for (std::size_t i = 1; i != std::size(members); ++i) {
    EXPECT_LT(&(record.*members[i - 1].place), &(record.*members[i].place)) << members[i].name;
  }
  void const* const others[] = {&record.uuid,      &record.unset,       &record.area,
                                &record.comment,   &record.id,          &record.stringListA,
                                &record.fieldCode, &record.stringListB, &record.stringListC,
                                &record.section,   &record.township,    &record.guidanceGroups,
                                &record.polygons,  &record.scoutLines,  &record.scoutPoints};
  for (std::size_t i = 1; i != std::size(others); ++i) EXPECT_LT(others[i - 1], others[i]) << i;
  static_assert(std::is_same_v<std::int32_t, decltype(IsoField::unset)>);
  static_assert(std::is_same_v<std::uint32_t, decltype(IsoField::area)>);
  static_assert(sizeof(IsoPolygon::type) == 4);

  const Location location = {1.0, 2.0};
  EXPECT_EQ(1.0, location.north);
  const IsoPoint vertex = {1.0, 2.0, 3.0};
  EXPECT_EQ(2.0, vertex.east);
  EXPECT_EQ(3.0, vertex.altitude);
}

TEST(FieldRecord, OfAFieldWithoutChildrenHasEmptyLists) {
  const IsoField record = only_field(field(""));
  EXPECT_EQ("area=100;designator=field;id=PFD1;\n", text(record));
  EXPECT_EQ(0, record.unset);
  EXPECT_TRUE(record.stringListA.empty() && record.stringListB.empty() && record.stringListC.empty());
  EXPECT_FALSE(record.hasScoutItem());
}

TEST(FieldRecord, TakesUnsetAttributesForAbsent) {
  Field element;
  element.SetId("PFD1");
  element.SetDesignator("field");
  element.SetArea(7);
  element.SetFarmIdRef("FRM1");
  element.SetCrop("crop");
  element.UnsetId();
  element.UnsetDesignator();
  element.UnsetArea();
  element.UnsetFarmIdRef();
  element.UnsetCrop();
  EXPECT_EQ("area=7;designator=field;id=PFD1;\n", text(IsoField(&element))) << "the required ones stay";
}

TEST(FieldRecord, CarriesTheGreatestArea) {
  const IsoField record = only_field("<PFD A='PFD1' C='c' D='4294967294'>" +
                                     polygon(line("1", point(1)), "1", " C='4294967294'") + "</PFD>");
  EXPECT_EQ(4294967294u, record.area);
  EXPECT_EQ(4294967294.0, record.polygons.at(0).area);
}

// --- Lists -----------------------------------------------------------------------------------------------

TEST(FieldRecord, SortsChildrenByKindAndKeepsTheirOrderWithin) {
  const IsoField record = only_field(
      field(point(1, "1", " B='p1'") + polygon(line("1", point(2)), "1", " B='b1'") +
            line("3", point(3), " B='l1'") + point(4, "2", " B='p2'") + point(5, "3", " B='p3'") +
            polygon(line("1", point(6)), "3", " B='b2'") + line("9", point(7), " B='l2'") +
            group(pattern("1", line("5", point(8)))) + polygon(line("1", point(9)), "2", " B='b3'") +
            "<GGP A='GGP2'>" + pattern("1", line("5", point(8))) + "</GGP>"));
  ASSERT_EQ(2u, record.guidanceGroups.size());
  EXPECT_EQ("GGP1", record.guidanceGroups[0].id);
  EXPECT_EQ("GGP2", record.guidanceGroups[1].id);
  EXPECT_EQ(
      "polygon /b1//1//0/0/2,2.5///0/0\n"
      "polygon /b2//7//0/0/6,6.5///0/0\n"
      "polygon /b3//2//0/0/9,9.5///0/0\n",
      text(record.polygons));
  EXPECT_EQ("line /l1///3,3.5,0\nline /l2///7,7.5,0\n", text(record.scoutLines));
  EXPECT_EQ("point /p1///1/1.5/0/1\npoint /p2///4/4.5/0/2\npoint /p3///5/5.5/0/7\n",
            text(record.scoutPoints));
}

TEST(FieldRecord, TakesLinesAndPointsOfEveryTypeForScoutItems) {
  std::string children;
  for (char const* type : {"1", "2", "3", "4", "5", "6", "7", "8", "9"}) children += line(type, point(1));
  for (char const* type : {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"})
    children += point(1, type);
  const IsoField record = only_field(field(children));
  EXPECT_EQ(9u, record.scoutLines.size());
  EXPECT_EQ(11u, record.scoutPoints.size());
  EXPECT_TRUE(record.polygons.empty());
}

struct Scout {
  char const* caption;
  std::string children;
  bool has_item;
};

TEST(HasScoutItem, CountsPolygonsButNoGuidance) {
  const Scout rows[] = {
      {"nothing", "", false},
      {"a boundary alone", polygon(line("1", point(1))), true},
      {"a line", line("3", point(1)), true},
      {"a point", point(1), true},
      {"guidance alone", group(pattern("1", line("5", point(1)))), false},
  };
  for (Scout const& row : rows) {
    const IsoField record = only_field(field(row.children));
    EXPECT_EQ(row.has_item, record.hasScoutItem()) << row.caption;
  }
}

// --- Polygons --------------------------------------------------------------------------------------------

TEST(Polygons, HoldAllRingsInPointsAndInteriorOnesOnceMore) {
  const std::string exterior = line("1", point(1) + point(2) + point(3, "9", " E='77'"));
  const std::string interior = line("2", point(4) + point(5) + point(6));
  const std::string all = "1,1.5 2,2.5 3,3.5 4,4.5 5,5.5 6,6.5";
  const IsoPolygon record = only_field(field(polygon(exterior + interior))).polygons.at(0);
  EXPECT_EQ(6u, record.points.size());
  EXPECT_EQ(3u, record.interiorPoints.size());
  EXPECT_EQ(all, text(record.points));
  EXPECT_EQ("4,4.5 5,5.5 6,6.5", text(record.interiorPoints));

  const IsoPolygon swapped =
      only_field(field(polygon(interior + exterior + line("3", point(7)) + line("2", point(8)))))
          .polygons.at(0);
  EXPECT_EQ("4,4.5 5,5.5 6,6.5 1,1.5 2,2.5 3,3.5 7,7.5 8,8.5", text(swapped.points));
  EXPECT_EQ("4,4.5 5,5.5 6,6.5 8,8.5", text(swapped.interiorPoints));
}

struct TypeCode {
  char const* text;
  int code;
};

// The codes of the numbers as texts.
const TypeCode type_codes[] = {{"1", 1},  {"2", 2},  {"3", 7},  {"4", 8},   {"5", 9},   {"6", 10},
                               {"7", 11}, {"8", 12}, {"9", 13}, {"10", 14}, {"11", 15}, {"12", 16}};

TEST(Polygons, OfEveryTypeAreCarriedAndTypeEightIsOther) {
  for (TypeCode const& row : type_codes) {
    const IsoPolygon record = only_field(field(polygon(line("1", point(1)), row.text))).polygons.at(0);
    EXPECT_EQ(row.code, record.type) << row.text;
    EXPECT_EQ(row.code == 12, record.isOtherType) << row.text;
  }
}

TEST(Polygons, CarryTheirAttributes) {
  const TransferSet set(field(polygon(line("1", point(1)), "8",
                                      " B='name' C='55' D='254' E='PLN1' P007_PolygonMetaData=' meta ' "
                                      "P917_SprayProperty='1' P917_PlantProperty='2'")),
                        {"PLN1"});
  EXPECT_EQ("polygon uuid of PLN1/name/PLN1/12/other/254/55/1,1.5// meta /1/2\n",
            text(only_field(set).polygons));
}

TEST(Polygons, TakeUnsetAttributesForAbsent) {
  Field element;
  Polygon& polygon = element.AppendInnerField().AppendPolygon();
  polygon.SetType("1");
  polygon.SetDesignator("name");
  polygon.SetId("PLN1");
  polygon.SetArea(5);
  polygon.SetColour(6);
  polygon.SetP917SprayProperty("1");
  polygon.UnsetDesignator();
  polygon.UnsetId();
  polygon.UnsetArea();
  polygon.UnsetColour();
  polygon.UnsetP917SprayProperty();
  EXPECT_EQ("polygon ///1//0/0////0/0\n", text(IsoField(&element, {{"PLN1", "uuid"}}).polygons));
}

TEST(Polygons, TakeAnUnknownEnumerationForNone) {
  Field element;
  Polygon& polygon = element.AppendInnerField().AppendPolygon();
  polygon.SetType("99");
  polygon.SetP917PlantProperty("x");
  EXPECT_EQ("polygon ///0//0/0////0/0\n", text(IsoField(&element).polygons));
}

// --- Scout lines and points ------------------------------------------------------------------------------

TEST(ScoutLines, CarryTheirAttributesAndAltitudes) {
  const TransferSet set(field(line("4", point(1, "9", " E='-5'") + point(-2), " B='name' F='LSG1'")));
  EXPECT_EQ("line /name/LSG1/uuid of LSG1/1,1.5,-5 -2,-2.5,0\n",
            text(IsoField(set->getLmxFields().at(0), links_for({"LSG1"})).scoutLines));
}

TEST(ScoutLines, OfSeveralRunsGrowFromRecordToRecord) {
  Field element;
  LineString& built = element.AppendInnerField().AppendLineString();
  built.SetDesignator("built");
  for (int north : {1, 2, 3}) {
    Point& vertex = built.AppendInnerLineString().AppendPoint();
    vertex.SetNorth(lmx::c_decimal(std::to_string(north).c_str()));
  }
  EXPECT_EQ("line /built///1,0,0\nline /built///1,0,0 2,0,0\nline /built///1,0,0 2,0,0 3,0,0\n",
            text(IsoField(&element).scoutLines));
}

TEST(ScoutLines, ArePerLineAndDoNotGrowIntoTheNext) {
  const IsoField record = only_field(field(line("3", point(1)) + line("3", point(2))));
  EXPECT_EQ("line ////1,1.5,0\nline ////2,2.5,0\n", text(record.scoutLines));
}

TEST(ScoutLines, WithoutARunGiveNone) {
  Field element;
  element.AppendInnerField().AppendLineString().SetDesignator("built");
  EXPECT_TRUE(IsoField(&element).scoutLines.empty());
}

TEST(ScoutPoints, CarryTheirAttributes) {
  const TransferSet set(field(point(1, "10", " B='name' E='77' F='3' G='PNT1'")));
  EXPECT_EQ("point /name/PNT1/uuid of PNT1/1/1.5/77/14\n",
            text(IsoField(set->getLmxFields().at(0), links_for({"PNT1"})).scoutPoints));
}

struct Altitude {
  char const* caption;
  Attributes attributes;
  double altitude;
};

TEST(ScoutPoints, HaveAltitudeZeroWithoutOne) {
  const Altitude rows[] = {{"absent", "", 0.0},
                           {"below", " E='-5'", -5.0},
                           {"zero", " E='0'", 0.0},
                           {"lowest", " E='-2147483647'", -2147483647.0},
                           {"highest", " E='2147483647'", 2147483647.0}};
  for (Altitude const& row : rows) {
    EXPECT_EQ(row.altitude, only_field(field(point(1, "1", row.attributes))).scoutPoints.at(0).altitude)
        << row.caption;
  }
  Field element;
  Point& built = element.AppendInnerField().AppendPoint();
  built.SetAltitude(9);
  built.UnsetAltitude();
  EXPECT_EQ(0.0, IsoField(&element).scoutPoints.at(0).altitude) << "unset";
}

TEST(Coordinates, KeepTheirDigits) {
  const IsoField record = only_field(field("<PNT A='1' C='-54.123456789012' D='179.987654321098'/>"));
  EXPECT_EQ(-54.123456789012, record.scoutPoints.at(0).north);
  EXPECT_EQ(179.987654321098, record.scoutPoints.at(0).east);
}

// --- Guidance --------------------------------------------------------------------------------------------

std::string lines_of(std::string const& patterns) {
  const IsoField record = only_field(field(group(patterns)));
  return record.guidanceGroups.size() == 1 ? text(record.guidanceGroups[0].guidanceLines) : "groups";
}

TEST(Guidance, CarriesTheAttributesOfGroupAndPattern) {
  const std::string children =
      "<GGP A='GGP1' B='group' P007_GuidanceGroupMetaData=' g '><GPN A='GPN1' B='pattern' C='3' D='2' E='4' "
      "F='3' G='12.5' H='7' I='16' P007_GuidanceMetaData=' p '>" +
      line("5", point(1) + point(2), " B='line' F='LSG1'") + "</GPN></GGP>";
  const TransferSet set(field(children), {"GGP1", "GPN1"});
  EXPECT_EQ(
      "group uuid of GGP1/GGP1/group/ g \n"
      "guidance line uuid of GPN1/GPN1/pattern/7/2/8/7/18/0/0/ p /1,1.5 2,2.5\n",
      text(only_field(set).guidanceGroups));
}

TEST(Guidance, ExtensionRepeatsTheTypeAndNotTheAttribute) {
  for (std::size_t i = 0; i != 5; ++i) {
    TypeCode const& row = type_codes[i];
    const IsoField record = only_field(field(group(pattern(row.text, line("5", point(1)), " F='4'"))));
    const IsoGuidanceLine guidance = record.guidanceGroups.at(0).guidanceLines.at(0);
    EXPECT_EQ(row.code, guidance.type) << row.text;
    EXPECT_EQ(row.code, guidance.extension) << row.text;
  }
}

TEST(Guidance, OfTypeOneGivesOneLine) {
  EXPECT_EQ("guidance line /GPN1//1/0/0/1/0/0/0//1,1.5\n", lines_of(pattern("1", line("5", point(1)))));
}

struct Method {
  char const* text;
  int code;
};

TEST(Guidance, CarriesTheCodeOfEachMethod) {
  const Method rows[] = {{"0", 17}, {"1", 1},  {"2", 2},  {"3", 7},   {"4", 8},  {"5", 9},
                         {"6", 10}, {"7", 11}, {"8", 12}, {"16", 18}, {"17", 19}};
  for (Method const& row : rows) {
    const std::string attribute = std::string(" I='") + row.text + "'";
    const IsoField record = only_field(field(group(pattern("1", line("5", point(1)), attribute))));
    EXPECT_EQ(row.code, record.guidanceGroups.at(0).guidanceLines.at(0).gnssMethod) << row.text;
  }
}

struct Applicable {
  char const* type;
  double heading;
  std::uint32_t radius;
};

TEST(Guidance, HasAHeadingForAPlusAndARadiusForAPivotOnly) {
  const Applicable rows[] = {{"1", 0, 0}, {"2", 12.5, 0}, {"3", 0, 0}, {"4", 0, 4294967294u}, {"5", 0, 0}};
  for (Applicable const& row : rows) {
    const IsoField record =
        only_field(field(group(pattern(row.type, line("5", point(1)), " G='12.5' H='4294967294'"))));
    const IsoGuidanceLine guidance = record.guidanceGroups.at(0).guidanceLines.at(0);
    EXPECT_EQ(row.heading, guidance.heading) << row.type;
    EXPECT_EQ(row.radius, guidance.radius) << row.type;
  }
}

struct Centre {
  char const* caption;
  char const* type;
  std::string points;
  char const* expected;
};

TEST(Guidance, PutsAPivotsCentreFirst) {
  const Centre rows[] = {
      {"last in the document", "4", point(1) + point(2) + point(3, "8"), "3,3.5 1,1.5 2,2.5"},
      {"first already", "4", point(3, "8") + point(1) + point(2), "3,3.5 1,1.5 2,2.5"},
      {"of several the last", "4", point(1) + point(2, "8") + point(3) + point(4, "8"),
       "4,4.5 2,2.5 1,1.5 3,3.5"},
      {"no other point type", "4", point(1) + point(2, "6") + point(3, "7"), "1,1.5 2,2.5 3,3.5"},
      {"of a pivot only", "3", point(1) + point(2) + point(3, "8"), "1,1.5 2,2.5 3,3.5"},
  };
  for (Centre const& row : rows) {
    const IsoField record = only_field(field(group(pattern(row.type, line("5", row.points)))));
    EXPECT_EQ(row.expected, text(record.guidanceGroups.at(0).guidanceLines.at(0).points)) << row.caption;
  }
}

TEST(Guidance, TakesLinesOfTypeFiveOnly) {
  for (char const* type : {"1", "2", "3", "4", "6", "7", "8", "9"}) {
    EXPECT_EQ("", lines_of(pattern("1", line(type, point(1))))) << type;
  }
  EXPECT_EQ(
      "guidance line /GPN1//1/0/0/1/0/0/0//1,1.5\n"
      "guidance line /GPN1//1/0/0/1/0/0/0//3,3.5\n",
      lines_of(pattern("1", line("5", point(1)) + line("1", point(2)) + line("5", point(3)))))
      << "several lines of one pattern";
}

TEST(Guidance, KeepsAGroupWithoutLines) {
  const IsoField record = only_field(field(group(pattern("1", line("1", point(1)))) + "<GGP A='GGP2'>" +
                                           polygon(line("1", point(1))) + "</GGP>"));
  EXPECT_EQ("group /GGP1//\ngroup /GGP2//\n", text(record.guidanceGroups));
}

TEST(Guidance, IgnoresBoundaries) {
  const std::string boundary = polygon(line("5", point(7)));
  EXPECT_EQ("guidance line /GPN1//1/0/0/1/0/0/0//1,1.5\n",
            lines_of(boundary + pattern("1", boundary + line("5", point(1)) + boundary)));
}

TEST(Guidance, TurnsAPatternsBoundaryIntoAnEmptyLineAndLeavesTheRestInPlace) {
  const TransferSet set(field(group(polygon(line("1", point(6))) +
                                    pattern("1", polygon(line("1", point(7))) + line("5", point(1))))));
  Field* const element = set->getLmxFields().at(0);
  GuidanceGroup& group_element = element->GetInnerField(0).GetGuidanceGroup(0);
  GuidancePattern& pattern_element = group_element.GetInnerGuidanceGroup(1).GetGuidancePattern(0);
  LineString const* const line_element = &pattern_element.GetInnerGuidancePattern(1).GetLineString();
  const std::string before = text(only_field(set));
  EXPECT_EQ(InnerGuidancePattern::LineStringChosen, pattern_element.GetInnerGuidancePattern(0).chosen);
  EXPECT_EQ("", pattern_element.GetInnerGuidancePattern(0).GetLineString().GetType());
  EXPECT_EQ(line_element, &pattern_element.GetInnerGuidancePattern(1).GetLineString());
  EXPECT_EQ(InnerGuidanceGroup::BoundaryPolygonChosen, group_element.GetInnerGuidanceGroup(0).chosen);
  EXPECT_EQ(element, set->getLmxFields().at(0));
  EXPECT_EQ(before, text(only_field(set))) << "and the records stay the same";
}

// --- UUIDs by either road --------------------------------------------------------------------------------

// A field with one of everything that has an identifier.
std::string everything() {
  return field(polygon(line("1", point(1)), "1", " E='PLN1'") + line("3", point(2), " F='LSG1'") +
                   point(3, "1", " G='PNT1'") + group(pattern("1", line("5", point(4)))),
               " E='CTR1' F='FRM1'");
}

// Those that a link list can name, and those that it can not.
const std::vector<std::string> linkable_ids = {"PFD1", "CTR1", "FRM1", "PLN1", "GGP1", "GPN1"};
const std::vector<std::string> all_ids = {"PFD1", "CTR1", "FRM1", "PLN1", "GGP1", "GPN1", "LSG1", "PNT1"};

TEST(Uuids, OfEverythingAreLookedUp) {
  const TransferSet set(everything());
  EXPECT_EQ(
      "area=100;uuid=uuid of PFD1;designator=field;farmIdRef=FRM1;farmUuid=uuid of FRM1;growerIdRef=CTR1;"
      "growerUuid=uuid of CTR1;id=PFD1;\n"
      "group uuid of GGP1/GGP1//\n"
      "guidance line uuid of GPN1/GPN1//1/0/0/1/0/0/0//4,4.5\n"
      "polygon uuid of PLN1//PLN1/1//0/0/1,1.5///0/0\n"
      "line //LSG1/uuid of LSG1/2,2.5,0\n"
      "point //PNT1/uuid of PNT1/3/3.5/0/1\n",
      text(IsoField(set->getLmxFields().at(0), links_for(all_ids))));
}

TEST(Uuids, AreThoseOfTheLinkListInGetFields) {
  const TransferSet set(everything(), linkable_ids);
  const IsoField expected(set->getLmxFields().at(0), links_for(linkable_ids));
  EXPECT_EQ(text(expected), text(only_field(set)));
  EXPECT_EQ("uuid of GGP1", only_field(set).guidanceGroups.at(0).uuid);
  EXPECT_EQ("uuid of GPN1", only_field(set).guidanceGroups.at(0).guidanceLines.at(0).uuid);
  EXPECT_EQ("uuid of PLN1", only_field(set).polygons.at(0).uuid);
}

TEST(Uuids, OfGroupsPolygonsLinesAndPointsAreMissingInFillIsoField) {
  const TransferSet set(everything(), linkable_ids);
  EXPECT_EQ(
      "area=100;uuid=uuid of PFD1;designator=field;farmIdRef=FRM1;farmUuid=uuid of FRM1;growerIdRef=CTR1;"
      "growerUuid=uuid of CTR1;id=PFD1;\n"
      "group /GGP1//\n"
      "guidance line uuid of GPN1/GPN1//1/0/0/1/0/0/0//4,4.5\n"
      "polygon //PLN1/1//0/0/1,1.5///0/0\n"
      "line //LSG1//2,2.5,0\n"
      "point //PNT1//3/3.5/0/1\n",
      text(set->fillIsoField(set->getLmxFields().at(0))));
}

TEST(Uuids, OfFieldFarmAndGrowerAreTheSameByBothRoads) {
  for (std::vector<std::string> const& ids :
       {linkable_ids, std::vector<std::string>{}, std::vector<std::string>{"PFD1"},
        std::vector<std::string>{"FRM1"}, std::vector<std::string>{"CTR1"}}) {
    const TransferSet set(everything(), ids);
    const IsoField by_view = only_field(set);
    const IsoField filled = set->fillIsoField(set->getLmxFields().at(0));
    EXPECT_EQ(attributes_text(by_view), attributes_text(filled));
  }
}

TEST(Uuids, AreAllEmptyWithoutLinks) {
  const std::string expected =
      "area=100;designator=field;farmIdRef=FRM1;growerIdRef=CTR1;id=PFD1;\n"
      "group /GGP1//\n"
      "guidance line /GPN1//1/0/0/1/0/0/0//4,4.5\n"
      "polygon //PLN1/1//0/0/1,1.5///0/0\n"
      "line //LSG1//2,2.5,0\n"
      "point //PNT1//3/3.5/0/1\n";
  const TransferSet set(everything());
  Field* const element = set->getLmxFields().at(0);
  EXPECT_EQ(expected, text(only_field(set)));
  EXPECT_EQ(expected, text(set->fillIsoField(element)));
  EXPECT_EQ(expected, text(IsoField(element)));
  EXPECT_EQ(expected, text(IsoField(element, {})));
}

struct Lookup {
  char const* caption;
  char const* key;
  char const* uuid;
};

TEST(Uuids, AreLookedUpByTheExactKey) {
  const IsoField::UuidLinks links = {{"", "empty"}, {"PFD1", "one"}, {"PFD2", ""}};
  const Lookup rows[] = {{"there", "PFD1", "one"},
                         {"not there", "PFD3", ""},
                         {"another case", "pfd1", ""},
                         {"an empty value", "PFD2", ""},
                         {"an empty key, whatever the links hold", "", ""}};
  for (Lookup const& row : rows) EXPECT_EQ(row.uuid, IsoField::getIsoUuid(links, row.key)) << row.caption;
}

// --- Documents and lifetimes -----------------------------------------------------------------------------

TEST(Fields, OfAllDocumentsStandInOrder) {
  const TransferSet set(SetFiles{{"TASKDATA.XML", task_data(link_list_file() + reference("PFD00002") +
                                                            field("") + reference("PFD00001"))},
                                 {"LINKLIST.XML", link_list({"PFD2", "PFD3"})},
                                 {"PFD00001.XML", external_file("<PFD A='PFD3' C='c' D='1'/>")},
                                 {"PFD00002.XML", external_file("<PFD A='PFD2' C='c' D='1'/>")}});
  const std::vector<IsoField> records = set->getFields();
  const std::vector<Field*> elements = set->getLmxFields();
  ASSERT_EQ(3u, records.size());
  ASSERT_EQ(3u, elements.size());
  for (std::size_t i = 0; i != 3; ++i) {
    EXPECT_EQ("PFD" + std::to_string(i + 1), records[i].id);
    EXPECT_EQ(records[i].id, elements[i]->GetId());
    EXPECT_EQ(i == 0 ? "" : "uuid of " + records[i].id, records[i].uuid);
  }
}

TEST(Fields, AreEqualAtEachCallAndOutliveTheParser) {
  TransferSet set(everything(), linkable_ids);
  const std::vector<IsoField> first = set->getFields();
  const IsoField filled = set->fillIsoField(set->getLmxFields().at(0));
  EXPECT_EQ(text(first), text(set->getFields()));
  EXPECT_EQ(text(filled), text(set->fillIsoField(set->getLmxFields().at(0))));
  const std::string before = text(first) + text(filled);
  set.close();
  EXPECT_EQ(before, text(first) + text(filled));
}

TEST(Fields, OfAnElementMayOutliveIt) {
  auto element = std::make_unique<Field>();
  element->SetId("PFD1");
  element->AppendInnerField().AppendPoint().SetId("PNT1");
  const IsoField record(element.get(), {{"PNT1", "uuid"}});
  element.reset();
  EXPECT_EQ("area=0;id=PFD1;\npoint //PNT1/uuid/0/0/0/0\n", text(record));
}

// --- Trees built by hand ---------------------------------------------------------------------------------

TEST(HandBuilt, WrappersWithNothingInThemGiveNothing) {
  Field element;
  element.AppendInnerField();  // nothing chosen
  element.AppendInnerField().SelectPolygon();
  element.AppendInnerField().SelectLineString();
  element.AppendInnerField().SelectPoint();
  element.AppendInnerField().SelectGuidanceGroup();
  EXPECT_EQ("area=0;\n", text(IsoField(&element)));
}

TEST(HandBuilt, ChildrenWithNothingInThemGiveEmptyRecords) {
  Field element;
  Polygon& bare_rings = element.AppendInnerField().AppendPolygon();
  bare_rings.AppendInnerPolygon();
  bare_rings.AppendInnerPolygon().SelectLineString();
  bare_rings.AppendInnerPolygon().AppendLineString().AppendInnerLineString().SelectPoint();
  LineString& bare_line = element.AppendInnerField().AppendLineString();
  bare_line.AppendInnerLineString();
  bare_line.AppendInnerLineString().SelectPoint();
  element.AppendInnerField().AppendPoint();
  GuidanceGroup& bare_group = element.AppendInnerField().AppendGuidanceGroup();
  bare_group.AppendInnerGuidanceGroup();
  bare_group.AppendInnerGuidanceGroup().SelectGuidancePattern();
  bare_group.AppendInnerGuidanceGroup().SelectBoundaryPolygon();
  GuidancePattern& bare_pattern = bare_group.AppendInnerGuidanceGroup().AppendGuidancePattern();
  bare_pattern.AppendInnerGuidancePattern();
  bare_pattern.AppendInnerGuidancePattern().SelectLineString();
  bare_pattern.AppendInnerGuidancePattern().SelectBoundaryPolygon();
  bare_pattern.AppendInnerGuidancePattern().GetLineString().SetType("5");
  EXPECT_EQ(
      "area=0;\n"
      "group ///\n"
      "guidance line ///0/0/0/0/0/0/0//\n"
      "polygon ///0//0/0////0/0\n"
      "line ////\n"
      "line ////\n"
      "point ////0/0/0/0\n",
      text(IsoField(&element)));
}

TEST(HandBuilt, ChoicesThatWereSetWithoutTheirObjectsGiveNothing) {
  for (const std::int32_t chosen : {-1, 0, 1, 2, 3, 4, 5}) {
    Field element;
    element.AppendInnerField().chosen = chosen;
    InnerField& mistold = element.AppendInnerField();
    mistold.AppendPoint();
    mistold.chosen = chosen;
    LineString& built = element.AppendInnerField().AppendLineString();
    built.AppendInnerLineString().AppendPoint();
    built.GetInnerLineString(0).chosen = chosen;
    Polygon& polygon = element.AppendInnerField().AppendPolygon();
    polygon.AppendInnerPolygon().AppendLineString();
    polygon.GetInnerPolygon(0).chosen = chosen;
    GuidanceGroup& group = element.AppendInnerField().AppendGuidanceGroup();
    group.AppendInnerGuidanceGroup().GetBoundaryPolygon();
    group.GetInnerGuidanceGroup(0).chosen = chosen;
    GuidancePattern& pattern = group.AppendInnerGuidanceGroup().AppendGuidancePattern();
    pattern.AppendInnerGuidancePattern().chosen = chosen;
    const IsoField record(&element);
    EXPECT_EQ(chosen == InnerField::PointChosen ? 1u : 0u, record.scoutPoints.size()) << chosen;
    EXPECT_EQ(1u, record.polygons.size()) << chosen;
    EXPECT_EQ("", text(record.polygons[0].points)) << chosen;
    ASSERT_EQ(1u, record.scoutLines.size()) << chosen;
    EXPECT_EQ(chosen == InnerLineString::PointChosen ? 1u : 0u, record.scoutLines[0].points.size()) << chosen;
    EXPECT_EQ(0u, record.guidanceGroups.at(0).guidanceLines.size()) << chosen;
  }
}

TEST(HandBuilt, RunsAreNotReadWhenTheChoiceWasSetToAnother) {
  for (const std::int32_t chosen : {-1, 1, 2, 5}) {
    Field element;
    InnerField& groups_run = element.AppendInnerField();
    InnerGuidanceGroup& patterns_run = groups_run.AppendGuidanceGroup().AppendInnerGuidanceGroup();
    patterns_run.AppendGuidancePattern().AppendInnerGuidancePattern().GetLineString().SetType("5");
    EXPECT_EQ(1u, IsoField(&element).guidanceGroups.at(0).guidanceLines.size()) << chosen;
    patterns_run.chosen = chosen;
    EXPECT_EQ(0u, IsoField(&element).guidanceGroups.at(0).guidanceLines.size()) << chosen;
    groups_run.chosen = chosen;
    EXPECT_EQ(0u, IsoField(&element).guidanceGroups.size()) << chosen;
    groups_run.chosen = InnerField::GuidanceGroupChosen;
    patterns_run.chosen = InnerGuidanceGroup::GuidancePatternChosen;
    EXPECT_EQ(1u, IsoField(&element).guidanceGroups.at(0).guidanceLines.size()) << chosen << ", nor freed";
  }
}

}  // namespace
