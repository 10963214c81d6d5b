// clang-format off
// Generated from schema/task.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/task.h"

#include <memory>
#include <utility>

#include "isoxmllib/engine.h"
#include "isoxmllib/events.h"
#include "isoxmllib/rules.h"
#include "isoxmllib/specs.h"

using namespace binding;

// ---- Shelf ----

InnerShelf::InnerShelf() { init(); }
InnerShelf::InnerShelf(InnerShelf const& other) = default;
InnerShelf::InnerShelf(InnerShelf&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerShelf::InnerShelf(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerShelf* InnerShelf::clone() const { return new InnerShelf(*this); }
InnerShelf::~InnerShelf() = default;
InnerShelf& InnerShelf::operator=(InnerShelf const& other) { InnerShelf copy(other); swap(copy); return *this; }
InnerShelf& InnerShelf::operator=(InnerShelf&& other) noexcept { InnerShelf taken(std::move(other)); swap(taken); return *this; }
void InnerShelf::swap(InnerShelf& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerShelf::reset() { InnerShelf empty; swap(empty); }
void InnerShelf::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerShelf::elem_event_map[] = {
    {1, "BOK", 3, elem_Book},
    {0, nullptr, 0, 0},
};
void InnerShelf::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerShelf::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerShelf::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case BookChosen: return m_held.check(&link, "BOK");
  }
  return true;
}
bool InnerShelf::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerShelf::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_Book: return read_mandatory_run(reader, new_run<Book>(chosen, m_held, BookChosen), elem_Book, {elem_event_map, "SHF", __LINE__}, error);
  }
  return report(reader, lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, {elem_event_map, "SHF", __LINE__}, error);
}
lmx::elmx_error InnerShelf::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerShelf::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerShelf::SelectBook() { selected_run<Book>(chosen, m_held, BookChosen); }
Book const& InnerShelf::GetBook(std::size_t index) const { return run_at<Book>(m_held, {is_chosen(chosen, m_held, BookChosen), "chosen == BookChosen"}, index, "index < u.mBook->size()"); }
Book& InnerShelf::GetBook(std::size_t index) { return selected_run<Book>(chosen, m_held, BookChosen).get_or_append(index); }
Book& InnerShelf::AppendBook() { return selected_run<Book>(chosen, m_held, BookChosen).append(); }
void InnerShelf::AppendBook(Book* value) { std::unique_ptr<Book> owned(value); selected_run<Book>(chosen, m_held, BookChosen).append(std::move(owned)); }
Book& InnerShelf::InsertBook(std::size_t index) { return selected_run<Book>(chosen, m_held, BookChosen).insert(index); }
void InnerShelf::InsertBook(std::size_t index, Book* value) { std::unique_ptr<Book> owned(value); selected_run<Book>(chosen, m_held, BookChosen).insert(index, std::move(owned)); }
void InnerShelf::AssignBook(std::size_t index, Book const& value) { selected_run<Book>(chosen, m_held, BookChosen).assign(index, value); }
void InnerShelf::AssignBook(std::size_t index, Book* value) { std::unique_ptr<Book> owned(value); selected_run<Book>(chosen, m_held, BookChosen).assign(index, std::move(owned)); }
Book& InnerShelf::BackBook() { return selected_run<Book>(chosen, m_held, BookChosen).back(); }
void InnerShelf::DeleteBook(std::size_t index) { erase_at<Book>(m_held, {is_chosen(chosen, m_held, BookChosen), "chosen == BookChosen"}, index, "index < u.mBook->size()"); }
void InnerShelf::ClearBook() { selected_run<Book>(chosen, m_held, BookChosen).clear(); }
std::size_t InnerShelf::SizeBook() const { return run_size<Book>(m_held, m_held.holds(BookChosen)); }

