// The members of this subsystem that depart from their rows, each written out here. The catalogue names them
// and points their exported functions here.
#pragma once

#include "elementwise/elementwise.h"
#include "frame/groups.h"

namespace zelm::elementwise::departures {

// zelm{Add,Sub}_vav_64f_6x1, zelmSub_vva_64f_6x1, zelmSub_{mma,mmaT}_32f_6x6,
// zelmSub_{mma,mTma,mmaT,mTmaT}_64f_6x6, each with its _L, and zelmAdd_maTmT_64f_3x3: the invariant isn't
// held, as in all other fixed-size standard and L forms, but read anew for every object. A caller sees it
// where dst overlaps the invariant: what one object stores there, the next one reads.
template <typename Op, typename A, typename B, typename D, typename Shape>
ZELM_INLINE ZelmStatus invariantReadAnew(const A &a, const B &b, const D &d, Shape shape,
                                         std::uint32_t count) {
    return array<Op, Invariant::ReadAnew>(a, b, d, shape, count);
}

// ---- zelm{Add,Sub}_{mam,mamT}_32f_3x3 and their _L: software-pipelined. Object k+1 is read before object k
// is stored, and the last object is finished after the loop, so that a count of 0 computes and stores object
// 0 as a count of 1 does.

// In packs: eight elements and one where rows have no gap, two and one of each row elsewhere.
template <bool isGapless>
struct NineFloats {
    static constexpr unsigned parts = isGapless ? 2 : 3, singles = isGapless ? 1 : 3;
    Floats4 part[parts];
    float single[singles];
};

template <bool isGapless>
ZELM_INLINE NineFloats<isGapless> readObject(const Dense<const float> &object) {
    NineFloats<isGapless> read;
    ZELM_UNROLL
    for (unsigned i = 0; i < read.parts; ++i) {
        if constexpr (isGapless)
            read.part[i] = loadPack<float>(object.start + i * kBlockBytes);
        else
            read.part[i] = loadTwo(object.rowStart(i)), read.single[i] = object.get(i, 2, 3);
    }
    if constexpr (isGapless)
        read.single[0] = load<float>(object.start + 2 * kBlockBytes);
    return read;
}

template <typename Op, bool isGapless>
ZELM_INLINE void storeObject(const NineFloats<isGapless> &read, const NineFloats<isGapless> &held,
                             const Dense<float> &d) {
    ZELM_UNROLL
    for (unsigned i = 0; i < read.parts; ++i) {
        const Floats4 part = Op::apply(read.part[i], held.part[i]);
        if constexpr (isGapless) {
            storePack(d.start + i * kBlockBytes, part);
        } else {
            _mm_storel_pi(reinterpret_cast<__m64 *>(d.rowStart(i)), part);
            d.set(i, 2, 3, Op::template apply<float>(read.single[i], held.single[i]));
        }
    }
    if constexpr (isGapless)
        store(d.start + 2 * kBlockBytes, Op::template apply<float>(read.single[0], held.single[0]));
}

// The objects, of which dst's last one starts at `last`.
template <typename Op, bool isGapless, typename A, typename D>
ZELM_INLINE ZelmStatus pipelinedObjects(const A &a, const Dense<const float> &b, const D &d, Address last,
                                        std::uint32_t count) {
    const NineFloats<isGapless> held = readObject<isGapless>(b);
    NineFloats<isGapless> read = readObject<isGapless>(a.object(0));
    for (std::uint32_t k = 1; k < count; ++k) {
        if (a.entryIsNull(k) || d.entryIsNull(k - 1))
            return ZELM_ERR_NULL_PTR;
        const NineFloats<isGapless> next = readObject<isGapless>(a.object(k));
        storeObject<Op>(read, held, d.object(k - 1));
        read = next;
    }
    storeObject<Op>(read, held, Dense<float>(last, d.rowStride));
    return ZELM_OK;
}

template <typename Op, typename A, typename Held, typename D>
ZELM_INLINE ZelmStatus pipelinedByRows(const A &a, const Held &held, const D &d, Address last,
                                       std::uint32_t count) {
    const FixedShape<3, 3> shape;
    const Dense<const float> b(addressOf(held.elements), 3 * sizeof(float));
    return rowsAreGapless(a, shape) && rowsAreGapless(d, shape)
               ? pipelinedObjects<Op, true>(a, b, d, last, count)
               : pipelinedObjects<Op, false>(a, b, d, last, count);
}

template <typename Op, typename B>
ZELM_INLINE ZelmStatus pipelined(const DenseArray<const float> &a, const B &b, const DenseArray<float> &d,
                                 FixedShape<3, 3> shape, std::uint32_t count) {
    if (a.isNull() || b.isNull() || d.isNull())
        return ZELM_ERR_NULL_PTR;
    const auto held = hold<FixedShape<3, 3>>(b);
    // Where nothing is stored that is read later, the order can't be seen.
    if (count != 0 && count <= kMostObjectsInRange && isUntouched(a, 3, 3, d, 3, 3, count))
        return denseArray<Op>(a, held, d, shape, count);
    return pipelinedByRows<Op>(a, held, d, d.object(count == 0 ? 0 : count - 1).start, count);
}

// The lists also test src1Table[0] and dstTable[count-1] ahead of the loop, and in it src1Table[k] and
// dstTable[k-1]. With a count of 0 the last entry of dstTable is the word before it.
template <typename Op, typename B>
ZELM_INLINE ZelmStatus pipelined(const DenseList<const float> &a, const B &b, const DenseList<float> &d,
                                 FixedShape<3, 3>, std::uint32_t count) {
    if (a.isNull() || b.isNull() || d.isNull())
        return ZELM_ERR_NULL_PTR;
    if (a.entryIsNull(0))
        return ZELM_ERR_NULL_PTR;
    const Address last = load<Address>(addressOf(d.table) + (Address{count} - 1) * sizeof(Address));
    if (last == 0)
        return ZELM_ERR_NULL_PTR;
    return pipelinedByRows<Op>(a, hold<FixedShape<3, 3>>(b), d, last + d.shift, count);
}

// The mamT members among them don't read src2RowStride: the rows of src2 lie at src1's row stride.
template <typename Op, typename A, typename D>
ZELM_INLINE ZelmStatus pipelinedAtFirstRowStride(const A &a, const Transposed<Dense<const float>> &b,
                                                 const D &d, FixedShape<3, 3> shape, std::uint32_t count) {
    return pipelined<Op>(a, Transposed(Dense<const float>(b.start, a.rowStride)), d, shape, count);
}

// ---- zelm{Add,Sub}_{mam,mama}_64f_5x5 and their _L: column 4 of src1 is read at src2's row stride.

template <typename Op, typename A, typename B, typename D>
ZELM_INLINE ZelmStatus lastColumnAtSecondRowStride(const A &a, const B &b, const D &d, FixedShape<5, 5> shape,
                                                   std::uint32_t count) {
    if (a.rowStride == b.rowStride)
        return array<Op>(a, b, d, shape, count);
    if (ZelmStatus status = checkArray(false, count, tested(a, 0), tested(b, 0), tested(d, 0));
        status != kProceed)
        return status;
    const auto objects = [&](const auto &second) ZELM_INLINE_LAMBDA {
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            const auto &first = a.object(k);
            const auto &other = second.object(k);
            const auto result = d.object(k);
            for (std::uint32_t i = 0; i < 5; ++i) {
                for (std::uint32_t j = 0; j < 4; ++j)
                    result.set(i, j, 5, Op::template apply<double>(first.get(i, j, 5), other.get(i, j, 5)));
                const double last = load<double>(first.start + i * b.rowStride + 4 * sizeof(double));
                result.set(i, 4, 5, Op::template apply<double>(last, other.get(i, 4, 5)));
            }
            return ZELM_OK;
        };
        return forEachObject(count, one, a, second, d);
    };
    if constexpr (kIsInvariant<B>)
        return objects(hold<FixedShape<5, 5>>(b));
    else
        return objects(b);
}

