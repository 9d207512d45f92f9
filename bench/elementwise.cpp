// Add and Sub of matrices, scaling, Saxpy and LComb: arrays, single objects, vectors of run-time length.
#include "calls.h"
#include "families.h"
#include "measure.h"
#include "objects.h"

#include <Eigen/Core>

#include <memory>

namespace zelmbench {
namespace {

template <class T>
struct Factors {
    T first = static_cast<T>(0.3), second = static_cast<T>(0.7);
};

// What varies from row to row: which operands there are, and the formula over elements or Eigen's
// expressions. A single object's row has the same name without `a`.
struct Shape {
    bool firstIsArray = true, secondIsArray = true, hasSecond = true;
    bool firstIsTransposed = false, secondIsTransposed = false;
};

struct AddMatrices {
    static constexpr const char *array = "Add_mama", *single = "Add_mm";
    static constexpr Shape shape{};
    template <class T>
    static auto constants() {
        return std::pair(std::tuple(), std::tuple());
    }
    template <class T, class A, class B>
    static auto formula(const A &a, const B &b, Factors<T>) {
        return a + b;
    }
};

struct AddInvariantMatrix : AddMatrices {
    static constexpr const char *array = "Add_mam";
    static constexpr Shape shape{.secondIsArray = false};
};

struct AddTransposed : AddMatrices {
    static constexpr const char *array = "Add_mamaT", *single = "Add_mmT";
    static constexpr Shape shape{.secondIsTransposed = true};
};

struct SubFromInvariantMatrix : AddMatrices {
    static constexpr const char *array = "Sub_mma", *single = "Sub_mm";
    static constexpr Shape shape{.firstIsArray = false};
    template <class T, class A, class B>
    static auto formula(const A &a, const B &b, Factors<T>) {
        return a - b;
    }
};

struct ScaleMatrices {
    static constexpr const char *array = "Mul_mac", *single = "Mul_mc";
    static constexpr Shape shape{.hasSecond = false};
    template <class T>
    static auto constants() {
        return std::pair(std::tuple(Factors<T>().first), std::tuple());
    }
    template <class T, class A, class B>
    static auto formula(const A &a, const B &, Factors<T> by) {
        return a * by.first;
    }
};

struct ScaleTransposed : ScaleMatrices {
    static constexpr const char *array = "Mul_maTc", *single = "Mul_mTc";
    static constexpr Shape shape{.hasSecond = false, .firstIsTransposed = true};
};

struct ScaleVectors : ScaleMatrices {
    static constexpr const char *array = "Mul_vac", *single = "Mul_vc";
};

struct Saxpy : ScaleMatrices {
    static constexpr const char *array = "Saxpy_vava", *single = "Saxpy_vv";
    static constexpr Shape shape{};
    template <class T, class A, class B>
    static auto formula(const A &a, const B &b, Factors<T> by) {
        return a * by.first + b;
    }
};

struct SaxpyOfInvariant : Saxpy {
    static constexpr const char *array = "Saxpy_vva";
    static constexpr Shape shape{.firstIsArray = false};
};

struct LinearCombination {
    static constexpr const char *array = "LComb_vava", *single = "LComb_vv";
    static constexpr Shape shape{};
    template <class T>
    static auto constants() {
        return std::pair(std::tuple(Factors<T>().first), std::tuple(Factors<T>().second));
    }
    template <class T, class A, class B>
    static auto formula(const A &a, const B &b, Factors<T> by) {
        return a * by.first + b * by.second;
    }
};

struct CombinationWithInvariant : LinearCombination {
    static constexpr const char *array = "LComb_vav";
    static constexpr Shape shape{.secondIsArray = false};
};

template <class T, Layout layout, std::size_t rows, std::size_t columns>
struct Operands {
    explicit Operands(std::size_t count) : src1(count), src2(count), dst(count) {
        src1.fill(randomValues(rows * columns, 1));
        src2.fill(randomValues(rows * columns, 2));
    }
    Objects<T, layout, rows, columns> src1, src2, dst;
};

template <class Row, class T, class First, class Second>
auto sources(const First &first, const Second &second) {
    const auto [behindFirst, behindSecond] = Row::template constants<T>();
    if constexpr (Row::shape.hasSecond) {
        return std::tuple_cat(first, behindFirst, second, behindSecond);
    } else {
        return std::tuple_cat(first, behindFirst);
    }
}

// The factors as a peer takes them, behind its operands.
template <class Row, class T>
auto factors() {
    const auto [behindFirst, behindSecond] = Row::template constants<T>();
    return std::tuple_cat(behindFirst, behindSecond);
}

template <class T>
using FlatArray = Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>;
template <class T, std::size_t rows, std::size_t columns>
using SmallMap =
    Eigen::Map<Eigen::Array<T, static_cast<int>(rows), static_cast<int>(columns), Eigen::RowMajor>>;

template <bool isTransposed, class Map>
auto used(const Map &map) {
    if constexpr (isTransposed) {
        return map.transpose();
    } else {
        return map;
    }
}

// One expression over all elements, where the row is one.
template <class Row, class T, std::size_t rows, std::size_t columns>
void runEigenWhole(Operands<T, Layout::Standard, rows, columns> &o) {
    const auto size = static_cast<Eigen::Index>(o.dst.count() * rows * columns);
    FlatArray<T> result(o.dst.data(), size);
    result = Row::template formula<T>(FlatArray<T>(o.src1.data(), size), FlatArray<T>(o.src2.data(), size),
                                      Factors<T>());
}

template <class Row, class T, std::size_t rows, std::size_t columns>
void runEigenEach(Operands<T, Layout::Standard, rows, columns> &o) {
    constexpr Shape shape = Row::shape;
    using Map = SmallMap<T, rows, columns>;
    using Held = typename Map::PlainObject;
    const Held first = Map(o.src1.data()), second = Map(o.src2.data());
    for (std::size_t e = 0; e < o.dst.count() * rows * columns; e += rows * columns) {
        Map result(o.dst.data() + e);
        if constexpr (!shape.firstIsArray) {
            result = Row::template formula<T>(first, used<shape.secondIsTransposed>(Map(o.src2.data() + e)),
                                              Factors<T>());
        } else if constexpr (!shape.secondIsArray) {
            result = Row::template formula<T>(used<shape.firstIsTransposed>(Map(o.src1.data() + e)), second,
                                              Factors<T>());
        } else {
            result = Row::template formula<T>(used<shape.firstIsTransposed>(Map(o.src1.data() + e)),
                                              used<shape.secondIsTransposed>(Map(o.src2.data() + e)),
                                              Factors<T>());
        }
    }
}

template <class Row, class T, Layout layout, std::size_t rows, std::size_t columns>
void runLoop(Operands<T, layout, rows, columns> &o) {
    constexpr Shape shape = Row::shape;
    const auto element = [&](std::size_t k, std::size_t i, std::size_t j) {
        const T a = o.src1.at(shape.firstIsArray ? k : 0, shape.firstIsTransposed ? j : i,
                              shape.firstIsTransposed ? i : j);
        const T b = o.src2.at(shape.secondIsArray ? k : 0, shape.secondIsTransposed ? j : i,
                              shape.secondIsTransposed ? i : j);
        o.dst.at(k, i, j) = Row::template formula<T>(a, b, Factors<T>());
    };
    const std::size_t count = o.dst.count();
    if constexpr (layout == Layout::P || layout == Layout::PS2) {
        for (std::size_t i = 0; i < rows; ++i) {
            for (std::size_t j = 0; j < columns; ++j) {
                for (std::size_t k = 0; k < count; ++k) {
                    element(k, i, j);
                }
            }
        }
    } else {
        for (std::size_t k = 0; k < count; ++k) {
            for (std::size_t i = 0; i < rows; ++i) {
                for (std::size_t j = 0; j < columns; ++j) {
                    element(k, i, j);
                }
            }
        }
    }
}

template <class Row, class T, Layout layout, std::size_t rows, std::size_t columns>
Comparison compareArrays(std::size_t count) {
    constexpr Shape shape = Row::shape;
    const auto o = std::make_shared<Operands<T, layout, rows, columns>>(count);
    const auto arguments = [o](std::size_t k, std::size_t objects) {
        const auto operand = [k]<bool isArray>(auto &source, std::bool_constant<isArray>) {
            if constexpr (isArray) {
                return source.constArray(k);
            } else {
                return source.invariant();
            }
        };
        return std::tuple_cat(
            sources<Row, T>(operand(o->src1, std::bool_constant<Row::shape.firstIsArray>()),
                            operand(o->src2, std::bool_constant<Row::shape.secondIsArray>())),
            o->dst.array(k), countArgument(objects));
    };
    const std::string name = fixedName<T, layout, rows, columns>(Row::array);
    const auto results = [o] { return o->dst.values(); };
    Comparison comparison{
        count, 1e-5, {{own, callOf(name, [=](std::size_t) { return arguments(0, count); }), results}}};
    if constexpr (layout == Layout::Standard) {
        if constexpr (shape.firstIsArray && shape.secondIsArray && !shape.firstIsTransposed &&
                      !shape.secondIsTransposed) {
            comparison.contenders.push_back({eigen, [o](std::size_t) { runEigenWhole<Row>(*o); }, results});
        }
        comparison.contenders.push_back({eigen, [o](std::size_t) { runEigenEach<Row>(*o); }, results});
    } else {
        comparison.contenders.push_back({loop, [o](std::size_t) { runLoop<Row>(*o); }, results});
    }
    if (count <= mostOneByOne) {
        const auto oneByOne = [arguments](std::size_t, std::size_t k) { return arguments(k, 1); };
        comparison.contenders.push_back({one, callPerObject(name, count, oneByOne), results});
    }
    return comparison;
}

template <class Row, class T, std::size_t rows, std::size_t columns, class... Factor>
__attribute__((noinline)) ZelmStatus eigenSingle(const T *src1, const T *src2, T *dst, Factor... factors) {
    using Source = Eigen::Map<const typename SmallMap<T, rows, columns>::PlainObject>;
    SmallMap<T, rows, columns> result(dst);
    result =
        Row::template formula<T>(used<Row::shape.firstIsTransposed>(Source(src1)),
                                 used<Row::shape.secondIsTransposed>(Source(src2)), Factors<T>{factors...});
    return ZELM_OK;
}

template <class Row, class T, std::size_t rows, std::size_t columns, class... Factor>
constexpr auto eigenSingleWith(std::tuple<Factor...>) {
    return &eigenSingle<Row, T, rows, columns, Factor...>;
}

template <class Row, class T, std::size_t rows, std::size_t columns>
Comparison compareSingle() {
    const auto o = std::make_shared<Operands<T, Layout::Standard, rows, columns>>(singles);
    const auto arguments = [o](std::size_t, std::size_t k) {
        return std::tuple_cat(sources<Row, T>(o->src1.constObject(k), o->src2.constObject(k)),
                              o->dst.object(k));
    };
    const auto pointers = [o](std::size_t, std::size_t k) {
        return std::tuple_cat(std::tuple(static_cast<const T *>(&o->src1.at(k, 0, 0)),
                                         static_cast<const T *>(&o->src2.at(k, 0, 0)), &o->dst.at(k, 0, 0)),
                              factors<Row, T>());
    };
    const auto results = [o] { return o->dst.values(); };
    const std::string name = fixedName<T, Layout::Standard, rows, columns>(Row::single);
    return {
        singles,
        1e-5,
        {{own, callPerObject(name, singles, arguments), results},
         {eigen, callPerObject(eigenSingleWith<Row, T, rows, columns>(factors<Row, T>()), singles, pointers),
          results}}};
}

template <class Row, class T, class... Factor>
__attribute__((noinline)) ZelmStatus eigenLength(const T *src1, const T *src2, T *dst, std::uint32_t len,
                                                 Factor... factors) {
    using Source = Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, 1>>;
    const auto size = static_cast<Eigen::Index>(len);
    FlatArray<T> result(dst, size);
    result = Row::template formula<T>(Source(src1, size), Source(src2, size), Factors<T>{factors...});
    return ZELM_OK;
}

template <class Row, class T, class... Factor>
constexpr auto eigenLengthWith(std::tuple<Factor...>) {
    return &eigenLength<Row, T, Factor...>;
}

// Vectors of run-time length: `len` objects of one element hold the elements of one vector.
template <class Row, class T>
Comparison compareLength(const std::string &name, std::size_t len) {
    const auto o = std::make_shared<Operands<T, Layout::Standard, 1, 1>>(len);
    const auto results = [o] { return o->dst.values(); };
    const std::size_t calls = len < 1000 ? singles : 1;
    const auto arguments = [o, len](std::size_t, std::size_t) {
        return std::tuple_cat(sources<Row, T>(o->src1.constObject(0), o->src2.constObject(0)),
                              o->dst.object(0), countArgument(len));
    };
    const auto pointers = [o, len](std::size_t, std::size_t) {
        return std::tuple_cat(o->src1.constObject(0), o->src2.constObject(0), o->dst.object(0),
                              countArgument(len), factors<Row, T>());
    };
    return {calls,
            1e-5,
            {{own, callPerObject(name, calls, arguments), results},
             {eigen, callPerObject(eigenLengthWith<Row, T>(factors<Row, T>()), calls, pointers), results}}};
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
    if constexpr (Row::shape.firstIsArray && Row::shape.secondIsArray) {
        addRow(fixedName<T, Layout::Standard, rows, columns>(Row::single) + "/single",
               [] { return compareSingle<Row, T, rows, columns>(); });
    }
}

template <class Row, class T>
void addMatrixRows() {
    addRowsOfSize<Row, T, 3, 3>();
    addRowsOfSize<Row, T, 4, 4>();
    addRowsOfSize<Row, T, 6, 6>();
}

template <class Row, class T>
void addVectorRows() {
    addRowsOfSize<Row, T, 1, 3>();
    addRowsOfSize<Row, T, 1, 4>();
    if constexpr (Row::shape.firstIsArray && Row::shape.secondIsArray) {
        const std::string name = std::string("zelm") + Row::single + "_" + typeName<T>;
        for (const std::size_t len : {8, 64, 1024, 1000000}) {
            addRow(name + "/length" + std::to_string(len), [=] { return compareLength<Row, T>(name, len); });
        }
    }
}

template <class T>
void addRowsOfType() {
    addMatrixRows<AddMatrices, T>();
    addMatrixRows<AddInvariantMatrix, T>();
    addMatrixRows<AddTransposed, T>();
    addMatrixRows<SubFromInvariantMatrix, T>();
    addMatrixRows<ScaleMatrices, T>();
    addMatrixRows<ScaleTransposed, T>();
    addVectorRows<ScaleVectors, T>();
    addVectorRows<Saxpy, T>();
    addVectorRows<SaxpyOfInvariant, T>();
    addVectorRows<LinearCombination, T>();
    addVectorRows<CombinationWithInvariant, T>();
}

} // namespace

void addElementwiseRows() {
    addRowsOfType<float>();
    addRowsOfType<double>();
}

} // namespace zelmbench
