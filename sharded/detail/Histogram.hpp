// Adding histograms of key-prefix counts, and lists of them by top bucket, bucket by
// bucket.
#pragma once

#include <kornum/KornumSharded.h>

#include <utility>

namespace KornumSharded::detail {

// Adds From into Into, two lists of (bucket, value) ascending by bucket: a bucket of one
// list alone is copied, the values of a bucket in both are added by add(into, from).
template <class Pairs, class Add>
void AddByBucket(Pairs& into, const Pairs& from, Add add) {
    Pairs sum;
    sum.reserve(into.size() + from.size());
    auto mine = into.begin();
    auto theirs = from.begin();
    while (mine != into.end() || theirs != from.end()) {
        if (theirs == from.end() || (mine != into.end() && mine->first < theirs->first)) {
            sum.push_back(std::move(*mine++));
        } else if (mine == into.end() || theirs->first < mine->first) {
            sum.push_back(*theirs++);
        } else {
            add(mine->second, theirs->second);
            sum.push_back(std::move(*mine++));
            ++theirs;
        }
    }
    into = std::move(sum);
}

inline void AddHistogram(TKorHistogram& into, const TKorHistogram& from) {
    AddByBucket(into, from, [](std::uint64_t& count, std::uint64_t more) { count += more; });
}

}  // namespace KornumSharded::detail
