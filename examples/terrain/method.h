// The ways of solving the systems of the cells.
#pragma once

namespace terrain {

enum class Method {
    Lu,       // the normal equations, with row exchanges
    Cholesky, // the normal equations, which are symmetric and positive definite
    Qr        // the weighted equations of the neighbours themselves, as least squares
};

} // namespace terrain
