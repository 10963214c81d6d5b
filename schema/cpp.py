"""C++ from the description: thin classes that name things and hand the work to isoxmllib/engine.h.

No loop and no error handling is generated. Everything that a class knows about its children stands in its
.cpp file, since alternatives cross the groups.
"""

import itertools
import textwrap

import matcher
import model

WIDTH = 110


def banner(sources):
    return [f"// clang-format off",
            f"// Generated from {sources}. Edit the schema, then build the target `schema`.", ""]


def comment(text, indent=""):
    lines = textwrap.wrap(text, WIDTH - len(indent) - 4, break_long_words=False)
    return [f"{indent}/// {line}" for line in lines]


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def inner(element):
    return f"Inner{element.name}"


def tag_literal(element):
    return quoted(element.tag)


# ---- Declarations ----

def value_doc(element, value):
    limits = value.rule.limits()
    if value.xml is None:
        place = "The text of the element"
    elif value in element.attributes:
        place = f'Attribute "{value.xml}", {value.use}'
    else:
        place = f'Element "{value.xml}", {value.use}'
    return f"{value.doc} {place}{'; ' + limits if limits else ''}."


def declare_value(element, value):
    name, cpp_type = value.field, value.cpp_type
    lines = comment(value_doc(element, value), "  ")
    if value.use == "repeated":
        return lines + [
            f"  {cpp_type} const& Get{name}(std::size_t index) const {{ LMX_ASSERT(index < m_{name}.size()); return m_{name}[index]; }}",
            f"  lmx::elmx_error Set{name}(std::size_t index, {cpp_type} const& value) {{ LMX_ASSERT(index < m_{name}.size()); m_{name}[index] = value; return lmx::ELMX_OK; }}",
            f"  void Append{name}({cpp_type} const& value) {{ m_{name}.append(new {cpp_type}(value)); }}",
            f"  void Insert{name}(std::size_t index, {cpp_type} const& value) {{ LMX_ASSERT(index <= m_{name}.size()); m_{name}.insert(index, new {cpp_type}(value)); }}",
            f"  void Delete{name}(std::size_t index) {{ LMX_ASSERT(index < m_{name}.size()); m_{name}.erase(index); }}",
            f"  void Clear{name}() {{ m_{name}.clear(); }}",
            f"  std::size_t Size{name}() const {{ return m_{name}.size(); }}",
            f"  {cpp_type} const& Back{name}() const {{ LMX_ASSERT(!m_{name}.empty()); return m_{name}[m_{name}.size() - 1]; }}",
        ]
    lines += [
        f"  lmx::elmx_error Set{name}({cpp_type} const& value) {{ return {value.own_member}.set(value); }}",
        f"  {cpp_type} const& Get{name}() const {{ return {value.member}.get(); }}",
        f"  bool Isset{name}() const {{ return {value.member}.is_set(); }}",
        f"  void Unset{name}() {{ {'if (m_rare.is_there()) ' if value.rare else ''}{value.own_member}.unset(); }}",
    ]
    if value.rule.one_of:
        lines += [
            f"  /// Its code; 0 when the text is none of the list.",
            f"  elmx_enums Getenum{name}() const;",
            f"  /// Stores the text of `code`. False, and no change, for a code of another list.",
            f"  bool Setenum{name}(elmx_enums code);",
        ]
    return lines


def declare_field(value):
    container = {"required": "single", "optional": "optional", "repeated": "multi"}[value.use]
    return f"  lmx::ct_simple_pod_{container}<{value.cpp_type}> m_{value.field};"


def declare_life(name):
    return [
        f"  {name}();",
        f"  {name}({name} const& other);",
        f"  /// Leaves `other` behind like a new object.",
        f"  {name}({name}&& other) noexcept;",
        f"  /// Reads itself from `reader`; `*error` is the result.",
        f"  {name}(lmx::xmlReader& reader, lmx::elmx_error* error);",
        f"  /// A copy that the caller owns.",
        f"  virtual {name}* clone() const;",
        f"  virtual ~{name}();",
        f"  /// Deep; when copying fails the target is unchanged.",
        f"  {name}& operator=({name} const& other);",
        f"  {name}& operator=({name}&& other) noexcept;",
        f"  void swap({name}& other) noexcept;",
        f"  /// Back to the state of a new object.",
        f"  void reset();",
        f"  void init();",
    ]


def declare_list(name, class_name, of):
    """Accessors of a list of children that is kept in document order."""
    return [
        f"  /// {of} The const forms stop the process on a bad index; the non-const `Get` and `Assign`",
        f"  /// add default objects until the index exists. Pointers given are owned from then on.",
        f"  {class_name} const& Get{name}(std::size_t index) const;",
        f"  {class_name}& Get{name}(std::size_t index);",
        f"  {class_name}& Append{name}();",
        f"  void Append{name}({class_name}* value);",
        f"  {class_name}& Insert{name}(std::size_t index);",
        f"  void Insert{name}(std::size_t index, {class_name}* value);",
        f"  void Assign{name}(std::size_t index, {class_name} const& value);",
        f"  void Assign{name}(std::size_t index, {class_name}* value);",
        f"  {class_name}& Back{name}();",
        f"  void Delete{name}(std::size_t index);",
        f"  void Clear{name}();",
        f"  std::size_t Size{name}() const;",
    ]


def declare_alternative(alternative):
    name, class_name = alternative.name, alternative.element.name
    if alternative.held == "run":
        return (["", f"  /// Makes `{name}` the alternative held, with an empty run; no effect when it is already.",
                 f"  void Select{name}();"]
                + declare_list(name, class_name, f"The run of \"{alternative.element.tag}\"."))
    lines = ["", f"  /// Makes `{name}` the alternative held, with no object yet; no effect when it is already.",
             f"  void Select{name}();",
             f"  /// The \"{alternative.element.tag}\". The const form stops the process unless it is chosen and there; the",
             f"  /// other selects and creates it.",
             f"  {class_name} const& Get{name}() const;",
             f"  {class_name}& Get{name}();"]
    if alternative.element.text:
        lines.append(f"  void Set{name}({alternative.element.text.cpp_type} const& text);")
    return lines


