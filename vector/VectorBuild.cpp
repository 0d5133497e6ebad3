// Construction, resizing, filling, copies and conversions of vectors.
#include "vector/detail/VectorAlgorithms.hpp"

namespace KornumVector {

namespace detail {
namespace {

template <class To, class From>
TKorVector<To> ConvertArray(const From* A, Integer AHigh) {
    TKorVector<To> result;
    if (AHigh < 0) return result;
    result.SetLength(AHigh + 1);
    for (Integer i = 0; i <= AHigh; ++i) result[i] = To(ValueOf<To>(A[i]));
    return result;
}

}  // namespace
}  // namespace detail

#define KORNUM_DEFINE_RESIZING(VT, T)                                                      \
    void AppendValue2Vector(VT& V, T Value) { detail::Append(V, Value); }                  \
    void AddValue2Vector(VT& V, T Value, Integer Index) { detail::Insert(V, Value, Index); } \
    void DeleteValueFromVector(VT& V, Integer Index) { detail::Delete(V, Index); }
KORNUM_MEMBERS_SIX(KORNUM_DEFINE_RESIZING)
#undef KORNUM_DEFINE_RESIZING

#define KORNUM_DEFINE_FILL_COPY(VT, T)                                   \
    void FillVector(const VT& V, T Value) { detail::Fill(V, Value); }     \
    void ClearVector(const VT& V) { detail::Fill(V, T(0)); }              \
    VT CopyVector(const VT& V) { return detail::Convert<VT::value_type>(V); } \

KORNUM_MEMBERS_ALL(KORNUM_DEFINE_FILL_COPY)
#undef KORNUM_DEFINE_FILL_COPY

#define KORNUM_DEFINE_TO_FLOAT(VT, T)                                                           \
    TKorFloatVector Array2FloatVector(const T* A, Integer AHigh) {                               \
        return detail::ConvertArray<PackedFloat>(A, AHigh);                                      \
    }                                                                                           \
    TKorFloatVector Vector2FloatVector(const VT& V) { return detail::Convert<PackedFloat>(V); }
KORNUM_MEMBERS_ALL(KORNUM_DEFINE_TO_FLOAT)
#undef KORNUM_DEFINE_TO_FLOAT

#define KORNUM_DEFINE_TO_INT64(VT, T)                                                        \
    TKorInt64Vector Array2Int64Vector(const T* A, Integer AHigh) {                           \
        return detail::ConvertArray<Int64>(A, AHigh);                                        \
    }                                                                                        \
    TKorInt64Vector Vector2Int64Vector(const VT& V) { return detail::Convert<Int64>(V); }
KORNUM_DEFINE_TO_INT64(TKorInt64Vector, Int64)
KORNUM_DEFINE_TO_INT64(TKorLWordVector, Cardinal)
KORNUM_DEFINE_TO_INT64(TKorLIntVector, Integer)
KORNUM_DEFINE_TO_INT64(TKorWordVector, Word)
KORNUM_DEFINE_TO_INT64(TKorSmallIntVector, SmallInt)
KORNUM_DEFINE_TO_INT64(TKorByteVector, Byte)
KORNUM_DEFINE_TO_INT64(TKorSIntVector, ShortInt)
#undef KORNUM_DEFINE_TO_INT64

#define KORNUM_DEFINE_TO_LINT(VT, T)                                                         \
    TKorLIntVector Array2LIntVector(const T* A, Integer AHigh) {                             \
        return detail::ConvertArray<Integer>(A, AHigh);                                      \
    }                                                                                        \
    TKorLIntVector Vector2LIntVector(const VT& V) { return detail::Convert<Integer>(V); }
KORNUM_DEFINE_TO_LINT(TKorLIntVector, Integer)
KORNUM_DEFINE_TO_LINT(TKorWordVector, Word)
KORNUM_DEFINE_TO_LINT(TKorSmallIntVector, SmallInt)
KORNUM_DEFINE_TO_LINT(TKorByteVector, Byte)
KORNUM_DEFINE_TO_LINT(TKorSIntVector, ShortInt)
#undef KORNUM_DEFINE_TO_LINT

}  // namespace KornumVector
