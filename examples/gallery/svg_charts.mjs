// Requests for SVG charts: every style and setting, tables small and large, labels short and long.

const wave = (row, series) => Math.round(1000 * Math.sin(row / 3 + series) + 300 * series) / 10;
const rising = (row, series) => Math.round(100 * (40 * row / series + 15 * series)) / 100;
const names = ["Principal", "Interest", "Fees", "Taxes", "Insurance", "Savings", "Rent", "Reserve"];

/** A table with `label(row)` in column 0 and `cell(row, series)` elsewhere, the series' names in row 0. */
export function table(rows, series, cell, label = (row) => `Year ${row}`) {
  const columns = [...Array(series).keys()].map((i) => i + 1);
  const body = [...Array(rows).keys()].map((i) => [label(i + 1), ...columns.map((c) => cell(i + 1, c))]);
  return [["Period", ...columns.map((c) => names[c - 1] ?? `Series ${c}`)], ...body];
}

const date = (day) => new Date(Date.UTC(2001, 0, day)).toISOString().slice(0, 10);
const month = (row) => new Date(Date.UTC(2001, row - 1, 1)).toISOString().slice(0, 10);
const gappy = (row, series) => (row % 5 === 3 ? null : wave(row, series));
const departments = ["Housing and utilities", "Food", "Transport and fuel", "Health care", "Education of children",
                     "Clothing", "Entertainment", "Savings for retirement", "Gifts"];

const bars = (id, vColDat, { typ, frame = "", x = "Period", y = "Dollars", colours = "", ...settings } = {}) => ({
  id,
  call: "SvgChart.MakeChart",
  args: { vColDat, blnk: "", Colgif: colours, Colleg: "", Ttl: ["", frame, id], Xaxis: x, Yaxis: y, ...(typ ? { typ } : {}) },
  with: settings,
});
const lines = (id, vColDat, settings = {}) => ({
  id, call: "SvgChart.LineChart", args: { vColDat, vPal: "", typ: "" }, with: { Title: id, YAxisTitle: "Dollars", ...settings },
});

export const charts = [
  bars("Columns", table(5, 3, rising)),
  bars("One series, values on", table(8, 1, rising), { ValueLabelMode: "on" }),
  bars("In a frame", table(4, 2, rising), { frame: "Household budget", Caption: "Source: the household's own books, 2001 to 2004, rounded to whole cents." }),
  bars("Values of both signs", table(9, 3, wave), { NegativeBars: true, ValueLabelMode: "on", AltFormatStr: "0" }),
  bars("Overlapped", table(6, 3, rising), { typ: "OV" }),
  bars("Stacked", table(7, 4, rising), { typ: "ST", ValueLabelMode: "on", LegendPosition: "above" }),
  bars("Stacked, reversed", table(7, 4, rising), { typ: "SR" }),
  bars("Stacked, both signs", table(10, 3, wave), { typ: "ST", NegativeBars: true }),
  bars("Horizontal", table(9, 1, rising, (row) => departments[row - 1]), { typ: "HZ", ValueLabelMode: "on", x: "Dollars a month", y: "" }),
  bars("Horizontal, reversed, two series", table(9, 2, (r, c) => 1e6 * rising(r, c), (row) => departments[row - 1]), { typ: "HR", x: "Dollars" }),
  bars("Horizontal, both signs", table(12, 2, wave), { typ: "HZ", NegativeBars: true, ValueLabelMode: "on", AltFormatStr: "0" }),
  bars("Long labels wrap", table(5, 2, rising, (row) => departments[row - 1])),
  bars("Long labels slant", table(9, 2, rising, (row) => departments[row - 1]), { SetGraphDimensions: [260, 420] }),
  bars("Forty dates", table(40, 1, rising, (row) => date(row * 31)), { SetGraphDimensions: [240, 480] }),
  bars("Forty dates on a date axis", table(40, 1, rising, month), { RowAxisKind: "date", SetGraphDimensions: [240, 480] }),
  bars("Five hundred rows", table(500, 1, wave, String), { NegativeBars: true }),
  bars("Gaps", table(12, 2, gappy), { NegativeBars: true }),
  bars("Eight series", table(3, 8, rising), { SetGraphDimensions: [240, 560] }),
  bars("Colours of the page", table(4, 2, rising), { colours: ["#f4f0e8", "#7a4a00", "teal"] }),
  bars("All eleven values", table(4, 2, wave), { YLabelMode: 11, NegativeBars: true, YLableFormatStr: "0.0" }),
  lines("Lines", table(12, 3, rising), { XAxisTitle: "Period" }),
  lines("Markers, dashes, last values", table(12, 4, wave), { LineMarkers: true, LineDashes: true, ValueLabelMode: "ends" }),
  lines("Values on", table(9, 1, wave), { LineMarkers: true, ValueLabelMode: "on", AltFormatStr: "0.0" }),
  lines("Gaps in lines", table(24, 2, gappy, String), { LineMarkers: true }),
  lines("Numbers, unevenly spaced", table(14, 2, rising, (row) => row * row), { RowAxisKind: "number", XAxisTitle: "Months" }),
  lines("Dates over years", table(80, 2, wave, (row) => date(row * 29)), { RowAxisKind: "date", SetGraphDimensions: [240, 520] }),
  lines("Dates over days", table(20, 1, wave, date), { RowAxisKind: "date" }),
  lines("Ten thousand points", table(10000, 2, (r, c) => (r === 7777 ? 900 : wave(r / 200, c) + 60 * Math.sin(r * r)), String), { SetGraphDimensions: [260, 640] }),
  lines("Eight lines", table(10, 8, wave), { LineDashes: true, LegendPosition: "above", SetGraphDimensions: [300, 560] }),
  lines("Small rates", table(10, 2, (r, c) => 0.02 + 0.01 * Math.sin(r + c)), { AxisFromData: true, YLableFormatStr: "0.0%", AltFormatStr: "0.00%" }),
  lines("Titles that are too long for a picture of this width and therefore go over to a second line or even a third", table(3, 1, rising), { SetGraphDimensions: [160, 220] }),
];
