"""What `isoxml format` makes of documents, and what it refuses."""
import pathlib
import re
import socket
import subprocess
import sys
import unittest
import xml.etree.ElementTree

from tool import ALL_GOOD, EXAMPLE_SETS, NO_RESULT, ROOT, WRONG_USAGE, TransferSetTest, run, task_data

sys.path.insert(0, str(ROOT / "tests" / "generator"))
import transfer_set  # noqa: E402

DECLARATION = '<?xml version="1.0" encoding="UTF-8"?>'
UNWRITABLE = "isoxml: cannot write to standard output\n"
COMPLETE = EXAMPLE_SETS / "complete"


def elements(document):
    """What a parser of another make sees: tags, attributes, texts, with the layout left out."""
    return [(element.tag, dict(element.attrib), (element.text or "").strip())
            for element in xml.etree.ElementTree.fromstring(document).iter()]


class Format(TransferSetTest):
    def make(self, document):
        return self.make_set(DOCUMENT=document) / "DOCUMENT.XML"

    def format(self, document, *options, talk=""):
        outcome = run("format", *options, self.make(document))
        self.expect(ALL_GOOD, outcome, talk)
        return outcome.data


class Layout(Format):
    DOCUMENT = '<TSK G="1" A="TSK1">\n\n  <TZN A="1"/><P917_comment>a &amp; b</P917_comment></TSK>'

    def test_is_the_writers_own_without_options(self):
        self.assertEqual(f'{DECLARATION}\n<TSK A="TSK1"\n\t\tG="1">\n\t<TZN A="1"/>\n'
                         "\t<P917_comment>a &amp; b</P917_comment>\n</TSK>\n", self.format(self.DOCUMENT).decode())

    def test_indents_by_blanks(self):
        for blanks in (0, 1, 2, 16):
            step = " " * blanks
            with self.subTest(blanks):
                self.assertEqual(f'{DECLARATION}\n<TSK A="TSK1"\n{step}{step}G="1">\n{step}<TZN A="1"/>\n'
                                 f"{step}<P917_comment>a &amp; b</P917_comment>\n</TSK>\n",
                                 self.format(self.DOCUMENT, "--indent", str(blanks)).decode())

    def test_is_one_line_when_compact(self):
        self.assertEqual(f'{DECLARATION}<TSK A="TSK1" G="1"><TZN A="1"/><P917_comment>a &amp; b</P917_comment></TSK>',
                         self.format(self.DOCUMENT, "--compact").decode())

    def test_gives_the_same_whatever_layout_came_in(self):
        document = (COMPLETE / "TASKDATA.XML").read_bytes()
        expected = self.format(document)
        for options in (["--compact"], ["--indent", "0"], ["--indent", "3"]):
            with self.subTest(options):
                self.assertEqual(expected, self.format(self.format(document, *options)))


class FixedPoint(Format):
    def expect_fixed_point(self, path):
        document = path.read_bytes()
        for options in ([], ["--indent", "2"], ["--compact"]):
            with self.subTest(f"{path.name} {options}"):
                once = self.format(document, *options)
                self.assertEqual(once, self.format(once, *options))
                self.assertTrue(once.startswith(DECLARATION.encode()))

    def test_of_the_example_sets(self):
        for path in sorted(COMPLETE.glob("*.XML")):
            self.expect_fixed_point(path)
            self.assertEqual(elements(path.read_bytes()), elements(self.format(path.read_bytes())))

    def test_of_generated_sets(self):
        for seed in (3, 4):
            directory = self.make_set()
            transfer_set.make(directory, seed, 150_000)
            paths = sorted(directory.glob("*.XML"))
            self.assertEqual(6, len(paths))
            for path in paths:
                self.expect_fixed_point(path)

    def test_of_values_that_are_not_written_as_they_were_read(self):
        comment = self.format("<P917_comment>a&#13;&#10;b&#9;&quot;]]&gt;</P917_comment>")
        self.assertEqual(f"{DECLARATION}\n<P917_comment>a\nb\t&quot;]]&gt;</P917_comment>\n".encode(), comment)
        self.assertEqual(comment, self.format(comment))


