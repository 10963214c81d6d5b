// Builds a task with a prescription, asks the library what is still missing, and writes the finished document
// to a file or to standard output.
#include <GenLibrarySupportFiles/lmxinternals.h>
#include <GenLibrarySupportFiles/lmxparse.h>
#include <isoxmllib/isoxmllib.h>

#include <cstdlib>
#include <fstream>
#include <iostream>

namespace {

// The value counts in the unit of the DDI. A zone of a part of the field would have a polygon too.
void add_zone(InnerTask& zones, unsigned char code, int value) {
  constexpr unsigned char set_volume_per_area[] = {0x00, 0x01};  // the DDI, two bytes
  TreatmentZone& zone = zones.AppendTreatmentZone();
  zone.SetCode(code);
  ProcessDataVariable& rate = zone.AppendInnerTreatmentZone().AppendProcessDataVariable();
  rate.SetDDI(lmx::c_binary(set_volume_per_area, sizeof set_volume_per_area));
  rate.SetValue(value);
}

// Whether everything required is there; says what is not, as the path to it. Values are not looked at.
bool is_complete(Root const& root) {
  lmx::c_check_exception gap;
  lmx::c_check_tracker top(nullptr, nullptr, &gap);
  if (root.Check(&top)) return true;
  std::cerr << "missing: " << gap.get_path() << '\n';
  return false;
}

bool write(Root const& root, std::ostream& out) {
  lmx::c_xml_writer writer(out, lmx::c_xml_writer::include_xml_decl);
  const bool written = root.marshal(writer, nullptr) == lmx::ELMX_OK;
  return written && out.flush();  // the writer itself does not look at the stream
}

}  // namespace

int main(int argc, char** argv) {
  Root root;
  TaskData& data = root.GetTaskData();  // also decides which element the document begins with
  data.SetVersionMajor("4");
  data.SetVersionMinor("3");
  data.SetManagementSoftwareManufacturer("Example Farm Office");
  data.SetManagementSoftwareVersion("1.0");
  data.SetenumDataTransferOrigin(elmx_enum_1);  // from the farm to the machine
  Task& task = data.AppendInnerTaskData().AppendTask();
  task.SetId("TSK1");
  task.SetDefaultTreatmentZoneCode(1);
  InnerTask& zones = task.AppendInnerTask();  // holds neighbours of one kind
  add_zone(zones, 1, 18000);
  if (!is_complete(root)) task.SetenumStatus(elmx_enum_1);  // planned
  if (!is_complete(root)) return EXIT_FAILURE;
  std::ofstream file;
  if (argc > 1) file.open(argv[1], std::ios::binary);
  if (write(root, argc > 1 ? file : std::cout)) return EXIT_SUCCESS;
  std::cerr << "cannot write the document\n";
  return EXIT_FAILURE;
}
