"""The tool itself: which changes it makes of small sources, what it leaves alone, its lists and its sample."""

import sys
import tempfile
import time
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))

import equivalents  # noqa: E402
import mutations  # noqa: E402
import results  # noqa: E402
import room  # noqa: E402
import sample  # noqa: E402
import trial  # noqa: E402

_ENUMS = {"Status": ["Valid", "NotValid", "OutOfRange"]}


def changes(source):
    return [mutant.change for mutant in mutations.mutants_of("a.cpp", source, _ENUMS)]


def in_function(body):
    return changes("int f(int a, int b) {\n" + body + "\n}\n")


class Operators(unittest.TestCase):
    def test_each_is_changed_into_its_neighbours(self):
        rows = {
            "a < b": ["< to <=", "< to >="],
            "a <= b": ["<= to <", "<= to >"],
            "a > b": ["> to >=", "> to <="],
            "a >= b": [">= to >", ">= to <"],
            "a == b": ["== to !="],
            "a != b": ["!= to =="],
            "a + b": ["+ to -"],
            "a - b": ["- to +"],
            "a * b": ["* to /"],
            "a / b": ["/ to *"],
            "a % b": ["% to *"],
            "a && b": ["&& to ||"],
            "a || b": ["|| to &&"],
            "!a": ["! removed"],
            "a += b": ["+= to -="],
            "++a": ["++ to --"],
        }
        for expression, expected in rows.items():
            with self.subTest(expression):
                self.assertEqual(sorted(in_function(f"return {expression};")), sorted(expected))

    def test_signs_pointers_references_and_types_are_left_alone(self):
        for body in ("return -a;", "return *p;", "const char* q = p;", "T&& r = m(a);", "std::vector<int> v(a);",
                     "return std::array<int, 3>();", "return static_cast<long>(a);", "return a->b;"):
            with self.subTest(body):
                self.assertEqual(in_function(body), [])

    def test_a_change_is_made_in_its_place(self):
        source = "bool f(int a) { return a < 3 && a < 5; }\n"
        mutants = mutations.mutants_of("a.cpp", source, {})
        second = next(mutant for mutant in mutants if mutant.change == "< to <=, 2. on its line")
        self.assertEqual(second.apply(source), "bool f(int a) { return a < 3 && a <= 5; }\n")


class Constants(unittest.TestCase):
    def test_numbers_move_by_one_and_become_nothing(self):
        self.assertEqual(in_function("return 0;"), ["0 to 1"])
        self.assertEqual(in_function("return 1;"), ["1 to 0", "1 to 2"])
        self.assertEqual(in_function("return 1'000u;"), ["1'000u to 0", "1'000u to 1001", "1'000u to 999"])
        self.assertEqual(in_function("return 0x10;"), ["0x10 to 0", "0x10 to 15", "0x10 to 17"])

    def test_truths_and_returned_enumerators_are_swapped(self):
        self.assertEqual(in_function("return true;"), ["true to false"])
        self.assertEqual(in_function("return Status::Valid;"), ["Valid to NotValid"])
        self.assertEqual(in_function("return Status::OutOfRange;"), ["OutOfRange to Valid"])
        self.assertEqual(in_function("const auto s = Status::Valid;"), [])

    def test_what_is_no_code_is_left_alone(self):
        for source in ('#include "a1.h"\n#define N 3\n', "// 1 + 1\n/* if (1) */\n", "static_assert(1 + 1 == 2);\n",
                       "enum class E { A = 1, B = 2 };\n", "template <int n = 3> struct S {};\n", "struct S { virtual int f() = 0; };\n",
                       "struct S { char text[10]; };\n", 'const char* s = "1 + 1";\n', "const char* s = R\"(1 + 1)\";\n",
                       "const char c = '1';\n"):
            with self.subTest(source):
                self.assertEqual(changes(source), [])
        self.assertEqual(in_function("assert(a < b);"), [])


class Statements(unittest.TestCase):
    def removed(self, body):
        source = "void f(int a) {\n" + body + "\n}\n"
        return [source[mutant.begin : mutant.end] for mutant in mutations.mutants_of("a.cpp", source, {})
                if mutant.change.startswith("statement removed")]

    def test_calls_assignments_and_leaving_are_removed(self):
        rows = {
            "Call(a);": ["Call(a)"],
            "object.member->Call(a)[b] = c;": ["object.member->Call(a)[b] = c"],
            "if (a) Call();": ["Call()"],
            "if (a) return;": ["return"],
            "for (;;) break;": ["break"],
            "for (i = a; b; i += c) {}": [],
            "while (a) { ++b; continue; }": ["++b", "continue"],
            "Call([&] { Inner(); });": ["Call([&] { Inner(); })", "Inner()"],
        }
        for body, expected in rows.items():
            with self.subTest(body):
                self.assertEqual(self.removed(body), expected)

    def test_declarations_and_last_values_stay(self):
        for body in ("int b = a;", "const auto b = a;", "std::string text(a);", "Type& b = Call();", "using X = Y;",
                     "return a;", "Table t = {Row(a), Row(b)};"):
            with self.subTest(body):
                self.assertEqual(self.removed(body), [])
        self.assertEqual(changes("struct S {\n  S(int a);\n  void f();\n};\n"), [])

    def test_lines_keep_their_numbers(self):
        source = "void f() {\n  Call(a,\n       b);\n  Other();\n}\n"
        first = mutations.mutants_of("a.cpp", source, {})[0]
        self.assertEqual(first.apply(source), "void f() {\n  \n;\n  Other();\n}\n")

    def test_conditions_are_negated(self):
        source = "void f() { if (auto x = g(); x) h(); while (k) {} if (T y = g()) {} }\n"
        texts = [mutant.apply(source) for mutant in mutations.mutants_of("a.cpp", source, {}) if "negated" in mutant.change]
        self.assertEqual(len(texts), 2)
        self.assertIn("if (auto x = g(); !(x))", texts[0])
        self.assertIn("while (!(k))", texts[1])