class Input(Format):
    def test_may_begin_with_any_element_and_in_any_encoding(self):
        for caption, document in (
            ("a byte order mark", b'\xef\xbb\xbf<PGP A="PGP1" B="K\xc3\xb6rner"/>'),
            ("Latin-1", b'<?xml version="1.0" encoding="ISO-8859-1"?><PGP A="PGP1" B="K\xf6rner"/>'),
            ("UTF-16", '<PGP A="PGP1" B="Körner"/>'.encode("utf-16")),
            ("a reference", b'<PGP A="PGP1" B="K&#246;rner"/>'),
            ("an entity", b'<!DOCTYPE PGP [<!ENTITY o "&#246;">]><PGP A="PGP1" B="K&o;rner"/>'),
        ):
            with self.subTest(caption):
                self.assertEqual(f'{DECLARATION}\n<PGP A="PGP1"\n\t\tB="Körner"/>\n', self.format(document).decode())

    def test_is_standard_input_for_a_dash(self):
        path = COMPLETE / "TASKDATA.XML"
        expected = run("format", path)
        self.expect(ALL_GOOD, expected)
        with path.open("rb") as file:
            from_file = run("format", "-", stdin=file)
        from_pipe = run("format", "-", stdin=None, input=path.read_bytes())
        for outcome in (from_file, from_pipe):
            self.expect(ALL_GOOD, outcome)
            self.assertEqual(expected.data, outcome.data)

    def test_is_standard_input_from_where_that_stands(self):
        with self.make("junk <TSK A='TSK1' G='1'/>").open("rb", buffering=0) as file:
            file.seek(len("junk "))
            outcome = run("format", "-", "--compact", stdin=file)
        self.expect(ALL_GOOD, outcome)
        self.assertEqual(f'{DECLARATION}<TSK A="TSK1" G="1"/>', outcome.text)

    def test_may_come_through_a_socket(self):
        ours, theirs = socket.socketpair()
        with ours, theirs:
            ours.sendall(b"<TSK A='TSK1' G='1'/>")
            ours.shutdown(socket.SHUT_WR)
            outcome = run("format", "-", "--compact", stdin=theirs)
        self.expect(ALL_GOOD, outcome)
        self.assertEqual(f'{DECLARATION}<TSK A="TSK1" G="1"/>', outcome.text)

    def test_that_is_not_there_is_told_and_nothing_is_written(self):
        missing = self.make_set() / "NONE.XML"
        self.expect_refused(run("format", missing), f"{missing}:1: 1: Unable to open file\n")
        closed = ["sh", "-c", 'exec "$@" <&-', "sh"]
        self.expect_refused(run("format", "-", wrapper=closed, stdin=None), "-:1: 1: Unable to open file\n")
        directory = ["sh", "-c", 'exec "$@" < /', "sh"]
        self.expect_refused(run("format", "-", wrapper=directory), "-:1: 1: Unable to open file\n")

    def expect_refused(self, outcome, talk):
        self.expect(NO_RESULT, outcome, talk)
        self.assertEqual(b"", outcome.data)

    def test_that_is_bad_is_told_as_check_tells_it_and_nothing_is_written(self):
        good = '<TZN A="1"/>\n' * 2000  # more than any buffer on the way out
        for caption, document, line, code in (
            ("nothing", "", 1, 34),
            ("blanks", " \n\n", 3, 34),
            ("no document", "hello", 1, 6),
            ("an unknown root element", "<Foo/>\n", 2, 34),
            ("a missing attribute", '<TSK A="TSK1">\n</TSK>', 1, 25),
            ("a value of no list", '\n<TSK A="TSK1" G="9"/>', 2, 38),
            ("a value out of range", '\n\n<TZN A="255"/>', 3, 36),
            ("a value that is no number", '<TZN A="x"/>', 1, 35),
            ("a value too long", '<PGP A="PGP1" B="' + 33 * "x" + '"/>', 1, 19),
            ("a repeated attribute", '<TZN A="1" A="1"/>', 1, 3),
            ("text between elements", '<TSK A="TSK1" G="1">\ntext</TSK>', 2, 10),
            ("an element without its content", '<PLN A="1"/>', 1, 32),
            ("an end tag of another element", '<TSK A="TSK1" G="1">\n</TSX>', 2, 10),
            ("an undeclared entity", '<PGP A="PGP1" B="&a;"/>', 1, 28),
            ("an unquoted value", "<TZN A=1/>", 1, 23),
            ("a second document type", "<!DOCTYPE a><!DOCTYPE b><TZN A='1'/>", 1, 9),
            ("an unknown encoding", '<?xml version="1.0" encoding="KOI8-R"?><TZN A="1"/>', 1, 6),
            ("a bad value behind much that is good", f'<TSK A="TSK1" G="1">\n{good}<TZN A="x"/></TSK>', 2002, 35),
            ("an end behind much that is good", f'<TSK A="TSK1" G="1">\n{good}', 2002, 34),
            ("a main document without its header", task_data(VersionMajor=None), 1, 25),
        ):
            path = self.make(document)
            with self.subTest(caption):
                outcome = run("format", path)
                verdict = run("check", path).text
                self.expect_refused(outcome, verdict)
                self.assertTrue(verdict.startswith(f"{path}:{line}: {code}: "), verdict)
                from_pipe = run("format", "-", stdin=None, input=path.read_bytes())
                self.expect_refused(from_pipe, verdict.replace(str(path), "-", 1))

    def test_that_would_not_read_again_is_refused(self):
        for caption, document, place in (
            ("seconds that round to ten", '<TIM A="2024-02-09T02:03:09.99999999999999Z" D="1"/>', "3: 35: "),
            ("a zero byte", '<PGP A="PGP1" B="a&#0;"/>', "3: 23: "),
        ):
            path = self.make(document)
            with self.subTest(caption):
                outcome = run("format", path)
                self.assertEqual((NO_RESULT, b""), (outcome.status, outcome.data))
                self.assertTrue(outcome.talk.startswith(f"{path} as rewritten:{place}"), outcome.talk)

    def test_that_loses_something_is_told_what(self):
        document = """<TSK A="TSK1" G="1" Y="1">
<Zoo/>
<TZN A="1" Y="2" X="3"/><Zoo><TZN A="2"/></Zoo><!-- a comment --><DAN A="A000860000000001">
<ASP A="2024-02-09T02:03:09" D="1"/>
<ASP A="2024-02-09T02:03:09" D="4"/></DAN></TSK>"""
        path = self.make(document)
        outcome = run("format", path, "--compact")
        self.expect(ALL_GOOD, outcome, "".join(f"{path}:{loss}\n" for loss in (
            "3: left out: attribute X", "1: left out: attribute Y (2 of them)",
            "5: left out: element ASP", "2: left out: element Zoo (2 of them)")))
        self.assertEqual(f'{DECLARATION}<TSK A="TSK1" G="1"><TZN A="1"/><DAN A="A000860000000001">'
                         '<ASP A="2024-02-09T02:03:09" D="1"/></DAN></TSK>', outcome.text)

    def test_loses_no_word_about_schema_locations_and_keeps_no_declarations(self):
        document = ('<TZN xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xsi:noNamespaceSchemaLocation="a.xsd" '
                    'xmlns:o="urn:other" A="1"/>')
        self.assertEqual(f'{DECLARATION}<TZN A="1"/>'.encode(), self.format(document, "--compact"))

    def test_can_not_drive_the_terminal_by_what_it_loses(self):
        outcome = run("format", self.make('<TZN A="1" \u202eevil="1"/>'))
        self.assertNotIn("\u202e", outcome.talk)
        self.assertIn(r"\xe2\x80\xae", outcome.talk)


