// A kernel for one object, compiled into a loop over objects, or as a function of its own.
#pragma once

#include "access.h"
#include "descriptor.h"
#include "problem.h"

#include <string>
#include <vector>

namespace zelmbench {

// What a kernel is given besides its operands.
template <class T>
struct Extras {
    T scale1, scale2;
    std::uint32_t *pivot; // of this object
};

template <class Kernel, class OperandForms, class T, Layout layout, class N>
class Sweep {
public:
    static void run(const Problem &problem) {
        if constexpr (isPlanes(layout)) {
            sideBySide(problem);
        } else {
            inTurn(problem);
        }
    }

    // Object k alone.
    [[gnu::flatten]] static void runOne(const Problem &problem, std::size_t k) {
        const N n = order(problem);
        const Extras<T> extras{static_cast<T>(problem.scale1), static_cast<T>(problem.scale2),
                               problem.pivotIndex + k * n};
        object(n, single<typename OperandForms::Src1>(problem.src1, k, n),
               single<typename OperandForms::Src2>(problem.src2, k, n),
               single<typename OperandForms::Src3>(problem.src3, k, n),
               objectOf<T, typename OperandForms::Dst, layout, Kernel::isDense>(problem.dst, k, n), extras);
    }

private:
    // Everything has to be inlined for the loop over objects to be vectorised.
    [[gnu::flatten]] static void sideBySide(const Problem &problem) { loop(problem); }

    static void inTurn(const Problem &problem) { loop(problem); }

    [[gnu::always_inline]] static void loop(const Problem &given) {
        const Problem problem = given;
        const N n = order(problem);
        const auto first = ahead<typename OperandForms::Src1>(problem.src1, n);
        const auto second = ahead<typename OperandForms::Src2>(problem.src2, n);
        const auto third = ahead<typename OperandForms::Src3>(problem.src3, n);
        const Extras<T> extras{static_cast<T>(problem.scale1), static_cast<T>(problem.scale2),
                               problem.pivotIndex};
#pragma GCC ivdep
        for (std::size_t k = 0; k < problem.count; ++k) {
            const Extras<T> own{extras.scale1, extras.scale2,
                                extras.pivot + (OperandForms::Src1::isArray ? k * n : 0)};
            object(n, source<typename OperandForms::Src1>(problem.src1, first, k, n),
                   source<typename OperandForms::Src2>(problem.src2, second, k, n),
                   source<typename OperandForms::Src3>(problem.src3, third, k, n),
                   objectOf<T, typename OperandForms::Dst, layout, Kernel::isDense>(problem.dst, k, n), own);
        }
    }

    static N order(const Problem &problem) {
        if constexpr (isRunTime<N>) {
            return problem.n;
        } else {
            return N{};
        }
    }

    template <class OperandForm>
    static constexpr bool isHeld = OperandForm::shape != 0 && !OperandForm::isArray && !isRunTime<N>;

    // What is read before the loop over objects: an operand that is the same for all of them, as it is used.
    template <class OperandForm>
    [[gnu::always_inline]] static auto ahead(const Operand &operand, N n) {
        if constexpr (isHeld<OperandForm>) {
            constexpr std::size_t order = sizeOf<N>, size = OperandForm::shape == 'm' ? order * order : order;
            const auto object =
                turned<OperandForm>(objectOf<T, OperandForm, layout, Kernel::isDense>(operand, 0, n));
            Held<T, size, order> held;
            for (std::size_t e = 0; e < size; ++e) {
                if constexpr (OperandForm::shape == 'm') {
                    held.values[e] = object(e % order, e / order);
                } else {
                    held.values[e] = object(e);
                }
            }
            return held;
        } else {
            return 0;
        }
    }

    template <class OperandForm>
    [[gnu::always_inline]] static auto turned(auto object) {
        if constexpr (OperandForm::isTransposed) {
            return Turned<decltype(object)>{object};
        } else {
            return object;
        }
    }

    template <class OperandForm>
    [[gnu::always_inline]] static auto source(const Operand &operand, const auto &held, std::size_t k, N n) {
        if constexpr (OperandForm::shape == 0) {
            return 0;
        } else if constexpr (isHeld<OperandForm>) {
            return held;
        } else {
            return turned<OperandForm>(
                objectOf<T, OperandForm, layout, Kernel::isDense>(operand, OperandForm::isArray ? k : 0, n));
        }
    }

    template <class OperandForm>
    [[gnu::always_inline]] static auto single(const Operand &operand, std::size_t k, N n) {
        if constexpr (OperandForm::shape == 0) {
            return 0;
        } else {
            return turned<OperandForm>(objectOf<T, OperandForm, layout, Kernel::isDense>(operand, k, n));
        }
    }

    // dst overlaps no source.
    template <class First, class Second, class Third>
    [[gnu::flatten]] static void inLine(N n, First first, Second second, Third third, T *__restrict dst,
                                        Extras<T> extras) {
        constexpr std::size_t spread =
            OperandForms::Dst::shape == 's' || Kernel::isDense ? 1 : spreadOf(layout);
        Kernel::object(n, first, second, third, InLine<T, spread, N>{dst, n}, extras);
    }

    template <class First, class Second, class Third, class Result>
    [[gnu::always_inline]] static void object(N n, const First &first, const Second &second,
                                              const Third &third, Result dst, const Extras<T> &extras) {
        if constexpr (isPlanes(layout)) {
            Kernel::object(n, first, second, third, dst, extras);
        } else {
            inLine(n, first, second, third, dst.first, extras);
        }
    }
};

} // namespace zelmbench
