#include <kornum/Kornummath.h>

#include <cmath>

namespace Kornummath {

Float XtoY(Float X, Float Y) { return std::pow(X, Y); }
Float TwoToY(Float Y) { return std::exp2(Y); }
// The C library's log10l can miss an exact power of ten by an ulp; the integral
// powers 10^0 .. 10^27 (exactly representable in a Float) give their exponent exactly.
Float KorLog10(Float X) {
    const Float result = std::log10(X);
    const Float nearest = std::nearbyint(result);
    if (nearest >= 0 && nearest <= 27 && std::fabs(result - nearest) < 1e-16L) {
        Float power = 1;
        for (int k = 0; k < int(nearest); ++k) power *= 10;  // exact: 5^27 < 2^64
        if (power == X) return nearest;
    }
    return result;
}
Float KorLog2(Float X) { return std::log2(X); }
Float KorArcCos(Float X) { return std::acos(X); }
Float SignXY(Float X, Float Y) { return Y < 0 ? -std::fabs(X) : std::fabs(X); }

Float MinXY(Float X, Float Y) { return X < Y ? X : Y; }
Int64 MinXY(Int64 X, Int64 Y) { return X < Y ? X : Y; }
Integer MinXY(Integer X, Integer Y) { return X < Y ? X : Y; }
Float MaxXY(Float X, Float Y) { return X > Y ? X : Y; }
Int64 MaxXY(Int64 X, Int64 Y) { return X > Y ? X : Y; }

}  // namespace Kornummath