def declare_choice_marshal():
    return [
        "  /// Writes what is held under its own tag; `name` is ignored. Nothing for `NothingChosen`;",
        "  /// `ELMX_BAD_CHOICE` for a `chosen` that is no alternative.",
        "  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;",
        "  /// Writes nothing: a choice has no attributes.",
        "  void marshal_attributes(lmx::c_xml_writer&) const {}",
        "  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;",
    ]


def declare_choice_class(name, doc, alternatives, count, read_document):
    lines = comment(doc) + [f"class ISOXML_API {name} {{", " public:", "  /// The alternatives' numbers; `chosen` is one of them.",
                            "  enum : std::int32_t {"]
    lines += [f"    {row.name}Chosen = {row.chosen}," for row in alternatives]
    lines += [f"    NothingChosen = {count},", "  };", ""] + declare_life(name) + [
        "",
        "  /// Frees whatever is held; nothing is chosen afterwards.",
        "  void release_choice();",
        "  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;",
        "  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;",
        "  /// True when the reader stands at one of the alternatives.",
        "  static bool IsMember(lmx::xmlReader& reader);",
    ]
    if read_document:
        lines += ["  /// Reads a document, whatever element it begins with.",
                  "  lmx::elmx_error unmarshal(lmx::xmlReader& reader);"]
    lines += ["  bool unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error);"] + declare_choice_marshal()
    for row in alternatives:
        lines += declare_alternative(row)
    lines += ["", "  std::int32_t chosen;", "",
              "  static lmx::s_event_map const elem_event_map[];"]
    if read_document:
        lines += ["  static lmx::s_known_elements const known_elements[];"]
    lines += ["", " private:", "  lmx::ct_choice m_held;", "};", ""]
    return lines


def wrapper_doc(element):
    return (f"A stretch of the children of `{element.name}`: one unbroken run of like siblings, or one child, as "
            f"`chosen` tells. It has no XML element of its own.")


def element_doc(element):
    return f'{element.name}, element "{element.tag}". {element.doc}'


def declare_element(element):
    name = element.name
    lines = []
    if element.alternatives:
        lines += declare_choice_class(inner(element), wrapper_doc(element), element.alternatives,
                                      len(element.alternatives), False)
    lines += comment(element_doc(element))
    if element.values:
        lines += ["/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default."]
    lines += [f"class ISOXML_API {name} {{", " public:"] + declare_life(name)
    for value in element.values:
        lines += [""] + declare_value(element, value)
    if element.alternatives:
        wrapper = inner(element)
        lines.append("")
        if element.children == "at_most_one":
            lines += [
                f"  /// The children, when there are any. The const form stops the process when there are none; the",
                f"  /// other creates the wrapper.",
                f"  {wrapper} const& Get{wrapper}() const;",
                f"  {wrapper}& Get{wrapper}();",
                f"  void Assign{wrapper}({wrapper} const& value);",
                f"  /// Takes ownership.",
                f"  void Assign{wrapper}({wrapper}* value);",
                f"  bool Isset{wrapper}() const;",
                f"  void Unset{wrapper}();",
            ]
        else:
            lines += declare_list(wrapper, wrapper, "The children, in document order.")
    if element.list_of:
        lines += [""] + declare_list(element.list_of.name, element.list_of.name, "The children, in document order.")
    lines += [
        "",
        "  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).",
        "  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;",
        "  /// The same for this element, under `name` in the recorded path, and all that it holds.",
        "  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;",
        "  /// Reads this element as the document's top element.",
        "  lmx::elmx_error unmarshal(lmx::xmlReader& reader);",
        "  /// Reads this element when its start tag has been seen.",
        "  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);",
        "  /// Reads the attribute now at the reader. False when it is none of this element's.",
        "  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);",
        "  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with",
        "  /// nothing changed, for any other.",
        "  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);",
        "  /// True when all required attributes are set.",
        "  bool has_required_attributes() const;",
        "  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.",
        "  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);",
        "  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);",
        "  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.",
        "  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;",
        "  /// Writes every required attribute, set or not, and each optional one that is set.",
        "  void marshal_attributes(lmx::c_xml_writer& writer) const;",
        "  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.",
        "  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;",
        "",
        "  static lmx::s_event_map const attr_event_map[];",
        "  static lmx::s_event_map const elem_event_map[];",
        "  static lmx::s_known_elements const known_elements[];",
    ]
    fields = [declare_field(value) for value in element.values if not value.rare]
    rare = [declare_field(value) for value in element.values if value.rare]
    if rare:
        fields += ["  struct rare_fields {"] + ["  " + field for field in rare] + ["  };", "  lmx::ct_rare<rare_fields> m_rare;"]
    if element.alternatives:
        container = "optional" if element.children == "at_most_one" else "multi"
        fields.append(f"  lmx::ct_complex_{container}<{inner(element)}> m{inner(element)};")
    if element.list_of:
        fields.append(f"  lmx::ct_complex_multi<{element.list_of.name}> m{element.list_of.name};")
    if fields:
        lines += ["", " private:"] + fields
    return lines + ["};", ""]


# ---- Definitions ----

def define_life(name, init, read, moves):
    return [
        f"{name}::{name}() {{ init(); }}",
        f"{name}::{name}({name} const& other) = default;",
        moves[0],
        f"{name}::{name}(lmx::xmlReader& reader, lmx::elmx_error* error) {{ init(); {read} }}",
        f"{name}* {name}::clone() const {{ return new {name}(*this); }}",
        f"{name}::~{name}() = default;",
        f"{name}& {name}::operator=({name} const& other) {{ {name} copy(other); swap(copy); return *this; }}",
        *moves[1:],
        f"void {name}::reset() {{ {name} empty; swap(empty); }}",
        f"void {name}::init() {{{init}}}",
    ]


def define_element_life(name):
    """The fields themselves leave new ones behind when they are moved from."""
    return define_life(name, "", READ_WHOLE, [
        f"{name}::{name}({name}&& other) noexcept = default;",
        f"{name}& {name}::operator=({name}&& other) noexcept = default;",
        f"void {name}::swap({name}& other) noexcept {{ std::swap(*this, other); }}",
    ])


