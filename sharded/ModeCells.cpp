// The filter of the mode: cells of the number line, counted in place of the values.
#include <kornum/KornumSharded.h>

#include "core/detail/RadixSort.hpp"
#include "sharded/detail/StoredValue.hpp"

#include <algorithm>
#include <bit>
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

// The cell of a value from its stored form (loading a Float into the FPU costs more than
// the rest); false for NaN, which is never the same as anything and so has no cell.
template <class E>
[[gnu::always_inline]] inline bool CellAt(const E& X, int shift, int fine, std::uint64_t& cell) noexcept {
    const detail::Stored s = detail::StoredOf(X);
    cell = Cell(s.top, s.significand, shift, fine);
    return (s.top & 0x7fff) != 0x7fff || (s.significand << 1) == 0;
}

}  // namespace

std::uint64_t TKorModeCells::CellOf(const Float& X) const noexcept {
    std::uint64_t cell;
    CellAt(X, shift_, fine_, cell);
    return cell;
}

namespace {

// A part holds its cells as keys: the hashed block of 2^CellBlockBits cells above 13 bits
// of place in the block's window, where places 1 to 2^CellBlockBits are the block's own
// cells and places 0 and 2^CellBlockBits + 1 the neighbouring blocks' edge cells. So
// neighbouring cells are neighbouring keys, and the keys of a part are spread evenly
// whatever the values' distribution. Cells lie within 2^62 of the middle (the cell of +0),
// so the blocks number under 2^51 and the hash, an odd multiplier modulo 2^51, can be
// undone.
constexpr int PlaceBits = CellBlockBits + 1;
constexpr int HashBits = 64 - PlaceBits;
constexpr std::uint64_t HashMask = (std::uint64_t(1) << HashBits) - 1;
constexpr std::uint64_t FirstCell = Middle - (std::uint64_t(1) << 62);
constexpr std::uint64_t Multiplier = 0x9E3779B97F4A7C15ULL;
constexpr std::uint64_t Inverse() {
    std::uint64_t x = Multiplier;  // Newton's steps for 1 / Multiplier modulo 2^64
    for (int i = 0; i < 6; ++i) x *= 2 - Multiplier * x;
    return x;
}
static_assert(Multiplier * Inverse() == 1);

constexpr std::uint64_t BlockHash(std::uint64_t block) { return (block * Multiplier) & HashMask; }
constexpr std::uint64_t WindowKey(std::uint64_t block, std::uint64_t place) {
    return BlockHash(block) << PlaceBits | place;
}
constexpr int PartOfKey(std::uint64_t key, int parts) {
    return int(((key >> 32) * std::uint64_t(parts)) >> 32);
}
// The cell at a key's place, when the place is one of the block's own.
constexpr bool OwnCell(std::uint64_t key, std::uint64_t& cell) {
    const std::uint64_t place = key & ((std::uint64_t(1) << PlaceBits) - 1);
    if (place == 0 || place > (std::uint64_t(1) << CellBlockBits)) return false;
    const std::uint64_t block = ((key >> PlaceBits) * Inverse()) & HashMask;
    cell = FirstCell + (block << CellBlockBits) + place - 1;
    return true;
}

}  // namespace

int CellPart(std::uint64_t Cell, int Parts) noexcept {
    return PartOfKey(WindowKey((Cell - FirstCell) >> CellBlockBits, 1), std::max(Parts, 1));
}

// One pass, the parts reserved at their expected share (they grow if a shard's values
// crowd into a few blocks). NaN is never the same as anything, so it has no cell.
template <class E>
std::vector<std::vector<std::uint64_t>> TKorModeCells::Split(std::span<const E> Values, int Parts) const {
    constexpr std::uint64_t Last = (std::uint64_t(1) << CellBlockBits) - 1, Blocks = HashMask + 1;
    const int parts = std::max(Parts, 1);
    std::vector<std::vector<std::uint64_t>> split(static_cast<std::size_t>(parts));
    for (auto& part : split) part.reserve(Values.size() / std::size_t(parts) + Values.size() / std::size_t(parts) / 8 + 16);
    const auto add = [&](std::uint64_t key) { split[std::size_t(PartOfKey(key, parts))].push_back(key); };
    for (const E& x : Values) {
        std::uint64_t c;
        if (!CellAt(x, shift_, fine_, c)) continue;
        const std::uint64_t block = (c - FirstCell) >> CellBlockBits, place = c & Last;
        add(WindowKey(block, place + 1));
        // A cell at the edge of its block is also a neighbour in the next block's window.
        if (place == 0 && block > 0) add(WindowKey(block - 1, Last + 2));
        if (place == Last && block + 1 < Blocks) add(WindowKey(block + 1, 0));
    }
    return split;
}

