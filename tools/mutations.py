"""What tools/mutate changes in a source, one place at a time."""

import re
from dataclasses import dataclass

TOKEN = re.compile(r"""
    (?P<skip>//[^\n]* | /\*.*?\*/ | ^[ \t]*\#[^\n]* | \s+
           | \bstatic_assert\((?:"(?:\\.|[^"\\\n])*"|[^";])*;) # holds while compiling, or there is no program
  | (?P<string>"(?:\\.|[^"\\\n])*") | (?P<char>'(?:\\.|[^'\\\n])+')
  | (?P<number>\d[\w.']*) | (?P<word>[A-Za-z_]\w*)
  | (?P<sign><<=|>>=|\+\+|--|->|::|&&|\|\||<<|>>|[-+*/%&|^=!<>]=|.)
""", re.VERBOSE | re.DOTALL | re.MULTILINE)

# Only between blanks: elsewhere these are brackets of templates, references and pointers.
OPERATORS = {
    "==": ["!="], "!=": ["=="],
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "&&": ["||"], "||": ["&&"],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "+=": ["-="], "-=": ["+="], "|=": ["&="], "&=": ["|="],
    "&": ["|"], "|": ["&"], "<<": [">>"], ">>": ["<<"],
}
COMPARISONS = {"==", "!=", "<", "<=", ">", ">="}

# A call, an assignment or a jump; declarations do not look like this.
REMOVABLE = re.compile(r"(\w+(::\w+)*\s*(\(|\.|->|\[|[-+|&]?=[^=]|\+\+|--)"
                       r"|\+\+|--|\*|(delete|throw|break|continue)\b)")

# How much memory is asked for in advance: no test can notice, since what needs more takes more.
ROOM = re.compile(r"\.reserve\(|^constexpr std::size_t (typical|expected|first|growth)\w* = \d+;$")

# What `return {};` returns as well.
EMPTY_VALUES = {"{}", "nullptr", "std::nullopt", "Value()", "parseOk", "valueFound", "remarkStored",
                "NameOutcome::found"}


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int


def tokens_of(text):
    return [Token(match.lastgroup, match.group(), match.start(), match.end())
            for match in TOKEN.finditer(text) if match.lastgroup != "skip"]


def number_changes(text):
    match = re.fullmatch(r"(0[xX][0-9a-fA-F]+|0|[1-9]\d*)([uUlL]*)", text)
    if not match:
        return []
    value = int(match[1], 0)
    changed = [value + 1] + ([value - 1] if value > 0 else [])
    return [f"{number}{match[2]}" for number in changed]


def literal_changes(token):
    if token.kind == "number":
        return number_changes(token.text)
    if token.kind == "char":
        content = token.text[1:-1]
        following = chr(ord(content) + 1) if len(content) == 1 else "~"
        return ["'~'" if following in "'\\" else f"'{following}'"]
    if token.kind == "string":
        return ['"' + re.sub(r"(\\.|.)$", "", token.text[1:-1]) + '"' if len(token.text) > 2 else '"~"']
    return {"true": ["false"], "false": ["true"]}.get(token.text, [])


def operator_changes(text, token):
    if token.text in ("++", "--"):
        return ["--" if token.text == "++" else "++"]
    if token.text == "!":
        return [""]
    stands_free = text[token.start - 1].isspace() and text[token.end:token.end + 1].isspace()
    return OPERATORS.get(token.text, []) if stands_free else []


def closing(tokens, opening):
    """The index of the bracket that closes the one at `opening`."""
    depth = 0
    for index in range(opening, len(tokens)):
        depth += (tokens[index].text in "([{") - (tokens[index].text in ")]}")
        if depth == 0:
            return index
    return opening


def is_negated_elsewhere(tokens):
    """Whether a change of an operator already says the opposite."""
    return tokens[0].text == "!" or any(token.text in COMPARISONS for token in tokens)


