// Dot and cross products, L2 and Frobenius norms, traces: arrays, single objects, vectors of run-time length.
#include "calls.h"
#include "families.h"
#include "measure.h"
#include "objects.h"

#include <Eigen/Core>
#include <Eigen/Geometry>

#include <memory>

namespace zelmbench {
namespace {

template <class T, std::size_t rows, std::size_t columns>
using SmallMap =
    Eigen::Map<const Eigen::Matrix<T, static_cast<int>(rows), static_cast<int>(columns), Eigen::RowMajor>>;

// What varies from row to row: the names, the number of sources, whether the result is a vector, and the
// result of one object, which the plain loops form as the peer's expression does.
struct Dot {
    static constexpr const char *array = "DotProduct_vava", *single = "DotProduct_vv";
    static constexpr int sources = 2;
    static constexpr bool scalar = true;
    template <class A>
    static auto formula(const A &a, const A &b) {
        return a.dot(b);
    }
};

struct DotWithInvariant : Dot {
    static constexpr const char *array = "DotProduct_vav";
    static constexpr int sources = 1; // and the invariant
};

struct Cross {
    static constexpr const char *array = "CrossProduct_vava", *single = "CrossProduct_vv";
    static constexpr int sources = 2;
    static constexpr bool scalar = false;
    template <class A>
    static auto formula(const A &a, const A &b) {
        return a.cross(b);
    }
};

struct Norm {
    static constexpr const char *array = "L2Norm_va", *single = "L2Norm_v";
    static constexpr int sources = 1;
    static constexpr bool scalar = true;
    template <class A>
    static auto formula(const A &a, const A &) {
        return a.norm();
    }
};

struct FrobeniusNorm : Norm {
    static constexpr const char *array = "FrobNorm_ma", *single = "FrobNorm_m";
};

struct Trace : Norm {
    static constexpr const char *array = "Trace_ma", *single = "Trace_m";
    template <class A>
    static auto formula(const A &a, const A &) {
        return a.trace();
    }
};

template <class Row>
constexpr bool hasInvariant = std::is_same_v<Row, DotWithInvariant>;

template <class Row, class T, Layout layout, std::size_t rows, std::size_t columns>
struct Operands {
    static constexpr std::size_t results = Row::scalar ? 1 : columns;
    explicit Operands(std::size_t count) : src1(count), src2(count), dst(count), scalars(count) {
        src1.fill(randomValues(rows * columns, 1));
        src2.fill(randomValues(rows * columns, 2));
    }
    Objects<T, layout, rows, columns> src1, src2;
    Objects<T, layout, 1, results> dst;
    Objects<T, Layout::Standard, 1, 1> scalars; // packed in every layout

