// Where a failed check is recorded, and under which path.
#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"

#include <gtest/gtest.h>

#include <string>

#include "GenLibrarySupportFiles/lmxparse/c_error.h"

namespace {

TEST(CheckException, StartsWithoutAPlace) {
  const lmx::c_check_exception exception;
  EXPECT_EQ("", exception.get_path());
  EXPECT_STREQ("(not set)", exception.get_file());
  EXPECT_EQ(-1, exception.get_line());
  EXPECT_STREQ("lmx check exception", exception.what());
}

TEST(CheckTracker, HoldsItsLink) {
  lmx::c_check_exception exception;
  lmx::c_check_tracker root(nullptr, "TSK", &exception);
  const lmx::c_check_tracker link(&root, "A");
  EXPECT_EQ(&exception, root.mp_exception);
  EXPECT_EQ(nullptr, root.mp_parent);
  EXPECT_STREQ("TSK", root.mp_name);
  EXPECT_EQ(nullptr, link.mp_exception);
  EXPECT_EQ(&root, link.mp_parent);
}

TEST(CheckTracker, IsMadeInTheOrderOfItsMembersToo) {
  lmx::c_check_exception exception;
  lmx::c_check_tracker root{&exception, nullptr, "TSK"};
  EXPECT_EQ(&exception, root.mp_exception);
  EXPECT_EQ(nullptr, root.mp_parent);
  EXPECT_STREQ("TSK", root.mp_name);
  const lmx::c_check_tracker link{nullptr, &root, "A"};
  EXPECT_EQ(nullptr, link.mp_exception);
  EXPECT_EQ(&root, link.mp_parent);
  EXPECT_STREQ("A", link.mp_name);
  const lmx::c_check_tracker nothing{nullptr, nullptr, nullptr};
  EXPECT_EQ(nullptr, nothing.mp_exception);
  EXPECT_EQ(nullptr, nothing.mp_parent);
  EXPECT_EQ(nullptr, nothing.mp_name);

  EXPECT_FALSE(lmx::report_check_failure(&link, "file", 3));
  EXPECT_EQ("/TSK/A", exception.get_path());
}

TEST(CheckFailure, IsFalseAndOnRecordForTheProcess) {
  const lmx::c_check_tracker root(nullptr, "TSK");
  EXPECT_FALSE(lmx::report_check_failure(&root, "file", 7));
  EXPECT_EQ("/TSK", lmx::global_check_exception.get_path());
  EXPECT_STREQ("file", lmx::global_check_exception.get_file());
  EXPECT_EQ(7, lmx::global_check_exception.get_line());
  EXPECT_STREQ("lmx check exception", lmx::global_check_exception.what());
}

struct Path {
  const char* caption;
  char const *outer, *middle, *inner;
  std::string path;
};

TEST(CheckFailure, JoinsTheNamesFromTheRootDown) {
  for (auto const& row : {Path{"all named", "ISO11783_TaskData", "TSK", "G", "/ISO11783_TaskData/TSK/G"},
                          Path{"the root unnamed", nullptr, "TSK", "A", "/TSK/A"},
                          Path{"a level unnamed", "TSK", nullptr, "A", "/TSK/A"},
                          Path{"the failing one unnamed", "TSK", "TZN", nullptr, "/TSK/TZN"},
                          Path{"none named", nullptr, nullptr, nullptr, ""},
                          Path{"a name of no letters", "TSK", "", "A", "/TSK//A"}}) {
    SCOPED_TRACE(row.caption);
    lmx::c_check_exception own;
    lmx::c_check_tracker outer(nullptr, row.outer, &own);
    lmx::c_check_tracker middle(&outer, row.middle);
    const lmx::c_check_tracker inner(&middle, row.inner);
    EXPECT_FALSE(lmx::report_check_failure(&inner, "file", 7));
    EXPECT_EQ(row.path, own.get_path());
    EXPECT_EQ(row.path, lmx::global_check_exception.get_path());
  }
}

TEST(CheckFailure, FillsTheExceptionOfTheRootAlone) {
  lmx::c_check_exception at_root, below;
  lmx::c_check_tracker root(nullptr, "TSK", &at_root);
  const lmx::c_check_tracker link(&root, "A", &below);
  lmx::report_check_failure(&link, "file", 7);
  EXPECT_EQ("/TSK/A", at_root.get_path());
  EXPECT_STREQ("file", at_root.get_file());
  EXPECT_EQ(7, at_root.get_line());
  EXPECT_EQ("", below.get_path());
}

TEST(CheckFailure, TakesThePlaceOfTheOneBefore) {
  lmx::c_check_exception exception;
  const lmx::c_check_tracker first(nullptr, "first", &exception), second(nullptr, "second", &exception);
  lmx::report_check_failure(&first, "file", 1);
  lmx::report_check_failure(&second, "other", 2);
  for (lmx::c_check_exception const* record : {&exception, &lmx::global_check_exception}) {
    EXPECT_EQ("/second", record->get_path());
    EXPECT_STREQ("other", record->get_file());
    EXPECT_EQ(2, record->get_line());
  }
}

TEST(CheckFailure, ThrowsNothing) {
  const lmx::c_check_tracker root(nullptr, "TSK");
  EXPECT_NO_THROW(lmx::report_check_failure(&root, "file", 7));
}

}  // namespace