def condition_changes(text, tokens, index):
    opening = index + 1
    if tokens[index].text not in ("if", "while", "for") or tokens[opening].text != "(":
        return
    end = closing(tokens, opening)
    inner = range(opening + 1, end)
    depth = 0
    ends_of_parts = []
    for at in inner:
        depth += (tokens[at].text in "([{") - (tokens[at].text in ")]}")
        if depth == 0 and tokens[at].text == ";":
            ends_of_parts.append(at)
    if tokens[index].text == "for":
        if len(ends_of_parts) != 2:
            return
        inner = range(ends_of_parts[0] + 1, ends_of_parts[1])
    elif ends_of_parts:
        inner = range(ends_of_parts[0] + 1, end)
    condition = tokens[inner.start:inner.stop]
    if not condition:
        return
    start, stop = condition[0].start, condition[-1].end
    # A loop that never ends tells nothing that a loop that never begins does not.
    changes = ["true", "false"] if tokens[index].text == "if" else ["false"]
    if not is_negated_elsewhere(condition):
        changes.append(f"!({text[start:stop]})")
    for change in changes:
        yield start, stop, change


def statement_changes(text, statement, semicolon):
    """Of the tokens of a statement and the place behind its semicolon."""
    start = statement[0].start
    if statement[0].text == "return" and len(statement) > 1:
        value = statement[1:]
        if len(value) > 1 or value[0].kind == "word" and value[0].text not in ("true", "false"):
            if text[value[0].start:value[-1].end] not in EMPTY_VALUES:
                yield start, semicolon, "return {};"
            if not is_negated_elsewhere(value):
                yield start, semicolon, f"return !({text[value[0].start:value[-1].end]});"
    elif statement[-1].text not in ("delete", "default") and REMOVABLE.match(text[start:semicolon]):
        yield start, semicolon, ";"


@dataclass(frozen=True)
class Statement:
    tokens: list
    semicolon: Token
    # The place of its first token, and of the brace around it; -1 for none.
    first: int
    brace: int

    def start(self):
        return self.tokens[0].start

    def end(self):
        return self.semicolon.end


def statements(tokens):
    open_brackets = []
    braces = [-1]
    first = 0
    for index, token in enumerate(tokens):
        if token.text in ("(", "[", "{"):
            open_brackets.append((token.text, first))
            braces += [index] if token.text == "{" else []
            if token.text == "{":
                first = index + 1
        elif token.text in (")", "]", "}") and open_brackets:
            bracket, outer = open_brackets.pop()
            if bracket == "{":
                braces.pop()
            inside_expression = open_brackets and open_brackets[-1][0] != "{"
            if token.text == "}":
                first = outer if inside_expression else index + 1
        elif token.text == ";" and (not open_brackets or open_brackets[-1][0] == "{"):
            if first < index:
                yield Statement(tokens[first:index], token, first, braces[-1])
            first = index + 1


# What stands in front of the brace of a body, and not of a class, a namespace or a list of values.
BEFORE_A_BODY = {")", "]", ";", "{", "}", "const", "noexcept", "override", "else", "do", "try"}


def is_in_a_body(tokens, statement):
    return statement.brace > 0 and tokens[statement.brace - 1].text in BEFORE_A_BODY


# Nothing changes its place past these.
FIXED = {"return", "break", "continue", "throw", "goto", "case", "default", "else", "using", "typedef", "static_assert"}


def target_of(statement):
    """What a statement without calls assigns to or declares; null for any other."""
    words = [token.text for token in statement.tokens]
    if "(" in words or "++" in words or "--" in words:
        return None
    ends = words.index("=") if "=" in words else len(words)
    return next((token.text for token in reversed(statement.tokens[:ends]) if token.kind == "word"), None)


def do_not_meet(one, other):
    """Whether nobody can tell in which order two statements are: each sets something that the other does not name."""
    targets = target_of(one), target_of(other)
    if None in targets:
        return is_plain_declaration(one, other) or is_plain_declaration(other, one)
    return targets[0] not in [token.text for token in other.tokens] \
        and targets[1] not in [token.text for token in one.tokens]


def is_plain_declaration(statement, other):
    """Whether it declares a variable without a value, or with that of one word, no member, that `other` does not name."""
    words = [token.text for token in statement.tokens]
    declared, _, value = " ".join(words).partition(" = ")
    return target_of(statement) is not None and re.fullmatch(r"[\w :<>*&]+ \w+", declared) is not None \
        and re.fullmatch(r"(?!m_)[\w.]*", value) is not None and value not in [token.text for token in other.tokens]


