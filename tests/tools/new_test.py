"""What `isoxml new` makes, what it refuses, and that it leaves nothing behind when it fails."""
import re
import resource
import signal
import subprocess
import unittest

from tool import ALL_GOOD, NO_RESULT, ROOT, WRONG_USAGE, TransferSetTest, run

DOCUMENT = """\
<?xml version="1.0" encoding="UTF-8"?>
<ISO11783_TaskData VersionMajor="4"
		VersionMinor="3"
		ManagementSoftwareManufacturer="%s"
		ManagementSoftwareVersion="%s"
		DataTransferOrigin="1"/>
"""


def contents(directory):
    return {path.name: path.read_bytes() if path.is_file() else None for path in directory.iterdir()}


class New(TransferSetTest):
    def expect_set(self, directory, manufacturer, version):
        self.assertEqual({"TASKDATA.XML": (DOCUMENT % (manufacturer, version)).encode()}, contents(directory))

    def test_makes_a_directory_with_a_set_that_opens(self):
        directory = self.make_set() / "set"
        outcome = run("new", directory, "--manufacturer", "Grower's Office", "--software-version", "1.0")
        self.expect(ALL_GOOD, outcome)
        self.assertEqual(b"", outcome.data)
        self.expect_set(directory, "Grower&apos;s Office", "1.0")
        self.expect(ALL_GOOD, run("check", directory))
        info = run("info", directory)
        self.expect(ALL_GOOD, info)
        self.assertIn("Management software, manufacturer  Grower's Office", info.text)
        command = ["xmllint", "--nonet", "--noout", "--schema", ROOT / "schema" / "isoxml.xsd",
                   directory / "TASKDATA.XML"]
        self.assertEqual(0, subprocess.run(command, capture_output=True).returncode)

    def test_names_itself_without_options(self):
        directory = self.make_set() / "set"
        version = run("--version").text.split()[1]
        self.expect(ALL_GOOD, run("new", directory))
        self.expect_set(directory, "isoxml", version)

    def test_takes_an_empty_directory_in_each_form_of_its_name(self):
        for form in ("{}", "{}/", "{}/.", "{}/../link"):
            top = self.make_set()
            (top / "set").mkdir()
            (top / "link").symlink_to("set")
            with self.subTest(form):
                self.expect(ALL_GOOD, run("new", form.format(top / "set"), "--manufacturer=M", "--software-version=1"))
                self.expect_set(top / "set", "M", "1")
        top = self.make_set()
        self.expect(ALL_GOOD, run("new", "set/", cwd=top))
        self.assertTrue((top / "set" / "TASKDATA.XML").is_file())

    def test_makes_what_format_would_write(self):
        directory = self.make_set() / "set"
        run("new", directory)
        document = directory / "TASKDATA.XML"
        self.assertEqual(document.read_bytes(), run("format", document).data)


