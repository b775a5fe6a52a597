"""Tests how docs/reliability_figures.py fills a page."""

import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "docs"))

from reliability_figures import figures_of, page_with  # noqa: E402

PAGE = """Before.
<!-- Figures: origin -->
<!-- End of the figures -->
Between.
<!-- Figures: depth fuzz -->
old
<!-- End of the figures -->
After.
"""
HEAD = "| Figure | | Command |\n|---|---|---|\n"


def step(commit, **figures):
    return {"command": "by hand", "commit": commit, "date": "2026-11-22", "figures": figures}


def filled(origin, rows):
    return (f"Before.\n<!-- Figures: origin -->\n\n{origin}\n\n<!-- End of the figures -->\nBetween.\n"
            f"<!-- Figures: depth fuzz -->\n\n{HEAD}{rows}\n<!-- End of the figures -->\nAfter.\n")


class Page(unittest.TestCase):
    def test_each_place_gets_its_steps_in_its_order(self):
        data = {"fuzz": step("abc", runs="12345 of 999"), "depth": step("abc", levels="7", bytes="1000")}
        page = filled("All figures come from commit abc, 2026-11-22.", "| levels | 7 | by hand |\n"
                      "| bytes | 1,000 | by hand |\n| runs | 12,345 of 999 | by hand |\n")
        self.assertEqual(page, page_with(data, PAGE))
        self.assertEqual(page, page_with(data, page))

    def test_different_commits_are_named(self):
        self.assertEqual(filled("The figures come from different commits: depth from commit abc, 2026-11-22; "
                                "fuzz from commit def, 2026-11-22.", ""),
                         page_with({"depth": step("abc"), "fuzz": step("def")}, PAGE))

    def test_a_step_without_a_place_is_rejected(self):
        self.assertRaises(SystemExit, page_with, {"memory": step("abc")}, PAGE)

    def test_figures_are_found_among_other_lines_of_a_log(self):
        self.assertEqual({"a b": "1, 2"}, figures_of(["FIGURE of speech\n", "FIGURE\ta b\t1, 2\n", "== step\n"]))


if __name__ == "__main__":
    unittest.main()
