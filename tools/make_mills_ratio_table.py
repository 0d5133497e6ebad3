#!/usr/bin/env python3
"""Prints the node table of the standard normal's Mills ratio for
statistics/detail/MillsRatio.hpp, with mpmath at 200 bits.

The Mills ratio is R(z) = P(N > z) / phi(z) for N standard normal and phi its density.
For c = i / 8, i = 0 .. 96, each node holds the Taylor coefficients of R at c to the
12th power, each rounded to one Float (64-bit significand, to nearest). R satisfies
R' = z R - 1, so the coefficients follow from R(c) by (k + 1) r(k+1) = c r(k) + r(k-1),
computed here at 200 bits so that the header only evaluates a polynomial.

Run from the repository root and paste the output:  python3 tools/make_mills_ratio_table.py
"""
import mpmath as mp

mp.mp.prec = 200

NODES_PER_UNIT = 8
LAST_NODE = 96
DEGREE = 12


def literal(v):
    """v rounded to a 64-bit significand, as a hexadecimal Float literal."""
    if v == 0:
        return "0.0L"
    m, e = mp.frexp(v)  # v = m 2^e, 0.5 <= |m| < 1
    mant = int(mp.nint(m * mp.mpf(2) ** 64))
    if abs(mant) == 2**64:  # rounding carried into a new binade
        mant //= 2
        e += 1
    sign = "-" if mant < 0 else ""
    return "%s0x%XP%+dL" % (sign, abs(mant), e - 64)


def mills(z):
    return mp.ncdf(-z) / mp.npdf(z)


def taylor(c):
    r = [mills(c)]
    r.append(c * r[0] - 1)
    for k in range(1, DEGREE):
        r.append((c * r[k] + r[k - 1]) / (k + 1))
    return r


def main():
    print("inline constexpr Float MillsTaylor[%d][%d] = {" % (LAST_NODE + 1, DEGREE + 1))
    for i in range(LAST_NODE + 1):
        c = mp.mpf(i) / NODES_PER_UNIT
        r = [literal(v) for v in taylor(c)]
        print("    {  // z = %s" % mp.nstr(c, 6))
        for k in range(0, len(r), 3):
            print("        " + " ".join(v + "," for v in r[k:k + 3]))
        print("    },")
    print("};")


if __name__ == "__main__":
    main()
