// Reads one document with so many of a thing, or a transfer set with its views, for scripts/growth.sh, which
// counts the instructions that `measured_read` and `measured_set` take.
//
//   isoxml_growth THING COUNT

#include <stdlib.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "isoxmllib/isoxmllib.h"
#include "transfer/IsoXmlParser.h"
#include "transfer/reader/xmlReader.h"

namespace {

// A document of `before`, COUNT times `each` with every "#" in it replaced by its number, and `behind`. One
// that is the main document of a transfer set may name the file TSK00001, which has COUNT tasks.
struct Thing {
  char const *name, *before, *each, *behind;
};

constexpr Thing things[] = {
    {"attributes", "<TSK A='TSK1' G='1'", " a#='v'", "/>"},
    {"known attributes", "<TSK A='TSK1' G='1'><TZN A='1'>", "<PDV A='0001' B='#'/>", "</TZN></TSK>"},
    {"namespaces on a tag", "<TSK A='TSK1' G='1'", " xmlns:p#='u#'", "/>"},
    {"namespaces on siblings", "<TSK A='TSK1' G='1'>", "<TZN xmlns:p#='u#' A='1'/>", "</TSK>"},
    {"nested scopes", "<TSK A='TSK1' G='1' xmlns:q='u'><TZN A='1'>",
     "<PDV A='0001' B='1' xmlns:p#='u' q:x=''>", ""},
    {"nested scopes, no default", "<TSK A='TSK1' G='1'><TZN A='1'>",
     "<PDV A='0001' B='1' xmlns:p#='u'><Foo/>", ""},
    {"entities", "<!DOCTYPE x [", "<!ENTITY e# 'v#'>", "]><TSK A='TSK1' G='1' B='&e1;'/>"},
    {"parameter entities", "<!DOCTYPE x [<!ENTITY % p 'v'>", "<!ENTITY e# '%p;'>", "]><TSK A='TSK1' G='1'/>"},
    {"references", "<!DOCTYPE x [<!ENTITY e 'v'>]><P917_comment>", "&e;", "</P917_comment>"},
    {"siblings", "<TSK A='TSK1' G='1'>", "<TZN A='1'/>", "</TSK>"},
    {"siblings by turns", "<TSK A='TSK1' G='1'>", "<TZN A='1'/><TIM A='2024-02-09T02:03:04' D='1'/>",
     "</TSK>"},
    {"skipped siblings", "<TSK A='TSK1' G='1'>", "<Foo a='#'>t</Foo>", "</TSK>"},
    {"skipped content", "<TSK A='TSK1' G='1'><Foo>", "<Bar a='#'>t</Bar>", "</Foo></TSK>"},
    {"skipped levels", "<TSK A='TSK1' G='1'>", "<Foo><Bar/>", ""},
    {"text", "<P917_comment>", "some text, and &lt; ", "</P917_comment>"},
    {"comments", "<TSK A='TSK1' G='1'>", "<!-- comment -->", "</TSK>"},
};

constexpr char set_before[] =
    "<ISO11783_TaskData VersionMajor='4' VersionMinor='3' ManagementSoftwareManufacturer='m' "
    "ManagementSoftwareVersion='1' DataTransferOrigin='1'>";
constexpr char set_behind[] = "</ISO11783_TaskData>";

constexpr Thing things_of_sets[] = {
    {"centres of a pivot", "<PFD A='PFD1' C='f' D='1'><GGP A='GGP1'><GPN A='GPN1' C='4'><LSG A='5'>",
     "<PNT A='8' C='1' D='2'/>", "</LSG></GPN></GGP></PFD>"},
    {"tasks with a map", "", "<TSK A='TSK#' G='1'><TZN A='1'/></TSK>", ""},
    {"references to one file", "", "<XFR A='TSK00001' B='1'/>", ""},
};

std::string document_with(Thing const& thing, long count) {
  std::string document = thing.before;
  for (long i = 0; i != count; ++i) {
    for (char const* p = thing.each; *p != '\0'; ++p) {
      if (*p == '#') {
        document += std::to_string(i);
      } else {
        document += *p;
      }
    }
  }
  return document + thing.behind;
}

// A borrowed text, shown whole.
class Shown : public lmx::c_read {
 public:
  explicit Shown(std::string_view text) : m_text(text) { rewind(); }
  int get() override { return mp_next == mp_end ? -1 : *mp_next++; }
  int rewind() override {
    mp_next = reinterpret_cast<unsigned char const*>(m_text.data());
    mp_end = mp_next + m_text.size();
    return 0;
  }

 private:
  const std::string_view m_text;
};

// A directory of its own, gone at the end.
class SetDirectory {
 public:
  SetDirectory() {
    std::string name = (std::filesystem::temp_directory_path() / "isoxml-growth-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    m_path = name;
  }
  ~SetDirectory() { std::filesystem::remove_all(m_path); }
  SetDirectory(SetDirectory const&) = delete;
  SetDirectory& operator=(SetDirectory const&) = delete;

  void write(char const* name, std::string const& document) const {
    std::ofstream(m_path / name, std::ios::binary) << document;
  }
  std::string path() const { return m_path.string(); }

 private:
  std::filesystem::path m_path;
};

constexpr Thing external_tasks = {"", "<XFC>", "<TSK A='TSK#' G='1'/>", "</XFC>"};

}  // namespace

// Named for the counter, so not inlined.
extern "C" __attribute__((noinline)) int measured_read(char const* begin, std::size_t size);
extern "C" __attribute__((noinline)) int measured_set(char const* directory);

int measured_read(char const* begin, std::size_t size) {
  Shown source({begin, size});
  lmx::xmlReader reader(source);
  Root root;
  return root.unmarshal(reader);
}

int measured_set(char const* directory) {
  IsoXmlParser set(directory, "TASKDATA");
  set.getFields();
  set.getISORxMaps();
  return set.getDocuments().front().error;
}

int main(int count, char** arguments) {
  if (count == 2 && std::string_view(arguments[1]) == "--list") {
    for (Thing const& thing : things) std::printf("%s\n", thing.name);
    for (Thing const& thing : things_of_sets) std::printf("%s\n", thing.name);
    return 0;
  }
  for (Thing const& thing : things) {
    if (count != 3 || arguments[1] != std::string_view(thing.name)) continue;
    const std::string document = document_with(thing, std::strtol(arguments[2], nullptr, 10));
    std::printf("code %d\n", measured_read(document.data(), document.size()));
    return 0;
  }
  for (Thing const& thing : things_of_sets) {
    if (count != 3 || arguments[1] != std::string_view(thing.name)) continue;
    const long number = std::strtol(arguments[2], nullptr, 10);
    const SetDirectory directory;
    directory.write("TASKDATA.XML", set_before + document_with(thing, number) + set_behind);
    directory.write("TSK00001.XML", document_with(external_tasks, number));
    std::printf("code %d\n", measured_set(directory.path().c_str()));
    return 0;
  }
  std::fprintf(stderr, "usage: isoxml_growth --list | THING COUNT\n");
  return 1;
}
