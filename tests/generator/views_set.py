#!/usr/bin/env python3
"""Makes a transfer set in which everything occurs that the views of a set have a rule for.

It is valid but for two of its external files, which are of no use on purpose, and the same for the same seed. Beside
what `transfer_set.py` makes, it has

- kinds of children mixed in every order, and between them comments, unknown elements and elements out of place;
- guidance lines of every type, pivots with none, one and several centres, patterns and groups with boundaries;
- identifiers that occur twice, references that mostly lead somewhere, and links of every kind: several groups, types
  that are no UUIDs, second values, empty values, objects without any, and a second link list that must not be read;
- numbers in every spelling: signs, blanks, leading zeros, no digits before or behind the point, many digits;
- external files in five encodings, one with entities of its own, one that is named twice, one that begins with a task,
  one with questions, one that is broken and one that is missing.
"""

import argparse
import math
import sys
from pathlib import Path
from xml.sax.saxutils import quoteattr

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
import transfer_set  # noqa: E402
import values  # noqa: E402
from values import model  # noqa: E402

# name, Python's name of the encoding, the declared one, how much of the set's size it takes
EXTERNAL_FILES = [("PFD00002", "utf-8", "UTF-8", 0.10), ("TSK00001", "utf-16", "UTF-16", 0.04),
                  ("CTR00001", "iso-8859-1", "ISO-8859-1", 0.02), ("TSK00007", "utf-8-sig", "UTF-8", 0.10),
                  ("FRM00001", "ascii", "US-ASCII", 0.02), ("WKR00001", "utf-8", "UTF-8", 0.01)]
WITH_ENTITIES = "FRM00001"
LONE_TASK, LONE_QUESTIONS, BROKEN, MISSING = "TSK00002", "VPN00001", "PDT00001", "CPC00001"
TWICE = "WKR00001"
WEIGHTS = {"CTR": 8, "FRM": 8, "WKR": 1, "PDT": 8, "PGP": 4, "CTP": 4, "VPN": 4, "DVC": 1, "PFD": 10, "TSK": 8}
MIXED = {"PFD", "TZN", "TSK", "GGP", "GPN", "PLN"}  # kinds of children in any order
MORE = {"TSK": ["TZN", "TZN", "TZN"], "TZN": ["PDV", "PLN"], "PLN": ["LSG", "LSG"]}  # beyond what each has anyway
NOISE = ["<!-- <PNT A=\"1\" C=\"1\" D=\"1\"/> -->", "<?maker data?>",
         "<P1234_Other A=\"1\"><PFD A=\"PFD1\" C=\"hidden\" D=\"1\"/><LSG><PNT/></LSG><PDV/></P1234_Other>"]
OUT_OF_PLACE = {"PFD": "<TZN A=\"1\"/>", "TZN": "<PNT A=\"1\" C=\"1\" D=\"1\"/>", "TSK": "<PFD A=\"PFD1\" C=\"c\" D=\"1\"/>",
                "PLN": "<PNT A=\"1\" C=\"1\" D=\"1\"/>", "LSG": "<LSG A=\"2\"/>", "XFC": "<AFE/><XFR/>",
                "GPN": "<PNT A=\"8\" C=\"1\" D=\"1\"/>"}


