#!/usr/bin/env python3
"""Writes the rows of the attribute test as C++: for every attribute of every element a document that sets it, one
that repeats it, one that leaves it out, and one for each way to break its rule; and for an enumerated one its codes.

    attribute_rows.py OUTPUT
"""

import random
import sys
from pathlib import Path
from xml.sax.saxutils import quoteattr

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
import values  # noqa: E402
from values import model  # noqa: E402

RNG = random.Random(11)


def canonical(value):
    """A good text that the value shows again exactly."""
    fixed = {"bool": "true", "double": "0.25", "date_time": "2024-05-06T07:08:09"}
    if value.type in fixed:
        return fixed[value.type]
    if value.rule.name == "structure_label.upper_first":
        return "0102030405060708"
    if value.rule.white_space == "collapse" and values.family(value) in ("gln", "token", "any_token"):
        return "spring barley"  # a reference would take the blank before it along
    text = values.good(value, RNG)
    return text.lstrip("+") if value.type != "string" else text


class Documents:
    def __init__(self, schema):
        self.schema = schema

    def start(self, element, skip=None):
        return [(value.xml, canonical(value)) for value in element.attributes if value.use == "required" and value is not skip]

    def content(self, element):
        if element.simple_children:
            return "<P917_Prompt>Why?</P917_Prompt>"
        if element.children == "at_least_one":
            child = element.alternatives[0].element
            return self.document(child, self.start(child))
        return ""

    def document(self, element, attributes):
        text = "".join(f" {name}={quoteattr(setting)}" for name, setting in attributes)
        content = self.content(element)
        return f"<{element.tag}{text}>{content}</{element.tag}>" if content else f"<{element.tag}{text}/>"


def raw(text):
    return f'R"~({text})~"'


def coded(schema, element, value):
    """How to set and get the value by code, and each text of its list with its code."""
    if not value.rule.one_of:
        return "nullptr, nullptr, {}"
    name, field = element.name, value.field
    by_code = (f"[](elmx_enums code) {{ {name} element; const bool taken = element.Setenum{field}(code); return Coded{{taken, "
               f"element.Isset{field}(), element.Getenum{field}(), element.Get{field}()}}; }}")
    by_text = (f"[](char const* text, elmx_enums code) {{ {name} element; element.Set{field}(text); const elmx_enums found = "
               f"element.Getenum{field}(); const bool taken = element.Setenum{field}(code); "
               f"return Coded{{taken, element.Isset{field}(), found, element.Get{field}()}}; }}")
    texts = ", ".join(f'{{{schema.enums.index(text) + 1}, "{text}"}}' for text in value.rule.one_of)
    return f"{by_code}, {by_text}, {{{texts}}}"


def row(documents, element, value):
    good = canonical(value)
    others = documents.start(element, skip=value)
    with_it = documents.document(element, others + [(value.xml, good)])
    repeated = documents.document(element, others + [(value.xml, good), (value.xml, good)])
    without = documents.document(element, others)
    bad = ", ".join(f'{{"{what}", {raw(documents.document(element, others + [(value.xml, text)]))}, lmx::{code}}}'
                    for what, text, code in values.bad(value))
    edges = ", ".join(raw(documents.document(element, others + [(value.xml, text)])) for text in values.edges(value))
    name = element.name
    getter = (f"[](Root const& root) {{ {name} const& element = root.Get{name}(); "
              f"return std::make_pair(element.Isset{value.field}(), shown(element.Get{value.field}())); }}")
    return (f'    {{"{element.tag}", "{value.xml}", {str(value.use == "required").lower()}, {raw(good)}, {raw(with_it)}, '
            f"{raw(repeated)}, {raw(without)}, {getter}, {{{edges}}}, {{{bad}}}, {coded(documents.schema, element, value)}}},")


def main():
    schema = model.load()
    documents = Documents(schema)
    rows = [row(documents, element, value) for element in schema.elements.values() for value in element.attributes]
    Path(sys.argv[1]).write_text("\n".join(rows) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
