#!/usr/bin/env python3
"""Prints the Taylor table of the standard normal's quantile near the centre for
statistics/detail/NormalQuantileTaylor.hpp, with mpmath at 200 bits.

z(t) = Phi^-1(t), the z with P(N <= z) = t. For c = i / 256, i = 16 .. 128 (t from 1/16
to 1/2), each node holds the Taylor coefficients of z at c to the 12th power, each rounded
to one Float (64-bit significand, to nearest). Since z' = 1 / phi(z) and z'' = z z'^2,
the n-th derivative is P_n(z) z'^n with P_1 = 1 and P_(n+1) = P_n' + n z P_n, so that
a(0) = z(c) and a(n) = P_n(z(c)) z'(c)^n / n!.

The first omitted term, a(13) (1/512)^13, stays below 2^-70 of |z| over each node's half
spacing (printed to standard error with the last power read as a double).

Run from the repository root and paste the output:  python3 tools/make_normal_quantile_table.py
"""
import sys

import mpmath as mp

from make_mills_ratio_table import literal

mp.mp.prec = 200

NODES_PER_UNIT = 256
FIRST_NODE = 16
LAST_NODE = 128
DEGREE = 12


def taylor(c, degree):
    z = -mp.sqrt(2) * mp.erfinv(1 - 2 * c)
    slope = mp.sqrt(2 * mp.pi) * mp.exp(z * z / 2)
    p = [mp.mpf(1)]  # P_n as its coefficients from the constant up
    a = [z, slope]
    for n in range(1, degree):
        derivative = [k * p[k] for k in range(1, len(p))]
        shifted = [mp.mpf(0)] + [n * v for v in p]
        p = [(derivative[k] if k < len(derivative) else 0) + shifted[k] for k in range(len(shifted))]
        a.append(mp.polyval(list(reversed(p)), z) * slope ** (n + 1) / mp.factorial(n + 1))
    return a


def main():
    h = mp.mpf(1) / (2 * NODES_PER_UNIT)
    worst_omitted, short = 0, {}
    print("inline constexpr Float NormalQuantileTaylor[%d][%d] = {" % (LAST_NODE - FIRST_NODE + 1, DEGREE + 1))
    for i in range(FIRST_NODE, LAST_NODE + 1):
        c = mp.mpf(i) / NODES_PER_UNIT
        a = taylor(c, DEGREE + 1)
        smallest = abs(a[0]) - a[1] * h if abs(a[0]) > 2 * a[1] * h else a[1] * h / 2
        worst_omitted = max(worst_omitted, abs(a[DEGREE + 1]) * h ** (DEGREE + 1) / smallest)
        for k in range(1, DEGREE + 1):
            short[k] = max(short.get(k, 0), abs(a[k]) * h ** k / smallest)
        t = [literal(v) for v in a[:DEGREE + 1]]
        print("    {  // t = %s" % mp.nstr(c, 8))
        for k in range(0, len(t), 3):
            print("        " + " ".join(v + "," for v in t[k:k + 3]))
        print("    },")
    print("};")
    print("first omitted term: 2^%.1f of |z|" % float(mp.log(worst_omitted, 2)), file=sys.stderr)
    for k in sorted(short):
        print("term %d: at most 2^%.1f of |z|" % (k, float(mp.log(short[k], 2))), file=sys.stderr)


if __name__ == "__main__":
    main()
