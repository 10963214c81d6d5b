#include "reference_views.h"

#include <libxml/parser.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <utility>

namespace {

using Node = xmlNode const*;
using Links = std::map<std::string, std::string>;

char const* chars(xmlChar const* text) { return reinterpret_cast<char const*>(text); }

// --- Trees -----------------------------------------------------------------------------------------------

bool is(Node node, char const* tag) {
  return node->type == XML_ELEMENT_NODE && std::strcmp(chars(node->name), tag) == 0;
}

std::vector<Node> children(Node parent, char const* tag) {
  std::vector<Node> found;
  for (Node child = parent->children; child != nullptr; child = child->next) {
    if (is(child, tag)) found.push_back(child);
  }
  return found;
}

std::string owned(xmlChar* text) {
  const std::string copy = text == nullptr ? "" : chars(text);
  xmlFree(text);
  return copy;
}

bool has(Node element, char const* attribute) {
  return xmlHasProp(element, reinterpret_cast<xmlChar const*>(attribute)) != nullptr;
}

std::string text(Node element, char const* attribute) {
  return owned(xmlGetProp(element, reinterpret_cast<xmlChar const*>(attribute)));
}

// --- Values ----------------------------------------------------------------------------------------------

// Without the blanks around it.
std::string token(Node element, char const* attribute) {
  const std::string raw = text(element, attribute);
  const std::size_t first = raw.find_first_not_of(" ");
  return first == std::string::npos ? "" : raw.substr(first, raw.find_last_not_of(" ") - first + 1);
}

// 0 when absent.
std::int64_t integer(Node element, char const* attribute) {
  const std::string digits = token(element, attribute);
  std::int64_t value = 0;
  for (const char c : digits) value = c >= '0' && c <= '9' ? value * 10 + (c - '0') : value;
  return !digits.empty() && digits[0] == '-' ? -value : value;
}

// All digits in one double, one division by the power of ten, then the sign: the last bit hangs on the order.
double decimal(Node element, char const* attribute) {
  double value = 0.0;
  double scale = 1.0;
  bool in_fraction = false;
  const std::string digits = token(element, attribute);
  for (const char c : digits) {
    if (c == '.') in_fraction = true;
    if (c < '0' || c > '9') continue;
    if (in_fraction) scale *= 10.0;
    value = (c - '0') + value * 10.0;
  }
  if (scale > 1.0) value /= scale;
  return !digits.empty() && digits[0] == '-' ? -value : value;
}

// As a decimal is written: without "+", without zeros in front, with a digit before the point.
std::string decimal_text(Node element, char const* attribute) {
  std::string digits = token(element, attribute);
  const bool negative = digits[0] == '-';
  if (negative || digits[0] == '+') digits.erase(0, 1);
  std::string whole = digits.substr(0, digits.find('.'));
  whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
  const std::string fraction = digits.find('.') == std::string::npos ? "" : digits.substr(digits.find('.'));
  return (negative ? "-" : "") + (whole.empty() ? "0" : whole) + (fraction == "." ? "" : fraction);
}

std::string hexadecimal(Node element, char const* attribute) {
  std::string digits = token(element, attribute);
  for (char& c : digits) c = c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
  return digits;
}

// The code of an enumerated attribute; 0 when absent.
int code(Node element, char const* attribute) {
  static const std::map<std::string, int> codes = {
      {"", 0},   {"0", 17}, {"1", 1},  {"2", 2},   {"3", 7},   {"4", 8},   {"5", 9},   {"6", 10},
      {"7", 11}, {"8", 12}, {"9", 13}, {"10", 14}, {"11", 15}, {"12", 16}, {"16", 18}, {"17", 19}};
  return codes.at(token(element, attribute));
}

std::string link(Links const& links, std::string const& id) {
  const auto found = links.find(id);
  return found == links.end() ? "" : found->second;
}

// --- Rows of members -------------------------------------------------------------------------------------

struct StringMember {
  char const* name;
  char const* xml;
};

void add_strings(Node element, std::vector<StringMember> const& members, Lines* lines) {
  for (StringMember const& member : members) lines->add(member.name, text(element, member.xml));
}

enum class Kind { Text, Token, Integer, Decimal, Hexadecimal, Boolean };

struct Attribute {
  char const* xml;
  Kind kind;
};

std::string shown(Node element, Attribute const& attribute) {
  switch (attribute.kind) {
    case Kind::Text: return text(element, attribute.xml);
    case Kind::Token: return token(element, attribute.xml);
    case Kind::Integer: return std::to_string(integer(element, attribute.xml));
    case Kind::Decimal: return decimal_text(element, attribute.xml);
    case Kind::Hexadecimal: return hexadecimal(element, attribute.xml);
    case Kind::Boolean: break;
  }
  const std::string value = token(element, attribute.xml);
  return value == "true" || value == "1" ? "true" : "false";
}

void add_attributes(Node element, std::vector<Attribute> const& attributes, Lines* lines) {
  for (Attribute const& attribute : attributes) {
    lines->add(attribute.xml, has(element, attribute.xml) ? shown(element, attribute) : "(absent)");
  }
}

template <class Add>
Lines for_each(char const* name, std::vector<Node> const& elements, Add add) {
  Lines lines;
  for (std::size_t i = 0; i != elements.size(); ++i) {
    lines.within(name, i, [&] { add(elements[i], &lines); });
  }
  return lines;
}

Lines elements_of(char const* name, std::vector<Node> const& elements,
                  std::vector<Attribute> const& attributes) {
  return for_each(name, elements, [&](Node node, Lines* lines) { add_attributes(node, attributes, lines); });
}

// --- Fields ----------------------------------------------------------------------------------------------

void add_location(char const* name, std::size_t index, Node point, Lines* lines) {
  lines->within(name, index, [&] {
    lines->add("north", decimal(point, "C"));
    lines->add("east", decimal(point, "D"));
  });
}

void add_locations(char const* name, std::vector<Node> const& points, Lines* lines) {
  for (std::size_t i = 0; i != points.size(); ++i) add_location(name, i, points[i], lines);
}

void add_polygon(Node polygon, Links const& links, Lines* lines) {
  lines->add("uuid", link(links, token(polygon, "E")));
  lines->add("designator", text(polygon, "B"));
  lines->add("id", token(polygon, "E"));
  lines->add("type", code(polygon, "A"));
  lines->add("isOtherType", token(polygon, "A") == "8");
  lines->add("colour", integer(polygon, "D"));
  lines->add("area", static_cast<double>(integer(polygon, "C")));
  lines->add("metaData", text(polygon, "P007_PolygonMetaData"));
  lines->add("sprayProperty", code(polygon, "P917_SprayProperty"));
  lines->add("plantProperty", code(polygon, "P917_PlantProperty"));
  std::vector<Node> points;
  std::vector<Node> interior;
  for (Node ring : children(polygon, "LSG")) {
    for (Node point : children(ring, "PNT")) {
      points.push_back(point);
      if (token(ring, "A") == "2") interior.push_back(point);
    }
  }
  add_locations("points", points, lines);
  add_locations("interiorPoints", interior, lines);
}

void add_scout_line(Node line, Links const& links, Lines* lines) {
  lines->add("unset", "");
  lines->add("designator", text(line, "B"));
  lines->add("id", token(line, "F"));
  lines->add("uuid", link(links, token(line, "F")));
  const std::vector<Node> points = children(line, "PNT");
  for (std::size_t i = 0; i != points.size(); ++i) {
    lines->within("points", i, [&] {
      lines->add("north", decimal(points[i], "C"));
      lines->add("east", decimal(points[i], "D"));
      lines->add("altitude", static_cast<double>(integer(points[i], "E")));
    });
  }
}

void add_scout_point(Node point, Links const& links, Lines* lines) {
  lines->add("unset", "");
  lines->add("designator", text(point, "B"));
  lines->add("id", token(point, "G"));
  lines->add("uuid", link(links, token(point, "G")));
  lines->add("north", decimal(point, "C"));
  lines->add("east", decimal(point, "D"));
  lines->add("altitude", static_cast<double>(integer(point, "E")));
  lines->add("type", code(point, "A"));
}

void add_guidance_line(Node pattern, Node line, Links const& links, Lines* lines) {
  const std::string type = token(pattern, "C");
  lines->add("uuid", link(links, token(pattern, "A")));
  lines->add("id", token(pattern, "A"));
  lines->add("designator", text(pattern, "B"));
  lines->add("type", code(pattern, "C"));
  lines->add("options", code(pattern, "D"));
  lines->add("propagationDirection", code(pattern, "E"));
  lines->add("extension", code(pattern, "C"));
  lines->add("gnssMethod", code(pattern, "I"));
  lines->add("radius", type == "4" ? integer(pattern, "H") : 0);
  lines->add("heading", type == "2" ? decimal(pattern, "G") : 0.0);
  lines->add("metaData", text(pattern, "P007_GuidanceMetaData"));
  std::vector<Node> points;
  for (Node point : children(line, "PNT")) {
    const bool centre = type == "4" && token(point, "A") == "8";
    points.insert(centre ? points.begin() : points.end(), point);
  }
  add_locations("points", points, lines);
}

void add_guidance_group(Node group, Links const& links, Links const& line_links, Lines* lines) {
  lines->add("uuid", link(links, token(group, "A")));
  lines->add("id", token(group, "A"));
  lines->add("designator", text(group, "B"));
  lines->add("metaData", text(group, "P007_GuidanceGroupMetaData"));
  std::size_t count = 0;
  for (Node pattern : children(group, "GPN")) {
    for (Node line : children(pattern, "LSG")) {
      if (token(line, "A") != "5") continue;
      lines->within("guidanceLines", count++, [&] { add_guidance_line(pattern, line, line_links, lines); });
    }
  }
}

// `own_links` give the UUIDs of the field, its farm, its customer and its guidance lines, `other_links` those
// of all else in it.
void add_field(Node field, Links const& own_links, Links const& other_links, Lines* lines) {
  lines->add("uuid", link(own_links, token(field, "A")));
  lines->add("farmUuid", link(own_links, token(field, "F")));
  lines->add("growerUuid", link(own_links, token(field, "E")));
  lines->add("unset", 0);
  lines->add("area", integer(field, "D"));
  for (char const* list : {"stringListA", "stringListB", "stringListC"}) lines->add(list, 0);
  add_strings(field,
              {{"comment", "P917_comment"},
               {"county", "P917_county"},
               {"crop", "P917_crop"},
               {"cropTypeIdRef", "G"},
               {"cropVarietyIdRef", "H"},
               {"designator", "C"},
               {"farmIdRef", "F"},
               {"fieldIdRef", "I"},
               {"growerIdRef", "E"},
               {"id", "A"},
               {"fieldCode", "B"},
               {"section", "P917_section"},
               {"state", "P917_state"},
               {"township", "P917_township"}},
              lines);
  const auto add_all = [&](char const* name, char const* tag, auto add) {
    const std::vector<Node> found = children(field, tag);
    for (std::size_t i = 0; i != found.size(); ++i) lines->within(name, i, [&] { add(found[i]); });
  };
  add_all("guidanceGroups", "GGP",
          [&](Node node) { add_guidance_group(node, other_links, own_links, lines); });
  add_all("polygons", "PLN", [&](Node node) { add_polygon(node, other_links, lines); });
  add_all("scoutLines", "LSG", [&](Node node) { add_scout_line(node, other_links, lines); });
  add_all("scoutPoints", "PNT", [&](Node node) { add_scout_point(node, other_links, lines); });
  const bool has_scout_item =
      !children(field, "PLN").empty() || !children(field, "LSG").empty() || !children(field, "PNT").empty();
  lines->add("hasScoutItem", has_scout_item);
}

// --- Prescription maps -----------------------------------------------------------------------------------

void add_ring(Node ring, std::string const& name, Lines* lines) {
  lines->add("isInterior", token(ring, "A") == "2");
  lines->add("name", name);
  lines->add("designator", text(ring, "B"));
  lines->add("colour", std::string(1, static_cast<char>(static_cast<unsigned char>(integer(ring, "E")))));
  const std::vector<Node> points = children(ring, "PNT");
  for (std::size_t i = 0; i != points.size(); ++i) {
    lines->within("points", i, [&] {
      lines->add("east", decimal(points[i], "D"));
      lines->add("north", decimal(points[i], "C"));
      lines->add("altitude", integer(points[i], "E"));
    });
  }
}

void add_variable(Node variable, Lines* lines) {
  lines->add("value", integer(variable, "B"));
  lines->add("ddi", hexadecimal(variable, "A"));
  lines->add("productIdRef", token(variable, "C"));
  lines->add("valuePresentationIdRef", token(variable, "E"));
  lines->add("rxMap", token(variable, "P917_rxmap"));
  lines->add("rxColumn", text(variable, "P917_rxcolumn"));
  lines->add("rxUnit", text(variable, "P917_rxunit"));
  lines->add("rxWithoutConversionRate", decimal(variable, "P917_rxwoconvrate"));
}

void add_zone(Node zone, Lines* lines) {
  lines->add("name", text(zone, "B"));
  lines->add("code", integer(zone, "A"));
  lines->add("unset", 0);
  std::vector<Node> rings;
  std::string first_name;            // the last polygon's
  std::vector<Node> last_variables;  // those behind the last polygon
  for (Node child = zone->children; child != nullptr; child = child->next) {
    if (is(child, "PDV")) last_variables.push_back(child);
    if (!is(child, "PLN")) continue;
    last_variables.clear();
    first_name = text(child, "B");
    const std::vector<Node> of_polygon = children(child, "LSG");
    rings.insert(rings.end(), of_polygon.begin(), of_polygon.end());
  }
  for (std::size_t i = 0; i != rings.size(); ++i) {
    lines->within("polygons", i, [&] { add_ring(rings[i], i == 0 ? first_name : "", lines); });
  }
  for (std::size_t i = 0; i != last_variables.size(); ++i) {
    lines->within("variables", i, [&] { add_variable(last_variables[i], lines); });
  }
}

}  // namespace

