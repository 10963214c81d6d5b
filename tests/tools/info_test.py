"""What `info` shows, as text and as JSON, and how the exit status follows from the documents."""
import json
import re
import unittest

from tool import ALL_GOOD, NO_RESULT, SOME_FAILED, TransferSetTest, run, task_data

LINK_LIST = '<AFE A="LINKLIST.XML" B="1" C="" D="1"/>'
CUSTOMERS = '<XFR A="CTR00001" B="1"/>'
FARMS = '<XFR A="FRM00001" B="1"/>'

GOOD_LINKS = (
    '<ISO11783LinkList VersionMajor="4" VersionMinor="3" ManagementSoftwareManufacturer="M" '
    'ManagementSoftwareVersion="1" DataTransferOrigin="1"><LGP A="LGP1" B="1">'
    '<LNK A="PFD1" B="one"/><LNK A="PFD2" B="two"/></LGP></ISO11783LinkList>'
)

NOT_THERE = "1: 1: Unable to open file"
DAMAGED = "1: 10: Bad end of element (XFC)"


def info_as_json(directory, *arguments):
    return json.loads(run("info", directory, "--json", *arguments).data)


class ExitStatus(TransferSetTest):
    def test_follows_from_the_documents(self):
        everything = task_data(LINK_LIST + CUSTOMERS + FARMS)
        good, damaged = "<XFC></XFC>", "<XFC></CTR>"
        for caption, documents, status, talk in (
            ("all are good",
             {"TASKDATA": everything, "LINKLIST": GOOD_LINKS, "CTR00001": good, "FRM00001": good}, ALL_GOOD, []),
            ("one external file is not there",
             {"TASKDATA": everything, "LINKLIST": GOOD_LINKS, "FRM00001": good}, SOME_FAILED,
             [f"CTR00001:{NOT_THERE}"]),
            ("one external file is damaged",
             {"TASKDATA": everything, "LINKLIST": GOOD_LINKS, "CTR00001": good, "FRM00001": damaged}, SOME_FAILED,
             [f"FRM00001:{DAMAGED}"]),
            ("the link list is not there",
             {"TASKDATA": everything, "CTR00001": good, "FRM00001": good}, SOME_FAILED,
             [f"LINKLIST.XML:{NOT_THERE}"]),
            ("all but the main document failed",
             {"TASKDATA": everything, "CTR00001": damaged}, SOME_FAILED,
             [f"LINKLIST.XML:{NOT_THERE}", f"CTR00001:{DAMAGED}", f"FRM00001:{NOT_THERE}"]),
            ("the main document is not there",
             {"CTR00001": damaged}, NO_RESULT, [f"TASKDATA.XML:{NOT_THERE}"]),
            ("the main document is empty",
             {"TASKDATA": ""}, NO_RESULT, ["TASKDATA.XML:1: 34: Unexpected end of message"]),
            ("the main document lacks a required attribute",
             {"TASKDATA": task_data(VersionMajor=None)}, NO_RESULT,
             ["TASKDATA.XML:1: 25: Required attribute(s) missing (ISO11783_TaskData)"]),
            ("the main document is damaged, and what it names is not tried",
             {"TASKDATA": task_data(CUSTOMERS + "</XFC>")}, NO_RESULT,
             ["TASKDATA.XML:1: 10: Bad end of element (ISO11783_TaskData)"]),
        ):
            for form in ([], ["--json"]):
                with self.subTest(caption, form=form):
                    outcome = run("info", self.make_set(**documents), *form)
                    self.expect(status, outcome, "".join(line + "\n" for line in talk))

    def test_a_directory_that_is_not_there_has_no_main_document(self):
        directory = self.make_set() / "missing"
        self.expect(NO_RESULT, run("info", directory), f"TASKDATA.XML:{NOT_THERE}\n")

    def test_a_file_is_no_directory(self):
        directory = self.make_set(TASKDATA=task_data())
        self.expect(NO_RESULT, run("info", directory / "TASKDATA.XML"), f"TASKDATA.XML:{NOT_THERE}\n")


