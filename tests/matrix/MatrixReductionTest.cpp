// Row echelon form, rank, determinant and inverse.
#include "MatrixTestSupport.h"

#include <kornum/Kornummath.h>

#include <cmath>
#include <cstring>
#include <random>
#include <tuple>

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

namespace {

// The reductions written out step by step with the public row operations, the way the
// library's reductions are defined: a search for the pivot, an exchange, the scaling of
// the pivot row in every column, and one AddMatrixRows per row to clear; then for the
// inverse the same on Inv and the back substitution.
Float LiteralReduction(TKorFloatMatrix& M, TKorFloatMatrix* Inv) {
    using Kornummath::FloatIsZero;
    const int rows = M.Length(), cols = M[0].Length();
    RectangularCheckScope off(false);
    Float det = 1;
    for (int r = 0, c = 0; r < rows && c < cols; ++r, ++c) {
        int pr = -1, pc = -1;
        Float largest = 0;
        for (int col = c; col < cols && pr < 0; ++col)
            for (int row = r; row < rows; ++row)
                if (!FloatIsZero(M[row][col]) && std::fabs(Float(M[row][col])) > largest)
                    largest = std::fabs(Float(M[row][col])), pr = row, pc = col;
        if (pr < 0) break;
        if (pr != r) {
            SwapMatrixRows(M, LongWord(r), LongWord(pr));
            if (Inv) SwapMatrixRows(*Inv, LongWord(r), LongWord(pr));
            det = -det;
        }
        c = pc;
        const Float p = M[r][c];
        if (!FloatIsZero(p - 1)) {
            ScaleMatrixRow(M, LongWord(r), 1 / p);
            if (Inv) ScaleMatrixRow(*Inv, LongWord(r), 1 / p);
            det *= p;
        }
        for (int k = r + 1; k < rows; ++k) {
            const Float f = -Float(M[k][c]);
            if (FloatIsZero(f)) continue;
            AddMatrixRows(M, LongWord(k), LongWord(r), f);
            if (Inv) AddMatrixRows(*Inv, LongWord(k), LongWord(r), f);
        }
    }
    if (Inv)
        for (int i = rows - 1; i >= 1; --i)
            for (int k = i - 1; k >= 0; --k) {
                const Float f = -Float(M[k][i]);
                if (FloatIsZero(f)) continue;
                AddMatrixRows(M, LongWord(k), LongWord(i), f);
                AddMatrixRows(*Inv, LongWord(k), LongWord(i), f);
            }
    for (int i = 0; i < std::min(rows, cols); ++i) det *= Float(M[i][i]);
    return det;
}

bool SameBits(const TKorFloatMatrix& a, const TKorFloatMatrix& b) {
    for (int i = 0; i < a.Length(); ++i)
        if (std::memcmp(a[i].data(), b[i].data(), sizeof(PackedFloat) * std::size_t(a[i].Length())) != 0) return false;
    return true;
}

// Sizes across the blocks in which the library applies its row operations, wide and
// tall shapes, zero columns and dependent rows, and exact ties between candidate pivots.
TEST(MatrixReductionSteps, EveryReductionIsTheLiteralSequenceToTheBit) {
    std::mt19937_64 gen(8);
    std::uniform_int_distribution<int> small(-4, 4);
    std::uniform_real_distribution<double> uniform(-1, 1);
    for (auto [rows, cols, integers] : {std::tuple{5, 5, true}, {17, 17, false}, {40, 40, true}, {50, 33, false},
                                        {33, 50, false}, {70, 70, false}}) {
        TKorFloatMatrix A = CreateFloatMatrix(LongWord(rows), LongWord(cols));
        for (int i = 0; i < rows; ++i)
            for (int j = 0; j < cols; ++j) A[i][j] = integers ? Float(small(gen)) : Float(uniform(gen));
        for (int i = 0; i < rows; ++i) A[i][cols / 3] = 0;                                   // a zero column
        for (int j = 0; j < cols; ++j) A[rows - 1][j] = Float(A[0][j]) - Float(A[1][j]);  // a dependent row

        TKorFloatMatrix echelon = CopyMatrix(A), literal = CopyMatrix(A);
        RowEchelonForm(echelon);
        LiteralReduction(literal, nullptr);
        EXPECT_TRUE(SameBits(echelon, literal)) << rows << " x " << cols;
        if (rows != cols) continue;

        TKorFloatMatrix det = CopyMatrix(A), literalDet = CopyMatrix(A);
        EXPECT_EQ(MatrixDeterminant(det), LiteralReduction(literalDet, nullptr));
        // An invertible one: the dependent row replaced.
        for (int j = 0; j < cols; ++j) A[rows - 1][j] = uniform(gen);
        for (int i = 0; i < rows; ++i) A[i][cols / 3] = uniform(gen);
        TKorFloatMatrix M = CopyMatrix(A), literalM = CopyMatrix(A), Inv, literalInv = CreateFloatIdentityMatrix(LongWord(rows));
        ASSERT_TRUE(MatrixInverse(M, Inv));
        LiteralReduction(literalM, &literalInv);
        EXPECT_TRUE(SameBits(M, literalM)) << rows;
        EXPECT_TRUE(SameBits(Inv, literalInv)) << rows;
    }
}

}  // namespace
