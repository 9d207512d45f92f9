"use strict";

// The page: choices on one side, the function that they lead to on the other.

const byId = (id) => document.getElementById(id);
const state = { ...choicesOf(FUNCTIONS.get("zelmAdd_vava_32f_3x1")), elements: {}, count: "COUNT" };

function element(tag, attributes = {}, ...children) {
    const node = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes)) {
        if (name === "html") {
            node.innerHTML = value;
        } else if (name.startsWith("on")) {
            node.addEventListener(name.slice(2), value);
        } else if (value === true || typeof value === "string") {
            node.setAttribute(name, value === true ? "" : value);
        }
    }
    node.append(...children);
    return node;
}

// ---- choices

// The letters of a want's operands as its formula has them: A, B for matrices, x, y for vectors.
function symbols(want) {
    const seen = { v: 0, m: 0, c: 0 };
    const names = { v: want.operation.endsWith("BackSubst") ? ["b"] : ["x", "y"], m: ["A", "B"], c: ["c"] };
    return [...want.operands].map((letter) => names[letter][seen[letter]++]);
}

function manyText(want, many) {
    if (want.operation === "Gaxpy") {
        return many === "v" ? "one A, one x, one y" : "one A for all, many x and y";
    }
    if (want.operation === "LoadIdentity" || many === "") {
        return want.operation === "LoadIdentity" ? "many A" : "nothing to choose";
    }
    const names = symbols(want), kinds = operandKinds(many);
    const any = many.includes("a");
    const texts = kinds.map((kind, index) => {
        if (kind === "c") {
            return "";
        }
        return kind.includes("a") ? `many ${names[index]}` : `one ${names[index]}${any ? " for all" : ""}`;
    });
    return texts.filter(Boolean).join(", ");
}

function radio(name, value, checked, content, attributes = {}) {
    const input = element("input", { type: "radio", name, value, checked, onchange: () => chosen(name, value) });
    return element("label", { class: "choice", ...attributes }, input, content);
}

function textContent(strong, small) {
    return element("span", { class: "text" }, element("strong", {}, strong), small ? element("small", {}, small) : "");
}

function drawWants() {
    const groups = Object.keys(DATA.wants).map((group) => element("div", { class: "group", role: "group", "aria-label": group },
        element("h3", {}, group),
        element("div", { class: "cards" }, ...WANTS.filter((want) => want.group === group).map((want) =>
            radio("want", String(want.index), false, textContent(want.formula, want.title))))));
    byId("want").querySelector(".options").replaceChildren(...groups);
}

// Redraws the options of a question where they are others than before, so that the focus stays where it is.
function drawOptions(id, values, value, make) {
    const box = byId(id).querySelector(".options"), key = JSON.stringify(values);
    if (box.dataset.key !== key) {
        box.dataset.key = key;
        box.replaceChildren(...values.map((each) => make(each)));
    }
    for (const input of box.querySelectorAll("input")) {
        input.checked = input.value === value;
    }
}

function pictured(name, token, layout, many) {
    const [, manyHelp, oneHelp] = LAYOUT_TEXTS[layout];
    const content = element("span", { class: "text" },
        element("span", { html: pictureSvg(layout, many), class: "picture" }),
        element("strong", {}, LAYOUT_TEXTS[layout][0]), element("small", {}, many ? manyHelp : oneHelp));
    return radio(name, token, false, content, { class: "choice pictured" });
}

function drawLayouts(allowed) {
    const want = WANTS[state.want], copy = want.operation === "Copy", many = state.many.includes("a");
    byId("layout").hidden = copy;
    byId("source").hidden = byId("target").hidden = !copy;
    if (copy) {
        for (const [id, index] of [["source", 0], ["target", 1]]) {
            drawOptions(id, ["S", "P", "L"], state.layout[index], (letter) => pictured(id, letter, LETTER_LAYOUTS[letter], many));
        }
        return;
    }
    const tokens = allowed.layouts.map((token) => [token, tokenLayout(want.operation, token), many]);
    drawOptions("layout", tokens, state.layout, ([token, layout, any]) => pictured("layout", token, layout, any));
}

function sizeText(size, want) {
    if (size) {
        return [size.replace("x", "×"), ""];
    }
    return ["any", want.operands.includes("m") || want.operation === "Gaxpy" ? "rows and columns are arguments" : "the length is an argument"];
}

function drawTransposed(allowed) {
    const names = symbols(WANTS[state.want]), box = byId("many").querySelector(".transposed");
    const key = JSON.stringify([state.want, allowed.transposable]);
    if (box.dataset.key !== key) {
        box.dataset.key = key;
        box.replaceChildren(...allowed.transposable.map((index) => element("label", { class: "choice" },
            element("input", { type: "checkbox", name: "transposed", value: String(index), onchange: changeTransposed }),
            textContent(`${names[index]}ᵀ`, `use ${names[index]} transposed`))));
    }
    for (const input of box.querySelectorAll("input")) {
        input.checked = state.transposed.includes(Number(input.value));
    }
}

