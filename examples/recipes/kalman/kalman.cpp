// The same through views: products of every shape, and transposes where the formulas
// have them.
#include <cstdio>
#include <zelm.hpp>

struct Filter {
    double x[6], P[6][6], z[3];
    double y[3], HP[3][6], S[3][3], Kt[3][6], Ky[6], KHP[6][6];
};

int main() {
    using namespace zelm;
    std::vector<Filter> filters(2);
    double H[3][6] = {},
           R[3][3] =
               {}; // measures the first three states, and half of the rates behind them
    for (int i = 0; i < 3; ++i)
        H[i][i] = 1, H[i][i + 3] = 0.5, R[i][i] = 0.1;
    for (int k = 0; k < 2; ++k) {
        Filter &f = filters[static_cast<std::size_t>(k)];
        for (int i = 0; i < 6; ++i) {
            f.x[i] = k + 0.25 * i;
            for (int j = 0; j < 6; ++j)
                f.P[i][j] = (i == j ? 2 + k : 0) + 1.0 / (1 + i + j);
        }
        for (int i = 0; i < 3; ++i)
            f.z[i] = 1 + k - 0.5 * i;
    }

    const auto x = field(filters, &Filter::x);
    const auto z = field(filters, &Filter::z);
    const auto y = field(filters, &Filter::y);
    const auto P = field(filters, &Filter::P);
    const auto HP = field(filters, &Filter::HP);
    const auto S = field(filters, &Filter::S);
    const auto Kt = field(filters, &Filter::Kt);
    const auto Ky = field(filters, &Filter::Ky);
    const auto KHP = field(filters, &Filter::KHP);

    mul(H, x, y).or_throw(); // y = z - H x
    sub(z, y, y).or_throw();
    mul(H, P, HP).or_throw(); // S = H P Ht + R
    mul(HP, transposed(H), S).or_throw();
    add(S, R, S).or_throw();
    const auto factor = cholesky_factor(S);
    cholesky(S, factor).or_throw();
    for (std::ptrdiff_t i = 0; i < 6; ++i) { // S Kt = H P, column by column
        const auto column = [&](double *first) {
            return as_vectors<3>(first, 2, object_bytes(sizeof(Filter)),
                                 element_bytes(6 * sizeof(double)));
        };
        solve(factor, column(&filters[0].HP[0][i]), column(&filters[0].Kt[0][i]))
            .or_throw();
    }
    mul(transposed(Kt), y, Ky).or_throw(); // x += K y
    add(x, Ky, x).or_throw();
    mul(transposed(Kt), HP, KHP).or_throw(); // P -= K (H P)
    sub(P, KHP, P).or_throw();

    for (const Filter &f : filters) {
        std::printf("x");
        for (double value : f.x)
            std::printf(" %.9g", value);
        std::printf("\nP, diagonal");
        for (int i = 0; i < 6; ++i)
            std::printf(" %.9g", f.P[i][i]);
        std::printf("\n");
    }
}
