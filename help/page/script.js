"use strict";

// The filter: hides the members, their links and then empty sections that lack a word of what is typed.
const filter = document.getElementById("filter");
const count = document.getElementById("filter-count");
const noMatch = document.getElementById("no-match");
const members = [...document.querySelectorAll(".member")];
const links = new Map(
  [...document.querySelectorAll("nav [data-for]")].map((item) => [item.dataset.for, item]));
const groups = [...document.querySelectorAll(".members, .links")];

function applyFilter() {
  const words = filter.value.toLowerCase().split(/\s+/).filter(Boolean);
  const filtering = words.length > 0;
  let shown = 0;
  for (const member of members) {
    const matches = words.every((word) => member.dataset.text.includes(word));
    member.hidden = !matches;
    links.get(member.id).hidden = !matches;
    shown += matches;
  }
  for (const group of groups) {
    group.hidden = !group.querySelector(".member:not([hidden]), li:not([hidden])");
  }
  document.body.classList.toggle("filtering", filtering);
  noMatch.hidden = shown > 0;
  count.textContent = filtering ? `${shown} of ${members.length} members` : "";
}

function clearFilter() {
  filter.value = "";
  applyFilter();
}

// A link to a member that the filter hides shows it again.
function showTarget() {
  const target = document.getElementById(decodeURIComponent(location.hash.slice(1)));
  if (target && !target.getClientRects().length) {
    clearFilter();
    target.scrollIntoView();
  }
}

filter.addEventListener("input", () => {
  applyFilter();
  window.scrollTo(0, 0);
});
document.getElementById("filter-form").addEventListener("submit", (event) => {
  event.preventDefault();
  const first = members.find((member) => !member.hidden);
  if (first) {
    location.hash = first.id;
  }
});
document.getElementById("clear").addEventListener("click", () => {
  clearFilter();
  filter.focus();
});
document.addEventListener("keydown", (event) => {
  if (event.key === "Escape" && document.activeElement === filter) {
    clearFilter();
  } else if (event.key === "/" && document.activeElement !== filter) {
    event.preventDefault();
    filter.focus();
  }
});
window.addEventListener("hashchange", showTarget);
applyFilter();