def define_choice_life(name, read):
    """`chosen` is a plain number, which a move has to reset."""
    return define_life(name, " chosen = NothingChosen; ", read, [
        f"{name}::{name}({name}&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {{}}",
        f"{name}& {name}::operator=({name}&& other) noexcept {{ {name} taken(std::move(other)); swap(taken); return *this; }}",
        f"void {name}::swap({name}& other) noexcept {{ std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }}",
    ])


READ_WHOLE = "*error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader);"
READ_ROOT = "*error = lmx::ELMX_UNDEFINED_ERROR; Root content; *error = content.unmarshal(reader); swap(content);"
READ_WRAPPER = "*error = lmx::ELMX_OK; unmarshal(reader, error);"


def event_row(name, event):
    return f"    {{1, {quoted(name)}, {len(name)}, {event}}},"


def event_map(class_name, kind, rows):
    return [f"lmx::s_event_map const {class_name}::{kind}_event_map[] = {{"] + \
           [event_row(*row) for row in rows] + ["    {0, nullptr, 0, 0},", "};"]


def known_elements(class_name, tags):
    return [f"lmx::s_known_elements const {class_name}::known_elements[] = {{"] + \
           [f"    {{1, {quoted(tag)}, {len(tag)}}}," for tag in tags] + ["    {0, nullptr, 0},", "};"]


def alternative_events(alternatives):
    return [(row.element.tag, f"elem_{alternative_event(row)}") for row in alternatives]


def alternative_event(row):
    return row.element.usual_alternative if row.name == row.element.name else row.name


def define_alternative(wrapper, row, index_limit=None):
    name, class_name = row.name, row.element.name
    chosen = f"{name}Chosen"
    contract = f'{{is_chosen(chosen, m_held, {chosen}), "chosen == {chosen}"}}'
    if row.held == "one":
        one = f"selected_one<{class_name}>(chosen, m_held, {chosen})"
        lines = [
            f"void {wrapper}::Select{name}() {{ {one}; }}",
            f"{class_name} const& {wrapper}::Get{name}() const {{ return chosen_one<{class_name}>(m_held, {contract}); }}",
            f"{class_name}& {wrapper}::Get{name}() {{ return {one}.get_or_create(); }}",
        ]
        if row.element.text:
            text = row.element.text
            lines.append(f"void {wrapper}::Set{name}({text.cpp_type} const& text) {{ Get{name}().Set{text.field}(text); }}")
        return lines
    run = f"selected_run<{class_name}>(chosen, m_held, {chosen})"
    index_text = quoted(f"index < u.m{name}->size()")
    limit = f"LMX_ASSERT(index < {index_limit}); " if index_limit else ""
    return [
        f"void {wrapper}::Select{name}() {{ {run}; }}",
        f"{class_name} const& {wrapper}::Get{name}(std::size_t index) const {{ {limit}return run_at<{class_name}>(m_held, {contract}, index, {index_text}); }}",
        f"{class_name}& {wrapper}::Get{name}(std::size_t index) {{ {limit}return {run}.get_or_append(index); }}",
        f"{class_name}& {wrapper}::Append{name}() {{ return {run}.append(); }}",
        f"void {wrapper}::Append{name}({class_name}* value) {{ std::unique_ptr<{class_name}> owned(value); {run}.append(std::move(owned)); }}",
        f"{class_name}& {wrapper}::Insert{name}(std::size_t index) {{ return {run}.insert(index); }}",
        f"void {wrapper}::Insert{name}(std::size_t index, {class_name}* value) {{ std::unique_ptr<{class_name}> owned(value); {run}.insert(index, std::move(owned)); }}",
        f"void {wrapper}::Assign{name}(std::size_t index, {class_name} const& value) {{ {run}.assign(index, value); }}",
        f"void {wrapper}::Assign{name}(std::size_t index, {class_name}* value) {{ std::unique_ptr<{class_name}> owned(value); {run}.assign(index, std::move(owned)); }}",
        f"{class_name}& {wrapper}::Back{name}() {{ return {run}.back(); }}",
        f"void {wrapper}::Delete{name}(std::size_t index) {{ erase_at<{class_name}>(m_held, {contract}, index, {index_text}); }}",
        f"void {wrapper}::Clear{name}() {{ {run}.clear(); }}",
        f"std::size_t {wrapper}::Size{name}() const {{ return run_size<{class_name}>(m_held, m_held.holds({chosen})); }}",
    ]


def define_choice_checks(name, alternatives, occurs):
    lines = [
        f"void {name}::release_choice() {{ m_held.release(); chosen = NothingChosen; }}",
        f"bool {name}::IsOccursOk(lmx::c_check_tracker*{' tracker' if occurs != 'true' else ''}) const {{ return {occurs}; }}",
    ]
    lines += [
        f"bool {name}::Check(lmx::c_check_tracker* tracker, char const* name) const {{",
        "  lmx::c_check_tracker link(tracker, name);",
        "  if (!IsOccursOk(&link)) return false;",
        "  switch (chosen) {",
    ]
    lines += [f"    case {row.name}Chosen: return m_held.check(&link, {quoted(row.element.tag)});" for row in alternatives]
    return lines + ["  }", "  return true;", "}"]


def define_choice_marshal(name):
    return [
        f"lmx::elmx_error {name}::marshal(lmx::c_xml_writer& writer, char const*) const {{ return marshal_child_elements(writer); }}",
        f"lmx::elmx_error {name}::marshal_child_elements(lmx::c_xml_writer& writer) const {{ return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }}",
    ]


def define_wrapper(element):
    name = inner(element)
    rows = element.alternatives
    tag = tag_literal(element)
    mandatory = element.children == "at_least_one"
    lines = define_choice_life(name, READ_WRAPPER) + [""]
    lines += event_map(name, "elem", alternative_events(rows))
    lines += define_choice_checks(name, rows, "true")
    lines += [f"bool {name}::IsMember(lmx::xmlReader& reader) {{ return is_member(reader, elem_event_map); }}",
              f"bool {name}::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {{",
              "  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);",
              "  switch (reader.m_event) {"]
    for row in rows:
        class_name, chosen, event = row.element.name, f"{row.name}Chosen", f"elem_{alternative_event(row)}"
        at = f"{{elem_event_map, {tag}, __LINE__}}"
        if row.held == "one":
            call = f"read_one(reader, new_one<{class_name}>(chosen, m_held, {chosen}), {at}, error)"
        else:
            function = "read_mandatory_run" if mandatory and row.chosen == 0 else "read_run"
            limit = f", {row.run_limit}" if row.run_limit else ""
            call = f"{function}(reader, new_run<{class_name}>(chosen, m_held, {chosen}), {event}, {at}, error{limit})"
        lines.append(f"    case {event}: return {call};")
    lines.append("  }")
    if mandatory and len(element.alternatives) == 1:
        lines.append(f"  return report(reader, lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, {{elem_event_map, {tag}, __LINE__}}, error);")
    else:
        lines.append("  return true;")
    lines += ["}"] + define_choice_marshal(name) + [""]
    for row in rows:
        # Where wrappers repeat, the limit of a run is where reading begins the next one, and bounds no host.
        index_limit = row.run_limit if element.children == "at_most_one" else None
        lines += define_alternative(name, row, index_limit) + [""]
    return lines