// ---- zelmSub_mTm_64f_6x6_S2: src2ElemStride isn't read; the elements of a row of src2 lie at src1's.

template <typename Op>
ZELM_INLINE ZelmStatus secondAtFirstElemStride(const Transposed<Strided<const double>> &a,
                                               const Strided<const double> &b, const Strided<double> &d,
                                               FixedShape<6, 6> shape) {
    return single<Op>(a, Strided<const double>(b.start, b.rowStride, a.elemStride), d, shape);
}

// ---- zelmSub_mTmT_32f_6x6: row 3 of dst receives the values of row 2.

template <typename Op, typename A, typename B>
ZELM_INLINE ZelmStatus rowTwoInRowThree(const A &a, const B &b, const Dense<float> &d,
                                        FixedShape<6, 6> shape) {
    if (ZelmStatus status = checkSingle(false, a, b, d); status != kProceed)
        return status;
    whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
        const std::uint32_t from = i == 3 ? 2 : i;
        d.set(i, j, 6, Op::template apply<float>(value(a, from, j, shape), value(b, from, j, shape)));
        return true;
    });
    return ZELM_OK;
}

// ---- zelmSub_maTmaT_32f_6x6 and its _L: each result is the difference of the stored elements that this
// table names, row and column, instead of those of the transposed place.

