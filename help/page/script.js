"use strict";

// ---------------------------------------------------------------------------------------------
// The search: ranks members, guides and parts of guides, and shows the best instead of the page.

const MOST_HITS = 30;
// How much a word of the query is worth by the place where it is found.
const WORTH = {
  name: 100, title: 80, synonym: 70, synonymWord: 65, nameStart: 60, titleStart: 50, synonymStart: 40,
  summary: 30, summaryStart: 20, text: 8, textStart: 5, inside: 1,
};
// What the whole query is worth when it is all of a name, of a title or of a synonym, when it starts a
// title, or when it starts with a synonym of several words, as a message with its numbers does.
const WHOLE = {name: 4000, title: 3000, synonym: 2000, titleStart: 1500, startsWithSynonym: 1000};
const FILLERS = new Set(
  ["a", "an", "and", "as", "for", "how", "i", "in", "is", "of", "the", "to", "with"]);

const input = document.getElementById("search");
const form = document.getElementById("search-form");
const count = document.getElementById("result-count");
const results = document.getElementById("results");
const instead = document.getElementById("instead");
const hits = document.getElementById("hits");
const more = document.getElementById("more");
const noHit = document.getElementById("no-hit");
const page = document.getElementById("page");

/** A text in small letters, with single spaces. */
function plain(text) {
  return text.toLowerCase().replace(/\s+/g, " ").trim();
}

/** The words of a text; symbols that stand alone are words, too. */
function wordsOf(text) {
  return text.match(/[\p{L}\p{N}_]+|[^\s\p{L}\p{N}_]+/gu) ?? [];
}

const entries = [...document.querySelectorAll("[data-anchor]")].map((element) => {
  const {kind, title, summary, anchor, names, words, inner} = element.dataset;
  const synonyms = words.split("|").filter(Boolean);
  return {
    kind, title, summary, anchor, synonyms,
    names: names.split("|").filter(Boolean),
    wholeTitle: plain(title),
    titleWords: wordsOf(plain(title)),
    synonymWords: [...synonyms.flatMap(wordsOf), ...inner.split("|").filter(Boolean)],
    summaryWords: wordsOf(plain(summary)),
    text: plain(element.textContent),
  };
});

/** The beginning that a word shares with its other forms: sav for save and saving. */
function stem(word) {
  return word.length > 4 ? word.replace(/(ing|ed|es|s|e)$/, "") : word;
}

/** What one word of the query is worth in an entry; 0 where it is not found. */
function worthOf(word, entry) {
  const starts = (other) => other.startsWith(stem(word));
  if (entry.names.includes(word)) return WORTH.name;
  if (entry.titleWords.includes(word)) return WORTH.title;
  if (entry.synonyms.includes(word)) return WORTH.synonym;
  if (entry.synonymWords.includes(word)) return WORTH.synonymWord;
  if (!/[\p{L}\p{N}]/u.test(word)) return entry.text.includes(word) ? WORTH.inside : 0;
  if (entry.names.some(starts)) return WORTH.nameStart;
  if (entry.titleWords.some(starts)) return WORTH.titleStart;
  if (entry.synonymWords.some(starts)) return WORTH.synonymStart;
  if (entry.summaryWords.includes(word)) return WORTH.summary;
  if (entry.summaryWords.some(starts)) return WORTH.summaryStart;
  if (` ${entry.text} `.includes(` ${word} `)) return WORTH.text;
  const found = entry.text.indexOf(stem(word));
  if (found < 0) return 0;
  return found === 0 || !/[\p{L}\p{N}_]/u.test(entry.text[found - 1]) ? WORTH.textStart : WORTH.inside;
}

/** What a query is worth in an entry. One that lacks a word counts only if `areAllNeeded` is false. */
function scoreOf(query, words, areAllNeeded, entry) {
  const found = words.map((word) => worthOf(word, entry));
  let score = found.reduce((sum, worth) => sum + worth, 0) / words.length;
  if (found.includes(0)) {
    score = areAllNeeded ? 0 : score * found.filter(Boolean).length / words.length;
  }
  if (entry.names.includes(query)) score += WHOLE.name;
  if (entry.wholeTitle === query) score += WHOLE.title;
  if (entry.synonyms.includes(query)) score += WHOLE.synonym;
  if (entry.synonyms.some((synonym) => synonym.includes(" ") && query.startsWith(`${synonym} `))) {
    score += WHOLE.startsWithSynonym;
  }
  if (entry.wholeTitle.startsWith(`${query} `)) score += WHOLE.titleStart;
  return score;
}