def define_list(owner, name, class_name, member):
    return [
        f"{class_name} const& {owner}::Get{name}(std::size_t index) const {{ LMX_ASSERT(index < {member}.size()); return {member}.get(index); }}",
        f"{class_name}& {owner}::Get{name}(std::size_t index) {{ return {member}.get_or_append(index); }}",
        f"{class_name}& {owner}::Append{name}() {{ return {member}.append(); }}",
        f"void {owner}::Append{name}({class_name}* value) {{ {member}.append(std::unique_ptr<{class_name}>(value)); }}",
        f"{class_name}& {owner}::Insert{name}(std::size_t index) {{ return {member}.insert(index); }}",
        f"void {owner}::Insert{name}(std::size_t index, {class_name}* value) {{ {member}.insert(index, std::unique_ptr<{class_name}>(value)); }}",
        f"void {owner}::Assign{name}(std::size_t index, {class_name} const& value) {{ {member}.assign(index, value); }}",
        f"void {owner}::Assign{name}(std::size_t index, {class_name}* value) {{ {member}.assign(index, std::unique_ptr<{class_name}>(value)); }}",
        f"{class_name}& {owner}::Back{name}() {{ return {member}.back(); }}",
        f"void {owner}::Delete{name}(std::size_t index) {{ LMX_ASSERT(index < {member}.size()); {member}.erase(index); }}",
        f"void {owner}::Clear{name}() {{ {member}.clear(); }}",
        f"std::size_t {owner}::Size{name}() const {{ return {member}.size(); }}",
    ]


def define_check(element):
    occurs = [f'check_occurs(tracker, m_{value.field}.is_set(), {quoted(value.xml or element.tag)}, __LINE__)'
              for value in element.required]
    children = []
    if element.alternatives:
        member = f"m{inner(element)}"
        if element.children == "at_least_one":
            first = quoted(element.alternatives[0].element.tag)
            occurs.append(f"check_occurs(tracker, !{member}.empty(), {first}, __LINE__)")
        children.append(f"check_wrapper{'' if element.children == 'at_most_one' else 's'}(&link, {member})")
    if element.list_of:
        children.append(f"check_children(&link, m{element.list_of.name}, {quoted(element.list_of.tag)})")
    tracker = " tracker" if occurs else ""
    return [
        f"bool {element.name}::IsOccursOk(lmx::c_check_tracker*{tracker}) const {{",
        "  return " + " &&\n         ".join(occurs or ["true"]) + ";",
        "}",
        f"bool {element.name}::Check(lmx::c_check_tracker* tracker, char const* name) const {{",
        "  lmx::c_check_tracker link(tracker, name);",
        "  return " + " && ".join(["IsOccursOk(&link)"] + children) + ";",
        "}",
    ]


def define_attributes(element):
    name = element.name
    if not element.attributes:
        return [
            f"bool {name}::unmarshal_attributes(lmx::xmlReader&, lmx::elmx_error*) {{ return false; }}",
            f"lmx::c_untyped_validation_spec const* {name}::accept_attribute(lmx::plain_attribute const&) {{ return nullptr; }}",
        ] + define_required(element)
    lines = [
        f"bool {name}::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {{",
        "  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);",
        "  switch (reader.m_event) {",
    ]
    lines += [f"    case {attribute_event(element, value)}: return read_attribute(reader, {value.own_member}, {value.spec}, __LINE__, error);"
              for value in element.attributes]
    lines += ["  }", "  return false;", "}"]
    return lines + define_accept(element) + define_required(element)


def define_required(element):
    required = [f"m_{value.field}.is_set()" for value in element.attributes if value.use == "required"]
    lines = [f"bool {element.name}::has_required_attributes() const {{ return {' && '.join(required) or 'true'}; }}"]
    if not required:
        return lines + [f"lmx::elmx_error {element.name}::unmarshal_attributes_check(lmx::xmlReader&) {{ return lmx::ELMX_OK; }}"]
    return lines + [
        f"lmx::elmx_error {element.name}::unmarshal_attributes_check(lmx::xmlReader& reader) {{",
        f"  return check_required(reader, {tag_literal(element)}, __LINE__, has_required_attributes());",
        "}",
    ]


def define_accept(element):
    """The short cut for the attributes whose names are one letter, as all but the extensions' are."""
    head = f"lmx::c_untyped_validation_spec const* {element.name}::accept_attribute(lmx::plain_attribute const&"
    quick = [value for value in element.attributes if len(value.xml) == 1 and has_acceptor(value)]
    if not quick:
        return [f"{head}) {{ return nullptr; }}"]
    lines = [f"{head} attribute) {{", "  switch (attribute.letter()) {"]
    lines += [f"    case '{value.xml}': return binding::accept_attribute({value.own_member}, {value.spec}, attribute);"
              for value in quick]
    return lines + ["  }", "  return nullptr;", "}"]


def attribute_event(element, value):
    return f"attr_{element.name}_{value.field}" if value.own_event else f"attr_{value.field}"


