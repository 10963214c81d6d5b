#!/usr/bin/env python3
"""Makes the documents that the benchmark reads: valid, of the shape that farm software writes, the same each time.

A set is a directory with a TASKDATA.XML of about the size asked for, indented by two blanks a level, in one of these
profiles:

fields        boundaries of several hundred points, small inner rings and a few guidance patterns; more than nine in
              ten elements are points
tasks         work records: time spans with a position and logged values
devices       device descriptions: elements, their references, process data, properties and value presentations
prescription  one task with treatment zones, their outlines and set values
master        growers, farms, workers, products and the like: what even a small set holds
"""

import argparse
import math
import random
import sys
from pathlib import Path

METRES_PER_DEGREE = 111_320.0
HEADER = ('<?xml version="1.0" encoding="UTF-8"?>\n'
          '<ISO11783_TaskData VersionMajor="4" VersionMinor="3" ManagementSoftwareManufacturer="Generated" '
          'ManagementSoftwareVersion="1.0" DataTransferOrigin="1">\n')
FOOTER = "</ISO11783_TaskData>\n"


def line_string(indent, kind, points, point_kind=2):
    point_indent = indent + "  "
    lines = [f'{point_indent}<PNT A="{point_kind}" C="{north:.9f}" D="{east:.9f}"/>\n' for north, east in points]
    return f'{indent}<LSG A="{kind}">\n{"".join(lines)}{indent}</LSG>\n'


def ring(rng, centre, radius, count):
    """A closed, uneven ring of `count` points around a position; `radius` in metres."""
    north, east = centre
    to_north = radius / METRES_PER_DEGREE
    to_east = to_north / math.cos(math.radians(north))
    step = 2 * math.pi / (count - 1)
    points = []
    for i in range(count - 1):
        uneven = 0.9 + 0.2 * rng.random()
        points.append((north + to_north * uneven * math.sin(i * step), east + to_east * uneven * math.cos(i * step)))
    points.append(points[0])
    return points


def position(rng):
    return rng.uniform(46.0, 54.0), rng.uniform(7.0, 14.0)


def guidance_pattern(rng, number, centre):
    north, east = centre
    ends = [(north - 0.004 * rng.random(), east - 0.004 * rng.random()),
            (north + 0.004 * rng.random(), east + 0.004 * rng.random())]
    return (f'      <GPN A="GPN{number}" B="AB line {number % 10}" C="1" E="1" F="1" G="{rng.uniform(0, 359.9):.3f}" I="4">\n'
            f'{line_string("        ", 5, ends, 9)}      </GPN>\n')


def field(rng, number):
    centre = position(rng)
    parts = [f'  <PFD A="PFD{number}" B="F-{number:05}" C="Field {number}" D="{rng.randrange(5000, 900000)}" '
             f'E="CTR{number % 50 + 1}" F="FRM{number % 80 + 1}">\n'
             f'    <PLN A="1" B="Boundary" C="{rng.randrange(5000, 900000)}" E="PLN{number}">\n'
             f'{line_string("      ", 1, ring(rng, centre, 300, rng.randrange(200, 500)))}    </PLN>\n']
    for obstacle in range(rng.randrange(4, 8)):
        parts.append(f'    <PLN A="6" B="Obstacle {obstacle + 1}">\n'
                     f'{line_string("      ", 1, ring(rng, centre, 8, rng.randrange(6, 20)))}    </PLN>\n')
    parts.append(f'    <GGP A="GGP{number}" B="Guidance">\n')
    parts += [guidance_pattern(rng, 4 * number + i, centre) for i in range(rng.randrange(2, 5))]
    parts.append("    </GGP>\n  </PFD>\n")
    return "".join(parts)


LOGGED = ("0054", "0055", "0056", "0074", "0077", "0094", "00B5", "00BE")


def task(rng, number):
    north, east = position(rng)
    parts = [f'  <TSK A="TSK{number}" B="Spreading {number}" C="CTR{number % 50 + 1}" D="FRM{number % 80 + 1}" '
             f'E="PFD{number % 400 + 1}" G="4">\n']
    for second in range(rng.randrange(100, 300)):
        north += 0.00002 * rng.random()
        east += 0.00002 * rng.random()
        hour, minute = 6 + second // 60, second % 60
        parts.append(f'    <TIM A="2024-05-14T{hour:02}:{minute:02}:00" B="2024-05-14T{hour:02}:{minute:02}:45.5" '
                     f'C="45" D="4">\n'
                     f'      <PTN A="{north:.9f}" B="{east:.9f}" C="{rng.randrange(80000, 600000)}" D="4" '
                     f'E="{rng.uniform(0.8, 3):.1f}" F="{rng.uniform(0.5, 2):.1f}" G="{rng.randrange(8, 20)}" '
                     f'H="{(hour * 60 + minute) * 60000}" I="16205"/>\n')
        parts += [f'      <DLV A="{ddi}" B="{rng.randrange(-2000, 2000000)}" C="DET-{i + 1}"/>\n'
                  for i, ddi in enumerate(LOGGED[:rng.randrange(4, 9)])]
        parts.append("    </TIM>\n")
    parts.append("  </TSK>\n")
    return "".join(parts)


