// The ascending copy of a Float vector that the descriptive-statistics component keeps
// for its order statistics. Internal to the library (not installed).
#pragma once

#include <kornum/Kornumglobals.h>

namespace KornumDescStats::detail {

// A new vector with the elements of V in ascending order, element for element the
// same bytes as QSortVector(copy, true) leaves.
//
// Sorting places equal values next to each other, and two Floats that compare equal
// have the same bytes, except +0 and -0 and the non-canonical encodings the arithmetic
// never produces (a zero or denormal exponent with the integer bit set, a normal one
// without it); NaNs do not compare at all. Without those, every correct sort gives the
// same bytes, and a radix sort of order-preserving integer keys gives them in linear
// time: keys of the bits in which the values differ (64-bit ones when that is enough).
// The values are scattered into the result by the first digit of their keys, and each
// bucket's keys sorted in buffers as large as the largest bucket (a small part of the
// values unless most of them fall into one) and written back as the values they stand
// for. With any of them present (checked in one pass), QSortVector is used, so that its
// arrangement of the incomparable or equal-but-different elements is kept.
Kornumglobals::TKorFloatVector AscendingCopy(const Kornumglobals::TKorFloatVector& V);

}  // namespace KornumDescStats::detail