namespace {

// The room BusyCells sorts in, kept by each thread for the next part until the thread
// ends: a run sorts its parts one after another on the same threads, and the kernel
// clears every page of fresh memory, which costs a fifth of the sort.
std::uint64_t* SortingRoom(std::size_t n) {
    struct Room {
        std::uint64_t* keys = nullptr;
        std::size_t size = 0;
        ~Room() { Release(); }
        void Release() {
            if (keys) Kornumglobals::FreeVectorStorage(keys, size * sizeof(std::uint64_t), alignof(std::uint64_t));
            keys = nullptr;
            size = 0;
        }
    };
    thread_local Room room;
    if (room.size < n) {
        room.Release();
        const std::size_t size = n + n / 8;  // parts differ a little in size
        room.keys = static_cast<std::uint64_t*>(
            Kornumglobals::AllocateVectorStorage(size * sizeof(std::uint64_t), alignof(std::uint64_t)));
        room.size = size;
    }
    return room.keys;
}

}  // namespace

std::vector<std::uint64_t> BusyCells(const std::vector<std::span<const std::uint64_t>>& Pieces, Int64& Count) {
    std::size_t total = 0;
    for (const auto& piece : Pieces) total += piece.size();
    std::uint64_t* const room = SortingRoom(total);
    std::vector<std::uint64_t> busy;
    Count = 0;
    // The keys in ascending order, each distinct key judged once the next one is known:
    // it is busy when it holds two values or more, or a neighbouring key holds one. Only
    // the block's own cells are reported; its neighbours' edge cells are there to be seen.
    bool started = false, previousNeighbours = false;
    std::uint64_t key = 0;
    Int64 held = 0;
    const auto judge = [&](bool nextNeighbours) {
        std::uint64_t cell;
        if ((held > 1 || previousNeighbours || nextNeighbours) && OwnCell(key, cell)) {
            busy.push_back(cell);
            Count += held;
        }
    };
    Kornumglobals::detail::VisitSortedPieces(Pieces, room, [&](const std::uint64_t* keys, std::size_t n) {
        for (std::size_t i = 0; i < n; ++i) {
            const std::uint64_t k = keys[i];
            if (started && k == key) {
                ++held;
                continue;
            }
            if (started) {
                judge(k == key + 1);
                previousNeighbours = k == key + 1;
            }
            started = true;
            key = k;
            held = 1;
        }
    });
    if (started) judge(false);
    return busy;
}

// The busy cells in an open-addressed table twice their number or more (cell numbers are
// never 0, which marks an empty slot), behind a bitmap of 16 bits a busy cell that turns
// most values away before the table is read.
std::vector<std::vector<std::uint64_t>> TKorModeCells::SplitCells(std::span<const Float> Values, int Parts) const {
    return Split(Values, Parts);
}
std::vector<std::vector<std::uint64_t>> TKorModeCells::SplitCells(std::span<const double> Values, int Parts) const {
    return Split(Values, Parts);
}

std::vector<Float> TKorModeCells::Candidates(std::span<const Float> Values, std::span<const std::uint64_t> Busy) const {
    return Find(Values, Busy);
}
std::vector<Float> TKorModeCells::Candidates(std::span<const double> Values, std::span<const std::uint64_t> Busy) const {
    return Find(Values, Busy);
}

template <class E>
std::vector<Float> TKorModeCells::Find(std::span<const E> Values, std::span<const std::uint64_t> Busy) const {
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
    for (const E& x : Values) {
        std::uint64_t c;
        if (!CellAt(x, shift_, fine_, c) || !((marks[mark(c) / 64] >> (mark(c) % 64)) & 1)) continue;
        for (std::size_t s = slot(c); table[s] != 0; s = (s + 1) & mask)
            if (table[s] == c) {
                found.push_back(detail::FloatOf(x));
                break;
            }
    }
    return found;
}

}  // namespace KornumSharded
