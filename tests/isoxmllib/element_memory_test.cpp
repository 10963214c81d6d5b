// Memory that runs out while an element is read, copied, written or changed: wherever that happens,
// `std::bad_alloc` comes out, nothing is lost, and what was there before is as it was.
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <ostream>
#include <streambuf>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "GenLibrarySupportFiles/lmxtypes.h"
#include "isoxmllib/isoxmllib.h"
#include "support/element_rows.h"
#include "support/failing_memory.h"
#include "support/memory_read.h"
#include "support/writing.h"
#include "transfer/reader/xmlReader.h"

namespace {

using lmx::c_xml_writer;
using memory::expect_survives;
using memory::expect_unchanged;

lmx::elmx_error read(Root& root, MemoryRead& document) {
  document.rewind();
  lmx::xmlReader reader(document);
  return root.unmarshal(reader);
}

// Calls `check` for each class, with an object in which every field and child is there.
template <class Check>
void for_each_filled(Check check) {
  for (ElementRow const& row : element_rows) {
    SCOPED_TRACE(row.tag);
    MemoryRead document(row.filled);
    Root root;
    ASSERT_EQ(0, read(root, document));
    check(row, root);
    if (testing::Test::HasFailure()) return;
  }
}

// A clone of it is kept for good, which looks like a loss here.
bool holds_metadata(ElementRow const& row) {
  return std::string(row.filled).find("<P917_Metadata") != std::string::npos;
}

// Takes everything and needs no memory.
class Nowhere : public std::streambuf {
 protected:
  int overflow(int c) override { return c; }
  std::streamsize xsputn(char const*, std::streamsize count) override { return count; }
};

const std::string long_text(100, 'x');

// ---- The memory itself ----

int* new_or_null() {
  try {
    return new int;
  } catch (std::bad_alloc const&) {
    return nullptr;
  }
}

TEST(FailingMemory, FailsAtTheAllocationItIsTold) {
  for (const bool for_ever : {false, true}) {
    const long before = memory::live();
    memory::fail_at(2, for_ever);
    const std::unique_ptr<int> first(new_or_null()), second(new_or_null()), third(new_or_null());
    EXPECT_TRUE(memory::stop_failing());
    EXPECT_NE(nullptr, first);
    EXPECT_EQ(nullptr, second);
    EXPECT_EQ(for_ever, third == nullptr);
    EXPECT_EQ(before + (for_ever ? 1 : 2), memory::live());
  }
}

// ---- Every class ----

TEST(EveryClass, SurvivesFailingMemoryWhileItIsRead) {
  for_each_filled([](ElementRow const& row, Root const&) {
    if (holds_metadata(row)) return;
    MemoryRead document(row.filled);
    expect_survives([&] {
      Root root;
      read(root, document);
    });
  });
}

TEST(EveryClass, SurvivesFailingMemoryWhileItIsCopied) {
  for_each_filled([](ElementRow const& row, Root const& root) {
    expect_survives([] {}, [&] { const std::unique_ptr<Root> copy(root.clone()); },
                    [&] { EXPECT_EQ(row.filled, written(root)); });
  });
}

TEST(EveryClass, KeepsItsTargetWhenAssignmentFails) {
  for_each_filled([](ElementRow const&, Root const& root) {
    const auto task = [] {
      auto target = std::make_unique<Root>();
      target->GetTask().SetDesignator(long_text);
      return target;
    };
    expect_unchanged(
        task, [&](std::unique_ptr<Root>& target) { *target = root; },
        [](std::unique_ptr<Root> const& target) { return written(*target); });
  });
}

TEST(EveryClass, SurvivesFailingMemoryWhileItIsWritten) {
  Nowhere nowhere;
  for_each_filled([&](ElementRow const& row, Root const& root) {
    expect_survives([&] {
      std::ostream out(&nowhere);
      out.exceptions(std::ios::badbit);  // what fails inside an insertion comes out
      c_xml_writer writer(out);
      row.marshal(root, writer);
    });
  });
}

TEST(EveryClass, SurvivesFailingMemoryWhileItIsChecked) {
  for (ElementRow const& row : element_rows) {
    SCOPED_TRACE(row.tag);
    Root root;
    row.select(root);
    expect_survives([&] {
      lmx::c_check_exception failure;
      lmx::c_check_tracker tracker(nullptr, "document", &failure);
      root.Check(&tracker, "element");
    });
  }
}

// ---- Changes ----

// A task with every kind of value in it, and a run of zones.
Task make_task() {
  Task task;
  task.SetDesignator("before");
  task.AppendInnerTask().AppendTreatmentZone().SetDesignator("zone");
  return task;
}

void expect_task_unchanged(void (*change)(Task& task)) {
  expect_unchanged(make_task, change, [](Task const& task) { return written(task, "TSK"); });
}

TEST(Change, IsMadeWholeOrNotAtAll) {
  expect_task_unchanged([](Task& task) { task.SetId(long_text); });
  expect_task_unchanged([](Task& task) { task.SetDesignator(long_text); });
  expect_task_unchanged([](Task& task) { task.SetP007JobMetaData(long_text); });
  expect_task_unchanged([](Task& task) { task.AppendInnerTask(); });
  expect_task_unchanged([](Task& task) { task.AppendInnerTask(new InnerTask); });
  expect_task_unchanged([](Task& task) { task.InsertInnerTask(0); });
  expect_task_unchanged([](Task& task) { task.InsertInnerTask(0, new InnerTask); });
  expect_task_unchanged([](Task& task) { task.AssignInnerTask(0, InnerTask()); });
  expect_task_unchanged([](Task& task) { task.GetInnerTask(0).AppendTreatmentZone(); });
  expect_task_unchanged([](Task& task) { task.GetInnerTask(0).AppendTreatmentZone(new TreatmentZone); });
  expect_task_unchanged([](Task& task) { task.GetInnerTask(0).InsertTreatmentZone(0); });
  expect_task_unchanged([](Task& task) {
    TreatmentZone zone;
    zone.SetDesignator(long_text);
    task.GetInnerTask(0).AssignTreatmentZone(0, zone);
  });
}

TEST(Change, OfAValueIsMadeWholeOrNotAtAll) {
  const unsigned char bytes[64] = {};
  const lmx::c_binary binary(bytes, sizeof bytes);
  const auto device_text = [](Device const& device) { return written(device, "DVC"); };
  expect_unchanged([] { return Device(); }, [&](Device& device) { device.SetStructureLabel(binary); },
                   device_text);

  velmo::lmx::high_precision_c_decimal decimal;
  lmx::v_to_o(decimal, "1." + std::string(100, '5'));
  expect_unchanged([] { return Point(); }, [&](Point& point) { point.SetNorth(decimal); },
                   [](Point const& point) { return written(point, "PNT"); });

  for (auto const change : {+[](P917Question& question) { question.AppendOption(long_text); },
                            +[](P917Question& question) { question.InsertOption(0, long_text); },
                            +[](P917Question& question) { question.SetOption(0, long_text); }}) {
    const auto make = [] {
      P917Question question;
      question.AppendOption("before");
      return question;
    };
    expect_unchanged(make, change,
                     [](P917Question const& question) { return written(question, "P917_Question"); });
  }
}

TEST(TextOfAValue, IsGivenWholeOrNotAtAll) {
  const unsigned char bytes[64] = {};
  const lmx::c_binary binary(bytes, sizeof bytes);
  const lmx::c_datetime time("2024-01-01T00:00:05.123456789+05:30");
  const lmx::c_duration duration("P1Y2M3DT4H5M6.123456789S");
  const lmx::c_decimal decimal("1." + std::string(100, '5'));
  expect_survives([&] { binary.get_as_hex_string(); });
  expect_survives([&] { binary.get_as_base64_string(); });
  expect_survives([&] { time.get_as_string(); });
  expect_survives([&] { duration.get_as_string(); });
  expect_survives([&] { decimal.get_as_string(); });
}

TEST(Change, ThatAddsWhatIsMissingLosesNothing) {
  expect_survives([] {
    Task task;
    task.GetInnerTask(5).GetTreatmentZone(5).SetDesignator(long_text);
    task.GetInnerTask(2).GetTime(1).AppendInnerTime().GetPosition(1);
    task.GetInnerTask(3).GetOperTechPractice().SetCulturalPracticeIdRef(long_text);
  });
}

TEST(Change, OfWhatIsChosenLosesNothing) {
  expect_survives([] {
    InnerTask choice;
    choice.AppendTreatmentZone().SetDesignator(long_text);
    choice.SelectTime();
    choice.AppendTime();
    choice.SelectOperTechPractice();
    choice.GetOperTechPractice();
    Root root;
    root.GetTask().SetDesignator(long_text);
    root.GetFarm().SetDesignator(long_text);
  });
}

// ---- Clones that are kept ----

TEST(Metadata, IsKeptWholeOrNotAtAll) {
  P917Metadata metadata;
  metadata.SetVersion(long_text);
  MemoryRead nothing("");
  lmx::xmlReader reader(nothing);
  reader.setP917Metadata(&metadata);
  P917Metadata* const first = reader.getP917Metadata();
  for (long n = 1;; ++n) {
    const long live_before = memory::live();
    memory::fail_at(n, false);
    try {
      reader.setP917Metadata(&metadata);
      memory::stop_failing();
      break;
    } catch (std::bad_alloc const&) {
      memory::stop_failing();
    }
    EXPECT_EQ(live_before, memory::live()) << "lost at allocation " << n;
    EXPECT_EQ(first, reader.getP917Metadata());
  }
  EXPECT_NE(first, reader.getP917Metadata());
  EXPECT_EQ(long_text, first->GetVersion());
  EXPECT_EQ(long_text, reader.getP917Metadata()->GetVersion());
}

}  // namespace
