// Cuts a stack of any size and strides into stretches that one call of the library can take.
#pragma once

#include "operand.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <vector>

namespace zelmpy {

constexpr npy_intp longestStretch = npy_intp{1} << 24; // objects: far inside 32 bits
constexpr npy_intp stagedStretch = 64;

enum class InPlace { safe, unsafe };

inline bool fits(npy_intp stride) {
    return stride >= std::numeric_limits<std::int32_t>::min() &&
           stride <= std::numeric_limits<std::int32_t>::max();
}

template <class... Sizes>
bool tooLong(Sizes... sizes) {
    return (... || !fits(sizes));
}

inline npy_intp itemSize(const Operand &operand) {
    return operand.type == NPY_DOUBLE ? 8 : 4;
}

// Dense copy of a stretch, and back.
inline void copyStretch(const Operand &from, const Operand &to, npy_intp count) {
    const auto size = static_cast<std::size_t>(itemSize(from));
    for (npy_intp k = 0; k < count; ++k) {
        for (npy_intp i = 0; i < from.rows; ++i) {
            for (npy_intp j = 0; j < from.columns; ++j) {
                std::memcpy(&to.at<char>(k, i, j), &from.at<char>(k, i, j), size);
            }
        }
    }
}

// An operand that the library cannot work on where it lies: its strides exceed 32 bits, or it is a result
// that NumPy has let coincide with a source.
struct Staged {
    std::size_t index;
    std::vector<char> buffer;
};

template <std::size_t N, class Work>
void inStagedStretches(const std::array<Operand, N> &operands, std::size_t inputs, npy_intp count,
                       npy_intp longest, std::vector<Staged> &staged, Work &work) {
    const npy_intp stretch = std::min(longest, stagedStretch);
    for (npy_intp first = 0; first < count; first += stretch) {
        const npy_intp objects = std::min(stretch, count - first);
        std::array<Operand, N> local;
        std::transform(operands.begin(), operands.end(), local.begin(),
                       [first](const Operand &operand) { return operand.from(first); });
        const std::array<Operand, N> original = local;
        for (Staged &stage : staged) {
            Operand &operand = local[stage.index];
            const npy_intp size = itemSize(operand);
            stage.buffer.resize(static_cast<std::size_t>(objects * operand.rows * operand.columns * size));
            operand.data = stage.buffer.data();
            operand.element = size;
            operand.row = operand.columns * size;
            operand.object = operand.rows * operand.row;
            copyStretch(original[stage.index], operand, objects);
        }
        work(local, objects);
        for (const Staged &stage : staged) {
            if (stage.index >= inputs) {
                copyStretch(local[stage.index], original[stage.index], objects);
            }
        }
    }
}

// Calls work(operands, count) for stretches of at most `longest` objects, whose strides all fit 32 bits and
// whose results (the operands from number `inputs` on) don't coincide with a source unless that is safe.
template <std::size_t N, class Work>
void inStretches(const std::array<Operand, N> &operands, std::size_t inputs, npy_intp count, npy_intp longest,
                 InPlace inPlace, Work work) {
    if (count == 1) { // the stride from object to object can be anything
        std::array<Operand, N> single = operands;
        for (Operand &operand : single) {
            operand.object = 0;
        }
        return inStretchesOf(single, inputs, 1, longest, inPlace, work);
    }
    inStretchesOf(operands, inputs, count, longest, inPlace, work);
}

template <std::size_t N, class Work>
void inStretchesOf(const std::array<Operand, N> &operands, std::size_t inputs, npy_intp count,
                   npy_intp longest, InPlace inPlace, Work &work) {
    std::vector<Staged> staged;
    for (std::size_t o = 0; o < N; ++o) {
        const Operand &operand = operands[o];
        bool stage = !fits(operand.object) || !fits(operand.row) || !fits(operand.element);
        for (std::size_t i = 0; o >= inputs && inPlace == InPlace::unsafe && i < inputs; ++i) {
            stage |= operand.data == operands[i].data;
        }
        if (stage) {
            staged.push_back({o, {}});
        }
    }
    if (!staged.empty()) {
        return inStagedStretches(operands, inputs, count, longest, staged, work);
    }
    for (npy_intp first = 0; first < count; first += longest) {
        std::array<Operand, N> local = operands;
        for (Operand &operand : local) {
            operand.data += first * operand.object;
        }
        work(local, std::min(longest, count - first));
    }
}

} // namespace zelmpy
