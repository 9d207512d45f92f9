// Sums, differences and scalings: loops over the elements of one object.
#pragma once

#include "register.h"

#include <type_traits>

namespace zelmbench {

// What an operation makes of two elements; of one and a constant where there is no second operand.
struct Sum {
    static constexpr const char *name = "Add";
    template <class T>
    static T of(T a, T b, const Extras<T> &) {
        return a + b;
    }
    template <class T>
    static T of(T a, const Extras<T> &extras) {
        return a + extras.scale1;
    }
};

struct Difference {
    static constexpr const char *name = "Sub";
    template <class T>
    static T of(T a, T b, const Extras<T> &) {
        return a - b;
    }
    template <class T>
    static T of(T a, const Extras<T> &extras) {
        return a - extras.scale1;
    }
};

struct FromConstant {
    static constexpr const char *name = "Sub";
    template <class T>
    static T of(T a, const Extras<T> &extras) {
        return extras.scale1 - a;
    }
};

struct Scaling {
    static constexpr const char *name = "Mul";
    template <class T>
    static T of(T a, const Extras<T> &extras) {
        return a * extras.scale1;
    }
};

struct Saxpy {
    static constexpr const char *name = "Saxpy";
    template <class T>
    static T of(T a, T b, const Extras<T> &extras) {
        return a * extras.scale1 + b;
    }
};

struct Combination {
    static constexpr const char *name = "LComb";
    template <class T>
    static T of(T a, T b, const Extras<T> &extras) {
        return a * extras.scale1 + b * extras.scale2;
    }
};

template <class Operation, bool isMatrix>
struct Elements : KernelTraits {
    static constexpr const char *operation = Operation::name;
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, OperandFormAt<descriptor, 0>::shape>;

    template <class T>
    static void object(auto n, const auto &a, const auto &b, int, auto d, const Extras<T> &extras) {
        const auto element = [&](auto... at) {
            if constexpr (std::is_same_v<decltype(b), const int &>) {
                return Operation::template of<T>(a(at...), extras);
            } else {
                return Operation::template of<T>(a(at...), b(at...), extras);
            }
        };
        if constexpr (isMatrix) {
            each(n, [&](std::size_t i) { each(n, [&](std::size_t j) { d(i, j) = element(i, j); }); });
        } else {
            each(n, [&](std::size_t j) { d(j) = element(j); });
        }
    }
};

template <class Operation, bool isMatrix, Text... descriptors>
void addElementLoops(std::vector<Peer> &peers) {
    addAllLoops<Elements<Operation, isMatrix>, descriptors...>(peers);
}

} // namespace zelmbench
