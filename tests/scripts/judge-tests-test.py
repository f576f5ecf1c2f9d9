#!/usr/bin/env python3
"""Plays scripts/judge-tests over made-up programs, run by ctest as real tests are."""

import subprocess
import tempfile
import unittest
from pathlib import Path

JUDGE = Path(__file__).parents[2] / "scripts" / "judge-tests"
ALWAYS = range(1, 100)


class Judged:
    """A build of made-up tests that was run once and then judged."""

    def __init__(self, folder, name="dev"):
        self.build = Path(folder) / name
        self.build.mkdir()
        self.registered = ""

    def add(self, name, labels="desktop", fails=(), how="exit 1", properties=""):
        """Registers a test that fails in the named rounds, of which the first is 1."""
        rounds = "|".join(str(each) for each in fails) or "none"
        program = self.build / f"{len(self.registered)}.sh"
        program.write_text(
            f"echo >>'{program}.played'; round=$(wc -l <'{program}.played')\n"
            f"case $round in {rounds}) echo \"words of round $round\"; {how} ;; esac\n")
        self.registered += (
            f'add_test([=[{name}]=] bash "{program}")\n'
            f'set_tests_properties([=[{name}]=] PROPERTIES LABELS "{labels}" {properties})\n')
        return Path(f"{program}.played")

    def run(self):
        (self.build / "CTestTestfile.cmake").write_text(self.registered)
        subprocess.run(
            ["ctest", "--test-dir", self.build, "--output-junit", self.build / "tests.xml"],
            capture_output=True, check=False)


def judge(*builds, options=()):
    for each in builds:
        each.run()
    done = subprocess.run(
        [JUDGE, *options, *(each.build for each in builds)],
        capture_output=True, text=True, check=False)
    return done.returncode, done.stdout + done.stderr


def times_played(marks):
    return len(marks.read_text().splitlines())


class JudgeTests(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.tests = Judged(self.folder.name)

    def assert_judged(self, status, *phrases, options=()):
        """Judges the tests; the last of the phrases is the last line."""
        found, output = judge(self.tests, options=options)
        self.assertEqual(found, status, output)
        for phrase in phrases:
            self.assertIn(phrase, output)
        self.assertEqual(output.splitlines()[-1], phrases[-1])
        return output

    def test_lets_pass_what_always_passes(self):
        marks = self.tests.add("Tap.takes")
        self.tests.add("Text.trims", labels="logic")
        output = self.assert_judged(0, "100% tests passed, 0 tests failed out of 2")
        self.assertEqual(output.strip().count("\n"), 0)
        self.assertEqual(times_played(marks), 1)

    def test_calls_unsteady_what_fails_once_and_passes_ten_times(self):
        marks = self.tests.add("Tap.takes/0", fails=[1])
        self.tests.add("Panel.shows", labels="contracts")
        self.assert_judged(
            0, "words of round 1", "it failed, and passed 10 of 10 when played again",
            f"Unsteady: Tap.takes/0 ({self.tests.build})",
            "50% tests passed, 0 tests failed, 1 unsteady out of 2")
        self.assertEqual(times_played(marks), 11)

    def test_fails_what_fails_again_within_ten(self):
        marks = self.tests.add("Tap.takes", labels="contracts", fails=[1, 5, 11])
        self.assert_judged(
            1, "failed 2 of 10 when played again", "words of round 1", "Failed: Tap.takes",
            "0% tests passed, 1 tests failed out of 1")
        self.assertEqual(times_played(marks), 11)

    def test_never_plays_logic_again(self):
        logic = self.tests.add("Text.trims", labels="logic", fails=[1])
        both = self.tests.add("Text.splits", labels="logic;desktop", fails=[1])
        other = self.tests.add("Tour.ends", labels="", fails=[1])
        self.assert_judged(1, "words of round 1", "0% tests passed, 3 tests failed out of 3")
        self.assertEqual([times_played(each) for each in (logic, both, other)], [1, 1, 1])

    def test_lets_three_unsteady_tests_pass(self):
        for label in ("desktop", "contracts", "thorough"):
            self.tests.add(f"Tap.{label}", labels=label, fails=[1])
        self.assert_judged(0, "0% tests passed, 0 tests failed, 3 unsteady out of 3")

    def test_fails_the_fourth_unsteady_test(self):
        for name in "ABCD":
            self.tests.add(name, fails=[1])
        self.assert_judged(
            1, "is unsteady as well, and 3 may be at most", "Failed: D",
            "0% tests passed, 1 tests failed, 3 unsteady out of 4")

    def test_fails_what_was_not_run(self):
        skipped = self.tests.add(
            "A", fails=[1], how="exit 4", properties="SKIP_RETURN_CODE 4")
        self.tests.add("B", properties="DISABLED TRUE")
        self.tests.registered += (
            'add_test(C "/nowhere/program")\nset_tests_properties(C PROPERTIES LABELS desktop)\n')
        self.assert_judged(
            1, "Failed: A", "Failed: B", "Failed: C", "was not run",
            "0% tests passed, 3 tests failed out of 3")
        self.assertEqual(times_played(skipped), 1)

    def test_counts_a_skip_as_a_failure_when_playing_again(self):
        self.tests.add("A", fails=[1, 3], how="exit $(( round == 1 ? 1 : 4 ))",
            properties="SKIP_RETURN_CODE 4")
        self.assert_judged(
            1, "failed 1 of 10", "0% tests passed, 1 tests failed out of 1")

    def test_plays_again_what_timed_out(self):
        self.tests.add("A", fails=[1], how="sleep 30", properties="TIMEOUT 3")
        self.assert_judged(0, "0% tests passed, 0 tests failed, 1 unsteady out of 1")

    def test_plays_again_what_crashed(self):
        self.tests.add("A", fails=[1], how="kill -SEGV $$")
        self.tests.add("B", fails=ALWAYS, how="kill -SEGV $$")
        self.assert_judged(
            1, "Unsteady: A", "failed 10 of 10 when played again",
            "0% tests passed, 1 tests failed, 1 unsteady out of 2")

    def test_plays_again_in_the_build_where_it_failed(self):
        other = Judged(self.folder.name, "asan")
        steady = self.tests.add("Tap.takes")
        shaky = other.add("Tap.takes", fails=[1])
        status, output = judge(self.tests, other)
        self.assertEqual(status, 0, output)
        self.assertIn(f"Unsteady: Tap.takes ({other.build})", output)
        self.assertTrue(
            output.endswith("50% tests passed, 0 tests failed, 1 unsteady out of 2\n"), output)
        self.assertEqual([times_played(steady), times_played(shaky)], [1, 11])

    def test_fails_what_there_is_no_time_to_play_again(self):
        marks = self.tests.add("A", fails=[1])
        self.assert_judged(
            1, "failed 0 of 0 when played again, with no time for 10",
            "0% tests passed, 1 tests failed out of 1", options=["--seconds=0"])
        self.assertEqual(times_played(marks), 1)

    def test_fails_without_a_report(self):
        missing = Judged(self.folder.name, "missing")
        status, output = subprocess.getstatusoutput(f"'{JUDGE}' '{missing.build}'")
        self.assertEqual(status, 1, output)
        self.assertIn("the report of the tests", output)

    def test_fails_with_an_empty_report(self):
        self.assert_judged(1, "0% tests passed, 1 tests failed out of 1")


if __name__ == "__main__":
    unittest.main()
