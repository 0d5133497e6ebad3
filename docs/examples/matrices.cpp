// Matrices: determinant, inverse and product, rank, the rectangular check, a failure,
// and a currency matrix.
#include <kornum/KornumFinMatrix.h>
#include <kornum/KornumMatrix.h>
#include <kornum/Kornumfinancials.h>
#include <kornum/PlatformExceptions.h>

#include <cmath>
#include <cstdio>

using namespace Kornumglobals;

static void Print(const char* label, const TKorFloatMatrix& M) {
    std::printf("%s:\n", label);
    for (const TKorFloatVector& row : M) {
        for (Float x : row) std::printf(" %6.3Lf", std::fabs(x) < 1e-12L ? 0.0L : x);  // no "-0.000"
        std::printf("\n");
    }
}

int main() {
    using namespace KornumMatrix;

    // The reductions leave their argument reduced, so each works on a copy.
    const TKorFloatMatrix A{{2, 1, 1}, {1, 3, 2}, {1, 0, 0}};
    TKorFloatMatrix work = CopyMatrix(A);
    std::printf("det A = %.6Lg\n", MatrixDeterminant(work));

    TKorFloatMatrix inverse;
    work = CopyMatrix(A);
    if (MatrixInverse(work, inverse)) Print("inverse of A", inverse);
    std::printf("A times its inverse is the identity: %s\n",
                MatrixIsIdentity(MultiplyMatrices(A, inverse)) ? "yes" : "no");

    TKorFloatMatrix singular{{1, 2, 3}, {2, 4, 6}, {1, 0, 1}};
    LongWord rank = 0;
    RowEchelonFormRank(singular, rank);
    std::printf("rank of a singular 3 x 3 matrix: %u\n", rank);
    Print("its row echelon form", singular);

    // Rows may differ in length; the check decides whether such a matrix is rectangular.
    const TKorFloatMatrix ragged{{1, 2, 3}, {4, 5}};
    LongWord rows = 0, cols = 0;
    Boolean rectangular = false;
    MatrixDimensions(ragged, rows, cols, rectangular);
    std::printf("ragged, check on: %u x %u, rectangular %s\n", rows, cols, rectangular ? "yes" : "no");
    KorMatrixRectangularCheck = false;
    MatrixDimensions(ragged, rows, cols, rectangular);
    std::printf("ragged, check off: %u x %u, rectangular %s\n", rows, cols, rectangular ? "yes" : "no");
    KorMatrixRectangularCheck = true;

    // Every failure is a Platform::EMathError carrying the identifier's text.
    try {
        MultiplyMatrices(CreateFloatMatrix(2, 3), CreateFloatMatrix(2, 3));
    } catch (const Platform::EMathError& e) {
        std::printf("2 x 3 times 2 x 3: \"%s\"\n", e.Message().c_str());
    }

    // Currency matrices: KorCurrency stores hundredths.
    const TKorCurrMatrix amounts{{1999, 501}, {1250, 750}};
    LongWord n = 0;
    const KorCurrency mean = KornumFinMatrix::GrandMean(amounts, n);
    std::printf("mean of %u amounts: %.2Lf\n", n, Kornumfinancials::Currency2Float(mean));
    return 0;
}
