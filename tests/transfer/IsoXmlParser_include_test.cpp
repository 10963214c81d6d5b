// What one include of the facade brings. It stands first, and no other header of the library follows.
#include "transfer/IsoXmlParser.h"

#include <gtest/gtest.h>

#include "support/every_class.h"

namespace {

static_assert(are_complete<IsoFarm, IsoGrower, IsoAttachedFile, IsoField, IsoXmlError, IsoDocument>);
static_assert(are_complete<lmx::TaskInfo, lmx::ISORxMap, lmx::TreatmentZone, lmx::xmlReader>);

TEST(OneInclude, OfTheFacadeBringsWhatItsAnswersAreMadeOf) {
  const IsoXmlParser parser("a directory that does not exist", "TASKDATA");
  EXPECT_EQ(1u, parser.getErrors().size());
  for (Task* task : parser.getTasks()) EXPECT_EQ("TSK1", task->GetId());
  for (Product* product : parser.getProducts()) EXPECT_EQ("PDT1", product->GetId());
  for (P917Question* question : parser.getQuestions()) EXPECT_EQ("", question->GetPrompt());
  Device device;
  device.SetId("DVC1");
  EXPECT_EQ("DVC1", device.GetId());
  EXPECT_EQ("0006", IsoDDIConstants::toPaddedHexString(6, 4));
}

}  // namespace
