#!/usr/bin/env python3
"""Replays the steps of every random variate generator with mpmath at 64-bit precision
(the precision of a Float) on a fixed sequence of uniforms, and writes the first five
variates of each to tests/data/random_streams.tsv. The C++ stream test draws from the
same sequence and must find the same variates: exactly for the discrete generators, to
1e-15 relative for the continuous ones.

The uniforms: u_i = (i * 0x9E3779B97F4A7C15 mod 2^64) / 2^64 for i = 1, 2, ...

Usage: /usr/bin/python3 tools/make_random_streams.py > tests/data/random_streams.tsv
"""
import mpmath
from mpmath import mp, mpf

mp.prec = 64
VSMALL = mpf("5.0E-324")
VLARGE = mpf("1.7E308")
PI = mp.pi


class Source:
    def __init__(self):
        self.i = 0

    def __call__(self):
        self.i += 1
        return mpf((self.i * 0x9E3779B97F4A7C15) % 2**64) / 2**64


def trunc(x):
    return int(x)  # toward zero


def normal(g):
    while True:
        u = g(); v = g()
        v = mpf("1.7156") * (v - mpf("0.5"))
        x = u - mpf("0.449871"); y = abs(v) - mpf("-0.386595")
        q = x * x + y * (mpf("0.196") * y - mpf("0.25472") * x)
        if q < mpf("0.27597"):
            break
        if q > mpf("0.27846"):
            continue
        if v * v < -4 * mp.log(u) * u * u:
            break
    return v / u


def exponential(g):
    while True:
        r = g()
        if r > VSMALL:
            return -mp.log(r)


def cauchy(g):
    while True:
        a = g(); b = g()
        a = 2 * (a - mpf("0.5")); b = 2 * (b - mpf("0.5"))
        if abs(b) < VSMALL:
            continue
        if a * a + b * b < 1:
            return a / b


def gamma(s, g):
    s = mpf(s)
    if s > 1:
        c = s - mpf(1) / 3; d = 1 / mp.sqrt(9 * c)
        while True:
            while True:
                x = normal(g); v = (1 + d * x) ** 3
                if v > 0:
                    break
            u = g()
            if u < 1 - mpf("0.0331") * x * x * x * x:
                return c * v
            if mp.log(u) < mpf("0.5") * x * x + c * (1 - v + mp.log(v)):
                return c * v
    if s < 1:
        a = 1 - s; p = a / (a + s * mp.exp(-a)); c = 1 / s
        uf = p * (VSMALL / a) ** s; vr = 1 - VSMALL; d = a * mp.log(a)
        while True:
            r = g()
            if r >= vr:
                continue
            if r > p:
                x = a - mp.log((1 - r) / (1 - p)); w = a * mp.log(x) - d
            elif r > uf:
                x = a * (r / p) ** c; w = x
            else:
                return mpf(0)
            r = g()
            if 1 - r <= w and r > 0:
                if r * (w + 1) >= 1:
                    continue
                if -mp.log(r) <= w:
                    continue
            return x
    return exponential(g)


def weibull(a, g):
    return exponential(g) ** (1 / mpf(a))


def beta(aa, bb, g):
    a, b = mpf(aa), mpf(bb)
    swap = b > a
    if swap:
        a, b = b, a
    d = a / b; f = a + b
    if b > 1:
        h = mp.sqrt((2 * a * b - f) / (f - 2)); t = mpf(1)
    else:
        h = b; t = 1 / (1 + (a / (VLARGE * b)) ** b)
    c = a + h
    while True:
        r = g(); x = g(); s = r * r * x
        if r < VSMALL or s <= 0:
            continue
        if r < t:
            x = mp.log(r / (1 - r)) / h; y = d * mp.exp(x)
            z = c * x + f * mp.log((1 + d) / (1 + y)) - mpf("1.38629436112")
            if s - 1 > z:
                if s - s * z > 1:
                    continue
                if mp.log(s) > z:
                    continue
            result = y / (1 + y)
        else:
            if 4 * s > (1 + 1 / d) ** f:
                continue
            result = mpf(1)
        return 1 - result if swap else result


