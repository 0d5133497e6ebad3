// Sorting in place, reversal, and the ranking routines that locate values in a sorted
// copy.
#include "vector/detail/VectorAlgorithms.hpp"

namespace KornumVector {

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
