// Dot and cross products, norms and traces: arrays, single objects, vectors of run-time length.
#include "calls.h"
#include "families.h"
#include "measure.h"
#include "objects.h"

#include <Eigen/Core>
#include <Eigen/Geometry>

#include <memory>

namespace zelmbench {
namespace {

// What varies from row to row: the operands, and Eigen's formula for one object. `whole` is the same for all
// objects in one expression, where Eigen has one; it takes the arrays with one object per column.
struct Dot {
    static constexpr const char *array = "DotProduct_vava", *single = "DotProduct_vv";
    static constexpr bool hasSecond = true, secondIsArray = true, givesVectors = false, hasWhole = true;
    template <class A, class B>
    static auto each(const A &a, const B &b) {
        return a.dot(b);
    }
    template <class A, class B>
    static auto whole(const A &a, const B &b) {
        return a.cwiseProduct(b).colwise().sum();
    }
};

struct DotWithInvariant : Dot {
    static constexpr const char *array = "DotProduct_vav";
    static constexpr bool secondIsArray = false;
    template <class A, class B>
    static auto whole(const A &a, const B &b) {
        return b.col(0).transpose() * a;
    }
};

struct Cross {
    static constexpr const char *array = "CrossProduct_vava", *single = "CrossProduct_vv";
    static constexpr bool hasSecond = true, secondIsArray = true, givesVectors = true, hasWhole = false;
    template <class A, class B>
    static auto each(const A &a, const B &b) {
        return a.cross(b);
    }
};

struct CrossWithInvariant : Cross {
    static constexpr const char *array = "CrossProduct_vav";
    static constexpr bool secondIsArray = false;
};

struct Length {
    static constexpr const char *array = "L2Norm_va", *single = "L2Norm_v";
    static constexpr bool hasSecond = false, secondIsArray = false, givesVectors = false, hasWhole = true;
    template <class A, class B>
    static auto each(const A &a, const B &) {
        return a.norm();
    }
    template <class A, class B>
    static auto whole(const A &a, const B &) {
        return a.colwise().norm();
    }
};

struct Frobenius : Length {
    static constexpr const char *array = "FrobNorm_ma", *single = "FrobNorm_m";
};

struct Trace {
    static constexpr const char *array = "Trace_ma", *single = "Trace_m";
    static constexpr bool hasSecond = false, secondIsArray = false, givesVectors = false, hasWhole = false;
    template <class A, class B>
    static auto each(const A &a, const B &) {
        return a.trace();
    }
};

// Approximate roots and other orders of sums differ in the last places.
template <class T>
constexpr double tolerance = std::is_same_v<T, float> ? 4e-6 : 1e-14;

template <class T, std::size_t rows, std::size_t columns>
using Object =
    Eigen::Matrix<T, static_cast<int>(rows == 1 ? columns : rows), static_cast<int>(rows == 1 ? 1 : columns),
                  rows == 1 ? Eigen::ColMajor : Eigen::RowMajor>;

template <class Row, class T, Layout layout, std::size_t rows, std::size_t columns>
struct Operands {
    explicit Operands(std::size_t count) : src1(count), src2(Row::hasSecond ? count : 1), dst(count) {
        src1.fill(randomValues(rows * columns, 1));
        src2.fill(randomValues(rows * columns, 2));
    }
    Objects<T, layout, rows, columns> src1, src2;
    // Results that are numbers are packed, whatever the layout.
    std::conditional_t<Row::givesVectors, Objects<T, layout, 1, columns>, Objects<T, Layout::Standard, 1, 1>>
        dst;

