// The report's entries for kornum.Description: (key, caption, value or None, integral).
#pragma once

#include "Arrays.hpp"

#include <kornum/KornumDescStats.h>

#include <vector>

namespace KornumPython {

inline py::list EntryTuples(const std::vector<KornumDescStats::TKorReportEntry>& entries) {
    py::list list;
    for (const auto& entry : entries)
        list.append(py::make_tuple(entry.Key, entry.Caption, entry.Value ? Scalar(*entry.Value) : py::none(),
                                   entry.Integral));
    return list;
}

}  // namespace KornumPython
