"use strict";

// A call filled in. Each operand is given by how C writes its element (i, j) of object k: `bodies[k].pose[i][j]`. Start and
// strides follow from that: &bodies[0].pose[0][0], sizeof bodies[0], sizeof bodies[0].pose[0].

const SIZES = { ROWS: 3, COLUMNS: 5, INNER: 4, LENGTH: 7, ORDER: 5 };
const TALL_SIZES = { ROWS: 8, COLUMNS: 3 };
const INDICES = ["k", "i", "j"];

function isQr(member) {
    return member.operation.startsWith("QR");
}

// ---- shapes

// Per operand the rows and columns as stored (a vector: its length only), and what the dimension arguments are given.
function shapesOf(member) {
    const names = operandsOf(member).map((operand) => operand.name);
    const all = (shape) => Object.fromEntries(names.map((name) => [name, shape]));
    if (member.size) {
        return { shapes: all([member.size[0], member.size[0]]), given: {} };
    }
    const dimensions = member.arguments.filter((argument) => argument.kind === "dimension").map((argument) => argument.name);
    if (dimensions.includes("len")) {
        return { shapes: all(["LENGTH", "LENGTH"]), given: { len: "LENGTH" } };
    }
    const given = { width: "COLUMNS", height: "ROWS", src1Height: "ROWS", src1Width: "COLUMNS", src2Len: "COLUMNS" };
    if (dimensions.includes("src2Len") && !member.descriptor.includes("T")) {
        return { shapes: { src1: ["ROWS", "COLUMNS"], src2: ["COLUMNS"], dst: ["ROWS"] }, given };
    }
    if (dimensions.includes("src2Width") && ["mm", "mam"].includes(member.descriptor)) {
        return {
            shapes: { src1: ["ROWS", "INNER"], src2: ["INNER", "COLUMNS"], dst: ["ROWS", "COLUMNS"] },
            given: { src1Height: "ROWS", src1Width: "INNER", src2Height: "INNER", src2Width: "COLUMNS" },
        };
    }
    if (!dimensions.includes("width") || squareOnly(member)) {
        return { shapes: all(["ORDER", "ORDER"]), given: Object.fromEntries(dimensions.map((name) => [name, "ORDER"])) };
    }
    return { shapes: rectangles(member, names), given };
}

// Rows whose tables or diagonals make sense for square matrices only.
function squareOnly(member) {
    return member.operation === "LoadIdentity" || (member.operation === "Transpose" && member.layout.startsWith("P")) ||
        (member.layout === "P" && member.descriptor.includes("T"));
}

function rectangles(member, names) {
    const shapes = Object.fromEntries(operandsOf(member).map(({ name, kind }) =>
        [name, kind.endsWith("T") ? ["COLUMNS", "ROWS"] : ["ROWS", "COLUMNS"]]));
    if (member.operation === "Transpose") {
        shapes.dst = ["COLUMNS", "ROWS"];
    } else if (member.operation === "Gaxpy") {
        Object.assign(shapes, { src2: ["COLUMNS"], src3: ["ROWS"], dst: ["ROWS"] });
    } else if (member.operation === "QRBackSubst") {
        Object.assign(shapes, { src2: ["ROWS"], dst: ["COLUMNS"] });
    }
    return shapes;
}

// ---- data

// The name of an operand in the sample, as in the formula of its want.
function sampleName(member, operand) {
    if (operand.name === "dst") {
        return "result";
    }
    const sources = operandsOf(member).filter((other) => other.name !== "dst" && other.kind[0] === operand.kind[0]);
    const before = sources.findIndex((other) => other.name === operand.name);
    if (operand.kind[0] === "m") {
        return ["a", "b"][before];
    }
    return member.operation.endsWith("BackSubst") ? "b" : ["x", "y"][before];
}

