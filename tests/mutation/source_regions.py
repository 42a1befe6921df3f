"""Finds the places of a source that can be replaced while the program runs: statements, conditions,
initialisers. Knows the grammar as far as this project's formatted sources use it, and leaves out what it does
not understand."""

from dataclasses import dataclass, field

from source_tokens import match_brackets, tokenize


@dataclass
class Region:
    """tokens[start:end]; `kind` tells how it is replaced:

    expression  a value, replaced by another of its type
    condition   the same, of type bool
    call        an expression statement with its semicolon
    return      a return statement with its semicolon
    jump        continue or break with its semicolon
    loop        the body of a loop, which can be left after its first round
    """
    kind: str
    start: int
    end: int
    is_last: bool = False  # the statement that ends its function
    result: str = ""  # of a return: what the function's head says before its name
    keyword: int = -1  # the constexpr that an initialiser would have to go without
    inner: list = field(default_factory=list)


class Source:
    def __init__(self, text):
        self.text = text
        self.tokens = tokenize(text)
        self.partner = match_brackets(self.tokens)
        self.regions = []
        self.functions = []  # (name, first token, behind the last), outer ones before those inside
        self._declarations(0, len(self.tokens))
        self.regions = _nest(self.regions)

    def is_mark(self, index, *texts):
        return index < len(self.tokens) and self.tokens[index].text in texts and self.tokens[index].kind != "text"

    def find(self, start, end, *texts):
        """The first of the marks or words that lies in no bracket; `end` when there is none."""
        index = start
        while index < end:
            if self.is_mark(index, *texts):
                return index
            index = self.partner.get(index, index) + 1
        return end

    def function_of(self, region):
        """The name of the function that the region lies in, or else of the variable that it initialises."""
        inside = (name for name, start, end in self.functions if start <= region.start < end)
        return next(inside, self.tokens[max(region.start - 2, 0)].text)

    def _add(self, kind, start, end, **more):
        if start < end:
            self.regions.append(Region(kind, start, end, **more))
            self._lambdas(start, end)

    # Declarations

    def _declarations(self, index, end):
        while index < end:
            index = self._declaration(index, end)

    def _declaration(self, start, end):
        if self.is_mark(start, "public", "protected", "private"):
            return start + 2
        if self.is_mark(start, "template"):
            closing = start + 1
            depth = 0
            while True:
                depth += self.tokens[closing].text.count("<") - self.tokens[closing].text.count(">")
                closing += 1
                if depth == 0:
                    break
            return self._declaration(closing, end)

        stop = self.find(start, end, "{", ";", "=")
        # A constructor's initialisers may stand in braces, and so may a member's value: not so in this project,
        # but for variables.
        if stop >= end or self.is_mark(stop, ";"):
            return stop + 1
        if self.is_mark(stop, "="):
            return self._variable(start, stop, end)
        heads = [word for word in range(start, stop) if self.is_mark(word, "namespace", "class", "struct", "enum")]
        if heads and not self.is_mark(heads[0], "enum"):
            self._declarations(stop + 1, self.partner[stop])
            after = self.partner[stop] + 1
            return after + 1 if self.is_mark(after, ";") else after
        parameters = self.find(start, stop, "(")
        if parameters == stop or heads:
            return self.find(stop, end, ";") + 1
        self._function(start, parameters, stop)
        return self.partner[stop] + 1

    def _variable(self, start, equals, end):
        if self.is_mark(start, "using") or self.is_mark(equals - 1, "operator"):
            semicolon = self.find(equals, end, ";", "{")
            return self.partner.get(semicolon, semicolon) + 1
        semicolon = self.find(equals, end, ";")
        if self.find(start, equals, "(") == equals and not self.is_mark(equals + 1, "{"):
            keyword = next((word for word in range(start, equals) if self.is_mark(word, "constexpr")), -1)
            self._add("expression", equals + 1, semicolon, keyword=keyword)
        return semicolon + 1

    def _function(self, start, parameters, body):
        self.functions.append((self.tokens[parameters - 1].text, start, self.partner[body] + 1))
        result = " ".join(token.text for token in self.tokens[start:parameters - 1])
        colon = self.find(self.partner[parameters], body, ":")
        if colon < body:
            self._initialisers(colon + 1, body)
        self._block(body, result, is_function=True)

    def _initialisers(self, index, body):
        while index < body:
            opening = self.find(index, body, "(")
            if opening == body:
                return
            closing = self.partner[opening]
            if self.find(opening + 1, closing, ",", "...") == closing:
                self._add("expression", opening + 1, closing)
            index = closing + 1

    # Statements

    def _block(self, opening, result, is_function=False):
        index, closing = opening + 1, self.partner[opening]
        while index < closing:
            before, index = index, self._statement(index, closing, result)
            if is_function and index >= closing:
                for region in self.regions:
                    region.is_last = region.is_last or region.start == before
        return closing + 1

    def _statement(self, index, end, result):
        tokens = self.tokens
        if self.is_mark(index, "{"):
            return self._block(index, result)
        if self.is_mark(index, "if", "while", "for"):
            return self._guarded(index, end, result)
        if self.is_mark(index, "try", "else"):
            return self._statement(index + 1, end, result)
        if self.is_mark(index, "catch"):
            return self._statement(self.partner[index + 1] + 1, end, result)
        semicolon = self.find(index, end, ";")
        if self.is_mark(index, "return"):
            self._add("return", index, semicolon + 1, result=result)
        elif self.is_mark(index, "continue", "break"):
            self._add("jump", index, semicolon + 1)
        elif self.is_mark(index, "throw", "using", "static_assert", ";"):
            pass
        else:
            self._simple(index, semicolon)
        return semicolon + 1

    def _simple(self, index, semicolon):
        if not self._declares(index, semicolon):
            self._add("call", index, semicolon + 1)
            return
        equals = self.find(index, semicolon, "=")
        if equals < semicolon and not self.is_mark(equals + 1, "{", "["):
            self._add("expression", equals + 1, semicolon)
        else:
            self._lambdas(index, semicolon)

    def _declares(self, index, semicolon):
        """Whether a name is declared: two words in a row, or a type's end and a word, before any bracket."""
        stop = self.find(index, semicolon, "(", "[", "{", "=", ".", "->")
        words = [token for token in self.tokens[index:stop] if token.text not in ("*", "&", "const", "static")]
        if self.is_mark(stop, "[") and words and words[-1].text == "auto":
            return True
        return len(words) >= 2 and words[-1].kind == "word" and (words[-2].kind == "word" or words[-2].text == ">")

    def _guarded(self, index, end, result):
        keyword, opening = self.tokens[index].text, index + 1
        closing = self.partner[opening]
        if keyword == "for":
            self._for_head(opening, closing)
        else:
            equals = self.find(opening + 1, closing, "=")
            if equals < closing:
                self._add("expression", equals + 1, closing)
            else:
                self._add("condition", opening + 1, closing)
        after = self._statement(closing + 1, end, result)
        if keyword != "if":
            self.regions.append(Region("loop", closing + 1, after))
        return after

    def _for_head(self, opening, closing):
        first = self.find(opening + 1, closing, ";")
        if first == closing:
            colon = self.find(opening + 1, closing, ":")
            self._add("expression", colon + 1, closing)
            return
        second = self.find(first + 1, closing, ";")
        equals = self.find(opening + 1, first, "=")
        self._add("expression", equals + 1, first)
        self._add("condition", first + 1, second)

    def _lambdas(self, start, end):
        """Reads the bodies of the lambdas in an expression, which are statements again."""
        index = start
        while index < end:
            if self.is_mark(index, "[") and (index == start or self.is_mark(index - 1, "(", ",", "{", "=", "return")):
                body = self.partner[index] + 1
                if self.is_mark(body, "("):
                    body = self.partner[body] + 1
                if self.is_mark(body, "{"):
                    self._block(body, "", is_function=True)
                    index = self.partner[body]
            index += 1


def _nest(regions):
    """Puts each region into the innermost that holds it; those that stand in none are returned, in order."""
    outermost, chain = [], []
    for region in sorted(regions, key=lambda region: (region.start, -region.end, region.kind != "loop")):
        while chain and chain[-1].end <= region.start:
            chain.pop()
        (chain[-1].inner if chain else outermost).append(region)
        chain.append(region)
    return outermost
