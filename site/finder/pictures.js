"use strict";

// The pictures of the layouts: three objects a, b, c (or one) of three elements, and what the arguments name.

const LAYOUT_TEXTS = {
    "": ["standard", "elements adjacent, objects a stride apart", "elements adjacent"],
    S2: ["S2", "elements a stride apart as well", "elements a stride apart"],
    P: ["P", "one pointer per element position, objects side by side", "one pointer per element"],
    PS2: ["PS2", "one pointer per element position, objects a stride apart", "one pointer per element"],
    L: ["L", "one pointer per object, elements adjacent", ""],
    LS2: ["LS2", "one pointer per object, elements a stride apart", ""],
};

const CELL = 20;
const TABLE_LAYOUTS = { P: "positions", PS2: "positions", L: "objects", LS2: "objects" };

function cellSvg(x, y, object, element) {
    const text = `${"abc"[object]}${element}`;
    return `<rect class="o${object}" x="${x}" y="${y}" width="${CELL}" height="${CELL}"/>` +
        `<text class="t${object}" x="${x + CELL / 2}" y="${y + 14}" text-anchor="middle">${text}</text>`;
}

function gapSvg(x, y, width) {
    return `<rect class="gap" x="${x}" y="${y}" width="${width}" height="${CELL}"/>`;
}

// A row of cells with gaps behind those that ask for one; the last gap of a row is left out.
function rowSvg(x, y, cells) {
    let out = "";
    cells.forEach(([object, element, gap], index) => {
        out += cellSvg(x, y, object, element);
        x += CELL;
        if (gap && index < cells.length - 1) {
            out += gapSvg(x, y, gap);
            x += gap;
        }
    });
    return out;
}

function pointerSvg(y, index) {
    return `<rect class="pointer" x="2" y="${y}" width="34" height="${CELL}"/>` +
        `<text x="19" y="${y + 14}" text-anchor="middle">[${index}]</text>` +
        `<path class="arrow" d="M36 ${y + CELL / 2} h22 m-5 -3 l5 3 l-5 3"/>`;
}

function pictureSvg(layout, many) {
    const objects = many ? [0, 1, 2] : [0];
    const strided = layout === "S2" || layout === "LS2";
    let out = "", height = CELL + 4, width = 62;
    if (TABLE_LAYOUTS[layout]) {
        const positions = TABLE_LAYOUTS[layout] === "positions";
        [0, 1, 2].forEach((line) => {
            const y = 2 + line * (CELL + 5);
            const cells = positions ? objects.map((k) => [k, line, layout === "PS2" ? 14 : 0])
                : [0, 1, 2].map((j) => [line, j, strided ? 14 : 0]);
            out += pointerSvg(y, line) + rowSvg(60, y, cells);
            width = Math.max(width, 60 + cells.length * CELL + (cells.length - 1) * cells[0][2] + 2);
        });
        height = 3 * (CELL + 5);
    } else {
        const cells = objects.flatMap((k) => [0, 1, 2].map((j) => [k, j, strided ? 8 : j === 2 ? CELL : 0]));
        out = `<path class="arrow" d="M2 ${2 + CELL / 2} h16 m-5 -3 l5 3 l-5 3"/>` + rowSvg(20, 2, cells);
        width = 22 + cells.length * CELL + cells.slice(0, -1).reduce((sum, cell) => sum + cell[2], 0);
    }
    return `<svg viewBox="0 0 ${width} ${height}" width="${width}" height="${height}" aria-hidden="true">${out}</svg>`;
}
