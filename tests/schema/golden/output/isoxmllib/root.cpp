// clang-format off
// Generated from schema/root.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/root.h"

#include <memory>
#include <utility>

#include "isoxmllib/engine.h"
#include "isoxmllib/events.h"
#include "isoxmllib/task.h"

using namespace binding;

Root::Root() { init(); }
Root::Root(Root const& other) = default;
Root::Root(Root&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
Root::Root(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; Root content; *error = content.unmarshal(reader); swap(content); }
Root* Root::clone() const { return new Root(*this); }
Root::~Root() = default;
Root& Root::operator=(Root const& other) { Root copy(other); swap(copy); return *this; }
Root& Root::operator=(Root&& other) noexcept { Root taken(std::move(other)); swap(taken); return *this; }
void Root::swap(Root& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void Root::reset() { Root empty; swap(empty); }
void Root::init() { chosen = NothingChosen; }

lmx::s_event_map const Root::elem_event_map[] = {
    {1, "SHF", 3, elem_Shelf},
    {1, "BOK", 3, elem_Book},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Root::known_elements[] = {
    {1, "SHF", 3},
    {1, "BOK", 3},
    {0, nullptr, 0},
};
void Root::release_choice() { m_held.release(); chosen = NothingChosen; }
bool Root::IsOccursOk(lmx::c_check_tracker* tracker) const { return check_occurs(tracker, chosen != NothingChosen, "<choice not set>", __LINE__); }
bool Root::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case ShelfChosen: return m_held.check(&link, "SHF");
    case BookChosen: return m_held.check(&link, "BOK");
  }
  return true;
}
bool Root::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
lmx::elmx_error Root::unmarshal(lmx::xmlReader& reader) { return read_any_document(*this, reader, elem_event_map, known_elements, __LINE__); }
bool Root::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  switch (reader.m_event) {
    case elem_Shelf: return read_alternative(reader, new_one<Shelf>(chosen, m_held, ShelfChosen), __LINE__, error);
    case elem_Book: return read_alternative(reader, new_one<Book>(chosen, m_held, BookChosen), __LINE__, error);
  }
  return report_unknown_top_element(reader, __LINE__, error);
}
lmx::elmx_error Root::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error Root::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void Root::SelectShelf() { selected_one<Shelf>(chosen, m_held, ShelfChosen); }
Shelf const& Root::GetShelf() const { return chosen_one<Shelf>(m_held, {is_chosen(chosen, m_held, ShelfChosen), "chosen == ShelfChosen"}); }
Shelf& Root::GetShelf() { return selected_one<Shelf>(chosen, m_held, ShelfChosen).get_or_create(); }

void Root::SelectBook() { selected_one<Book>(chosen, m_held, BookChosen); }
Book const& Root::GetBook() const { return chosen_one<Book>(m_held, {is_chosen(chosen, m_held, BookChosen), "chosen == BookChosen"}); }
Book& Root::GetBook() { return selected_one<Book>(chosen, m_held, BookChosen).get_or_create(); }