def student_t(m, g):
    s = mpf(m); c = mpf("-0.25") * (s + 1); a = 4 / (1 + 1 / s) ** c; f = 16 / a
    gg = mpf(1)
    if m > 1:
        gg = s - 1
        gg = ((s + 1) / gg) ** c * mp.sqrt(2 * s / gg)
    while True:
        while True:
            r = g()
            if r > 0:
                break
        v = g(); x = (2 * v - 1) * gg / r; v = x * x
        if v > 5 - a * r:
            if m >= 3 and r * (v + 3) > f:
                continue
            if r > (1 + v / s) ** c:
                continue
        return x


def inv_gauss(h, b, g):
    h, b = mpf(h), mpf(b)
    e = b * b; d = h + 1; ym = (-d + mp.sqrt(d * d + e)) / b
    d = h - 1; xm = (d + mp.sqrt(d * d + e)) / b; d = mpf("0.5") * d; e = mpf("-0.25") * b
    r = xm + 1 / xm; w = xm * ym
    a = w ** (mpf("-0.5") * h) * mp.sqrt(xm / ym) * mp.exp(-e * (r - ym - 1 / ym))
    c = -d * mp.log(xm) - e * r
    while True:
        while True:
            r1 = g()
            if r1 > 0:
                break
        r2 = g(); x = a * r2 / r1
        if x <= 0:
            continue
        if mp.log(r1) < d * mp.log(x) + e * (x + 1 / x) + c:
            return x


def von_mises(k, g):
    k = mpf(k); nk = trunc(k + k + 1)
    theta = [mpf(0)] * 22; p = [mpf(0)] * 22
    nodes = [mpf("0.238619186083197"), mpf("0.661209386466265"), mpf("0.932469514203152")]
    weights = [mpf("0.467913934572691"), mpf("0.360761573048139"), mpf("0.171324492379170")]
    if k > mpf("0.5"):
        total = mpf(0)
        for j in range(1, nk + 1):
            theta[j] = mp.acos(1 - j / k) if j < nk else PI
            lo, hi = theta[j - 1], theta[j]
            mid = (lo + hi) / 2; half = (hi - lo) / 2; s = mpf(0)
            for i in range(3):
                s += weights[i] * (mp.exp(k * mp.cos(mid + nodes[i] * half)) + mp.exp(k * mp.cos(mid - nodes[i] * half)))
            p[j] = s * half; total += p[j]
        for j in range(1, nk + 1):
            p[j] /= total
    else:
        p[1] = mpf(1); theta[1] = PI
    r = g(); j = 1
    while j <= nk:
        r -= p[j]
        if r < 0:
            break
        j += 1
    j = min(j, nk)
    r = -r / p[j]
    while True:
        th = theta[j - 1] + r * (theta[j] - theta[j - 1])
        lam = k - j + 1 - k * mp.cos(th); n = 1; rlast = lam
        r = g()
        while r <= rlast:
            n += 1; rlast = r; r = g()
        if n % 2 == 1:
            break
        r = g()
    return -th if (r - rlast) / (1 - rlast) - mpf("0.5") < 0 else th


def binomial1(n, p, g):
    p = mpf(p); r0 = trunc((n + 1) * p)
    pr = mp.exp(mp.loggamma(n + 1) - mp.loggamma(r0 + 1) - mp.loggamma(n - r0 + 1) + r0 * mp.log(p) + (n - r0) * mp.log(1 - p))
    odds = p / (1 - p)
    while True:
        u = g() - pr
        if u < 0:
            return r0
        pu = pd = pr; ru = rd = r0
        while rd >= 0 or ru <= n:
            rd -= 1
            if rd >= 0:
                pd = pd * (rd + 1) / (odds * (n - rd)); u -= pd
                if u < 0:
                    return rd
            ru += 1
            if ru <= n:
                pu = pu * (n - ru + 1) * odds / ru; u -= pu
                if u < 0:
                    return ru


def stirling(y):
    y2 = y * y
    return (13860 - (462 - (132 - (99 - 140 / y2) / y2) / y2) / y2) / y / 166320


