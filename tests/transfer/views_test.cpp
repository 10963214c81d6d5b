// The views of master data: what the records carry, the order over several documents, UUIDs, lifetimes.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/transfer_set.h"

namespace {

template <class Record>
struct Member {
  char const* name;
  char const* xml;  // the attribute it comes from; null for one that a link gives
  std::string Record::*place;
};

// In the order in which the records hold them.
const Member<IsoFarm> farm_members[] = {
    {"uuid", nullptr, &IsoFarm::uuid},
    {"street", "C", &IsoFarm::street},
    {"poBox", "D", &IsoFarm::poBox},
    {"city", "F", &IsoFarm::city},
    {"comment", "P917_comment", &IsoFarm::comment},
    {"country", "H", &IsoFarm::country},
    {"county", "P917_county", &IsoFarm::county},
    {"designator", "B", &IsoFarm::designator},
    {"email", "P917_Email", &IsoFarm::email},
    {"fax", "P917_faxNumber", &IsoFarm::fax},
    {"firstName", "P917_firstName", &IsoFarm::firstName},
    {"growerIdRef", "I", &IsoFarm::growerIdRef},
    {"growerUuid", nullptr, &IsoFarm::growerUuid},
    {"id", "A", &IsoFarm::id},
    {"lastName", "P917_lastName", &IsoFarm::lastName},
    {"middleName", "P917_middleName", &IsoFarm::middleName},
    {"mobile", "P917_mobileNumber", &IsoFarm::mobile},
    {"phone", "P917_phoneNumber", &IsoFarm::phone},
    {"postalCode", "E", &IsoFarm::postalCode},
    {"state", "G", &IsoFarm::state},
};

const Member<IsoGrower> grower_members[] = {
    {"uuid", nullptr, &IsoGrower::uuid},
    {"street", "D", &IsoGrower::street},
    {"poBox", "E", &IsoGrower::poBox},
    {"city", "G", &IsoGrower::city},
    {"comment", "P917_comment", &IsoGrower::comment},
    {"country", "I", &IsoGrower::country},
    {"county", "P917_county", &IsoGrower::county},
    {"customerNumber", "P917_customerNumber", &IsoGrower::customerNumber},
    {"displayName", "P917_displayName", &IsoGrower::displayName},
    {"email", "M", &IsoGrower::email},
    {"fax", "L", &IsoGrower::fax},
    {"firstName", "C", &IsoGrower::firstName},
    {"id", "A", &IsoGrower::id},
    {"lastName", "B", &IsoGrower::lastName},
    {"middleName", "P917_middleName", &IsoGrower::middleName},
    {"mobile", "K", &IsoGrower::mobile},
    {"phone", "J", &IsoGrower::phone},
    {"postalCode", "F", &IsoGrower::postalCode},
    {"state", "H", &IsoGrower::state},
};

// The record's members, each with what it holds, save the empty ones.
template <class Record, std::size_t count>
std::string text(Record const& record, Member<Record> const (&members)[count]) {
  std::string all;
  for (Member<Record> const& member : members) {
    std::string const& value = record.*member.place;
    if (!value.empty()) all += std::string(member.name) + "=" + value + ";";
  }
  return all;
}
std::string text(IsoFarm const& farm) { return text(farm, farm_members); }
std::string text(IsoGrower const& grower) { return text(grower, grower_members); }
std::string text(IsoAttachedFile const& file) {
  return file.fileName + " " + std::to_string(file.type) + ";";
}

template <class Record>
std::string text(std::vector<Record> const& records) {
  std::string all;
  for (Record const& record : records) all += text(record) + "\n";
  return all;
}

// Reads an element for each attribute, with that one alone beside the required ones: "A", which is `id`, and
// "B", which is `name`.
template <class Record, std::size_t count, class View>
void expect_each_attribute(std::string const& tag, Member<Record> const (&members)[count], View view) {
  const std::string id = tag + "1";
  for (Member<Record> const& member : members) {
    const std::string xml = member.xml == nullptr ? "A" : member.xml;
    if (xml == "A" || xml == "B") continue;
    const std::string value = member.name == std::string("growerIdRef") ? "CTR77" : "value";
    const TransferSet set("<" + tag + " A='" + id + "' B='name' " + xml + "='" + value + "'/>");
    const std::vector<Record> records = view(*set);
    ASSERT_EQ(1u, records.size()) << member.name;
    for (Member<Record> const& other : members) {
      const std::string other_xml = other.xml == nullptr ? "" : other.xml;
      const std::string expected = other_xml == "A"   ? id
                                   : other_xml == "B" ? "name"
                                   : other_xml == xml ? value
                                                      : "";
      EXPECT_EQ(expected, records[0].*other.place) << xml << " in " << other.name;
    }
  }
}

TEST(FarmRecord, CarriesEachAttributeInItsOwnMember) {
  expect_each_attribute("FRM", farm_members, [](IsoXmlParser& parser) { return parser.getFarms(); });
}

TEST(GrowerRecord, CarriesEachAttributeInItsOwnMember) {
  expect_each_attribute("CTR", grower_members, [](IsoXmlParser& parser) { return parser.getGrowers(); });
}

template <class Record, std::size_t count>
void expect_order(Record const& record, Member<Record> const (&members)[count]) {
  for (std::size_t i = 1; i != count; ++i) {
    EXPECT_LT(&(record.*members[i - 1].place), &(record.*members[i].place)) << members[i].name;
  }
  EXPECT_LT(static_cast<void const*>(&record.uuid), static_cast<void const*>(&record.unset));
  EXPECT_LT(static_cast<void const*>(&record.unset), static_cast<void const*>(&record.street));
  EXPECT_EQ(0, record.unset);
}

TEST(Records, HoldTheirMembersInTheirOrder) {
  const Farm farm;
  const Grower grower;
  expect_order(IsoFarm(&farm), farm_members);
  expect_order(IsoGrower(&grower), grower_members);
  const IsoAttachedFile file = {"NAME.XML", 7};
  EXPECT_EQ("NAME.XML 7;", text(file));
  static_assert(std::is_same_v<std::uint8_t, decltype(IsoAttachedFile::type)>);
  static_assert(std::is_same_v<std::int32_t, decltype(IsoFarm::unset)>);
  static_assert(std::is_same_v<std::int32_t, decltype(IsoGrower::unset)>);
}

TEST(Records, OfElementsAloneHaveNoUuid) {
  Farm farm;
  farm.SetId("FRM1");
  farm.SetDesignator("farm");
  farm.SetGrowerIdRef("CTR1");
  EXPECT_EQ("designator=farm;growerIdRef=CTR1;id=FRM1;", text(IsoFarm(&farm)));
  Grower grower;
  grower.SetId("CTR1");
  grower.SetLastName("last");
  EXPECT_EQ("id=CTR1;lastName=last;", text(IsoGrower(&grower)));
}

TEST(Records, TakeAnUnsetAttributeForAbsentButAlwaysCopyWhatIsRequired) {
  Farm farm;
  farm.SetId("FRM1");
  farm.SetDesignator("farm");
  farm.SetCity("city");
  farm.SetGrowerIdRef("CTR1");
  farm.UnsetId();
  farm.UnsetDesignator();
  farm.UnsetCity();
  farm.UnsetGrowerIdRef();
  EXPECT_EQ("designator=farm;id=FRM1;", text(IsoFarm(&farm)));
  Grower grower;
  grower.SetId("CTR1");
  grower.SetLastName("last");
  grower.SetDisplayName("display");
  grower.UnsetId();
  grower.UnsetLastName();
  grower.UnsetDisplayName();
  EXPECT_EQ("id=CTR1;lastName=last;", text(IsoGrower(&grower)));
}

// --- UUIDs -----------------------------------------------------------------------------------------------

struct Linked {
  char const* caption;
  std::vector<std::string> ids;
  char const* farm;
  char const* farms_grower;
  char const* grower;
};

TEST(Uuids, ComeFromTheLinkListAndAreEmptyWithoutALink) {
  const Linked rows[] = {
      {"both", {"FRM1", "CTR1"}, "uuid of FRM1", "uuid of CTR1", "uuid of CTR1"},
      {"farm alone", {"FRM1"}, "uuid of FRM1", "", ""},
      {"grower alone", {"CTR1"}, "", "uuid of CTR1", "uuid of CTR1"},
      {"neither", {"CTR2"}, "", "", ""},
      {"nothing at all", {}, "", "", ""},
  };
  for (Linked const& row : rows) {
    const TransferSet set("<CTR A='CTR1' B='b'/><FRM A='FRM1' B='b' I='CTR1'/>", row.ids);
    ASSERT_TRUE(set->getErrors().empty()) << row.caption;
    const IsoFarm farm = set->getFarms().at(0);
    EXPECT_EQ("CTR1", farm.growerIdRef) << row.caption;
    EXPECT_EQ(row.farm, farm.uuid) << row.caption;
    EXPECT_EQ(row.farms_grower, farm.growerUuid) << row.caption;
    EXPECT_EQ(row.grower, set->getGrowers().at(0).uuid) << row.caption;
  }
}

TEST(Uuids, OfAnExternalFilesRecordsComeFromTheSameLinks) {
  const TransferSet set(SetFiles{
      {"TASKDATA.XML", task_data(link_list_file() + "<CTR A='CTR1' B='b'/>" + reference("CTR00001"))},
      {"LINKLIST.XML", link_list({"CTR1", "CTR2", "FRM2"})},
      {"CTR00001.XML", external_file("<CTR A='CTR2' B='b'/><FRM A='FRM2' B='b' I='CTR1'/>")}});
  ASSERT_EQ(2u, set->getGrowers().size());
  EXPECT_EQ("uuid of CTR1", set->getGrowers()[0].uuid);
  EXPECT_EQ("uuid of CTR2", set->getGrowers()[1].uuid);
  EXPECT_EQ("uuid of FRM2", set->getFarms().at(0).uuid);
  EXPECT_EQ("uuid of CTR1", set->getFarms().at(0).growerUuid);
}

TEST(Uuids, AreMissingWithAFailedLinkListWhileTheViewsWork) {
  const TransferSet set(link_list_file() + "<FRM A='FRM1' B='b' I='CTR1'/>");
  ASSERT_EQ(1u, set->getErrors().size());
  ASSERT_EQ(1u, set->getFarms().size());
  EXPECT_EQ("designator=b;growerIdRef=CTR1;id=FRM1;", text(set->getFarms()[0]));
  EXPECT_EQ("LINKLIST.XML 1;\n", text(set->getAttachedFiles()));
}

// --- All documents, in order -----------------------------------------------------------------------------

// Every kind of master data, each with `n` in its identifier.
std::string kinds(std::string const& n) {
  return "<CTR A='CTR" + n + "' B='b'/><FRM A='FRM" + n + "' B='b'/><PDT A='PDT" + n +
         "' B='b'/><PGP A='PGP" + n + "' B='b'/><VPN A='VPN" + n + "' B='0' C='1' D='0'/><CTP A='CTP" + n +
         "' B='b'/><TSK A='TSK" + n + "' G='1'/><PFD A='PFD" + n + "' C='c' D='1'/>";
}

std::string question(char digit) {
  return "<P917_Questions><P917_Question P917_Uuid='" + std::string(8, digit) +
         "-0000-0000-0000-000000000000' P917_ReplyType='string'><P917_Prompt>p</P917_Prompt></P917_Question>"
         "</P917_Questions>";
}

SetFiles three_documents() {
  return {{"TASKDATA.XML", task_data(kinds("1") + "<AFE A='ABCDEFGH.BIN' B='1' C='' D='2'/>" + question('1') +
                                     reference("TSK00002") + reference("PFD00003") + reference("TSK00001"))},
          {"TSK00001.XML", external_file(kinds("3") + kinds("4"))},
          {"TSK00002.XML", external_file(kinds("2"))},
          {"PFD00003.XML", question('2')}};
}

template <class Element>
std::string ids(std::vector<Element*> const& elements) {
  std::string all;
  for (Element const* element : elements) all += element->GetId() + " ";
  return all;
}

std::string ids(std::vector<P917Question*> const& questions) {
  std::string all;
  for (P917Question const* question : questions) all += question->GetUuid().substr(0, 1) + " ";
  return all;
}

template <class Record>
std::string record_ids(std::vector<Record> const& records) {
  std::string all;
  for (Record const& record : records) all += record.id + " ";
  return all;
}

// What every view gives, a line each.
std::string all_views(IsoXmlParser& parser) {
  return record_ids(parser.getFarms()) + "\n" + record_ids(parser.getGrowers()) + "\n" +
         text(parser.getAttachedFiles()) + ids(parser.getTasks()) + "\n" + ids(parser.getProducts()) + "\n" +
         ids(parser.getProductGroups()) + "\n" + ids(parser.getValuePresentations()) + "\n" +
         ids(parser.getQuestions()) + "\n" + ids(parser.getCropTypes()) + "\n" +
         record_ids(parser.getFields()) + "\n" + ids(parser.getLmxFields()) + "\n" +
         record_ids(parser.getTaskInfoList()) + "\n";
}

TEST(Views, GiveTheMainDocumentsEntriesThenThoseOfEachExternalFileInReferenceOrder) {
  const TransferSet set(three_documents());
  ASSERT_TRUE(set->getErrors().empty()) << set->getErrors()[0].fileName;
  EXPECT_EQ(
      "FRM1 FRM2 FRM3 FRM4 \n"
      "CTR1 CTR2 CTR3 CTR4 \n"
      "ABCDEFGH.BIN 2;\n"
      "TSK1 TSK2 TSK3 TSK4 \n"
      "PDT1 PDT2 PDT3 PDT4 \n"
      "PGP1 PGP2 PGP3 PGP4 \n"
      "VPN1 VPN2 VPN3 VPN4 \n"
      "1 2 \n"
      "CTP1 CTP2 CTP3 CTP4 \n"
      "PFD1 PFD2 PFD3 PFD4 \n"
      "PFD1 PFD2 PFD3 PFD4 \n"
      "TSK1 TSK2 TSK3 TSK4 \n",
      all_views(*set));
}

TEST(Views, GiveEqualResultsEachTime) {
  const TransferSet set(three_documents());
  const std::string first = all_views(*set);
  EXPECT_EQ(first, all_views(*set));
  EXPECT_EQ(set->getTasks(), set->getTasks());
  EXPECT_EQ(set->getProducts(), set->getProducts());
  EXPECT_EQ(set->getProductGroups(), set->getProductGroups());
  EXPECT_EQ(set->getValuePresentations(), set->getValuePresentations());
  EXPECT_EQ(set->getQuestions(), set->getQuestions());
  EXPECT_EQ(set->getCropTypes(), set->getCropTypes());
  EXPECT_EQ(text(set->getFarms()), text(set->getFarms()));
  EXPECT_EQ(text(set->getGrowers()), text(set->getGrowers()));
}

TEST(Views, AreEmptyWithoutADocument) {
  for (SetFiles const& files : {SetFiles{}, SetFiles{{"TASKDATA.XML", "<ISO11783_TaskData>"}},
                                SetFiles{{"TASKDATA.XML", task_data("")}}}) {
    const TransferSet set(files);
    EXPECT_EQ("\n\n\n\n\n\n\n\n\n\n\n", all_views(*set));
  }
}

TEST(Views, LeaveTheErrorsAlone) {
  const TransferSet set(SetFiles{{"TASKDATA.XML", task_data(kinds("1") + reference("TSK00001"))}});
  ASSERT_EQ(1u, set->getErrors().size());
  all_views(*set);
  EXPECT_EQ(1u, set->getErrors().size());
  EXPECT_EQ(2u, set->getDocuments().size());
}

TEST(Views, RepeatWhatOccursInTwoDocuments) {
  const std::string farm = "<FRM A='FRM1' B='b'/>";
  const TransferSet set(
      SetFiles{{"TASKDATA.XML", task_data(farm + reference("FRM00001") + reference("FRM00001"))},
               {"FRM00001.XML", external_file(farm)}});
  EXPECT_EQ("FRM1 FRM1 FRM1 ", record_ids(set->getFarms()));
}

TEST(Views, GiveRecordsThatOutliveTheParser) {
  TransferSet set("<CTR A='CTR1' B='b'/><FRM A='FRM1' B='b' I='CTR1'/>", {"FRM1", "CTR1"});
  const std::vector<IsoFarm> farms = set->getFarms();
  const std::vector<IsoGrower> growers = set->getGrowers();
  const std::vector<IsoAttachedFile> files = set->getAttachedFiles();
  set.close();
  EXPECT_EQ("uuid=uuid of FRM1;designator=b;growerIdRef=CTR1;growerUuid=uuid of CTR1;id=FRM1;\n",
            text(farms));
  EXPECT_EQ("uuid=uuid of CTR1;id=CTR1;lastName=b;\n", text(growers));
  EXPECT_EQ("LINKLIST.XML 1;\n", text(files));
}

TEST(AttachedFiles, AreAllThereWhateverTheirType) {
  const TransferSet set(
      SetFiles{{"TASKDATA.XML", task_data("<AFE A='ABCDEFGH.BIN' B='1' C='' D='254'/>" + link_list_file() +
                                          "<AFE A='LINKLIS2.XML' B='1' C='' D='1'/>")},
               {"LINKLIST.XML", link_list({})}});
  EXPECT_EQ("ABCDEFGH.BIN 254;\nLINKLIST.XML 1;\nLINKLIS2.XML 1;\n", text(set->getAttachedFiles()));
}

}  // namespace
