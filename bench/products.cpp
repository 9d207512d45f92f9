// Products of matrices and vectors, and Gaxpy: arrays in three layouts, and single objects.
#include "calls.h"
#include "families.h"
#include "measure.h"
#include "objects.h"

#include <Eigen/Core>

#include <memory>
#include <type_traits>

namespace zelmbench {
namespace {

// What varies from row to row. A single object's row has the same name without `a`.
struct ManyByMany {
    static constexpr const char *array = "Mul_mama", *single = "Mul_mm";
    static constexpr bool firstIsArray = true, secondIsArray = true, firstIsTransposed = false,
                          secondIsMatrix = true, adds = false;
};

struct ManyByOne : ManyByMany {
    static constexpr const char *array = "Mul_mam";
    static constexpr bool secondIsArray = false;
};

struct TransposedByMany : ManyByMany {
    static constexpr const char *array = "Mul_maTma", *single = "Mul_mTm";
    static constexpr bool firstIsTransposed = true;
};

struct OneByVectors : ManyByMany {
    static constexpr const char *array = "Mul_mva", *single = "Mul_mv";
    static constexpr bool firstIsArray = false, secondIsMatrix = false;
};

struct ManyByVectors : ManyByMany {
    static constexpr const char *array = "Mul_mava", *single = "Mul_mv";
    static constexpr bool secondIsMatrix = false;
};

struct TransposedByVectors : ManyByVectors {
    static constexpr const char *array = "Mul_maTva", *single = "Mul_mTv";
    static constexpr bool firstIsTransposed = true;
};

struct Gaxpy : OneByVectors {
    static constexpr const char *array = "Gaxpy_va", *single = "Gaxpy_v";
    static constexpr bool adds = true;
};

template <class Row, class T, Layout layout, std::size_t n>
struct Operands {
    static constexpr std::size_t rows = Row::secondIsMatrix ? n : 1;
    // Where all is aligned to 16 bytes, 64-bit products of two arrays use the first matrix of src1 only.
    static constexpr std::size_t shift = sizeof(T) == 8 ? 1 : 0;
    explicit Operands(std::size_t count) : src1(count), src2(count), src3(count), dst(count, shift) {
        src1.fill(randomValues(n * n, 1));
        src2.fill(randomValues(rows * n, 2));
        src3.fill(randomValues(rows * n, 3));
    }
    Objects<T, layout, n, n> src1;
    Objects<T, layout, rows, n> src2, src3, dst;

    // The arguments of the objects from k on, and of one object.
    auto arrays(std::size_t k, std::size_t objects) {
        auto first = [&] {
            if constexpr (Row::firstIsArray) {
                return src1.constArray(k);
            } else {
                return src1.invariant();
            }
        }();
        auto second = [&] {
            if constexpr (Row::secondIsArray) {
                return src2.constArray(k);
            } else {
                return src2.invariant();
            }
        }();
        if constexpr (Row::adds) {
            return std::tuple_cat(first, second, src3.constArray(k), dst.array(k), countArgument(objects));
        } else {
            return std::tuple_cat(first, second, dst.array(k), countArgument(objects));
        }
    }
    auto object(std::size_t k) {
        const std::size_t first = Row::firstIsArray ? k : 0, second = Row::secondIsArray ? k : 0;
        if constexpr (Row::adds) {
            return std::tuple_cat(src1.constObject(first), src2.constObject(second), src3.constObject(k),
                                  dst.object(k));
        } else {
            return std::tuple_cat(src1.constObject(first), src2.constObject(second), dst.object(k));
        }
    }
};

template <class T, std::size_t rows, std::size_t columns>
using Matrix = Eigen::Matrix<T, static_cast<int>(rows), static_cast<int>(columns),
                             columns == 1 ? Eigen::ColMajor : Eigen::RowMajor>;

template <class Row, class First, class Second, class Third, class Result>
void eigenProduct(const First &first, const Second &second, const Third &third, Result &result) {
    const auto product = [&](const auto &used) {
        if constexpr (Row::adds) {
            result.noalias() = used * second + third;
        } else {
            result.noalias() = used * second;
        }
    };
    if constexpr (Row::firstIsTransposed) {
        product(first.transpose());
    } else {
        product(first);
    }
}

template <class Row, class T, std::size_t n>
void runEigen(Operands<Row, T, Layout::Standard, n> &o) {
    constexpr std::size_t columns = Row::secondIsMatrix ? n : 1;
    using First = Eigen::Map<const Matrix<T, n, n>>;
    using Second = Eigen::Map<const Matrix<T, n, columns>>;
    // A matrix that serves all vectors is quicker in columns.
    const Eigen::Matrix<T, static_cast<int>(n), static_cast<int>(n)> first = First(o.src1.data());
    const Matrix<T, n, columns> second = Second(o.src2.data());
    for (std::size_t k = 0; k < o.dst.count(); ++k) {
        const std::size_t e = k * n * columns;
        Eigen::Map<Matrix<T, n, columns>> result(o.dst.data() + e);
        const Second third(o.src3.data() + e);
        if constexpr (!Row::firstIsArray) {
            eigenProduct<Row>(first, Second(o.src2.data() + e), third, result);
        } else if constexpr (!Row::secondIsArray) {
            eigenProduct<Row>(First(o.src1.data() + k * n * n), second, third, result);
        } else {
            eigenProduct<Row>(First(o.src1.data() + k * n * n), Second(o.src2.data() + e), third, result);
        }
    }
}

template <class Row, class T, Layout layout, std::size_t n>
void runLoop(Operands<Row, T, layout, n> &o) {
    constexpr std::size_t columns = Row::secondIsMatrix ? n : 1;
    for (std::size_t k = 0; k < o.dst.count(); ++k) {
        const std::size_t one = Row::firstIsArray ? k : 0, two = Row::secondIsArray ? k : 0;
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t j = 0; j < columns; ++j) {
                T sum = 0;
                for (std::size_t t = 0; t < n; ++t) {
                    const T a = Row::firstIsTransposed ? o.src1.at(one, t, i) : o.src1.at(one, i, t);
                    sum += a * (Row::secondIsMatrix ? o.src2.at(two, t, j) : o.src2.at(two, 0, t));
                }
                if constexpr (Row::secondIsMatrix) {
                    o.dst.at(k, i, j) = sum;
                } else {
                    o.dst.at(k, 0, i) = Row::adds ? sum + o.src3.at(k, 0, i) : sum;
                }
            }
        }
    }
}

