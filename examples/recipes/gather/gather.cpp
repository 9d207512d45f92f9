// The same through views.
#include <cstdio>
#include <zelm.hpp>

struct Particle {
    int id;
    float velocity[3], charge, force[3];
};

int main() {
    using namespace zelm;
    std::vector<Particle> p{
        {1, {1, 0, 0}, 2, {}}, {2, {0, 2, 0}, -1, {}}, {3, {1, 1, 1}, 0.5f, {}}};
    const float magnetic[3] = {0, 0, 2};
    std::vector<float> vx(3), vy(3), vz(3), fx(3), fy(3), fz(3);

    const auto velocity = components(vx, vy, vz), force = components(fx, fy, fz);
    copy(field(p, &Particle::velocity), velocity).or_throw();
    cross(velocity, magnetic, force).or_throw();
    copy(force, field(p, &Particle::force)).or_throw();
    for (Particle &particle : p)
        mul(particle.force, particle.charge, particle.force).or_throw();

    for (const Particle &particle : p)
        std::printf("particle %d: %.6g %.6g %.6g\n", particle.id, particle.force[0],
                    particle.force[1], particle.force[2]);
}