class Writer(transfer_set.Writer):
    def __init__(self, schema, seed):
        super().__init__(schema, seed)
        self.open = []  # the elements around the one being made

    def often(self, share):
        return self.rng.random() < share

    # --- Texts of attributes

    def text(self, element, value):
        rng = self.rng
        known = self.ids.get(values.argument(value), 0)
        if values.family(value) == "id" and value.field != "Id" and known and self.often(0.9):
            return f"{values.argument(value)}{rng.randint(1, known)}"
        if value.field == "Id" and self.ids.get(element.tag) and self.often(0.03):
            return f"{element.tag}{rng.randint(1, self.ids[element.tag])}"
        text = super().text(element, value)
        if value.rule.form == "decimal":
            return self.decimal(float(text), value.rule)
        return self.spelled(text) if value.rule.form == "integer" or value.rule.one_of else text

    def spelled(self, text):
        """The same value, with blanks around it or, for a number, a sign or zeros in front of it."""
        return text if self.often(0.9) else f" {text} "

    def decimal(self, number, rule):
        """A decimal of some number of digits close to the one given, within the limits of the rule."""
        text = f"{number:.{self.rng.randrange(13)}f}"
        if self.often(0.2) and "." in text:
            text += str(self.rng.randrange(10**9)) + "0" * self.rng.randrange(4)
        if not float(rule.low) < float(text) < float(rule.high):
            return rule.low
        digits = text.lstrip("-")
        sign = "-" if text[0] == "-" else self.rng.choice(["", "", "", "+"])
        if self.often(0.1):
            digits = "00" + digits
        elif digits.startswith("0.") and self.often(0.3):
            digits = digits[1:]
        elif "." not in digits and self.often(0.3):
            digits += "."
        return self.spelled(sign + digits)

    def attribute(self, name, text):
        quoted = quoteattr(text)
        if self.often(0.1):
            quoted = "".join(c if ord(c) < 128 else f"&#x{ord(c):X};" for c in quoted)
        return f" {name}={quoted}"

    def attributes(self, element, given):
        parts = [self.attribute(value.xml, given[value.field] if value.field in given else self.text(element, value))
                 for value in element.attributes
                 if value.field in given or value.use == "required" or self.often(0.6)]
        if self.often(0.03):
            parts.append(' P1234_Other="1"')
        if self.often(0.2):
            self.rng.shuffle(parts)
        return "".join(parts)

    # --- Elements

    def element(self, tag, depth=0, given=None):
        given = dict(given or {})
        if tag == "LSG" and self.open[-1] == "GPN" and self.often(0.8):
            given["Type"] = "5"
        if tag == "LSG" and self.open[-1] == "PLN":
            given["Type"] = self.rng.choice(["1", "1", "2", "2", "9"])
        self.open.append(tag)
        text = super().element(tag, depth, given)
        self.open.pop()
        return text

    def children(self, element, depth):
        parts = list(super().children(element, depth))
        parts += [self.element(tag, depth) for tag in MORE.get(element.tag, []) if self.often(0.4)]
        if element.tag in MIXED and self.often(0.6):
            self.rng.shuffle(parts)
        if element.simple_children:
            return parts
        return self.with_noise(element.tag, parts)

    def with_noise(self, tag, parts):
        """Behind the first child only: an element that needs children must begin with one."""
        noisy = parts[:1]
        for part in parts[1:]:
            if self.often(0.02):
                noisy.append(self.rng.choice(NOISE + [OUT_OF_PLACE.get(tag, NOISE[0])]) + "\n")
            noisy.append(part)
        return noisy

    def ring(self, depth):
        """A closed ring; in a guidance pattern with centres at any place, or a line of points of every type."""
        rng = self.rng
        north, east = rng.uniform(-60.0, 60.0), rng.uniform(-179.0, 179.0)
        radius = rng.choice([0.0001, 0.01, 0.5])
        count = rng.randrange(2, 24)
        types = self.by_tag["PNT"].attributes[0].rule.one_of
        for i in list(range(count)) + [0]:
            angle = 2 * math.pi * i / count
            point_type = rng.choice(types) if self.open[-2] == "GPN" or self.often(0.1) else "2"
            limits = {value.field: value.rule for value in self.by_tag["PNT"].attributes}
            given = {"Type": point_type, "North": self.decimal(north + radius * math.sin(angle), limits["North"]),
                     "East": self.decimal(east + radius * math.cos(angle), limits["East"])}
            if not self.often(0.1):  # mostly short, so that the set holds many
                yield "  " * (depth + 1) + "<PNT" + "".join(self.attribute(xml, given[field]) for xml, field in
                                                            (("A", "Type"), ("C", "North"), ("D", "East"))) + "/>\n"
            else:
                yield self.element("PNT", depth, given)

    def content(self, parent, size):
        """Top-level elements of about `size` bytes together."""
        self.open.append(parent)
        weights = {**WEIGHTS, **({"P917_Questions": 3} if parent == "ISO11783_TaskData" else {})}
        parts = []
        while size > 0:
            parts.append(self.element(self.rng.choices(list(weights), list(weights.values()))[0]))
            size -= len(parts[-1])
        self.open.pop()
        return "".join(self.with_noise(parent, parts))


