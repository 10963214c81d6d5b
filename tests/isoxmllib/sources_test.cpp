// The example documents through sources of every kind: buffers that end at each byte in turn, and sources
// that end, fail or give up early.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/code_name.h"
#include "support/each_source.h"
#include "support/file_bytes.h"
#include "support/temp_dir.h"
#include "support/writing.h"
#include "transfer/reader/xmlReader.h"

namespace {

struct Document {
  std::string name;
  std::string bytes;
};

std::vector<Document> const& example_documents() {
  static const std::vector<Document> documents = [] {
    std::vector<Document> found;
    for (auto const& entry : std::filesystem::recursive_directory_iterator(ISOXML_EXAMPLE_SETS)) {
      if (entry.path().extension() == ".XML")
        found.push_back({entry.path().string(), file_bytes(entry.path())});
    }
    return found;
  }();
  return documents;
}

struct Outcome {
  int code = 0;
  int line = 0;
  std::string item;
  std::string tree;  // what the elements hold, as they are written again
};

bool operator==(Outcome const& a, Outcome const& b) {
  return a.code == b.code && a.line == b.line && a.item == b.item && a.tree == b.tree;
}

Outcome read(lmx::c_read& source) {
  Root root;
  lmx::xmlReader reader(source);
  const int code = root.unmarshal(reader);
  return {code, reader.line(), reader.debug_error().m_item, written(root)};
}

Outcome read(std::string const& bytes) {
  MemoryRead source(bytes);
  return read(source);
}

Outcome read_through_windows(std::string const& bytes, std::size_t window) {
  WindowRead source(bytes, window);
  return read(source);
}

TEST(ExampleDocuments, AreThere) { EXPECT_EQ(7u, example_documents().size()); }

TEST(ExampleDocuments, ReadTheSameFromEachSource) {
  for (Document const& document : example_documents()) {
    SCOPED_TRACE(document.name);
    const Outcome expected = read(document.bytes);
    with_each_source(document.bytes, [&](lmx::c_read& source) { EXPECT_TRUE(expected == read(source)); });
  }
}

// ---- Where buffers end ----

// Room of `length` bytes that changes nothing but where the rest stands.
std::string blanks(std::size_t length) { return std::string(length, ' '); }
std::string comment(std::size_t length) {
  return length < 7 ? blanks(length) : "<!--" + std::string(length - 7, 'x') + "-->";
}

// Where there may be room: behind the declaration, or at the start of a document that has none.
std::size_t room_of(std::string const& bytes) {
  const std::size_t declaration = bytes.find("?>");
  return declaration == std::string::npos ? 0 : declaration + 2;
}

TEST(ExampleDocuments, ReadTheSameWhereverAWindowEnds) {
  constexpr std::size_t window = 1024;
  for (Document const& document : example_documents()) {
    SCOPED_TRACE(document.name);
    const Outcome expected = read(document.bytes);
    for (std::size_t shift = 0; shift != window; ++shift) {
      for (auto const room : {blanks, comment}) {
        std::string shifted = document.bytes;
        shifted.insert(room_of(shifted), room(shift));
        ASSERT_TRUE(expected == read_through_windows(shifted, window)) << "shifted by " << shift;
      }
    }
  }
}

TEST(ExampleDocuments, ReadTheSameWhereverTheBufferOfAFileEnds) {
  constexpr std::size_t buffer = 16384;
  constexpr std::size_t step = 17;  // each byte in turn is what windows are for
  const TempDir directory;
  for (Document const& document : example_documents()) {
    SCOPED_TRACE(document.name);
    const Outcome expected = read(document.bytes);
    const std::size_t start = room_of(document.bytes);
    for (std::size_t at = start; at < document.bytes.size(); at += step) {
      std::string shifted = document.bytes;
      shifted.insert(start, blanks(buffer - at));
      lmx::c_read_file source(directory.write("document.xml", shifted).c_str());
      ASSERT_TRUE(expected == read(source)) << "the buffer ends before byte " << at;
    }
  }
}

// ---- Sources that end early ----

TEST(ExampleDocuments, CutOffAtAnyByteAreRefusedByOneOfTheseCodes) {
  for (Document const& document : example_documents()) {
    SCOPED_TRACE(document.name);
    const int whole = read(document.bytes).code;
    const std::size_t end = document.bytes.rfind('>');
    for (std::size_t length = 0; length != document.bytes.size(); ++length) {
      const std::string cut = document.bytes.substr(0, length);
      const Outcome outcome = read(cut);
      const bool in_mark = length != 0 && length < 3 && cut[0] == '\xEF';
      if (length > end) {
        EXPECT_EQ(whole, outcome.code) << length;
      } else if (in_mark) {
        EXPECT_EQ(lmx::ELMX_BAD_CHAR_ENCODING, outcome.code) << length;
      } else {
        EXPECT_TRUE(is_code_of_a_cut(outcome.code)) << outcome.code << " at " << length;
      }
      ASSERT_TRUE(outcome == read_through_windows(cut, 7)) << length;
    }
  }
}

// A source that throws at one byte, as one over a network may.
class BrokenRead : public lmx::c_read {
 public:
  BrokenRead(std::string const& bytes, std::size_t good) : m_bytes(bytes), m_good(good) {}
  int get() override {
    if (m_next == m_good) throw std::runtime_error("line is down");
    return m_next < m_bytes.size() ? static_cast<unsigned char>(m_bytes[m_next++]) : -1;
  }
  int rewind() override {
    m_next = 0;
    return 0;
  }

