// Reads the name of a worker from a document in any encoding that iconv knows, such as windows-1252.
#include <iconv.h>
#include <isoxmllib/isoxmllib.h>
#include <transfer/reader/xmlReader.h>

#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>

namespace {

class Transcoder : public lmx::c_external_transcoder {
 public:
  Transcoder(lmx::c_read& source, iconv_t converter) : m_source(source), m_converter(converter) {}
  ~Transcoder() override { iconv_close(m_converter); }

  // The next character: its first byte, and the others. Bytes that are none end the document.
  std::pair<int, char const*> read() override {
    std::string bytes;
    for (int c = m_source.get(); c != -1 && bytes.size() != 8; c = m_source.get()) {
      bytes += static_cast<char>(c);
      char *in = bytes.data(), *out = m_character;
      std::size_t in_size = bytes.size(), out_size = sizeof m_character - 1;
      iconv(m_converter, &in, &in_size, &out, &out_size);
      *out = '\0';
      if (out != m_character) return {static_cast<unsigned char>(*m_character), m_character + 1};
    }
    return {-1, nullptr};
  }

 private:
  lmx::c_read& m_source;
  iconv_t m_converter;
  char m_character[16] = {};
};

// Asked for each encoding that the library does not know, by the name in the XML declaration.
class Factory : public lmx::c_external_transcoder_factory {
 public:
  lmx::c_external_transcoder* create(lmx::c_read& source, lmx::c_error&, lmx::elxp_char_encoding,
                                     char const* name) const override {
    iconv_t converter = iconv_open("UTF-8", name);
    return converter == iconv_t(-1) ? nullptr : new Transcoder(source, converter);
  }
};

}  // namespace

int main(int argc, char** argv) {
  static const Factory factory;  // borrowed by every reader made from now on
  lmx::c_get_as_utf8::set_default_external_transcoder_factory(factory);
  lmx::xmlReader reader(argc == 2 ? argv[1] : "");
  Worker worker;
  const lmx::elmx_error error = reader.isOpen() ? worker.unmarshal(reader) : lmx::ELMX_NO_FILE;
  if (error == lmx::ELMX_OK) std::cout << worker.GetLastName() << '\n';
  if (error != lmx::ELMX_OK) std::cerr << reader.line() << ": " << lmx::get_error_description(error) << '\n';
  return error == lmx::ELMX_OK ? EXIT_SUCCESS : EXIT_FAILURE;
}