    T &result(std::size_t k, std::size_t j) {
        if constexpr (Row::scalar) {
            return scalars.at(k, 0, 0);
        } else {
            return dst.at(k, 0, j);
        }
    }
    std::vector<double> values() { return Row::scalar ? scalars.values() : dst.values(); }
    std::size_t count() { return dst.count(); }
};

template <class Row, class T, std::size_t rows, std::size_t columns>
void runEigen(Operands<Row, T, Layout::Standard, rows, columns> &o) {
    using Map = SmallMap<T, rows, columns>;
    const typename Map::PlainObject held = Map(o.src2.data());
    for (std::size_t k = 0; k < o.count(); ++k) {
        const Map a(o.src1.data() + k * rows * columns),
            b(hasInvariant<Row> ? held.data() : o.src2.data() + k * rows * columns);
        if constexpr (Row::scalar) {
            o.result(k, 0) = Row::formula(a, b);
        } else {
            Eigen::Map<typename Map::PlainObject>(&o.result(k, 0)) = Row::formula(a, b);
        }
    }
}

// The objects are gathered into locals, and the formula is that of the peer.
template <class Row, class T, Layout layout, std::size_t rows, std::size_t columns>
void runLoop(Operands<Row, T, layout, rows, columns> &o) {
    using Plain = typename SmallMap<T, rows, columns>::PlainObject;
    Plain a, b = Plain::Zero();
    for (std::size_t k = 0; k < o.count(); ++k) {
        for (std::size_t i = 0; i < rows; ++i) {
            for (std::size_t j = 0; j < columns; ++j) {
                const auto row = static_cast<Eigen::Index>(i), column = static_cast<Eigen::Index>(j);
                a(row, column) = o.src1.at(k, i, j);
                if (Row::sources == 2 || hasInvariant<Row>) {
                    b(row, column) = o.src2.at(hasInvariant<Row> ? 0 : k, i, j);
                }
            }
        }
        if constexpr (Row::scalar) {
            o.result(k, 0) = Row::formula(a, b);
        } else {
            const Plain c = Row::formula(a, b);
            for (std::size_t j = 0; j < columns; ++j) {
                o.result(k, j) = c(static_cast<Eigen::Index>(j));
            }
        }
    }
}

template <class Row, class T, Layout layout, std::size_t rows, std::size_t columns>
Comparison compareArrays(std::size_t count) {
    const auto o = std::make_shared<Operands<Row, T, layout, rows, columns>>(count);
    const auto arguments = [o](std::size_t k, std::size_t objects) {
        const auto result = [&] {
            if constexpr (Row::scalar) {
                return std::tuple(&o->result(k, 0));
            } else {
                return o->dst.array(k);
            }
        };
        if constexpr (hasInvariant<Row>) {
            return std::tuple_cat(o->src1.constArray(k), o->src2.invariant(), result(),
                                  countArgument(objects));
        } else if constexpr (Row::sources == 2) {
            return std::tuple_cat(o->src1.constArray(k), o->src2.constArray(k), result(),
                                  countArgument(objects));
        } else {
            return std::tuple_cat(o->src1.constArray(k), result(), countArgument(objects));
        }
    };
    const std::string name = fixedName<T, layout, rows, columns>(Row::array);
    const auto results = [o] { return o->values(); };
    Comparison comparison{
        count, 1e-5, {{own, callOf(name, [=](std::size_t) { return arguments(0, count); }), results}}};
    if constexpr (layout == Layout::Standard) {
        comparison.contenders.push_back({eigen, [o](std::size_t) { runEigen<Row>(*o); }, results});
    } else {
        comparison.contenders.push_back({loop, [o](std::size_t) { runLoop<Row>(*o); }, results});
    }
    if (count <= mostOneByOne) {
        const auto oneByOne = [arguments](std::size_t, std::size_t k) { return arguments(k, 1); };
        comparison.contenders.push_back({one, callPerObject(name, count, oneByOne), results});
    }
    return comparison;
}

template <class Row, class T, std::size_t rows, std::size_t columns>
__attribute__((noinline)) ZelmStatus eigenSingle(const T *src1, const T *src2, T *dst) {
    using Map = SmallMap<T, rows, columns>;
    if constexpr (Row::scalar) {
        *dst = Row::formula(Map(src1), Map(src2));
    } else {
        Eigen::Map<typename Map::PlainObject> result(dst);
        result = Row::formula(Map(src1), Map(src2));
    }
    return ZELM_OK;
}

template <class Row, class T, std::size_t rows, std::size_t columns>
Comparison compareSingle() {
    const auto o = std::make_shared<Operands<Row, T, Layout::Standard, rows, columns>>(singles);
    const auto arguments = [o](std::size_t, std::size_t k) {
        if constexpr (Row::sources == 2) {
            return std::tuple_cat(o->src1.constObject(k), o->src2.constObject(k),
                                  std::tuple(&o->result(k, 0)));
        } else {
            return std::tuple_cat(o->src1.constObject(k), std::tuple(&o->result(k, 0)));
        }
    };
    const auto pointers = [o](std::size_t, std::size_t k) {
        return std::tuple(static_cast<const T *>(&o->src1.at(k, 0, 0)),
                          static_cast<const T *>(&o->src2.at(k, 0, 0)), &o->result(k, 0));
    };
    const auto results = [o] { return o->values(); };
    const std::string name = fixedName<T, Layout::Standard, rows, columns>(Row::single);
    return {singles,
            1e-5,
            {{own, callPerObject(name, singles, arguments), results},
             {eigen, callPerObject(&eigenSingle<Row, T, rows, columns>, singles, pointers), results}}};
}

template <class Row, class T>
__attribute__((noinline)) ZelmStatus eigenLength(const T *src1, const T *src2, T *dst, std::uint32_t len) {
    using Source = Eigen::Map<const Eigen::Matrix<T, Eigen::Dynamic, 1>>;
    const auto size = static_cast<Eigen::Index>(len);
    *dst = Row::formula(Source(src1, size), Source(src2, size));
    return ZELM_OK;
}

// Vectors of run-time length: `len` objects of one element hold the elements of one vector.
template <class Row, class T>
Comparison compareLength(const std::string &name, std::size_t len) {
    const auto o = std::make_shared<Operands<Row, T, Layout::Standard, 1, 1>>(len);
    const auto results = [o] { return std::vector<double>{static_cast<double>(o->result(0, 0))}; };
    const std::size_t calls = len < 1000 ? singles : 1;
    const auto arguments = [o, len](std::size_t, std::size_t) {
        if constexpr (Row::sources == 2) {
            return std::tuple_cat(o->src1.constObject(0), o->src2.constObject(0),
                                  std::tuple(&o->result(0, 0)), countArgument(len));
        } else {
            return std::tuple_cat(o->src1.constObject(0), std::tuple(&o->result(0, 0)), countArgument(len));
        }
    };
    const auto pointers = [o, len](std::size_t, std::size_t) {
        return std::tuple_cat(o->src1.constObject(0), o->src2.constObject(0), std::tuple(&o->result(0, 0)),
                              countArgument(len));
    };
    // Sums of a million numbers that differ in their order.
    return {calls,
            1e-3,
            {{own, callPerObject(name, calls, arguments), results},
             {eigen, callPerObject(&eigenLength<Row, T>, calls, pointers), results}}};
}

template <class Row, class T, Layout layout, std::size_t rows, std::size_t columns>
void addArrayRow(std::size_t count) {
    addRow(fixedName<T, layout, rows, columns>(Row::array) + "/" + std::to_string(count),
           [count] { return compareArrays<Row, T, layout, rows, columns>(count); });
}

template <class Row, class T, std::size_t rows, std::size_t columns>
void addRowsOfSize() {
    addArrayRow<Row, T, Layout::Standard, rows, columns>(1000);
    addArrayRow<Row, T, Layout::Standard, rows, columns>(manyObjects<T>(rows * columns));
    addArrayRow<Row, T, Layout::P, rows, columns>(1000);
    addArrayRow<Row, T, Layout::L, rows, columns>(1000);
    if constexpr (!hasInvariant<Row>) {
        addRow(fixedName<T, Layout::Standard, rows, columns>(Row::single) + "/single",
               [] { return compareSingle<Row, T, rows, columns>(); });
    }
}

template <class Row, class T>
void addLengthRows() {
    const std::string name = std::string("zelm") + Row::single + "_" + typeName<T>;
    for (const std::size_t len : {8, 64, 1024, 1000000}) {
        addRow(name + "/length" + std::to_string(len), [=] { return compareLength<Row, T>(name, len); });
    }
}

template <class T>
void addRowsOfType() {
    addRowsOfSize<Dot, T, 1, 3>();
    addRowsOfSize<Dot, T, 1, 4>();
    addRowsOfSize<Dot, T, 1, 6>();
    addRowsOfSize<DotWithInvariant, T, 1, 3>();
    addRowsOfSize<DotWithInvariant, T, 1, 4>();
    addLengthRows<Dot, T>();
    addRowsOfSize<Cross, T, 1, 3>();
    addRowsOfSize<Norm, T, 1, 3>();
    addRowsOfSize<Norm, T, 1, 4>();
    addRowsOfSize<Norm, T, 1, 6>();
    addLengthRows<Norm, T>();
    addRowsOfSize<FrobeniusNorm, T, 3, 3>();
    addRowsOfSize<FrobeniusNorm, T, 4, 4>();
    addRowsOfSize<FrobeniusNorm, T, 6, 6>();
    addRowsOfSize<Trace, T, 3, 3>();
    addRowsOfSize<Trace, T, 4, 4>();
}

} // namespace

void addVectorAlgebraRows() {
    addRowsOfType<float>();
    addRowsOfType<double>();
}

} // namespace zelmbench
