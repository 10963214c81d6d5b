"""The example programs: what each prints, in the files named after it beside this one, and how long it is.

In such a file each run begins with a line "$ " and its arguments. What the run printed follows, lines of standard
error marked "! ", and its exit status. The runs start in examples/.

    examples_test.py PROGRAM
"""
import os
import pathlib
import subprocess
import sys
import unittest

HERE = pathlib.Path(__file__).resolve().parent
PROGRAM = sys.argv.pop(1)
SOURCE = HERE.parents[1] / "examples" / f"{PROGRAM}.cpp"
RUNS = HERE / f"{PROGRAM}.txt"
MOST_LINES = 60


def printed(arguments):
    outcome = subprocess.run([os.environ["ISOXML_EXAMPLE"], *arguments], stdin=subprocess.DEVNULL, capture_output=True,
                             text=True, encoding="utf-8")
    talk = "".join(f"! {line}\n" for line in outcome.stderr.splitlines())
    return outcome.stdout + talk + f"exit status {outcome.returncode}\n"


class Example(unittest.TestCase):
    maxDiff = None

    def test_prints_what_was_recorded(self):
        recorded = RUNS.read_text(encoding="utf-8")
        calls = [line.removeprefix("$") for line in recorded.splitlines() if line.startswith("$")]
        self.assertTrue(calls)
        self.assertEqual(recorded, "".join(f"${call}\n" + printed(call.split()) for call in calls))

    def test_is_short_enough_to_be_read_at_once(self):
        self.assertLessEqual(len(SOURCE.read_text(encoding="utf-8").splitlines()), MOST_LINES)


if __name__ == "__main__":
    unittest.main()
