// The vector algorithms, each written once over the element type E and, where the
// members of a family differ, a rules table R (ElementRules<E> for the numeric members;
// the currency module brings its own). Internal to the library (not installed).
#pragma once

#include "vector/detail/QuickSortScheme.hpp"
#include "vector/detail/VectorElementRules.hpp"

#include <algorithm>
#include <vector>

namespace KornumVector::detail {

// ---- Aggregates ----------------------------------------------------------------------------

// The accumulator starts at the first term and adds the rest in index order.
template <class E, class R = ElementRules<E>, class Term>
typename R::Sum Accumulate(const TKorVector<E>& V, Term term) {
    RequireNotEmpty(V);
    const E* data = V.data();
    const Integer n = V.Length();
    typename R::Sum sum = term(ValueOf<E>(data[0]));
    for (Integer i = 1; i < n; ++i) sum = R::Add(sum, term(ValueOf<E>(data[i])));
    return sum;
}

// Keeps the first of equal extremes: only a strictly better element replaces it.
template <class E, class Better>
ValueOf<E> Extreme(const TKorVector<E>& V, Better better) {
    RequireNotEmpty(V);
    const E* data = V.data();
    const Integer n = V.Length();
    ValueOf<E> m = data[0];
    for (Integer i = 1; i < n; ++i) {
        const ValueOf<E> x = data[i];
        if (better(x, m)) m = x;
    }
    return m;
}

// One pass for both extremes. The results go to locals first, so the outputs are
// written only after the vector has been checked.
template <class E>
void MinMax(const TKorVector<E>& V, ValueOf<E>& MinValue, ValueOf<E>& MaxValue, Cardinal& MinIndex,
            Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique) {
    RequireNotEmpty(V);
    const E* data = V.data();
    const Integer n = V.Length();
    ValueOf<E> lo = data[0], hi = lo;
    Integer loIndex = 0, hiIndex = 0;
    bool loUnique = true, hiUnique = true;
    for (Integer i = 1; i < n; ++i) {
        const ValueOf<E> x = data[i];
        if (x < lo) {
            lo = x;
            loIndex = i;
            loUnique = true;
        } else if (x == lo) {
            loUnique = false;
        }
        if (x > hi) {
            hi = x;
            hiIndex = i;
            hiUnique = true;
        } else if (x == hi) {
            hiUnique = false;
        }
    }
    MinValue = lo;
    MaxValue = hi;
    MinIndex = Cardinal(loIndex);
    MaxIndex = Cardinal(hiIndex);
    MinUnique = loUnique;
    MaxUnique = hiUnique;
}

// ---- Construction and copies ----------------------------------------------------------------

template <class E>
void Append(TKorVector<E>& V, ValueOf<E> Value) {
    const Integer n = V.Length();
    V.SetLength(n + 1);
    V[n] = Value;
}

template <class E>
void Insert(TKorVector<E>& V, ValueOf<E> Value, Integer Index) {
    if (Index < 0 || Index > V.High()) {
        Append(V, Value);  // a bad index appends, by contract
        return;
    }
    const Integer n = V.Length();
    V.SetLength(n + 1);
    for (Integer i = n; i > Index; --i) V[i] = V[i - 1];
    V[Index] = Value;
}

// The shift happens before the vector is shortened, so a vector whose storage is
// shared sees the shift through every handle while only V loses its last element.
template <class E>
void Delete(TKorVector<E>& V, Integer Index) {
    const Integer high = V.High();
    if (Index < 0 || Index > high) return;  // a bad index is ignored, by contract
    if (high == 0) {
        V.SetLength(0);
        return;
    }
    for (Integer i = Index; i < high; ++i) V[i] = V[i + 1];
    V.SetLength(high);
}

template <class E>
void Fill(const TKorVector<E>& V, ValueOf<E> Value) {
    const E stored = E(Value);
    E* data = V.data();
    const Integer n = V.Length();
    for (Integer i = 0; i < n; ++i) data[i] = stored;
}

// Converting by value: unsigned sources zero-extend, signed ones sign-extend, and every
// source type converts to Float exactly.
template <class To, class From>
TKorVector<To> Convert(const TKorVector<From>& V) {
    return MapToNew<To>(V, [](const From& x) { return ValueOf<To>(ValueOf<From>(x)); });
}

// ---- Element-wise pairs ------------------------------------------------------------------

template <class E, class Op>
TKorVector<E> PairToNew(const TKorVector<E>& V1, const TKorVector<E>& V2, Op op) {
    RequireSameLength(V1, V2);
    TKorVector<E> result;
    const Integer n = V1.Length();
    result.SetLength(n);
    for (Integer i = 0; i < n; ++i) result[i] = E(op(ValueOf<E>(V1[i]), ValueOf<E>(V2[i])));
    return result;
}

template <class E, class Op>
void PairInPlace(const TKorVector<E>& V1, const TKorVector<E>& V2, Op op) {
    RequireSameLength(V1, V2);
    const Integer n = V1.Length();
    for (Integer i = 0; i < n; ++i) V1[i] = E(op(ValueOf<E>(V1[i]), ValueOf<E>(V2[i])));
}

// ---- In-place transforms -------------------------------------------------------------------

// Rewrites every element from index 0 upwards; callers validate first.
template <class E, class F>
void Rewrite(const TKorVector<E>& V, F f) {
    E* data = V.data();
    const Integer n = V.Length();
    for (Integer i = 0; i < n; ++i) data[i] = E(f(ValueOf<E>(data[i])));
}

// ---- Sorting and ranking ----------------------------------------------------------------------

// The elements of a vector as the shared quicksort sees them.
template <class E, class R>
struct VectorItems {
    using Key = ValueOf<E>;
    E* a;
    Key KeyAt(Integer i) const noexcept { return a[i]; }
    void Exchange(Integer i, Integer j) const noexcept { R::Swap(a[i], a[j]); }
};

template <class E, class R = ElementRules<E>>
void QuickSort(const TKorVector<E>& V, bool ascending) {
    VectorItems<E, R> items{V.data()};
    QuickSortItems(items, V.Length(), ascending);
}

template <class E, class R>
TKorVector<E> SortedCopy(const TKorVector<E>& V, bool ascending) {
    TKorVector<E> copy = MapToNew<E>(V, [](const E& x) { return x; });
    QuickSort<E, R>(copy, ascending);
    return copy;
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
template <class E, class R>
Integer FirstMatch(const E* s, Integer n, ValueOf<E> x, bool ascending, bool ordered) {
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

template <class E, class R = ElementRules<E>>
Integer RankOfValue(const TKorVector<E>& V, ValueOf<E> x, bool ascending) {
    const TKorVector<E> sorted = SortedCopy<E, R>(V, ascending);
    return FirstMatch<E, R>(sorted.data(), sorted.Length(), x, ascending, R::SameIsAnInterval(sorted));
}

template <class E, class R = ElementRules<E>>
Integer Rank(const TKorVector<E>& V, Cardinal Index, bool ascending) {
    if (Int64(Index) >= Int64(V.Length())) return -1;
    return RankOfValue<E, R>(V, ValueOf<E>(V[Integer(Index)]), ascending);
}

// Every element's rank from one sort of (value, index) pairs and one walk along it.
//
// The sorted values are those of the sorted copy (a correct sort places the same values
// at the same positions; only zeros of either sign may trade places, and the tests treat
// them alike). Along the sorted values the first match of each value is found from the
// previous one's: the matches of a value are one run that contains the value itself,
// so the walk steps back while the element before still matches and forward while the
// current one does not. Adjacent values have nearby runs, so the walk is linear overall.
template <class E, class R = ElementRules<E>>
TKorLIntVector RankVector(const TKorVector<E>& V, bool ascending) {
    using Value = ValueOf<E>;
    TKorLIntVector result;
    const Integer n = V.Length();
    if (n == 0) return result;
    result.SetLength(n);
    Integer* out = result.data();
    if (!R::SameIsAnInterval(V)) {
        // The plain walk over the sorted copy, element by element.
        const TKorVector<E> sorted = SortedCopy<E, R>(V, ascending);
        for (Integer i = 0; i < n; ++i) out[i] = FirstMatch<E, R>(sorted.data(), n, At(V, i), ascending, false);
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

}  // namespace KornumVector::detail
