// Shared element and container types and the global settings of the base layer.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/KorElementTypes.h>
#include <kornum/KorVector.h>

#include <string>

namespace KORNUM_API Kornumglobals {

// Vectors, one per element type. TKorCurrVector and TKorLongCurrVector are the same
// types as the 32- and 64-bit integer vectors: the module called decides whether the
// elements are read as plain integers or as scaled amounts.
using TKorFloatVector = TKorVector<PackedFloat>;
using TKorDoubleVector = TKorVector<Double>;
using TKorSingleVector = TKorVector<Single>;
using TKorInt64Vector = TKorVector<Int64>;
using TKorLWordVector = TKorVector<Cardinal>;
using TKorLIntVector = TKorVector<Integer>;
using TKorWordVector = TKorVector<Word>;
using TKorSmallIntVector = TKorVector<SmallInt>;
using TKorByteVector = TKorVector<Byte>;
using TKorSIntVector = TKorVector<ShortInt>;
using TKorCurrencyVector = TKorVector<Currency>;
using TKorCurrVector = TKorLIntVector;
using TKorLongCurrVector = TKorInt64Vector;

// A matrix is a vector of row vectors, indexed [row][col]; rows may differ in length.
template <class Row>
using TKorMatrixOf = TKorVector<Row>;

using TKorFloatMatrix = TKorMatrixOf<TKorFloatVector>;
using TKorDoubleMatrix = TKorMatrixOf<TKorDoubleVector>;
using TKorSingleMatrix = TKorMatrixOf<TKorSingleVector>;
using TKorInt64Matrix = TKorMatrixOf<TKorInt64Vector>;
using TKorLWordMatrix = TKorMatrixOf<TKorLWordVector>;
using TKorLIntMatrix = TKorMatrixOf<TKorLIntVector>;
using TKorWordMatrix = TKorMatrixOf<TKorWordVector>;
using TKorSmallIntMatrix = TKorMatrixOf<TKorSmallIntVector>;
using TKorByteMatrix = TKorMatrixOf<TKorByteVector>;
using TKorSIntMatrix = TKorMatrixOf<TKorSIntVector>;
using TKorCurrencyMatrix = TKorMatrixOf<TKorCurrencyVector>;
using TKorCurrMatrix = TKorLIntMatrix;
using TKorLongCurrMatrix = TKorInt64Matrix;

// The uniform source of the random generators: a Float uniform on [0, 1).
using TKorUniformFunc = Float (*)();

// The tolerance of the float comparisons of Kornummath (SameFloat, FloatIsZero and
// their siblings document how it is applied), and the convergence tolerance of the
// iterative special functions that take one.
extern Float KorTolerance;

// The value KorTolerance starts with.
inline constexpr Float KorDefaultTolerance = 1.0e-15L;

inline constexpr Float KorPi = 3.141592653589793238462643383279502884L;

// The text that edit controls show for a value that is not set.
extern std::string KorNullStr;

}  // namespace Kornumglobals
