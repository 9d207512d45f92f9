"use strict";

// Finding wants by words: a text is cut into words without their endings, and a want is as good as the words that it has.

const EMPTY_WORDS = new Set(["a", "an", "the", "of", "to", "for", "in", "with", "by", "and", "or", "my", "i", "is", "how", "do",
    "many", "all", "each", "every", "on", "from", "into", "want", "array", "arrays", "batch", "batched", "small", "two", "one", "np",
    "numpy", "scipy", "linalg", "eigen", "glm", "blas", "lapack"]);

// Words that choose something else than the operation.
const CHOOSING_WORDS = {
    float: { type: "32f" }, single: { type: "32f" }, float32: { type: "32f" }, "32f": { type: "32f" }, f32: { type: "32f" },
    double: { type: "64f" }, float64: { type: "64f" }, "64f": { type: "64f" }, f64: { type: "64f" },
};

function stem(word) {
    if (word === "matrices") {
        return "matrix";
    }
    return word.replace(/[’']s?$/, "").replace(/is(e|es|ed|ing|ation)$/, "iz$1").replace(/(ation|ing|ed|es|s|e)$/, "");
}

// Names of other libraries come with their prefixes: np.linalg.inv, glm::inverse, cblas_daxpy.
function wordsIn(text) {
    return text.toLowerCase().replace(/\b(cblas|lapacke)_/g, "").split(/[\s,;/.:()]+/).filter((word) => word && !EMPTY_WORDS.has(word));
}

// What a text says of type and size.
function chosenBy(text) {
    const chosen = {};
    for (const word of wordsIn(text)) {
        Object.assign(chosen, CHOOSING_WORDS[word]);
        const size = /^([3-6])[x×*]([13-6])$/.exec(word);
        if (size && (size[2] === "1" || size[1] === size[2])) {
            chosen.size = `${size[1]}x${size[2]}`;
        }
    }
    return chosen;
}

const compact = (text) => text.toLowerCase().replace(/[\s·*⋅]/g, "").replace(/−/g, "-");

function wordScore(word, want) {
    const stemmed = stem(word);
    let best = 0;
    for (const [text, weight] of [[`${want.operation} ${want.title}`, 3], [want.words, 2], [want.group, 0.5]]) {
        for (const other of wordsIn(text)) {
            const same = other === word || (stemmed.length > 1 && stem(other) === stemmed);
            const begins = word.length > 2 && (other.startsWith(word) || (other.length > 3 && word.startsWith(other)));
            best = Math.max(best, same ? weight : begins ? weight / 2 : 0);
        }
    }
    return best;
}

// How many wants have a word: one that most of them have says little.
function commonness(word) {
    return Math.max(1, WANTS.filter((want) => wordScore(word, want) > 0).length);
}

// A phrase that stands among the words of a want as it is counts more than its words one by one.
function score(text, want) {
    const words = wordsIn(text).filter((word) => !CHOOSING_WORDS[word] && !/^[3-6][x×*][1-6]$/.test(word));
    if (words.length === 0) {
        return 0;
    }
    const phrase = words.map(stem).join(" ");
    const phrases = want.words.split(",").concat(want.title, want.operation).map((part) => wordsIn(part).map(stem).join(" "));
    const whole = phrases.includes(phrase) ? 4 : 0;
    const formula = compact(want.formula) === compact(text) ? 6 : 0;
    const scores = words.map((word) => wordScore(word, want) / Math.sqrt(commonness(word)));
    const found = scores.filter(Boolean).length / words.length;
    return formula + whole + found * scores.reduce((sum, value) => sum + value, 0);
}

function wantsFor(text, limit) {
    const ranked = WANTS.map((want) => [score(text, want), want]).filter(([value]) => value > 0);
    return ranked.sort((a, b) => b[0] - a[0]).slice(0, limit).map(([, want]) => want);
}