def binomial2(n, pp, g):
    pp = mpf(pp); p = min(pp, 1 - pp); q = 1 - p; xnp = n * p
    if xnp > 30:
        ffm = xnp + p; m = trunc(ffm); fm = mpf(m); xnpq = xnp * q
        p1 = mpf(trunc(mpf("2.195") * mp.sqrt(xnpq) - mpf("4.6") * q)) + mpf("0.5")
        xm = fm + mpf("0.5"); xl = xm - p1; xr = xm + p1; c = mpf("0.134") + mpf("20.5") / (mpf("15.3") + fm)
        al = (ffm - xl) / (ffm - xl * p); xll = al * (1 + mpf("0.5") * al)
        al = (xr - ffm) / (xr * q); xlr = al * (1 + mpf("0.5") * al)
        p2 = p1 * (1 + c + c); p3 = p2 + c / xll; p4 = p3 + c / xlr
        while True:
            u = g() * p4; v = g()
            if u <= p1:
                ix = trunc(xm - p1 * v + u)
                break
            if u <= p2:
                x = xl + (u - p1) / c; v = v * c + 1 - abs(xm - x) / p1
                if v > 1 or v <= 0:
                    continue
                ix = trunc(x)
            elif u <= p3:
                ix = trunc(xl + mp.log(v) / xll)
                if ix < 0:
                    continue
                v = v * (u - p2) * xll
            else:
                ix = trunc(xr - mp.log(v) / xlr)
                if ix > n:
                    continue
                v = v * (u - p3) * xlr
            k = mpf(abs(ix - m))
            if k <= 20 or k >= xnpq / 2 - 1:
                f = mpf(1); r = p / q; gg = (n + 1) * r
                for i in range(m + 1, ix + 1):
                    f = f * (gg / i - r)
                for i in range(ix + 1, m + 1):
                    f = f / (gg / i - r)
                if v <= f:
                    break
                continue
            amaxp = (k / xnpq) * ((k * (k / 3 + mpf("0.625")) + mpf("0.1666666666666")) / xnpq + mpf("0.5"))
            ynorm = -k * k / (2 * xnpq); alv = mp.log(v)
            if alv < ynorm - amaxp:
                break
            if alv > ynorm + amaxp:
                continue
            x1 = mpf(ix + 1); f1 = fm + 1; z = n + 1 - fm; w = mpf(n - ix + 1)
            if alv - (xm * mp.log(f1 / x1) + (n - m + mpf("0.5")) * mp.log(z / w) + (ix - m) * mp.log(w * p / (x1 * q))
                      + stirling(f1) + stirling(z) + stirling(x1) + stirling(w)) > 0:
                continue
            break
    else:
        qn = q ** n; r = p / q; gg = r * (n + 1)
        while True:
            ix = 0; f = qn; u = g(); ok = True
            while u >= f:
                if ix > 110:
                    ok = False
                    break
                u -= f; ix += 1; f = f * (gg / ix - r)
            if ok:
                break
    return n - ix if pp > mpf("0.5") else ix


def neg_binomial(sk, p, g):
    p = mpf(p); q = 1 - p; x = mpf(0); st = mpf(sk)
    if p > mpf("0.7"):
        v = 1 / mp.log(p); k = trunc(st)
        for _ in range(k):
            while True:
                r = g()
                if r > 0:
                    break
            x += trunc(v * mp.log(r))
        st -= k
    s = mpf(0)
    y = q ** st; gg = st; r = g()
    while y <= r:
        r -= y; s += 1; y = y * p * gg / s; gg += 1
    return trunc(x + s + mpf("0.5"))