Shelf::Shelf() { init(); }
Shelf::Shelf(Shelf const& other) = default;
Shelf::Shelf(Shelf&& other) noexcept = default;
Shelf::Shelf(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Shelf* Shelf::clone() const { return new Shelf(*this); }
Shelf::~Shelf() = default;
Shelf& Shelf::operator=(Shelf const& other) { Shelf copy(other); swap(copy); return *this; }
Shelf& Shelf::operator=(Shelf&& other) noexcept = default;
void Shelf::swap(Shelf& other) noexcept { std::swap(*this, other); }
void Shelf::reset() { Shelf empty; swap(empty); }
void Shelf::init() {}

lmx::s_event_map const Shelf::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Levels},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Shelf::elem_event_map[] = {
    {1, "BOK", 3, elem_Book},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Shelf::known_elements[] = {
    {1, "BOK", 3},
    {0, nullptr, 0},
};
lmx::elmx_error Shelf::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "SHF", __LINE__); }
lmx::elmx_error Shelf::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, mandatory_content_may_be_empty, __LINE__});
}
bool Shelf::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_text_8, __LINE__, error);
    case attr_Levels: return read_attribute(reader, m_Levels, spec_range_1_to_9_uint8, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Shelf::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_text_8, attribute);
    case 'B': return binding::accept_attribute(m_Levels, spec_range_1_to_9_uint8, attribute);
  }
  return nullptr;
}
bool Shelf::has_required_attributes() const { return m_Id.is_set(); }
lmx::elmx_error Shelf::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "SHF", __LINE__, has_required_attributes());
}
bool Shelf::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerShelf, true, {elem_event_map, "SHF", __LINE__}, error); }
lmx::elmx_error Shelf::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Shelf::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_text_8);
  write_attribute(writer, "B", m_Levels, spec_range_1_to_9_uint8);
}
lmx::elmx_error Shelf::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerShelf);
}
bool Shelf::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, !mInnerShelf.empty(), "BOK", __LINE__);
}
bool Shelf::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerShelf);
}
InnerShelf const& Shelf::GetInnerShelf(std::size_t index) const { LMX_ASSERT(index < mInnerShelf.size()); return mInnerShelf.get(index); }
InnerShelf& Shelf::GetInnerShelf(std::size_t index) { return mInnerShelf.get_or_append(index); }
InnerShelf& Shelf::AppendInnerShelf() { return mInnerShelf.append(); }
void Shelf::AppendInnerShelf(InnerShelf* value) { mInnerShelf.append(std::unique_ptr<InnerShelf>(value)); }
InnerShelf& Shelf::InsertInnerShelf(std::size_t index) { return mInnerShelf.insert(index); }
void Shelf::InsertInnerShelf(std::size_t index, InnerShelf* value) { mInnerShelf.insert(index, std::unique_ptr<InnerShelf>(value)); }
void Shelf::AssignInnerShelf(std::size_t index, InnerShelf const& value) { mInnerShelf.assign(index, value); }
void Shelf::AssignInnerShelf(std::size_t index, InnerShelf* value) { mInnerShelf.assign(index, std::unique_ptr<InnerShelf>(value)); }
InnerShelf& Shelf::BackInnerShelf() { return mInnerShelf.back(); }
void Shelf::DeleteInnerShelf(std::size_t index) { LMX_ASSERT(index < mInnerShelf.size()); mInnerShelf.erase(index); }
void Shelf::ClearInnerShelf() { mInnerShelf.clear(); }
std::size_t Shelf::SizeInnerShelf() const { return mInnerShelf.size(); }

// ---- Book ----

Book::Book() { init(); }
Book::Book(Book const& other) = default;
Book::Book(Book&& other) noexcept = default;
Book::Book(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Book* Book::clone() const { return new Book(*this); }
Book::~Book() = default;
Book& Book::operator=(Book const& other) { Book copy(other); swap(copy); return *this; }
Book& Book::operator=(Book&& other) noexcept = default;
void Book::swap(Book& other) noexcept { std::swap(*this, other); }
void Book::reset() { Book empty; swap(empty); }
void Book::init() {}

lmx::s_event_map const Book::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Kind},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Book::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Book::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error Book::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "BOK", __LINE__); }
lmx::elmx_error Book::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool Book::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_text_8, __LINE__, error);
    case attr_Kind: return read_attribute(reader, m_Kind, spec_one_of_1_2, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Book::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_text_8, attribute);
    case 'B': return binding::accept_attribute(m_Kind, spec_one_of_1_2, attribute);
  }
  return nullptr;
}
bool Book::has_required_attributes() const { return m_Id.is_set() && m_Kind.is_set(); }
lmx::elmx_error Book::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "BOK", __LINE__, has_required_attributes());
}
bool Book::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error Book::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Book::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_text_8);
  write_attribute(writer, "B", m_Kind, spec_one_of_1_2);
}
lmx::elmx_error Book::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool Book::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Kind.is_set(), "B", __LINE__);
}
bool Book::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
elmx_enums Book::GetenumKind() const { return enum_code(list_3, m_Kind.get()); }
bool Book::SetenumKind(elmx_enums code) { return set_enum(list_3, code, m_Kind); }
