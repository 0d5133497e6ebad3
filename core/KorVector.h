/// @file
/// The reference-counted dynamic array behind every vector and matrix type,
/// `Kornumglobals::TKorVector`. Included by `<kornum/Kornumglobals.h>`.
///
/// A TKorVector is a handle. The empty vector is the null handle. Copying a handle
/// shares the storage (the count is atomic), and a write through any sharer is seen
/// by all. SetLength gives a shared vector a private copy first, keeps the elements up
/// to the new length and zero-fills new ones; SetLength(0) releases the storage.
#pragma once

#include <kornum/KornumExport.h>
#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <new>
#include <type_traits>
#include <utility>

KORNUM_EXPORT_BEGIN
namespace Kornumglobals {

/// Allocates the storage of a vector: `bytes` bytes aligned to `alignment`. Blocks of
/// 4 MiB and more are placed on huge-page boundaries and marked for huge pages, so that
/// filling a vector of millions of elements takes a few page faults instead of one per
/// 4 KiB (each fault costs microseconds). Raises `std::bad_alloc` when memory runs out.
void* AllocateVectorStorage(std::size_t bytes, std::size_t alignment);
/// Frees storage from `AllocateVectorStorage`, given the same `bytes` and `alignment`.
void FreeVectorStorage(void* storage, std::size_t bytes, std::size_t alignment) noexcept;

/// A reference-counted dynamic array of `T`: the vector type of every element type, and
/// (with vectors as elements) the matrix type. A handle with shared storage:
///
/// - the empty vector is the null handle (`Length()` 0, `High()` -1);
/// - copying a handle shares the storage, counted atomically, so handles may be copied
///   and destroyed from several threads; a write through any sharer is seen by all;
/// - `SetLength` gives a shared vector a private copy first, keeps the elements up to
///   the new length and zero-fills new ones; `SetLength(0)` releases the storage.
///
/// Elements are contiguous; `operator[]` does not check the index.
template <class T>
class TKorVector {
    // Storage: this header, then the elements at DataOffset.
    struct Block {
        std::atomic<std::int64_t> refs;
        std::int32_t length;
        std::int32_t capacity;
    };
    static constexpr std::size_t Alignment = std::max(alignof(Block), alignof(T)) < 16
                                                 ? 16
                                                 : std::max(alignof(Block), alignof(T));
    static constexpr std::size_t DataOffset = (sizeof(Block) + Alignment - 1) / Alignment * Alignment;
    static constexpr bool Trivial = std::is_trivially_copyable_v<T>;

public:
    /// The element type.
    using value_type = T;
    /// The type of lengths and indices.
    using size_type = std::int32_t;