def define_body(element):
    name, tag = element.name, tag_literal(element)
    at = f"{{elem_event_map, {tag}, __LINE__}}"
    if element.text:
        return [f"bool {name}::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) {{ return read_text(reader, m_{element.text.field}, {element.text.spec}, __LINE__, error); }}"]
    if element.alternatives:
        member = f"m{inner(element)}"
        if element.children == "at_most_one":
            call = f"read_wrapper(reader, {member}, {at}, error)"
        else:
            call = f"read_wrappers(reader, {member}, {'true' if element.children == 'at_least_one' else 'false'}, {at}, error)"
        return [f"bool {name}::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) {{ return {call}; }}"]
    if element.list_of:
        event = f"elem_{element.list_of.usual_alternative}"
        return [f"bool {name}::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) {{ return read_list(reader, m{element.list_of.name}, {event}, {at}, error); }}"]
    if element.simple_children:
        steps = []
        for child in element.simple_children:
            function = {"required": "read_required_child", "optional": "read_optional_child",
                        "repeated": "read_repeated_child"}[child.use]
            steps.append(f"{function}(reader, m_{child.field}, {child.spec}, elem_{child.field}, {at}, error)")
        return [f"bool {name}::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) {{",
                "  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);",
                "  return " + " &&\n         ".join(steps) + ";", "}"]
    return [f"bool {name}::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) {{ return true; }}"]


def define_marshal(element):
    return ([f"lmx::elmx_error {element.name}::marshal(lmx::c_xml_writer& writer, char const* name) const {{ return write_element(*this, writer, name); }}"]
            + marshal_function("void", f"{element.name}::marshal_attributes", marshal_attribute_steps(element))
            + marshal_function("lmx::elmx_error", f"{element.name}::marshal_child_elements", marshal_content_steps(element)))


def marshal_function(result, name, steps):
    writer = " writer" if any("writer" in step for step in steps) else ""
    return [f"{result} {name}(lmx::c_xml_writer&{writer}) const {{"] + [f"  {step}" for step in steps] + ["}"]


def marshal_attribute_steps(element):
    steps = []
    for rare, values in itertools.groupby(element.attributes, lambda value: value.rare):
        fields = "rare->" if rare else ""
        writes = [f"write_attribute(writer, {quoted(value.xml)}, {fields}m_{value.field}, {value.spec});" for value in values]
        steps += ["if (rare != nullptr) {"] + [f"  {write}" for write in writes] + ["}"] if rare else writes
    if any(value.rare for value in element.attributes):
        steps.insert(0, "auto const* const rare = m_rare.find();")
    return steps


def marshal_content_steps(element):
    if element.alternatives:
        function = "write_wrapper" if element.children == "at_most_one" else "write_wrappers"
        return [f"return {function}(writer, m{inner(element)});"]
    if element.list_of:
        return [f"return write_list(writer, m{element.list_of.name}, {tag_literal(element.list_of)});"]
    steps = [f"write_simple_child(writer, {quoted(child.xml)}, m_{child.field}, {child.spec});" for child in element.simple_children]
    if element.text:
        steps.append(f"write_text(writer, m_{element.text.field}, {element.text.spec});")
    return steps + ["return lmx::ELMX_OK;"]


def child_tags(element):
    """The tags of an element's children, each once, with the events it dispatches on."""
    if element.list_of:
        return [(element.list_of.tag, f"elem_{element.list_of.usual_alternative}")]
    if element.simple_children:
        return [(child.xml, f"elem_{child.field}") for child in element.simple_children]
    return alternative_events(element.alternatives)


def define_element(element):
    name, tag = element.name, tag_literal(element)
    lines = [f"// ---- {name} ----", ""]
    if element.alternatives:
        lines += define_wrapper(element)
    lines += define_element_life(name) + [""]
    lines += event_map(name, "attr", [(value.xml, attribute_event(element, value)) for value in element.attributes])
    tags = child_tags(element)
    lines += event_map(name, "elem", tags)
    lines += known_elements(name, [tag_name for tag_name, _ in tags])
    has_children = element.alternatives or element.list_of or element.simple_children
    content = "simple" if element.text else "complex" if has_children else "empty"
    mandatory = element.children == "at_least_one" or element.simple_children
    empty = "mandatory_content_may_be_empty" if mandatory else "false" if element.text else "true"
    table = "nullptr" if element.text else "known_elements"
    collect = f", &lmx::xmlReader::{element.collect}" if element.collect else ""
    lines += [
        f"lmx::elmx_error {name}::unmarshal(lmx::xmlReader& reader) {{ return read_document(*this, reader, {tag}, __LINE__); }}",
        f"lmx::elmx_error {name}::unmarshal(lmx::xmlReader& reader, std::string const& name) {{",
        f"  return read_element(*this, reader, name, {{&lmx::c_unmarshal_helper::unmarshal_{content}_content, {table}, {empty}, __LINE__}}{collect});",
        "}",
    ]
    lines += define_attributes(element) + define_body(element) + define_marshal(element) + define_check(element)
    if element.alternatives:
        wrapper, member = inner(element), f"m{inner(element)}"
        if element.children == "at_most_one":
            lines += [
                f"{wrapper} const& {name}::Get{wrapper}() const {{ return {member}.get(); }}",
                f"{wrapper}& {name}::Get{wrapper}() {{ return {member}.get_or_create(); }}",
                f"void {name}::Assign{wrapper}({wrapper} const& value) {{ {member}.assign(value.clone()); }}",
                f"void {name}::Assign{wrapper}({wrapper}* value) {{ {member}.assign(value); }}",
                f"bool {name}::Isset{wrapper}() const {{ return {member}.is_set(); }}",
                f"void {name}::Unset{wrapper}() {{ {member}.unset(); }}",
            ]
        else:
            lines += define_list(name, wrapper, wrapper, member)
    if element.list_of:
        lines += define_list(name, element.list_of.name, element.list_of.name, f"m{element.list_of.name}")
    for value in element.attributes:
        if value.rule.one_of:
            lines += [
                f"elmx_enums {name}::Getenum{value.field}() const {{ return enum_code({list_name(value)}, {value.member}.get()); }}",
                f"bool {name}::Setenum{value.field}(elmx_enums code) {{ return set_enum({list_name(value)}, code, {value.own_member}); }}",
            ]
    return lines + [""]


# ---- Files ----

TYPE_HEADERS = {
    "binary": "GenLibrarySupportFiles/lmxtypes/c_binary.h",
    "date_time": "GenLibrarySupportFiles/lmxtypes/date_time.h",
    "decimal": "GenLibrarySupportFiles/lmxtypes/c_decimal.h",
}
INTERNALS = ["api", "check_tracker", "choice", "containers"]


