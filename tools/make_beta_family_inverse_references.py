#!/usr/bin/env python3
"""Reference quantiles of the beta, F and Student t distributions, lower and upper tail,
over far tails and skewed shapes, and their densities at large shapes, with mpmath at
320 bits.

Every argument is rounded to a 64-bit significand first (a Float), so that each value is
exact for the argument the tests pass.

Usage: /usr/bin/python3 tools/make_beta_family_inverse_references.py > tests/data/distributions_beta_family_inverse.tsv
Columns: kind, the arguments in the routine's order, the value, then for the quantiles the
error that rounding the probability to a Float causes, P 2^-64 / f(x) (f the density at
the quantile): the tests allow that or 1e-16 relative, whichever is larger.
"""
import sys

from mpmath import mp, mpf

mp.prec = 320


def exact(x):
    """x rounded to a 64-bit significand (a Float), as an mpf at full precision."""
    old = mp.prec
    mp.prec = 64
    y = +mpf(x)
    mp.prec = old
    return y


def text(x, digits=30):
    return mp.nstr(x, digits, min_fixed=-5, max_fixed=5) if x != 0 else "0"


def log_beta(a, b):
    return mp.loggamma(a) + mp.loggamma(b) - mp.loggamma(a + b)


def prefix(x, c, a, b):
    """x^a c^b / (a B(a, b)), c = 1 - x given separately."""
    return mp.exp(a * mp.log(x) + b * mp.log(c) - mp.log(a) - log_beta(a, b))


def series(x, c, a, b):
    """I_x(a, b) as prefix 2F1(a + b, 1; a + 1; x), a sum of positive terms."""
    return prefix(x, c, a, b) * mp.hyp2f1(a + b, 1, a + 1, x, maxterms=10**7, force_series=True)


def fraction(x, c, a, b):
    """I_x(a, b) as prefix times the classical continued fraction
    1 / (1 + d1 / (1 + d2 / ...)), d_2m = m (b - m) x / ((a + 2m - 1)(a + 2m)),
    d_2m+1 = -(a + m)(a + b + m) x / ((a + 2m)(a + 2m + 1)), by Lentz's method; it converges
    below x = (a + 1) / (a + b + 2) in about sqrt(max(a, b)) levels, where the series would
    need thousands of terms."""
    tiny = mpf(2) ** -2000
    eps = mpf(2) ** -(mp.prec - 10)

    def nonzero(v):
        return tiny if v == 0 else v

    C = mpf(1)
    D = 1 / nonzero(1 - (a + b) * x / (a + 1))
    h = D
    for m in range(1, 10**7):
        for d in (m * (b - m) * x / ((a + 2 * m - 1) * (a + 2 * m)),
                  -(a + m) * (a + b + m) * x / ((a + 2 * m) * (a + 2 * m + 1))):
            D = 1 / nonzero(1 + d * D)
            C = nonzero(1 + d / C)
            h *= C * D
        if abs(C * D - 1) < eps:
            return prefix(x, c, a, b) * h
    raise RuntimeError("continued fraction")


def tail(x, c, a, b):
    """I_x(a, b) for x below (a + 1) / (a + b + 2): the series where it converges within
    some hundreds of terms, the continued fraction elsewhere."""
    if x <= mpf(3) / 4:
        return series(x, c, a, b)
    return fraction(x, c, a, b)


def lower(x, c, a, b):
    """I_x(a, b), as 1 - I_c(b, a) above the crossover (where it is not small)."""
    if x * (a + b + 2) < a + 1:
        return tail(x, c, a, b)
    return 1 - tail(c, x, b, a)


def log_density(x, c, a, b):
    return (a - 1) * mp.log(x) + (b - 1) * mp.log(c) - log_beta(a, b)


