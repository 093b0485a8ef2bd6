"""Guides and programs as HTML."""

import html
import re

from markdown_it import MarkdownIt

from examples import Example, ExampleRunner, Kind

TOKEN = re.compile(
    r"""(?P<comment>'.*$)
      | (?P<string>"[^"\n]*")
      | (?P<number>\b\d+(?:\.\d+)?\b)
      | (?P<type>\b(?:BigNumberVQZ|BiggerNumberVQZ|\w+Exception\w*|String|Integer|Int32|Int64|UInt32
            |UInt64|UInteger|Single|Double|Currency|Variant|Boolean|MemoryBlock)\b)
      | (?P<keyword>\b(?:And|As|Catch|Dim|Else|End|For|If|Mod|New|Next|Nil|Not|Or|Print|Step|Sub|Then
            |To|Try|True|False|While|Wend)\b)""",
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


def with_code(text: str) -> str:
    """A text in which words between backticks are code."""
    return re.sub(r"`([^`]+)`", r"<code>\1</code>", html.escape(text, quote=False))


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


KINDS = {"prints": Kind.PRINTS, "raises": Kind.RAISES, "logs": Kind.LOGS, "rejected": Kind.REJECTED}


def anchor_of(text: str) -> str:
    return re.sub(r"\W+", "-", text.lower()).strip("-")


class Guide:
    """A text in Markdown. Its programs are examples of the kind that stands behind the fence, where
    options for the stand-in host may follow it.

    Headings are moved `shift` levels down; the first one gives the title and is left out.
    """

    def __init__(self, text: str, shift: int, runner: ExampleRunner):
        self.markdown = MarkdownIt("commonmark", {"typographer": False}).enable("table")
        self.tokens = self.markdown.parse(text)
        self.title = self.tokens[1].content
        self.anchor = anchor_of(self.title)
        self.tokens = self.tokens[3:]
        self.examples = {}
        for index, token in enumerate(self.tokens):
            if token.type == "fence" and token.info:
                kind, *options = token.info.split()
                added = runner.add(self.title, token.content, KINDS[kind], options)
                self.examples[id(token)] = added
            elif token.type in ("heading_open", "heading_close"):
                token.tag = f"h{int(token.tag[1]) + shift}"
                if token.type == "heading_open":
                    heading = anchor_of(self.tokens[index + 1].content)
                    token.attrSet("id", f"{self.anchor}-{heading}")
        self.markdown.renderer.rules["fence"] = self._fence
        self.markdown.renderer.rules["code_inline"] = self._code_inline

    def _fence(self, tokens, index, _options, _env) -> str:
        shown = self.examples.get(id(tokens[index]))
        if shown:
            return example(shown)
        return f"<pre><code>{html.escape(tokens[index].content, quote=False)}</code></pre>\n"

    @staticmethod
    def _code_inline(tokens, index, _options, _env) -> str:
        """Where it is narrow, a long name may break in front of its capitals."""
        code = html.escape(tokens[index].content, quote=False)
        return f"<code>{re.sub('(?<=[a-z])(?=[A-Z])', '<wbr>', code)}</code>"

    def html(self) -> str:
        """The text below the title; its examples have been run."""
        return self.markdown.renderer.render(self.tokens, self.markdown.options, {})
