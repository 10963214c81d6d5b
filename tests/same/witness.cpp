// Tells all that a host of the library can see, as lines of text, so that two versions of it can be compared:
// see scripts/same.sh. It is compiled against the headers of either, so it and what it includes use nothing
// but what both have.
//
//   witness DOCUMENTS COUNT WORK         a line for each document of the directory DOCUMENTS, for COUNT
//   mutations of
//                                        them, and for the validators; WORK is a directory to write sets into
//   witness DOCUMENTS COUNT WORK NUMBER  all that was seen of the document with that number

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "../../fuzz/support.h"  // beside this file, whatever headers of the library are compiled against
#include "GenLibrarySupportFiles/lmxtypes.h"
#include "support/views_text.h"

namespace {

namespace fs = std::filesystem;

std::uint64_t hash_of(std::string const& text) {
  std::uint64_t hash = 14695981039346656037u;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211u;
  return hash;
}

// ---- Documents ----

std::vector<std::string> corpus(fs::path const& directory) {
  constexpr std::uintmax_t most_bytes = 20000;
  std::vector<std::string> documents;
  for (auto const& entry : fs::recursive_directory_iterator(directory)) {
    if (!entry.is_regular_file() || entry.file_size() > most_bytes) continue;
    std::ifstream in(entry.path(), std::ios::binary);
    documents.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  std::sort(documents.begin(), documents.end());  // a directory has no order of its own
  return documents;
}

class Mutations {
 public:
  explicit Mutations(std::vector<std::string> const& documents) : m_documents(documents) {}

  std::string next() {
    std::string document = m_documents[below(m_documents.size())];
    if (document.size() > 3000) {  // a part of it, so that most of the time goes to what differs
      std::size_t const begin = document.find('<', below(document.size() - 2000));
      document = "<TSK A=\"TSK1\" G=\"1\">" + document.substr(std::min(begin, document.size()), 2000);
    }
    for (std::size_t faults = 1 + below(4); faults != 0; --faults) {
      std::size_t const at = below(document.size() + 1);
      switch (below(4)) {
        case 0: document.insert(at, pieces[below(std::size(pieces))]); break;
        case 1: document.erase(at, 1 + below(6)); break;
        case 2:
          if (at < document.size()) document[at] = static_cast<char>(below(256));
          break;
        default: {
          std::string const& other = m_documents[below(m_documents.size())];
          document.insert(at, other.substr(below(other.size() + 1), below(80)));
        }
      }
    }
    return document;
  }

 private:
  static constexpr char const* pieces[] = {"<TSK",
                                           "<TZN",
                                           "<PNT",
                                           "<PLN",
                                           "<LSG",
                                           "<Foo",
                                           "</TSK>",
                                           "</",
                                           "<",
                                           ">",
                                           "/>",
                                           "/",
                                           " ",
                                           "\n",
                                           "\r\n",
                                           "\t",
                                           "\x80",
                                           "\xC3\xA9",
                                           "=",
                                           "\"",
                                           "'",
                                           " A=\"1\"",
                                           " B='x'",
                                           " C=\"\"",
                                           " D=\"-10.5\"",
                                           " G=\"1\"",
                                           " x=\"&lt;\"",
                                           "&#65",
                                           "&#",
                                           "&e;",
                                           "&foo;",
                                           "<!-- c -->",
                                           "<?p i?>",
                                           "<![CDATA[d]]>",
                                           " xmlns=\"\"",
                                           " xmlns:p=\"u\""};

  std::size_t below(std::size_t limit) { return m_random() % limit; }

  std::vector<std::string> const& m_documents;
  std::mt19937_64 m_random{20011783};
};

// ---- What is seen ----

// Without the lines of the program, which any change moves.
std::string without_program_lines(std::string text) {
  constexpr char const start[] = "Program line: ";
  for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at))
    text.erase(at, text.find('\n', at) - at);
  return text;
}

constexpr std::size_t windows[] = {0, 1, 2, 3, 5, 16, 64, ~std::size_t{0}};

std::string seen_of_readings(std::string const& document) {
  std::string all;
  for (const fuzz::Host host : {fuzz::Host::Strict, fuzz::Host::Tolerant}) {
    std::string first;
    for (const std::size_t window : windows) {
      Root root;
      std::string const seen =
          fuzz::read(root, document, host, std::min(window, std::max<std::size_t>(document.size(), 1))).seen;
      if (window == windows[0]) {
        all += first = seen;
      } else if (seen != first) {
        all += "\n==== in windows of " + std::to_string(window) + '\n' + seen;
      }
    }
    all += "\n====\n";
  }
  return without_program_lines(std::move(all));
}

