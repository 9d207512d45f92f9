// cglm, in 32-bit float.
#define CGLM_ALL_UNALIGNED

#include "graphics.h"
#include "peers.h"

#include <cglm/cglm.h>

namespace zelmbench {
namespace {

// cglm's functions differ by the order.
template <class N>
struct Cglm;

template <>
struct Cglm<Fixed<3>> {
    static vec3 *matrix(const auto &object) { return reinterpret_cast<vec3 *>(firstOf(object)); }
    static void multiply(vec3 *a, vec3 *b, vec3 *d) { glm_mat3_mul(a, b, d); }
    static void multiplyVector(vec3 *a, float *x, float *d) { glm_mat3_mulv(a, x, d); }
    static void invert(vec3 *a, vec3 *d) { glm_mat3_inv(a, d); }
    static void transpose(vec3 *a, vec3 *d) { glm_mat3_transpose_to(a, d); }
    static float determinant(vec3 *a) { return glm_mat3_det(a); }
    static float dot(float *a, float *b) { return glm_vec3_dot(a, b); }
    static float norm(float *a) { return glm_vec3_norm(a); }
};

template <>
struct Cglm<Fixed<4>> {
    static vec4 *matrix(const auto &object) { return reinterpret_cast<vec4 *>(firstOf(object)); }
    static void multiply(vec4 *a, vec4 *b, vec4 *d) { glm_mat4_mul(a, b, d); }
    static void multiplyVector(vec4 *a, float *x, float *d) { glm_mat4_mulv(a, x, d); }
    static void invert(vec4 *a, vec4 *d) { glm_mat4_inv(a, d); }
    static void transpose(vec4 *a, vec4 *d) { glm_mat4_transpose_to(a, d); }
    static float determinant(vec4 *a) { return glm_mat4_det(a); }
    static float dot(float *a, float *b) { return glm_vec4_dot(a, b); }
    static float norm(float *a) { return glm_vec4_norm(a); }
};

struct CglmLibrary {
    template <class T, class N>
    struct Calls {
        static auto matrix(const auto &object) { return Cglm<N>::matrix(object); }
        static void multiply(const auto &a, const auto &b, const auto &d) {
            Cglm<N>::multiply(matrix(b), matrix(a), matrix(d));
        }
        static void multiplyVector(const auto &a, const auto &x, const auto &d) {
            Cglm<N>::multiplyVector(matrix(a), firstOf(x), firstOf(d));
        }
        static void invert(const auto &a, const auto &d) { Cglm<N>::invert(matrix(a), matrix(d)); }
        static void transpose(const auto &a, const auto &d) { Cglm<N>::transpose(matrix(a), matrix(d)); }
        static T determinant(const auto &a) { return Cglm<N>::determinant(matrix(a)); }
        static T dot(const auto &a, const auto &b) { return Cglm<N>::dot(firstOf(a), firstOf(b)); }
        static T norm(const auto &a) { return Cglm<N>::norm(firstOf(a)); }
        static void cross(const auto &a, const auto &b, const auto &d) {
            glm_vec3_cross(firstOf(a), firstOf(b), firstOf(d));
        }
    };
};

} // namespace

void addCglmPeers(std::vector<Peer> &peers) {
    addLibrary<CglmLibrary, float>(peers, "cglm");
}

} // namespace zelmbench