/** How many letters have to be changed, added or left out to make one word of the other. */
function distance(left, right) {
  let row = Array.from({length: right.length + 1}, (_, place) => place);
  for (let i = 0; i < left.length; ++i) {
    const next = [i + 1];
    for (let j = 0; j < right.length; ++j) {
      next.push(Math.min(next[j] + 1, row[j + 1] + 1, row[j] + (left[i] === right[j] ? 0 : 1)));
    }
    row = next;
  }
  return row[right.length];
}

/** The known word that is spelt most like a word; the word itself where none is close. */
function respelt(word) {
  const known = new Set(entries.flatMap((entry) =>
    [...entry.names, ...entry.titleWords, ...entry.synonymWords]).filter((other) => other.length > 2));
  let best = word;
  let least = word.length < 4 ? 0 : word.length < 7 ? 1 : 2;
  for (const other of known) {
    const found = Math.abs(other.length - word.length) <= least ? distance(word, other) : least + 1;
    if (found < least || (found === least && best === word)) {
      [best, least] = [other, found];
    }
  }
  return best;
}

function ranked(query, words, areAllNeeded) {
  return entries
    .map((entry) => ({entry, score: scoreOf(query, words, areAllNeeded, entry)}))
    .filter(({score}) => score > 0)
    .sort((left, right) => right.score - left.score)
    .map(({entry}) => entry);
}

/**
 * The entries that go with a query, the best first; among equals, in the order of the page. Where no
 * entry has all words, misspelt words are replaced; where that does not help either, entries with some
 * of the words are returned. `instead` says what was done.
 */
function find(text) {
  const query = plain(text);
  const all = wordsOf(query);
  const telling = all.filter((word) => !FILLERS.has(word));
  const words = telling.length > 0 ? telling : all;
  let found = ranked(query, words, true);
  if (found.length > 0) {
    return {found, instead: ""};
  }
  const corrected = words.map(
    (word) => entries.some((entry) => worthOf(word, entry) > 0) ? word : respelt(word));
  const isCorrected = corrected.some((word, place) => word !== words[place]);
  found = ranked(corrected.join(" "), corrected, true);
  if (found.length > 0) {
    return {found, instead: `No result for “${text.trim()}”. These are the results for “${corrected.join(" ")}”:`};
  }
  found = ranked(corrected.join(" "), corrected, false);
  return {found, instead: found.length > 0 ? `No result has all of the words. These have some of “${
    isCorrected ? corrected.join(" ") : text.trim()}”:` : ""};
}

function hitElement(entry) {
  const item = document.createElement("li");
  const link = document.createElement("a");
  link.href = `#${entry.anchor}`;
  link.textContent = entry.title;
  link.classList.toggle("code", entry.kind === "Member");
  const kind = document.createElement("span");
  kind.className = "note";
  kind.textContent = entry.kind;
  const summary = document.createElement("p");
  summary.textContent = entry.summary;
  item.append(link, " ", kind, summary);
  return item;
}

function showResults(shown) {
  results.hidden = !shown;
  page.hidden = shown;
  document.body.classList.toggle("searching", shown);
  if (!shown) {
    count.textContent = "";
  }
}

function search() {
  if (!input.value.trim()) {
    showResults(false);
    return;
  }
  const {found, instead: explanation} = find(input.value);
  instead.hidden = !explanation;
  instead.textContent = explanation;
  hits.replaceChildren(...found.slice(0, MOST_HITS).map(hitElement));
  more.hidden = found.length <= MOST_HITS;
  more.textContent =
    `These are the best ${MOST_HITS} of ${found.length} results. One more word leads to fewer.`;
  noHit.hidden = found.length > 0;
  count.textContent = found.length === 1 ? "1 result" : `${found.length} results`;
  showResults(true);
}

function clearSearch() {
  input.value = "";
  search();
}

/** Shows the page again, and on it what the address names. */
function showTarget() {
  const target = document.getElementById(decodeURIComponent(location.hash.slice(1)));
  if (target && !results.hidden) {
    showResults(false);
    target.scrollIntoView();
  }
  followPlace();
}

