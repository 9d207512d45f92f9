// Cholesky and QR, the decompositions and their solvers: arrays in the standard and P layouts, and single
// objects. Everything that the two methods differ in stands in the structs Cholesky and Qr.
#include "calls.h"
#include "families.h"
#include "measure.h"
#include "objects.h"

#include <Eigen/Cholesky>
#include <Eigen/QR>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace zelmbench {
namespace {

template <class T>
constexpr double tolerance = std::is_same_v<T, float> ? 2e-3 : 1e-10;

template <class T, std::size_t n, int storage>
using Matrix = Eigen::Matrix<T, static_cast<int>(n), static_cast<int>(n), storage>;
template <class T, std::size_t n>
using Vector = Eigen::Matrix<T, static_cast<int>(n), 1>;
constexpr int inRows = Eigen::RowMajor;
constexpr int inColumns = Eigen::ColMajor;

template <class T, std::size_t n>
using Local = T[n][n];

struct Cholesky {
    static constexpr const char *name = "Cholesky";
    static constexpr bool scratch = false;
    template <class T, std::size_t n, int storage>
    using Eigen = ::Eigen::LLT<Matrix<T, n, storage>>;

    // M * M^T + 1.
    static std::vector<double> matrices(std::size_t n) {
        const std::vector<double> &general = wellConditionedMatrices(n);
        std::vector<double> values(general.size());
        for (std::size_t e = 0; e < values.size(); ++e) {
            const std::size_t start = e / (n * n) * n * n, i = e / n % n, j = e % n;
            values[e] = i == j;
            for (std::size_t t = 0; t < n; ++t) {
                values[e] += general[start + i * n + t] * general[start + j * n + t];
            }
        }
        return values;
    }

    template <std::size_t n, class T>
    static void loopDecompose(Local<T, n> &a) {
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t j = 0; j <= i; ++j) {
                T s = a[i][j];
                for (std::size_t t = 0; t < j; ++t) {
                    s -= a[i][t] * a[j][t];
                }
                a[i][j] = i == j ? 1 / std::sqrt(s) : s * a[j][j];
            }
        }
    }

    template <std::size_t n, class T>
    static void loopSolve(const Local<T, n> &a, T *x) {
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t t = 0; t < i; ++t) {
                x[i] -= a[i][t] * x[t];
            }
            x[i] *= a[i][i];
        }
        for (std::size_t i = n; i-- > 0;) {
            for (std::size_t t = i + 1; t < n; ++t) {
                x[i] -= a[t][i] * x[t];
            }
            x[i] *= a[i][i];
        }
    }

    // The element (i, j) of the factor, the same for the library and for Eigen.
    template <class At>
    static double factor(const At &at, std::size_t i, std::size_t j, bool isEigen) {
        return j > i                ? 0.0
               : i == j && !isEigen ? 1 / static_cast<double>(at(i, j))
                                    : static_cast<double>(at(i, j));
    }
    template <class Decomposition>
    static const auto &eigenFactors(const Decomposition &decomposition) {
        return decomposition.matrixLLT();
    }
};

struct Qr {
    static constexpr const char *name = "QR";
    static constexpr bool scratch = true;
    template <class T, std::size_t n, int storage>
    using Eigen = ::Eigen::HouseholderQR<Matrix<T, n, storage>>;

    static std::vector<double> matrices(std::size_t n) { return wellConditionedMatrices(n); }

    template <std::size_t n, class T>
    static void loopDecompose(Local<T, n> &a) {
        for (std::size_t k = 0; k + 1 < n; ++k) {
            T squares = 0;
            for (std::size_t i = k; i < n; ++i) {
                squares += a[i][k] * a[i][k];
            }
            const T c = 1 / (a[k][k] + std::copysign(std::sqrt(squares), a[k][k]));
            T v[n], u = 1;
            v[k] = 1;
            for (std::size_t i = k + 1; i < n; ++i) {
                v[i] = a[i][k] * c;
                u += v[i] * v[i];
            }
            for (std::size_t j = k; j < n; ++j) {
                T t = a[k][j];
                for (std::size_t i = k + 1; i < n; ++i) {
                    t += a[i][j] * v[i];
                }
                t *= -2 / u;
                for (std::size_t i = k; i < n; ++i) {
                    a[i][j] += v[i] * t;
                }
            }
            for (std::size_t i = k + 1; i < n; ++i) {
                a[i][k] = v[i];
            }
        }
    }

