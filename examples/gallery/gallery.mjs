// Writes the gallery of bar charts as web pages:
//
//     node examples/gallery/gallery.mjs build/release/bin/amortix2 build/gallery
//
// All charts are asked for in one batch.

import { spawnSync } from "node:child_process";
import { mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { pathToFileURL } from "node:url";
import { pages } from "./charts.mjs";
import { charts as pictures } from "./svg_charts.mjs";

/** The markup of every request, in order. */
export function render(amortix2, requests) {
  const input = requests.map((request) => JSON.stringify(request)).join("\n") + "\n";
  const run = spawnSync(amortix2, ["batch"], { input, encoding: "utf8", maxBuffer: 1 << 28 });
  if (run.error ?? run.status !== 0) throw run.error ?? new Error(run.stderr);
  return run.stdout.trim().split("\n").map((line) => {
    const reply = JSON.parse(line);
    if (reply.error) throw new Error(`${reply.id}: ${reply.error.name}`);
    return [reply.results.vRes].flat().filter((text) => text !== null).join("\n");
  });
}

const sheet = readFileSync(new URL("../pages/amortix2-chart.css", import.meta.url), "utf8");

/** A page around charts, in the element that the style sheet of charts asks for. */
export function page(body, { doctype = "<!DOCTYPE html>", css = "", attributes = "", shadow = false, kit = true } = {}) {
  const chart = kit ? `<div class="amortix2-chart">${body}</div>` : body;
  const content = shadow ? `<div id="host"><template shadowrootmode="open"><style>${sheet}</style>${chart}</template></div>` : chart;
  return `${doctype}<html ${attributes}><head><meta charset="utf-8"><title>Bar charts</title><style>${sheet}</style>
    <style>${css}</style></head><body>${content}</body></html>`;
}

function main(amortix2, folder) {
  mkdirSync(folder, { recursive: true });
  const links = pages.map(({ name, charts }) => {
    const file = `${name.replace(" ", "-").toLowerCase()}.html`;
    writeFileSync(join(folder, file), page(render(amortix2, charts).join("<hr>\n")));
    return `<li><a href="${file}">${name}</a></li>`;
  });
  writeFileSync(join(folder, "svg.html"), page(render(amortix2, pictures).join("\n")));
  links.push(`<li><a href="svg.html">SVG pictures</a></li>`);
  writeFileSync(join(folder, "index.html"), page(`<ul>${links.join("\n")}</ul>`));
}

if (import.meta.url === pathToFileURL(process.argv[1] ?? "").href) {
  if (process.argv.length !== 4) {
    console.error("usage: node gallery.mjs AMORTIX2 FOLDER");
    process.exit(2);
  }
  main(process.argv[2], process.argv[3]);
}
