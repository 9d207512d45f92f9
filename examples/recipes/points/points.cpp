// The same through views.
#include <cstdio>
#include <zelm.hpp>

int main() {
    using namespace zelm;
    const double turn[3][3] = {{0.36, 0.48, -0.8}, {-0.8, 0.6, 0}, {0.48, 0.64, 0.6}},
                 move[3] = {10, 20, 30};
    const double triples[4][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 2, 3}};
    const std::vector<double> x{1, 0, 0, 1}, y{0, 1, 0, 2}, z{0, 0, 1, 3};
    double moved[4][3];
    std::vector<double> u(4), v(4), w(4);

    const auto by =
        as_vectors<3>(move, 4, object_bytes(0)); // the one translation, for each point
    gaxpy(turn, each(triples), by, each(moved)).or_throw();
    for (const auto &point : moved)
        std::printf("point %.9g %.9g %.9g\n", point[0], point[1], point[2]);

    gaxpy(turn, components(x, y, z), by, components(u, v, w)).or_throw();
    for (std::size_t k = 0; k < 4; ++k)
        std::printf("point %.9g %.9g %.9g\n", u[k], v[k], w[k]);
}
