// The same through views: the factors' type says that they are those of QR.
#include <cstdio>
#include <zelm.hpp>

int main() {
    using namespace zelm;
    const double value[3][7] = {{1, 2.1, 5.2, 9.8, 17.1, 26, 36.9},
                                {3, 2, 1, 0.5, 1, 2, 3},
                                {0, 1, 0, -1, 0, 1, 0}};
    double design[3][7][3], memory[3][7][3], parabola[3][3];
    for (int k = 0; k < 3; ++k)
        for (int i = 0; i < 7; ++i) {
            const double t = i * (k + 1) * 0.5;
            design[k][i][0] = 1, design[k][i][1] = t, design[k][i][2] = t * t;
        }

    const auto factors = qr_factors(memory);
    qr(design, factors).or_throw();
    solve(factors, each(value), each(parabola)).or_throw();

    for (int k = 0; k < 3; ++k)
        std::printf("series %d: %.9g %.9g %.9g\n", k, parabola[k][0], parabola[k][1],
                    parabola[k][2]);
}
