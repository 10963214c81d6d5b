#!/usr/bin/env python3
"""Compares every derived number with the pinned ones.

numbers.csv holds what hosts, stored codes and error records rely on: the event of each name, the validators of
each attribute, the number of each alternative, the code of each enumerated text. A row that is missing, swapped
or misspelt in the description shifts a number and shows here.
"""

import csv
import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "schema"))
import model  # noqa: E402


def derived_rows(schema):
    for element in schema.elements.values():
        yield ("element", element.name, element.tag, "", "", "", "", "")
        for value in element.attributes:
            yield ("attribute", element.name, value.xml, value.field, str(value.event), value.use,
                   str(value.lexical), str(value.value))
        for value in element.simple_children:
            yield ("child", element.name, value.xml, value.field, str(value.event), "", "", "")
        for row in element.alternatives:
            yield ("alternative", element.name, row.element.tag, row.name, str(row.event), row.held,
                   str(row.chosen), "")
    for row in schema.root:
        yield ("alternative", "Root", row.element.tag, row.name, str(row.event), row.held, str(row.chosen), "")
    for code, text in enumerate(schema.enums, 1):
        yield ("enumeration", "", text, "", str(code), "", "", "")


def main():
    with open(Path(__file__).resolve().parent / "numbers.csv", newline="") as file:
        pinned = {tuple(row) for row in list(csv.reader(file))[1:]}
    schema = model.load()
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