    // Arguments of a call for `objects` objects from k on, and for object k alone.
    auto array(std::size_t k, std::size_t objects) {
        const auto call = [&](const auto &...operands) {
            return std::tuple_cat(src1.constArray(k), operands..., countArgument(objects));
        };
        if constexpr (Row::givesVectors && Row::secondIsArray) {
            return call(src2.constArray(k), dst.array(k));
        } else if constexpr (Row::givesVectors) {
            return call(src2.invariant(), dst.array(k));
        } else if constexpr (Row::secondIsArray) {
            return call(src2.constArray(k), dst.object(k));
        } else if constexpr (Row::hasSecond) {
            return call(src2.invariant(), dst.object(k));
        } else {
            return call(dst.object(k));
        }
    }
    auto object(std::size_t k) {
        if constexpr (Row::hasSecond) {
            return std::tuple_cat(src1.constObject(k), src2.constObject(Row::secondIsArray ? k : 0),
                                  dst.object(k));
        } else {
            return std::tuple_cat(src1.constObject(k), dst.object(k));
        }
    }
};

template <class Row, class T, std::size_t rows, std::size_t columns>
void eigenInto(const T *src1, const T *src2, T *dst) {
    using Source = Eigen::Map<const Object<T, rows, columns>>;
    if constexpr (Row::givesVectors) {
        Eigen::Map<Object<T, rows, columns>> result(dst);
        result = Row::each(Source(src1), Source(src2));
    } else {
        *dst = Row::each(Source(src1), Source(src2));
    }
}

template <class Row, class T, std::size_t rows, std::size_t columns>
void runEigenEach(Operands<Row, T, Layout::Standard, rows, columns> &o) {
    constexpr std::size_t size = rows * columns, resultSize = Row::givesVectors ? columns : 1;
    const T *const src1 = o.src1.data(), *const src2 = o.src2.data();
    T *const dst = o.dst.data();
    for (std::size_t k = 0; k < o.dst.count(); ++k) {
        eigenInto<Row, T, rows, columns>(src1 + k * size, src2 + (Row::secondIsArray ? k * size : 0),
                                         dst + k * resultSize);
    }
}

template <class Row, class T, std::size_t rows, std::size_t columns>
void runEigenWhole(Operands<Row, T, Layout::Standard, rows, columns> &o) {
    constexpr auto size = static_cast<Eigen::Index>(rows * columns);
    using Columns = Eigen::Map<const Eigen::Matrix<T, size, Eigen::Dynamic>>;
    const auto count = static_cast<Eigen::Index>(o.dst.count());
    Eigen::Map<Eigen::Matrix<T, 1, Eigen::Dynamic>> result(o.dst.data(), count);
    result.noalias() = Row::whole(Columns(o.src1.data(), size, count),
                                  Columns(o.src2.data(), size, Row::secondIsArray ? count : Eigen::Index{1}));
}

template <class Row, class T, Layout layout, std::size_t rows, std::size_t columns>
void runLoop(Operands<Row, T, layout, rows, columns> &o) {
    const auto gather = [](auto &source, std::size_t k) {
        Object<T, rows, columns> object;
        for (std::size_t e = 0; e < rows * columns; ++e) {
            object.data()[e] = source.at(k, e / columns, e % columns);
        }
        return object;
    };
    for (std::size_t k = 0; k < o.dst.count(); ++k) {
        const auto first = gather(o.src1, k);
        const auto second = Row::hasSecond ? gather(o.src2, Row::secondIsArray ? k : 0) : first;
        if constexpr (Row::givesVectors) {
            const Object<T, rows, columns> result = Row::each(first, second);
            for (std::size_t j = 0; j < columns; ++j) {
                o.dst.at(k, 0, j) = result.data()[j];
            }
        } else {
            o.dst.at(k, 0, 0) = Row::each(first, second);
        }
    }
}

template <class T, std::size_t rows, std::size_t columns>
std::string nameOf(const std::string &row, Layout layout = Layout::Standard) {
    return "zelm" + row + "_" + typeName<T> + "_" + std::to_string(rows == 1 ? columns : rows) + "x" +
           std::to_string(rows == 1 ? 1 : columns) + suffixOf(layout);
}

template <class Row, class T, Layout layout, std::size_t rows, std::size_t columns>
Comparison compareArrays(std::size_t count) {
    const auto o = std::make_shared<Operands<Row, T, layout, rows, columns>>(count);
    const auto results = [o] { return o->dst.values(); };
    const auto arrays = [o](std::size_t k, std::size_t objects) { return o->array(k, objects); };
    const std::string name = nameOf<T, rows, columns>(Row::array, layout);
    Comparison comparison{
        count, tolerance<T>, {{own, callOf(name, [=](std::size_t) { return arrays(0, count); }), results}}};
    if constexpr (layout == Layout::Standard) {
        comparison.contenders.push_back({eigen, [o](std::size_t) { runEigenEach(*o); }, results});
        if constexpr (Row::hasWhole) {
            comparison.contenders.push_back({eigen, [o](std::size_t) { runEigenWhole(*o); }, results});
        }
    } else {
        comparison.contenders.push_back({loop, [o](std::size_t) { runLoop(*o); }, results});
    }
    if (count > mostOneByOne) {
        return comparison;
    }
    if constexpr (layout == Layout::Standard || layout == Layout::S2 || layout == Layout::P) {
        const auto objects = [o](std::size_t, std::size_t k) { return o->object(k); };
        comparison.contenders.push_back(
            {one, callPerObject(nameOf<T, rows, columns>(Row::single, layout), count, objects), results});
    } else {
        const auto objects = [arrays](std::size_t, std::size_t k) { return arrays(k, 1); };
        comparison.contenders.push_back({one, callPerObject(name, count, objects), results});
    }
    return comparison;
}

template <class Row, class T, std::size_t rows, std::size_t columns>
__attribute__((noinline)) ZelmStatus eigenSingle(const T *src1, const T *src2, T *dst) {
    eigenInto<Row, T, rows, columns>(src1, src2, dst);
    return ZELM_OK;
}

template <class Row, class T, std::size_t rows, std::size_t columns>
Comparison compareSingle() {
    const auto o = std::make_shared<Operands<Row, T, Layout::Standard, rows, columns>>(singles);
    const auto results = [o] { return o->dst.values(); };
    const auto pointers = [o](std::size_t, std::size_t k) {
        return std::tuple(&std::as_const(o->src1.at(k, 0, 0)),
                          &std::as_const(o->src2.at(Row::secondIsArray ? k : 0, 0, 0)), &o->dst.at(k, 0, 0));
    };
    return {singles,
            tolerance<T>,
            {{own,
              callPerObject(nameOf<T, rows, columns>(Row::single), singles,
                            [o](std::size_t, std::size_t k) { return o->object(k); }),
              results},
             {eigen, callPerObject(&eigenSingle<Row, T, rows, columns>, singles, pointers), results}}};
}

template <class Row, class T>
__attribute__((noinline)) ZelmStatus eigenLength(const T *src1, const T *src2, T *dst, std::uint32_t len) {
    using Source = Eigen::Map<const Eigen::Matrix<T, Eigen::Dynamic, 1>>;
    const auto size = static_cast<Eigen::Index>(len);
    *dst = Row::each(Source(src1, size), Source(src2, size));
    return ZELM_OK;
}

// Vectors of run-time length: `len` objects of one element hold the elements of one vector. A long sum of
// terms of both signs is as good as its terms are large, so the results may differ by the length.
template <class Row, class T>
Comparison compareLength(const std::string &name, std::size_t len) {
    const auto v = std::make_shared<Objects<T, Layout::Standard, 1, 1>>(len);
    const auto second = std::make_shared<Objects<T, Layout::Standard, 1, 1>>(len);
    const auto dst = std::make_shared<Objects<T, Layout::Standard, 1, 1>>(1);
    v->fill(randomValues(1, 1));
    second->fill(randomValues(1, 2));
    const auto results = [dst] { return dst->values(); };
    const std::size_t calls = len < 1000 ? singles : 1;
    const auto pointers = [v, second, dst, len](std::size_t, std::size_t) {
        return std::tuple_cat(v->constObject(0), second->constObject(0), dst->object(0), countArgument(len));
    };
    const auto arguments = [=](std::size_t turn, std::size_t k) {
        if constexpr (Row::hasSecond) {
            return pointers(turn, k);
        } else {
            return std::tuple_cat(v->constObject(0), dst->object(0), countArgument(len));
        }
    };
    return {calls,
            tolerance<T> * static_cast<double>(len),
            {{own, callPerObject(name, calls, arguments), results},
             {eigen, callPerObject(&eigenLength<Row, T>, calls, pointers), results}}};
}

template <class Row, class T, std::size_t rows, std::size_t columns, Layout layout = Layout::Standard>
void addArrayRow(std::size_t count) {
    addRow(nameOf<T, rows, columns>(Row::array, layout) + "/" + std::to_string(count),
           [count] { return compareArrays<Row, T, layout, rows, columns>(count); });
}

template <class Row, class T, std::size_t rows, std::size_t columns>
void addArrayRows() {
    addArrayRow<Row, T, rows, columns>(1000);
    addArrayRow<Row, T, rows, columns>(manyObjects<T>(rows * columns));
    addArrayRow<Row, T, rows, columns, Layout::P>(1000);
}

template <class Row, class T, std::size_t rows, std::size_t columns>
void addRows() {
    addArrayRows<Row, T, rows, columns>();
    addRow(nameOf<T, rows, columns>(Row::single) + "/single",
           [] { return compareSingle<Row, T, rows, columns>(); });
}

template <class Row, class T>
void addLengthRows(const std::string &row) {
    for (const std::size_t len : {8u, 64u, 1024u, 1000000u}) {
        const std::string name = row + typeName<T>;
        addRow(name + "/length" + std::to_string(len), [=] { return compareLength<Row, T>(name, len); });
    }
}

template <class T>
void addRowsOfType() {
    addRows<Dot, T, 1, 3>();
    addRows<Dot, T, 1, 4>();
    addRows<Dot, T, 1, 6>();
    addArrayRows<DotWithInvariant, T, 1, 3>();
    addArrayRows<DotWithInvariant, T, 1, 4>();
    addRows<Cross, T, 1, 3>();
    addArrayRows<CrossWithInvariant, T, 1, 3>();
    addRows<Length, T, 1, 3>();
    addRows<Length, T, 1, 4>();
    addRows<Length, T, 1, 6>();
    addRows<Frobenius, T, 3, 3>();
    addRows<Frobenius, T, 4, 4>();
    addRows<Frobenius, T, 6, 6>();
    addRows<Trace, T, 3, 3>();
    addRows<Trace, T, 4, 4>();
    addRows<Trace, T, 6, 6>();
    addArrayRow<Dot, T, 1, 3, Layout::S2>(1000);
    addArrayRow<Dot, T, 1, 3, Layout::L>(1000);
    addArrayRow<Cross, T, 1, 3, Layout::L>(1000);
    addArrayRow<Length, T, 1, 3, Layout::L>(1000);
    addArrayRow<Frobenius, T, 4, 4, Layout::L>(1000);
    addLengthRows<Dot, T>("zelmDotProduct_vv_");
    addLengthRows<Length, T>("zelmL2Norm_v_");
}

} // namespace

void addVectorAlgebraRows() {
    addRowsOfType<float>();
    addRowsOfType<double>();
}

} // namespace zelmbench
