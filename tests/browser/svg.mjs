// SVG charts as Chromium shows them: labels keep apart in the reader's own face, light and dark colours stand out, a
// reader's software finds name and description, and a page's style sheet changes nothing.
//
//     node svg.mjs AMORTIX2 CHROMIUM      with playwright-core in ./node_modules of the working directory

import { render } from "../../examples/gallery/gallery.mjs";
import { charts } from "../../examples/gallery/svg_charts.mjs";
import { amortix2, expect, withBrowser } from "./support.mjs";

const pictures = render(amortix2, charts);

/** Pairs of texts that meet, texts outside the picture, and the colours in use. */
function measure() {
  return [...document.querySelectorAll("svg[role=img]")].map((svg) => {
    const frame = svg.getBoundingClientRect();
    const texts = [...svg.querySelectorAll("text")].map((text) => {
      const { left, right, top, bottom } = text.getBoundingClientRect();
      const slanted = text.hasAttribute("transform");
      const words = [...text.childNodes].filter((node) => node.nodeType === 3).map((node) => node.data).join("");
      return { words, left, right, top, bottom, slanted };
    });
    const meet = (a, b) => !(a.slanted && b.slanted) && a.left < b.right - 1 && b.left < a.right - 1 && a.top < b.bottom - 3 && b.top < a.bottom - 3;
    const meeting = texts.flatMap((a, i) => texts.slice(i + 1).filter((b) => meet(a, b)).map((b) => `${a.words} / ${b.words}`));
    const outside = texts.filter((text) => text.left < frame.left - 1 || text.right > frame.right + 1 || text.bottom > frame.bottom + 1)
      .map((text) => text.words);
    const colour = (selector, property) => [...new Set([...svg.querySelectorAll(selector)].map((element) => getComputedStyle(element)[property]))];
    return {
      meeting, outside, frame: [frame.width, frame.height],
      paper: colour(".chart-paper", "fill"), texts: colour("text", "fill"), series: colour("[class^=chart-series]", "color"),
      marks: [...svg.querySelectorAll("rect:has(title)")].map((mark) => mark.getBoundingClientRect().height),
    };
  });
}

const luminance = (rgb) => {
  const parts = rgb.match(/\d+/g).map((part) => part / 255).map((x) => (x <= 0.04045 ? x / 12.92 : ((x + 0.055) / 1.055) ** 2.4));
  return 0.2126 * parts[0] + 0.7152 * parts[1] + 0.0722 * parts[2];
};
const contrast = (a, b) => {
  const [low, high] = [luminance(a), luminance(b)].sort((x, y) => x - y);
  return (high + 0.05) / (low + 0.05);
};
const lightness = (rgb) => 116 * Math.cbrt(luminance(rgb)) - 16;

const resets = {
  none: "",
  reset: "*{margin:0;padding:0;box-sizing:border-box;line-height:3;letter-spacing:normal} img,svg{display:block;max-width:100%;height:auto} text{font-weight:300} .title,.grid,.legend,.muted,.paper{display:none} body{letter-spacing:4px}",
};
await withBrowser(async (browser) => {
  const page = await browser.newPage();
  const show = async (width, scheme, style, attributes = "") => {
    await page.setViewportSize({ width, height: 900 });
    await page.emulateMedia({ colorScheme: scheme });
    await page.setContent(`<!DOCTYPE html><html ${attributes}><title>Charts</title><style>${style}</style>${pictures.join("\n")}</html>`);
    return page.evaluate(measure);
  };
  const plain = await show(1400, "light", "");
  for (const [i, { id }] of charts.entries()) {
    expect(plain[i].meeting.length === 0, `${id}: ${plain[i].meeting.slice(0, 3)} meet`);
    expect(plain[i].outside.length === 0, `${id}: ${plain[i].outside.slice(0, 3)} outside the picture`);
  }
  const dark = await show(1400, "dark", "");
  for (const [name, measured] of Object.entries({ light: plain, dark })) {
    for (const [i, { id, args }] of charts.entries()) {
      const { paper, texts, series } = measured[i];
      if (Array.isArray(args.Colgif)) continue;
      for (const text of texts) expect(contrast(text, paper[0]) >= 4.5, `${id}, ${name}: text ${text} on ${paper}`);
      series.forEach((colour, j) => {
        expect(contrast(colour, paper[0]) >= 3, `${id}, ${name}: ${colour} on ${paper}`);
        if (j > 0) expect(Math.abs(lightness(colour) - lightness(series[j - 1])) >= 10, `${id}, ${name}: ${colour} is as light as its neighbour`);
      });
    }
  }
  expect(luminance(dark[0].paper[0]) < 0.05, "dark pictures have light paper");
  const styled = await show(1400, "light", resets.reset, "dir=rtl");
  for (const [i, { id }] of charts.entries()) {
    expect(styled[i].marks.every((height, j) => Math.abs(height - plain[i].marks[j]) < 0.1), `${id}: a page's style sheet changes its bars`);
    expect(styled[i].outside.length === 0, `${id}: a page's style sheet moves ${styled[i].outside.slice(0, 3)} out`);
  }
  for (const { frame: [width, height] } of await show(360, "light", "")) {
    expect(width <= 360, `a picture is ${width} wide on a page of 360`);
    expect(height > 60, `a picture is ${height} high on a page of 360`);
  }
  const client = await page.context().newCDPSession(page);
  const { nodes } = await client.send("Accessibility.getFullAXTree");
  const images = nodes.filter((node) => ["image", "img"].includes(node.role?.value));
  expect(images.length === charts.length, `${images.length} images for ${charts.length} pictures`);
  images.forEach((image, i) => {
    expect(image.name.value === charts[i].id, `"${image.name.value}" is the name of ${charts[i].id}`);
    expect(/chart\. .*: first /.test(image.description?.value), `${charts[i].id} has the description ${image.description?.value}`);
  });
  const repeated = await page.evaluate(() => {
    const ids = [...document.querySelectorAll("[id]")].map((element) => element.id);
    return ids.length - new Set(ids).size;
  });
  expect(repeated === 0, `${repeated} identifiers stand twice in a page`);
}, `${charts.length} pictures look as they should`);
