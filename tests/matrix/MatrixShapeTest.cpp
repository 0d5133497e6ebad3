// Creation, shape probes, copies, rows and columns as vectors, swaps, transposition and
// the two sorts.
#include "MatrixTestSupport.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

namespace {

using namespace MatrixTest;

// The creation functions carry the type in their name.
template <class E> struct Creators;
#define KORNUM_TEST_CREATORS(E, Name)                                                       \
    template <> struct Creators<E> {                                                        \
        static Matrix<E> Zeros(LongWord r, LongWord c) { return Create##Name##Matrix(r, c); } \
        static Matrix<E> Identity(LongWord n) { return Create##Name##IdentityMatrix(n); }    \
    };
KORNUM_TEST_CREATORS(PackedFloat, Float)
KORNUM_TEST_CREATORS(Double, Double)
KORNUM_TEST_CREATORS(Single, Single)
KORNUM_TEST_CREATORS(Int64, Int64)
KORNUM_TEST_CREATORS(Cardinal, LWord)
KORNUM_TEST_CREATORS(Integer, LInt)
KORNUM_TEST_CREATORS(Word, Word)
KORNUM_TEST_CREATORS(SmallInt, SmallInt)
KORNUM_TEST_CREATORS(Byte, Byte)
KORNUM_TEST_CREATORS(ShortInt, SInt)
#undef KORNUM_TEST_CREATORS

struct Dims {
    LongWord rows, cols;
    Boolean rectangular;
    bool operator==(const Dims&) const = default;
};
template <class E>
Dims DimensionsOf(const Matrix<E>& M) {
    Dims d{};
    MatrixDimensions(M, d.rows, d.cols, d.rectangular);
    return d;
}

template <class E>
class MatrixShape : public ::testing::Test {};
TYPED_TEST_SUITE(MatrixShape, AllElementTypes);

TYPED_TEST(MatrixShape, CreationAndTheShapeProbes) {
    using E = TypeParam;
    EXPECT_EQ(Elements(Creators<E>::Zeros(2, 3)), (Rows<E>{{0, 0, 0}, {0, 0, 0}}));
    EXPECT_EQ(Elements(Creators<E>::Identity(3)), (Rows<E>{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}));
    EXPECT_TRUE(Creators<E>::Zeros(0, 5).IsEmpty());
    EXPECT_TRUE(Creators<E>::Identity(0).IsEmpty());

    // Three empty rows: rectangular to the plain test, not to the check.
    const Matrix<E> hollow = Creators<E>::Zeros(3, 0), empty, ragged = Make<E>({{1, 2}, {3}});
    EXPECT_TRUE(MatrixIsRectangular(hollow));
    EXPECT_EQ(DimensionsOf(hollow), (Dims{3, 0, false}));
    EXPECT_FALSE(MatrixIsRectangular(empty));
    EXPECT_EQ(DimensionsOf(empty), (Dims{0, 0, false}));
    EXPECT_EQ(DimensionsOf(ragged), (Dims{2, 0, false}));
    EXPECT_FALSE(MatrixIsSquare(ragged));
    {
        RectangularCheckScope off(false);
        EXPECT_EQ(DimensionsOf(ragged), (Dims{2, 2, true}));
        EXPECT_EQ(DimensionsOf(empty), (Dims{0, 0, true}));
        EXPECT_TRUE(MatrixIsSquare(ragged));
    }
    const Matrix<E> a = Creators<E>::Zeros(2, 3), b = Creators<E>::Zeros(2, 3), c = Creators<E>::Zeros(3, 2);
    EXPECT_TRUE(MatricesSameDimensions(a, b));
    EXPECT_FALSE(MatricesSameDimensions(a, c));
    EXPECT_FALSE(MatricesSameDimensions(ragged, ragged));
    EXPECT_TRUE(MatrixIsSquare(Creators<E>::Identity(2)));
    EXPECT_FALSE(MatrixIsSquare(a));
}

TYPED_TEST(MatrixShape, CopiesAreDeepAndKeepRaggedRows) {
    using E = TypeParam;
    const Matrix<E> M = Make<E>({{1, 2, 3}, {4}});
    Matrix<E> copy = CopyMatrix(M);
    const TKorFloatMatrix wide = Matrix2FloatMatrix(M);
    copy[0][0] = ValueOf<E>(9);
    EXPECT_EQ(Elements(M), (Rows<E>{{1, 2, 3}, {4}}));
    EXPECT_EQ(Elements(copy), (Rows<E>{{9, 2, 3}, {4}}));
    EXPECT_EQ(Elements(wide), (Rows<PackedFloat>{{1, 2, 3}, {4}}));
    EXPECT_TRUE(CopyMatrix(Matrix<E>()).IsEmpty());
}

TYPED_TEST(MatrixShape, ExtractAndOverwriteActOnlyFromTwoByTwo) {
    using E = TypeParam;
    using V = ValueOf<E>;
    Matrix<E> M = Make<E>({{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}});
    const TKorVector<E> row = ExtractMatrixRow(M, 1), col = ExtractMatrixCol(M, 2);
    EXPECT_EQ(std::vector<V>(row.begin(), row.end()), (std::vector<V>{5, 6, 7, 8}));
    EXPECT_EQ(std::vector<V>(col.begin(), col.end()), (std::vector<V>{3, 7, 11}));
    EXPECT_TRUE(Raises([&] { ExtractMatrixRow(M, 3); }, rsInvalidRow));
    EXPECT_TRUE(Raises([&] { ExtractMatrixCol(M, 4); }, rsInvalidCol));

    TKorVector<E> two, five;
    two.SetLength(2);
    two[0] = V(20), two[1] = V(21);
    five.SetLength(5);
    for (Integer i = 0; i < 5; ++i) five[i] = V(30 + i);
    OverwriteMatrixRow(M, 0, two, V(99));   // padded with the default
    OverwriteMatrixCol(M, 3, five, V(99));  // cut at the number of rows
    EXPECT_EQ(Elements(M), (Rows<E>{{20, 21, 99, 30}, {5, 6, 7, 31}, {9, 10, 11, 32}}));
    EXPECT_TRUE(Raises([&] { OverwriteMatrixRow(M, 3, two, V(0)); }, rsInvalidRow));
    EXPECT_TRUE(Raises([&] { OverwriteMatrixCol(M, 4, two, V(0)); }, rsInvalidCol));

    // One row, one column, or ragged with the check on: silently nothing.
    Matrix<E> single = Make<E>({{1, 2, 3, 4}}), ragged = Make<E>({{1, 2}, {3}});
    EXPECT_TRUE(ExtractMatrixRow(single, 0).IsEmpty());
    EXPECT_TRUE(ExtractMatrixCol(single, 9).IsEmpty());
    EXPECT_TRUE(ExtractMatrixRow(ragged, 7).IsEmpty());
    OverwriteMatrixRow(single, 0, two, V(0));
    OverwriteMatrixCol(ragged, 7, two, V(0));
    EXPECT_EQ(Elements(single), (Rows<E>{{1, 2, 3, 4}}));
    EXPECT_EQ(Elements(ragged), (Rows<E>{{1, 2}, {3}}));
}

TYPED_TEST(MatrixShape, SwapsExchangeElementsAfterTheirChecks) {
    using E = TypeParam;
    Matrix<E> M = Make<E>({{1, 2, 3}, {4, 5, 6}}), empty, ragged = Make<E>({{1, 2}, {3}});
    const TKorVector<E> row0 = M[0];  // another holder of row 0
    SwapMatrixRows(M, 0, 1);
    SwapMatrixCols(M, 0, 2);
    EXPECT_EQ(Elements(M), (Rows<E>{{6, 5, 4}, {3, 2, 1}}));
    EXPECT_EQ(ValueOf<E>(row0[0]), ValueOf<E>(6));
    SwapMatrixRows(empty, 2, 2);  // equal indices: no check at all
    SwapMatrixCols(empty, 5, 5);
    EXPECT_TRUE(Raises([&] { SwapMatrixRows(empty, 0, 1); }, rsMatrixIsEmpty));
    EXPECT_TRUE(Raises([&] { SwapMatrixRows(ragged, 0, 1); }, rsMatrixIsEmpty));  // Cols reads 0
    EXPECT_TRUE(Raises([&] { SwapMatrixRows(M, 0, 2); }, rsInvalidRow));
    EXPECT_TRUE(Raises([&] { SwapMatrixCols(M, 3, 0); }, rsInvalidCol));
    EXPECT_EQ(Elements(M), (Rows<E>{{6, 5, 4}, {3, 2, 1}}));
}

TYPED_TEST(MatrixShape, TransposeTestsShapeFirst) {
    using E = TypeParam;
    EXPECT_EQ(Elements(TransposeMatrix(Make<E>({{1, 2, 3}, {4, 5, 6}}))), (Rows<E>{{1, 4}, {2, 5}, {3, 6}}));
    EXPECT_TRUE(Raises([] { TransposeMatrix(Matrix<E>()); }, rsMatrixRect));
    EXPECT_TRUE(Raises([] { TransposeMatrix(Make<E>({{1, 2}, {3}})); }, rsMatrixRect));
    RectangularCheckScope off(false);
    EXPECT_TRUE(TransposeMatrix(Matrix<E>()).IsEmpty());
}

TYPED_TEST(MatrixShape, SortsReorderWholeRowsAndColumns) {
    using E = TypeParam;
    Matrix<E> M = Make<E>({{3, 10}, {1, 11}, {2, 12}});
    QSortMatrixRowsOnCol(M, 0, true);
    EXPECT_EQ(Elements(M), (Rows<E>{{1, 11}, {2, 12}, {3, 10}}));
    QSortMatrixRowsOnCol(M, 1, false);
    EXPECT_EQ(Elements(M), (Rows<E>{{2, 12}, {1, 11}, {3, 10}}));
    QSortMatrixColsOnRow(M, 0, true);
    EXPECT_EQ(Elements(M), (Rows<E>{{2, 12}, {1, 11}, {3, 10}}));
    QSortMatrixColsOnRow(M, 2, false);
    EXPECT_EQ(Elements(M), (Rows<E>{{12, 2}, {11, 1}, {10, 3}}));
    EXPECT_TRUE(Raises([&] { QSortMatrixRowsOnCol(M, 2, true); }, rsInvalidCol));
    EXPECT_TRUE(Raises([&] { QSortMatrixColsOnRow(M, 3, true); }, rsInvalidRow));

    // A single column or a ragged matrix is neither sorted nor checked.
    Matrix<E> column = Make<E>({{5}, {4}, {3}, {2}, {1}}), ragged = Make<E>({{2, 1}, {1}});
    QSortMatrixRowsOnCol(column, 7, true);
    QSortMatrixRowsOnCol(ragged, 0, true);
    EXPECT_EQ(Elements(column), (Rows<E>{{5}, {4}, {3}, {2}, {1}}));
    EXPECT_EQ(Elements(ragged), (Rows<E>{{2, 1}, {1}}));
}

// The sort's order among equal keys against the iterative scheme written out here on
// 1-based bounds: middle pivot, Hoare scans, smaller part first.
std::vector<int> SchemeOrder(std::vector<int> keys, bool ascending) {
    std::vector<int> ids(keys.size());
    std::iota(ids.begin(), ids.end(), 0);
    const auto before = [ascending](int a, int b) { return ascending ? a < b : a > b; };
    std::vector<std::pair<int, int>> stack{{1, int(keys.size())}};
    while (!stack.empty()) {
        auto [L, R] = stack.back();
        stack.pop_back();
        while (L < R) {
            int i = L, j = R;
            const int x = keys[std::size_t((L + R) / 2 - 1)];
            while (i <= j) {
                while (before(keys[std::size_t(i - 1)], x)) ++i;
                while (before(x, keys[std::size_t(j - 1)])) --j;
                if (i <= j) {
                    std::swap(keys[std::size_t(i - 1)], keys[std::size_t(j - 1)]);
                    std::swap(ids[std::size_t(i - 1)], ids[std::size_t(j - 1)]);
                    ++i, --j;
                }
            }
            if (j - L < R - i) {
                if (i < R) stack.push_back({i, R});
                R = j;
            } else {
                if (L < j) stack.push_back({L, j});
                L = i;
            }
        }
    }
    return ids;
}

TEST(MatrixSortScheme, EqualKeysEndWhereTheSchemePutsThem) {
    std::mt19937 gen(11);
    for (bool ascending : {true, false}) {
        const int n = 300;
        std::vector<int> keys(n);
        TKorLIntMatrix rows = CreateLIntMatrix(n, 2), cols = CreateLIntMatrix(2, n);
        for (int i = 0; i < n; ++i) {
            keys[std::size_t(i)] = int(gen() % 20);
            rows[i][0] = cols[0][i] = keys[std::size_t(i)];
            rows[i][1] = cols[1][i] = i;
        }
        QSortMatrixRowsOnCol(rows, 0, ascending);
        QSortMatrixColsOnRow(cols, 0, ascending);
        const std::vector<int> expected = SchemeOrder(keys, ascending);
        for (int i = 0; i < n; ++i) {
            ASSERT_EQ(rows[i][1], expected[std::size_t(i)]) << i;
            ASSERT_EQ(cols[1][i], expected[std::size_t(i)]) << i;
        }
    }
}

template <class E>
class FloatingMatrixTests : public ::testing::Test {};
TYPED_TEST_SUITE(FloatingMatrixTests, FloatingTypes);

TYPED_TEST(FloatingMatrixTests, ZeroRowsAndIdentityAreTolerant) {
    using E = TypeParam;
    using V = ValueOf<E>;
    const V tiny = V(std::is_same_v<E, PackedFloat> ? 1e-16L : 0);  // below KorTolerance as a Float
    EXPECT_EQ(MatrixZeroRows(Make<E>({{0, tiny}, {1, 0}, {0, 0}})), 2u);
    EXPECT_TRUE(MatrixIsIdentity(Make<E>({{1 + tiny, tiny}, {0, 1}})));
    EXPECT_FALSE(MatrixIsIdentity(Make<E>({{1, 0.001f}, {0, 1}})));
    EXPECT_TRUE(Raises([] { MatrixZeroRows(Matrix<E>()); }, rsMatrixIsEmpty));
    EXPECT_TRUE(Raises([] { MatrixZeroRows(Make<E>({{1, 2}, {3}})); }, rsMatrixIsEmpty));
    EXPECT_TRUE(Raises([] { MatrixIsIdentity(Make<E>({{1, 0, 0}, {0, 1, 0}})); }, rsMatrixSqr));
    EXPECT_TRUE(Raises([] { MatrixIsIdentity(Matrix<E>()); }, rsMatrixIsEmpty));
}

}  // namespace

namespace {

// Each family has exactly its members: the others do not compile.
template <class M>
concept HasProduct = requires(M m) { KornumMatrix::MultiplyMatrices(m, m); };
template <class M>
concept HasSum = requires(M m) { KornumMatrix::AddMatrices(m, m); };
template <class M>
concept HasZeroRowCount = requires(M m) { KornumMatrix::MatrixZeroRows(m); };
template <class M>
concept HasReduction = requires(M m) { KornumMatrix::RowEchelonForm(m); };
template <class M>
concept HasSort = requires(M m) { KornumMatrix::QSortMatrixRowsOnCol(m, 0u, true); };

static_assert(HasProduct<TKorSingleMatrix> && !HasProduct<TKorInt64Matrix> && !HasProduct<TKorLIntMatrix>);
static_assert(HasSum<TKorLIntMatrix> && HasSum<TKorInt64Matrix> && !HasSum<TKorWordMatrix> && !HasSum<TKorByteMatrix>);
static_assert(HasZeroRowCount<TKorDoubleMatrix> && !HasZeroRowCount<TKorInt64Matrix>);
static_assert(HasReduction<TKorFloatMatrix> && !HasReduction<TKorLWordMatrix>);
static_assert(HasSort<TKorSIntMatrix> && !HasSort<TKorCurrencyMatrix>);

}  // namespace