def poisson(mu, g):
    mu = mpf(mu)
    if mu > 10:
        s = mp.sqrt(mu); d = 6 * mu * mu; l = max(0, trunc(mu - mpf("1.1484")))
        gg = mu + s * normal(g)
        ival = 0; fk = mpf(0); difmuk = mu; u = mpf(0)
        if gg > 0:
            ival = trunc(gg)
            if ival >= l:
                return ival
            fk = mpf(ival); difmuk = mu - fk; u = g()
            if d * u >= difmuk * difmuk * difmuk:
                return ival
        omega = mpf("0.3989423") / s; b1 = mpf("0.04166667") / mu; b2 = mpf("0.3") * b1 * b1
        c3 = mpf("0.1428571") * b1 * b2; c2 = b2 - 15 * c3; c1 = b1 - 6 * b2 + 45 * c3; c0 = 1 - b1 + 3 * b2 - 15 * c3
        c = mpf("0.1069") / mu

        def F(ival, fk, difmuk):
            if ival < 10:
                px = -mu; py = mu ** ival / mp.factorial(ival)
            else:
                dl = mpf("0.08333333") / fk; dl = dl - mpf("4.8") * dl * dl * dl; v = difmuk / fk
                if abs(v) > mpf("0.25"):
                    px = fk * mp.log(1 + v) - difmuk - dl
                else:
                    a = [mpf(t) for t in ("-0.5", "0.3333333", "-0.2500068", "0.2000118", "-0.1661269", "0.1421878", "-0.1384794", "0.125006")]
                    poly = a[7]
                    for coefficient in reversed(a[:7]):
                        poly = poly * v + coefficient
                    px = fk * v * v * poly - dl
                py = mpf("0.3989423") / mp.sqrt(fk)
            x = (mpf("0.5") - difmuk) / s; xx = x * x
            return px, py, mpf("-0.5") * xx, omega * (((c3 * xx + c2) * xx + c1) * xx + c0)

        if gg >= 0:
            px, py, fx, fy = F(ival, fk, difmuk)
            if fy - u * fy <= py * mp.exp(px - fx):
                return ival
        while True:
            e = exponential(g); u = g(); u = u + u - 1
            t = mpf("1.8") + (-e if u < 0 else e)
            if t <= mpf("-0.6744"):
                continue
            ival = trunc(mu + s * t); fk = mpf(ival); difmuk = mu - fk
            px, py, fx, fy = F(ival, fk, difmuk)
            if c * abs(u) > py * mp.exp(px + e) - fy * mp.exp(fx + e):
                continue
            return ival
    m = max(1, trunc(mu)); l = 0; p = mp.exp(-mu); q = p; p0 = p; pp = [mpf(0)] * 36
    while True:
        u = g()
        if u <= p0:
            return 0
        if l > 0:
            j = min(l, m) if u > mpf("0.458") else 1
            for k in range(j, l + 1):
                if u <= pp[k]:
                    return k
            if l == 35:
                continue
        for k in range(l + 1, 36):
            p = p * mu / k; q = q + p; pp[k] = q
            if u <= pp[k]:
                return k
        l = 35


STREAMS = [
    ("normal", "", normal), ("exponential", "", exponential), ("cauchy", "", cauchy),
    ("gamma", "0.4", lambda g: gamma("0.4", g)), ("gamma", "1", lambda g: gamma("1", g)),
    ("gamma", "3.7", lambda g: gamma("3.7", g)), ("chisq", "5", lambda g: 2 * gamma(mpf("0.5") * 5, g)),
    ("weibull", "1.5", lambda g: weibull("1.5", g)), ("weibull", "-2", lambda g: weibull("-2", g)),
    ("beta", "2 5", lambda g: beta("2", "5", g)), ("beta", "0.6 0.4", lambda g: beta("0.6", "0.4", g)),
    ("t", "1", lambda g: student_t(1, g)), ("t", "2", lambda g: student_t(2, g)), ("t", "7", lambda g: student_t(7, g)),
    ("invgauss", "0.5 1", lambda g: inv_gauss("0.5", "1", g)), ("vonmises", "0.3", lambda g: von_mises("0.3", g)),
    ("vonmises", "3", lambda g: von_mises("3", g)),
    ("binomial1", "20 0.3", lambda g: binomial1(20, "0.3", g)), ("binomial2", "20 0.3", lambda g: binomial2(20, "0.3", g)),
    ("binomial2", "1000 0.4", lambda g: binomial2(1000, "0.4", g)), ("binomial2", "1000 0.7", lambda g: binomial2(1000, "0.7", g)),
    ("negbinomial", "2.5 0.5", lambda g: neg_binomial("2.5", "0.5", g)),
    ("negbinomial", "3.5 0.8", lambda g: neg_binomial("3.5", "0.8", g)),
    ("poisson", "4.5", lambda g: poisson("4.5", g)), ("poisson", "50", lambda g: poisson("50", g)),
]

print("# generator\tparameters\tfirst five variates from u_i = (i * 0x9E3779B97F4A7C15 mod 2^64) / 2^64 (mpmath, 64-bit)")
for name, parameters, generate in STREAMS:
    source = Source()
    values = [generate(source) for _ in range(5)]
    print("\t".join([name, parameters] + [mpmath.nstr(mpf(v), 25) for v in values]))
