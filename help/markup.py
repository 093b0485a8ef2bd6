"""Guides and programs as HTML."""

import html
import re
import textwrap

from markdown_it import MarkdownIt

from examples import Example, ExampleRunner, Kind

TOKEN = re.compile(
    r"""(?P<comment>'.*$)
      | (?P<string>"[^"\n]*")
      | (?P<number>\b\d+(?:\.\d+)?\b)
      | (?P<type>\b(?:BigNumberVQZ|BiggerNumberVQZ|\w+Exception\w*|String|Integer|Int32|Int64|UInt32
            |UInt64|UInteger|Single|Double|Currency|Variant|Boolean|MemoryBlock)\b)
      | (?P<keyword>\b(?:And|As|ByRef|Catch|Dim|Do|DownTo|Each|Else|ElseIf|End|Exit|For|Function|If|In
            |Loop|Mod|New|Next|Nil|Not|Or|Print|Return|Step|Sub|Then|To|Try|True|False|Until|Wend
            |While)\b)""",
    re.VERBOSE | re.MULTILINE)


def program(code: str) -> str:
    """A program in the host's language with its words marked."""
    parts = []
    end = 0
    for match in TOKEN.finditer(code):
        parts.append(html.escape(code[end : match.start()], quote=False))
        word = html.escape(match[0], quote=False)
        parts.append(f'<span class="{match.lastgroup}">{word}</span>')
        end = match.end()
    parts.append(html.escape(code[end:], quote=False))
    return "".join(parts)


def with_places(message: str) -> str:
    """A message with the places of its numbers, A and B, marked."""
    return re.sub(r"\b[AB]\b(?=[ .])", r"<var>\g<0></var>", html.escape(message, quote=False))


# Code within a text that is no longer stays on one line on a phone, too.
SHORT = 26


def inline_code(code: str) -> str:
    """Code within a text. Where it is narrow, a long name may break in front of its capitals."""
    shown = html.escape(code, quote=False)
    if len(code) <= SHORT:
        return f'<code class="short">{shown}</code>'
    return f"<code>{re.sub('(?<=[a-z])(?=[A-Z])', '<wbr>', shown)}</code>"


def with_code(text: str) -> str:
    """A text in which words between backticks are code."""
    texts = re.split(r"`([^`]+)`", text)
    return "".join(inline_code(part) if index % 2 else html.escape(part, quote=False)
                   for index, part in enumerate(texts))


LABELS = {
    Kind.PRINTS: "Prints",
    Kind.RAISES: "Raises",
    Kind.LOGS: "Logs",
    Kind.REJECTED: "Refused",
}


def example(shown: Example) -> str:
    """An example beside what came of it."""
    return (
        f'<div class="example {shown.kind.name.lower()}"><pre><code>{program(shown.code)}</code></pre>'
        f'<div class="output"><span class="label">{LABELS[shown.kind]}</span>'
        f"<pre><samp>{html.escape(shown.output, quote=False)}</samp></pre></div></div>\n")


def indented(text: str) -> str:
    """A program or its output within a plain text."""
    return textwrap.indent(text, "    ") + "\n"


KINDS = {"prints": Kind.PRINTS, "raises": Kind.RAISES, "logs": Kind.LOGS, "rejected": Kind.REJECTED}


def anchor_of(text: str) -> str:
    return re.sub(r"\W+", "-", text.lower()).strip("-")


# The characters that a summary has at the most, but for a first sentence that is longer.
SUMMARY = 170


