// Every attribute of every element, one at a time: read, repeated, left out, and refused for each way in
// which its text can break its rule; and the codes of those with a list. The rows come from the description
// of the format.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxtypes.h"
#include "isoxmllib/isoxmllib.h"
#include "support/temp_dir.h"
#include "transfer/reader/xmlReader.h"

namespace {

std::string shown(std::string const& value) { return value; }
std::string shown(unsigned int value) { return std::to_string(value); }
std::string shown(int value) { return std::to_string(value); }
std::string shown(bool value) { return value ? "true" : "false"; }
std::string shown(double value) { return lmx::c_decimal(value).get_as_string(); }
std::string shown(lmx::c_binary const& value) { return value.get_as_hex_string(); }
std::string shown(lmx::c_datetime const& value) { return value.get_as_string(); }
std::string shown(velmo::lmx::high_precision_c_decimal const& value) { return value.get_as_string(); }

struct Fault {
  char const* what;
  char const* document;
  lmx::elmx_error code;
};

/// An enumerated attribute of a new object after a call: whether the call took the code, and what is there.
struct Coded {
  bool taken;
  bool is_set;
  elmx_enums code;
  std::string text;
  friend bool operator==(Coded const& a, Coded const& b) {
    return a.taken == b.taken && a.is_set == b.is_set && a.code == b.code && a.text == b.text;
  }
};

struct AttributeRow {
  char const* tag;
  char const* attribute;
  bool is_required;
  char const* text;
  char const* with_it;
  char const* repeated;
  char const* without;
  std::pair<bool, std::string> (*get)(Root const& root);
  std::vector<char const*> at_the_limits;
  std::vector<Fault> faults;
  Coded (*by_code)(elmx_enums code);                    // null where there is no list
  Coded (*by_text)(char const* text, elmx_enums code);  // the text and its code, after setting a code
  std::map<int, std::string> texts;
};

std::vector<AttributeRow> const& rows() {
  static const std::vector<AttributeRow> all = {
#include "attribute_rows.inc"
  };
  return all;
}

struct Outcome {
  lmx::elmx_error code;
  std::string item;
};

class Attributes : public testing::Test {
 protected:
  Outcome read(Root& root, char const* document) {
    lmx::xmlReader reader(m_directory.write("document.xml", document).c_str());
    const lmx::elmx_error code = root.unmarshal(reader);
    return {code, reader.debug_error().m_item};
  }

  // Calls `check` for each row, with the row in the trace.
  template <class Check>
  void for_each_row(Check check) {
    for (AttributeRow const& row : rows()) {
      SCOPED_TRACE(std::string(row.tag) + " " + row.attribute);
      Root root;
      check(row, root);
    }
  }

  TempDir m_directory;
};

TEST_F(Attributes, AreAllThere) { EXPECT_EQ(358u, rows().size()); }

TEST_F(Attributes, AreReadAndShowTheirText) {
  for_each_row([&](AttributeRow const& row, Root& root) {
    EXPECT_EQ(0, read(root, row.with_it).code) << row.with_it;
    EXPECT_EQ(std::make_pair(true, std::string(row.text)), row.get(root));
  });
}

TEST_F(Attributes, AreReadAtTheVeryLimitsOfTheirRule) {
  for_each_row([&](AttributeRow const& row, Root&) {
    for (char const* document : row.at_the_limits) {
      Root root;
      EXPECT_EQ(0, read(root, document).code) << document;
      EXPECT_TRUE(row.get(root).first);
    }
  });
}

TEST_F(Attributes, AreRefusedWhenRepeated) {
  for_each_row([&](AttributeRow const& row, Root& root) {
    const Outcome outcome = read(root, row.repeated);
    EXPECT_EQ(lmx::ELMX_ATTRIBUTE_ALREADY_READ, outcome.code) << row.repeated;
    EXPECT_EQ(std::string("@") + row.attribute, outcome.item);
  });
}

TEST_F(Attributes, AreMissedOnlyWhenRequired) {
  for_each_row([&](AttributeRow const& row, Root& root) {
    const Outcome outcome = read(root, row.without);
    EXPECT_EQ(row.is_required ? lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING : lmx::ELMX_OK, outcome.code)
        << row.without;
    EXPECT_EQ(row.is_required ? row.tag : "", outcome.item);
    EXPECT_FALSE(row.get(root).first);
  });
}

TEST_F(Attributes, AreRefusedForEachWayToBreakTheirRule) {
  for_each_row([&](AttributeRow const& row, Root&) {
    for (Fault const& fault : row.faults) {
      Root root;
      const Outcome outcome = read(root, fault.document);
      EXPECT_EQ(fault.code, outcome.code) << fault.what << ": " << fault.document;
      EXPECT_EQ(row.attribute, outcome.item) << fault.what;
    }
  });
}

TEST_F(Attributes, TakeTheCodesOfTheirOwnTextsAlone) {
  int enumerated = 0;
  for_each_row([&](AttributeRow const& row, Root&) {
    if (row.by_code == nullptr) return;
    ++enumerated;
    for (int number = -1; number < 30; ++number) {
      SCOPED_TRACE(number);
      const auto code = static_cast<elmx_enums>(number);
      const auto listed = row.texts.find(number);
      if (listed == row.texts.end()) {
        EXPECT_EQ((Coded{false, false, elmx_enum_none, ""}), row.by_code(code));
        EXPECT_EQ((Coded{false, true, elmx_enum_none, "kept"}), row.by_text("kept", code));
      } else {
        EXPECT_EQ((Coded{true, true, code, listed->second}), row.by_code(code));
        EXPECT_EQ((Coded{true, true, code, listed->second}), row.by_text(listed->second.c_str(), code));
      }
    }
  });
  EXPECT_EQ(29, enumerated);
}

}  // namespace
