// Runs the chain over random shapes in every layout, with run-time and fixed sizes side by side.
//
//     chain [--seed N] [--rounds N]
//
// After each step the results of all variants are extracted and compared; then one variant, chosen anew for
// each step, hands its result to all others with Copy, so that the next step starts from the same bits
// everywhere.
#include "random.h"
#include "steps.h"
#include "variant.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <limits>

namespace chain {
namespace {

using zelmtest::Random;

constexpr std::array<std::string_view, 6> layouts = {"", "S2", "P", "L", "PS2", "LS2"};
constexpr std::string_view drawn[] = {"M", "N", "x", "y", "p", "q"};
// Some are no numbers of 32f or 64f, and none is a power of two.
const std::map<std::string_view, double> factors = {{"scale", 0.7}, {"scale1", -1.3}, {"scale2", 0.9}};

std::uint64_t comparisons = 0;

template <class T>
class Round {
public:
    Round(std::vector<Variant<T>> &variants, Random &random, bool withFixed)
        : random_(random), sizes_(drawSizes(random, withFixed)) {
        for (Variant<T> &variant : variants)
            if (withFixed || !variant.isFixed()) {
                const auto distance = 1 + random.below(3), free = random.below(3);
                variant.begin(sizes_, distance, free,
                              random.chance(50) ? zelmtest::Side::Start : zelmtest::Side::End);
                variants_.push_back(&variant);
            }
    }

    void run() {
        for (const std::string_view name : drawn)
            draw(name);
        for (Variant<T> *variant : variants_) {
            variant->loadIdentities();
            variant->take("M0", *variants_[random_.below(size())], "M", 1);
        }
        expectAgreement("I", Agreement::Everywhere, {});
        expectAgreement("M0", Agreement::Everywhere, {});
        auto constants = factors;
        constants["val"] = static_cast<double>(sizes_.h);
        for (const Step &step : steps) {
            for (Variant<T> *variant : variants_)
                if (variant->canRun(step))
                    variant->run(step, constants);
                else
                    variant->take(step.result, *variants_[0]);
            if (step.operation == std::string_view("LUDecomp"))
                expectSamePivots();
            expectAgreement(step.result, step.agreement, boundsOf(step));
            spread(step.result, *variants_[random_.below(size())]);
        }
        for (const Relation &relation : relations)
            expectRelation(relation);
    }

private:
    static Sizes drawSizes(Random &random, bool withFixed) {
        const std::uint32_t n = 3 + random.below(4), h = 2 + random.below(7), w = 1 + random.below(8);
        const std::uint32_t count = random.chance(90) ? 1 + random.below(9) : 17;
        return withFixed ? Sizes{n, n, count} : Sizes{h, w, count};
    }

    std::uint32_t size() const { return static_cast<std::uint32_t>(variants_.size()); }
    static constexpr double roundoff = std::numeric_limits<T>::epsilon() / 2;

    // Uniform numbers between -1 and 1 with all their bits.
    void draw(std::string_view name) {
        for (std::uint32_t k = 0; k < sizes_.count; ++k)
            for (std::uint32_t i = 0; i < sizes_.rows(name); ++i)
                for (std::uint32_t j = 0; j < sizes_.columns(name); ++j)
                    (*variants_[0])[name].set(
                        k, i, j, static_cast<T>(static_cast<double>(random_.bits() >> 11) * 0x1p-52 - 1));
        spread(name, *variants_[0]);
        expectAgreement(name, Agreement::Everywhere, {});
    }

    // Each variant takes it from any that has it.
    void spread(std::string_view name, const Variant<T> &first) {
        std::vector<const Variant<T> *> have = {&first};
        for (Variant<T> *variant : variants_)
            if (variant != &first) {
                variant->take(name, *have[random_.below(static_cast<std::uint32_t>(have.size()))]);
                have.push_back(variant);
            }
    }

    double largest(std::string_view name) const {
        double most = 0;
        for (const T element : variants_[0]->packed(name))
            most = std::max(most, std::abs(static_cast<double>(element)));
        return most;
    }

    // For each object, how far its elements may be apart.
    std::vector<double> boundsOf(const Step &step) const {
        std::vector<double> bounds(sizes_.count);
        const double columns = sizes_.columns(step.sources[0]),
                     terms = columns * sizes_.rows(step.sources[0]);
        const double h = sizes_.h, solution = h * h * h * (1 + sizes_.w);
        const auto result = variants_[0]->packed(step.result);
        const std::size_t elements = result.size() / sizes_.count;
        for (std::size_t k = 0; k < bounds.size() && step.bound != Bound::None; ++k) {
            double most = 0;
            for (std::size_t e = 0; e < elements; ++e)
                most = std::max(most, std::abs(static_cast<double>(result[k * elements + e])));
            const double third = step.sources[2].empty() ? 0 : largest(step.sources[2]);
            bounds[k] =
                step.bound == Bound::Relative ? (terms + 16) * most
                : step.bound == Bound::Solution
                    ? solution * most
                    : (columns + 2) * (columns * largest(step.sources[0]) * largest(step.sources[1]) + third);
            bounds[k] *= roundoff;
        }
        return bounds;
    }