struct StoredElement {
    unsigned char row, column;
};

constexpr StoredElement kStoredElement[6][6] = {
    {{0, 0}, {4, 0}, {0, 2}, {4, 2}, {0, 4}, {4, 4}}, {{1, 0}, {5, 0}, {1, 2}, {5, 2}, {1, 4}, {5, 4}},
    {{2, 0}, {4, 1}, {2, 2}, {4, 3}, {2, 4}, {4, 5}}, {{2, 0}, {4, 1}, {2, 2}, {4, 3}, {2, 4}, {4, 5}},
    {{0, 1}, {2, 1}, {0, 3}, {2, 3}, {0, 5}, {2, 5}}, {{1, 1}, {3, 1}, {1, 3}, {3, 3}, {1, 5}, {3, 5}},
};

template <typename Op, typename A, typename B, typename D>
ZELM_INLINE ZelmStatus byTableOfElements(const A &a, const B &b, const D &d, FixedShape<6, 6> shape,
                                         std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(a, 0), tested(b, 0), tested(d, 0));
        status != kProceed)
        return status;
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        const auto &first = a.object(k);
        const auto &second = b.object(k);
        const auto result = d.object(k);
        whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
            const StoredElement from = kStoredElement[i][j];
            result.set(i, j, 6,
                       Op::template apply<float>(first.get(from.row, from.column, 6),
                                                 second.get(from.row, from.column, 6)));
            return true;
        });
        return ZELM_OK;
    };
    return forEachObject(count, one, a, b, d);
}

// ---- zelm{Add,Sub}_{mam,mamT}_64f_3x3_L, zelmSub_{mma,mTma}_64f_3x3_L: the invariant is held in packed
// form, two elements of a row in a register, where its pointer and row stride are multiples of 16, and one
// element to a register otherwise. Each object is computed in packed form where its source, its destination
// and their row strides are multiples of 16, and element by element otherwise. Where the two disagree, the
// registers meet the wrong elements, and empty halves are zero.

constexpr unsigned kRegisters = 9;

struct HeldRegisters {
    double low[kRegisters], high[kRegisters];
};

template <typename Invariant>
ZELM_INLINE HeldRegisters holdInRegisters(const Invariant &invariant) {
    const FixedShape<3, 3> shape;
    HeldRegisters held = {};
    if (isMultipleOf16(invariant.start) && isMultipleOf16(invariant.rowStride)) {
        for (unsigned i = 0; i < 3; ++i) {
            held.low[2 * i] = value(invariant, i, 0, shape);
            held.high[2 * i] = value(invariant, i, 1, shape);
            held.low[2 * i + 1] = value(invariant, i, 2, shape);
        }
    } else {
        for (unsigned e = 0; e < kRegisters; ++e)
            held.low[e] = value(invariant, e / 3, e % 3, shape);
    }
    return held;
}

template <typename Op, bool invariantFirst>
ZELM_INLINE void objectWithRegisters(const Dense<const double> &s, const HeldRegisters &held,
                                     const Dense<double> &d) {
    const auto set = [&](unsigned i, unsigned j, double other) {
        const double element = s.get(i, j, 3);
        d.set(i, j, 3,
              invariantFirst ? Op::template apply<double>(other, element)
                             : Op::template apply<double>(element, other));
    };
    if (isMultipleOf16(s.start) && isMultipleOf16(s.rowStride) && isMultipleOf16(d.start) &&
        isMultipleOf16(d.rowStride)) {
        for (unsigned i = 0; i < 3; ++i) {
            set(i, 0, held.low[2 * i]);
            set(i, 1, held.high[2 * i]);
            set(i, 2, held.low[2 * i + 1]);
        }
    } else {
        for (unsigned e = 0; e < kRegisters; ++e)
            set(e / 3, e % 3, held.low[e]);
    }
}

