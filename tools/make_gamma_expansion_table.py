#!/usr/bin/env python3
"""Prints the coefficient table of the uniform asymptotic expansion of the regularised
incomplete gamma functions, for statistics/detail/GammaUniformExpansion.hpp.

With mu = (x - a) / a and eta = sign(mu) sqrt(2 (mu - ln(1 + mu))),
    Q(a, x) = erfc(eta sqrt(a / 2)) / 2 + exp(-a eta^2 / 2) / sqrt(2 pi a) S(a, eta),
    S(a, eta) ~ sum over k of c_k(eta) a^-k,
where c_0 = 1 / mu - 1 / eta and c_k = (1 / eta) c_(k-1)' + (-1)^k g_k / mu, g_k the
coefficients of the Stirling series Gamma(a) / (sqrt(2 pi) a^(a - 1/2) e^-a) ~ sum g_k a^-k.
Every c_k is analytic at eta = 0; its Taylor coefficients are formed here exactly, in
rational arithmetic, from the series of mu(eta) (the reversion of eta(mu)).

The table keeps c_0 .. c_(TERMS-1), each up to the power of eta beyond which its terms,
for |eta| <= ETA_MAX and a >= A_MIN, add less than 2^-68 to S. Every coefficient is
rounded to one Float (64-bit significand, to nearest).

Run from the repository root and paste the output:  python3 tools/make_gamma_expansion_table.py
"""
from fractions import Fraction as Fr

import mpmath as mp

mp.mp.prec = 200

LENGTH = 80  # powers of eta carried through the recurrence (each step loses two)
TERMS = 8
ETA_MAX = 1
A_MIN = 200
BOUND = Fr(1, 2**68)


def multiply(a, b, n):
    c = [Fr(0)] * n
    for i, x in enumerate(a[:n]):
        if x:
            for j, y in enumerate(b[: n - i]):
                c[i + j] += x * y
    return c


def reciprocal(a, n):
    """1 / a as a power series, a[0] != 0."""
    b = [Fr(0)] * n
    b[0] = 1 / a[0]
    for k in range(1, n):
        b[k] = -sum(a[j] * b[k - j] for j in range(1, min(k, len(a) - 1) + 1)) / a[0]
    return b


def square_root(a, n):
    """sqrt(a) as a power series, a[0] = 1."""
    b = [Fr(1)] + [Fr(0)] * (n - 1)
    for k in range(1, n):
        b[k] = ((a[k] if k < len(a) else Fr(0)) - sum(b[j] * b[k - j] for j in range(1, k))) / 2
    return b


def compose(f, g, n):
    """f(g(t)) as a power series, g[0] = 0."""
    result = [Fr(0)] * n
    power = [Fr(1)] + [Fr(0)] * (n - 1)
    for k in range(1, n):
        power = multiply(power, g, n)
        if f[k]:
            for i in range(n):
                result[i] += f[k] * power[i]
    return result


def bernoulli(n):
    a = [Fr(0)] * (n + 1)
    for m in range(n + 1):
        a[m] = Fr(1, m + 1)
        for j in range(m, 0, -1):
            a[j - 1] = j * (a[j - 1] - a[j])
    return a[0]


def stirling_coefficients(n):
    """g_0 .. g_(n-1): exp(sum over m of B_2m / (2m (2m - 1)) a^(1 - 2m)) in powers of 1 / a."""
    log_series = [Fr(0)] * n
    for m in range(1, n // 2 + 2):
        if 2 * m - 1 < n:
            log_series[2 * m - 1] = bernoulli(2 * m) / (2 * m * (2 * m - 1))
    result = [Fr(1)] + [Fr(0)] * (n - 1)
    term = [Fr(1)] + [Fr(0)] * (n - 1)
    factorial = 1
    for k in range(1, n):
        term = multiply(term, log_series, n)
        factorial *= k
        for i in range(n):
            result[i] += term[i] / factorial
    return result


def expansion_coefficients():
    n = LENGTH + 2
    # eta = mu sqrt(2 (1/2 - mu/3 + mu^2/4 - ...)), then mu(eta) by reversion.
    inner = [Fr(2 * (-1) ** k, k) for k in range(2, n + 2)]
    eta_of_mu = [Fr(0)] + square_root(inner, n)[: n - 1]
    mu = [Fr(0), Fr(1)] + [Fr(0)] * (n - 2)
    for k in range(2, n):
        mu[k] = -compose(eta_of_mu, mu, k + 1)[k]
    # 1 / mu = sum over j of inverse[j] eta^(j - 1), as a Laurent series {power: coefficient}.
    inverse = reciprocal(mu[1:], n)
    inverse_mu = {j - 1: inverse[j] for j in range(n)}
    g = stirling_coefficients(TERMS + 1)
    c0 = dict(inverse_mu)
    c0[-1] -= 1
    assert c0[-1] == 0
    rows = [{j: v for j, v in c0.items() if j >= 0}]
    for k in range(1, TERMS):
        previous = rows[-1]
        row = {}
        for j, v in previous.items():
            if j >= 1:
                row[j - 2] = row.get(j - 2, 0) + j * v
        for j, v in inverse_mu.items():
            row[j] = row.get(j, 0) + (-1) ** k * g[k] * v
        assert row.get(-1, 0) == 0  # the pole cancels: c_k is analytic
        last = max(previous) - 2
        rows.append({j: v for j, v in row.items() if 0 <= j <= last})
    return rows


def literal(v):
    """v rounded to a 64-bit significand, as a hexadecimal Float literal."""
    v = mp.mpf(v.numerator) / v.denominator
    if v == 0:
        return "0.0L"
    m, e = mp.frexp(v)
    mant = int(mp.nint(m * mp.mpf(2) ** 64))
    if abs(mant) == 2**64:
        mant //= 2
        e += 1
    sign = "-" if mant < 0 else ""
    return "%s0x%XP%+dL" % (sign, abs(mant), e - 64)


def main():
    rows = expansion_coefficients()
    degrees = []
    for k, row in enumerate(rows):
        tail = Fr(0)
        degree = max(row)
        for j in range(max(row), -1, -1):
            tail += abs(row.get(j, Fr(0))) * Fr(ETA_MAX) ** j
            if tail / Fr(A_MIN) ** k > BOUND:
                degree = j
                break
        degrees.append(degree)
    print("inline constexpr int GammaExpansionDegrees[%d] = {%s};" % (TERMS, ", ".join(map(str, degrees))))
    print("inline constexpr Float GammaExpansionCoefficients[] = {")
    for k, row in enumerate(rows):
        print("    // c_%d" % k)
        values = [literal(row.get(j, Fr(0))) for j in range(degrees[k] + 1)]
        for i in range(0, len(values), 3):
            print("    " + ", ".join(values[i : i + 3]) + ",")
    print("};")


if __name__ == "__main__":
    main()
