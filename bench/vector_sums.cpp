// Add and Sub of vectors: arrays in three layouts, single vectors of fixed and of run-time length.
#include "calls.h"
#include "families.h"
#include "measure.h"
#include "objects.h"

#include <Eigen/Core>

#include <functional>
#include <memory>

namespace zelmbench {
namespace {

enum class Operands { vava, vav, vva, vac, cva };

constexpr const char *descriptorOf(Operands operands) {
    switch (operands) {
    case Operands::vava:
        return "vava";
    case Operands::vav:
        return "vav";
    case Operands::vva:
        return "vva";
    case Operands::vac:
        return "vac";
    default:
        return "cva";
    }
}

// The same operation on one object.
constexpr const char *singleDescriptorOf(Operands operands) {
    switch (operands) {
    case Operands::vac:
        return "vc";
    case Operands::cva:
        return "cv";
    default:
        return "vv";
    }
}

template <class Operation>
constexpr const char *operationName = std::is_same_v<Operation, std::plus<>> ? "zelmAdd_" : "zelmSub_";

template <class T, Layout layout, std::size_t n>
struct Vectors {
    explicit Vectors(std::size_t count) : src1(count), src2(count), dst(count) {
        src1.fill(randomValues(n, 1));
        src2.fill(randomValues(n, 2));
    }
    Objects<T, layout, 1, n> src1, src2, dst;
    const T val = static_cast<T>(0.3);
};

template <class T>
using FlatArray = Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>;
template <class T, std::size_t n>
using SmallArray = Eigen::Array<T, static_cast<int>(n), 1>;
template <class T, std::size_t n>
using SmallMap = Eigen::Map<SmallArray<T, n>>;

// One expression over all elements of the arrays.
template <class Operation, Operands operands, class T, std::size_t n>
void runEigenWhole(Vectors<T, Layout::Standard, n> &v) {
    const Operation operation;
    const auto count = static_cast<Eigen::Index>(v.dst.count());
    if constexpr (operands == Operands::vav || operands == Operands::vva) {
        using Columns = Eigen::Map<Eigen::Array<T, static_cast<int>(n), Eigen::Dynamic>>;
        constexpr bool firstIsHeld = operands == Operands::vva;
        const SmallArray<T, n> held = SmallMap<T, n>(firstIsHeld ? v.src1.data() : v.src2.data());
        const Columns source(firstIsHeld ? v.src2.data() : v.src1.data(), n, count);
        Columns result(v.dst.data(), n, count);
        if constexpr (firstIsHeld) {
            result = operation(held.replicate(1, count), source);
        } else {
            result = operation(source, held.replicate(1, count));
        }
    } else {
        const auto size = count * static_cast<Eigen::Index>(n);
        const FlatArray<T> src1(v.src1.data(), size);
        const FlatArray<T> src2(v.src2.data(), size);
        FlatArray<T> result(v.dst.data(), size);
        if constexpr (operands == Operands::vava) {
            result = operation(src1, src2);
        } else if constexpr (operands == Operands::vac) {
            result = operation(src1, v.val);
        } else {
            result = operation(v.val, src1);
        }
    }
}

// An expression of fixed size per object, which some compilers make more of.
template <class Operation, Operands operands, class T, std::size_t n>
void runEigenEach(Vectors<T, Layout::Standard, n> &v) {
    const Operation operation;
    const T *const src1 = v.src1.data();
    const T *const src2 = v.src2.data();
    T *const dst = v.dst.data();
    using Source = Eigen::Map<const SmallArray<T, n>>;
    const SmallArray<T, n> held = Source(operands == Operands::vva ? src1 : src2);
    for (std::size_t e = 0; e < v.dst.count() * n; e += n) {
        SmallMap<T, n> result(dst + e);
        if constexpr (operands == Operands::vava) {
            result = operation(Source(src1 + e), Source(src2 + e));
        } else if constexpr (operands == Operands::vav) {
            result = operation(Source(src1 + e), held);
        } else if constexpr (operands == Operands::vva) {
            result = operation(held, Source(src2 + e));
        } else if constexpr (operands == Operands::vac) {
            result = operation(Source(src1 + e), v.val);
        } else {
            result = operation(v.val, Source(src1 + e));
        }
    }
}

template <class Operation, Operands operands, class T, Layout layout, std::size_t n>
void runLoop(Vectors<T, layout, n> &v) {
    const Operation operation;
    const std::size_t count = v.dst.count();
    const auto element = [&](std::size_t k, std::size_t j) {
        const T first = v.src1.at(operands == Operands::vva ? 0 : k, 0, j);
        if constexpr (operands == Operands::vac) {
            v.dst.at(k, 0, j) = operation(first, v.val);
        } else if constexpr (operands == Operands::cva) {
            v.dst.at(k, 0, j) = operation(v.val, first);
        } else {
            v.dst.at(k, 0, j) = operation(first, v.src2.at(operands == Operands::vav ? 0 : k, 0, j));
        }
    };
    if constexpr (layout == Layout::P || layout == Layout::PS2) {
        for (std::size_t j = 0; j < n; ++j) {
            for (std::size_t k = 0; k < count; ++k) {
                element(k, j);
            }
        }
    } else {
        for (std::size_t k = 0; k < count; ++k) {
            for (std::size_t j = 0; j < n; ++j) {
                element(k, j);
            }
        }
    }
}

template <class Operation, Operands operands, class T, Layout layout, std::size_t n>
Comparison compareArrays(const std::string &name, std::size_t count) {
    const auto v = std::make_shared<Vectors<T, layout, n>>(count);
    const auto arrays = [v](std::size_t k, std::size_t objects) {
        if constexpr (operands == Operands::vava) {
            return std::tuple_cat(v->src1.constArray(k), v->src2.constArray(k), v->dst.array(k),
                                  countArgument(objects));
        } else if constexpr (operands == Operands::vav) {
            return std::tuple_cat(v->src1.constArray(k), v->src2.invariant(), v->dst.array(k),
                                  countArgument(objects));
        } else if constexpr (operands == Operands::vva) {
            return std::tuple_cat(v->src1.invariant(), v->src2.constArray(k), v->dst.array(k),
                                  countArgument(objects));
        } else {
            return std::tuple_cat(v->src1.constArray(k), std::tuple(v->val), v->dst.array(k),
                                  countArgument(objects));
        }
    };
    const auto results = [v] { return v->dst.values(); };
    Comparison comparison{
        count, 1e-6, {{own, callOf(name, [=](std::size_t) { return arrays(0, count); }), results}}};
    if constexpr (layout == Layout::Standard) {
        comparison.contenders.push_back(
            {eigen, [v](std::size_t) { runEigenWhole<Operation, operands>(*v); }, results});
        comparison.contenders.push_back(
            {eigen, [v](std::size_t) { runEigenEach<Operation, operands>(*v); }, results});
    } else {
        comparison.contenders.push_back(
            {loop, [v](std::size_t) { runLoop<Operation, operands>(*v); }, results});
    }
    if (count > mostOneByOne) {
        return comparison;
    }
    if constexpr (layout == Layout::Standard || layout == Layout::S2 || layout == Layout::P) {
        const std::string single = std::string(operationName<Operation>) + singleDescriptorOf(operands) +
                                   "_" + typeName<T> + "_" + std::to_string(n) + "x1" + suffixOf(layout);
        const auto objects = [v](std::size_t, std::size_t k) {
            if constexpr (operands == Operands::vac || operands == Operands::cva) {
                return std::tuple_cat(v->src1.constObject(k), std::tuple(v->val), v->dst.object(k));
            } else {
                return std::tuple_cat(v->src1.constObject(operands == Operands::vva ? 0 : k),
                                      v->src2.constObject(operands == Operands::vav ? 0 : k),
                                      v->dst.object(k));
            }
        };
        comparison.contenders.push_back({one, callPerObject(single, count, objects), results});
    } else {
        const auto oneByOne = [arrays](std::size_t, std::size_t k) { return arrays(k, 1); };
        comparison.contenders.push_back({one, callPerObject(name, count, oneByOne), results});
    }
    return comparison;
}

template <class T, class Operation, std::size_t n>
__attribute__((noinline)) ZelmStatus eigenSingle(const T *src1, const T *src2, T *dst) {
    using Source = Eigen::Map<const SmallArray<T, n>>;
    SmallMap<T, n> result(dst);
    result = Operation()(Source(src1), Source(src2));
    return ZELM_OK;
}

template <class Operation, class T, std::size_t n>
Comparison compareSingle(const std::string &name) {
    const auto v = std::make_shared<Vectors<T, Layout::Standard, n>>(singles);
    const auto objects = [v](std::size_t, std::size_t k) {
        return std::tuple_cat(v->src1.constObject(k), v->src2.constObject(k), v->dst.object(k));
    };
    const auto results = [v] { return v->dst.values(); };
    return {singles,
            1e-6,
            {{own, callPerObject(name, singles, objects), results},
             {eigen, callPerObject(&eigenSingle<T, Operation, n>, singles, objects), results}}};
}

template <class T, class Operation>
__attribute__((noinline)) ZelmStatus eigenLength(const T *src1, const T *src2, T *dst, std::uint32_t len) {
    using Source = Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, 1>>;
    const auto size = static_cast<Eigen::Index>(len);
    FlatArray<T> result(dst, size);
    result = Operation()(Source(src1, size), Source(src2, size));
    return ZELM_OK;
}

// Vectors of run-time length: `len` objects of one element hold the elements of one vector.
template <class Operation, class T>
Comparison compareLength(const std::string &name, std::size_t len) {
    const auto v = std::make_shared<Vectors<T, Layout::Standard, 1>>(len);
    const auto results = [v] { return v->dst.values(); };
    const std::size_t calls = len < 1000 ? singles : 1;
    const auto sameVectors = [v, len](std::size_t, std::size_t) {
        return std::tuple_cat(v->src1.constObject(0), v->src2.constObject(0), v->dst.object(0),
                              countArgument(len));
    };
    return {calls,
            1e-6,
            {{own, callPerObject(name, calls, sameVectors), results},
             {eigen, callPerObject(&eigenLength<T, Operation>, calls, sameVectors), results}}};
}

template <class Operation, Operands operands, class T, std::size_t n, Layout layout = Layout::Standard>
void addArrayRow(std::size_t count) {
    const std::string name = std::string(operationName<Operation>) + descriptorOf(operands) + "_" +
                             typeName<T> + "_" + std::to_string(n) + "x1" + suffixOf(layout);
    addRow(name + "/" + std::to_string(count),
           [=] { return compareArrays<Operation, operands, T, layout, n>(name, count); });
}

template <class Operation, Operands operands, class T>
void addArrayRows() {
    for (const std::size_t count : {std::size_t{1000}, std::size_t{1000000}}) {
        addArrayRow<Operation, operands, T, 3>(count);
        addArrayRow<Operation, operands, T, 4>(count);
        addArrayRow<Operation, operands, T, 6>(count);
    }
}

template <class Operation, Operands operands, class T, Layout layout>
void addLayoutRows() {
    addArrayRow<Operation, operands, T, 3, layout>(1000);
    addArrayRow<Operation, operands, T, 4, layout>(1000);
}

template <class Operation, class T, std::size_t n>
void addSingleRow() {
    const std::string name =
        std::string(operationName<Operation>) + "vv_" + typeName<T> + "_" + std::to_string(n) + "x1";
    addRow(name + "/single", [=] { return compareSingle<Operation, T, n>(name); });
}

template <class Operation, class T>
void addLengthRow(std::size_t len) {
    const std::string name = std::string(operationName<Operation>) + "vv_" + typeName<T>;
    addRow(name + "/length" + std::to_string(len), [=] { return compareLength<Operation, T>(name, len); });
}

template <class T>
void addRowsOfType() {
    using Add = std::plus<>;
    using Sub = std::minus<>;
    addArrayRows<Add, Operands::vava, T>();
    addArrayRows<Add, Operands::vav, T>();
    addArrayRows<Add, Operands::vac, T>();
    addArrayRows<Sub, Operands::vava, T>();
    addArrayRows<Sub, Operands::vva, T>();
    addArrayRows<Sub, Operands::cva, T>();
    addLayoutRows<Add, Operands::vava, T, Layout::S2>();
    addLayoutRows<Add, Operands::vava, T, Layout::P>();
    addLayoutRows<Add, Operands::vava, T, Layout::PS2>();
    addLayoutRows<Add, Operands::vava, T, Layout::L>();
    addLayoutRows<Add, Operands::vava, T, Layout::LS2>();
    addLayoutRows<Sub, Operands::vva, T, Layout::P>();
    addLayoutRows<Sub, Operands::vva, T, Layout::L>();
    addSingleRow<Add, T, 3>();
    addSingleRow<Add, T, 4>();
    addSingleRow<Sub, T, 6>();
    for (const std::size_t len : {8, 64, 1024, 1000000}) {
        addLengthRow<Add, T>(len);
    }
}

} // namespace

void addVectorSumRows() {
    addRowsOfType<float>();
    addRowsOfType<double>();
}

} // namespace zelmbench
