"""Opens the page of help in a browser, from its file, and uses it.

usage: browser_test.py PAGE
"""

import pathlib
import re
import sys
import unittest

from axe_playwright_python.sync_playwright import Axe
from playwright.sync_api import sync_playwright

BROWSER = "/usr/bin/chromium"
DESKTOP = {"width": 1280, "height": 900}
PHONE = {"width": 375, "height": 800}
CONTRAST = "color-contrast"
REPEATED = [".links li + li", "tbody tr + tr", ".member ~ .member"]
WIDTHS = (400, 800, 1400)

# What someone searches for, and the anchor that it is to lead to.
BEST_HITS = {
    "cosh": "cosh",
    "sin": "sin",
    "e": "e",
    "E": "e",
    "Sqrt": "sqrt",
    "log": "log",
    "integer division": "operator_integerdivide",
    "saving": "saving-numbers-bit-for-bit",
    "save": "saving-numbers-bit-for-bit",
    "money": "money-without-surprises",
    "hex": "stringvalue-integer",
    "hexadecimal": "stringvalue-integer",
    "thousand separator": "recipes-digits-in-groups",
    "\\": "operator_integerdivide",
    "<": "operator_compare",
    "=": "operator_compare",
    "<=": "operator_compare",
    "+": "operator_add",
    "-": "operator_subtract",
    "*": "operator_multiply",
    "/": "operator_divide",
    "^": "operator_power",
    "mod": "operator_modulo",
    "remainder": "operator_modulo",
    "scientificFrom": "getstringvalue",
    "AfterText": "setstringvalue",
    "square root": "sqrt",
    "inverse cosine": "acos",
    "random number": "rand",
    "absolute value": "abs",
    "first steps": "first-steps",
    "text": "text-in-any-base-and-format",
    "NaN": "nan",
    "parse": "text-in-any-base-and-format",
    "install": "installation",
    "debug log": "the-debug-log",
    "how to round half to even": "recipes-rounding-half-to-even",
    "powmod": "recipes-integer-power-modulo-n",
    "gcd": "recipes-greatest-common-divisor",
    "prime": "recipes-a-primality-test",
    "sorting": "recipes-sorting-an-array",
    "GetStringValueExt": "getstringvalue",
    "Div operation failed": "divide",
    "Sqrt operation failed with number -4.": "sqrt",
    "macos": "what-it-runs-on",
    "ios": "what-it-runs-on",
    "android": "what-it-runs-on",
    "license": "installation",
    "licence": "installation",
    "can't add integer": "surprises-there-is-no-a-1",
    "expected BigNumberVQZ, this is Integer": "surprises-there-is-no-a-1",
    "negative modulo": "operator_modulo",
    "little endian": "saving-numbers-bit-for-bit",
    "endian": "saving-numbers-bit-for-bit",
    "byte order": "saving-numbers-bit-for-bit",
    "json": "saving-numbers-bit-for-bit",
    "base64": "saving-numbers-bit-for-bit",
    "sqlite": "saving-numbers-bit-for-bit",
    "binarystream": "saving-numbers-bit-for-bit",
    "blob": "saving-numbers-bit-for-bit",
    "dictionary": "saving-numbers-bit-for-bit-in-a-dictionary-or-a-variant",
    "convert integer": "numberwithinteger",
    "int to bignumber": "numberwithinteger",
    "AddressOf": "recipes-sorting-an-array",
    "cbrt": "root",
    "cube root": "root",
    "ErrorNumber": "errors",
    "NilObjectException": "errors",
    "OutOfBoundsException": "errors",
    "Conversion not supported": "errors",
    "log2": "log",
    "shift left": "operator_multiply",
    "min of two": "operator_compare",
    "leading zeros": "text-in-any-base-and-format",
    "mod inverse": "recipes-integer-power-modulo-n",
    "convert between classes": "recipes-converting-between-the-classes",
    "two classes": "recipes-converting-between-the-classes",
    "mix": "recipes-converting-between-the-classes",
    "traps": "first-steps-six-traps",
    "not an integer": "text-in-any-base-and-format-text-with-a-point-and-an-exponent",
    "+=": "operator_add",
    "increment": "operator_add",
}


