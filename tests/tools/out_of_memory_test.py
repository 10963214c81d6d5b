"""A document that does not fit into memory ends the program in order."""
import resource
import unittest

from tool import NO_RESULT, TransferSetTest, run, task_data

MEBIBYTE = 1 << 20


class OutOfMemory(TransferSetTest):
    def test_is_told_and_has_no_result(self):
        directory = self.make_set(TASKDATA=task_data(VersionMajor="4" * (96 * MEBIBYTE)))

        def limit_memory():
            resource.setrlimit(resource.RLIMIT_AS, (64 * MEBIBYTE, 64 * MEBIBYTE))

        outcome = run("info", directory, preexec_fn=limit_memory)
        self.expect(NO_RESULT, outcome, "isoxml: out of memory\n")
        self.assertEqual(b"", outcome.data)


if __name__ == "__main__":
    unittest.main()
