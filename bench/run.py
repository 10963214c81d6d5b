#!/usr/bin/env python3
"""Runs the benchmark's programs side by side and prints what they took.

The documents are made in a temporary directory. Rounds are interleaved: in each one every program runs once, in a
process of its own, so that a change of the machine's load meets them all. A figure is the median of the rounds, a
ratio the median of the rounds' ratios. Progress goes to standard error. The exit status tells whether all was
measured, never how fast it was; with --check, whether every program finds what Python's own reader finds.
"""

import argparse
import os
import platform
import re
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree
from pathlib import Path
from statistics import median

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
import make_sets  # noqa: E402

MB = 1_000_000
OURS = "isoxml"
PROFILES = ["fields", "tasks", "devices"]

# A good document's text and what makes it a bad one, by the check that notices.
FAULTS = {
    "limit": ('<PNT A="2" C="', '<PNT A="2" C="9'),
    "list": ('<PNT A="2"', '<PNT A="99"'),
    "pattern": (' E="CTR', ' E="CRT'),
}
# program, how the table calls it, what it yields, the largest document it is given, the faults it refuses
READERS = [
    (OURS, "this library", "typed, checked", 100 * MB, {"limit", "list", "pattern"}),
    ("gsoap", "gSOAP binding", "typed, checked but patterns", 10 * MB, {"limit", "list"}),
    ("xsdcxx", "xsdcxx tree", "typed, checked", 10 * MB, {"limit", "list", "pattern"}),
    ("libxml2_schema", "libxml2 reader + schema", "checked events", 10 * MB, {"limit", "list", "pattern"}),
    ("pugixml", "pugixml", "tree of texts", 100 * MB, set()),
    ("libxml2_sax", "libxml2 SAX", "events", 100 * MB, set()),
    ("expat", "expat", "events", 100 * MB, set()),
]
ROUNDS = {1 * MB: 9, 10 * MB: 15, 100 * MB: 3}  # processes of each program
JOBS = {1 * MB: 5, 10 * MB: 3, 100 * MB: 3}  # in each process; the first one is cold
GROWTH_ROUNDS = 5
START_ROUNDS = 41


def progress(text):
    print(f"bench: {text}", file=sys.stderr, flush=True)


# --- Running programs ---------------------------------------------------------------------------------------


def output_of(command):
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, text=True)
    if done.returncode != 0:
        sys.exit(f"bench: {command[0]} ended with status {done.returncode}")
    return done.stdout


def run(program, path, jobs):
    """What a program printed: a list of figures for each name."""
    figures = {}
    for line in output_of([program, path, jobs]).splitlines():
        name, value = line.split()
        figures.setdefault(name, []).append(int(value))
    return figures


class Series:
    """The rounds of one program on one document."""

    def __init__(self, size, memory):
        self.size = size
        self.memory = memory
        self.cold = []  # nanoseconds, one for each round
        self.warm = []
        self.release = []

    def add(self, figures):
        self.cold.append(figures["job"][0])
        self.warm.append(median(figures["job"][1:]))
        self.release.append(median(figures["release"][1:]))

    def speed(self, times):
        """MB/s."""
        return self.size / median(times) * 1000


def ratio(series, other, kind="warm"):
    """How many times as fast as `other`, in the rounds that both ran in."""
    return median(theirs / ours for ours, theirs in zip(getattr(series, kind), getattr(other, kind)))


def interleave(programs, size_class):
    """A series for each of {name: (program, document)}."""
    all_series = {}
    for name, (program, path) in programs.items():
        all_series[name] = Series(path.stat().st_size, run(program, path, 1)["memory"][0])
    for _ in range(ROUNDS[size_class]):
        for name, (program, path) in programs.items():
            all_series[name].add(run(program, path, JOBS[size_class]))
    return all_series


