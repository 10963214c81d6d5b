// The program's linker may move an exported object into the program. The library must then use it there.
#include <gtest/gtest.h>

#include "isoxmllib/isoxmllib.h"

TEST(MutableGlobals, ShowTheHostWhatTheLibraryStored) {
  lmx::global_check_exception = lmx::c_check_exception("the host's", "", 0);
  EXPECT_FALSE(Link().Check(nullptr, "LNK"));
  EXPECT_EQ("/LNK/A", lmx::global_check_exception.get_path());
}
