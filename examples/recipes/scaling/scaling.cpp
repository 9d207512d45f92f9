// The same through views.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <zelm.hpp>

int main() {
    using namespace zelm;
    const double a[4][4] = {{4e-9, 1e-9, 0, 2e-3},
                            {1e-9, 3e-9, 1e-9, 1e-3},
                            {0, 1e-9, 5e-9, 4e-3},
                            {2e-10, 1e-10, 3e-10, 5e-4}};
    const double b[4] = {8.006e-3, 4.010e-3, 16.017e-3, 2.0013e-3};
    double memory[4][4], scaled[4][4], right[4], x[4];
    std::uint32_t pivots[4];
    const auto factors = lu_factors(memory, pivots);
    const Result refused = lu(a, factors);
    std::printf("status %d: %s\n", static_cast<int>(refused.status()),
                refused.message());

    int column[4];
    for (int j = 0; j < 4; ++j) {
        double largest = 0;
        for (const auto &row : a)
            largest = std::max(largest, std::abs(row[j]));
        std::frexp(largest, &column[j]);
        for (int i = 0; i < 4; ++i)
            scaled[i][j] = std::ldexp(a[i][j], -column[j]);
    }
    for (int i = 0; i < 4; ++i) {
        double largest = 0;
        int row;
        for (double element : scaled[i])
            largest = std::max(largest, std::abs(element));
        std::frexp(largest, &row);
        for (double &element : scaled[i])
            element = std::ldexp(element, -row);
        right[i] = std::ldexp(b[i], -row);
    }
    lu(scaled, factors).or_throw();
    solve(factors, right, x).or_throw();
    for (int j = 0; j < 4; ++j) // the columns' scale is that of the unknowns
        std::printf("x %.9g\n", std::ldexp(x[j], -column[j]));
}
