// The same through views: mul takes the form that is right for aligned data, too.
#include <cstdio>
#include <zelm.hpp>

using Pose = std::array<std::array<double, 4>, 4>;

/** A turn about z by an angle whose cosine and sine are c and s, behind a step along x.
 */
static Pose pose(double step, double c, double s) {
    return {{{c, -s, 0, step}, {s, c, 0, 0}, {0, 0, 1, 0.125}, {0, 0, 0, 1}}};
}

int main() {
    using namespace zelm;
    std::vector<std::vector<Pose>> local(4, std::vector<Pose>(3));
    for (std::size_t j = 0; j < 4; ++j) {
        const double step = 1 + 0.5 * static_cast<double>(j);
        local[j] = {pose(step, 1, 0), pose(step, 0.6, 0.8), pose(step, 0, 1)};
    }

    std::vector<Pose> world = local[0], next(3);
    for (std::size_t j = 1; j < 4; ++j) {
        mul(world, local[j], next).or_throw();
        world.swap(next);
    }

    for (std::size_t arm = 0; arm < 3; ++arm)
        for (std::size_t i = 0; i < 3; ++i)
            std::printf("arm %zu row %zu: %.9g %.9g %.9g %.9g\n", arm, i,
                        world[arm][i][0], world[arm][i][1], world[arm][i][2],
                        world[arm][i][3]);
}
