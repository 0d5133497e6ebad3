// The filter of the mode: cells of the number line, counted in place of the values.
#include <kornum/KornumSharded.h>

#include "core/detail/RadixSort.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace KornumSharded {

namespace {

constexpr int Bias = 16383;                         // the exponent of 1
constexpr std::uint64_t Middle = std::uint64_t(1) << 63;  // the cell of +0; -0 is the one below
constexpr std::uint64_t IntegerBit = std::uint64_t(1) << 63;

}  // namespace

TKorModeCells::TKorModeCells() noexcept {
    // SameFloat joins X < Y when Y - X <= T * max(1, |X|, |Y|). Above 1, with
    // 2^e <= |X| < 2^(e+1), that is under T * 2^(e+2): 2^65 T units in the last place of
    // X's binary order of magnitude. Below 1 it is under 2T. Cells twice as wide (2^66 T
    // units, 4T) leave room for the rounding of the test.
    const Float t = Kornumglobals::KorTolerance;
    if (std::isnan(t) || t > 0x1p-6L) return;
    const Float tolerance = std::max<Float>(t, 0);
    int shift = 16;  // at least: the numbers of all cells then fit in 63 bits
    while (std::ldexp(Float(1), shift) < std::ldexp(tolerance, 66)) ++shift;
    int fine = 49;  // at most: the cells below 1 then number under 2^49 on each side
    while (std::ldexp(Float(1), -fine) < 4 * tolerance) --fine;
    shift_ = shift;
    fine_ = fine;
}

namespace {

// The cell of the magnitude with biased exponent e and significand m, counted up from 0:
// 2^fine cells of width 2^-fine below 1, then 2^(63 - shift) cells in each binary order
// of magnitude from 1 up, +infinity and NaN above them all.
[[gnu::always_inline]] inline std::uint64_t MagnitudeCell(int e, std::uint64_t m, int shift, int fine) noexcept {
    if (e >= Bias) return (std::uint64_t(1) << fine) + (std::uint64_t(e - Bias) << (63 - shift)) + ((m & ~IntegerBit) >> shift);
    const int right = Bias + 63 - fine - std::max(e, 1);  // |x| * 2^fine = m >> right
    return right >= 64 ? 0 : m >> right;
}

[[gnu::always_inline]] inline std::uint64_t Cell(std::uint16_t signExponent, std::uint64_t m, int shift,
                                                  int fine) noexcept {
    const std::uint64_t g = MagnitudeCell(signExponent & 0x7fff, m, shift, fine);
    return signExponent & 0x8000 ? Middle - 1 - g : Middle + g;
}

// The number of bounds at or below c, without branches on the data (the parts of random
// values are not predictable): by counting when the bounds are few, else by a binary
// search with conditional moves.
[[gnu::always_inline]] inline std::size_t PartOf(const std::vector<std::uint64_t>& bounds, std::uint64_t c) noexcept {
    if (bounds.size() <= 32) {
        std::size_t below = 0;
        for (const std::uint64_t b : bounds) below += b <= c;
        return below;
    }
    const std::uint64_t* base = bounds.data();
    for (std::size_t size = bounds.size(); size > 1;) {
        const std::size_t half = size / 2;
        base += std::size_t(base[half - 1] <= c) * half;
        size -= half;
    }
    return std::size_t(base - bounds.data()) + (*base <= c);
}

// The cell of X read from its bytes (loading it into the FPU costs more than the rest);
// false for NaN, which is never the same as anything and so has no cell.
[[gnu::always_inline]] inline bool CellAt(const Float& X, int shift, int fine, std::uint64_t& cell) noexcept {
    std::uint64_t m;
    std::uint16_t signExponent;
    std::memcpy(&m, &X, 8);
    std::memcpy(&signExponent, reinterpret_cast<const unsigned char*>(&X) + 8, 2);
    cell = Cell(signExponent, m, shift, fine);
    return (signExponent & 0x7fff) != 0x7fff || (m << 1) == 0;
}

}  // namespace

std::uint64_t TKorModeCells::CellOf(const Float& X) const noexcept {
    std::uint64_t cell;
    CellAt(X, shift_, fine_, cell);
    return cell;
}