def order_changes(text, tokens):
    """Two statements, one behind the other, in the other order."""
    previous = None
    for statement in statements(tokens):
        if statement.tokens[0].text in FIXED or not is_in_a_body(tokens, statement):
            previous = None
            continue
        if previous and previous.brace == statement.brace \
                and previous.first + len(previous.tokens) + 1 == statement.first and not do_not_meet(previous, statement):
            between = text[previous.end():statement.start()]
            yield previous.start(), statement.end(), (text[statement.start():statement.end()] + between
                                                      + text[previous.start():previous.end()])
        previous = statement


DECLARATION = re.compile(r"(?P<const>(?:static |constexpr |const )*)"
                         r"(?P<type>(?:unsigned |long )*[A-Za-z_][\w:]*(?:<[^;=]*>)?)"
                         r"(?P<sign>(?: const)?\s*[*&]*(?: const)?)\s(?P<name>[A-Za-z_]\w*)\s*(?P<rest>[=({].*)?$", re.DOTALL)
NO_TYPES = FIXED | {"delete", "new", "if", "for", "while", "do", "struct", "class", "enum", "namespace", "friend"}
# A reference to one of these is no more than the value.
PLAIN_TYPES = re.compile(r"(std::)?(u?int\d*(_t)?|size_t|ptrdiff_t|string_view)|(un)?signed.*|long.*|short|bool|char|float"
                         r"|double|auto|das_variant_type_t")


def declaration_in(text, statement):
    match = DECLARATION.match(text[statement.start():statement.semicolon.start])
    return match if match and match["type"] not in NO_TYPES else None


# What names an object that is there before, and is copied: a variable, an element, a member.
OBJECT = re.compile(r"=\s*[A-Za-z_][\w:.]*(->\w+|\[[^\[\]]*\]|\.\w+|\.(at|front|back)\([^()]*\))*$")


def copy_changes(text, tokens):
    """A reference for a copy."""
    for statement in statements(tokens):
        declared = declaration_in(text, statement)
        if declared and is_in_a_body(tokens, statement) and not declared["sign"].strip() \
                and not PLAIN_TYPES.fullmatch(declared["type"]) and OBJECT.match(declared["rest"] or ""):
            at = statement.start() + declared.end("type")
            yield at, at, "&"


def kept_text_changes(text, tokens):
    """A text as it came, for the copy of it that is kept for the host."""
    for index, token in enumerate(tokens[3:], start=3):
        if token.text == "(" and tokens[index - 1].text == "init" and tokens[index - 2].text in (".", "->"):
            yield tokens[index - 3].start, tokens[closing(tokens, index)].end, \
                text[token.end:tokens[closing(tokens, index)].start]


def body_end(tokens, statement):
    return closing(tokens, statement.brace)


def guard_changes(text, tokens):
    """An object that nobody names again, and that is there for what it does when it is made and goes."""
    for statement in statements(tokens):
        declared = declaration_in(text, statement)
        if declared and is_in_a_body(tokens, statement) and (declared["rest"] or "").startswith(("(", "{")):
            behind = tokens[statement.first + len(statement.tokens):body_end(tokens, statement)]
            if all(token.text != declared["name"] for token in behind):
                yield statement.start(), statement.end(), ";"


@dataclass(frozen=True)
class Variable:
    name: str
    type: str
    # The place of the token from which on it may be used.
    known_from: int


def bare_type(tokens):
    return " ".join(token.text for token in tokens if token.text not in ("const", "&"))


def parameters_before(tokens, brace):
    """Of the function whose body begins at `brace`."""
    end = brace - 1
    while tokens[end].text in ("const", "noexcept", "override"):
        end -= 1
    if tokens[end].text != ")":
        return
    depth = 0
    first_of_part = end
    parts = []
    for index in range(end, -1, -1):
        depth += (tokens[index].text in ")]}>") - (tokens[index].text in "([{<")
        if depth == 1 and tokens[index].text == "," or depth == 0:
            parts.append(tokens[index + 1:first_of_part])
            first_of_part = index
        if depth == 0:
            break
    for part in reversed(parts):
        if len(part) > 1 and part[-1].kind == "word":
            yield Variable(part[-1].text, bare_type(part[:-1]), brace)


