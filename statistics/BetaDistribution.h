/// @file
/// The beta distribution on [Lo, Hi]: both tails, the density and the inverses of both
/// tails.
///
/// The point is mapped to z = (X - Lo) / (Hi - Lo) and w = (Hi - X) / (Hi - Lo), each
/// formed from an exact difference and carried in two Floats. Each tail is its own
/// regularised incomplete beta function (`BetaDistLess` of z, `BetaDistGreater` of w,
/// neither 1 minus the other), so small tails on both sides keep their relative precision.
/// Lo and Hi default to the standard interval [0, 1].
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Float;

// ---- Beta with shapes A, B on [Lo, Hi] --------------------------------------------------------

/// @name Beta
/// The beta distribution with shapes `A` and `B`, scaled to run from `Lo` to `Hi`. Every
/// routine first raises Platform::EMathError with Kornum_RS_Math::rsValueGZero unless
/// A > 0 and B > 0 (a NaN included), then Kornum_RS_Math::rsSameValue when Lo = Hi
/// (compared exactly). Hi < Lo is accepted and mirrors the distribution: z then runs from
/// Lo down to Hi, `BetaDistLess` falls as X rises, and `BetaPDF` comes out negative.
/// @{

/// P(X' < `X`) = `IncompleteBeta(z, A, B)` with z = (X - Lo) / (Hi - Lo): 0 at and below
/// Lo, 1 at and above Hi. Failures (Platform::EMathError): Kornum_RS_Math::rsValueGZero
/// unless A, B > 0, then Kornum_RS_Math::rsSameValue for Lo = Hi.
Float BetaDistLess(Float X, Float A, Float B, Float Lo = 0, Float Hi = 1);
/// P(X' > `X`) = `IncompleteBeta(w, B, A)` with w = (Hi - X) / (Hi - Lo), computed directly
/// (not as 1 - `BetaDistLess`): 1 at and below Lo, 0 at and above Hi. Failures as for
/// `BetaDistLess`.
Float BetaDistGreater(Float X, Float A, Float B, Float Lo = 0, Float Hi = 1);
/// The density `z^(A-1) (1-z)^(B-1) / (Beta(A, B) (Hi - Lo))` with z = (X - Lo) / (Hi - Lo);
/// 0 outside [Lo, Hi]. At Lo it is infinity for A < 1, B / (Hi - Lo) for A = 1 and 0 for
/// A > 1; at Hi likewise with the roles of A and B exchanged. Its logarithm is formed from
/// z and 1 - z each exact, so that neither is a rounded 1 minus the other: within a few
/// ulps for shapes up to 1e5, where Beta(A, B) itself leaves the range of Float. Failures
/// as for `BetaDistLess`.
Float BetaPDF(Float X, Float A, Float B, Float Lo = 0, Float Hi = 1);
/// The quantile: the X with `BetaDistLess(X, A, B, Lo, Hi) = P`, that is
/// `Lo + (Hi - Lo) * InverseIncompleteBeta(P, A, B)`, formed from Hi when it lies nearer Hi
/// so that a quantile next to either end keeps its digits: Lo at P = 0 and Hi at P = 1.
/// Within 1e-16 relative, or the error that P's own rounding causes (P 2^-64 divided by
/// the density at the quantile) where that is larger, for P down to the smallest Float
/// and shapes from 0.01 to 1e5 in any combination.
///
/// Failures (Platform::EMathError), in this order: Kornum_RS_Math::rsValueGZero and
/// Kornum_RS_Math::rsSameValue as for `BetaDistLess`, then P outside [0, 1] (a NaN P
/// included) raises Kornum_RS_Math::rsValue01Inc.
Float InvBetaDistLess(Float P, Float A, Float B, Float Lo = 0, Float Hi = 1);
/// The upper quantile: the X with `BetaDistGreater(X, A, B, Lo, Hi) = Q`, computed from Q
/// itself (not as `InvBetaDistLess(1 - Q, ...)`), so that a tiny Q keeps its digits: Hi
/// at Q = 0 and Lo at Q = 1. Accurate as `InvBetaDistLess`, with Q for P. Failures as for
/// `InvBetaDistLess`, Q taking the place of P.
Float InvBetaDistGreater(Float Q, Float A, Float B, Float Lo = 0, Float Hi = 1);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