class Text(TransferSetTest):
    def test_shows_every_section(self):
        directory = self.make_set(
            TASKDATA=task_data(
                '<P917_Metadata Version="1" CloudJob="0" originationId="USB" jobStatusId="3"/>'
                + LINK_LIST + '<AFE A="NOTES001.TXT" B="2" C="123" D="254" E="v2" F="4294967294"/>' + CUSTOMERS,
                TaskControllerManufacturer="Controller", TaskControllerVersion="2.0", lang="de"),
            LINKLIST=GOOD_LINKS,
        )
        outcome = run("info", directory)
        self.expect(SOME_FAILED, outcome, f"CTR00001:{NOT_THERE}\n")
        self.assertEqual("""\
Header
  Version                            4.3
  Management software, manufacturer  Maker
  Management software, version       1.0
  Task controller, manufacturer      Controller
  Task controller, version           2.0
  Data transfer origin               1 (farm management software)
  Language                           de

P917 metadata
  Version      1
  Cloud job    false
  Origination  USB
  Job status   3

Documents
  Name          Role           Outcome
  TASKDATA.XML  main           read
  LINKLIST.XML  link list      read
  CTR00001      external file  failed, code 1

Attached files
  Name          Type  Preserve  GLN  Version  Length
  LINKLIST.XML  1     1         -    -        -
  NOTES001.TXT  254   2         123  v2       4294967294

Schema version 4: yes
UUID links: 2
""", outcome.text)

    def test_says_none_where_nothing_is(self):
        outcome = run("info", self.make_set())
        self.assertEqual("""\
Header
  none

P917 metadata
  none

Documents
  Name          Role  Outcome
  TASKDATA.XML  main  failed, code 1

Attached files
  none

Schema version 4: no
UUID links: 0
""", outcome.text)

    def test_tells_the_origin_in_words(self):
        for origin, words in (("1", "1 (farm management software)"), ("2", "2 (task controller)")):
            with self.subTest(origin):
                outcome = run("info", self.make_set(TASKDATA=task_data(DataTransferOrigin=origin)))
                self.assertIn(f"  Data transfer origin               {words}\n", outcome.text)

    def test_columns_count_characters_and_not_bytes(self):
        # Two characters and eight more bytes than a name of ASCII would have.
        notes = '<AFE A="NOTES001.TXT" B="2" C="äöüß" D="9" E="2"/><AFE A="NOTES002.TXT" B="2" C="1234" D="9" E="3"/>'
        outcome = run("info", self.make_set(TASKDATA=task_data(notes)))
        self.assertIn("  NOTES001.TXT  9     2         äöüß  2        -\n"
                      "  NOTES002.TXT  9     2         1234  3        -\n", outcome.text)

    def test_runs_of_attached_files_may_be_interrupted(self):
        content = '<AFE A="NOTES001.TXT" B="1" C="" D="9"/>' + CUSTOMERS + '<AFE A="NOTES002.TXT" B="1" C="" D="9"/>'
        directory = self.make_set(TASKDATA=task_data(content), CTR00001="<XFC></XFC>")
        names = [file["name"] for file in info_as_json(directory)["attachedFiles"]]
        self.assertEqual(["NOTES001.TXT", "NOTES002.TXT"], names)