def bodies(tokens):
    """The braces around the outermost bodies of functions."""
    index = 0
    while index < len(tokens):
        end = closing(tokens, index) if tokens[index].text == "{" else index
        if end > index and index > 0 and tokens[index - 1].text in (")", "const", "noexcept", "override"):
            yield index, end
            index = end
        index += 1


def next_of_its_type(variables, used, index):
    """The variable behind `used` among those of its type that are known at `index`; the first behind the last."""
    alike = [variable.name for variable in variables
             if variable.type == used.type and (variable.known_from <= index or variable == used)]
    other = alike[(alike.index(used.name) + 1) % len(alike)]
    return other if other != used.name else None


def variable_changes(text, tokens):
    """Another variable of the same type, among the parameters and local variables of a function."""
    declared_in_bodies = [(statement, declaration_in(text, statement)) for statement in statements(tokens)
                          if is_in_a_body(tokens, statement)]
    for brace, end in bodies(tokens):
        variables = list(parameters_before(tokens, brace))
        for statement, declared in declared_in_bodies:
            if declared and declared["type"] != "auto" and brace < statement.first < end:
                kind = bare_type(tokens_of(declared["type"] + declared["sign"]))
                variables.append(Variable(declared["name"], kind, statement.first + len(statement.tokens)))
        by_name = {variable.name: variable for variable in variables}
        for index in range(brace + 1, end):
            used = by_name.get(tokens[index].text)
            is_free = tokens[index - 1].text not in (".", "->", "::") and tokens[index + 1].text != "::"
            if used and is_free and used.known_from <= index:
                other = next_of_its_type(variables, used, index)
                if other:
                    yield tokens[index].start, tokens[index].end, other


MEMBER = re.compile(r"^ +(?:mutable )?(?:const )?([\w:<>, *]+[\w>*]) \*?(m_\w+)(?: = [^;]*|\{[^;]*\})?;", re.MULTILINE)


def members_of(header):
    """Of the classes in a header: (type, name) of every member."""
    return [(match[1], match[2]) for match in MEMBER.finditer(header)]


def member_changes(text, tokens, members):
    """Another member of the same type."""
    declared_at = {match.start(2) for match in MEMBER.finditer(text)}
    types = {name: kind for kind, name in members}
    for token in tokens:
        kind = types.get(token.text)
        if kind is not None and token.start not in declared_at:
            alike = [name for other, name in members if other == kind]
            other = alike[(alike.index(token.text) + 1) % len(alike)]
            if other != token.text:
                yield token.start, token.end, other


def const_changes(text, tokens):
    """Without `const`, what an inline function promises: of the object, and of what it is given by reference."""
    for index, token in enumerate(tokens):
        if token.text != "const":
            continue
        behind = next((other.text for other in tokens[index:] if other.text in ("{", ";")), ";")
        is_of_the_object = tokens[index - 1].text == ")"
        is_of_a_reference = tokens[index - 1].text in ("(", ",") and tokens[index + 2].text == "&"
        if behind == "{" and (is_of_the_object or is_of_a_reference):
            yield token.start, token.end, ""


def changes_of(text, members=(), is_public=False):
    """Yields (start, end, replacement) of every change of a source.

    `members` are those of the classes that the source implements; `is_public` says that hosts compile it.
    """
    tokens = tokens_of(text)
    for index, token in enumerate(tokens):
        for change in literal_changes(token) + operator_changes(text, token):
            yield token.start, token.end, change
        yield from condition_changes(text, tokens, index)
    for statement in statements(tokens):
        yield from statement_changes(text, statement.tokens, statement.semicolon.end)
    yield from order_changes(text, tokens)
    yield from copy_changes(text, tokens)
    yield from kept_text_changes(text, tokens)
    yield from guard_changes(text, tokens)
    yield from variable_changes(text, tokens)
    yield from member_changes(text, tokens, members)
    if is_public:
        yield from const_changes(text, tokens)
