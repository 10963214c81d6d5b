"""Runs the program under test and makes transfer sets for it."""
import os
import pathlib
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
EXAMPLE_SETS = ROOT / "examples" / "sets"

ALL_GOOD, SOME_FAILED, WRONG_USAGE, NO_RESULT = range(4)  # exit statuses


class Outcome:
    def __init__(self, completed):
        self.status = completed.returncode
        self.data = completed.stdout or b""
        self.talk = (completed.stderr or b"").decode()
        self.text = self.data.decode()
        self.lines = self.text.splitlines()


def run(*arguments, wrapper=(), **options):
    """Runs the program, through another command where one is given; `options` go to subprocess.run."""
    options = {"stdin": subprocess.DEVNULL, "stdout": subprocess.PIPE, "stderr": subprocess.PIPE} | options
    return Outcome(subprocess.run([*wrapper, os.environ["ISOXML_TOOL"], *arguments], **options))


def task_data(content="", **attributes):
    """A main document with that content; attributes take the place of those of a good header, or are added.
    What is None is left out."""
    header = {
        "VersionMajor": "4",
        "VersionMinor": "3",
        "ManagementSoftwareManufacturer": "Maker",
        "ManagementSoftwareVersion": "1.0",
        "DataTransferOrigin": "1",
    } | attributes
    text = "".join(f' {name}="{value}"' for name, value in header.items() if value is not None)
    return f"<ISO11783_TaskData{text}>{content}</ISO11783_TaskData>"


class TransferSetTest(unittest.TestCase):
    maxDiff = None

    def make_set(self, **documents):
        """A directory that goes away with the test. Names come without ".XML", contents as text or bytes."""
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        for name, content in documents.items():
            content = content.encode() if isinstance(content, str) else content
            (pathlib.Path(directory.name) / f"{name}.XML").write_bytes(content)
        return pathlib.Path(directory.name)

    def expect(self, status, outcome, talk=""):
        """Status and standard error together: a sanitizer's report has a status too."""
        self.assertEqual((status, talk), (outcome.status, outcome.talk))
