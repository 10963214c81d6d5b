// Lists the extensions of one maker in a fragment, by namespace. Their prefix was declared in the document
// that the fragment was cut from, so the host declares it.
#include <isoxmllib/isoxmllib.h>
#include <transfer/reader/xmlReader.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace {

class ExtensionReader : public lmx::xmlReader {
 public:
  ExtensionReader(char const* file_name, std::string prefix, std::string uri)
      : xmlReader(file_name), m_uri(std::move(uri)) {
    add_namespace_mapping(prefix, m_uri);  // before the read begins; a declaration of the document goes first
  }

  lmx::elmx_error on_unknown_element(std::string const& name, std::vector<char> const&, char const*,
                                     int) override {
    return note("element", name);
  }
  lmx::elmx_error on_unknown_attribute(std::string const& name, std::vector<char> const&, char const*,
                                       int) override {
    return note("attribute", name);
  }

 private:
  lmx::elmx_error note(char const* kind, std::string const& name) {
    std::string uri, local_name;
    get_local_name(name, &local_name);
    std::cout << kind << ' ' << local_name << (get_namespace(name, &uri) == m_uri ? "" : ", of another")
              << '\n';
    return lmx::ELMX_OK;
  }

  std::string m_uri;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: list_extensions FILE PREFIX URI\n";
    return EXIT_FAILURE;
  }
  Root root;
  ExtensionReader reader(argv[1], argv[2], argv[3]);
  const lmx::elmx_error error = reader.isOpen() ? root.unmarshal(reader) : lmx::ELMX_NO_FILE;
  if (error == lmx::ELMX_OK) return EXIT_SUCCESS;
  std::cerr << argv[1] << ':' << reader.line() << ": " << error << ": " << lmx::get_error_description(error)
            << '\n';
  return EXIT_FAILURE;
}