 private:
  std::string const& m_bytes;
  std::size_t m_good;
  std::size_t m_next = 0;
};

TEST(ExampleDocuments, LetTheExceptionOfASourceThrough) {
  for (Document const& document : example_documents()) {
    SCOPED_TRACE(document.name);
    if (read(document.bytes).code != 0) continue;
    const std::size_t end = document.bytes.rfind('>');
    for (std::size_t good = 0; good <= end; ++good) {
      BrokenRead source(document.bytes, good);
      Root root;
      lmx::xmlReader reader(source);
      EXPECT_THROW(root.unmarshal(reader), std::runtime_error) << good;
    }
  }
}

TEST(ASource, ThatIsNotOpenMakesAReaderThatIsNot) {
  class Closed : public lmx::c_read {
   public:
    bool is_open() const override { return false; }
    int get() override { return -1; }
    int rewind() override { return -1; }
  };
  Closed source;
  lmx::xmlReader reader(source);
  EXPECT_FALSE(reader.isOpen());
  Root root;
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, root.unmarshal(reader));
  EXPECT_EQ(1, reader.line());
}

// ---- Files that are none ----

TEST(APipe, ReadsLikeAFileHoweverSmallItsPortionsAre) {
  const TempDir directory;
  const std::string path = directory.path("pipe");
  ASSERT_EQ(0, mkfifo(path.c_str(), 0600));
  for (Document const& document : example_documents()) {
    SCOPED_TRACE(document.name);
    for (const std::size_t portion : {1u, 100u, 4096u}) {
      std::thread writer([&] {
        const int pipe = open(path.c_str(), O_WRONLY);
        std::size_t written_bytes = 0;
        while (written_bytes < document.bytes.size()) {
          const std::size_t count = std::min<std::size_t>(portion, document.bytes.size() - written_bytes);
          const ssize_t taken = ::write(pipe, document.bytes.data() + written_bytes, count);
          if (taken <= 0) break;
          written_bytes += static_cast<std::size_t>(taken);
        }
        close(pipe);
      });
      lmx::c_read_file source(path.c_str());
      EXPECT_TRUE(read(document.bytes) == read(source)) << "portions of " << portion;
      while (source.get() != -1) {
      }
      writer.join();
    }
  }
}

