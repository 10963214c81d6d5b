// A host in small: it asks for a transfer set that is not there and gets one record of code 1.
#include <transfer/IsoXmlParser.h>

#include <iostream>

int main() {
  const IsoXmlParser parser("a directory that does not exist", "TASKDATA.XML");
  const auto& errors = parser.getErrors();
  if (errors.size() == 1 && static_cast<int>(errors.front().error) == 1) return 0;
  std::cerr << "expected one record of code 1, found " << errors.size() << " record(s)\n";
  return 1;
}
