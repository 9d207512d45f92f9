// The same through views: a list names the field of each body.
#include <cstdio>
#include <memory>
#include <zelm.hpp>

struct Body {
    int id;
    double inertia[6][6], frame[6][6], motion[6];
    double momentum[6], turned[6][6], product[6][6];

    explicit Body(int number) : id(number) {
        for (int i = 0; i < 6; ++i) {
            for (int j = 0; j < 6; ++j) {
                inertia[i][j] = i == j ? 2.0 + id + i : 0.125 * (i + j);
                frame[i][j] = i == j ? 1 : i > j ? 0.25 * id : 0;
            }
            motion[i] = 1 - 0.5 * i + id;
        }
    }
};

int main() {
    using namespace zelm;
    std::vector<std::unique_ptr<Body>> owners;
    std::vector<Body *> bodies;
    for (int k = 0; k < 3; ++k) {
        owners.push_back(std::make_unique<Body>(k));
        bodies.push_back(owners.back().get());
    }
    std::vector<double> twiceEnergy(bodies.size());

    const auto inertia = list(bodies, &Body::inertia);
    const auto frame = list(bodies, &Body::frame);
    const auto motion = list(bodies, &Body::motion);
    const auto momentum = list(bodies, &Body::momentum);
    const auto product = list(bodies, &Body::product);
    const auto turned = list(bodies, &Body::turned);
    mul(inertia, motion, momentum).or_throw();
    dot(motion, momentum, twiceEnergy).or_throw();
    mul(inertia, frame, product).or_throw();
    mul(transposed(frame), product, turned).or_throw();

    for (std::size_t k = 0; k < bodies.size(); ++k) {
        std::printf("energy %.9g momentum", twiceEnergy[k] / 2);
        for (double p : bodies[k]->momentum)
            std::printf(" %.9g", p);
        std::printf("\nturned");
        for (int i = 0; i < 6; ++i)
            std::printf(" %.9g", bodies[k]->turned[i][5 - i]);
        std::printf("\n");
    }
}
