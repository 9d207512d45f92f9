// The kernels a6_Det_m, a6_Det_ma and a6_Det_ma_..._L: all in the extended format, rounded to T at the store
// and where a minor is kept in a temporary of T's width.
#include "extended_determinant.h"

#include "checks.h"
#include "family.h"
#include "minors.h"

#include <algorithm>
#include <iterator>

namespace zelmref {

extern const Family extendedDeterminants;

namespace {

constexpr std::int32_t nullEntry = -2; // the kernels' own, no status

constexpr Columns columns(std::initializer_list<std::uint32_t> list) {
    Columns set = 0;
    for (const std::uint32_t j : list)
        set |= Columns{1} << j;
    return set;
}

// The minors that are not kept in a temporary.
bool staysOnStack(const Cell &cell, Columns minor, std::uint32_t order) {
    static constexpr Columns four[] = {columns({0, 2}), columns({0, 3}), columns({1, 2}), columns({1, 3}),
                                       columns({2, 3})};
    static constexpr Columns five[] = {columns({2, 3}), columns({2, 4}), columns({3, 4}), columns({1, 3, 4}),
                                       columns({2, 3, 4})};
    // Six of order 4 in 32f, where the first of these is one of them, and five in 64f.
    static constexpr Columns six[] = {columns({0, 3, 4, 5}), columns({1, 2, 3, 4}), columns({1, 2, 3, 5}),
                                      columns({1, 2, 4, 5}), columns({1, 3, 4, 5}), columns({2, 3, 4, 5})};
    const auto in = [&](auto first, auto last) { return std::find(first, last, minor) != last; };
    switch (cell.order) {
    case 4:
        return order == 3 || in(std::begin(four), std::end(four));
    case 5:
        return order == 4 || in(std::begin(five), std::end(five));
    default:
        return order == 5 || in(std::begin(six) + (cell.type == Type::Float64), std::end(six));
    }
}

template <class T>
long double ofOrder3(const Cell &cell, const std::vector<T> &elements) {
    std::vector<long double> a(elements.begin(), elements.end());
    const auto minor = [&](int p, int q, int r, int s) {
        const long double positive = a[static_cast<std::size_t>(p)] * a[static_cast<std::size_t>(q)];
        const long double negative = a[static_cast<std::size_t>(r)] * a[static_cast<std::size_t>(s)];
        return positive - negative;
    };
    if (cell.descriptor == "m" && cell.type == Type::Float64) { // down column 0
        const long double u0 = minor(4, 8, 5, 7) * a[0];
        const long double u1 = minor(7, 2, 1, 8) * a[3];
        const long double u2 = minor(5, 1, 4, 2) * a[6];
        return (u2 + u0) + u1;
    }
    const long double t0 = minor(4, 8, 7, 5) * a[0];
    const long double t1 = minor(5, 6, 8, 3) * a[1];
    const long double t2 = minor(3, 7, 6, 4) * a[2];
    if (cell.descriptor == "m")
        return (t1 + t2) + t0;
    return cell.layout == Layout::L ? (t2 + t1) + t0 : (t2 + t0) + t1;
}

bool serves(const Cell &cell) {
    return cell.operation == "a6_Det";
}

Signature signature(const Cell &cell) {
    Signature s = {matrix("src", isArray(cell)), result(isArray(cell))};
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const std::uint32_t n = call.cell->order, count = call.count();
    const Operand src(call, "src"), dst(call, "dst");
    for (std::uint32_t k = 0; k < count; ++k) {
        if (objectIsNull(call, k))
            return nullEntry;
        std::vector<T> a;
        for (std::uint32_t i = 0; i < n; ++i)
            for (std::uint32_t j = 0; j < n; ++j)
                a.push_back(readNumber<T>(src.element(k, i, j)));
        results.write<T>(dst.element(k, 0), extendedDeterminant(*call.cell, a));
    }
    return 0;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

} // namespace

template <class T>
T extendedDeterminant(const Cell &cell, const std::vector<T> &a) {
    if (cell.order == 3)
        return static_cast<T>(ofOrder3(cell, a));
    const auto keep = [&](Columns minor, std::uint32_t order, long double value) {
        return staysOnStack(cell, minor, order) ? value : static_cast<long double>(static_cast<T>(value));
    };
    return static_cast<T>(expandByMinors<long double>(a, cell.order, keep));
}

template float extendedDeterminant(const Cell &, const std::vector<float> &);
template double extendedDeterminant(const Cell &, const std::vector<double> &);

const Family extendedDeterminants = {.serves = serves,
                                     .signature = signature,
                                     .run = run,
                                     .overlap = Overlap::Any,
                                     .content = Content::Inverting,
                                     .testsNoPointer = true};

} // namespace zelmref
