"""Tests the scripts of the benchmark: their data, their checks of limits, and a quick run on tiny files. Checks no
times."""

import json
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from xml.etree import ElementTree

import charts
import large_files
import options
import report
from make_data import KINDS, LAST, write_kind
from measuring import Call, Measuring, as_json, exponent
from record import Record

BUILD = Path(sys.argv.pop(1)).resolve() if len(sys.argv) > 1 else Path("build/test").resolve()
SCRIPTS = Path(__file__).resolve().parent


class Data(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def written(self, kind, size=60_000):
        path = Path(self.folder.name) / "data.json"
        write_kind(path, kind, size)
        return path.read_bytes()

    def test_each_kind_has_its_size_and_its_key_at_the_end(self):
        for kind in KINDS:
            with self.subTest(kind):
                text = self.written(kind)
                self.assertTrue(50_000 < len(text) < 61_000, len(text))
                self.assertEqual(["items", "meta"], list(json.loads(text)))
                self.assertEqual({"version": 1}, json.loads(text)["meta"])
                names = [item["name"] for item in json.loads(text)["items"]]
                self.assertEqual(1, names.count(LAST))
                self.assertEqual(LAST, names[-1])

    def test_the_bytes_are_the_same_every_time(self):
        for kind in KINDS:
            self.assertEqual(self.written(kind), self.written(kind), kind)

    def test_each_kind_is_what_its_name_says(self):
        self.assertNotIn(b"\n", self.written("records"))
        self.assertIn(b'\n      "id": 1,\n', self.written("indented"))
        self.assertIn(b"\n" + 60 * b" " + b'"', self.written("catalogue"))
        texts = self.written("texts")
        self.assertGreater(sum(byte > 127 for byte in texts), len(texts) / 3)
        for escape in (b"\\n", b'\\"', b"\\u00e9", b"\\ud83d\\ude00"):
            self.assertIn(escape, texts)
        self.assertRegex(self.written("coordinates"), rb"\[\d\d\.\d{13},\d\d\.\d{13}\]")


class Judgement(unittest.TestCase):
    def setUp(self):
        self.measuring = Measuring(BUILD, Path(tempfile.gettempdir()), True)
        self.record = Record(self.measuring)

    def test_a_limit_is_held_by_equal_figures_and_missed_beyond(self):
        self.assertTrue(self.record.judge("g", "w", "x", 1.15, at_most=1.15)["held"])
        self.assertFalse(self.record.judge("g", "w", "x", 1.16, at_most=1.15)["held"])
        self.assertTrue(self.record.judge("g", "w", "x", 2, at_least=2)["held"])
        self.assertFalse(self.record.judge("g", "w", "x", 1.99, at_least=2)["held"])
        self.assertEqual([True, False, True, False], [bound["held"] for bound in self.record.bounds])

    def test_a_missed_limit_is_marked(self):
        self.assertIn("**missed**", report.bound_text(self.record.judge("g", "w", "x", 3, at_most=2)))
        self.assertNotIn("missed", report.bound_text(self.record.judge("g", "w", "x", 1, at_most=2)))

    def test_a_limit_on_a_time_says_which_program_took_it(self):
        bound = self.record.judge("g", "w", "time of other, times Kovalt's", 3.22, at_least=3.33)
        self.assertEqual("g, w, other took 3.22 times Kovalt's time; the limit is at least 3.33: **missed**",
                         report.bound_text(bound))

    def test_a_program_ahead_is_shown_with_what_it_saves(self):
        self.assertEqual("jq needs 5 % less memory than Kovalt", report.ahead_text("jq", 0.95, "memory"))
        self.assertEqual("jj needs 0.3 % less time than Kovalt", report.ahead_text("jj", 0.997, "time"))

    def test_a_limit_on_the_share_of_a_time_is_judged_as_times_the_tools(self):
        self.measuring.run = lambda call, runs=1: {"tool": (2.0, 2.0, 10), "other": (3.0, 3.0, 5)}[call.program]
        for share, held in ((0.7, True), (0.6, False)):
            self.record.compare("g", str(share), [Call("tool", ""), Call("other", "", time_bound=share)], rounds=2)
            row = self.record.comparisons[-1]["rows"][1]
            self.assertEqual((1.5, 0.5, False, held),
                             (row["times"], row["memory_times"], row["ahead"], row["bound"]["held"]))

    def test_a_peer_that_takes_less_is_ahead_and_a_reference_is_not(self):
        self.measuring.run = lambda call, runs=1: {"tool": (2.0, 2.0, 10), "other": (1.0, 1.0, 5)}[call.program]
        for reference in (False, True):
            self.record.compare("g", "w", [Call("tool", ""), Call("other", "", reference=reference)])
            row = self.record.comparisons[-1]["rows"][1]
            self.assertEqual([not reference, not reference], [row["ahead"], row["ahead_in_memory"]])

    def test_different_answers_end_the_benchmark(self):
        one, same, other = (Call("p", ["printf", text]) for text in ('{"a":1}', '{"a": 1}', '{"a":2}'))
        self.measuring.check_answers([one, one])
        self.measuring.check_answers([one, same], as_json)
        self.assertRaises(SystemExit, self.measuring.check_answers, [one, same])
        self.assertRaises(SystemExit, self.measuring.check_answers, [one, other], as_json)
        self.assertRaises(SystemExit, self.measuring.check_answers, [one], expected=b"2")

    def test_a_failing_program_ends_the_benchmark(self):
        self.assertRaises(SystemExit, self.measuring.run, Call("p", "false"))
        self.assertRaises(SystemExit, self.measuring.run, Call("p", "/no/such/program"))

    def test_growth_in_proportion_has_the_exponent_1(self):
        self.assertAlmostEqual(1, exponent(3, 30, 10))
        self.assertAlmostEqual(2, exponent(3, 12, 2))

    def test_the_options_fit_into_a_command_line(self):
        # Linux limits arguments, their pointers and the environment to a quarter of the stack of 8 MiB.
        for work in options.WORK:
            arguments = work.arguments(options.SIZES[-1])
            self.assertLess(sum(len(argument) + 1 + 8 for argument in arguments), 2_000_000, work.title)


class Colours(unittest.TestCase):
    @staticmethod
    def luminance(colour):
        """As WCAG 2 defines it."""
        parts = [int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5)]
        red, green, blue = [part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
        return 0.2126 * red + 0.7152 * green + 0.0722 * blue

    def contrast(self, one, other):
        darker, lighter = sorted((self.luminance(one), self.luminance(other)))
        return (lighter + 0.05) / (darker + 0.05)

    def test_the_contrast_is_that_of_wcag(self):
        self.assertAlmostEqual(21, self.contrast("#ffffff", "#000000"))
        self.assertAlmostEqual(4.54, self.contrast("#ffffff", "#767676"), 2)

    def test_each_colour_can_be_read_on_both_pages(self):
        for colour in (charts.INK, charts.TOOL, *charts.OTHERS):
            self.assertGreaterEqual(self.contrast(colour, charts.PAGE), 4.5, colour)
            dark = charts.ON_DARK[colour]
            self.assertGreaterEqual(self.contrast(dark, charts.ON_DARK[charts.PAGE]), 4.5, dark)


class QuickRun(unittest.TestCase):
    def test_all_parts_leave_results_a_page_and_charts(self):
        results = BUILD / "results"
        shutil.rmtree(results, ignore_errors=True)
        run = subprocess.run([sys.executable, SCRIPTS / "run.py", BUILD, BUILD / "unused", "--quick"],
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        self.assertEqual(0, run.returncode, run.stdout.decode())
        page, = results.glob("*.md")
        data = json.loads(page.with_suffix(".json").read_text(encoding="utf-8"))
        self.assertTrue(data["quick"])

        limits = {(bound["group"], bound.get("at_least", bound.get("at_most"))) for bound in data["bounds"]}
        for expected in ((large_files.READ, 3.333), (large_files.READ, 1.818), (large_files.READ, 2.222),
                         (large_files.READ, 1.429), (large_files.READ, 5_000_000), (large_files.LOAD, 1.111),
                         (large_files.EDIT, 1.25), (large_files.DISPLAY, 1.667), (large_files.COMPLETE, 0.6667),
                         (options.GROUP, 1.15), (options.GROUP, 1.4), (options.SINGLE, 1.3), ("Start-up", 70_000),
                         ("Start-up", 0.8), ("Growth", 1.15), ("Growth", 1.4)):
            self.assertIn(expected, limits)
        files = [comparison for comparison in data["comparisons"] if comparison["group"] == large_files.READ]
        self.assertEqual(7, len(files))
        for comparison in data["comparisons"]:
            self.assertIn("Kovalt", comparison["rows"][0]["program"])
            for row in comparison["rows"]:
                self.assertGreater(row["seconds"], 0)
                self.assertGreater(row["memory"], 0)

        text = page.read_text(encoding="utf-8")
        for bound in data["bounds"]:
            self.assertIn(f"## {bound['group']}", text)
        drawn = sorted(results.glob("*.svg"))
        self.assertEqual(4, len(drawn))
        for chart in drawn:
            self.assertIn(f"]({chart.name})", text)
            self.assertNotIn("rgb(", chart.read_text(encoding="utf-8"), "a colour without its dark form")
            words = "".join(ElementTree.parse(chart).getroot().itertext())
            self.assertIn("file" if "option" not in chart.name else "options in the call", words)


if __name__ == "__main__":
    unittest.main()
