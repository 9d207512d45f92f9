// One way of calling the steps: a layout, and run-time or fixed sizes. It keeps operands of its own, by name.
#pragma once

#include "placed.h"
#include "steps.h"

#include <cstring>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace chain {

template <class T>
constexpr const char *typeName = sizeof(T) == 4 ? "32f" : "64f";

inline const zelmtest::Function *find(const std::string &name) {
    static const auto byName = [] {
        std::map<std::string, const zelmtest::Function *> map;
        for (std::size_t i = 0; i < zelmtest::functionCount; ++i)
            map[zelmtest::functions[i].name] = &zelmtest::functions[i];
        return map;
    }();
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : found->second;
}

struct Sizes {
    std::uint32_t h, w, count;

    std::uint32_t of(char symbol) const {
        return symbol == 'h' ? h : symbol == 'w' ? w : static_cast<std::uint32_t>(symbol - '0');
    }
    std::uint32_t rows(std::string_view operand) const { return of(operands.at(operand).rows); }
    std::uint32_t columns(std::string_view operand) const { return of(operands.at(operand).columns); }
};

template <class T>
class Variant {
public:
    Variant(std::string_view layout, bool isFixed) : layout_(layout), isFixed_(isFixed) {}

    const std::string &layout() const { return layout_; }
    bool isFixed() const { return isFixed_; }

    // Puts all operands anew. All rows have an odd number of elements and the same strides: some 64f members
    // take other elements where rows are aligned, or where the strides of their sources differ.
    void begin(Sizes sizes, std::uint32_t distance, std::uint32_t free, zelmtest::Side side) {
        sizes_ = sizes;
        placed_.clear();
        for (const auto &[name, dimensions] : operands) {
            const bool packed = isResult(name);
            const std::uint32_t columns = sizes.columns(name), behind = 2 * free + (columns % 2 == 0 ? 1 : 0);
            placed_.emplace(
                name, zelmtest::Placed<T>(memories_[name], packed ? "" : layout_,
                                          {sizes.rows(name), columns, name == "M0" ? 1 : sizes.count},
                                          packed ? zelmtest::Spacing{} : zelmtest::Spacing{distance, behind},
                                          side));
        }
        pivots_.assign(std::size_t{sizes.count} * sizes.h, ~0u);
        scratch_.assign(std::size_t{sizes.h} * sizes.h + sizes.h + 1, 0);
    }

    const zelmtest::Placed<T> &operator[](std::string_view name) const { return placed_.at(name); }
    const std::vector<std::uint32_t> &pivots() const { return pivots_; }

    // With a regular table in P and PS2, Transpose serves square matrices only, as it numbers the tables by
    // the other operand's rows, and the product of M and M^T needs w * w entries of its h * h results.
    bool canRun(const Step &step) const {
        return letter(layout_) != 'P' ||
               (step.operation == std::string_view("Transpose") ? sizes_.h == sizes_.w
                                                                : step.result != "G" || sizes_.w <= sizes_.h);
    }

    void run(const Step &step, const std::map<std::string_view, double> &constants) {
        const zelmtest::Function &function = functionOf(step);
        expectOk(zelmtest::callWith(
                     function,
                     [&](const zelmtest::Argument &argument) {
                         using zelmtest::ArgumentKind;
                         zelmtest::Value value{};
                         switch (argument.kind) {
                         case ArgumentKind::Constant:
                             if (sizeof(T) == 4)
                                 value.f32 = static_cast<float>(constants.at(argument.name));
                             else
                                 value.f64 = constants.at(argument.name);
                             return value;
                         case ArgumentKind::PivotIndex:
                             value.pointer = pivots_.data();
                             return value;
                         case ArgumentKind::Scratch:
                             value.pointer = scratch_.data();
                             return value;
                         case ArgumentKind::Count:
                             value.size = sizes_.count;
                             return value;
                         case ArgumentKind::Dimension:
                             value.size = dimension(step, argument.name);
                             return value;
                         default:
                             return placed_.at(operand(step, argument.operand)).value(argument.kind);
                         }
                     }),
                 function.name);
    }

    // The operand as Extract packs it.
    std::vector<T> packed(std::string_view name) const {
        std::vector<T> elements(std::size_t{sizes_.rows(name)} * sizes_.columns(name) * count(name));
        if (isResult(name)) {
            std::memcpy(elements.data(), &placed_.at(name).at(0, 0, 0), elements.size() * sizeof(T));
            return elements;
        }
        const std::string strided = letter(layout_) == 'S' ? "S2" : letter(layout_) == 'P' ? "PS2" : "LS2";
        move(std::string("zelmExtract_") + (isVector(name) ? "va_" : "ma_") + typeName<T> + "_" + strided,
             name, *this, elements.data(), count(name));
        return elements;
    }