    template <std::size_t n, class T>
    static void loopSolve(const Local<T, n> &a, T *x) {
        for (std::size_t k = 0; k + 1 < n; ++k) {
            T u = 1, t = x[k];
            for (std::size_t i = k + 1; i < n; ++i) {
                t += x[i] * a[i][k];
                u += a[i][k] * a[i][k];
            }
            t *= -2 / u;
            x[k] += t;
            for (std::size_t i = k + 1; i < n; ++i) {
                x[i] += a[i][k] * t;
            }
        }
        for (std::size_t i = n; i-- > 0;) {
            for (std::size_t j = i + 1; j < n; ++j) {
                x[i] -= a[i][j] * x[j];
            }
            x[i] /= a[i][i];
        }
    }

    // R and the reflectors' vectors, which Eigen stores in the same way.
    template <class At>
    static double factor(const At &at, std::size_t i, std::size_t j, bool) {
        return static_cast<double>(at(i, j));
    }
    template <class Decomposition>
    static const auto &eigenFactors(const Decomposition &decomposition) {
        return decomposition.matrixQR();
    }
};

template <class T, Layout layout, std::size_t n>
struct Systems {
    Systems(std::size_t count, const std::vector<double> &values)
        : matrices(count), factors(count), right(count), unknowns(count), scratch(n) {
        matrices.fill(values);
        right.fill(randomValues(n, 3));
    }
    Objects<T, layout, n, n> matrices, factors;
    Objects<T, layout, 1, n> right, unknowns;
    Buffer<T> scratch;
};

template <class T, Layout layout, std::size_t n>
using Shared = std::shared_ptr<Systems<T, layout, n>>;

constexpr std::size_t compared(std::size_t count) {
    return std::min<std::size_t>(count, 1000);
}

template <class Method, class T, Layout layout, std::size_t n>
auto scratchOf(Systems<T, layout, n> &s) {
    if constexpr (Method::scratch) {
        return std::tuple(s.scratch.data());
    } else {
        return std::tuple();
    }
}

template <class Method, class T, Layout layout, std::size_t n>
void loopDecompose(Systems<T, layout, n> &s) {
    for (std::size_t k = 0; k < s.factors.count(); ++k) {
        Local<T, n> a;
        for (std::size_t e = 0; e < n * n; ++e) {
            a[e / n][e % n] = s.matrices.at(k, e / n, e % n);
        }
        Method::template loopDecompose<n>(a);
        for (std::size_t e = 0; e < n * n; ++e) {
            s.factors.at(k, e / n, e % n) = a[e / n][e % n];
        }
    }
}

template <class Method, class T, Layout layout, std::size_t n>
void loopSolve(Systems<T, layout, n> &s, bool shared) {
    for (std::size_t k = 0; k < s.unknowns.count(); ++k) {
        Local<T, n> a;
        T x[n];
        for (std::size_t e = 0; e < n * n; ++e) {
            a[e / n][e % n] = s.factors.at(shared ? 0 : k, e / n, e % n);
        }
        for (std::size_t i = 0; i < n; ++i) {
            x[i] = s.right.at(k, 0, i);
        }
        Method::template loopSolve<n>(a, x);
        for (std::size_t i = 0; i < n; ++i) {
            s.unknowns.at(k, 0, i) = x[i];
        }
    }
}

template <class Method, class T, std::size_t n, int storage>
struct EigenSystems {
    explicit EigenSystems(Systems<T, Layout::Standard, n> &s) : decompositions(s.factors.count()) {
        decompose(s);
    }
    std::vector<typename Method::template Eigen<T, n, storage>> decompositions;

    void decompose(Systems<T, Layout::Standard, n> &s) {
        const T *matrix = s.matrices.data();
        for (auto &decomposition : decompositions) {
            decomposition.compute(Eigen::Map<const Matrix<T, n, inRows>>(matrix));
            matrix += n * n;
        }
    }
    std::vector<double> factors() const {
        std::vector<double> values;
        for (std::size_t k = 0; k < compared(decompositions.size()); ++k) {
            const auto &stored = Method::eigenFactors(decompositions[k]);
            const auto at = [&](std::size_t i, std::size_t j) {
                return stored(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(j));
            };
            for (std::size_t e = 0; e < n * n; ++e) {
                values.push_back(Method::factor(at, e / n, e % n, true));
            }
        }
        return values;
    }
};

template <class Method, class T, Layout layout, std::size_t n>
std::vector<double> factorsOf(Systems<T, layout, n> &s) {
    std::vector<double> values;
    for (std::size_t k = 0; k < compared(s.factors.count()); ++k) {
        const auto at = [&](std::size_t i, std::size_t j) { return s.factors.at(k, i, j); };
        for (std::size_t e = 0; e < n * n; ++e) {
            values.push_back(Method::factor(at, e / n, e % n, false));
        }
    }
    return values;
}

template <class Method, class T, Layout layout, std::size_t n>
std::string nameOf(const std::string &row) {
    const std::string order = std::to_string(n);
    return std::string("zelm") + Method::name + row + "_" + typeName<T> + "_" + order + "x" + order +
           suffixOf(layout);
}

