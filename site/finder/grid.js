"use strict";

// The grid: every exported function, and the choices that lead to it.

const TYPE_NAMES = { "32f": "float", "64f": "double" };
const LETTER_LAYOUTS = { S: "S2", P: "PS2", L: "LS2" };

// Without the marks for arrays and transposed use: the operands as a want names them.
function plainOperands(descriptor) {
    return descriptor.replace(/[aT]/g, "");
}

// The operands of a descriptor, each with its marks: "maTm" is ["maT", "m"].
function operandKinds(descriptor) {
    return descriptor.match(/[vmc]a?T?/g) || [];
}

function makeFunctions() {
    const functions = new Map();
    for (const [name, row, type, size, layout, list, statuses] of DATA.functions) {
        const [operation, family, subsystem, descriptor, formula, operands] = DATA.rows[row];
        functions.set(name, {
            name, operation, family, subsystem, descriptor, formula, operands, type, size, layout,
            arguments: DATA.lists[list].map(([argument, operand, kind, ctype, unread]) =>
                ({ name: argument, operand, kind, ctype: ctype.replace("T", TYPE_NAMES[type]), unread: Boolean(unread) })),
            statuses: DATA.statuses[statuses],
            note: DATA.notes[name] || {},
            result: DATA.results[name] || "ZelmStatus",
        });
    }
    return functions;
}

const FUNCTIONS = makeFunctions();

function makeWants() {
    const wants = [];
    for (const [group, listed] of Object.entries(DATA.wants)) {
        for (const want of listed) {
            wants.push({ ...want, group, index: wants.length, members: [] });
        }
    }
    const byKey = new Map(wants.map((want) => [`${want.operation} ${want.operands}`, want]));
    for (const member of FUNCTIONS.values()) {
        member.want = byKey.get(`${member.operation} ${plainOperands(member.descriptor)}`);
        member.want.members.push(member);
    }
    return wants;
}

const WANTS = makeWants();

// ---- choices: { want, many, transposed, type, size, layout }

// `many` is the descriptor without T; `transposed` holds the numbers of the operands that are used transposed.
function choicesOf(member) {
    const transposed = operandKinds(member.descriptor).flatMap((kind, index) => (kind.endsWith("T") ? [index] : []));
    return {
        want: member.want.index, many: member.descriptor.replace(/T/g, ""), transposed,
        type: member.type, size: member.size, layout: member.layout,
    };
}

function descriptorOf(choices) {
    return operandKinds(choices.many).map((kind, index) => kind + (choices.transposed.includes(index) ? "T" : "")).join("");
}

function matches(member, choices) {
    return member.descriptor === descriptorOf(choices) && member.type === choices.type &&
        member.size === choices.size && member.layout === choices.layout;
}

function memberOf(choices) {
    return WANTS[choices.want].members.find((member) => matches(member, choices));
}

function distinct(values) {
    return [...new Set(values)];
}

// What can be chosen, given what has been chosen ahead of it.
function options(choices) {
    const members = WANTS[choices.want].members;
    const sameMany = members.filter((member) => member.descriptor.replace(/T/g, "") === choices.many);
    const kinds = sameMany.map((member) => operandKinds(member.descriptor));
    return {
        many: distinct(members.map((member) => member.descriptor.replace(/T/g, ""))),
        transposable: [0, 1].filter((index) => kinds.some((listed) => listed[index]?.endsWith("T"))),
        layouts: distinct(sameMany.map((member) => member.layout)),
        types: distinct(sameMany.map((member) => member.type)),
        sizes: distinct(sameMany.map((member) => member.size)),
    };
}

// The nearest choices that exist: what was chosen last stays where it can.
function settled(choices) {
    const result = { ...choices, transposed: [...choices.transposed] };
    const keep = (value, allowed) => (allowed.includes(value) ? value : allowed[0]);
    result.many = nearestMany(result.many, options(result).many);
    const allowed = options(result);
    result.transposed = result.transposed.filter((index) => allowed.transposable.includes(index));
    result.layout = keep(result.layout, allowed.layouts);
    result.type = keep(result.type, allowed.types);
    const order = result.size[0];
    result.size = allowed.sizes.find((size) => size === result.size) ??
        allowed.sizes.find((size) => size && size[0] === order) ?? allowed.sizes[0];
    return result;
}

// Of the descriptors that there are the one with most operands alike in being one or many.
function nearestMany(many, allowed) {
    const arrays = (descriptor) => operandKinds(descriptor).map((kind) => kind.includes("a"));
    const wanted = arrays(many);
    const alike = (descriptor) => {
        const flags = arrays(descriptor);
        const same = flags.filter((flag, index) => flag === (wanted[index] ?? wanted.includes(true))).length;
        return (flags.includes(true) === wanted.includes(true) ? 10 : 0) + same;
    };
    return allowed.includes(many) ? many : allowed.reduce((best, each) => (alike(each) > alike(best) ? each : best), allowed[0]);
}

// ---- operands

function isArray(member) {
    return member.arguments.some((argument) => argument.kind === "count");
}

// The operands in the order of the arguments: { name, kind, layout }, kind as in the catalogue ("maT", "scalar", ...).
function operandsOf(member) {
    return member.operands.split(" ").filter(Boolean).map((word) => {
        const [name, kind] = word.split(":");
        return { name, kind: kind.split("+")[0], layout: operandLayout(member, name) };
    });
}

function operandLayout(member, name) {
    return tokenLayout(member.operation, member.operation === "Copy" ? member.layout[name === "dst" ? 1 : 0] : member.layout);
}

// Copy and LoadIdentity write layouts as letters.
function tokenLayout(operation, token) {
    return operation === "Copy" || operation === "LoadIdentity" ? LETTER_LAYOUTS[token] : token;
}

function declaration(member) {
    const join = (type, name) => (type.endsWith("*") ? type + name : `${type} ${name}`);
    const texts = member.arguments.map((argument) => join(argument.ctype, argument.name));
    return `${join(member.result, member.name)}(${texts.join(", ") || "void"});`;
}

// The names that differ from a text by the fewest letters.
function nearestNames(text, limit) {
    const wanted = text.toLowerCase();
    const ranked = [...FUNCTIONS.keys()].map((name) => [distance(wanted, name.toLowerCase()), name]);
    return ranked.sort((a, b) => a[0] - b[0]).slice(0, limit).map(([, name]) => name);
}

function distance(a, b) {
    let previous = Array.from({ length: b.length + 1 }, (_, j) => j);
    for (let i = 1; i <= a.length; i++) {
        const current = [i];
        for (let j = 1; j <= b.length; j++) {
            const replaced = previous[j - 1] + (a[i - 1] === b[j - 1] ? 0 : 1);
            current.push(Math.min(replaced, previous[j] + 1, current[j - 1] + 1));
        }
        previous = current;
    }
    return previous[b.length];
}
