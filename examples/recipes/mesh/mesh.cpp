// The same through views: indices into the vertices make the lists, and norm gives 0
// for a face without an area.
#include <cstdio>
#include <zelm.hpp>

int main() {
    using namespace zelm;
    const std::vector<std::array<float, 3>> vertex{
        {0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}, {1, 1, 1.5f}};
    const std::array<std::array<int, 5>, 3> corner{
        {{0, 1, 2, 3, 0}, {1, 2, 3, 0, 1}, {4, 4, 4, 4, 1}}};
    std::array<std::array<float, 3>, 5> edge[2], normal;
    std::array<float, 5> length;
    const std::array<int, 5> every{0, 1, 2, 3, 4};

    for (int e = 0; e < 2; ++e)
        sub(indexed(vertex, corner[static_cast<std::size_t>(e) + 1]),
            indexed(vertex, corner[0]), indexed(edge[e], every))
            .or_throw();
    cross(each(edge[0]), each(edge[1]), each(normal)).or_throw();
    norm(each(normal), length).or_throw();

    for (std::size_t k = 0; k < 5; ++k) {
        const float scale = length[k] > 0 ? 1 / length[k] : 0;
        std::printf("face %zu: area %.6g, normal %.6g %.6g %.6g\n", k, length[k] / 2,
                    normal[k][0] * scale, normal[k][1] * scale, normal[k][2] * scale);
    }
}
