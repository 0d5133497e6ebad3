// Point probabilities and tails of the binomial and Poisson distributions.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Cardinal;
using Kornumglobals::Float;

// Binomial distribution with N trials and success probability P. Every routine
// raises rsBinomDistInvalid when N = 0, P < 0, P > 1 or a count it evaluates
// exceeds N. The tails are plain sums of the point probabilities, so
// BinomialLess(P, N, R) equals BinomialEq(P, N, 0) + ... + BinomialEq(P, N, R - 1).
Float BinomialEq(Float P, Cardinal N, Cardinal R);       // P(X = R)
Float BinomialLess(Float P, Cardinal N, Cardinal R);     // P(X < R)
Float BinomialGreater(Float P, Cardinal N, Cardinal R);  // P(X > R) = 1 - P(X < R + 1)
// X1 < X2: P(X1 < X < X2); X1 > X2: P(X2 <= X <= X1); bounds that coincide when
// compared as Single values: P(X = X1).
Float BinomialBetween(Float P, Cardinal N, Cardinal X1, Cardinal X2);

// Poisson distribution with mean Lambda. Every routine raises rsPoissonInvalid when
// Lambda <= 0, and rsFactOverflow when a count it evaluates exceeds 1754.
Float PoissonEq(Float Lambda, Cardinal X);       // P(Y = X)
Float PoissonLess(Float Lambda, Cardinal X);     // P(Y < X)
Float PoissonGreater(Float Lambda, Cardinal X);  // P(Y > X) = 1 - P(Y < X + 1)
// The same bound rule as BinomialBetween.
Float PoissonBetween(Float Lambda, Cardinal X1, Cardinal X2);

}  // namespace KornumStatistics
