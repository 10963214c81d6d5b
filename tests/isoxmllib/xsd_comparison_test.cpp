// The reader's verdict on thousands of documents against that of a schema validator on the generated schema.
// Where the two differ is a list, and they differ on every document of a kind that is on it.

#include <gtest/gtest.h>
#include <libxml/xmlschemas.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "isoxmllib/isoxmllib.h"
#include "transfer/reader/xmlReader.h"

namespace {

enum class Verdict { Good, Refused };

struct Difference {
  char const* kind;
  Verdict reader, validator;
  char const* why;
};

constexpr Difference differences[] = {
    {"unknown_attribute", Verdict::Good, Verdict::Refused, "extensions are skipped"},
    {"unknown_element", Verdict::Good, Verdict::Refused, "extensions are skipped"},
    {"out_of_place", Verdict::Good, Verdict::Refused, "children out of place are dropped"},
    {"calendar", Verdict::Good, Verdict::Refused, "times are checked by their shape"},
    {"minus_zero", Verdict::Refused, Verdict::Good, "a negative zero is less than zero"},
};

void keep_silent(void*, char const*, ...) {}

class Validator {
 public:
  Validator() {
    std::unique_ptr<xmlSchemaParserCtxt, decltype(&xmlSchemaFreeParserCtxt)> parser(
        xmlSchemaNewParserCtxt(ISOXML_XSD), &xmlSchemaFreeParserCtxt);
    m_schema.reset(xmlSchemaParse(parser.get()));
  }
  bool is_ready() const { return m_schema != nullptr; }
  Verdict operator()(std::string const& path) const {
    std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
        xmlReadFile(path.c_str(), nullptr, XML_PARSE_NOERROR | XML_PARSE_NOWARNING), &xmlFreeDoc);
    if (document == nullptr) return Verdict::Refused;
    std::unique_ptr<xmlSchemaValidCtxt, decltype(&xmlSchemaFreeValidCtxt)> context(
        xmlSchemaNewValidCtxt(m_schema.get()), &xmlSchemaFreeValidCtxt);
    xmlSchemaSetValidErrors(context.get(), &keep_silent, &keep_silent, nullptr);
    return xmlSchemaValidateDoc(context.get(), document.get()) == 0 ? Verdict::Good : Verdict::Refused;
  }

 private:
  std::unique_ptr<xmlSchema, decltype(&xmlSchemaFree)> m_schema{nullptr, &xmlSchemaFree};
};

struct Reading {
  Verdict verdict;
  std::string message;
};

Reading read(std::string const& path) {
  Root root;
  lmx::xmlReader reader(path.c_str());
  const bool good = root.unmarshal(reader) == lmx::ELMX_OK;
  return {good ? Verdict::Good : Verdict::Refused, reader.get_error_message()};
}

std::string kind_of(std::filesystem::path const& path) {
  const std::string stem = path.stem().string();
  return stem.substr(stem.find('-') + 1);
}

TEST(Schema, GivesTheSameVerdictsAsTheReaderSaveForTheListedDifferences) {
  const Validator validate;
  ASSERT_TRUE(validate.is_ready()) << "the schema does not compile";
  std::map<std::string, Difference> listed;
  for (Difference const& row : differences) listed.emplace(row.kind, row);
  std::map<std::string, int> seen;
  int documents = 0;
  for (auto const& entry : std::filesystem::directory_iterator(ISOXML_DOCUMENTS)) {
    const std::string kind = kind_of(entry.path());
    const Reading reading = read(entry.path().string());
    const Verdict validator = validate(entry.path().string());
    ++documents;
    ++seen[kind];
    const auto difference = listed.find(kind);
    if (difference == listed.end()) {
      EXPECT_EQ(validator, reading.verdict) << entry.path() << "\n" << reading.message;
      EXPECT_EQ(kind == "valid", reading.verdict == Verdict::Good) << entry.path();
    } else {
      EXPECT_EQ(difference->second.reader, reading.verdict) << entry.path() << "\n" << reading.message;
      EXPECT_EQ(difference->second.validator, validator) << entry.path();
    }
  }
  EXPECT_GE(documents, 2000);
  for (Difference const& row : differences) EXPECT_GT(seen[row.kind], 0) << row.kind << ": " << row.why;
}

}  // namespace
