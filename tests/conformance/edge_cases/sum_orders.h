// Orders of a sum, and numbers that tell them apart.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace edge {

// A way to add terms, named by its formula over their numbers.
template <class T>
struct Order {
    std::string_view formula;
    T (*sum)(const T *p);
};

// The orders that a fixed size of a vector could have.
template <class T>
std::vector<Order<T>> ordersOf(std::size_t size) {
    switch (size) {
    case 3:
        return {{"(0+1)+2", [](const T *p) { return (p[0] + p[1]) + p[2]; }},
                {"(0+2)+1", [](const T *p) { return (p[0] + p[2]) + p[1]; }},
                {"0+(1+2)", [](const T *p) { return p[0] + (p[1] + p[2]); }}};
    case 4:
        return {{"((0+1)+2)+3", [](const T *p) { return ((p[0] + p[1]) + p[2]) + p[3]; }},
                {"(0+1)+(2+3)", [](const T *p) { return (p[0] + p[1]) + (p[2] + p[3]); }},
                {"(0+2)+(1+3)", [](const T *p) { return (p[0] + p[2]) + (p[1] + p[3]); }},
                {"(0+3)+(1+2)", [](const T *p) { return (p[0] + p[3]) + (p[1] + p[2]); }}};
    case 5:
        return {{"(((0+1)+2)+3)+4", [](const T *p) { return (((p[0] + p[1]) + p[2]) + p[3]) + p[4]; }},
                {"((0+1)+(2+3))+4", [](const T *p) { return ((p[0] + p[1]) + (p[2] + p[3])) + p[4]; }},
                {"((0+2)+(1+3))+4", [](const T *p) { return ((p[0] + p[2]) + (p[1] + p[3])) + p[4]; }},
                {"((0+2)+4)+(1+3)", [](const T *p) { return ((p[0] + p[2]) + p[4]) + (p[1] + p[3]); }},
                {"(0+(2+4))+(1+3)", [](const T *p) { return (p[0] + (p[2] + p[4])) + (p[1] + p[3]); }}};
    case 6:
        return {
            {"((((0+1)+2)+3)+4)+5",
             [](const T *p) { return ((((p[0] + p[1]) + p[2]) + p[3]) + p[4]) + p[5]; }},
            {"((0+1)+(2+3))+(4+5)",
             [](const T *p) { return ((p[0] + p[1]) + (p[2] + p[3])) + (p[4] + p[5]); }},
            {"((0+2)+(1+3))+(4+5)",
             [](const T *p) { return ((p[0] + p[2]) + (p[1] + p[3])) + (p[4] + p[5]); }},
            {"((0+2)+4)+((1+3)+5)",
             [](const T *p) { return ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]); }},
            {"(0+(2+4))+(1+(3+5))",
             [](const T *p) { return (p[0] + (p[2] + p[4])) + (p[1] + (p[3] + p[5])); }},
        };
    default:
        throw std::invalid_argument("no orders of this size");
    }
}

template <class T>
const Order<T> &orderCalled(const std::vector<Order<T>> &orders, std::string_view formula) {
    for (const Order<T> &order : orders)
        if (order.formula == formula)
            return order;
    throw std::invalid_argument("no order " + std::string(formula));
}

// Numbers of about 1 with a full fraction, the same on every machine.
class Numbers {
public:
    template <class T>
    T next() {
        const auto fraction = static_cast<T>(random_()) * static_cast<T>(0x1p-32) +
                              static_cast<T>(random_()) * static_cast<T>(0x1p-64);
        return std::ldexp(T(1) + fraction, static_cast<int>(random_() % 4) - 2);
    }

    template <class T>
    std::vector<T> next(std::size_t count, bool bothSigns) {
        std::vector<T> numbers;
        while (numbers.size() < count)
            numbers.push_back(next<T>() * (bothSigns && random_() % 2 ? T(-1) : T(1)));
        return numbers;
    }

private:
    std::mt19937 random_{20040717};
};

constexpr int mostAttempts = 100000; // far more than any search takes

} // namespace edge
