// Row echelon form, rank, determinant and inverse.
#include "MatrixTestSupport.h"

#include <cmath>
#include <random>

namespace {

using namespace MatrixTest;

template <class E>
class MatrixReduction : public ::testing::Test {};
TYPED_TEST_SUITE(MatrixReduction, FloatingTypes);

TYPED_TEST(MatrixReduction, DeterminantsCountExchangesAndScaledPivots) {
    using E = TypeParam;
    Matrix<E> swap = Make<E>({{0, 1}, {1, 0}}), diagonal = Make<E>({{2, 0}, {0, 3}});
    EXPECT_EQ(MatrixDeterminant(swap), -1);
    EXPECT_EQ(MatrixDeterminant(diagonal), 6);
    EXPECT_EQ(Elements(diagonal), (Rows<E>{{1, 0}, {0, 1}}));  // left reduced

    // Pivot 2 (row 1) exchanged up and scaled: det -2; the second row cancels to zero.
    Matrix<E> singular = Make<E>({{1, 2}, {2, 4}});
    EXPECT_EQ(MatrixDeterminant(singular), 0);
    EXPECT_EQ(Elements(singular), (Rows<E>{{1, 2}, {0, 0}}));

    EXPECT_TRUE(Raises([] { Matrix<E> M = Make<E>({{1, 2, 3}, {4, 5, 6}}); MatrixDeterminant(M); }, rsMatrixSqr));
    EXPECT_TRUE(Raises([] { Matrix<E> M; MatrixDeterminant(M); }, rsMatrixIsEmpty));
    EXPECT_TRUE(Raises([] { Matrix<E> M = Make<E>({{1, 2}, {3}}); MatrixDeterminant(M); }, rsMatrixIsEmpty));
}

TYPED_TEST(MatrixReduction, PivotsAreTheTopmostLargestEntriesNotZeroWithinTolerance) {
    using E = TypeParam;
    // -3 and 3 tie; the earlier row wins and is scaled by 1 / -3.
    Matrix<E> tie = Make<E>({{1, 0}, {-3, 6}, {3, 3}});
    RowEchelonForm(tie);
    EXPECT_EQ(Elements(tie)[0], (std::vector<ValueOf<E>>{1, -2}));

    if constexpr (std::is_same_v<E, PackedFloat>) {
        // 1e-16 counts as zero: column 0 has no pivot, and its row is not eliminated.
        Matrix<E> tiny = Make<E>({{1e-16L, 1}, {0, 2}});
        LongWord rank = 9;
        RowEchelonFormRank(tiny, rank);
        EXPECT_EQ(Elements(tiny), (Rows<E>{{0, 1}, {1e-16L, 0}}));
        EXPECT_EQ(rank, 1u);
    }
    // A pivot within tolerance of 1 is left unscaled and still counted in the determinant.
    Matrix<E> nearOne = Make<E>({{1, 4}, {0, 2}});
    EXPECT_EQ(MatrixDeterminant(nearOne), 2);
    EXPECT_EQ(Elements(nearOne), (Rows<E>{{1, 4}, {0, 1}}));
}

// Single elements keep rounding residues near 1e-8: a singular Single matrix shows as
// singular only under a tolerance that wide.
template <class E>
ToleranceScope ToleranceFor() {
    return ToleranceScope(std::is_same_v<E, Single> ? 1e-5L : Kornumglobals::KorTolerance);
}

TYPED_TEST(MatrixReduction, RankCountsTheRowsLeftNonZero) {
    using E = TypeParam;
    const ToleranceScope tolerance = ToleranceFor<E>();
    Matrix<E> M = Make<E>({{1, 2, 3}, {4, 5, 7}, {5, 7, 10}});
    LongWord rank = 0;
    RowEchelonFormRank(M, rank);
    EXPECT_EQ(rank, 2u);
    Matrix<E> wide = Make<E>({{0, 0, 1, 2}, {0, 0, 2, 4}, {0, 1, 0, 0}});
    RowEchelonFormRank(wide, rank);
    EXPECT_EQ(rank, 2u);
    Matrix<E> ragged = Make<E>({{1, 2}, {3}});
    EXPECT_TRUE(Raises([&] { RowEchelonFormRank(ragged, rank); }, rsMatrixIsEmpty));
    EXPECT_EQ(rank, 0u);  // set before the checks
    EXPECT_TRUE(Raises([&] { Matrix<E> M0; RowEchelonForm(M0); }, rsMatrixIsEmpty));
}

TYPED_TEST(MatrixReduction, InverseOrFalseForASingularMatrix) {
    using E = TypeParam;
    Matrix<E> A = Make<E>({{4, 7}, {2, 6}}), Inv;
    ASSERT_TRUE(MatrixInverse(A, Inv));
    const Float tolerance = std::is_same_v<E, Single> ? 1e-6L : std::is_same_v<E, Double> ? 1e-15L : 1e-18L;
    EXPECT_TRUE(AllMatch({{Inv[0][0], 0.6L}, {Inv[0][1], -0.7L}, {Inv[1][0], -0.2L}, {Inv[1][1], 0.4L}}, tolerance));
    Matrix<E> S = Make<E>({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
    {
        const ToleranceScope wide = ToleranceFor<E>();
        EXPECT_FALSE(MatrixInverse(S, Inv));
    }
    EXPECT_TRUE(Raises([&] { Matrix<E> W = Make<E>({{1, 2}}); MatrixInverse(W, Inv); }, rsMatrixSqr));
    Matrix<E> same = Make<E>({{2, 0}, {0, 4}});
    ASSERT_TRUE(MatrixInverse(same, same));  // Inv may be the matrix itself
    EXPECT_EQ(Elements(same), (Rows<E>{{0.5, 0}, {0, 0.25}}));
}

TEST(MatrixReductionGlobal, TheCheckIsOffDuringAReductionAndRestoredAfter) {
    TKorFloatMatrix A = CreateFloatIdentityMatrix(3), Inv;
    MatrixDeterminant(A);
    MatrixInverse(A, Inv);
    EXPECT_TRUE(KorMatrixRectangularCheck);
    TKorFloatMatrix wide = CreateFloatMatrix(2, 3);
    EXPECT_TRUE(Raises([&] { MatrixInverse(wide, Inv); }, rsMatrixSqr));
    EXPECT_TRUE(KorMatrixRectangularCheck);
    {
        RectangularCheckScope off(false);
        TKorFloatMatrix ragged = CreateFloatIdentityMatrix(2);
        ragged[1].SetLength(3);  // taken at row 0's length while the check is off
        EXPECT_EQ(MatrixDeterminant(ragged), 1);
        EXPECT_FALSE(KorMatrixRectangularCheck);
    }
}

// Random matrices: the residues left of each pivot stay at rounding level, so a
// 128 x 128 inverse is accurate and a rank-deficient 64 x 64 matrix shows its rank.
TEST(MatrixReductionAtSize, RandomInverseAndRankDeficiency) {
    std::mt19937_64 gen(21);
    std::uniform_real_distribution<double> uniform(-1, 1);
    const int n = 128;
    TKorFloatMatrix A = CreateFloatMatrix(n, n), Inv;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) A[i][j] = uniform(gen);
    TKorFloatMatrix work = CopyMatrix(A);
    ASSERT_TRUE(MatrixInverse(work, Inv));
    const TKorFloatMatrix P = MultiplyMatrices(A, Inv);
    Float worst = 0;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) worst = std::max(worst, std::fabs(Float(P[i][j]) - (i == j ? 1 : 0)));
    EXPECT_LT(worst, 1e-13L);

    // Rows 0 .. 62 random, row 63 the sum of rows 0 and 1: rank 63, determinant ~0.
    const int m = 64;
    TKorFloatMatrix D = CreateFloatMatrix(m, m);
    for (int i = 0; i < m - 1; ++i)
        for (int j = 0; j < m; ++j) D[i][j] = uniform(gen);
    for (int j = 0; j < m; ++j) D[m - 1][j] = Float(D[0][j]) + Float(D[1][j]);
    TKorFloatMatrix D2 = CopyMatrix(D), D3 = CopyMatrix(D), regular = CopyMatrix(D);
    for (int j = 0; j < m; ++j) regular[m - 1][j] = uniform(gen);
    LongWord rank = 0;
    RowEchelonFormRank(D, rank);
    EXPECT_EQ(rank, LongWord(m - 1));
    // Zero within rounding: against the determinant of the same rows made regular.
    EXPECT_LT(std::fabs(MatrixDeterminant(D2) / MatrixDeterminant(regular)), 1e-15L);
    EXPECT_FALSE(MatrixInverse(D3, Inv));
}

}  // namespace