class BrowserTest(unittest.TestCase):
    page_file: pathlib.Path

    @classmethod
    def setUpClass(cls) -> None:
        cls.playwright = cls.enterClassContext(sync_playwright())
        # Without a sandbox of its own it starts as root, too; the page is ours.
        cls.browser = cls.playwright.chromium.launch(
            executable_path=BROWSER, args=["--no-sandbox"])
        cls.addClassCleanup(cls.browser.close)

    def open(self, size: dict, scheme: str = "light"):
        """The page in a new window; what goes wrong in it, and what it asks of the network, is kept."""
        context = self.browser.new_context(viewport=size, color_scheme=scheme)
        self.addCleanup(context.close)
        page = context.new_page()
        self.problems = []
        page.on("pageerror", lambda error: self.problems.append(str(error)))
        page.on("console", lambda message: self.problems.append(message.text))
        page.on("request", lambda request: self.note_request(request.url))
        page.goto(self.page_file.as_uri())
        return page

    def note_request(self, url: str) -> None:
        if url.partition("#")[0] != self.page_file.as_uri():
            self.problems.append(f"a request for {url}")

    def tearDown(self) -> None:
        self.assertEqual(self.problems, [])

    def hits(self, page) -> list[str]:
        """The anchors of the results, the best first."""
        return page.locator("#hits a").evaluate_all("links => links.map(a => a.hash.slice(1))")

    def test_best_hit_is_what_is_meant(self) -> None:
        page = self.open(DESKTOP)
        for query, anchor in BEST_HITS.items():
            with self.subTest(query=query):
                page.fill("#search", query)
                self.assertEqual(self.hits(page)[0], anchor)

    def test_search(self) -> None:
        page = self.open(DESKTOP)
        page.keyboard.press("/")
        page.keyboard.type("sQr")
        self.assertEqual(self.hits(page)[0], "sqrt")
        self.assertFalse(page.is_visible("#page"))
        self.assertEqual(page.inner_text("#result-count"), f"{len(self.hits(page))} results")

        page.keyboard.type("zzzz")
        self.assertEqual(self.hits(page), [])
        self.assertTrue(page.is_visible("#no-hit"))
        page.click("#clear")
        self.assertTrue(page.is_visible("#page"))
        self.assertEqual(page.evaluate("document.activeElement.id"), "search")

        page.fill("#search", "number")
        self.assertTrue(page.is_visible("#more"))
        page.keyboard.press("Escape")
        self.assertEqual(page.input_value("#search"), "")
        self.assertTrue(page.is_visible("#page"))
        self.assertEqual(page.inner_text("#result-count"), "")

    def test_all_words_count(self) -> None:
        page = self.open(DESKTOP)
        page.fill("#search", "inverse cosine")
        self.assertEqual(self.hits(page)[:2], ["acos", "acosh"])
        self.assertNotIn("asin", self.hits(page))

    def test_ways_to_hexadecimal_text(self) -> None:
        """Beside the best hit, the members that take the base as a parameter."""
        page = self.open(DESKTOP)
        for query in ("hex", "hexadecimal", "binary", "octal"):
            with self.subTest(query=query):
                page.fill("#search", query)
                self.assertLessEqual({"getstringvalue", "setstringvalue"}, set(self.hits(page)[:6]))

    def test_a_hit_shows_whole_sentences(self) -> None:
        page = self.open(DESKTOP)
        summaries = page.locator("[data-summary]").evaluate_all(
            "entries => entries.map(entry => entry.dataset.summary)")
        self.assertEqual([text for text in summaries if not re.search(r"[.?!]$", text)], [])

    def test_misspelt_and_missing_words(self) -> None:
        page = self.open(DESKTOP)
        for query, anchor, instead in (
            ("sqrtt", "sqrt", "the results for “sqrt”"),
            ("hexadezimal", "stringvalue-integer", "the results for “hexadecimal”"),
            ("hex zzzzzz", "stringvalue-integer", "No result has all of the words."),
        ):
            page.fill("#search", query)
            self.assertEqual(self.hits(page)[0], anchor)
            self.assertIn(instead, page.inner_text("#instead"))
        page.fill("#search", "sqrt")
        self.assertFalse(page.is_visible("#instead"))

    def test_enter_leads_to_the_best_hit(self) -> None:
        page = self.open(DESKTOP)
        for query, anchor in (("sqrt", "sqrt"), ("thousand separator", "recipes-digits-in-groups")):
            page.fill("#search", query)
            page.press("#search", "Enter")
            self.assertTrue(page.url.endswith(f"#{anchor}"))
            self.assert_in_view(page, anchor)

    def test_arrows_and_clicks_choose_a_hit(self) -> None:
        page = self.open(DESKTOP)
        page.fill("#search", "cosine")
        second = self.hits(page)[1]
        for key in ("ArrowDown", "ArrowDown", "ArrowDown", "ArrowUp", "Enter"):
            page.keyboard.press(key)
        self.assert_in_view(page, second)
        page.fill("#search", "cosine")
        page.locator("#hits a").nth(1).click()
        self.assert_in_view(page, second)

    def test_links_lead_out_of_the_results(self) -> None:
        page = self.open(DESKTOP)
        page.fill("#search", "cosine")
        page.evaluate("location.hash = 'money-without-surprises'")
        self.assert_in_view(page, "money-without-surprises")

    def assert_in_view(self, page, anchor: str) -> None:
        """The anchor stands in the upper half of the window, below the bar."""
        page.wait_for_function(
            """anchor => {
              const box = document.getElementById(anchor).getBoundingClientRect();
              return box.height > 0 && box.top > 40 && box.top < innerHeight / 2;
            }""", arg=anchor, timeout=5000)

    def test_contents_mark_and_follow_the_place(self) -> None:
        page = self.open(DESKTOP)
        marked = "nav a[aria-current=location]"
        for anchor in ("money-without-surprises", "recipes-factorials", "tanh", "e"):
            page.evaluate("anchor => document.getElementById(anchor).scrollIntoView()", anchor)
            page.wait_for_selector(f"{marked}[href='#{anchor}']", timeout=5000)
            self.assertEqual(page.locator(marked).count(), 1)
            inside = page.locator(marked).evaluate(
                """link => {
                  const [inner, outer] = [link, link.closest("nav")].map(e => e.getBoundingClientRect());
                  return inner.top >= outer.top && inner.bottom <= outer.bottom;
                }""")
            self.assertTrue(inside, anchor)

    def test_marking_the_place_moves_nothing(self) -> None:
        page = self.open(DESKTOP)
        moved = page.locator("nav a").evaluate_all(
            """links => links.filter(link => {
              const sizes = [true, false].map(marked => {
                link.toggleAttribute("aria-current", marked);
                const box = link.getBoundingClientRect();
                return `${box.width} ${box.height}`;
              });
              return sizes[0] !== sizes[1];
            }).length""")
        self.assertEqual(moved, 0)

    def test_contents_fold_on_a_phone(self) -> None:
        page = self.open(PHONE)
        self.assertFalse(page.is_visible("nav a"))
        page.click("nav summary")
        page.click("nav a[href='#errors']")
        self.assertFalse(page.is_visible("nav a"))
        self.assert_in_view(page, "errors")

    def test_copy_button(self) -> None:
        page = self.open(DESKTOP)
        example = page.locator("#recipes .example").first
        example.locator("button").click()
        page.wait_for_function("document.querySelector('#recipes .copy').textContent === 'Copied'")
        page.evaluate("document.body.append(document.createElement('textarea'))")
        page.focus("textarea")
        page.keyboard.press("Control+V")
        code = example.locator("code").text_content()
        self.assertIn("Function PowerModulo", code)
        self.assertEqual(page.input_value("textarea"), code + "\n")

    def test_programs_keep_their_lines(self) -> None:
        """A line of a program is one line on the screen, however narrow."""
        page = self.open(PHONE)
        wrapped = page.locator(".example > pre").evaluate_all(
            """programs => programs.filter(pre => pre.clientHeight > 40
              + pre.textContent.split("\\n").length
              * parseFloat(getComputedStyle(pre).lineHeight)).length""")
        self.assertEqual(wrapped, 0)
        stops = page.locator(".example > pre").evaluate_all(
            """programs => programs.filter(pre =>
              (pre.scrollWidth > pre.clientWidth) !== (pre.tabIndex === 0)).length""")
        self.assertEqual(stops, 0)

    def test_chart(self) -> None:
        """Each bar and figure stays within the chart, and colours follow the scheme."""
        colours = {}
        for scheme in ("light", "dark"):
            for width in WIDTHS:
                page = self.open(DESKTOP | {"width": width}, scheme)
                outside = page.locator(".chart tbody .bar > *").evaluate_all(
                    """parts => parts.filter(part => part.getBoundingClientRect().right
                      > part.closest("figure").getBoundingClientRect().right + 0.5).length""")
                self.assertEqual(outside, 0)
                sizes = page.locator(".chart b").evaluate_all(
                    "figures => figures.map(b => parseFloat(getComputedStyle(b).fontSize))")
                self.assertGreaterEqual(min(sizes), 10)
            colours[scheme] = page.locator(".chart .bits2048 span").first.evaluate(
                "bar => getComputedStyle(bar).backgroundColor")
        self.assertNotEqual(colours["light"], colours["dark"])

    def test_print_has_a_sensible_length(self) -> None:
        page = self.open(DESKTOP)
        sheets = re.findall(rb"/Type\s*/Page\b", page.pdf(format="A4"))
        self.assertGreater(len(sheets), 10)
        self.assertLessEqual(len(sheets), 50)

    def test_keyboard_skips_to_the_content(self) -> None:
        page = self.open(DESKTOP)
        page.keyboard.press("Tab")
        page.keyboard.press("Enter")
        self.assertEqual(page.evaluate("document.activeElement.id"), "content")

    def test_fits_every_width(self) -> None:
        for width in (PHONE["width"], 320, *WIDTHS):
            page = self.open(PHONE | {"width": width})
            self.assertEqual(page.evaluate("document.documentElement.scrollWidth"), width)
            if width in WIDTHS:
                cut = page.locator(".wide").evaluate_all(
                    "tables => tables.filter(table => table.scrollWidth > table.clientWidth).length")
                self.assertEqual(cut, 0)
            page.fill("#search", "number")
            self.assertEqual(page.evaluate("document.documentElement.scrollWidth"), width)

    def assert_accessible(self, page, options: dict) -> None:
        found = Axe().run(page, options=options)
        self.assertEqual(found.generate_report() if found.violations_count else "", "")

    def test_accessible(self) -> None:
        page = self.open(PHONE)
        self.assert_accessible(page, {"rules": {CONTRAST: {"enabled": False}}})

    def test_contrast(self) -> None:
        """Of what repeats, the first of each kind is looked at: looking at every text takes minutes."""
        for scheme in ("light", "dark"):
            with self.subTest(scheme=scheme):
                page = self.open(DESKTOP, scheme)
                page.add_style_tag(content=f"{', '.join(REPEATED)} {{ display: none; }}")
                self.assert_accessible(page, {"runOnly": [CONTRAST]})


if __name__ == "__main__":
    BrowserTest.page_file = pathlib.Path(sys.argv[1]).resolve()
    unittest.main(argv=sys.argv[:1])