function drawData(member) {
    const operands = sampleData(member).operands;
    const fields = operands.map((operand) => [operand.name, operand.kind, operand.element]);
    const key = JSON.stringify([fields, isArray(member)]), box = byId("data").querySelector(".options");
    byId("data").hidden = operands.length === 0;
    if (box.dataset.key === key) {
        return;
    }
    box.dataset.key = key;
    state.elements = {};
    const field = (name, label, value, change) => element("label", { class: "field" }, element("span", {}, label),
        element("input", { type: "text", name, value, spellcheck: "false", autocomplete: "off", oninput: change }),
        element("small", { class: "complaint", id: `complaint-${name}` }));
    box.replaceChildren(...operands.map((operand) => field(operand.name, operand.name, operand.element, (event) => {
        state.elements[operand.name] = event.target.value.trim();
        byId(`complaint-${operand.name}`).textContent = complaint(member, operand, event.target.value);
        drawResult(currentMember());
    })));
    if (isArray(member)) {
        box.append(field("count", "count", state.count, (event) => {
            state.count = event.target.value.trim() || "COUNT";
            drawResult(currentMember());
        }));
    }
}

function currentMember() {
    return memberOf(state);
}

function draw() {
    const want = WANTS[state.want], allowed = options(state);
    for (const input of byId("want").querySelectorAll("input")) {
        input.checked = Number(input.value) === state.want;
    }
    drawOptions("many", allowed.many.map((many) => [state.want, many]), state.many,
        ([, many]) => radio("many", many, false, textContent(manyText(want, many), "")));
    drawTransposed(allowed);
    drawLayouts(allowed);
    drawOptions("type", allowed.types, state.type, (type) => radio("type", type, false, textContent(TYPE_NAMES[type] ?? "none", type)));
    drawOptions("size", allowed.sizes.map((size) => [state.want, size]), state.size,
        ([, size]) => radio("size", size, false, textContent(...sizeText(size, want))));
    drawData(currentMember());
    drawResult(currentMember());
}

// ---- the result

function copyButton(text) {
    return element("button", {
        type: "button", class: "copy", onclick: (event) => {
            navigator.clipboard?.writeText(text);
            event.target.textContent = "copied";
            setTimeout(() => { event.target.textContent = "copy"; }, 1500);
        },
    }, "copy");
}

function code(text, label) {
    return element("div", { class: "code" }, copyButton(text), element("pre", { tabindex: "0", "aria-label": label }, text));
}

function block(title, ...content) {
    return element("div", { class: "block" }, element("h3", {}, title), ...content);
}

function nameLink(name) {
    return element("a", { href: `#${name}` }, element("code", {}, name));
}

const RANK_TEXTS = {
    values: ["danger", "Gives other values than its formula"],
    faults: ["danger", "Touches memory that it should not, or faults"],
    tests: ["note", "Tests less than its row, or at another time"],
    rounds: ["note", "Adds in another order than its row"],
    permits: ["note", "Differs only for operands that its row leaves out"],
};

function warning(member) {
    const { departure, bounds, rank, when, instead } = member.note;
    if (!departure && !bounds) {
        return "";
    }
    const [style, title] = RANK_TEXTS[rank] ?? ["note", "Departs from its row"];
    const box = element("div", { class: `warning ${style}`, id: "departure" }, element("h3", {}, `⚠ ${title}`),
        element("p", {}, `${capital(departure || bounds)}${seenWhere(departure || bounds, when)}.`));
    if (instead) {
        box.append(element("p", {}, "Use instead: ", nameLink(instead.name), instead.note ? ` (${instead.note})` : ""));
        if (rank === "values") {
            box.append(element("p", {}, element("a", { href: "docs/before-you-choose.html" }, "Before you choose"), " shows what it does."));
        }
        const call = insteadCall(member, state.elements, state.count);
        if (call) {
            box.append(code(call, "The call to use instead"));
        }
    }
    return box;
}

// Where a departure is seen, unless its note has said so.
function seenWhere(note, when) {
    return when && !note.includes(when.replace(/^\w+ /, "")) ? ` — ${when}` : "";
}

const capital = (text) => text[0].toUpperCase() + text.slice(1);

const OPERATION_PARTS = { v: "a vector", m: "a matrix", c: "a constant", va: "an array of vectors", ma: "an array of matrices" };