class JsonDocument(TransferSetTest):
    def expect_json(self, expected, outcome):
        """Byte for byte: the order of keys and the layout are promised."""
        text = re.sub(r"Program line: \d+", "Program line: N", outcome.text)
        self.assertEqual(json.dumps(expected, indent=2) + "\n", text)

    def test_holds_everything_in_a_stable_order(self):
        directory = self.make_set(
            TASKDATA=task_data(
                '<P917_Metadata Version="1" CloudJob="true" originationId="API" jobStatusId="4"/>'
                + LINK_LIST + '<AFE A="NOTES001.TXT" B="2" C="123" D="254" E="v2" F="4294967294"/>'
                + CUSTOMERS + FARMS,
                TaskControllerManufacturer="Höfe", TaskControllerVersion="", lang="de", DataTransferOrigin="2"),
            LINKLIST=GOOD_LINKS, CTR00001="<XFC/>", FRM00001="<XFC>\n</CTR>",
        )
        outcome = run("info", directory, "--json")
        self.expect(SOME_FAILED, outcome, "FRM00001:2: 10: Bad end of element (XFC)\n")
        self.expect_json({
            "header": {
                "version": "4.3",
                "managementSoftwareManufacturer": "Maker",
                "managementSoftwareVersion": "1.0",
                "taskControllerManufacturer": "Höfe",
                "taskControllerVersion": "",
                "dataTransferOrigin": "2",
                "language": "de",
            },
            "schemaVersion4": True,
            "metadata": {"version": "1", "cloudJob": True, "originationId": "API", "jobStatusId": "4"},
            "documents": [
                {"name": "TASKDATA.XML", "role": "main", "error": 0},
                {"name": "LINKLIST.XML", "role": "linkList", "error": 0},
                {"name": "CTR00001", "role": "externalFile", "error": 0},
                {"name": "FRM00001", "role": "externalFile", "error": 10},
            ],
            "attachedFiles": [
                {"name": "LINKLIST.XML", "type": 1, "preserve": "1", "manufacturerGln": "", "fileVersion": None,
                 "fileLength": None},
                {"name": "NOTES001.TXT", "type": 254, "preserve": "2", "manufacturerGln": "123",
                 "fileVersion": "v2", "fileLength": 4294967294},
            ],
            "uuidLinks": 2,
            "failures": [{
                "file": "FRM00001", "line": 2, "error": 10, "text": "Bad end of element", "item": "XFC",
                "message": "Error: Bad end of element\nItem: XFC\nProgram file: isoxmllib\n"
                           "Program line: N\nXML line: 2\n",
            }],
        }, outcome)

    def test_tells_an_attribute_that_is_not_there_from_an_empty_one(self):
        header = info_as_json(self.make_set(TASKDATA=task_data(TaskControllerVersion="")))["header"]
        self.assertIsNone(header["taskControllerManufacturer"])
        self.assertEqual("", header["taskControllerVersion"])
        self.assertIsNone(header["language"])

    def test_has_nulls_and_empty_lists_when_the_main_document_failed(self):
        outcome = run("info", self.make_set(), "--json")
        self.expect(NO_RESULT, outcome, f"TASKDATA.XML:{NOT_THERE}\n")
        self.expect_json({
            "header": None,
            "schemaVersion4": False,
            "metadata": None,
            "documents": [{"name": "TASKDATA.XML", "role": "main", "error": 1}],
            "attachedFiles": [],
            "uuidLinks": 0,
            "failures": [{
                "file": "TASKDATA.XML", "line": 1, "error": 1, "text": "Unable to open file", "item": "TASKDATA.XML",
                "message": "Error: Unable to open file\nItem: TASKDATA.XML\nProgram file: IsoXmlParser\n"
                           "Program line: N\nXML line: 1\n",
            }],
        }, outcome)

    def test_another_root_element_has_no_header(self):
        outcome = run("info", self.make_set(TASKDATA="<XFC/>"), "--json")
        self.expect(ALL_GOOD, outcome)
        self.assertIsNone(json.loads(outcome.data)["header"])

    def test_schema_version_4_is_exactly_4(self):
        for major, expected in (("4", True), ("3", False), ("04", False), ("4.0", False), ("", False)):
            with self.subTest(major):
                info = info_as_json(self.make_set(TASKDATA=task_data(VersionMajor=major)))
                self.assertIs(expected, info["schemaVersion4"])

    def test_metadata_is_the_last(self):
        content = '<P917_Metadata Version="1" CloudJob="true"/><P917_Metadata Version="2"/>'
        info = info_as_json(self.make_set(TASKDATA=task_data(content)))
        self.assertEqual({"version": "2", "cloudJob": None, "originationId": None, "jobStatusId": None},
                         info["metadata"])


if __name__ == "__main__":
    unittest.main()
