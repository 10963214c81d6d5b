"""The example sets: what the program says of them, and that they are what their description says."""
import json
import os
import re
import subprocess
import unittest

from tool import ALL_GOOD, EXAMPLE_SETS, ROOT, SOME_FAILED, TransferSetTest, run

COMPLETE = EXAMPLE_SETS / "complete"
BROKEN_EXTERNAL = EXAMPLE_SETS / "broken-external"
DAMAGED = BROKEN_EXTERNAL / "FRM00001.XML"

INFO_OF_COMPLETE = {
    "header": {
        "version": "4.3",
        "managementSoftwareManufacturer": "Example Farm Office",
        "managementSoftwareVersion": "2.4.1",
        "taskControllerManufacturer": "Example Terminals",
        "taskControllerVersion": "7.0",
        "dataTransferOrigin": "2",
        "language": "en",
    },
    "schemaVersion4": True,
    "metadata": {"version": "1", "cloudJob": True, "originationId": "API", "jobStatusId": "2"},
    "documents": [
        {"name": "TASKDATA.XML", "role": "main", "error": 0},
        {"name": "LINKLIST.XML", "role": "linkList", "error": 0},
        {"name": "CTR00001", "role": "externalFile", "error": 0},
        {"name": "FRM00001", "role": "externalFile", "error": 0},
    ],
    "attachedFiles": [
        {"name": "LINKLIST.XML", "type": 1, "preserve": "2", "manufacturerGln": "", "fileVersion": "1",
         "fileLength": 1072},
        {"name": "RXNITRO1.CSV", "type": 128, "preserve": "1", "manufacturerGln": "0000000000000",
         "fileVersion": None, "fileLength": 31},
    ],
    "uuidLinks": 9,
    "failures": [],
}

TEXT_OF_BROKEN_EXTERNAL = """\
Header
  Version                            4.3
  Management software, manufacturer  Example Farm Office
  Management software, version       2.4.1
  Task controller, manufacturer      -
  Task controller, version           -
  Data transfer origin               1 (farm management software)
  Language                           -

P917 metadata
  none

Documents
  Name          Role           Outcome
  TASKDATA.XML  main           read
  CTR00001      external file  read
  FRM00001      external file  failed, code 10

Attached files
  none

Schema version 4: yes
UUID links: 0
"""


class Documentation(TransferSetTest):
    def test_shows_what_the_program_prints(self):
        text = (ROOT / "docs" / "command-line.md").read_text(encoding="utf-8")
        examples = re.findall(r"^```console\n\$ isoxml (.+)\n((?:.*\n)*?)```$", text, flags=re.MULTILINE)
        self.assertLessEqual({"growers", "farms", "fields", "products", "crops", "tasks", "rx", "questions", "devices"},
                             {arguments.split()[0] for arguments, _ in examples})
        for arguments, printed in examples:
            with self.subTest(arguments):
                outcome = run(*arguments.split(), cwd=ROOT)
                self.expect(ALL_GOOD, outcome)
                self.assertEqual(printed, outcome.text)


class Examples(TransferSetTest):
    def test_complete_is_read_whole(self):
        outcome = run("info", COMPLETE, "--json")
        self.expect(ALL_GOOD, outcome)
        self.assertEqual(json.dumps(INFO_OF_COMPLETE, indent=2) + "\n", outcome.text)
        self.expect(ALL_GOOD, run("info", COMPLETE))

    def test_broken_external_is_read_but_for_one_file(self):
        outcome = run("info", BROKEN_EXTERNAL)
        self.expect(SOME_FAILED, outcome, "FRM00001:4: 10: Bad end of element (XFC)\n")
        self.assertEqual(TEXT_OF_BROKEN_EXTERNAL, outcome.text)

    def test_documents_are_valid_by_the_schema_save_the_damaged_one(self):
        documents = sorted(EXAMPLE_SETS.glob("*/*.XML"))
        self.assertIn(DAMAGED, documents)
        for document in documents:
            with self.subTest(document.relative_to(EXAMPLE_SETS)):
                command = ["xmllint", "--nonet", "--noout", "--schema", ROOT / "schema" / "isoxml.xsd", document]
                checked = subprocess.run(command, capture_output=True, text=True)
                self.assertEqual(document != DAMAGED, checked.returncode == 0, checked.stderr)

    def test_attached_files_are_there_in_their_length(self):
        for file in INFO_OF_COMPLETE["attachedFiles"]:
            self.assertEqual(file["fileLength"], os.path.getsize(COMPLETE / file["name"]), file["name"])

    def test_references_lead_to_objects_of_the_set(self):
        for directory in (COMPLETE, BROKEN_EXTERNAL):
            text = "".join(re.sub(r"<!--.*?-->|<\?.*?\?>", "", file.read_text(encoding="utf-8-sig"), flags=re.DOTALL)
                           for file in sorted(directory.glob("*.XML")))
            form = r"[A-Z]{3}-?[1-9][0-9]*"  # an identifier
            values = set(re.findall(rf'="({form})"', text))
            objects = set(re.findall(rf'<(?!LNK|OTR|OTP|WAN|PAN|PRN|GAN|GST|CAN|DAN)[A-Z]{{3}} A="({form})"', text))
            objects |= set(re.findall(rf'<(?:PLN|PNT)[^>]* (?:E|G)="({form})"', text))
            with self.subTest(directory.name):
                self.assertTrue(objects)
                self.assertEqual(set(), values - objects)

    def test_one_file_begins_with_a_byte_order_mark(self):
        marked = [file.name for file in sorted(COMPLETE.glob("*.XML"))
                  if file.read_bytes().startswith(b"\xef\xbb\xbf")]
        self.assertEqual(["FRM00001.XML"], marked)


if __name__ == "__main__":
    unittest.main()
