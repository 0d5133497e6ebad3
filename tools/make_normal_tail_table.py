#!/usr/bin/env python3
"""Prints the Taylor table of the standard normal's upper tail near the centre for
statistics/detail/NormalTailTaylor.hpp, with mpmath at 200 bits.

Q(z) = P(N > z) for N standard normal. For c = i / 16, i = 0 .. 64, each node holds the
Taylor coefficients of Q at c to the 11th power, each rounded to one Float (64-bit
significand, to nearest): t(0) = Q(c) and, since Q' = -phi and the k-th derivative of
phi is (-1)^k He_k phi with He_k the probabilists' Hermite polynomials,
t(k) = (-1)^k He_(k-1)(c) phi(c) / k!.

Run from the repository root and paste the output:  python3 tools/make_normal_tail_table.py
"""
import mpmath as mp

from make_mills_ratio_table import literal

mp.mp.prec = 200

NODES_PER_UNIT = 16
LAST_NODE = 64
DEGREE = 11


def taylor(c):
    density = mp.npdf(c)
    hermite = [mp.mpf(1), c]  # He_0, He_1, then He_(k+1) = c He_k - k He_(k-1)
    for k in range(1, DEGREE):
        hermite.append(c * hermite[k] - k * hermite[k - 1])
    return [mp.ncdf(-c)] + [(-1) ** k * hermite[k - 1] * density / mp.factorial(k)
                            for k in range(1, DEGREE + 1)]


def main():
    print("inline constexpr Float NormalTailTaylor[%d][%d] = {" % (LAST_NODE + 1, DEGREE + 1))
    for i in range(LAST_NODE + 1):
        c = mp.mpf(i) / NODES_PER_UNIT
        t = [literal(v) for v in taylor(c)]
        print("    {  // z = %s" % mp.nstr(c, 6))
        for k in range(0, len(t), 3):
            print("        " + " ".join(v + "," for v in t[k:k + 3]))
        print("    },")
    print("};")


if __name__ == "__main__":
    main()
