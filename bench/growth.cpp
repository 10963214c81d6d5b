// Reads one document with so many of a thing, for scripts/growth.sh, which counts the instructions that
// `measured_read` takes.
//
//   isoxml_growth THING COUNT

#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>

#include "isoxmllib/isoxmllib.h"
#include "transfer/reader/xmlReader.h"

namespace {

// A document of `before`, COUNT times `each` with every "#" in it replaced by its number, and `behind`.
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

}  // namespace

// Named for the counter, so not inlined.
extern "C" __attribute__((noinline)) int measured_read(char const* begin, std::size_t size);

int measured_read(char const* begin, std::size_t size) {
  Shown source({begin, size});
  lmx::xmlReader reader(source);
  Root root;
  return root.unmarshal(reader);
}

int main(int count, char** arguments) {
  if (count == 2 && std::string_view(arguments[1]) == "--list") {
    for (Thing const& thing : things) std::printf("%s\n", thing.name);
    return 0;
  }
  for (Thing const& thing : things) {
    if (count != 3 || arguments[1] != std::string_view(thing.name)) continue;
    const std::string document = document_with(thing, std::strtol(arguments[2], nullptr, 10));
    std::printf("code %d\n", measured_read(document.data(), document.size()));
    return 0;
  }
  std::fprintf(stderr, "usage: isoxml_growth --list | THING COUNT\n");
  return 1;
}
