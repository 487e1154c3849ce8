#include "amortix2/pages/style_sheet.h"

namespace amortix2::pages {
namespace {

constexpr std::string_view kStyleSheet = R"css(:root {
  color-scheme: light dark;
  --ground: #f6f5f1; --card: #fff; --ink: #1c2733; --soft: #55606d; --line: #dcdad2; --field: #8a919a;
  --accent: #0b6450; --on-accent: #fff; --wash: #e9f3ee; --wrong: #a8201a; --wrong-wash: #fcefed;
  --shadow: 0 1px 2px rgb(20 30 40 / 6%), 0 6px 20px rgb(20 30 40 / 5%);
}
@media (prefers-color-scheme: dark) {
  :root {
    --ground: #10161b; --card: #182026; --ink: #e8ecef; --soft: #a9b4be; --line: #2d3841; --field: #74818c;
    --accent: #74d3b4; --on-accent: #08251c; --wash: #17302a; --wrong: #ff9d94; --wrong-wash: #351d1c;
    --shadow: none;
  }
}
* { box-sizing: border-box; }
html { -webkit-text-size-adjust: 100%; scroll-behavior: smooth; }
@media (prefers-reduced-motion: reduce) { html { scroll-behavior: auto; } }
body { margin: 0; background: var(--ground); color: var(--ink); font: 1rem/1.55 system-ui, sans-serif; }
.wrap { max-width: 76rem; margin: 0 auto; padding: 0 clamp(1rem, 3vw, 2rem); }
h1, h2, h3 { line-height: 1.2; margin: 0; letter-spacing: -.01em; }
h1 { font-size: clamp(1.8rem, 4.5vw, 2.6rem); }
h2 { font-size: 1.25rem; }
h3 { font-size: 1rem; }
p { margin: 0; }
a { color: var(--accent); text-underline-offset: .2em; }
:focus-visible { outline: 3px solid var(--accent); outline-offset: 2px; border-radius: .2rem; }
.skip { position: absolute; left: -99rem; padding: .6rem 1rem; background: var(--card); }
.skip:focus { left: 1rem; top: .5rem; z-index: 1; }

.top { background: var(--card); border-bottom: 1px solid var(--line); }
.top .wrap { display: flex; flex-wrap: wrap; align-items: center; justify-content: space-between; gap: 0 2rem; }
.brand { font-weight: 700; font-size: 1.15rem; text-decoration: none; color: var(--ink); padding: .75rem 0; }
.top ul { display: flex; flex-wrap: wrap; gap: 0 1.5rem; margin: 0; padding: 0; list-style: none; }
.top li a { display: block; padding: .75rem 0; color: var(--soft); text-decoration: none; }
.top li a:hover { color: var(--ink); text-decoration: underline; }
.top li a[aria-current] { color: var(--ink); box-shadow: inset 0 -3px var(--accent); }
main.wrap { min-height: 70vh; padding-bottom: 4rem; }
footer { border-top: 1px solid var(--line); color: var(--soft); font-size: .95rem; }
footer .wrap { padding-top: 1.5rem; padding-bottom: 2rem; }
.hero { padding: clamp(1.5rem, 4vw, 3rem) 0 1.75rem; display: grid; gap: .5rem; justify-items: start;
  grid-template-columns: minmax(0, 1fr); }
.group a { font-size: .95rem; text-decoration: none; }
.group a:hover { text-decoration: underline; }
.lede { color: var(--soft); font-size: 1.1rem; max-width: 46rem; }
.notice { background: var(--wash); border-radius: .5rem; padding: .5rem .9rem; margin-top: .5rem; }
.prose { max-width: 44rem; padding: clamp(1.5rem, 4vw, 3rem) 0; }
.prose h2 { margin: 2rem 0 .4rem; }

.search { width: 100%; max-width: 36rem; margin-top: 1rem; }
.search label { font-weight: 600; }
.search .row { display: flex; gap: .5rem; margin-top: .35rem; }
.search input { flex: 1; min-width: 0; }
main > section { margin-top: 2rem; }
.cards { list-style: none; margin: .9rem 0 0; padding: 0; display: grid; gap: .9rem;
  grid-template-columns: repeat(auto-fill, minmax(min(100%, 19rem), 1fr)); }
.cards li { position: relative; background: var(--card); border: 1px solid var(--line); border-radius: .75rem;
  padding: 1rem 1.15rem; box-shadow: var(--shadow); }
.cards li:hover { border-color: var(--accent); }
.cards a { font-weight: 650; font-size: 1.05rem; text-decoration: none; }
.cards a::after { content: ""; position: absolute; inset: 0; border-radius: .75rem; }
.cards p { color: var(--soft); font-size: .95rem; margin-top: .25rem; }

.columns { display: grid; gap: 1.5rem; align-items: start; grid-template-columns: minmax(0, 1fr); }
.result { display: grid; gap: 1.5rem; grid-template-columns: minmax(0, 1fr); }
@media (min-width: 60rem) {
  .columns { grid-template-columns: 23rem minmax(0, 1fr); }
  .columns:has(.result:empty) { grid-template-columns: minmax(0, 42rem); }
}
.card { background: var(--card); border: 1px solid var(--line); border-radius: .9rem; box-shadow: var(--shadow);
  padding: clamp(1rem, 2.5vw, 1.6rem); }
.inputs { display: grid; gap: 1.15rem; }
fieldset { border: 0; margin: 0; padding: 0; min-width: 0; }
legend { font-weight: 600; padding: 0; margin-bottom: .4rem; }
.find label { display: flex; align-items: center; gap: .6rem; min-height: 2.5rem; padding: .3rem .8rem; cursor: pointer;
  border: 1px solid var(--line); border-radius: .5rem; }
.find label + label { margin-top: .3rem; }
.find label:hover { border-color: var(--accent); }
.find label:has(:checked) { background: var(--wash); border-color: var(--accent); font-weight: 600; }
.find input { flex: none; accent-color: var(--accent); width: 1.1rem; height: 1.1rem; margin: 0; }
form:has(.find label:nth-of-type(1) :checked) .findable-1, form:has(.find label:nth-of-type(2) :checked) .findable-2,
form:has(.find label:nth-of-type(3) :checked) .findable-3, form:has(.find label:nth-of-type(4) :checked) .findable-4,
form:has(.find label:nth-of-type(5) :checked) .findable-5 { display: none; }
.field label { display: block; font-weight: 600; margin-bottom: .25rem; }
.control { display: flex; align-items: center; gap: .5rem; }
input:not([type=radio]), select, textarea { font: inherit; color: inherit; background: var(--card); border: 1px solid var(--field);
  border-radius: .5rem; padding: .45rem .7rem; min-height: 2.75rem; max-width: 100%; }
.control input, .control select { flex: 1; min-width: 0; width: 100%; }
.control [aria-invalid] { border: 2px solid var(--wrong); }
.unit { color: var(--soft); white-space: nowrap; }
.hint { color: var(--soft); font-size: .9rem; line-height: 1.4; margin-top: .25rem; }
.error { color: var(--wrong); font-weight: 600; font-size: .95rem; margin-top: .25rem; }
.item { display: grid; gap: 0 .6rem; grid-template-columns: repeat(3, minmax(0, 1fr)); align-items: end; }
.item legend { margin-bottom: .1rem; }
.item label { font-size: .85rem; font-weight: 500; line-height: 1.3; color: var(--soft); }
.item .unit { display: none; }
.item .error { font-size: .85rem; }
button { font: inherit; font-weight: 650; min-height: 2.75rem; padding: .5rem 1.4rem; border: 0; border-radius: .5rem;
  background: var(--accent); color: var(--on-accent); cursor: pointer; }
button:hover { filter: brightness(1.08); }
.inputs button { width: 100%; }
.problems { border-color: var(--wrong); background: var(--wrong-wash); }
.problems ul, .notes ul { margin: .5rem 0 0; padding-left: 1.2rem; }

.answer > h2 { color: var(--soft); font-size: .95rem; font-weight: 600; letter-spacing: 0; }
.sentence { font-size: clamp(1.2rem, 2.6vw, 1.55rem); line-height: 1.35; font-weight: 600; margin-top: .3rem; }
.figures { margin: 1.4rem 0 0; display: grid; gap: 1rem 1.25rem;
  grid-template-columns: repeat(auto-fill, minmax(min(100%, 9.5rem), 1fr)); }
.figures dt { color: var(--soft); font-size: .9rem; }
.figures dd { margin: 0; font-size: 1.25rem; font-weight: 600; font-variant-numeric: tabular-nums; }
.figures .found dd { color: var(--accent); font-size: 1.6rem; line-height: 1.2; }
.figures .words { grid-column: 1 / -1; }
.figures .words dd { font-size: 1rem; font-weight: 400; max-width: 44rem; }
.asked { display: none; }
.notes { margin-top: 1.4rem; padding: .9rem 1.1rem; border-radius: .6rem; background: var(--wash); }
.break-even { margin-top: .9rem; font-weight: 600; }
caption span { display: inline-block; position: sticky; left: 0; max-width: min(100%, calc(100vw - 4.5rem)); }
.better { margin-right: .5rem; padding: 0 .45rem; border-radius: 1rem; background: var(--wash); color: var(--accent);
  font-size: .8rem; font-weight: 600; }
.along, .downloads { list-style: none; display: flex; flex-wrap: wrap; gap: .3rem 1.5rem; margin: 1.4rem 0 0; padding: 0; }
.along { padding-top: .9rem; border-top: 1px solid var(--line); font-weight: 600; }
.downloads { margin-top: .3rem; font-size: .95rem; }
.along a, .downloads a { display: inline-block; padding: .25rem 0; }

.scroll { overflow-x: auto; margin-top: 1.4rem; }
table { border-collapse: collapse; width: 100%; font-variant-numeric: tabular-nums; font-size: .95rem; }
caption { text-align: left; font-weight: 600; padding-bottom: .4rem; }
th, td { padding: .42rem 0 .42rem 1rem; text-align: right; white-space: nowrap; border-bottom: 1px solid var(--line); }
thead th { color: var(--soft); font-weight: 600; vertical-align: bottom; white-space: normal; }
tbody th { font-weight: 500; white-space: normal; min-width: 5rem; }
th:first-child, td:first-child { text-align: left; padding-left: 0; }
tbody tr:hover { background: var(--wash); }
summary { cursor: pointer; min-height: 2.25rem; display: flex; align-items: center; gap: .6rem; }
summary::before { content: "+"; width: 1em; color: var(--accent); font-weight: 700; }
[open] > summary::before { content: "–"; }
summary::-webkit-details-marker { display: none; }
.years { display: grid; gap: .1rem 1rem; margin-top: .4rem; grid-template-columns: repeat(auto-fill, minmax(5.5rem, 1fr)); }
.years details[open] { grid-column: 1 / -1; }
.years .scroll { margin: .2rem 0 1rem; }
.charts { display: grid; gap: 1.5rem; margin-top: 1rem; grid-template-columns: repeat(auto-fit, minmax(min(100%, 22rem), 1fr)); }
textarea { width: 100%; white-space: pre; overflow: auto; font: .9rem/1.5 ui-monospace, monospace; tab-size: 10; }
figure { margin: 0; min-width: 0; }
figure svg { display: block; width: 100%; height: auto; }
figure > div { max-width: 34rem; }
figure summary, .download { font-size: .9rem; }
figcaption { font-weight: 600; margin-bottom: .5rem; }

@media (max-width: 30rem) {
  .top ul { gap: 0 .9rem; font-size: .95rem; }
  table { font-size: .88rem; }
  th, td { padding-left: .6rem; }
  .better { margin-right: .15rem; padding: 0; background: none; }
  .better span { position: absolute; clip-path: inset(50%); width: 1px; height: 1px; overflow: hidden; }
}
@media print {
  :root { --ground: #fff; --card: #fff; --ink: #000; --soft: #333; --line: #bbb; --accent: #000; --wash: #fff; }
  .top, .skip, .inputs, .along, .downloads, .download, figure details, .notice, .years, .hint { display: none; }
  .columns, .result { display: block; }
  .asked { display: grid; grid-template-columns: repeat(3, 1fr); gap: .2rem 1.5rem; margin: .4rem 0 1.2rem; }
  .asked div { display: flex; justify-content: space-between; gap: .5rem; border-bottom: 1px solid var(--line); }
  .asked dd { margin: 0; text-align: right; }
  .card { border: 0; box-shadow: none; padding: 0; margin-bottom: 1.5rem; }
  .scroll { overflow: visible; }
  thead { display: table-header-group; }
  tr, figure { break-inside: avoid; }
  h2, h3, caption, summary { break-after: avoid; }
  details:not([open]), summary::before { display: none; }
  th, td { padding-top: .2rem; padding-bottom: .2rem; }
  .charts { grid-template-columns: 1fr 1fr; }
  main.wrap { min-height: 0; padding-bottom: 0; }
  footer .wrap { padding-top: .5rem; padding-bottom: 0; }
  @page { margin: 1.5cm; }
  body { font-size: 10pt; }
}
)css";

constexpr std::string_view kIcon =
    R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32"><rect width="32" height="32" rx="7" fill="#0b6450"/>)svg"
    R"svg(<path d="M7 8v17h18" fill="none" stroke="#fff" stroke-width="3"/><path d="M11 10c8 1 12 4 13 11" fill="none" )svg"
    R"svg(stroke="#9fe3cb" stroke-width="3"/></svg>)svg";

}  // namespace

std::string_view StyleSheet() noexcept { return kStyleSheet; }
std::string_view Icon() noexcept { return kIcon; }

}  // namespace amortix2::pages
