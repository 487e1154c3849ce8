// Measures bar charts as Chromium lays them out, in quirks mode and in standards mode: every bar's box against the
// number it stands for, its place in its group, and its label's.
//
//     node bars.mjs AMORTIX2 CHROMIUM      with playwright-core in ./node_modules of the working directory

import { createRequire } from "node:module";
import { chart } from "../../examples/gallery/charts.mjs";
import { page as pageOf, render } from "../../examples/gallery/gallery.mjs";

const { chromium } = createRequire(`${process.cwd()}/`)("playwright-core");
const [amortix2, executablePath] = process.argv.slice(2);

const table = (rows, cell, series) => [
  ["", ...Array(series).fill(0)],
  ...[...Array(rows).keys()].map((i) => [`L${i + 1}`, ...[...Array(series).keys()].map((j) => cell(i + 1, j + 1))]),
];
const rising = (row, series) => 3 * row + 7 * series;
const waving = (row, series) => Math.round(50 * Math.sin(1.7 * row + series));

// The ends of the axis, and how many tenths of its 300 pixels lie above zero, worked out by hand.
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
];

const failures = [];
const expect = (holds, what) => holds || failures.push(what);
const near = (a, b, tolerance = 1) => Math.abs(a - b) <= tolerance;

/** The axes at the left and below, bars with their values, and labels, as boxes. */
function measure() {
  const box = (element) => {
    const { left, right, top, bottom, width, height } = element.getBoundingClientRect();
    return { left, right, top, bottom, width, height };
  };
  const text = (element) => {
    const range = document.createRange();
    range.selectNodeContents(element);
    return { text: element.textContent, ...box(range) };
  };
  const images = [...document.images];
  return {
    axis: box(images.find((image) => image.getAttribute("width") === "1" && image.getAttribute("height").startsWith(" "))),
    base: box(images.findLast((image) => image.getAttribute("height") === " 1")),
    bars: images
      .filter((image) => image.alt.includes("="))
      .map((image) => ({ series: image.alt.split("=")[0], value: Number(image.alt.split("=")[1]), ...box(image) })),
    labels: [...document.querySelectorAll("font[size='1']")].map(text).filter(({ text }) => /^L\d+$/.test(text)),
  };
}

function checkUpright({ data, top, bottom, above, typ }, { axis, base, bars, labels }, name) {
  const rows = data.slice(1);
  const zero = axis.top + above * 30;
  const length = (value) => (value > 0 ? (value / top) * above * 30 : (value / bottom) * (300 - above * 30));
  const pitch = (base.width - 1) / rows.length;
  expect(near(axis.height, 300, 0), `${name}: the axis is ${axis.height} high`);
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
    const inner = i > 0 && i < rows.length - 1 && labels.find((label) => label.text === text);
    const offset = inner ? (inner.left + inner.right) / 2 - (left + pitch / 2) : 0;
    expect(near(offset, 0, 2), `${name}: label ${text} is ${offset} pixels beside its group`);
  });
}

function checkHorizontal({ data, top }, { axis, bars, labels }, name) {
  const series = data[0].length - 1;
  expect(bars.length === (data.length - 1) * series, `${name}: ${bars.length} bars`);
  for (const bar of bars) {
    expect(near(bar.left, axis.right, 0), `${name}: ${bar.value} starts off the axis`);
    expect(near(bar.width, (bar.value * 380) / top), `${name}: ${bar.value} is ${bar.width} wide`);
  }
  for (const label of labels) {
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

const browser = await chromium.launch({
  executablePath,
  args: ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--disable-sync"],
});
try {
  const page = await browser.newPage({ viewport: { width: 900, height: 900 } });
  for (const doctype of ["", "<!DOCTYPE html>"]) {
    for (const [i, one] of cases.entries()) {
      await page.setContent(pageOf(markup[i], doctype), { waitUntil: "load" });
      const boxes = await page.evaluate(measure);
      const check = one.typ.startsWith("H") ? checkHorizontal : checkUpright;
      check(one, boxes, `${one.typ}, ${one.data.length - 1} rows, ${doctype || "quirks"}`);
    }
  }
} finally {
  await browser.close();
}
console.log(failures.length ? failures.slice(0, 20).join("\n") : `${2 * cases.length} charts stand as they should`);
process.exitCode = failures.length ? 1 : 0;
