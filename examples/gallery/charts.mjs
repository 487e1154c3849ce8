// The charts of the gallery, as requests to BarChart: every style, with values above and below zero, few rows and
// many, with and without titles and legend.

import { pixel } from "./images.mjs";

const seriesNames = ["Principal", "Interest", "Fees"];
const seriesColours = ["2f6f9f", "d08030", "5fa050"];

/** A table with labels in column 0 and `cell(row, series)` elsewhere; row 0 is not drawn. */
function table(rows, series, cell) {
  const columns = [...Array(series).keys()].map((i) => i + 1);
  const body = [...Array(rows).keys()].map((i) => [rows > 12 ? `${i + 1}` : `Year ${i + 1}`, ...columns.map((c) => cell(i + 1, c))]);
  return [["", ...columns.map(() => 0)], ...body];
}

export const rising = (row, series) => Math.round(100 * (40 * row / series + 15 * series)) / 100;
export const mixed = (row, series) => Math.round(100 * 90 * Math.sin(row + 2 * series)) / 100;

/** A request for one chart; `options` may hold typ, title, frame, and settings. */
export function chart(id, vColDat, { typ, title = id, frame = "", ...settings } = {}) {
  const series = vColDat[0].length - 1;
  return {
    id,
    call: "BarChart.MakeChart",
    args: {
      vColDat,
      blnk: pixel(),
      Colgif: [pixel("eef2f6"), ...seriesColours.slice(0, series).map(pixel)],
      Colleg: ["", ...seriesNames.slice(0, series)],
      Ttl: ["", frame, title],
      Xaxis: "Year",
      Yaxis: "Dollars",
      ...(typ === undefined ? {} : { typ }),
    },
    with: { SetAxisGif: [pixel("000000")], SetSpaceGif: [pixel()], ...settings },
  };
}

const styles = ["plain", "LINE", "OV", "OL", "OR", "ST", "SR", "HZ", "HR"];

/** All pages: name and requests. */
export const pages = [
  ...styles.map((typ) => ({
    name: typ,
    charts: [
      chart(`${typ}, three rows`, table(3, 3, rising), { typ, frame: "Repayment" }),
      chart(`${typ}, thirty rows`, table(30, 3, rising), { typ }),
      chart(`${typ}, one series, all labels`, table(30, 1, rising), { typ, YLabelMode: 11 }),
      chart(`${typ}, values of both signs`, table(5, 3, mixed), { typ, NegativeBars: true, YLabelMode: 3 }),
      chart("", table(3, 2, rising), { typ, SupressLegend: 1 }),
    ],
  })),
  {
    name: "signs",
    charts: [
      chart("Only below zero", table(6, 2, (r, c) => -rising(r, c)), { NegativeBars: true, YLabelMode: 11 }),
      chart("A small side below", table(6, 1, (r) => (r === 3 ? -1 : 60 * r)), { NegativeBars: true }),
      chart("Overlapped narrowly", table(6, 3, mixed), { typ: "OV", NegativeBars: true, MinimumOverlapCount: 1.5 }),
      chart("Overlapped, thirty rows of both signs", table(30, 3, mixed), { typ: "OV", NegativeBars: true }),
      chart("Thirty rows of both signs", table(30, 3, mixed), { NegativeBars: true }),
      chart("Nothing to show", table(3, 2, () => 0)),
    ],
  },
  {
    name: "style sheets",
    charts: [chart("Classes", table(8, 3, rising), { typ: "ST", frame: "Repayment", UseStyleSheets: true })],
  },
];