std::vector<std::uint64_t> TKorModeCells::Bounds(const std::vector<TKorKey>& KeyBounds) const {
    std::vector<std::uint64_t> bounds;
    for (const TKorKey& key : KeyBounds) {
        // The stored bits of the key. A positive bound at the start of a binary order of
        // magnitude has no integer bit: it counts as the first value of that order.
        const bool negative = !(key.High & 0x8000);
        const std::uint16_t signExponent = negative ? std::uint16_t(~key.High) : std::uint16_t(key.High & 0x7fff);
        std::uint64_t m = negative ? ~key.Low : key.Low;
        if (!negative && signExponent != 0 && !(m & IntegerBit)) m = IntegerBit;
        const std::uint64_t cell = Cell(signExponent, m, shift_, fine_);
        if (bounds.empty() || cell > bounds.back()) bounds.push_back(cell);
    }
    return bounds;
}

// One pass, the parts reserved at their expected share (they grow if a shard's values
// crowd into a few). NaN is never the same as anything, so it has no cell.
std::vector<std::vector<std::uint64_t>> TKorModeCells::SplitCells(std::span<const Float> Values,
                                                                  const std::vector<std::uint64_t>& Bounds) const {
    const std::size_t parts = Bounds.size() + 1;
    std::vector<std::vector<std::uint64_t>> split(parts);
    for (auto& part : split) part.reserve(Values.size() / parts + Values.size() / parts / 8 + 16);
    for (const Float& x : Values) {
        std::uint64_t c;
        if (!CellAt(x, shift_, fine_, c)) continue;
        const std::size_t j = PartOf(Bounds, c);
        split[j].push_back(c);
        // A cell at the edge of a part is also a neighbour in the part beside it.
        if (j > 0 && c == Bounds[j - 1]) split[j - 1].push_back(c);
        if (j + 1 < parts && c + 1 == Bounds[j]) split[j + 1].push_back(c);
    }
    return split;
}

std::vector<std::uint64_t> BusyCells(const std::vector<std::span<const std::uint64_t>>& Pieces, std::uint64_t Low,
                                     std::uint64_t High, Int64& Count) {
    std::size_t total = 0;
    for (const auto& piece : Pieces) total += piece.size();
    // The cells of all pieces, sorted, in the vectors' storage (huge pages: a part is large).
    const Kornumglobals::detail::KeyBuffer<std::uint64_t> buffer(total), spare(total);
    std::uint64_t* const cells = buffer.get();
    Kornumglobals::detail::RadixSortPieces(Pieces, cells, spare.get());
    std::vector<std::uint64_t> busy;
    Count = 0;
    // Each cell of the part with how many values it holds, and its neighbours' cells.
    for (std::size_t i = 0; i < total;) {
        std::size_t j = i + 1;
        while (j < total && cells[j] == cells[i]) ++j;
        const std::uint64_t c = cells[i];
        const bool company = j - i > 1 || (i > 0 && cells[i - 1] + 1 == c) || (j < total && cells[j] == c + 1);
        if (c >= Low && c < High && company) {
            busy.push_back(c);
            Count += Int64(j - i);
        }
        i = j;
    }
    return busy;
}

// The busy cells in an open-addressed table twice their number or more (cell numbers are
// never 0, which marks an empty slot), behind a bitmap of 16 bits a busy cell that turns
// most values away before the table is read.
std::vector<Float> TKorModeCells::Candidates(std::span<const Float> Values, std::span<const std::uint64_t> Busy) const {
    std::vector<Float> found;
    if (Busy.empty()) return found;
    int bits = 4;
    while ((std::size_t(1) << bits) < 2 * Busy.size()) ++bits;
    const std::size_t mask = (std::size_t(1) << bits) - 1;
    const auto hash = [](std::uint64_t c) { return c * 0x9E3779B97F4A7C15ULL; };
    const auto slot = [&](std::uint64_t c) { return std::size_t(hash(c) >> (64 - bits)); };
    const auto mark = [&](std::uint64_t c) { return std::size_t(hash(c) >> (64 - bits - 3)); };
    std::vector<std::uint64_t> table(mask + 1, 0), marks((std::size_t(8) << bits) / 64, 0);
    for (const std::uint64_t c : Busy) {
        std::size_t s = slot(c);
        while (table[s] != 0 && table[s] != c) s = (s + 1) & mask;
        table[s] = c;
        marks[mark(c) / 64] |= std::uint64_t(1) << (mark(c) % 64);
    }
    for (const Float& x : Values) {
        std::uint64_t c;
        if (!CellAt(x, shift_, fine_, c) || !((marks[mark(c) / 64] >> (mark(c) % 64)) & 1)) continue;
        for (std::size_t s = slot(c); table[s] != 0; s = (s + 1) & mask)
            if (table[s] == c) {
                found.push_back(x);
                break;
            }
    }
    return found;
}

}  // namespace KornumSharded