// --- Documents -------------------------------------------------------------------------------------------

ReferenceViews::ReferenceViews(std::string const& directory, std::string const& main_name)
    : m_directory(directory) {
  const Document main = open(main_name);
  if (main == nullptr) return;
  m_documents.push_back(main);
  const Node root = xmlDocGetRootElement(main.get());
  for (Node file : children(root, "AFE")) {
    if (integer(file, "D") != 1) continue;
    read_links(token(file, "A"));
    break;
  }
  for (Node file : children(root, "XFR")) {
    if (const Document document = open(token(file, "A"))) m_documents.push_back(document);
  }
  for (Document const& document : m_documents) deliver(xmlDocGetRootElement(document.get()));
  for (Node metadata : children(root, "P917_Metadata")) m_metadata = metadata;
}

ReferenceViews::Document ReferenceViews::open(std::string const& name) {
  std::string capitals = name;
  for (char& c : capitals) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  const std::string suffix = capitals.find(".XML") == std::string::npos ? ".XML" : "";
  const std::string path = m_directory + "/" + name + suffix;
  Document document(
      xmlReadFile(path.c_str(), nullptr, XML_PARSE_NOENT | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
      &xmlFreeDoc);
  if (document == nullptr) m_failures.push_back(name);
  return document;
}

void ReferenceViews::read_links(std::string const& name) {
  const Document document = open(name);
  if (document == nullptr) return;
  for (Node group : children(xmlDocGetRootElement(document.get()), "LGP")) {
    if (token(group, "B") != "1") continue;
    for (Node pair : children(group, "LNK")) m_links.emplace(token(pair, "A"), token(pair, "B"));
  }
}

// Notes the element and, where it is a list of elements, those that it may hold.
void ReferenceViews::deliver(Node element) {
  const std::string tag = chars(element->name);
  m_delivered[tag].push_back(element);
  std::vector<char const*> held;
  if (tag == "P917_Questions") held = {"P917_Question"};
  if (tag == "ISO11783_TaskData" || tag == "XFC")
    held = {"CTR", "FRM", "PFD", "TSK", "PDT", "PGP", "VPN", "CTP"};
  if (tag == "ISO11783_TaskData") held.insert(held.end(), {"AFE", "P917_Questions"});
  for (Node child = element->children; child != nullptr; child = child->next) {
    if (std::any_of(held.begin(), held.end(), [&](char const* name) { return is(child, name); })) {
      deliver(child);
    }
  }
}

std::vector<Node> const& ReferenceViews::all(char const* tag) const {
  static const std::vector<Node> none;
  const auto found = m_delivered.find(tag);
  return found == m_delivered.end() ? none : found->second;
}

// --- Views -----------------------------------------------------------------------------------------------

Lines ReferenceViews::growers() const {
  return for_each("growers", all("CTR"), [&](Node grower, Lines* lines) {
    lines->add("uuid", link(m_links, token(grower, "A")));
    lines->add("unset", 0);
    add_strings(grower,
                {{"street", "D"},
                 {"poBox", "E"},
                 {"city", "G"},
                 {"comment", "P917_comment"},
                 {"country", "I"},
                 {"county", "P917_county"},
                 {"customerNumber", "P917_customerNumber"},
                 {"displayName", "P917_displayName"},
                 {"email", "M"},
                 {"fax", "L"},
                 {"firstName", "C"},
                 {"id", "A"},
                 {"lastName", "B"},
                 {"middleName", "P917_middleName"},
                 {"mobile", "K"},
                 {"phone", "J"},
                 {"postalCode", "F"},
                 {"state", "H"}},
                lines);
  });
}

Lines ReferenceViews::farms() const {
  return for_each("farms", all("FRM"), [&](Node farm, Lines* lines) {
    lines->add("uuid", link(m_links, token(farm, "A")));
    lines->add("unset", 0);
    lines->add("growerUuid", link(m_links, token(farm, "I")));
    add_strings(farm,
                {{"street", "C"},
                 {"poBox", "D"},
                 {"city", "F"},
                 {"comment", "P917_comment"},
                 {"country", "H"},
                 {"county", "P917_county"},
                 {"designator", "B"},
                 {"email", "P917_Email"},
                 {"fax", "P917_faxNumber"},
                 {"firstName", "P917_firstName"},
                 {"growerIdRef", "I"},
                 {"id", "A"},
                 {"lastName", "P917_lastName"},
                 {"middleName", "P917_middleName"},
                 {"mobile", "P917_mobileNumber"},
                 {"phone", "P917_phoneNumber"},
                 {"postalCode", "E"},
                 {"state", "G"}},
                lines);
  });
}

Lines ReferenceViews::attached_files() const {
  return for_each("attachedFiles", all("AFE"), [](Node file, Lines* lines) {
    lines->add("fileName", token(file, "A"));
    lines->add("type", integer(file, "D"));
  });
}

Lines ReferenceViews::tasks() const {
  return elements_of("tasks", all("TSK"),
                     {{"A", Kind::Token},
                      {"B", Kind::Text},
                      {"C", Kind::Token},
                      {"D", Kind::Token},
                      {"E", Kind::Token},
                      {"F", Kind::Token},
                      {"G", Kind::Token},
                      {"H", Kind::Integer},
                      {"I", Kind::Integer},
                      {"J", Kind::Integer},
                      {"P007_JobMetaData", Kind::Text}});
}

Lines ReferenceViews::products() const {
  return for_each("products", all("PDT"), [](Node product, Lines* lines) {
    add_attributes(product,
                   {{"A", Kind::Token},
                    {"B", Kind::Text},
                    {"C", Kind::Token},
                    {"D", Kind::Token},
                    {"E", Kind::Hexadecimal},
                    {"F", Kind::Token},
                    {"G", Kind::Integer},
                    {"H", Kind::Integer},
                    {"I", Kind::Integer},
                    {"J", Kind::Integer},
                    {"P917_ingredientManufacturer", Kind::Text},
                    {"P917_ingredientRegistration", Kind::Text},
                    {"P917_ingredientComposition", Kind::Text},
                    {"P917_ingredientNotes", Kind::Text}},
                   lines);
    const std::vector<Node> relations = children(product, "PRN");
    for (std::size_t i = 0; i != relations.size(); ++i) {
      lines->within("relations", i, [&] {
        add_attributes(relations[i], {{"A", Kind::Token}, {"B", Kind::Integer}, {"P917_vpn", Kind::Token}},
                       lines);
      });
    }
  });
}

Lines ReferenceViews::product_groups() const {
  return elements_of("productGroups", all("PGP"),
                     {{"A", Kind::Token}, {"B", Kind::Text}, {"C", Kind::Token}});
}

Lines ReferenceViews::value_presentations() const {
  return elements_of("valuePresentations", all("VPN"),
                     {{"A", Kind::Token},
                      {"B", Kind::Integer},
                      {"C", Kind::Decimal},
                      {"D", Kind::Integer},
                      {"E", Kind::Text},
                      {"F", Kind::Token}});
}

Lines ReferenceViews::questions() const {
  return for_each("questions", all("P917_Question"), [](Node question, Lines* lines) {
    add_attributes(
        question,
        {{"P917_Uuid", Kind::Text}, {"P917_ReplyType", Kind::Text}, {"P917_Required", Kind::Boolean}}, lines);
    for (char const* tag : {"P917_Prompt", "P917_Reply", "P917_Option"}) {
      const std::vector<Node> found = children(question, tag);
      for (std::size_t i = 0; i != found.size(); ++i) {
        lines->within(tag, i, [&] { lines->add("text", owned(xmlNodeGetContent(found[i]))); });
      }
    }
  });
}

Lines ReferenceViews::crop_types() const {
  const std::vector<Attribute> attributes = {{"A", Kind::Token}, {"B", Kind::Text}, {"C", Kind::Token}};
  return for_each("cropTypes", all("CTP"), [&](Node crop, Lines* lines) {
    add_attributes(crop, attributes, lines);
    const std::vector<Node> varieties = children(crop, "CVT");
    for (std::size_t i = 0; i != varieties.size(); ++i) {
      lines->within("varieties", i, [&] { add_attributes(varieties[i], attributes, lines); });
    }
  });
}

Lines ReferenceViews::fields() const {
  return for_each("fields", all("PFD"),
                  [&](Node field, Lines* lines) { add_field(field, m_links, m_links, lines); });
}

Lines ReferenceViews::filled_fields() const {
  return for_each("fields", all("PFD"),
                  [&](Node field, Lines* lines) { add_field(field, m_links, Links(), lines); });
}

Lines ReferenceViews::task_infos() const {
  return for_each("taskInfos", all("TSK"), [](Node task, Lines* lines) {
    add_strings(task,
                {{"id", "A"},
                 {"customerIdRef", "C"},
                 {"farmIdRef", "D"},
                 {"fieldIdRef", "E"},
                 {"designator", "B"},
                 {"jobMetaData", "P007_JobMetaData"}},
                lines);
    lines->add("defaultTreatmentZoneCode", integer(task, "H"));
    lines->add("positionLostTreatmentZoneCode", integer(task, "I"));
    lines->add("outOfFieldTreatmentZoneCode", integer(task, "J"));
  });
}

Lines ReferenceViews::rx_maps() const {
  std::map<std::string, Node> last;
  for (Node task : all("TSK")) last[token(task, "A")] = task;
  return for_each("maps", all("TSK"), [&](Node task, Lines* lines) {
    lines->add("taskId", token(task, "A"));
    lines->add("designator", text(task, "B"));
    lines->add("defaultTreatmentZoneCode", integer(task, "H"));
    lines->add("positionLostTreatmentZoneCode", integer(task, "I"));
    lines->add("outOfFieldTreatmentZoneCode", integer(task, "J"));
    const std::vector<Node> zones = children(last.at(token(task, "A")), "TZN");
    for (std::size_t i = 0; i != zones.size(); ++i) {
      lines->within("treatmentZones", i, [&] { add_zone(zones[i], lines); });
    }
  });
}

Lines ReferenceViews::metadata() const {
  return elements_of("metadata", std::vector<Node>(m_metadata == nullptr ? 0 : 1, m_metadata),
                     {{"Version", Kind::Text},
                      {"CloudJob", Kind::Boolean},
                      {"originationId", Kind::Token},
                      {"jobStatusId", Kind::Token}});
}

Lines ReferenceViews::uuid_links() const {
  Lines lines;
  for (auto const& [id, uuid] : m_links) lines.add(id, uuid);
  return lines;
}

Lines ReferenceViews::failures() const {
  Lines lines;
  for (std::string const& name : m_failures) lines.add("fileName", name);
  return lines;
}
