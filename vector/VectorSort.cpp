// Sorting in place, reversal, and the ranking routines that locate values in a sorted
// copy.
#include "QuickSortScheme.hpp"
#include "VectorElementRules.hpp"

#include <kornum/Kornumsystem.h>

#include <algorithm>
#include <vector>

namespace KornumVector {

namespace detail {
namespace {

// The elements of a vector as the shared quicksort sees them.
template <class E>
struct VectorItems {
    using Key = ValueOf<E>;
    E* a;
    Key KeyAt(Integer i) const noexcept { return a[i]; }
    void Exchange(Integer i, Integer j) const noexcept { Kornumsystem::SwapXY(a[i], a[j]); }
};

template <class E>
void QuickSort(const TKorVector<E>& V, bool ascending) {
    VectorItems<E> items{V.data()};
    QuickSortItems(items, V.Length(), ascending);
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