def solve(t, a, b):
    """The x with I_x(a, b) = t for 0 < t <= 1/2, as (x, 1 - x), both to full relative
    precision: the unknown is s = x below the median and s = 1 - x above it, and Newton's
    method runs on ln I against ln s inside a bracket that only narrows."""
    half = mpf(1) / 2
    low = t <= lower(half, half, a, b)
    sign = 1 if low else -1

    def point(ls):
        s = mp.exp(ls)
        return (s, 1 - s) if low else (1 - s, s)

    def residual(ls):  # increasing in ls below the median, decreasing above
        x, c = point(ls)
        v = lower(x, c, a, b)
        slope = sign * mp.exp(log_density(x, c, a, b) + mp.log(x) + mp.log(c)) / v
        return mp.log(v) - mp.log(t), slope

    # The power law of the near end of s as the start.
    if low:
        start = (mp.log(t) + mp.log(a) + log_beta(a, b)) / a
    else:
        start = (mp.log1p(-t) + mp.log(b) + log_beta(a, b)) / b
    ls = min(start, mp.log(half))
    top = mp.log(half)
    below = None  # an ls on the side of the far end of s (s smaller)
    above = top
    previous = None
    for _ in range(2000):
        r, slope = residual(ls)
        if r == 0:
            break
        # Where Newton's steps stop halving the residual (they can zigzag across a strongly
        # curved root), the bracket's midpoint follows.
        stalled = previous is not None and abs(r) > abs(previous) / 2
        previous = r
        if (r < 0) == low:
            below = ls
        else:
            above = ls
        step = -r / slope
        nxt = ls + step
        if below is None:
            if not nxt < ls:
                nxt = ls - max(1, abs(ls))
            elif nxt < ls - max(1, abs(ls)) * 4:
                nxt = ls - max(1, abs(ls)) * 4
        elif stalled or not (below < nxt < above):
            nxt = (below + above) / 2
        if below is not None and min(abs(nxt - ls), above - below) < mpf(2) ** -250 * max(1, abs(ls)):
            ls = nxt
            break
        ls = nxt
    else:
        raise RuntimeError("no convergence %s %s %s" % (t, a, b))
    return point(ls)


def beta_quantile(p, a, b, upper):
    """(x, 1 - x) with P(X < x) = p, or P(X > x) = p for upper."""
    if upper:
        c, x = beta_quantile(p, b, a, False)
        return x, c
    if p <= mpf(1) / 2:
        return solve(p, a, b)
    c, x = solve(1 - p, b, a)
    return x, c


def condition(p, log_f):
    """P 2^-64 / f, with log_f the logarithm of the density at the quantile."""
    return p * mpf(2) ** -64 * mp.exp(-log_f)


rows = []


def add(kind, arguments, value, extra=None):
    rows.append((kind, arguments, value, extra))


def beta_rows(p, a, b):
    for upper in (False, True):
        x, c = beta_quantile(p, a, b, upper)
        if x > 0 and c > 0:
            add("beta_inv_greater" if upper else "beta_inv_less", [p, a, b], x,
                condition(p, log_density(x, c, a, b)))


def f_rows(p, n1, n2):
    a, b = mpf(n1) / 2, mpf(n2) / 2
    for upper in (False, True):
        y, c = beta_quantile(p, a, b, upper)  # y = n1 x / (n1 x + n2)
        x = n2 * y / (n1 * c)
        # f_F(x) = y^a c^b / (x B(a, b))
        log_f = a * mp.log(y) + b * mp.log(c) - log_beta(a, b) - mp.log(x)
        add("f_inv_greater" if upper else "f_inv_less", [p, n1, n2], x, condition(p, log_f))


def t_rows(p, n):
    a = mpf(n) / 2
    half = mpf(1) / 2
    for upper in (False, True):
        lower_p = 1 - p if upper else p  # only its distance from 1/2 matters below
        if p == half:
            add("t_inv_greater" if upper else "t_inv_less", [p, n], mpf(0), mpf(0))
            continue
        tail = min(p, 1 - p)  # exact either way at 320 bits for these p
        if 2 * tail <= half:
            x, c = solve(2 * tail, a, half)  # x = n / (n + t^2)
        else:
            c, x = solve(1 - 2 * tail, half, a)
        t = mp.sqrt(n * c / x)
        if lower_p < half:
            t = -t
        log_f = -(n + 1) / mpf(2) * mp.log(1 + t * t / n) - mp.log(n) / 2 - log_beta(a, half)
        add("t_inv_greater" if upper else "t_inv_less", [p, n], t, condition(p, log_f))