// The parts of a name, each with what it says.
function anatomy(member) {
    if (!member.operands) {
        return [[member.name, member.want.title]];
    }
    const parts = [[member.name.startsWith("zelm") ? `zelm${member.operation}` : member.operation, member.want.title]];
    const kinds = operandKinds(member.descriptor).map((kind) =>
        OPERATION_PARTS[kind.replace("T", "")] + (kind.endsWith("T") ? " used transposed" : ""));
    parts.push([member.descriptor, member.operation === "Gaxpy" ? `a matrix, ${kinds[0]} and as many to add` : kinds.join(", ")]);
    parts.push([member.type, `elements are ${TYPE_NAMES[member.type]}`]);
    const matrix = member.descriptor.includes("m") || member.operation === "Gaxpy";
    parts.push([member.size || "–", member.size ? `${matrix ? "matrices" : "vectors"} of ${member.size.replace("x", "×")}`
        : "no size: the dimensions are arguments"]);
    parts.push([member.layout || "–", layoutMeaning(member)]);
    return parts;
}

function layoutMeaning(member) {
    const help = (layout) => LAYOUT_TEXTS[layout][isArray(member) ? 1 : 2];
    if (member.operation === "Copy") {
        return `from ${help(LETTER_LAYOUTS[member.layout[0]])}; to ${help(LETTER_LAYOUTS[member.layout[1]])}`;
    }
    return help(tokenLayout(member.operation, member.layout));
}

// The letters of the want's formula and the names of the operands.
function whichIsWhich(member) {
    const sources = operandsOf(member).filter((operand) => operand.name !== "dst");
    const texts = sources.map((operand) => {
        const letter = sampleName(member, operand);
        return `${operand.kind[0] === "m" ? letter.toUpperCase() : letter} is ${operand.name}`;
    });
    return texts.length ? `${member.want.formula}, where ${texts.join(", ")}` : member.want.formula;
}

const ARGUMENT_TEXTS = {
    pointer: "the first element of the first object", table: "a pointer per element position", list: "a pointer per object",
    shift: "bytes added to every pointer of the table", objStride: "bytes from one object to the next",
    rowStride: "bytes from one row to the next", elemStride: "bytes from one element of a row to the next",
    constant: "by value", dimension: "in elements", count: "number of objects",
    pivotIndex: "n row numbers per decomposition", scratch: "work space",
};

function argumentMeaning(argument, operand) {
    if (argument.unread) {
        return "never read";
    }
    if (operand && ["scalar", "packed"].includes(operand.kind)) {
        return "the results, packed";
    }
    return ARGUMENT_TEXTS[argument.kind === "table" && operand.layout.startsWith("L") ? "list" : argument.kind];
}

function argumentRows(member) {
    const data = sampleData(member), texts = argumentTexts(member, data, state.elements, state.count);
    const operands = new Map(data.operands.map((operand) => [operand.name, operand]));
    return member.arguments.map((argument, index) => {
        const meaning = argumentMeaning(argument, operands.get(argument.operand));
        return element("tr", {}, element("th", { scope: "row" }, element("code", {}, argument.name)),
            element("td", {}, element("code", {}, texts[index])), element("td", {}, meaning));
    });
}

const STATUS_TEXTS = {
    ZELM_OK: "done", ZELM_ERR_NULL_PTR: "a pointer, a table or an entry of a table is null",
    ZELM_ERR_SIZE: "a dimension is zero, or the dimensions disagree", ZELM_ERR_DIV_BY_ZERO: "a pivot fails the threshold",
    ZELM_ERR_NOT_POS_DEF: "a pivot is not positive",
};

function list(items) {
    return element("ul", {}, ...items.map((item) => element("li", {}, ...[item].flat())));
}

const GUIDES = { determinant: "inverse", inverse: "inverse" };

function links(member) {
    const page = member.operation === "a6_Det" ? "Det" : member.operation;
    const guide = GUIDES[member.family] ?? member.subsystem;
    const found = [element("a", { href: `reference/${page}.html#${member.name}` }, `Reference: ${page}`)];
    if (member.family) {
        found.push(" · ", element("a", { href: `docs/${guide}.html` }, `Guide: ${guide}`));
    }
    return element("p", { class: "links" }, ...found);
}

function about(member) {
    const family = DATA.families[member.family];
    if (!family) {
        return [];
    }
    const out = [block("Overlap", element("p", {}, family.overlap))];
    if (family.notes) {
        out.push(element("details", {}, element("summary", {}, `${family.title}: what holds for all forms`), element("p", {}, family.notes)));
    }
    return out;
}

