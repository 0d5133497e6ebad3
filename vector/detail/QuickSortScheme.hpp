// The one quicksort of the library, shared by QSortVector and the matrix sorts.
// Internal to the library (not installed).
//
// Iterative, over positions 0..n-1: middle-element pivot, Hoare scans that stop on
// elements equal to the pivot and exchange them, and an explicit stack of ranges onto
// which the larger part goes while the smaller part is sorted at once. Positions are
// 0-based here; the middle (L + R) div 2 and every comparison of lengths are the same as
// with 1-based bounds, so the order among equal keys is that of the 1-based scheme.
//
// An Items accessor gives the sort its keys and exchanges:
//   using Key = ...;                     the type compared (exact comparisons)
//   Key KeyAt(Integer position) const;   the key of one item
//   void Exchange(Integer a, Integer b); swaps two items (a < b)
#pragma once

#include <kornum/Kornumglobals.h>
#include <kornum/Kornummath.h>

#include <array>
#include <cassert>
#include <cmath>

namespace KornumVector::detail {

using Kornumglobals::Cardinal;
using Kornumglobals::Float;
using Kornumglobals::Integer;

template <bool Ascending, class Items>
void QuickSortItems(Items& items, Integer n) {
    using Key = typename Items::Key;
    const auto before = [](const Key& a, const Key& b) { return Ascending ? a < b : b < a; };
    struct Range {
        Integer L, R;
    };
    // Processing the smaller part first keeps the stack within log2(n) ranges, so room
    // for Round(log2 n) + 2 of them always suffices; it lives in this frame (n < 2^31
    // needs at most 33).
    [[maybe_unused]] const Integer capacity = Integer(std::nearbyint(Kornummath::KorLog2(Float(n)))) + 2;
    std::array<Range, 34> stack;
    assert(capacity <= Integer(stack.size()));
    Integer top = 0;
    stack[top++] = Range{0, n - 1};
    while (top > 0) {
        Integer L = stack[--top].L;
        Integer R = stack[top].R;
        do {
            Integer i = L;
            Integer j = R;
            const Key pivot = items.KeyAt(Integer((Cardinal(L) + Cardinal(R)) / 2));
            do {
                while (before(items.KeyAt(i), pivot)) ++i;
                while (before(pivot, items.KeyAt(j))) --j;
                if (i <= j) {
                    if (i != j) items.Exchange(i, j);
                    ++i;
                    --j;
                }
            } while (i <= j);
            if (j - L < R - i) {
                if (i < R) {
                    assert(top < capacity);
                    stack[top++] = Range{i, R};
                }
                R = j;
            } else {
                if (j > L) {
                    assert(top < capacity);
                    stack[top++] = Range{L, j};
                }
                L = i;
            }
        } while (L < R);
    }
}

template <class Items>
void QuickSortItems(Items& items, Integer n, bool ascending) {
    if (n < 2) return;
    if (ascending)
        QuickSortItems<true>(items, n);
    else
        QuickSortItems<false>(items, n);
}

}  // namespace KornumVector::detail
