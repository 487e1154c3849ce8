// The one-colour images of a chart, of one pixel each: as data URLs, and written as files beside pages:
//
//     node examples/gallery/images.mjs examples/pages/images

import { writeFileSync } from "node:fs";
import { join } from "node:path";
import { pathToFileURL } from "node:url";

/** The bytes of a GIF: a colour "rrggbb", or transparent. */
function bytesOf(colour) {
  const control = colour ? [] : [0x21, 0xf9, 4, 1, 0, 0, 0, 0];
  return Buffer.from([0x47, 0x49, 0x46, 0x38, 0x39, 0x61, 1, 0, 1, 0, 0x80, 0, 0,
                      ...Buffer.from(colour ?? "000000", "hex"), 0, 0, 0, ...control,
                      0x2c, 0, 0, 0, 0, 1, 0, 1, 0, 0, 2, 2, 0x44, 1, 0, 0x3b]);
}

export const pixel = (colour) => `data:image/gif;base64,${bytesOf(colour).toString("base64")}`;

const files = { "space.gif": undefined, "spacer_black.gif": "000000", "back.gif": "eef2f6",
                "blue.gif": "2f6f9f", "red.gif": "c04a30" };

if (import.meta.url === pathToFileURL(process.argv[1] ?? "").href) {
  for (const [name, colour] of Object.entries(files)) writeFileSync(join(process.argv[2], name), bytesOf(colour));
}
