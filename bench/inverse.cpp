// Det and Invert of fixed sizes: arrays in all layouts, and single objects.
#include "calls.h"
#include "families.h"
#include "measure.h"
#include "objects.h"

#include <Eigen/LU>

#include <memory>
#include <tuple>

namespace zelmbench {
namespace {

template <class T>
constexpr double tolerance = std::is_same_v<T, float> ? 2e-3 : 1e-10;

template <class T, std::size_t n>
using Matrix = Eigen::Matrix<T, static_cast<int>(n), static_cast<int>(n), Eigen::RowMajor>;

// Matrices, their inverses and determinants, and what Eigen makes of the same matrices packed in rows.
template <class T, Layout layout, std::size_t n>
struct Matrices {
    explicit Matrices(std::size_t count)
        : source(count), inverses(count), determinants(count), packed(count), packedInverses(count),
          eigenDeterminants(count) {
        source.fill(wellConditionedMatrices(n));
        packed.fill(wellConditionedMatrices(n));
    }
    Objects<T, layout, n, n> source, inverses;
    Objects<T, Layout::Standard, 1, 1> determinants;
    Objects<T, Layout::Standard, n, n> packed, packedInverses;
    Objects<T, Layout::Standard, 1, 1> eigenDeterminants;

    T *determinant(std::size_t k) { return determinants.data() + k; }
};

template <class T, std::size_t n>
__attribute__((noinline)) ZelmStatus eigenInvert(const T *matrix, T *inverse) {
    Eigen::Map<Matrix<T, n>> result(inverse);
    result = Eigen::Map<const Matrix<T, n>>(matrix).inverse();
    return ZELM_OK;
}

template <class T, std::size_t n>
__attribute__((noinline)) ZelmStatus eigenDeterminant(const T *matrix, T *determinant) {
    *determinant = Eigen::Map<const Matrix<T, n>>(matrix).determinant();
    return ZELM_OK;
}

template <class T, Layout layout, std::size_t n>
Comparison compareInverses(std::size_t count) {
    const auto s = std::make_shared<Matrices<T, layout, n>>(count);
    const auto arguments = [s, count](std::size_t) {
        return std::tuple_cat(s->source.constArray(), s->inverses.array(), countArgument(count));
    };
    const auto invert = [s](std::size_t) {
        for (std::size_t k = 0; k < s->packed.count(); ++k) {
            Eigen::Map<Matrix<T, n>> result(s->packedInverses.data() + k * n * n);
            result = Eigen::Map<const Matrix<T, n>>(s->packed.data() + k * n * n).inverse();
        }
    };
    return {count,
            tolerance<T>,
            {{own, callOf(fixedName<T, layout, n, n>("Invert_ma"), arguments),
              [s] { return s->inverses.values(); }},
             {eigen, invert, [s] { return s->packedInverses.values(); }}}};
}

template <class T, Layout layout, std::size_t n>
Comparison compareDeterminants(std::size_t count) {
    const auto s = std::make_shared<Matrices<T, layout, n>>(count);
    const auto arguments = [s, count](std::size_t) {
        return std::tuple_cat(s->source.constArray(), std::tuple(s->determinant(0)), countArgument(count));
    };
    const auto expand = [s](std::size_t) {
        for (std::size_t k = 0; k < s->packed.count(); ++k) {
            s->eigenDeterminants.data()[k] =
                Eigen::Map<const Matrix<T, n>>(s->packed.data() + k * n * n).determinant();
        }
    };
    return {count,
            tolerance<T>,
            {{own, callOf(fixedName<T, layout, n, n>("Det_ma"), arguments),
              [s] { return s->determinants.values(); }},
             {eigen, expand, [s] { return s->eigenDeterminants.values(); }}}};
}

template <class T, std::size_t n>
Comparison compareSingleInverse() {
    const auto s = std::make_shared<Matrices<T, Layout::Standard, n>>(singles);
    const auto objects = [s](std::size_t, std::size_t k) {
        return std::tuple_cat(s->source.constObject(k), s->inverses.object(k));
    };
    const auto eigenObjects = [s](std::size_t, std::size_t k) {
        return std::tuple(static_cast<const T *>(s->packed.data() + k * n * n),
                          s->packedInverses.data() + k * n * n);
    };
    const std::string name = fixedName<T, Layout::Standard, n, n>("Invert_m");
    return {singles,
            tolerance<T>,
            {{own, callPerObject(name, singles, objects), [s] { return s->inverses.values(); }},
             {eigen, callPerObject(&eigenInvert<T, n>, singles, eigenObjects),
              [s] { return s->packedInverses.values(); }}}};
}

template <class T, std::size_t n>
Comparison compareSingleDeterminant() {
    const auto s = std::make_shared<Matrices<T, Layout::Standard, n>>(singles);
    const auto objects = [s](std::size_t, std::size_t k) {
        return std::tuple_cat(s->source.constObject(k), std::tuple(s->determinant(k)));
    };
    const auto eigenObjects = [s](std::size_t, std::size_t k) {
        return std::tuple(static_cast<const T *>(s->packed.data() + k * n * n),
                          s->eigenDeterminants.data() + k);
    };
    const std::string name = fixedName<T, Layout::Standard, n, n>("Det_m");
    return {singles,
            tolerance<T>,
            {{own, callPerObject(name, singles, objects), [s] { return s->determinants.values(); }},
             {eigen, callPerObject(&eigenDeterminant<T, n>, singles, eigenObjects),
              [s] { return s->eigenDeterminants.values(); }}}};
}

template <class T, std::size_t n, Layout layout>
void addArrayRows(std::size_t count) {
    addRow(fixedName<T, layout, n, n>("Det_ma") + "/" + std::to_string(count),
           [count] { return compareDeterminants<T, layout, n>(count); });
    addRow(fixedName<T, layout, n, n>("Invert_ma") + "/" + std::to_string(count),
           [count] { return compareInverses<T, layout, n>(count); });
}

template <class T, std::size_t n>
void addRowsOfOrder() {
    addArrayRows<T, n, Layout::Standard>(1000);
    addArrayRows<T, n, Layout::Standard>(manyObjects<T>(n * n));
    addArrayRows<T, n, Layout::P>(1000);
    addRow(fixedName<T, Layout::Standard, n, n>("Det_m") + "/single",
           [] { return compareSingleDeterminant<T, n>(); });
    addRow(fixedName<T, Layout::Standard, n, n>("Invert_m") + "/single",
           [] { return compareSingleInverse<T, n>(); });
}

template <class T>
void addRowsOfType() {
    addRowsOfOrder<T, 3>();
    addRowsOfOrder<T, 4>();
    addRowsOfOrder<T, 5>();
    addRowsOfOrder<T, 6>();
    addArrayRows<T, 4, Layout::S2>(1000);
    addArrayRows<T, 4, Layout::PS2>(1000);
    addArrayRows<T, 4, Layout::L>(1000);
    addArrayRows<T, 4, Layout::LS2>(1000);
}

} // namespace

void addInverseRows() {
    addRowsOfType<float>();
    addRowsOfType<double>();
}

} // namespace zelmbench