def device(rng, number):
    process_data = range(100, 100 + rng.randrange(30, 70))
    properties = range(300, 300 + rng.randrange(15, 40))
    presentations = range(500, 508)
    parts = [f'  <DVC A="DVC-{number}" B="Implement {number}" C="1.{number % 10}.0" D="A00086000{number % 0x10000000:07X}" '
             f'E="SN-{number:06}" F="31303030303030" G="FF000000406564">\n']
    for i in range(rng.randrange(10, 40)):
        parts.append(f'    <DET A="DET-{number * 50 + i}" B="{i + 1}" C="{1 if i == 0 else 4}" D="Section {i}" E="{i}" '
                     f'F="{0 if i == 0 else 1}">\n')
        parts += [f'      <DOR A="{target}"/>\n' for target in rng.sample(process_data, 4) + rng.sample(properties, 3)]
        parts.append("    </DET>\n")
    parts += [f'    <DPD A="{i}" B="{rng.randrange(1, 600):04X}" C="{rng.randrange(8)}" D="{rng.randrange(32)}" '
              f'E="Process data {i}" F="{rng.choice(presentations)}"/>\n' for i in process_data]
    parts += [f'    <DPT A="{i}" B="{rng.randrange(1, 600):04X}" C="{rng.randrange(-9000, 9000)}" D="Property {i}" '
              f'E="{rng.choice(presentations)}"/>\n' for i in properties]
    parts += [f'    <DVP A="{i}" B="0" C="{10.0 ** -(i % 6):.9f}" D="{i % 4}" E="unit {i}"/>\n' for i in presentations]
    parts.append("  </DVC>\n")
    return "".join(parts)


def treatment_zone(rng, number):
    outline = line_string("        ", 1, ring(rng, position(rng), 40, rng.randrange(15, 60)))
    return (f'    <TZN A="{number % 254 + 1}" B="Zone {number}" C="{number % 16}">\n'
            f'      <PLN A="2" C="{rng.randrange(500, 9000)}">\n{outline}      </PLN>\n'
            f'      <PDV A="0006" B="{rng.randrange(200000)}" C="PDT1" E="VPN1"/>\n'
            f'      <PDV A="0001" B="{rng.randrange(200000)}" C="PDT2" D="DET-1" E="VPN1"/>\n'
            "    </TZN>\n")


def master_data(rng, number):
    ddi = f"{rng.randrange(1, 600):04X}"
    return (f'  <CTR A="CTR{number}" B="Grower {number}" D="Lane {number}" F="{10000 + number}" G="Town" I="Country"/>\n'
            f'  <FRM A="FRM{number}" B="Farm {number}" G="State" H="Country" I="CTR{number}"/>\n'
            f'  <WKR A="WKR{number}" B="Worker {number}" M="worker{number}@example.org"/>\n'
            f'  <VPN A="VPN{number}" B="0" C="0.001" D="1" E="kg/ha"/>\n'
            f'  <PGP A="PGP{number}" B="Group {number}" C="1"/>\n'
            f'  <PDT A="PDT{number}" B="Product {number}" C="PGP{number}" D="VPN{number}" E="{ddi}"/>\n'
            f'  <CTP A="CTP{number}" B="Crop {number}">\n    <CVT A="CVT{number}" B="Variety {number}"/>\n  </CTP>\n'
            f'  <CPC A="CPC{number}" B="Practice {number}"/>\n'
            f'  <OTQ A="OTQ{number}" B="Technique {number}"/>\n'
            f'  <PFD A="PFD{number}" C="Field {number}" D="{rng.randrange(900000)}" E="CTR{number}" F="FRM{number}"/>\n'
            f'  <TSK A="TSK{number}" B="Task {number}" C="CTR{number}" D="FRM{number}" E="PFD{number}" G="1">\n'
            f'    <WAN A="WKR{number}"/>\n    <PAN A="PDT{number}" B="{ddi}" C="{rng.randrange(90000)}" D="1"/>\n  </TSK>\n')


# What repeats, and what stands around all of it.
PROFILES = {
    "fields": (field, "", ""),
    "tasks": (task, "", ""),
    "devices": (device, "", ""),
    "prescription": (treatment_zone,
                     '  <TSK A="TSK1" B="Prescription" E="PFD1" G="1" H="1" I="2" J="3">\n', "  </TSK>\n"),
    "master": (master_data, "", ""),
}


def make(directory, profile, size):
    """Writes the set and returns the path of its document, which is hardly larger than `size` bytes."""
    block, before, after = PROFILES[profile]
    rng = random.Random(profile)
    directory.mkdir(parents=True)
    path = directory / "TASKDATA.XML"
    with open(path, "w", encoding="ascii", newline="\n") as file:
        written = file.write(HEADER + before)
        number = 0
        while written < size:
            number += 1
            written += file.write(block(rng, number))
        file.write(after + FOOTER)
    return path


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("directory", type=Path, help="must not exist yet")
    parser.add_argument("--profile", choices=PROFILES, default="fields")
    parser.add_argument("--size", type=int, default=1_000_000, help="bytes, about")
    arguments = parser.parse_args()
    make(arguments.directory, arguments.profile, arguments.size)


if __name__ == "__main__":
    sys.exit(main())
