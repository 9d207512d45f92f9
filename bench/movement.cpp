// Copies between layouts and extraction beside memcpy of as many bytes, and transposes.
#include "calls.h"
#include "families.h"
#include "measure.h"
#include "objects.h"

#include <Eigen/Core>

#include <cstring>
#include <memory>

namespace zelmbench {
namespace {

// The layouts of Copy and Extract take all strides; the operands are dense all the same.
constexpr char letterOf(Layout layout) {
    return layout == Layout::P ? 'P' : layout == Layout::L ? 'L' : 'S';
}

// P lacks the object stride, the others the element stride; both are the size of an element.
template <class T, class Arguments>
auto withLastStride(Arguments arguments) {
    return std::tuple_cat(arguments, std::tuple(static_cast<std::int32_t>(sizeof(T))));
}

template <std::size_t rows, std::size_t columns>
auto dimensions(std::size_t count) {
    const auto width = static_cast<std::uint32_t>(columns), height = static_cast<std::uint32_t>(rows);
    if constexpr (rows == 1) {
        return std::tuple_cat(std::tuple(width), countArgument(count));
    } else {
        return std::tuple_cat(std::tuple(width, height), countArgument(count));
    }
}

template <class T, Layout from, Layout to, std::size_t rows, std::size_t columns>
struct Operands {
    explicit Operands(std::size_t count) : src(count), dst(count), copied(count) {
        src.fill(randomValues(rows * columns, 1));
    }
    Objects<T, from, rows, columns> src;
    Objects<T, to, rows, columns> dst;
    Objects<T, from, rows, columns> copied; // the peer's

    void copyBytes() { std::memcpy(copied.data(), src.data(), src.count() * rows * columns * sizeof(T)); }
};

template <class T, Layout from, Layout to, std::size_t rows, std::size_t columns>
void runLoop(Operands<T, from, to, rows, columns> &o) {
    for (std::size_t k = 0; k < o.src.count(); ++k) {
        for (std::size_t i = 0; i < rows; ++i) {
            for (std::size_t j = 0; j < columns; ++j) {
                o.dst.at(k, i, j) = o.src.at(k, i, j);
            }
        }
    }
}

template <std::size_t rows>
constexpr const char *descriptor = rows == 1 ? "va" : "ma";

template <class T, Layout from, Layout to, std::size_t rows, std::size_t columns, class Arguments>
Comparison compareMoves(const std::string &name, std::size_t count, Arguments argumentsOf) {
    const auto o = std::make_shared<Operands<T, from, to, rows, columns>>(count);
    const auto arguments = [o, count, argumentsOf](std::size_t) {
        return std::tuple_cat(argumentsOf(*o), dimensions<rows, columns>(count));
    };
    const auto results = [o] { return o->dst.values(); };
    Comparison comparison{count, 0, {{own, callOf(name, arguments), results}}};
    // A long list in random order is no stream of bytes.
    if ((from == Layout::L || to == Layout::L) && count > mostOneByOne) {
        comparison.contenders.push_back({loop, [o](std::size_t) { runLoop(*o); }, results});
    } else {
        comparison.contenders.push_back(
            {plainCopy, [o](std::size_t) { o->copyBytes(); }, [o] { return o->copied.values(); }});
    }
    return comparison;
}

template <class T, Layout from, Layout to, std::size_t rows, std::size_t columns>
void addCopyRow(std::size_t count) {
    const std::string name =
        std::string("zelmCopy_") + descriptor<rows> + "_" + typeName<T> + "_" + letterOf(from) + letterOf(to);
    addRow(name + "/" + std::to_string(count), [name, count] {
        return compareMoves<T, from, to, rows, columns>(name, count, [](auto &o) {
            return std::tuple_cat(withLastStride<T>(o.src.constArray()), withLastStride<T>(o.dst.array()));
        });
    });
}

template <class T, Layout from, std::size_t rows, std::size_t columns>
void addExtractRow(std::size_t count) {
    const std::string layout = from == Layout::Standard ? "" : std::string(1, letterOf(from));
    const std::string name =
        std::string("zelmExtract_") + descriptor<rows> + "_" + typeName<T> + "_" + layout + "S2";
    addRow(name + "/" + std::to_string(count), [name, count] {
        return compareMoves<T, from, Layout::Standard, rows, columns>(name, count, [](auto &o) {
            return std::tuple_cat(withLastStride<T>(o.src.constArray()), std::tuple(o.dst.data()));
        });
    });
}

template <class T, std::size_t rows, std::size_t columns>
void addMoveRows() {
    for (const std::size_t count : {std::size_t{1000}, manyObjects<T>(rows * columns)}) {
        addCopyRow<T, Layout::Standard, Layout::Standard, rows, columns>(count);
        addCopyRow<T, Layout::Standard, Layout::P, rows, columns>(count);
        addCopyRow<T, Layout::Standard, Layout::L, rows, columns>(count);
        addCopyRow<T, Layout::P, Layout::Standard, rows, columns>(count);
        if constexpr (rows > 1) { // that of vectors reads no source
            addCopyRow<T, Layout::P, Layout::P, rows, columns>(count);
        }
        addCopyRow<T, Layout::P, Layout::L, rows, columns>(count);
        addCopyRow<T, Layout::L, Layout::Standard, rows, columns>(count);
        addCopyRow<T, Layout::L, Layout::P, rows, columns>(count);
        addCopyRow<T, Layout::L, Layout::L, rows, columns>(count);
        addExtractRow<T, Layout::Standard, rows, columns>(count);
        addExtractRow<T, Layout::P, rows, columns>(count);
        addExtractRow<T, Layout::L, rows, columns>(count);
    }
}

template <class T, std::size_t n>
using Square = Eigen::Matrix<T, static_cast<int>(n), static_cast<int>(n), Eigen::RowMajor>;

template <class T, std::size_t n>
Comparison compareTransposes(const std::string &name, std::size_t count) {
    struct Matrices {
        explicit Matrices(std::size_t objects) : src(objects), dst(objects) {
            src.fill(randomValues(n * n, 1));
        }
        Objects<T, Layout::Standard, n, n> src, dst;
    };
    const auto o = std::make_shared<Matrices>(count);
    const auto results = [o] { return o->dst.values(); };
    const auto arguments = [o, count](std::size_t) {
        return std::tuple_cat(o->src.constArray(), o->dst.array(), countArgument(count));
    };
    const auto byEigen = [o, count](std::size_t) {
        for (std::size_t k = 0; k < count; ++k) {
            const Eigen::Map<const Square<T, n>> from(o->src.data() + k * n * n);
            Eigen::Map<Square<T, n>>(o->dst.data() + k * n * n) = from.transpose();
        }
    };
    return {count, 0, {{own, callOf(name, arguments), results}, {eigen, byEigen, results}}};
}

template <class T, std::size_t n>
void addTransposeRows() {
    const std::string size = std::to_string(n),
                      name = std::string("zelmTranspose_ma_") + typeName<T> + "_" + size + "x" + size;
    for (const std::size_t count : {std::size_t{1000}, manyObjects<T>(n * n)}) {
        addRow(name + "/" + std::to_string(count), [=] { return compareTransposes<T, n>(name, count); });
    }
}

template <class T>
void addRowsOfType() {
    addMoveRows<T, 1, 3>();
    addMoveRows<T, 4, 4>();
    addTransposeRows<T, 4>();
}

} // namespace

void addMovementRows() {
    addRowsOfType<float>();
    addRowsOfType<double>();
}

} // namespace zelmbench
