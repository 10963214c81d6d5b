#include "GenLibrarySupportFiles/lmxparse/c_xml_list_tokeniser.h"

#include "GenLibrarySupportFiles/lmxinternals/characters.h"

namespace lmx {

void c_xml_list_tokeniser::set(std::string const& text) {
  m_text = text;
  m_next = 0;
}

bool c_xml_list_tokeniser::get(std::string* token) {
  auto const is_space_at = [this](std::size_t index) {
    return is_space(static_cast<unsigned char>(m_text[index]));
  };
  while (m_next != m_text.size() && is_space_at(m_next)) ++m_next;
  if (m_next == m_text.size()) return false;
  const std::size_t first = m_next;
  while (m_next != m_text.size() && !is_space_at(m_next)) ++m_next;
  token->assign(m_text, first, m_next - first);
  return true;
}

int c_xml_list_tokeniser::count(std::string const& text) {
  c_xml_list_tokeniser tokeniser(text);
  std::string token;
  int count = 0;
  while (tokeniser.get(&token)) ++count;
  return count;
}

}  // namespace lmx
