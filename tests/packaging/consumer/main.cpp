// A host in small: it asks for a transfer set that is not there and is told of the one file.
#include <transfer/IsoXmlParser.h>

#include <iostream>

int main() {
  const IsoXmlParser parser("a directory that does not exist", "TASKDATA.XML");
  const auto& errors = parser.getErrors();
  if (errors.size() == 1 && errors.front().error == lmx::ELMX_NO_FILE) return 0;
  std::cerr << "expected one file that can not be opened, found " << errors.size() << " record(s)\n";
  return 1;
}