class Refusal(TransferSetTest):
    def expect_refused(self, directory, reason, *options, status=NO_RESULT):
        outcome = run("new", directory, *options)
        self.expect(status, outcome, f"isoxml: cannot make a set in {directory}: {reason}\n")
        self.assertEqual(b"", outcome.data)

    def test_of_a_directory_with_anything_in_it(self):
        for name in ("TASKDATA.XML", "taskdata.xml", ".hidden", "other.txt"):
            directory = self.make_set()
            (directory / name).write_text("kept")
            with self.subTest(name):
                self.expect_refused(directory, "the directory is not empty")
                self.assertEqual({name: b"kept"}, contents(directory))

    def test_of_a_second_run(self):
        directory = self.make_set() / "set"
        self.expect(ALL_GOOD, run("new", directory, "--manufacturer", "First"))
        before = contents(directory)
        self.expect_refused(directory, "the directory is not empty", "--manufacturer", "Second")
        self.assertEqual(before, contents(directory))

    def test_of_what_is_no_directory(self):
        directory = self.make_set(TASKDATA="kept")
        self.expect_refused(directory / "TASKDATA.XML", "File exists")
        self.expect_refused(directory / "TASKDATA.XML" / "set", "Not a directory")
        self.assertEqual({"TASKDATA.XML": b"kept"}, contents(directory))

    def test_of_a_directory_whose_parent_is_missing(self):
        directory = self.make_set()
        self.expect_refused(directory / "missing" / "set", "No such file or directory")
        self.assertEqual({}, contents(directory))

    def test_of_values_that_the_format_does_not_take_touches_nothing(self):
        for caption, options, reason in (
            ("a long maker", ["--manufacturer", 33 * "x"], "19: Length too long (ManagementSoftwareManufacturer)"),
            ("a long version", ["--software-version", 33 * "é"], "19: Length too long (ManagementSoftwareVersion)"),
        ):
            for made in (False, True):
                top = self.make_set()
                if made:
                    (top / "set").mkdir()
                with self.subTest(caption, made=made):
                    outcome = run("new", top / "set", *options)
                    self.assertEqual((WRONG_USAGE, b""), (outcome.status, outcome.data))
                    told = r"\Aisoxml: would be refused: TASKDATA\.XML:\d: " + re.escape(reason) + r"\n\Z"
                    self.assertRegex(outcome.talk, told)
                    self.assertEqual({"set": None} if made else {}, contents(top))
                    self.assertEqual({}, contents(top / "set") if made else {})

    def test_of_the_longest_values_there_is_none(self):
        directory = self.make_set() / "set"
        self.expect(ALL_GOOD, run("new", directory, "--manufacturer", 32 * "é", "--software-version", 32 * "x"))

    def test_of_wrong_usage_touches_nothing(self):
        for caption, arguments, reason in (
            ("no directory", [], "DIR is required"),
            ("an empty directory", [""], "DIR: must not be empty"),
            ("two directories", ["set", "other"], "not expected"),
            ("an empty maker", ["set", "--manufacturer", ""], "--manufacturer: must not be empty"),
            ("an empty version", ["set", "--software-version", ""], "--software-version: must not be empty"),
            ("a version of nothing", ["set", "--version"], "not expected: --version"),
            ("bytes that are no text", ["set", "--manufacturer", b"\xff\xff"], "--manufacturer: must be UTF-8"),
            ("Latin-1", ["set", "--manufacturer", b"H\xe4fe"], "--manufacturer: must be UTF-8"),
            ("a line feed", ["set", "--manufacturer", "a\nb"], "--manufacturer: must be UTF-8 without control"),
            ("a control character", ["set", "--software-version", "\x1b[2J"], "--software-version: must be UTF-8"),
        ):
            top = self.make_set()
            with self.subTest(caption):
                outcome = run("new", *arguments, cwd=top)
                self.assertEqual((WRONG_USAGE, b""), (outcome.status, outcome.data))
                self.assertIn(reason, outcome.talk)
                self.assertEqual({}, contents(top))

    def test_can_not_drive_the_terminal_by_a_name(self):
        outcome = run("new", "missing/\x1b[2J", cwd=self.make_set())
        self.assertEqual(NO_RESULT, outcome.status)
        self.assertIn(r"missing/\x1b[2J", outcome.talk)


class Failure(TransferSetTest):
    def new_on_a_full_disk(self, directory):
        """A file may then hold 100 bytes, less than the document. The signal of that is what a shell gives, the
        program's end; Python has it ignored."""
        def limit_files():
            signal.signal(signal.SIGXFSZ, signal.SIG_DFL)
            resource.setrlimit(resource.RLIMIT_FSIZE, (100, 100))

        outcome = run("new", directory, preexec_fn=limit_files)
        self.expect(NO_RESULT, outcome, f"isoxml: cannot make a set in {directory}: File too large\n")

    def test_to_write_leaves_no_directory_that_was_made(self):
        top = self.make_set()
        self.new_on_a_full_disk(top / "set")
        self.assertEqual({}, contents(top))

    def test_to_write_leaves_nothing_in_a_directory_that_was_there(self):
        directory = self.make_set()
        self.new_on_a_full_disk(directory)
        self.assertEqual({}, contents(directory))


if __name__ == "__main__":
    unittest.main()
