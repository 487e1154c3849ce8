// The site as people meet it, in Chromium: examples and users' questions answered as the command line answers them,
// keyboard alone, paper, and what axe finds in light and dark, narrow and wide. All pages with AMORTIX2_ALL, else some.
//
//     node pages.mjs AMORTIX2 CHROMIUM      with the packages in ./node_modules of the working directory

import { spawn, spawnSync } from "node:child_process";
import { createInterface } from "node:readline";
import { amortix2, expect, failures, require, withBrowser } from "./support.mjs";

const { source: axe } = require("axe-core");
const { Validator } = await import(require.resolve("@seriousme/openapi-schema-validator"));
const today = ["--today", "2026-11-21"];

const server = spawn(amortix2, ["serve", "--listen", "127.0.0.1:0", ...today], { stdio: ["ignore", "pipe", "inherit"] });
const site = await new Promise((found) => createInterface(server.stdout).on("line", (line) => {
  const address = line.match(/http:\S+(?=\/)/);
  if (address) found(address[0]);
}));
const json = async (path) => (await fetch(site + path)).json();

const members = (await json("/api")).classes
  .flatMap((type) => type.members.map((member) => ({ ...member, call: `${type.name}.${member.name}` })))
  .filter((member) => member.finds);
const byAddress = Object.fromEntries(members.map((member) => [member.address, member]));

const valueOf = (text) => {
  try { return JSON.parse(text); } catch { return text; }
};

/** The results of the command line for the description's example, with other inputs in their place. */
function resultsOf(member, inputs) {
  const args = Object.fromEntries(member.parameters.filter(({ example }) => example).map(({ name, example }) => [name, valueOf(example)]));
  const request = JSON.stringify({ call: member.call, args: { ...args, ...inputs } });
  const { stdout } = spawnSync(amortix2, ["batch", ...today], { input: request + "\n", encoding: "utf8", maxBuffer: 1 << 26 });
  return JSON.parse(stdout).results;
}

const digits = (value, least, most) => Math.abs(value).toLocaleString("en-US", { minimumFractionDigits: least, maximumFractionDigits: most });
/** How a page writes a figure; nothing where its words differ with the size. */
function written(value, unit) {
  if (typeof value !== "number") return undefined;
  if (/^currency/.test(unit)) return `$${digits(value, 2, 2)}`;
  return /percent$/.test(unit) ? `${digits(value, 0, 3)}%` : undefined;
}

function checkAnswer(member, results, { text, lines }, name) {
  const given = new Set(member.parameters.filter(({ example }) => example).map(({ name: input }) => input));
  for (const { name: result, unit } of member.parameters.filter(({ role, echoes }) => role === "result" && !given.has(echoes))) {
    const figure = written(results[result], unit);
    expect(!figure || text.includes(figure), `${name}: ${result} ${figure} is not in the answer`);
  }
  const schedules = member.parameters.filter(({ table }) => table?.columns?.[0]?.unit === "date");
  const payments = schedules.reduce((sum, { name: schedule }) => sum + results[schedule].length - 1, 0);
  expect(lines === payments, `${name}: ${lines} lines of schedules, not ${payments}`);
}

const readAnswer = (page) => page.evaluate(() => ({
  text: document.querySelector("#answer")?.textContent ?? "",
  sentence: document.querySelector("#answer .sentence")?.textContent ?? "",
  lines: document.querySelectorAll(".years tbody tr").length,
}));

/** Sends the form and waits for the whole answer. */
const calculate = (page) => Promise.all([page.waitForNavigation(), page.click("main form button")]);

/** What axe finds, and what stands out at the side. */
async function look(page, name) {
  await page.evaluate(axe);
  const { violations } = await page.evaluate(() => window.axe.run());
  for (const { id, nodes } of violations) failures.push(`${name}: ${id} at ${nodes[0].target} (${nodes.length} places)`);
  const [content, window_] = await page.evaluate(() => [document.scrollingElement.scrollWidth, innerWidth]);
  expect(content <= window_, `${name}: ${content - window_} pixels stand out at the side`);
}