class Output(Format):
    def test_that_fails_gives_the_status_of_no_result(self):
        for path in (COMPLETE / "TASKDATA.XML", COMPLETE / "CTR00001.XML"):
            with self.subTest(path.name), open("/dev/full", "wb") as full:
                self.expect(NO_RESULT, run("format", path, stdout=full), UNWRITABLE)

    def test_gives_the_same_status_when_standard_output_is_closed(self):
        closed = ["sh", "-c", 'exec "$@" >&-', "sh"]
        for arguments in (["format", COMPLETE / "CTR00001.XML"], ["format", "-"]):
            with self.subTest(arguments[-1]), open(COMPLETE / "CTR00001.XML", "rb") as document:
                self.expect(NO_RESULT, run(*arguments, wrapper=closed, stdin=document, stdout=None), UNWRITABLE)

    def test_gives_the_same_status_when_the_pipe_is_closed(self):
        path = COMPLETE / "TASKDATA.XML"
        gone = subprocess.Popen(["true"], stdin=subprocess.PIPE)
        gone.wait()
        with gone.stdin as pipe:
            self.expect(NO_RESULT, run("format", path, stdout=pipe), UNWRITABLE)


class Usage(Format):
    def test_that_is_wrong_opens_nothing(self):
        document = self.make('<TZN A="1"/>')
        for caption, arguments, reason in (
            ("no document", [], "FILE is required"),
            ("an empty name", [""], "FILE: must not be empty"),
            ("a directory", [COMPLETE], "FILE: must be a document, not a directory"),
            ("two documents", [document, document], "not expected"),
            ("blanks below none", [document, "--indent", "-1"], "--indent"),
            ("blanks beyond reason", [document, "--indent", "17"], "--indent"),
            ("blanks that are no number", [document, "--indent", "two"], "--indent"),
            ("blanks that are not told", [document, "--indent"], "--indent"),
            ("two layouts", [document, "--indent", "2", "--compact"], "excludes"),
        ):
            with self.subTest(caption):
                outcome = run("format", *arguments)
                self.assertEqual((WRONG_USAGE, b""), (outcome.status, outcome.data))
                self.assertIn(reason, outcome.talk)

    def test_help_names_the_options(self):
        text = run("format", "--help").text
        for option in ("FILE", "--indent N", "--compact"):
            self.assertRegex(text, rf"(?m)^  {re.escape(option)}")

    def test_a_directory_called_dash_does_not_hide_standard_input(self):
        directory = self.make_set()
        (directory / "-").mkdir()
        outcome = run("format", "-", "--compact", cwd=directory, stdin=None, input=b'<TZN A="1"/>')
        self.expect(ALL_GOOD, outcome)
        self.assertEqual(f'{DECLARATION}<TZN A="1"/>', outcome.text)


if __name__ == "__main__":
    unittest.main()
