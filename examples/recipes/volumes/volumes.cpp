// The same through views.
#include <cstdio>
#include <zelm.hpp>

int main() {
    using namespace zelm;
    const std::vector<std::array<double, 3>> vertex{
        {0, 0, 0}, {1, 0, 0}, {0, 2, 0}, {0, 0, 3}, {1, 1, 1}};
    const std::array<int, 9> apex{0, 0, 0, 0, 0, 0, 4, 4, 4},
        other{1, 2, 3, 2, 1, 3, 1, 2, 3};
    const std::array<int, 9> every{0, 1, 2, 3, 4, 5, 6, 7, 8};
    std::vector<std::array<double, 3>> edges(9);
    std::vector<double> six(3);

    sub(indexed(vertex, other), indexed(vertex, apex), indexed(edges, every))
        .or_throw();
    det(as_matrices<3, 3>(edges[0].data(), 3), six).or_throw();

    for (std::size_t k = 0; k < 3; ++k)
        std::printf("tetrahedron %zu: volume %.9g\n", k, six[k] / 6);
}
