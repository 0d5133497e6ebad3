// Sums, multiples, the linear transform, the grand mean, row and column operations, the
// element-wise functions and the product.
#include "MatrixTestSupport.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace {

using namespace MatrixTest;

template <class E>
class MatrixArithmeticTests : public ::testing::Test {};
TYPED_TEST_SUITE(MatrixArithmeticTests, ArithmeticTypes);

TYPED_TEST(MatrixArithmeticTests, SumsAndDifferencesCheckXThenTheShapes) {
    using E = TypeParam;
    Matrix<E> X = Make<E>({{5, 7}, {9, 11}});
    const Matrix<E> Y = Make<E>({{1, 2}, {3, 4}});
    EXPECT_EQ(Elements(AddMatrices(X, Y)), (Rows<E>{{6, 9}, {12, 15}}));
    EXPECT_EQ(Elements(SubtractMatrices(X, Y)), (Rows<E>{{4, 5}, {6, 7}}));
    AddToMatrix(X, Y);
    EXPECT_EQ(Elements(X), (Rows<E>{{6, 9}, {12, 15}}));
    SubtractFromMatrix(X, Y);
    SubtractFromMatrix(X, Y);
    EXPECT_EQ(Elements(X), (Rows<E>{{4, 5}, {6, 7}}));

    Matrix<E> empty, hollow = Make<E>({{}, {}}), ragged = Make<E>({{1, 2}, {3}}), wide = Make<E>({{1, 2, 3}});
    EXPECT_TRUE(Raises([&] { AddMatrices(empty, Y); }, rsMatrixIsEmpty));
    EXPECT_TRUE(Raises([&] { AddToMatrix(hollow, hollow); }, rsMatrixIsEmpty));
    EXPECT_TRUE(Raises([&] { SubtractMatrices(ragged, ragged); }, rsSameDimensions));
    EXPECT_TRUE(Raises([&] { SubtractFromMatrix(X, wide); }, rsSameDimensions));
    EXPECT_EQ(Elements(X), (Rows<E>{{4, 5}, {6, 7}}));
}

TYPED_TEST(MatrixArithmeticTests, MultiplesAndTransformsWalkEachRowByItsLength) {
    using E = TypeParam;
    Matrix<E> X = Make<E>({{1, 2, 3}, {4}, {}});
    EXPECT_EQ(Elements(MultiplyMatrixByConst(X, 3)), (Rows<E>{{3, 6, 9}, {12}, {}}));
    MultiplyMatrixByConst2(X, 2);
    EXPECT_EQ(Elements(X), (Rows<E>{{2, 4, 6}, {8}, {}}));
    LinearTransformMatrix(X, 2, 1);
    EXPECT_EQ(Elements(X), (Rows<E>{{5, 9, 13}, {17}, {}}));
    Matrix<E> empty;
    EXPECT_TRUE(Raises([&] { MultiplyMatrixByConst(empty, 2); }, rsMatrixIsEmpty));
    EXPECT_TRUE(Raises([&] { MultiplyMatrixByConst2(empty, 2); }, rsMatrixIsEmpty));
    EXPECT_TRUE(Raises([&] { LinearTransformMatrix(empty, 2, 1); }, rsMatrixIsEmpty));

    LongWord n = 77;
    EXPECT_EQ(GrandMean(Make<E>({{1, 2, 3}, {4}}), n), 2.5L);
    EXPECT_EQ(n, 4u);
    EXPECT_TRUE(Raises([&] { GrandMean(Make<E>({{}, {}}), n); }, rsMatrixIsEmpty));
    EXPECT_TRUE(Raises([&] { GrandMean(empty, n); }, rsMatrixIsEmpty));
    EXPECT_EQ(n, 4u);
}

TYPED_TEST(MatrixArithmeticTests, RowAndColumnOperations) {
    using E = TypeParam;
    Matrix<E> X = Make<E>({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}), empty, ragged = Make<E>({{1, 2}, {3}});
    ScaleMatrixRow(X, 1, 2);
    ScaleMatrixCol(X, 0, 3);
    AddMatrixRows(X, 0, 2, 1);
    AddMatrixCols(X, 2, 1, 2);
    AddMatrixRows(X, 1, 1, 1);  // the row added to itself: doubled
    EXPECT_EQ(Elements(X), (Rows<E>{{24, 10, 32}, {48, 20, 64}, {21, 8, 25}}));

    ScaleMatrixRow(empty, 99, 1);  // a factor of exactly 1: no check at all
    ScaleMatrixCol(ragged, 99, 1);
    EXPECT_TRUE(Raises([&] { ScaleMatrixRow(X, 99, 2); }, rsInvalidRow));
    EXPECT_TRUE(Raises([&] { ScaleMatrixCol(X, 3, 2); }, rsInvalidCol));
    EXPECT_TRUE(Raises([&] { AddMatrixRows(X, 0, 3, 1); }, rsInvalidRow));
    EXPECT_TRUE(Raises([&] { AddMatrixCols(X, 3, 0, 1); }, rsInvalidCol));
    EXPECT_TRUE(Raises([&] { AddMatrixRows(empty, 0, 0, 1); }, rsMatrixIsEmpty));
    EXPECT_TRUE(Raises([&] { ScaleMatrixRow(ragged, 0, 2); }, rsMatrixIsEmpty));  // Cols reads 0
    EXPECT_EQ(Elements(X), (Rows<E>{{24, 10, 32}, {48, 20, 64}, {21, 8, 25}}));
}