// What people look for on the first page, where they find it, and what they type and choose there.
const questions = [
  ["monthly payment of a loan", "loan", { vPurchaseAmt: "$250,000", vIntRate: "7 %" }, "vPayment"],
  ["how long a loan takes", "loan", { vPurchaseAmt: "$10,000", vPayment: "$300", vIntRate: "8.5" }, "vPeriod"],
  ["rate of a loan", "loan", { vPurchaseAmt: "$20,000", vPayment: "$400", vPeriod: "60 months" }, "vIntRate"],
  ["house mortgage fixed", "fixed", { vPurchaseAmt: "$300,000", vDownPayment: "$60,000" }],
  ["mortgage income qualify", "qualify", { vAnnualIncome: "$120,000" }],
  ["refinance", "refinance", { vNewRate: "5.75%" }],
  ["extra payment", "prepay", { vExtraPayment: "$150" }],
  ["pay off by a target", "payoff", { targetPeriod: "96" }],
  ["bi-weekly", "biweekly", { vCurrBal: "$180,000", vCurrPay: "1,500" }],
  ["points", "points", { vPoints2: "1" }],
  ["adjustable offers", "arm", { vIntRate1: "5" }],
  ["lease a car", "lease", { vEndingBal: "12,000" }, "vPayment"],
  ["balloon", "balloon", { vBalloonAtPeriod: "60" }],
  ["grid of rates and down payments", "grid", { vIntRate: "7" }],
  ["saving for a goal", "deposit", { vEndingBal: "$80,000" }],
  ["what savings come to", "save", { vPayment: "$350" }],
  ["savings goal term", "savings", { vEndingBal: "$60,000" }, "vPeriod"],
  ["interest rate savings goal", "savings-rate", { vEndingBal: "$45,000" }],
  ["present value", "present-value", { vEndingBal: "$90,000" }],
  ["future value", "future-value", { vCurrBal: "$12,000" }],
  ["yield", "yield", { vEndingBal: "$9,500" }],
  ["retirement account", "retirement", { vPayment: "$6,500" }, "vEndingBal"],
  ["spending plan", "spend", { vPayment: "$2,500" }, "vPeriod"],
  ["consolidate", "consolidate", { vNewRate: "8 %" }],
  ["rent or buy", "rent-or-buy", { vRent: "$1,600" }],
];

/** From the first page: look for it, open it, type and calculate. */
async function ask(page, [words, address, typed, find]) {
  const member = byAddress[address];
  await page.goto(site + "/");
  await page.fill("[name=q]", words);
  await page.press("[name=q]", "Enter");
  await page.click(`main a[href="/${address}"]`, { timeout: 3000 });
  if (find) await page.check(`[name=find][value=${find}]`);
  for (const [name, text] of Object.entries(typed)) await page.fill(`[name=${name}]`, text);
  await calculate(page);
  const numbers = Object.entries(typed).map(([name, text]) => [name, Number(text.replaceAll(/[^\d.]/g, ""))]);
  const results = resultsOf(member, { ...Object.fromEntries(numbers), ...(find && { [find]: 0 }) });
  const answer = await readAnswer(page);
  const { figure } = member.finds.find(({ input }) => !find || input === find);
  const [result, ...indices] = figure.split(/[(,)]/).filter(Boolean);
  const value = indices.reduce((array, index) => array.at(index), results[result]);
  const { table } = member.parameters.find(({ name }) => name === result);
  const shown = written(value, table?.rows?.[indices[0] - table.firstRow]?.unit);
  expect(answer.sentence, `"${words}" has no sentence`);
  expect(!shown || answer.text.includes(shown), `"${words}": ${shown} is not in "${answer.text.slice(0, 200)}"`);
  checkAnswer(member, results, answer, words);
}

/** Goes by the Tab key alone. */
async function tabTo(page, selector) {
  for (let i = 0; i < 90; ++i) {
    if (await page.evaluate((wanted) => document.activeElement?.matches(wanted), selector)) return;
    await page.keyboard.press("Tab");
  }
  throw new Error(`no Tab leads to ${selector}`);
}

/** A refinancing, and the same at another rate beside it, without a mouse. */
async function compareByKeyboard(page) {
  const enter = (selector) => Promise.all([page.waitForNavigation(), page.press(selector, "Enter", { noWaitAfter: true })]);
  const put = async (selector, text) => {
    await tabTo(page, selector);
    await page.keyboard.press("Control+A");
    await page.keyboard.type(text);
    await enter(":focus");
  };
  await page.goto(site + "/");
  await put("[name=q]", "refinance");
  await tabTo(page, 'a[href="/refinance"]');
  await enter(":focus");
  await put("[name=vNewRate]", "6");
  const first = await readAnswer(page);
  await tabTo(page, 'a[href*="with="]');
  await enter(":focus");
  await put("[name=vNewRate]", "5.5");
  const both = await readAnswer(page);
  const [one, other] = [6, 5.5].map((vNewRate) => written(resultsOf(byAddress.refinance, { vNewRate }).vGrid[4][2], "currency"));
  expect(first.text.includes(one), `by keyboard: ${one} is not in the answer`);
  expect(both.text.includes(one) && both.text.includes(other), `by keyboard: ${one} and ${other} do not stand beside each other`);
  await look(page, "two answers");
}

