/// @file
/// The message identifiers of the numeric routines, with their English texts.
/// A raised failure carries Text() of one of these exactly; an application may
/// replace the texts (Platform::SetResourceText, Platform::ReplaceResourceTable).
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformResources.h>

/// The message module of the numeric routines: one `Platform::ResourceString` constant per
/// failure message. A routine that fails raises `Platform::EMathError` (or the exception
/// class it documents) whose `Message()` equals `Text()` of its identifier exactly: the
/// English default shown in each initializer, unless an application has installed other
/// texts (`Platform::SetResourceText`, `Platform::ReplaceResourceTable`, by the names
/// given here). The identifiers are registered by name when the library loads.
KORNUM_EXPORT_BEGIN
namespace Kornum_RS_Math {

using Platform::ResourceString;

/// @name Vector arguments
/// @{

/// A message identifier for vector arguments. It reports an empty or too short vector, a
/// value the routine cannot take, vectors or matrices of different dimensions, or a zero
/// divisor; its default text is the last field of the initializer.
inline constexpr ResourceString rsVectorIsEmpty{64001, "rsVectorIsEmpty", "The vector is empty"};
inline constexpr ResourceString rsVectorEmpty{64002, "rsVectorEmpty", "The mean vector is empty"};
inline constexpr ResourceString rsVectorTooSmall{64003, "rsVectorTooSmall", "A vector is shorter than the mean vector needs"};
inline constexpr ResourceString rsVectorG1{64004, "rsVectorG1", "The vector must hold more than one value"};
inline constexpr ResourceString rsVectorG2{64005, "rsVectorG2", "The vector must hold more than two values"};
inline constexpr ResourceString rsVectorG3{64006, "rsVectorG3", "The vector must hold more than three values"};
inline constexpr ResourceString rsVectorNeg{64007, "rsVectorNeg", "The vector holds a negative value"};
inline constexpr ResourceString rsVectorZero{64008, "rsVectorZero", "The vector holds a zero value"};
inline constexpr ResourceString rsVectorNotPos{64009, "rsVectorNotPos", "The vector holds a value that is zero or negative"};
inline constexpr ResourceString rsSameDimensions{64010, "rsSameDimensions", "The vectors or matrices must have the same dimensions"};
inline constexpr ResourceString rsMagZero{64011, "rsMagZero", "A vector of zero magnitude has no angle"};
inline constexpr ResourceString rsValueNotZero{64012, "rsValueNotZero", "The value must not be zero"};
/// @}

/// @name Matrix arguments
/// @{

/// A message identifier for matrix arguments. It reports an empty, ragged or mismatched
/// matrix, a value the routine cannot take, or a row or column index out of range; its
/// default text is the last field of the initializer.
inline constexpr ResourceString rsMatrixIsEmpty{64013, "rsMatrixIsEmpty", "The matrix is empty"};
inline constexpr ResourceString rsMatrixRect{64014, "rsMatrixRect", "The matrix must be rectangular"};
inline constexpr ResourceString rsMatrixSqr{64015, "rsMatrixSqr", "The matrix must be square"};
inline constexpr ResourceString rsMatrixMult{64016, "rsMatrixMult", "The inner dimensions of the matrices do not agree"};
inline constexpr ResourceString rsMatrixNeg{64017, "rsMatrixNeg", "The matrix holds a negative value"};
inline constexpr ResourceString rsMatrixNotPos{64018, "rsMatrixNotPos", "The matrix holds a value that is zero or negative"};
inline constexpr ResourceString rsMatrixZero{64019, "rsMatrixZero", "The matrix holds a zero value"};
inline constexpr ResourceString rsNoInvert{64020, "rsNoInvert", "The matrix cannot be inverted"};
inline constexpr ResourceString rsInvalidRow{64021, "rsInvalidRow", "The row index is out of range"};
inline constexpr ResourceString rsInvalidCol{64022, "rsInvalidCol", "The column index is out of range"};
/// @}

/// @name Distribution arguments
/// @{

/// A message identifier for scalar arguments. The distribution functions and other
/// routines raise it for a standard deviation, degrees of freedom, probability, bound or
/// other value outside its range; its default text is the last field of the initializer.
inline constexpr ResourceString rsStdDev{64023, "rsStdDev", "The standard deviation must be greater than zero"};
inline constexpr ResourceString rsDF{64024, "rsDF", "The degrees of freedom are out of range"};
inline constexpr ResourceString rsValue01{64025, "rsValue01", "The probability must lie between 0 and 1, exclusive"};
inline constexpr ResourceString rsValue01Inc{64026, "rsValue01Inc", "The probability must lie between 0 and 1, inclusive"};
inline constexpr ResourceString rsValue2{64027, "rsValue2", "The value must be at least 2"};
inline constexpr ResourceString rsValueGZero{64028, "rsValueGZero", "The value must be greater than zero"};
inline constexpr ResourceString rsValueGEZero{64029, "rsValueGEZero", "The value must not be negative"};
inline constexpr ResourceString rsSameValue{64030, "rsSameValue", "The two bounds must differ"};
inline constexpr ResourceString rsInvalidValue{64031, "rsInvalidValue", "The value is out of its allowed range"};
/// @}

/// @name Combinatorics and discrete distributions
/// @{

/// A message identifier of the combinatorial functions and discrete distributions. The
/// combinatorial functions and the binomial, Poisson and exponential distributions raise
/// it for invalid arguments or a result that overflows; its default text is the last
/// field of the initializer.
inline constexpr ResourceString rsBinomInvalid{64032, "rsBinomInvalid", "Invalid arguments for a binomial coefficient"};
inline constexpr ResourceString rsBinomOverflowed{64033, "rsBinomOverflowed", "The binomial coefficient overflows"};
inline constexpr ResourceString rsBinomDistInvalid{64034, "rsBinomDistInvalid", "Invalid arguments for the binomial distribution"};
inline constexpr ResourceString rsPoissonInvalid{64035, "rsPoissonInvalid", "Invalid arguments for the Poisson distribution"};
inline constexpr ResourceString rsExpDistInvalid{64036, "rsExpDistInvalid", "Invalid arguments for the exponential distribution"};
inline constexpr ResourceString rsPermInvalid{64037, "rsPermInvalid", "Invalid arguments for a permutation count"};
inline constexpr ResourceString rsPermOverflowed{64038, "rsPermOverflowed", "The permutation count overflows"};
inline constexpr ResourceString rsFactOverflow{64039, "rsFactOverflow", "The factorial overflows"};
/// @}

/// @name Grouped data
/// @{

/// A message identifier of the grouped-data statistics. It reports that the class holding
/// the median or a quartile cannot be found; its default text is the last field of the
/// initializer.
inline constexpr ResourceString rsMedianNotFound{64040, "rsMedianNotFound", "The median class cannot be found"};
inline constexpr ResourceString rsQuartilesNotFound{64041, "rsQuartilesNotFound", "The quartile classes cannot be found"};
/// @}

/// @name Random variates
/// @{

/// A message identifier of the random variate generators. It reports a shape parameter
/// out of range or too small, or a division by zero; its default text is the last field
/// of the initializer.
inline constexpr ResourceString rsInvalidShape{64042, "rsInvalidShape", "The shape parameter is out of range"};
inline constexpr ResourceString rsShapeTooSmall{64043, "rsShapeTooSmall", "The shape parameter is too small"};
inline constexpr ResourceString rsDivideByZero{64044, "rsDivideByZero", "Division by zero"};
/// @}

/// The text shown for a value that is not available ("N/A"); displayed, not raised.
inline constexpr ResourceString rsNA{64045, "rsNA", "N/A"};

/// Every identifier above, in order: the list the library registers by name.
inline constexpr const ResourceString* AllMessages[] = {
    &rsVectorIsEmpty,
    &rsVectorEmpty,
    &rsVectorTooSmall,
    &rsVectorG1,
    &rsVectorG2,
    &rsVectorG3,
    &rsVectorNeg,
    &rsVectorZero,
    &rsVectorNotPos,
    &rsSameDimensions,
    &rsMagZero,
    &rsValueNotZero,
    &rsMatrixIsEmpty,
    &rsMatrixRect,
    &rsMatrixSqr,
    &rsMatrixMult,
    &rsMatrixNeg,
    &rsMatrixNotPos,
    &rsMatrixZero,
    &rsNoInvert,
    &rsInvalidRow,
    &rsInvalidCol,
    &rsStdDev,
    &rsDF,
    &rsValue01,
    &rsValue01Inc,
    &rsValue2,
    &rsValueGZero,
    &rsValueGEZero,
    &rsSameValue,
    &rsInvalidValue,
    &rsBinomInvalid,
    &rsBinomOverflowed,
    &rsBinomDistInvalid,
    &rsPoissonInvalid,
    &rsExpDistInvalid,
    &rsPermInvalid,
    &rsPermOverflowed,
    &rsFactOverflow,
    &rsMedianNotFound,
    &rsQuartilesNotFound,
    &rsInvalidShape,
    &rsShapeTooSmall,
    &rsDivideByZero,
    &rsNA,
};

}  // namespace Kornum_RS_Math
KORNUM_EXPORT_END
