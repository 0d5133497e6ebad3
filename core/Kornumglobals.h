/// @file
/// The base layer's shared element and container types and its global settings: the
/// thirteen vector and thirteen matrix types, the uniform-source type of the random
/// generators, the comparison tolerance and the null text. Includes the element types
/// (`<kornum/KorElementTypes.h>`) and the vector template (`<kornum/KorVector.h>`).
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/KorElementTypes.h>
#include <kornum/KorVector.h>

#include <string>

/// The globals module: the element types (`Float`, `Int64`, `Currency`, ...), the vector
/// template `TKorVector` with its thirteen vector and thirteen matrix types, and the
/// global settings (`KorTolerance`, `KorNullStr`) and constants of the base layer.
KORNUM_EXPORT_BEGIN
namespace Kornumglobals {

// Vectors, one per element type. TKorCurrVector and TKorLongCurrVector are the same
// types as the 32- and 64-bit integer vectors: the module called decides whether the
// elements are read as plain integers or as scaled amounts.
/// A vector of `Float`, stored bit-exact in 10 bytes per element (`PackedFloat`).
using TKorFloatVector = TKorVector<PackedFloat>;
/// A vector of `Double`.
using TKorDoubleVector = TKorVector<Double>;
/// A vector of `Single`.
using TKorSingleVector = TKorVector<Single>;
/// A vector of `Int64`.
using TKorInt64Vector = TKorVector<Int64>;
/// A vector of `Cardinal` (unsigned 32-bit).
using TKorLWordVector = TKorVector<Cardinal>;
/// A vector of `Integer` (signed 32-bit).
using TKorLIntVector = TKorVector<Integer>;
/// A vector of `Word` (unsigned 16-bit).
using TKorWordVector = TKorVector<Word>;
/// A vector of `SmallInt` (signed 16-bit).
using TKorSmallIntVector = TKorVector<SmallInt>;
/// A vector of `Byte` (unsigned 8-bit).
using TKorByteVector = TKorVector<Byte>;
/// A vector of `ShortInt` (signed 8-bit).
using TKorSIntVector = TKorVector<ShortInt>;
/// A vector of `Currency` amounts (ten-thousandths).
using TKorCurrencyVector = TKorVector<Currency>;
/// A vector of `KorCurrency` amounts (hundredths): the same type as `TKorLIntVector`;
/// the module called decides whether the elements are plain integers or amounts.
using TKorCurrVector = TKorLIntVector;
/// A vector of `KorLongCurrency` amounts (millionths): the same type as
/// `TKorInt64Vector`; the module called decides how the elements are read.
using TKorLongCurrVector = TKorInt64Vector;

/// A matrix is a vector of row vectors, indexed [row][col]; rows may differ in length.
template <class Row>
using TKorMatrixOf = TKorVector<Row>;

/// A matrix of `Float`: rows of `TKorFloatVector`.
using TKorFloatMatrix = TKorMatrixOf<TKorFloatVector>;
/// A matrix of `Double`.
using TKorDoubleMatrix = TKorMatrixOf<TKorDoubleVector>;
/// A matrix of `Single`.
using TKorSingleMatrix = TKorMatrixOf<TKorSingleVector>;
/// A matrix of `Int64`.
using TKorInt64Matrix = TKorMatrixOf<TKorInt64Vector>;
/// A matrix of `Cardinal`.
using TKorLWordMatrix = TKorMatrixOf<TKorLWordVector>;
/// A matrix of `Integer`.
using TKorLIntMatrix = TKorMatrixOf<TKorLIntVector>;
/// A matrix of `Word`.
using TKorWordMatrix = TKorMatrixOf<TKorWordVector>;
/// A matrix of `SmallInt`.
using TKorSmallIntMatrix = TKorMatrixOf<TKorSmallIntVector>;
/// A matrix of `Byte`.
using TKorByteMatrix = TKorMatrixOf<TKorByteVector>;
/// A matrix of `ShortInt`.
using TKorSIntMatrix = TKorMatrixOf<TKorSIntVector>;
/// A matrix of `Currency` amounts.
using TKorCurrencyMatrix = TKorMatrixOf<TKorCurrencyVector>;
/// A matrix of `KorCurrency` amounts: the same type as `TKorLIntMatrix`.
using TKorCurrMatrix = TKorLIntMatrix;
/// A matrix of `KorLongCurrency` amounts: the same type as `TKorInt64Matrix`.
using TKorLongCurrMatrix = TKorInt64Matrix;

/// The uniform source of the random generators: a Float uniform on [0, 1).
using TKorUniformFunc = Float (*)();

/// The tolerance of the float comparisons of Kornummath (SameFloat, FloatIsZero and
/// their siblings document how it is applied), and the convergence tolerance of the
/// iterative special functions that take one. A plain global, shared by all threads;
/// starts at `KorDefaultTolerance`.
extern Float KorTolerance;

/// The value KorTolerance starts with: 1e-15.
inline constexpr Float KorDefaultTolerance = 1.0e-15L;

/// Pi, rounded to Float.
inline constexpr Float KorPi = 3.141592653589793238462643383279502884L;

/// The text that edit controls show for a value that is not set; empty by default.
extern std::string KorNullStr;

}  // namespace Kornumglobals
KORNUM_EXPORT_END