/** What was wrong is told, its link leads to the field, and the field says so to every reader. */
async function checkWrong(page) {
  await page.goto(`${site}/loan?vPurchaseAmt=lots&vPeriod=360&vIntRate=6.5&find=vPayment`);
  await page.click("[role=alert] a");
  const field = page.locator("[name=vPurchaseAmt]");
  expect(await field.inputValue() === "lots", "what was typed is gone");
  expect(await field.getAttribute("aria-invalid") === "true", "a wrong field is not marked");
  const described = await page.evaluate(() => document.querySelector("[name=vPurchaseAmt]").getAttribute("aria-describedby")
    .split(" ").map((id) => document.getElementById(id).textContent).join(" "));
  expect(described.includes("cannot be read"), `the field is described by "${described}"`);
  await look(page, "a page of mistakes");
}

/** The markup that people copy shows its bars elsewhere, in the colours of the picture. */
async function checkMarkup(page) {
  await page.goto(`${site}/chart`);
  const [html, svg] = [await page.inputValue("#html"), await page.inputValue("#svg")];
  await page.goto("about:blank");
  await page.setContent(html + svg);
  const images = await page.evaluate(() => [...document.images].map(({ naturalWidth, naturalHeight }) => naturalWidth * naturalHeight));
  expect(images.length > 20 && images.every((size) => size === 1), `images of the HTML chart have ${images} pixels`);
  expect(await page.locator("svg rect:has(title)").count() === 6, "the picture has not its six bars");
}

/** On paper: the answer and its table, whose head stands on every sheet, and nothing to fill in. */
async function checkPaper(page) {
  await page.goto(site + "/loan");
  await page.emulateMedia({ media: "print" });
  const { form, head } = await page.evaluate(() => ({
    form: document.querySelector("main form").getClientRects().length,
    head: getComputedStyle(document.querySelector("thead")).display,
  }));
  expect(form === 0, "the form is printed");
  expect(head === "table-header-group", "tables' heads are printed once");
  const pdf = await page.pdf({ format: "Letter", path: process.env.PAGES_SHOTS && `${process.env.PAGES_SHOTS}/loan.pdf` });
  const sheets = pdf.toString("latin1").match(/\/Type \/Page\b/g).length;
  expect(sheets >= 1 && sheets <= 4, `a loan takes ${sheets} sheets`);
  await page.emulateMedia({ media: null });
}

/** Every page in light and dark, narrow and wide. */
async function lookAround(page, paths) {
  for (const width of [360, 1200]) {
    await page.setViewportSize({ width, height: 900 });
    for (const colorScheme of ["light", "dark"]) {
      await page.emulateMedia({ colorScheme });
      for (const path of paths) {
        await page.goto(site + path);
        await look(page, `${path}, ${width} wide, ${colorScheme}`);
        if (process.env.PAGES_SHOTS) {
          const name = path.slice(1).replaceAll(/\W+/g, "-").slice(0, 30) || "home";
          await page.screenshot({ path: `${process.env.PAGES_SHOTS}/${name}-${width}-${colorScheme}.png`, fullPage: true });
        }
      }
    }
  }
}

await withBrowser(async (browser) => {
  const { valid, errors } = await new Validator().validate(await json("/openapi.json"));
  expect(valid, `/openapi.json: ${JSON.stringify(errors)}`);
  const page = await browser.newPage();
  page.on("response", (response) => expect(response.status() === 200, `${response.url()}: ${response.status()}`));
  page.on("request", (request) => expect(/^(data|about):/.test(request.url()) || request.url().startsWith(site), `${request.url()} is asked for`));
  page.on("console", (message) => expect(message.type() !== "error", `${page.url()}: ${message.text()}`));
  const some = process.env.AMORTIX2_ALL ? members : members.filter((_, i) => i % 4 === 0);
  for (const member of some.filter(({ address }) => address !== "invest")) {
    await page.goto(`${site}/${member.address}`);
    await calculate(page);
    checkAnswer(member, resultsOf(member, {}), await readAnswer(page), member.address);
  }
  for (const question of process.env.AMORTIX2_ALL ? questions : questions.filter((_, i) => i % 4 === 1)) {
    await ask(page, question).catch((error) => failures.push(`"${question[0]}": ${error.message}`));
  }
  await compareByKeyboard(page);
  await checkWrong(page);
  await checkPaper(page);
  await checkMarkup(page);
  const survey = "/invest?vInvAmount=10000&" + [..."DCDCC"].map((answer, i) => `vSurvey.${i + 1}=${answer}`).join("&");
  const paths = process.env.AMORTIX2_ALL ? ["/", "/?q=loan", "/method", "/invest", "/invest?vInvAmount=5", ...members.map(({ address }) => `/${address}`)] : ["/", "/refinance"];
  await lookAround(page, ["/chart", survey, ...paths]);
}, `${members.length} calculators answer as they should`).finally(() => server.kill());