    // Takes an operand over from another variant with Copy: a row where the other has one, too. Two tables of
    // positions go as matrices, since the vectors' PP reads no source.
    void take(std::string_view name, const Variant &from, std::string_view fromName, std::uint32_t objects) {
        if (isResult(name)) {
            for (std::uint32_t k = 0; k < objects; ++k)
                placed_.at(name).at(k, 0, 0) = from[fromName].at(k, 0, 0);
            return;
        }
        const std::string pair = {letter(from.layout_), letter(layout_)};
        const bool asVectors = isVector(name) && pair != "PP";
        move(std::string("zelmCopy_") + (asVectors ? "va_" : "ma_") + typeName<T> + "_" + pair, fromName,
             from, nullptr, objects, &placed_.at(name));
    }
    void take(std::string_view name, const Variant &from) { take(name, from, name, count(name)); }

    // One call for each object: the diagonal of LoadIdentity runs on from object to object.
    void loadIdentities() {
        using zelmtest::ArgumentKind;
        const zelmtest::Placed<T> &identities = placed_.at("I");
        const std::int32_t stride = identities.value(ArgumentKind::ObjStride).word;
        const std::string name = std::string("zelmLoadIdentity_ma_") + typeName<T> + "_" + letter(layout_);
        const zelmtest::Function *function = find(name);
        for (std::uint32_t k = 0; k < sizes_.count; ++k)
            expectOk(zelmtest::callWith(
                         *function,
                         [&](const zelmtest::Argument &argument) {
                             zelmtest::Value value = identities.value(argument.kind);
                             const auto step = static_cast<std::int32_t>(k) * stride;
                             if (argument.kind == ArgumentKind::Pointer)
                                 value.pointer = static_cast<char *>(value.pointer) + step;
                             else if (argument.kind == ArgumentKind::Table && letter(layout_) == 'L')
                                 value.pointer = static_cast<void **>(value.pointer) + k;
                             else if (argument.kind == ArgumentKind::Shift && letter(layout_) == 'P')
                                 value.word += step;
                             else if (argument.kind == ArgumentKind::Count)
                                 value.size = 1;
                             else if (argument.kind == ArgumentKind::Dimension)
                                 value.size = sizes_.h;
                             return value;
                         }),
                     name);
    }

private:
    static bool isResult(std::string_view name) {
        const Dimensions d = operands.at(name);
        return d.rows == '1' && d.columns == '1';
    }
    static bool isVector(std::string_view name) { return operands.at(name).rows == '1'; }
    static char letter(const std::string &layout) { return layout.empty() ? 'S' : layout[0]; }
    std::uint32_t count(std::string_view name) const { return name == "M0" ? 1 : sizes_.count; }

    static void expectOk(ZelmStatus status, const std::string &name) {
        if (status != ZELM_OK)
            throw std::runtime_error(name + " gives the status " + std::to_string(status));
    }

    const zelmtest::Function &functionOf(const Step &step) const {
        const std::string row =
            std::string("zelm") + step.operation + "_" + step.descriptor + "_" + typeName<T>;
        const std::string layout = layout_.empty() ? "" : "_" + layout_;
        const std::uint32_t n = sizes_.columns(step.sources[0]);
        const std::string order = std::to_string(n);
        const zelmtest::Function *function = nullptr;
        if (isFixed_ || row.find("CrossProduct") != std::string::npos) {
            function = find(row + "_" + order + "x" + order + layout);
            if (!function)
                function = find(row + "_" + order + "x1" + layout);
        } else {
            function = find(row + layout);
        }
        if (!function)
            throw std::runtime_error("no member of " + row + " of order " + order + " and layout " + layout_);
        return *function;
    }

    std::string_view operand(const Step &step, std::string_view name) const {
        if (name == "dst")
            return step.result;
        return step.sources[name == "src2" ? 1 : name == "src3" ? 2 : 0];
    }

    // A dimension belongs to the source in its name, or to the first.
    std::uint32_t dimension(const Step &step, std::string_view name) const {
        const std::string_view of = step.sources[name.starts_with("src2") ? 1 : 0];
        return name.ends_with("eight") || name == "n" ? sizes_.rows(of) : sizes_.columns(of);
    }

    void move(const std::string &name, std::string_view source, const Variant &from, T *packed,
              std::uint32_t objects, const zelmtest::Placed<T> *dst = nullptr) const {
        const zelmtest::Function *function = find(name);
        if (!function)
            throw std::runtime_error("no " + name);
        expectOk(zelmtest::callWith(*function,
                                    [&](const zelmtest::Argument &argument) {
                                        zelmtest::Value value{};
                                        const std::string_view its = argument.name;
                                        if (its == "dst" && packed)
                                            value.pointer = packed;
                                        else if (its.starts_with("dst"))
                                            value = dst->value(argument.kind);
                                        else if (its.starts_with("src"))
                                            value = from[source].value(argument.kind);
                                        else
                                            value.size = its == "count"    ? objects
                                                         : its == "height" ? sizes_.rows(source)
                                                                           : sizes_.columns(source);
                                        return value;
                                    }),
                 name);
    }

    std::string layout_;
    bool isFixed_;
    Sizes sizes_{};
    std::map<std::string_view, zelmtest::OperandMemory> memories_;
    std::map<std::string_view, zelmtest::Placed<T>> placed_;
    std::vector<std::uint32_t> pivots_;
    std::vector<double> scratch_;
};

} // namespace chain