std::string seen_of_set(std::string const& document, fs::path const& directory) {
  std::ofstream(directory / "TASKDATA.XML", std::ios::binary | std::ios::trunc) << document;
  IsoXmlParser parser(directory.string(), "TASKDATA.XML");
  return without_program_lines(ViewsText(parser).text());
}

// ---- Validators ----

// Keeps the codes; each is tolerated, so that a validator goes through all of its tests.
class CodesReader : public lmx::c_xml_reader {
 public:
  using c_xml_reader::c_xml_reader;
  lmx::elmx_error handle_error(lmx::elmx_error code, std::string const&, char const*, int) override {
    codes += ' ' + std::to_string(code);
    return lmx::ELMX_OK;
  }

  std::string codes;
};

template <class T>
lmx::elmx_error check(lmx::elmx_error (*validator)(lmx::c_xml_reader&, T const&), lmx::c_xml_reader& reader,
                      std::string const& text) {
  T value{};
  lmx::v_to_o(value, text);
  return validator(reader, value);
}

using Check = lmx::elmx_error (*)(lmx::c_xml_reader& reader, std::string const& text);
constexpr std::pair<char const*, Check> validators[] = {
#define VALIDATOR(name) \
  {#name, [](lmx::c_xml_reader& reader, std::string const& text) { return check(&name, reader, text); }},
#include "validators.inc"
#undef VALIDATOR
};

std::string some_value(std::mt19937_64& random) {
  static constexpr char const* starts[] = {"",       "-",    "+",   "0",        "TSK", "PFD-",  "DVC",
                                           "2024-0", "P",    "1.",  ".5",       "90.", "-180.", "4294",
                                           "2147",   "00AF", "FF",  " ",        "NaN", "true",  "INF",
                                           "1e",     "BSN",  "LNK", "ABCDEFGH", "{",   "CCT-"};
  static constexpr char const letters[] =
      "0123456789012345678901234567890123456789.-+:TZ ABCDEFabcdefXMLx_\t\xC3\xA9\n";
  std::string value = starts[random() % std::size(starts)];
  for (std::size_t length = random() % (random() % 8 == 0 ? 160 : 24); length != 0; --length)
    value += letters[random() % (sizeof letters - 1)];
  return value;
}

void tell_validators(int count) {
  std::vector<std::uint64_t> hashes(std::size(validators), 0);
  std::mt19937_64 random(11783);
  lmx::c_read_file nothing("");
  CodesReader reader(nothing);
  for (int i = 0; i != count; ++i) {
    std::string const text = some_value(random);
    for (std::size_t v = 0; v != std::size(validators); ++v) {
      reader.codes.clear();
      const int code = validators[v].second(reader, text);
      hashes[v] = hash_of(std::to_string(hashes[v]) + ' ' + std::to_string(code) + reader.codes);
    }
  }
  for (std::size_t v = 0; v != std::size(validators); ++v)
    std::printf("%s %016llx\n", validators[v].first, static_cast<unsigned long long>(hashes[v]));
}

}  // namespace

int main(int argc, char** arguments) {
  if (argc != 4 && argc != 5) {
    std::fprintf(stderr, "usage: witness DOCUMENTS COUNT WORK [NUMBER]\n");
    return 2;
  }
  std::vector<std::string> const documents = corpus(arguments[1]);
  std::size_t const count = documents.size() + std::strtoul(arguments[2], nullptr, 10);
  fs::path const work = arguments[3];
  std::size_t const wanted = argc == 5 ? std::strtoul(arguments[4], nullptr, 10) : count;
  Mutations mutations(documents);
  for (std::size_t i = 0; i != count; ++i) {
    std::string const document = i < documents.size() ? documents[i] : mutations.next();
    if (argc == 5 && i != wanted) continue;
    std::string const readings = seen_of_readings(document), set = seen_of_set(document, work);
    if (argc == 5) {
      std::printf("%s\n==== read as\n%s==== shown as\n%s", document.c_str(), readings.c_str(), set.c_str());
    } else {
      std::printf("%zu %016llx %016llx\n", i, static_cast<unsigned long long>(hash_of(readings)),
                  static_cast<unsigned long long>(hash_of(set)));
    }
  }
  if (argc == 4) tell_validators(100000);
}
