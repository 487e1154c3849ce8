// What the tests in Chromium share: the program and the browser that they are called with, and the faults they find.

import { createRequire } from "node:module";

export const require = createRequire(`${process.cwd()}/`);
export const [amortix2, executablePath] = process.argv.slice(2);

export const failures = [];
export const expect = (holds, what) => holds || failures.push(what);

/** Runs body(browser) and tells what failed, else that all is well. */
export async function withBrowser(body, allIsWell) {
  const browser = await require("playwright-core").chromium.launch({
    executablePath,
    args: ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
           "--disable-background-networking", "--disable-component-update", "--disable-sync"],
  });
  try {
    await body(browser);
  } finally {
    await browser.close();
  }
  console.log(failures.length ? failures.slice(0, 30).join("\n") : allIsWell);
  process.exitCode = failures.length ? 1 : 0;
}
