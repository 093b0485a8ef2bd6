"""Opens the page of help in a browser, from its file, and uses it.

usage: browser_test.py PAGE
"""

import pathlib
import sys
import unittest

from axe_playwright_python.sync_playwright import Axe
from playwright.sync_api import sync_playwright

BROWSER = "/usr/bin/chromium"
DESKTOP = {"width": 1280, "height": 900}
PHONE = {"width": 375, "height": 800}
CONTRAST = "color-contrast"
REPEATED = [".links li + li", "tbody tr + tr", ".member ~ .member"]


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

    def members(self, page) -> int:
        """How many members the page describes, shown or not."""
        count = page.locator(".member").count()
        self.assertGreater(count, 0)
        return count

    def shown(self, page) -> list[str]:
        return page.locator(".member:visible").evaluate_all("members => members.map(m => m.id)")

    def test_filter(self) -> None:
        page = self.open(DESKTOP)
        self.assertEqual(len(self.shown(page)), self.members(page))
        page.keyboard.press("/")
        page.keyboard.type("sQr")
        self.assertEqual(self.shown(page), ["sqrt"])
        self.assertEqual(page.inner_text("#filter-count"), f"1 of {self.members(page)} members")
        self.assertEqual(page.locator("nav li:visible").all_inner_texts(), ["Sqrt"])
        self.assertEqual(page.locator("#members h3:visible").count(), 1)

        page.keyboard.type("zz")
        self.assertEqual(self.shown(page), [])
        self.assertTrue(page.is_visible("#no-match"))
        page.click("#clear")
        self.assertEqual(len(self.shown(page)), self.members(page))
        self.assertFalse(page.is_visible("#no-match"))

        page.fill("#filter", "inverse cosine")
        self.assertEqual(self.shown(page), ["acos", "acosh"])
        page.keyboard.press("Escape")
        self.assertEqual(page.input_value("#filter"), "")
        self.assertEqual(page.inner_text("#filter-count"), "")

    def test_links_show_what_the_filter_hides(self) -> None:
        page = self.open(DESKTOP)
        page.fill("#filter", "cosine")
        page.evaluate("location.hash = 'money-without-surprises'")
        page.wait_for_function("document.getElementById('filter').value === ''")
        self.assertTrue(page.is_visible("#money-without-surprises"))
        self.assertEqual(len(self.shown(page)), self.members(page))

    def test_enter_leads_to_the_first_match(self) -> None:
        page = self.open(DESKTOP)
        page.fill("#filter", "sqrt")
        page.press("#filter", "Enter")
        self.assertTrue(page.url.endswith("#sqrt"))
        self.assertEqual(self.shown(page), ["sqrt"])

    def test_keyboard_skips_to_the_content(self) -> None:
        page = self.open(DESKTOP)
        page.keyboard.press("Tab")
        page.keyboard.press("Enter")
        self.assertEqual(page.evaluate("document.activeElement.id"), "content")

    def test_fits_a_phone(self) -> None:
        for width in (PHONE["width"], 320):
            page = self.open(PHONE | {"width": width})
            self.assertEqual(page.evaluate("document.documentElement.scrollWidth"), width)
            page.fill("#filter", "number")
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
