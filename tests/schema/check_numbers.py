#!/usr/bin/env python3
"""Compares everything that the description says or implies with what is pinned.

    check_numbers.py [SCHEMA_FOLDER]

numbers.csv holds what hosts, stored codes and error records rely on, by kind of row:

    element      class, tag
    attribute    class, XML name, field, event, use, lexical validator, value validator, type
    child        class, XML name, field, event
    alternative  class, tag, name, event, one or run, chosen
    enumeration  text, code
    lexical      number, form, least and most characters, least and most of an integer, pattern
    value        number, type, least, most, list

A cell that is missing, swapped or misspelt in the description shifts a number or a limit and shows here.
"""

import csv
import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "schema"))
import model  # noqa: E402


def padded(*cells):
    return tuple(("" if cell is None else str(cell)) for cell in cells) + ("",) * (9 - len(cells))


def derived_rows(schema):
    for element in schema.elements.values():
        yield padded("element", element.name, element.tag)
        for value in element.attributes:
            yield padded("attribute", element.name, value.xml, value.field, value.event, value.use, value.lexical,
                         value.value, value.type)
        for value in element.simple_children:
            yield padded("child", element.name, value.xml, value.field, value.event)
        for row in element.alternatives:
            yield padded("alternative", element.name, row.element.tag, row.name, row.event, row.held, row.chosen)
    for row in schema.root:
        yield padded("alternative", "Root", row.element.tag, row.name, row.event, row.held, row.chosen)
    for code, text in enumerate(schema.enums, 1):
        yield padded("enumeration", "", text, "", code)
    for number, value in enumerate(schema.lexical, 1):
        rule = value.rule
        yield padded("lexical", "", number, rule.form, rule.min_length, rule.max_length, rule.minimum, rule.maximum,
                     rule.pattern)
    for number, value in enumerate(schema.values, 1):
        rule = value.rule
        least, most = (rule.low, rule.high) if rule.low is not None else (rule.min_bytes, rule.max_bytes)
        yield padded("value", "", number, value.type, least, most, " ".join(rule.one_of or []))


def main():
    with open(Path(__file__).resolve().parent / "numbers.csv", newline="") as file:
        pinned = {tuple(row) for row in list(csv.reader(file))[1:]}
    schema = model.load(Path(sys.argv[1])) if len(sys.argv) > 1 else model.load()
    rows = list(derived_rows(schema))
    derived = set(rows)
    for row in sorted(pinned - derived):
        print("pinned, not derived:", ",".join(row))
    for row in sorted(derived - pinned):
        print("derived, not pinned:", ",".join(row))
    values = [value for element in schema.elements.values() for value in element.values]
    counts = {
        "elements": (len(schema.elements), 61),
        "attributes": (sum(len(element.attributes) for element in schema.elements.values()), 358),
        "wrappers": (sum(bool(element.alternatives) for element in schema.elements.values()), 28),
        "wrappers' alternatives": (sum(len(element.alternatives) for element in schema.elements.values()), 87),
        "lexical validators": (len(schema.lexical), 113),
        "value validators": (len(schema.values), 35),
        "value specs": (len({value.spec_key for value in values}), 137),
        "names of value specs": (len({value.spec for value in values}), 137),
        "specs that keep white space": (len({value.spec_key for value in values if value.rule.white_space == "preserve"}), 10),
        "bounded runs": (sum(row.run_limit == 2 for element in schema.elements.values() for row in element.alternatives), 2),
        "patterns": (len({value.rule.pattern for value in values if value.rule.pattern}), 36),
        "first event": (min(schema.events.values()), 14),
        "last event": (max(schema.events.values()), 282),
    }
    wrong = [f"{what}: {found} instead of {wanted}" for what, (found, wanted) in counts.items() if found != wanted]
    if len(rows) != len(derived):
        wrong.append("two rows of the description are alike")
    print("\n".join(wrong), end="\n" if wrong else "")
    return 1 if wrong or pinned != derived else 0


if __name__ == "__main__":
    sys.exit(main())