function drawResult(member) {
    const made = sample(member, state.elements, state.count), want = member.want;
    const parts = anatomy(member).map(([part, meaning]) => element("div", {}, element("dt", {}, part), element("dd", {}, meaning)));
    byId("result").replaceChildren(
        element("h2", { id: "name" }, member.name), copyButton(member.name),
        element("p", { class: "formula" }, member.formula, element("small", {}, whichIsWhich(member))),
        element("dl", { class: "anatomy" }, ...parts),
        want.hint ? element("p", { class: "hint" }, want.hint) : "",
        warning(member),
        block("Call", code(made.call, "The call")),
        made.declarations ? element("details", {}, element("summary", {}, "The data of this call"), code(made.declarations, "The data")) : "",
        block("Declaration", code(declaration(member), "The declaration"),
            element("p", { class: "help" }, `#include <zelm/${member.subsystem}.h>, or <zelm.h>`)),
        ...(member.arguments.length ? [block("Arguments", element("div", { class: "scrolled" },
            element("table", {}, element("tbody", {}, ...argumentRows(member)))))] : []),
        ...(member.statuses.length ? [block("Status", list(member.statuses.map((status) =>
            [element("code", {}, status), ` ${STATUS_TEXTS[status]}`])))] : []),
        ...about(member), links(member));
    byId("jump").textContent = `${member.name} ↓`;
}

// ---- events

function choose(change) {
    Object.assign(state, settled({ ...state, ...change }));
    draw();
    history.replaceState(null, "", `#${currentMember().name}`);
}

function chosen(name, value) {
    if (name === "source" || name === "target") {
        choose({ layout: name === "source" ? value + state.layout[1] : state.layout[0] + value });
    } else {
        choose({ [name]: name === "want" ? Number(value) : value });
    }
}

function changeTransposed() {
    const inputs = [...byId("many").querySelectorAll("input[name=transposed]:checked")];
    choose({ transposed: inputs.map((input) => Number(input.value)) });
}

function show(name) {
    choose(choicesOf(FUNCTIONS.get(name)));
}

function answer(title, buttons) {
    byId("answers").replaceChildren(title ? element("p", {}, title) : "", element("div", { class: "found" }, ...buttons));
}

function answerButton(content, action) {
    return element("button", { type: "button", onclick: action }, ...content);
}

function answerName(name) {
    if (FUNCTIONS.has(name)) {
        show(name);
        return answer("", []);
    }
    const begins = [...FUNCTIONS.keys()].filter((each) => each.startsWith(name));
    const names = begins.length ? begins.slice(0, 12) : nearestNames(name, 6);
    const more = begins.length > names.length ? `, of ${begins.length}` : "";
    answer(begins.length ? `Names that begin so${more}:` : `There is no ${name}. The nearest names:`, names.map((each) =>
        answerButton([element("code", {}, each)], () => { byId("query").value = each; answerName(each); })));
}

// How many objects a person who asks by words most likely has: that is chosen later; type and size may have been named.
function answerWords(text) {
    const wants = wantsFor(text, 6), named = chosenBy(text);
    const buttons = wants.map((want) => answerButton(
        [element("strong", {}, want.formula), element("small", {}, want.title)], () => choose({ want: want.index, ...named })));
    answer(wants.length ? "" : "Nothing found under these words. Choose by formula below.", buttons);
    if (wants.length) {
        choose({ want: wants[0].index, ...named });
    }
}

function ask(text) {
    const name = /\b(zelm[A-Z]\w*|a6_\w+)/.exec(text);
    if (name) {
        answerName(name[1]);
    } else if (text.trim()) {
        answerWords(text);
    } else {
        answer("", []);
    }
}

function toggleTheme() {
    const root = document.documentElement, dark = matchMedia("(prefers-color-scheme: dark)").matches;
    const now = root.dataset.theme || (dark ? "dark" : "light");
    root.dataset.theme = now === "dark" ? "light" : "dark";
    rememberTheme(root.dataset.theme);
}

// The site's pages keep the reader's theme under the same key. Where there is no storage the system's theme holds.
function rememberTheme(theme) {
    try {
        localStorage.setItem("theme", theme);
    } catch { /* a page from a file may have no storage */ }
}

function rememberedTheme() {
    try {
        return localStorage.getItem("theme");
    } catch {
        return null;
    }
}

function showHash() {
    const name = decodeURIComponent(location.hash.slice(1));
    if (FUNCTIONS.has(name) && name !== currentMember().name) {
        show(name);
    }
}

function start() {
    const theme = rememberedTheme();
    if (theme === "light" || theme === "dark") {
        document.documentElement.dataset.theme = theme;
    }
    drawWants();
    draw();
    showHash();
    byId("ask").addEventListener("submit", (event) => { event.preventDefault(); ask(byId("query").value); });
    byId("query").addEventListener("input", (event) => ask(event.target.value));
    byId("choices").addEventListener("submit", (event) => event.preventDefault());
    for (const button of document.querySelectorAll(".example")) {
        button.addEventListener("click", () => { byId("query").value = button.textContent; ask(button.textContent); });
    }
    byId("theme").addEventListener("click", toggleTheme);
    addEventListener("hashchange", showHash);
}

start();