def instructions(program, path):
    """Instructions of a warm job and of its release, by callgrind, for each byte of the document."""
    size = path.stat().st_size
    counts = {}
    with tempfile.TemporaryDirectory() as directory:
        dump = Path(directory) / "callgrind"
        command = ["valgrind", "--tool=callgrind", "--instr-atstart=no", f"--callgrind-out-file={dump}", program, path, "2"]
        done = subprocess.run([str(word) for word in command], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        if done.returncode != 0:
            sys.exit(f"bench: callgrind on {program.name} failed:\n{done.stderr}")
        for part in dump.parent.glob("callgrind.*"):
            text = part.read_text()
            trigger = re.search(r"^desc: Trigger: Client Request: (\w+)$", text, re.MULTILINE)
            if trigger:
                counts[trigger[1]] = int(re.search(r"^totals: (\d+)$", text, re.MULTILINE)[1]) / size
    if set(counts) != {"job", "release"}:
        sys.exit(f"bench: {program.name} was built without callgrind's header, so nothing can be counted")
    return counts


def processor_time_of(command):
    """Seconds that a process took from its start to its end."""
    child = subprocess.Popen([str(word) for word in command], stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(child.pid, 0)
    child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode != 0:
        sys.exit(f"bench: {command[0]} ended with status {child.returncode}")
    return usage.ru_utime + usage.ru_stime


# --- What is measured ---------------------------------------------------------------------------------------


class Bench:
    def __init__(self, programs, sets, sizes):
        self.programs = programs
        self.sets = sets
        self.sizes = sizes
        self.middle = sizes[len(sizes) // 2]
        self.readers = [row for row in READERS if (programs / row[0]).exists()]
        for name, label, *_ in READERS:
            if not (programs / name).exists():
                progress(f"{label} is not built and stays out")
        self.read = {}  # profile, size class -> {program: series}
        self.per_byte = {}  # profile, program -> instructions of job and release
        self.bars = []  # what is measured, the figure, the bar, whether it is met

    def document(self, profile, size):
        directory = self.sets / f"{profile}-{size}"
        return directory / "TASKDATA.XML" if directory.exists() else make_sets.make(directory, profile, size)

    def measure_reading(self):
        for profile in PROFILES:
            for size in self.sizes:
                path = self.document(profile, size)
                progress(f"reading {profile}, {size // MB} MB")
                programs = {name: (self.programs / name, path) for name, _, _, largest, _ in self.readers if size <= largest}
                self.read[profile, size] = interleave(programs, size)
            for name, label, *_ in self.readers:
                progress(f"counting the instructions of {label} on {profile}")
                self.per_byte[profile, name] = instructions(self.programs / name, self.document(profile, MB))

    def reading_table(self, profile):
        rows = []
        for name, label, yields, *_ in self.readers:
            counts = self.per_byte[profile, name]
            for size in self.sizes:
                if name not in self.read[profile, size]:
                    continue
                series = self.read[profile, size][name]
                pugixml = self.read[profile, size]["pugixml"]
                rows.append([label, yields, f"{size // MB} MB", f"{series.speed(series.cold):.0f}", f"{series.speed(series.warm):.0f}",
                             f"{ratio(series, pugixml):.3f}", f"{ratio(series, pugixml, 'cold'):.3f}",
                             f"{counts['job']:.1f}" if size == MB else "", f"{counts['release']:.1f}" if size == MB else "",
                             f"{series.memory / series.size:.1f}"])
        return ["reader", "yields", "size", "cold MB/s", "warm MB/s", "of pugixml", "cold", "instr/byte", "freeing", "memory x file"], rows

    def reading_bars(self):
        def largest_of(profile, name):
            return max(size for size in self.sizes if name in self.read[profile, size])

        for name, bar in (("gsoap", 10), ("xsdcxx", 25)):
            if any(row[0] == name for row in self.readers):
                size = largest_of("fields", name)
                of_size = self.read["fields", size]
                self.at_least(f"times as fast as {name}, fields, {size // MB} MB", ratio(of_size[OURS], of_size[name]), bar)
        for profile, bar in (("fields", 0.27), ("tasks", 0.2), ("devices", 0.2)):
            size = largest_of(profile, "pugixml")
            of_size = self.read[profile, size]
            self.at_least(f"speed as part of pugixml's, {profile}, {size // MB} MB", ratio(of_size[OURS], of_size["pugixml"]), bar)
        self.at_most("instructions per byte, fields", self.per_byte["fields", OURS]["job"], 40)
        series = self.read["fields", self.sizes[-1]][OURS]
        self.at_most("memory as a multiple of the file, fields", series.memory / series.size, 6.5)

    def growth_table(self):
        """The sizes by turns, so that a change of the machine's load does not pass for growth."""
        rows = []
        for profile in PROFILES:
            progress(f"growth, {profile}")
            documents = [(self.document(profile, size), JOBS[size]) for size in self.sizes]
            rounds = []
            for _ in range(GROWTH_ROUNDS):
                rounds.append([median(run(self.programs / OURS, path, jobs)["job"][1:]) / path.stat().st_size for path, jobs in documents])
            growth = median(max(times) / times[0] for times in rounds)
            series = [self.read[profile, size][OURS] for size in self.sizes]
            rows.append([profile, *(f"{median(column):.2f}" for column in zip(*rounds)), f"{growth:.2f}",
                         *(f"{each.memory / each.size:.1f}" for each in series)])
            self.at_most(f"growth of the time per byte, {profile}", growth, 1.3)
        sizes = [f"{size // MB} MB" for size in self.sizes]
        return ["profile", *(f"ns/byte, {size}" for size in sizes), "growth", *(f"memory x file, {size}" for size in sizes)], rows

    def views_table(self):
        rows = []
        for title, program, profile, size in (("getFields", "isoxml_fields", "fields", self.sizes[-1]),
                                              ("getISORxMap", "isoxml_prescription", "prescription", self.middle)):
            progress(f"{title} on {size // MB} MB")
            path = self.document(profile, size)
            of_size = interleave({program: (self.programs / program, path), "pugixml": (self.programs / "pugixml", path)}, size)
            series, pugixml = of_size[program], of_size["pugixml"]
            counts = instructions(self.programs / program, self.document(profile, MB))
            rows.append([title, profile, f"{size // MB} MB", f"{series.speed(series.cold):.0f}", f"{series.speed(series.warm):.0f}",
                         f"{ratio(series, pugixml):.2f}", f"{ratio(series, pugixml, 'cold'):.2f}", f"{counts['job']:.1f}",
                         f"{series.memory / series.size:.2f}"])
            if program == "isoxml_fields":
                self.at_least(f"getFields as part of pugixml's parse, {size // MB} MB", ratio(series, pugixml), 0.35)
        return ["view", "of", "size", "cold MB/s", "warm MB/s", "of pugixml's parse", "cold", "instr/byte", "memory x file"], rows

    def writing_table(self):
        rows = []
        size = self.middle
        for profile in PROFILES:
            progress(f"writing {profile}, {size // MB} MB")
            names = {"isoxml_write": "this library", "pugixml_write": "pugixml"}
            of_size = interleave({name: (self.programs / name, self.document(profile, size)) for name in names}, size)
            for name, label in names.items():
                series = of_size[name]
                counts = instructions(self.programs / name, self.document(profile, MB))
                share = ratio(series, of_size["pugixml_write"])
                rows.append([label, profile, f"{size // MB} MB", f"{series.speed(series.warm):.0f}", f"{share:.2f}", f"{counts['job']:.1f}"])
                if name == "isoxml_write" and profile == "fields":
                    self.at_least(f"writing as part of pugixml's, fields, {size // MB} MB", share, 0.7)
                    self.at_most("instructions per byte written, fields", counts["job"], 30)
        return ["writer", "of", "size", "warm MB/s", "of pugixml's save", "instr/byte"], rows

    def start_table(self):
        path = self.document("master", 10_000)
        progress("starting")
        commands = [[self.programs / "empty"], [self.programs / "isoxml_start", path]]
        times = [[processor_time_of(command) for command in commands] for _ in range(START_ROUNDS)]
        empty, start = (median(column) for column in zip(*times))
        opened = run(self.programs / OURS, path, 21)["job"]
        size = f"{path.stat().st_size / 1000:.0f} KB"
        return ["what", "ms"], [["an empty process", f"{empty * 1e3:.2f}"],
                                [f"a process that loads the library and opens a set of {size}, above the empty one", f"{(start - empty) * 1e3:.2f}"],
                                ["of these, opening the set", f"{opened[0] / 1e6:.2f}"],
                                ["opening such a set again", f"{median(opened[1:]) / 1e6:.2f}"]]

    def at_least(self, what, figure, bar):
        self.bars.append([what, f"{figure:.2f}", f">= {bar}", "yes" if figure >= bar else "NO"])

    def at_most(self, what, figure, bar):
        self.bars.append([what, f"{figure:.2f}", f"<= {bar}", "yes" if figure <= bar else "NO"])

    def report(self, out):
        begin = time.monotonic()
        out.text(machine())
        self.measure_reading()
        for profile in PROFILES:
            out.table(f"Reading: {profile}", *self.reading_table(profile))
        self.reading_bars()
        if len(self.sizes) > 1:
            out.table("Growth of this library's reading, warm", *self.growth_table())
        out.table("Views of an open set", *self.views_table())
        out.table("Writing to memory", *self.writing_table())
        out.table("Start", *self.start_table())
        out.table("Bars", ["what", "figure", "bar", "met"], self.bars)
        progress(f"took {time.monotonic() - begin:.0f} s")


def machine():
    model = re.search(r"^model name\s*:\s*(.+)$", Path("/proc/cpuinfo").read_text(), re.MULTILINE)
    load = os.getloadavg()[0]
    return (f"{model[1] if model else platform.machine()}, {os.cpu_count()} processors, {platform.architecture()[0]}; "
            f"load at the start {load:.1f}" + (" (others were at work)" if load > 0.5 else ""))


# --- Tables -------------------------------------------------------------------------------------------------


class Output:
    def __init__(self, markdown):
        self.markdown = markdown

    def text(self, text):
        print(text, flush=True)

    def table(self, title, header, rows):
        print(f"\n### {title}\n" if self.markdown else f"\n{title}")
        numbers = [all(re.fullmatch(r"[-\d.]*", row[i]) for row in rows) for i in range(len(header))]
        if self.markdown:
            lines = [header, ["--:" if number else "--" for number in numbers], *rows]
            print("\n".join("| " + " | ".join(line) + " |" for line in lines), flush=True)
            return
        widths = [max(len(line[i]) for line in [header, *rows]) for i in range(len(header))]
        for line in [header, ["-" * width for width in widths], *rows]:
            cells = [cell.rjust(width) if number else cell.ljust(width) for cell, width, number in zip(line, widths, numbers)]
            print("  " + "  ".join(cells).rstrip(), flush=True)


# --- The check ----------------------------------------------------------------------------------------------


def check_results(programs, readers, sets):
    """Complaints about programs that do not find what Python's reader finds."""
    for profile in make_sets.PROFILES:
        path = make_sets.make(sets / profile, profile, 40_000)
        elements = list(xml.etree.ElementTree.parse(path).iter())
        points = sum(element.tag == "PNT" for element in elements)
        counted_by = [name for name, *_ in readers] if profile in PROFILES else [OURS, "pugixml"]
        expected = {name: len(elements) for name in counted_by}
        expected["isoxml_write"] = path.stat().st_size  # laid out like the file, so they are the same bytes
        if profile == "fields":
            expected["isoxml_fields"] = points
        if profile == "prescription":
            expected["isoxml_prescription"] = points
        for name, number in expected.items():
            result = run(programs / name, path, 2)["result"][0]
            if result != number:
                yield f"{name}: {result} instead of {number} on {profile}"
        run(programs / "pugixml_write", path, 2)
        output_of([programs / "isoxml_start", path])
    output_of([programs / "empty"])


def check_refusals(programs, readers, sets):
    """Complaints about readers that do not check what the table says they check."""
    good = make_sets.make(sets / "good", "fields", 40_000).read_text()
    for fault, (text, spoilt) in FAULTS.items():
        path = sets / fault / "TASKDATA.XML"
        path.parent.mkdir()
        path.write_text(re.sub(re.escape(text), spoilt, good, count=1))
        for name, _, _, _, refused in readers:
            done = subprocess.run([programs / name, path], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            if done.returncode != (1 if fault in refused else 0):
                yield f"{name}: exit status {done.returncode} on a document with a broken {fault}"


def check(programs, sets):
    readers = [row for row in READERS if (programs / row[0]).exists()]
    return [*check_results(programs, readers, sets / "results"), *check_refusals(programs, readers, sets / "refusals")]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("programs", type=Path, help="directory with the programs, bench/ of a build")
    parser.add_argument("--check", action="store_true", help="compare what the programs find, and measure nothing")
    parser.add_argument("--quick", action="store_true", help="documents of 1 MB only")
    parser.add_argument("--markdown", action="store_true", help="tables for a page")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="isoxml-bench-") as directory:
        sets = Path(directory)
        complaints = check(arguments.programs, sets / "check")
        if complaints or arguments.check:
            print("\n".join(complaints), file=sys.stderr, end="\n" if complaints else "")
            return 1 if complaints else 0
        sizes = sorted(ROUNDS)[: 1 if arguments.quick else None]
        Bench(arguments.programs, sets, sizes).report(Output(arguments.markdown))
    return 0


if __name__ == "__main__":
    sys.exit(main())