template <typename Op, typename A, typename B>
ZELM_INLINE ZelmStatus heldByAlignment(const A &a, const B &b, const DenseList<double> &d,
                                       FixedShape<3, 3> shape, std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(a, 0), tested(b, 0), tested(d, 0));
        status != kProceed)
        return status;
    const auto objects = [&](const auto &invariant, const auto &s, auto order) ZELM_INLINE_LAMBDA {
        const bool isPacked = isMultipleOf16(invariant.start) && isMultipleOf16(invariant.rowStride);
        const bool objectsMayBe = isMultipleOf16(s.rowStride) && isMultipleOf16(d.rowStride);
        if (!isPacked && !objectsMayBe)
            return denseObjects<Op, Invariant::Held>(a, b, d, shape, count);
        const HeldRegisters held = holdInRegisters(invariant);
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            objectWithRegisters<Op, decltype(order)::value>(s.object(k), held, d.object(k));
            return ZELM_OK;
        };
        return forEachObject(count, one, s, d);
    };
    if constexpr (kIsInvariant<A>)
        return objects(a, b, std::true_type{});
    else
        return objects(b, a, std::false_type{});
}

// ---- zelm{Add,Sub}_{mmT,mTm,mTmT}_*_P of run-time size: the entry that is tested for a transposed operand
// is i*height + j, while the element is read through j*height + i.

template <typename Operand>
ZELM_INLINE bool testedEntryIsNull(const Operand &operand, std::uint32_t i, std::uint32_t j,
                                   RunTimeShape shape) {
    return operand.elementIsNull(Address{i} * (kIsTransposed<Operand> ? shape.height : shape.width) + j);
}

template <typename Op, typename A, typename B, typename T>
ZELM_INLINE ZelmStatus singleTestingByRows(const A &a, const B &b, const Table<T> &d, RunTimeShape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), a, b, d); status != kProceed)
        return status;
    const bool complete = whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) {
        if (testedEntryIsNull(d, i, j, shape) || testedEntryIsNull(a, i, j, shape) ||
            testedEntryIsNull(b, i, j, shape))
            return false;
        d.set(i, j, shape.columns(), Op::template apply<T>(value(a, i, j, shape), value(b, i, j, shape)));
        return true;
    });
    return complete ? ZELM_OK : ZELM_ERR_NULL_PTR;
}

// ---- zelmAdd_{maTm,maTmT,mamT}_64f_6x6, zelmSub_{maTmT,mamT}_64f_6x6, zelmSub_mamT_64f_3x3,
// zelmSub_maTma_64f_5x5_L, zelmSub_{mamaT,mama}_64f_4x4_L: where the operands are tested to be multiples of
// 16, dst is stored by aligned access. The test leaves out what moves dst from object to object, dstObjStride
// or the entries of dstTable behind the first: an object that isn't aligned then raises an alignment fault.

template <typename Operand>
ZELM_INLINE bool startsAligned(const Operand &operand) {
    if constexpr (requires { operand.objectStart(0u); })
        return isMultipleOf16(operand.objectStart(0)) && isMultipleOf16(operand.rowStride);
    else
        return isMultipleOf16(operand.start) && isMultipleOf16(operand.rowStride);
}

// An object whose elements straddle the pairs that are stored: the first element of a pair may be the source
// of the second, and is then stored ahead of it. With a T no order is promised.
template <typename A, typename B>
ZELM_INLINE bool straddlesPairs(const A &a, const B &b) {
    if constexpr (!kIsTransposed<A> && !kIsTransposed<B> && requires { a.start, b.start; })
        return !isMultipleOf16(a.start) || !isMultipleOf16(b.start);
    else
        return false;
}

template <typename Operand, typename Shape>
ZELM_INLINE Doubles2 pairOf(const Operand &operand, std::uint32_t i, std::uint32_t j, Shape shape) {
    if constexpr (kIsTransposed<Operand>)
        return _mm_setr_pd(value(operand, i, j, shape), value(operand, i, j + 1, shape));
    else
        return inputRow(operand, i).template pack<Doubles2>(j, 0);
}

// The elements (i, j) and (i, j + 1), stored as one; `oneByOne` where they straddle.
template <typename Op, bool oneByOne, typename A, typename B, typename D, typename Shape>
ZELM_INLINE void alignedPair(const A &a, const B &b, const D &d, Shape shape, std::uint32_t i,
                             std::uint32_t j) {
    Doubles2 left = pairOf(a, i, j, shape), right = pairOf(b, i, j, shape);
    if constexpr (oneByOne) {
        d.set(i, j, shape.columns(), Op::template apply<double>(left[0], right[0]));
        left[1] = value(a, i, j + 1, shape);
        right[1] = value(b, i, j + 1, shape);
    }
    _mm_store_pd(reinterpret_cast<double *>(d.rowStart(i) + j * sizeof(double)), Op::apply(left, right));
}

