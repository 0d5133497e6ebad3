#!/usr/bin/env python3
"""Prints the constants of the two-Float logarithm in core/detail/ExtendedPrecision.hpp.

ln 2 and each table logarithm are split into hi + lo: hi a multiple of 2^-48 (so that
k hi is exact for any binary exponent k of a Float, and k ln2.hi + table.hi too), lo the
rest rounded to a double. ln sqrt(2 pi) and pi are split into two Floats plainly.

The table has one step per 1/256 of [1, 2): m in [1 + i/256, 1 + (i+1)/256) is reduced
by the inverse K/512, K whole (9 significant bits), chosen so that r = m K/512 - 1 stays
below 2^-8 in magnitude, which makes r exact in a Float. The first step's inverse is 1
and the last one's 1/2, so that near x = 1 on either side r = x - 1 (relative accuracy
there) and the last step's logarithm is ln 2 itself (it cancels against -ln 2 exactly).
The script checks both conditions and that |k ln2.hi + table.hi| >= |r| for k = -1, 0, 1
wherever it is not 0 (what the final FastTwoSum needs).

Run from the repository root and paste the output:  python3 tools/make_log_table.py
"""
import mpmath as mp

mp.mp.prec = 300

STEPS = 256
HI = mp.mpf(2) ** -48
LIMIT = mp.mpf(2) ** -8


def round_bits(v, bits):
    """v rounded to nearest with the given number of significant bits, as (mantissa, exp)."""
    if v == 0:
        return 0, 0
    m, e = mp.frexp(v)  # v = m * 2^e, 0.5 <= |m| < 1
    mant = int(mp.nint(m * mp.mpf(2) ** bits))
    return mant, e - bits


def literal(mant, exp, suffix="L"):
    if mant == 0:
        return "0.0" + suffix
    sign = "-" if mant < 0 else ""
    return "%s0x%XP%+d%s" % (sign, abs(mant), exp, suffix)


def split(v):
    mh, eh = round_bits(v, 64)
    hi = mp.mpf(mh) * mp.mpf(2) ** eh
    ml, el = round_bits(v - hi, 64)
    return literal(mh, eh), literal(ml, el)


def double_split(v):
    """hi a multiple of 2^-48, lo the rest rounded to 53 bits: both exact doubles."""
    hi = mp.nint(v / HI) * HI
    return hi, mp.mpf(round_bits(v - hi, 53)[0]) * mp.mpf(2) ** round_bits(v - hi, 53)[1]


def double_literal(v):
    return literal(*round_bits(v, 53), suffix="") if v != 0 else "0.0"


def inverse(i):
    if i == 0:
        return 512
    if i == STEPS - 1:
        return 256
    return int(mp.nint(512 / (1 + (mp.mpf(i) + mp.mpf(1) / 2) / STEPS)))


def main():
    ln2hi, ln2lo = double_split(mp.log(2))
    print("inline constexpr double Ln2High = %s, Ln2Low = %s;" % (double_literal(ln2hi), double_literal(ln2lo)))
    print("inline constexpr TwoFloat LnSqrtTwoPi = {%s, %s};" % split(mp.log(2 * mp.pi) / 2))
    print("inline constexpr TwoFloat Pi = {%s, %s};" % split(mp.pi))
    print("inline constexpr LogStep LogSteps[%d] = {" % STEPS)
    for i in range(STEPS):
        k = inverse(i)
        inv = mp.mpf(k) / 512
        # the step's ends, the upper one open: its largest Float
        lo_m, hi_m = 1 + mp.mpf(i) / STEPS, 1 + mp.mpf(i + 1) / STEPS - mp.mpf(2) ** -63
        r = max(abs(lo_m * inv - 1), abs(hi_m * inv - 1))
        assert r < LIMIT, (i, k, r)
        t_hi, t_lo = double_split(-mp.log(inv))
        if i == STEPS - 1:
            assert (t_hi, t_lo) == (ln2hi, ln2lo)
        for e in (-1, 0, 1):
            a = e * ln2hi + t_hi
            assert a == 0 or abs(a) >= r, (i, e, a, r)
        print("    {%s, %s, %s}," % (double_literal(inv), double_literal(t_hi), double_literal(t_lo)))
    print("};")


if __name__ == "__main__":
    main()
