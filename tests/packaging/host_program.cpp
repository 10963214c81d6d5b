// A host with global classes Point, Task, Link and others of its own (host_classes.cpp) reads a transfer
// set. The library must work with its own classes throughout, and the host with its own.
#include <gtest/gtest.h>

#include <cstdlib>

#include "host_classes.h"
#include "transfer/IsoXmlParser.h"

TEST(HostClassesOfTheSameName, AreNeverCalledByTheLibrary) {
  const int calls_before = calls_into_host_classes();
  {
    IsoXmlParser parser(std::getenv("ISOXML_TEST_SET"), "TASKDATA.XML");
    EXPECT_EQ(0u, parser.getErrors().size());
    EXPECT_TRUE(parser.isSchemaVersion4());
    EXPECT_EQ("{2a3f9c1e-8d47-4b60-9f15-7c1b0e6d2a34}", parser.getIsoUuid("TSK1"));
    EXPECT_EQ("{91d0c7b2-35ae-4f08-b6c9-0e2f4a7d8c15}", parser.getIsoUuid("CTR2"));
  }
  EXPECT_EQ(calls_before, calls_into_host_classes());
}

TEST(HostClassesOfTheSameName, KeepTheirOwnBehaviourBesideTheLibrary) {
  const int calls_before = calls_into_host_classes();
  EXPECT_TRUE(host_uses_its_own_classes());
  EXPECT_LT(calls_before, calls_into_host_classes());
}
