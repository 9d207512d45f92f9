/** @file
 * The rows of the grid: which exported function serves which operands. Written by cpp/rows.py from the
 * catalogue.
 */
// clang-format off
#pragma once

#include <cstdint>
#include <type_traits>

#include "zelm.h"
#include "zelm/view.hpp"

// The operations call some run-time products whose bounds are those of square matrices, in ways that make them those of
// every product (products.hpp).
#if defined(__has_attribute)
#if __has_attribute(warning)
#define ZELM_CPP_QUIET
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wattribute-warning"
#endif
#endif

namespace zelm::detail {

enum class Op {
    Add,
    CholeskyBackSubst,
    CholeskyDecomp,
    Copy,
    CrossProduct,
    Det,
    DotProduct,
    Extract,
    FrobNorm,
    Gaxpy,
    Invert,
    L2Norm,
    LComb,
    LUBackSubst,
    LUDecomp,
    LoadIdentity,
    Mul,
    QRBackSubst,
    QRDecomp,
    Saxpy,
    Sub,
    Trace,
    Transpose
};

enum class Kind { none, v, va, m, ma, mT, maT, c };

/** The dimensions under their names in the C functions. */
struct Sizes {
    std::uint32_t len = 0, width = 0, height = 0, n = 0, src1Width = 0, src1Height = 0, src2Width = 0, src2Height = 0, src2Len = 0;
};

/** A test to make ahead of a call, with another form where it fails. */
enum class Guard {
    none,
    aligned_stores, // the objects of dst must lie alike modulo 16, else the form with element strides
    tested_by_rows  // the width must not be below the height, else the array form with one object
};

struct Choice {
    Layout layout;
    int size; // 0: the run-time form
    Guard guard;
};

template <Op, Kind, Kind = Kind::none>
struct Row {
    static constexpr bool exists = false;
};

struct Regular {
    static constexpr bool exists = true;
    static constexpr bool may_fail = false;

    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        return {wanted, N, Guard::none};
    }
};

ZELM_INLINE constexpr std::int32_t word(std::ptrdiff_t bytes)
{
    return static_cast<std::int32_t>(bytes);
}
ZELM_INLINE constexpr std::int32_t word(std::uint32_t size)
{
    return static_cast<std::int32_t>(size);
}

template <class T, int N, class F, class D>
ZELM_INLINE constexpr auto pick(F f, D d)
{
    if constexpr (std::is_same_v<T, float>) {
        return f;
    } else {
        return d;
    }
}

template <class T, int N, class F, class D>
ZELM_INLINE constexpr auto pick(F f3, F f4, F f5, F f6, D d3, D d4, D d5, D d6)
{
    constexpr int i = N - 3;
    if constexpr (std::is_same_v<T, float>) {
        return i == 0 ? f3 : i == 1 ? f4 : i == 2 ? f5 : f6;
    } else {
        return i == 0 ? d3 : i == 1 ? d4 : i == 2 ? d5 : d6;
    }
}

// dst[j] = src1[j] + src2[j]
template <>
struct Row<Op::Add, Kind::v, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vv_32f, zelmAdd_vv_64f)
                    (src1.first, src2.first, dst.first, size.len);
            } else {
                return pick<T, N>(zelmAdd_vv_32f_3x1, zelmAdd_vv_32f_4x1, zelmAdd_vv_32f_5x1, zelmAdd_vv_32f_6x1,
                    zelmAdd_vv_64f_3x1, zelmAdd_vv_64f_4x1, zelmAdd_vv_64f_5x1, zelmAdd_vv_64f_6x1)
                    (src1.first, src2.first, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vv_32f_S2, zelmAdd_vv_64f_S2)
                    (src1.first, word(src1.element), src2.first, word(src2.element), dst.first, word(dst.element),
                        size.len);
            } else {
                return pick<T, N>(zelmAdd_vv_32f_3x1_S2, zelmAdd_vv_32f_4x1_S2, zelmAdd_vv_32f_5x1_S2,
                    zelmAdd_vv_32f_6x1_S2, zelmAdd_vv_64f_3x1_S2, zelmAdd_vv_64f_4x1_S2, zelmAdd_vv_64f_5x1_S2,
                    zelmAdd_vv_64f_6x1_S2)
                    (src1.first, word(src1.element), src2.first, word(src2.element), dst.first, word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vv_32f_P, zelmAdd_vv_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len);
            } else {
                return pick<T, N>(zelmAdd_vv_32f_3x1_P, zelmAdd_vv_32f_4x1_P, zelmAdd_vv_32f_5x1_P,
                    zelmAdd_vv_32f_6x1_P, zelmAdd_vv_64f_3x1_P, zelmAdd_vv_64f_4x1_P, zelmAdd_vv_64f_5x1_P,
                    zelmAdd_vv_64f_6x1_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[j] = src[j] + val
template <>
struct Row<Op::Add, Kind::v, Kind::c> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vc_32f, zelmAdd_vc_64f)
                    (src.first, val, dst.first, size.len);
            } else {
                return pick<T, N>(zelmAdd_vc_32f_3x1, zelmAdd_vc_32f_4x1, zelmAdd_vc_32f_5x1, zelmAdd_vc_32f_6x1,
                    zelmAdd_vc_64f_3x1, zelmAdd_vc_64f_4x1, zelmAdd_vc_64f_5x1, zelmAdd_vc_64f_6x1)
                    (src.first, val, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vc_32f_S2, zelmAdd_vc_64f_S2)
                    (src.first, word(src.element), val, dst.first, word(dst.element), size.len);
            } else {
                return pick<T, N>(zelmAdd_vc_32f_3x1_S2, zelmAdd_vc_32f_4x1_S2, zelmAdd_vc_32f_5x1_S2,
                    zelmAdd_vc_32f_6x1_S2, zelmAdd_vc_64f_3x1_S2, zelmAdd_vc_64f_4x1_S2, zelmAdd_vc_64f_5x1_S2,
                    zelmAdd_vc_64f_6x1_S2)
                    (src.first, word(src.element), val, dst.first, word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vc_32f_P, zelmAdd_vc_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len);
            } else {
                return pick<T, N>(zelmAdd_vc_32f_3x1_P, zelmAdd_vc_32f_4x1_P, zelmAdd_vc_32f_5x1_P,
                    zelmAdd_vc_32f_6x1_P, zelmAdd_vc_64f_3x1_P, zelmAdd_vc_64f_4x1_P, zelmAdd_vc_64f_5x1_P,
                    zelmAdd_vc_64f_6x1_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src1[k][j] + src2[j]
template <>
struct Row<Op::Add, Kind::va, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vav_32f, zelmAdd_vav_64f)
                    (src1.first, word(src1.object), src2.first, dst.first, word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vav_32f_3x1, zelmAdd_vav_32f_4x1, zelmAdd_vav_32f_5x1,
                    zelmAdd_vav_32f_6x1, zelmAdd_vav_64f_3x1, zelmAdd_vav_64f_4x1, zelmAdd_vav_64f_5x1,
                    zelmAdd_vav_64f_6x1)
                    (src1.first, word(src1.object), src2.first, dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vav_32f_S2, zelmAdd_vav_64f_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.element), dst.first,
                        word(dst.object), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vav_32f_3x1_S2, zelmAdd_vav_32f_4x1_S2, zelmAdd_vav_32f_5x1_S2,
                    zelmAdd_vav_32f_6x1_S2, zelmAdd_vav_64f_3x1_S2, zelmAdd_vav_64f_4x1_S2, zelmAdd_vav_64f_5x1_S2,
                    zelmAdd_vav_64f_6x1_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.element), dst.first,
                        word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vav_32f_P, zelmAdd_vav_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vav_32f_3x1_P, zelmAdd_vav_32f_4x1_P, zelmAdd_vav_32f_5x1_P,
                    zelmAdd_vav_32f_6x1_P, zelmAdd_vav_64f_3x1_P, zelmAdd_vav_64f_4x1_P, zelmAdd_vav_64f_5x1_P,
                    zelmAdd_vav_64f_6x1_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vav_32f_L, zelmAdd_vav_64f_L)
                    (src1.table, word(src1.shift), src2.first, dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vav_32f_3x1_L, zelmAdd_vav_32f_4x1_L, zelmAdd_vav_32f_5x1_L,
                    zelmAdd_vav_32f_6x1_L, zelmAdd_vav_64f_3x1_L, zelmAdd_vav_64f_4x1_L, zelmAdd_vav_64f_5x1_L,
                    zelmAdd_vav_64f_6x1_L)
                    (src1.table, word(src1.shift), src2.first, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vav_32f_PS2, zelmAdd_vav_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vav_32f_3x1_PS2, zelmAdd_vav_32f_4x1_PS2, zelmAdd_vav_32f_5x1_PS2,
                    zelmAdd_vav_32f_6x1_PS2, zelmAdd_vav_64f_3x1_PS2, zelmAdd_vav_64f_4x1_PS2,
                    zelmAdd_vav_64f_5x1_PS2, zelmAdd_vav_64f_6x1_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vav_32f_LS2, zelmAdd_vav_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.first, word(src2.element), dst.table,
                        word(dst.shift), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vav_32f_3x1_LS2, zelmAdd_vav_32f_4x1_LS2, zelmAdd_vav_32f_5x1_LS2,
                    zelmAdd_vav_32f_6x1_LS2, zelmAdd_vav_64f_3x1_LS2, zelmAdd_vav_64f_4x1_LS2,
                    zelmAdd_vav_64f_5x1_LS2, zelmAdd_vav_64f_6x1_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.first, word(src2.element), dst.table,
                        word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src[k][j] + val
template <>
struct Row<Op::Add, Kind::va, Kind::c> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vac_32f, zelmAdd_vac_64f)
                    (src.first, word(src.object), val, dst.first, word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vac_32f_3x1, zelmAdd_vac_32f_4x1, zelmAdd_vac_32f_5x1,
                    zelmAdd_vac_32f_6x1, zelmAdd_vac_64f_3x1, zelmAdd_vac_64f_4x1, zelmAdd_vac_64f_5x1,
                    zelmAdd_vac_64f_6x1)
                    (src.first, word(src.object), val, dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vac_32f_S2, zelmAdd_vac_64f_S2)
                    (src.first, word(src.object), word(src.element), val, dst.first, word(dst.object),
                        word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vac_32f_3x1_S2, zelmAdd_vac_32f_4x1_S2, zelmAdd_vac_32f_5x1_S2,
                    zelmAdd_vac_32f_6x1_S2, zelmAdd_vac_64f_3x1_S2, zelmAdd_vac_64f_4x1_S2, zelmAdd_vac_64f_5x1_S2,
                    zelmAdd_vac_64f_6x1_S2)
                    (src.first, word(src.object), word(src.element), val, dst.first, word(dst.object),
                        word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vac_32f_P, zelmAdd_vac_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vac_32f_3x1_P, zelmAdd_vac_32f_4x1_P, zelmAdd_vac_32f_5x1_P,
                    zelmAdd_vac_32f_6x1_P, zelmAdd_vac_64f_3x1_P, zelmAdd_vac_64f_4x1_P, zelmAdd_vac_64f_5x1_P,
                    zelmAdd_vac_64f_6x1_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vac_32f_L, zelmAdd_vac_64f_L)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vac_32f_3x1_L, zelmAdd_vac_32f_4x1_L, zelmAdd_vac_32f_5x1_L,
                    zelmAdd_vac_32f_6x1_L, zelmAdd_vac_64f_3x1_L, zelmAdd_vac_64f_4x1_L, zelmAdd_vac_64f_5x1_L,
                    zelmAdd_vac_64f_6x1_L)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vac_32f_PS2, zelmAdd_vac_64f_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vac_32f_3x1_PS2, zelmAdd_vac_32f_4x1_PS2, zelmAdd_vac_32f_5x1_PS2,
                    zelmAdd_vac_32f_6x1_PS2, zelmAdd_vac_64f_3x1_PS2, zelmAdd_vac_64f_4x1_PS2,
                    zelmAdd_vac_64f_5x1_PS2, zelmAdd_vac_64f_6x1_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vac_32f_LS2, zelmAdd_vac_64f_LS2)
                    (src.table, word(src.shift), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vac_32f_3x1_LS2, zelmAdd_vac_32f_4x1_LS2, zelmAdd_vac_32f_5x1_LS2,
                    zelmAdd_vac_32f_6x1_LS2, zelmAdd_vac_64f_3x1_LS2, zelmAdd_vac_64f_4x1_LS2,
                    zelmAdd_vac_64f_5x1_LS2, zelmAdd_vac_64f_6x1_LS2)
                    (src.table, word(src.shift), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src1[k][j] + src2[k][j]
template <>
struct Row<Op::Add, Kind::va, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vava_32f, zelmAdd_vava_64f)
                    (src1.first, word(src1.object), src2.first, word(src2.object), dst.first, word(dst.object),
                        size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vava_32f_3x1, zelmAdd_vava_32f_4x1, zelmAdd_vava_32f_5x1,
                    zelmAdd_vava_32f_6x1, zelmAdd_vava_64f_3x1, zelmAdd_vava_64f_4x1, zelmAdd_vava_64f_5x1,
                    zelmAdd_vava_64f_6x1)
                    (src1.first, word(src1.object), src2.first, word(src2.object), dst.first, word(dst.object),
                        count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vava_32f_S2, zelmAdd_vava_64f_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vava_32f_3x1_S2, zelmAdd_vava_32f_4x1_S2, zelmAdd_vava_32f_5x1_S2,
                    zelmAdd_vava_32f_6x1_S2, zelmAdd_vava_64f_3x1_S2, zelmAdd_vava_64f_4x1_S2,
                    zelmAdd_vava_64f_5x1_S2, zelmAdd_vava_64f_6x1_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vava_32f_P, zelmAdd_vava_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vava_32f_3x1_P, zelmAdd_vava_32f_4x1_P, zelmAdd_vava_32f_5x1_P,
                    zelmAdd_vava_32f_6x1_P, zelmAdd_vava_64f_3x1_P, zelmAdd_vava_64f_4x1_P, zelmAdd_vava_64f_5x1_P,
                    zelmAdd_vava_64f_6x1_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vava_32f_L, zelmAdd_vava_64f_L)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vava_32f_3x1_L, zelmAdd_vava_32f_4x1_L, zelmAdd_vava_32f_5x1_L,
                    zelmAdd_vava_32f_6x1_L, zelmAdd_vava_64f_3x1_L, zelmAdd_vava_64f_4x1_L, zelmAdd_vava_64f_5x1_L,
                    zelmAdd_vava_64f_6x1_L)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vava_32f_PS2, zelmAdd_vava_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vava_32f_3x1_PS2, zelmAdd_vava_32f_4x1_PS2, zelmAdd_vava_32f_5x1_PS2,
                    zelmAdd_vava_32f_6x1_PS2, zelmAdd_vava_64f_3x1_PS2, zelmAdd_vava_64f_4x1_PS2,
                    zelmAdd_vava_64f_5x1_PS2, zelmAdd_vava_64f_6x1_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_vava_32f_LS2, zelmAdd_vava_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmAdd_vava_32f_3x1_LS2, zelmAdd_vava_32f_4x1_LS2, zelmAdd_vava_32f_5x1_LS2,
                    zelmAdd_vava_32f_6x1_LS2, zelmAdd_vava_64f_3x1_LS2, zelmAdd_vava_64f_4x1_LS2,
                    zelmAdd_vava_64f_5x1_LS2, zelmAdd_vava_64f_6x1_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[j] = src1[j] - src2[j]
template <>
struct Row<Op::Sub, Kind::v, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vv_32f, zelmSub_vv_64f)
                    (src1.first, src2.first, dst.first, size.len);
            } else {
                return pick<T, N>(zelmSub_vv_32f_3x1, zelmSub_vv_32f_4x1, zelmSub_vv_32f_5x1, zelmSub_vv_32f_6x1,
                    zelmSub_vv_64f_3x1, zelmSub_vv_64f_4x1, zelmSub_vv_64f_5x1, zelmSub_vv_64f_6x1)
                    (src1.first, src2.first, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vv_32f_S2, zelmSub_vv_64f_S2)
                    (src1.first, word(src1.element), src2.first, word(src2.element), dst.first, word(dst.element),
                        size.len);
            } else {
                return pick<T, N>(zelmSub_vv_32f_3x1_S2, zelmSub_vv_32f_4x1_S2, zelmSub_vv_32f_5x1_S2,
                    zelmSub_vv_32f_6x1_S2, zelmSub_vv_64f_3x1_S2, zelmSub_vv_64f_4x1_S2, zelmSub_vv_64f_5x1_S2,
                    zelmSub_vv_64f_6x1_S2)
                    (src1.first, word(src1.element), src2.first, word(src2.element), dst.first, word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vv_32f_P, zelmSub_vv_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len);
            } else {
                return pick<T, N>(zelmSub_vv_32f_3x1_P, zelmSub_vv_32f_4x1_P, zelmSub_vv_32f_5x1_P,
                    zelmSub_vv_32f_6x1_P, zelmSub_vv_64f_3x1_P, zelmSub_vv_64f_4x1_P, zelmSub_vv_64f_5x1_P,
                    zelmSub_vv_64f_6x1_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[j] = src[j] - val
template <>
struct Row<Op::Sub, Kind::v, Kind::c> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vc_32f, zelmSub_vc_64f)
                    (src.first, val, dst.first, size.len);
            } else {
                return pick<T, N>(zelmSub_vc_32f_3x1, zelmSub_vc_32f_4x1, zelmSub_vc_32f_5x1, zelmSub_vc_32f_6x1,
                    zelmSub_vc_64f_3x1, zelmSub_vc_64f_4x1, zelmSub_vc_64f_5x1, zelmSub_vc_64f_6x1)
                    (src.first, val, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vc_32f_S2, zelmSub_vc_64f_S2)
                    (src.first, word(src.element), val, dst.first, word(dst.element), size.len);
            } else {
                return pick<T, N>(zelmSub_vc_32f_3x1_S2, zelmSub_vc_32f_4x1_S2, zelmSub_vc_32f_5x1_S2,
                    zelmSub_vc_32f_6x1_S2, zelmSub_vc_64f_3x1_S2, zelmSub_vc_64f_4x1_S2, zelmSub_vc_64f_5x1_S2,
                    zelmSub_vc_64f_6x1_S2)
                    (src.first, word(src.element), val, dst.first, word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vc_32f_P, zelmSub_vc_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len);
            } else {
                return pick<T, N>(zelmSub_vc_32f_3x1_P, zelmSub_vc_32f_4x1_P, zelmSub_vc_32f_5x1_P,
                    zelmSub_vc_32f_6x1_P, zelmSub_vc_64f_3x1_P, zelmSub_vc_64f_4x1_P, zelmSub_vc_64f_5x1_P,
                    zelmSub_vc_64f_6x1_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[j] = val - src[j]
template <>
struct Row<Op::Sub, Kind::c, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_cv_32f, zelmSub_cv_64f)
                    (src.first, val, dst.first, size.len);
            } else {
                return pick<T, N>(zelmSub_cv_32f_3x1, zelmSub_cv_32f_4x1, zelmSub_cv_32f_5x1, zelmSub_cv_32f_6x1,
                    zelmSub_cv_64f_3x1, zelmSub_cv_64f_4x1, zelmSub_cv_64f_5x1, zelmSub_cv_64f_6x1)
                    (src.first, val, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_cv_32f_S2, zelmSub_cv_64f_S2)
                    (src.first, word(src.element), val, dst.first, word(dst.element), size.len);
            } else {
                return pick<T, N>(zelmSub_cv_32f_3x1_S2, zelmSub_cv_32f_4x1_S2, zelmSub_cv_32f_5x1_S2,
                    zelmSub_cv_32f_6x1_S2, zelmSub_cv_64f_3x1_S2, zelmSub_cv_64f_4x1_S2, zelmSub_cv_64f_5x1_S2,
                    zelmSub_cv_64f_6x1_S2)
                    (src.first, word(src.element), val, dst.first, word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_cv_32f_P, zelmSub_cv_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len);
            } else {
                return pick<T, N>(zelmSub_cv_32f_3x1_P, zelmSub_cv_32f_4x1_P, zelmSub_cv_32f_5x1_P,
                    zelmSub_cv_32f_6x1_P, zelmSub_cv_64f_3x1_P, zelmSub_cv_64f_4x1_P, zelmSub_cv_64f_5x1_P,
                    zelmSub_cv_64f_6x1_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src1[k][j] - src2[j]
template <>
struct Row<Op::Sub, Kind::va, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vav_32f, zelmSub_vav_64f)
                    (src1.first, word(src1.object), src2.first, dst.first, word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vav_32f_3x1, zelmSub_vav_32f_4x1, zelmSub_vav_32f_5x1,
                    zelmSub_vav_32f_6x1, zelmSub_vav_64f_3x1, zelmSub_vav_64f_4x1, zelmSub_vav_64f_5x1,
                    zelmSub_vav_64f_6x1)
                    (src1.first, word(src1.object), src2.first, dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vav_32f_S2, zelmSub_vav_64f_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.element), dst.first,
                        word(dst.object), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vav_32f_3x1_S2, zelmSub_vav_32f_4x1_S2, zelmSub_vav_32f_5x1_S2,
                    zelmSub_vav_32f_6x1_S2, zelmSub_vav_64f_3x1_S2, zelmSub_vav_64f_4x1_S2, zelmSub_vav_64f_5x1_S2,
                    zelmSub_vav_64f_6x1_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.element), dst.first,
                        word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vav_32f_P, zelmSub_vav_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len, count);
            } else {
                return pick<T, N>(zelmSub_vav_32f_3x1_P, zelmSub_vav_32f_4x1_P, zelmSub_vav_32f_5x1_P,
                    zelmSub_vav_32f_6x1_P, zelmSub_vav_64f_3x1_P, zelmSub_vav_64f_4x1_P, zelmSub_vav_64f_5x1_P,
                    zelmSub_vav_64f_6x1_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vav_32f_L, zelmSub_vav_64f_L)
                    (src1.table, word(src1.shift), src2.first, dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vav_32f_3x1_L, zelmSub_vav_32f_4x1_L, zelmSub_vav_32f_5x1_L,
                    zelmSub_vav_32f_6x1_L, zelmSub_vav_64f_3x1_L, zelmSub_vav_64f_4x1_L, zelmSub_vav_64f_5x1_L,
                    zelmSub_vav_64f_6x1_L)
                    (src1.table, word(src1.shift), src2.first, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vav_32f_PS2, zelmSub_vav_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vav_32f_3x1_PS2, zelmSub_vav_32f_4x1_PS2, zelmSub_vav_32f_5x1_PS2,
                    zelmSub_vav_32f_6x1_PS2, zelmSub_vav_64f_3x1_PS2, zelmSub_vav_64f_4x1_PS2,
                    zelmSub_vav_64f_5x1_PS2, zelmSub_vav_64f_6x1_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vav_32f_LS2, zelmSub_vav_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.first, word(src2.element), dst.table,
                        word(dst.shift), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vav_32f_3x1_LS2, zelmSub_vav_32f_4x1_LS2, zelmSub_vav_32f_5x1_LS2,
                    zelmSub_vav_32f_6x1_LS2, zelmSub_vav_64f_3x1_LS2, zelmSub_vav_64f_4x1_LS2,
                    zelmSub_vav_64f_5x1_LS2, zelmSub_vav_64f_6x1_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.first, word(src2.element), dst.table,
                        word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src[k][j] - val
template <>
struct Row<Op::Sub, Kind::va, Kind::c> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vac_32f, zelmSub_vac_64f)
                    (src.first, word(src.object), val, dst.first, word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vac_32f_3x1, zelmSub_vac_32f_4x1, zelmSub_vac_32f_5x1,
                    zelmSub_vac_32f_6x1, zelmSub_vac_64f_3x1, zelmSub_vac_64f_4x1, zelmSub_vac_64f_5x1,
                    zelmSub_vac_64f_6x1)
                    (src.first, word(src.object), val, dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vac_32f_S2, zelmSub_vac_64f_S2)
                    (src.first, word(src.object), word(src.element), val, dst.first, word(dst.object),
                        word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vac_32f_3x1_S2, zelmSub_vac_32f_4x1_S2, zelmSub_vac_32f_5x1_S2,
                    zelmSub_vac_32f_6x1_S2, zelmSub_vac_64f_3x1_S2, zelmSub_vac_64f_4x1_S2, zelmSub_vac_64f_5x1_S2,
                    zelmSub_vac_64f_6x1_S2)
                    (src.first, word(src.object), word(src.element), val, dst.first, word(dst.object),
                        word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vac_32f_P, zelmSub_vac_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vac_32f_3x1_P, zelmSub_vac_32f_4x1_P, zelmSub_vac_32f_5x1_P,
                    zelmSub_vac_32f_6x1_P, zelmSub_vac_64f_3x1_P, zelmSub_vac_64f_4x1_P, zelmSub_vac_64f_5x1_P,
                    zelmSub_vac_64f_6x1_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vac_32f_L, zelmSub_vac_64f_L)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vac_32f_3x1_L, zelmSub_vac_32f_4x1_L, zelmSub_vac_32f_5x1_L,
                    zelmSub_vac_32f_6x1_L, zelmSub_vac_64f_3x1_L, zelmSub_vac_64f_4x1_L, zelmSub_vac_64f_5x1_L,
                    zelmSub_vac_64f_6x1_L)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vac_32f_PS2, zelmSub_vac_64f_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vac_32f_3x1_PS2, zelmSub_vac_32f_4x1_PS2, zelmSub_vac_32f_5x1_PS2,
                    zelmSub_vac_32f_6x1_PS2, zelmSub_vac_64f_3x1_PS2, zelmSub_vac_64f_4x1_PS2,
                    zelmSub_vac_64f_5x1_PS2, zelmSub_vac_64f_6x1_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vac_32f_LS2, zelmSub_vac_64f_LS2)
                    (src.table, word(src.shift), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vac_32f_3x1_LS2, zelmSub_vac_32f_4x1_LS2, zelmSub_vac_32f_5x1_LS2,
                    zelmSub_vac_32f_6x1_LS2, zelmSub_vac_64f_3x1_LS2, zelmSub_vac_64f_4x1_LS2,
                    zelmSub_vac_64f_5x1_LS2, zelmSub_vac_64f_6x1_LS2)
                    (src.table, word(src.shift), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src1[k][j] - src2[k][j]
template <>
struct Row<Op::Sub, Kind::va, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vava_32f, zelmSub_vava_64f)
                    (src1.first, word(src1.object), src2.first, word(src2.object), dst.first, word(dst.object),
                        size.len, count);
            } else {
                return pick<T, N>(zelmSub_vava_32f_3x1, zelmSub_vava_32f_4x1, zelmSub_vava_32f_5x1,
                    zelmSub_vava_32f_6x1, zelmSub_vava_64f_3x1, zelmSub_vava_64f_4x1, zelmSub_vava_64f_5x1,
                    zelmSub_vava_64f_6x1)
                    (src1.first, word(src1.object), src2.first, word(src2.object), dst.first, word(dst.object),
                        count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vava_32f_S2, zelmSub_vava_64f_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vava_32f_3x1_S2, zelmSub_vava_32f_4x1_S2, zelmSub_vava_32f_5x1_S2,
                    zelmSub_vava_32f_6x1_S2, zelmSub_vava_64f_3x1_S2, zelmSub_vava_64f_4x1_S2,
                    zelmSub_vava_64f_5x1_S2, zelmSub_vava_64f_6x1_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vava_32f_P, zelmSub_vava_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len, count);
            } else {
                return pick<T, N>(zelmSub_vava_32f_3x1_P, zelmSub_vava_32f_4x1_P, zelmSub_vava_32f_5x1_P,
                    zelmSub_vava_32f_6x1_P, zelmSub_vava_64f_3x1_P, zelmSub_vava_64f_4x1_P, zelmSub_vava_64f_5x1_P,
                    zelmSub_vava_64f_6x1_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vava_32f_L, zelmSub_vava_64f_L)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len, count);
            } else {
                return pick<T, N>(zelmSub_vava_32f_3x1_L, zelmSub_vava_32f_4x1_L, zelmSub_vava_32f_5x1_L,
                    zelmSub_vava_32f_6x1_L, zelmSub_vava_64f_3x1_L, zelmSub_vava_64f_4x1_L, zelmSub_vava_64f_5x1_L,
                    zelmSub_vava_64f_6x1_L)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vava_32f_PS2, zelmSub_vava_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vava_32f_3x1_PS2, zelmSub_vava_32f_4x1_PS2, zelmSub_vava_32f_5x1_PS2,
                    zelmSub_vava_32f_6x1_PS2, zelmSub_vava_64f_3x1_PS2, zelmSub_vava_64f_4x1_PS2,
                    zelmSub_vava_64f_5x1_PS2, zelmSub_vava_64f_6x1_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vava_32f_LS2, zelmSub_vava_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vava_32f_3x1_LS2, zelmSub_vava_32f_4x1_LS2, zelmSub_vava_32f_5x1_LS2,
                    zelmSub_vava_32f_6x1_LS2, zelmSub_vava_64f_3x1_LS2, zelmSub_vava_64f_4x1_LS2,
                    zelmSub_vava_64f_5x1_LS2, zelmSub_vava_64f_6x1_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src1[j] - src2[k][j]
template <>
struct Row<Op::Sub, Kind::v, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vva_32f, zelmSub_vva_64f)
                    (src1.first, src2.first, word(src2.object), dst.first, word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vva_32f_3x1, zelmSub_vva_32f_4x1, zelmSub_vva_32f_5x1,
                    zelmSub_vva_32f_6x1, zelmSub_vva_64f_3x1, zelmSub_vva_64f_4x1, zelmSub_vva_64f_5x1,
                    zelmSub_vva_64f_6x1)
                    (src1.first, src2.first, word(src2.object), dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vva_32f_S2, zelmSub_vva_64f_S2)
                    (src1.first, word(src1.element), src2.first, word(src2.object), word(src2.element), dst.first,
                        word(dst.object), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vva_32f_3x1_S2, zelmSub_vva_32f_4x1_S2, zelmSub_vva_32f_5x1_S2,
                    zelmSub_vva_32f_6x1_S2, zelmSub_vva_64f_3x1_S2, zelmSub_vva_64f_4x1_S2, zelmSub_vva_64f_5x1_S2,
                    zelmSub_vva_64f_6x1_S2)
                    (src1.first, word(src1.element), src2.first, word(src2.object), word(src2.element), dst.first,
                        word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vva_32f_P, zelmSub_vva_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len, count);
            } else {
                return pick<T, N>(zelmSub_vva_32f_3x1_P, zelmSub_vva_32f_4x1_P, zelmSub_vva_32f_5x1_P,
                    zelmSub_vva_32f_6x1_P, zelmSub_vva_64f_3x1_P, zelmSub_vva_64f_4x1_P, zelmSub_vva_64f_5x1_P,
                    zelmSub_vva_64f_6x1_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vva_32f_L, zelmSub_vva_64f_L)
                    (src1.first, src2.table, word(src2.shift), dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vva_32f_3x1_L, zelmSub_vva_32f_4x1_L, zelmSub_vva_32f_5x1_L,
                    zelmSub_vva_32f_6x1_L, zelmSub_vva_64f_3x1_L, zelmSub_vva_64f_4x1_L, zelmSub_vva_64f_5x1_L,
                    zelmSub_vva_64f_6x1_L)
                    (src1.first, src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vva_32f_PS2, zelmSub_vva_64f_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vva_32f_3x1_PS2, zelmSub_vva_32f_4x1_PS2, zelmSub_vva_32f_5x1_PS2,
                    zelmSub_vva_32f_6x1_PS2, zelmSub_vva_64f_3x1_PS2, zelmSub_vva_64f_4x1_PS2,
                    zelmSub_vva_64f_5x1_PS2, zelmSub_vva_64f_6x1_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_vva_32f_LS2, zelmSub_vva_64f_LS2)
                    (src1.first, word(src1.element), src2.table, word(src2.shift), word(src2.element), dst.table,
                        word(dst.shift), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSub_vva_32f_3x1_LS2, zelmSub_vva_32f_4x1_LS2, zelmSub_vva_32f_5x1_LS2,
                    zelmSub_vva_32f_6x1_LS2, zelmSub_vva_64f_3x1_LS2, zelmSub_vva_64f_4x1_LS2,
                    zelmSub_vva_64f_5x1_LS2, zelmSub_vva_64f_6x1_LS2)
                    (src1.first, word(src1.element), src2.table, word(src2.shift), word(src2.element), dst.table,
                        word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = val - src[k][j]
template <>
struct Row<Op::Sub, Kind::c, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_cva_32f, zelmSub_cva_64f)
                    (src.first, word(src.object), val, dst.first, word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSub_cva_32f_3x1, zelmSub_cva_32f_4x1, zelmSub_cva_32f_5x1,
                    zelmSub_cva_32f_6x1, zelmSub_cva_64f_3x1, zelmSub_cva_64f_4x1, zelmSub_cva_64f_5x1,
                    zelmSub_cva_64f_6x1)
                    (src.first, word(src.object), val, dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_cva_32f_S2, zelmSub_cva_64f_S2)
                    (src.first, word(src.object), word(src.element), val, dst.first, word(dst.object),
                        word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSub_cva_32f_3x1_S2, zelmSub_cva_32f_4x1_S2, zelmSub_cva_32f_5x1_S2,
                    zelmSub_cva_32f_6x1_S2, zelmSub_cva_64f_3x1_S2, zelmSub_cva_64f_4x1_S2, zelmSub_cva_64f_5x1_S2,
                    zelmSub_cva_64f_6x1_S2)
                    (src.first, word(src.object), word(src.element), val, dst.first, word(dst.object),
                        word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_cva_32f_P, zelmSub_cva_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmSub_cva_32f_3x1_P, zelmSub_cva_32f_4x1_P, zelmSub_cva_32f_5x1_P,
                    zelmSub_cva_32f_6x1_P, zelmSub_cva_64f_3x1_P, zelmSub_cva_64f_4x1_P, zelmSub_cva_64f_5x1_P,
                    zelmSub_cva_64f_6x1_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_cva_32f_L, zelmSub_cva_64f_L)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmSub_cva_32f_3x1_L, zelmSub_cva_32f_4x1_L, zelmSub_cva_32f_5x1_L,
                    zelmSub_cva_32f_6x1_L, zelmSub_cva_64f_3x1_L, zelmSub_cva_64f_4x1_L, zelmSub_cva_64f_5x1_L,
                    zelmSub_cva_64f_6x1_L)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_cva_32f_PS2, zelmSub_cva_64f_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSub_cva_32f_3x1_PS2, zelmSub_cva_32f_4x1_PS2, zelmSub_cva_32f_5x1_PS2,
                    zelmSub_cva_32f_6x1_PS2, zelmSub_cva_64f_3x1_PS2, zelmSub_cva_64f_4x1_PS2,
                    zelmSub_cva_64f_5x1_PS2, zelmSub_cva_64f_6x1_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_cva_32f_LS2, zelmSub_cva_64f_LS2)
                    (src.table, word(src.shift), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSub_cva_32f_3x1_LS2, zelmSub_cva_32f_4x1_LS2, zelmSub_cva_32f_5x1_LS2,
                    zelmSub_cva_32f_6x1_LS2, zelmSub_cva_64f_3x1_LS2, zelmSub_cva_64f_4x1_LS2,
                    zelmSub_cva_64f_5x1_LS2, zelmSub_cva_64f_6x1_LS2)
                    (src.table, word(src.shift), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[i][j] = src1[i][j] + src2[i][j]
template <>
struct Row<Op::Add, Kind::m, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mm_32f, zelmAdd_mm_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row), size.width,
                        size.height);
            } else {
                return pick<T, N>(zelmAdd_mm_32f_3x3, zelmAdd_mm_32f_4x4, zelmAdd_mm_32f_5x5, zelmAdd_mm_32f_6x6,
                    zelmAdd_mm_64f_3x3, zelmAdd_mm_64f_4x4, zelmAdd_mm_64f_5x5, zelmAdd_mm_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mm_32f_S2, zelmAdd_mm_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element), size.width, size.height);
            } else {
                return pick<T, N>(zelmAdd_mm_32f_3x3_S2, zelmAdd_mm_32f_4x4_S2, zelmAdd_mm_32f_5x5_S2,
                    zelmAdd_mm_32f_6x6_S2, zelmAdd_mm_64f_3x3_S2, zelmAdd_mm_64f_4x4_S2, zelmAdd_mm_64f_5x5_S2,
                    zelmAdd_mm_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mm_32f_P, zelmAdd_mm_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height);
            } else {
                return pick<T, N>(zelmAdd_mm_32f_3x3_P, zelmAdd_mm_32f_4x4_P, zelmAdd_mm_32f_5x5_P,
                    zelmAdd_mm_32f_6x6_P, zelmAdd_mm_64f_3x3_P, zelmAdd_mm_64f_4x4_P, zelmAdd_mm_64f_5x5_P,
                    zelmAdd_mm_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[i][j] = src1[i][j] + src2[j][i]
template <>
struct Row<Op::Add, Kind::m, Kind::mT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmAdd_mmT_32f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, float> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        // zelmAdd_mmT_64f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, double> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mmT_32f, zelmAdd_mmT_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row), size.width,
                        size.height);
            } else {
                return pick<T, N>(zelmAdd_mmT_32f_3x3, zelmAdd_mmT_32f_4x4, zelmAdd_mmT_32f_5x5,
                    zelmAdd_mmT_32f_6x6, zelmAdd_mmT_64f_3x3, zelmAdd_mmT_64f_4x4, zelmAdd_mmT_64f_5x5,
                    zelmAdd_mmT_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mmT_32f_S2, zelmAdd_mmT_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element), size.width, size.height);
            } else {
                return pick<T, N>(zelmAdd_mmT_32f_3x3_S2, zelmAdd_mmT_32f_4x4_S2, zelmAdd_mmT_32f_5x5_S2,
                    zelmAdd_mmT_32f_6x6_S2, zelmAdd_mmT_64f_3x3_S2, zelmAdd_mmT_64f_4x4_S2, zelmAdd_mmT_64f_5x5_S2,
                    zelmAdd_mmT_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mmT_32f_P, zelmAdd_mmT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height);
            } else {
                return pick<T, N>(zelmAdd_mmT_32f_3x3_P, zelmAdd_mmT_32f_4x4_P, zelmAdd_mmT_32f_5x5_P,
                    zelmAdd_mmT_32f_6x6_P, zelmAdd_mmT_64f_3x3_P, zelmAdd_mmT_64f_4x4_P, zelmAdd_mmT_64f_5x5_P,
                    zelmAdd_mmT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[i][j] = src1[j][i] + src2[i][j]
template <>
struct Row<Op::Add, Kind::mT, Kind::m> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmAdd_mTm_32f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, float> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        // zelmAdd_mTm_64f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, double> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mTm_32f, zelmAdd_mTm_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row), size.width,
                        size.height);
            } else {
                return pick<T, N>(zelmAdd_mTm_32f_3x3, zelmAdd_mTm_32f_4x4, zelmAdd_mTm_32f_5x5,
                    zelmAdd_mTm_32f_6x6, zelmAdd_mTm_64f_3x3, zelmAdd_mTm_64f_4x4, zelmAdd_mTm_64f_5x5,
                    zelmAdd_mTm_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mTm_32f_S2, zelmAdd_mTm_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element), size.width, size.height);
            } else {
                return pick<T, N>(zelmAdd_mTm_32f_3x3_S2, zelmAdd_mTm_32f_4x4_S2, zelmAdd_mTm_32f_5x5_S2,
                    zelmAdd_mTm_32f_6x6_S2, zelmAdd_mTm_64f_3x3_S2, zelmAdd_mTm_64f_4x4_S2, zelmAdd_mTm_64f_5x5_S2,
                    zelmAdd_mTm_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mTm_32f_P, zelmAdd_mTm_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height);
            } else {
                return pick<T, N>(zelmAdd_mTm_32f_3x3_P, zelmAdd_mTm_32f_4x4_P, zelmAdd_mTm_32f_5x5_P,
                    zelmAdd_mTm_32f_6x6_P, zelmAdd_mTm_64f_3x3_P, zelmAdd_mTm_64f_4x4_P, zelmAdd_mTm_64f_5x5_P,
                    zelmAdd_mTm_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[i][j] = src1[j][i] + src2[j][i]
template <>
struct Row<Op::Add, Kind::mT, Kind::mT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmAdd_mTmT_32f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, float> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        // zelmAdd_mTmT_64f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, double> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mTmT_32f, zelmAdd_mTmT_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row), size.width,
                        size.height);
            } else {
                return pick<T, N>(zelmAdd_mTmT_32f_3x3, zelmAdd_mTmT_32f_4x4, zelmAdd_mTmT_32f_5x5,
                    zelmAdd_mTmT_32f_6x6, zelmAdd_mTmT_64f_3x3, zelmAdd_mTmT_64f_4x4, zelmAdd_mTmT_64f_5x5,
                    zelmAdd_mTmT_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mTmT_32f_S2, zelmAdd_mTmT_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element), size.width, size.height);
            } else {
                return pick<T, N>(zelmAdd_mTmT_32f_3x3_S2, zelmAdd_mTmT_32f_4x4_S2, zelmAdd_mTmT_32f_5x5_S2,
                    zelmAdd_mTmT_32f_6x6_S2, zelmAdd_mTmT_64f_3x3_S2, zelmAdd_mTmT_64f_4x4_S2,
                    zelmAdd_mTmT_64f_5x5_S2, zelmAdd_mTmT_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mTmT_32f_P, zelmAdd_mTmT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height);
            } else {
                return pick<T, N>(zelmAdd_mTmT_32f_3x3_P, zelmAdd_mTmT_32f_4x4_P, zelmAdd_mTmT_32f_5x5_P,
                    zelmAdd_mTmT_32f_6x6_P, zelmAdd_mTmT_64f_3x3_P, zelmAdd_mTmT_64f_4x4_P, zelmAdd_mTmT_64f_5x5_P,
                    zelmAdd_mTmT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][i][j] + src2[i][j]
template <>
struct Row<Op::Add, Kind::ma, Kind::m> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmAdd_mam_64f_5x5: reads column 4 of src1 at src2RowStride
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::standard) {
            return {Layout::S2, 5, Guard::none};
        }
        // zelmAdd_mam_64f_3x3_L: pairs the elements of the invariant with others
        if (std::is_same_v<T, double> && N == 3 && wanted == Layout::L) {
            return {Layout::LS2, 3, Guard::none};
        }
        // zelmAdd_mam_64f_5x5_L: reads column 4 of src1 at src2RowStride
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::L) {
            return {Layout::LS2, 5, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mam_32f, zelmAdd_mam_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mam_32f_3x3, zelmAdd_mam_32f_4x4, zelmAdd_mam_32f_5x5,
                    zelmAdd_mam_32f_6x6, zelmAdd_mam_64f_3x3, zelmAdd_mam_64f_4x4, zelmAdd_mam_64f_5x5,
                    zelmAdd_mam_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mam_32f_S2, zelmAdd_mam_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mam_32f_3x3_S2, zelmAdd_mam_32f_4x4_S2, zelmAdd_mam_32f_5x5_S2,
                    zelmAdd_mam_32f_6x6_S2, zelmAdd_mam_64f_3x3_S2, zelmAdd_mam_64f_4x4_S2, zelmAdd_mam_64f_5x5_S2,
                    zelmAdd_mam_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mam_32f_P, zelmAdd_mam_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mam_32f_3x3_P, zelmAdd_mam_32f_4x4_P, zelmAdd_mam_32f_5x5_P,
                    zelmAdd_mam_32f_6x6_P, zelmAdd_mam_64f_3x3_P, zelmAdd_mam_64f_4x4_P, zelmAdd_mam_64f_5x5_P,
                    zelmAdd_mam_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mam_32f_L, zelmAdd_mam_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mam_32f_3x3_L, zelmAdd_mam_32f_4x4_L, zelmAdd_mam_32f_5x5_L,
                    zelmAdd_mam_32f_6x6_L, zelmAdd_mam_64f_3x3_L, zelmAdd_mam_64f_4x4_L, zelmAdd_mam_64f_5x5_L,
                    zelmAdd_mam_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mam_32f_PS2, zelmAdd_mam_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mam_32f_3x3_PS2, zelmAdd_mam_32f_4x4_PS2, zelmAdd_mam_32f_5x5_PS2,
                    zelmAdd_mam_32f_6x6_PS2, zelmAdd_mam_64f_3x3_PS2, zelmAdd_mam_64f_4x4_PS2,
                    zelmAdd_mam_64f_5x5_PS2, zelmAdd_mam_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mam_32f_LS2, zelmAdd_mam_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mam_32f_3x3_LS2, zelmAdd_mam_32f_4x4_LS2, zelmAdd_mam_32f_5x5_LS2,
                    zelmAdd_mam_32f_6x6_LS2, zelmAdd_mam_64f_3x3_LS2, zelmAdd_mam_64f_4x4_LS2,
                    zelmAdd_mam_64f_5x5_LS2, zelmAdd_mam_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][i][j] + src2[j][i]
template <>
struct Row<Op::Add, Kind::ma, Kind::mT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmAdd_mamT_32f_3x3: src2RowStride is not read, rows of src2 lie at src1RowStride; reads object k+1 before it stores object k; a count of 0 counts as 1
        if (std::is_same_v<T, float> && N == 3 && wanted == Layout::standard) {
            return {Layout::S2, 3, Guard::none};
        }
        // zelmAdd_mamT_32f_3x3_L: src2RowStride is not read, rows of src2 lie at src1RowStride; reads object k+1 before it stores object k; a count of 0 counts as 1
        if (std::is_same_v<T, float> && N == 3 && wanted == Layout::L) {
            return {Layout::LS2, 3, Guard::none};
        }
        // zelmAdd_mamT_64f_6x6: an alignment fault is raised
        if (std::is_same_v<T, double> && N == 6 && wanted == Layout::standard) {
            return {wanted, N, Guard::aligned_stores};
        }
        // zelmAdd_mamT_64f_3x3_L: pairs the elements of the invariant with others
        if (std::is_same_v<T, double> && N == 3 && wanted == Layout::L) {
            return {Layout::LS2, 3, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamT_32f, zelmAdd_mamT_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mamT_32f_3x3, zelmAdd_mamT_32f_4x4, zelmAdd_mamT_32f_5x5,
                    zelmAdd_mamT_32f_6x6, zelmAdd_mamT_64f_3x3, zelmAdd_mamT_64f_4x4, zelmAdd_mamT_64f_5x5,
                    zelmAdd_mamT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamT_32f_S2, zelmAdd_mamT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mamT_32f_3x3_S2, zelmAdd_mamT_32f_4x4_S2, zelmAdd_mamT_32f_5x5_S2,
                    zelmAdd_mamT_32f_6x6_S2, zelmAdd_mamT_64f_3x3_S2, zelmAdd_mamT_64f_4x4_S2,
                    zelmAdd_mamT_64f_5x5_S2, zelmAdd_mamT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamT_32f_P, zelmAdd_mamT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mamT_32f_3x3_P, zelmAdd_mamT_32f_4x4_P, zelmAdd_mamT_32f_5x5_P,
                    zelmAdd_mamT_32f_6x6_P, zelmAdd_mamT_64f_3x3_P, zelmAdd_mamT_64f_4x4_P, zelmAdd_mamT_64f_5x5_P,
                    zelmAdd_mamT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamT_32f_L, zelmAdd_mamT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mamT_32f_3x3_L, zelmAdd_mamT_32f_4x4_L, zelmAdd_mamT_32f_5x5_L,
                    zelmAdd_mamT_32f_6x6_L, zelmAdd_mamT_64f_3x3_L, zelmAdd_mamT_64f_4x4_L, zelmAdd_mamT_64f_5x5_L,
                    zelmAdd_mamT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamT_32f_PS2, zelmAdd_mamT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mamT_32f_3x3_PS2, zelmAdd_mamT_32f_4x4_PS2, zelmAdd_mamT_32f_5x5_PS2,
                    zelmAdd_mamT_32f_6x6_PS2, zelmAdd_mamT_64f_3x3_PS2, zelmAdd_mamT_64f_4x4_PS2,
                    zelmAdd_mamT_64f_5x5_PS2, zelmAdd_mamT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamT_32f_LS2, zelmAdd_mamT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mamT_32f_3x3_LS2, zelmAdd_mamT_32f_4x4_LS2, zelmAdd_mamT_32f_5x5_LS2,
                    zelmAdd_mamT_32f_6x6_LS2, zelmAdd_mamT_64f_3x3_LS2, zelmAdd_mamT_64f_4x4_LS2,
                    zelmAdd_mamT_64f_5x5_LS2, zelmAdd_mamT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][i][j] + src2[k][i][j]
template <>
struct Row<Op::Add, Kind::ma, Kind::ma> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmAdd_mama_64f_5x5: reads column 4 of src1 at src2RowStride
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::standard) {
            return {Layout::S2, 5, Guard::none};
        }
        // zelmAdd_mama_64f_5x5_L: reads column 4 of src1 at src2RowStride
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::L) {
            return {Layout::LS2, 5, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mama_32f, zelmAdd_mama_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mama_32f_3x3, zelmAdd_mama_32f_4x4, zelmAdd_mama_32f_5x5,
                    zelmAdd_mama_32f_6x6, zelmAdd_mama_64f_3x3, zelmAdd_mama_64f_4x4, zelmAdd_mama_64f_5x5,
                    zelmAdd_mama_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mama_32f_S2, zelmAdd_mama_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mama_32f_3x3_S2, zelmAdd_mama_32f_4x4_S2, zelmAdd_mama_32f_5x5_S2,
                    zelmAdd_mama_32f_6x6_S2, zelmAdd_mama_64f_3x3_S2, zelmAdd_mama_64f_4x4_S2,
                    zelmAdd_mama_64f_5x5_S2, zelmAdd_mama_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mama_32f_P, zelmAdd_mama_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mama_32f_3x3_P, zelmAdd_mama_32f_4x4_P, zelmAdd_mama_32f_5x5_P,
                    zelmAdd_mama_32f_6x6_P, zelmAdd_mama_64f_3x3_P, zelmAdd_mama_64f_4x4_P, zelmAdd_mama_64f_5x5_P,
                    zelmAdd_mama_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mama_32f_L, zelmAdd_mama_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mama_32f_3x3_L, zelmAdd_mama_32f_4x4_L, zelmAdd_mama_32f_5x5_L,
                    zelmAdd_mama_32f_6x6_L, zelmAdd_mama_64f_3x3_L, zelmAdd_mama_64f_4x4_L, zelmAdd_mama_64f_5x5_L,
                    zelmAdd_mama_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mama_32f_PS2, zelmAdd_mama_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.width, size.height,
                        count);
            } else {
                return pick<T, N>(zelmAdd_mama_32f_3x3_PS2, zelmAdd_mama_32f_4x4_PS2, zelmAdd_mama_32f_5x5_PS2,
                    zelmAdd_mama_32f_6x6_PS2, zelmAdd_mama_64f_3x3_PS2, zelmAdd_mama_64f_4x4_PS2,
                    zelmAdd_mama_64f_5x5_PS2, zelmAdd_mama_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mama_32f_LS2, zelmAdd_mama_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mama_32f_3x3_LS2, zelmAdd_mama_32f_4x4_LS2, zelmAdd_mama_32f_5x5_LS2,
                    zelmAdd_mama_32f_6x6_LS2, zelmAdd_mama_64f_3x3_LS2, zelmAdd_mama_64f_4x4_LS2,
                    zelmAdd_mama_64f_5x5_LS2, zelmAdd_mama_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][i][j] + src2[k][j][i]
template <>
struct Row<Op::Add, Kind::ma, Kind::maT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamaT_32f, zelmAdd_mamaT_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mamaT_32f_3x3, zelmAdd_mamaT_32f_4x4, zelmAdd_mamaT_32f_5x5,
                    zelmAdd_mamaT_32f_6x6, zelmAdd_mamaT_64f_3x3, zelmAdd_mamaT_64f_4x4, zelmAdd_mamaT_64f_5x5,
                    zelmAdd_mamaT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamaT_32f_S2, zelmAdd_mamaT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mamaT_32f_3x3_S2, zelmAdd_mamaT_32f_4x4_S2, zelmAdd_mamaT_32f_5x5_S2,
                    zelmAdd_mamaT_32f_6x6_S2, zelmAdd_mamaT_64f_3x3_S2, zelmAdd_mamaT_64f_4x4_S2,
                    zelmAdd_mamaT_64f_5x5_S2, zelmAdd_mamaT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamaT_32f_P, zelmAdd_mamaT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mamaT_32f_3x3_P, zelmAdd_mamaT_32f_4x4_P, zelmAdd_mamaT_32f_5x5_P,
                    zelmAdd_mamaT_32f_6x6_P, zelmAdd_mamaT_64f_3x3_P, zelmAdd_mamaT_64f_4x4_P,
                    zelmAdd_mamaT_64f_5x5_P, zelmAdd_mamaT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamaT_32f_L, zelmAdd_mamaT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mamaT_32f_3x3_L, zelmAdd_mamaT_32f_4x4_L, zelmAdd_mamaT_32f_5x5_L,
                    zelmAdd_mamaT_32f_6x6_L, zelmAdd_mamaT_64f_3x3_L, zelmAdd_mamaT_64f_4x4_L,
                    zelmAdd_mamaT_64f_5x5_L, zelmAdd_mamaT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamaT_32f_PS2, zelmAdd_mamaT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.width, size.height,
                        count);
            } else {
                return pick<T, N>(zelmAdd_mamaT_32f_3x3_PS2, zelmAdd_mamaT_32f_4x4_PS2, zelmAdd_mamaT_32f_5x5_PS2,
                    zelmAdd_mamaT_32f_6x6_PS2, zelmAdd_mamaT_64f_3x3_PS2, zelmAdd_mamaT_64f_4x4_PS2,
                    zelmAdd_mamaT_64f_5x5_PS2, zelmAdd_mamaT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_mamaT_32f_LS2, zelmAdd_mamaT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_mamaT_32f_3x3_LS2, zelmAdd_mamaT_32f_4x4_LS2, zelmAdd_mamaT_32f_5x5_LS2,
                    zelmAdd_mamaT_32f_6x6_LS2, zelmAdd_mamaT_64f_3x3_LS2, zelmAdd_mamaT_64f_4x4_LS2,
                    zelmAdd_mamaT_64f_5x5_LS2, zelmAdd_mamaT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][j][i] + src2[i][j]
template <>
struct Row<Op::Add, Kind::maT, Kind::m> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmAdd_maTm_64f_6x6: an alignment fault is raised
        if (std::is_same_v<T, double> && N == 6 && wanted == Layout::standard) {
            return {wanted, N, Guard::aligned_stores};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTm_32f, zelmAdd_maTm_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTm_32f_3x3, zelmAdd_maTm_32f_4x4, zelmAdd_maTm_32f_5x5,
                    zelmAdd_maTm_32f_6x6, zelmAdd_maTm_64f_3x3, zelmAdd_maTm_64f_4x4, zelmAdd_maTm_64f_5x5,
                    zelmAdd_maTm_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTm_32f_S2, zelmAdd_maTm_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTm_32f_3x3_S2, zelmAdd_maTm_32f_4x4_S2, zelmAdd_maTm_32f_5x5_S2,
                    zelmAdd_maTm_32f_6x6_S2, zelmAdd_maTm_64f_3x3_S2, zelmAdd_maTm_64f_4x4_S2,
                    zelmAdd_maTm_64f_5x5_S2, zelmAdd_maTm_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTm_32f_P, zelmAdd_maTm_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTm_32f_3x3_P, zelmAdd_maTm_32f_4x4_P, zelmAdd_maTm_32f_5x5_P,
                    zelmAdd_maTm_32f_6x6_P, zelmAdd_maTm_64f_3x3_P, zelmAdd_maTm_64f_4x4_P, zelmAdd_maTm_64f_5x5_P,
                    zelmAdd_maTm_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTm_32f_L, zelmAdd_maTm_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTm_32f_3x3_L, zelmAdd_maTm_32f_4x4_L, zelmAdd_maTm_32f_5x5_L,
                    zelmAdd_maTm_32f_6x6_L, zelmAdd_maTm_64f_3x3_L, zelmAdd_maTm_64f_4x4_L, zelmAdd_maTm_64f_5x5_L,
                    zelmAdd_maTm_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTm_32f_PS2, zelmAdd_maTm_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTm_32f_3x3_PS2, zelmAdd_maTm_32f_4x4_PS2, zelmAdd_maTm_32f_5x5_PS2,
                    zelmAdd_maTm_32f_6x6_PS2, zelmAdd_maTm_64f_3x3_PS2, zelmAdd_maTm_64f_4x4_PS2,
                    zelmAdd_maTm_64f_5x5_PS2, zelmAdd_maTm_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTm_32f_LS2, zelmAdd_maTm_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTm_32f_3x3_LS2, zelmAdd_maTm_32f_4x4_LS2, zelmAdd_maTm_32f_5x5_LS2,
                    zelmAdd_maTm_32f_6x6_LS2, zelmAdd_maTm_64f_3x3_LS2, zelmAdd_maTm_64f_4x4_LS2,
                    zelmAdd_maTm_64f_5x5_LS2, zelmAdd_maTm_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][j][i] + src2[j][i]
template <>
struct Row<Op::Add, Kind::maT, Kind::mT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmAdd_maTmT_64f_6x6: an alignment fault is raised
        if (std::is_same_v<T, double> && N == 6 && wanted == Layout::standard) {
            return {wanted, N, Guard::aligned_stores};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmT_32f, zelmAdd_maTmT_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTmT_32f_3x3, zelmAdd_maTmT_32f_4x4, zelmAdd_maTmT_32f_5x5,
                    zelmAdd_maTmT_32f_6x6, zelmAdd_maTmT_64f_3x3, zelmAdd_maTmT_64f_4x4, zelmAdd_maTmT_64f_5x5,
                    zelmAdd_maTmT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmT_32f_S2, zelmAdd_maTmT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTmT_32f_3x3_S2, zelmAdd_maTmT_32f_4x4_S2, zelmAdd_maTmT_32f_5x5_S2,
                    zelmAdd_maTmT_32f_6x6_S2, zelmAdd_maTmT_64f_3x3_S2, zelmAdd_maTmT_64f_4x4_S2,
                    zelmAdd_maTmT_64f_5x5_S2, zelmAdd_maTmT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmT_32f_P, zelmAdd_maTmT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTmT_32f_3x3_P, zelmAdd_maTmT_32f_4x4_P, zelmAdd_maTmT_32f_5x5_P,
                    zelmAdd_maTmT_32f_6x6_P, zelmAdd_maTmT_64f_3x3_P, zelmAdd_maTmT_64f_4x4_P,
                    zelmAdd_maTmT_64f_5x5_P, zelmAdd_maTmT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmT_32f_L, zelmAdd_maTmT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTmT_32f_3x3_L, zelmAdd_maTmT_32f_4x4_L, zelmAdd_maTmT_32f_5x5_L,
                    zelmAdd_maTmT_32f_6x6_L, zelmAdd_maTmT_64f_3x3_L, zelmAdd_maTmT_64f_4x4_L,
                    zelmAdd_maTmT_64f_5x5_L, zelmAdd_maTmT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmT_32f_PS2, zelmAdd_maTmT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTmT_32f_3x3_PS2, zelmAdd_maTmT_32f_4x4_PS2, zelmAdd_maTmT_32f_5x5_PS2,
                    zelmAdd_maTmT_32f_6x6_PS2, zelmAdd_maTmT_64f_3x3_PS2, zelmAdd_maTmT_64f_4x4_PS2,
                    zelmAdd_maTmT_64f_5x5_PS2, zelmAdd_maTmT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmT_32f_LS2, zelmAdd_maTmT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTmT_32f_3x3_LS2, zelmAdd_maTmT_32f_4x4_LS2, zelmAdd_maTmT_32f_5x5_LS2,
                    zelmAdd_maTmT_32f_6x6_LS2, zelmAdd_maTmT_64f_3x3_LS2, zelmAdd_maTmT_64f_4x4_LS2,
                    zelmAdd_maTmT_64f_5x5_LS2, zelmAdd_maTmT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][j][i] + src2[k][i][j]
template <>
struct Row<Op::Add, Kind::maT, Kind::ma> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTma_32f, zelmAdd_maTma_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTma_32f_3x3, zelmAdd_maTma_32f_4x4, zelmAdd_maTma_32f_5x5,
                    zelmAdd_maTma_32f_6x6, zelmAdd_maTma_64f_3x3, zelmAdd_maTma_64f_4x4, zelmAdd_maTma_64f_5x5,
                    zelmAdd_maTma_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTma_32f_S2, zelmAdd_maTma_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTma_32f_3x3_S2, zelmAdd_maTma_32f_4x4_S2, zelmAdd_maTma_32f_5x5_S2,
                    zelmAdd_maTma_32f_6x6_S2, zelmAdd_maTma_64f_3x3_S2, zelmAdd_maTma_64f_4x4_S2,
                    zelmAdd_maTma_64f_5x5_S2, zelmAdd_maTma_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTma_32f_P, zelmAdd_maTma_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTma_32f_3x3_P, zelmAdd_maTma_32f_4x4_P, zelmAdd_maTma_32f_5x5_P,
                    zelmAdd_maTma_32f_6x6_P, zelmAdd_maTma_64f_3x3_P, zelmAdd_maTma_64f_4x4_P,
                    zelmAdd_maTma_64f_5x5_P, zelmAdd_maTma_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTma_32f_L, zelmAdd_maTma_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTma_32f_3x3_L, zelmAdd_maTma_32f_4x4_L, zelmAdd_maTma_32f_5x5_L,
                    zelmAdd_maTma_32f_6x6_L, zelmAdd_maTma_64f_3x3_L, zelmAdd_maTma_64f_4x4_L,
                    zelmAdd_maTma_64f_5x5_L, zelmAdd_maTma_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTma_32f_PS2, zelmAdd_maTma_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.width, size.height,
                        count);
            } else {
                return pick<T, N>(zelmAdd_maTma_32f_3x3_PS2, zelmAdd_maTma_32f_4x4_PS2, zelmAdd_maTma_32f_5x5_PS2,
                    zelmAdd_maTma_32f_6x6_PS2, zelmAdd_maTma_64f_3x3_PS2, zelmAdd_maTma_64f_4x4_PS2,
                    zelmAdd_maTma_64f_5x5_PS2, zelmAdd_maTma_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTma_32f_LS2, zelmAdd_maTma_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTma_32f_3x3_LS2, zelmAdd_maTma_32f_4x4_LS2, zelmAdd_maTma_32f_5x5_LS2,
                    zelmAdd_maTma_32f_6x6_LS2, zelmAdd_maTma_64f_3x3_LS2, zelmAdd_maTma_64f_4x4_LS2,
                    zelmAdd_maTma_64f_5x5_LS2, zelmAdd_maTma_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][j][i] + src2[k][j][i]
template <>
struct Row<Op::Add, Kind::maT, Kind::maT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmaT_32f, zelmAdd_maTmaT_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTmaT_32f_3x3, zelmAdd_maTmaT_32f_4x4, zelmAdd_maTmaT_32f_5x5,
                    zelmAdd_maTmaT_32f_6x6, zelmAdd_maTmaT_64f_3x3, zelmAdd_maTmaT_64f_4x4, zelmAdd_maTmaT_64f_5x5,
                    zelmAdd_maTmaT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmaT_32f_S2, zelmAdd_maTmaT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTmaT_32f_3x3_S2, zelmAdd_maTmaT_32f_4x4_S2, zelmAdd_maTmaT_32f_5x5_S2,
                    zelmAdd_maTmaT_32f_6x6_S2, zelmAdd_maTmaT_64f_3x3_S2, zelmAdd_maTmaT_64f_4x4_S2,
                    zelmAdd_maTmaT_64f_5x5_S2, zelmAdd_maTmaT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmaT_32f_P, zelmAdd_maTmaT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTmaT_32f_3x3_P, zelmAdd_maTmaT_32f_4x4_P, zelmAdd_maTmaT_32f_5x5_P,
                    zelmAdd_maTmaT_32f_6x6_P, zelmAdd_maTmaT_64f_3x3_P, zelmAdd_maTmaT_64f_4x4_P,
                    zelmAdd_maTmaT_64f_5x5_P, zelmAdd_maTmaT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmaT_32f_L, zelmAdd_maTmaT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTmaT_32f_3x3_L, zelmAdd_maTmaT_32f_4x4_L, zelmAdd_maTmaT_32f_5x5_L,
                    zelmAdd_maTmaT_32f_6x6_L, zelmAdd_maTmaT_64f_3x3_L, zelmAdd_maTmaT_64f_4x4_L,
                    zelmAdd_maTmaT_64f_5x5_L, zelmAdd_maTmaT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmaT_32f_PS2, zelmAdd_maTmaT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.width, size.height,
                        count);
            } else {
                return pick<T, N>(zelmAdd_maTmaT_32f_3x3_PS2, zelmAdd_maTmaT_32f_4x4_PS2,
                    zelmAdd_maTmaT_32f_5x5_PS2, zelmAdd_maTmaT_32f_6x6_PS2, zelmAdd_maTmaT_64f_3x3_PS2,
                    zelmAdd_maTmaT_64f_4x4_PS2, zelmAdd_maTmaT_64f_5x5_PS2, zelmAdd_maTmaT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmAdd_maTmaT_32f_LS2, zelmAdd_maTmaT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmAdd_maTmaT_32f_3x3_LS2, zelmAdd_maTmaT_32f_4x4_LS2,
                    zelmAdd_maTmaT_32f_5x5_LS2, zelmAdd_maTmaT_32f_6x6_LS2, zelmAdd_maTmaT_64f_3x3_LS2,
                    zelmAdd_maTmaT_64f_4x4_LS2, zelmAdd_maTmaT_64f_5x5_LS2, zelmAdd_maTmaT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[i][j] = src1[i][j] - src2[i][j]
template <>
struct Row<Op::Sub, Kind::m, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mm_32f, zelmSub_mm_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row), size.width,
                        size.height);
            } else {
                return pick<T, N>(zelmSub_mm_32f_3x3, zelmSub_mm_32f_4x4, zelmSub_mm_32f_5x5, zelmSub_mm_32f_6x6,
                    zelmSub_mm_64f_3x3, zelmSub_mm_64f_4x4, zelmSub_mm_64f_5x5, zelmSub_mm_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mm_32f_S2, zelmSub_mm_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element), size.width, size.height);
            } else {
                return pick<T, N>(zelmSub_mm_32f_3x3_S2, zelmSub_mm_32f_4x4_S2, zelmSub_mm_32f_5x5_S2,
                    zelmSub_mm_32f_6x6_S2, zelmSub_mm_64f_3x3_S2, zelmSub_mm_64f_4x4_S2, zelmSub_mm_64f_5x5_S2,
                    zelmSub_mm_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mm_32f_P, zelmSub_mm_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height);
            } else {
                return pick<T, N>(zelmSub_mm_32f_3x3_P, zelmSub_mm_32f_4x4_P, zelmSub_mm_32f_5x5_P,
                    zelmSub_mm_32f_6x6_P, zelmSub_mm_64f_3x3_P, zelmSub_mm_64f_4x4_P, zelmSub_mm_64f_5x5_P,
                    zelmSub_mm_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[i][j] = src1[i][j] - src2[j][i]
template <>
struct Row<Op::Sub, Kind::m, Kind::mT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_mmT_32f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, float> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        // zelmSub_mmT_64f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, double> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mmT_32f, zelmSub_mmT_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row), size.width,
                        size.height);
            } else {
                return pick<T, N>(zelmSub_mmT_32f_3x3, zelmSub_mmT_32f_4x4, zelmSub_mmT_32f_5x5,
                    zelmSub_mmT_32f_6x6, zelmSub_mmT_64f_3x3, zelmSub_mmT_64f_4x4, zelmSub_mmT_64f_5x5,
                    zelmSub_mmT_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mmT_32f_S2, zelmSub_mmT_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element), size.width, size.height);
            } else {
                return pick<T, N>(zelmSub_mmT_32f_3x3_S2, zelmSub_mmT_32f_4x4_S2, zelmSub_mmT_32f_5x5_S2,
                    zelmSub_mmT_32f_6x6_S2, zelmSub_mmT_64f_3x3_S2, zelmSub_mmT_64f_4x4_S2, zelmSub_mmT_64f_5x5_S2,
                    zelmSub_mmT_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mmT_32f_P, zelmSub_mmT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height);
            } else {
                return pick<T, N>(zelmSub_mmT_32f_3x3_P, zelmSub_mmT_32f_4x4_P, zelmSub_mmT_32f_5x5_P,
                    zelmSub_mmT_32f_6x6_P, zelmSub_mmT_64f_3x3_P, zelmSub_mmT_64f_4x4_P, zelmSub_mmT_64f_5x5_P,
                    zelmSub_mmT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[i][j] = src1[j][i] - src2[i][j]
template <>
struct Row<Op::Sub, Kind::mT, Kind::m> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_mTm_32f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, float> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        // zelmSub_mTm_64f_6x6_S2: src2ElemStride is not read, elements of src2 lie at src1ElemStride
        if (std::is_same_v<T, double> && N == 6 && wanted == Layout::S2) {
            return {Layout::S2, 0, Guard::none};
        }
        // zelmSub_mTm_64f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, double> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTm_32f, zelmSub_mTm_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row), size.width,
                        size.height);
            } else {
                return pick<T, N>(zelmSub_mTm_32f_3x3, zelmSub_mTm_32f_4x4, zelmSub_mTm_32f_5x5,
                    zelmSub_mTm_32f_6x6, zelmSub_mTm_64f_3x3, zelmSub_mTm_64f_4x4, zelmSub_mTm_64f_5x5,
                    zelmSub_mTm_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTm_32f_S2, zelmSub_mTm_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element), size.width, size.height);
            } else {
                return pick<T, N>(zelmSub_mTm_32f_3x3_S2, zelmSub_mTm_32f_4x4_S2, zelmSub_mTm_32f_5x5_S2,
                    zelmSub_mTm_32f_6x6_S2, zelmSub_mTm_64f_3x3_S2, zelmSub_mTm_64f_4x4_S2, zelmSub_mTm_64f_5x5_S2,
                    zelmSub_mTm_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTm_32f_P, zelmSub_mTm_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height);
            } else {
                return pick<T, N>(zelmSub_mTm_32f_3x3_P, zelmSub_mTm_32f_4x4_P, zelmSub_mTm_32f_5x5_P,
                    zelmSub_mTm_32f_6x6_P, zelmSub_mTm_64f_3x3_P, zelmSub_mTm_64f_4x4_P, zelmSub_mTm_64f_5x5_P,
                    zelmSub_mTm_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[i][j] = src1[j][i] - src2[j][i]
template <>
struct Row<Op::Sub, Kind::mT, Kind::mT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_mTmT_32f_6x6: row 3 of dst receives the values of row 2
        if (std::is_same_v<T, float> && N == 6 && wanted == Layout::standard) {
            return {Layout::S2, 6, Guard::none};
        }
        // zelmSub_mTmT_32f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, float> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        // zelmSub_mTmT_64f_P: tests entry i*height + j of a transposed operand and reads j*height + i
        if (std::is_same_v<T, double> && N == 0 && wanted == Layout::P) {
            return {wanted, N, Guard::tested_by_rows};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTmT_32f, zelmSub_mTmT_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row), size.width,
                        size.height);
            } else {
                return pick<T, N>(zelmSub_mTmT_32f_3x3, zelmSub_mTmT_32f_4x4, zelmSub_mTmT_32f_5x5,
                    zelmSub_mTmT_32f_6x6, zelmSub_mTmT_64f_3x3, zelmSub_mTmT_64f_4x4, zelmSub_mTmT_64f_5x5,
                    zelmSub_mTmT_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTmT_32f_S2, zelmSub_mTmT_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element), size.width, size.height);
            } else {
                return pick<T, N>(zelmSub_mTmT_32f_3x3_S2, zelmSub_mTmT_32f_4x4_S2, zelmSub_mTmT_32f_5x5_S2,
                    zelmSub_mTmT_32f_6x6_S2, zelmSub_mTmT_64f_3x3_S2, zelmSub_mTmT_64f_4x4_S2,
                    zelmSub_mTmT_64f_5x5_S2, zelmSub_mTmT_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTmT_32f_P, zelmSub_mTmT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height);
            } else {
                return pick<T, N>(zelmSub_mTmT_32f_3x3_P, zelmSub_mTmT_32f_4x4_P, zelmSub_mTmT_32f_5x5_P,
                    zelmSub_mTmT_32f_6x6_P, zelmSub_mTmT_64f_3x3_P, zelmSub_mTmT_64f_4x4_P, zelmSub_mTmT_64f_5x5_P,
                    zelmSub_mTmT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][i][j] - src2[i][j]
template <>
struct Row<Op::Sub, Kind::ma, Kind::m> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_mam_64f_5x5: reads column 4 of src1 at src2RowStride
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::standard) {
            return {Layout::S2, 5, Guard::none};
        }
        // zelmSub_mam_64f_3x3_L: pairs the elements of the invariant with others
        if (std::is_same_v<T, double> && N == 3 && wanted == Layout::L) {
            return {Layout::LS2, 3, Guard::none};
        }
        // zelmSub_mam_64f_5x5_L: reads column 4 of src1 at src2RowStride
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::L) {
            return {Layout::LS2, 5, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mam_32f, zelmSub_mam_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mam_32f_3x3, zelmSub_mam_32f_4x4, zelmSub_mam_32f_5x5,
                    zelmSub_mam_32f_6x6, zelmSub_mam_64f_3x3, zelmSub_mam_64f_4x4, zelmSub_mam_64f_5x5,
                    zelmSub_mam_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mam_32f_S2, zelmSub_mam_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mam_32f_3x3_S2, zelmSub_mam_32f_4x4_S2, zelmSub_mam_32f_5x5_S2,
                    zelmSub_mam_32f_6x6_S2, zelmSub_mam_64f_3x3_S2, zelmSub_mam_64f_4x4_S2, zelmSub_mam_64f_5x5_S2,
                    zelmSub_mam_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mam_32f_P, zelmSub_mam_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mam_32f_3x3_P, zelmSub_mam_32f_4x4_P, zelmSub_mam_32f_5x5_P,
                    zelmSub_mam_32f_6x6_P, zelmSub_mam_64f_3x3_P, zelmSub_mam_64f_4x4_P, zelmSub_mam_64f_5x5_P,
                    zelmSub_mam_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mam_32f_L, zelmSub_mam_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mam_32f_3x3_L, zelmSub_mam_32f_4x4_L, zelmSub_mam_32f_5x5_L,
                    zelmSub_mam_32f_6x6_L, zelmSub_mam_64f_3x3_L, zelmSub_mam_64f_4x4_L, zelmSub_mam_64f_5x5_L,
                    zelmSub_mam_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mam_32f_PS2, zelmSub_mam_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mam_32f_3x3_PS2, zelmSub_mam_32f_4x4_PS2, zelmSub_mam_32f_5x5_PS2,
                    zelmSub_mam_32f_6x6_PS2, zelmSub_mam_64f_3x3_PS2, zelmSub_mam_64f_4x4_PS2,
                    zelmSub_mam_64f_5x5_PS2, zelmSub_mam_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mam_32f_LS2, zelmSub_mam_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mam_32f_3x3_LS2, zelmSub_mam_32f_4x4_LS2, zelmSub_mam_32f_5x5_LS2,
                    zelmSub_mam_32f_6x6_LS2, zelmSub_mam_64f_3x3_LS2, zelmSub_mam_64f_4x4_LS2,
                    zelmSub_mam_64f_5x5_LS2, zelmSub_mam_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][i][j] - src2[j][i]
template <>
struct Row<Op::Sub, Kind::ma, Kind::mT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_mamT_32f_3x3: src2RowStride is not read, rows of src2 lie at src1RowStride; reads object k+1 before it stores object k; a count of 0 counts as 1
        if (std::is_same_v<T, float> && N == 3 && wanted == Layout::standard) {
            return {Layout::S2, 3, Guard::none};
        }
        // zelmSub_mamT_32f_3x3_L: src2RowStride is not read, rows of src2 lie at src1RowStride; reads object k+1 before it stores object k; a count of 0 counts as 1
        if (std::is_same_v<T, float> && N == 3 && wanted == Layout::L) {
            return {Layout::LS2, 3, Guard::none};
        }
        // zelmSub_mamT_64f_3x3: an alignment fault is raised
        if (std::is_same_v<T, double> && N == 3 && wanted == Layout::standard) {
            return {wanted, N, Guard::aligned_stores};
        }
        // zelmSub_mamT_64f_6x6: an alignment fault is raised
        if (std::is_same_v<T, double> && N == 6 && wanted == Layout::standard) {
            return {wanted, N, Guard::aligned_stores};
        }
        // zelmSub_mamT_64f_3x3_L: pairs the elements of the invariant with others
        if (std::is_same_v<T, double> && N == 3 && wanted == Layout::L) {
            return {Layout::LS2, 3, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamT_32f, zelmSub_mamT_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mamT_32f_3x3, zelmSub_mamT_32f_4x4, zelmSub_mamT_32f_5x5,
                    zelmSub_mamT_32f_6x6, zelmSub_mamT_64f_3x3, zelmSub_mamT_64f_4x4, zelmSub_mamT_64f_5x5,
                    zelmSub_mamT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamT_32f_S2, zelmSub_mamT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mamT_32f_3x3_S2, zelmSub_mamT_32f_4x4_S2, zelmSub_mamT_32f_5x5_S2,
                    zelmSub_mamT_32f_6x6_S2, zelmSub_mamT_64f_3x3_S2, zelmSub_mamT_64f_4x4_S2,
                    zelmSub_mamT_64f_5x5_S2, zelmSub_mamT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamT_32f_P, zelmSub_mamT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mamT_32f_3x3_P, zelmSub_mamT_32f_4x4_P, zelmSub_mamT_32f_5x5_P,
                    zelmSub_mamT_32f_6x6_P, zelmSub_mamT_64f_3x3_P, zelmSub_mamT_64f_4x4_P, zelmSub_mamT_64f_5x5_P,
                    zelmSub_mamT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamT_32f_L, zelmSub_mamT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mamT_32f_3x3_L, zelmSub_mamT_32f_4x4_L, zelmSub_mamT_32f_5x5_L,
                    zelmSub_mamT_32f_6x6_L, zelmSub_mamT_64f_3x3_L, zelmSub_mamT_64f_4x4_L, zelmSub_mamT_64f_5x5_L,
                    zelmSub_mamT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamT_32f_PS2, zelmSub_mamT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mamT_32f_3x3_PS2, zelmSub_mamT_32f_4x4_PS2, zelmSub_mamT_32f_5x5_PS2,
                    zelmSub_mamT_32f_6x6_PS2, zelmSub_mamT_64f_3x3_PS2, zelmSub_mamT_64f_4x4_PS2,
                    zelmSub_mamT_64f_5x5_PS2, zelmSub_mamT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamT_32f_LS2, zelmSub_mamT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mamT_32f_3x3_LS2, zelmSub_mamT_32f_4x4_LS2, zelmSub_mamT_32f_5x5_LS2,
                    zelmSub_mamT_32f_6x6_LS2, zelmSub_mamT_64f_3x3_LS2, zelmSub_mamT_64f_4x4_LS2,
                    zelmSub_mamT_64f_5x5_LS2, zelmSub_mamT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][i][j] - src2[k][i][j]
template <>
struct Row<Op::Sub, Kind::ma, Kind::ma> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_mama_64f_5x5: reads column 4 of src1 at src2RowStride
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::standard) {
            return {Layout::S2, 5, Guard::none};
        }
        // zelmSub_mama_64f_4x4_L: an alignment fault is raised
        if (std::is_same_v<T, double> && N == 4 && wanted == Layout::L) {
            return {wanted, N, Guard::aligned_stores};
        }
        // zelmSub_mama_64f_5x5_L: reads column 4 of src1 at src2RowStride
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::L) {
            return {Layout::LS2, 5, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mama_32f, zelmSub_mama_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mama_32f_3x3, zelmSub_mama_32f_4x4, zelmSub_mama_32f_5x5,
                    zelmSub_mama_32f_6x6, zelmSub_mama_64f_3x3, zelmSub_mama_64f_4x4, zelmSub_mama_64f_5x5,
                    zelmSub_mama_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mama_32f_S2, zelmSub_mama_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mama_32f_3x3_S2, zelmSub_mama_32f_4x4_S2, zelmSub_mama_32f_5x5_S2,
                    zelmSub_mama_32f_6x6_S2, zelmSub_mama_64f_3x3_S2, zelmSub_mama_64f_4x4_S2,
                    zelmSub_mama_64f_5x5_S2, zelmSub_mama_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mama_32f_P, zelmSub_mama_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mama_32f_3x3_P, zelmSub_mama_32f_4x4_P, zelmSub_mama_32f_5x5_P,
                    zelmSub_mama_32f_6x6_P, zelmSub_mama_64f_3x3_P, zelmSub_mama_64f_4x4_P, zelmSub_mama_64f_5x5_P,
                    zelmSub_mama_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mama_32f_L, zelmSub_mama_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mama_32f_3x3_L, zelmSub_mama_32f_4x4_L, zelmSub_mama_32f_5x5_L,
                    zelmSub_mama_32f_6x6_L, zelmSub_mama_64f_3x3_L, zelmSub_mama_64f_4x4_L, zelmSub_mama_64f_5x5_L,
                    zelmSub_mama_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mama_32f_PS2, zelmSub_mama_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.width, size.height,
                        count);
            } else {
                return pick<T, N>(zelmSub_mama_32f_3x3_PS2, zelmSub_mama_32f_4x4_PS2, zelmSub_mama_32f_5x5_PS2,
                    zelmSub_mama_32f_6x6_PS2, zelmSub_mama_64f_3x3_PS2, zelmSub_mama_64f_4x4_PS2,
                    zelmSub_mama_64f_5x5_PS2, zelmSub_mama_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mama_32f_LS2, zelmSub_mama_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mama_32f_3x3_LS2, zelmSub_mama_32f_4x4_LS2, zelmSub_mama_32f_5x5_LS2,
                    zelmSub_mama_32f_6x6_LS2, zelmSub_mama_64f_3x3_LS2, zelmSub_mama_64f_4x4_LS2,
                    zelmSub_mama_64f_5x5_LS2, zelmSub_mama_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][i][j] - src2[k][j][i]
template <>
struct Row<Op::Sub, Kind::ma, Kind::maT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_mamaT_64f_4x4_L: an alignment fault is raised
        if (std::is_same_v<T, double> && N == 4 && wanted == Layout::L) {
            return {wanted, N, Guard::aligned_stores};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamaT_32f, zelmSub_mamaT_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mamaT_32f_3x3, zelmSub_mamaT_32f_4x4, zelmSub_mamaT_32f_5x5,
                    zelmSub_mamaT_32f_6x6, zelmSub_mamaT_64f_3x3, zelmSub_mamaT_64f_4x4, zelmSub_mamaT_64f_5x5,
                    zelmSub_mamaT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamaT_32f_S2, zelmSub_mamaT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mamaT_32f_3x3_S2, zelmSub_mamaT_32f_4x4_S2, zelmSub_mamaT_32f_5x5_S2,
                    zelmSub_mamaT_32f_6x6_S2, zelmSub_mamaT_64f_3x3_S2, zelmSub_mamaT_64f_4x4_S2,
                    zelmSub_mamaT_64f_5x5_S2, zelmSub_mamaT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamaT_32f_P, zelmSub_mamaT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mamaT_32f_3x3_P, zelmSub_mamaT_32f_4x4_P, zelmSub_mamaT_32f_5x5_P,
                    zelmSub_mamaT_32f_6x6_P, zelmSub_mamaT_64f_3x3_P, zelmSub_mamaT_64f_4x4_P,
                    zelmSub_mamaT_64f_5x5_P, zelmSub_mamaT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamaT_32f_L, zelmSub_mamaT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mamaT_32f_3x3_L, zelmSub_mamaT_32f_4x4_L, zelmSub_mamaT_32f_5x5_L,
                    zelmSub_mamaT_32f_6x6_L, zelmSub_mamaT_64f_3x3_L, zelmSub_mamaT_64f_4x4_L,
                    zelmSub_mamaT_64f_5x5_L, zelmSub_mamaT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamaT_32f_PS2, zelmSub_mamaT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.width, size.height,
                        count);
            } else {
                return pick<T, N>(zelmSub_mamaT_32f_3x3_PS2, zelmSub_mamaT_32f_4x4_PS2, zelmSub_mamaT_32f_5x5_PS2,
                    zelmSub_mamaT_32f_6x6_PS2, zelmSub_mamaT_64f_3x3_PS2, zelmSub_mamaT_64f_4x4_PS2,
                    zelmSub_mamaT_64f_5x5_PS2, zelmSub_mamaT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mamaT_32f_LS2, zelmSub_mamaT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mamaT_32f_3x3_LS2, zelmSub_mamaT_32f_4x4_LS2, zelmSub_mamaT_32f_5x5_LS2,
                    zelmSub_mamaT_32f_6x6_LS2, zelmSub_mamaT_64f_3x3_LS2, zelmSub_mamaT_64f_4x4_LS2,
                    zelmSub_mamaT_64f_5x5_LS2, zelmSub_mamaT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][j][i] - src2[i][j]
template <>
struct Row<Op::Sub, Kind::maT, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTm_32f, zelmSub_maTm_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTm_32f_3x3, zelmSub_maTm_32f_4x4, zelmSub_maTm_32f_5x5,
                    zelmSub_maTm_32f_6x6, zelmSub_maTm_64f_3x3, zelmSub_maTm_64f_4x4, zelmSub_maTm_64f_5x5,
                    zelmSub_maTm_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTm_32f_S2, zelmSub_maTm_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTm_32f_3x3_S2, zelmSub_maTm_32f_4x4_S2, zelmSub_maTm_32f_5x5_S2,
                    zelmSub_maTm_32f_6x6_S2, zelmSub_maTm_64f_3x3_S2, zelmSub_maTm_64f_4x4_S2,
                    zelmSub_maTm_64f_5x5_S2, zelmSub_maTm_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTm_32f_P, zelmSub_maTm_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTm_32f_3x3_P, zelmSub_maTm_32f_4x4_P, zelmSub_maTm_32f_5x5_P,
                    zelmSub_maTm_32f_6x6_P, zelmSub_maTm_64f_3x3_P, zelmSub_maTm_64f_4x4_P, zelmSub_maTm_64f_5x5_P,
                    zelmSub_maTm_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTm_32f_L, zelmSub_maTm_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTm_32f_3x3_L, zelmSub_maTm_32f_4x4_L, zelmSub_maTm_32f_5x5_L,
                    zelmSub_maTm_32f_6x6_L, zelmSub_maTm_64f_3x3_L, zelmSub_maTm_64f_4x4_L, zelmSub_maTm_64f_5x5_L,
                    zelmSub_maTm_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTm_32f_PS2, zelmSub_maTm_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTm_32f_3x3_PS2, zelmSub_maTm_32f_4x4_PS2, zelmSub_maTm_32f_5x5_PS2,
                    zelmSub_maTm_32f_6x6_PS2, zelmSub_maTm_64f_3x3_PS2, zelmSub_maTm_64f_4x4_PS2,
                    zelmSub_maTm_64f_5x5_PS2, zelmSub_maTm_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTm_32f_LS2, zelmSub_maTm_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTm_32f_3x3_LS2, zelmSub_maTm_32f_4x4_LS2, zelmSub_maTm_32f_5x5_LS2,
                    zelmSub_maTm_32f_6x6_LS2, zelmSub_maTm_64f_3x3_LS2, zelmSub_maTm_64f_4x4_LS2,
                    zelmSub_maTm_64f_5x5_LS2, zelmSub_maTm_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][j][i] - src2[j][i]
template <>
struct Row<Op::Sub, Kind::maT, Kind::mT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_maTmT_64f_6x6: an alignment fault is raised
        if (std::is_same_v<T, double> && N == 6 && wanted == Layout::standard) {
            return {wanted, N, Guard::aligned_stores};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmT_32f, zelmSub_maTmT_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTmT_32f_3x3, zelmSub_maTmT_32f_4x4, zelmSub_maTmT_32f_5x5,
                    zelmSub_maTmT_32f_6x6, zelmSub_maTmT_64f_3x3, zelmSub_maTmT_64f_4x4, zelmSub_maTmT_64f_5x5,
                    zelmSub_maTmT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmT_32f_S2, zelmSub_maTmT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTmT_32f_3x3_S2, zelmSub_maTmT_32f_4x4_S2, zelmSub_maTmT_32f_5x5_S2,
                    zelmSub_maTmT_32f_6x6_S2, zelmSub_maTmT_64f_3x3_S2, zelmSub_maTmT_64f_4x4_S2,
                    zelmSub_maTmT_64f_5x5_S2, zelmSub_maTmT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmT_32f_P, zelmSub_maTmT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTmT_32f_3x3_P, zelmSub_maTmT_32f_4x4_P, zelmSub_maTmT_32f_5x5_P,
                    zelmSub_maTmT_32f_6x6_P, zelmSub_maTmT_64f_3x3_P, zelmSub_maTmT_64f_4x4_P,
                    zelmSub_maTmT_64f_5x5_P, zelmSub_maTmT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmT_32f_L, zelmSub_maTmT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTmT_32f_3x3_L, zelmSub_maTmT_32f_4x4_L, zelmSub_maTmT_32f_5x5_L,
                    zelmSub_maTmT_32f_6x6_L, zelmSub_maTmT_64f_3x3_L, zelmSub_maTmT_64f_4x4_L,
                    zelmSub_maTmT_64f_5x5_L, zelmSub_maTmT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmT_32f_PS2, zelmSub_maTmT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTmT_32f_3x3_PS2, zelmSub_maTmT_32f_4x4_PS2, zelmSub_maTmT_32f_5x5_PS2,
                    zelmSub_maTmT_32f_6x6_PS2, zelmSub_maTmT_64f_3x3_PS2, zelmSub_maTmT_64f_4x4_PS2,
                    zelmSub_maTmT_64f_5x5_PS2, zelmSub_maTmT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmT_32f_LS2, zelmSub_maTmT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTmT_32f_3x3_LS2, zelmSub_maTmT_32f_4x4_LS2, zelmSub_maTmT_32f_5x5_LS2,
                    zelmSub_maTmT_32f_6x6_LS2, zelmSub_maTmT_64f_3x3_LS2, zelmSub_maTmT_64f_4x4_LS2,
                    zelmSub_maTmT_64f_5x5_LS2, zelmSub_maTmT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][j][i] - src2[k][i][j]
template <>
struct Row<Op::Sub, Kind::maT, Kind::ma> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_maTma_64f_5x5_L: an alignment fault is raised
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::L) {
            return {wanted, N, Guard::aligned_stores};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTma_32f, zelmSub_maTma_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTma_32f_3x3, zelmSub_maTma_32f_4x4, zelmSub_maTma_32f_5x5,
                    zelmSub_maTma_32f_6x6, zelmSub_maTma_64f_3x3, zelmSub_maTma_64f_4x4, zelmSub_maTma_64f_5x5,
                    zelmSub_maTma_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTma_32f_S2, zelmSub_maTma_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTma_32f_3x3_S2, zelmSub_maTma_32f_4x4_S2, zelmSub_maTma_32f_5x5_S2,
                    zelmSub_maTma_32f_6x6_S2, zelmSub_maTma_64f_3x3_S2, zelmSub_maTma_64f_4x4_S2,
                    zelmSub_maTma_64f_5x5_S2, zelmSub_maTma_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTma_32f_P, zelmSub_maTma_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTma_32f_3x3_P, zelmSub_maTma_32f_4x4_P, zelmSub_maTma_32f_5x5_P,
                    zelmSub_maTma_32f_6x6_P, zelmSub_maTma_64f_3x3_P, zelmSub_maTma_64f_4x4_P,
                    zelmSub_maTma_64f_5x5_P, zelmSub_maTma_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTma_32f_L, zelmSub_maTma_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTma_32f_3x3_L, zelmSub_maTma_32f_4x4_L, zelmSub_maTma_32f_5x5_L,
                    zelmSub_maTma_32f_6x6_L, zelmSub_maTma_64f_3x3_L, zelmSub_maTma_64f_4x4_L,
                    zelmSub_maTma_64f_5x5_L, zelmSub_maTma_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTma_32f_PS2, zelmSub_maTma_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.width, size.height,
                        count);
            } else {
                return pick<T, N>(zelmSub_maTma_32f_3x3_PS2, zelmSub_maTma_32f_4x4_PS2, zelmSub_maTma_32f_5x5_PS2,
                    zelmSub_maTma_32f_6x6_PS2, zelmSub_maTma_64f_3x3_PS2, zelmSub_maTma_64f_4x4_PS2,
                    zelmSub_maTma_64f_5x5_PS2, zelmSub_maTma_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTma_32f_LS2, zelmSub_maTma_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTma_32f_3x3_LS2, zelmSub_maTma_32f_4x4_LS2, zelmSub_maTma_32f_5x5_LS2,
                    zelmSub_maTma_32f_6x6_LS2, zelmSub_maTma_64f_3x3_LS2, zelmSub_maTma_64f_4x4_LS2,
                    zelmSub_maTma_64f_5x5_LS2, zelmSub_maTma_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[k][j][i] - src2[k][j][i]
template <>
struct Row<Op::Sub, Kind::maT, Kind::maT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_maTmaT_32f_6x6: takes its elements from the stored places that a table names
        if (std::is_same_v<T, float> && N == 6 && wanted == Layout::standard) {
            return {Layout::S2, 6, Guard::none};
        }
        // zelmSub_maTmaT_32f_6x6_L: takes its elements from the stored places that a table names
        if (std::is_same_v<T, float> && N == 6 && wanted == Layout::L) {
            return {Layout::LS2, 6, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmaT_32f, zelmSub_maTmaT_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTmaT_32f_3x3, zelmSub_maTmaT_32f_4x4, zelmSub_maTmaT_32f_5x5,
                    zelmSub_maTmaT_32f_6x6, zelmSub_maTmaT_64f_3x3, zelmSub_maTmaT_64f_4x4, zelmSub_maTmaT_64f_5x5,
                    zelmSub_maTmaT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmaT_32f_S2, zelmSub_maTmaT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTmaT_32f_3x3_S2, zelmSub_maTmaT_32f_4x4_S2, zelmSub_maTmaT_32f_5x5_S2,
                    zelmSub_maTmaT_32f_6x6_S2, zelmSub_maTmaT_64f_3x3_S2, zelmSub_maTmaT_64f_4x4_S2,
                    zelmSub_maTmaT_64f_5x5_S2, zelmSub_maTmaT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmaT_32f_P, zelmSub_maTmaT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTmaT_32f_3x3_P, zelmSub_maTmaT_32f_4x4_P, zelmSub_maTmaT_32f_5x5_P,
                    zelmSub_maTmaT_32f_6x6_P, zelmSub_maTmaT_64f_3x3_P, zelmSub_maTmaT_64f_4x4_P,
                    zelmSub_maTmaT_64f_5x5_P, zelmSub_maTmaT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmaT_32f_L, zelmSub_maTmaT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTmaT_32f_3x3_L, zelmSub_maTmaT_32f_4x4_L, zelmSub_maTmaT_32f_5x5_L,
                    zelmSub_maTmaT_32f_6x6_L, zelmSub_maTmaT_64f_3x3_L, zelmSub_maTmaT_64f_4x4_L,
                    zelmSub_maTmaT_64f_5x5_L, zelmSub_maTmaT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmaT_32f_PS2, zelmSub_maTmaT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.width, size.height,
                        count);
            } else {
                return pick<T, N>(zelmSub_maTmaT_32f_3x3_PS2, zelmSub_maTmaT_32f_4x4_PS2,
                    zelmSub_maTmaT_32f_5x5_PS2, zelmSub_maTmaT_32f_6x6_PS2, zelmSub_maTmaT_64f_3x3_PS2,
                    zelmSub_maTmaT_64f_4x4_PS2, zelmSub_maTmaT_64f_5x5_PS2, zelmSub_maTmaT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_maTmaT_32f_LS2, zelmSub_maTmaT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_maTmaT_32f_3x3_LS2, zelmSub_maTmaT_32f_4x4_LS2,
                    zelmSub_maTmaT_32f_5x5_LS2, zelmSub_maTmaT_32f_6x6_LS2, zelmSub_maTmaT_64f_3x3_LS2,
                    zelmSub_maTmaT_64f_4x4_LS2, zelmSub_maTmaT_64f_5x5_LS2, zelmSub_maTmaT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[i][j] - src2[k][i][j]
template <>
struct Row<Op::Sub, Kind::m, Kind::ma> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_mma_64f_3x3_L: pairs the elements of the invariant with others
        if (std::is_same_v<T, double> && N == 3 && wanted == Layout::L) {
            return {Layout::LS2, 3, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mma_32f, zelmSub_mma_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mma_32f_3x3, zelmSub_mma_32f_4x4, zelmSub_mma_32f_5x5,
                    zelmSub_mma_32f_6x6, zelmSub_mma_64f_3x3, zelmSub_mma_64f_4x4, zelmSub_mma_64f_5x5,
                    zelmSub_mma_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mma_32f_S2, zelmSub_mma_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mma_32f_3x3_S2, zelmSub_mma_32f_4x4_S2, zelmSub_mma_32f_5x5_S2,
                    zelmSub_mma_32f_6x6_S2, zelmSub_mma_64f_3x3_S2, zelmSub_mma_64f_4x4_S2, zelmSub_mma_64f_5x5_S2,
                    zelmSub_mma_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mma_32f_P, zelmSub_mma_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mma_32f_3x3_P, zelmSub_mma_32f_4x4_P, zelmSub_mma_32f_5x5_P,
                    zelmSub_mma_32f_6x6_P, zelmSub_mma_64f_3x3_P, zelmSub_mma_64f_4x4_P, zelmSub_mma_64f_5x5_P,
                    zelmSub_mma_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mma_32f_L, zelmSub_mma_64f_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mma_32f_3x3_L, zelmSub_mma_32f_4x4_L, zelmSub_mma_32f_5x5_L,
                    zelmSub_mma_32f_6x6_L, zelmSub_mma_64f_3x3_L, zelmSub_mma_64f_4x4_L, zelmSub_mma_64f_5x5_L,
                    zelmSub_mma_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mma_32f_PS2, zelmSub_mma_64f_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mma_32f_3x3_PS2, zelmSub_mma_32f_4x4_PS2, zelmSub_mma_32f_5x5_PS2,
                    zelmSub_mma_32f_6x6_PS2, zelmSub_mma_64f_3x3_PS2, zelmSub_mma_64f_4x4_PS2,
                    zelmSub_mma_64f_5x5_PS2, zelmSub_mma_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mma_32f_LS2, zelmSub_mma_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mma_32f_3x3_LS2, zelmSub_mma_32f_4x4_LS2, zelmSub_mma_32f_5x5_LS2,
                    zelmSub_mma_32f_6x6_LS2, zelmSub_mma_64f_3x3_LS2, zelmSub_mma_64f_4x4_LS2,
                    zelmSub_mma_64f_5x5_LS2, zelmSub_mma_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[i][j] - src2[k][j][i]
template <>
struct Row<Op::Sub, Kind::m, Kind::maT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mmaT_32f, zelmSub_mmaT_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mmaT_32f_3x3, zelmSub_mmaT_32f_4x4, zelmSub_mmaT_32f_5x5,
                    zelmSub_mmaT_32f_6x6, zelmSub_mmaT_64f_3x3, zelmSub_mmaT_64f_4x4, zelmSub_mmaT_64f_5x5,
                    zelmSub_mmaT_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mmaT_32f_S2, zelmSub_mmaT_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mmaT_32f_3x3_S2, zelmSub_mmaT_32f_4x4_S2, zelmSub_mmaT_32f_5x5_S2,
                    zelmSub_mmaT_32f_6x6_S2, zelmSub_mmaT_64f_3x3_S2, zelmSub_mmaT_64f_4x4_S2,
                    zelmSub_mmaT_64f_5x5_S2, zelmSub_mmaT_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mmaT_32f_P, zelmSub_mmaT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mmaT_32f_3x3_P, zelmSub_mmaT_32f_4x4_P, zelmSub_mmaT_32f_5x5_P,
                    zelmSub_mmaT_32f_6x6_P, zelmSub_mmaT_64f_3x3_P, zelmSub_mmaT_64f_4x4_P, zelmSub_mmaT_64f_5x5_P,
                    zelmSub_mmaT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mmaT_32f_L, zelmSub_mmaT_64f_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mmaT_32f_3x3_L, zelmSub_mmaT_32f_4x4_L, zelmSub_mmaT_32f_5x5_L,
                    zelmSub_mmaT_32f_6x6_L, zelmSub_mmaT_64f_3x3_L, zelmSub_mmaT_64f_4x4_L, zelmSub_mmaT_64f_5x5_L,
                    zelmSub_mmaT_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mmaT_32f_PS2, zelmSub_mmaT_64f_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mmaT_32f_3x3_PS2, zelmSub_mmaT_32f_4x4_PS2, zelmSub_mmaT_32f_5x5_PS2,
                    zelmSub_mmaT_32f_6x6_PS2, zelmSub_mmaT_64f_3x3_PS2, zelmSub_mmaT_64f_4x4_PS2,
                    zelmSub_mmaT_64f_5x5_PS2, zelmSub_mmaT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mmaT_32f_LS2, zelmSub_mmaT_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mmaT_32f_3x3_LS2, zelmSub_mmaT_32f_4x4_LS2, zelmSub_mmaT_32f_5x5_LS2,
                    zelmSub_mmaT_32f_6x6_LS2, zelmSub_mmaT_64f_3x3_LS2, zelmSub_mmaT_64f_4x4_LS2,
                    zelmSub_mmaT_64f_5x5_LS2, zelmSub_mmaT_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[j][i] - src2[k][i][j]
template <>
struct Row<Op::Sub, Kind::mT, Kind::ma> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmSub_mTma_64f_3x3_L: pairs the elements of the invariant with others
        if (std::is_same_v<T, double> && N == 3 && wanted == Layout::L) {
            return {Layout::LS2, 3, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTma_32f, zelmSub_mTma_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTma_32f_3x3, zelmSub_mTma_32f_4x4, zelmSub_mTma_32f_5x5,
                    zelmSub_mTma_32f_6x6, zelmSub_mTma_64f_3x3, zelmSub_mTma_64f_4x4, zelmSub_mTma_64f_5x5,
                    zelmSub_mTma_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTma_32f_S2, zelmSub_mTma_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTma_32f_3x3_S2, zelmSub_mTma_32f_4x4_S2, zelmSub_mTma_32f_5x5_S2,
                    zelmSub_mTma_32f_6x6_S2, zelmSub_mTma_64f_3x3_S2, zelmSub_mTma_64f_4x4_S2,
                    zelmSub_mTma_64f_5x5_S2, zelmSub_mTma_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTma_32f_P, zelmSub_mTma_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTma_32f_3x3_P, zelmSub_mTma_32f_4x4_P, zelmSub_mTma_32f_5x5_P,
                    zelmSub_mTma_32f_6x6_P, zelmSub_mTma_64f_3x3_P, zelmSub_mTma_64f_4x4_P, zelmSub_mTma_64f_5x5_P,
                    zelmSub_mTma_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTma_32f_L, zelmSub_mTma_64f_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTma_32f_3x3_L, zelmSub_mTma_32f_4x4_L, zelmSub_mTma_32f_5x5_L,
                    zelmSub_mTma_32f_6x6_L, zelmSub_mTma_64f_3x3_L, zelmSub_mTma_64f_4x4_L, zelmSub_mTma_64f_5x5_L,
                    zelmSub_mTma_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTma_32f_PS2, zelmSub_mTma_64f_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTma_32f_3x3_PS2, zelmSub_mTma_32f_4x4_PS2, zelmSub_mTma_32f_5x5_PS2,
                    zelmSub_mTma_32f_6x6_PS2, zelmSub_mTma_64f_3x3_PS2, zelmSub_mTma_64f_4x4_PS2,
                    zelmSub_mTma_64f_5x5_PS2, zelmSub_mTma_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTma_32f_LS2, zelmSub_mTma_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTma_32f_3x3_LS2, zelmSub_mTma_32f_4x4_LS2, zelmSub_mTma_32f_5x5_LS2,
                    zelmSub_mTma_32f_6x6_LS2, zelmSub_mTma_64f_3x3_LS2, zelmSub_mTma_64f_4x4_LS2,
                    zelmSub_mTma_64f_5x5_LS2, zelmSub_mTma_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src1[j][i] - src2[k][j][i]
template <>
struct Row<Op::Sub, Kind::mT, Kind::maT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTmaT_32f, zelmSub_mTmaT_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTmaT_32f_3x3, zelmSub_mTmaT_32f_4x4, zelmSub_mTmaT_32f_5x5,
                    zelmSub_mTmaT_32f_6x6, zelmSub_mTmaT_64f_3x3, zelmSub_mTmaT_64f_4x4, zelmSub_mTmaT_64f_5x5,
                    zelmSub_mTmaT_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTmaT_32f_S2, zelmSub_mTmaT_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTmaT_32f_3x3_S2, zelmSub_mTmaT_32f_4x4_S2, zelmSub_mTmaT_32f_5x5_S2,
                    zelmSub_mTmaT_32f_6x6_S2, zelmSub_mTmaT_64f_3x3_S2, zelmSub_mTmaT_64f_4x4_S2,
                    zelmSub_mTmaT_64f_5x5_S2, zelmSub_mTmaT_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTmaT_32f_P, zelmSub_mTmaT_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTmaT_32f_3x3_P, zelmSub_mTmaT_32f_4x4_P, zelmSub_mTmaT_32f_5x5_P,
                    zelmSub_mTmaT_32f_6x6_P, zelmSub_mTmaT_64f_3x3_P, zelmSub_mTmaT_64f_4x4_P,
                    zelmSub_mTmaT_64f_5x5_P, zelmSub_mTmaT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTmaT_32f_L, zelmSub_mTmaT_64f_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTmaT_32f_3x3_L, zelmSub_mTmaT_32f_4x4_L, zelmSub_mTmaT_32f_5x5_L,
                    zelmSub_mTmaT_32f_6x6_L, zelmSub_mTmaT_64f_3x3_L, zelmSub_mTmaT_64f_4x4_L,
                    zelmSub_mTmaT_64f_5x5_L, zelmSub_mTmaT_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTmaT_32f_PS2, zelmSub_mTmaT_64f_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTmaT_32f_3x3_PS2, zelmSub_mTmaT_32f_4x4_PS2, zelmSub_mTmaT_32f_5x5_PS2,
                    zelmSub_mTmaT_32f_6x6_PS2, zelmSub_mTmaT_64f_3x3_PS2, zelmSub_mTmaT_64f_4x4_PS2,
                    zelmSub_mTmaT_64f_5x5_PS2, zelmSub_mTmaT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSub_mTmaT_32f_LS2, zelmSub_mTmaT_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmSub_mTmaT_32f_3x3_LS2, zelmSub_mTmaT_32f_4x4_LS2, zelmSub_mTmaT_32f_5x5_LS2,
                    zelmSub_mTmaT_32f_6x6_LS2, zelmSub_mTmaT_64f_3x3_LS2, zelmSub_mTmaT_64f_4x4_LS2,
                    zelmSub_mTmaT_64f_5x5_LS2, zelmSub_mTmaT_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[j] = src[j] * val
template <>
struct Row<Op::Mul, Kind::v, Kind::c> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_vc_32f, zelmMul_vc_64f)
                    (src.first, val, dst.first, size.len);
            } else {
                return pick<T, N>(zelmMul_vc_32f_3x1, zelmMul_vc_32f_4x1, zelmMul_vc_32f_5x1, zelmMul_vc_32f_6x1,
                    zelmMul_vc_64f_3x1, zelmMul_vc_64f_4x1, zelmMul_vc_64f_5x1, zelmMul_vc_64f_6x1)
                    (src.first, val, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_vc_32f_S2, zelmMul_vc_64f_S2)
                    (src.first, word(src.element), val, dst.first, word(dst.element), size.len);
            } else {
                return pick<T, N>(zelmMul_vc_32f_3x1_S2, zelmMul_vc_32f_4x1_S2, zelmMul_vc_32f_5x1_S2,
                    zelmMul_vc_32f_6x1_S2, zelmMul_vc_64f_3x1_S2, zelmMul_vc_64f_4x1_S2, zelmMul_vc_64f_5x1_S2,
                    zelmMul_vc_64f_6x1_S2)
                    (src.first, word(src.element), val, dst.first, word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_vc_32f_P, zelmMul_vc_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len);
            } else {
                return pick<T, N>(zelmMul_vc_32f_3x1_P, zelmMul_vc_32f_4x1_P, zelmMul_vc_32f_5x1_P,
                    zelmMul_vc_32f_6x1_P, zelmMul_vc_64f_3x1_P, zelmMul_vc_64f_4x1_P, zelmMul_vc_64f_5x1_P,
                    zelmMul_vc_64f_6x1_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src[k][j] * val
template <>
struct Row<Op::Mul, Kind::va, Kind::c> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_vac_32f, zelmMul_vac_64f)
                    (src.first, word(src.object), val, dst.first, word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmMul_vac_32f_3x1, zelmMul_vac_32f_4x1, zelmMul_vac_32f_5x1,
                    zelmMul_vac_32f_6x1, zelmMul_vac_64f_3x1, zelmMul_vac_64f_4x1, zelmMul_vac_64f_5x1,
                    zelmMul_vac_64f_6x1)
                    (src.first, word(src.object), val, dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_vac_32f_S2, zelmMul_vac_64f_S2)
                    (src.first, word(src.object), word(src.element), val, dst.first, word(dst.object),
                        word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmMul_vac_32f_3x1_S2, zelmMul_vac_32f_4x1_S2, zelmMul_vac_32f_5x1_S2,
                    zelmMul_vac_32f_6x1_S2, zelmMul_vac_64f_3x1_S2, zelmMul_vac_64f_4x1_S2, zelmMul_vac_64f_5x1_S2,
                    zelmMul_vac_64f_6x1_S2)
                    (src.first, word(src.object), word(src.element), val, dst.first, word(dst.object),
                        word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_vac_32f_P, zelmMul_vac_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmMul_vac_32f_3x1_P, zelmMul_vac_32f_4x1_P, zelmMul_vac_32f_5x1_P,
                    zelmMul_vac_32f_6x1_P, zelmMul_vac_64f_3x1_P, zelmMul_vac_64f_4x1_P, zelmMul_vac_64f_5x1_P,
                    zelmMul_vac_64f_6x1_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_vac_32f_L, zelmMul_vac_64f_L)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmMul_vac_32f_3x1_L, zelmMul_vac_32f_4x1_L, zelmMul_vac_32f_5x1_L,
                    zelmMul_vac_32f_6x1_L, zelmMul_vac_64f_3x1_L, zelmMul_vac_64f_4x1_L, zelmMul_vac_64f_5x1_L,
                    zelmMul_vac_64f_6x1_L)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_vac_32f_PS2, zelmMul_vac_64f_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmMul_vac_32f_3x1_PS2, zelmMul_vac_32f_4x1_PS2, zelmMul_vac_32f_5x1_PS2,
                    zelmMul_vac_32f_6x1_PS2, zelmMul_vac_64f_3x1_PS2, zelmMul_vac_64f_4x1_PS2,
                    zelmMul_vac_64f_5x1_PS2, zelmMul_vac_64f_6x1_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_vac_32f_LS2, zelmMul_vac_64f_LS2)
                    (src.table, word(src.shift), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmMul_vac_32f_3x1_LS2, zelmMul_vac_32f_4x1_LS2, zelmMul_vac_32f_5x1_LS2,
                    zelmMul_vac_32f_6x1_LS2, zelmMul_vac_64f_3x1_LS2, zelmMul_vac_64f_4x1_LS2,
                    zelmMul_vac_64f_5x1_LS2, zelmMul_vac_64f_6x1_LS2)
                    (src.table, word(src.shift), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[i][j] = src[i][j] * val
template <>
struct Row<Op::Mul, Kind::m, Kind::c> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mc_32f, zelmMul_mc_64f)
                    (src.first, word(src.row), val, dst.first, word(dst.row), size.width, size.height);
            } else {
                return pick<T, N>(zelmMul_mc_32f_3x3, zelmMul_mc_32f_4x4, zelmMul_mc_32f_5x5, zelmMul_mc_32f_6x6,
                    zelmMul_mc_64f_3x3, zelmMul_mc_64f_4x4, zelmMul_mc_64f_5x5, zelmMul_mc_64f_6x6)
                    (src.first, word(src.row), val, dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mc_32f_S2, zelmMul_mc_64f_S2)
                    (src.first, word(src.row), word(src.element), val, dst.first, word(dst.row), word(dst.element),
                        size.width, size.height);
            } else {
                return pick<T, N>(zelmMul_mc_32f_3x3_S2, zelmMul_mc_32f_4x4_S2, zelmMul_mc_32f_5x5_S2,
                    zelmMul_mc_32f_6x6_S2, zelmMul_mc_64f_3x3_S2, zelmMul_mc_64f_4x4_S2, zelmMul_mc_64f_5x5_S2,
                    zelmMul_mc_64f_6x6_S2)
                    (src.first, word(src.row), word(src.element), val, dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mc_32f_P, zelmMul_mc_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.width, size.height);
            } else {
                return pick<T, N>(zelmMul_mc_32f_3x3_P, zelmMul_mc_32f_4x4_P, zelmMul_mc_32f_5x5_P,
                    zelmMul_mc_32f_6x6_P, zelmMul_mc_64f_3x3_P, zelmMul_mc_64f_4x4_P, zelmMul_mc_64f_5x5_P,
                    zelmMul_mc_64f_6x6_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[i][j] = src[j][i] * val
template <>
struct Row<Op::Mul, Kind::mT, Kind::c> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTc_32f, zelmMul_mTc_64f)
                    (src.first, word(src.row), val, dst.first, word(dst.row), size.width, size.height);
            } else {
                return pick<T, N>(zelmMul_mTc_32f_3x3, zelmMul_mTc_32f_4x4, zelmMul_mTc_32f_5x5,
                    zelmMul_mTc_32f_6x6, zelmMul_mTc_64f_3x3, zelmMul_mTc_64f_4x4, zelmMul_mTc_64f_5x5,
                    zelmMul_mTc_64f_6x6)
                    (src.first, word(src.row), val, dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTc_32f_S2, zelmMul_mTc_64f_S2)
                    (src.first, word(src.row), word(src.element), val, dst.first, word(dst.row), word(dst.element),
                        size.width, size.height);
            } else {
                return pick<T, N>(zelmMul_mTc_32f_3x3_S2, zelmMul_mTc_32f_4x4_S2, zelmMul_mTc_32f_5x5_S2,
                    zelmMul_mTc_32f_6x6_S2, zelmMul_mTc_64f_3x3_S2, zelmMul_mTc_64f_4x4_S2, zelmMul_mTc_64f_5x5_S2,
                    zelmMul_mTc_64f_6x6_S2)
                    (src.first, word(src.row), word(src.element), val, dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTc_32f_P, zelmMul_mTc_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.width, size.height);
            } else {
                return pick<T, N>(zelmMul_mTc_32f_3x3_P, zelmMul_mTc_32f_4x4_P, zelmMul_mTc_32f_5x5_P,
                    zelmMul_mTc_32f_6x6_P, zelmMul_mTc_64f_3x3_P, zelmMul_mTc_64f_4x4_P, zelmMul_mTc_64f_5x5_P,
                    zelmMul_mTc_64f_6x6_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src[k][i][j] * val
template <>
struct Row<Op::Mul, Kind::ma, Kind::c> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mac_32f, zelmMul_mac_64f)
                    (src.first, word(src.object), word(src.row), val, dst.first, word(dst.object), word(dst.row),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_mac_32f_3x3, zelmMul_mac_32f_4x4, zelmMul_mac_32f_5x5,
                    zelmMul_mac_32f_6x6, zelmMul_mac_64f_3x3, zelmMul_mac_64f_4x4, zelmMul_mac_64f_5x5,
                    zelmMul_mac_64f_6x6)
                    (src.first, word(src.object), word(src.row), val, dst.first, word(dst.object), word(dst.row),
                        count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mac_32f_S2, zelmMul_mac_64f_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), val, dst.first,
                        word(dst.object), word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_mac_32f_3x3_S2, zelmMul_mac_32f_4x4_S2, zelmMul_mac_32f_5x5_S2,
                    zelmMul_mac_32f_6x6_S2, zelmMul_mac_64f_3x3_S2, zelmMul_mac_64f_4x4_S2, zelmMul_mac_64f_5x5_S2,
                    zelmMul_mac_64f_6x6_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), val, dst.first,
                        word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mac_32f_P, zelmMul_mac_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_mac_32f_3x3_P, zelmMul_mac_32f_4x4_P, zelmMul_mac_32f_5x5_P,
                    zelmMul_mac_32f_6x6_P, zelmMul_mac_64f_3x3_P, zelmMul_mac_64f_4x4_P, zelmMul_mac_64f_5x5_P,
                    zelmMul_mac_64f_6x6_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mac_32f_L, zelmMul_mac_64f_L)
                    (src.table, word(src.shift), word(src.row), val, dst.table, word(dst.shift), word(dst.row),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_mac_32f_3x3_L, zelmMul_mac_32f_4x4_L, zelmMul_mac_32f_5x5_L,
                    zelmMul_mac_32f_6x6_L, zelmMul_mac_64f_3x3_L, zelmMul_mac_64f_4x4_L, zelmMul_mac_64f_5x5_L,
                    zelmMul_mac_64f_6x6_L)
                    (src.table, word(src.shift), word(src.row), val, dst.table, word(dst.shift), word(dst.row),
                        count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mac_32f_PS2, zelmMul_mac_64f_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_mac_32f_3x3_PS2, zelmMul_mac_32f_4x4_PS2, zelmMul_mac_32f_5x5_PS2,
                    zelmMul_mac_32f_6x6_PS2, zelmMul_mac_64f_3x3_PS2, zelmMul_mac_64f_4x4_PS2,
                    zelmMul_mac_64f_5x5_PS2, zelmMul_mac_64f_6x6_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mac_32f_LS2, zelmMul_mac_64f_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_mac_32f_3x3_LS2, zelmMul_mac_32f_4x4_LS2, zelmMul_mac_32f_5x5_LS2,
                    zelmMul_mac_32f_6x6_LS2, zelmMul_mac_64f_3x3_LS2, zelmMul_mac_64f_4x4_LS2,
                    zelmMul_mac_64f_5x5_LS2, zelmMul_mac_64f_6x6_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src[k][j][i] * val
template <>
struct Row<Op::Mul, Kind::maT, Kind::c> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &val, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTc_32f, zelmMul_maTc_64f)
                    (src.first, word(src.object), word(src.row), val, dst.first, word(dst.object), word(dst.row),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_maTc_32f_3x3, zelmMul_maTc_32f_4x4, zelmMul_maTc_32f_5x5,
                    zelmMul_maTc_32f_6x6, zelmMul_maTc_64f_3x3, zelmMul_maTc_64f_4x4, zelmMul_maTc_64f_5x5,
                    zelmMul_maTc_64f_6x6)
                    (src.first, word(src.object), word(src.row), val, dst.first, word(dst.object), word(dst.row),
                        count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTc_32f_S2, zelmMul_maTc_64f_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), val, dst.first,
                        word(dst.object), word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_maTc_32f_3x3_S2, zelmMul_maTc_32f_4x4_S2, zelmMul_maTc_32f_5x5_S2,
                    zelmMul_maTc_32f_6x6_S2, zelmMul_maTc_64f_3x3_S2, zelmMul_maTc_64f_4x4_S2,
                    zelmMul_maTc_64f_5x5_S2, zelmMul_maTc_64f_6x6_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), val, dst.first,
                        word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTc_32f_P, zelmMul_maTc_64f_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_maTc_32f_3x3_P, zelmMul_maTc_32f_4x4_P, zelmMul_maTc_32f_5x5_P,
                    zelmMul_maTc_32f_6x6_P, zelmMul_maTc_64f_3x3_P, zelmMul_maTc_64f_4x4_P, zelmMul_maTc_64f_5x5_P,
                    zelmMul_maTc_64f_6x6_P)
                    (src.table, word(src.shift), val, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTc_32f_L, zelmMul_maTc_64f_L)
                    (src.table, word(src.shift), word(src.row), val, dst.table, word(dst.shift), word(dst.row),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_maTc_32f_3x3_L, zelmMul_maTc_32f_4x4_L, zelmMul_maTc_32f_5x5_L,
                    zelmMul_maTc_32f_6x6_L, zelmMul_maTc_64f_3x3_L, zelmMul_maTc_64f_4x4_L, zelmMul_maTc_64f_5x5_L,
                    zelmMul_maTc_64f_6x6_L)
                    (src.table, word(src.shift), word(src.row), val, dst.table, word(dst.shift), word(dst.row),
                        count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTc_32f_PS2, zelmMul_maTc_64f_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_maTc_32f_3x3_PS2, zelmMul_maTc_32f_4x4_PS2, zelmMul_maTc_32f_5x5_PS2,
                    zelmMul_maTc_32f_6x6_PS2, zelmMul_maTc_64f_3x3_PS2, zelmMul_maTc_64f_4x4_PS2,
                    zelmMul_maTc_64f_5x5_PS2, zelmMul_maTc_64f_6x6_PS2)
                    (src.table, word(src.shift), word(src.object), val, dst.table, word(dst.shift),
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTc_32f_LS2, zelmMul_maTc_64f_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmMul_maTc_32f_3x3_LS2, zelmMul_maTc_32f_4x4_LS2, zelmMul_maTc_32f_5x5_LS2,
                    zelmMul_maTc_32f_6x6_LS2, zelmMul_maTc_64f_3x3_LS2, zelmMul_maTc_64f_4x4_LS2,
                    zelmMul_maTc_64f_5x5_LS2, zelmMul_maTc_64f_6x6_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), val, dst.table, word(dst.shift),
                        word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[j] = src1[j] * scale + src2[j]
template <>
struct Row<Op::Saxpy, Kind::v, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &scale, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vv_32f, zelmSaxpy_vv_64f)
                    (src1.first, scale, src2.first, dst.first, size.len);
            } else {
                return pick<T, N>(zelmSaxpy_vv_32f_3x1, zelmSaxpy_vv_32f_4x1, zelmSaxpy_vv_32f_5x1,
                    zelmSaxpy_vv_32f_6x1, zelmSaxpy_vv_64f_3x1, zelmSaxpy_vv_64f_4x1, zelmSaxpy_vv_64f_5x1,
                    zelmSaxpy_vv_64f_6x1)
                    (src1.first, scale, src2.first, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vv_32f_S2, zelmSaxpy_vv_64f_S2)
                    (src1.first, word(src1.element), scale, src2.first, word(src2.element), dst.first,
                        word(dst.element), size.len);
            } else {
                return pick<T, N>(zelmSaxpy_vv_32f_3x1_S2, zelmSaxpy_vv_32f_4x1_S2, zelmSaxpy_vv_32f_5x1_S2,
                    zelmSaxpy_vv_32f_6x1_S2, zelmSaxpy_vv_64f_3x1_S2, zelmSaxpy_vv_64f_4x1_S2,
                    zelmSaxpy_vv_64f_5x1_S2, zelmSaxpy_vv_64f_6x1_S2)
                    (src1.first, word(src1.element), scale, src2.first, word(src2.element), dst.first,
                        word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vv_32f_P, zelmSaxpy_vv_64f_P)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len);
            } else {
                return pick<T, N>(zelmSaxpy_vv_32f_3x1_P, zelmSaxpy_vv_32f_4x1_P, zelmSaxpy_vv_32f_5x1_P,
                    zelmSaxpy_vv_32f_6x1_P, zelmSaxpy_vv_64f_3x1_P, zelmSaxpy_vv_64f_4x1_P, zelmSaxpy_vv_64f_5x1_P,
                    zelmSaxpy_vv_64f_6x1_P)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src1[k][j] * scale + src2[j]
template <>
struct Row<Op::Saxpy, Kind::va, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &scale, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vav_32f, zelmSaxpy_vav_64f)
                    (src1.first, word(src1.object), scale, src2.first, dst.first, word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vav_32f_3x1, zelmSaxpy_vav_32f_4x1, zelmSaxpy_vav_32f_5x1,
                    zelmSaxpy_vav_32f_6x1, zelmSaxpy_vav_64f_3x1, zelmSaxpy_vav_64f_4x1, zelmSaxpy_vav_64f_5x1,
                    zelmSaxpy_vav_64f_6x1)
                    (src1.first, word(src1.object), scale, src2.first, dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vav_32f_S2, zelmSaxpy_vav_64f_S2)
                    (src1.first, word(src1.object), word(src1.element), scale, src2.first, word(src2.element),
                        dst.first, word(dst.object), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vav_32f_3x1_S2, zelmSaxpy_vav_32f_4x1_S2, zelmSaxpy_vav_32f_5x1_S2,
                    zelmSaxpy_vav_32f_6x1_S2, zelmSaxpy_vav_64f_3x1_S2, zelmSaxpy_vav_64f_4x1_S2,
                    zelmSaxpy_vav_64f_5x1_S2, zelmSaxpy_vav_64f_6x1_S2)
                    (src1.first, word(src1.object), word(src1.element), scale, src2.first, word(src2.element),
                        dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vav_32f_P, zelmSaxpy_vav_64f_P)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vav_32f_3x1_P, zelmSaxpy_vav_32f_4x1_P, zelmSaxpy_vav_32f_5x1_P,
                    zelmSaxpy_vav_32f_6x1_P, zelmSaxpy_vav_64f_3x1_P, zelmSaxpy_vav_64f_4x1_P,
                    zelmSaxpy_vav_64f_5x1_P, zelmSaxpy_vav_64f_6x1_P)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), dst.table, word(dst.shift),
                        count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vav_32f_L, zelmSaxpy_vav_64f_L)
                    (src1.table, word(src1.shift), scale, src2.first, dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vav_32f_3x1_L, zelmSaxpy_vav_32f_4x1_L, zelmSaxpy_vav_32f_5x1_L,
                    zelmSaxpy_vav_32f_6x1_L, zelmSaxpy_vav_64f_3x1_L, zelmSaxpy_vav_64f_4x1_L,
                    zelmSaxpy_vav_64f_5x1_L, zelmSaxpy_vav_64f_6x1_L)
                    (src1.table, word(src1.shift), scale, src2.first, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vav_32f_PS2, zelmSaxpy_vav_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), scale, src2.table, word(src2.shift),
                        dst.table, word(dst.shift), word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vav_32f_3x1_PS2, zelmSaxpy_vav_32f_4x1_PS2, zelmSaxpy_vav_32f_5x1_PS2,
                    zelmSaxpy_vav_32f_6x1_PS2, zelmSaxpy_vav_64f_3x1_PS2, zelmSaxpy_vav_64f_4x1_PS2,
                    zelmSaxpy_vav_64f_5x1_PS2, zelmSaxpy_vav_64f_6x1_PS2)
                    (src1.table, word(src1.shift), word(src1.object), scale, src2.table, word(src2.shift),
                        dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vav_32f_LS2, zelmSaxpy_vav_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.element), scale, src2.first, word(src2.element),
                        dst.table, word(dst.shift), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vav_32f_3x1_LS2, zelmSaxpy_vav_32f_4x1_LS2, zelmSaxpy_vav_32f_5x1_LS2,
                    zelmSaxpy_vav_32f_6x1_LS2, zelmSaxpy_vav_64f_3x1_LS2, zelmSaxpy_vav_64f_4x1_LS2,
                    zelmSaxpy_vav_64f_5x1_LS2, zelmSaxpy_vav_64f_6x1_LS2)
                    (src1.table, word(src1.shift), word(src1.element), scale, src2.first, word(src2.element),
                        dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src1[k][j] * scale + src2[k][j]
template <>
struct Row<Op::Saxpy, Kind::va, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &scale, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vava_32f, zelmSaxpy_vava_64f)
                    (src1.first, word(src1.object), scale, src2.first, word(src2.object), dst.first,
                        word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vava_32f_3x1, zelmSaxpy_vava_32f_4x1, zelmSaxpy_vava_32f_5x1,
                    zelmSaxpy_vava_32f_6x1, zelmSaxpy_vava_64f_3x1, zelmSaxpy_vava_64f_4x1, zelmSaxpy_vava_64f_5x1,
                    zelmSaxpy_vava_64f_6x1)
                    (src1.first, word(src1.object), scale, src2.first, word(src2.object), dst.first,
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vava_32f_S2, zelmSaxpy_vava_64f_S2)
                    (src1.first, word(src1.object), word(src1.element), scale, src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vava_32f_3x1_S2, zelmSaxpy_vava_32f_4x1_S2, zelmSaxpy_vava_32f_5x1_S2,
                    zelmSaxpy_vava_32f_6x1_S2, zelmSaxpy_vava_64f_3x1_S2, zelmSaxpy_vava_64f_4x1_S2,
                    zelmSaxpy_vava_64f_5x1_S2, zelmSaxpy_vava_64f_6x1_S2)
                    (src1.first, word(src1.object), word(src1.element), scale, src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vava_32f_P, zelmSaxpy_vava_64f_P)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vava_32f_3x1_P, zelmSaxpy_vava_32f_4x1_P, zelmSaxpy_vava_32f_5x1_P,
                    zelmSaxpy_vava_32f_6x1_P, zelmSaxpy_vava_64f_3x1_P, zelmSaxpy_vava_64f_4x1_P,
                    zelmSaxpy_vava_64f_5x1_P, zelmSaxpy_vava_64f_6x1_P)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), dst.table, word(dst.shift),
                        count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vava_32f_L, zelmSaxpy_vava_64f_L)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vava_32f_3x1_L, zelmSaxpy_vava_32f_4x1_L, zelmSaxpy_vava_32f_5x1_L,
                    zelmSaxpy_vava_32f_6x1_L, zelmSaxpy_vava_64f_3x1_L, zelmSaxpy_vava_64f_4x1_L,
                    zelmSaxpy_vava_64f_5x1_L, zelmSaxpy_vava_64f_6x1_L)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), dst.table, word(dst.shift),
                        count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vava_32f_PS2, zelmSaxpy_vava_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), scale, src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vava_32f_3x1_PS2, zelmSaxpy_vava_32f_4x1_PS2,
                    zelmSaxpy_vava_32f_5x1_PS2, zelmSaxpy_vava_32f_6x1_PS2, zelmSaxpy_vava_64f_3x1_PS2,
                    zelmSaxpy_vava_64f_4x1_PS2, zelmSaxpy_vava_64f_5x1_PS2, zelmSaxpy_vava_64f_6x1_PS2)
                    (src1.table, word(src1.shift), word(src1.object), scale, src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vava_32f_LS2, zelmSaxpy_vava_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.element), scale, src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vava_32f_3x1_LS2, zelmSaxpy_vava_32f_4x1_LS2,
                    zelmSaxpy_vava_32f_5x1_LS2, zelmSaxpy_vava_32f_6x1_LS2, zelmSaxpy_vava_64f_3x1_LS2,
                    zelmSaxpy_vava_64f_4x1_LS2, zelmSaxpy_vava_64f_5x1_LS2, zelmSaxpy_vava_64f_6x1_LS2)
                    (src1.table, word(src1.shift), word(src1.element), scale, src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src1[j] * scale + src2[k][j]
template <>
struct Row<Op::Saxpy, Kind::v, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &scale, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vva_32f, zelmSaxpy_vva_64f)
                    (src1.first, scale, src2.first, word(src2.object), dst.first, word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vva_32f_3x1, zelmSaxpy_vva_32f_4x1, zelmSaxpy_vva_32f_5x1,
                    zelmSaxpy_vva_32f_6x1, zelmSaxpy_vva_64f_3x1, zelmSaxpy_vva_64f_4x1, zelmSaxpy_vva_64f_5x1,
                    zelmSaxpy_vva_64f_6x1)
                    (src1.first, scale, src2.first, word(src2.object), dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vva_32f_S2, zelmSaxpy_vva_64f_S2)
                    (src1.first, word(src1.element), scale, src2.first, word(src2.object), word(src2.element),
                        dst.first, word(dst.object), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vva_32f_3x1_S2, zelmSaxpy_vva_32f_4x1_S2, zelmSaxpy_vva_32f_5x1_S2,
                    zelmSaxpy_vva_32f_6x1_S2, zelmSaxpy_vva_64f_3x1_S2, zelmSaxpy_vva_64f_4x1_S2,
                    zelmSaxpy_vva_64f_5x1_S2, zelmSaxpy_vva_64f_6x1_S2)
                    (src1.first, word(src1.element), scale, src2.first, word(src2.object), word(src2.element),
                        dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vva_32f_P, zelmSaxpy_vva_64f_P)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), dst.table, word(dst.shift),
                        size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vva_32f_3x1_P, zelmSaxpy_vva_32f_4x1_P, zelmSaxpy_vva_32f_5x1_P,
                    zelmSaxpy_vva_32f_6x1_P, zelmSaxpy_vva_64f_3x1_P, zelmSaxpy_vva_64f_4x1_P,
                    zelmSaxpy_vva_64f_5x1_P, zelmSaxpy_vva_64f_6x1_P)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), dst.table, word(dst.shift),
                        count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vva_32f_L, zelmSaxpy_vva_64f_L)
                    (src1.first, scale, src2.table, word(src2.shift), dst.table, word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vva_32f_3x1_L, zelmSaxpy_vva_32f_4x1_L, zelmSaxpy_vva_32f_5x1_L,
                    zelmSaxpy_vva_32f_6x1_L, zelmSaxpy_vva_64f_3x1_L, zelmSaxpy_vva_64f_4x1_L,
                    zelmSaxpy_vva_64f_5x1_L, zelmSaxpy_vva_64f_6x1_L)
                    (src1.first, scale, src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vva_32f_PS2, zelmSaxpy_vva_64f_PS2)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), word(src2.object),
                        dst.table, word(dst.shift), word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vva_32f_3x1_PS2, zelmSaxpy_vva_32f_4x1_PS2, zelmSaxpy_vva_32f_5x1_PS2,
                    zelmSaxpy_vva_32f_6x1_PS2, zelmSaxpy_vva_64f_3x1_PS2, zelmSaxpy_vva_64f_4x1_PS2,
                    zelmSaxpy_vva_64f_5x1_PS2, zelmSaxpy_vva_64f_6x1_PS2)
                    (src1.table, word(src1.shift), scale, src2.table, word(src2.shift), word(src2.object),
                        dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmSaxpy_vva_32f_LS2, zelmSaxpy_vva_64f_LS2)
                    (src1.first, word(src1.element), scale, src2.table, word(src2.shift), word(src2.element),
                        dst.table, word(dst.shift), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmSaxpy_vva_32f_3x1_LS2, zelmSaxpy_vva_32f_4x1_LS2, zelmSaxpy_vva_32f_5x1_LS2,
                    zelmSaxpy_vva_32f_6x1_LS2, zelmSaxpy_vva_64f_3x1_LS2, zelmSaxpy_vva_64f_4x1_LS2,
                    zelmSaxpy_vva_64f_5x1_LS2, zelmSaxpy_vva_64f_6x1_LS2)
                    (src1.first, word(src1.element), scale, src2.table, word(src2.shift), word(src2.element),
                        dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[j] = src1[j] * scale1 + src2[j] * scale2
template <>
struct Row<Op::LComb, Kind::v, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &scale1, const auto &src2, const auto &scale2,
        const auto &dst, [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vv_32f, zelmLComb_vv_64f)
                    (src1.first, scale1, src2.first, scale2, dst.first, size.len);
            } else {
                return pick<T, N>(zelmLComb_vv_32f_3x1, zelmLComb_vv_32f_4x1, zelmLComb_vv_32f_5x1,
                    zelmLComb_vv_32f_6x1, zelmLComb_vv_64f_3x1, zelmLComb_vv_64f_4x1, zelmLComb_vv_64f_5x1,
                    zelmLComb_vv_64f_6x1)
                    (src1.first, scale1, src2.first, scale2, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vv_32f_S2, zelmLComb_vv_64f_S2)
                    (src1.first, word(src1.element), scale1, src2.first, word(src2.element), scale2, dst.first,
                        word(dst.element), size.len);
            } else {
                return pick<T, N>(zelmLComb_vv_32f_3x1_S2, zelmLComb_vv_32f_4x1_S2, zelmLComb_vv_32f_5x1_S2,
                    zelmLComb_vv_32f_6x1_S2, zelmLComb_vv_64f_3x1_S2, zelmLComb_vv_64f_4x1_S2,
                    zelmLComb_vv_64f_5x1_S2, zelmLComb_vv_64f_6x1_S2)
                    (src1.first, word(src1.element), scale1, src2.first, word(src2.element), scale2, dst.first,
                        word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vv_32f_P, zelmLComb_vv_64f_P)
                    (src1.table, word(src1.shift), scale1, src2.table, word(src2.shift), scale2, dst.table,
                        word(dst.shift), size.len);
            } else {
                return pick<T, N>(zelmLComb_vv_32f_3x1_P, zelmLComb_vv_32f_4x1_P, zelmLComb_vv_32f_5x1_P,
                    zelmLComb_vv_32f_6x1_P, zelmLComb_vv_64f_3x1_P, zelmLComb_vv_64f_4x1_P, zelmLComb_vv_64f_5x1_P,
                    zelmLComb_vv_64f_6x1_P)
                    (src1.table, word(src1.shift), scale1, src2.table, word(src2.shift), scale2, dst.table,
                        word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src1[k][j] * scale1 + src2[j] * scale2
template <>
struct Row<Op::LComb, Kind::va, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &scale1, const auto &src2, const auto &scale2,
        const auto &dst, [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vav_32f, zelmLComb_vav_64f)
                    (src1.first, word(src1.object), scale1, src2.first, scale2, dst.first, word(dst.object),
                        size.len, count);
            } else {
                return pick<T, N>(zelmLComb_vav_32f_3x1, zelmLComb_vav_32f_4x1, zelmLComb_vav_32f_5x1,
                    zelmLComb_vav_32f_6x1, zelmLComb_vav_64f_3x1, zelmLComb_vav_64f_4x1, zelmLComb_vav_64f_5x1,
                    zelmLComb_vav_64f_6x1)
                    (src1.first, word(src1.object), scale1, src2.first, scale2, dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vav_32f_S2, zelmLComb_vav_64f_S2)
                    (src1.first, word(src1.object), word(src1.element), scale1, src2.first, word(src2.element),
                        scale2, dst.first, word(dst.object), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmLComb_vav_32f_3x1_S2, zelmLComb_vav_32f_4x1_S2, zelmLComb_vav_32f_5x1_S2,
                    zelmLComb_vav_32f_6x1_S2, zelmLComb_vav_64f_3x1_S2, zelmLComb_vav_64f_4x1_S2,
                    zelmLComb_vav_64f_5x1_S2, zelmLComb_vav_64f_6x1_S2)
                    (src1.first, word(src1.object), word(src1.element), scale1, src2.first, word(src2.element),
                        scale2, dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vav_32f_P, zelmLComb_vav_64f_P)
                    (src1.table, word(src1.shift), scale1, src2.table, word(src2.shift), scale2, dst.table,
                        word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmLComb_vav_32f_3x1_P, zelmLComb_vav_32f_4x1_P, zelmLComb_vav_32f_5x1_P,
                    zelmLComb_vav_32f_6x1_P, zelmLComb_vav_64f_3x1_P, zelmLComb_vav_64f_4x1_P,
                    zelmLComb_vav_64f_5x1_P, zelmLComb_vav_64f_6x1_P)
                    (src1.table, word(src1.shift), scale1, src2.table, word(src2.shift), scale2, dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vav_32f_L, zelmLComb_vav_64f_L)
                    (src1.table, word(src1.shift), scale1, src2.first, scale2, dst.table, word(dst.shift), size.len,
                        count);
            } else {
                return pick<T, N>(zelmLComb_vav_32f_3x1_L, zelmLComb_vav_32f_4x1_L, zelmLComb_vav_32f_5x1_L,
                    zelmLComb_vav_32f_6x1_L, zelmLComb_vav_64f_3x1_L, zelmLComb_vav_64f_4x1_L,
                    zelmLComb_vav_64f_5x1_L, zelmLComb_vav_64f_6x1_L)
                    (src1.table, word(src1.shift), scale1, src2.first, scale2, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vav_32f_PS2, zelmLComb_vav_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), scale1, src2.table, word(src2.shift), scale2,
                        dst.table, word(dst.shift), word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmLComb_vav_32f_3x1_PS2, zelmLComb_vav_32f_4x1_PS2, zelmLComb_vav_32f_5x1_PS2,
                    zelmLComb_vav_32f_6x1_PS2, zelmLComb_vav_64f_3x1_PS2, zelmLComb_vav_64f_4x1_PS2,
                    zelmLComb_vav_64f_5x1_PS2, zelmLComb_vav_64f_6x1_PS2)
                    (src1.table, word(src1.shift), word(src1.object), scale1, src2.table, word(src2.shift), scale2,
                        dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vav_32f_LS2, zelmLComb_vav_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.element), scale1, src2.first, word(src2.element),
                        scale2, dst.table, word(dst.shift), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmLComb_vav_32f_3x1_LS2, zelmLComb_vav_32f_4x1_LS2, zelmLComb_vav_32f_5x1_LS2,
                    zelmLComb_vav_32f_6x1_LS2, zelmLComb_vav_64f_3x1_LS2, zelmLComb_vav_64f_4x1_LS2,
                    zelmLComb_vav_64f_5x1_LS2, zelmLComb_vav_64f_6x1_LS2)
                    (src1.table, word(src1.shift), word(src1.element), scale1, src2.first, word(src2.element),
                        scale2, dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src1[k][j] * scale1 + src2[k][j] * scale2
template <>
struct Row<Op::LComb, Kind::va, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &scale1, const auto &src2, const auto &scale2,
        const auto &dst, [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vava_32f, zelmLComb_vava_64f)
                    (src1.first, word(src1.object), scale1, src2.first, word(src2.object), scale2, dst.first,
                        word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmLComb_vava_32f_3x1, zelmLComb_vava_32f_4x1, zelmLComb_vava_32f_5x1,
                    zelmLComb_vava_32f_6x1, zelmLComb_vava_64f_3x1, zelmLComb_vava_64f_4x1, zelmLComb_vava_64f_5x1,
                    zelmLComb_vava_64f_6x1)
                    (src1.first, word(src1.object), scale1, src2.first, word(src2.object), scale2, dst.first,
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vava_32f_S2, zelmLComb_vava_64f_S2)
                    (src1.first, word(src1.object), word(src1.element), scale1, src2.first, word(src2.object),
                        word(src2.element), scale2, dst.first, word(dst.object), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmLComb_vava_32f_3x1_S2, zelmLComb_vava_32f_4x1_S2, zelmLComb_vava_32f_5x1_S2,
                    zelmLComb_vava_32f_6x1_S2, zelmLComb_vava_64f_3x1_S2, zelmLComb_vava_64f_4x1_S2,
                    zelmLComb_vava_64f_5x1_S2, zelmLComb_vava_64f_6x1_S2)
                    (src1.first, word(src1.object), word(src1.element), scale1, src2.first, word(src2.object),
                        word(src2.element), scale2, dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vava_32f_P, zelmLComb_vava_64f_P)
                    (src1.table, word(src1.shift), scale1, src2.table, word(src2.shift), scale2, dst.table,
                        word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmLComb_vava_32f_3x1_P, zelmLComb_vava_32f_4x1_P, zelmLComb_vava_32f_5x1_P,
                    zelmLComb_vava_32f_6x1_P, zelmLComb_vava_64f_3x1_P, zelmLComb_vava_64f_4x1_P,
                    zelmLComb_vava_64f_5x1_P, zelmLComb_vava_64f_6x1_P)
                    (src1.table, word(src1.shift), scale1, src2.table, word(src2.shift), scale2, dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vava_32f_L, zelmLComb_vava_64f_L)
                    (src1.table, word(src1.shift), scale1, src2.table, word(src2.shift), scale2, dst.table,
                        word(dst.shift), size.len, count);
            } else {
                return pick<T, N>(zelmLComb_vava_32f_3x1_L, zelmLComb_vava_32f_4x1_L, zelmLComb_vava_32f_5x1_L,
                    zelmLComb_vava_32f_6x1_L, zelmLComb_vava_64f_3x1_L, zelmLComb_vava_64f_4x1_L,
                    zelmLComb_vava_64f_5x1_L, zelmLComb_vava_64f_6x1_L)
                    (src1.table, word(src1.shift), scale1, src2.table, word(src2.shift), scale2, dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vava_32f_PS2, zelmLComb_vava_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), scale1, src2.table, word(src2.shift),
                        word(src2.object), scale2, dst.table, word(dst.shift), word(dst.object), size.len, count);
            } else {
                return pick<T, N>(zelmLComb_vava_32f_3x1_PS2, zelmLComb_vava_32f_4x1_PS2,
                    zelmLComb_vava_32f_5x1_PS2, zelmLComb_vava_32f_6x1_PS2, zelmLComb_vava_64f_3x1_PS2,
                    zelmLComb_vava_64f_4x1_PS2, zelmLComb_vava_64f_5x1_PS2, zelmLComb_vava_64f_6x1_PS2)
                    (src1.table, word(src1.shift), word(src1.object), scale1, src2.table, word(src2.shift),
                        word(src2.object), scale2, dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLComb_vava_32f_LS2, zelmLComb_vava_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.element), scale1, src2.table, word(src2.shift),
                        word(src2.element), scale2, dst.table, word(dst.shift), word(dst.element), size.len, count);
            } else {
                return pick<T, N>(zelmLComb_vava_32f_3x1_LS2, zelmLComb_vava_32f_4x1_LS2,
                    zelmLComb_vava_32f_5x1_LS2, zelmLComb_vava_32f_6x1_LS2, zelmLComb_vava_64f_3x1_LS2,
                    zelmLComb_vava_64f_4x1_LS2, zelmLComb_vava_64f_5x1_LS2, zelmLComb_vava_64f_6x1_LS2)
                    (src1.table, word(src1.shift), word(src1.element), scale1, src2.table, word(src2.shift),
                        word(src2.element), scale2, dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = sum over j of src1[j] * src2[j]
template <>
struct Row<Op::DotProduct, Kind::v, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vv_32f, zelmDotProduct_vv_64f)
                    (src1.first, src2.first, dst.first, size.len);
            } else {
                return pick<T, N>(zelmDotProduct_vv_32f_3x1, zelmDotProduct_vv_32f_4x1, zelmDotProduct_vv_32f_5x1,
                    zelmDotProduct_vv_32f_6x1, zelmDotProduct_vv_64f_3x1, zelmDotProduct_vv_64f_4x1,
                    zelmDotProduct_vv_64f_5x1, zelmDotProduct_vv_64f_6x1)
                    (src1.first, src2.first, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vv_32f_S2, zelmDotProduct_vv_64f_S2)
                    (src1.first, word(src1.element), src2.first, word(src2.element), dst.first, size.len);
            } else {
                return pick<T, N>(zelmDotProduct_vv_32f_3x1_S2, zelmDotProduct_vv_32f_4x1_S2,
                    zelmDotProduct_vv_32f_5x1_S2, zelmDotProduct_vv_32f_6x1_S2, zelmDotProduct_vv_64f_3x1_S2,
                    zelmDotProduct_vv_64f_4x1_S2, zelmDotProduct_vv_64f_5x1_S2, zelmDotProduct_vv_64f_6x1_S2)
                    (src1.first, word(src1.element), src2.first, word(src2.element), dst.first);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vv_32f_P, zelmDotProduct_vv_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.first, size.len);
            } else {
                return pick<T, N>(zelmDotProduct_vv_32f_3x1_P, zelmDotProduct_vv_32f_4x1_P,
                    zelmDotProduct_vv_32f_5x1_P, zelmDotProduct_vv_32f_6x1_P, zelmDotProduct_vv_64f_3x1_P,
                    zelmDotProduct_vv_64f_4x1_P, zelmDotProduct_vv_64f_5x1_P, zelmDotProduct_vv_64f_6x1_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.first);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = sum over j of src1[k][j] * src2[j]
template <>
struct Row<Op::DotProduct, Kind::va, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vav_32f, zelmDotProduct_vav_64f)
                    (src1.first, word(src1.object), src2.first, dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vav_32f_3x1, zelmDotProduct_vav_32f_4x1,
                    zelmDotProduct_vav_32f_5x1, zelmDotProduct_vav_32f_6x1, zelmDotProduct_vav_64f_3x1,
                    zelmDotProduct_vav_64f_4x1, zelmDotProduct_vav_64f_5x1, zelmDotProduct_vav_64f_6x1)
                    (src1.first, word(src1.object), src2.first, dst.first, count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vav_32f_S2, zelmDotProduct_vav_64f_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.element), dst.first,
                        size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vav_32f_3x1_S2, zelmDotProduct_vav_32f_4x1_S2,
                    zelmDotProduct_vav_32f_5x1_S2, zelmDotProduct_vav_32f_6x1_S2, zelmDotProduct_vav_64f_3x1_S2,
                    zelmDotProduct_vav_64f_4x1_S2, zelmDotProduct_vav_64f_5x1_S2, zelmDotProduct_vav_64f_6x1_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.element), dst.first,
                        count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vav_32f_P, zelmDotProduct_vav_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vav_32f_3x1_P, zelmDotProduct_vav_32f_4x1_P,
                    zelmDotProduct_vav_32f_5x1_P, zelmDotProduct_vav_32f_6x1_P, zelmDotProduct_vav_64f_3x1_P,
                    zelmDotProduct_vav_64f_4x1_P, zelmDotProduct_vav_64f_5x1_P, zelmDotProduct_vav_64f_6x1_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.first, count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vav_32f_L, zelmDotProduct_vav_64f_L)
                    (src1.table, word(src1.shift), src2.first, dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vav_32f_3x1_L, zelmDotProduct_vav_32f_4x1_L,
                    zelmDotProduct_vav_32f_5x1_L, zelmDotProduct_vav_32f_6x1_L, zelmDotProduct_vav_64f_3x1_L,
                    zelmDotProduct_vav_64f_4x1_L, zelmDotProduct_vav_64f_5x1_L, zelmDotProduct_vav_64f_6x1_L)
                    (src1.table, word(src1.shift), src2.first, dst.first, count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vav_32f_PS2, zelmDotProduct_vav_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.first,
                        size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vav_32f_3x1_PS2, zelmDotProduct_vav_32f_4x1_PS2,
                    zelmDotProduct_vav_32f_5x1_PS2, zelmDotProduct_vav_32f_6x1_PS2, zelmDotProduct_vav_64f_3x1_PS2,
                    zelmDotProduct_vav_64f_4x1_PS2, zelmDotProduct_vav_64f_5x1_PS2, zelmDotProduct_vav_64f_6x1_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.first, count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vav_32f_LS2, zelmDotProduct_vav_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.first, word(src2.element), dst.first,
                        size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vav_32f_3x1_LS2, zelmDotProduct_vav_32f_4x1_LS2,
                    zelmDotProduct_vav_32f_5x1_LS2, zelmDotProduct_vav_32f_6x1_LS2, zelmDotProduct_vav_64f_3x1_LS2,
                    zelmDotProduct_vav_64f_4x1_LS2, zelmDotProduct_vav_64f_5x1_LS2, zelmDotProduct_vav_64f_6x1_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.first, word(src2.element), dst.first,
                        count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = sum over j of src1[k][j] * src2[k][j]
template <>
struct Row<Op::DotProduct, Kind::va, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vava_32f, zelmDotProduct_vava_64f)
                    (src1.first, word(src1.object), src2.first, word(src2.object), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vava_32f_3x1, zelmDotProduct_vava_32f_4x1,
                    zelmDotProduct_vava_32f_5x1, zelmDotProduct_vava_32f_6x1, zelmDotProduct_vava_64f_3x1,
                    zelmDotProduct_vava_64f_4x1, zelmDotProduct_vava_64f_5x1, zelmDotProduct_vava_64f_6x1)
                    (src1.first, word(src1.object), src2.first, word(src2.object), dst.first, count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vava_32f_S2, zelmDotProduct_vava_64f_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vava_32f_3x1_S2, zelmDotProduct_vava_32f_4x1_S2,
                    zelmDotProduct_vava_32f_5x1_S2, zelmDotProduct_vava_32f_6x1_S2, zelmDotProduct_vava_64f_3x1_S2,
                    zelmDotProduct_vava_64f_4x1_S2, zelmDotProduct_vava_64f_5x1_S2, zelmDotProduct_vava_64f_6x1_S2)
                    (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), dst.first, count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vava_32f_P, zelmDotProduct_vava_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vava_32f_3x1_P, zelmDotProduct_vava_32f_4x1_P,
                    zelmDotProduct_vava_32f_5x1_P, zelmDotProduct_vava_32f_6x1_P, zelmDotProduct_vava_64f_3x1_P,
                    zelmDotProduct_vava_64f_4x1_P, zelmDotProduct_vava_64f_5x1_P, zelmDotProduct_vava_64f_6x1_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.first, count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vava_32f_L, zelmDotProduct_vava_64f_L)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vava_32f_3x1_L, zelmDotProduct_vava_32f_4x1_L,
                    zelmDotProduct_vava_32f_5x1_L, zelmDotProduct_vava_32f_6x1_L, zelmDotProduct_vava_64f_3x1_L,
                    zelmDotProduct_vava_64f_4x1_L, zelmDotProduct_vava_64f_5x1_L, zelmDotProduct_vava_64f_6x1_L)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.first, count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vava_32f_PS2, zelmDotProduct_vava_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vava_32f_3x1_PS2, zelmDotProduct_vava_32f_4x1_PS2,
                    zelmDotProduct_vava_32f_5x1_PS2, zelmDotProduct_vava_32f_6x1_PS2,
                    zelmDotProduct_vava_64f_3x1_PS2, zelmDotProduct_vava_64f_4x1_PS2,
                    zelmDotProduct_vava_64f_5x1_PS2, zelmDotProduct_vava_64f_6x1_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.first, count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDotProduct_vava_32f_LS2, zelmDotProduct_vava_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmDotProduct_vava_32f_3x1_LS2, zelmDotProduct_vava_32f_4x1_LS2,
                    zelmDotProduct_vava_32f_5x1_LS2, zelmDotProduct_vava_32f_6x1_LS2,
                    zelmDotProduct_vava_64f_3x1_LS2, zelmDotProduct_vava_64f_4x1_LS2,
                    zelmDotProduct_vava_64f_5x1_LS2, zelmDotProduct_vava_64f_6x1_LS2)
                    (src1.table, word(src1.shift), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.first, count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 x src2
template <>
struct Row<Op::CrossProduct, Kind::v, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            return pick<T, N>(zelmCrossProduct_vv_32f_3x1, zelmCrossProduct_vv_64f_3x1)
                (src1.first, src2.first, dst.first);
        } else if constexpr (L == Layout::S2) {
            return pick<T, N>(zelmCrossProduct_vv_32f_3x1_S2, zelmCrossProduct_vv_64f_3x1_S2)
                (src1.first, word(src1.element), src2.first, word(src2.element), dst.first, word(dst.element));
        } else if constexpr (L == Layout::P) {
            return pick<T, N>(zelmCrossProduct_vv_32f_3x1_P, zelmCrossProduct_vv_64f_3x1_P)
                (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 x src2
template <>
struct Row<Op::CrossProduct, Kind::va, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            return pick<T, N>(zelmCrossProduct_vav_32f_3x1, zelmCrossProduct_vav_64f_3x1)
                (src1.first, word(src1.object), src2.first, dst.first, word(dst.object), count);
        } else if constexpr (L == Layout::S2) {
            return pick<T, N>(zelmCrossProduct_vav_32f_3x1_S2, zelmCrossProduct_vav_64f_3x1_S2)
                (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.element), dst.first,
                    word(dst.object), word(dst.element), count);
        } else if constexpr (L == Layout::P) {
            return pick<T, N>(zelmCrossProduct_vav_32f_3x1_P, zelmCrossProduct_vav_64f_3x1_P)
                (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
        } else if constexpr (L == Layout::L) {
            return pick<T, N>(zelmCrossProduct_vav_32f_3x1_L, zelmCrossProduct_vav_64f_3x1_L)
                (src1.table, word(src1.shift), src2.first, dst.table, word(dst.shift), count);
        } else if constexpr (L == Layout::PS2) {
            return pick<T, N>(zelmCrossProduct_vav_32f_3x1_PS2, zelmCrossProduct_vav_64f_3x1_PS2)
                (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                    word(dst.shift), word(dst.object), count);
        } else if constexpr (L == Layout::LS2) {
            return pick<T, N>(zelmCrossProduct_vav_32f_3x1_LS2, zelmCrossProduct_vav_64f_3x1_LS2)
                (src1.table, word(src1.shift), word(src1.element), src2.first, word(src2.element), dst.table,
                    word(dst.shift), word(dst.element), count);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 x src2
template <>
struct Row<Op::CrossProduct, Kind::va, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            return pick<T, N>(zelmCrossProduct_vava_32f_3x1, zelmCrossProduct_vava_64f_3x1)
                (src1.first, word(src1.object), src2.first, word(src2.object), dst.first, word(dst.object), count);
        } else if constexpr (L == Layout::S2) {
            return pick<T, N>(zelmCrossProduct_vava_32f_3x1_S2, zelmCrossProduct_vava_64f_3x1_S2)
                (src1.first, word(src1.object), word(src1.element), src2.first, word(src2.object),
                    word(src2.element), dst.first, word(dst.object), word(dst.element), count);
        } else if constexpr (L == Layout::P) {
            return pick<T, N>(zelmCrossProduct_vava_32f_3x1_P, zelmCrossProduct_vava_64f_3x1_P)
                (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
        } else if constexpr (L == Layout::L) {
            return pick<T, N>(zelmCrossProduct_vava_32f_3x1_L, zelmCrossProduct_vava_64f_3x1_L)
                (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
        } else if constexpr (L == Layout::PS2) {
            return pick<T, N>(zelmCrossProduct_vava_32f_3x1_PS2, zelmCrossProduct_vava_64f_3x1_PS2)
                (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), word(src2.object),
                    dst.table, word(dst.shift), word(dst.object), count);
        } else if constexpr (L == Layout::LS2) {
            return pick<T, N>(zelmCrossProduct_vava_32f_3x1_LS2, zelmCrossProduct_vava_64f_3x1_LS2)
                (src1.table, word(src1.shift), word(src1.element), src2.table, word(src2.shift), word(src2.element),
                    dst.table, word(dst.shift), word(dst.element), count);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 x src2
template <>
struct Row<Op::CrossProduct, Kind::v, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            return pick<T, N>(zelmCrossProduct_vva_32f_3x1, zelmCrossProduct_vva_64f_3x1)
                (src1.first, src2.first, word(src2.object), dst.first, word(dst.object), count);
        } else if constexpr (L == Layout::S2) {
            return pick<T, N>(zelmCrossProduct_vva_32f_3x1_S2, zelmCrossProduct_vva_64f_3x1_S2)
                (src1.first, word(src1.element), src2.first, word(src2.object), word(src2.element), dst.first,
                    word(dst.object), word(dst.element), count);
        } else if constexpr (L == Layout::P) {
            return pick<T, N>(zelmCrossProduct_vva_32f_3x1_P, zelmCrossProduct_vva_64f_3x1_P)
                (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
        } else if constexpr (L == Layout::L) {
            return pick<T, N>(zelmCrossProduct_vva_32f_3x1_L, zelmCrossProduct_vva_64f_3x1_L)
                (src1.first, src2.table, word(src2.shift), dst.table, word(dst.shift), count);
        } else if constexpr (L == Layout::PS2) {
            return pick<T, N>(zelmCrossProduct_vva_32f_3x1_PS2, zelmCrossProduct_vva_64f_3x1_PS2)
                (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                    word(dst.shift), word(dst.object), count);
        } else if constexpr (L == Layout::LS2) {
            return pick<T, N>(zelmCrossProduct_vva_32f_3x1_LS2, zelmCrossProduct_vva_64f_3x1_LS2)
                (src1.first, word(src1.element), src2.table, word(src2.shift), word(src2.element), dst.table,
                    word(dst.shift), word(dst.element), count);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = sqrt(sum over j of src[j]^2)
template <>
struct Row<Op::L2Norm, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmL2Norm_v_32f, zelmL2Norm_v_64f)
                    (src.first, dst.first, size.len);
            } else {
                return pick<T, N>(zelmL2Norm_v_32f_3x1, zelmL2Norm_v_32f_4x1, zelmL2Norm_v_32f_5x1,
                    zelmL2Norm_v_32f_6x1, zelmL2Norm_v_64f_3x1, zelmL2Norm_v_64f_4x1, zelmL2Norm_v_64f_5x1,
                    zelmL2Norm_v_64f_6x1)
                    (src.first, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmL2Norm_v_32f_S2, zelmL2Norm_v_64f_S2)
                    (src.first, word(src.element), dst.first, size.len);
            } else {
                return pick<T, N>(zelmL2Norm_v_32f_3x1_S2, zelmL2Norm_v_32f_4x1_S2, zelmL2Norm_v_32f_5x1_S2,
                    zelmL2Norm_v_32f_6x1_S2, zelmL2Norm_v_64f_3x1_S2, zelmL2Norm_v_64f_4x1_S2,
                    zelmL2Norm_v_64f_5x1_S2, zelmL2Norm_v_64f_6x1_S2)
                    (src.first, word(src.element), dst.first);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmL2Norm_v_32f_P, zelmL2Norm_v_64f_P)
                    (src.table, word(src.shift), dst.first, size.len);
            } else {
                return pick<T, N>(zelmL2Norm_v_32f_3x1_P, zelmL2Norm_v_32f_4x1_P, zelmL2Norm_v_32f_5x1_P,
                    zelmL2Norm_v_32f_6x1_P, zelmL2Norm_v_64f_3x1_P, zelmL2Norm_v_64f_4x1_P, zelmL2Norm_v_64f_5x1_P,
                    zelmL2Norm_v_64f_6x1_P)
                    (src.table, word(src.shift), dst.first);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = sqrt(sum over j of src[k][j]^2)
template <>
struct Row<Op::L2Norm, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size,
        std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmL2Norm_va_32f, zelmL2Norm_va_64f)
                    (src.first, word(src.object), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmL2Norm_va_32f_3x1, zelmL2Norm_va_32f_4x1, zelmL2Norm_va_32f_5x1,
                    zelmL2Norm_va_32f_6x1, zelmL2Norm_va_64f_3x1, zelmL2Norm_va_64f_4x1, zelmL2Norm_va_64f_5x1,
                    zelmL2Norm_va_64f_6x1)
                    (src.first, word(src.object), dst.first, count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmL2Norm_va_32f_S2, zelmL2Norm_va_64f_S2)
                    (src.first, word(src.object), word(src.element), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmL2Norm_va_32f_3x1_S2, zelmL2Norm_va_32f_4x1_S2, zelmL2Norm_va_32f_5x1_S2,
                    zelmL2Norm_va_32f_6x1_S2, zelmL2Norm_va_64f_3x1_S2, zelmL2Norm_va_64f_4x1_S2,
                    zelmL2Norm_va_64f_5x1_S2, zelmL2Norm_va_64f_6x1_S2)
                    (src.first, word(src.object), word(src.element), dst.first, count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmL2Norm_va_32f_P, zelmL2Norm_va_64f_P)
                    (src.table, word(src.shift), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmL2Norm_va_32f_3x1_P, zelmL2Norm_va_32f_4x1_P, zelmL2Norm_va_32f_5x1_P,
                    zelmL2Norm_va_32f_6x1_P, zelmL2Norm_va_64f_3x1_P, zelmL2Norm_va_64f_4x1_P,
                    zelmL2Norm_va_64f_5x1_P, zelmL2Norm_va_64f_6x1_P)
                    (src.table, word(src.shift), dst.first, count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmL2Norm_va_32f_L, zelmL2Norm_va_64f_L)
                    (src.table, word(src.shift), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmL2Norm_va_32f_3x1_L, zelmL2Norm_va_32f_4x1_L, zelmL2Norm_va_32f_5x1_L,
                    zelmL2Norm_va_32f_6x1_L, zelmL2Norm_va_64f_3x1_L, zelmL2Norm_va_64f_4x1_L,
                    zelmL2Norm_va_64f_5x1_L, zelmL2Norm_va_64f_6x1_L)
                    (src.table, word(src.shift), dst.first, count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmL2Norm_va_32f_PS2, zelmL2Norm_va_64f_PS2)
                    (src.table, word(src.shift), word(src.object), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmL2Norm_va_32f_3x1_PS2, zelmL2Norm_va_32f_4x1_PS2, zelmL2Norm_va_32f_5x1_PS2,
                    zelmL2Norm_va_32f_6x1_PS2, zelmL2Norm_va_64f_3x1_PS2, zelmL2Norm_va_64f_4x1_PS2,
                    zelmL2Norm_va_64f_5x1_PS2, zelmL2Norm_va_64f_6x1_PS2)
                    (src.table, word(src.shift), word(src.object), dst.first, count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmL2Norm_va_32f_LS2, zelmL2Norm_va_64f_LS2)
                    (src.table, word(src.shift), word(src.element), dst.first, size.len, count);
            } else {
                return pick<T, N>(zelmL2Norm_va_32f_3x1_LS2, zelmL2Norm_va_32f_4x1_LS2, zelmL2Norm_va_32f_5x1_LS2,
                    zelmL2Norm_va_32f_6x1_LS2, zelmL2Norm_va_64f_3x1_LS2, zelmL2Norm_va_64f_4x1_LS2,
                    zelmL2Norm_va_64f_5x1_LS2, zelmL2Norm_va_64f_6x1_LS2)
                    (src.table, word(src.shift), word(src.element), dst.first, count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = sqrt(sum over i, j of src[i][j]^2)
template <>
struct Row<Op::FrobNorm, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmFrobNorm_m_32f, zelmFrobNorm_m_64f)
                    (src.first, word(src.row), size.width, size.height, dst.first);
            } else {
                return pick<T, N>(zelmFrobNorm_m_32f_3x3, zelmFrobNorm_m_32f_4x4, zelmFrobNorm_m_32f_5x5,
                    zelmFrobNorm_m_32f_6x6, zelmFrobNorm_m_64f_3x3, zelmFrobNorm_m_64f_4x4, zelmFrobNorm_m_64f_5x5,
                    zelmFrobNorm_m_64f_6x6)
                    (src.first, word(src.row), dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmFrobNorm_m_32f_S2, zelmFrobNorm_m_64f_S2)
                    (src.first, word(src.row), word(src.element), size.width, size.height, dst.first);
            } else {
                return pick<T, N>(zelmFrobNorm_m_32f_3x3_S2, zelmFrobNorm_m_32f_4x4_S2, zelmFrobNorm_m_32f_5x5_S2,
                    zelmFrobNorm_m_32f_6x6_S2, zelmFrobNorm_m_64f_3x3_S2, zelmFrobNorm_m_64f_4x4_S2,
                    zelmFrobNorm_m_64f_5x5_S2, zelmFrobNorm_m_64f_6x6_S2)
                    (src.first, word(src.row), word(src.element), dst.first);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmFrobNorm_m_32f_P, zelmFrobNorm_m_64f_P)
                    (src.table, word(src.shift), size.width, size.height, dst.first);
            } else {
                return pick<T, N>(zelmFrobNorm_m_32f_3x3_P, zelmFrobNorm_m_32f_4x4_P, zelmFrobNorm_m_32f_5x5_P,
                    zelmFrobNorm_m_32f_6x6_P, zelmFrobNorm_m_64f_3x3_P, zelmFrobNorm_m_64f_4x4_P,
                    zelmFrobNorm_m_64f_5x5_P, zelmFrobNorm_m_64f_6x6_P)
                    (src.table, word(src.shift), dst.first);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = sum over i of src[i][i]
template <>
struct Row<Op::Trace, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTrace_m_32f, zelmTrace_m_64f)
                    (src.first, word(src.row), size.n, dst.first);
            } else {
                return pick<T, N>(zelmTrace_m_32f_3x3, zelmTrace_m_32f_4x4, zelmTrace_m_32f_5x5,
                    zelmTrace_m_32f_6x6, zelmTrace_m_64f_3x3, zelmTrace_m_64f_4x4, zelmTrace_m_64f_5x5,
                    zelmTrace_m_64f_6x6)
                    (src.first, word(src.row), dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTrace_m_32f_S2, zelmTrace_m_64f_S2)
                    (src.first, word(src.row), word(src.element), size.n, dst.first);
            } else {
                return pick<T, N>(zelmTrace_m_32f_3x3_S2, zelmTrace_m_32f_4x4_S2, zelmTrace_m_32f_5x5_S2,
                    zelmTrace_m_32f_6x6_S2, zelmTrace_m_64f_3x3_S2, zelmTrace_m_64f_4x4_S2, zelmTrace_m_64f_5x5_S2,
                    zelmTrace_m_64f_6x6_S2)
                    (src.first, word(src.row), word(src.element), dst.first);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTrace_m_32f_P, zelmTrace_m_64f_P)
                    (src.table, word(src.shift), size.n, dst.first);
            } else {
                return pick<T, N>(zelmTrace_m_32f_3x3_P, zelmTrace_m_32f_4x4_P, zelmTrace_m_32f_5x5_P,
                    zelmTrace_m_32f_6x6_P, zelmTrace_m_64f_3x3_P, zelmTrace_m_64f_4x4_P, zelmTrace_m_64f_5x5_P,
                    zelmTrace_m_64f_6x6_P)
                    (src.table, word(src.shift), dst.first);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = sqrt(sum over i, j of src[k][i][j]^2)
template <>
struct Row<Op::FrobNorm, Kind::ma> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size,
        std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmFrobNorm_ma_32f, zelmFrobNorm_ma_64f)
                    (src.first, word(src.object), word(src.row), size.width, size.height, dst.first, count);
            } else {
                return pick<T, N>(zelmFrobNorm_ma_32f_3x3, zelmFrobNorm_ma_32f_4x4, zelmFrobNorm_ma_32f_5x5,
                    zelmFrobNorm_ma_32f_6x6, zelmFrobNorm_ma_64f_3x3, zelmFrobNorm_ma_64f_4x4,
                    zelmFrobNorm_ma_64f_5x5, zelmFrobNorm_ma_64f_6x6)
                    (src.first, word(src.object), word(src.row), dst.first, count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmFrobNorm_ma_32f_S2, zelmFrobNorm_ma_64f_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), size.width, size.height,
                        dst.first, count);
            } else {
                return pick<T, N>(zelmFrobNorm_ma_32f_3x3_S2, zelmFrobNorm_ma_32f_4x4_S2,
                    zelmFrobNorm_ma_32f_5x5_S2, zelmFrobNorm_ma_32f_6x6_S2, zelmFrobNorm_ma_64f_3x3_S2,
                    zelmFrobNorm_ma_64f_4x4_S2, zelmFrobNorm_ma_64f_5x5_S2, zelmFrobNorm_ma_64f_6x6_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), dst.first, count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmFrobNorm_ma_32f_P, zelmFrobNorm_ma_64f_P)
                    (src.table, word(src.shift), size.width, size.height, dst.first, count);
            } else {
                return pick<T, N>(zelmFrobNorm_ma_32f_3x3_P, zelmFrobNorm_ma_32f_4x4_P, zelmFrobNorm_ma_32f_5x5_P,
                    zelmFrobNorm_ma_32f_6x6_P, zelmFrobNorm_ma_64f_3x3_P, zelmFrobNorm_ma_64f_4x4_P,
                    zelmFrobNorm_ma_64f_5x5_P, zelmFrobNorm_ma_64f_6x6_P)
                    (src.table, word(src.shift), dst.first, count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmFrobNorm_ma_32f_L, zelmFrobNorm_ma_64f_L)
                    (src.table, word(src.shift), word(src.row), size.width, size.height, dst.first, count);
            } else {
                return pick<T, N>(zelmFrobNorm_ma_32f_3x3_L, zelmFrobNorm_ma_32f_4x4_L, zelmFrobNorm_ma_32f_5x5_L,
                    zelmFrobNorm_ma_32f_6x6_L, zelmFrobNorm_ma_64f_3x3_L, zelmFrobNorm_ma_64f_4x4_L,
                    zelmFrobNorm_ma_64f_5x5_L, zelmFrobNorm_ma_64f_6x6_L)
                    (src.table, word(src.shift), word(src.row), dst.first, count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmFrobNorm_ma_32f_PS2, zelmFrobNorm_ma_64f_PS2)
                    (src.table, word(src.shift), word(src.object), size.width, size.height, dst.first, count);
            } else {
                return pick<T, N>(zelmFrobNorm_ma_32f_3x3_PS2, zelmFrobNorm_ma_32f_4x4_PS2,
                    zelmFrobNorm_ma_32f_5x5_PS2, zelmFrobNorm_ma_32f_6x6_PS2, zelmFrobNorm_ma_64f_3x3_PS2,
                    zelmFrobNorm_ma_64f_4x4_PS2, zelmFrobNorm_ma_64f_5x5_PS2, zelmFrobNorm_ma_64f_6x6_PS2)
                    (src.table, word(src.shift), word(src.object), dst.first, count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmFrobNorm_ma_32f_LS2, zelmFrobNorm_ma_64f_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), size.width, size.height,
                        dst.first, count);
            } else {
                return pick<T, N>(zelmFrobNorm_ma_32f_3x3_LS2, zelmFrobNorm_ma_32f_4x4_LS2,
                    zelmFrobNorm_ma_32f_5x5_LS2, zelmFrobNorm_ma_32f_6x6_LS2, zelmFrobNorm_ma_64f_3x3_LS2,
                    zelmFrobNorm_ma_64f_4x4_LS2, zelmFrobNorm_ma_64f_5x5_LS2, zelmFrobNorm_ma_64f_6x6_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), dst.first, count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = sum over i of src[k][i][i]
template <>
struct Row<Op::Trace, Kind::ma> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size,
        std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTrace_ma_32f, zelmTrace_ma_64f)
                    (src.first, word(src.object), word(src.row), size.n, dst.first, count);
            } else {
                return pick<T, N>(zelmTrace_ma_32f_3x3, zelmTrace_ma_32f_4x4, zelmTrace_ma_32f_5x5,
                    zelmTrace_ma_32f_6x6, zelmTrace_ma_64f_3x3, zelmTrace_ma_64f_4x4, zelmTrace_ma_64f_5x5,
                    zelmTrace_ma_64f_6x6)
                    (src.first, word(src.object), word(src.row), dst.first, count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTrace_ma_32f_S2, zelmTrace_ma_64f_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), size.n, dst.first, count);
            } else {
                return pick<T, N>(zelmTrace_ma_32f_3x3_S2, zelmTrace_ma_32f_4x4_S2, zelmTrace_ma_32f_5x5_S2,
                    zelmTrace_ma_32f_6x6_S2, zelmTrace_ma_64f_3x3_S2, zelmTrace_ma_64f_4x4_S2,
                    zelmTrace_ma_64f_5x5_S2, zelmTrace_ma_64f_6x6_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), dst.first, count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTrace_ma_32f_P, zelmTrace_ma_64f_P)
                    (src.table, word(src.shift), size.n, dst.first, count);
            } else {
                return pick<T, N>(zelmTrace_ma_32f_3x3_P, zelmTrace_ma_32f_4x4_P, zelmTrace_ma_32f_5x5_P,
                    zelmTrace_ma_32f_6x6_P, zelmTrace_ma_64f_3x3_P, zelmTrace_ma_64f_4x4_P, zelmTrace_ma_64f_5x5_P,
                    zelmTrace_ma_64f_6x6_P)
                    (src.table, word(src.shift), dst.first, count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTrace_ma_32f_L, zelmTrace_ma_64f_L)
                    (src.table, word(src.shift), word(src.row), size.n, dst.first, count);
            } else {
                return pick<T, N>(zelmTrace_ma_32f_3x3_L, zelmTrace_ma_32f_4x4_L, zelmTrace_ma_32f_5x5_L,
                    zelmTrace_ma_32f_6x6_L, zelmTrace_ma_64f_3x3_L, zelmTrace_ma_64f_4x4_L, zelmTrace_ma_64f_5x5_L,
                    zelmTrace_ma_64f_6x6_L)
                    (src.table, word(src.shift), word(src.row), dst.first, count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTrace_ma_32f_PS2, zelmTrace_ma_64f_PS2)
                    (src.table, word(src.shift), word(src.object), size.n, dst.first, count);
            } else {
                return pick<T, N>(zelmTrace_ma_32f_3x3_PS2, zelmTrace_ma_32f_4x4_PS2, zelmTrace_ma_32f_5x5_PS2,
                    zelmTrace_ma_32f_6x6_PS2, zelmTrace_ma_64f_3x3_PS2, zelmTrace_ma_64f_4x4_PS2,
                    zelmTrace_ma_64f_5x5_PS2, zelmTrace_ma_64f_6x6_PS2)
                    (src.table, word(src.shift), word(src.object), dst.first, count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTrace_ma_32f_LS2, zelmTrace_ma_64f_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), size.n, dst.first, count);
            } else {
                return pick<T, N>(zelmTrace_ma_32f_3x3_LS2, zelmTrace_ma_32f_4x4_LS2, zelmTrace_ma_32f_5x5_LS2,
                    zelmTrace_ma_32f_6x6_LS2, zelmTrace_ma_64f_3x3_LS2, zelmTrace_ma_64f_4x4_LS2,
                    zelmTrace_ma_64f_5x5_LS2, zelmTrace_ma_64f_6x6_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), dst.first, count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::m, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mv_32f, zelmMul_mv_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, size.src2Len,
                        dst.first);
            } else {
                return pick<T, N>(zelmMul_mv_32f_3x3, zelmMul_mv_32f_4x4, zelmMul_mv_32f_5x5, zelmMul_mv_32f_6x6,
                    zelmMul_mv_64f_3x3, zelmMul_mv_64f_4x4, zelmMul_mv_64f_5x5, zelmMul_mv_64f_6x6)
                    (src1.first, word(src1.row), src2.first, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mv_32f_S2, zelmMul_mv_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.element), size.src2Len, dst.first, word(dst.element));
            } else {
                return pick<T, N>(zelmMul_mv_32f_3x3_S2, zelmMul_mv_32f_4x4_S2, zelmMul_mv_32f_5x5_S2,
                    zelmMul_mv_32f_6x6_S2, zelmMul_mv_64f_3x3_S2, zelmMul_mv_64f_4x4_S2, zelmMul_mv_64f_5x5_S2,
                    zelmMul_mv_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.element), dst.first,
                        word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mv_32f_P, zelmMul_mv_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Len, dst.table, word(dst.shift));
            } else {
                return pick<T, N>(zelmMul_mv_32f_3x3_P, zelmMul_mv_32f_4x4_P, zelmMul_mv_32f_5x5_P,
                    zelmMul_mv_32f_6x6_P, zelmMul_mv_64f_3x3_P, zelmMul_mv_64f_4x4_P, zelmMul_mv_64f_5x5_P,
                    zelmMul_mv_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::mT, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTv_32f, zelmMul_mTv_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, size.src2Len,
                        dst.first);
            } else {
                return pick<T, N>(zelmMul_mTv_32f_3x3, zelmMul_mTv_32f_4x4, zelmMul_mTv_32f_5x5,
                    zelmMul_mTv_32f_6x6, zelmMul_mTv_64f_3x3, zelmMul_mTv_64f_4x4, zelmMul_mTv_64f_5x5,
                    zelmMul_mTv_64f_6x6)
                    (src1.first, word(src1.row), src2.first, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTv_32f_S2, zelmMul_mTv_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.element), size.src2Len, dst.first, word(dst.element));
            } else {
                return pick<T, N>(zelmMul_mTv_32f_3x3_S2, zelmMul_mTv_32f_4x4_S2, zelmMul_mTv_32f_5x5_S2,
                    zelmMul_mTv_32f_6x6_S2, zelmMul_mTv_64f_3x3_S2, zelmMul_mTv_64f_4x4_S2, zelmMul_mTv_64f_5x5_S2,
                    zelmMul_mTv_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.element), dst.first,
                        word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTv_32f_P, zelmMul_mTv_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Len, dst.table, word(dst.shift));
            } else {
                return pick<T, N>(zelmMul_mTv_32f_3x3_P, zelmMul_mTv_32f_4x4_P, zelmMul_mTv_32f_5x5_P,
                    zelmMul_mTv_32f_6x6_P, zelmMul_mTv_64f_3x3_P, zelmMul_mTv_64f_4x4_P, zelmMul_mTv_64f_5x5_P,
                    zelmMul_mTv_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::m, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mva_32f, zelmMul_mva_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, word(src2.object),
                        size.src2Len, dst.first, word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mva_32f_3x3, zelmMul_mva_32f_4x4, zelmMul_mva_32f_5x5,
                    zelmMul_mva_32f_6x6, zelmMul_mva_64f_3x3, zelmMul_mva_64f_4x4, zelmMul_mva_64f_5x5,
                    zelmMul_mva_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mva_32f_S2, zelmMul_mva_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), word(src2.element), size.src2Len, dst.first, word(dst.object),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mva_32f_3x3_S2, zelmMul_mva_32f_4x4_S2, zelmMul_mva_32f_5x5_S2,
                    zelmMul_mva_32f_6x6_S2, zelmMul_mva_64f_3x3_S2, zelmMul_mva_64f_4x4_S2, zelmMul_mva_64f_5x5_S2,
                    zelmMul_mva_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mva_32f_P, zelmMul_mva_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mva_32f_3x3_P, zelmMul_mva_32f_4x4_P, zelmMul_mva_32f_5x5_P,
                    zelmMul_mva_32f_6x6_P, zelmMul_mva_64f_3x3_P, zelmMul_mva_64f_4x4_P, zelmMul_mva_64f_5x5_P,
                    zelmMul_mva_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mva_32f_L, zelmMul_mva_64f_L)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mva_32f_3x3_L, zelmMul_mva_32f_4x4_L, zelmMul_mva_32f_5x5_L,
                    zelmMul_mva_32f_6x6_L, zelmMul_mva_64f_3x3_L, zelmMul_mva_64f_4x4_L, zelmMul_mva_64f_5x5_L,
                    zelmMul_mva_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mva_32f_PS2, zelmMul_mva_64f_PS2)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        word(src2.object), size.src2Len, dst.table, word(dst.shift), word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mva_32f_3x3_PS2, zelmMul_mva_32f_4x4_PS2, zelmMul_mva_32f_5x5_PS2,
                    zelmMul_mva_32f_6x6_PS2, zelmMul_mva_64f_3x3_PS2, zelmMul_mva_64f_4x4_PS2,
                    zelmMul_mva_64f_5x5_PS2, zelmMul_mva_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mva_32f_LS2, zelmMul_mva_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.element), size.src2Len, dst.table, word(dst.shift),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mva_32f_3x3_LS2, zelmMul_mva_32f_4x4_LS2, zelmMul_mva_32f_5x5_LS2,
                    zelmMul_mva_32f_6x6_LS2, zelmMul_mva_64f_3x3_LS2, zelmMul_mva_64f_4x4_LS2,
                    zelmMul_mva_64f_5x5_LS2, zelmMul_mva_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::mT, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTva_32f, zelmMul_mTva_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, word(src2.object),
                        size.src2Len, dst.first, word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mTva_32f_3x3, zelmMul_mTva_32f_4x4, zelmMul_mTva_32f_5x5,
                    zelmMul_mTva_32f_6x6, zelmMul_mTva_64f_3x3, zelmMul_mTva_64f_4x4, zelmMul_mTva_64f_5x5,
                    zelmMul_mTva_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTva_32f_S2, zelmMul_mTva_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), word(src2.element), size.src2Len, dst.first, word(dst.object),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mTva_32f_3x3_S2, zelmMul_mTva_32f_4x4_S2, zelmMul_mTva_32f_5x5_S2,
                    zelmMul_mTva_32f_6x6_S2, zelmMul_mTva_64f_3x3_S2, zelmMul_mTva_64f_4x4_S2,
                    zelmMul_mTva_64f_5x5_S2, zelmMul_mTva_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTva_32f_P, zelmMul_mTva_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mTva_32f_3x3_P, zelmMul_mTva_32f_4x4_P, zelmMul_mTva_32f_5x5_P,
                    zelmMul_mTva_32f_6x6_P, zelmMul_mTva_64f_3x3_P, zelmMul_mTva_64f_4x4_P, zelmMul_mTva_64f_5x5_P,
                    zelmMul_mTva_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTva_32f_L, zelmMul_mTva_64f_L)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mTva_32f_3x3_L, zelmMul_mTva_32f_4x4_L, zelmMul_mTva_32f_5x5_L,
                    zelmMul_mTva_32f_6x6_L, zelmMul_mTva_64f_3x3_L, zelmMul_mTva_64f_4x4_L, zelmMul_mTva_64f_5x5_L,
                    zelmMul_mTva_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTva_32f_PS2, zelmMul_mTva_64f_PS2)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        word(src2.object), size.src2Len, dst.table, word(dst.shift), word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mTva_32f_3x3_PS2, zelmMul_mTva_32f_4x4_PS2, zelmMul_mTva_32f_5x5_PS2,
                    zelmMul_mTva_32f_6x6_PS2, zelmMul_mTva_64f_3x3_PS2, zelmMul_mTva_64f_4x4_PS2,
                    zelmMul_mTva_64f_5x5_PS2, zelmMul_mTva_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTva_32f_LS2, zelmMul_mTva_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.element), size.src2Len, dst.table, word(dst.shift),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mTva_32f_3x3_LS2, zelmMul_mTva_32f_4x4_LS2, zelmMul_mTva_32f_5x5_LS2,
                    zelmMul_mTva_32f_6x6_LS2, zelmMul_mTva_64f_3x3_LS2, zelmMul_mTva_64f_4x4_LS2,
                    zelmMul_mTva_64f_5x5_LS2, zelmMul_mTva_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::ma, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mav_32f, zelmMul_mav_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        size.src2Len, dst.first, word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mav_32f_3x3, zelmMul_mav_32f_4x4, zelmMul_mav_32f_5x5,
                    zelmMul_mav_32f_6x6, zelmMul_mav_64f_3x3, zelmMul_mav_64f_4x4, zelmMul_mav_64f_5x5,
                    zelmMul_mav_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mav_32f_S2, zelmMul_mav_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.element), size.src2Len, dst.first, word(dst.object),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mav_32f_3x3_S2, zelmMul_mav_32f_4x4_S2, zelmMul_mav_32f_5x5_S2,
                    zelmMul_mav_32f_6x6_S2, zelmMul_mav_64f_3x3_S2, zelmMul_mav_64f_4x4_S2, zelmMul_mav_64f_5x5_S2,
                    zelmMul_mav_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mav_32f_P, zelmMul_mav_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mav_32f_3x3_P, zelmMul_mav_32f_4x4_P, zelmMul_mav_32f_5x5_P,
                    zelmMul_mav_32f_6x6_P, zelmMul_mav_64f_3x3_P, zelmMul_mav_64f_4x4_P, zelmMul_mav_64f_5x5_P,
                    zelmMul_mav_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mav_32f_L, zelmMul_mav_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mav_32f_3x3_L, zelmMul_mav_32f_4x4_L, zelmMul_mav_32f_5x5_L,
                    zelmMul_mav_32f_6x6_L, zelmMul_mav_64f_3x3_L, zelmMul_mav_64f_4x4_L, zelmMul_mav_64f_5x5_L,
                    zelmMul_mav_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mav_32f_PS2, zelmMul_mav_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), size.src2Len, dst.table, word(dst.shift), word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mav_32f_3x3_PS2, zelmMul_mav_32f_4x4_PS2, zelmMul_mav_32f_5x5_PS2,
                    zelmMul_mav_32f_6x6_PS2, zelmMul_mav_64f_3x3_PS2, zelmMul_mav_64f_4x4_PS2,
                    zelmMul_mav_64f_5x5_PS2, zelmMul_mav_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mav_32f_LS2, zelmMul_mav_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.element), size.src2Len, dst.table, word(dst.shift),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mav_32f_3x3_LS2, zelmMul_mav_32f_4x4_LS2, zelmMul_mav_32f_5x5_LS2,
                    zelmMul_mav_32f_6x6_LS2, zelmMul_mav_64f_3x3_LS2, zelmMul_mav_64f_4x4_LS2,
                    zelmMul_mav_64f_5x5_LS2, zelmMul_mav_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first,
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::maT, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTv_32f, zelmMul_maTv_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        size.src2Len, dst.first, word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_maTv_32f_3x3, zelmMul_maTv_32f_4x4, zelmMul_maTv_32f_5x5,
                    zelmMul_maTv_32f_6x6, zelmMul_maTv_64f_3x3, zelmMul_maTv_64f_4x4, zelmMul_maTv_64f_5x5,
                    zelmMul_maTv_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTv_32f_S2, zelmMul_maTv_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.element), size.src2Len, dst.first, word(dst.object),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTv_32f_3x3_S2, zelmMul_maTv_32f_4x4_S2, zelmMul_maTv_32f_5x5_S2,
                    zelmMul_maTv_32f_6x6_S2, zelmMul_maTv_64f_3x3_S2, zelmMul_maTv_64f_4x4_S2,
                    zelmMul_maTv_64f_5x5_S2, zelmMul_maTv_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTv_32f_P, zelmMul_maTv_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_maTv_32f_3x3_P, zelmMul_maTv_32f_4x4_P, zelmMul_maTv_32f_5x5_P,
                    zelmMul_maTv_32f_6x6_P, zelmMul_maTv_64f_3x3_P, zelmMul_maTv_64f_4x4_P, zelmMul_maTv_64f_5x5_P,
                    zelmMul_maTv_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTv_32f_L, zelmMul_maTv_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_maTv_32f_3x3_L, zelmMul_maTv_32f_4x4_L, zelmMul_maTv_32f_5x5_L,
                    zelmMul_maTv_32f_6x6_L, zelmMul_maTv_64f_3x3_L, zelmMul_maTv_64f_4x4_L, zelmMul_maTv_64f_5x5_L,
                    zelmMul_maTv_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTv_32f_PS2, zelmMul_maTv_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), size.src2Len, dst.table, word(dst.shift), word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_maTv_32f_3x3_PS2, zelmMul_maTv_32f_4x4_PS2, zelmMul_maTv_32f_5x5_PS2,
                    zelmMul_maTv_32f_6x6_PS2, zelmMul_maTv_64f_3x3_PS2, zelmMul_maTv_64f_4x4_PS2,
                    zelmMul_maTv_64f_5x5_PS2, zelmMul_maTv_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTv_32f_LS2, zelmMul_maTv_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.element), size.src2Len, dst.table, word(dst.shift),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTv_32f_3x3_LS2, zelmMul_maTv_32f_4x4_LS2, zelmMul_maTv_32f_5x5_LS2,
                    zelmMul_maTv_32f_6x6_LS2, zelmMul_maTv_64f_3x3_LS2, zelmMul_maTv_64f_4x4_LS2,
                    zelmMul_maTv_64f_5x5_LS2, zelmMul_maTv_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first,
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::ma, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mava_32f, zelmMul_mava_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), size.src2Len, dst.first, word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mava_32f_3x3, zelmMul_mava_32f_4x4, zelmMul_mava_32f_5x5,
                    zelmMul_mava_32f_6x6, zelmMul_mava_64f_3x3, zelmMul_mava_64f_4x4, zelmMul_mava_64f_5x5,
                    zelmMul_mava_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), dst.first,
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mava_32f_S2, zelmMul_mava_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.object), word(src2.element), size.src2Len, dst.first,
                        word(dst.object), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mava_32f_3x3_S2, zelmMul_mava_32f_4x4_S2, zelmMul_mava_32f_5x5_S2,
                    zelmMul_mava_32f_6x6_S2, zelmMul_mava_64f_3x3_S2, zelmMul_mava_64f_4x4_S2,
                    zelmMul_mava_64f_5x5_S2, zelmMul_mava_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mava_32f_P, zelmMul_mava_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mava_32f_3x3_P, zelmMul_mava_32f_4x4_P, zelmMul_mava_32f_5x5_P,
                    zelmMul_mava_32f_6x6_P, zelmMul_mava_64f_3x3_P, zelmMul_mava_64f_4x4_P, zelmMul_mava_64f_5x5_P,
                    zelmMul_mava_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mava_32f_L, zelmMul_mava_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mava_32f_3x3_L, zelmMul_mava_32f_4x4_L, zelmMul_mava_32f_5x5_L,
                    zelmMul_mava_32f_6x6_L, zelmMul_mava_64f_3x3_L, zelmMul_mava_64f_4x4_L, zelmMul_mava_64f_5x5_L,
                    zelmMul_mava_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mava_32f_PS2, zelmMul_mava_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.object), size.src2Len, dst.table, word(dst.shift),
                        word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mava_32f_3x3_PS2, zelmMul_mava_32f_4x4_PS2, zelmMul_mava_32f_5x5_PS2,
                    zelmMul_mava_32f_6x6_PS2, zelmMul_mava_64f_3x3_PS2, zelmMul_mava_64f_4x4_PS2,
                    zelmMul_mava_64f_5x5_PS2, zelmMul_mava_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mava_32f_LS2, zelmMul_mava_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.table, word(src2.shift), word(src2.element), size.src2Len, dst.table,
                        word(dst.shift), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mava_32f_3x3_LS2, zelmMul_mava_32f_4x4_LS2, zelmMul_mava_32f_5x5_LS2,
                    zelmMul_mava_32f_6x6_LS2, zelmMul_mava_64f_3x3_LS2, zelmMul_mava_64f_4x4_LS2,
                    zelmMul_mava_64f_5x5_LS2, zelmMul_mava_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::maT, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTva_32f, zelmMul_maTva_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), size.src2Len, dst.first, word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_maTva_32f_3x3, zelmMul_maTva_32f_4x4, zelmMul_maTva_32f_5x5,
                    zelmMul_maTva_32f_6x6, zelmMul_maTva_64f_3x3, zelmMul_maTva_64f_4x4, zelmMul_maTva_64f_5x5,
                    zelmMul_maTva_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), dst.first,
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTva_32f_S2, zelmMul_maTva_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.object), word(src2.element), size.src2Len, dst.first,
                        word(dst.object), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTva_32f_3x3_S2, zelmMul_maTva_32f_4x4_S2, zelmMul_maTva_32f_5x5_S2,
                    zelmMul_maTva_32f_6x6_S2, zelmMul_maTva_64f_3x3_S2, zelmMul_maTva_64f_4x4_S2,
                    zelmMul_maTva_64f_5x5_S2, zelmMul_maTva_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTva_32f_P, zelmMul_maTva_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_maTva_32f_3x3_P, zelmMul_maTva_32f_4x4_P, zelmMul_maTva_32f_5x5_P,
                    zelmMul_maTva_32f_6x6_P, zelmMul_maTva_64f_3x3_P, zelmMul_maTva_64f_4x4_P,
                    zelmMul_maTva_64f_5x5_P, zelmMul_maTva_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTva_32f_L, zelmMul_maTva_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), size.src2Len, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_maTva_32f_3x3_L, zelmMul_maTva_32f_4x4_L, zelmMul_maTva_32f_5x5_L,
                    zelmMul_maTva_32f_6x6_L, zelmMul_maTva_64f_3x3_L, zelmMul_maTva_64f_4x4_L,
                    zelmMul_maTva_64f_5x5_L, zelmMul_maTva_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTva_32f_PS2, zelmMul_maTva_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.object), size.src2Len, dst.table, word(dst.shift),
                        word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_maTva_32f_3x3_PS2, zelmMul_maTva_32f_4x4_PS2, zelmMul_maTva_32f_5x5_PS2,
                    zelmMul_maTva_32f_6x6_PS2, zelmMul_maTva_64f_3x3_PS2, zelmMul_maTva_64f_4x4_PS2,
                    zelmMul_maTva_64f_5x5_PS2, zelmMul_maTva_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTva_32f_LS2, zelmMul_maTva_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.table, word(src2.shift), word(src2.element), size.src2Len, dst.table,
                        word(dst.shift), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTva_32f_3x3_LS2, zelmMul_maTva_32f_4x4_LS2, zelmMul_maTva_32f_5x5_LS2,
                    zelmMul_maTva_32f_6x6_LS2, zelmMul_maTva_64f_3x3_LS2, zelmMul_maTva_64f_4x4_LS2,
                    zelmMul_maTva_64f_5x5_LS2, zelmMul_maTva_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::m, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mm_32f, zelmMul_mm_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, word(src2.row),
                        size.src2Width, size.src2Height, dst.first, word(dst.row));
            } else {
                return pick<T, N>(zelmMul_mm_32f_3x3, zelmMul_mm_32f_4x4, zelmMul_mm_32f_5x5, zelmMul_mm_32f_6x6,
                    zelmMul_mm_64f_3x3, zelmMul_mm_64f_4x4, zelmMul_mm_64f_5x5, zelmMul_mm_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mm_32f_S2, zelmMul_mm_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), word(src2.element), size.src2Width, size.src2Height, dst.first,
                        word(dst.row), word(dst.element));
            } else {
                return pick<T, N>(zelmMul_mm_32f_3x3_S2, zelmMul_mm_32f_4x4_S2, zelmMul_mm_32f_5x5_S2,
                    zelmMul_mm_32f_6x6_S2, zelmMul_mm_64f_3x3_S2, zelmMul_mm_64f_4x4_S2, zelmMul_mm_64f_5x5_S2,
                    zelmMul_mm_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mm_32f_P, zelmMul_mm_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift));
            } else {
                return pick<T, N>(zelmMul_mm_32f_3x3_P, zelmMul_mm_32f_4x4_P, zelmMul_mm_32f_5x5_P,
                    zelmMul_mm_32f_6x6_P, zelmMul_mm_64f_3x3_P, zelmMul_mm_64f_4x4_P, zelmMul_mm_64f_5x5_P,
                    zelmMul_mm_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::m, Kind::mT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mmT_32f, zelmMul_mmT_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, word(src2.row),
                        size.src2Width, size.src2Height, dst.first, word(dst.row));
            } else {
                return pick<T, N>(zelmMul_mmT_32f_3x3, zelmMul_mmT_32f_4x4, zelmMul_mmT_32f_5x5,
                    zelmMul_mmT_32f_6x6, zelmMul_mmT_64f_3x3, zelmMul_mmT_64f_4x4, zelmMul_mmT_64f_5x5,
                    zelmMul_mmT_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mmT_32f_S2, zelmMul_mmT_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), word(src2.element), size.src2Width, size.src2Height, dst.first,
                        word(dst.row), word(dst.element));
            } else {
                return pick<T, N>(zelmMul_mmT_32f_3x3_S2, zelmMul_mmT_32f_4x4_S2, zelmMul_mmT_32f_5x5_S2,
                    zelmMul_mmT_32f_6x6_S2, zelmMul_mmT_64f_3x3_S2, zelmMul_mmT_64f_4x4_S2, zelmMul_mmT_64f_5x5_S2,
                    zelmMul_mmT_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mmT_32f_P, zelmMul_mmT_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift));
            } else {
                return pick<T, N>(zelmMul_mmT_32f_3x3_P, zelmMul_mmT_32f_4x4_P, zelmMul_mmT_32f_5x5_P,
                    zelmMul_mmT_32f_6x6_P, zelmMul_mmT_64f_3x3_P, zelmMul_mmT_64f_4x4_P, zelmMul_mmT_64f_5x5_P,
                    zelmMul_mmT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::mT, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTm_32f, zelmMul_mTm_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, word(src2.row),
                        size.src2Width, size.src2Height, dst.first, word(dst.row));
            } else {
                return pick<T, N>(zelmMul_mTm_32f_3x3, zelmMul_mTm_32f_4x4, zelmMul_mTm_32f_5x5,
                    zelmMul_mTm_32f_6x6, zelmMul_mTm_64f_3x3, zelmMul_mTm_64f_4x4, zelmMul_mTm_64f_5x5,
                    zelmMul_mTm_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTm_32f_S2, zelmMul_mTm_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), word(src2.element), size.src2Width, size.src2Height, dst.first,
                        word(dst.row), word(dst.element));
            } else {
                return pick<T, N>(zelmMul_mTm_32f_3x3_S2, zelmMul_mTm_32f_4x4_S2, zelmMul_mTm_32f_5x5_S2,
                    zelmMul_mTm_32f_6x6_S2, zelmMul_mTm_64f_3x3_S2, zelmMul_mTm_64f_4x4_S2, zelmMul_mTm_64f_5x5_S2,
                    zelmMul_mTm_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTm_32f_P, zelmMul_mTm_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift));
            } else {
                return pick<T, N>(zelmMul_mTm_32f_3x3_P, zelmMul_mTm_32f_4x4_P, zelmMul_mTm_32f_5x5_P,
                    zelmMul_mTm_32f_6x6_P, zelmMul_mTm_64f_3x3_P, zelmMul_mTm_64f_4x4_P, zelmMul_mTm_64f_5x5_P,
                    zelmMul_mTm_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::mT, Kind::mT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTmT_32f, zelmMul_mTmT_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, word(src2.row),
                        size.src2Width, size.src2Height, dst.first, word(dst.row));
            } else {
                return pick<T, N>(zelmMul_mTmT_32f_3x3, zelmMul_mTmT_32f_4x4, zelmMul_mTmT_32f_5x5,
                    zelmMul_mTmT_32f_6x6, zelmMul_mTmT_64f_3x3, zelmMul_mTmT_64f_4x4, zelmMul_mTmT_64f_5x5,
                    zelmMul_mTmT_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTmT_32f_S2, zelmMul_mTmT_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), word(src2.element), size.src2Width, size.src2Height, dst.first,
                        word(dst.row), word(dst.element));
            } else {
                return pick<T, N>(zelmMul_mTmT_32f_3x3_S2, zelmMul_mTmT_32f_4x4_S2, zelmMul_mTmT_32f_5x5_S2,
                    zelmMul_mTmT_32f_6x6_S2, zelmMul_mTmT_64f_3x3_S2, zelmMul_mTmT_64f_4x4_S2,
                    zelmMul_mTmT_64f_5x5_S2, zelmMul_mTmT_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.row), word(src2.element),
                        dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTmT_32f_P, zelmMul_mTmT_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift));
            } else {
                return pick<T, N>(zelmMul_mTmT_32f_3x3_P, zelmMul_mTmT_32f_4x4_P, zelmMul_mTmT_32f_5x5_P,
                    zelmMul_mTmT_32f_6x6_P, zelmMul_mTmT_64f_3x3_P, zelmMul_mTmT_64f_4x4_P, zelmMul_mTmT_64f_5x5_P,
                    zelmMul_mTmT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::ma, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mam_32f, zelmMul_mam_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mam_32f_3x3, zelmMul_mam_32f_4x4, zelmMul_mam_32f_5x5,
                    zelmMul_mam_32f_6x6, zelmMul_mam_64f_3x3, zelmMul_mam_64f_4x4, zelmMul_mam_64f_5x5,
                    zelmMul_mam_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mam_32f_S2, zelmMul_mam_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.row), word(src2.element), size.src2Width,
                        size.src2Height, dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mam_32f_3x3_S2, zelmMul_mam_32f_4x4_S2, zelmMul_mam_32f_5x5_S2,
                    zelmMul_mam_32f_6x6_S2, zelmMul_mam_64f_3x3_S2, zelmMul_mam_64f_4x4_S2, zelmMul_mam_64f_5x5_S2,
                    zelmMul_mam_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mam_32f_P, zelmMul_mam_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mam_32f_3x3_P, zelmMul_mam_32f_4x4_P, zelmMul_mam_32f_5x5_P,
                    zelmMul_mam_32f_6x6_P, zelmMul_mam_64f_3x3_P, zelmMul_mam_64f_4x4_P, zelmMul_mam_64f_5x5_P,
                    zelmMul_mam_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mam_32f_L, zelmMul_mam_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mam_32f_3x3_L, zelmMul_mam_32f_4x4_L, zelmMul_mam_32f_5x5_L,
                    zelmMul_mam_32f_6x6_L, zelmMul_mam_64f_3x3_L, zelmMul_mam_64f_4x4_L, zelmMul_mam_64f_5x5_L,
                    zelmMul_mam_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mam_32f_PS2, zelmMul_mam_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), size.src2Width, size.src2Height, dst.table, word(dst.shift),
                        word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mam_32f_3x3_PS2, zelmMul_mam_32f_4x4_PS2, zelmMul_mam_32f_5x5_PS2,
                    zelmMul_mam_32f_6x6_PS2, zelmMul_mam_64f_3x3_PS2, zelmMul_mam_64f_4x4_PS2,
                    zelmMul_mam_64f_5x5_PS2, zelmMul_mam_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mam_32f_LS2, zelmMul_mam_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.row), word(src2.element), size.src2Width,
                        size.src2Height, dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mam_32f_3x3_LS2, zelmMul_mam_32f_4x4_LS2, zelmMul_mam_32f_5x5_LS2,
                    zelmMul_mam_32f_6x6_LS2, zelmMul_mam_64f_3x3_LS2, zelmMul_mam_64f_4x4_LS2,
                    zelmMul_mam_64f_5x5_LS2, zelmMul_mam_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::ma, Kind::mT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamT_32f, zelmMul_mamT_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mamT_32f_3x3, zelmMul_mamT_32f_4x4, zelmMul_mamT_32f_5x5,
                    zelmMul_mamT_32f_6x6, zelmMul_mamT_64f_3x3, zelmMul_mamT_64f_4x4, zelmMul_mamT_64f_5x5,
                    zelmMul_mamT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamT_32f_S2, zelmMul_mamT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.row), word(src2.element), size.src2Width,
                        size.src2Height, dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mamT_32f_3x3_S2, zelmMul_mamT_32f_4x4_S2, zelmMul_mamT_32f_5x5_S2,
                    zelmMul_mamT_32f_6x6_S2, zelmMul_mamT_64f_3x3_S2, zelmMul_mamT_64f_4x4_S2,
                    zelmMul_mamT_64f_5x5_S2, zelmMul_mamT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamT_32f_P, zelmMul_mamT_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mamT_32f_3x3_P, zelmMul_mamT_32f_4x4_P, zelmMul_mamT_32f_5x5_P,
                    zelmMul_mamT_32f_6x6_P, zelmMul_mamT_64f_3x3_P, zelmMul_mamT_64f_4x4_P, zelmMul_mamT_64f_5x5_P,
                    zelmMul_mamT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamT_32f_L, zelmMul_mamT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mamT_32f_3x3_L, zelmMul_mamT_32f_4x4_L, zelmMul_mamT_32f_5x5_L,
                    zelmMul_mamT_32f_6x6_L, zelmMul_mamT_64f_3x3_L, zelmMul_mamT_64f_4x4_L, zelmMul_mamT_64f_5x5_L,
                    zelmMul_mamT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamT_32f_PS2, zelmMul_mamT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), size.src2Width, size.src2Height, dst.table, word(dst.shift),
                        word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mamT_32f_3x3_PS2, zelmMul_mamT_32f_4x4_PS2, zelmMul_mamT_32f_5x5_PS2,
                    zelmMul_mamT_32f_6x6_PS2, zelmMul_mamT_64f_3x3_PS2, zelmMul_mamT_64f_4x4_PS2,
                    zelmMul_mamT_64f_5x5_PS2, zelmMul_mamT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamT_32f_LS2, zelmMul_mamT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.row), word(src2.element), size.src2Width,
                        size.src2Height, dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mamT_32f_3x3_LS2, zelmMul_mamT_32f_4x4_LS2, zelmMul_mamT_32f_5x5_LS2,
                    zelmMul_mamT_32f_6x6_LS2, zelmMul_mamT_64f_3x3_LS2, zelmMul_mamT_64f_4x4_LS2,
                    zelmMul_mamT_64f_5x5_LS2, zelmMul_mamT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::ma, Kind::ma> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmMul_mama_64f_3x3: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 3 && wanted == Layout::standard) {
            return {Layout::S2, 3, Guard::none};
        }
        // zelmMul_mama_64f_4x4: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 4 && wanted == Layout::standard) {
            return {Layout::S2, 4, Guard::none};
        }
        // zelmMul_mama_64f_5x5: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::standard) {
            return {Layout::S2, 5, Guard::none};
        }
        // zelmMul_mama_64f_6x6: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 6 && wanted == Layout::standard) {
            return {Layout::S2, 6, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mama_32f, zelmMul_mama_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), word(src2.row), size.src2Width, size.src2Height, dst.first,
                        word(dst.object), word(dst.row), count);
            } else {
                return pick<T, N>(zelmMul_mama_32f_3x3, zelmMul_mama_32f_4x4, zelmMul_mama_32f_5x5,
                    zelmMul_mama_32f_6x6, zelmMul_mama_64f_3x3, zelmMul_mama_64f_4x4, zelmMul_mama_64f_5x5,
                    zelmMul_mama_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mama_32f_S2, zelmMul_mama_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.object), word(src2.row), word(src2.element),
                        size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mama_32f_3x3_S2, zelmMul_mama_32f_4x4_S2, zelmMul_mama_32f_5x5_S2,
                    zelmMul_mama_32f_6x6_S2, zelmMul_mama_64f_3x3_S2, zelmMul_mama_64f_4x4_S2,
                    zelmMul_mama_64f_5x5_S2, zelmMul_mama_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mama_32f_P, zelmMul_mama_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mama_32f_3x3_P, zelmMul_mama_32f_4x4_P, zelmMul_mama_32f_5x5_P,
                    zelmMul_mama_32f_6x6_P, zelmMul_mama_64f_3x3_P, zelmMul_mama_64f_4x4_P, zelmMul_mama_64f_5x5_P,
                    zelmMul_mama_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mama_32f_L, zelmMul_mama_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.row), size.src2Width, size.src2Height, dst.table,
                        word(dst.shift), word(dst.row), count);
            } else {
                return pick<T, N>(zelmMul_mama_32f_3x3_L, zelmMul_mama_32f_4x4_L, zelmMul_mama_32f_5x5_L,
                    zelmMul_mama_32f_6x6_L, zelmMul_mama_64f_3x3_L, zelmMul_mama_64f_4x4_L, zelmMul_mama_64f_5x5_L,
                    zelmMul_mama_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mama_32f_PS2, zelmMul_mama_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.object), size.src2Width, size.src2Height, dst.table,
                        word(dst.shift), word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mama_32f_3x3_PS2, zelmMul_mama_32f_4x4_PS2, zelmMul_mama_32f_5x5_PS2,
                    zelmMul_mama_32f_6x6_PS2, zelmMul_mama_64f_3x3_PS2, zelmMul_mama_64f_4x4_PS2,
                    zelmMul_mama_64f_5x5_PS2, zelmMul_mama_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mama_32f_LS2, zelmMul_mama_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.table, word(src2.shift), word(src2.row), word(src2.element),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mama_32f_3x3_LS2, zelmMul_mama_32f_4x4_LS2, zelmMul_mama_32f_5x5_LS2,
                    zelmMul_mama_32f_6x6_LS2, zelmMul_mama_64f_3x3_LS2, zelmMul_mama_64f_4x4_LS2,
                    zelmMul_mama_64f_5x5_LS2, zelmMul_mama_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::ma, Kind::maT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmMul_mamaT_64f_3x3: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 3 && wanted == Layout::standard) {
            return {Layout::S2, 3, Guard::none};
        }
        // zelmMul_mamaT_64f_4x4: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 4 && wanted == Layout::standard) {
            return {Layout::S2, 4, Guard::none};
        }
        // zelmMul_mamaT_64f_5x5: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::standard) {
            return {Layout::S2, 5, Guard::none};
        }
        // zelmMul_mamaT_64f_6x6: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 6 && wanted == Layout::standard) {
            return {Layout::S2, 6, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamaT_32f, zelmMul_mamaT_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), word(src2.row), size.src2Width, size.src2Height, dst.first,
                        word(dst.object), word(dst.row), count);
            } else {
                return pick<T, N>(zelmMul_mamaT_32f_3x3, zelmMul_mamaT_32f_4x4, zelmMul_mamaT_32f_5x5,
                    zelmMul_mamaT_32f_6x6, zelmMul_mamaT_64f_3x3, zelmMul_mamaT_64f_4x4, zelmMul_mamaT_64f_5x5,
                    zelmMul_mamaT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamaT_32f_S2, zelmMul_mamaT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.object), word(src2.row), word(src2.element),
                        size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mamaT_32f_3x3_S2, zelmMul_mamaT_32f_4x4_S2, zelmMul_mamaT_32f_5x5_S2,
                    zelmMul_mamaT_32f_6x6_S2, zelmMul_mamaT_64f_3x3_S2, zelmMul_mamaT_64f_4x4_S2,
                    zelmMul_mamaT_64f_5x5_S2, zelmMul_mamaT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamaT_32f_P, zelmMul_mamaT_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mamaT_32f_3x3_P, zelmMul_mamaT_32f_4x4_P, zelmMul_mamaT_32f_5x5_P,
                    zelmMul_mamaT_32f_6x6_P, zelmMul_mamaT_64f_3x3_P, zelmMul_mamaT_64f_4x4_P,
                    zelmMul_mamaT_64f_5x5_P, zelmMul_mamaT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamaT_32f_L, zelmMul_mamaT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.row), size.src2Width, size.src2Height, dst.table,
                        word(dst.shift), word(dst.row), count);
            } else {
                return pick<T, N>(zelmMul_mamaT_32f_3x3_L, zelmMul_mamaT_32f_4x4_L, zelmMul_mamaT_32f_5x5_L,
                    zelmMul_mamaT_32f_6x6_L, zelmMul_mamaT_64f_3x3_L, zelmMul_mamaT_64f_4x4_L,
                    zelmMul_mamaT_64f_5x5_L, zelmMul_mamaT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamaT_32f_PS2, zelmMul_mamaT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.object), size.src2Width, size.src2Height, dst.table,
                        word(dst.shift), word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mamaT_32f_3x3_PS2, zelmMul_mamaT_32f_4x4_PS2, zelmMul_mamaT_32f_5x5_PS2,
                    zelmMul_mamaT_32f_6x6_PS2, zelmMul_mamaT_64f_3x3_PS2, zelmMul_mamaT_64f_4x4_PS2,
                    zelmMul_mamaT_64f_5x5_PS2, zelmMul_mamaT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mamaT_32f_LS2, zelmMul_mamaT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.table, word(src2.shift), word(src2.row), word(src2.element),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mamaT_32f_3x3_LS2, zelmMul_mamaT_32f_4x4_LS2, zelmMul_mamaT_32f_5x5_LS2,
                    zelmMul_mamaT_32f_6x6_LS2, zelmMul_mamaT_64f_3x3_LS2, zelmMul_mamaT_64f_4x4_LS2,
                    zelmMul_mamaT_64f_5x5_LS2, zelmMul_mamaT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::maT, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTm_32f, zelmMul_maTm_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_maTm_32f_3x3, zelmMul_maTm_32f_4x4, zelmMul_maTm_32f_5x5,
                    zelmMul_maTm_32f_6x6, zelmMul_maTm_64f_3x3, zelmMul_maTm_64f_4x4, zelmMul_maTm_64f_5x5,
                    zelmMul_maTm_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTm_32f_S2, zelmMul_maTm_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.row), word(src2.element), size.src2Width,
                        size.src2Height, dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTm_32f_3x3_S2, zelmMul_maTm_32f_4x4_S2, zelmMul_maTm_32f_5x5_S2,
                    zelmMul_maTm_32f_6x6_S2, zelmMul_maTm_64f_3x3_S2, zelmMul_maTm_64f_4x4_S2,
                    zelmMul_maTm_64f_5x5_S2, zelmMul_maTm_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTm_32f_P, zelmMul_maTm_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_maTm_32f_3x3_P, zelmMul_maTm_32f_4x4_P, zelmMul_maTm_32f_5x5_P,
                    zelmMul_maTm_32f_6x6_P, zelmMul_maTm_64f_3x3_P, zelmMul_maTm_64f_4x4_P, zelmMul_maTm_64f_5x5_P,
                    zelmMul_maTm_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTm_32f_L, zelmMul_maTm_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_maTm_32f_3x3_L, zelmMul_maTm_32f_4x4_L, zelmMul_maTm_32f_5x5_L,
                    zelmMul_maTm_32f_6x6_L, zelmMul_maTm_64f_3x3_L, zelmMul_maTm_64f_4x4_L, zelmMul_maTm_64f_5x5_L,
                    zelmMul_maTm_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTm_32f_PS2, zelmMul_maTm_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), size.src2Width, size.src2Height, dst.table, word(dst.shift),
                        word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_maTm_32f_3x3_PS2, zelmMul_maTm_32f_4x4_PS2, zelmMul_maTm_32f_5x5_PS2,
                    zelmMul_maTm_32f_6x6_PS2, zelmMul_maTm_64f_3x3_PS2, zelmMul_maTm_64f_4x4_PS2,
                    zelmMul_maTm_64f_5x5_PS2, zelmMul_maTm_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTm_32f_LS2, zelmMul_maTm_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.row), word(src2.element), size.src2Width,
                        size.src2Height, dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTm_32f_3x3_LS2, zelmMul_maTm_32f_4x4_LS2, zelmMul_maTm_32f_5x5_LS2,
                    zelmMul_maTm_32f_6x6_LS2, zelmMul_maTm_64f_3x3_LS2, zelmMul_maTm_64f_4x4_LS2,
                    zelmMul_maTm_64f_5x5_LS2, zelmMul_maTm_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::maT, Kind::mT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmT_32f, zelmMul_maTmT_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_maTmT_32f_3x3, zelmMul_maTmT_32f_4x4, zelmMul_maTmT_32f_5x5,
                    zelmMul_maTmT_32f_6x6, zelmMul_maTmT_64f_3x3, zelmMul_maTmT_64f_4x4, zelmMul_maTmT_64f_5x5,
                    zelmMul_maTmT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmT_32f_S2, zelmMul_maTmT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.row), word(src2.element), size.src2Width,
                        size.src2Height, dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTmT_32f_3x3_S2, zelmMul_maTmT_32f_4x4_S2, zelmMul_maTmT_32f_5x5_S2,
                    zelmMul_maTmT_32f_6x6_S2, zelmMul_maTmT_64f_3x3_S2, zelmMul_maTmT_64f_4x4_S2,
                    zelmMul_maTmT_64f_5x5_S2, zelmMul_maTmT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmT_32f_P, zelmMul_maTmT_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_maTmT_32f_3x3_P, zelmMul_maTmT_32f_4x4_P, zelmMul_maTmT_32f_5x5_P,
                    zelmMul_maTmT_32f_6x6_P, zelmMul_maTmT_64f_3x3_P, zelmMul_maTmT_64f_4x4_P,
                    zelmMul_maTmT_64f_5x5_P, zelmMul_maTmT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmT_32f_L, zelmMul_maTmT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.row), size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_maTmT_32f_3x3_L, zelmMul_maTmT_32f_4x4_L, zelmMul_maTmT_32f_5x5_L,
                    zelmMul_maTmT_32f_6x6_L, zelmMul_maTmT_64f_3x3_L, zelmMul_maTmT_64f_4x4_L,
                    zelmMul_maTmT_64f_5x5_L, zelmMul_maTmT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.first, word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmT_32f_PS2, zelmMul_maTmT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), size.src2Width, size.src2Height, dst.table, word(dst.shift),
                        word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_maTmT_32f_3x3_PS2, zelmMul_maTmT_32f_4x4_PS2, zelmMul_maTmT_32f_5x5_PS2,
                    zelmMul_maTmT_32f_6x6_PS2, zelmMul_maTmT_64f_3x3_PS2, zelmMul_maTmT_64f_4x4_PS2,
                    zelmMul_maTmT_64f_5x5_PS2, zelmMul_maTmT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmT_32f_LS2, zelmMul_maTmT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.row), word(src2.element), size.src2Width,
                        size.src2Height, dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTmT_32f_3x3_LS2, zelmMul_maTmT_32f_4x4_LS2, zelmMul_maTmT_32f_5x5_LS2,
                    zelmMul_maTmT_32f_6x6_LS2, zelmMul_maTmT_64f_3x3_LS2, zelmMul_maTmT_64f_4x4_LS2,
                    zelmMul_maTmT_64f_5x5_LS2, zelmMul_maTmT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.first, word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::maT, Kind::ma> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmMul_maTma_64f_3x3: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 3 && wanted == Layout::standard) {
            return {Layout::S2, 3, Guard::none};
        }
        // zelmMul_maTma_64f_4x4: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 4 && wanted == Layout::standard) {
            return {Layout::S2, 4, Guard::none};
        }
        // zelmMul_maTma_64f_5x5: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::standard) {
            return {Layout::S2, 5, Guard::none};
        }
        // zelmMul_maTma_64f_6x6: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 6 && wanted == Layout::standard) {
            return {Layout::S2, 6, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTma_32f, zelmMul_maTma_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), word(src2.row), size.src2Width, size.src2Height, dst.first,
                        word(dst.object), word(dst.row), count);
            } else {
                return pick<T, N>(zelmMul_maTma_32f_3x3, zelmMul_maTma_32f_4x4, zelmMul_maTma_32f_5x5,
                    zelmMul_maTma_32f_6x6, zelmMul_maTma_64f_3x3, zelmMul_maTma_64f_4x4, zelmMul_maTma_64f_5x5,
                    zelmMul_maTma_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTma_32f_S2, zelmMul_maTma_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.object), word(src2.row), word(src2.element),
                        size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTma_32f_3x3_S2, zelmMul_maTma_32f_4x4_S2, zelmMul_maTma_32f_5x5_S2,
                    zelmMul_maTma_32f_6x6_S2, zelmMul_maTma_64f_3x3_S2, zelmMul_maTma_64f_4x4_S2,
                    zelmMul_maTma_64f_5x5_S2, zelmMul_maTma_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTma_32f_P, zelmMul_maTma_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_maTma_32f_3x3_P, zelmMul_maTma_32f_4x4_P, zelmMul_maTma_32f_5x5_P,
                    zelmMul_maTma_32f_6x6_P, zelmMul_maTma_64f_3x3_P, zelmMul_maTma_64f_4x4_P,
                    zelmMul_maTma_64f_5x5_P, zelmMul_maTma_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTma_32f_L, zelmMul_maTma_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.row), size.src2Width, size.src2Height, dst.table,
                        word(dst.shift), word(dst.row), count);
            } else {
                return pick<T, N>(zelmMul_maTma_32f_3x3_L, zelmMul_maTma_32f_4x4_L, zelmMul_maTma_32f_5x5_L,
                    zelmMul_maTma_32f_6x6_L, zelmMul_maTma_64f_3x3_L, zelmMul_maTma_64f_4x4_L,
                    zelmMul_maTma_64f_5x5_L, zelmMul_maTma_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTma_32f_PS2, zelmMul_maTma_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.object), size.src2Width, size.src2Height, dst.table,
                        word(dst.shift), word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_maTma_32f_3x3_PS2, zelmMul_maTma_32f_4x4_PS2, zelmMul_maTma_32f_5x5_PS2,
                    zelmMul_maTma_32f_6x6_PS2, zelmMul_maTma_64f_3x3_PS2, zelmMul_maTma_64f_4x4_PS2,
                    zelmMul_maTma_64f_5x5_PS2, zelmMul_maTma_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTma_32f_LS2, zelmMul_maTma_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.table, word(src2.shift), word(src2.row), word(src2.element),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTma_32f_3x3_LS2, zelmMul_maTma_32f_4x4_LS2, zelmMul_maTma_32f_5x5_LS2,
                    zelmMul_maTma_32f_6x6_LS2, zelmMul_maTma_64f_3x3_LS2, zelmMul_maTma_64f_4x4_LS2,
                    zelmMul_maTma_64f_5x5_LS2, zelmMul_maTma_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::maT, Kind::maT> : Regular {
    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        // zelmMul_maTmaT_64f_3x3: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 3 && wanted == Layout::standard) {
            return {Layout::S2, 3, Guard::none};
        }
        // zelmMul_maTmaT_64f_4x4: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 4 && wanted == Layout::standard) {
            return {Layout::S2, 4, Guard::none};
        }
        // zelmMul_maTmaT_64f_5x5: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 5 && wanted == Layout::standard) {
            return {Layout::S2, 5, Guard::none};
        }
        // zelmMul_maTmaT_64f_6x6: every object is computed from object 0 of src1
        if (std::is_same_v<T, double> && N == 6 && wanted == Layout::standard) {
            return {Layout::S2, 6, Guard::none};
        }
        return {wanted, N, Guard::none};
    }
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmaT_32f, zelmMul_maTmaT_64f)
                    (src1.first, word(src1.object), word(src1.row), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), word(src2.row), size.src2Width, size.src2Height, dst.first,
                        word(dst.object), word(dst.row), count);
            } else {
                return pick<T, N>(zelmMul_maTmaT_32f_3x3, zelmMul_maTmaT_32f_4x4, zelmMul_maTmaT_32f_5x5,
                    zelmMul_maTmaT_32f_6x6, zelmMul_maTmaT_64f_3x3, zelmMul_maTmaT_64f_4x4, zelmMul_maTmaT_64f_5x5,
                    zelmMul_maTmaT_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), word(src2.row),
                        dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmaT_32f_S2, zelmMul_maTmaT_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.first, word(src2.object), word(src2.row), word(src2.element),
                        size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTmaT_32f_3x3_S2, zelmMul_maTmaT_32f_4x4_S2, zelmMul_maTmaT_32f_5x5_S2,
                    zelmMul_maTmaT_32f_6x6_S2, zelmMul_maTmaT_64f_3x3_S2, zelmMul_maTmaT_64f_4x4_S2,
                    zelmMul_maTmaT_64f_5x5_S2, zelmMul_maTmaT_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.row), word(src2.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmaT_32f_P, zelmMul_maTmaT_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_maTmaT_32f_3x3_P, zelmMul_maTmaT_32f_4x4_P, zelmMul_maTmaT_32f_5x5_P,
                    zelmMul_maTmaT_32f_6x6_P, zelmMul_maTmaT_64f_3x3_P, zelmMul_maTmaT_64f_4x4_P,
                    zelmMul_maTmaT_64f_5x5_P, zelmMul_maTmaT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmaT_32f_L, zelmMul_maTmaT_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.row), size.src2Width, size.src2Height, dst.table,
                        word(dst.shift), word(dst.row), count);
            } else {
                return pick<T, N>(zelmMul_maTmaT_32f_3x3_L, zelmMul_maTmaT_32f_4x4_L, zelmMul_maTmaT_32f_5x5_L,
                    zelmMul_maTmaT_32f_6x6_L, zelmMul_maTmaT_64f_3x3_L, zelmMul_maTmaT_64f_4x4_L,
                    zelmMul_maTmaT_64f_5x5_L, zelmMul_maTmaT_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), word(src2.row),
                        dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmaT_32f_PS2, zelmMul_maTmaT_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.object), size.src2Width, size.src2Height, dst.table,
                        word(dst.shift), word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_maTmaT_32f_3x3_PS2, zelmMul_maTmaT_32f_4x4_PS2,
                    zelmMul_maTmaT_32f_5x5_PS2, zelmMul_maTmaT_32f_6x6_PS2, zelmMul_maTmaT_64f_3x3_PS2,
                    zelmMul_maTmaT_64f_4x4_PS2, zelmMul_maTmaT_64f_5x5_PS2, zelmMul_maTmaT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_maTmaT_32f_LS2, zelmMul_maTmaT_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), size.src1Width,
                        size.src1Height, src2.table, word(src2.shift), word(src2.row), word(src2.element),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_maTmaT_32f_3x3_LS2, zelmMul_maTmaT_32f_4x4_LS2,
                    zelmMul_maTmaT_32f_5x5_LS2, zelmMul_maTmaT_32f_6x6_LS2, zelmMul_maTmaT_64f_3x3_LS2,
                    zelmMul_maTmaT_64f_4x4_LS2, zelmMul_maTmaT_64f_5x5_LS2, zelmMul_maTmaT_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.row), word(src2.element), dst.table, word(dst.shift), word(dst.row),
                        word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::m, Kind::ma> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mma_32f, zelmMul_mma_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, word(src2.object),
                        word(src2.row), size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mma_32f_3x3, zelmMul_mma_32f_4x4, zelmMul_mma_32f_5x5,
                    zelmMul_mma_32f_6x6, zelmMul_mma_64f_3x3, zelmMul_mma_64f_4x4, zelmMul_mma_64f_5x5,
                    zelmMul_mma_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mma_32f_S2, zelmMul_mma_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), word(src2.row), word(src2.element), size.src2Width, size.src2Height,
                        dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mma_32f_3x3_S2, zelmMul_mma_32f_4x4_S2, zelmMul_mma_32f_5x5_S2,
                    zelmMul_mma_32f_6x6_S2, zelmMul_mma_64f_3x3_S2, zelmMul_mma_64f_4x4_S2, zelmMul_mma_64f_5x5_S2,
                    zelmMul_mma_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mma_32f_P, zelmMul_mma_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mma_32f_3x3_P, zelmMul_mma_32f_4x4_P, zelmMul_mma_32f_5x5_P,
                    zelmMul_mma_32f_6x6_P, zelmMul_mma_64f_3x3_P, zelmMul_mma_64f_4x4_P, zelmMul_mma_64f_5x5_P,
                    zelmMul_mma_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mma_32f_L, zelmMul_mma_64f_L)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        word(src2.row), size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mma_32f_3x3_L, zelmMul_mma_32f_4x4_L, zelmMul_mma_32f_5x5_L,
                    zelmMul_mma_32f_6x6_L, zelmMul_mma_64f_3x3_L, zelmMul_mma_64f_4x4_L, zelmMul_mma_64f_5x5_L,
                    zelmMul_mma_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mma_32f_PS2, zelmMul_mma_64f_PS2)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        word(src2.object), size.src2Width, size.src2Height, dst.table, word(dst.shift),
                        word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mma_32f_3x3_PS2, zelmMul_mma_32f_4x4_PS2, zelmMul_mma_32f_5x5_PS2,
                    zelmMul_mma_32f_6x6_PS2, zelmMul_mma_64f_3x3_PS2, zelmMul_mma_64f_4x4_PS2,
                    zelmMul_mma_64f_5x5_PS2, zelmMul_mma_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mma_32f_LS2, zelmMul_mma_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.row), word(src2.element), size.src2Width, size.src2Height,
                        dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mma_32f_3x3_LS2, zelmMul_mma_32f_4x4_LS2, zelmMul_mma_32f_5x5_LS2,
                    zelmMul_mma_32f_6x6_LS2, zelmMul_mma_64f_3x3_LS2, zelmMul_mma_64f_4x4_LS2,
                    zelmMul_mma_64f_5x5_LS2, zelmMul_mma_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::m, Kind::maT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mmaT_32f, zelmMul_mmaT_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, word(src2.object),
                        word(src2.row), size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mmaT_32f_3x3, zelmMul_mmaT_32f_4x4, zelmMul_mmaT_32f_5x5,
                    zelmMul_mmaT_32f_6x6, zelmMul_mmaT_64f_3x3, zelmMul_mmaT_64f_4x4, zelmMul_mmaT_64f_5x5,
                    zelmMul_mmaT_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mmaT_32f_S2, zelmMul_mmaT_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), word(src2.row), word(src2.element), size.src2Width, size.src2Height,
                        dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mmaT_32f_3x3_S2, zelmMul_mmaT_32f_4x4_S2, zelmMul_mmaT_32f_5x5_S2,
                    zelmMul_mmaT_32f_6x6_S2, zelmMul_mmaT_64f_3x3_S2, zelmMul_mmaT_64f_4x4_S2,
                    zelmMul_mmaT_64f_5x5_S2, zelmMul_mmaT_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mmaT_32f_P, zelmMul_mmaT_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mmaT_32f_3x3_P, zelmMul_mmaT_32f_4x4_P, zelmMul_mmaT_32f_5x5_P,
                    zelmMul_mmaT_32f_6x6_P, zelmMul_mmaT_64f_3x3_P, zelmMul_mmaT_64f_4x4_P, zelmMul_mmaT_64f_5x5_P,
                    zelmMul_mmaT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mmaT_32f_L, zelmMul_mmaT_64f_L)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        word(src2.row), size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mmaT_32f_3x3_L, zelmMul_mmaT_32f_4x4_L, zelmMul_mmaT_32f_5x5_L,
                    zelmMul_mmaT_32f_6x6_L, zelmMul_mmaT_64f_3x3_L, zelmMul_mmaT_64f_4x4_L, zelmMul_mmaT_64f_5x5_L,
                    zelmMul_mmaT_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mmaT_32f_PS2, zelmMul_mmaT_64f_PS2)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        word(src2.object), size.src2Width, size.src2Height, dst.table, word(dst.shift),
                        word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mmaT_32f_3x3_PS2, zelmMul_mmaT_32f_4x4_PS2, zelmMul_mmaT_32f_5x5_PS2,
                    zelmMul_mmaT_32f_6x6_PS2, zelmMul_mmaT_64f_3x3_PS2, zelmMul_mmaT_64f_4x4_PS2,
                    zelmMul_mmaT_64f_5x5_PS2, zelmMul_mmaT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mmaT_32f_LS2, zelmMul_mmaT_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.row), word(src2.element), size.src2Width, size.src2Height,
                        dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mmaT_32f_3x3_LS2, zelmMul_mmaT_32f_4x4_LS2, zelmMul_mmaT_32f_5x5_LS2,
                    zelmMul_mmaT_32f_6x6_LS2, zelmMul_mmaT_64f_3x3_LS2, zelmMul_mmaT_64f_4x4_LS2,
                    zelmMul_mmaT_64f_5x5_LS2, zelmMul_mmaT_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::mT, Kind::ma> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTma_32f, zelmMul_mTma_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, word(src2.object),
                        word(src2.row), size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mTma_32f_3x3, zelmMul_mTma_32f_4x4, zelmMul_mTma_32f_5x5,
                    zelmMul_mTma_32f_6x6, zelmMul_mTma_64f_3x3, zelmMul_mTma_64f_4x4, zelmMul_mTma_64f_5x5,
                    zelmMul_mTma_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTma_32f_S2, zelmMul_mTma_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), word(src2.row), word(src2.element), size.src2Width, size.src2Height,
                        dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mTma_32f_3x3_S2, zelmMul_mTma_32f_4x4_S2, zelmMul_mTma_32f_5x5_S2,
                    zelmMul_mTma_32f_6x6_S2, zelmMul_mTma_64f_3x3_S2, zelmMul_mTma_64f_4x4_S2,
                    zelmMul_mTma_64f_5x5_S2, zelmMul_mTma_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTma_32f_P, zelmMul_mTma_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mTma_32f_3x3_P, zelmMul_mTma_32f_4x4_P, zelmMul_mTma_32f_5x5_P,
                    zelmMul_mTma_32f_6x6_P, zelmMul_mTma_64f_3x3_P, zelmMul_mTma_64f_4x4_P, zelmMul_mTma_64f_5x5_P,
                    zelmMul_mTma_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTma_32f_L, zelmMul_mTma_64f_L)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        word(src2.row), size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mTma_32f_3x3_L, zelmMul_mTma_32f_4x4_L, zelmMul_mTma_32f_5x5_L,
                    zelmMul_mTma_32f_6x6_L, zelmMul_mTma_64f_3x3_L, zelmMul_mTma_64f_4x4_L, zelmMul_mTma_64f_5x5_L,
                    zelmMul_mTma_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTma_32f_PS2, zelmMul_mTma_64f_PS2)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        word(src2.object), size.src2Width, size.src2Height, dst.table, word(dst.shift),
                        word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mTma_32f_3x3_PS2, zelmMul_mTma_32f_4x4_PS2, zelmMul_mTma_32f_5x5_PS2,
                    zelmMul_mTma_32f_6x6_PS2, zelmMul_mTma_64f_3x3_PS2, zelmMul_mTma_64f_4x4_PS2,
                    zelmMul_mTma_64f_5x5_PS2, zelmMul_mTma_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTma_32f_LS2, zelmMul_mTma_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.row), word(src2.element), size.src2Width, size.src2Height,
                        dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mTma_32f_3x3_LS2, zelmMul_mTma_32f_4x4_LS2, zelmMul_mTma_32f_5x5_LS2,
                    zelmMul_mTma_32f_6x6_LS2, zelmMul_mTma_64f_3x3_LS2, zelmMul_mTma_64f_4x4_LS2,
                    zelmMul_mTma_64f_5x5_LS2, zelmMul_mTma_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2
template <>
struct Row<Op::Mul, Kind::mT, Kind::maT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTmaT_32f, zelmMul_mTmaT_64f)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.first, word(src2.object),
                        word(src2.row), size.src2Width, size.src2Height, dst.first, word(dst.object), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mTmaT_32f_3x3, zelmMul_mTmaT_32f_4x4, zelmMul_mTmaT_32f_5x5,
                    zelmMul_mTmaT_32f_6x6, zelmMul_mTmaT_64f_3x3, zelmMul_mTmaT_64f_4x4, zelmMul_mTmaT_64f_5x5,
                    zelmMul_mTmaT_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), word(src2.row), dst.first,
                        word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTmaT_32f_S2, zelmMul_mTmaT_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.first,
                        word(src2.object), word(src2.row), word(src2.element), size.src2Width, size.src2Height,
                        dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mTmaT_32f_3x3_S2, zelmMul_mTmaT_32f_4x4_S2, zelmMul_mTmaT_32f_5x5_S2,
                    zelmMul_mTmaT_32f_6x6_S2, zelmMul_mTmaT_64f_3x3_S2, zelmMul_mTmaT_64f_4x4_S2,
                    zelmMul_mTmaT_64f_5x5_S2, zelmMul_mTmaT_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object), word(src2.row),
                        word(src2.element), dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTmaT_32f_P, zelmMul_mTmaT_64f_P)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        size.src2Width, size.src2Height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmMul_mTmaT_32f_3x3_P, zelmMul_mTmaT_32f_4x4_P, zelmMul_mTmaT_32f_5x5_P,
                    zelmMul_mTmaT_32f_6x6_P, zelmMul_mTmaT_64f_3x3_P, zelmMul_mTmaT_64f_4x4_P,
                    zelmMul_mTmaT_64f_5x5_P, zelmMul_mTmaT_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTmaT_32f_L, zelmMul_mTmaT_64f_L)
                    (src1.first, word(src1.row), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        word(src2.row), size.src2Width, size.src2Height, dst.table, word(dst.shift), word(dst.row),
                        count);
            } else {
                return pick<T, N>(zelmMul_mTmaT_32f_3x3_L, zelmMul_mTmaT_32f_4x4_L, zelmMul_mTmaT_32f_5x5_L,
                    zelmMul_mTmaT_32f_6x6_L, zelmMul_mTmaT_64f_3x3_L, zelmMul_mTmaT_64f_4x4_L,
                    zelmMul_mTmaT_64f_5x5_L, zelmMul_mTmaT_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), word(src2.row), dst.table,
                        word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTmaT_32f_PS2, zelmMul_mTmaT_64f_PS2)
                    (src1.table, word(src1.shift), size.src1Width, size.src1Height, src2.table, word(src2.shift),
                        word(src2.object), size.src2Width, size.src2Height, dst.table, word(dst.shift),
                        word(dst.object), count);
            } else {
                return pick<T, N>(zelmMul_mTmaT_32f_3x3_PS2, zelmMul_mTmaT_32f_4x4_PS2, zelmMul_mTmaT_32f_5x5_PS2,
                    zelmMul_mTmaT_32f_6x6_PS2, zelmMul_mTmaT_64f_3x3_PS2, zelmMul_mTmaT_64f_4x4_PS2,
                    zelmMul_mTmaT_64f_5x5_PS2, zelmMul_mTmaT_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmMul_mTmaT_32f_LS2, zelmMul_mTmaT_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), size.src1Width, size.src1Height, src2.table,
                        word(src2.shift), word(src2.row), word(src2.element), size.src2Width, size.src2Height,
                        dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmMul_mTmaT_32f_3x3_LS2, zelmMul_mTmaT_32f_4x4_LS2, zelmMul_mTmaT_32f_5x5_LS2,
                    zelmMul_mTmaT_32f_6x6_LS2, zelmMul_mTmaT_64f_3x3_LS2, zelmMul_mTmaT_64f_4x4_LS2,
                    zelmMul_mTmaT_64f_5x5_LS2, zelmMul_mTmaT_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift), word(src2.row),
                        word(src2.element), dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = src1 * src2 + src3
template <>
struct Row<Op::Gaxpy, Kind::m, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &src3, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmGaxpy_v_32f, zelmGaxpy_v_64f)
                    (src1.first, word(src1.row), src2.first, src3.first, dst.first, size.width, size.height);
            } else {
                return pick<T, N>(zelmGaxpy_v_32f_3x3, zelmGaxpy_v_32f_4x4, zelmGaxpy_v_32f_5x5,
                    zelmGaxpy_v_32f_6x6, zelmGaxpy_v_64f_3x3, zelmGaxpy_v_64f_4x4, zelmGaxpy_v_64f_5x5,
                    zelmGaxpy_v_64f_6x6)
                    (src1.first, word(src1.row), src2.first, src3.first, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmGaxpy_v_32f_S2, zelmGaxpy_v_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.element), src3.first,
                        word(src3.element), dst.first, word(dst.element), size.width, size.height);
            } else {
                return pick<T, N>(zelmGaxpy_v_32f_3x3_S2, zelmGaxpy_v_32f_4x4_S2, zelmGaxpy_v_32f_5x5_S2,
                    zelmGaxpy_v_32f_6x6_S2, zelmGaxpy_v_64f_3x3_S2, zelmGaxpy_v_64f_4x4_S2, zelmGaxpy_v_64f_5x5_S2,
                    zelmGaxpy_v_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.element), src3.first,
                        word(src3.element), dst.first, word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmGaxpy_v_32f_P, zelmGaxpy_v_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), src3.table, word(src3.shift),
                        dst.table, word(dst.shift), size.width, size.height);
            } else {
                return pick<T, N>(zelmGaxpy_v_32f_3x3_P, zelmGaxpy_v_32f_4x4_P, zelmGaxpy_v_32f_5x5_P,
                    zelmGaxpy_v_32f_6x6_P, zelmGaxpy_v_64f_3x3_P, zelmGaxpy_v_64f_4x4_P, zelmGaxpy_v_64f_5x5_P,
                    zelmGaxpy_v_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), src3.table, word(src3.shift),
                        dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = src1 * src2[k] + src3[k]
template <>
struct Row<Op::Gaxpy, Kind::m, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &src3, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmGaxpy_va_32f, zelmGaxpy_va_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.object), src3.first, word(src3.object),
                        dst.first, word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmGaxpy_va_32f_3x3, zelmGaxpy_va_32f_4x4, zelmGaxpy_va_32f_5x5,
                    zelmGaxpy_va_32f_6x6, zelmGaxpy_va_64f_3x3, zelmGaxpy_va_64f_4x4, zelmGaxpy_va_64f_5x5,
                    zelmGaxpy_va_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), src3.first, word(src3.object),
                        dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmGaxpy_va_32f_S2, zelmGaxpy_va_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), src3.first, word(src3.object), word(src3.element), dst.first,
                        word(dst.object), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmGaxpy_va_32f_3x3_S2, zelmGaxpy_va_32f_4x4_S2, zelmGaxpy_va_32f_5x5_S2,
                    zelmGaxpy_va_32f_6x6_S2, zelmGaxpy_va_64f_3x3_S2, zelmGaxpy_va_64f_4x4_S2,
                    zelmGaxpy_va_64f_5x5_S2, zelmGaxpy_va_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), src3.first, word(src3.object), word(src3.element), dst.first,
                        word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmGaxpy_va_32f_P, zelmGaxpy_va_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), src3.table, word(src3.shift),
                        dst.table, word(dst.shift), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmGaxpy_va_32f_3x3_P, zelmGaxpy_va_32f_4x4_P, zelmGaxpy_va_32f_5x5_P,
                    zelmGaxpy_va_32f_6x6_P, zelmGaxpy_va_64f_3x3_P, zelmGaxpy_va_64f_4x4_P, zelmGaxpy_va_64f_5x5_P,
                    zelmGaxpy_va_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), src3.table, word(src3.shift),
                        dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmGaxpy_va_32f_L, zelmGaxpy_va_64f_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), src3.table, word(src3.shift),
                        dst.table, word(dst.shift), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmGaxpy_va_32f_3x3_L, zelmGaxpy_va_32f_4x4_L, zelmGaxpy_va_32f_5x5_L,
                    zelmGaxpy_va_32f_6x6_L, zelmGaxpy_va_64f_3x3_L, zelmGaxpy_va_64f_4x4_L, zelmGaxpy_va_64f_5x5_L,
                    zelmGaxpy_va_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), src3.table, word(src3.shift),
                        dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmGaxpy_va_32f_PS2, zelmGaxpy_va_64f_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), src3.table,
                        word(src3.shift), word(src3.object), dst.table, word(dst.shift), word(dst.object),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmGaxpy_va_32f_3x3_PS2, zelmGaxpy_va_32f_4x4_PS2, zelmGaxpy_va_32f_5x5_PS2,
                    zelmGaxpy_va_32f_6x6_PS2, zelmGaxpy_va_64f_3x3_PS2, zelmGaxpy_va_64f_4x4_PS2,
                    zelmGaxpy_va_64f_5x5_PS2, zelmGaxpy_va_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), src3.table,
                        word(src3.shift), word(src3.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmGaxpy_va_32f_LS2, zelmGaxpy_va_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), src3.table, word(src3.shift), word(src3.element), dst.table,
                        word(dst.shift), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmGaxpy_va_32f_3x3_LS2, zelmGaxpy_va_32f_4x4_LS2, zelmGaxpy_va_32f_5x5_LS2,
                    zelmGaxpy_va_32f_6x6_LS2, zelmGaxpy_va_64f_3x3_LS2, zelmGaxpy_va_64f_4x4_LS2,
                    zelmGaxpy_va_64f_5x5_LS2, zelmGaxpy_va_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), src3.table, word(src3.shift), word(src3.element), dst.table,
                        word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = determinant of src
template <>
struct Row<Op::Det, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &scratch, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDet_m_32f, zelmDet_m_64f)
                    (src.first, word(src.row), size.n, scratch, dst.first);
            } else {
                return pick<T, N>(zelmDet_m_32f_3x3, zelmDet_m_32f_4x4, zelmDet_m_32f_5x5, zelmDet_m_32f_6x6,
                    zelmDet_m_64f_3x3, zelmDet_m_64f_4x4, zelmDet_m_64f_5x5, zelmDet_m_64f_6x6)
                    (src.first, word(src.row), dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDet_m_32f_S2, zelmDet_m_64f_S2)
                    (src.first, word(src.row), word(src.element), size.n, scratch, dst.first);
            } else {
                return pick<T, N>(zelmDet_m_32f_3x3_S2, zelmDet_m_32f_4x4_S2, zelmDet_m_32f_5x5_S2,
                    zelmDet_m_32f_6x6_S2, zelmDet_m_64f_3x3_S2, zelmDet_m_64f_4x4_S2, zelmDet_m_64f_5x5_S2,
                    zelmDet_m_64f_6x6_S2)
                    (src.first, word(src.row), word(src.element), dst.first);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDet_m_32f_P, zelmDet_m_64f_P)
                    (src.table, word(src.shift), size.n, scratch, dst.first);
            } else {
                return pick<T, N>(zelmDet_m_32f_3x3_P, zelmDet_m_32f_4x4_P, zelmDet_m_32f_5x5_P,
                    zelmDet_m_32f_6x6_P, zelmDet_m_64f_3x3_P, zelmDet_m_64f_4x4_P, zelmDet_m_64f_5x5_P,
                    zelmDet_m_64f_6x6_P)
                    (src.table, word(src.shift), dst.first);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = inverse of src
template <>
struct Row<Op::Invert, Kind::m> : Regular {
    static constexpr bool may_fail = true;
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &scratch, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmInvert_m_32f, zelmInvert_m_64f)
                    (src.first, word(src.row), size.n, scratch, dst.first, word(dst.row));
            } else {
                return pick<T, N>(zelmInvert_m_32f_3x3, zelmInvert_m_32f_4x4, zelmInvert_m_32f_5x5,
                    zelmInvert_m_32f_6x6, zelmInvert_m_64f_3x3, zelmInvert_m_64f_4x4, zelmInvert_m_64f_5x5,
                    zelmInvert_m_64f_6x6)
                    (src.first, word(src.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmInvert_m_32f_S2, zelmInvert_m_64f_S2)
                    (src.first, word(src.row), word(src.element), size.n, scratch, dst.first, word(dst.row),
                        word(dst.element));
            } else {
                return pick<T, N>(zelmInvert_m_32f_3x3_S2, zelmInvert_m_32f_4x4_S2, zelmInvert_m_32f_5x5_S2,
                    zelmInvert_m_32f_6x6_S2, zelmInvert_m_64f_3x3_S2, zelmInvert_m_64f_4x4_S2,
                    zelmInvert_m_64f_5x5_S2, zelmInvert_m_64f_6x6_S2)
                    (src.first, word(src.row), word(src.element), dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmInvert_m_32f_P, zelmInvert_m_64f_P)
                    (src.table, word(src.shift), size.n, scratch, dst.table, word(dst.shift));
            } else {
                return pick<T, N>(zelmInvert_m_32f_3x3_P, zelmInvert_m_32f_4x4_P, zelmInvert_m_32f_5x5_P,
                    zelmInvert_m_32f_6x6_P, zelmInvert_m_64f_3x3_P, zelmInvert_m_64f_4x4_P, zelmInvert_m_64f_5x5_P,
                    zelmInvert_m_64f_6x6_P)
                    (src.table, word(src.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst, pivotIndex = the factors L and U of src and the order of their rows
template <>
struct Row<Op::LUDecomp, Kind::m> : Regular {
    static constexpr bool may_fail = true;
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &pivotIndex, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUDecomp_m_32f, zelmLUDecomp_m_64f)
                    (src.first, word(src.row), pivotIndex.first, dst.first, word(dst.row), size.n);
            } else {
                return pick<T, N>(zelmLUDecomp_m_32f_3x3, zelmLUDecomp_m_32f_4x4, zelmLUDecomp_m_32f_5x5,
                    zelmLUDecomp_m_32f_6x6, zelmLUDecomp_m_64f_3x3, zelmLUDecomp_m_64f_4x4, zelmLUDecomp_m_64f_5x5,
                    zelmLUDecomp_m_64f_6x6)
                    (src.first, word(src.row), pivotIndex.first, dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUDecomp_m_32f_S2, zelmLUDecomp_m_64f_S2)
                    (src.first, word(src.row), word(src.element), pivotIndex.first, dst.first, word(dst.row),
                        word(dst.element), size.n);
            } else {
                return pick<T, N>(zelmLUDecomp_m_32f_3x3_S2, zelmLUDecomp_m_32f_4x4_S2, zelmLUDecomp_m_32f_5x5_S2,
                    zelmLUDecomp_m_32f_6x6_S2, zelmLUDecomp_m_64f_3x3_S2, zelmLUDecomp_m_64f_4x4_S2,
                    zelmLUDecomp_m_64f_5x5_S2, zelmLUDecomp_m_64f_6x6_S2)
                    (src.first, word(src.row), word(src.element), pivotIndex.first, dst.first, word(dst.row),
                        word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUDecomp_m_32f_P, zelmLUDecomp_m_64f_P)
                    (src.table, word(src.shift), pivotIndex.first, dst.table, word(dst.shift), size.n);
            } else {
                return pick<T, N>(zelmLUDecomp_m_32f_3x3_P, zelmLUDecomp_m_32f_4x4_P, zelmLUDecomp_m_32f_5x5_P,
                    zelmLUDecomp_m_32f_6x6_P, zelmLUDecomp_m_64f_3x3_P, zelmLUDecomp_m_64f_4x4_P,
                    zelmLUDecomp_m_64f_5x5_P, zelmLUDecomp_m_64f_6x6_P)
                    (src.table, word(src.shift), pivotIndex.first, dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = the factor L of src
template <>
struct Row<Op::CholeskyDecomp, Kind::m> : Regular {
    static constexpr bool may_fail = true;
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyDecomp_m_32f, zelmCholeskyDecomp_m_64f)
                    (src.first, word(src.row), dst.first, word(dst.row), size.n);
            } else {
                return pick<T, N>(zelmCholeskyDecomp_m_32f_3x3, zelmCholeskyDecomp_m_32f_4x4,
                    zelmCholeskyDecomp_m_32f_5x5, zelmCholeskyDecomp_m_32f_6x6, zelmCholeskyDecomp_m_64f_3x3,
                    zelmCholeskyDecomp_m_64f_4x4, zelmCholeskyDecomp_m_64f_5x5, zelmCholeskyDecomp_m_64f_6x6)
                    (src.first, word(src.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyDecomp_m_32f_S2, zelmCholeskyDecomp_m_64f_S2)
                    (src.first, word(src.row), word(src.element), dst.first, word(dst.row), word(dst.element),
                        size.n);
            } else {
                return pick<T, N>(zelmCholeskyDecomp_m_32f_3x3_S2, zelmCholeskyDecomp_m_32f_4x4_S2,
                    zelmCholeskyDecomp_m_32f_5x5_S2, zelmCholeskyDecomp_m_32f_6x6_S2,
                    zelmCholeskyDecomp_m_64f_3x3_S2, zelmCholeskyDecomp_m_64f_4x4_S2,
                    zelmCholeskyDecomp_m_64f_5x5_S2, zelmCholeskyDecomp_m_64f_6x6_S2)
                    (src.first, word(src.row), word(src.element), dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyDecomp_m_32f_P, zelmCholeskyDecomp_m_64f_P)
                    (src.table, word(src.shift), dst.table, word(dst.shift), size.n);
            } else {
                return pick<T, N>(zelmCholeskyDecomp_m_32f_3x3_P, zelmCholeskyDecomp_m_32f_4x4_P,
                    zelmCholeskyDecomp_m_32f_5x5_P, zelmCholeskyDecomp_m_32f_6x6_P, zelmCholeskyDecomp_m_64f_3x3_P,
                    zelmCholeskyDecomp_m_64f_4x4_P, zelmCholeskyDecomp_m_64f_5x5_P, zelmCholeskyDecomp_m_64f_6x6_P)
                    (src.table, word(src.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = R and the reflectors of src
template <>
struct Row<Op::QRDecomp, Kind::m> : Regular {
    static constexpr bool may_fail = true;
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &scratch, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRDecomp_m_32f, zelmQRDecomp_m_64f)
                    (src.first, word(src.row), scratch, dst.first, word(dst.row), size.width, size.height);
            } else {
                return pick<T, N>(zelmQRDecomp_m_32f_3x3, zelmQRDecomp_m_32f_4x4, zelmQRDecomp_m_32f_5x5,
                    zelmQRDecomp_m_32f_6x6, zelmQRDecomp_m_64f_3x3, zelmQRDecomp_m_64f_4x4, zelmQRDecomp_m_64f_5x5,
                    zelmQRDecomp_m_64f_6x6)
                    (src.first, word(src.row), scratch, dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRDecomp_m_32f_S2, zelmQRDecomp_m_64f_S2)
                    (src.first, word(src.row), word(src.element), scratch, dst.first, word(dst.row),
                        word(dst.element), size.width, size.height);
            } else {
                return pick<T, N>(zelmQRDecomp_m_32f_3x3_S2, zelmQRDecomp_m_32f_4x4_S2, zelmQRDecomp_m_32f_5x5_S2,
                    zelmQRDecomp_m_32f_6x6_S2, zelmQRDecomp_m_64f_3x3_S2, zelmQRDecomp_m_64f_4x4_S2,
                    zelmQRDecomp_m_64f_5x5_S2, zelmQRDecomp_m_64f_6x6_S2)
                    (src.first, word(src.row), word(src.element), scratch, dst.first, word(dst.row),
                        word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRDecomp_m_32f_P, zelmQRDecomp_m_64f_P)
                    (src.table, word(src.shift), scratch, dst.table, word(dst.shift), size.width, size.height);
            } else {
                return pick<T, N>(zelmQRDecomp_m_32f_3x3_P, zelmQRDecomp_m_32f_4x4_P, zelmQRDecomp_m_32f_5x5_P,
                    zelmQRDecomp_m_32f_6x6_P, zelmQRDecomp_m_64f_3x3_P, zelmQRDecomp_m_64f_4x4_P,
                    zelmQRDecomp_m_64f_5x5_P, zelmQRDecomp_m_64f_6x6_P)
                    (src.table, word(src.shift), scratch, dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = determinant of src[k]
template <>
struct Row<Op::Det, Kind::ma> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &scratch, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDet_ma_32f, zelmDet_ma_64f)
                    (src.first, word(src.object), word(src.row), size.n, scratch, dst.first, count);
            } else {
                return pick<T, N>(zelmDet_ma_32f_3x3, zelmDet_ma_32f_4x4, zelmDet_ma_32f_5x5, zelmDet_ma_32f_6x6,
                    zelmDet_ma_64f_3x3, zelmDet_ma_64f_4x4, zelmDet_ma_64f_5x5, zelmDet_ma_64f_6x6)
                    (src.first, word(src.object), word(src.row), dst.first, count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDet_ma_32f_S2, zelmDet_ma_64f_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), size.n, scratch, dst.first,
                        count);
            } else {
                return pick<T, N>(zelmDet_ma_32f_3x3_S2, zelmDet_ma_32f_4x4_S2, zelmDet_ma_32f_5x5_S2,
                    zelmDet_ma_32f_6x6_S2, zelmDet_ma_64f_3x3_S2, zelmDet_ma_64f_4x4_S2, zelmDet_ma_64f_5x5_S2,
                    zelmDet_ma_64f_6x6_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), dst.first, count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDet_ma_32f_P, zelmDet_ma_64f_P)
                    (src.table, word(src.shift), size.n, scratch, dst.first, count);
            } else {
                return pick<T, N>(zelmDet_ma_32f_3x3_P, zelmDet_ma_32f_4x4_P, zelmDet_ma_32f_5x5_P,
                    zelmDet_ma_32f_6x6_P, zelmDet_ma_64f_3x3_P, zelmDet_ma_64f_4x4_P, zelmDet_ma_64f_5x5_P,
                    zelmDet_ma_64f_6x6_P)
                    (src.table, word(src.shift), dst.first, count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDet_ma_32f_L, zelmDet_ma_64f_L)
                    (src.table, word(src.shift), word(src.row), size.n, scratch, dst.first, count);
            } else {
                return pick<T, N>(zelmDet_ma_32f_3x3_L, zelmDet_ma_32f_4x4_L, zelmDet_ma_32f_5x5_L,
                    zelmDet_ma_32f_6x6_L, zelmDet_ma_64f_3x3_L, zelmDet_ma_64f_4x4_L, zelmDet_ma_64f_5x5_L,
                    zelmDet_ma_64f_6x6_L)
                    (src.table, word(src.shift), word(src.row), dst.first, count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDet_ma_32f_PS2, zelmDet_ma_64f_PS2)
                    (src.table, word(src.shift), word(src.object), size.n, scratch, dst.first, count);
            } else {
                return pick<T, N>(zelmDet_ma_32f_3x3_PS2, zelmDet_ma_32f_4x4_PS2, zelmDet_ma_32f_5x5_PS2,
                    zelmDet_ma_32f_6x6_PS2, zelmDet_ma_64f_3x3_PS2, zelmDet_ma_64f_4x4_PS2, zelmDet_ma_64f_5x5_PS2,
                    zelmDet_ma_64f_6x6_PS2)
                    (src.table, word(src.shift), word(src.object), dst.first, count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmDet_ma_32f_LS2, zelmDet_ma_64f_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), size.n, scratch, dst.first, count);
            } else {
                return pick<T, N>(zelmDet_ma_32f_3x3_LS2, zelmDet_ma_32f_4x4_LS2, zelmDet_ma_32f_5x5_LS2,
                    zelmDet_ma_32f_6x6_LS2, zelmDet_ma_64f_3x3_LS2, zelmDet_ma_64f_4x4_LS2, zelmDet_ma_64f_5x5_LS2,
                    zelmDet_ma_64f_6x6_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), dst.first, count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = inverse of src[k]
template <>
struct Row<Op::Invert, Kind::ma> : Regular {
    static constexpr bool may_fail = true;
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &scratch, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmInvert_ma_32f, zelmInvert_ma_64f)
                    (src.first, word(src.object), word(src.row), size.n, scratch, dst.first, word(dst.object),
                        word(dst.row), count);
            } else {
                return pick<T, N>(zelmInvert_ma_32f_3x3, zelmInvert_ma_32f_4x4, zelmInvert_ma_32f_5x5,
                    zelmInvert_ma_32f_6x6, zelmInvert_ma_64f_3x3, zelmInvert_ma_64f_4x4, zelmInvert_ma_64f_5x5,
                    zelmInvert_ma_64f_6x6)
                    (src.first, word(src.object), word(src.row), dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmInvert_ma_32f_S2, zelmInvert_ma_64f_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), size.n, scratch, dst.first,
                        word(dst.object), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmInvert_ma_32f_3x3_S2, zelmInvert_ma_32f_4x4_S2, zelmInvert_ma_32f_5x5_S2,
                    zelmInvert_ma_32f_6x6_S2, zelmInvert_ma_64f_3x3_S2, zelmInvert_ma_64f_4x4_S2,
                    zelmInvert_ma_64f_5x5_S2, zelmInvert_ma_64f_6x6_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmInvert_ma_32f_P, zelmInvert_ma_64f_P)
                    (src.table, word(src.shift), size.n, scratch, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmInvert_ma_32f_3x3_P, zelmInvert_ma_32f_4x4_P, zelmInvert_ma_32f_5x5_P,
                    zelmInvert_ma_32f_6x6_P, zelmInvert_ma_64f_3x3_P, zelmInvert_ma_64f_4x4_P,
                    zelmInvert_ma_64f_5x5_P, zelmInvert_ma_64f_6x6_P)
                    (src.table, word(src.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmInvert_ma_32f_L, zelmInvert_ma_64f_L)
                    (src.table, word(src.shift), word(src.row), size.n, scratch, dst.table, word(dst.shift),
                        word(dst.row), count);
            } else {
                return pick<T, N>(zelmInvert_ma_32f_3x3_L, zelmInvert_ma_32f_4x4_L, zelmInvert_ma_32f_5x5_L,
                    zelmInvert_ma_32f_6x6_L, zelmInvert_ma_64f_3x3_L, zelmInvert_ma_64f_4x4_L,
                    zelmInvert_ma_64f_5x5_L, zelmInvert_ma_64f_6x6_L)
                    (src.table, word(src.shift), word(src.row), dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmInvert_ma_32f_PS2, zelmInvert_ma_64f_PS2)
                    (src.table, word(src.shift), word(src.object), size.n, scratch, dst.table, word(dst.shift),
                        word(dst.object), count);
            } else {
                return pick<T, N>(zelmInvert_ma_32f_3x3_PS2, zelmInvert_ma_32f_4x4_PS2, zelmInvert_ma_32f_5x5_PS2,
                    zelmInvert_ma_32f_6x6_PS2, zelmInvert_ma_64f_3x3_PS2, zelmInvert_ma_64f_4x4_PS2,
                    zelmInvert_ma_64f_5x5_PS2, zelmInvert_ma_64f_6x6_PS2)
                    (src.table, word(src.shift), word(src.object), dst.table, word(dst.shift), word(dst.object),
                        count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmInvert_ma_32f_LS2, zelmInvert_ma_64f_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), size.n, scratch, dst.table,
                        word(dst.shift), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmInvert_ma_32f_3x3_LS2, zelmInvert_ma_32f_4x4_LS2, zelmInvert_ma_32f_5x5_LS2,
                    zelmInvert_ma_32f_6x6_LS2, zelmInvert_ma_64f_3x3_LS2, zelmInvert_ma_64f_4x4_LS2,
                    zelmInvert_ma_64f_5x5_LS2, zelmInvert_ma_64f_6x6_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), dst.table, word(dst.shift),
                        word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k], pivotIndex[k] = the factors L and U of src[k] and the order of their rows
template <>
struct Row<Op::LUDecomp, Kind::ma> : Regular {
    static constexpr bool may_fail = true;
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &pivotIndex, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUDecomp_ma_32f, zelmLUDecomp_ma_64f)
                    (src.first, word(src.object), word(src.row), pivotIndex.first, dst.first, word(dst.object),
                        word(dst.row), size.n, count);
            } else {
                return pick<T, N>(zelmLUDecomp_ma_32f_3x3, zelmLUDecomp_ma_32f_4x4, zelmLUDecomp_ma_32f_5x5,
                    zelmLUDecomp_ma_32f_6x6, zelmLUDecomp_ma_64f_3x3, zelmLUDecomp_ma_64f_4x4,
                    zelmLUDecomp_ma_64f_5x5, zelmLUDecomp_ma_64f_6x6)
                    (src.first, word(src.object), word(src.row), pivotIndex.first, dst.first, word(dst.object),
                        word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUDecomp_ma_32f_S2, zelmLUDecomp_ma_64f_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), pivotIndex.first, dst.first,
                        word(dst.object), word(dst.row), word(dst.element), size.n, count);
            } else {
                return pick<T, N>(zelmLUDecomp_ma_32f_3x3_S2, zelmLUDecomp_ma_32f_4x4_S2,
                    zelmLUDecomp_ma_32f_5x5_S2, zelmLUDecomp_ma_32f_6x6_S2, zelmLUDecomp_ma_64f_3x3_S2,
                    zelmLUDecomp_ma_64f_4x4_S2, zelmLUDecomp_ma_64f_5x5_S2, zelmLUDecomp_ma_64f_6x6_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), pivotIndex.first, dst.first,
                        word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUDecomp_ma_32f_P, zelmLUDecomp_ma_64f_P)
                    (src.table, word(src.shift), pivotIndex.first, dst.table, word(dst.shift), size.n, count);
            } else {
                return pick<T, N>(zelmLUDecomp_ma_32f_3x3_P, zelmLUDecomp_ma_32f_4x4_P, zelmLUDecomp_ma_32f_5x5_P,
                    zelmLUDecomp_ma_32f_6x6_P, zelmLUDecomp_ma_64f_3x3_P, zelmLUDecomp_ma_64f_4x4_P,
                    zelmLUDecomp_ma_64f_5x5_P, zelmLUDecomp_ma_64f_6x6_P)
                    (src.table, word(src.shift), pivotIndex.first, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUDecomp_ma_32f_L, zelmLUDecomp_ma_64f_L)
                    (src.table, word(src.shift), word(src.row), pivotIndex.first, dst.table, word(dst.shift),
                        word(dst.row), size.n, count);
            } else {
                return pick<T, N>(zelmLUDecomp_ma_32f_3x3_L, zelmLUDecomp_ma_32f_4x4_L, zelmLUDecomp_ma_32f_5x5_L,
                    zelmLUDecomp_ma_32f_6x6_L, zelmLUDecomp_ma_64f_3x3_L, zelmLUDecomp_ma_64f_4x4_L,
                    zelmLUDecomp_ma_64f_5x5_L, zelmLUDecomp_ma_64f_6x6_L)
                    (src.table, word(src.shift), word(src.row), pivotIndex.first, dst.table, word(dst.shift),
                        word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUDecomp_ma_32f_PS2, zelmLUDecomp_ma_64f_PS2)
                    (src.table, word(src.shift), word(src.object), pivotIndex.first, dst.table, word(dst.shift),
                        word(dst.object), size.n, count);
            } else {
                return pick<T, N>(zelmLUDecomp_ma_32f_3x3_PS2, zelmLUDecomp_ma_32f_4x4_PS2,
                    zelmLUDecomp_ma_32f_5x5_PS2, zelmLUDecomp_ma_32f_6x6_PS2, zelmLUDecomp_ma_64f_3x3_PS2,
                    zelmLUDecomp_ma_64f_4x4_PS2, zelmLUDecomp_ma_64f_5x5_PS2, zelmLUDecomp_ma_64f_6x6_PS2)
                    (src.table, word(src.shift), word(src.object), pivotIndex.first, dst.table, word(dst.shift),
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUDecomp_ma_32f_LS2, zelmLUDecomp_ma_64f_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), pivotIndex.first, dst.table,
                        word(dst.shift), word(dst.row), word(dst.element), size.n, count);
            } else {
                return pick<T, N>(zelmLUDecomp_ma_32f_3x3_LS2, zelmLUDecomp_ma_32f_4x4_LS2,
                    zelmLUDecomp_ma_32f_5x5_LS2, zelmLUDecomp_ma_32f_6x6_LS2, zelmLUDecomp_ma_64f_3x3_LS2,
                    zelmLUDecomp_ma_64f_4x4_LS2, zelmLUDecomp_ma_64f_5x5_LS2, zelmLUDecomp_ma_64f_6x6_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), pivotIndex.first, dst.table,
                        word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = the factor L of src[k]
template <>
struct Row<Op::CholeskyDecomp, Kind::ma> : Regular {
    static constexpr bool may_fail = true;
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size,
        std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyDecomp_ma_32f, zelmCholeskyDecomp_ma_64f)
                    (src.first, word(src.object), word(src.row), dst.first, word(dst.object), word(dst.row), size.n,
                        word(count));
            } else {
                return pick<T, N>(zelmCholeskyDecomp_ma_32f_3x3, zelmCholeskyDecomp_ma_32f_4x4,
                    zelmCholeskyDecomp_ma_32f_5x5, zelmCholeskyDecomp_ma_32f_6x6, zelmCholeskyDecomp_ma_64f_3x3,
                    zelmCholeskyDecomp_ma_64f_4x4, zelmCholeskyDecomp_ma_64f_5x5, zelmCholeskyDecomp_ma_64f_6x6)
                    (src.first, word(src.object), word(src.row), dst.first, word(dst.object), word(dst.row),
                        word(count));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyDecomp_ma_32f_S2, zelmCholeskyDecomp_ma_64f_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), size.n, word(count));
            } else {
                return pick<T, N>(zelmCholeskyDecomp_ma_32f_3x3_S2, zelmCholeskyDecomp_ma_32f_4x4_S2,
                    zelmCholeskyDecomp_ma_32f_5x5_S2, zelmCholeskyDecomp_ma_32f_6x6_S2,
                    zelmCholeskyDecomp_ma_64f_3x3_S2, zelmCholeskyDecomp_ma_64f_4x4_S2,
                    zelmCholeskyDecomp_ma_64f_5x5_S2, zelmCholeskyDecomp_ma_64f_6x6_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), word(count));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyDecomp_ma_32f_P, zelmCholeskyDecomp_ma_64f_P)
                    (src.table, word(src.shift), dst.table, word(dst.shift), size.n, count);
            } else {
                return pick<T, N>(zelmCholeskyDecomp_ma_32f_3x3_P, zelmCholeskyDecomp_ma_32f_4x4_P,
                    zelmCholeskyDecomp_ma_32f_5x5_P, zelmCholeskyDecomp_ma_32f_6x6_P,
                    zelmCholeskyDecomp_ma_64f_3x3_P, zelmCholeskyDecomp_ma_64f_4x4_P,
                    zelmCholeskyDecomp_ma_64f_5x5_P, zelmCholeskyDecomp_ma_64f_6x6_P)
                    (src.table, word(src.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyDecomp_ma_32f_L, zelmCholeskyDecomp_ma_64f_L)
                    (src.table, word(src.shift), word(src.row), dst.table, word(dst.shift), word(dst.row), size.n,
                        word(count));
            } else {
                return pick<T, N>(zelmCholeskyDecomp_ma_32f_3x3_L, zelmCholeskyDecomp_ma_32f_4x4_L,
                    zelmCholeskyDecomp_ma_32f_5x5_L, zelmCholeskyDecomp_ma_32f_6x6_L,
                    zelmCholeskyDecomp_ma_64f_3x3_L, zelmCholeskyDecomp_ma_64f_4x4_L,
                    zelmCholeskyDecomp_ma_64f_5x5_L, zelmCholeskyDecomp_ma_64f_6x6_L)
                    (src.table, word(src.shift), word(src.row), dst.table, word(dst.shift), word(dst.row),
                        word(count));
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyDecomp_ma_32f_PS2, zelmCholeskyDecomp_ma_64f_PS2)
                    (src.table, word(src.shift), word(src.object), dst.table, word(dst.shift), word(dst.object),
                        size.n, count);
            } else {
                return pick<T, N>(zelmCholeskyDecomp_ma_32f_3x3_PS2, zelmCholeskyDecomp_ma_32f_4x4_PS2,
                    zelmCholeskyDecomp_ma_32f_5x5_PS2, zelmCholeskyDecomp_ma_32f_6x6_PS2,
                    zelmCholeskyDecomp_ma_64f_3x3_PS2, zelmCholeskyDecomp_ma_64f_4x4_PS2,
                    zelmCholeskyDecomp_ma_64f_5x5_PS2, zelmCholeskyDecomp_ma_64f_6x6_PS2)
                    (src.table, word(src.shift), word(src.object), dst.table, word(dst.shift), word(dst.object),
                        count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyDecomp_ma_32f_LS2, zelmCholeskyDecomp_ma_64f_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), dst.table, word(dst.shift),
                        word(dst.row), word(dst.element), size.n, word(count));
            } else {
                return pick<T, N>(zelmCholeskyDecomp_ma_32f_3x3_LS2, zelmCholeskyDecomp_ma_32f_4x4_LS2,
                    zelmCholeskyDecomp_ma_32f_5x5_LS2, zelmCholeskyDecomp_ma_32f_6x6_LS2,
                    zelmCholeskyDecomp_ma_64f_3x3_LS2, zelmCholeskyDecomp_ma_64f_4x4_LS2,
                    zelmCholeskyDecomp_ma_64f_5x5_LS2, zelmCholeskyDecomp_ma_64f_6x6_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), dst.table, word(dst.shift),
                        word(dst.row), word(dst.element), word(count));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = R and the reflectors of src[k]
template <>
struct Row<Op::QRDecomp, Kind::ma> : Regular {
    static constexpr bool may_fail = true;
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &scratch, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRDecomp_ma_32f, zelmQRDecomp_ma_64f)
                    (src.first, word(src.object), word(src.row), scratch, dst.first, word(dst.object),
                        word(dst.row), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRDecomp_ma_32f_3x3, zelmQRDecomp_ma_32f_4x4, zelmQRDecomp_ma_32f_5x5,
                    zelmQRDecomp_ma_32f_6x6, zelmQRDecomp_ma_64f_3x3, zelmQRDecomp_ma_64f_4x4,
                    zelmQRDecomp_ma_64f_5x5, zelmQRDecomp_ma_64f_6x6)
                    (src.first, word(src.object), word(src.row), scratch, dst.first, word(dst.object),
                        word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRDecomp_ma_32f_S2, zelmQRDecomp_ma_64f_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), scratch, dst.first,
                        word(dst.object), word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRDecomp_ma_32f_3x3_S2, zelmQRDecomp_ma_32f_4x4_S2,
                    zelmQRDecomp_ma_32f_5x5_S2, zelmQRDecomp_ma_32f_6x6_S2, zelmQRDecomp_ma_64f_3x3_S2,
                    zelmQRDecomp_ma_64f_4x4_S2, zelmQRDecomp_ma_64f_5x5_S2, zelmQRDecomp_ma_64f_6x6_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), scratch, dst.first,
                        word(dst.object), word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRDecomp_ma_32f_P, zelmQRDecomp_ma_64f_P)
                    (src.table, word(src.shift), scratch, dst.table, word(dst.shift), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRDecomp_ma_32f_3x3_P, zelmQRDecomp_ma_32f_4x4_P, zelmQRDecomp_ma_32f_5x5_P,
                    zelmQRDecomp_ma_32f_6x6_P, zelmQRDecomp_ma_64f_3x3_P, zelmQRDecomp_ma_64f_4x4_P,
                    zelmQRDecomp_ma_64f_5x5_P, zelmQRDecomp_ma_64f_6x6_P)
                    (src.table, word(src.shift), scratch, dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRDecomp_ma_32f_L, zelmQRDecomp_ma_64f_L)
                    (src.table, word(src.shift), word(src.row), scratch, dst.table, word(dst.shift), word(dst.row),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRDecomp_ma_32f_3x3_L, zelmQRDecomp_ma_32f_4x4_L, zelmQRDecomp_ma_32f_5x5_L,
                    zelmQRDecomp_ma_32f_6x6_L, zelmQRDecomp_ma_64f_3x3_L, zelmQRDecomp_ma_64f_4x4_L,
                    zelmQRDecomp_ma_64f_5x5_L, zelmQRDecomp_ma_64f_6x6_L)
                    (src.table, word(src.shift), word(src.row), scratch, dst.table, word(dst.shift), word(dst.row),
                        count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRDecomp_ma_32f_PS2, zelmQRDecomp_ma_64f_PS2)
                    (src.table, word(src.shift), word(src.object), scratch, dst.table, word(dst.shift),
                        word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRDecomp_ma_32f_3x3_PS2, zelmQRDecomp_ma_32f_4x4_PS2,
                    zelmQRDecomp_ma_32f_5x5_PS2, zelmQRDecomp_ma_32f_6x6_PS2, zelmQRDecomp_ma_64f_3x3_PS2,
                    zelmQRDecomp_ma_64f_4x4_PS2, zelmQRDecomp_ma_64f_5x5_PS2, zelmQRDecomp_ma_64f_6x6_PS2)
                    (src.table, word(src.shift), word(src.object), scratch, dst.table, word(dst.shift),
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRDecomp_ma_32f_LS2, zelmQRDecomp_ma_64f_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), scratch, dst.table,
                        word(dst.shift), word(dst.row), word(dst.element), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRDecomp_ma_32f_3x3_LS2, zelmQRDecomp_ma_32f_4x4_LS2,
                    zelmQRDecomp_ma_32f_5x5_LS2, zelmQRDecomp_ma_32f_6x6_LS2, zelmQRDecomp_ma_64f_3x3_LS2,
                    zelmQRDecomp_ma_64f_4x4_LS2, zelmQRDecomp_ma_64f_5x5_LS2, zelmQRDecomp_ma_64f_6x6_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), scratch, dst.table,
                        word(dst.shift), word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = x with A*x = src2; src1 and pivotIndex hold the LU factors of A
template <>
struct Row<Op::LUBackSubst, Kind::m, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &pivotIndex, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mv_32f, zelmLUBackSubst_mv_64f)
                    (src1.first, word(src1.row), pivotIndex.first, src2.first, dst.first, size.n);
            } else {
                return pick<T, N>(zelmLUBackSubst_mv_32f_3x3, zelmLUBackSubst_mv_32f_4x4,
                    zelmLUBackSubst_mv_32f_5x5, zelmLUBackSubst_mv_32f_6x6, zelmLUBackSubst_mv_64f_3x3,
                    zelmLUBackSubst_mv_64f_4x4, zelmLUBackSubst_mv_64f_5x5, zelmLUBackSubst_mv_64f_6x6)
                    (src1.first, word(src1.row), pivotIndex.first, src2.first, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mv_32f_S2, zelmLUBackSubst_mv_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), pivotIndex.first, src2.first,
                        word(src2.element), dst.first, word(dst.element), size.n);
            } else {
                return pick<T, N>(zelmLUBackSubst_mv_32f_3x3_S2, zelmLUBackSubst_mv_32f_4x4_S2,
                    zelmLUBackSubst_mv_32f_5x5_S2, zelmLUBackSubst_mv_32f_6x6_S2, zelmLUBackSubst_mv_64f_3x3_S2,
                    zelmLUBackSubst_mv_64f_4x4_S2, zelmLUBackSubst_mv_64f_5x5_S2, zelmLUBackSubst_mv_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), pivotIndex.first, src2.first,
                        word(src2.element), dst.first, word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mv_32f_P, zelmLUBackSubst_mv_64f_P)
                    (src1.table, word(src1.shift), pivotIndex.first, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), size.n);
            } else {
                return pick<T, N>(zelmLUBackSubst_mv_32f_3x3_P, zelmLUBackSubst_mv_32f_4x4_P,
                    zelmLUBackSubst_mv_32f_5x5_P, zelmLUBackSubst_mv_32f_6x6_P, zelmLUBackSubst_mv_64f_3x3_P,
                    zelmLUBackSubst_mv_64f_4x4_P, zelmLUBackSubst_mv_64f_5x5_P, zelmLUBackSubst_mv_64f_6x6_P)
                    (src1.table, word(src1.shift), pivotIndex.first, src2.table, word(src2.shift), dst.table,
                        word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = x with A*x = src2; src1 holds the Cholesky factor of A
template <>
struct Row<Op::CholeskyBackSubst, Kind::m, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mv_32f, zelmCholeskyBackSubst_mv_64f)
                    (src1.first, word(src1.row), src2.first, dst.first, word(size.n));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mv_32f_3x3, zelmCholeskyBackSubst_mv_32f_4x4,
                    zelmCholeskyBackSubst_mv_32f_5x5, zelmCholeskyBackSubst_mv_32f_6x6,
                    zelmCholeskyBackSubst_mv_64f_3x3, zelmCholeskyBackSubst_mv_64f_4x4,
                    zelmCholeskyBackSubst_mv_64f_5x5, zelmCholeskyBackSubst_mv_64f_6x6)
                    (src1.first, word(src1.row), src2.first, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mv_32f_S2, zelmCholeskyBackSubst_mv_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.element), dst.first,
                        word(dst.element), word(size.n));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mv_32f_3x3_S2, zelmCholeskyBackSubst_mv_32f_4x4_S2,
                    zelmCholeskyBackSubst_mv_32f_5x5_S2, zelmCholeskyBackSubst_mv_32f_6x6_S2,
                    zelmCholeskyBackSubst_mv_64f_3x3_S2, zelmCholeskyBackSubst_mv_64f_4x4_S2,
                    zelmCholeskyBackSubst_mv_64f_5x5_S2, zelmCholeskyBackSubst_mv_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.element), dst.first,
                        word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mv_32f_P, zelmCholeskyBackSubst_mv_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        word(size.n));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mv_32f_3x3_P, zelmCholeskyBackSubst_mv_32f_4x4_P,
                    zelmCholeskyBackSubst_mv_32f_5x5_P, zelmCholeskyBackSubst_mv_32f_6x6_P,
                    zelmCholeskyBackSubst_mv_64f_3x3_P, zelmCholeskyBackSubst_mv_64f_4x4_P,
                    zelmCholeskyBackSubst_mv_64f_5x5_P, zelmCholeskyBackSubst_mv_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = x that minimises |A*x - src2|; src1 holds the QR factors of A
template <>
struct Row<Op::QRBackSubst, Kind::m, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &scratch, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mv_32f, zelmQRBackSubst_mv_64f)
                    (src1.first, word(src1.row), scratch, src2.first, dst.first, size.width, size.height);
            } else {
                return pick<T, N>(zelmQRBackSubst_mv_32f_3x3, zelmQRBackSubst_mv_32f_4x4,
                    zelmQRBackSubst_mv_32f_5x5, zelmQRBackSubst_mv_32f_6x6, zelmQRBackSubst_mv_64f_3x3,
                    zelmQRBackSubst_mv_64f_4x4, zelmQRBackSubst_mv_64f_5x5, zelmQRBackSubst_mv_64f_6x6)
                    (src1.first, word(src1.row), scratch, src2.first, dst.first);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mv_32f_S2, zelmQRBackSubst_mv_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), scratch, src2.first, word(src2.element),
                        dst.first, word(dst.element), size.width, size.height);
            } else {
                return pick<T, N>(zelmQRBackSubst_mv_32f_3x3_S2, zelmQRBackSubst_mv_32f_4x4_S2,
                    zelmQRBackSubst_mv_32f_5x5_S2, zelmQRBackSubst_mv_32f_6x6_S2, zelmQRBackSubst_mv_64f_3x3_S2,
                    zelmQRBackSubst_mv_64f_4x4_S2, zelmQRBackSubst_mv_64f_5x5_S2, zelmQRBackSubst_mv_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), scratch, src2.first, word(src2.element),
                        dst.first, word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mv_32f_P, zelmQRBackSubst_mv_64f_P)
                    (src1.table, word(src1.shift), scratch, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), size.width, size.height);
            } else {
                return pick<T, N>(zelmQRBackSubst_mv_32f_3x3_P, zelmQRBackSubst_mv_32f_4x4_P,
                    zelmQRBackSubst_mv_32f_5x5_P, zelmQRBackSubst_mv_32f_6x6_P, zelmQRBackSubst_mv_64f_3x3_P,
                    zelmQRBackSubst_mv_64f_4x4_P, zelmQRBackSubst_mv_64f_5x5_P, zelmQRBackSubst_mv_64f_6x6_P)
                    (src1.table, word(src1.shift), scratch, src2.table, word(src2.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = x with A*x = src2[k]; src1 and pivotIndex hold the LU factors of A
template <>
struct Row<Op::LUBackSubst, Kind::m, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &pivotIndex, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mva_32f, zelmLUBackSubst_mva_64f)
                    (src1.first, 0, word(src1.row), pivotIndex.first, src2.first, word(src2.object), dst.first,
                        word(dst.object), size.n, count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mva_32f_3x3, zelmLUBackSubst_mva_32f_4x4,
                    zelmLUBackSubst_mva_32f_5x5, zelmLUBackSubst_mva_32f_6x6, zelmLUBackSubst_mva_64f_3x3,
                    zelmLUBackSubst_mva_64f_4x4, zelmLUBackSubst_mva_64f_5x5, zelmLUBackSubst_mva_64f_6x6)
                    (src1.first, 0, word(src1.row), pivotIndex.first, src2.first, word(src2.object), dst.first,
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mva_32f_S2, zelmLUBackSubst_mva_64f_S2)
                    (src1.first, 0, word(src1.row), word(src1.element), pivotIndex.first, src2.first,
                        word(src2.object), word(src2.element), dst.first, word(dst.object), word(dst.element),
                        size.n, count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mva_32f_3x3_S2, zelmLUBackSubst_mva_32f_4x4_S2,
                    zelmLUBackSubst_mva_32f_5x5_S2, zelmLUBackSubst_mva_32f_6x6_S2, zelmLUBackSubst_mva_64f_3x3_S2,
                    zelmLUBackSubst_mva_64f_4x4_S2, zelmLUBackSubst_mva_64f_5x5_S2, zelmLUBackSubst_mva_64f_6x6_S2)
                    (src1.first, 0, word(src1.row), word(src1.element), pivotIndex.first, src2.first,
                        word(src2.object), word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mva_32f_P, zelmLUBackSubst_mva_64f_P)
                    (src1.table, word(src1.shift), pivotIndex.first, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), size.n, count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mva_32f_3x3_P, zelmLUBackSubst_mva_32f_4x4_P,
                    zelmLUBackSubst_mva_32f_5x5_P, zelmLUBackSubst_mva_32f_6x6_P, zelmLUBackSubst_mva_64f_3x3_P,
                    zelmLUBackSubst_mva_64f_4x4_P, zelmLUBackSubst_mva_64f_5x5_P, zelmLUBackSubst_mva_64f_6x6_P)
                    (src1.table, word(src1.shift), pivotIndex.first, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mva_32f_L, zelmLUBackSubst_mva_64f_L)
                    (src1.first, 0, word(src1.row), pivotIndex.first, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), size.n, count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mva_32f_3x3_L, zelmLUBackSubst_mva_32f_4x4_L,
                    zelmLUBackSubst_mva_32f_5x5_L, zelmLUBackSubst_mva_32f_6x6_L, zelmLUBackSubst_mva_64f_3x3_L,
                    zelmLUBackSubst_mva_64f_4x4_L, zelmLUBackSubst_mva_64f_5x5_L, zelmLUBackSubst_mva_64f_6x6_L)
                    (src1.first, 0, word(src1.row), pivotIndex.first, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mva_32f_PS2, zelmLUBackSubst_mva_64f_PS2)
                    (src1.table, word(src1.shift), pivotIndex.first, src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.n, count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mva_32f_3x3_PS2, zelmLUBackSubst_mva_32f_4x4_PS2,
                    zelmLUBackSubst_mva_32f_5x5_PS2, zelmLUBackSubst_mva_32f_6x6_PS2,
                    zelmLUBackSubst_mva_64f_3x3_PS2, zelmLUBackSubst_mva_64f_4x4_PS2,
                    zelmLUBackSubst_mva_64f_5x5_PS2, zelmLUBackSubst_mva_64f_6x6_PS2)
                    (src1.table, word(src1.shift), pivotIndex.first, src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mva_32f_LS2, zelmLUBackSubst_mva_64f_LS2)
                    (src1.first, 0, word(src1.row), word(src1.element), pivotIndex.first, src2.table,
                        word(src2.shift), word(src2.element), dst.table, word(dst.shift), word(dst.element), size.n,
                        count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mva_32f_3x3_LS2, zelmLUBackSubst_mva_32f_4x4_LS2,
                    zelmLUBackSubst_mva_32f_5x5_LS2, zelmLUBackSubst_mva_32f_6x6_LS2,
                    zelmLUBackSubst_mva_64f_3x3_LS2, zelmLUBackSubst_mva_64f_4x4_LS2,
                    zelmLUBackSubst_mva_64f_5x5_LS2, zelmLUBackSubst_mva_64f_6x6_LS2)
                    (src1.first, 0, word(src1.row), word(src1.element), pivotIndex.first, src2.table,
                        word(src2.shift), word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = x with A*x = src2[k]; src1 holds the Cholesky factor of A
template <>
struct Row<Op::CholeskyBackSubst, Kind::m, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mva_32f, zelmCholeskyBackSubst_mva_64f)
                    (src1.first, word(src1.row), src2.first, word(src2.object), dst.first, word(dst.object),
                        word(size.n), word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mva_32f_3x3, zelmCholeskyBackSubst_mva_32f_4x4,
                    zelmCholeskyBackSubst_mva_32f_5x5, zelmCholeskyBackSubst_mva_32f_6x6,
                    zelmCholeskyBackSubst_mva_64f_3x3, zelmCholeskyBackSubst_mva_64f_4x4,
                    zelmCholeskyBackSubst_mva_64f_5x5, zelmCholeskyBackSubst_mva_64f_6x6)
                    (src1.first, word(src1.row), src2.first, word(src2.object), dst.first, word(dst.object),
                        word(count));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mva_32f_S2, zelmCholeskyBackSubst_mva_64f_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), word(size.n),
                        word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mva_32f_3x3_S2, zelmCholeskyBackSubst_mva_32f_4x4_S2,
                    zelmCholeskyBackSubst_mva_32f_5x5_S2, zelmCholeskyBackSubst_mva_32f_6x6_S2,
                    zelmCholeskyBackSubst_mva_64f_3x3_S2, zelmCholeskyBackSubst_mva_64f_4x4_S2,
                    zelmCholeskyBackSubst_mva_64f_5x5_S2, zelmCholeskyBackSubst_mva_64f_6x6_S2)
                    (src1.first, word(src1.row), word(src1.element), src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), word(count));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mva_32f_P, zelmCholeskyBackSubst_mva_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        word(size.n), word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mva_32f_3x3_P, zelmCholeskyBackSubst_mva_32f_4x4_P,
                    zelmCholeskyBackSubst_mva_32f_5x5_P, zelmCholeskyBackSubst_mva_32f_6x6_P,
                    zelmCholeskyBackSubst_mva_64f_3x3_P, zelmCholeskyBackSubst_mva_64f_4x4_P,
                    zelmCholeskyBackSubst_mva_64f_5x5_P, zelmCholeskyBackSubst_mva_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        word(count));
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mva_32f_L, zelmCholeskyBackSubst_mva_64f_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        word(size.n), word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mva_32f_3x3_L, zelmCholeskyBackSubst_mva_32f_4x4_L,
                    zelmCholeskyBackSubst_mva_32f_5x5_L, zelmCholeskyBackSubst_mva_32f_6x6_L,
                    zelmCholeskyBackSubst_mva_64f_3x3_L, zelmCholeskyBackSubst_mva_64f_4x4_L,
                    zelmCholeskyBackSubst_mva_64f_5x5_L, zelmCholeskyBackSubst_mva_64f_6x6_L)
                    (src1.first, word(src1.row), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        word(count));
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mva_32f_PS2, zelmCholeskyBackSubst_mva_64f_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), word(size.n), word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mva_32f_3x3_PS2, zelmCholeskyBackSubst_mva_32f_4x4_PS2,
                    zelmCholeskyBackSubst_mva_32f_5x5_PS2, zelmCholeskyBackSubst_mva_32f_6x6_PS2,
                    zelmCholeskyBackSubst_mva_64f_3x3_PS2, zelmCholeskyBackSubst_mva_64f_4x4_PS2,
                    zelmCholeskyBackSubst_mva_64f_5x5_PS2, zelmCholeskyBackSubst_mva_64f_6x6_PS2)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), word(src2.object), dst.table,
                        word(dst.shift), word(dst.object), word(count));
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mva_32f_LS2, zelmCholeskyBackSubst_mva_64f_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), word(size.n), word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mva_32f_3x3_LS2, zelmCholeskyBackSubst_mva_32f_4x4_LS2,
                    zelmCholeskyBackSubst_mva_32f_5x5_LS2, zelmCholeskyBackSubst_mva_32f_6x6_LS2,
                    zelmCholeskyBackSubst_mva_64f_3x3_LS2, zelmCholeskyBackSubst_mva_64f_4x4_LS2,
                    zelmCholeskyBackSubst_mva_64f_5x5_LS2, zelmCholeskyBackSubst_mva_64f_6x6_LS2)
                    (src1.first, word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), word(count));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = x that minimises |A*x - src2[k]|; src1 holds the QR factors of A
template <>
struct Row<Op::QRBackSubst, Kind::m, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &scratch, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mva_32f, zelmQRBackSubst_mva_64f)
                    (src1.first, 0, word(src1.row), scratch, src2.first, word(src2.object), dst.first,
                        word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mva_32f_3x3, zelmQRBackSubst_mva_32f_4x4,
                    zelmQRBackSubst_mva_32f_5x5, zelmQRBackSubst_mva_32f_6x6, zelmQRBackSubst_mva_64f_3x3,
                    zelmQRBackSubst_mva_64f_4x4, zelmQRBackSubst_mva_64f_5x5, zelmQRBackSubst_mva_64f_6x6)
                    (src1.first, 0, word(src1.row), scratch, src2.first, word(src2.object), dst.first,
                        word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mva_32f_S2, zelmQRBackSubst_mva_64f_S2)
                    (src1.first, 0, word(src1.row), word(src1.element), scratch, src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), size.width, size.height,
                        count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mva_32f_3x3_S2, zelmQRBackSubst_mva_32f_4x4_S2,
                    zelmQRBackSubst_mva_32f_5x5_S2, zelmQRBackSubst_mva_32f_6x6_S2, zelmQRBackSubst_mva_64f_3x3_S2,
                    zelmQRBackSubst_mva_64f_4x4_S2, zelmQRBackSubst_mva_64f_5x5_S2, zelmQRBackSubst_mva_64f_6x6_S2)
                    (src1.first, 0, word(src1.row), word(src1.element), scratch, src2.first, word(src2.object),
                        word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mva_32f_P, zelmQRBackSubst_mva_64f_P)
                    (src1.table, word(src1.shift), scratch, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mva_32f_3x3_P, zelmQRBackSubst_mva_32f_4x4_P,
                    zelmQRBackSubst_mva_32f_5x5_P, zelmQRBackSubst_mva_32f_6x6_P, zelmQRBackSubst_mva_64f_3x3_P,
                    zelmQRBackSubst_mva_64f_4x4_P, zelmQRBackSubst_mva_64f_5x5_P, zelmQRBackSubst_mva_64f_6x6_P)
                    (src1.table, word(src1.shift), scratch, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mva_32f_L, zelmQRBackSubst_mva_64f_L)
                    (src1.first, 0, word(src1.row), scratch, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mva_32f_3x3_L, zelmQRBackSubst_mva_32f_4x4_L,
                    zelmQRBackSubst_mva_32f_5x5_L, zelmQRBackSubst_mva_32f_6x6_L, zelmQRBackSubst_mva_64f_3x3_L,
                    zelmQRBackSubst_mva_64f_4x4_L, zelmQRBackSubst_mva_64f_5x5_L, zelmQRBackSubst_mva_64f_6x6_L)
                    (src1.first, 0, word(src1.row), scratch, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mva_32f_PS2, zelmQRBackSubst_mva_64f_PS2)
                    (src1.table, word(src1.shift), scratch, src2.table, word(src2.shift), word(src2.object),
                        dst.table, word(dst.shift), word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mva_32f_3x3_PS2, zelmQRBackSubst_mva_32f_4x4_PS2,
                    zelmQRBackSubst_mva_32f_5x5_PS2, zelmQRBackSubst_mva_32f_6x6_PS2,
                    zelmQRBackSubst_mva_64f_3x3_PS2, zelmQRBackSubst_mva_64f_4x4_PS2,
                    zelmQRBackSubst_mva_64f_5x5_PS2, zelmQRBackSubst_mva_64f_6x6_PS2)
                    (src1.table, word(src1.shift), scratch, src2.table, word(src2.shift), word(src2.object),
                        dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mva_32f_LS2, zelmQRBackSubst_mva_64f_LS2)
                    (src1.first, 0, word(src1.row), word(src1.element), scratch, src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), size.width, size.height,
                        count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mva_32f_3x3_LS2, zelmQRBackSubst_mva_32f_4x4_LS2,
                    zelmQRBackSubst_mva_32f_5x5_LS2, zelmQRBackSubst_mva_32f_6x6_LS2,
                    zelmQRBackSubst_mva_64f_3x3_LS2, zelmQRBackSubst_mva_64f_4x4_LS2,
                    zelmQRBackSubst_mva_64f_5x5_LS2, zelmQRBackSubst_mva_64f_6x6_LS2)
                    (src1.first, 0, word(src1.row), word(src1.element), scratch, src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = x with A*x = src2[k]; src1[k] and pivotIndex[k] hold the LU factors of A
template <>
struct Row<Op::LUBackSubst, Kind::ma, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &pivotIndex, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mava_32f, zelmLUBackSubst_mava_64f)
                    (src1.first, word(src1.object), word(src1.row), pivotIndex.first, src2.first, word(src2.object),
                        dst.first, word(dst.object), size.n, count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mava_32f_3x3, zelmLUBackSubst_mava_32f_4x4,
                    zelmLUBackSubst_mava_32f_5x5, zelmLUBackSubst_mava_32f_6x6, zelmLUBackSubst_mava_64f_3x3,
                    zelmLUBackSubst_mava_64f_4x4, zelmLUBackSubst_mava_64f_5x5, zelmLUBackSubst_mava_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), pivotIndex.first, src2.first, word(src2.object),
                        dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mava_32f_S2, zelmLUBackSubst_mava_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), pivotIndex.first,
                        src2.first, word(src2.object), word(src2.element), dst.first, word(dst.object),
                        word(dst.element), size.n, count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mava_32f_3x3_S2, zelmLUBackSubst_mava_32f_4x4_S2,
                    zelmLUBackSubst_mava_32f_5x5_S2, zelmLUBackSubst_mava_32f_6x6_S2,
                    zelmLUBackSubst_mava_64f_3x3_S2, zelmLUBackSubst_mava_64f_4x4_S2,
                    zelmLUBackSubst_mava_64f_5x5_S2, zelmLUBackSubst_mava_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), pivotIndex.first,
                        src2.first, word(src2.object), word(src2.element), dst.first, word(dst.object),
                        word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mava_32f_P, zelmLUBackSubst_mava_64f_P)
                    (src1.table, word(src1.shift), pivotIndex.first, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), size.n, count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mava_32f_3x3_P, zelmLUBackSubst_mava_32f_4x4_P,
                    zelmLUBackSubst_mava_32f_5x5_P, zelmLUBackSubst_mava_32f_6x6_P, zelmLUBackSubst_mava_64f_3x3_P,
                    zelmLUBackSubst_mava_64f_4x4_P, zelmLUBackSubst_mava_64f_5x5_P, zelmLUBackSubst_mava_64f_6x6_P)
                    (src1.table, word(src1.shift), pivotIndex.first, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mava_32f_L, zelmLUBackSubst_mava_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), pivotIndex.first, src2.table, word(src2.shift),
                        dst.table, word(dst.shift), size.n, count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mava_32f_3x3_L, zelmLUBackSubst_mava_32f_4x4_L,
                    zelmLUBackSubst_mava_32f_5x5_L, zelmLUBackSubst_mava_32f_6x6_L, zelmLUBackSubst_mava_64f_3x3_L,
                    zelmLUBackSubst_mava_64f_4x4_L, zelmLUBackSubst_mava_64f_5x5_L, zelmLUBackSubst_mava_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), pivotIndex.first, src2.table, word(src2.shift),
                        dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mava_32f_PS2, zelmLUBackSubst_mava_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), pivotIndex.first, src2.table,
                        word(src2.shift), word(src2.object), dst.table, word(dst.shift), word(dst.object), size.n,
                        count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mava_32f_3x3_PS2, zelmLUBackSubst_mava_32f_4x4_PS2,
                    zelmLUBackSubst_mava_32f_5x5_PS2, zelmLUBackSubst_mava_32f_6x6_PS2,
                    zelmLUBackSubst_mava_64f_3x3_PS2, zelmLUBackSubst_mava_64f_4x4_PS2,
                    zelmLUBackSubst_mava_64f_5x5_PS2, zelmLUBackSubst_mava_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), pivotIndex.first, src2.table,
                        word(src2.shift), word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmLUBackSubst_mava_32f_LS2, zelmLUBackSubst_mava_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), pivotIndex.first, src2.table,
                        word(src2.shift), word(src2.element), dst.table, word(dst.shift), word(dst.element), size.n,
                        count);
            } else {
                return pick<T, N>(zelmLUBackSubst_mava_32f_3x3_LS2, zelmLUBackSubst_mava_32f_4x4_LS2,
                    zelmLUBackSubst_mava_32f_5x5_LS2, zelmLUBackSubst_mava_32f_6x6_LS2,
                    zelmLUBackSubst_mava_64f_3x3_LS2, zelmLUBackSubst_mava_64f_4x4_LS2,
                    zelmLUBackSubst_mava_64f_5x5_LS2, zelmLUBackSubst_mava_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), pivotIndex.first, src2.table,
                        word(src2.shift), word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = x with A*x = src2[k]; src1[k] holds the Cholesky factor of A
template <>
struct Row<Op::CholeskyBackSubst, Kind::ma, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mava_32f, zelmCholeskyBackSubst_mava_64f)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), dst.first,
                        word(dst.object), word(size.n), word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mava_32f_3x3, zelmCholeskyBackSubst_mava_32f_4x4,
                    zelmCholeskyBackSubst_mava_32f_5x5, zelmCholeskyBackSubst_mava_32f_6x6,
                    zelmCholeskyBackSubst_mava_64f_3x3, zelmCholeskyBackSubst_mava_64f_4x4,
                    zelmCholeskyBackSubst_mava_64f_5x5, zelmCholeskyBackSubst_mava_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), src2.first, word(src2.object), dst.first,
                        word(dst.object), word(count));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mava_32f_S2, zelmCholeskyBackSubst_mava_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.element), dst.first, word(dst.object), word(dst.element),
                        word(size.n), word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mava_32f_3x3_S2, zelmCholeskyBackSubst_mava_32f_4x4_S2,
                    zelmCholeskyBackSubst_mava_32f_5x5_S2, zelmCholeskyBackSubst_mava_32f_6x6_S2,
                    zelmCholeskyBackSubst_mava_64f_3x3_S2, zelmCholeskyBackSubst_mava_64f_4x4_S2,
                    zelmCholeskyBackSubst_mava_64f_5x5_S2, zelmCholeskyBackSubst_mava_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), src2.first,
                        word(src2.object), word(src2.element), dst.first, word(dst.object), word(dst.element),
                        word(count));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mava_32f_P, zelmCholeskyBackSubst_mava_64f_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        word(size.n), word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mava_32f_3x3_P, zelmCholeskyBackSubst_mava_32f_4x4_P,
                    zelmCholeskyBackSubst_mava_32f_5x5_P, zelmCholeskyBackSubst_mava_32f_6x6_P,
                    zelmCholeskyBackSubst_mava_64f_3x3_P, zelmCholeskyBackSubst_mava_64f_4x4_P,
                    zelmCholeskyBackSubst_mava_64f_5x5_P, zelmCholeskyBackSubst_mava_64f_6x6_P)
                    (src1.table, word(src1.shift), src2.table, word(src2.shift), dst.table, word(dst.shift),
                        word(count));
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mava_32f_L, zelmCholeskyBackSubst_mava_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(size.n), word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mava_32f_3x3_L, zelmCholeskyBackSubst_mava_32f_4x4_L,
                    zelmCholeskyBackSubst_mava_32f_5x5_L, zelmCholeskyBackSubst_mava_32f_6x6_L,
                    zelmCholeskyBackSubst_mava_64f_3x3_L, zelmCholeskyBackSubst_mava_64f_4x4_L,
                    zelmCholeskyBackSubst_mava_64f_5x5_L, zelmCholeskyBackSubst_mava_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), src2.table, word(src2.shift), dst.table,
                        word(dst.shift), word(count));
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mava_32f_PS2, zelmCholeskyBackSubst_mava_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), word(size.n), word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mava_32f_3x3_PS2, zelmCholeskyBackSubst_mava_32f_4x4_PS2,
                    zelmCholeskyBackSubst_mava_32f_5x5_PS2, zelmCholeskyBackSubst_mava_32f_6x6_PS2,
                    zelmCholeskyBackSubst_mava_64f_3x3_PS2, zelmCholeskyBackSubst_mava_64f_4x4_PS2,
                    zelmCholeskyBackSubst_mava_64f_5x5_PS2, zelmCholeskyBackSubst_mava_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), word(count));
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmCholeskyBackSubst_mava_32f_LS2, zelmCholeskyBackSubst_mava_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), word(size.n), word(count));
            } else {
                return pick<T, N>(zelmCholeskyBackSubst_mava_32f_3x3_LS2, zelmCholeskyBackSubst_mava_32f_4x4_LS2,
                    zelmCholeskyBackSubst_mava_32f_5x5_LS2, zelmCholeskyBackSubst_mava_32f_6x6_LS2,
                    zelmCholeskyBackSubst_mava_64f_3x3_LS2, zelmCholeskyBackSubst_mava_64f_4x4_LS2,
                    zelmCholeskyBackSubst_mava_64f_5x5_LS2, zelmCholeskyBackSubst_mava_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), src2.table, word(src2.shift),
                        word(src2.element), dst.table, word(dst.shift), word(dst.element), word(count));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = x that minimises |A*x - src2[k]|; src1[k] holds the QR factors of A
template <>
struct Row<Op::QRBackSubst, Kind::ma, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src1, const auto &scratch, const auto &src2, const auto &dst,
        [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mava_32f, zelmQRBackSubst_mava_64f)
                    (src1.first, word(src1.object), word(src1.row), scratch, src2.first, word(src2.object),
                        dst.first, word(dst.object), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mava_32f_3x3, zelmQRBackSubst_mava_32f_4x4,
                    zelmQRBackSubst_mava_32f_5x5, zelmQRBackSubst_mava_32f_6x6, zelmQRBackSubst_mava_64f_3x3,
                    zelmQRBackSubst_mava_64f_4x4, zelmQRBackSubst_mava_64f_5x5, zelmQRBackSubst_mava_64f_6x6)
                    (src1.first, word(src1.object), word(src1.row), scratch, src2.first, word(src2.object),
                        dst.first, word(dst.object), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mava_32f_S2, zelmQRBackSubst_mava_64f_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), scratch, src2.first,
                        word(src2.object), word(src2.element), dst.first, word(dst.object), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mava_32f_3x3_S2, zelmQRBackSubst_mava_32f_4x4_S2,
                    zelmQRBackSubst_mava_32f_5x5_S2, zelmQRBackSubst_mava_32f_6x6_S2,
                    zelmQRBackSubst_mava_64f_3x3_S2, zelmQRBackSubst_mava_64f_4x4_S2,
                    zelmQRBackSubst_mava_64f_5x5_S2, zelmQRBackSubst_mava_64f_6x6_S2)
                    (src1.first, word(src1.object), word(src1.row), word(src1.element), scratch, src2.first,
                        word(src2.object), word(src2.element), dst.first, word(dst.object), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mava_32f_P, zelmQRBackSubst_mava_64f_P)
                    (src1.table, word(src1.shift), scratch, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mava_32f_3x3_P, zelmQRBackSubst_mava_32f_4x4_P,
                    zelmQRBackSubst_mava_32f_5x5_P, zelmQRBackSubst_mava_32f_6x6_P, zelmQRBackSubst_mava_64f_3x3_P,
                    zelmQRBackSubst_mava_64f_4x4_P, zelmQRBackSubst_mava_64f_5x5_P, zelmQRBackSubst_mava_64f_6x6_P)
                    (src1.table, word(src1.shift), scratch, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mava_32f_L, zelmQRBackSubst_mava_64f_L)
                    (src1.table, word(src1.shift), word(src1.row), scratch, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mava_32f_3x3_L, zelmQRBackSubst_mava_32f_4x4_L,
                    zelmQRBackSubst_mava_32f_5x5_L, zelmQRBackSubst_mava_32f_6x6_L, zelmQRBackSubst_mava_64f_3x3_L,
                    zelmQRBackSubst_mava_64f_4x4_L, zelmQRBackSubst_mava_64f_5x5_L, zelmQRBackSubst_mava_64f_6x6_L)
                    (src1.table, word(src1.shift), word(src1.row), scratch, src2.table, word(src2.shift), dst.table,
                        word(dst.shift), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mava_32f_PS2, zelmQRBackSubst_mava_64f_PS2)
                    (src1.table, word(src1.shift), word(src1.object), scratch, src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), size.width, size.height,
                        count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mava_32f_3x3_PS2, zelmQRBackSubst_mava_32f_4x4_PS2,
                    zelmQRBackSubst_mava_32f_5x5_PS2, zelmQRBackSubst_mava_32f_6x6_PS2,
                    zelmQRBackSubst_mava_64f_3x3_PS2, zelmQRBackSubst_mava_64f_4x4_PS2,
                    zelmQRBackSubst_mava_64f_5x5_PS2, zelmQRBackSubst_mava_64f_6x6_PS2)
                    (src1.table, word(src1.shift), word(src1.object), scratch, src2.table, word(src2.shift),
                        word(src2.object), dst.table, word(dst.shift), word(dst.object), count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmQRBackSubst_mava_32f_LS2, zelmQRBackSubst_mava_64f_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), scratch, src2.table,
                        word(src2.shift), word(src2.element), dst.table, word(dst.shift), word(dst.element),
                        size.width, size.height, count);
            } else {
                return pick<T, N>(zelmQRBackSubst_mava_32f_3x3_LS2, zelmQRBackSubst_mava_32f_4x4_LS2,
                    zelmQRBackSubst_mava_32f_5x5_LS2, zelmQRBackSubst_mava_32f_6x6_LS2,
                    zelmQRBackSubst_mava_64f_3x3_LS2, zelmQRBackSubst_mava_64f_4x4_LS2,
                    zelmQRBackSubst_mava_64f_5x5_LS2, zelmQRBackSubst_mava_64f_6x6_LS2)
                    (src1.table, word(src1.shift), word(src1.row), word(src1.element), scratch, src2.table,
                        word(src2.shift), word(src2.element), dst.table, word(dst.shift), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[j][i] = src[i][j]
template <>
struct Row<Op::Transpose, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTranspose_m_32f, zelmTranspose_m_64f)
                    (src.first, word(src.row), size.width, size.height, dst.first, word(dst.row));
            } else {
                return pick<T, N>(zelmTranspose_m_32f_3x3, zelmTranspose_m_32f_4x4, zelmTranspose_m_32f_5x5,
                    zelmTranspose_m_32f_6x6, zelmTranspose_m_64f_3x3, zelmTranspose_m_64f_4x4,
                    zelmTranspose_m_64f_5x5, zelmTranspose_m_64f_6x6)
                    (src.first, word(src.row), dst.first, word(dst.row));
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTranspose_m_32f_S2, zelmTranspose_m_64f_S2)
                    (src.first, word(src.row), word(src.element), size.width, size.height, dst.first, word(dst.row),
                        word(dst.element));
            } else {
                return pick<T, N>(zelmTranspose_m_32f_3x3_S2, zelmTranspose_m_32f_4x4_S2,
                    zelmTranspose_m_32f_5x5_S2, zelmTranspose_m_32f_6x6_S2, zelmTranspose_m_64f_3x3_S2,
                    zelmTranspose_m_64f_4x4_S2, zelmTranspose_m_64f_5x5_S2, zelmTranspose_m_64f_6x6_S2)
                    (src.first, word(src.row), word(src.element), dst.first, word(dst.row), word(dst.element));
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTranspose_m_32f_P, zelmTranspose_m_64f_P)
                    (src.table, word(src.shift), size.width, size.height, dst.table, word(dst.shift));
            } else {
                return pick<T, N>(zelmTranspose_m_32f_3x3_P, zelmTranspose_m_32f_4x4_P, zelmTranspose_m_32f_5x5_P,
                    zelmTranspose_m_32f_6x6_P, zelmTranspose_m_64f_3x3_P, zelmTranspose_m_64f_4x4_P,
                    zelmTranspose_m_64f_5x5_P, zelmTranspose_m_64f_6x6_P)
                    (src.table, word(src.shift), dst.table, word(dst.shift));
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j][i] = src[k][i][j]
template <>
struct Row<Op::Transpose, Kind::ma> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size,
        std::uint32_t count)
    {
        if constexpr (L == Layout::standard) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTranspose_ma_32f, zelmTranspose_ma_64f)
                    (src.first, word(src.object), word(src.row), size.width, size.height, dst.first,
                        word(dst.object), word(dst.row), count);
            } else {
                return pick<T, N>(zelmTranspose_ma_32f_3x3, zelmTranspose_ma_32f_4x4, zelmTranspose_ma_32f_5x5,
                    zelmTranspose_ma_32f_6x6, zelmTranspose_ma_64f_3x3, zelmTranspose_ma_64f_4x4,
                    zelmTranspose_ma_64f_5x5, zelmTranspose_ma_64f_6x6)
                    (src.first, word(src.object), word(src.row), dst.first, word(dst.object), word(dst.row), count);
            }
        } else if constexpr (L == Layout::S2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTranspose_ma_32f_S2, zelmTranspose_ma_64f_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), size.width, size.height,
                        dst.first, word(dst.object), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmTranspose_ma_32f_3x3_S2, zelmTranspose_ma_32f_4x4_S2,
                    zelmTranspose_ma_32f_5x5_S2, zelmTranspose_ma_32f_6x6_S2, zelmTranspose_ma_64f_3x3_S2,
                    zelmTranspose_ma_64f_4x4_S2, zelmTranspose_ma_64f_5x5_S2, zelmTranspose_ma_64f_6x6_S2)
                    (src.first, word(src.object), word(src.row), word(src.element), dst.first, word(dst.object),
                        word(dst.row), word(dst.element), count);
            }
        } else if constexpr (L == Layout::P) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTranspose_ma_32f_P, zelmTranspose_ma_64f_P)
                    (src.table, word(src.shift), size.width, size.height, dst.table, word(dst.shift), count);
            } else {
                return pick<T, N>(zelmTranspose_ma_32f_3x3_P, zelmTranspose_ma_32f_4x4_P,
                    zelmTranspose_ma_32f_5x5_P, zelmTranspose_ma_32f_6x6_P, zelmTranspose_ma_64f_3x3_P,
                    zelmTranspose_ma_64f_4x4_P, zelmTranspose_ma_64f_5x5_P, zelmTranspose_ma_64f_6x6_P)
                    (src.table, word(src.shift), dst.table, word(dst.shift), count);
            }
        } else if constexpr (L == Layout::L) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTranspose_ma_32f_L, zelmTranspose_ma_64f_L)
                    (src.table, word(src.shift), word(src.row), size.width, size.height, dst.table, word(dst.shift),
                        word(dst.row), count);
            } else {
                return pick<T, N>(zelmTranspose_ma_32f_3x3_L, zelmTranspose_ma_32f_4x4_L,
                    zelmTranspose_ma_32f_5x5_L, zelmTranspose_ma_32f_6x6_L, zelmTranspose_ma_64f_3x3_L,
                    zelmTranspose_ma_64f_4x4_L, zelmTranspose_ma_64f_5x5_L, zelmTranspose_ma_64f_6x6_L)
                    (src.table, word(src.shift), word(src.row), dst.table, word(dst.shift), word(dst.row), count);
            }
        } else if constexpr (L == Layout::PS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTranspose_ma_32f_PS2, zelmTranspose_ma_64f_PS2)
                    (src.table, word(src.shift), word(src.object), size.width, size.height, dst.table,
                        word(dst.shift), word(dst.object), count);
            } else {
                return pick<T, N>(zelmTranspose_ma_32f_3x3_PS2, zelmTranspose_ma_32f_4x4_PS2,
                    zelmTranspose_ma_32f_5x5_PS2, zelmTranspose_ma_32f_6x6_PS2, zelmTranspose_ma_64f_3x3_PS2,
                    zelmTranspose_ma_64f_4x4_PS2, zelmTranspose_ma_64f_5x5_PS2, zelmTranspose_ma_64f_6x6_PS2)
                    (src.table, word(src.shift), word(src.object), dst.table, word(dst.shift), word(dst.object),
                        count);
            }
        } else if constexpr (L == Layout::LS2) {
            if constexpr (N == 0) {
                return pick<T, 0>(zelmTranspose_ma_32f_LS2, zelmTranspose_ma_64f_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), size.width, size.height,
                        dst.table, word(dst.shift), word(dst.row), word(dst.element), count);
            } else {
                return pick<T, N>(zelmTranspose_ma_32f_3x3_LS2, zelmTranspose_ma_32f_4x4_LS2,
                    zelmTranspose_ma_32f_5x5_LS2, zelmTranspose_ma_32f_6x6_LS2, zelmTranspose_ma_64f_3x3_LS2,
                    zelmTranspose_ma_64f_4x4_LS2, zelmTranspose_ma_64f_5x5_LS2, zelmTranspose_ma_64f_6x6_LS2)
                    (src.table, word(src.shift), word(src.row), word(src.element), dst.table, word(dst.shift),
                        word(dst.row), word(dst.element), count);
            }
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][j] = src[k][j]
template <>
struct Row<Op::Copy, Kind::va> : Regular {
    template <class T, Layout From, Layout To>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size,
        std::uint32_t count)
    {
        if constexpr (From == Layout::S2 && To == Layout::S2) {
            return pick<T, 0>(zelmCopy_va_32f_SS, zelmCopy_va_64f_SS)
                (src.first, word(src.object), word(src.element), dst.first, word(dst.object), word(dst.element),
                    size.len, count);
        } else if constexpr (From == Layout::S2 && To == Layout::PS2) {
            return pick<T, 0>(zelmCopy_va_32f_SP, zelmCopy_va_64f_SP)
                (src.first, word(src.object), word(src.element), dst.table, word(dst.shift), word(dst.object),
                    size.len, count);
        } else if constexpr (From == Layout::S2 && To == Layout::LS2) {
            return pick<T, 0>(zelmCopy_va_32f_SL, zelmCopy_va_64f_SL)
                (src.first, word(src.object), word(src.element), dst.table, word(dst.shift), word(dst.element),
                    size.len, count);
        } else if constexpr (From == Layout::PS2 && To == Layout::S2) {
            return pick<T, 0>(zelmCopy_va_32f_PS, zelmCopy_va_64f_PS)
                (src.table, word(src.shift), word(src.object), dst.first, word(dst.object), word(dst.element),
                    size.len, count);
        } else if constexpr (From == Layout::PS2 && To == Layout::PS2) {
            return pick<T, 0>(zelmCopy_va_32f_PP, zelmCopy_va_64f_PP)
                (src.table, word(src.shift), word(src.object), dst.table, word(dst.shift), word(dst.object),
                    size.len, count);
        } else if constexpr (From == Layout::PS2 && To == Layout::LS2) {
            return pick<T, 0>(zelmCopy_va_32f_PL, zelmCopy_va_64f_PL)
                (src.table, word(src.shift), word(src.object), dst.table, word(dst.shift), word(dst.element),
                    size.len, count);
        } else if constexpr (From == Layout::LS2 && To == Layout::S2) {
            return pick<T, 0>(zelmCopy_va_32f_LS, zelmCopy_va_64f_LS)
                (src.table, word(src.shift), word(src.element), dst.first, word(dst.object), word(dst.element),
                    size.len, count);
        } else if constexpr (From == Layout::LS2 && To == Layout::PS2) {
            return pick<T, 0>(zelmCopy_va_32f_LP, zelmCopy_va_64f_LP)
                (src.table, word(src.shift), word(src.element), dst.table, word(dst.shift), word(dst.object),
                    size.len, count);
        } else if constexpr (From == Layout::LS2 && To == Layout::LS2) {
            return pick<T, 0>(zelmCopy_va_32f_LL, zelmCopy_va_64f_LL)
                (src.table, word(src.shift), word(src.element), dst.table, word(dst.shift), word(dst.element),
                    size.len, count);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k][i][j] = src[k][i][j]
template <>
struct Row<Op::Copy, Kind::ma> : Regular {
    template <class T, Layout From, Layout To>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size,
        std::uint32_t count)
    {
        if constexpr (From == Layout::S2 && To == Layout::S2) {
            return pick<T, 0>(zelmCopy_ma_32f_SS, zelmCopy_ma_64f_SS)
                (src.first, word(src.object), word(src.row), word(src.element), dst.first, word(dst.object),
                    word(dst.row), word(dst.element), size.width, size.height, count);
        } else if constexpr (From == Layout::S2 && To == Layout::PS2) {
            return pick<T, 0>(zelmCopy_ma_32f_SP, zelmCopy_ma_64f_SP)
                (src.first, word(src.object), word(src.row), word(src.element), dst.table, word(dst.shift),
                    word(dst.object), size.width, size.height, count);
        } else if constexpr (From == Layout::S2 && To == Layout::LS2) {
            return pick<T, 0>(zelmCopy_ma_32f_SL, zelmCopy_ma_64f_SL)
                (src.first, word(src.object), word(src.row), word(src.element), dst.table, word(dst.shift),
                    word(dst.row), word(dst.element), size.width, size.height, count);
        } else if constexpr (From == Layout::PS2 && To == Layout::S2) {
            return pick<T, 0>(zelmCopy_ma_32f_PS, zelmCopy_ma_64f_PS)
                (src.table, word(src.shift), word(src.object), dst.first, word(dst.object), word(dst.row),
                    word(dst.element), size.width, size.height, count);
        } else if constexpr (From == Layout::PS2 && To == Layout::PS2) {
            return pick<T, 0>(zelmCopy_ma_32f_PP, zelmCopy_ma_64f_PP)
                (src.table, word(src.shift), word(src.object), dst.table, word(dst.shift), word(dst.object),
                    size.width, size.height, count);
        } else if constexpr (From == Layout::PS2 && To == Layout::LS2) {
            return pick<T, 0>(zelmCopy_ma_32f_PL, zelmCopy_ma_64f_PL)
                (src.table, word(src.shift), word(src.object), dst.table, word(dst.shift), word(dst.row),
                    word(dst.element), size.width, size.height, count);
        } else if constexpr (From == Layout::LS2 && To == Layout::S2) {
            return pick<T, 0>(zelmCopy_ma_32f_LS, zelmCopy_ma_64f_LS)
                (src.table, word(src.shift), word(src.row), word(src.element), dst.first, word(dst.object),
                    word(dst.row), word(dst.element), size.width, size.height, count);
        } else if constexpr (From == Layout::LS2 && To == Layout::PS2) {
            return pick<T, 0>(zelmCopy_ma_32f_LP, zelmCopy_ma_64f_LP)
                (src.table, word(src.shift), word(src.row), word(src.element), dst.table, word(dst.shift),
                    word(dst.object), size.width, size.height, count);
        } else if constexpr (From == Layout::LS2 && To == Layout::LS2) {
            return pick<T, 0>(zelmCopy_ma_32f_LL, zelmCopy_ma_64f_LL)
                (src.table, word(src.shift), word(src.row), word(src.element), dst.table, word(dst.shift),
                    word(dst.row), word(dst.element), size.width, size.height, count);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = the elements of src, packed
template <>
struct Row<Op::Extract, Kind::v> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::S2) {
            return pick<T, 0>(zelmExtract_v_32f_S2, zelmExtract_v_64f_S2)
                (src.first, word(src.element), dst.first, size.len);
        } else if constexpr (L == Layout::P) {
            return pick<T, 0>(zelmExtract_v_32f_P, zelmExtract_v_64f_P)
                (src.table, word(src.shift), dst.first, size.len);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = the elements of src, packed
template <>
struct Row<Op::Extract, Kind::m> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::S2) {
            return pick<T, 0>(zelmExtract_m_32f_S2, zelmExtract_m_64f_S2)
                (src.first, word(src.row), word(src.element), dst.first, size.width, size.height);
        } else if constexpr (L == Layout::P) {
            return pick<T, 0>(zelmExtract_m_32f_P, zelmExtract_m_64f_P)
                (src.table, word(src.shift), dst.first, size.width, size.height);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = the elements of src, packed
template <>
struct Row<Op::Extract, Kind::mT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size)
    {
        if constexpr (L == Layout::S2) {
            return pick<T, 0>(zelmExtract_mT_32f_S2, zelmExtract_mT_64f_S2)
                (src.first, word(src.row), word(src.element), dst.first, size.width, size.height);
        } else if constexpr (L == Layout::P) {
            return pick<T, 0>(zelmExtract_mT_32f_P, zelmExtract_mT_64f_P)
                (src.table, word(src.shift), dst.first, size.width, size.height);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = the elements of src, packed
template <>
struct Row<Op::Extract, Kind::va> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size,
        std::uint32_t count)
    {
        if constexpr (L == Layout::S2) {
            return pick<T, 0>(zelmExtract_va_32f_S2, zelmExtract_va_64f_S2)
                (src.first, word(src.object), word(src.element), dst.first, size.len, count);
        } else if constexpr (L == Layout::PS2) {
            return pick<T, 0>(zelmExtract_va_32f_PS2, zelmExtract_va_64f_PS2)
                (src.table, word(src.shift), word(src.object), dst.first, size.len, count);
        } else if constexpr (L == Layout::LS2) {
            return pick<T, 0>(zelmExtract_va_32f_LS2, zelmExtract_va_64f_LS2)
                (src.table, word(src.shift), word(src.element), dst.first, size.len, count);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = the elements of src, packed
template <>
struct Row<Op::Extract, Kind::ma> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size,
        std::uint32_t count)
    {
        if constexpr (L == Layout::S2) {
            return pick<T, 0>(zelmExtract_ma_32f_S2, zelmExtract_ma_64f_S2)
                (src.first, word(src.object), word(src.row), word(src.element), dst.first, size.width, size.height,
                    count);
        } else if constexpr (L == Layout::PS2) {
            return pick<T, 0>(zelmExtract_ma_32f_PS2, zelmExtract_ma_64f_PS2)
                (src.table, word(src.shift), word(src.object), dst.first, size.width, size.height, count);
        } else if constexpr (L == Layout::LS2) {
            return pick<T, 0>(zelmExtract_ma_32f_LS2, zelmExtract_ma_64f_LS2)
                (src.table, word(src.shift), word(src.row), word(src.element), dst.first, size.width, size.height,
                    count);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst = the elements of src, packed
template <>
struct Row<Op::Extract, Kind::maT> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &src, const auto &dst, [[maybe_unused]] const Sizes &size,
        std::uint32_t count)
    {
        if constexpr (L == Layout::S2) {
            return pick<T, 0>(zelmExtract_maT_32f_S2, zelmExtract_maT_64f_S2)
                (src.first, word(src.object), word(src.row), word(src.element), dst.first, size.width, size.height,
                    count);
        } else if constexpr (L == Layout::PS2) {
            return pick<T, 0>(zelmExtract_maT_32f_PS2, zelmExtract_maT_64f_PS2)
                (src.table, word(src.shift), word(src.object), dst.first, size.width, size.height, count);
        } else if constexpr (L == Layout::LS2) {
            return pick<T, 0>(zelmExtract_maT_32f_LS2, zelmExtract_maT_64f_LS2)
                (src.table, word(src.shift), word(src.row), word(src.element), dst.first, size.width, size.height,
                    count);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

// dst[k] = ones on a running diagonal, zeros elsewhere
template <>
struct Row<Op::LoadIdentity, Kind::ma> : Regular {
    template <class T, int N, Layout L>
    ZELM_INLINE static ZelmStatus call(const auto &dst, [[maybe_unused]] const Sizes &size, std::uint32_t count)
    {
        if constexpr (L == Layout::S2) {
            return pick<T, 0>(zelmLoadIdentity_ma_32f_S, zelmLoadIdentity_ma_64f_S)
                (dst.first, word(dst.object), word(dst.row), word(dst.element), word(size.width), word(size.height),
                    count);
        } else if constexpr (L == Layout::PS2) {
            return pick<T, 0>(zelmLoadIdentity_ma_32f_P, zelmLoadIdentity_ma_64f_P)
                (dst.table, word(dst.shift), word(dst.object), word(size.width), word(size.height), count);
        } else if constexpr (L == Layout::LS2) {
            return pick<T, 0>(zelmLoadIdentity_ma_32f_L, zelmLoadIdentity_ma_64f_L)
                (dst.table, word(dst.shift), word(dst.row), word(dst.element), word(size.width), word(size.height),
                    count);
        } else {
            static_assert(never<T>, "zelm: no function of this layout");
        }
    }
};

} // namespace zelm::detail

#ifdef ZELM_CPP_QUIET
#pragma GCC diagnostic pop
#undef ZELM_CPP_QUIET
#endif
// clang-format on
