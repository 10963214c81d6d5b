// Opening a transfer set: which files are opened, what is kept of each, and what a host is told of those that
// failed, by code and by line.
#include "transfer/IsoXmlParser.h"
#include "support/code_name.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <filesystem>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/temp_dir.h"

namespace {

static_assert(!std::is_copy_constructible_v<IsoXmlParser> && !std::is_copy_assignable_v<IsoXmlParser>);

// What a host may call and read.
static_assert(std::is_same_v<void (IsoXmlParser::*)(), decltype(&IsoXmlParser::createReaders)>);
static_assert(std::is_same_v<void (IsoXmlParser::*)(lmx::xmlReader&), decltype(&IsoXmlParser::processLinks)>);
static_assert(std::is_const_v<
              std::remove_reference_t<decltype(std::declval<IsoXmlParser const&>().getErrors().front())>>);
static_assert(std::is_same_v<std::string, decltype(IsoXmlParser::directory)>);
static_assert(std::is_same_v<std::string, decltype(IsoXmlParser::fileName)>);
static_assert(std::is_same_v<std::shared_ptr<IsoXmlParser::Xml>, decltype(IsoXmlParser::mainXml)>);
static_assert(
    std::is_same_v<std::vector<std::shared_ptr<IsoXmlParser::Xml>>, decltype(IsoXmlParser::xmlDocuments)>);
static_assert(std::is_same_v<std::vector<IsoXmlError>, decltype(IsoXmlParser::errors)>);
static_assert(std::is_same_v<std::map<std::string, std::string>, decltype(IsoXmlParser::uuidLinks)>);
static_assert(!std::is_same_v<::Point, lmx::Point> && !std::is_same_v<::Polygon, lmx::Polygon> &&
              !std::is_same_v<::TreatmentZone, lmx::TreatmentZone> &&
              !std::is_same_v<::ProcessDataVariable, lmx::ProcessDataVariable>);

using Role = IsoDocument::Role;

const std::string attributes =
    " VersionMajor='4' VersionMinor='3' ManagementSoftwareManufacturer='m' ManagementSoftwareVersion='1' "
    "DataTransferOrigin='1'";

std::string task_data(std::string const& children) {
  return "<ISO11783_TaskData" + attributes + ">" + children + "</ISO11783_TaskData>";
}

std::string link_list(std::string const& groups) {
  return "<ISO11783LinkList" + attributes + ">" + groups + "</ISO11783LinkList>";
}

std::string group(char const* type, std::string const& links) {
  return std::string("<LGP A='LGP1' B='") + type + "'>" + links + "</LGP>";
}

std::string link(std::string const& id, std::string const& uuid) {
  return "<LNK A='" + id + "' B='" + uuid + "'/>";
}

std::string attached(std::string const& name, int type = 1) {
  return "<AFE A='" + name + "' B='1' C='' D='" + std::to_string(type) + "'/>";
}

std::string reference(std::string const& name) { return "<XFR A='" + name + "' B='1'/>"; }

std::size_t open_files() {
  const std::filesystem::directory_iterator entries("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

// Code and name of each error, such as "NO_FILE CTR00001, REQUIRED_ATTRIBUTES_MISSING TSK00002".
std::string errors(IsoXmlParser const& parser) {
  std::string text;
  for (IsoXmlError const& error : parser.getErrors()) {
    text += (text.empty() ? "" : ", ") + code_name(error.error) + ' ' + error.fileName;
  }
  return text;
}

// Role, name and code of each document, such as "main TASKDATA OK, external CTR00001 NO_FILE".
std::string documents(IsoXmlParser const& parser) {
  const std::map<Role, std::string> roles = {
      {Role::Main, "main "}, {Role::LinkList, "links "}, {Role::External, "external "}};
  std::string text;
  for (IsoDocument const& document : parser.getDocuments()) {
    text += (text.empty() ? "" : ", ") + roles.at(document.role) + document.name + ' ' +
            code_name(document.error);
    const bool is_held = document.error == lmx::ELMX_OK && document.role != Role::LinkList;
    EXPECT_EQ(is_held, document.root != nullptr) << document.name;
    EXPECT_EQ(document.error == lmx::ELMX_OK, document.message.empty()) << document.name;
  }
  return text;
}

using Files = std::map<std::string, std::string>;

// A transfer set of the files given, with the main document TASKDATA.
class Set {
 public:
  explicit Set(Files const& files) {
    for (auto const& [name, bytes] : files) m_directory.write(name, bytes);
    mp_parser = std::make_unique<IsoXmlParser>(m_directory.path(), "TASKDATA");
  }
  IsoXmlParser& operator*() const { return *mp_parser; }
  IsoXmlParser* operator->() const { return mp_parser.get(); }
  void close() { mp_parser.reset(); }

 private:
  TempDir m_directory;
  std::unique_ptr<IsoXmlParser> mp_parser;
};

// --- Paths -----------------------------------------------------------------------------------------------

struct Path {
  char const* caption;
  char const* file;  // the only one there is
  char const* directory;
  char const* name;
  bool is_found;
};

TEST(Path, IsDirectorySlashNameAndASuffixIfTheNameHasNone) {
  const Path rows[] = {
      {"the suffix is added", "TASKDATA.XML", "", "TASKDATA", true},
      {"not twice", "TASKDATA.XML", "", "TASKDATA.XML", true},
      {"a suffix in lower case will do", "taskdata.xml", "", "taskdata.xml", true},
      {"in mixed case too", "taskdata.Xml", "", "taskdata.Xml", true},
      {"the name's case is kept", "TASKDATA.XML", "", "taskdata.xml", false},
      {"an added suffix is in capitals", "taskdata.XML", "", "taskdata", true},
      {"and in capitals only", "taskdata.xml", "", "taskdata", false},
      {"a name without it is not the file", "TASKDATA", "", "TASKDATA", false},
      {"a suffix within the name", "a.xml.bak", "", "a.xml.bak", true},
      {"at its start", ".xmlfile", "", ".xmlfile", true},
      {"a suffix that lacks its dot", "axml.XML", "", "axml", true},
      {"an empty name", ".XML", "", "", true},
      {"a slash at the directory's end", "set/TASKDATA.XML", "/set/", "TASKDATA", true},
      {"a directory in the name", "set/TASKDATA.XML", "", "set/TASKDATA", true},
      {"a suffix in the directory's name", "set.XML/TASKDATA.XML", "/set.XML", "TASKDATA", true},
      {"which does not count", "set.XML/TASKDATA", "/set.XML", "TASKDATA", false},
  };
  for (Path const& row : rows) {
    TempDir directory;
    directory.write(row.file, task_data(""));
    const IsoXmlParser parser(directory.path() + row.directory, row.name);
    EXPECT_EQ(row.is_found ? "" : std::string("NO_FILE ") + row.name, errors(parser)) << row.caption;
    ASSERT_EQ(1u, parser.getDocuments().size());
    EXPECT_EQ(row.name, parser.getDocuments()[0].name) << row.caption;
  }
}

TEST(Path, HasTheSlashAlsoBehindAnEmptyDirectory) {
  TempDir directory;
  directory.write("TASKDATA.XML", task_data(""));
  EXPECT_EQ("", errors(IsoXmlParser("", directory.path("TASKDATA").substr(1))));
}

TEST(Path, OfAnExternalFileIsInTheSameDirectory) {
  Set set({{"TASKDATA.XML", task_data(reference("CTR00001") + reference("CTR00002"))},
           {"CTR00001.XML", "<XFC/>"},
           {"ctr00002.xml", "<XFC/>"}});
  EXPECT_EQ("NO_FILE CTR00002", errors(*set));
  EXPECT_EQ("main TASKDATA OK, external CTR00001 OK, external CTR00002 NO_FILE", documents(*set));
}

// --- What fails, and what stands without it --------------------------------------------------------------

struct Failure {
  char const* caption;
  Files files;
  std::string errors;
  std::string documents;
};

TEST(Failures, LeaveOutTheDocumentAlone) {
  const std::string main =
      task_data(attached("LINKLIST.XML") + reference("CTR00001") + reference("TSK00002"));
  const std::string links = link_list(group("1", link("CTR1", "uuid")));
  const Failure rows[] = {
      {"none",
       {{"TASKDATA.XML", main},
        {"LINKLIST.XML", links},
        {"CTR00001.XML", "<XFC/>"},
        {"TSK00002.XML", "<XFC/>"}},
       "",
       "main TASKDATA OK, links LINKLIST.XML OK, external CTR00001 OK, external TSK00002 OK"},
      {"main missing",
       {{"LINKLIST.XML", links}, {"CTR00001.XML", "<XFC/>"}},
       "NO_FILE TASKDATA",
       "main TASKDATA NO_FILE"},
      {"main malformed",
       {{"TASKDATA.XML", main.substr(0, main.size() - 4)}, {"LINKLIST.XML", links}},
       "NOT_WELL_FORMED TASKDATA",
       "main TASKDATA NOT_WELL_FORMED"},
      {"main invalid at its end",
       {{"TASKDATA.XML",
         task_data(attached("LINKLIST.XML") + reference("CTR00001") + "<XFR A='CTR00002'/>")}},
       "REQUIRED_ATTRIBUTES_MISSING TASKDATA",
       "main TASKDATA REQUIRED_ATTRIBUTES_MISSING"},
      {"links missing",
       {{"TASKDATA.XML", main}, {"CTR00001.XML", "<XFC/>"}, {"TSK00002.XML", "<XFC/>"}},
       "NO_FILE LINKLIST.XML",
       "main TASKDATA OK, links LINKLIST.XML NO_FILE, external CTR00001 OK, external TSK00002 OK"},
      {"links malformed",
       {{"TASKDATA.XML", main},
        {"LINKLIST.XML", link_list(group("1", link("CTR1", "uuid") + "text"))},
        {"CTR00001.XML", "<XFC/>"},
        {"TSK00002.XML", "<XFC/>"}},
       "BAD_END_OF_ELEMENT LINKLIST.XML",
       "main TASKDATA OK, links LINKLIST.XML BAD_END_OF_ELEMENT, external CTR00001 OK, external TSK00002 OK"},
      {"the first external file missing",
       {{"TASKDATA.XML", main}, {"LINKLIST.XML", links}, {"TSK00002.XML", "<XFC/>"}},
       "NO_FILE CTR00001",
       "main TASKDATA OK, links LINKLIST.XML OK, external CTR00001 NO_FILE, external TSK00002 OK"},
      {"the last external file malformed",
       {{"TASKDATA.XML", main},
        {"LINKLIST.XML", links},
        {"CTR00001.XML", "<XFC/>"},
        {"TSK00002.XML", "<XFC>"}},
       "UNEXPECTED_EOM TSK00002",
       "main TASKDATA OK, links LINKLIST.XML OK, external CTR00001 OK, external TSK00002 UNEXPECTED_EOM"},
      {"all but main",
       {{"TASKDATA.XML", main}, {"CTR00001.XML", ""}, {"TSK00002.XML", "junk"}},
       "NO_FILE LINKLIST.XML, UNEXPECTED_EOM CTR00001, BAD_CHAR_ENCODING TSK00002",
       "main TASKDATA OK, links LINKLIST.XML NO_FILE, external CTR00001 UNEXPECTED_EOM, external TSK00002 "
       "BAD_CHAR_ENCODING"},
  };
  for (Failure const& row : rows) {
    SCOPED_TRACE(row.caption);
    const Set set(row.files);
    EXPECT_EQ(row.errors, errors(*set));
    EXPECT_EQ(row.documents, documents(*set));
    const bool has_main = set->getDocuments()[0].error == lmx::ELMX_OK;
    const bool has_links = row.errors.find("LINKLIST") == std::string::npos && has_main;
    EXPECT_EQ(has_main, set->isSchemaVersion4());
    EXPECT_EQ(nullptr, set->getP917Metadata());
    EXPECT_EQ(has_links ? "uuid" : "", set->getIsoUuid("CTR1"));
    EXPECT_EQ(has_links ? 1u : 0u, set->getUuidLinks().size());
  }
}

TEST(Failures, CarryTheFixedTextOfTheirCodeAndTheNameAsGiven) {
  Set set({{"TASKDATA.XML", task_data(attached("linklist.xml") + "\n")}});
  ASSERT_EQ(1u, set->getErrors().size());  // the name breaks its pattern
  const IsoXmlError error = set->getErrors()[0];
  EXPECT_EQ(lmx::ELMX_NO_PATTERN_MATCHED, error.error);
  EXPECT_EQ(1, error.line);
  EXPECT_EQ("TASKDATA", error.fileName);
  EXPECT_EQ("No pattern matched", error.message);

  TempDir directory;
  const IsoXmlParser missing(directory.path() + "/", "TaskData.xml");
  ASSERT_EQ(1u, missing.getErrors().size());
  EXPECT_EQ(lmx::ELMX_NO_FILE, missing.getErrors()[0].error);
  EXPECT_EQ(1, missing.getErrors()[0].line);
  EXPECT_EQ("TaskData.xml", missing.getErrors()[0].fileName);
  EXPECT_EQ("Unable to open file", missing.getErrors()[0].message);

  const IsoXmlError in_order = {lmx::ELMX_NO_FILE, 1, "name", "text"};
  EXPECT_EQ("text", in_order.message);
}

TEST(Failures, AreToldWithTheReadersOwnTextInTheListOfDocuments) {
  Set set({{"TASKDATA.XML", task_data(reference("CTR00001"))}, {"CTR00001.XML", "<LGP A='LGP1'\nB='9'/>"}});
  const std::vector<IsoDocument> found = set->getDocuments();
  ASSERT_EQ(2u, found.size());
  EXPECT_EQ(Role::External, found[1].role);
  EXPECT_EQ(lmx::ELMX_VALUE_NOT_ENUMERATED, found[1].error);
  EXPECT_EQ(2, found[1].line);
  EXPECT_EQ("B", found[1].item);
  EXPECT_EQ(0u, found[1].message.find("Error: Value does not match enumerations\nItem: B\nProgram file: "));
  EXPECT_NE(std::string::npos, found[1].message.find("\nXML line: 2\n"));
  EXPECT_EQ("", found[0].item);

  Set missing(Files{});
  EXPECT_EQ(0u, missing->getDocuments()[0].message.find("Error: Unable to open file\n"));
  EXPECT_EQ(1, missing->getDocuments()[0].line);
}

TEST(Failures, OfADirectoryLookLikeAnEmptyFile) {
  TempDir directory;
  directory.write("TASKDATA.XML/FILE", "");
  const IsoXmlParser parser(directory.path(), "TASKDATA");
  ASSERT_EQ("UNEXPECTED_EOM TASKDATA", errors(parser));
  EXPECT_EQ(1, parser.getErrors()[0].line);
}

// What a document that is not there gets, in both lists.
void expect_like_a_missing_file(IsoXmlParser const& parser, std::size_t document_index,
                                std::size_t error_index, std::string const& name) {
  TempDir empty;
  const IsoXmlParser missing(empty.path(), name);
  const IsoDocument expected = missing.getDocuments().at(0);
  const IsoDocument found = parser.getDocuments().at(document_index);
  EXPECT_EQ(expected.name, found.name);
  EXPECT_EQ(expected.error, found.error);
  EXPECT_EQ(expected.line, found.line);
  EXPECT_EQ(expected.item, found.item);
  EXPECT_EQ(expected.message, found.message);
  EXPECT_EQ(nullptr, found.root);
  const IsoXmlError expected_error = missing.getErrors().at(0);
  const IsoXmlError error = parser.getErrors().at(error_index);
  EXPECT_EQ(lmx::ELMX_NO_FILE, error.error);
  EXPECT_EQ(expected_error.line, error.line);
  EXPECT_EQ(expected_error.fileName, error.fileName);
  EXPECT_EQ(expected_error.message, error.message);
}

void make_socket(std::string const& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  ASSERT_LT(path.size(), sizeof address.sun_path);
  path.copy(address.sun_path, path.size());
  const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
  EXPECT_EQ(0, bind(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address));
  close(descriptor);
}

// Nobody feeds the FIFO: whoever waits for it waits for ever.
TEST(Failures, OfFifosSocketsAndDevicesAreOfCode1AtOnce) {
  const struct {
    char const* caption;
    void (*make)(std::string const& path);
  } rows[] = {
      {"a FIFO", [](std::string const& path) { ASSERT_EQ(0, mkfifo(path.c_str(), 0600)); }},
      {"a socket", make_socket},
      {"a device", [](std::string const& path) { ASSERT_EQ(0, symlink("/dev/zero", path.c_str())); }},
      {"an empty one", [](std::string const& path) { ASSERT_EQ(0, symlink("/dev/null", path.c_str())); }},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    TempDir directory;
    directory.write("TASKDATA.XML", task_data(attached("LINKLIST.XML") + reference("CTR00001") +
                                              reference("CTR00002") + reference("CTR00001")));
    directory.write("CTR00002.XML", "<XFC/>");
    row.make(directory.path("LINKLIST.XML"));
    row.make(directory.path("CTR00001.XML"));
    row.make(directory.path("MAINFILE.XML"));
    const IsoXmlParser parser(directory.path(), "TASKDATA");
    EXPECT_EQ(
        "main TASKDATA OK, links LINKLIST.XML NO_FILE, external CTR00001 NO_FILE, external CTR00002 OK, "
        "external CTR00001 NO_FILE",
        documents(parser));
    expect_like_a_missing_file(parser, 1, 0, "LINKLIST.XML");
    expect_like_a_missing_file(parser, 2, 1, "CTR00001");
    const IsoXmlParser of_none(directory.path(), "MAINFILE");
    EXPECT_EQ("main MAINFILE NO_FILE", documents(of_none));
    expect_like_a_missing_file(of_none, 0, 0, "MAINFILE");
  }
}

TEST(Failures, OfAFifoTakeNothingFromIt) {
  TempDir directory;
  const std::string path = directory.path("TASKDATA.XML");
  ASSERT_EQ(0, mkfifo(path.c_str(), 0600));
  const int pipe = open(path.c_str(), O_RDWR | O_NONBLOCK);  // both ends, so that it can be filled
  const std::string bytes = task_data("");
  ASSERT_EQ(static_cast<ssize_t>(bytes.size()), write(pipe, bytes.data(), bytes.size()));
  EXPECT_EQ("NO_FILE TASKDATA", errors(IsoXmlParser(directory.path(), "TASKDATA")));
  std::string left(bytes.size() + 1, ' ');
  EXPECT_EQ(static_cast<ssize_t>(bytes.size()), read(pipe, left.data(), left.size()));
  EXPECT_EQ(0, left.compare(0, bytes.size(), bytes));
  close(pipe);
}

// --- External files --------------------------------------------------------------------------------------

TEST(ExternalFiles, AreReadInOrderAndAsOftenAsTheyAreNamed) {
  Set set({{"TASKDATA.XML", task_data(reference("TSK00001") +
                                      "<TCC A='0011223344556677' B='' C='3' D='0' E='0' F='0' G='0'/>" +
                                      reference("CTR00001") + reference("TSK00001"))},
           {"TSK00001.XML", "<XFC/>"},
           {"CTR00001.XML", "<XFC/>"}});
  EXPECT_EQ("main TASKDATA OK, external TSK00001 OK, external CTR00001 OK, external TSK00001 OK",
            documents(*set));
  const std::vector<IsoDocument> found = set->getDocuments();
  EXPECT_NE(found[1].root, found[3].root);
  EXPECT_EQ(1, found[0].root->chosen);
  EXPECT_EQ(57, found[1].root->chosen);
}

std::string repeated(std::string const& text, std::size_t count) {
  std::string all;
  for (std::size_t i = 0; i != count; ++i) all += text;
  return all;
}

TEST(ExternalFiles, AreReadSixteenTimesAndNoMore) {
  const std::string external = ", external TSK00001 ";
  Set good({{"TASKDATA.XML", task_data(repeated(reference("TSK00001"), 20))},
            {"TSK00001.XML", "<XFC><TSK A='TSK1' G='1'/></XFC>"}});
  EXPECT_EQ("main TASKDATA OK" + repeated(external + "OK", 16) + repeated(external + "NO_FILE", 4),
            documents(*good));
  EXPECT_EQ("NO_FILE TSK00001, NO_FILE TSK00001, NO_FILE TSK00001, NO_FILE TSK00001", errors(*good));
  for (std::size_t i = 0; i != 4; ++i) expect_like_a_missing_file(*good, 17 + i, i, "TSK00001");
  EXPECT_EQ(16u, good->getTasks().size());

  Set bad({{"TASKDATA.XML", task_data(repeated(reference("TSK00001"), 18))}, {"TSK00001.XML", "<XFC>"}});
  EXPECT_EQ(
      "main TASKDATA OK" + repeated(external + "UNEXPECTED_EOM", 16) + repeated(external + "NO_FILE", 2),
      documents(*bad));
}

TEST(ExternalFiles, AreOneFileByWhateverNames) {
  TempDir directory;
  std::string names;
  for (int i = 0; i != 20; ++i) {
    const std::string name = "TSK000" + std::to_string(10 + i);
    names += reference(name);
    const std::string path = directory.path(name + ".XML");
    if (i % 2 == 0) {
      ASSERT_EQ(0, symlink("TASKDATA.XML", path.c_str()));
    } else {
      std::filesystem::create_hard_link(directory.path("LINKLIST.XML"), path);
    }
    if (i == 0) directory.write("LINKLIST.XML", link_list(""));
  }
  directory.write("TASKDATA.XML", task_data(attached("LINKLIST.XML") + repeated(names, 2)));
  // Each file has been opened once before the first reference, which names it ten times, twice.
  const IsoXmlParser parser(directory.path(), "TASKDATA");
  std::string expected;
  for (int i = 0; i != 10; ++i)
    expected += (i == 0 ? "NO_FILE TSK000" : ", NO_FILE TSK000") + std::to_string(20 + i);
  EXPECT_EQ(expected, errors(parser));
  EXPECT_EQ(2u + 40u, parser.getDocuments().size());
}

TEST(ExternalFiles, ThatDifferAreNotLimited) {
  Files files;
  std::string names;
  for (int i = 0; i != 40; ++i) {
    const std::string name = "TSK000" + std::to_string(10 + i);
    names += reference(name);
    files[name + ".XML"] = "<XFC/>";
  }
  files["TASKDATA.XML"] = task_data(repeated(names, 16));
  Set set(files);
  EXPECT_EQ("", errors(*set));
  EXPECT_EQ(1u + 40u * 16u, set->getDocuments().size());
}

TEST(ExternalFiles, ThatAHostOpensItselfAreNotCounted) {
  Set set({{"TASKDATA.XML", task_data(reference("TSK00001"))}, {"TSK00001.XML", "<XFC/>"}});
  for (int i = 0; i != 40; ++i) EXPECT_NE(nullptr, set->openFile("TSK00001", nullptr));
  EXPECT_EQ("", errors(*set));
}

TEST(ExternalFiles, NameNoFurtherFiles) {
  const std::string names = reference("CTR00001") + reference("CTR00002") + attached("LINKLIST.XML") +
                            "<P917_Metadata Version='external'/>";
  Set set({{"TASKDATA.XML", task_data(reference("CTR00001"))},
           {"CTR00001.XML", task_data(names)},
           {"CTR00002.XML", "<XFC/>"},
           {"LINKLIST.XML", link_list(group("1", link("CTR1", "uuid")))}});
  EXPECT_EQ("main TASKDATA OK, external CTR00001 OK", documents(*set));
  EXPECT_TRUE(set->getUuidLinks().empty());
  EXPECT_EQ(nullptr, set->getP917Metadata());

  Set content(
      {{"TASKDATA.XML", task_data(reference("CTR00001"))}, {"CTR00001.XML", "<XFC>" + names + "</XFC>"}});
  EXPECT_EQ("main TASKDATA OK, external CTR00001 OK", documents(*content));
}

// --- Links -----------------------------------------------------------------------------------------------

TEST(Links, OfUuidsAreKeptTheFirstOfEachIdentifier) {
  Set set({{"TASKDATA.XML",
            task_data(attached("OTHERFIL.XML", 2) + attached("LINKLIST.XML") + attached("SECONDLI.XML"))},
           {"OTHERFIL.XML", link_list(group("1", link("CTR1", "other")))},
           {"LINKLIST.XML", link_list(group("2", link("CTR1", "two") + link("CTR9", "two")) +
                                      group("1", link("CTR2", "b") + link("CTR1", "a")) +
                                      group("3", link("CTR3", "three")) + group("4", link("CTR4", "four")) +
                                      group("1", link("CTR1", "late") + link("CTR5", "e") +
                                                     link("CTR5", "late") + link("CTR6", "")))},
           {"SECONDLI.XML", link_list(group("1", link("CTR7", "second")))}});
  EXPECT_EQ("", errors(*set));
  EXPECT_EQ("main TASKDATA OK, links LINKLIST.XML OK", documents(*set));
  EXPECT_EQ((std::map<std::string, std::string>{{"CTR1", "a"}, {"CTR2", "b"}, {"CTR5", "e"}, {"CTR6", ""}}),
            set->getUuidLinks());
  EXPECT_EQ("a", set->getIsoUuid("CTR1"));
  EXPECT_EQ("", set->getIsoUuid("ctr1"));
  EXPECT_EQ("", set->getIsoUuid("CTR"));
  EXPECT_EQ("", set->getIsoUuid(""));
}

TEST(Links, AreNotSoughtInASecondFileWhenTheFirstFailed) {
  Set set({{"TASKDATA.XML", task_data(attached("LINKLIST.XML") + attached("SECONDLI.XML"))},
           {"SECONDLI.XML", link_list(group("1", link("CTR7", "second")))}});
  EXPECT_EQ("NO_FILE LINKLIST.XML", errors(*set));
  EXPECT_TRUE(set->getUuidLinks().empty());
}

TEST(Links, OfADocumentThatIsNoLinkListAreNone) {
  for (std::string const& bytes :
       {task_data(""), group("1", link("CTR1", "a")), link_list(""), link_list(group("1", ""))}) {
    Set set({{"TASKDATA.XML", task_data(attached("LINKLIST.XML"))}, {"LINKLIST.XML", bytes}});
    EXPECT_EQ("", errors(*set)) << bytes;
    EXPECT_TRUE(set->getUuidLinks().empty()) << bytes;
  }
}

TEST(Links, AreTakenFromWhateverFileAReaderHolds) {
  TempDir directory;
  directory.write("TASKDATA.XML", task_data(""));
  directory.write("MYLINKS.XML", link_list(group("1", link("CTR1", "a"))));
  IsoXmlParser parser(directory.path(), "TASKDATA");
  lmx::xmlReader reader(directory.path("TASKDATA.XML").c_str());

  AttachedFile nameless;
  nameless.SetType(1);
  reader.addNewAttachedFile(&nameless);
  parser.processLinks(reader);
  EXPECT_EQ("", errors(parser));  // an empty name opens nothing

  nameless.SetFileNameWithExtension("MYLINKS");
  nameless.UnsetType();  // its number counts, not whether it is marked as set
  parser.processLinks(reader);
  EXPECT_EQ("a", parser.getIsoUuid("CTR1"));

  nameless.SetFileNameWithExtension("NOLINKS");
  parser.processLinks(reader);
  EXPECT_EQ("NO_FILE NOLINKS", errors(parser));
  EXPECT_EQ("a", parser.getIsoUuid("CTR1"));
}

// --- Questions to an open set ----------------------------------------------------------------------------

TEST(SchemaVersion, Is4ForThatTextAlone) {
  const struct {
    std::string bytes;
    bool is_4;
  } rows[] = {{"4", true},   {" 4 ", true}, {"3", false}, {"4.0", false},
              {"04", false}, {"", false},   {"44", false}};
  for (auto const& row : rows) {
    std::string bytes = task_data("");
    bytes.replace(bytes.find("'4'"), 3, "'" + row.bytes + "'");
    Set set({{"TASKDATA.XML", bytes}});
    EXPECT_EQ("", errors(*set));
    EXPECT_EQ(row.is_4, set->isSchemaVersion4()) << row.bytes;
    EXPECT_EQ(row.is_4, set->isSchemaVersion4()) << row.bytes;
  }
}

TEST(SchemaVersion, OfAnotherRootIsNot4AndLeavesItAlone) {
  for (std::string const& bytes : {link_list(group("1", "")), attached("ABCDEFGH.XML", 2)}) {
    Set set({{"TASKDATA.XML", bytes}});
    ASSERT_EQ("", errors(*set));
    Root const* const root = set->getDocuments()[0].root;
    const int chosen = root->chosen;
    EXPECT_FALSE(set->isSchemaVersion4());
    EXPECT_EQ(chosen, root->chosen);
    if (chosen == Root::AttachedFileChosen) {
      EXPECT_EQ("ABCDEFGH.XML", root->GetAttachedFile().GetFileNameWithExtension());
    }
  }
}

TEST(Metadata, OutlivesItsParser) {
  Set set({{"TASKDATA.XML", task_data("<P917_Metadata Version='1'/><P917_Metadata Version='2'/>")}});
  P917Metadata* const metadata = set->getP917Metadata();
  ASSERT_NE(nullptr, metadata);
  set.close();
  EXPECT_EQ("2", metadata->GetVersion());
}

TEST(OpenFile, TellsTheCodeAndRecordsAFailure) {
  Set set({{"TASKDATA.XML", task_data("")}, {"MORE.XML", attached("ABCDEFGH.XML")}, {"BAD.XML", "<LNK/>"}});
  lmx::elmx_error error = lmx::ELMX_UNDEFINED_ERROR;
  const std::shared_ptr<IsoXmlParser::Xml> more = set->openFile("MORE", &error);
  EXPECT_EQ(0, error);
  ASSERT_NE(nullptr, more);
  EXPECT_EQ(1u, more->reader.getAttachedFileContainer().size());
  EXPECT_EQ(0, more->root.chosen);
  EXPECT_EQ(nullptr, set->openFile("BAD", &error));
  EXPECT_EQ(lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, error);
  EXPECT_EQ(nullptr, set->openFile("NONE.xml", nullptr));
  EXPECT_NE(nullptr, set->openFile("MORE.XML", nullptr));
  EXPECT_EQ("REQUIRED_ATTRIBUTES_MISSING BAD, NO_FILE NONE.xml", errors(*set));
}

// --- Members ---------------------------------------------------------------------------------------------

template <class Before, class Behind>
bool is_before(Before const& before, Behind const& behind) {
  return static_cast<void const*>(&before) < static_cast<void const*>(&behind);
}

TEST(Members, HoldWhatWasGivenAndReadInTheirOrder) {
  Set set({{"TASKDATA.XML", task_data(attached("LINKLIST.XML") + reference("CTR00001") +
                                      reference("CTR00002") + "<TSK A='TSK1' G='1'/>")},
           {"LINKLIST.XML", link_list(group("1", link("CTR1", "uuid")))},
           {"CTR00002.XML", "<XFC/>"}});
  IsoXmlParser& parser = *set;
  EXPECT_TRUE(is_before(parser.directory, parser.fileName) && is_before(parser.fileName, parser.mainXml) &&
              is_before(parser.mainXml, parser.xmlDocuments) &&
              is_before(parser.xmlDocuments, parser.errors) && is_before(parser.errors, parser.uuidLinks));
  EXPECT_TRUE(std::filesystem::exists(parser.directory + "/CTR00002.XML"));
  EXPECT_EQ("TASKDATA", parser.fileName);
  ASSERT_EQ(2u, parser.xmlDocuments.size());
  EXPECT_EQ(parser.mainXml, parser.xmlDocuments[0]);
  EXPECT_EQ(Root::TaskDataChosen, parser.mainXml->root.chosen);
  EXPECT_EQ("TSK1", parser.mainXml->reader.getTaskContainer().at(0)->GetId());
  EXPECT_EQ(Root::ExternalFileContentChosen, parser.xmlDocuments[1]->root.chosen);
  ASSERT_EQ(1u, parser.errors.size());
  EXPECT_EQ("CTR00001", parser.errors[0].fileName);
  EXPECT_EQ(&parser.errors, &parser.getErrors());
  EXPECT_EQ((std::map<std::string, std::string>{{"CTR1", "uuid"}}), parser.uuidLinks);
  EXPECT_EQ(&parser.uuidLinks, &parser.getUuidLinks());
}

TEST(Members, AreEmptyWithoutAMainDocument) {
  Set set(Files{});
  EXPECT_EQ(nullptr, set->mainXml);
  EXPECT_TRUE(set->xmlDocuments.empty() && set->uuidLinks.empty());
  EXPECT_EQ(1u, set->errors.size());
}

// --- File handles ----------------------------------------------------------------------------------------

TEST(Handles, AreHeldForEachDocumentUntilTheParserGoes) {
  const std::size_t before = open_files();
  Set set({{"TASKDATA.XML", task_data(attached("LINKLIST.XML") + reference("CTR00001") +
                                      reference("CTR00002") + reference("CTR00003"))},
           {"LINKLIST.XML", link_list("")},
           {"CTR00001.XML", "<XFC/>"},
           {"CTR00002.XML", "<XFC>"}});
  EXPECT_EQ("UNEXPECTED_EOM CTR00002, NO_FILE CTR00003", errors(*set));
  EXPECT_EQ(before + 2, open_files());  // not the link list, which is done with, and not what failed
  set.close();
  EXPECT_EQ(before, open_files());
  Set failed(Files{{"TASKDATA.XML", "<XFC>"}});
  EXPECT_EQ(before, open_files());
}

// Lets the process open so many more files.
class FileLimit {
 public:
  explicit FileLimit(std::size_t more) {
    getrlimit(RLIMIT_NOFILE, &m_before);
    rlimit limit = m_before;
    limit.rlim_cur = open_files() + more;
    setrlimit(RLIMIT_NOFILE, &limit);
  }
  ~FileLimit() { setrlimit(RLIMIT_NOFILE, &m_before); }
  FileLimit(FileLimit const&) = delete;
  FileLimit& operator=(FileLimit const&) = delete;

 private:
  rlimit m_before{};
};

TEST(Handles, ThatRunOutLeaveTheRestIntact) {
  TempDir directory;
  std::string references;
  for (int i = 0; i != 2000; ++i) {
    const std::string name = "CTR0" + std::to_string(1000 + i);
    references += reference(name);
    directory.write(name + ".XML", "<XFC/>");
  }
  directory.write("TASKDATA.XML", task_data(attached("LINKLIST.XML") + references));
  directory.write("LINKLIST.XML", link_list(group("1", link("CTR1", "uuid"))));
  const std::size_t before = open_files();
  {
    std::unique_ptr<IsoXmlParser> parser;
    {
      const FileLimit limit(50);
      parser = std::make_unique<IsoXmlParser>(directory.path(), "TASKDATA");
    }
    EXPECT_TRUE(parser->isSchemaVersion4());
    EXPECT_EQ("uuid", parser->getIsoUuid("CTR1"));
    const std::vector<IsoDocument> found = parser->getDocuments();
    ASSERT_EQ(2002u, found.size());
    std::size_t opened = 0;
    while (2 + opened != found.size() && found[2 + opened].error == lmx::ELMX_OK) ++opened;
    EXPECT_GE(opened, 40u);
    EXPECT_LT(opened, 100u);
    EXPECT_EQ(before + 1 + opened, open_files());
    ASSERT_EQ(2000 - opened, parser->getErrors().size());
    for (std::size_t i = 0; i != parser->getErrors().size(); ++i) {
      EXPECT_EQ(lmx::ELMX_NO_FILE, parser->getErrors()[i].error);
      EXPECT_EQ("CTR0" + std::to_string(1000 + opened + i), parser->getErrors()[i].fileName);
    }
  }
  EXPECT_EQ(before, open_files());
}

// --- Codes and lines -------------------------------------------------------------------------------------

struct Outcome {
  int code = 0;
  int line = 0;  // 0 when nothing failed
};

Outcome read(std::string const& bytes) {
  Set set({{"TASKDATA.XML", bytes}});
  if (set->getErrors().empty()) return {};
  EXPECT_EQ(1u, set->getErrors().size());
  EXPECT_EQ(1u, set->getDocuments().size());
  EXPECT_EQ(nullptr, set->getDocuments()[0].root);
  EXPECT_STREQ(lmx::get_error_description(set->getErrors()[0].error), set->getErrors()[0].message.c_str());
  EXPECT_EQ(set->getErrors()[0].line, set->getDocuments()[0].line);
  return {set->getErrors()[0].error, set->getErrors()[0].line};
}

struct Fault {
  char const* caption;
  std::string bytes;
  int code;
};

void expect_faults(std::vector<Fault> const& rows) {
  for (auto const& [caption, bytes, code] : rows) {
    EXPECT_EQ(code, read(bytes).code) << caption << ": " << bytes;
  }
}

const std::string good = "<LNK A='TSK1' B='v'/>";

TEST(Faults, InStartTagsHaveTheirCode) {
  expect_faults(
      {{"a value without quotes", "<LNK A=TSK1 B='v'/>", lmx::ELMX_NOT_WELL_FORMED},
       {"an attribute without a value", "<LNK A B='v'/>", lmx::ELMX_NOT_WELL_FORMED},
       {"a value without =", "<LNK A'TSK1' B='v'/>", lmx::ELMX_NOT_WELL_FORMED},
       {"a stray character", "<LNK A='TSK1' ; B='v'/>", lmx::ELMX_NOT_WELL_FORMED},
       {"a stray character at the end", "<LNK A='TSK1' B='v' =/>", lmx::ELMX_NOT_WELL_FORMED},
       {"something behind the slash", "<LNK A='TSK1' B='v'/x>", lmx::ELMX_NOT_WELL_FORMED},
       {"a blank behind the slash", "<LNK A='TSK1' B='v'/ >", 0},
       {"< in a value", "<LNK A='TSK1' B='<<'/>", 0},
       {"> in a value", "<LNK A='TSK1' B='>'/>", 0},
       {"the other quote in a value", "<LNK A='TSK1' B='\"'/>", 0},
       {"no blank between attributes", "<LNK A='TSK1'B='v'/>", 0},
       {"blanks around =", "<LNK A = 'TSK1' B\n=\n'v'/>", 0},
       {"a duplicate attribute", "<LNK A='TSK1' A='TSK1' B='v'/>", lmx::ELMX_ATTRIBUTE_ALREADY_READ},
       {"an unknown attribute", "<LNK A='TSK1' B='v' Z='x'/>", 0},
       {"a duplicate unknown attribute", "<LNK A='TSK1' B='v' Z='x' Z='y'/>", 0},
       {"a missing attribute", "<LNK A='TSK1'/>", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING},
       {"an undeclared entity", "<LNK A='TSK1' B='a &foo; b'/>", lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE},
       {"a lone ampersand", "<LNK A='TSK1' B='a & b'/>", lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE},
       {"an undeclared entity in an unknown attribute", "<LNK A='TSK1' B='v' Z='&foo;'/>", 0}});
}

TEST(Faults, InContentHaveTheirCode) {
  expect_faults(
      {{"a known element's wrong end tag", "<LGP A='LGP1' B='1'></LNK>", lmx::ELMX_BAD_END_OF_ELEMENT},
       {"an unknown element's wrong end tag", group("1", "<a><b></a></b>"), lmx::ELMX_BADLY_FORMED},
       {"an unknown child", group("1", good + "<a><b>text</b></a>" + good), 0},
       {"text", group("1", "text"), lmx::ELMX_BAD_END_OF_ELEMENT},
       {"text between children", group("1", good + "text" + good), lmx::ELMX_BAD_END_OF_ELEMENT},
       {"text before the end tag", group("1", good + "\n text"), lmx::ELMX_BAD_END_OF_ELEMENT},
       {"a CDATA section", group("1", "<![CDATA[x]]>"), lmx::ELMX_BAD_END_OF_ELEMENT},
       {"an empty CDATA section", group("1", good + "<![CDATA[]]>"), lmx::ELMX_BAD_END_OF_ELEMENT},
       {"an undeclared entity", group("1", "&foo;"), lmx::ELMX_BAD_END_OF_ELEMENT},
       {"an undeclared entity in an unknown child", group("1", "<a>&foo;</a>"), lmx::ELMX_BADLY_FORMED},
       {"a lone ampersand", group("1", good + "& "), lmx::ELMX_BAD_END_OF_ELEMENT},
       {"a document type in content", group("1", "<!DOCTYPE x>"), lmx::ELMX_BAD_DTD},
       {"a declaration in content", group("1", "<?xml version='1.0'?>"), lmx::ELMX_BAD_XML_DECL},
       {"a character that starts no markup", group("1", "<1/>"), lmx::ELMX_NOT_WELL_FORMED},
       {"an end tag with a blank", "<LGP A='LGP1' B='1'></LGP \n>", 0},
       {"an end tag with an attribute", "<LGP A='LGP1' B='1'></LGP x=''>", lmx::ELMX_NOT_WELL_FORMED},
       {"a comment that ends in three hyphens", group("1", "<!-- x --->"), 0}});
}

TEST(Faults, InNumbersHaveTheirCode) {
  expect_faults({{"above the range", attached("ABCDEFGH.XML", 255), lmx::ELMX_VALUE_EXCEEDS_MAX},
                 {"nothing", "<AFE A='ABCDEFGH.XML' B='1' C='' D=''/>", lmx::ELMX_VALUE_BAD_FORMAT},
                 {"a plus", "<AFE A='ABCDEFGH.XML' B='1' C='' D='+5'/>", 0},
                 {"leading zeros", "<AFE A='ABCDEFGH.XML' B='1' C='' D='0005'/>", 0},
                 {"minus nothing", "<AFE A='ABCDEFGH.XML' B='1' C='' D='5' F='-0'/>", 0},
                 {"blanks around", "<AFE A='ABCDEFGH.XML' B='1' C='' D=' 5 '/>", 0}});
}

TEST(Faults, InThePrologHaveTheirCode) {
  expect_faults(
      {{"a declaration", "<?xml version='1.0' encoding='UTF-8' standalone='yes'?>\n" + good, 0},
       {"version 1.1", "<?xml version=\"1.1\"?>" + good, 0},
       {"no version", "<?xml encoding='UTF-8'?>" + good, lmx::ELMX_BAD_XML_DECL},
       {"an empty declaration", "<?xml ?>" + good, lmx::ELMX_BAD_XML_DECL},
       {"another version", "<?xml version='2.0'?>" + good, lmx::ELMX_BAD_XML_VERSION},
       {"an unknown encoding", "<?xml version='1.0' encoding='KOI8-R'?>" + good, lmx::ELMX_BAD_CHAR_ENCODING},
       {"an encoding the bytes do not have", "<?xml version='1.0' encoding='UTF-16'?>" + good,
        lmx::ELMX_ENCODING_MISMATCH},
       {"damage behind the version", "<?xml version='1.0' x?>" + good, lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
       {"an encoding without a quote", "<?xml version='1.0' encoding=UTF-8?>" + good,
        lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
       {"no question mark at the end", "<?xml version='1.0'>" + good, lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
       {"a second declaration", "<?xml version='1.0'?><?xml version='1.0'?>" + good, lmx::ELMX_BAD_XML_DECL},
       {"a declaration behind a comment", "<!-- c -->\n<?xml version='1.0'?>" + good, 0},
       {"a second document type", "<!DOCTYPE x><!DOCTYPE x>" + good, lmx::ELMX_BAD_DTD},
       {"an instruction whose name begins otherwise swallows the document", "<?x?>" + good,
        lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
       {"up to the end of the next one", "<?x?><?y z?>" + good, 0},
       {"a malformed bang", "<!x>" + good, lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
       {"and one behind a warning", "<!-- x ---><!x>" + good, lmx::ELMX_BAD_COMMENT}});
}

TEST(Faults, OfWholeDocumentsHaveTheirCode) {
  expect_faults({{"nothing", "", lmx::ELMX_UNEXPECTED_EOM},
                 {"blanks", " \r\n\t\n", lmx::ELMX_UNEXPECTED_EOM},
                 {"a comment", "<!-- c -->", lmx::ELMX_UNEXPECTED_EOM},
                 {"an instruction", "<?p i?>", lmx::ELMX_UNEXPECTED_EOM},
                 {"a declaration", "<?xml version='1.0'?>\n", lmx::ELMX_UNEXPECTED_EOM},
                 {"a document type", "<!DOCTYPE x>", lmx::ELMX_UNEXPECTED_EOM},
                 {"a byte order mark", "\xEF\xBB\xBF", lmx::ELMX_UNEXPECTED_EOM},
                 {"an unknown element", "<Foo/>", lmx::ELMX_UNEXPECTED_EOM},
                 {"an unknown element with content", "<Foo>x<LNK/></Foo>\n", lmx::ELMX_UNEXPECTED_EOM},
                 {"an unclosed unknown element", "<Foo>", lmx::ELMX_BADLY_FORMED},
                 {"mismatched tags in one", "<Foo><a></b></Foo>", lmx::ELMX_BADLY_FORMED},
                 {"an undeclared entity in one", "<Foo>&nbsp;</Foo>", lmx::ELMX_BADLY_FORMED},
                 {"an unknown element before a good one", "<Foo/>" + good, 0},
                 {"an element before a bad one", good + "<LNK/>", 0},
                 {"an element before anything", good + "</x>text &foo; <<", 0},
                 {"a first byte that is no markup", "hello" + good, lmx::ELMX_BAD_CHAR_ENCODING},
                 {"text behind a blank", " hello" + good, lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
                 {"an end tag", "</x>", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
                 {"a default namespace", "<LNK xmlns='u' A='TSK1' B='v'/>", lmx::ELMX_UNEXPECTED_EOM},
                 {"a prefix", "<p:LNK xmlns:p='u' A='TSK1' B='v'/>", lmx::ELMX_UNEXPECTED_EOM},
                 {"another case", "<lnk A='TSK1' B='v'/>", lmx::ELMX_UNEXPECTED_EOM},
                 {"declared prefixes that are not used", "<LNK xmlns:p='u' A='TSK1' B='v'/>", 0}});
}

const std::string cut = "<LGP A='LGP1' B='1'>";

TEST(Faults, OfCutDocumentsHaveTheirCode) {
  expect_faults(
      {{"behind <", "<", lmx::ELMX_NOT_WELL_FORMED},
       {"in the root's name", "<LN", lmx::ELMX_NOT_WELL_FORMED},
       {"behind the root's name", "<LNK", lmx::ELMX_NOT_WELL_FORMED},
       {"behind a blank", "<LNK ", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
       {"behind an attribute's name", "<LNK A", lmx::ELMX_UNEXPECTED_EOM},
       {"behind a name and a blank", "<LNK A ", lmx::ELMX_UNEXPECTED_EOM},
       {"behind =", "<LNK A=", lmx::ELMX_NOT_WELL_FORMED},
       {"in a value", "<LNK A='TS", lmx::ELMX_NOT_WELL_FORMED},
       {"behind an attribute", "<LNK A='TSK1'", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
       {"behind an attribute and a blank", "<LNK A='TSK1' ", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
       {"behind the slash", "<LNK A='TSK1' B='v'/", lmx::ELMX_NOT_WELL_FORMED},
       {"behind the root's tag", cut, lmx::ELMX_UNEXPECTED_EOM},
       {"behind a child", cut + good + " ", lmx::ELMX_UNEXPECTED_EOM},
       {"behind a child's <", cut + "<", lmx::ELMX_NOT_WELL_FORMED},
       {"in a child's name", cut + "<LN", lmx::ELMX_NOT_WELL_FORMED},
       {"behind a child's name and a blank", cut + "<LNK ", lmx::ELMX_BAD_END_OF_ELEMENT},
       {"behind a child's attribute's name", cut + "<LNK A", lmx::ELMX_UNEXPECTED_EOM},
       {"behind a child's =", cut + "<LNK A=", lmx::ELMX_NOT_WELL_FORMED},
       {"in a child's value", cut + "<LNK A='", lmx::ELMX_NOT_WELL_FORMED},
       {"behind a child's attribute", cut + "<LNK A='TSK1'", lmx::ELMX_BAD_END_OF_ELEMENT},
       {"behind a second child's attribute", cut + good + "<LNK A='TSK1'", lmx::ELMX_BAD_END_OF_ELEMENT},
       {"in an unknown child", cut + "<Foo><Bar/>", lmx::ELMX_BADLY_FORMED},
       {"in an unknown child's name", cut + "<Foo", lmx::ELMX_NOT_WELL_FORMED},
       {"in an unknown child's child's name", cut + "<Foo><Ba", lmx::ELMX_BADLY_FORMED},
       {"in a comment", cut + "<!-- x", lmx::ELMX_BAD_END_OF_ELEMENT},
       {"in a comment before the root", "<!-- x -", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
       {"in an instruction", cut + "<?p x", lmx::ELMX_BAD_END_OF_ELEMENT},
       {"in an instruction before the root", "<?p x", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
       {"behind </", cut + "</", lmx::ELMX_BAD_END_OF_ELEMENT},
       {"in the end tag's name", cut + "</LG", lmx::ELMX_NOT_WELL_FORMED},
       {"behind the end tag's name", cut + "</LGP", lmx::ELMX_NOT_WELL_FORMED},
       {"in an attribute-only element", "<LNK A='TSK1' B='v'>", lmx::ELMX_UNEXPECTED_EOM}});
}

TEST(Truncation, OfADocumentAtAnyByteIsAFailure) {
  const std::string whole =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<!-- all of it -->\n<?p i?>\n<ISO11783_TaskData\n" +
      attributes + ">\n" + "  <P917_Metadata Version='1' CloudJob='true'/>\n" + attached("ABCDEFGH.XML", 2) +
      "<AFE A='ABCDEFGH.XML' B='1' C='a &lt; &#228; \u00e4' D='2'>\n<!-- c --></AFE>\n" +
      "<Foo a='1'>text<Bar><![CDATA[ ]]></Bar></Foo>\n" +
      "<TCC A='A00086000C8000FF' B='' C='3' D='0' E='0' F='0' G='0'/>\n</ISO11783_TaskData>";
  const std::string links =
      link_list(group("1", link("CTR1", "a") + "\n" + link("CTR2", "b")) + "\n" + group("2", ""));
  for (std::string const& bytes : {whole, links}) {
    ASSERT_EQ(0, read(bytes).code);
    for (std::size_t size = 0; size != bytes.size(); ++size) {
      const Outcome outcome = read(bytes.substr(0, size));
      EXPECT_NE(0, outcome.code) << bytes.substr(0, size);
      EXPECT_GE(outcome.line, 1);
      if (outcome.code == 0) break;
    }
  }
}

struct Line {
  char const* caption;
  std::string bytes;  // with LF for each line end
  int code;
  int lf, cr;  // CR LF counts like LF
};

std::string with_line_ends(std::string const& bytes, char const* line_end) {
  std::string text;
  for (const char c : bytes) text += c == '\n' ? std::string(line_end) : std::string(1, c);
  return text;
}

// A name that ends a line counts that line's end twice, unless it is a lone CR. The attributes of a tag are
// looked at once the tag has ended, and then for their faults that line is given.
void expect_lines(std::vector<Line> const& rows) {
  for (auto const& [caption, bytes, code, lf, cr] : rows) {
    const struct {
      char const* name;
      char const* bytes;
      int line;
    } line_ends[] = {{"LF", "\n", lf}, {"CR LF", "\r\n", lf}, {"CR", "\r", cr}};
    for (auto const& line_end : line_ends) {
      const Outcome outcome = read(with_line_ends(bytes, line_end.bytes));
      EXPECT_EQ(code, outcome.code) << caption << " with " << line_end.name;
      EXPECT_EQ(line_end.line, outcome.line) << caption << " with " << line_end.name;
    }
  }
}

TEST(Lines, AreWhereTheReaderStands) {
  expect_lines(
      {{"a name at its line's end", "<LGP\n  A='LGP1'/>\n", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 3, 2},
       {"an empty line more", "<LGP\n\nA='LGP1'/>\n", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 4, 3},
       {"a child's name at its line's end",
        "<ISO11783LinkList" + attributes + ">\n  <LGP\n    A='LGP1' B='9'/>\n</ISO11783LinkList>\n",
        lmx::ELMX_VALUE_NOT_ENUMERATED, 4, 3},
       {"attributes on lines of their own", "<AFE A='ABCDEFGH.XML'\n     B='1'\n     D='12a'\n     C=''/>\n",
        lmx::ELMX_VALUE_BAD_FORMAT, 4, 4},
       {"an unknown sibling's name", "<LGP A='LGP1' B='1'>\n<Foo\n/>\n<LNK A='x' B='v'/>\n</LGP>\n",
        lmx::ELMX_LENGTH_TOO_SHORT, 5, 4},
       {"three names deep",
        "<ISO11783LinkList\n" + attributes.substr(0, attributes.find(" Data")) +
            "\nDataTransferOrigin='1'>\n<LGP\nA='LGP1' B='1'>\n<LNK\nA='TSK1'\nB='v' "
            "C='more than thirty-two characters on'/>\n</LGP>\n</ISO11783LinkList>\n",
        lmx::ELMX_LENGTH_TOO_LONG, 11, 8},
       {"another end tag", "<LGP A='LGP1' B='1'>\n</LGX>\n", lmx::ELMX_BAD_END_OF_ELEMENT, 2, 2},
       {"cut off", "<LGP A='LGP1' B='1'>\n\n", lmx::ELMX_UNEXPECTED_EOM, 3, 3},
       {"line ends behind an attribute", "<LGP A='LGP1'\n\n\n/>\n", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 4,
        4},
       {"a line end in a value", "<LNK B='a\nb'\nC='x' A='CTR'/>\n", lmx::ELMX_LENGTH_TOO_SHORT, 3, 3},
       {"an attribute's name at its line's end", "<LGP A\n='LGP1'/>", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING,
        3, 2},
       {"a line end behind =", "<LGP A=\n'LGP1' B=1/>", lmx::ELMX_NOT_WELL_FORMED, 2, 2},
       {"comment and instruction", "<LGP A='LGP1' B='1'>\n<!-- a\nb -->\n<?p q\nr?>\n<LNK A='x'/>\n</LGP>\n",
        lmx::ELMX_LENGTH_TOO_SHORT, 6, 6},
       {"an unknown root", "\n\n<Foo/>\n\n", lmx::ELMX_UNEXPECTED_EOM, 5, 5},
       {"cut in a value", "<LGP A='LGP1' B='1", lmx::ELMX_NOT_WELL_FORMED, 1, 1},
       {"cut behind an attribute", "<LGP A='LGP1' B='1'\n", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, 2, 2},
       {"an empty file", "", lmx::ELMX_UNEXPECTED_EOM, 1, 1},
       {"a wrong first byte", "hello\n" + good, lmx::ELMX_BAD_CHAR_ENCODING, 1, 1},
       {"an end tag first", "</x>\n", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, 1, 1}});
}

TEST(Lines, OfTasksAreWhereTheReaderStands) {
  expect_lines(
      {{"a task's name", "<TSK\n  A='TSK1'/>\n", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 3, 2},
       {"an empty line more", "<TSK\n\nA='TSK1'/>\n", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 4, 3},
       {"a time's type", "<TSK A='TSK1' G='1'>\n  <TIM\n    A='2024-01-01T00:00:00' D='3'/>\n</TSK>\n",
        lmx::ELMX_VALUE_NOT_ENUMERATED, 4, 3},
       {"a field's area", "<PFD A='PFD1'\n     C='North'\n     D='12a'\n     E='CTR1'/>\n",
        lmx::ELMX_VALUE_BAD_FORMAT, 4, 4},
       {"behind an unknown sibling", "<TSK A='TSK1' G='1'>\n<Foo\n/>\n<TIM A='x' D='1'/>\n</TSK>\n",
        lmx::ELMX_VALUE_BAD_FORMAT, 5, 4},
       {"three levels deep",
        "<TSK\nA='TSK1'\nG='1'>\n<TZN\nA='1'>\n<PDV\nA='0001'\nB='1x'/>\n</TZN>\n</TSK>\n",
        lmx::ELMX_VALUE_BAD_FORMAT, 11, 8},
       {"another end tag", "<TSK A='TSK1' G='1'>\n</TSX>\n", lmx::ELMX_BAD_END_OF_ELEMENT, 2, 2},
       {"a customer's identifier", "<TSK A='TSK1'\nG='1' B='a\nb' C='CTR'/>\n", lmx::ELMX_LENGTH_TOO_SHORT, 3,
        3},
       {"behind comment and instruction",
        "<TSK A='TSK1' G='1'>\n<!-- a\nb -->\n<?p q\nr?>\n<TIM A='x'/>\n</TSK>\n", lmx::ELMX_VALUE_BAD_FORMAT,
        6, 6},
       {"an empty legend", "<CLD A='CLD1'>\n\n</CLD>", lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT, 3, 3},
       {"a legend without a range", "<CLD A='CLD1'>\n<Foo/>\n</CLD>", lmx::ELMX_MANDATORY_ELEMENT_MISSING, 3,
        3}});
}

const std::string header_rest =
    "\n    VersionMinor='3'\n    ManagementSoftwareManufacturer='m'\n    ManagementSoftwareVersion='1'\n"
    "    DataTransferOrigin='1'>\n  <AFE A='ABCDEFGH.XML'/>\n</ISO11783_TaskData>\n";

TEST(Lines, OfAHeaderAreTrueWithAnAttributeBesideItsName) {
  expect_lines(
      {{"its name alone on a line",
        "<?xml version='1.0' encoding='UTF-8'?>\n<ISO11783_TaskData\n    VersionMajor='4'" + header_rest,
        lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 9, 8},
       {"its first attribute beside its name",
        "<?xml version='1.0' encoding='UTF-8'?>\n<ISO11783_TaskData VersionMajor='4'" + header_rest,
        lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 7, 7}});
}

}  // namespace
