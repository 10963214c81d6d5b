#!/usr/bin/env python3
"""Writes documents, good ones and ones with a single fault, for comparison with another validator.

    faulty_documents.py DIRECTORY [--count N] [--seed N]

Each file is called NUMBER-KIND.xml; the kind says what is wrong with it.
"""

import argparse
import random
import sys
from pathlib import Path
from xml.sax.saxutils import quoteattr

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
import transfer_set  # noqa: E402
import values  # noqa: E402
from values import model  # noqa: E402


class Faults(transfer_set.Writer):
    """Makes a fragment and puts one fault of the wanted kind into its top element."""

    def top(self, element, attributes, body):
        text = "".join(f" {name}={quoteattr(setting)}" for name, setting in attributes)
        return f"<{element.tag}{text}>{body}</{element.tag}>\n" if body else f"<{element.tag}{text}/>\n"

    def parts(self, element):
        attributes = [(value.xml, self.text(element, value)) for value in element.attributes
                      if value.use == "required" or self.rng.random() < 0.5]
        body = "".join(self.children(element, 3))
        return attributes, body

    def pick(self, wanted):
        choice = [element for element in self.schema.elements.values() if not element.text and wanted(element)]
        return self.rng.choice(choice)

    def valid(self):
        element = self.pick(lambda element: True)
        return self.top(element, *self.parts(element))

    def value(self):
        element = self.pick(lambda element: any(values.bad(value) for value in element.attributes))
        value = self.rng.choice([value for value in element.attributes if values.bad(value)])
        attributes, body = self.parts(element)
        text = self.rng.choice(values.bad(value))[1]
        return self.top(element, [row for row in attributes if row[0] != value.xml] + [(value.xml, text)], body)

    def missing(self):
        element = self.pick(lambda element: any(value.use == "required" for value in element.attributes))
        gone = self.rng.choice([value.xml for value in element.attributes if value.use == "required"])
        attributes, body = self.parts(element)
        return self.top(element, [row for row in attributes if row[0] != gone], body)

    def repeated(self):
        element = self.pick(lambda element: element.required and element.attributes)
        attributes, body = self.parts(element)
        return self.top(element, attributes + [attributes[0]], body)

    def childless(self):
        element = self.pick(lambda element: element.children == "at_least_one")
        return self.top(element, self.parts(element)[0], "")

    def text_content(self):
        element = self.pick(lambda element: element.attributes)
        return self.top(element, self.parts(element)[0], "text")

    def end_tag(self):
        element = self.pick(lambda element: element.attributes)
        attributes, body = self.parts(element)
        return self.top(element, attributes, body or " ").replace(f"</{element.tag}>", "</END>")

    def unknown_attribute(self):
        element = self.pick(lambda element: element.attributes)
        attributes, body = self.parts(element)
        return self.top(element, attributes + [("P1234_Other", "1")], body)

    def unknown_element(self):
        element = self.pick(lambda element: element.children == "any")
        attributes, body = self.parts(element)
        return self.top(element, attributes, body + "<P1234_Other A='1'><X/></P1234_Other>")

    def out_of_place(self):
        element = self.pick(lambda element: element.children == "at_most_one" and len(element.alternatives) == 1
                            and element.alternatives[0].held == "one")
        stamp = self.element(element.alternatives[0].element.tag, 3)
        return self.top(element, self.parts(element)[0], stamp + stamp)

    def calendar(self):
        element = self.pick(lambda element: any(value.type == "date_time" for value in element.attributes))
        value = next(value for value in element.attributes if value.type == "date_time")
        attributes, body = self.parts(element)
        return self.top(element, [row for row in attributes if row[0] != value.xml] + [(value.xml, "2024-02-30T25:61:00")], body)

    def minus_zero(self):
        element = self.pick(lambda element: any(value.rule.low == "0.0" and value.type == "decimal" for value in element.attributes))
        value = next(value for value in element.attributes if value.rule.low == "0.0" and value.type == "decimal")
        attributes, body = self.parts(element)
        return self.top(element, [row for row in attributes if row[0] != value.xml] + [(value.xml, "-0.0")], body)


KINDS = {"valid": 6, "value": 8, "missing": 2, "repeated": 1, "childless": 1, "text_content": 1, "end_tag": 1,
         "unknown_attribute": 1, "unknown_element": 1, "out_of_place": 1, "calendar": 1, "minus_zero": 1}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("directory", type=Path)
    parser.add_argument("--count", type=int, default=2400)
    parser.add_argument("--seed", type=int, default=5)
    arguments = parser.parse_args()
    arguments.directory.mkdir(parents=True, exist_ok=True)
    faults = Faults(model.load(), arguments.seed)
    kinds = random.Random(arguments.seed).choices(list(KINDS), list(KINDS.values()), k=arguments.count)
    for number, kind in enumerate(kinds):
        (arguments.directory / f"{number:05d}-{kind}.xml").write_text(getattr(faults, kind)(), encoding="utf-8")


if __name__ == "__main__":
    main()