template <class Method, int storage, class T, std::size_t n>
Contender eigenDecompositions(const Shared<T, Layout::Standard, n> &s) {
    const auto e = std::make_shared<EigenSystems<Method, T, n, storage>>(*s);
    return {eigen, [s, e](std::size_t) { e->decompose(*s); }, [e] { return e->factors(); }};
}

template <class Method, class T, Layout layout, std::size_t n>
Comparison compareDecompositions(std::size_t count) {
    const auto s = std::make_shared<Systems<T, layout, n>>(count, Method::matrices(n));
    const auto results = [s] { return factorsOf<Method>(*s); };
    const auto arrays = [s, count](std::size_t) {
        return std::tuple_cat(s->matrices.constArray(), scratchOf<Method>(*s), s->factors.array(),
                              countArgument(count));
    };
    Comparison comparison{
        count, tolerance<T>, {{own, callOf(nameOf<Method, T, layout, n>("Decomp_ma"), arrays), results}}};
    if constexpr (layout == Layout::Standard) {
        comparison.contenders.push_back(eigenDecompositions<Method, inRows>(s));
        comparison.contenders.push_back(eigenDecompositions<Method, inColumns>(s));
    } else {
        comparison.contenders.push_back({loop, [s](std::size_t) { loopDecompose<Method>(*s); }, results});
    }
    if (count <= mostOneByOne) {
        const auto objects = [s](std::size_t, std::size_t k) {
            return std::tuple_cat(s->matrices.constObject(k), scratchOf<Method>(*s), s->factors.object(k));
        };
        comparison.contenders.push_back(
            {one, callPerObject(nameOf<Method, T, layout, n>("Decomp_m"), count, objects), results});
    }
    return comparison;
}

template <class Decomposition, class T, std::size_t n>
__attribute__((noinline)) ZelmStatus eigenDecompose(const T *matrix, Decomposition *decomposition) {
    decomposition->compute(Eigen::Map<const Matrix<T, n, inRows>>(matrix));
    return ZELM_OK;
}

template <class Method, int storage, class T, std::size_t n>
Contender eigenSingleDecompositions(const Shared<T, Layout::Standard, n> &s) {
    const auto e = std::make_shared<EigenSystems<Method, T, n, storage>>(*s);
    const auto objects = [s, e](std::size_t, std::size_t k) {
        return std::tuple(static_cast<const T *>(s->matrices.data() + k * n * n), &e->decompositions[k]);
    };
    using Decomposition = typename Method::template Eigen<T, n, storage>;
    return {eigen, callPerObject(&eigenDecompose<Decomposition, T, n>, singles, objects),
            [e] { return e->factors(); }};
}

template <class Method, class T, std::size_t n>
Comparison compareSingleDecomposition() {
    const auto s = std::make_shared<Systems<T, Layout::Standard, n>>(singles, Method::matrices(n));
    const auto objects = [s](std::size_t, std::size_t k) {
        return std::tuple_cat(s->matrices.constObject(k), scratchOf<Method>(*s), s->factors.object(k));
    };
    const std::string name = nameOf<Method, T, Layout::Standard, n>("Decomp_m");
    return {singles,
            tolerance<T>,
            {{own, callPerObject(name, singles, objects), [s] { return factorsOf<Method>(*s); }},
             eigenSingleDecompositions<Method, inRows>(s),
             eigenSingleDecompositions<Method, inColumns>(s)}};
}

template <bool shared, class Method, int storage, class T, std::size_t n>
Contender eigenSolutions(const Shared<T, Layout::Standard, n> &s) {
    const auto e = std::make_shared<EigenSystems<Method, T, n, storage>>(*s);
    const auto solve = [s, e](std::size_t) {
        const T *right = s->right.data();
        T *unknowns = s->unknowns.data();
        for (std::size_t k = 0; k < s->unknowns.count(); ++k) {
            Eigen::Map<Vector<T, n>>(unknowns + k * n) =
                e->decompositions[shared ? 0 : k].solve(Eigen::Map<const Vector<T, n>>(right + k * n));
        }
    };
    return {eigen, solve, [s] { return s->unknowns.values(); }};
}

