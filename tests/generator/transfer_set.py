#!/usr/bin/env python3
"""Makes transfer sets for tests and benchmarks: valid, varied, and the same for the same seed.

Every element class and every attribute occurs, with the extensions, external files and a link list. Coordinates lie
on closed rings around a place on land; everything else is drawn from the description of the format.
"""

import argparse
import math
import random
import sys
from pathlib import Path
from xml.sax.saxutils import quoteattr

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
import values  # noqa: E402
from values import model  # noqa: E402

PROFILES = {
    # top-level elements by weight
    "mixed": {"CTR": 2, "FRM": 2, "WKR": 1, "PDT": 2, "PGP": 1, "CTP": 1, "CPC": 1, "CCT": 1, "CCG": 1, "CLD": 1,
              "OTQ": 1, "VPN": 1, "BSN": 1, "DVC": 1, "PFD": 4, "TSK": 4, "P917_Questions": 1},
    "fields": {"PFD": 1},
    "tasks": {"TSK": 1},
    "devices": {"DVC": 1},
}
EXTERNAL = ["CTR", "FRM", "PFD", "TSK"]
DEEPEST = 5


class Writer:
    def __init__(self, schema, seed):
        self.schema = schema
        self.rng = random.Random(seed)
        self.by_tag = {element.tag: element for element in schema.elements.values()}
        self.ids = {}
        self.links = []

    def text(self, element, value):
        """A good text; identifiers count up, so that they are unique in the set."""
        if value.field == "Id" and value.rule.name.startswith("id "):
            number = self.ids[element.tag] = self.ids.get(element.tag, 0) + 1
            self.links.append(f"{element.tag}{number}")
            return f"{element.tag}{number}"
        return values.good(value, self.rng)

    def attributes(self, element, given):
        rng = self.rng
        parts = []
        for value in element.attributes:
            if value.field in given:
                parts.append(f" {value.xml}={quoteattr(given[value.field])}")
            elif value.use == "required" or rng.random() < 0.5:
                parts.append(f" {value.xml}={quoteattr(self.text(element, value))}")
        return "".join(parts)

    def element(self, tag, depth=0, given=None):
        element = self.by_tag[tag]
        indent = "  " * (depth + 1)
        rng = self.rng
        if element.text:
            return f"{indent}<{tag}>{rng.choice(['a note', 'wet corner', ''])}</{tag}>\n"
        head = f"{indent}<{tag}{self.attributes(element, given or {})}"
        body = "".join(self.children(element, depth + 1))
        return head + (f">\n{body}{indent}</{tag}>\n" if body else "/>\n")

    def children(self, element, depth):
        rng = self.rng
        if element.simple_children:
            indent = "  " * (depth + 1)
            yield f"{indent}<P917_Prompt>Is the gate closed?</P917_Prompt>\n"
            if rng.random() < 0.5:
                yield f"{indent}<P917_Reply>yes</P917_Reply>\n"
            for option in ("yes", "no")[: rng.randrange(3)]:
                yield f"{indent}<P917_Option>{option}</P917_Option>\n"
        elif element.list_of:
            for _ in range(rng.randrange(1, 4)):
                yield self.element(element.list_of.tag, depth)
        elif element.tag == "LSG":
            yield from self.ring(depth)
        elif element.alternatives:
            yield from self.alternatives(element, depth)

    def alternatives(self, element, depth):
        rng = self.rng
        least = 1 if element.children == "at_least_one" else 0
        if depth > DEEPEST:
            shallow = [row for row in element.alternatives if row.element.children != "at_least_one"] or element.alternatives
            for row in shallow[:least]:
                yield self.element(row.element.tag, depth)
            return
        if element.children == "at_most_one":
            row = element.alternatives[0]
            for _ in range(rng.randrange(0, (row.run_limit or 1) + 1)):
                yield self.element(row.element.tag, depth)
            return
        for row in element.alternatives:
            for _ in range(rng.randrange(least if row.chosen == 0 else 0, 3)):
                yield self.element(row.element.tag, depth)

    def ring(self, depth):
        """A closed ring of points, each a few metres from the next."""
        rng = self.rng
        north, east = rng.uniform(46.0, 54.0), rng.uniform(7.0, 14.0)
        count = rng.randrange(6, 30)
        radius = rng.uniform(0.001, 0.004)
        for i in list(range(count)) + [0]:
            angle = 2 * math.pi * i / count
            yield self.element("PNT", depth, {"Type": "2", "North": f"{north + radius * math.sin(angle):.8f}",
                                              "East": f"{east + radius * math.cos(angle) / math.cos(math.radians(north)):.8f}"})


def header(tag, extra=""):
    return ('<?xml version="1.0" encoding="UTF-8"?>\n'
            f'<{tag} VersionMajor="4" VersionMinor="3" ManagementSoftwareManufacturer="Generated" '
            f'ManagementSoftwareVersion="1.0" TaskControllerManufacturer="Generated" TaskControllerVersion="2.0" '
            f'DataTransferOrigin="1"{extra}>\n')


