// LUDecomp and LUBackSubst: arrays in all layouts, and single objects.
#include "calls.h"
#include "families.h"
#include "measure.h"
#include "objects.h"

#include <Eigen/LU>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>
#include <utility>

namespace zelmbench {
namespace {

template <class T>
constexpr double tolerance = std::is_same_v<T, float> ? 2e-3 : 1e-10;

template <class T, std::size_t n>
using Vector = Eigen::Matrix<T, static_cast<int>(n), 1>;
template <class T, std::size_t n, int storage>
using Matrix = Eigen::Matrix<T, static_cast<int>(n), static_cast<int>(n), storage>;
// Eigen's decomposition, with its factors in rows or in columns; neither is the faster one for all sizes.
template <class T, std::size_t n, int storage>
using EigenLu = Eigen::PartialPivLU<Matrix<T, n, storage>>;
constexpr int inRows = Eigen::RowMajor;
constexpr int inColumns = Eigen::ColMajor;

// A processor learns the order of the pivots of a thousand matrices that it decomposes again and again, which
// flatters whoever branches on them. So this many matrices take turns, where memory allows it.
constexpr std::size_t matricesInTurn = 4000;

// Matrices with room for the results of the first `count` of them.
template <class T, Layout layout, std::size_t n>
struct Systems {
    explicit Systems(std::size_t count, std::size_t matrixCount)
        : matrices(matrixCount), factors(count), pivotIndex(count * n), right(count), unknowns(count) {
        matrices.fill(wellConditionedMatrices(n));
        right.fill(randomValues(n, 3));
    }
    Objects<T, layout, n, n> matrices, factors;
    Buffer<std::uint32_t> pivotIndex;
    Objects<T, layout, 1, n> right, unknowns;

    // The first matrix of those that a run decomposes.
    std::size_t firstMatrix(std::size_t turn) const { return turn * factors.count() % matrices.count(); }
    std::uint32_t *pivotOf(std::size_t k) { return pivotIndex.data() + k * n; }
    const std::uint32_t *constPivotOf(std::size_t k) { return pivotOf(k); }

    // L and U of the first objects, with the rows in the order of the permutation.
    std::vector<double> permutedFactors() {
        std::vector<double> values;
        for (std::size_t k = 0; k < std::min<std::size_t>(factors.count(), 1000); ++k) {
            for (std::size_t i = 0; i < n; ++i) {
                for (std::size_t j = 0; j < n; ++j) {
                    values.push_back(static_cast<double>(factors.at(k, pivotOf(k)[i], j)));
                }
            }
        }
        return values;
    }
};

template <class T, std::size_t n>
Eigen::Map<const Matrix<T, n, inRows>> eigenMatrix(const T *elements) {
    return Eigen::Map<const Matrix<T, n, inRows>>(elements);
}

// Eigen's decompositions of the same matrices.
template <class T, std::size_t n, int storage>
struct EigenSystems {
    explicit EigenSystems(std::size_t count) : decompositions(count) {}
    std::vector<EigenLu<T, n, storage>> decompositions;

    void decompose(const T *matrix) {
        for (auto &decomposition : decompositions) {
            decomposition.compute(eigenMatrix<T, n>(matrix));
            matrix += n * n;
        }
    }

    std::vector<double> factors() const {
        std::vector<double> values;
        for (std::size_t k = 0; k < std::min<std::size_t>(decompositions.size(), 1000); ++k) {
            const Matrix<T, n, inRows> lu = decompositions[k].matrixLU();
            values.insert(values.end(), lu.data(), lu.data() + lu.size());
        }
        return values;
    }
};

template <class T, Layout layout, std::size_t n>
void loopDecompose(Systems<T, layout, n> &s, std::size_t matrix, std::size_t k) {
    auto &dst = s.factors;
    std::uint32_t *const pivot = s.pivotOf(k);
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            dst.at(k, i, j) = s.matrices.at(matrix, i, j);
        }
    }
    std::iota(pivot, pivot + n, 0U);
    for (std::size_t c = 0; c + 1 < n; ++c) {
        std::size_t best = c;
        for (std::size_t i = c + 1; i < n; ++i) {
            if (std::abs(dst.at(k, pivot[i], c)) > std::abs(dst.at(k, pivot[best], c))) {
                best = i;
            }
        }
        std::swap(pivot[c], pivot[best]);
        const std::uint32_t top = pivot[c];
        const T divisor = dst.at(k, top, c);
        for (std::size_t i = c + 1; i < n; ++i) {
            const std::uint32_t row = pivot[i];
            const T multiplier = dst.at(k, row, c) / divisor;
            dst.at(k, row, c) = multiplier;
            for (std::size_t j = c + 1; j < n; ++j) {
                dst.at(k, row, j) -= multiplier * dst.at(k, top, j);
            }
        }
    }
}

