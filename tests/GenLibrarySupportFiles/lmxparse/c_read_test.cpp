// The byte source over a file, and what a source of a host's own has to provide.
#include "GenLibrarySupportFiles/lmxparse/c_read.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "GenLibrarySupportFiles/lmxparse/c_error.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml.h"
#include "isoxmllib/isoxmllib.h"
#include "support/memory_read.h"
#include "support/temp_dir.h"
#include "transfer/reader/xmlReader.h"

namespace {

std::string read_all(lmx::c_read& read) {
  std::string bytes;
  for (int c = read.get(); c != -1; c = read.get()) {
    EXPECT_TRUE(c >= 0 && c <= 255) << c;
    bytes.push_back(static_cast<char>(c));
  }
  return bytes;
}

std::string every_byte(std::size_t length) {
  std::string bytes;
  for (std::size_t i = 0; i < length; ++i) bytes.push_back(static_cast<char>(i * 7 % 256));
  return bytes;
}

TEST(FileSource, DeliversEveryByteUnsignedWhateverTheLength) {
  // The lengths lie around the sizes a buffer may have.
  for (const std::size_t length :
       {0u, 1u, 256u, 511u, 512u, 513u, 1024u, 4096u, 16383u, 16384u, 16385u, 40000u}) {
    SCOPED_TRACE(length);
    const TempDir directory;
    const std::string bytes = every_byte(length);
    lmx::c_read_file read(directory.write("bytes", bytes).c_str());
    EXPECT_TRUE(read.is_open());
    EXPECT_EQ(bytes, read_all(read));
    EXPECT_EQ(-1, read.get());  // and the end stays the end
  }
}

TEST(FileSource, StartsAgainFromTheFirstByte) {
  const TempDir directory;
  const std::string bytes = every_byte(20000);
  lmx::c_read_file read(directory.write("bytes", bytes).c_str());
  for (int i = 0; i < 600; ++i) read.get();
  EXPECT_EQ(0, read.rewind());
  EXPECT_EQ(bytes, read_all(read));
  EXPECT_EQ(0, read.rewind());  // also from the end
  EXPECT_EQ(bytes, read_all(read));
}

TEST(FileSource, KeepsThePathAsGiven) {
  const TempDir directory;
  std::string path = directory.path() + "/./bytes";
  directory.write("bytes", "x");
  lmx::c_read_file read(path.c_str());
  const std::string given = path;
  path.assign(path.size(), '?');
  EXPECT_EQ(given, read.source_name());
}

TEST(FileSource, IsNotOpenAndAtItsEndWhenThereIsNoFile) {
  const TempDir directory;
  const std::string path = directory.path("missing.xml");
  lmx::c_read_file read(path.c_str());
  EXPECT_FALSE(read.is_open());
  EXPECT_EQ(-1, read.get());
  EXPECT_EQ(-1, read.get());
  EXPECT_EQ(path, read.source_name());
}

TEST(FileSource, OpensADirectoryWhoseFirstReadIsTheEnd) {
  const TempDir directory;
  lmx::c_read_file read(directory.path().c_str());
  EXPECT_TRUE(read.is_open());
  EXPECT_EQ(-1, read.get());
  EXPECT_EQ(-1, read.get());
}

TEST(FileSource, GivesADirectoryAsADocumentThatEndsOnLineOne) {
  const TempDir directory;
  lmx::xmlReader reader(directory.path().c_str());
  EXPECT_TRUE(reader.isOpen());
  Root root;
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, root.unmarshal(reader));
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, reader.debug_error().m_code);
  EXPECT_EQ(1, reader.debug_error().m_xml_line);
}

std::FILE* open_nothing(char const*) { return nullptr; }
std::FILE* open_as_document(char const* path) {
  return std::fopen((std::string(path) + ".xml").c_str(), "rb");
}

TEST(FileSource, ReadsWhatItsOpenerOpened) {
  const TempDir directory;
  const std::string path = directory.path("bytes");
  directory.write("bytes.xml", "abc");
  lmx::c_read_file read(path.c_str(), open_as_document);
  EXPECT_TRUE(read.is_open());
  EXPECT_EQ("abc", read_all(read));
  EXPECT_EQ(path, read.source_name());
  lmx::c_read_file nothing(path.c_str(), open_nothing);
  EXPECT_FALSE(nothing.is_open());
  EXPECT_EQ(-1, nothing.get());
}

class BareSource : public lmx::c_read {
 public:
  int get() override { return -1; }
  int rewind() override { return 0; }
};

TEST(HostSource, IsOpenAndNamelessUnlessItSaysOtherwise) {
  const BareSource read;
  EXPECT_TRUE(read.is_open());
  EXPECT_EQ(nullptr, read.source_name());
}

TEST(HostSource, FeedsTheTagLevelLikeAFile) {
  MemoryRead read("<a b='1'/>", "memory");
  lmx::c_error error;
  lmx::c_xml xml(read, error, true);
  std::string name;
  EXPECT_EQ(lmx::EXE_TOKEN, xml.get_element_name(nullptr, &name));
  EXPECT_EQ("a", name);
}

}  // namespace
