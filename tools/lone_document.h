// Documents by themselves, whatever element of the format they begin with, and the way through the writer and
// back that proves what a command is about to write.
#pragma once

#include <cstddef>
#include <string>

#include "GenLibrarySupportFiles/lmxparse/c_read.h"
#include "isoxmllib/fwd.h"
#include "transfer/IsoXmlParser.h"
#include "transfer/reader/xmlReader.h"

/// A document in memory.
class MemorySource : public lmx::c_read {
 public:
  explicit MemorySource(std::string document);

  int get() override;
  int rewind() override;

 private:
  const std::string bytes;
};

/// Reads the whole document of `reader` into `root`. The verdict calls it `name`, and has no root. After a
/// failure what `root` holds is of no use.
IsoDocument read_document(lmx::xmlReader& reader, std::string const& name, Root* root);

/// Writes `root` into memory and reads it again from there; the verdict calls that `name`. Values are written
/// as they stand, so not all that the classes can hold reads again, or as the same: afterwards `root` holds
/// what it is for whoever reads it next.
IsoDocument read_back(std::string const& name, Root* root);