def includes(paths):
    return [f'#include "{path}"' for path in paths]


def group_header(schema, group):
    elements = [element for element in schema.elements.values() if element.group == group]
    types = {value.type for element in elements for value in element.values}
    lines = banner(f"schema/{group}.toml") + ["#pragma once", "", "#include <cstddef>", "#include <cstdint>",
                                             "#include <string>", ""]
    lines += includes(sorted([f"GenLibrarySupportFiles/lmxinternals/{name}.h" for name in INTERNALS]
                             + ["GenLibrarySupportFiles/lmxparse/c_xml_reader.h"]
                             + [TYPE_HEADERS[name] for name in types if name in TYPE_HEADERS]))
    lines += includes(["isoxmllib/enums.h", "isoxmllib/fwd.h"]) + [""]
    for element in elements:
        lines += declare_element(element)
    return lines[:-1]


def group_source(schema, group):
    elements = [element for element in schema.elements.values() if element.group == group]
    held = {row.element.group for element in elements for row in element.alternatives}
    lines = banner(f"schema/{group}.toml") + includes([f"isoxmllib/{group}.h"]) + ["", "#include <memory>", "#include <utility>", ""]
    lines += includes(["isoxmllib/engine.h", "isoxmllib/events.h", "isoxmllib/rules.h", "isoxmllib/specs.h"]
                      + [f"isoxmllib/{name}.h" for name in sorted(held - {group})])
    lines += ["", "using namespace binding;", ""]
    for element in elements:
        lines += define_element(element)
    return lines[:-1]


ROOT_DOC = ("Every document passes through here: a single choice over every element of the format, so that a whole "
            "document and any fragment are read and written alike.")


def root_header(schema):
    rows = schema.root
    lines = banner("schema/root.toml") + ["#pragma once", "", "#include <cstdint>", "#include <string>", ""]
    lines += includes([f"GenLibrarySupportFiles/lmxinternals/{name}.h" for name in ("api", "check_tracker", "choice")]
                      + ["GenLibrarySupportFiles/lmxparse/c_xml_reader.h", "isoxmllib/fwd.h"]) + [""]
    return lines + declare_choice_class("Root", ROOT_DOC, rows, len(schema.root), True)[:-1]


def root_source(schema):
    rows = schema.root
    groups = [group for group in model.GROUPS if any(row.element.group == group for row in rows)]
    lines = banner("schema/root.toml") + includes(["isoxmllib/root.h"]) + ["", "#include <memory>", "#include <utility>", ""]
    lines += includes(["isoxmllib/engine.h", "isoxmllib/events.h"] + [f"isoxmllib/{group}.h" for group in sorted(groups)])
    lines += ["", "using namespace binding;", ""]
    lines += define_choice_life("Root", READ_ROOT) + [""]
    lines += event_map("Root", "elem", [(row.element.tag, f"elem_{row.element.usual_alternative}") for row in rows])
    lines += known_elements("Root", [row.element.tag for row in rows])
    lines += define_choice_checks("Root", rows, 'check_occurs(tracker, chosen != NothingChosen, "<choice not set>", __LINE__)')
    lines += [
        "bool Root::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }",
        "lmx::elmx_error Root::unmarshal(lmx::xmlReader& reader) { return read_any_document(*this, reader, elem_event_map, known_elements, __LINE__); }",
        "bool Root::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {",
        "  switch (reader.m_event) {",
    ]
    for row in rows:
        lines.append(f"    case elem_{row.element.usual_alternative}: return read_alternative(reader, new_one<{row.element.name}>(chosen, m_held, {row.name}Chosen), __LINE__, error);")
    lines += ["  }", "  return report_unknown_top_element(reader, __LINE__, error);", "}"] + define_choice_marshal("Root") + [""]
    for row in rows:
        lines += define_alternative("Root", row) + [""]
    return lines[:-1]


def fwd_header(schema):
    names = sorted([element.name for element in schema.elements.values()]
                   + [inner(element) for element in schema.elements.values() if element.alternatives] + ["Root"])
    return banner("schema") + ["// Names of all element classes, for headers that only point at them.", "#pragma once", "",
                               "namespace lmx {", "class c_xml_writer;", "class xmlReader;", "}", ""] + [f"class {name};" for name in names]


def events_header(schema):
    lines = banner("schema") + ["// The event numbers of the schema's names: one number space for attributes and elements of all classes.",
                                "// Private to the library.", "#pragma once", "", "namespace binding {", "", "enum schema_event : int {"]
    prefix = {"attribute": "attr", "element": "elem"}
    lines += [f"  {prefix[kind]}_{name} = {number}," for (kind, name), number in schema.events.items()]
    return lines + ["};", "", "}  // namespace binding"]


def enum_name(text):
    return f"elmx_enum_{text}"


def enums_header(schema):
    lines = banner("schema") + ["#pragma once", "",
                                "/// The texts that enumerated attributes may hold, as codes. One list for all attributes; each accepts",
                                "/// only the codes of its own texts.",
                                "enum elmx_enums : int {", "  elmx_enum_none = 0,  ///< No value, or a text outside the list."]
    return lines + [f"  {enum_name(text)} = {code}," for code, text in enumerate(schema.enums, 1)] + ["};"]


def list_name(value):
    return f"list_{value.value}"


def numbered_validators(schema):
    """The lexical and the value validators: number and a value that shows the rule."""
    return list(enumerate(schema.lexical, 1)), list(enumerate(schema.values, 1))


