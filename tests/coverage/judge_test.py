#!/usr/bin/env python3
"""What judge.py makes of small exports whose verdict is known.

    judge_test.py
"""

import contextlib
import io
import json
import pathlib
import tempfile
import unittest

import judge
from counts import line_counts, read_counts
from exceptions import BadList, Branch, read_exceptions

FUNCTION = ["bool Early(int day) {", "    return day < 1;", "}"]
CONDITION = [2, 12, 2, 19]  # day < 1
BODY = [1, 21, 3, 2]


def function(name, branches, regions=None, ran=1):
    """A function of one file; its branches are (place, times true, times false)."""
    return {
        "name": name, "count": ran, "filenames": [name.split(":")[0]],
        "regions": regions or [BODY + [ran, 0, 0, 0]],
        "branches": [place + [true, false, 0, 0, 4] for place, true, false in branches],
    }


def lines(ran, missed):
    """The segments of a file whose first lines ran and whose next ones did not."""
    segments = []
    for first, last, count in ((1, ran, 1), (ran + 1, ran + missed, 0)):
        if first <= last:
            segments += [[first, 1, count, True, True, False], [last, 9, 0, False, False, False]]
    return segments


def exported(files, functions):
    return {"data": [{"files": [{"filename": name, "segments": segments} for name, segments in files.items()],
                      "functions": functions}]}


class Tree:
    """A source tree with one file a room, all of it covered, to be changed by the tests."""

    def __init__(self):
        self.folder = tempfile.TemporaryDirectory()
        self.root = pathlib.Path(self.folder.name).resolve()
        self.files, self.functions = {}, []
        for room in judge.EVERY_BRANCH + judge.MOST_LINES:
            self.files[self.write(f"{room}/Days.cpp")] = lines(20, 0)

    def write(self, name, text="\n".join(FUNCTION)):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        return str(path)

    def verdict(self, exceptions=None):
        counts = read_counts(exported(self.files, self.functions), self.root)
        return judge.Verdict(counts, exceptions or {}, self.root)


class VerdictTest(unittest.TestCase):
    def setUp(self):
        self.tree = Tree()
        self.addCleanup(self.tree.folder.cleanup)
        self.days = str(self.tree.root / "calendar/Days.cpp")

    def test_a_covered_tree_passes(self):
        self.tree.functions = [function(self.days, [(CONDITION, 2, 3)])]
        verdict = self.tree.verdict()
        self.assertEqual(verdict.faults, [])
        self.assertEqual(verdict.rows[0], ("calendar", 20, 20, 2, 2))

    def test_each_way_that_a_branch_did_not_go_is_a_fault(self):
        for true, false, faults in ((0, 3, ["true"]), (3, 0, ["false"]), (0, 0, ["true", "false"])):
            self.tree.functions = [function(self.days, [(CONDITION, true, false)], ran=true + false)]
            self.assertEqual(self.tree.verdict().faults, [
                f"calendar/Days.cpp:2: never {way}: day < 1\n    return day < 1;" for way in faults])

    def test_a_branch_outside_the_rooms_that_compute_is_only_counted(self):
        self.tree.functions = [function(str(self.tree.root / "cli/Days.cpp"), [(CONDITION, 0, 3)])]
        verdict = self.tree.verdict()
        self.assertEqual(verdict.faults, [])
        self.assertIn(("cli", 20, 20, 1, 2), verdict.rows)

    def test_any_instance_of_a_template_takes_a_branch(self):
        self.tree.functions = [function(self.days + ":Early<int>", [(CONDITION, 0, 3)]),
                               function(self.days + ":Early<long>", [(CONDITION, 1, 0)]),
                               function(self.days + ":Early<short>", [(CONDITION, 0, 0)], ran=0)]
        self.assertEqual(self.tree.verdict().faults, [])

    def test_a_header_is_one_file_by_whichever_path(self):
        header = self.tree.write("calendar/Early.h")
        link = self.tree.root / "build/roots"
        link.mkdir(parents=True)
        (link / "calendar").symlink_to(self.tree.root / "calendar")
        other = str(link / "calendar/Early.h")
        self.tree.files.update({header: lines(1, 2), other: lines(2, 1)})
        self.tree.functions = [function(header, [(CONDITION, 0, 3)]), function(other, [(CONDITION, 1, 0)])]
        verdict = self.tree.verdict()
        self.assertEqual(verdict.faults, [])
        self.assertEqual(verdict.rows[0], ("calendar", 22, 23, 2, 2))

    def test_what_the_compiler_decided_is_no_branch_where_the_code_around_it_ran(self):
        self.tree.functions = [function(self.days, [(CONDITION, 0, 0)])]
        verdict = self.tree.verdict()
        self.assertEqual(verdict.faults, [])
        self.assertEqual(verdict.rows[0][3:], (0, 0))
        inner = [BODY + [1, 0, 0, 0], [2, 5, 2, 20, 0, 0, 0, 0]]
        self.tree.functions = [function(self.days, [(CONDITION, 0, 0)], inner)]
        self.assertEqual(len(self.tree.verdict().faults), 2)

    def test_a_comparison_that_the_compiler_wrote_has_no_branches(self):
        last_letter = [2, 13, 2, 14]
        for branches, faults in (([(last_letter, 5, 0), (last_letter, 5, 0)], 0), ([(CONDITION, 5, 0)], 1)):
            regions = [place + [5, 0, 0, 0] for place, _, _ in branches]
            self.tree.functions = [function(self.days, branches, regions)]
            self.assertEqual(len(self.tree.verdict().faults), faults)

    def test_an_exception_excuses_its_branch_wherever_its_line_moves(self):
        self.tree.functions = [function(self.days, [(CONDITION, 0, 3)])]
        excused = {Branch("calendar/Days.cpp", "return day < 1;", "day < 1", True): "No day is."}
        self.assertEqual(self.tree.verdict(excused).faults, [])
        self.tree.write("calendar/Days.cpp", "\n".join(["// More.", *FUNCTION]))
        self.tree.functions = [function(self.days, [([3, 12, 3, 19], 0, 3)])]
        self.assertEqual(self.tree.verdict(excused).faults, [])

    def test_an_exception_that_is_not_needed_is_a_fault(self):
        excused = {Branch("calendar/Days.cpp", "return day < 1;", "day < 1", True): "No day is."}
        fault = "calendar/Days.cpp: no longer needed in the list of exceptions: day < 1 is true"
        for branches in ([(CONDITION, 1, 3)], []):
            self.tree.functions = [function(self.days, branches)]
            self.assertEqual(self.tree.verdict(excused).faults, [fault])

    def test_the_other_rooms_need_95_percent_of_their_lines(self):
        name = str(self.tree.root / "windows/Days.cpp")
        self.tree.files[name] = lines(95, 5)
        self.assertEqual(self.tree.verdict().faults, [])
        self.tree.files[name] = lines(94, 6)
        self.assertEqual(self.tree.verdict().faults, ["windows: 94.00 % of the lines were run, less than 95 %"])

    def test_a_source_that_no_program_holds_is_a_fault(self):
        self.tree.write("text/Forgotten.cpp")
        self.tree.write("text/OnlyTypes.h")
        self.tree.write("platform/windows/Elsewhere.cpp")
        self.assertEqual(self.tree.verdict().faults, ["text/Forgotten.cpp: in no program that was run"])

    def test_a_room_without_counts_is_a_fault(self):
        del self.tree.files[str(self.tree.root / "app/Days.cpp")]
        self.assertEqual(self.tree.verdict().faults,
                         ["app/Days.cpp: in no program that was run", "app: nothing was counted"])

    def test_the_program_prints_the_table_and_ends_by_the_verdict(self):
        export = self.tree.root / "export.json"
        for missed, status in ((0, 0), (10, 1)):
            self.tree.files[str(self.tree.root / "app/Days.cpp")] = lines(20, missed)
            export.write_text(json.dumps(exported(self.tree.files, self.tree.functions)))
            table, faults = io.StringIO(), io.StringIO()
            with contextlib.redirect_stdout(table), contextlib.redirect_stderr(faults):
                self.assertEqual(judge.main([str(export), str(self.tree.root)], exceptions=""), status)
            self.assertIn(f"app             20 of {20 + missed:6}", table.getvalue())
            self.assertEqual(faults.getvalue() != "", status == 1)


