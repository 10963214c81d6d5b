// Lists every fault of a document, where a strict reader stops at the first.
#include <isoxmllib/isoxmllib.h>
#include <transfer/reader/xmlReader.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace {

struct Fault {
  lmx::elmx_error code;
  std::string item;
  int line;  // where the reader stood: an attribute's fault is found when its start tag has ended
};

// The reader asks its host about each fault. The answer 0 lets reading go on: a value that breaks its rule is
// then kept as it stands, and an element that ends wrong counts as ended.
class TolerantReader : public lmx::xmlReader {
 public:
  using xmlReader::xmlReader;

  lmx::elmx_error handle_error(lmx::elmx_error code, std::string const& item, char const*, int) override {
    faults.push_back({code, item, line()});
    return lmx::ELMX_OK;
  }

  std::vector<Fault> faults;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: list_faults FILE\n";
    return EXIT_FAILURE;
  }
  TolerantReader reader(argv[1]);
  if (!reader.isOpen()) {
    std::cerr << argv[1] << ": " << lmx::get_error_description(lmx::ELMX_NO_FILE) << '\n';
    return EXIT_FAILURE;
  }
  Root root;
  const lmx::elmx_error last = root.unmarshal(reader);
  for (Fault const& fault : reader.faults) {
    std::cout << argv[1] << ':' << fault.line << ": " << fault.code << ": "
              << lmx::get_error_description(fault.code) << " (" << fault.item << ")\n";
  }
  // Without its end the document cannot be read further, whatever the answer was.
  if (last != lmx::ELMX_OK) std::cout << "gave up\n";
  return reader.faults.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
