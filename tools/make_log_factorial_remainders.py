#!/usr/bin/env python3
"""The table of statistics/detail/LogFactorialRemainder.hpp: ln k! - ((k + 1/2) ln k - k +
ln sqrt(2 pi)) for k = 1 .. 14, rounded to 64-bit significands, as C hex literals."""
import mpmath as mp

mp.mp.prec = 200
for k in range(1, 15):
    d = mp.loggamma(k + 1) - ((k + mp.mpf(1) / 2) * mp.log(k) - k + mp.log(mp.sqrt(2 * mp.pi)))
    e = int(mp.floor(mp.log(d, 2)))
    m = int(mp.nint(mp.ldexp(d, 63 - e)))
    print("0x%XP%dL," % (m, e - 63))