TEST(MatrixIntegerArithmetic, ProductsWrapInTheElementWidth) {
    TKorInt64Matrix X = CreateInt64Matrix(1, 2);
    X[0][0] = Int64(1) << 62;
    X[0][1] = std::numeric_limits<Int64>::max();
    EXPECT_EQ(Elements(MultiplyMatrixByConst(X, 4)), (Rows<Int64>{{0, -4}}));
    TKorLIntMatrix Y = CreateLIntMatrix(1, 1);
    Y[0][0] = 0x40000000;
    LinearTransformMatrix(Y, 2, 1);
    EXPECT_EQ(Y[0][0], std::numeric_limits<Integer>::min() + 1);
    AddMatrixRows(Y, 0, 0, -1);
    EXPECT_EQ(Y[0][0], 0);
}

TEST(MatrixFloatingArithmetic, DoubleSumsRoundThroughFloat) {
    // 1 + (2^-53 + 2^-105): rounded straight to Double the sum would be 1 + 2^-52; in
    // Float it is 1 + 2^-53, a tie that rounds to the even 1 in Double.
    const Double b = std::ldexp(1.0, -53) + std::ldexp(1.0, -105);
    TKorDoubleMatrix X = CreateDoubleMatrix(1, 1), Y = CreateDoubleMatrix(1, 1);
    X[0][0] = 1;
    Y[0][0] = b;
    EXPECT_EQ(AddMatrices(X, Y)[0][0], 1.0);
}

template <class E>
class FloatingMatrixArithmetic : public ::testing::Test {};
TYPED_TEST_SUITE(FloatingMatrixArithmetic, FloatingTypes);

TYPED_TEST(FloatingMatrixArithmetic, ElementWiseFunctionsFailWhereTheBadElementIs) {
    using E = TypeParam;
    Matrix<E> X = Make<E>({{4, 0}, {-1, 9}});
    EXPECT_TRUE(Raises([&] { SqrtMatrix(X); }, rsMatrixNeg));
    EXPECT_EQ(Elements(X), (Rows<E>{{2, 0}, {-1, 9}}));
    Matrix<E> L = Make<E>({{1, 0}});
    EXPECT_TRUE(Raises([&] { LnMatrix(L); }, rsMatrixNotPos));
    EXPECT_TRUE(Raises([&] { Log10Matrix(L); }, rsMatrixNotPos));
    Matrix<E> R = Make<E>({{2, 4}, {0, 5}});
    EXPECT_TRUE(Raises([&] { InvMatrix(R); }, rsMatrixZero));
    EXPECT_EQ(Elements(R), (Rows<E>{{0.5, 0.25}, {0, 5}}));
    Matrix<E> T = Make<E>({{1e-3f, 100}, {-3}});  // only an exact zero fails
    InvMatrix(T);
    SquareMatrix(T);
    Log10Matrix(T);
    EXPECT_TRUE(AllMatch({{T[0][0], 6}, {T[0][1], -4}, {T[1][0], ValueOf<E>(std::log10(1 / ValueOf<E>(9)))}}, 1e-5L));
    Matrix<E> empty;
    EXPECT_TRUE(Raises([&] { SquareMatrix(empty); }, rsMatrixIsEmpty));
}

TYPED_TEST(FloatingMatrixArithmetic, ProductChecksShapeThenEmptinessThenInnerSize) {
    using E = TypeParam;
    const Matrix<E> A = Make<E>({{1, 2, 3}, {4, 5, 6}}), B = Make<E>({{1}, {0}, {-1}});
    EXPECT_EQ(Elements(MultiplyMatrices(A, B)), (Rows<E>{{-2}, {-2}}));
    EXPECT_TRUE(Raises([&] { MultiplyMatrices(A, A); }, rsMatrixMult));
    EXPECT_TRUE(Raises([&] { MultiplyMatrices(A, Make<E>({{1, 2}, {3}})); }, rsMatrixRect));
    EXPECT_TRUE(Raises([&] { MultiplyMatrices(Matrix<E>(), A); }, rsMatrixRect));
    RectangularCheckScope off(false);
    EXPECT_TRUE(Raises([&] { MultiplyMatrices(Matrix<E>(), A); }, rsMatrixIsEmpty));
}

// The product against the plain triple loop, the sum accumulated in the result element
// with k rising: identical bits for every shape the blocked product cuts into.
TYPED_TEST(FloatingMatrixArithmetic, ProductEqualsThePlainTripleLoopBitForBit) {
    using E = TypeParam;
    using V = ValueOf<E>;
    std::mt19937_64 gen(5);
    std::uniform_real_distribution<double> uniform(-1, 1);
    for (auto [rows, depth, cols] : {std::tuple{1, 1, 1}, {2, 3, 5}, {37, 29, 41}, {64, 64, 64}}) {
        Matrix<E> X, Y;
        X.SetLength(rows);
        Y.SetLength(depth);
        for (int i = 0; i < rows; ++i) {
            X[i].SetLength(depth);
            for (int k = 0; k < depth; ++k) X[i][k] = V(uniform(gen) / 3);
        }
        for (int k = 0; k < depth; ++k) {
            Y[k].SetLength(cols);
            for (int j = 0; j < cols; ++j) Y[k][j] = V(uniform(gen) * 7);
        }
        const Matrix<E> R = MultiplyMatrices(X, Y);
        for (int i = 0; i < rows; ++i)
            for (int j = 0; j < cols; ++j) {
                E sum = V(0);
                for (int k = 0; k < depth; ++k) sum = V(Float(V(sum)) + Float(V(X[i][k])) * Float(V(Y[k][j])));
                ASSERT_EQ(std::memcmp(&R[i][j], &sum, sizeof(E)), 0) << i << ", " << j;
            }
    }
}

}  // namespace
