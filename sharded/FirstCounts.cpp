#include <kornum/KornumSharded.h>

#include <algorithm>

namespace KornumSharded {

void TKorFirstCounts::Merge(const TKorFirstCounts& Other) {
    std::vector<TKorHistogram> top = {std::move(Top)};
    MergeCounts(top, {Other.Top});
    Top = std::move(top[0]);
    // The finer histograms by bucket: a bucket counted by only one side is kept as it is
    // (and is then incomplete unless the other side has no value under it).
    std::vector<std::pair<std::uint32_t, TKorHistogram>> finer;
    auto mine = Finer.begin();
    auto theirs = Other.Finer.begin();
    while (mine != Finer.end() || theirs != Other.Finer.end()) {
        if (theirs == Other.Finer.end() || (mine != Finer.end() && mine->first < theirs->first)) {
            finer.push_back(std::move(*mine++));
        } else if (mine == Finer.end() || theirs->first < mine->first) {
            finer.push_back(*theirs++);
        } else {
            std::vector<TKorHistogram> sum = {std::move(mine->second)};
            MergeCounts(sum, {theirs->second});
            finer.emplace_back(mine->first, std::move(sum[0]));
            ++mine;
            ++theirs;
        }
    }
    Finer = std::move(finer);
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
