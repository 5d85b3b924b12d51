"""Where a source of the library can be changed, and how: the small lexer behind ./dev mutate.

A Mutation replaces one stretch of a text: a literal, an operator, a condition, a default, or a
statement.  Comments, preprocessor lines, assertions and Qt's macros without effect are spared.
"""

import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""
    (?P<space>\s+)
  | (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>(?<![^\n])[ \t]*\#(?:\\\n|[^\n])*)
  | (?P<string>(?:u8|[uUL])?R"(?P<fence>[^(\s]*)\(.*?\)(?P=fence)"|(?:u8|[uUL])?"(?:\\.|[^"\\\n])*")
  | (?P<char>[uUL]?'(?:\\.|[^'\\\n])+')
  | (?P<number>\.?\d(?:'?[\w.]|(?<=[eE])[+-])*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<operator>->\*|<<=|>>=|\.\.\.|->|\+\+|--|<<|&&|\|\||::|[-+*/%&|^<>=!]=|.)
    """,
    re.X | re.S,
)

COMPARISONS = {
    "==": ["!="],
    "!=": ["=="],
    "<": ["<=", ">"],
    "<=": ["<", ">"],
    ">": [">=", "<"],
    ">=": [">", "<"],
}
OPERATORS = {
    "&&": ["||"],
    "||": ["&&"],
    "+": ["-"],
    "-": ["+"],
    "*": ["/"],
    "/": ["*"],
    "%": ["*"],
    "+=": ["-="],
    "-=": ["+="],
    "|": ["&"],
    "&": ["|"],
    "++": ["--"],
    "--": ["++"],
}
BOOLEANS = {"true": ["false"], "false": ["true"]}

# From here to the end of the statement nothing is changed: no test can notice it.
SPARED = {"static_assert", "using", "template", "friend", "Q_UNUSED", "Q_ASSERT",
          "Q_DECLARE_TYPEINFO", "Q_DECLARE_METATYPE"}
SCOPES = {"class", "struct", "union", "enum", "namespace"}
NO_STATEMENT = SCOPES | SPARED | {
    "auto", "case", "catch", "const", "constexpr", "default", "do", "else", "explicit", "extern",
    "for", "if", "inline", "operator", "private", "protected", "public", "return", "static",
    "switch", "try", "typedef", "typename", "virtual", "while", "Q_OBJECT", "Q_SIGNALS", "Q_SLOTS"}
AFTER_CALLEE = {"(", ".", "->", "=", "+=", "-=", "*=", "/=", "|=", "&=", "[", "++", "--"}
BEFORE_CHOICE = {";", ",", "=", "+=", "?", ":", "<<", "return"}
OPEN = {"(": ")", "[": "]", "{": "}"}
CLOSE = set(OPEN.values())


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int

    @property
    def end(self):
        return self.start + len(self.text)


@dataclass(frozen=True)
class Site:
    """A stretch of a text, and what can stand in its place."""

    kind: str
    start: int
    end: int
    replacements: tuple


@dataclass(frozen=True)
class Mutation:
    """A site of a file with one of its replacements."""

    path: str
    kind: str
    start: int
    end: int
    replacement: str

    def apply(self, text):
        return text[:self.start] + self.replacement + text[self.end:]

    def line(self, text):
        return text.count("\n", 0, self.start) + 1

    def key(self, text):
        """File and source text before and after, without what a shift of lines changes."""
        first = text.rfind("\n", 0, self.start) + 1
        last = text.find("\n", self.end)
        last = len(text) if last < 0 else last
        before = text[first:last]
        after = text[first:self.start] + self.replacement + text[self.end:last]
        return self.path, " ".join(before.split()), " ".join(after.split())


def tokens_of(text):
    """The tokens that matter, without space, comments and preprocessor lines."""
    return [Token(match.lastgroup if match.lastgroup != "fence" else "string", match.group(),
                  match.start())
            for match in TOKEN.finditer(text)
            if match.lastgroup not in ("space", "comment", "directive")]


def changed_number(text):
    """A number one greater, and one less if it stays positive; in the notation that it has."""
    match = re.fullmatch(r"(0[xX])([\da-fA-F]+)([uUlL]*)", text)
    if match:
        value = int(match.group(2), 16)
        return [f"{match.group(1)}{value + step:x}{match.group(3)}"
                for step in (1, -1) if value + step >= 0]
    match = re.fullmatch(r"(\d+)(\.\d*)?([uUlLfF]*)", text)
    if not match:
        return []
    value = int(match.group(1))
    return [f"{value + step}{match.group(2) or ''}{match.group(3)}"
            for step in (1, -1) if value + step >= 0]


def changed_string(text):
    """A string with another number or another word in it; an empty one gets one, and one without
    either becomes empty."""
    head, body, tail = re.fullmatch(r'(\w*"(?:(?<=R")[^(\s]*\()?)(.*?)((?:\)[^(\s)]*)?")', text,
                                    re.S).groups()
    if "R" not in head and tail.startswith(")"):
        head, body, tail = head, body + tail[:-1], tail[-1]
    if not body:
        return [f"{head}x{tail}"]
    changed = []
    for match in re.finditer(r"\\.|\d+|[^\W\d_]+", body):
        if match.group().startswith("\\"):
            continue
        news = changed_number(match.group()) if match.group().isdecimal() else [match.group() + "x"]
        changed += [head + body[:match.start()] + new + body[match.end():] + tail for new in news]
    return changed or [head + tail]


def partners(tokens):
    """For each bracket, the index of the one that it belongs to."""
    partner = {}
    opened = []
    for index, token in enumerate(tokens):
        if token.kind != "operator":
            continue
        if token.text in OPEN:
            opened.append(index)
        elif token.text in CLOSE and opened:
            partner[index] = opened.pop()
            partner[partner[index]] = index
    return partner


def code_scopes(tokens, partner):
    """For each token the kind of the innermost braces around it: "type" for the body of a class,
    an enumeration or a namespace, else "code"."""
    scopes = []
    opened = ["type"]
    for index, token in enumerate(tokens):
        if token.text == "}" and token.kind == "operator" and len(opened) > 1:
            opened.pop()
        scopes.append(opened[-1])
        if token.text == "{" and token.kind == "operator":
            opened.append(scope_of(tokens, partner, index))
    return scopes


def scope_of(tokens, partner, brace):
    """Which kind of scope the brace with that index opens."""
    index = brace - 1
    while index >= 0:
        token = tokens[index]
        if token.kind == "operator" and token.text == ")":
            return "code"
        if token.kind == "operator" and token.text in ";{}":
            break
        if token.text in SCOPES:
            return "type"
        if token.text in ("=", "return", "else", "do"):
            return "code"
        index -= 1
    return "code"


def spared_tokens(tokens):
    """The indexes of the tokens that belong to a spared statement, or to an attribute."""
    spared = set()
    index = 0
    while index < len(tokens):
        token = tokens[index]
        if token.text in SPARED:
            end = ">" if token.text == "template" else ";"
            if token.text in ("Q_UNUSED", "Q_ASSERT"):
                end = ")"
            while index < len(tokens) and tokens[index].text != end:
                spared.add(index)
                index += 1
        index += 1
    return spared


class Finder:
    """Collects the sites of one text of C++."""

    def __init__(self, text):
        self.text = text
        self.tokens = tokens_of(text)
        self.partner = partners(self.tokens)
        self.scopes = code_scopes(self.tokens, self.partner)
        self.spared = spared_tokens(self.tokens)
        self.sites = []

    def find(self):
        for index, token in enumerate(self.tokens):
            if index in self.spared:
                continue
            self.add_token(index, token)
            self.add_condition(index, token)
            self.add_default(index, token)
            self.add_statement(index)
        return self.sites

    def add(self, kind, start, end, replacements):
        if replacements:
            self.sites.append(Site(kind, start, end, tuple(replacements)))

    def text_at(self, index):
        return self.tokens[index].text if 0 <= index < len(self.tokens) else ""

    def add_token(self, index, token):
        if token.kind == "number":
            pure_virtual = (self.text_at(index - 1) == "="
                            and self.text_at(index - 2) in (")", "const", "override", "noexcept"))
            if not pure_virtual:
                self.add("number", token.start, token.end, changed_number(token.text))
        elif token.kind == "string":
            self.add("string", token.start, token.end, changed_string(token.text))
        elif token.kind == "char":
            if re.fullmatch(r"\w?'[^\\]'", token.text):
                self.add("literal", token.end - 2, token.end - 1, [chr(ord(token.text[-2]) + 1)])
        elif token.kind == "word":
            self.add("boolean", token.start, token.end, BOOLEANS.get(token.text, []))
        elif token.kind == "operator":
            self.add_operator(index, token)

    def add_operator(self, index, token):
        before = self.text[token.start - 1:token.start]
        after = self.text[token.end:token.end + 1]
        if token.text == "!" or (token.text == "-" and not after.isspace()):
            # A sign or a negation, which is left out.
            if self.text_at(index + 1) != "=":
                self.add("operator", token.start, token.end, [""])
        elif token.text in ("++", "--"):
            self.add("operator", token.start, token.end, OPERATORS[token.text])
        elif before.isspace() and after.isspace():
            # By the format a binary operator stands between blanks; brackets, pointers and
            # references do not.
            if token.text in COMPARISONS:
                self.add("comparison", token.start, token.end, COMPARISONS[token.text])
            elif token.text in OPERATORS and not (token.text == "+" and self.joins_strings(index)):
                self.add("operator", token.start, token.end, OPERATORS[token.text])

    def joins_strings(self, index):
        """Whether a plus stands in a statement with a string, where a minus would not compile."""
        first = last = index
        while first > 0 and self.text_at(first) not in (";", "{", "}"):
            first -= 1
        while last < len(self.tokens) and self.text_at(last) not in (";", "{", "}"):
            last += 1
        return any(token.kind == "string" for token in self.tokens[first:last])

    def add_condition(self, index, token):
        """The condition behind an if, and the one before a question mark, is turned round."""
        if token.text == "if" and token.kind == "word" and self.text_at(index + 1) == "(":
            first, last = index + 2, self.partner[index + 1]
        elif token.text == "?" and token.kind == "operator":
            first, last = self.start_of_choice(index), index
        else:
            return
        inside = {part.text for part in self.tokens[first:last]}
        if first < last and not inside & {";", "="}:
            start, end = self.tokens[first].start, self.tokens[last - 1].end
            self.add("condition", start, end, [f"!({self.text[start:end]})"])

    def start_of_choice(self, index):
        while index > 0:
            before = self.tokens[index - 1]
            if before.kind == "operator" and before.text in CLOSE:
                if before.text == "}":
                    break
                index = self.partner.get(index - 1, index - 1)
                continue
            if before.text in OPEN or before.text in BEFORE_CHOICE:
                break
            index -= 1
        return index

    def add_default(self, index, token):
        """The default of a member that is no literal; literals are changed themselves."""
        if token.text != "=" or self.scopes[index] != "type":
            return
        end = index + 1
        while self.text_at(end) not in (";", ",", ")", "") or end in self.partner:
            end = self.partner[end] + 1 if self.text_at(end) in OPEN else end + 1
            if self.text_at(end) == ")":
                break
        is_member = self.text_at(end) == ";" and self.text_at(index - 1).startswith("m_")
        if is_member and end > index + 2:
            self.add("default", self.tokens[index + 1].start, self.tokens[end - 1].end, ["{}"])

    def add_statement(self, index):
        """A statement that does something by itself is left out."""
        if self.scopes[index] != "code" or not self.is_statement_start(index):
            return
        end = index
        while self.text_at(end) not in (";", ""):
            if self.text_at(end) in CLOSE:
                return
            end = self.partner.get(end, end) + 1
        if self.text_at(end) != ";":
            return
        if self.does_something(index, end):
            self.add("statement", self.tokens[index].start, self.tokens[end].end, [";"])

    def is_statement_start(self, index):
        before = self.text_at(index - 1)
        if before in (";", "{", "}", "else"):
            return True
        if before == ")" and index - 1 in self.partner:
            opener = self.text_at(self.partner[index - 1] - 1)
            return opener in ("if", "for", "while", "switch", "Q_UNUSED")
        if before == ":":
            first = index - 2
            while self.text_at(first) not in ("case", "default", ";", "{", "}", "?", ")", ""):
                first -= 1
            return self.text_at(first) in ("case", "default")
        return False

    def does_something(self, first, end):
        token = self.tokens[first]
        if token.text in ("return", "break", "continue"):
            return end == first + 1
        if token.text in ("Q_EMIT", "delete", "*", "++", "--"):
            return True
        if token.kind != "word" or token.text in NO_STATEMENT:
            return False
        while self.text_at(first + 1) == "::":
            first += 2
        return self.text_at(first + 1) in AFTER_CALLEE


FORM_NUMBER = re.compile(r"<(?P<tag>number|width|height)>(?P<value>-?\d+)</(?P=tag)>")
FORM_BOOLEAN = re.compile(r"<bool>(?P<value>true|false)</bool>")
# Layouts set these, or Qt Designer alone reads them.
FORM_SPARED = re.compile(r'<property name="geometry">.*?</property>', re.S)


def form_sites(text):
    """The numbers and booleans of a form; the geometry that its layouts overwrite is spared."""
    spared = [match.span() for match in FORM_SPARED.finditer(text)]
    sites = []
    for pattern in (FORM_NUMBER, FORM_BOOLEAN):
        for match in pattern.finditer(text):
            if any(start <= match.start() < end for start, end in spared):
                continue
            value = match.group("value")
            new = BOOLEANS.get(value) or [str(int(value) + 1)]
            sites.append(Site("form", *match.span("value"), tuple(new)))
    return sorted(sites, key=lambda site: site.start)


def sites_of(path, text):
    return form_sites(text) if path.endswith(".ui") else Finder(text).find()


def mutations_of(path, text):
    """All mutations of a file."""
    return [Mutation(path, site.kind, site.start, site.end, replacement)
            for site in sites_of(path, text) for replacement in site.replacements]


def sample(texts, rng):
    """Every site of the files (a mapping of paths to texts) in random order, each with one of its
    replacements.  The same state of \\a rng gives the same order."""
    sites = [(path, site) for path in sorted(texts) for site in sites_of(path, texts[path])]
    rng.shuffle(sites)
    return [Mutation(path, site.kind, site.start, site.end, rng.choice(site.replacements))
            for path, site in sites]