// How objects of a layout may lie: a declaration and the element (i, j) of object k in it.
const VECTOR_DATA = {
    "": ["T NAME[COUNT][R]", "NAME[k][j]"],
    S2: ["T NAME[R][COUNT]", "NAME[j][k]"],
    P: ["T NAME[R][COUNT]", "NAME[j][k]"],
    PS2: ["struct { T value; int other; } NAME[R][COUNT]", "NAME[j][k].value"],
    L: ["struct { int id; T v[R]; } *NAME[COUNT]", "NAME[k]->v[j]"],
    LS2: ["struct { int id; struct { T value; int other; } v[R]; } *NAME[COUNT]", "NAME[k]->v[j].value"],
};
const MATRIX_DATA = {
    "": ["T NAME[COUNT][R][C]", "NAME[k][i][j]"],
    S2: ["T NAME[COUNT][C][R]", "NAME[k][j][i]"],
    P: ["T NAME[R][C][COUNT]", "NAME[i][j][k]"],
    PS2: ["struct { T value; int other; } NAME[R][C][COUNT]", "NAME[i][j][k].value"],
    L: ["struct { int id; T m[R][C]; } *NAME[COUNT]", "NAME[k]->m[i][j]"],
    LS2: ["struct { int id; T m[C][R]; } *NAME[COUNT]", "NAME[k]->m[j][i]"],
};
const ONE_VECTOR_DATA = {
    "": ["T NAME[R]", "NAME[j]"], L: ["T NAME[R]", "NAME[j]"],
    S2: ["T NAME[R][2]", "NAME[j][0]"], LS2: ["T NAME[R][2]", "NAME[j][0]"],
    P: ["T *NAME[R]", "*NAME[j]"], PS2: ["T *NAME[R]", "*NAME[j]"],
};
const ONE_MATRIX_DATA = {
    "": ["T NAME[R][C]", "NAME[i][j]"], L: ["T NAME[R][C]", "NAME[i][j]"],
    S2: ["T NAME[C][R]", "NAME[j][i]"], LS2: ["T NAME[C][R]", "NAME[j][i]"],
    P: ["T *NAME[R][C]", "*NAME[i][j]"], PS2: ["T *NAME[R][C]", "*NAME[i][j]"],
};

// LoadIdentity takes no row stride below the length of a row.
const IDENTITY_DATA = {
    S2: ["struct { T value; int other; } NAME[COUNT][R][C]", "NAME[k][i][j].value"],
    LS2: ["struct { int id; struct { T value; int other; } m[R][C]; } *NAME[COUNT]", "NAME[k]->m[i][j].value"],
};

function dataTemplate(member, operand) {
    if (member.operation === "LoadIdentity" && IDENTITY_DATA[operand.layout]) {
        return IDENTITY_DATA[operand.layout];
    }
    const many = isArray(member);
    const matrix = operand.kind[0] === "m" || (operand.kind === "packed" && member.descriptor[0] === "m");
    if (operand.kind === "scalar") {
        return many ? ["T NAME[COUNT]", "NAME[k]"] : ["T NAME", "NAME"];
    }
    if (operand.kind.includes("a") && operand.kind !== "packed") {
        return (matrix ? MATRIX_DATA : VECTOR_DATA)[operand.layout];
    }
    if (operand.kind === "packed" && many) {
        return (matrix ? MATRIX_DATA : VECTOR_DATA)[""];
    }
    return (matrix ? ONE_MATRIX_DATA : ONE_VECTOR_DATA)[operand.kind === "packed" ? "" : operand.layout];
}

// Each operand with its shape, its declaration and its element as the sample writes them.
function sampleData(member) {
    const { shapes, given } = shapesOf(member);
    const operands = operandsOf(member).map((operand) => {
        const name = sampleName(member, operand), [rows, columns] = shapes[operand.name];
        const words = { T: TYPE_NAMES[member.type], NAME: name, R: rows, C: columns ?? rows };
        const [declared, element] = dataTemplate(member, operand).map((text) =>
            text.replace(/\b(T|NAME|R|C)\b/g, (word) => words[word]));
        return { ...operand, sample: name, rows, columns: columns ?? rows, declaration: declared, element };
    });
    return { operands, given };
}

// ---- addresses