template <class T, Layout layout, std::size_t n>
std::string sizedName(const std::string &row) {
    const std::string order = std::to_string(n);
    return "zelm" + row + "_" + typeName<T> + "_" + order + "x" + order + suffixOf(layout);
}

template <class T>
constexpr double tolerance = std::is_same_v<T, float> ? 1e-4 : 1e-12;

template <class Row, class T, Layout layout, std::size_t n>
Comparison compareArrays(std::size_t count) {
    const auto o = std::make_shared<Operands<Row, T, layout, n>>(count);
    const auto results = [o] { return o->dst.values(); };
    const std::string name = sizedName<T, layout, n>(Row::array);
    Comparison comparison{
        count,
        tolerance<T>,
        {{own, callOf(name, [o, count](std::size_t) { return o->arrays(0, count); }), results}}};
    if constexpr (layout == Layout::Standard) {
        comparison.contenders.push_back({eigen, [o](std::size_t) { runEigen(*o); }, results});
    } else {
        comparison.contenders.push_back({loop, [o](std::size_t) { runLoop(*o); }, results});
    }
    if (count > mostOneByOne) {
        return comparison;
    }
    const auto one_ = [o](std::size_t, std::size_t k) { return o->arrays(k, 1); };
    comparison.contenders.push_back({one, callPerObject(name, count, one_), results});
    return comparison;
}

template <class Row, class T, std::size_t n>
__attribute__((noinline)) ZelmStatus eigenSingle(const T *first, const T *second, const T *third, T *result) {
    constexpr std::size_t columns = Row::secondIsMatrix ? n : 1;
    Eigen::Map<Matrix<T, n, columns>> map(result);
    eigenProduct<Row>(Eigen::Map<const Matrix<T, n, n>>(first),
                      Eigen::Map<const Matrix<T, n, columns>>(second),
                      Eigen::Map<const Matrix<T, n, columns>>(third), map);
    return ZELM_OK;
}

template <class Row, class T, std::size_t n>
Comparison compareSingle() {
    const auto o = std::make_shared<Operands<Row, T, Layout::Standard, n>>(singles);
    const auto results = [o] { return o->dst.values(); };
    const auto objects = [o](std::size_t, std::size_t k) { return o->object(k); };
    const auto peers = [o](std::size_t, std::size_t k) {
        constexpr std::size_t vector = n * (Row::secondIsMatrix ? n : 1);
        return std::tuple(static_cast<const T *>(o->src1.data() + (Row::firstIsArray ? k * n * n : 0)),
                          static_cast<const T *>(o->src2.data() + (Row::secondIsArray ? k * vector : 0)),
                          static_cast<const T *>(o->src3.data() + k * vector), o->dst.data() + k * vector);
    };
    return {singles,
            tolerance<T>,
            {{own, callPerObject(sizedName<T, Layout::Standard, n>(Row::single), singles, objects), results},
             {eigen, callPerObject(&eigenSingle<Row, T, n>, singles, peers), results}}};
}

template <class Row, class T, std::size_t n, Layout layout = Layout::Standard>
void addArrayRow(std::size_t count) {
    addRow(sizedName<T, layout, n>(Row::array) + "/" + std::to_string(count),
           [count] { return compareArrays<Row, T, layout, n>(count); });
}

template <class Row, class T, std::size_t n>
void addRows() {
    addArrayRow<Row, T, n>(1000);
    addArrayRow<Row, T, n>(manyObjects<T>(n * n));
    addArrayRow<Row, T, n, Layout::P>(1000);
    addArrayRow<Row, T, n, Layout::L>(1000);
}

template <class Row, class T, std::size_t n>
void addSingleRow() {
    addRow(sizedName<T, Layout::Standard, n>(Row::single) + "/single",
           [] { return compareSingle<Row, T, n>(); });
}

template <class T>
void addRowsOfType() {
    addRows<ManyByMany, T, 3>();
    addRows<ManyByMany, T, 4>();
    addRows<ManyByMany, T, 5>();
    addRows<ManyByMany, T, 6>();
    addArrayRow<ManyByOne, T, 4>(1000);
    addArrayRow<TransposedByMany, T, 4>(1000);
    addRows<OneByVectors, T, 3>();
    addRows<OneByVectors, T, 4>();
    addRows<ManyByVectors, T, 4>();
    addRows<ManyByVectors, T, 6>();
    addArrayRow<TransposedByVectors, T, 4>(1000);
    addRows<Gaxpy, T, 3>();
    addRows<Gaxpy, T, 4>();
    addSingleRow<ManyByMany, T, 3>();
    addSingleRow<ManyByMany, T, 4>();
    addSingleRow<ManyByMany, T, 5>();
    addSingleRow<ManyByMany, T, 6>();
    addSingleRow<ManyByVectors, T, 4>();
    addSingleRow<ManyByVectors, T, 6>();
    addSingleRow<Gaxpy, T, 4>();
}

} // namespace

void addProductRows() {
    addRowsOfType<float>();
    addRowsOfType<double>();
}

} // namespace zelmbench