// `shared`: the first system's matrix serves all right-hand sides (mva); otherwise each has its own (mava).
template <bool shared, class Method, class T, Layout layout, std::size_t n>
Comparison compareSolutions(std::size_t count) {
    const auto s = std::make_shared<Systems<T, layout, n>>(count, Method::matrices(n));
    loopDecompose<Method>(*s);
    const auto results = [s] { return s->unknowns.values(); };
    const auto factors = [s] {
        if constexpr (!shared) {
            return s->factors.constArray();
        } else if constexpr (layout == Layout::P || !Method::scratch) {
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
    const auto arrays = [s, factors, count](std::size_t) {
        return std::tuple_cat(factors(), scratchOf<Method>(*s), s->right.constArray(), s->unknowns.array(),
                              countArgument(count));
    };
    const std::string name = nameOf<Method, T, layout, n>(shared ? "BackSubst_mva" : "BackSubst_mava");
    Comparison comparison{count, tolerance<T>, {{own, callOf(name, arrays), results}}};
    if constexpr (layout == Layout::Standard) {
        comparison.contenders.push_back(eigenSolutions<shared, Method, inColumns>(s));
        comparison.contenders.push_back(eigenSolutions<shared, Method, inRows>(s));
    } else {
        comparison.contenders.push_back({loop, [s](std::size_t) { loopSolve<Method>(*s, shared); }, results});
    }
    return comparison;
}

template <class Decomposition, class T, std::size_t n>
__attribute__((noinline)) ZelmStatus eigenSolve(const Decomposition *decomposition, const T *right,
                                                T *unknowns) {
    Eigen::Map<Vector<T, n>> result(unknowns);
    result = decomposition->solve(Eigen::Map<const Vector<T, n>>(right));
    return ZELM_OK;
}

template <class Method, int storage, class T, std::size_t n>
Contender eigenSingleSolutions(const Shared<T, Layout::Standard, n> &s) {
    using Decomposition = typename Method::template Eigen<T, n, storage>;
    const auto e = std::make_shared<EigenSystems<Method, T, n, storage>>(*s);
    const auto objects = [s, e](std::size_t, std::size_t k) {
        return std::tuple(static_cast<const Decomposition *>(&e->decompositions[k]),
                          static_cast<const T *>(s->right.data() + k * n), s->unknowns.data() + k * n);
    };
    return {eigen, callPerObject(&eigenSolve<Decomposition, T, n>, singles, objects),
            [s] { return s->unknowns.values(); }};
}

template <class Method, class T, std::size_t n>
Comparison compareSingleSolution() {
    const auto s = std::make_shared<Systems<T, Layout::Standard, n>>(singles, Method::matrices(n));
    loopDecompose<Method>(*s);
    const auto objects = [s](std::size_t, std::size_t k) {
        return std::tuple_cat(s->factors.constObject(k), scratchOf<Method>(*s), s->right.constObject(k),
                              s->unknowns.object(k));
    };
    const std::string name = nameOf<Method, T, Layout::Standard, n>("BackSubst_mv");
    return {singles,
            tolerance<T>,
            {{own, callPerObject(name, singles, objects), [s] { return s->unknowns.values(); }},
             eigenSingleSolutions<Method, inColumns>(s),
             eigenSingleSolutions<Method, inRows>(s)}};
}

template <class Method, class T, std::size_t n, Layout layout>
void addArrayRows(std::size_t count) {
    const std::string suffix = std::string("/") + std::to_string(count);
    addRow(nameOf<Method, T, layout, n>("Decomp_ma") + suffix,
           [count] { return compareDecompositions<Method, T, layout, n>(count); });
    addRow(nameOf<Method, T, layout, n>("BackSubst_mava") + suffix,
           [count] { return compareSolutions<false, Method, T, layout, n>(count); });
    addRow(nameOf<Method, T, layout, n>("BackSubst_mva") + suffix,
           [count] { return compareSolutions<true, Method, T, layout, n>(count); });
}

template <class Method, class T, std::size_t n>
void addSingleRows() {
    addRow(nameOf<Method, T, Layout::Standard, n>("Decomp_m") + "/single",
           [] { return compareSingleDecomposition<Method, T, n>(); });
    addRow(nameOf<Method, T, Layout::Standard, n>("BackSubst_mv") + "/single",
           [] { return compareSingleSolution<Method, T, n>(); });
}

template <class Method, class T, std::size_t n>
void addRowsOfOrder() {
    addArrayRows<Method, T, n, Layout::Standard>(1000);
    addArrayRows<Method, T, n, Layout::Standard>(manyObjects<T>(n * n));
    addArrayRows<Method, T, n, Layout::P>(1000);
    addSingleRows<Method, T, n>();
}

template <class Method, class T>
void addRowsOfType() {
    addSingleRows<Method, T, 3>();
    addRowsOfOrder<Method, T, 4>();
    addRowsOfOrder<Method, T, 6>();
}

} // namespace

void addCholeskyAndQrRows() {
    addRowsOfType<Cholesky, float>();
    addRowsOfType<Cholesky, double>();
    addRowsOfType<Qr, float>();
    addRowsOfType<Qr, double>();
}

} // namespace zelmbench
