#include "tools/lone_document.h"

#include <sstream>
#include <utility>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"

MemorySource::MemorySource(std::string document) : bytes(std::move(document)) { rewind(); }

int MemorySource::get() { return mp_next != mp_end ? *mp_next++ : -1; }

int MemorySource::rewind() {
  mp_next = reinterpret_cast<unsigned char const*>(bytes.data());
  mp_end = mp_next + bytes.size();
  return 0;
}

IsoDocument read_document(lmx::xmlReader& reader, std::string const& name, Root* root) {
  IsoDocument verdict{};
  verdict.name = name;
  verdict.role = IsoDocument::Role::External;
  verdict.error = reader.isOpen() ? root->unmarshal(reader) : lmx::ELMX_NO_FILE;
  verdict.line = reader.line();
  if (verdict.error != lmx::ELMX_OK) {
    verdict.item = reader.debug_error().m_item;
    verdict.message = reader.get_error_message();
  }
  return verdict;
}

IsoDocument read_back(std::string const& name, Root* root) {
  std::ostringstream text;
  lmx::c_xml_writer writer(text, lmx::c_xml_writer::include_xml_decl);
  root->marshal(writer, nullptr);
  root->reset();  // so that there are never two trees
  MemorySource source(text.str());
  lmx::xmlReader reader(source);
  return read_document(reader, name, root);
}
