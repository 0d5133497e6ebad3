// Helpers shared by the matrix tests.
#pragma once

#include "TestSupport.h"

#include <kornum/KornumMatrix.h>
#include <kornum/Kornum_RS_Math.h>

#include <initializer_list>
#include <type_traits>
#include <vector>

namespace MatrixTest {

using namespace KornumMatrix;
using namespace KornumTest;
using namespace Kornum_RS_Math;

template <class E>
using ValueOf = std::conditional_t<std::is_same_v<E, PackedFloat>, Float, E>;
template <class E>
using Matrix = TKorVector<TKorVector<E>>;
template <class E>
using Rows = std::vector<std::vector<ValueOf<E>>>;

// A matrix with the given rows, each of its own length.
template <class E>
Matrix<E> Make(std::initializer_list<std::initializer_list<ValueOf<E>>> rows) {
    Matrix<E> M;
    M.SetLength(Integer(rows.size()));
    Integer i = 0;
    for (const auto& row : rows) {
        M[i].SetLength(Integer(row.size()));
        Integer j = 0;
        for (ValueOf<E> x : row) M[i][j++] = x;
        ++i;
    }
    return M;
}

template <class E>
Rows<E> Elements(const Matrix<E>& M) {
    Rows<E> rows;
    for (const auto& row : M) rows.emplace_back(row.begin(), row.end());
    return rows;
}

// Sets the module's rectangular check for one scope and restores it afterwards.
struct RectangularCheckScope {
    explicit RectangularCheckScope(Boolean on) { KorMatrixRectangularCheck = on; }
    ~RectangularCheckScope() { KorMatrixRectangularCheck = true; }
};

using AllElementTypes = ::testing::Types<PackedFloat, Double, Single, Int64, Cardinal, Integer, Word, SmallInt,
                                         Byte, ShortInt>;
using ArithmeticTypes = ::testing::Types<PackedFloat, Double, Single, Int64, Integer>;
using FloatingTypes = ::testing::Types<PackedFloat, Double, Single>;

}  // namespace MatrixTest
