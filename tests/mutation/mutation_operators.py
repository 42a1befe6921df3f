"""What is changed at a place of a source: each operator makes one small mistake that a programmer could make."""

from source_tokens import one_line, split_at_commas

_COMPARISONS = {"==": ("!=",), "!=": ("==",), "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<")}
_LOGIC = {"&&": "||", "||": "&&"}
_ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "+=": "-=", "-=": "+="}
_STEPS = {"++": "--", "--": "++"}
_WORDS = {"true": "false", "false": "true"}


def mutations(source, region):
    """The texts that may stand in place of the region, each once, with what was done."""
    start, end = _value_range(region)
    original = one_line(source.text, source.tokens, region.start, region.end)
    found = {}
    if region.kind == "loop":
        return [("leaves the loop after its first round", "break;")]
    for name, mutated in _all(source, region, start, end):
        if mutated != original:
            found.setdefault(mutated, name)
    return [(name, mutated) for mutated, name in found.items()]


def _value_range(region):
    if region.kind == "return":
        return region.start + 1, region.end - 1
    return (region.start, region.end - 1) if region.kind in ("call", "jump") else (region.start, region.end)


def _all(source, region, start, end):
    own = _own_tokens(region, start, end)
    for name, edits in _edits(source, own):
        yield name, one_line(source.text, source.tokens, region.start, region.end, edits)
    yield from _negations(source, region, own, start, end)
    if region.kind in ("call", "jump"):
        yield "statement removed", ";"
    if region.kind == "return":
        yield from _returns(source, region, start, end)


def _own_tokens(region, start, end):
    """The tokens that belong to no region inside, such as a lambda's body."""
    taken = {index for inner in region.inner for index in range(inner.start, inner.end)}
    return [index for index in range(start, end) if index not in taken]


def _edits(source, own):
    for index in own:
        token = source.tokens[index]
        if token.kind == "number" and token.text.isdigit():
            yield "constant", {index: str(int(token.text) + 1)}
        elif token.kind == "text":
            prefix = token.text[:token.text.index('"')]
            yield "text", {index: prefix + ('"mutated"' if token.text == prefix + '""' else '""')}
        elif token.text in _WORDS:
            yield "constant", {index: _WORDS[token.text]}
        elif token.text == "!" and not token.space_after:
            yield "negation removed", {index: ""}
        elif token.text in _STEPS:
            yield "arithmetic", {index: _STEPS[token.text]}
        elif token.is_infix:
            yield from _infix(index, token)
        elif token.text == "(" and index > 0:
            yield from _swapped(source, index)


def _infix(index, token):
    for other in _COMPARISONS.get(token.text, ()):
        yield "comparison", {index: other}
    if token.text in _LOGIC:
        yield "logic", {index: _LOGIC[token.text]}
    if token.text in _ARITHMETIC:
        yield "arithmetic", {index: _ARITHMETIC[token.text]}


def _swapped(source, opening):
    """Two arguments that follow each other change places."""
    before = source.tokens[opening - 1]
    if before.kind != "word" and before.text != ">":
        return
    pieces = split_at_commas(source.tokens, source.partner, opening + 1, source.partner[opening])
    for (start, end), (next_start, next_end) in zip(pieces, pieces[1:]):
        first = one_line(source.text, source.tokens, start, end)
        second = one_line(source.text, source.tokens, next_start, next_end)
        edits = {index: "" for index in (*range(start, end), *range(next_start, next_end))}
        edits[start], edits[next_start] = second, first
        if first != second:
            yield "arguments swapped", edits


def _negations(source, region, own, start, end):
    """Of a whole condition and of what stands before a question mark, unless another operator does the same."""
    if region.kind == "condition" and not _is_turned_round_otherwise(source, start, end):
        yield "condition negated", f"!({one_line(source.text, source.tokens, start, end)})"
    for index in own:
        if source.tokens[index].text != "?":
            continue
        first = _condition_start(source, start, index)
        if not _is_turned_round_otherwise(source, first, index):
            edits = {first: "!(" + source.tokens[first].text, index - 1: source.tokens[index - 1].text + ")"}
            if first == index - 1:
                edits = {first: f"!({source.tokens[first].text})"}
            yield "condition negated", one_line(source.text, source.tokens, region.start, region.end, edits)


def _is_turned_round_otherwise(source, start, end):
    logic = any(source.tokens[index].text in _LOGIC for index in range(start, end))
    comparison = source.find(start, end, *_COMPARISONS)
    return not logic and ((comparison < end and source.tokens[comparison].is_infix) or source.tokens[start].text == "!")


def _condition_start(source, start, question):
    """Where the condition begins that ends at a question mark."""
    first, index = start, start
    while index < question:
        closing = source.partner.get(index, index)
        if closing > question:
            first = index = index + 1
        else:
            if source.tokens[index].text in (",", "=", ":", "return"):
                first = index + 1
            index = closing + 1
    return first


def _returns(source, region, start, end):
    value = one_line(source.text, source.tokens, start, end)
    if value not in ("", "{}", "true", "false", "nullptr", "0"):
        constants = ("true", "false") if "bool" in region.result.split() else ("{}",)
        for constant in constants:
            yield "returned constant", f"return {constant};"
    if not region.is_last:
        yield "early return removed", ";"
