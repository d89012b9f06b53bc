"""The changes of a C++ source that scripts/mutate tries, one at a time."""
import collections
import re

TOKEN = re.compile(r"""
    (?P<skipped>//[^\n]*|/\*.*?\*/|^[ ]*\#[^\n]*|\w*"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\])+')
  | (?P<number>0[xX][0-9a-fA-F]+|\d+\.?\d*(?:[eE][+-]?\d+)?)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<operator>->|\+\+|--|&&|\|\||::|<<|>>|[<>=!+\-*/%|]=|[^\s\w])
""", re.VERBOSE | re.DOTALL | re.MULTILINE)
# By the layout of the code these stand between blanks, and brackets of templates, pointers and references do not.
SWAPS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&", "+": "-", "-": "+",
         "*": "/", "/": "*", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*="}
ASSIGNMENTS = {"=", "+=", "-=", "*=", "/="}
OPENING, CLOSING = "([{", ")]}"
NO_STATEMENT = {"if", "for", "while", "switch", "case", "default", "else", "do", "const", "noexcept", "override"}

Token = collections.namedtuple("Token", "kind text start end")
Mutation = collections.namedtuple("Mutation", "start end before after line code")


def mutations_of(text):
    tokens = [Token(match.lastgroup, match.group(), match.start(), match.end())
              for match in TOKEN.finditer(text) if match.lastgroup != "skipped"]
    lines = text.splitlines()
    for index, token in enumerate(tokens):
        for end, after in changes(text, tokens, index):
            line = text.count("\n", 0, token.start) + 1
            before = " ".join(text[token.start:end].split())
            yield Mutation(token.start, end, before, after, line, lines[line - 1].strip())


def changes(text, tokens, index):
    """What may stand for the token at index: the end of what is replaced, and the replacement."""
    kind, token, start, end = tokens[index]
    stands_alone = text[start - 1].isspace() and text[end].isspace()
    if kind == "number":
        return [(end, number) for number in changed_number(token)]
    if token in ("true", "false"):
        return [(end, "false" if token == "true" else "true")]
    if token in ("++", "--"):
        return [(end, "--" if token == "++" else "++")]
    if token in SWAPS and stands_alone:
        return [(end, SWAPS[token])]
    if token == "!" or (token == "-" and not stands_alone):
        return [(end, "")]
    last = statement_end(tokens, index)
    return [(tokens[last].end, "{}")] if last else []


def changed_number(text):
    if re.fullmatch(r"0[xX].*|\d+", text):
        return [str(int(text, 0) + 1)]
    value = float(text)
    return [repr(value * 0.999), repr(value * 1.001)] if value else ["1.0"]


def statement_end(tokens, index):
    """The index of the semicolon that ends the jump, call or assignment at index; none for anything else."""
    def text(at):
        return tokens[at].text if at < len(tokens) else ""

    is_jump = text(index) in ("return", "break", "continue")
    begins = text(index - 1) in list(";{})") + ["else"] or (is_jump and text(index - 1) == ":")
    if not begins or tokens[index].kind != "word" or text(index) in NO_STATEMENT:
        return None
    at = index + 1
    if not is_jump:
        while text(at) in ("::", ".", "->", "(", "["):
            at = after_group(tokens, at) if text(at) in OPENING else at + 2
        if text(at) not in ASSIGNMENTS and (text(at) != ";" or at == index + 1):
            return None
    while at < len(tokens) and text(at) not in [";"] + list(CLOSING):
        at = after_group(tokens, at) if text(at) in OPENING else at + 1
    returns_value = text(index) == "return" and at > index + 1
    if text(at) != ";" or (returns_value and text(at + 1) == "}" and ends_function(tokens, at + 1)):
        return None
    return at


def ends_function(tokens, index):
    """Whether the brace at index closes a function, which must not lose its last return."""
    depth = 0
    while index > 0:
        depth += (tokens[index].text in CLOSING) - (tokens[index].text in OPENING)
        if depth == 0 and tokens[index].text != ")":
            before = tokens[index - 1].text
            if tokens[index].text == "{" and before != ")":
                return before not in ("else", "do")
            if tokens[index].text == "(":
                return before not in ("if", "for", "while", "switch", "constexpr")
        index -= 1
    return True


def after_group(tokens, index):
    """The index after the bracket that closes the one at index."""
    depth = 0
    while index < len(tokens):
        depth += (tokens[index].text in OPENING) - (tokens[index].text in CLOSING)
        index += 1
        if depth == 0:
            break
    return index
