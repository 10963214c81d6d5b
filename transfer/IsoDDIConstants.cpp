#include "transfer/IsoDDIConstants.h"

#include <iomanip>
#include <locale>
#include <sstream>

std::string IsoDDIConstants::toPaddedHexString(int value, unsigned int width) {
  std::ostringstream text;
  text.imbue(std::locale::classic());  // another one might group the digits
  text.exceptions(std::ios::badbit);   // or memory could run out unnoticed
  text << std::setfill('0') << std::setw(static_cast<int>(width)) << std::hex << value;
  return text.str();
}

lmx::c_binary IsoDDIConstants::toHexBinary(int value, unsigned int width) {
  lmx::c_binary bytes;
  bytes.from_hex(toPaddedHexString(value, width));
  return bytes;
}