template <class T, Layout layout, std::size_t n>
void loopSolve(Systems<T, layout, n> &s, std::size_t matrix, std::size_t k) {
    auto &a = s.factors;
    auto &x = s.unknowns;
    const std::uint32_t *const pivot = s.pivotOf(matrix);
    for (std::size_t i = 0; i < n; ++i) {
        T sum = 0;
        for (std::size_t j = 0; j < i; ++j) {
            sum += a.at(matrix, pivot[i], j) * x.at(k, 0, j);
        }
        x.at(k, 0, i) = s.right.at(k, 0, pivot[i]) - sum;
    }
    for (std::size_t i = n; i-- > 0;) {
        T sum = 0;
        for (std::size_t j = i + 1; j < n; ++j) {
            sum += a.at(matrix, pivot[i], j) * x.at(k, 0, j);
        }
        x.at(k, 0, i) = (x.at(k, 0, i) - sum) / a.at(matrix, pivot[i], i);
    }
}

constexpr bool hasSingleForms(Layout layout) {
    return layout == Layout::Standard || layout == Layout::S2 || layout == Layout::P;
}

template <int storage, class T, std::size_t n>
Contender eigenDecompositions(const std::shared_ptr<Systems<T, Layout::Standard, n>> &s) {
    const auto e = std::make_shared<EigenSystems<T, n, storage>>(s->factors.count());
    const auto decompose = [s, e](std::size_t turn) {
        e->decompose(s->matrices.data() + s->firstMatrix(turn) * n * n);
    };
    return {eigen, decompose, [e] { return e->factors(); }};
}

template <class T, Layout layout, std::size_t n>
Comparison compareDecompositions(std::size_t count) {
    const auto s = std::make_shared<Systems<T, layout, n>>(
        count, count * std::max<std::size_t>(1, matricesInTurn / count));
    const auto results = [s] { return s->permutedFactors(); };
    const auto arrays = [s](std::size_t turn, std::size_t k, std::size_t objects) {
        return std::tuple_cat(s->matrices.constArray(s->firstMatrix(turn) + k), std::tuple(s->pivotOf(k)),
                              s->factors.array(k), countArgument(objects));
    };
    const std::string name = fixedName<T, layout, n, n>("LUDecomp_ma");
    const auto wholeArray = [arrays, count](std::size_t turn) { return arrays(turn, 0, count); };
    Comparison comparison{count, tolerance<T>, {{own, callOf(name, wholeArray), results}}};
    if constexpr (layout == Layout::Standard) {
        comparison.contenders.push_back(eigenDecompositions<inRows>(s));
        comparison.contenders.push_back(eigenDecompositions<inColumns>(s));
    } else {
        const auto decompose = [s](std::size_t turn) {
            for (std::size_t k = 0; k < s->factors.count(); ++k) {
                loopDecompose(*s, s->firstMatrix(turn) + k, k);
            }
        };
        comparison.contenders.push_back({loop, decompose, results});
    }
    if (count > mostOneByOne) {
        return comparison;
    }
    if constexpr (hasSingleForms(layout)) {
        const auto objects = [s](std::size_t turn, std::size_t k) {
            return std::tuple_cat(s->matrices.constObject(s->firstMatrix(turn) + k),
                                  std::tuple(s->pivotOf(k)), s->factors.object(k));
        };
        comparison.contenders.push_back(
            {one, callPerObject(fixedName<T, layout, n, n>("LUDecomp_m"), count, objects), results});
    } else {
        const auto objects = [arrays](std::size_t turn, std::size_t k) { return arrays(turn, k, 1); };
        comparison.contenders.push_back({one, callPerObject(name, count, objects), results});
    }
    return comparison;
}

template <class T, std::size_t n, int storage>
__attribute__((noinline)) ZelmStatus eigenDecompose(const T *matrix, EigenLu<T, n, storage> *decomposition) {
    decomposition->compute(eigenMatrix<T, n>(matrix));
    return ZELM_OK;
}

template <int storage, class T, std::size_t n>
Contender eigenSingleDecompositions(const std::shared_ptr<Systems<T, Layout::Standard, n>> &s) {
    const auto e = std::make_shared<EigenSystems<T, n, storage>>(s->factors.count());
    const auto objects = [s, e](std::size_t, std::size_t k) {
        return std::tuple(static_cast<const T *>(s->matrices.data() + k * n * n), &e->decompositions[k]);
    };
    return {eigen, callPerObject(&eigenDecompose<T, n, storage>, matricesInTurn, objects),
            [e] { return e->factors(); }};
}

