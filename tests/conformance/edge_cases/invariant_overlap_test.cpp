// Array forms that read an invariant anew for every object, with one object of dst across the invariant, at
// every distance: what that object stores, the objects behind it read. And planes whose objects lie two
// elements apart, up to the end of memory.
#include "edge_cases/guarded_page.h"
#include "zelm.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace {

constexpr std::size_t len = 3, count = 40, invariant = 8, sources = 40, results = 400, end = 800;

template <class T>
std::vector<T> startOf() {
    std::vector<T> memory;
    for (int n = 0; n < static_cast<int>(end); ++n)
        memory.push_back(static_cast<T>(n * n % 23 - 9));
    return memory;
}

// The places of dst's objects, `crossing` of which lies `at`; elements of dst lie `step` apart.
std::vector<std::size_t> placesOfResults(std::size_t crossing, std::size_t at) {
    std::vector<std::size_t> places;
    for (std::size_t k = 0; k < count; ++k)
        places.push_back(k == crossing ? at : results + 7 * k);
    return places;
}

// `call` gets the tables of src and dst and the invariant.
template <class T>
void expectReadAnew(std::size_t step, auto call, auto element) {
    for (const std::size_t crossing : {std::size_t{0}, std::size_t{1}, count / 2, count - 2})
        for (std::size_t at = 0; at <= 2 * invariant; ++at) {
            auto memory = startOf<T>(), expected = memory;
            const auto places = placesOfResults(crossing, at);
            std::vector<const T *> from;
            std::vector<T *> to;
            for (std::size_t k = 0; k < count; ++k) {
                from.push_back(&memory[sources + 8 * k]);
                to.push_back(&memory[places[k]]);
                for (std::size_t j = 0; j < len; ++j)
                    expected[places[k] + step * j] =
                        element(expected[sources + 8 * k + step * j], expected[invariant + step * j]);
            }
            EXPECT_EQ(call(from.data(), &memory[invariant], to.data()), ZELM_OK);
            ASSERT_EQ(memory, expected) << "object " << crossing << " at " << at;
        }
}

template <class T>
using Saxpy = ZelmStatus(const T *const *, std::int32_t, T, const T *, T *const *, std::int32_t,
                         std::uint32_t);
template <class T>
using Sub = ZelmStatus(const T *const *, std::int32_t, std::int32_t, const T *, std::int32_t, T *const *,
                       std::int32_t, std::int32_t, std::uint32_t);

template <class T>
void expectReadAnew(Saxpy<T> *saxpy, Sub<T> *sub) {
    const T scale = T{1} / 4;
    expectReadAnew<T>(
        1,
        [&](const T *const *src, const T *held, T *const *dst) {
            return saxpy(src, 0, scale, held, dst, 0, count);
        },
        [&](T a, T b) { return a * scale + b; });
    constexpr std::int32_t stride = 2 * sizeof(T);
    expectReadAnew<T>(
        2,
        [&](const T *const *src, const T *held, T *const *dst) {
            return sub(src, 0, stride, held, stride, dst, 0, stride, count);
        },
        [](T a, T b) { return a - b; });
}

TEST(InvariantOverlap, OfLists) {
    expectReadAnew<float>(zelmSaxpy_vav_32f_3x1_L, zelmSub_vav_32f_3x1_LS2);
    expectReadAnew<double>(zelmSaxpy_vav_64f_3x1_L, zelmSub_vav_64f_3x1_LS2);
}

// One array behind the invariant or across it.
template <class T>
void expectReadAnewOfStrides(auto function) {
    constexpr auto bytes = [](std::size_t elements) {
        return static_cast<std::int32_t>(elements * sizeof(T));
    };
    for (std::size_t at = 0; at <= 3 * invariant; ++at) {
        auto memory = startOf<T>(), expected = memory;
        for (std::size_t k = 0; k < count; ++k)
            for (std::size_t j = 0; j < len; ++j)
                expected[at + 7 * k + 2 * j] =
                    expected[results + 8 * k + 2 * j] - expected[invariant + 2 * j];
        EXPECT_EQ(function(&memory[results], bytes(8), bytes(2), &memory[invariant], bytes(2), &memory[at],
                           bytes(7), bytes(2), count),
                  ZELM_OK);
        ASSERT_EQ(memory, expected) << "at " << at;
    }
}

TEST(InvariantOverlap, OfStridedArrays) {
    expectReadAnewOfStrides<float>(zelmSub_vav_32f_3x1_S2);
    expectReadAnewOfStrides<double>(zelmSub_vav_64f_3x1_S2);
}

// Each plane ends where memory does; what lies between its objects is no number.
template <class T>
void expectDotProducts(auto function) {
    for (std::uint32_t objects = 1; objects <= 35; ++objects) {
        const GuardedPage pages[len];
        std::vector<const T *> table;
        for (std::size_t j = 0; j < len; ++j) {
            T *plane = pages[j].last<T>(2 * objects - 1);
            for (std::uint32_t k = 0; k < objects; ++k) {
                plane[2 * k] = static_cast<T>(k + 10 * j);
                if (k + 1 < objects)
                    plane[2 * k + 1] = std::numeric_limits<T>::quiet_NaN();
            }
            table.push_back(plane);
        }
        const T vector[] = {1, 2, 3};
        const T *const places[] = {&vector[0], &vector[1], &vector[2]};
        std::vector<T> dst(objects);
        EXPECT_EQ(function(table.data(), 0, static_cast<std::int32_t>(2 * sizeof(T)), places, 0, dst.data(),
                           objects),
                  ZELM_OK);
        for (std::uint32_t k = 0; k < objects; ++k)
            EXPECT_EQ(dst[k], static_cast<T>(6 * k + 80)) << objects << " objects, " << k;
    }
}

TEST(AlternateObjects, EndWithTheLast) {
    expectDotProducts<float>(zelmDotProduct_vav_32f_3x1_PS2);
    expectDotProducts<double>(zelmDotProduct_vav_64f_3x1_PS2);
}

} // namespace
