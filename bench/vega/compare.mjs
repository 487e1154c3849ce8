// SVG charts against Vega's server-side rendering and against the HTML chart, in one run. On demand:
//
//     npm install --prefix build/vega --no-package-lock "vega@$(node -p 'require("./bench/vega/package.json").dependencies.vega')"
//     node bench/vega/compare.mjs build/release/bin/amortix2 build/vega
//
// Grouped columns of 12 rows and 3 series with axes, grid, legend and tooltips' texts, and a line of 10,000 points.
// Vega has its description parsed anew for each chart, as a server that gets new data does; the program reads
// each request as a line of JSON and writes its reply, starting the program not counted.

import { createRequire } from "node:module";
import { spawnSync } from "node:child_process";
import { resolve } from "node:path";

const [amortix2, folder] = process.argv.slice(2);
const vega = await import(createRequire(`${resolve(folder)}/`).resolve("vega"));

const rows = [...Array(12).keys()].map((i) => [`Y${2001 + i}`, ...[1, 2, 3].map((j) => 1000 + 731.7 * Math.sqrt((i + 1) * j))]);
const table = [["", 0, 0, 0], ...rows];
const points = [["", 0], ...[...Array(10000).keys()].map((i) => [String(i), 500 * Math.sin(i / 900) + 20 * Math.sin(i * i)])];
const names = ["", "Principal", "Interest", "Fees"];

const bars = (call) => ({ call, args: { vColDat: table, blnk: "b", Colgif: call[0] === "S" ? "" : ["0", "1", "2", "3"], Colleg: names, Ttl: ["", "", "Payments"], Xaxis: "Year", Yaxis: "Dollars" } });
const line = { call: "SvgChart.LineChart", args: { vColDat: points, vPal: "", typ: "" } };

/** Microseconds a request, the program's start taken off; and the bytes of one answer. */
function ours(request, count) {
  const time = (n) => {
    const input = `${JSON.stringify(request)}\n`.repeat(n);
    const start = process.hrtime.bigint();
    const { stdout } = spawnSync(amortix2, ["batch"], { input, maxBuffer: 1 << 30 });
    return [Number(process.hrtime.bigint() - start) / 1000, stdout];
  };
  const [once, stdout] = time(1);
  const picture = JSON.parse(stdout).results.vRes;
  return [(time(count + 1)[0] - once) / count, [picture].flat().join("\n").length];
}

const axes = [{ orient: "bottom", scale: "x", title: "Year", labelOverlap: true }, { orient: "left", scale: "y", title: "Dollars", grid: true }];
const barSpec = () => ({
  width: 380, height: 300, padding: 5, title: "Payments",
  data: [{ name: "t", values: rows.flatMap(([year, ...values]) => values.map((value, j) => ({ year, value, series: names[j + 1] }))) }],
  scales: [
    { name: "x", type: "band", domain: { data: "t", field: "year" }, range: "width", padding: 0.2 },
    { name: "y", domain: { data: "t", field: "value" }, range: "height", zero: true, nice: true },
    { name: "c", type: "ordinal", domain: { data: "t", field: "series" }, range: "category" },
  ],
  axes, legends: [{ fill: "c", orient: "bottom" }],
  marks: [{
    type: "group", from: { facet: { data: "t", name: "f", groupby: "year" } }, encode: { enter: { x: { scale: "x", field: "year" } } },
    signals: [{ name: "width", update: "bandwidth('x')" }],
    scales: [{ name: "p", type: "band", range: "width", domain: { data: "f", field: "series" } }],
    marks: [{ type: "rect", from: { data: "f" }, encode: { enter: {
      x: { scale: "p", field: "series" }, width: { scale: "p", band: 1 }, y: { scale: "y", field: "value" }, y2: { scale: "y", value: 0 },
      fill: { scale: "c", field: "series" }, description: { signal: "datum.series + ': ' + datum.value" } } } }],
  }],
});
const lineSpec = () => ({
  width: 380, height: 300, padding: 5,
  data: [{ name: "t", values: points.slice(1).map(([, value], i) => ({ i, value })) }],
  scales: [{ name: "x", domain: { data: "t", field: "i" }, range: "width" }, { name: "y", domain: { data: "t", field: "value" }, range: "height", zero: true, nice: true }],
  axes, marks: [{ type: "line", from: { data: "t" }, encode: { enter: { x: { scale: "x", field: "i" }, y: { scale: "y", field: "value" }, stroke: { value: "#08529e" } } } }],
});

async function theirs(description, count) {
  const draw = async () => new vega.View(vega.parse(description()), { renderer: "none" }).toSVG();
  for (let i = 0; i < count / 4; ++i) await draw();  // warm
  const start = process.hrtime.bigint();
  let svg = "";
  for (let i = 0; i < count; ++i) svg = await draw();
  return [Number(process.hrtime.bigint() - start) / 1000 / count, svg.length];
}

const results = {
  "SVG columns": ours(bars("SvgChart.MakeChart"), 2000),
  "HTML columns": ours(bars("BarChart.MakeChart"), 2000),
  "Vega columns": await theirs(barSpec, 200),
  "SVG 10,000 points": ours(line, 40),
  "Vega 10,000 points": await theirs(lineSpec, 40),
};
for (const [name, [time, bytes]] of Object.entries(results)) console.log(`${name.padEnd(20)} ${time.toFixed(0).padStart(8)} us ${String(bytes).padStart(8)} bytes`);
