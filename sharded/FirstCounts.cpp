#include <kornum/KornumSharded.h>

#include "sharded/detail/Histogram.hpp"

#include <algorithm>

namespace KornumSharded {

void TKorFirstCounts::Merge(const TKorFirstCounts& Other) {
    detail::AddHistogram(Top, Other.Top);
    // The finer histograms by bucket: a bucket counted by only one side is kept as it is
    // (and is then incomplete unless the other side has no value under it).
    detail::AddByBucket(Finer, Other.Finer, detail::AddHistogram);
}

const TKorHistogram* TKorFirstCounts::CompleteFiner(std::uint32_t Bucket) const {
    const auto finer = std::find_if(Finer.begin(), Finer.end(), [&](const auto& f) { return f.first == Bucket; });
    const auto top = std::find_if(Top.begin(), Top.end(), [&](const auto& t) { return t.first == Bucket; });
    if (finer == Finer.end() || top == Top.end()) return nullptr;
    std::uint64_t counted = 0;
    for (const auto& [next, count] : finer->second) counted += count;
    return counted == top->second ? &finer->second : nullptr;
}

}  // namespace KornumSharded
