// The same through views. Of Eigen's and GLM's types <zelm/eigen.hpp> and
// <zelm/glm.hpp> know the order by themselves.
#include <cstdio>
#include <zelm.hpp>

int main() {
    using namespace zelm;
    double a[2][4][4],
        b[2][4][4]; // a in columns, element (i, j) at a[k][j][i]; b in rows
    double product[2][4][4], inverted[2][4][4];
    for (int k = 0; k < 2; ++k)
        for (int i = 0; i < 4; ++i)
            for (int j = 0; j < 4; ++j)
                a[k][j][i] = (i == j ? 3 + k : 0) + 0.5 * i - 0.25 * j,
                b[k][i][j] = i + 2 * j + k;

    mul(column_major(a), b, column_major(product)).or_throw();
    inverse(column_major(a), column_major(inverted)).or_throw();

    for (int k = 0; k < 2; ++k)
        for (int j = 0; j < 2; ++j) {
            const double *p = product[k][j], *q = inverted[k][j];
            std::printf("matrix %d column %d: product %.9g %.9g %.9g %.9g, inverse "
                        "%.9g %.9g %.9g %.9g\n",
                        k, j, p[0], p[1], p[2], p[3], q[0], q[1], q[2], q[3]);
        }
}
