#!/usr/bin/env python3
"""Prints the constants of the two-Float logarithm in core/KorSpecialSupport.h.

Each constant is split into hi + lo, both 64-bit-significand Floats (rounded to
nearest), so that hi + lo holds about 128 bits of the exact value. The table holds
ln(j / 32) for j = 24 .. 48 (the reduction points covering [0.75, 1.5]), j / 32
(exact) and 32 / j rounded to one Float. ln 2 is split with a 40-bit hi part so that k * hi is exact for
any binary exponent k of a Float; ln sqrt(2 pi) and pi are split plainly.

Run from the repository root and paste the output:  python3 tools/make_log_table.py
"""
import mpmath as mp

mp.mp.prec = 300


def round_bits(v, bits):
    """v rounded to nearest with the given number of significant bits, as (mantissa, exp)."""
    if v == 0:
        return 0, 0
    m, e = mp.frexp(v)  # v = m * 2^e, 0.5 <= |m| < 1
    mant = int(mp.nint(m * mp.mpf(2) ** bits))
    return mant, e - bits


def literal(mant, exp):
    if mant == 0:
        return "0.0L"
    sign = "-" if mant < 0 else ""
    return "%s0x%XP%+dL" % (sign, abs(mant), exp)


def split(v, hi_bits=64):
    mh, eh = round_bits(v, hi_bits)
    hi = mp.mpf(mh) * mp.mpf(2) ** eh
    ml, el = round_bits(v - hi, 64)
    return literal(mh, eh), literal(ml, el)


def main():
    print("inline constexpr TwoFloat Ln2 = {%s, %s};" % split(mp.log(2), 40))
    print("inline constexpr TwoFloat LnSqrtTwoPi = {%s, %s};" % split(mp.log(2 * mp.pi) / 2))
    print("inline constexpr TwoFloat Pi = {%s, %s};" % split(mp.pi))
    print("inline constexpr LogTableEntry LogTable[] = {")
    for j in range(24, 49):
        hi, lo = split(mp.log(mp.mpf(j) / 32))
        inv = literal(*round_bits(mp.mpf(32) / j, 64))
        point = literal(*round_bits(mp.mpf(j) / 32, 64))
        print("    {{%s, %s}, %s, %s},  // j = %d" % (hi, lo, point, inv, j))
    print("};")


if __name__ == "__main__":
    main()