// The element with numbers for its indices.
function at(element, indices) {
    return element.replace(/\b[kij]\b(?!\s*\()/g, (word) => (word in indices ? indices[word] : word));
}

function addressOf(element) {
    return `&${element.trim()}`.replace(/^&\s*\*/, "");
}

// Bytes from one value of an index to the next.
function stride(element, index) {
    const place = new RegExp(`\\[\\s*${index}\\s*\\]`).exec(element);
    const zero = { k: 0, i: 0, j: 0 };
    if (place) {
        return `sizeof ${at(element.slice(0, place.index).trim().replace(/^\*/, ""), zero)}[0]`;
    }
    if (!new RegExp(`\\b${index}\\b`).test(element)) {
        return "0";
    }
    const step = addressOf(at(element, { ...zero, [index]: 1 })), start = addressOf(at(element, zero));
    return `(int32_t)((const char *)${step} - (const char *)${start})`;
}

// What an element cannot be in its layout, in words; empty where it can.
function complaint(member, operand, element) {
    const missing = indicesOf(member, operand).filter((index) => !new RegExp(`\\b${index}\\b`).test(element));
    const texts = { k: "object k", i: "row i", j: "element j" };
    if (element.includes(",") || missing.length === 0) {
        return layoutComplaint(operand, element.trim());
    }
    if (missing[0] === "k" && missing.length === 1 && operand.name !== "dst") {
        return operand.layout === "P" ? "P steps on from object to object. One for all objects: choose PS2, whose object stride may be 0."
            : "One for all objects.";
    }
    return `Write ${missing.map((index) => texts[index]).join(" and ")}.`;
}

function layoutComplaint(operand, element) {
    const last = /\[\s*([kij])\s*\]$/.exec(element);
    const array = /a/.test(operand.kind.replace("scalar", "").replace("packed", ""));
    if ((operand.layout === "" || operand.layout === "L") && /j/.test(element) && !(last && last[1] === "j") &&
        !["scalar", "packed"].includes(operand.kind)) {
        return "In this layout elements are adjacent: [j] comes last. Where it does not, choose a layout with strided elements.";
    }
    if (array && operand.layout === "P" && !element.includes(",") && !(last && last[1] === "k")) {
        return "In P the objects lie side by side: [k] comes last. Where it does not, choose PS2.";
    }
    if (array && (operand.layout === "" || operand.layout === "S2") && /\[\s*k\s*\]\s*->/.test(element)) {
        return "Objects behind pointers have no stride between them: choose L or LS2.";
    }
    return "";
}

// The indices that an operand's element has.
function indicesOf(member, operand) {
    const matrix = operand.kind[0] === "m" || (operand.kind === "packed" && member.descriptor[0] === "m");
    const elements = operand.kind === "scalar" ? [] : matrix ? ["i", "j"] : ["j"];
    const many = operand.kind.replace(/T$/, "").endsWith("a") || (["scalar", "packed"].includes(operand.kind) && isArray(member));
    return [...(many ? ["k"] : []), ...elements];
}

// ---- tables

// The statements that fill an operand's table. `transposed`: with the entries of the transposed matrix.
function tableSetup(member, operand, element, transposed = false) {
    const constant = operand.name === "dst" ? "" : "const ", type = TYPE_NAMES[member.type];
    const table = operand.sample + (transposed ? "Transposed" : "Table");
    const listed = element.split(",").map((part) => part.trim()).filter(Boolean);
    const loop = (index, end) => `for (int ${index} = 0; ${index} < ${end}; ${index}++)`;
    if (operand.layout.startsWith("L")) {
        return [`${constant}${type} *${table}[COUNT];`, loop("k", "COUNT"),
            `    ${table}[k] = ${addressOf(at(element, { i: 0, j: 0 }))};`];
    }
    if (listed.length > 1) {
        const entries = listed.map((part) => addressOf(at(part, { k: 0, i: 0, j: 0 })));
        return [`${constant}${type} *const ${table}[] = {${entries.join(", ")}};`];
    }
    const entry = addressOf(at(element, { k: 0 })), place = transposed ? `j * ${operand.rows} + i` : `i * ${operand.columns} + j`;
    if (operand.kind[0] !== "m") {
        return [`${constant}${type} *${table}[${operand.rows}];`, loop("j", operand.rows), `    ${table}[j] = ${entry};`];
    }
    const used = `${operand.rows} * ${operand.columns}`;
    const fill = [`${loop("i", operand.rows)}`, `    ${loop("j", operand.columns)}`, `        ${table}[${place}] = ${entry};`];
    // A product of any shape tests as many entries for null as its inner dimension squared, used or not.
    if (operand.name === "dst" && member.operation === "Mul" && shapesOf(member).given.src1Width === "INNER") {
        return [`${constant}${type} *${table}[${used} + INNER * INNER];`, ...fill,
            `for (int e = ${used}; e < INNER * INNER; e++)`, `    ${table}[e] = ${table}[0];`];
    }
    return [`${constant}${type} *${table}[${used}];`, ...fill];
}

// The statements for the tables that a call names.
function tablesOf(member, data, elements, call) {
    return data.operands.flatMap((operand) => ["Table", "Transposed"].flatMap((suffix) =>
        (new RegExp(`\\b${operand.sample}${suffix}\\b`).test(call)
            ? tableSetup(member, operand, elements[operand.name] || operand.element, suffix === "Transposed") : [])));
}

// ---- the call

// The text of every argument. `elements` has what the caller wrote for an operand, `count` for the number of objects.
function argumentTexts(member, data, elements, count) {
    const operands = Object.fromEntries(data.operands.map((operand) => [operand.name, operand]));
    return member.arguments.map((argument) => {
        const operand = operands[argument.operand], element = operand && (elements[operand.name] || operand.element);
        switch (argument.kind) {
            case "pointer": return addressOf(at(element, { k: 0, i: 0, j: 0 }));
            case "table": return `${operand.sample}Table`;
            case "shift": return "0";
            case "objStride": return argument.unread ? "0" : stride(element, "k");
            case "rowStride": return stride(element, "i");
            case "elemStride": return stride(element, "j");
            case "dimension": return data.given[argument.name];
            case "count": return countFor(member, count);
            default: return argument.name;
        }
    });
}

function helperDeclarations(member, data) {
    const names = new Set(member.arguments.map((argument) => argument.name)), type = TYPE_NAMES[member.type];
    const order = member.size ? member.size[0] : data.given.height ?? data.given.n;
    const perObject = isArray(member) && !/^mva?$/.test(member.descriptor) ? "COUNT * " : "";
    const lines = member.arguments.filter((argument) => argument.kind === "constant").map((argument) =>
        `${type} ${argument.name} = ${type === "float" ? "0.5f" : "0.5"};`);
    if (names.has("pivotIndex")) {
        lines.push(`uint32_t pivotIndex[${perObject}${order}];`);
    }
    if (names.has("scratch")) {
        lines.push(isQr(member) ? `${type} scratch[${order}];` : `${type} scratch[${order} * ${order} + ${order}];`);
    }
    return lines;
}

function enumeration(member, lines, count) {
    const sizes = { ...SIZES, ...(isQr(member) ? TALL_SIZES : {}) }, text = lines.join("\n");
    const used = Object.keys(sizes).filter((name) => new RegExp(`\\b${name}\\b`).test(text));
    const listed = used.map((name) => `${name} = ${sizes[name]}`);
    if (isArray(member) && (count === "COUNT" || /\bCOUNT\b/.test(text))) {
        listed.unshift("COUNT = 1000");
    }
    return listed.length ? [`enum { ${listed.join(", ")} };`] : [];
}

// `head(text, text, ...)`, a line per operand.
function callText(head, member, texts) {
    const lines = [];
    member.arguments.forEach((argument, index) => {
        const group = argument.operand || "rest";
        const last = lines[lines.length - 1];
        if (last && last.group === group) {
            last.texts.push(texts[index]);
        } else {
            lines.push({ group, texts: [texts[index]] });
        }
    });
    const joined = lines.map((line) => line.texts.join(", "));
    const unbroken = `${head}(${joined.join(", ")});`;
    return unbroken.length <= 90 ? unbroken : `${head}(\n    ${joined.join(",\n    ")});`;
}

function callHead(member) {
    if (member.result === "void") {
        return member.name;
    }
    return member.operation === "GetLibVersion" ? `const ZelmLibVersion *version = ${member.name}`
        : `${member.result} status = ${member.name}`;
}

// One call for many objects, but for identities, whose ones run on from object to object.
function countFor(member, count) {
    return member.operation === "LoadIdentity" ? "1" : count;
}

// The sample in two parts: the data as this page imagines them, and what the caller writes.
function sample(member, elements = {}, count = "COUNT") {
    const data = sampleData(member);
    const own = data.operands.filter((operand) => !elements[operand.name] || elements[operand.name] === operand.element);
    const text = callText(callHead(member), member, argumentTexts(member, data, elements, count));
    const call = [...tablesOf(member, data, elements, text), text];
    const declared = [...own.map((operand) => `${operand.declaration};`), ...helperDeclarations(member, data)];
    return { declarations: [...enumeration(member, [...declared, ...call], count), ...declared].join("\n"), call: call.join("\n") };
}

// The call of the form to use instead, with the same data; empty where the note has to do.
function insteadCall(member, elements = {}, count = "COUNT") {
    const { instead } = member.note;
    if (!instead || !instead.arguments) {
        return "";
    }
    const data = sampleData(member), texts = argumentTexts(member, data, elements, count);
    const given = Object.fromEntries(member.arguments.map((argument, index) => [argument.name, texts[index]]));
    for (const operand of data.operands) {
        given[`${operand.name}Transposed`] = `${operand.sample}Transposed`;
    }
    const target = FUNCTIONS.get(instead.name);
    const written = instead.arguments.map((text) => text.replace(/\b[a-zA-Z]\w*\b/g, (word) => {
        const value = given[word] ?? word;
        return text === word || /^\w+$/.test(value) ? value : `(${value})`;
    }));
    const text = callText(callHead(target), target, written);
    return [...tablesOf(member, data, elements, text), text].join("\n");
}