def external_file(content, name, declared):
    doctype = ""
    if name == WITH_ENTITIES:
        doctype = '<!DOCTYPE XFC [<!ENTITY hill "Mill Hill">]>\n'
        content = content.replace("Mill Hill", "&hill;")
    return f'<?xml version="1.0" encoding="{declared}"?>\n{doctype}<XFC>\n{content}</XFC>\n'


def group(number, kind, links):
    rows = "".join(f"    <LNK A={quoteattr(key)} B={quoteattr(value)}/>\n" for key, value in links)
    return f'  <LGP A="LGP{number}" B="{kind}">\n{rows}  </LGP>\n'


def link_list(ids, rng):
    def uuid():
        return "-".join("%0*x" % (n, rng.randrange(16**n)) for n in (8, 4, 4, 4, 12))

    def links(share):
        return [(key, uuid()) for key in ids if rng.random() < share]

    first = [(key, value if rng.random() < 0.95 else "") for key, value in links(0.6)]
    groups = [group(1, "2", links(0.2)), group(2, "1", first), group(3, " 1 ", links(0.4)), group(4, "3", links(0.2)),
              group(5, "1", [("PFD-1", uuid()), ("TSK999999999", uuid())]), group(6, "4", links(0.1))]
    return transfer_set.header("ISO11783LinkList", ' FileVersion="1"') + "".join(groups) + "</ISO11783LinkList>\n"


LINKABLE = {"BSN", "CCT", "CCG", "CLD", "CTP", "CPC", "CTR", "DVC", "FRM", "GGP", "GPN", "OTQ", "PFD", "PDT", "PGP",
            "PLN", "TSK", "VPN", "WKR"}


def reference(name):
    return f'  <XFR A="{name}" B="1"/>\n'


def make(directory, seed, size):
    """Writes a set of about `size` bytes (all files together)."""
    directory.mkdir(parents=True, exist_ok=True)
    writer = Writer(model.load(), seed)
    for name, encoding, declared, share in EXTERNAL_FILES:
        text = external_file(writer.content("XFC", size * share), name, declared)
        (directory / f"{name}.XML").write_bytes(text.encode(encoding, "xmlcharrefreplace"))
    writer.open = ["document"]
    (directory / f"{LONE_TASK}.XML").write_text(writer.element("TSK"), encoding="utf-8")
    (directory / f"{LONE_QUESTIONS}.XML").write_text(writer.element("P917_Questions"), encoding="utf-8")
    (directory / f"{BROKEN}.XML").write_text("<XFC>\n" + writer.element("CTR") + "</XFD>\n", encoding="utf-8")
    names = [name for name, *_ in EXTERNAL_FILES] + [LONE_TASK, MISSING, LONE_QUESTIONS, BROKEN, TWICE]
    references = [reference(name) for name in names]
    half = len(references) // 2
    rest = size * (1 - sum(share for *_, share in EXTERNAL_FILES))
    main = [transfer_set.header("ISO11783_TaskData"), '  <P917_Metadata Version="0" jobStatusId="2"/>\n',
            '  <AFE A="PICTURE1.PNG" B="2" C="maker" D="254"/>\n', *references[:half],
            '  <AFE A="LINKLIST.XML" B="1" C="" D=" 01 "/>\n', writer.content("ISO11783_TaskData", rest / 2),
            writer.element("P917_Questions"), '  <AFE A="LINKLIS2.XML" B="1" C="" D="1" F="4294967294"/>\n',
            *references[half:], writer.content("ISO11783_TaskData", rest / 2), writer.element("P917_Questions"),
            '  <P917_Metadata Version="1" CloudJob="1" originationId="USB"/>\n', "</ISO11783_TaskData>\n"]
    (directory / "TASKDATA.XML").write_text("".join(main), encoding="utf-8")
    ids = [name for name in writer.links if name[:3] in LINKABLE]
    (directory / "LINKLIST.XML").write_text(link_list(ids, writer.rng), encoding="utf-8")
    (directory / "LINKLIS2.XML").write_text(link_list(ids, writer.rng), encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("directory", type=Path)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--size", type=int, default=100_000, help="bytes, about")
    arguments = parser.parse_args()
    make(arguments.directory, arguments.seed, arguments.size)


if __name__ == "__main__":
    main()