class Keys(unittest.TestCase):
    def test_are_different_and_outlive_other_lines(self):
        source = "int f(int a) {\n    if (a + a + a == 3) return 1;\n    if (a + a + a == 3) return 1;\n    return 0;\n}\n"
        mutants = mutations.mutants_of("a.cpp", source, {})
        keys = {mutant.key for mutant in mutants}
        self.assertEqual(len(keys), len(mutants))
        moved = mutations.mutants_of("a.cpp", "int other;\n\n" + source, {})
        self.assertEqual({mutant.key for mutant in moved}, keys)


class Equivalents(unittest.TestCase):
    LIST = "# words\na.cpp\n  line    return a < b;\n  change  < to <=\n  They are never\n  the same.\n"

    def test_an_entry_fits_its_mutant(self):
        entries = equivalents.read_entries(self.LIST)
        self.assertEqual(entries[0].reason, "They are never the same.")
        mutants = mutations.mutants_of("a.cpp", "bool f(int a, int b) {\n    return a < b;\n}\n", {})
        equivalents.check_entries(entries, mutants)
        self.assertIn(entries[0].key, [mutant.key for mutant in mutants])

    def test_an_entry_of_changed_code_is_told(self):
        mutants = mutations.mutants_of("a.cpp", "bool f(int a, int b) {\n    return a <= b;\n}\n", {})
        with self.assertRaisesRegex(equivalents.BadList, "fits nothing any more"):
            equivalents.check_entries(equivalents.read_entries(self.LIST), mutants)

    def test_a_list_with_faults_is_refused(self):
        for text in ("a.cpp\n  line    x\n  change  y\n", "a.cpp\n  change  y\n  line    x\n  Why.\n",
                     self.LIST + "\n" + self.LIST):
            with self.subTest(text), self.assertRaises(equivalents.BadList):
                equivalents.read_entries(text)


class Sample(unittest.TestCase):
    def test_every_file_has_its_share(self):
        self.assertEqual(sample.shares({"a": 900, "b": 99, "c": 1, "d": 0}, 100), {"a": 90, "b": 9, "c": 1})
        self.assertEqual(sample.shares({"a": 3, "b": 2}, 600), {"a": 3, "b": 2})
        self.assertEqual(sum(sample.shares({str(i): i for i in range(200)}, 600).values()), 600)

    def test_a_seed_draws_the_same_again(self):
        mutants = mutations.mutants_of("a.cpp", "int f(int a) { return a + 1 < 3 || a * 5 > 7; }\n", {})
        first = [mutant.key for mutant in sample.order("a.cpp", mutants, 1)]
        self.assertEqual(first, [mutant.key for mutant in sample.order("a.cpp", mutants[::-1], 1)])
        self.assertNotEqual(first, [mutant.key for mutant in sample.order("a.cpp", mutants, 2)])


class Results(unittest.TestCase):
    def test_are_kept_and_counted(self):
        mutants = mutations.mutants_of("a.cpp", "int f(int a) { return a < 3; }\n", {})
        with tempfile.TemporaryDirectory() as folder:
            found = results.Results(f"{folder}/found.jsonl")
            self.assertIsNone(found.verdict(mutants[0]))
            for mutant in mutants[1:]:
                found.add(mutant, trial.KILLED_BY_TEST, "a_test", 1)
            found.add(mutants[0], trial.SURVIVED, "", 1)
            again = results.Results(f"{folder}/found.jsonl")
            self.assertEqual(again.verdict(mutants[0]), trial.SURVIVED)
            share = 100 * (len(mutants) - 1) / len(mutants)
            self.assertAlmostEqual(results.report(mutants, again, set()), share)
            self.assertEqual(results.report(mutants, again, {mutants[0].key}), 100)


class Files(unittest.TestCase):
    def test_are_known_by_every_name_that_the_compiler_has_for_them(self):
        for path, file in {
            "/w/tree/cli/A.cpp": "cli/A.cpp", "../tree/cli/A.cpp": "cli/A.cpp",
            "/w/build/include_roots/cli/cli/A.h": "cli/A.h", "include_roots/cli/cli/A.h": "cli/A.h",
            "/usr/include/A.h": None, "generated/A.h": None, "/w/trees/A.h": None,
        }.items():
            with self.subTest(path):
                self.assertEqual(room.file_of_tree(path, Path("/w/tree"), Path("/w/build")), file)

    def test_of_which_nothing_is_made_are_told(self):
        place = room.Room("/c", "/w")
        place.objects = {"test": ["a.o"]}
        place.made_of = {"a.o": {"A.cpp", "A.h"}, "b.o": {"B.h"}}
        place.check_made_of(["A.cpp", "A.h"])
        with self.assertRaises(RuntimeError):
            place.check_made_of(["A.h", "B.h"])


class Running(unittest.TestCase):
    def test_a_status_is_success_or_not_and_time_ends(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertTrue(trial.run(["true"], folder, 10))
            self.assertFalse(trial.run(["false"], folder, 10))
            begin = time.time()
            with self.assertRaises(trial.TimeIsUp):
                trial.run([sys.executable, "-c", "while True: pass"], folder, 1)
            self.assertLess(time.time() - begin, 40)


if __name__ == "__main__":
    unittest.main(buffer=True)
