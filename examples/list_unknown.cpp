// Lists what a document holds beyond the format, with the path to it. Such attributes and elements are
// skipped without an error.
#include <isoxmllib/isoxmllib.h>
#include <transfer/reader/xmlReader.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace {

class WatchingReader : public lmx::xmlReader {
 public:
  using xmlReader::xmlReader;

  // The result 0 skips the item; a code ends the read with it.
  lmx::elmx_error on_unknown_element(std::string const& name, std::vector<char> const& path, char const*,
                                     int) override {
    std::cout << line() << ": " << text(path) << name << '\n';
    return lmx::ELMX_OK;
  }
  lmx::elmx_error on_unknown_attribute(std::string const& name, std::vector<char> const& path, char const*,
                                       int) override {
    std::cout << line() << ": " << text(path) << '@' << name << '\n';
    return lmx::ELMX_OK;
  }

 private:
  // The names of the open elements stand one behind the other, each closed by a NUL.
  static std::string text(std::vector<char> const& path) {
    std::string names(path.begin(), path.end());
    for (char& c : names) c = c == '\0' ? '/' : c;
    return names;
  }
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: list_unknown FILE\n";
    return EXIT_FAILURE;
  }
  Root root;
  WatchingReader reader(argv[1]);
  const lmx::elmx_error error = reader.isOpen() ? root.unmarshal(reader) : lmx::ELMX_NO_FILE;
  if (error == lmx::ELMX_OK) return EXIT_SUCCESS;
  std::cerr << argv[1] << ':' << reader.line() << ": " << error << ": " << lmx::get_error_description(error)
            << '\n';
  return EXIT_FAILURE;
}