class Part:
    """What stands below one heading of a guide; the first part of a guide is what stands above all
    other headings. `html`, and `text` for a terminal, are set once the examples have been run."""

    def __init__(self, title: str, anchor: str):
        self.title = title
        self.anchor = anchor
        self.tokens = []
        self.html = ""
        self.text = ""

    @property
    def summary(self) -> str:
        """The first sentences, as many as fit into two lines of a search result, as plain text."""
        paragraph = next((token for token in self.tokens if token.type == "inline"), None)
        words = "".join(" " if child.type == "softbreak" else child.content
                        for child in paragraph.children) if paragraph else ""
        first, *others = re.split(r"(?<=[.?!])\s", " ".join(words.split()))
        shown = first
        for sentence in others:
            if len(shown) + len(sentence) >= SUMMARY:
                break
            shown += " " + sentence
        # A colon leads to what stands below the paragraph.
        return re.sub(":$", ".", shown)

    @property
    def table_cells(self) -> list[str]:
        """The cells of the tables as plain text, without the heads and without figures."""
        cells = []
        in_body = False
        for before, token in zip(self.tokens, self.tokens[1:]):
            in_body = token.type == "tbody_open" or (in_body and token.type != "tbody_close")
            if in_body and before.type == "td_open" and token.type == "inline":
                cell = "".join(child.content for child in token.children)
                cells += [cell] if re.search(r"[a-z]{2}", cell) else []
        return cells

    def mentions(self, name: str) -> bool:
        """Whether the text, apart from its programs, has this name between backticks."""
        word = re.compile(rf"\b{name}\b")
        codes = (child.content for token in self.tokens if token.type == "inline"
                 for child in token.children if child.type == "code_inline")
        return any(word.search(code) for code in codes)


class Guide:
    """A text in Markdown. Its programs are examples of the kind that stands behind the fence, where
    options for the stand-in host may follow it.

    The first heading gives the title; those of the second level divide the text into parts.
    """

    def __init__(self, text: str, runner: ExampleRunner):
        self.markdown = MarkdownIt("commonmark", {"typographer": False}).enable("table")
        tokens = self.markdown.parse(text)
        self.lines = text.splitlines()
        self.title = tokens[1].content
        self.anchor = anchor_of(self.title)
        self.examples = {}
        self.parts = [Part(self.title, self.anchor)]
        for index, token in enumerate(tokens[3:], 3):
            if token.type == "heading_open":
                title = tokens[index + 1].content
                self.parts.append(Part(title, f"{self.anchor}-{anchor_of(title)}"))
            elif tokens[index - 1].type != "heading_open" and token.type != "heading_close":
                self.parts[-1].tokens.append(token)
            if token.type == "fence" and token.info:
                kind, *options = token.info.split()
                added = runner.add(self.title, token.content, KINDS[kind], options)
                self.examples[id(token)] = added
        self.markdown.renderer.rules["fence"] = self._fence
        self.markdown.renderer.rules["code_inline"] = self._code_inline

    def _fence(self, tokens, index, _options, _env) -> str:
        shown = self.examples.get(id(tokens[index]))
        if shown:
            return example(shown)
        return f"<pre><code>{html.escape(tokens[index].content, quote=False)}</code></pre>\n"

    @staticmethod
    def _code_inline(tokens, index, _options, _env) -> str:
        return inline_code(tokens[index].content)

    def render(self) -> None:
        """Sets the HTML and the text of the parts; their examples have been run."""
        for part in self.parts:
            shown = self.markdown.renderer.render(part.tokens, self.markdown.options, {})
            part.html = re.sub(r"<table>.*?</table>", r'<div class="wide">\g<0></div>', shown,
                               flags=re.DOTALL)
            part.text = self._plain_text(part)

    def _plain_text(self, part: Part) -> str:
        blocks = []
        for token in part.tokens:
            shown = self.examples.get(id(token))
            if shown:
                output = f"{LABELS[shown.kind]}:\n{indented(shown.output)}"
                blocks.append(indented(shown.code) + output)
            elif token.type == "fence":
                blocks.append(indented(token.content.rstrip("\n")))
            elif token.level == 0 and token.map:
                source = "\n".join(self.lines[slice(*token.map)]).rstrip("\n")
                words = re.sub(r"\[([^]]+)\]\([^)]+\)", r"\1", source).replace("`", "").replace("**", "")
                words = re.sub(r"\*(?=\w)([^*]+)(?<=\w)\*", r"\1", words)
                is_prose = token.type == "paragraph_open"
                blocks.append((textwrap.fill(words, 78) if is_prose else words) + "\n")
        return "\n".join(blocks)

    def append(self, other: "Guide") -> None:
        """Puts another guide, already rendered, below this one and under its title."""
        self.parts[-1].html += other.parts[0].html
        self.parts += other.parts[1:]
