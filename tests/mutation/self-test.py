#!/usr/bin/env python3
"""Tests of how mutants are made: python3 tests/mutation/self-test.py"""

import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
from instrumented_tree import InstrumentedTree, _File
from known_survivors import key_of, read_known_survivors
from source_tokens import tokenize

PROJECT = Path(__file__).resolve().parent.parent.parent


def mutants_of(text):
    return _File("x.cpp", text, 1).mutants


def changes_in(body, head="void F()"):
    return [(mutant.original, mutant.mutated) for mutant in mutants_of(f"{head}\n{{\n{body}\n}}\n")]


class Tokens(unittest.TestCase):
    def test_tell_comparisons_from_template_brackets(self):
        infix = [token.text for token in tokenize("std::vector<int> a = b < c;") if token.is_infix]

        self.assertEqual(infix, ["=", "<"])

    def test_leave_out_comments_and_directives(self):
        words = [token.text for token in tokenize("#include <x>\n// no\na /* no */ b")]

        self.assertEqual(words, ["a", "b"])


class Operators(unittest.TestCase):
    def test_move_the_bounds_of_a_comparison(self):
        self.assertEqual(changes_in("if (a < b)\n    throw 1;"), [("a < b", "a <= b"), ("a < b", "a >= b")])

    def test_leave_a_loop_after_its_first_round(self):
        self.assertIn(("++a;", "break;"), changes_in("for (int x : list)\n    ++a;"))

    def test_remove_a_call(self):
        self.assertEqual(changes_in("f();"), [("f();", ";")])

    def test_swap_arguments_that_follow_each_other(self):
        self.assertIn(("f(a, b<c, d>());", "f(b<c, d>(), a);"), changes_in("f(a, b<c, d>());"))

    def test_negate_a_condition_that_no_operator_turns_round(self):
        self.assertIn(("a && b", "!(a && b)"), changes_in("if (a && b)\n    f();"))
        self.assertNotIn(("a == b", "!(a == b)"), changes_in("if (a == b)\n    f();"))

    def test_negate_what_stands_before_a_question_mark(self):
        self.assertIn(("x.a() ? 1 : 0", "!(x.a()) ? 1 : 0"), changes_in("int y = x.a() ? 1 : 0;"))

    def test_return_constants_of_the_functions_type(self):
        self.assertEqual(changes_in("return a();", head="bool F()"),
                         [("return a();", "return true;"), ("return a();", "return false;")])
        self.assertEqual(changes_in("return a();", head="Style* F()"), [("return a();", "return {};")])

    def test_remove_an_early_return_but_not_the_last(self):
        changes = changes_in("if (a)\n    return;\nreturn;")

        self.assertEqual(changes.count(("return;", ";")), 1)

    def test_take_a_negation_away(self):
        self.assertIn(("return !a();", "return a();"), changes_in("return !a();"))

    def test_reach_into_lambdas(self):
        self.assertIn(("return a == b;", "return a != b;"), changes_in("f(x, [&](int a) { return a == b; });"))

    def test_leave_declarations_alone(self):
        self.assertEqual(changes_in("std::vector<int> list;\nconst Guard guard(x);\nusing namespace y;"), [])


class Instrumentation(unittest.TestCase):
    def test_gives_back_every_source_of_the_library_when_all_mutants_are_left_out(self):
        tree = InstrumentedTree(PROJECT, "unused")
        for file in tree.files:
            text, lines = file.text({mutant.number for mutant in file.mutants})

            self.assertTrue(text.endswith((PROJECT / file.name).read_text()), file.name)
            self.assertEqual(lines, {}, file.name)

    def test_puts_each_mutant_on_a_line_of_its_own(self):
        tree = InstrumentedTree(PROJECT, "unused")
        for file in tree.files:
            _, lines = file.text(set())

            self.assertEqual(sorted(lines.values()), [mutant.number for mutant in file.mutants], file.name)

    def test_makes_variables_of_constants(self):
        text, _ = _File("x.cpp", "constexpr int kTwo = 2;\nconstexpr Id kId{1};\n", 1).text(set())

        self.assertIn("const int kTwo = (\nMutantChosen(1) ? (3) :\n(2));\nconstexpr Id kId{1};\n", text)


class KnownSurvivors(unittest.TestCase):
    def test_are_found_by_place_and_change(self):
        second = mutants_of("void F()\n{\n    f();\n    f();\n}\n")[1]
        with tempfile.NamedTemporaryFile("w", suffix=".txt") as file:
            file.write("# a note\n\nx.cpp, F #2\n- f();\n+ ;\n  Because it\n  does nothing.\n")
            file.flush()

            self.assertEqual(read_known_survivors(file.name)[key_of(second)], "Because it does nothing.")

    def test_need_a_reason(self):
        with tempfile.NamedTemporaryFile("w", suffix=".txt") as file:
            file.write("x.cpp, F\n- f();\n+ ;\n")
            file.flush()

            with self.assertRaises(ValueError):
                read_known_survivors(file.name)


if __name__ == "__main__":
    unittest.main()
