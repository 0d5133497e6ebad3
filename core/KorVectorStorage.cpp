#include <kornum/KorVector.h>

#include <new>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace Kornumglobals {
namespace {

// From this size on a block is worth huge pages (2 MiB each on x86-64).
constexpr std::size_t HugePage = std::size_t(2) << 20;
constexpr std::size_t HugeFrom = 2 * HugePage;

std::size_t AlignmentFor(std::size_t bytes, std::size_t alignment) noexcept {
    return bytes >= HugeFrom && alignment < HugePage ? HugePage : alignment;
}

}  // namespace

void* AllocateVectorStorage(std::size_t bytes, std::size_t alignment) {
    const std::size_t aligned = AlignmentFor(bytes, alignment);
    void* storage = ::operator new(bytes, std::align_val_t(aligned));
#if defined(__linux__) && defined(MADV_HUGEPAGE)
    if (aligned == HugePage) ::madvise(storage, bytes / HugePage * HugePage, MADV_HUGEPAGE);  // a hint only
#endif
    return storage;
}

void FreeVectorStorage(void* storage, std::size_t bytes, std::size_t alignment) noexcept {
    ::operator delete(storage, std::align_val_t(AlignmentFor(bytes, alignment)));
}

}  // namespace Kornumglobals
