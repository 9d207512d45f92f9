// zelm_bench_cpp [--quick] [--json FILE]: calls of the C++ layer beside the C calls that they become.
#include "results.h"

#include <zelm.hpp>

#include <array>
#include <cstring>
#include <functional>
#include <iostream>
#include <random>
#include <string_view>
#include <vector>

namespace {

using namespace zelm;

constexpr std::size_t many = 1000, few = 64; // objects of an array; single calls, one after the other

template <class T>
struct Body {
    T a[4][4], b[4][4], c[4][4], x[3], y[3], z[3];
};
template <class T>
using Bodies = std::vector<Body<T>>;

// The same call, written twice.
struct Pair {
    const char *name;
    std::size_t count;
    std::function<ZelmStatus()> layer, direct;
};

template <class T>
Bodies<T> drawnBodies(std::size_t count) {
    Bodies<T> bodies(count);
    std::minstd_rand generator(1);
    std::uniform_real_distribution<T> uniform(T(-1), T(1));
    for (Body<T> &body : bodies) {
        std::array<T, sizeof(Body<T>) / sizeof(T)> values;
        for (T &value : values) {
            value = uniform(generator);
        }
        std::memcpy(&body, values.data(), sizeof body);
    }
    return bodies;
}

// A single call for each of the first bodies in turn.
template <class T, class Call>
std::function<ZelmStatus()> inTurn(Bodies<T> &bodies, Call call) {
    return [&bodies, call] {
        ZelmStatus worst = 0;
        for (std::size_t k = 0; k < few; ++k) {
            const ZelmStatus status = call(bodies[k]);
            worst = status != 0 ? status : worst;
        }
        return worst;
    };
}

std::vector<Pair> singleCalls(Bodies<float> &f, Bodies<double> &d) {
    using F = Body<float>;
    using D = Body<double>;
    return {
        {"zelmAdd_vv_32f_3x1/single", few, inTurn(f, [](F &o) { return add(o.x, o.y, o.z).status(); }),
         inTurn(f, [](F &o) { return zelmAdd_vv_32f_3x1(o.x, o.y, o.z); })},
        {"zelmCrossProduct_vv_64f_3x1/single", few,
         inTurn(d, [](D &o) { return cross(o.x, o.y, o.z).status(); }),
         inTurn(d, [](D &o) { return zelmCrossProduct_vv_64f_3x1(o.x, o.y, o.z); })},
        {"zelmMul_mm_32f_4x4/single", few, inTurn(f, [](F &o) { return mul(o.a, o.b, o.c).status(); }),
         inTurn(f, [](F &o) { return zelmMul_mm_32f_4x4(*o.a, 16, *o.b, 16, *o.c, 16); })},
        {"zelmMul_mmT_64f_4x4/single", few,
         inTurn(d, [](D &o) { return mul(o.a, transposed(o.b), o.c).status(); }),
         inTurn(d, [](D &o) { return zelmMul_mmT_64f_4x4(*o.a, 32, *o.b, 32, *o.c, 32); })},
        {"zelmInvert_m_32f_4x4/single", few, inTurn(f, [](F &o) { return inverse(o.a, o.c).status(); }),
         inTurn(f, [](F &o) { return zelmInvert_m_32f_4x4(*o.a, 16, *o.c, 16); })},
        {"zelmDet_m_64f_4x4/single", few, inTurn(d, [](D &o) { return det(o.a, o.z[0]).status(); }),
         inTurn(d, [](D &o) { return zelmDet_m_64f_4x4(*o.a, 32, o.z); })},
    };
}

std::vector<Pair> arrays(Bodies<float> &f, Bodies<double> &d, std::vector<float> &sums,
                         std::vector<std::uint32_t> &pivots) {
    using F = Body<float>;
    using D = Body<double>;
    constexpr std::int32_t stepF = sizeof(F), stepD = sizeof(D);
    const auto counted = [](const auto &objects) { return static_cast<std::uint32_t>(objects.size()); };
    return {
        {"zelmAdd_vava_32f_3x1/1000", many,
         [&] { return add(field(f, &F::x), field(f, &F::y), field(f, &F::z)).status(); },
         [&, counted] {
             return zelmAdd_vava_32f_3x1(f[0].x, stepF, f[0].y, stepF, f[0].z, stepF, counted(f));
         }},
        {"zelmDotProduct_vava_32f_3x1/1000", many,
         [&] { return dot(field(f, &F::x), field(f, &F::y), sums).status(); },
         [&, counted] {
             return zelmDotProduct_vava_32f_3x1(f[0].x, stepF, f[0].y, stepF, sums.data(), counted(f));
         }},
        {"zelmMul_mama_64f_4x4_S2/1000", many,
         [&] { return mul(field(d, &D::a), field(d, &D::b), field(d, &D::c)).status(); },
         [&, counted] {
             return zelmMul_mama_64f_4x4_S2(*d[0].a, stepD, 32, 8, *d[0].b, stepD, 32, 8, *d[0].c, stepD, 32,
                                            8, counted(d));
         }},
        {"zelmInvert_ma_32f_4x4/1000", many,
         [&] { return inverse(field(f, &F::a), field(f, &F::c)).status(); },
         [&, counted] { return zelmInvert_ma_32f_4x4(*f[0].a, stepF, 16, *f[0].c, stepF, 16, counted(f)); }},
        {"zelmLUDecomp_ma_64f_4x4/1000", many,
         [&] { return lu(field(d, &D::a), lu_factors(field(d, &D::c), pivots)).status(); },
         [&, counted] {
             return zelmLUDecomp_ma_64f_4x4(*d[0].a, stepD, 32, pivots.data(), *d[0].c, stepD, 32,
                                            counted(d));
         }},
    };
}

// All that the calls write, bit for bit.
template <class T>
std::vector<unsigned char> bytesOf(const std::vector<T> &objects) {
    const auto *first = reinterpret_cast<const unsigned char *>(objects.data());
    return {first, first + objects.size() * sizeof(T)};
}

int run(bool isQuick, const std::string &json) {
    Bodies<float> f = drawnBodies<float>(many);
    Bodies<double> d = drawnBodies<double>(many);
    std::vector<float> sums(many);
    std::vector<std::uint32_t> pivots(4 * many);
    std::vector<Pair> pairs = singleCalls(f, d);
    for (Pair &pair : arrays(f, d, sums, pivots)) {
        pairs.push_back(std::move(pair));
    }
    zelmbench::Results results(json, "ns", "cpp", ZELM_BENCH_LIBRARY, "", "C");
    for (const Pair &pair : pairs) {
        zelmbench::Figures figures;
        std::vector<unsigned char> written[2];
        const std::function<ZelmStatus()> *const ways[] = {&pair.layer, &pair.direct};
        for (std::size_t way = 0; way < 2; ++way) {
            f = drawnBodies<float>(many);
            d = drawnBodies<double>(many);
            const ZelmStatus status = (*ways[way])();
            for (const auto &bytes : {bytesOf(f), bytesOf(d), bytesOf(sums), bytesOf(pivots)}) {
                written[way].insert(written[way].end(), bytes.begin(), bytes.end());
            }
            written[way].push_back(status == 0);
        }
        if (written[0] != written[1] || written[0].back() == 0) {
            figures.wrong.emplace_back("C");
        }
        const std::vector<double> seconds = zelmbench::fastest(
            {{"C++", [&](std::size_t) { pair.layer(); }}, {"C", [&](std::size_t) { pair.direct(); }}},
            isQuick ? zelmbench::quick : zelmbench::thorough);
        for (std::size_t way = 0; way < 2; ++way) {
            figures.perObject.emplace_back(way == 0 ? zelmbench::ownName : "C",
                                           seconds[way] * 1e9 / static_cast<double>(pair.count));
        }
        results.add({pair.name, nullptr, pair.count}, figures);
    }
    return results.finish() ? 0 : 1;
}

} // namespace

int main(int argc, char **argv) {
    bool isQuick = false;
    std::string json;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--quick") {
            isQuick = true;
        } else if (argument == "--json" && i + 1 < argc) {
            json = argv[++i];
        } else {
            std::cerr << "zelm_bench_cpp [--quick] [--json FILE]\n";
            return 2;
        }
    }
    return run(isQuick, json);
}