    /// The empty vector.
    TKorVector() noexcept = default;
    /// A new vector holding `values`, in order; the empty vector for an empty list.
    TKorVector(std::initializer_list<T> values) {
        if (values.size() == 0) return;
        block_ = Allocate(static_cast<std::int32_t>(values.size()));
        CopyConstruct(Data(block_), values.begin(), block_->length);
    }
    /// A handle sharing the storage of `other`.
    TKorVector(const TKorVector& other) noexcept : block_(other.block_) { Retain(); }
    /// Takes over the storage of `other`, which becomes empty.
    TKorVector(TKorVector&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
    /// Shares the storage of `other`, releasing this handle's own.
    TKorVector& operator=(const TKorVector& other) noexcept {
        if (block_ != other.block_) {
            other.Retain();
            Release();
            block_ = other.block_;
        }
        return *this;
    }
    /// Takes over the storage of `other`, which becomes empty, releasing this handle's own.
    TKorVector& operator=(TKorVector&& other) noexcept {
        if (this != &other) {
            Release();
            block_ = std::exchange(other.block_, nullptr);
        }
        return *this;
    }
    /// Releases the handle; the last sharer frees the storage.
    ~TKorVector() { Release(); }

    /// The number of elements; 0 when empty.
    std::int32_t Length() const noexcept { return block_ ? block_->length : 0; }
    /// The last index, Length() - 1; -1 when empty.
    std::int32_t High() const noexcept { return Length() - 1; }
    /// True for the empty vector.
    bool IsEmpty() const noexcept { return block_ == nullptr; }

    /// The element at `index` (0 to High(), not checked). A const handle protects the
    /// handle, not the elements: writes go to the storage that every sharer sees.
    T& operator[](std::int32_t index) const noexcept { return Data(block_)[index]; }
    /// The first element; nullptr when empty.
    T* data() const noexcept { return block_ ? Data(block_) : nullptr; }
    /// The first element, for range-for and the standard algorithms.
    T* begin() const noexcept { return data(); }
    /// Just past the last element.
    T* end() const noexcept { return data() + Length(); }

    /// True when both handles refer to the same storage (or are both empty).
    bool SharesWith(const TKorVector& other) const noexcept { return block_ == other.block_; }
    /// The number of handles sharing the storage; 0 when empty.
    std::int64_t RefCount() const noexcept {
        return block_ ? block_->refs.load(std::memory_order_relaxed) : 0;
    }

    /// Sets the number of elements. A shared vector first gets a private copy (the other
    /// sharers keep the old storage); elements up to the new length are kept and new ones
    /// are zero (all-zero bytes for numbers, empty rows for a matrix). A length of 0 or
    /// less releases the storage and leaves the vector empty. Raises `std::bad_alloc`
    /// when memory runs out, the vector unchanged.
    void SetLength(std::int32_t length) {
        if (length <= 0) {
            Release();
            block_ = nullptr;
            return;
        }
        if (block_ == nullptr) {
            block_ = Allocate(length);
            ValueConstruct(Data(block_), length);
            return;
        }
        const std::int32_t old = block_->length;
        if (length == old && !Shared()) return;
        if (Shared() || length > block_->capacity) {
            // A private block (grown with headroom when unshared, so that repeated
            // appends stay linear overall) receives the kept elements.
            std::int32_t capacity = length;
            if (!Shared() && length > old) {
                const std::int64_t grown = std::int64_t(old) + old / 2;
                if (grown > length && grown <= INT32_MAX) capacity = std::int32_t(grown);
            }
            Block* fresh = Allocate(capacity);
            fresh->length = length;
            const std::int32_t kept = std::min(old, length);
            if (Shared()) {
                CopyConstruct(Data(fresh), Data(block_), kept);
            } else {
                MoveConstruct(Data(fresh), Data(block_), kept);
                block_->length = 0;  // moved out: nothing left to destroy
            }
            ValueConstruct(Data(fresh) + kept, length - kept);
            Release();
            block_ = fresh;
            return;
        }
        // Unshared, within capacity.
        if (length < old) {
            Destroy(Data(block_) + length, old - length);
        } else {
            ValueConstruct(Data(block_) + old, length - old);
        }
        block_->length = length;
    }

private:
    Block* block_ = nullptr;

    static T* Data(Block* block) noexcept {
        return std::launder(reinterpret_cast<T*>(reinterpret_cast<char*>(block) + DataOffset));
    }
    bool Shared() const noexcept { return block_->refs.load(std::memory_order_acquire) > 1; }

    static std::size_t Bytes(std::int32_t capacity) noexcept { return DataOffset + sizeof(T) * std::size_t(capacity); }
    static Block* Allocate(std::int32_t capacity) {
        void* raw = AllocateVectorStorage(Bytes(capacity), Alignment);
        Block* block = new (raw) Block;
        block->refs.store(1, std::memory_order_relaxed);
        block->length = capacity;
        block->capacity = capacity;
        return block;
    }
    static void Free(Block* block) noexcept {
        const std::size_t bytes = Bytes(block->capacity);
        block->~Block();
        FreeVectorStorage(block, bytes, Alignment);
    }

    void Retain() const noexcept {
        if (block_) block_->refs.fetch_add(1, std::memory_order_relaxed);
    }
    void Release() noexcept {
        if (block_ && block_->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            Destroy(Data(block_), block_->length);
            Free(block_);
        }
    }

    // New elements are zero: all-zero bytes for the numeric types, the empty handle
    // for the rows of a matrix.
    static void ValueConstruct(T* to, std::int32_t count) {
        if constexpr (Trivial) {
            if (count > 0) std::memset(static_cast<void*>(to), 0, sizeof(T) * std::size_t(count));
        } else {
            for (std::int32_t i = 0; i < count; ++i) new (to + i) T();
        }
    }
    static void CopyConstruct(T* to, const T* from, std::int32_t count) {
        if constexpr (Trivial) {
            if (count > 0) std::memcpy(static_cast<void*>(to), from, sizeof(T) * std::size_t(count));
        } else {
            for (std::int32_t i = 0; i < count; ++i) new (to + i) T(from[i]);
        }
    }
    static void MoveConstruct(T* to, T* from, std::int32_t count) {
        if constexpr (Trivial) {
            CopyConstruct(to, from, count);
        } else {
            for (std::int32_t i = 0; i < count; ++i) {
                new (to + i) T(std::move(from[i]));
                from[i].~T();
            }
        }
    }
    static void Destroy(T* from, std::int32_t count) noexcept {
        if constexpr (!std::is_trivially_destructible_v<T>) {
            for (std::int32_t i = 0; i < count; ++i) from[i].~T();
        }
    }
};

}  // namespace Kornumglobals
KORNUM_EXPORT_END