// A file of which nothing more can be read once `good` bytes were taken: its descriptor then stands for a
// directory, and what was in no buffer is lost.
class FailingFile : public lmx::c_read {
 public:
  FailingFile(std::string const& path, std::size_t good) : m_good(good), m_file(path.c_str()) {
    for (auto const& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
      std::error_code ignored;
      if (std::filesystem::read_symlink(entry.path(), ignored) == path) {
        m_descriptor = std::stoi(entry.path().filename());
      }
    }
  }
  bool has_descriptor() const { return m_descriptor != -1; }
  int get() override {
    if (m_taken++ == m_good) {
      const int directory = open("/", O_RDONLY | O_DIRECTORY);
      dup2(directory, m_descriptor);
      close(directory);
    }
    return m_file.get();
  }
  int rewind() override { return -1; }

 private:
  std::size_t m_good;
  std::size_t m_taken = 0;
  lmx::c_read_file m_file;
  int m_descriptor = -1;
};

TEST(AFileThatCannotBeReadToItsEnd, LooksAsIfItEndedThere) {
  const TempDir directory;
  std::string document = "<TSK A='TSK1' G='1'>\n";
  while (document.size() < 100000) document += "<TZN A='1'/>\n";
  document += "</TSK>";
  const std::string path = std::filesystem::canonical(directory.write("document.xml", document));
  for (const std::size_t good : {0u, 1u, 20000u, 70000u}) {
    SCOPED_TRACE(good);
    std::string delivered;
    FailingFile bytes(path, good);
    ASSERT_TRUE(bytes.has_descriptor());
    for (int byte = bytes.get(); byte != -1; byte = bytes.get()) delivered += static_cast<char>(byte);
    EXPECT_GE(delivered.size(), good);
    EXPECT_LT(delivered.size(), document.size());
    EXPECT_EQ(document.substr(0, delivered.size()), delivered);

    FailingFile source(path, good);
    const Outcome outcome = read(source);
    EXPECT_TRUE(read(delivered) == outcome) << outcome.code;
    EXPECT_NE(0, outcome.code);
    EXPECT_TRUE(good != 0 || outcome.code == lmx::ELMX_UNEXPECTED_EOM) << outcome.code;
  }
  lmx::c_read_file whole(path.c_str());
  EXPECT_EQ(0, read(whole).code);
}

struct Oddity {
  char const* caption;
  std::string path;
  bool is_open;
  int code;
};

TEST(AnOddFile, IsReadAsFarAsItGoes) {
  const TempDir directory;
  ASSERT_EQ(0, symlink("loop", directory.path("loop").c_str()));
  directory.write("file", "<TSK A='TSK1' G='1'/>");
  for (Oddity const& row :
       {Oddity{"a file", directory.path("file"), true, 0},
        Oddity{"a file taken for a directory", directory.path("file/document"), false,
               lmx::ELMX_UNEXPECTED_EOM},
        Oddity{"a directory", directory.path(), true, lmx::ELMX_UNEXPECTED_EOM},
        Oddity{"a link to itself", directory.path("loop"), false, lmx::ELMX_UNEXPECTED_EOM},
        Oddity{"a name that is too long", directory.path(std::string(300, 'x')), false,
               lmx::ELMX_UNEXPECTED_EOM},
        Oddity{"no name", "", false, lmx::ELMX_UNEXPECTED_EOM},
        Oddity{"a device without content", "/dev/null", true, lmx::ELMX_UNEXPECTED_EOM},
        Oddity{"a device of zeros alone", "/dev/zero", true, lmx::ELMX_BAD_CHAR_ENCODING},
        Oddity{"a file whose size is not known", "/proc/self/status", true, lmx::ELMX_BAD_CHAR_ENCODING},
        Oddity{"a file whose first byte can not be read", "/proc/self/mem", true,
               lmx::ELMX_UNEXPECTED_EOM}}) {
    SCOPED_TRACE(row.caption);
    lmx::c_read_file source(row.path.c_str());
    EXPECT_EQ(row.is_open, source.is_open());
    const Outcome outcome = read(source);
    EXPECT_EQ(row.code, outcome.code);
    EXPECT_EQ(1, outcome.line);
  }
}

}  // namespace
