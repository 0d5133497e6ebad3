// Construction, resizing, filling, copies and conversions of vectors.
#include "VectorElementRules.hpp"

namespace KornumVector {

namespace detail {
namespace {

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
