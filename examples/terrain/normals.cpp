#include "normals.h"

#include "library_call.h"

#include <cstdint>

namespace terrain {

Normals::Normals(std::size_t cells)
    : zeros_(cells, 0.0f), ones_(cells, 1.0f), eastRise_(cells), northRise_(cells), east_(cells),
      north_(cells), up_(cells), length_(cells) {}

void Normals::setFrom(const Layers &layers, std::size_t first, float exaggeration) {
    const auto cells = static_cast<std::uint32_t>(length_.size());
    requireOk(zelmMul_vc_32f(&layers.east[first], exaggeration, eastRise_.data(), cells), "zelmMul_vc");
    requireOk(zelmMul_vc_32f(&layers.north[first], exaggeration, northRise_.data(), cells), "zelmMul_vc");

    const std::array<const float *, 3> eastTangents = {ones_.data(), zeros_.data(), eastRise_.data()};
    const std::array<const float *, 3> northTangents = {zeros_.data(), ones_.data(), northRise_.data()};
    const std::array<float *, 3> normals = {east_.data(), north_.data(), up_.data()};
    requireOk(zelmCrossProduct_vava_32f_3x1_P(eastTangents.data(), 0, northTangents.data(), 0, normals.data(),
                                              0, cells),
              "zelmCrossProduct_vava");
    requireOk(zelmL2Norm_va_32f_3x1_P(normals.data(), 0, length_.data(), cells), "zelmL2Norm_va");
}

void Normals::cosinesTo(const Vector3 &direction, std::vector<float> &cosines) const {
    const std::array<const float *, 3> normals = {east_.data(), north_.data(), up_.data()};
    const std::array<const float *, 3> components = {&direction[0], &direction[1], &direction[2]};
    cosines.resize(length_.size());
    requireOk(zelmDotProduct_vav_32f_3x1_P(normals.data(), 0, components.data(), 0, cosines.data(),
                                           static_cast<std::uint32_t>(cosines.size())),
              "zelmDotProduct_vav");
    for (std::size_t k = 0; k < cosines.size(); ++k) {
        cosines[k] /= length_[k];
    }
}

} // namespace terrain