def main():
    probabilities = [exact(p) for p in ("1e-300", "1e-100", "1e-20", "1e-10", "1e-5", "0.01", "0.5")]
    probabilities += [exact(1 - mpf("1e-5")), 1 - mpf(2) ** -52, 1 - mpf(2) ** -64]
    far = [exact("1e-1000"), exact("1e-4900")]  # upper tails only Float's range can hold
    shapes = [exact(s) for s in ("0.01", "0.5", "1", "3", "100", "1000", "100000")]
    for a in shapes:
        for b in shapes:
            for p in probabilities:
                beta_rows(p, a, b)
            for q in far:
                x, c = beta_quantile(q, a, b, True)
                if x > mpf(2) ** -16382:
                    add("beta_inv_greater", [q, a, b], x, condition(q, log_density(x, c, a, b)))
    # Points a user met: a skewed lower tail, and a strong skew just below 1.
    for p, a, b in (("1e-20", 100, 1), ("1e-100", 10, 1), ("1e-300", 10, 1)):
        beta_rows(exact(p), mpf(a), mpf(b))
    beta_rows(exact(1 - mpf("1e-16")), mpf(1), mpf(1000))

    degrees = [1, 2, 3, 10, 100, 1000, 100000, 1000000]
    for n1 in degrees:
        for n2 in degrees:
            for p in probabilities:
                f_rows(p, n1, n2)
            a, b = mpf(n1) / 2, mpf(n2) / 2
            for q in far:
                y, c = beta_quantile(q, a, b, True)
                x = n2 * y / (n1 * c)
                if x < mpf(2) ** 16383:
                    log_f = a * mp.log(y) + b * mp.log(c) - log_beta(a, b) - mp.log(x)
                    add("f_inv_greater", [q, n1, n2], x, condition(q, log_f))
    for n in (1, 2, 3, 4, 7, 10, 30, 59, 60, 61, 100, 1000, 100000, 1000000):
        for p in probabilities:
            t_rows(p, n)
        for q in far:
            x, c = solve(2 * q, mpf(n) / 2, mpf(1) / 2)
            t = mp.sqrt(n * c / x)
            if t < mpf(2) ** 16383:
                log_f = -(n + 1) / mpf(2) * mp.log(1 + t * t / n) - mp.log(n) / 2 - log_beta(mpf(n) / 2, mpf(1) / 2)
                add("t_inv_greater", [q, n], t, condition(q, log_f))

    # Densities at large shapes, at and around the mode, as exact Floats.
    big = [exact(s) for s in ("0.5", "3", "100", "200", "1000", "10000", "100000")]
    for a in big:
        for b in big:
            mean = a / (a + b)
            sd = mp.sqrt(a * b / ((a + b) ** 2 * (a + b + 1)))
            for k in (-6, -2.5, -1, 0, 0.3, 1, 2.5, 6):
                x = exact(mean + k * sd)
                if 0 < x < 1:
                    value = mp.exp(log_density(x, 1 - x, a, b))
                    if value > mpf("1e-4900"):
                        add("beta_pdf", [x, a, b], value)
    add("beta_pdf", [exact("0.2805"), mpf(200), mpf(1000)],
        mp.exp(log_density(exact("0.2805"), 1 - exact("0.2805"), mpf(200), mpf(1000))))
    for n1, n2 in ((200, 2000), (2000, 2000), (20000, 200), (200000, 200000), (3, 200000)):
        a, b = mpf(n1) / 2, mpf(n2) / 2
        for f in (0.5, 0.9, 1, 1.02, 1.3, 2):
            x = exact(f)
            y = n1 * x / (n1 * x + n2)
            add("f_pdf", [x, n1, n2], mp.exp(a * mp.log(y) + b * mp.log(1 - y) - log_beta(a, b)) / x)
    for n in (1000, 200000, 1000000):
        for t in (0.01, 0.7, 1.5, 3, 6):
            t = exact(t)
            add("t_pdf", [t, n], mp.exp(-(n + 1) / mpf(2) * mp.log(1 + t * t / n) - mp.log(n) / 2 -
                                        log_beta(mpf(n) / 2, mpf(1) / 2)))

    out = sys.stdout
    out.write("# kind\targuments...\tvalue\t[P 2^-64 / f(x) for quantiles] (mpmath, 320 bits, at the Float arguments)\n")
    for kind, arguments, value, extra in rows:
        cells = [kind] + [text(v) if not isinstance(v, int) else str(v) for v in arguments] + [text(value)]
        if extra is not None:
            cells.append(text(extra, 6))
        out.write("\t".join(cells) + "\n")


if __name__ == "__main__":
    main()
