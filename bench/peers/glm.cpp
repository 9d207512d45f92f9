// GLM.
#include "graphics.h"
#include "peers.h"

#include <glm/geometric.hpp>
#include <glm/mat3x3.hpp>
#include <glm/mat4x4.hpp>
#include <glm/matrix.hpp>

namespace zelmbench {
namespace {

struct GlmLibrary {
    template <class T, class N>
    struct Calls {
        using Matrix = glm::mat<N::value, N::value, T, glm::defaultp>;
        using Vector = glm::vec<N::value, T, glm::defaultp>;
        static Matrix &matrix(const auto &object) { return *reinterpret_cast<Matrix *>(firstOf(object)); }
        static Vector &vector(const auto &object) { return *reinterpret_cast<Vector *>(firstOf(object)); }
        static void multiply(const auto &a, const auto &b, const auto &d) {
            matrix(d) = matrix(b) * matrix(a);
        }
        static void multiplyVector(const auto &a, const auto &x, const auto &d) {
            vector(d) = matrix(a) * vector(x);
        }
        static void invert(const auto &a, const auto &d) { matrix(d) = glm::inverse(matrix(a)); }
        static void transpose(const auto &a, const auto &d) { matrix(d) = glm::transpose(matrix(a)); }
        static T determinant(const auto &a) { return glm::determinant(matrix(a)); }
        static T dot(const auto &a, const auto &b) { return glm::dot(vector(a), vector(b)); }
        static T norm(const auto &a) { return glm::length(vector(a)); }
        static void cross(const auto &a, const auto &b, const auto &d) {
            vector(d) = glm::cross(vector(a), vector(b));
        }
    };
};

} // namespace

void addGlmPeers(std::vector<Peer> &peers) {
    addLibrary<GlmLibrary, float>(peers, "GLM");
    addLibrary<GlmLibrary, double>(peers, "GLM");
}

} // namespace zelmbench