template <class T, std::size_t n>
Comparison compareSingleDecomposition() {
    const auto s = std::make_shared<Systems<T, Layout::Standard, n>>(matricesInTurn, matricesInTurn);
    const auto objects = [s](std::size_t, std::size_t k) {
        return std::tuple_cat(s->matrices.constObject(k), std::tuple(s->pivotOf(k)), s->factors.object(k));
    };
    const std::string name = fixedName<T, Layout::Standard, n, n>("LUDecomp_m");
    return {matricesInTurn,
            tolerance<T>,
            {{own, callPerObject(name, matricesInTurn, objects), [s] { return s->permutedFactors(); }},
             eigenSingleDecompositions<inRows>(s),
             eigenSingleDecompositions<inColumns>(s)}};
}

template <class T, Layout layout, std::size_t n>
std::shared_ptr<Systems<T, layout, n>> decomposedSystems(std::size_t count) {
    const auto s = std::make_shared<Systems<T, layout, n>>(count, count);
    for (std::size_t k = 0; k < count; ++k) {
        loopDecompose(*s, k, k);
    }
    return s;
}

// Eigen solves faster from factors in columns, although the library's lie in rows: both are shown.
constexpr const char *solverName(int storage) {
    return storage == inColumns ? eigen : eigenRows;
}

template <bool shared, int storage, class T, std::size_t n>
Contender eigenSolutions(const std::shared_ptr<Systems<T, Layout::Standard, n>> &s) {
    const auto e = std::make_shared<EigenSystems<T, n, storage>>(s->factors.count());
    e->decompose(s->matrices.data());
    const auto solve = [s, e](std::size_t) {
        const T *right = s->right.data();
        T *unknowns = s->unknowns.data();
        for (std::size_t k = 0; k < s->unknowns.count(); ++k) {
            Eigen::Map<Vector<T, n>>(unknowns + k * n) =
                e->decompositions[shared ? 0 : k].solve(Eigen::Map<const Vector<T, n>>(right + k * n));
        }
    };
    return {solverName(storage), solve, [s] { return s->unknowns.values(); }};
}

// `shared`: the first system's matrix serves all right-hand sides (mva); otherwise each has its own (mava).
template <bool shared, class T, Layout layout, std::size_t n>
Comparison compareSolutions(std::size_t count) {
    const auto s = decomposedSystems<T, layout, n>(count);
    const auto results = [s] { return s->unknowns.values(); };
    const auto factors = [s](std::size_t k) {
        if constexpr (!shared) {
            return s->factors.constArray(k);
        } else if constexpr (layout == Layout::P || layout == Layout::PS2) {
            return s->factors.invariant();
        } else {
            // An object stride that is passed and never read stands behind the pointer.
            return std::apply(
                [](const T *pointer, auto... strides) {
                    return std::tuple(pointer, std::int32_t{0}, strides...);
                },
                s->factors.invariant());
        }
    };
    const auto arrays = [s, factors](std::size_t k, std::size_t objects) {
        return std::tuple_cat(factors(k), std::tuple(s->constPivotOf(shared ? 0 : k)), s->right.constArray(k),
                              s->unknowns.array(k), countArgument(objects));
    };
    const std::string name = fixedName<T, layout, n, n>(shared ? "LUBackSubst_mva" : "LUBackSubst_mava");
    Comparison comparison{
        count, tolerance<T>, {{own, callOf(name, [=](std::size_t) { return arrays(0, count); }), results}}};
    if constexpr (layout == Layout::Standard) {
        comparison.contenders.push_back(eigenSolutions<shared, inColumns>(s));
        comparison.contenders.push_back(eigenSolutions<shared, inRows>(s));
    } else {
        const auto solve = [s](std::size_t) {
            for (std::size_t k = 0; k < s->unknowns.count(); ++k) {
                loopSolve(*s, shared ? 0 : k, k);
            }
        };
        comparison.contenders.push_back({loop, solve, results});
    }
    if (count > mostOneByOne) {
        return comparison;
    }
    if constexpr (hasSingleForms(layout)) {
        const auto objects = [s](std::size_t, std::size_t k) {
            const std::size_t matrix = shared ? 0 : k;
            return std::tuple_cat(s->factors.constObject(matrix), std::tuple(s->constPivotOf(matrix)),
                                  s->right.constObject(k), s->unknowns.object(k));
        };
        comparison.contenders.push_back(
            {one, callPerObject(fixedName<T, layout, n, n>("LUBackSubst_mv"), count, objects), results});
    } else {
        const auto objects = [arrays](std::size_t, std::size_t k) { return arrays(k, 1); };
        comparison.contenders.push_back({one, callPerObject(name, count, objects), results});
    }
    return comparison;
}

