#!/usr/bin/env python3
"""Runs the tests of hostile documents once and prints what each document took, in seconds as they pass.

A document is read by three tests: strictly, by a host that lets everything pass, and cut off in several places. The
mark is for documents that took longer than they should in all three together; those of many megabytes are held to
nothing. The exit status tells whether the tests passed and all was measured, never how long it took.
"""

import argparse
import json
import subprocess
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
from run import Output, machine  # noqa: E402

AIM = 2  # seconds
HANG_GUARD = 1800
LARGE = "OfManyMegabytes"
# what the table calls a test of the suite that has one for each document
READINGS = {"GetTheirCode": "strict", "ComeToAnEndWhenEverythingIsTolerated": "tolerant", "AreRefusedWhereverTheyAreCutOff": "cut off"}
SUITE = "HostileDocuments"


def run_tests(program):
    """The program's exit status and what it reports of its tests; its own output is progress."""
    with tempfile.TemporaryDirectory(prefix="isoxml-hostile-") as directory:
        report = Path(directory) / "report.json"
        try:
            status = subprocess.run([program, f"--gtest_output=json:{report}"], stdout=sys.stderr, timeout=HANG_GUARD).returncode
        except subprocess.TimeoutExpired:
            sys.exit(f"hostile_times: the tests did not end within {HANG_GUARD} s")
        if not report.exists():
            sys.exit(f"hostile_times: the tests ended with status {status} before they reported")
        return status, json.loads(report.read_text(encoding="utf-8"))


class Document:
    """A hostile document, or a test that makes documents of its own."""

    def __init__(self, kind):
        self.kind = kind
        self.seconds = {}  # by reading; "" for a test of its own
        self.has_failed = False

    def total(self):
        return sum(self.seconds.values())

    def row(self, name):
        mark = "FAILED" if self.has_failed else ""
        if self.total() > AIM:
            mark = f"{mark} above {AIM} s".strip() + (", of many megabytes" if self.kind == LARGE else "")
        readings = [f"{self.seconds[reading]:.2f}" if reading in self.seconds else "" for reading in READINGS.values()]
        return [name, self.kind, *readings, f"{self.total():.2f}", mark]


def documents_of(report):
    """{name: Document}, and complaints about what was not measured."""
    documents, complaints = {}, []
    for suite in report["testsuites"]:
        kind, _, of_documents = suite["name"].partition("/")
        for test in suite["testsuite"]:
            reading, name = "", f"{suite['name']}.{test['name']}"
            if of_documents == SUITE:
                reading, _, name = test["name"].partition("/")
                reading = READINGS[reading]
            if test["status"] != "RUN" or test["result"] != "COMPLETED":
                complaints.append(f"{suite['name']}.{test['name']} was not run")
                continue
            document = documents.setdefault((kind, name), Document(kind if reading else ""))
            document.seconds[reading] = float(test["time"].removesuffix("s"))
            document.has_failed |= "failures" in test
    for (kind, name), document in documents.items():
        if set(document.seconds) not in ({""}, set(READINGS.values())):
            complaints.append(f"{kind}/{name} was read by {len(document.seconds)} tests")
    return {name: document for (_, name), document in documents.items()}, complaints


def print_table(documents, out):
    out.table("Hostile documents, seconds", ["document", "kind", *READINGS.values(), "in all", "mark"],
              [documents[name].row(name) for name in sorted(documents)])
    of_suite = [document for document in documents.values() if document.kind]
    held = [document for document in documents.values() if document.kind != LARGE]
    slow = sum(document.total() > AIM for document in held)
    out.text(f"\n{len(of_suite)} documents and {len(documents) - len(of_suite)} tests with documents of their own, "
             f"{sum(document.total() for document in documents.values()):.0f} s. "
             f"Above {AIM} s are {slow} of the {len(held)} that are not of many megabytes.")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", type=Path, help="hostile_test of a build")
    parser.add_argument("--markdown", action="store_true", help="the table for a page")
    arguments = parser.parse_args()
    out = Output(arguments.markdown)
    about = machine()
    status, report = run_tests(arguments.program.resolve())
    documents, complaints = documents_of(report)
    if not documents:
        complaints.append("there are no tests")
    out.text(about)
    print_table(documents, out)
    if status != 0:
        complaints.append(f"the tests ended with status {status}")
    for complaint in complaints:
        print(f"hostile_times: {complaint}", file=sys.stderr)
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
