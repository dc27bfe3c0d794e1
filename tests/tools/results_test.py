"""Tests of tools/results.awk, which counts the tests of a GoogleTest program from what it printed."""
import pathlib
import subprocess
import tempfile
import unittest

AWK = pathlib.Path(__file__).resolve().parents[2] / "tools" / "results.awk"


def judge(*lines):
    """The four numbers, and what the failed tests printed."""
    with tempfile.TemporaryDirectory() as folder:
        failures = pathlib.Path(folder) / "failures"
        run = subprocess.run(["awk", "-v", f"failures={failures}", "-f", AWK], input="\r\n".join(lines) + "\r\n",
                             capture_output=True, text=True, check=True)
        told = failures.read_text().splitlines() if failures.exists() else []
    return [int(number) for number in run.stdout.split()], told


class Results(unittest.TestCase):
    def test_counts_each_result(self):
        numbers, told = judge(
            "[==========] Running 3 tests from 1 test suite.",
            "[ RUN      ] A.Passes", "[       OK ] A.Passes (0 ms)",
            "[ RUN      ] A.Skips", "reason", "[  SKIPPED ] A.Skips (1 ms)",
            "[ RUN      ] A.Fails", "a.cpp:1: Failure", "[  FAILED  ] A.Fails (12 ms)",
            "[==========] 3 tests from 1 test suite ran. (13 ms total)",
            "[  FAILED  ] 1 test, listed below:", "[  FAILED  ] A.Fails", "  YOU HAVE 2 DISABLED TESTS")
        self.assertEqual([1, 1, 3, 1], numbers)
        self.assertEqual(["[ RUN      ] A.Fails", "a.cpp:1: Failure", "[  FAILED  ] A.Fails (12 ms)"], told)

    def test_knows_results_with_parameters_and_behind_other_text(self):
        numbers, _ = judge(
            "[ RUN      ] All/A.Fails/0", "[  FAILED  ] All/A.Fails/0, where GetParam() = 1033 (5 ms)",
            "[ RUN      ] A.Prints", "no line end[       OK ] A.Prints (0 ms)",
            "[==========] 2 tests from 2 test suites ran. (5 ms total)")
        self.assertEqual([1, 1, 0, 1], numbers)

    def test_a_program_that_died_failed_in_its_test(self):
        numbers, told = judge("[ RUN      ] A.Passes", "[       OK ] A.Passes (0 ms)", "[ RUN      ] A.Dies", "last words")
        self.assertEqual([1, 1, 0, 0], numbers)
        self.assertEqual(["[ RUN      ] A.Dies", "last words"], told)

    def test_a_missing_result_is_not_an_end(self):
        numbers, _ = judge("[ RUN      ] A.Passes", "[       OK ] A.Passes (0 ms)",
                           "[==========] 2 tests from 1 test suite ran. (0 ms total)")
        self.assertEqual([1, 0, 0, 0], numbers)

    def test_what_a_test_tells_of_another_program_counts_for_nothing(self):
        numbers, told = judge(
            "[ RUN      ] A.StartsAnother", "a.cpp:1: Failure",
            "[==========] Running 2 tests from 1 test suite.",
            "[ RUN      ] Other.Fails", "[  FAILED  ] Other.Fails (1 ms)",
            "[ RUN      ] Other.Passes", "[       OK ] Other.Passes (1 ms)",
            "[==========] 2 tests from 1 test suite ran. (2 ms total)", "  YOU HAVE 1 DISABLED TEST",
            "[  FAILED  ] A.StartsAnother (9 ms)",
            "[ RUN      ] A.Passes", "[       OK ] A.Passes (0 ms)",
            "[==========] 2 tests from 1 test suite ran. (9 ms total)")
        self.assertEqual([1, 1, 0, 1], numbers)
        self.assertEqual(10, len(told))

    def test_a_long_failure_is_cut(self):
        _, told = judge("[ RUN      ] A.Fails", *["line"] * 200, "[  FAILED  ] A.Fails (1 ms)")
        self.assertEqual(81, len(told))
        self.assertEqual("...", told[-1])


if __name__ == "__main__":
    unittest.main()