template <class T, std::size_t n, int storage>
__attribute__((noinline)) ZelmStatus eigenSolve(const EigenLu<T, n, storage> *decomposition, const T *right,
                                                T *unknowns) {
    Eigen::Map<Vector<T, n>> result(unknowns);
    result = decomposition->solve(Eigen::Map<const Vector<T, n>>(right));
    return ZELM_OK;
}

template <int storage, class T, std::size_t n>
Contender eigenSingleSolutions(const std::shared_ptr<Systems<T, Layout::Standard, n>> &s) {
    const auto e = std::make_shared<EigenSystems<T, n, storage>>(s->factors.count());
    e->decompose(s->matrices.data());
    const auto objects = [s, e](std::size_t, std::size_t k) {
        return std::tuple(static_cast<const EigenLu<T, n, storage> *>(&e->decompositions[k]),
                          static_cast<const T *>(s->right.data() + k * n), s->unknowns.data() + k * n);
    };
    return {solverName(storage), callPerObject(&eigenSolve<T, n, storage>, singles, objects),
            [s] { return s->unknowns.values(); }};
}

template <class T, std::size_t n>
Comparison compareSingleSolution() {
    const auto s = decomposedSystems<T, Layout::Standard, n>(singles);
    const auto objects = [s](std::size_t, std::size_t k) {
        return std::tuple_cat(s->factors.constObject(k), std::tuple(s->constPivotOf(k)),
                              s->right.constObject(k), s->unknowns.object(k));
    };
    const std::string name = fixedName<T, Layout::Standard, n, n>("LUBackSubst_mv");
    return {singles,
            tolerance<T>,
            {{own, callPerObject(name, singles, objects), [s] { return s->unknowns.values(); }},
             eigenSingleSolutions<inColumns>(s),
             eigenSingleSolutions<inRows>(s)}};
}

template <class T, std::size_t n, Layout layout = Layout::Standard>
void addDecompositionRow(std::size_t count) {
    addRow(fixedName<T, layout, n, n>("LUDecomp_ma") + "/" + std::to_string(count),
           [count] { return compareDecompositions<T, layout, n>(count); });
}

template <bool shared, class T, std::size_t n, Layout layout = Layout::Standard>
void addSolutionRow(std::size_t count) {
    addRow(fixedName<T, layout, n, n>(shared ? "LUBackSubst_mva" : "LUBackSubst_mava") + "/" +
               std::to_string(count),
           [count] { return compareSolutions<shared, T, layout, n>(count); });
}

template <class T, std::size_t n>
void addRowsOfOrder() {
    addDecompositionRow<T, n>(1000);
    addDecompositionRow<T, n>(manyObjects<T>(n * n));
    addRow(fixedName<T, Layout::Standard, n, n>("LUDecomp_m") + "/single",
           [] { return compareSingleDecomposition<T, n>(); });
}

template <class T, std::size_t n>
void addSolutionRows() {
    addSolutionRow<false, T, n>(1000);
    addSolutionRow<false, T, n>(manyObjects<T>(n * n));
    addSolutionRow<true, T, n>(1000);
    addSolutionRow<true, T, n>(1000000);
    addRow(fixedName<T, Layout::Standard, n, n>("LUBackSubst_mv") + "/single",
           [] { return compareSingleSolution<T, n>(); });
}

template <class T, std::size_t n, Layout layout>
void addLayoutRows() {
    addDecompositionRow<T, n, layout>(1000);
    addSolutionRow<false, T, n, layout>(1000);
    addSolutionRow<true, T, n, layout>(1000);
}

template <class T, Layout layout>
void addLayoutRowsOfOrders() {
    addLayoutRows<T, 4, layout>();
    addLayoutRows<T, 6, layout>();
}

template <class T>
void addRowsOfType() {
    addRowsOfOrder<T, 3>();
    addRowsOfOrder<T, 4>();
    addRowsOfOrder<T, 5>();
    addRowsOfOrder<T, 6>();
    addSolutionRows<T, 4>();
    addSolutionRows<T, 6>();
    addLayoutRowsOfOrders<T, Layout::S2>();
    addLayoutRowsOfOrders<T, Layout::P>();
    addLayoutRowsOfOrders<T, Layout::PS2>();
    addLayoutRowsOfOrders<T, Layout::L>();
    addLayoutRowsOfOrders<T, Layout::LS2>();
}

} // namespace

void addLuRows() {
    addRowsOfType<float>();
    addRowsOfType<double>();
}

} // namespace zelmbench
