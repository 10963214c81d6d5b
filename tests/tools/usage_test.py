"""The command line: what is understood, what is refused, and what help and version say."""
import os
import unittest

from tool import ALL_GOOD, EXAMPLE_SETS, NO_RESULT, WRONG_USAGE, TransferSetTest, run, task_data

GOOD_SET = EXAMPLE_SETS / "complete"

EXIT_STATUSES = """\
Exit status:
  0  all documents of the set are good
  1  some documents failed, the rest is shown
  2  wrong usage
  3  no result: the main document could not be read, there is no such task, or the output could not be written
"""


class Usage(TransferSetTest):
    def test_wrong_usage_is_told_in_one_line_and_opens_nothing(self):
        for caption, arguments, reason in (
            ("no directory", ["info"], "DIR is required"),
            ("an empty directory", ["info", ""], "DIR: must not be empty"),
            ("an empty name", ["info", GOOD_SET, "--main", ""], "--main: must not be empty"),
            ("a name is missing", ["info", GOOD_SET, "--main"], "--main"),
            ("two names", ["info", GOOD_SET, "--main", "A", "--main", "B"], "--main"),
            ("two directories", ["info", GOOD_SET, GOOD_SET], "not expected"),
            ("an unknown option", ["info", GOOD_SET, "--unknown"], "not expected: --unknown"),
            ("a value for a flag", ["info", GOOD_SET, "--json=perhaps"], "json"),
            ("an unknown command", ["unknown", GOOD_SET], "subcommand is required"),
            ("no command", [GOOD_SET], "subcommand is required"),
            ("an option before the command", ["--json", "info", GOOD_SET], "not expected: --json"),
            ("an argument that drives the terminal", ["info", GOOD_SET, "\x1b[2J"], r"not expected: \x1b[2J"),
        ):
            with self.subTest(caption):
                outcome = run(*arguments)
                self.assertEqual((WRONG_USAGE, b""), (outcome.status, outcome.data))
                line, hint = outcome.talk.splitlines()
                self.assertTrue(line.startswith("isoxml: "), line)
                self.assertIn(reason, line)
                self.assertEqual("Run with --help for more information.", hint)

    def test_no_arguments_show_the_usage_as_an_error(self):
        outcome = run()
        self.assertEqual((WRONG_USAGE, b""), (outcome.status, outcome.data))
        self.assertEqual(run("--help").text, outcome.talk)

    def test_help_lists_commands_and_exit_statuses(self):
        outcome = run("--help")
        self.expect(ALL_GOOD, outcome)
        for command in ("check", "info", "growers", "farms", "fields", "products", "crops", "tasks", "rx", "questions",
                        "devices", "format", "new", "map"):
            self.assertRegex(outcome.text, rf"(?m)^  {command}  ")
        self.assertIn(EXIT_STATUSES, outcome.text)

    def test_help_of_a_command_lists_its_options_and_exit_statuses(self):
        outcome = run("info", "--help")
        self.expect(ALL_GOOD, outcome)
        self.assertRegex(outcome.text, r"(?m)^  DIR ")
        self.assertRegex(outcome.text, r"(?m)^  --main NAME=TASKDATA\.XML ")
        self.assertRegex(outcome.text, r"(?m)^  --json ")
        self.assertIn(EXIT_STATUSES, outcome.text)

    def test_version_is_the_projects(self):
        outcome = run("--version")
        self.expect(ALL_GOOD, outcome)
        self.assertEqual(f"isoxml {os.environ['ISOXML_VERSION']}\n", outcome.text)


class Arguments(TransferSetTest):
    def test_main_names_the_document_with_or_without_suffix(self):
        directory = self.make_set(OTHER=task_data(VersionMinor="9"))
        for arguments in (["--main", "OTHER.XML"], ["--main", "OTHER"], ["--main=OTHER"]):
            with self.subTest(arguments):
                outcome = run("info", directory, *arguments)
                self.expect(ALL_GOOD, outcome)
                self.assertRegex(outcome.text, r"(?m)^  Version +4\.9$")

    def test_options_may_stand_before_the_directory(self):
        directory = self.make_set(OTHER=task_data())
        outcome = run("info", "--json", "--main", "OTHER", directory)
        self.expect(ALL_GOOD, outcome)
        self.assertEqual("{", outcome.lines[0])

    def test_main_keeps_its_case(self):
        directory = self.make_set(TASKDATA=task_data())
        self.expect(NO_RESULT, run("info", directory, "--main", "taskdata"), "taskdata:1: 1: Unable to open file\n")

    def test_directory_may_begin_with_a_dash_after_two_dashes(self):
        directory = self.make_set(TASKDATA=task_data())
        os.rename(directory / "TASKDATA.XML", directory / "-TASKDATA.XML")
        outcome = run("info", "--main=-TASKDATA", "--", os.curdir, cwd=directory)
        self.expect(ALL_GOOD, outcome)


if __name__ == "__main__":
    unittest.main()