    // The same bits where the keys are the same, else a difference within the bounds.
    void expectAgreement(std::string_view name, Agreement agreement, const std::vector<double> &bounds) {
        const auto reference = variants_[0]->packed(name);
        std::map<std::string, std::vector<T>> byKey;
        for (const Variant<T> *variant : variants_) {
            const auto result = variant->packed(name);
            const std::string key = keyOf(agreement, typeName<T>, variant->isFixed(), variant->layout());
            const bool isNew = byKey.try_emplace(key, result).second;
            ++comparisons;
            if (!isNew && std::memcmp(byKey[key].data(), result.data(), result.size() * sizeof(T)) != 0)
                fail(name, *variant, "not the bits of the others of \"" + key + "\"");
            for (std::size_t e = 0; isNew && byKey.size() > 1 && e < result.size(); ++e) {
                const double difference =
                    std::abs(static_cast<double>(result[e]) - static_cast<double>(reference[e]));
                if (!(difference <= bounds[e * bounds.size() / result.size()]))
                    fail(name, *variant, "beyond the bound by a difference of " + std::to_string(difference));
            }
        }
    }

    void expectSamePivots() {
        for (const Variant<T> *variant : variants_)
            if (variant->pivots() != variants_[0]->pivots())
                fail("LU", *variant, "another pivotIndex");
    }

    void expectRelation(const Relation &relation) {
        const auto left = variants_[0]->packed(relation.left);
        const auto right =
            relation.right.empty() ? std::vector<T>(left.size()) : variants_[0]->packed(relation.right);
        const double h = sizes_.h, scale = std::max({1.0, largest(relation.left), largest("lcomb")});
        const double bound =
            (h * h * h + 4) * (1 + sizes_.w) * roundoff * scale * (relation.squaresLeft ? scale : 1);
        ++comparisons;
        for (std::size_t e = 0; e < left.size(); ++e) {
            const double value = static_cast<double>(left[e]);
            if (!(std::abs((relation.squaresLeft ? value * value : value) - static_cast<double>(right[e])) <=
                  bound))
                fail(relation.left, *variants_[0], "is not " + std::string(relation.right));
        }
    }

    [[noreturn]] void fail(std::string_view name, const Variant<T> &variant, const std::string &what) const {
        throw std::runtime_error(
            std::string(name) + " in " + typeName<T> + ", " + (variant.isFixed() ? "fixed" : "run-time") +
            " sizes, layout \"" + variant.layout() + "\", h " + std::to_string(sizes_.h) + ", w " +
            std::to_string(sizes_.w) + ", " + std::to_string(sizes_.count) + " objects: " + what);
    }

    Random &random_;
    Sizes sizes_;
    std::vector<Variant<T> *> variants_;
};

template <class T>
std::vector<Variant<T>> makeVariants() {
    std::vector<Variant<T>> variants;
    variants.reserve(2 * layouts.size());
    for (const bool isFixed : {false, true})
        for (const std::string_view layout : layouts)
            variants.emplace_back(layout, isFixed);
    return variants;
}

int run(std::uint64_t seed, std::uint64_t rounds) {
    auto floats = makeVariants<float>();
    auto doubles = makeVariants<double>();
    for (std::uint64_t round = 0; round < rounds; ++round) {
        Random random(zelmtest::caseSeed(seed, "chain", round));
        try {
            if (round % 2 == 0)
                Round<float>(floats, random, round % 4 < 2).run();
            else
                Round<double>(doubles, random, round % 4 < 2).run();
        } catch (const std::exception &failure) {
            std::printf("seed %llu, round %llu: %s\n", static_cast<unsigned long long>(seed),
                        static_cast<unsigned long long>(round), failure.what());
            return 1;
        }
    }
    std::printf("%llu rounds of %zu steps, %llu comparisons, seed %llu\n",
                static_cast<unsigned long long>(rounds), steps.size(),
                static_cast<unsigned long long>(comparisons), static_cast<unsigned long long>(seed));
    return 0;
}

} // namespace
} // namespace chain

int main(int argc, char **argv) {
    std::uint64_t seed = 1, rounds = 400;
    for (int i = 1; i < argc; i += 2) {
        const std::string_view option = argv[i];
        if (i + 1 == argc || (option != "--seed" && option != "--rounds")) {
            std::fprintf(stderr, "usage: chain [--seed N] [--rounds N]\n");
            return 2;
        }
        (option == "--seed" ? seed : rounds) = std::strtoull(argv[i + 1], nullptr, 0);
    }
    return chain::run(seed, rounds);
}