template <typename Op, bool oneByOne, typename A, typename B, typename D, typename Shape>
ZELM_INLINE void alignedObject(const A &a, const B &b, const D &d, Shape shape) {
    constexpr std::uint32_t columns = Shape::columns(), last = columns - 1;
    for (std::uint32_t i = 0; i < shape.rows(); ++i) {
        ZELM_UNROLL
        for (std::uint32_t j = 0; j + 2 <= columns; j += 2)
            alignedPair<Op, oneByOne>(a, b, d, shape, i, j);
        if constexpr (columns % 2 != 0)
            d.set(i, last, columns,
                  Op::template apply<double>(value(a, i, last, shape), value(b, i, last, shape)));
    }
}

template <typename Op, typename A, typename B, typename D, typename Shape>
ZELM_INLINE ZelmStatus alignedObjects(const A &a, const B &b, const D &d, Shape shape, std::uint32_t count) {
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        const auto &first = a.object(k);
        const auto &second = b.object(k);
        if (straddlesPairs(first, second))
            alignedObject<Op, true>(first, second, d.object(k), shape);
        else
            alignedObject<Op, false>(first, second, d.object(k), shape);
        return ZELM_OK;
    };
    return forEachObject(count, one, a, b, d);
}

template <typename Op, typename A, typename B, typename D, typename Shape>
ZELM_INLINE ZelmStatus alignedStores(const A &a, const B &b, const D &d, Shape shape, std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(a, 0), tested(b, 0), tested(d, 0));
        status != kProceed)
        return status;
    if (!a.entryIsNull(0) && !b.entryIsNull(0) && !d.entryIsNull(0) && startsAligned(a) && startsAligned(b) &&
        startsAligned(d)) {
        if constexpr (kIsInvariant<B>)
            return alignedObjects<Op>(a, hold<Shape>(b), d, shape, count);
        else
            return alignedObjects<Op>(a, b, d, shape, count);
    }
    return objects<Op, Invariant::Held>(a, b, d, shape, count);
}

// ---- zelmMul_mTc_{32f,64f}_4x4, zelmMul_maTc_{32f,64f}_4x4, zelmMul_maTc_32f_4x4_L: the whole matrix is
// read before it is written, so that they alone among the transposed forms work in place.

template <typename T>
ZELM_INLINE void scaleTransposed4x4(const Dense<const T> &s, T factor, const Dense<T> &d) {
    constexpr unsigned lanes = kLanes<T>;
    Pack<T> column[4][4 / lanes];
    const Pack<T> factors = spread<Pack<T>>(factor);
    ZELM_UNROLL
    for (unsigned p = 0; p < 4 / lanes; ++p) {
        LaneAddresses<Pack<T>> rows;
        ZELM_UNROLL
        for (unsigned lane = 0; lane < lanes; ++lane)
            rows[lane] = s.rowStart(p * lanes + lane);
        Pack<T> read[4];
        loadAdjacent<4>(rows, read);
        ZELM_UNROLL
        for (unsigned j = 0; j < 4; ++j)
            column[j][p] = read[j] * factors;
    }
    ZELM_UNROLL
    for (unsigned j = 0; j < 4; ++j) {
        ZELM_UNROLL
        for (unsigned p = 0; p < 4 / lanes; ++p)
            storePack(d.rowStart(j) + p * kBlockBytes, column[j][p]);
    }
}

template <typename Op, typename T>
ZELM_INLINE ZelmStatus wholeMatrixFirst(const Transposed<Dense<const T>> &a, const Constant<T> &b,
                                        const Dense<T> &d, FixedShape<4, 4>) {
    if (ZelmStatus status = checkSingle(false, a, b, d); status != kProceed)
        return status;
    scaleTransposed4x4<T>(a, b.value, d);
    return ZELM_OK;
}

template <typename Op, typename A, typename T, typename D>
ZELM_INLINE ZelmStatus wholeMatrixFirst(const A &a, const Constant<T> &b, const D &d, FixedShape<4, 4>,
                                        std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(a, 0), tested(b, 0), tested(d, 0));
        status != kProceed)
        return status;
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        scaleTransposed4x4<T>(a.object(k), b.value, d.object(k));
        return ZELM_OK;
    };
    return forEachObject(count, one, a, b, d);
}

} // namespace zelm::elementwise::departures
