// Measures bar charts as Chromium lays them out: every bar's box against the number it stands for, its place in its
// group, and its labels'. Plain pages in quirks mode and in standards mode; and with the style sheet of charts, pages
// whose own rules break images, narrow and wide, dark, from right to left, and behind a shadow root.
//
//     node bars.mjs AMORTIX2 CHROMIUM      with playwright-core in ./node_modules of the working directory

import { existsSync, readFileSync, readdirSync } from "node:fs";
import { chart } from "../../examples/gallery/charts.mjs";
import { page as pageOf, render } from "../../examples/gallery/gallery.mjs";
import { amortix2, expect, withBrowser } from "./support.mjs";

const table = (rows, cell, series, label = (row) => `L${row}`) => [
  ["", ...Array(series).fill(0)],
  ...[...Array(rows).keys()].map((i) => [label(i + 1), ...[...Array(series).keys()].map((j) => cell(i + 1, j + 1))]),
];
const date = (row) => `01-${10 + (row % 20)}-${2001 + row}`;
const rising = (row, series) => 3 * row + 7 * series;
const waving = (row, series) => Math.round(50 * Math.sin(1.7 * row + series));

// The ends of the axis, and how many tenths of it lie above zero, worked out by hand.
const cases = [
  { typ: "plain", data: table(3, rising, 3), top: 30, bottom: 0, above: 10 },
  { typ: "plain", data: table(30, rising, 3), top: 200, bottom: 0, above: 10 },
  { typ: "plain", data: table(3, (r, c) => (r === c ? 100 : -40), 3), top: 100, bottom: -40, above: 7, NegativeBars: 1 },
  { typ: "LINE", data: table(3, (r, c) => -rising(r, c), 2), top: 0, bottom: -30, above: 0 },
  { typ: "ST", data: table(3, rising, 3), top: 70, bottom: 0, above: 10 },
  { typ: "SR", data: table(30, rising, 2), top: 300, bottom: 0, above: 10 },
  { typ: "OV", data: table(3, waving, 3), top: 48, bottom: -50, above: 5, NegativeBars: 1 },
  { typ: "HZ", data: table(3, rising, 3), top: 30, bottom: 0 },
  { typ: "HR", data: table(30, rising, 2), top: 200, bottom: 0 },
  { typ: "plain", data: table(12, rising, 1, date), top: 50, bottom: 0, above: 10, SetGraphDimensions: [300, 312] },
  { typ: "plain", data: table(13, rising, 1, date), top: 50, bottom: 0, above: 10 },
  { typ: "ST", data: table(40, rising, 1, date), top: 200, bottom: 0, above: 10 },
  { typ: "plain", data: table(5, rising, 1), top: 30, bottom: 0, above: 10, SetGraphDimensions: [100, 380], YLabelMode: 11 },
  ...[1, 3, 11].map((YLabelMode) => ({ typ: "HZ", data: table(5, (row) => 4e6 * row, 1, date), top: 2e7, YLabelMode })),
];

const near = (a, b, tolerance = 1) => Math.abs(a - b) <= tolerance + 1e-9;

/** Of every chart: axes, images as their attributes say and as they are, bars with their values, labels, as boxes. */
function measure() {
  const box = (element) => {
    const { left, right, top, bottom, width, height } = element.getBoundingClientRect();
    return { left, right, top, bottom, width, height };
  };
  const label = (cell) => {
    const range = document.createRange();
    range.selectNodeContents(cell.querySelector("font"));
    return { text: range.toString().trim(), ...box(range) };
  };
  const labels = (table) => [...table.querySelectorAll("td:has(font)")].map(label).filter(({ text }) => text);
  return [...(document.querySelector("#host")?.shadowRoot ?? document).querySelectorAll(".one")].map((chart) => {
    const images = [...chart.querySelectorAll("img")];
    const axis = images.find((image) => image.getAttribute("width") === "1" && image.getAttribute("height").startsWith(" "));
    const base = images.findLast((image) => image.getAttribute("height") === " 1");
    return {
      axis: box(axis),
      base: box(base),
      sizes: images.filter((image) => image.hasAttribute("height") && image.hasAttribute("width"))
        .map((image) => [image.getAttribute("width") - image.width, image.getAttribute("height") - image.height]),
      bars: images.filter((image) => image.alt.includes("="))
        .map((image) => ({ value: Number(image.alt.split("=")[1]), ...box(image) })),
      side: labels(axis.closest("td:has(table)").previousElementSibling),
      bottom: labels(base.closest("table").nextElementSibling),
    };
  });
}

/** The first label stands at `left` with its left end when it is said to, the last at `right`, the others centred. */
function checkLabels(labels, places, ends, name) {
  labels.forEach((label, i) => {
    const off = ends && i === 0 ? label.left - ends[0]
      : ends && i === labels.length - 1 ? label.right - ends[1]
      : (label.left + label.right) / 2 - places(label.text, i);
    expect(near(off, 0, 4), `${name}: label ${label.text} is ${off} pixels from its place`);
    const before = i > 0 ? labels[i - 1].right : -Infinity;
    expect(!ends || label.left >= before, `${name}: label ${label.text} meets the one before`);
  });
}

