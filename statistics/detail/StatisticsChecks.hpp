// The argument checks that the statistics routines share. Internal to the library
// (not installed).
#pragma once

#include <kornum/Kornum_RS_Math.h>
#include <kornum/Platform.h>

namespace KornumStatistics::detail {

// Raises rsVectorIsEmpty for a vector without elements.
template <class V>
void RequireNotEmpty(const V& X) {
    if (X.Length() == 0) Platform::Raise(Kornum_RS_Math::rsVectorIsEmpty);
}

}  // namespace KornumStatistics::detail
