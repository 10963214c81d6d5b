"""A set that does not fit into memory, or what is made of it, ends the program in order."""
import resource
import unittest

from tool import ALL_GOOD, NO_RESULT, TransferSetTest, run, task_data

MEBIBYTE = 1 << 20


def run_within(mebibytes, *arguments):
    def limit_memory():
        resource.setrlimit(resource.RLIMIT_AS, (mebibytes * MEBIBYTE, mebibytes * MEBIBYTE))

    return run(*arguments, preexec_fn=limit_memory)


class OutOfMemory(TransferSetTest):
    def test_is_told_and_has_no_result(self):
        directory = self.make_set(TASKDATA=task_data(VersionMajor="4" * (96 * MEBIBYTE)))
        outcome = run_within(64, "info", directory)
        self.expect(NO_RESULT, outcome, "isoxml: out of memory\n")
        self.assertEqual(b"", outcome.data)

    def expect_order_while_memory_grows(self, *arguments):
        """Runs with a little more memory each time, until it is enough; yields after each run that failed."""
        has_failed = False
        for mebibytes in range(64, 1024, 6):
            outcome = run_within(mebibytes, *arguments)
            if outcome.status == ALL_GOOD:
                self.assertTrue(has_failed)
                return
            has_failed = True
            self.expect(NO_RESULT, outcome, "isoxml: out of memory\n")
            self.assertEqual(b"", outcome.data)
            yield
        self.fail("it never fits")

    def test_leaves_the_page_of_an_earlier_run(self):
        directory = self.make_set(TASKDATA=task_data('<PFD A="PFD1" C="F" D="1"/>' * 30_000))
        page = directory / "map.html"
        page.write_text("the map of yesterday")
        for _ in self.expect_order_while_memory_grows("map", directory, "-o", page):
            self.assertEqual("the map of yesterday", page.read_text())
        self.assertTrue(page.read_text().endswith("</html>\n"))

    def test_of_geojson_is_told(self):
        point = '<PFD A="PFD1" C="F" D="1"><PNT A="1" C="1" D="2"/></PFD>'
        directory = self.make_set(TASKDATA=task_data(point * 20_000))
        for _ in self.expect_order_while_memory_grows("fields", directory, "--geojson"):
            pass


if __name__ == "__main__":
    unittest.main()