class LineTest(unittest.TestCase):
    def test_a_line_counts_what_ran_most_of_its_regions(self):
        # 1 a function that ran 3 times, 2 a branch of it once, 3 the rest of the branch and the rest of the function
        segments = [[1, 10, 3, True, True, False], [2, 15, 1, True, True, False], [3, 2, 3, True, False, False],
                    [5, 2, 0, False, False, False], [7, 1, 0, True, True, False], [7, 9, 0, False, False, False]]
        self.assertEqual(line_counts(segments), {1: 3, 2: 3, 3: 1, 4: 3, 5: 3, 7: 0})

    def test_gaps_do_not_run_and_what_was_left_out_is_no_line(self):
        segments = [[1, 1, 2, True, True, False], [2, 4, 0, True, True, True], [3, 1, 0, False, True, False],
                    [4, 1, 5, True, True, False], [4, 9, 0, False, False, False]]
        self.assertEqual(line_counts(segments), {1: 2, 2: 2, 4: 5})

    def test_nothing_has_no_lines(self):
        self.assertEqual(line_counts([]), {})


class ExceptionsTest(unittest.TestCase):
    ENTRY = "file:  text/Names.cpp\nline:  if (at == end) {\nnever: at == end is true\nwhy:   Every name\n       is there.\n"
    BRANCH = Branch("text/Names.cpp", "if (at == end) {", "at == end", True)

    def test_entries_stand_between_empty_lines(self):
        other = self.ENTRY.replace("is true", "is false")
        self.assertEqual(read_exceptions(f"# All of them.\n\n{self.ENTRY}\n\n# One more.\n{other}"),
                         {self.BRANCH: "Every name is there.",
                          Branch(self.BRANCH.file, self.BRANCH.line, "at == end", False): "Every name is there."})
        self.assertEqual(read_exceptions("# Nothing.\n"), {})

    def test_what_is_not_an_entry_is_refused(self):
        lines_of_entry = self.ENTRY.splitlines()
        for fault in ("\n".join(lines_of_entry[:3]), "\n".join(lines_of_entry[1:]), self.ENTRY + "more: text\n",
                      self.ENTRY.replace("is true", "is never"), self.ENTRY + "\n" + self.ENTRY,
                      self.ENTRY.replace("never:", "  never:"), self.ENTRY.replace("line:", "file:")):
            with self.assertRaises(BadList, msg=fault):
                read_exceptions(fault)


if __name__ == "__main__":
    unittest.main()
