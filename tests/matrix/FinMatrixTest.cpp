// The currency members of the matrix families.
#include "MatrixTestSupport.h"

#include <kornum/KornumFinMatrix.h>
#include <kornum/PlatformExceptions.h>

#include <limits>

namespace {

using namespace KornumTest;
using namespace Kornumglobals;
using Kornum_RS_Math::rsMatrixIsEmpty;
using Kornum_RS_Math::rsMatrixRect;
using Kornum_RS_Math::rsSameDimensions;
namespace Fin = KornumFinMatrix;

template <class T>
using CurrencyMatrix = Kornumglobals::TKorVector<Kornumglobals::TKorVector<T>>;

// A matrix of the given stored integers, row by row.
template <class T>
CurrencyMatrix<T> Stored(std::initializer_list<std::initializer_list<Int64>> rows) {
    CurrencyMatrix<T> M;
    M.SetLength(Integer(rows.size()));
    Integer i = 0;
    for (const auto& row : rows) {
        M[i].SetLength(Integer(row.size()));
        Integer j = 0;
        for (Int64 raw : row) {
            if constexpr (std::is_same_v<T, Currency>) M[i][j++] = Currency::FromRaw(raw); else M[i][j++] = T(raw);
        }
        ++i;
    }
    return M;
}
template <class T>
std::vector<std::vector<Int64>> Raws(const CurrencyMatrix<T>& M) {
    std::vector<std::vector<Int64>> rows;
    for (const auto& row : M) {
        rows.emplace_back();
        for (const T& x : row) {
            if constexpr (std::is_same_v<T, Currency>) rows.back().push_back(x.Raw); else rows.back().push_back(Int64(x));
        }
    }
    return rows;
}
using RawRows = std::vector<std::vector<Int64>>;

template <class T>
class CurrencyMatrices : public ::testing::Test {};
using CurrencyTypes = ::testing::Types<KorCurrency, KorLongCurrency, Currency>;
TYPED_TEST_SUITE(CurrencyMatrices, CurrencyTypes);

TYPED_TEST(CurrencyMatrices, RepeatTheShapeMovesAndSumsOfTheNumericFamilies) {
    using T = TypeParam;
    CurrencyMatrix<T> M = Stored<T>({{3, 30}, {1, 10}, {2, 20}});
    Fin::QSortMatrixRowsOnCol(M, 0, true);
    EXPECT_EQ(Raws(M), (RawRows{{1, 10}, {2, 20}, {3, 30}}));
    Fin::SwapMatrixCols(M, 0, 1);
    Fin::SwapMatrixRows(M, 0, 2);
    EXPECT_EQ(Raws(M), (RawRows{{30, 3}, {20, 2}, {10, 1}}));
    EXPECT_EQ(Raws(Fin::TransposeMatrix(M)), (RawRows{{30, 20, 10}, {3, 2, 1}}));
    const auto column = Fin::ExtractMatrixCol(M, 1);
    EXPECT_EQ(Raws(CurrencyMatrix<T>{column}), (RawRows{{3, 2, 1}}));
    Fin::OverwriteMatrixRow(M, 1, Stored<T>({{7}})[0], Stored<T>({{9}})[0][0]);
    EXPECT_EQ(Raws(M), (RawRows{{30, 3}, {7, 9}, {10, 1}}));
    EXPECT_EQ(Raws(Fin::CopyMatrix(M)), Raws(M));

    const CurrencyMatrix<T> A = Stored<T>({{1, 2}, {3, 4}}), B = Stored<T>({{10, 20}, {30, 40}});
    EXPECT_EQ(Raws(Fin::AddMatrices(A, B)), (RawRows{{11, 22}, {33, 44}}));
    EXPECT_EQ(Raws(Fin::SubtractMatrices(A, B)), (RawRows{{-9, -18}, {-27, -36}}));
    CurrencyMatrix<T> C = Fin::CopyMatrix(A);
    Fin::AddToMatrix(C, B);
    Fin::SubtractFromMatrix(C, A);
    EXPECT_EQ(Raws(C), Raws(B));
    EXPECT_TRUE(Raises([&] { Fin::AddMatrices(A, Stored<T>({{1, 2}})); }, rsSameDimensions));
    EXPECT_TRUE(Raises([&] { Fin::TransposeMatrix(CurrencyMatrix<T>()); }, rsMatrixRect));
    CurrencyMatrix<T> empty;
    EXPECT_TRUE(Raises([&] { Fin::SwapMatrixRows(empty, 0, 1); }, rsMatrixIsEmpty));

    LongWord n = 0;
    EXPECT_EQ(Raws(CurrencyMatrix<T>{{Fin::GrandMean(Stored<T>({{1, 2}, {4}}), n)}}), (RawRows{{2}}));  // 7 / 3
    EXPECT_EQ(n, 3u);
    EXPECT_TRUE(Raises([&] { Fin::GrandMean(Stored<T>({{}, {}}), n); }, rsMatrixIsEmpty));
    EXPECT_TRUE(Raises([&] { Fin::MultiplyMatrixByConst(CurrencyMatrix<T>(), 2); }, rsMatrixIsEmpty));
}

TEST(CurrencyMatrixDifferences, IdentitiesHoldTheAmountOneAndConvertDifferently) {
    const auto floats = [](const TKorFloatMatrix& M) {
        std::vector<std::vector<Float>> rows;
        for (const auto& row : M) rows.emplace_back(row.begin(), row.end());
        return rows;
    };
    using FloatRows = std::vector<std::vector<Float>>;
    EXPECT_EQ(floats(Fin::Matrix2FloatMatrix(Fin::CreateCurrencyIdentityMatrix(2))), (FloatRows{{1, 0}, {0, 1}}));
    EXPECT_EQ(floats(Fin::Matrix2FloatMatrix(Fin::CreateCurrIdentityMatrix(2))), (FloatRows{{100, 0}, {0, 100}}));
    EXPECT_EQ(floats(Fin::Matrix2FloatMatrix(Fin::CreateLongCurrIdentityMatrix(2))),
              (FloatRows{{1000000, 0}, {0, 1000000}}));
    EXPECT_EQ(Raws(Fin::CreateCurrencyMatrix(1, 2)), (RawRows{{0, 0}}));
}

TEST(CurrencyMatrixDifferences, ConstantMultiplesRoundTiesToEven) {
    EXPECT_EQ(Raws(Fin::MultiplyMatrixByConst(Stored<KorCurrency>({{5, 7}, {-5}}), 0.5L)), (RawRows{{2, 4}, {-2}}));
    TKorCurrencyMatrix M = Stored<Currency>({{25000}});
    Fin::MultiplyMatrixByConst2(M, 1.5L);
    EXPECT_EQ(Raws(M), (RawRows{{37500}}));
}

TEST(CurrencyMatrixDifferences, LinearTransformsWorkOnAmounts) {
    TKorCurrencyMatrix C = Stored<Currency>({{25000}});  // 2.5 * 2 + 1
    Fin::LinearTransformMatrix(C, 2, 1);
    EXPECT_EQ(Raws(C), (RawRows{{60000}}));
    TKorCurrMatrix K = Stored<KorCurrency>({{250, 100}});  // 2.50 * 2 + 1 = 6.00
    Fin::LinearTransformMatrix(K, 2, 1);
    EXPECT_EQ(Raws(K), (RawRows{{600, 300}}));
    TKorLongCurrMatrix L = Stored<KorLongCurrency>({{1500000}});  // 1.5 * 2 + 1
    Fin::LinearTransformMatrix(L, 2, 1);
    EXPECT_EQ(Raws(L), (RawRows{{4000000}}));
    EXPECT_THROW(Fin::LinearTransformMatrix(K, 1e8L, 0), Platform::ERangeError);
    EXPECT_EQ(Raws(K), (RawRows{{600, 300}}));  // nothing written
}

TEST(CurrencyMatrixDifferences, KorCurrencyGrandMeanWrapsBeforeTheDivision) {
    const Int64 most = std::numeric_limits<Integer>::max();
    LongWord n = 0;
    // 2 * (2^31 - 1) + 2 = 2^32 wraps to 0 in 32 bits; in 64 bits the mean would be 2^32 / 3.
    EXPECT_EQ(Fin::GrandMean(Stored<KorCurrency>({{most, most}, {2}}), n), 0);
    EXPECT_EQ(Fin::GrandMean(Stored<KorLongCurrency>({{most, most}, {2}}), n), 1431655765);
    EXPECT_EQ(Fin::GrandMean(Stored<Currency>({{1}, {2}}), n).Raw, 2);  // 1.5 to even
}

TEST(CurrencyMatrixDifferences, TheTwoRectangularChecksAreIndependent) {
    const TKorCurrMatrix ragged = Stored<KorCurrency>({{1, 2}, {3}});
    LongWord rows = 0, cols = 0;
    Boolean rectangular = true;
    KornumMatrix::KorMatrixRectangularCheck = false;
    Fin::MatrixDimensions(ragged, rows, cols, rectangular);
    EXPECT_FALSE(rectangular);
    EXPECT_EQ(cols, 0u);
    KornumMatrix::KorMatrixRectangularCheck = true;
    Fin::KorMatrixRectangularCheck = false;
    KornumMatrix::MatrixDimensions(ragged, rows, cols, rectangular);
    EXPECT_FALSE(rectangular);
    Fin::MatrixDimensions(ragged, rows, cols, rectangular);
    EXPECT_TRUE(rectangular);
    EXPECT_EQ(cols, 2u);
    Fin::KorMatrixRectangularCheck = true;
}

}  // namespace