def validators_header(schema):
    lexical, values = numbered_validators(schema)
    types = {value.type for _, value in values}
    lines = banner("schema/rules.toml") + ["// The checks of every simple type, text first and then value. Each reports through the reader's",
                                           "// `report_error` with the item `m_name`; a report that is tolerated lets it go on to its next test.",
                                           "// Each limit has its code: a form ELMX_VALUE_BAD_FORMAT, a length ELMX_LENGTH_TOO_SHORT and",
                                           "// ELMX_LENGTH_TOO_LONG, a pattern ELMX_NO_PATTERN_MATCHED, a range ELMX_VALUE_EXCEEDS_MIN and",
                                           "// ELMX_VALUE_EXCEEDS_MAX, a list ELMX_VALUE_NOT_ENUMERATED.",
                                           "#pragma once", "", "#include <string>", ""]
    lines += includes(["GenLibrarySupportFiles/lmxparse/c_xml_reader.h"]
                      + sorted(TYPE_HEADERS[name] for name in types if name in TYPE_HEADERS)) + [""]
    for number, value in lexical:
        lines += comment(lexical_doc(value.rule))
        lines.append(f"ISOXML_API lmx::elmx_error LexicalValidator{number}(lmx::c_xml_reader& reader, std::string const& text);")
    lines.append("")
    for number, value in values:
        lines += comment(value_rule_doc(value.rule))
        lines.append(f"ISOXML_API lmx::elmx_error ValueValidator{number}(lmx::c_xml_reader& reader, {value.cpp_type} const& value);")
    return lines


def lexical_doc(rule):
    words = [f"{rule.form}" if rule.form else None,
             f"at least {rule.min_length} characters" if rule.min_length is not None else None,
             f"at most {rule.max_length} characters" if rule.max_length is not None else None,
             f"pattern {rule.pattern}" if rule.pattern else None,
             f"from {rule.minimum} to {rule.maximum}" if rule.minimum is not None else None]
    words = [word for word in words if word]
    text = ", ".join(words) if words else "accepts every text"
    return text[0].upper() + text[1:] + "."


def value_rule_doc(rule):
    if rule.one_of:
        return "One of " + ", ".join(f'"{text}"' for text in rule.one_of) + "."
    if rule.min_bytes is not None:
        return f"From {rule.min_bytes} to {rule.max_bytes} bytes."
    if rule.low is not None:
        return f"From {rule.low} to {rule.high}."
    return "Accepts every value."


def validators_source(schema):
    lexical, values = numbered_validators(schema)
    patterns = pattern_names(schema)
    bounds = sorted({bound for _, value in lexical if value.rule.minimum is not None
                     for bound in (value.rule.minimum, value.rule.maximum)}, key=int)
    lines = banner("schema/rules.toml") + includes(["isoxmllib/validators.h"]) + [""] + includes(["isoxmllib/rules.h", "isoxmllib/specs.h"])
    lines += ["", "using namespace binding;", "", "namespace {", ""]
    if patterns:
        lines += ["// Each is made and compiled when a text first asks for it: memory that fails is the reader's to report,",
                  "// and while the library is loaded nobody could. The bounds below are short enough to need none."]
        lines += [f"lmx::c_regex const& pattern_{index}() {{ static lmx::c_regex const pattern({quoted(pattern)}); return pattern; }}"
                  for pattern, index in patterns.items()] + [""]
    if bounds:
        lines += [f"lmx::c_big_int const {bound_name(bound)}({quoted(bound)});" for bound in bounds] + [""]
    ranges = sorted({(value.cpp_type, bound) for _, value in values if value.type == "decimal" and value.rule.low is not None
                     for bound in (value.rule.low, value.rule.high)}, key=lambda row: float(row[1]))
    if ranges:
        lines += [f"{cpp_type} const {bound_name(bound)}({quoted(bound)});" for cpp_type, bound in ranges] + [""]
    lines += ["}  // namespace", ""]
    for number, value in lexical:
        lines.append(define_lexical(number, value.rule, patterns))
    lines.append("")
    for number, value in values:
        lines.append(define_value(number, value))
    return lines


def bound_name(bound):
    return "bound_" + str(bound).replace("-", "minus_").replace(".", "_")


def define_lexical(number, rule, patterns):
    head = f"lmx::elmx_error LexicalValidator{number}"
    reader_text = "(lmx::c_xml_reader& reader, std::string const& text)"
    if rule.minimum is not None:
        return f"{head}{reader_text} {{ return check_integer(reader, text, {bound_name(rule.minimum)}, {bound_name(rule.maximum)}); }}"
    form = f"&{FORM_CHECKS[rule.form]}" if rule.form else "nullptr"
    if not (rule.form or rule.pattern or rule.max_length is not None):
        return f"{head}(lmx::c_xml_reader&, std::string const&) {{ return lmx::ELMX_OK; }}"
    minimum = rule.min_length if rule.min_length is not None else 0
    maximum = rule.max_length if rule.max_length is not None else "no_max_length"
    pattern = f"&pattern_{patterns[rule.pattern]}" if rule.pattern else "nullptr"
    return f"{head}{reader_text} {{ return check_text(reader, text, {{{form}, {minimum}, {maximum}, {pattern}}}); }}"


FORM_CHECKS = {
    "boolean": "lmx::is_valid_bool",
    "hex": "lmx::c_binary::is_valid_hex",
    "date_time": "lmx::c_datetime::is_valid",
    "decimal": "lmx::c_decimal::is_valid",
    "real": "lmx::is_valid_float",
}


def define_value(number, value):
    head = f"lmx::elmx_error ValueValidator{number}"
    rule = value.rule
    reader_value = f"(lmx::c_xml_reader& reader, {value.cpp_type} const& value)"
    if rule.one_of:
        return f"{head}{reader_value} {{ return check_one_of(reader, value, list_{number}); }}"
    if rule.min_bytes is not None:
        return f"{head}{reader_value} {{ return check_size(reader, value.size(), {rule.min_bytes}, {rule.max_bytes}); }}"
    if rule.low is not None:
        low, high = (rule.low, rule.high) if value.type == "double" else (bound_name(rule.low), bound_name(rule.high))
        return f"{head}{reader_value} {{ return check_range(reader, value, {low}, {high}); }}"
    return f"{head}(lmx::c_xml_reader&, {value.cpp_type} const&) {{ return lmx::ELMX_OK; }}"


def spec_rows(schema):
    rows = {}
    for value in (value for element in schema.elements.values() for value in element.values):
        rows.setdefault(value.spec, value)
    return sorted(rows.values(), key=lambda value: (value.lexical, value.value, value.rule.white_space))


