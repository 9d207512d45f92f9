// Operands in the six memory layouts, and the arguments that describe them to the library.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace zelmbench {

enum class Layout { Standard, S2, P, PS2, L, LS2 };

constexpr const char *suffixOf(Layout layout) {
    switch (layout) {
    case Layout::S2:
        return "_S2";
    case Layout::P:
        return "_P";
    case Layout::PS2:
        return "_PS2";
    case Layout::L:
        return "_L";
    case Layout::LS2:
        return "_LS2";
    default:
        return "";
    }
}

template <class T>
constexpr const char *typeName = std::is_same_v<T, float> ? "32f" : "64f";

// Memory for one operand. Successive buffers begin at different distances from a page's start: operands that
// all begin at the same one would slow each other down on processors that compare only the low bits of
// addresses.
template <class T>
class Buffer {
public:
    explicit Buffer(std::size_t size) : bytes_(new std::byte[size * sizeof(T) + 2 * page]) {
        static std::size_t made = 0;
        const auto address = reinterpret_cast<std::uintptr_t>(bytes_.get());
        const std::uintptr_t start = (address + page - 1) / page * page + made++ * 1088 % page;
        data_ = reinterpret_cast<T *>(start);
    }
    T *data() { return data_; }

private:
    static constexpr std::size_t page = 4096;
    std::unique_ptr<std::byte[]> bytes_;
    T *data_;
};

// `count` matrices of rows x columns in one layout; vectors if rows is 1. The strided layouts leave a gap of
// one element behind each element, and the lists hold their objects in random order.
template <class T, Layout layout, std::size_t rows, std::size_t columns>
class Objects {
public:
    static constexpr std::size_t elements = rows * columns;

    // The first object begins `shift` elements behind a multiple of 64 bytes.
    explicit Objects(std::size_t count, std::size_t shift = 0)
        : count_(count), shift_(shift), buffer_(shift + count * elements * spread) {
        if constexpr (planes) {
            for (std::size_t e = 0; e < elements; ++e) {
                table_.push_back(data() + e * count * spread);
            }
        } else if constexpr (list) {
            for (std::size_t k = 0; k < count; ++k) {
                table_.push_back(data() + k * elements * spread);
            }
            std::shuffle(table_.begin(), table_.end(), std::minstd_rand(1));
        }
    }

    std::size_t count() const { return count_; }
    T *data() { return buffer_.data() + shift_; }

    T &at(std::size_t k, std::size_t i, std::size_t j) {
        const std::size_t e = i * columns + j;
        if constexpr (planes) {
            return table_[e][k * spread];
        } else if constexpr (list) {
            return table_[k][e * spread];
        } else {
            return data()[(k * elements + e) * spread];
        }
    }

    // Gives object k the values of object k modulo their number in `values`, which holds whole objects.
    void fill(const std::vector<double> &values) {
        for (std::size_t k = 0; k < count_; ++k) {
            const double *object = values.data() + k * elements % values.size();
            for (std::size_t e = 0; e < elements; ++e) {
                at(k, e / columns, e % columns) = static_cast<T>(object[e]);
            }
        }
    }

    // The elements of the first thousand objects.
    std::vector<double> values() {
        std::vector<double> values;
        for (std::size_t k = 0; k < std::min<std::size_t>(count_, 1000); ++k) {
            for (std::size_t e = 0; e < elements; ++e) {
                values.push_back(static_cast<double>(at(k, e / columns, e % columns)));
            }
        }
        return values;
    }

    // Arguments of an array operand that begins with object k.
    auto array(std::size_t k = 0) { return arrayArguments<T>(k); }
    auto constArray(std::size_t k = 0) { return arrayArguments<const T>(k); }

    // Arguments of a single object, in the layouts that have single-object functions.
    auto object(std::size_t k) { return objectArguments<T>(k); }
    auto constObject(std::size_t k) { return objectArguments<const T>(k); }

    // Arguments of the first object as an operand that is the same for all objects of the call.
    auto invariant() {
        if constexpr (planes) {
            return objectArguments<const T>(0);
        } else {
            return std::tuple_cat(std::tuple(static_cast<const T *>(&at(0, 0, 0))), inside);
        }
    }

    static constexpr std::int32_t objectStride = static_cast<std::int32_t>(sizeof(T) * elements);

private:
    static constexpr bool planes = layout == Layout::P || layout == Layout::PS2;
    static constexpr bool list = layout == Layout::L || layout == Layout::LS2;
    static constexpr bool strided = layout == Layout::S2 || layout == Layout::PS2 || layout == Layout::LS2;
    static constexpr std::size_t spread = strided ? 2 : 1;

    static constexpr std::int32_t bytesOf(std::size_t elementCount) {
        return static_cast<std::int32_t>(elementCount * spread * sizeof(T));
    }
    static constexpr auto rowStride() {
        if constexpr (rows > 1) {
            return std::tuple(bytesOf(columns));
        } else {
            return std::tuple();
        }
    }
    static constexpr auto elementStride() {
        if constexpr (strided) {
            return std::tuple(bytesOf(1));
        } else {
            return std::tuple();
        }
    }
    // The strides inside an object, in the layouts whose objects are not spread over planes.
    static constexpr auto inside = std::tuple_cat(rowStride(), elementStride());

    template <class Element>
    auto arrayArguments(std::size_t k) {
        if constexpr (layout == Layout::P) {
            return std::tuple(tableFrom<Element>(0), bytesOf(k));
        } else if constexpr (layout == Layout::PS2) {
            return std::tuple(tableFrom<Element>(0), bytesOf(k), bytesOf(1));
        } else if constexpr (list) {
            return std::tuple_cat(std::tuple(tableFrom<Element>(k), std::int32_t{0}), inside);
        } else {
            return std::tuple_cat(std::tuple(static_cast<Element *>(&at(k, 0, 0)), bytesOf(elements)),
                                  inside);
        }
    }
    template <class Element>
    auto objectArguments(std::size_t k) {
        if constexpr (planes) {
            return std::tuple(tableFrom<Element>(0), bytesOf(k));
        } else {
            return std::tuple_cat(std::tuple(static_cast<Element *>(&at(k, 0, 0))), inside);
        }
    }
    template <class Element>
    Element *const *tableFrom(std::size_t k) {
        return table_.data() + k;
    }

    std::size_t count_, shift_;
    Buffer<T> buffer_;
    std::vector<T *> table_;
};

// Uniform numbers between -1 and 1, for some thousands of objects of `elements` elements.
std::vector<double> randomValues(std::size_t elements, unsigned seed);

// Some thousands of square matrices of order n that no solver has trouble with, and whose pivots are chosen
// in all orders.
const std::vector<double> &wellConditionedMatrices(std::size_t n);

} // namespace zelmbench