input.addEventListener("input", () => {
  search();
  window.scrollTo(0, 0);
});
input.addEventListener("focus", () => {
  if (results.hidden) {
    search();
  }
});
form.addEventListener("submit", (event) => {
  event.preventDefault();
  const best = find(input.value).found[0];
  if (best) {
    input.blur();
    location.hash = best.anchor;
    showTarget();
  }
});
results.addEventListener("click", (event) => {
  // The address may already be that of the link: then no hashchange follows.
  if (event.target.closest("a")?.hash === location.hash) {
    showTarget();
  }
});
document.getElementById("clear").addEventListener("click", () => {
  clearSearch();
  input.focus();
});
document.addEventListener("keydown", (event) => {
  const isInput = document.activeElement === input;
  if (event.key === "Escape" && (isInput || !results.hidden)) {
    clearSearch();
  } else if (event.key === "/" && !isInput && !event.ctrlKey && !event.metaKey && !event.altKey) {
    event.preventDefault();
    input.focus();
    input.select();
  } else if ((event.key === "ArrowDown" || event.key === "ArrowUp") && !results.hidden) {
    const stops = [input, ...hits.querySelectorAll("a")];
    const next = stops[stops.indexOf(document.activeElement) + (event.key === "ArrowDown" ? 1 : -1)];
    if (next) {
      event.preventDefault();
      next.focus();
    }
  }
});
window.addEventListener("hashchange", showTarget);

// ---------------------------------------------------------------------------------------------
// The contents: mark the place that is read, and follow it.

const contents = document.getElementById("contents");
const nav = contents.parentElement;
const narrow = window.matchMedia("(max-width: 50rem)");
const places = [...nav.querySelectorAll("a")]
  .map((link) => ({link, target: document.getElementById(decodeURIComponent(link.hash.slice(1)))}));
let marked = null;

/** The last of the places in the contents that starts above the upper third of the window. */
function currentPlace() {
  const line = window.innerHeight / 3;
  let current = null;
  for (const place of places) {
    if (place.target.getBoundingClientRect().top > line) {
      break;
    }
    current = place;
  }
  const named = places.find((place) => `#${place.target.id}` === location.hash);
  const top = named?.target.getBoundingClientRect().top ?? -1;
  return top >= 0 && top <= window.innerHeight / 2 ? named : current;
}

function followPlace() {
  const link = results.hidden ? currentPlace()?.link ?? null : null;
  if (link === marked) {
    return;
  }
  marked?.removeAttribute("aria-current");
  link?.setAttribute("aria-current", "location");
  marked = link;
  if (link && !narrow.matches) {
    const inner = link.getBoundingClientRect();
    const outer = nav.getBoundingClientRect();
    if (inner.top < outer.top || inner.bottom > outer.bottom) {
      nav.scrollTop += inner.top - outer.top - outer.height / 3;
    }
  }
}

let isWaiting = false;
window.addEventListener("scroll", () => {
  if (!isWaiting) {
    isWaiting = true;
    requestAnimationFrame(() => {
      isWaiting = false;
      followPlace();
    });
  }
}, {passive: true});

/** On a narrow window the contents stand above the text, and are closed at first. */
function foldContents() {
  contents.open = !narrow.matches;
}
narrow.addEventListener("change", foldContents);
contents.addEventListener("click", (event) => {
  if (narrow.matches && event.target.closest("a")) {
    contents.open = false;
  }
});

// ---------------------------------------------------------------------------------------------
// Programs: a button that copies each, and the keyboard for those that are wider than the window.

async function copy(text) {
  try {
    await navigator.clipboard.writeText(text);
  } catch {
    // Browsers that keep the clipboard from pages in files still let a selection be copied.
    const area = document.createElement("textarea");
    area.value = text;
    document.body.append(area);
    area.select();
    document.execCommand("copy");
    area.remove();
  }
}

for (const example of document.querySelectorAll(".example")) {
  const button = document.createElement("button");
  button.type = "button";
  button.className = "copy";
  button.textContent = "Copy";
  button.setAttribute("aria-label", "Copy the program");
  button.addEventListener("click", async () => {
    await copy(`${example.querySelector("code").textContent}\n`);
    button.textContent = "Copied";
    setTimeout(() => { button.textContent = "Copy"; }, 2000);
  });
  example.prepend(button);
}

function makeScrollable() {
  for (const program of document.querySelectorAll(".example > pre, .wide")) {
    if (program.scrollWidth > program.clientWidth) {
      program.tabIndex = 0;
    } else {
      program.removeAttribute("tabindex");
    }
  }
}
window.addEventListener("resize", makeScrollable);

foldContents();
makeScrollable();
followPlace();
