#!/usr/bin/env python3
"""Writes the rows of the writing test as C++: for every class what a new object is written as, and a document of it
with everything that it can hold, laid out as the library does it; every class that holds a choice; and the name
tables of every class.

    element_rows.py OUTPUT
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
from attribute_rows import canonical  # noqa: E402
from values import model  # noqa: E402

NEVER_SET = {"string": "", "uint8": "0", "uint16": "0", "uint32": "0", "int32": "0", "bool": "false", "double": "0",
             "date_time": "0001-00-00T00:00:00", "binary": "", "decimal": "0"}
HARD_TEXT = "a 'quoted' \"text\" & <b> ]>"
REFERENCES = {"&": "&amp;", "<": "&lt;", '"': "&quot;", "'": "&apos;"}


def escaped(text):
    ends_section = [index for index in range(2, len(text)) if text[index - 1:index + 1] == "]>"]
    return "".join("&gt;" if index in ends_section else REFERENCES.get(character, character)
                   for index, character in enumerate(text))


def element_text(tag, attributes, children, depth):
    """One element, its children as texts that are laid out already."""
    tabs = "\t" * depth
    lines = ("\n" + tabs + "\t\t").join(f'{name}="{escaped(text)}"' for name, text in attributes)
    start = f"{tabs}<{tag}" + (f" {lines}" if lines else "")
    return start + (">\n" + "".join(children) + f"{tabs}</{tag}>\n" if children else "/>\n")


def text_element(tag, text, depth):
    return "\t" * depth + (f"<{tag}>{escaped(text)}</{tag}>\n" if text else f"<{tag}/>\n")


def default_text(element):
    attributes = [(value.xml, NEVER_SET[value.type]) for value in element.attributes if value.use == "required"]
    children = [text_element(child.xml, "", 1) for child in element.simple_children if child.use == "required"]
    return element_text(element.tag, attributes, children, 0)


def full_text(element):
    """Every attribute, every simple child, and two of each child where the format takes as many."""
    if element.text:
        return text_element(element.tag, HARD_TEXT, 0)
    attributes = [(value.xml, canonical(value)) for value in element.attributes]
    children = simple_children(element, 1)
    if element.list_of:
        children += [least_text(element.list_of, 1)] * 2
    rows = element.alternatives[:1] if element.children == "at_most_one" else element.alternatives
    for row in rows:
        is_single = element.children == "at_most_one" and row.held == "one"
        children += [least_text(row.element, 1)] * (1 if is_single else 2)
    return element_text(element.tag, attributes, children, 0)


def simple_children(element, depth):
    return [text_element(child.xml, text, depth) for child in element.simple_children
            for text in ([HARD_TEXT, "", HARD_TEXT] if child.use == "repeated" else [HARD_TEXT])]


def least_text(element, depth):
    """What a reader asks for and no more."""
    if element.text:
        return text_element(element.tag, "", depth)
    attributes = [(value.xml, canonical(value)) for value in element.attributes if value.use == "required"]
    children = [text_element(child.xml, "why", depth + 1) for child in element.simple_children if child.use == "required"]
    if element.children == "at_least_one":
        children.append(least_text(element.alternatives[0].element, depth + 1))
    return element_text(element.tag, attributes, children, depth)


def raw(text):
    return f'R"~({text})~"'


def element_row(element):
    name = element.name
    marshal = (f"[](Root const& root, lmx::c_xml_writer& writer) {{ "
               f'return root.Get{name}().marshal(writer, "{element.tag}"); }}')
    return (f'    {{"{element.tag}", [](Root& root) {{ root.Get{name}(); }}, {marshal},\n'
            f"     {raw(default_text(element))},\n     {raw(full_text(element))}}},")


def choice_row(name, count):
    return (f'    {{"{name}", {count}, [](lmx::c_xml_writer& writer, std::int32_t chosen) {{ {name} choice; '
            f"choice.chosen = chosen; return choice.marshal_child_elements(writer); }}}},")


def macro(name, rows):
    """`name(row)` stands for `row` applied to each row in turn."""
    return [f"#define {name}(row) \\"] + [f"  row({', '.join(values)}) \\" for values in rows] + [""]


def for_each_macros(schema):
    """The classes by name: elements, the choices they hold, and the choices' alternatives."""
    elements = schema.elements.values()
    parents = [element for element in elements if element.alternatives]
    choices = [(f"Inner{element.name}", element.alternatives) for element in parents] + [("Root", schema.root)]
    alternatives = [(choice, row) for choice, rows in choices for row in rows]
    return (macro("FOR_EACH_ELEMENT", [(element.name,) for element in elements])
            + macro("FOR_EACH_CHILD_LIST", [(element.name, f"Inner{element.name}") for element in parents if element.children != "at_most_one"])
            + macro("FOR_EACH_ONLY_CHILD", [(element.name, f"Inner{element.name}") for element in parents if element.children == "at_most_one"])
            + macro("FOR_EACH_RUN", [(choice, row.name) for choice, row in alternatives if row.held == "run"])
            + macro("FOR_EACH_SINGLE", [(choice, row.name) for choice, row in alternatives if row.held == "one"]))


def table_row(name, attributes, wrapper):
    return f'    {{"{name}", {attributes}, {name}::elem_event_map, {name}::known_elements, {wrapper}}},'


def element_table_row(element):
    wrapper = f"Inner{element.name}::elem_event_map" if element.alternatives else "nullptr"
    return table_row(element.name, f"{element.name}::attr_event_map", wrapper)


def main():
    schema = model.load()
    elements = schema.elements.values()
    lines = ["inline const std::vector<ElementRow> element_rows = {"] + [element_row(element) for element in elements] + ["};"]
    lines += ["inline const std::vector<ChoiceRow> choice_rows = {"]
    lines += [choice_row(f"Inner{element.name}", len(element.alternatives)) for element in elements if element.alternatives]
    lines += [choice_row("Root", len(schema.root)), "};"]
    lines += ["inline const std::vector<TableRow> table_rows = {"] + [element_table_row(element) for element in elements]
    lines += [table_row("Root", "nullptr", "nullptr"), "};"]
    lines += for_each_macros(schema)
    Path(sys.argv[1]).write_text("\n".join(lines) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
