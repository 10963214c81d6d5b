// Reads one element of the format from a file, such as a single task that came over a network, and says what
// it holds, or what is wrong with it and where.
#include <isoxmllib/isoxmllib.h>
#include <transfer/reader/xmlReader.h>

#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

void print(TreatmentZone const& zone) {
  std::cout << "a treatment zone of code " << static_cast<int>(zone.GetCode());  // a number, no character
  if (zone.IssetDesignator()) std::cout << ", \"" << zone.GetDesignator() << '"';
  std::cout << '\n';
}

void print(Task const& task) {
  std::size_t zones = 0;
  // Children stand in runs: each wrapper holds neighbours of one kind, in the order of the document.
  for (std::size_t i = 0; i != task.SizeInnerTask(); ++i) {
    InnerTask const& run = task.GetInnerTask(i);
    if (run.chosen == InnerTask::TreatmentZoneChosen) zones += run.SizeTreatmentZone();
  }
  std::cout << "task " << task.GetId() << " with " << zones << " treatment zones\n";
}

void print(Root const& root) {
  switch (root.chosen) {
    case Root::TaskChosen: print(root.GetTask()); break;
    case Root::TreatmentZoneChosen: print(root.GetTreatmentZone()); break;
    default: std::cout << "an element of another kind\n"; break;
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: read_fragment FILE\n";
    return EXIT_FAILURE;
  }
  Root root;
  lmx::xmlReader reader(argv[1]);
  const lmx::elmx_error error = reader.isOpen() ? root.unmarshal(reader) : lmx::ELMX_NO_FILE;
  if (error != lmx::ELMX_OK) {
    // `root` holds what was read before the fault; it is not to be used.
    std::cerr << argv[1] << ':' << reader.line() << ": " << error << ": "
              << lmx::get_error_description(error);
    if (reader.isOpen()) std::cerr << " (" << reader.debug_error().m_item << ')';
    std::cerr << '\n';
    return EXIT_FAILURE;
  }
  print(root);
  return EXIT_SUCCESS;
}