def write_links(path, ids, rng):
    with open(path, "w", encoding="utf-8") as file:
        file.write(header("ISO11783LinkList", ' FileVersion="1"') + '  <LGP A="LGP1" B="1" C="0614141000111" D="example" E="Generated">\n')
        for identifier in ids:
            uuid = "-".join("%0*X" % (n, rng.randrange(16**n)) for n in (8, 4, 4, 4, 12))
            file.write(f'    <LNK A="{identifier}" B="{{{uuid}}}" C="{identifier}"/>\n')
        file.write("  </LGP>\n</ISO11783LinkList>\n")


def make(directory, seed, size, profile="mixed"):
    """Writes a set of about `size` bytes (main document and external files together)."""
    directory.mkdir(parents=True, exist_ok=True)
    writer = Writer(model.load(), seed)
    rng = writer.rng
    weights = PROFILES[profile]
    externals = {}
    for tag in EXTERNAL if profile == "mixed" else []:
        content = "".join(writer.element(tag) for _ in range(3))
        externals[f"{tag}00001"] = f"<XFC>\n{content}</XFC>\n"
    with open(directory / "TASKDATA.XML", "w", encoding="utf-8") as file:
        file.write(header("ISO11783_TaskData", ' lang="en"'))
        file.write('  <P917_Metadata Version="1" CloudJob="true" originationId="USB" jobStatusId="1"/>\n')
        file.write('  <AFE A="LINKLIST.XML" B="1" C="" D="1" E="1" F="0"/>\n')
        file.write(writer.element("TCC"))
        for name in externals:
            file.write(f'  <XFR A="{name}" B="1"/>\n')
        for tag in weights:
            file.write(writer.element(tag))
        while file.tell() < size:
            file.write("".join(writer.element(tag) for tag in rng.choices(list(weights), list(weights.values()), k=50)))
        file.write("</ISO11783_TaskData>\n")
    for name, content in externals.items():
        (directory / f"{name}.XML").write_text(content, encoding="utf-8")
    linkable = {"BSN", "CCT", "CCG", "CLD", "CTP", "CPC", "CTR", "DVC", "FRM", "GGP", "GPN", "OTQ", "PFD", "PDT", "PGP", "PLN",
                "TSK", "VPN", "WKR"}
    write_links(directory / "LINKLIST.XML", [name for name in writer.links if name[:3] in linkable], rng)


def ring(north, east, radius, count, rng, turn=1):
    """A closed ring of `count` points about a place, as XML; its form is round but uneven."""
    wobble = [rng.uniform(0.9, 1.0) for _ in range(3)]
    points = []
    for i in list(range(count)) + [0]:
        angle = turn * 2 * math.pi * i / count
        reach = radius * (wobble[0] + 0.1 * wobble[1] * math.sin(3 * angle) + 0.05 * wobble[2] * math.cos(7 * angle))
        points.append(f'<PNT A="2" C="{north + reach * math.sin(angle):.9f}" '
                      f'D="{east + reach * math.cos(angle) / math.cos(math.radians(north)):.9f}"/>')
    return "".join(points)


def make_farm(directory, seed, fields, points):
    """Writes a set of that many fields side by side, each bounded by that many points and with a hole, and one task with
    a zone for each of the first hundred."""
    directory.mkdir(parents=True, exist_ok=True)
    rng = random.Random(seed)
    across = math.ceil(math.sqrt(fields))
    with open(directory / "TASKDATA.XML", "w", encoding="utf-8") as file:
        file.write(header("ISO11783_TaskData"))
        file.write('  <CTR A="CTR1" B="Generated"/>\n  <FRM A="FRM1" B="Home" I="CTR1"/>\n')
        file.write('  <VPN A="VPN1" B="0" C="0.01" D="1" E="l/ha"/>\n')
        zones = []
        for i in range(fields):
            north, east = 52.0 + 0.004 * (i // across), 9.0 + 0.0065 * (i % across)
            area = f'<PLN A="1"><LSG A="1">{ring(north, east, 0.0017, points, rng)}</LSG>'
            hole = f'<LSG A="2">{ring(north, east, 0.0003, 12, rng, -1)}</LSG></PLN>'
            file.write(f'  <PFD A="PFD{i + 1}" C="Field {i + 1}" D="100000" E="CTR1" F="FRM1">{area}{hole}</PFD>\n')
            if i < 100:
                zone = f'<PLN A="2"><LSG A="1">{ring(north, east, 0.0012, points, rng)}</LSG></PLN>'
                zones.append(f'<TZN A="{i + 1}">{zone}<PDV A="0001" B="{rng.randrange(5000, 25000)}" E="VPN1"/></TZN>')
        file.write(f'  <TSK A="TSK1" B="All zones" G="1">{"".join(zones)}</TSK>\n</ISO11783_TaskData>\n')


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("directory", type=Path)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--size", type=int, default=100_000, help="bytes, about")
    parser.add_argument("--profile", choices=PROFILES, default="mixed")
    parser.add_argument("--farm", nargs=2, type=int, metavar=("FIELDS", "POINTS"),
                        help="instead, so many fields of so many points, side by side")
    arguments = parser.parse_args()
    if arguments.farm:
        make_farm(arguments.directory, arguments.seed, *arguments.farm)
        return
    make(arguments.directory, arguments.seed, arguments.size, arguments.profile)


if __name__ == "__main__":
    main()
