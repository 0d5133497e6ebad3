// Sorting in place, reversal, and the ranking routines that locate values in a sorted
// copy.
#include "VectorElementRules.hpp"

#include <kornum/Kornumsystem.h>

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>
#include <vector>

namespace KornumVector {

namespace detail {
namespace {

// The order of one direction, on the values as read (a packed Float as a Float).
template <class E, bool Ascending>
struct Order {
    static bool Before(ValueOf<E> a, ValueOf<E> b) noexcept { return Ascending ? a < b : b < a; }
};

// Iterative quicksort over positions L..R: middle-element pivot, Hoare scans that stop
// on elements equal to the pivot and exchange them, and an explicit stack of ranges
// onto which the larger part goes while the smaller part is sorted at once. Positions
// here are 0-based; the middle (L + R) div 2 and every comparison of lengths are the
// same as with 1-based bounds.
template <class E, bool Ascending>
void QuickSortDirected(E* a, Integer n) {
    using O = Order<E, Ascending>;
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
            // The scans run on pointers with the pivot held in a register.
            E* i = a + L;
            E* j = a + R;
            const ValueOf<E> P = a[Integer((Cardinal(L) + Cardinal(R)) / 2)];
            do {
                while (O::Before(*i, P)) ++i;
                while (O::Before(P, *j)) --j;
                if (i <= j) {
                    Kornumsystem::SwapXY(*i, *j);
                    ++i;
                    --j;
                }
            } while (i <= j);
            const Integer iPos = Integer(i - a), jPos = Integer(j - a);
            if (jPos - L < R - iPos) {
                if (iPos < R) {
                    assert(top < capacity);
                    stack[top++] = Range{iPos, R};
                }
                R = jPos;
            } else {
                if (jPos > L) {
                    assert(top < capacity);
                    stack[top++] = Range{L, jPos};
                }
                L = iPos;
            }
        } while (L < R);
    }
}

template <class E>
void QuickSort(const TKorVector<E>& V, bool ascending) {
    const Integer n = V.Length();
    if (n < 2) return;
    if (ascending)
        QuickSortDirected<E, true>(V.data(), n);
    else
        QuickSortDirected<E, false>(V.data(), n);
}

template <class E>
TKorVector<E> SortedCopy(const TKorVector<E>& V, bool ascending) {
    TKorVector<E> copy = MapToNew<E>(V, [](const E& x) { return x; });
    QuickSort(copy, ascending);
    return copy;
}

template <class E>
bool HoldsNaN(const TKorVector<E>& S) {
    if constexpr (ElementRules<E>::Floating) {
        for (const E& x : S) {
            const ValueOf<E> v = x;
            if (v != v) return true;
        }
    }
    return false;
}

// The first position of the sorted S whose element is the Same as x, or -1: what a
// walk from position 0 upwards would find.
//
// For a given x the values that are the Same as x form one interval around x (exact
// equality trivially; the tolerant test because |x - y| grows faster than the
// tolerance band as y moves away from x). In a sorted S the matches are therefore one
// run, preceded only by elements before the interval, and the run starts at the first
// position where "Same as x, or ordered after x" holds. That predicate is false then
// true along S, so a binary search finds it. A NaN breaks the order the search relies
// on; with one in S the walk itself is used.
template <class E>
Integer FirstMatch(const E* s, Integer n, ValueOf<E> x, bool ascending, bool ordered) {
    using R = ElementRules<E>;
    if (!ordered) {
        for (Integer p = 0; p < n; ++p)
            if (R::Same(ValueOf<E>(s[p]), x)) return p;
        return -1;
    }
    Integer lo = 0, hi = n;  // the answer lies in [lo, hi]
    while (lo < hi) {
        const Integer mid = lo + (hi - lo) / 2;
        const ValueOf<E> y = s[mid];
        const bool reached = R::Same(y, x) || (ascending ? x < y : y < x);
        if (reached)
            hi = mid;
        else
            lo = mid + 1;
    }
    return lo < n && R::Same(ValueOf<E>(s[lo]), x) ? lo : -1;
}

template <class E>
Integer RankOfValue(const TKorVector<E>& V, ValueOf<E> x, bool ascending) {
    const TKorVector<E> sorted = SortedCopy(V, ascending);
    return FirstMatch(sorted.data(), sorted.Length(), x, ascending, !HoldsNaN(sorted));
}

template <class E>
Integer Rank(const TKorVector<E>& V, Cardinal Index, bool ascending) {
    if (Int64(Index) >= Int64(V.Length())) return -1;
    return RankOfValue(V, ValueOf<E>(V[Integer(Index)]), ascending);
}

// Every element's rank from one sort of (value, index) pairs and one walk along it.
//
// The sorted values are those of the sorted copy (a correct sort places the same values
// at the same positions; only zeros of either sign may trade places, and the tests treat
// them alike). Along the sorted values the first match of each value is found from the
// previous one's: the matches of a value are one run that contains the value itself,
// so the walk steps back while the element before still matches and forward while the
// current one does not. Adjacent values have nearby runs, so the walk is linear overall.
template <class E>
TKorLIntVector RankVector(const TKorVector<E>& V, bool ascending) {
    using R = ElementRules<E>;
    using Value = ValueOf<E>;
    TKorLIntVector result;
    const Integer n = V.Length();
    if (n == 0) return result;
    result.SetLength(n);
    Integer* out = result.data();
    if (HoldsNaN(V)) {
        // Unordered values: the plain walk over the sorted copy, element by element.
        const TKorVector<E> sorted = SortedCopy(V, ascending);
        for (Integer i = 0; i < n; ++i) out[i] = FirstMatch(sorted.data(), n, At(V, i), ascending, false);
        return result;
    }
    struct Entry {
        Value value;
        Integer index;
    };
    std::vector<Entry> entries(static_cast<std::size_t>(n));
    for (Integer i = 0; i < n; ++i) entries[std::size_t(i)] = Entry{At(V, i), i};
    if (ascending)
        std::sort(entries.begin(), entries.end(), [](const Entry& x, const Entry& y) { return x.value < y.value; });
    else
        std::sort(entries.begin(), entries.end(), [](const Entry& x, const Entry& y) { return y.value < x.value; });
    const Entry* s = entries.data();
    Integer p = 0;
    for (Integer q = 0; q < n; ++q) {
        const Value x = s[q].value;
        while (p > 0 && R::Same(s[p - 1].value, x)) --p;
        while (!R::Same(s[p].value, x)) ++p;  // stops at q at the latest
        out[s[q].index] = p;
    }
    return result;
}

template <class E>
TKorVector<E> Reverse(const TKorVector<E>& V) {
    TKorVector<E> result;
    const Integer n = V.Length();
    result.SetLength(n);
    for (Integer i = 0; i < n; ++i) result[i] = V[n - 1 - i];
    return result;
}

}  // namespace
}  // namespace detail

#define KORNUM_DEFINE_SORTING(VT, T)                                                        \
    void QSortVector(VT& V, Boolean Ascending) { detail::QuickSort(V, Ascending); }         \
    VT ReverseVector(const VT& V) { return detail::Reverse(V); }                            \
    Integer Vector2Rank(const VT& V, Cardinal Index, Boolean Ascending) {                   \
        return detail::Rank(V, Index, Ascending);                                           \
    }                                                                                       \
    Integer Vector2RankValue(const VT& V, T Value, Boolean Ascending) {                     \
        return detail::RankOfValue(V, Value, Ascending);                                    \
    }                                                                                       \
    TKorLIntVector Vector2RankVector(const VT& V, Boolean Ascending) {                      \
        return detail::RankVector(V, Ascending);                                            \
    }
KORNUM_MEMBERS_ALL(KORNUM_DEFINE_SORTING)
#undef KORNUM_DEFINE_SORTING

}  // namespace KornumVector
