"""What `isoxml check` says of sets and lone documents."""
import json
import unittest

from tool import ALL_GOOD, EXAMPLE_SETS, NO_RESULT, SOME_FAILED, WRONG_USAGE, TransferSetTest, run, task_data


class Check(TransferSetTest):
    def test_a_good_set_tells_of_each_document(self):
        directory = EXAMPLE_SETS / "complete"
        outcome = run("check", directory)
        self.expect(ALL_GOOD, outcome)
        names = ["TASKDATA.XML", "LINKLIST.XML", "CTR00001", "FRM00001"]
        self.assertEqual([f"{directory}/{name}: good" for name in names], outcome.lines)
        self.assertEqual(outcome.lines, run("check", f"{directory}/").lines)

    def test_a_failed_document_is_told_with_line_code_text_and_item(self):
        directory = EXAMPLE_SETS / "broken-external"
        outcome = run("check", directory)
        self.expect(SOME_FAILED, outcome)
        self.assertEqual(f"{directory}/FRM00001:4: 10: Bad end of element (XFC)", outcome.lines[-1])

    def test_a_lone_document_may_begin_with_any_element(self):
        directory = self.make_set(good='<TSK A="TSK1" G="1"/>', bad='<TSK A="TSK1" G="9"/>', unknown="<Foo/>")
        outcome = run("check", directory / "good.XML", directory / "bad.XML", directory / "unknown.XML")
        self.expect(SOME_FAILED, outcome)
        self.assertEqual([f"{directory}/good.XML: good",
                          f"{directory}/bad.XML:1: 38: Value does not match enumerations (G)",
                          f"{directory}/unknown.XML:1: 34: Unexpected end of message"], outcome.lines)

    def test_nothing_read_at_all(self):
        directory = self.make_set(bad="<TSK/>")
        self.expect(NO_RESULT, run("check", directory / "bad.XML"))
        missing = run("check", directory / "missing.XML")
        self.expect(NO_RESULT, missing)
        self.assertEqual([f"{directory}/missing.XML:1: 1: Unable to open file"], missing.lines)
        self.assertEqual([f"{directory}/TASKDATA.XML:1: 1: Unable to open file"], run("check", directory).lines)

    def test_the_main_document_may_have_another_name(self):
        self.expect(ALL_GOOD, run("check", self.make_set(OTHER=task_data()), "--main", "OTHER"))

    def test_json_tells_the_same_of_every_document(self):
        directory = self.make_set(good='<TSK A="TSK1" G="1"/>', bad='<TSK A="TSK1" G="9"/>')
        outcome = run("check", "--json", directory / "good.XML", directory / "bad.XML")
        good, bad = json.loads(outcome.text)
        self.assertEqual((0, "", ""), (good["error"], good["item"], good["message"]))
        self.assertEqual((38, 1, "G"), (bad["error"], bad["line"], bad["item"]))
        self.assertIn("Program line:", bad["message"])

    def test_a_name_can_not_drive_the_terminal(self):
        outcome = run("check", "a\x1b[2J")
        self.assertNotIn("\x1b", outcome.text)

    def test_no_path_is_wrong_usage(self):
        self.assertEqual(WRONG_USAGE, run("check").status)
        self.assertEqual(WRONG_USAGE, run("check", "").status)


if __name__ == "__main__":
    unittest.main()
