"""Cuts C++ into tokens, as far as choosing mutants needs: comments and directives are left out, and what the
formatter's spacing tells is kept, because it distinguishes a comparison from a template's bracket."""

import re
from dataclasses import dataclass

_PATTERN = re.compile(
    r"""(?P<skip>\s+|//[^\n]*|/\*.*?\*/|^[ \t]*\#(?:[^\n]*\\\n)*[^\n]*)
      | (?P<text>(?:u8|[uUL])?"(?:[^"\\\n]|\\.)*")
      | (?P<char>(?:u8|[uUL])?'(?:[^'\\\n]|\\.)*')
      | (?P<number>\d[\w.']*)
      | (?P<word>[A-Za-z_]\w*)
      | (?P<mark><=>|->\*|\.\.\.|::|->|\+\+|--|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)""",
    re.VERBOSE | re.DOTALL | re.MULTILINE)

_CLOSING = {"(": ")", "[": "]", "{": "}"}


@dataclass(frozen=True)
class Token:
    kind: str  # text, char, number, word or mark
    text: str
    start: int
    end: int
    space_before: bool
    space_after: bool

    @property
    def is_infix(self):
        """Whether a mark stands between two operands: the formatter sets those apart."""
        return self.kind == "mark" and self.space_before and self.space_after


def tokenize(source):
    tokens = []
    for match in _PATTERN.finditer(source):
        if match.lastgroup != "skip":
            tokens.append(Token(match.lastgroup, match.group(), match.start(), match.end(),
                                source[match.start() - 1:match.start()].isspace(),
                                source[match.end():match.end() + 1].isspace()))
    return tokens


def match_brackets(tokens):
    """The index of the closing bracket for that of each opening one; template brackets are not counted."""
    partner, open_ones = {}, []
    for index, token in enumerate(tokens):
        if token.kind != "mark":
            continue
        if token.text in _CLOSING:
            open_ones.append(index)
        elif token.text in _CLOSING.values():
            opening = open_ones.pop()
            if _CLOSING[tokens[opening].text] != token.text:
                raise ValueError(f"brackets do not match at offset {token.start}")
            partner[opening] = index
    return partner


def split_at_commas(tokens, partner, start, end):
    """The ranges between the commas of tokens[start:end] that lie in no bracket, template brackets included."""
    pieces, piece, index, templates = [], start, start, 0
    while index < end:
        token = tokens[index]
        if index in partner:
            index = partner[index]
        elif token.text == "<" and not token.is_infix:
            templates += 1
        elif token.text == ">" and templates > 0:
            templates -= 1
        elif token.text == "," and templates == 0:
            pieces.append((piece, index))
            piece = index + 1
        index += 1
    pieces.append((piece, end))
    return pieces


def one_line(source, tokens, start, end, edits=()):
    """tokens[start:end] on one line without comments; `edits` maps token indices to other texts."""
    edits = dict(edits)
    parts, gap = [], False
    for index in range(start, end):
        text = edits.get(index, tokens[index].text)
        gap = gap or (index > start and tokens[index - 1].end < tokens[index].start)
        if text:
            parts += [" ", text] if gap and text not in (")", ",", ";") else [text]
            gap = False
    return "".join(parts)
