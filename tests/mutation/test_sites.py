#!/usr/bin/python3
"""What ./dev mutate changes in a source, and what it leaves alone."""

import random
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import sites  # noqa: E402

SOURCE = """\
#include "number1.h"
static_assert(sizeof(int) == 4, "four");
// a comment with 1, true and "text"
/* another == 2 */
int Box::side(QWidget *parent, bool big)
{
    Q_UNUSED(parent)
    if (big && m_side >= 3)
        return m_side + 4;
    m_side = 5;
    int other = m_side;
    setText("width:6px");
    return other;
}
"""

HEADER = """\
class Box : public QWidget
{
    Q_OBJECT
public:
    explicit Box(QWidget *parent = nullptr);
    virtual void open() = 0;

private:
    int m_side = 7;
    QColor m_color = QColor(Qt::red);
    QPointer<QWidget> m_child;
};
"""

FORM = """\
<property name="geometry"><rect><width>80</width></rect></property>
<property name="spacing"><number>4</number></property>
<property name="enabled"><bool>true</bool></property>
"""


def found(text, path="box.cpp"):
    """The kind and the text of each site."""
    return [(site.kind, text[site.start:site.end]) for site in sites.sites_of(path, text)]


def replacements(text, path="box.cpp"):
    return {mutation.replacement for mutation in sites.mutations_of(path, text)}


class Sites(unittest.TestCase):
    def test_a_source_has_its_literals_operators_conditions_and_statements(self):
        self.assertCountEqual(found(SOURCE), [
            ("condition", "big && m_side >= 3"), ("operator", "&&"), ("comparison", ">="),
            ("number", "3"), ("operator", "+"), ("number", "4"),
            ("statement", "m_side = 5;"), ("number", "5"),
            ("statement", 'setText("width:6px");'), ("string", '"width:6px"')])

    def test_a_header_has_its_defaults(self):
        self.assertCountEqual(found(HEADER), [("number", "7"), ("default", "QColor(Qt::red)")])

    def test_a_form_has_numbers_and_booleans_outside_its_geometry(self):
        self.assertEqual(found(FORM, "box.ui"), [("form", "4"), ("form", "true")])

    def test_comments_directives_and_assertions_are_spared(self):
        spared = "".join(SOURCE.splitlines(True)[:4])
        self.assertEqual(found(spared), [])

    def test_brackets_pointers_and_references_are_no_operators(self):
        text = "void f(QVector<int> *a, const QString &b, QString &&c) { QLabel *label = g(a); }"
        self.assertEqual(found(text), [])

    def test_plus_between_strings_is_spared(self):
        self.assertNotIn(("operator", "+"), found('void f() { s = "a" + b + c; }'))

    def test_a_choice_is_a_condition(self):
        self.assertIn(("condition", "a.b(c)"), found("int f() { return a.b(c) ? x : y; }"))

    def test_a_declaration_is_no_statement(self):
        text = "void f() { QPainter painter(this); QString text = g(); auto *x = h(); return x; }"
        self.assertNotIn("statement", [kind for kind, _ in found(text)])

    def test_statements_in_all_places(self):
        text = ("void f() { if (a) g(); else h(); for (;;) i(); "
                "switch (b) { case C: j(); break; default: k(); } Q_EMIT l(); return; }")
        statements = [part for kind, part in found(text) if kind == "statement"]
        self.assertEqual(statements, ["g();", "h();", "i();", "j();", "break;", "k();",
                                      "Q_EMIT l();", "return;"])

    def test_a_statement_with_a_lambda_is_left_out_whole(self):
        text = "void f() { connect(a, [b] { c(); }); }"
        self.assertIn(("statement", "connect(a, [b] { c(); });"), found(text))
        self.assertIn(("statement", "c();"), found(text))


class Replacements(unittest.TestCase):
    def test_numbers(self):
        self.assertEqual(sites.changed_number("0"), ["1"])
        self.assertEqual(sites.changed_number("9"), ["10", "8"])
        self.assertEqual(sites.changed_number("0.5F"), ["1.5F"])
        self.assertEqual(sites.changed_number("0xff"), ["0x100", "0xfe"])

    def test_strings(self):
        self.assertEqual(sites.changed_string('""'), ['"x"'])
        self.assertEqual(sites.changed_string('";"'), ['""'])
        self.assertEqual(sites.changed_string(r'"a\n10"'), [r'"ax\n10"', r'"a\n11"', r'"a\n9"'])
        self.assertEqual(sites.changed_string('R"(a)"'), ['R"(ax)"'])
        self.assertEqual(sites.changed_string('"f(b)"'), ['"fx(b)"', '"f(bx)"'])

    def test_comparisons_booleans_and_negations(self):
        self.assertIn("!=", replacements("bool f() { return a == b; }"))
        self.assertIn("false", replacements("bool f() { return true; }"))
        self.assertIn("", replacements("bool f() { return !a; }"))
        self.assertIn("!(a)", replacements("void f() { if (a) g(); }"))

    def test_a_mutation_changes_one_token_and_nothing_else(self):
        kinds = {"number", "string", "operator", "comparison", "boolean", "literal"}
        for mutation in sites.mutations_of("box.cpp", SOURCE):
            after = mutation.apply(SOURCE)
            self.assertNotEqual(after, SOURCE)
            if mutation.kind not in kinds:
                continue
            old = [token.text for token in sites.tokens_of(SOURCE)]
            new = [token.text for token in sites.tokens_of(after)]
            self.assertEqual(len(old), len(new), mutation)
            self.assertEqual(sum(a != b for a, b in zip(old, new)), 1, mutation)

    def test_a_key_does_not_know_its_line(self):
        one = {mutation.key(SOURCE) for mutation in sites.mutations_of("box.cpp", SOURCE)}
        moved = "\n\n" + SOURCE
        two = {mutation.key(moved) for mutation in sites.mutations_of("box.cpp", moved)}
        self.assertEqual(one, two)
        self.assertIn(("box.cpp", "m_side = 5;", ";"), one)


class Sample(unittest.TestCase):
    texts = {"box.cpp": SOURCE, "box.h": HEADER, "box.ui": FORM}

    def test_the_seed_repeats_the_sample(self):
        self.assertEqual(sites.sample(self.texts, random.Random(5)),
                         sites.sample(self.texts, random.Random(5)))
        self.assertNotEqual(sites.sample(self.texts, random.Random(5)),
                            sites.sample(self.texts, random.Random(6)))

    def test_each_site_is_drawn_once(self):
        drawn = sites.sample(self.texts, random.Random(5))
        places = {(mutation.path, mutation.start, mutation.end) for mutation in drawn}
        self.assertEqual(len(places), len(drawn))
        self.assertEqual(len(drawn), sum(len(sites.sites_of(*item)) for item in self.texts.items()))


if __name__ == "__main__":
    unittest.main()