function checkUpright({ data, top, bottom, above, typ }, { axis, base, bars, side, bottom: labels }, name, kit) {
  const rows = data.slice(1);
  const tenth = axis.height / 10;
  const zero = axis.top + above * tenth;
  const length = (value) => (value > 0 ? (value / top) * above : (value / bottom) * (10 - above)) * tenth;
  const pitch = (base.width - 1) / rows.length;
  expect(near(base.top, axis.bottom, 0), `${name}: the lower axis is not at the end of the left one`);
  rows.forEach(([text, ...values], i) => {
    const left = axis.right + i * pitch;
    const group = bars.filter((bar) => bar.left >= left && bar.right < left + pitch);
    const stacked = typ.startsWith("S");
    for (const value of stacked ? [values.reduce((sum, one) => sum + one)] : values) {
      const end = (bar) => (value > 0 ? zero - bar.top : bar.bottom - zero);
      const ends = group.some((bar) => near(end(bar), length(value), 1));
      expect(ends, `${name}: no bar of group ${i + 1} ends at ${value}`);
    }
    for (const bar of typ === "OV" ? [] : group) {
      expect(near(bar.height, length(bar.value)), `${name}: ${bar.value} is ${bar.height} high`);
      const stands = stacked || near(bar.value > 0 ? bar.bottom : bar.top, zero);
      expect(stands, `${name}: ${bar.value} does not stand on the zero line`);
    }
  });
  const centre = (i) => axis.right + i * pitch + (pitch - 1) / 2;
  const groupOf = (text) => rows.findIndex(([label]) => label === text);
  const all = rows.length <= 12;
  checkLabels(labels, (text, i) => centre(all ? i : groupOf(text)), all ? undefined : [axis.left, base.right], name);
  for (const label of kit ? side : []) {
    const off = (label.top + label.bottom) / 2 - axis.top - ((top - label.text) / (top - bottom)) * axis.height;
    expect(near(off, 0, 4), `${name}: label ${label.text} is ${off} pixels from its value`);
  }
}

function checkHorizontal({ data, top }, { axis, base, bars, side, bottom }, name) {
  const series = data[0].length - 1;
  expect(bars.length === (data.length - 1) * series, `${name}: ${bars.length} bars`);
  for (const bar of bars) {
    expect(near(bar.left, axis.right, 0), `${name}: ${bar.value} starts off the axis`);
    expect(near(bar.width, (bar.value * 380) / top), `${name}: ${bar.value} is ${bar.width} wide`);
  }
  checkLabels(bottom, (text) => axis.right + (text.replaceAll(",", "") * 380) / top, [axis.left, base.right], name);
  for (const label of side) {
    const row = data.find(([text]) => text === label.text);
    const middle = (label.top + label.bottom) / 2;
    const closest = bars.reduce((a, b) => (Math.abs(b.top + b.height / 2 - middle) < Math.abs(a.top + a.height / 2 - middle) ? b : a));
    expect(row.slice(1).includes(closest.value), `${name}: ${label.text} stands beside ${closest.value}`);
  }
}

const requests = cases.map(({ typ, data, top, bottom, above, ...settings }) =>
  chart("bars", data, { typ, AltFormatStr: "0", AltLabelWithLegend: 1, ...settings }));
// "Principal, 12" becomes "Principal=12", so that tooltips tell bars from other images.
const markup = render(amortix2, requests).map((text) => text.replaceAll(/alt="(\w+), (-?\d+)"/g, 'alt="$1=$2"'));

const reset = "img{max-width:100%;height:auto}";
const resets = ["", reset, `@layer base{${reset}}`,
  `*,*::before,*::after{box-sizing:border-box;margin:0;padding:0;border:0;font:inherit;vertical-align:baseline}
   html{line-height:1.15} body{line-height:1.5} table{border-collapse:collapse;border-spacing:0;width:100%}
   img,svg,video{display:block;max-width:100%!important;height:auto!important} td,th{padding:8px}`];
const pages = ["", "<!DOCTYPE html>"].flatMap((doctype) => [
  { doctype, css: "td img{display:block}", kit: false },
  ...resets.map((css, i) => ({ doctype, css, width: i % 2 ? 360 : 1200, shadow: false })),
  { doctype, css: resets[3], width: 360, shadow: true },
  { doctype, css: `${reset} body{background:#111;color:#eee}`, width: 1200, attributes: 'dir="rtl"' },
]);

// What the example pages name lies beside them.
const examples = new URL("../../examples/pages/", import.meta.url);
for (const file of readdirSync(examples).filter((name) => name.endsWith(".asp"))) {
  const text = readFileSync(new URL(file, examples), "utf8");
  const named = text.match(/images\/\w+\.gif|\w+[\w-]*\.css/g) ?? [];
  const own = text.includes("BarChart") ? ["images/spacer_black.gif", "images/space.gif"] : [];
  for (const name of [...named, ...own]) expect(existsSync(new URL(name, examples)), `${file}: there is no ${name}`);
}

let body;
await withBrowser(async (browser) => {
  const page = await browser.newPage();
  await page.route("http://charts.test/", (route) => route.fulfill({ contentType: "text/html", body }));
  for (const one of pages) {
    await page.setViewportSize({ width: one.width ?? 900, height: 900 });
    body = pageOf(markup.map((chart) => `<div class="one">${chart}</div>`).join("\n"), one);
    await page.goto("http://charts.test/");
    const measured = await page.evaluate(measure);
    expect(measured.length === cases.length, `${measured.length} charts`);
    measured.forEach((boxes, i) => {
      const { typ, data } = cases[i];
      const name = `${typ}, ${data.length - 1} rows, page ${pages.indexOf(one)}`;
      for (const off of boxes.sizes) expect(near(off[0], 0, 0) && near(off[1], 0, 0), `${name}: an image is off by ${off}`);
      (typ.startsWith("H") ? checkHorizontal : checkUpright)(cases[i], boxes, name, one.kit ?? true);
    });
    if (process.env.CHARTS_SHOTS) await page.screenshot({ path: `${process.env.CHARTS_SHOTS}/${pages.indexOf(one)}.png` });
  }
}, `${pages.length * cases.length} charts stand as they should`);