def specs_header(schema):
    lines = banner("schema/rules.toml") + ["// How the text of each simple type is read, checked, converted and written. Private to the library.", "#pragma once", "",
                                           '#include "GenLibrarySupportFiles/lmxinternals/bridges.h"', '#include "isoxmllib/rules.h"',
                                           '#include "isoxmllib/validators.h"', "", "namespace binding {", ""]
    lines += [f"extern lmx::c_validation_spec<{value.cpp_type}> const {value.spec};" for value in spec_rows(schema)]
    lines.append("")
    for number, value in numbered_validators(schema)[1]:
        if value.rule.one_of:
            lines.append(f"inline constexpr enumeration<{len(value.rule.one_of)}> list_{number}{{{{"
                         + ", ".join(f"{{{quoted(text)}, {enum_name(text)}}}" for text in value.rule.one_of) + "}};")
    return lines + ["", "}  // namespace binding"]


def pattern_names(schema):
    """Pattern -> index, the same for the compiled pattern and its matcher."""
    patterns = sorted({value.rule.pattern for value in schema.lexical if value.rule.pattern})
    return {pattern: index for index, pattern in enumerate(patterns)}


def matchers_header(schema):
    lines = banner("schema/rules.toml") + ["// Matchers of the patterns, for texts that are plain ASCII. Private to the library.", "#pragma once", "",
                                           '#include "isoxmllib/rules.h"', "", "namespace binding {", ""]
    patterns = pattern_names(schema)
    for pattern, index in patterns.items():
        lines += [f"/// {pattern}", f"extern text_matcher const matcher_{index};"]
    return lines + ["", f"inline constexpr text_matcher const* matchers[] = {{{', '.join(f'&matcher_{index}' for index in patterns.values())}}};",
                    "", "}  // namespace binding"]


def matchers_source(schema):
    lines = banner("schema/rules.toml") + ['#include "isoxmllib/matchers.h"', "", "namespace binding {", ""]
    for pattern, index in pattern_names(schema).items():
        automaton = matcher.Matcher(pattern)
        rows = [", ".join(map(str, row)) for row in automaton.steps]
        lines += ["namespace {",
                  f"constexpr unsigned char classes_{index}[128] = {{{', '.join(map(str, automaton.classes))}}};",
                  f"constexpr unsigned char steps_{index}[] = {{{',  '.join(rows)}}};",
                  f"constexpr bool accepting_{index}[] = {{{', '.join(str(int(accepts)) for accepts in automaton.accepting)}}};",
                  "}  // namespace",
                  f"text_matcher const matcher_{index}{{{quoted(pattern)}, classes_{index}, steps_{index}, accepting_{index},",
                  f"                                {len(automaton.steps[0])}, {len(automaton.steps)}}};", ""]
    return lines + ["}  // namespace binding"]


def has_acceptor(value):
    rule = value.rule
    return value.type in ("string", "decimal", "binary", "date_time") or rule.minimum is not None


def acceptor(schema, value):
    """How a plain text of the rule is checked and stored at once; null where only the long road knows how."""
    if not has_acceptor(value):
        return "nullptr"
    rule, text = value.rule, "lmx::plain_text_view text"
    if rule.one_of:
        body = f"accept_one_of(value, text, list_{value.value})"
    elif value.type == "string":
        limits = f"{{nullptr, {rule.min_length or 0}, {'no_max_length' if rule.max_length is None else rule.max_length}, nullptr}}"
        body = (f"accept_match(value, text, {limits}, matcher_{pattern_names(schema)[rule.pattern]})" if rule.pattern
                else f"accept_{'token' if rule.white_space == 'collapse' else 'text'}(value, text, {limits})")
    elif rule.minimum is not None:
        body = f"accept_integer(value, text, {rule.minimum}LL, {rule.maximum}LL)"
    elif value.type == "decimal":
        body = f"accept_decimal(value, text, {{{inner_bounds(rule)}}})"
    elif value.type == "date_time":
        body = "accept_date_time(value, text)"
    else:
        body = f"accept_bytes(value, text, {rule.min_bytes}, {rule.max_bytes})"
        if rule.pattern:
            body = f"matcher_{pattern_names(schema)[rule.pattern]}.matches(text) && {body}"
    return f"[]({value.cpp_type}& value, {text}) {{ return {body}; }}"


def inner_bounds(rule):
    """The whole parts that are in range whatever the fraction: of positive numbers from and below, of negative ones below."""
    low, high = float(rule.low), float(rule.high)
    return f"{1 if low > 0 else 0}, {int(high) if high > 0 else 0}, {int(-low) if low < 0 else 0}"


def specs_source(schema):
    lines = banner("schema/rules.toml") + ['#include "isoxmllib/specs.h"', ""] + includes([
        "GenLibrarySupportFiles/lmxparse/value_output.h", "GenLibrarySupportFiles/lmxtypes/conversions.h", "isoxmllib/matchers.h"])
    lines += ["", "namespace binding {", ""]
    for value in spec_rows(schema):
        mode = {"preserve": "lmx::EXWS_PRESERVE", "collapse": "lmx::EXWS_COLLAPSE"}[value.rule.white_space]
        lines.append(f"lmx::c_validation_spec<{value.cpp_type}> const {value.spec}({mode}, \"\", &LexicalValidator{value.lexical}, "
                     f"&ValueValidator{value.value}, &lmx::v_to_o, &lmx::o_to_v, {acceptor(schema, value)});")
    return lines + ["", "}  // namespace binding"]


def umbrella_groups(schema):
    return [group for group in model.GROUPS if any(element.group == group for element in schema.elements.values())]


def files(schema):
    """Every generated C++ file: path from the project's root -> text."""
    out = {
        "isoxmllib/fwd.h": fwd_header(schema),
        "isoxmllib/events.h": events_header(schema),
        "isoxmllib/enums.h": enums_header(schema),
        "isoxmllib/validators.h": validators_header(schema),
        "isoxmllib/validators.cpp": validators_source(schema),
        "isoxmllib/matchers.h": matchers_header(schema),
        "isoxmllib/matchers.cpp": matchers_source(schema),
        "isoxmllib/specs.h": specs_header(schema),
        "isoxmllib/specs.cpp": specs_source(schema),
        "isoxmllib/root.h": root_header(schema),
        "isoxmllib/root.cpp": root_source(schema),
    }
    for group in umbrella_groups(schema):
        out[f"isoxmllib/{group}.h"] = group_header(schema, group)
        out[f"isoxmllib/{group}.cpp"] = group_source(schema, group)
    return {path: "\n".join(lines) + "\n" for path, lines in out.items()}
