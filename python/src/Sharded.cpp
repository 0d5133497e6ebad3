// kornum.dask's engine: the exact shard summaries, the selection of ranks by key prefixes
// and the runs for the mode, as bytes and arrays that Dask moves between workers.
#include "Bindings.hpp"

#include "Arrays.hpp"
#include "Errors.hpp"
#include "ReportEntries.hpp"
#include "cli/Input.h"
#include "frontend/NumberText.h"
#include "frontend/ReportText.h"

#include <kornum/KornumSharded.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornumconvert.h>
#include <kornum/Platform.h>

#include <cstring>
#include <optional>

namespace KornumPython {

namespace {

using namespace KornumSharded;
using Kornumglobals::Int64;

std::span<const Float> Span(const FloatArray& a) { return {a.data(), std::size_t(a.size())}; }

py::array_t<Float> FromFloats(const std::vector<Float>& values) {
    py::array_t<Float> result(py::ssize_t(values.size()));
    if (!values.empty()) std::memcpy(result.mutable_data(), values.data(), values.size() * sizeof(Float));
    return result;
}

// Cell numbers of the mode's filter cross as uint64 arrays that own their vector.
using WordArray = py::array_t<std::uint64_t, py::array::c_style | py::array::forcecast>;
py::array_t<std::uint64_t> FromWords(std::vector<std::uint64_t>&& words) {
    auto* owned = new std::vector<std::uint64_t>(std::move(words));
    py::capsule free(owned, [](void* p) { delete static_cast<std::vector<std::uint64_t>*>(p); });
    return py::array_t<std::uint64_t>(py::ssize_t(owned->size()), owned->data(), free);
}
std::span<const std::uint64_t> Words(const WordArray& a) { return {a.data(), std::size_t(a.size())}; }

// Keys cross into Python as (high, low) pairs, prefix requests as (high, low, bits).
using KeyTuple = std::pair<std::uint16_t, std::uint64_t>;
using RequestTuple = std::tuple<std::uint16_t, std::uint64_t, int>;

std::vector<TKorPrefixRequest> Requests(const std::vector<RequestTuple>& tuples) {
    std::vector<TKorPrefixRequest> requests;
    for (const auto& [high, low, bits] : tuples) requests.push_back({{high, low}, bits});
    return requests;
}
std::vector<RequestTuple> Tuples(const std::vector<TKorPrefixRequest>& requests) {
    std::vector<RequestTuple> tuples;
    for (const auto& r : requests) tuples.emplace_back(r.Prefix.High, r.Prefix.Low, r.Bits);
    return tuples;
}

// Runs a pass over a shard's values without the GIL: a C-contiguous float64 array is read
// in place as doubles (the passes take them as the Floats they convert to, at half the
// bytes), anything else as an array of Floats.
template <class Pass>
auto OverShard(py::handle values, Pass pass) {
    using Doubles = py::array_t<double, py::array::c_style>;
    if (py::isinstance<Doubles>(values)) {
        const auto array = py::reinterpret_borrow<Doubles>(values);
        if (array.ndim() == 1) {
            const std::span<const double> doubles(array.data(), std::size_t(array.size()));
            py::gil_scoped_release release;
            return pass(doubles);
        }
    }
    const FloatArray array = ToFloatVector(values, "values");
    const std::span<const Float> floats = Span(array);
    py::gil_scoped_release release;
    return pass(floats);
}

py::bytes Summarize(py::handle values) {
    return py::bytes(OverShard(values, [](auto shard) {
        TKorShardSummary summary;
        summary.Add(shard);
        return summary.Serialize();
    }));
}

// The first histograms of the selection cross as (top, [(bucket, finer), ...]).
using FirstCountsTuple = std::pair<TKorHistogram, std::vector<std::pair<std::uint32_t, TKorHistogram>>>;
TKorFirstCounts FirstCounts(const FirstCountsTuple& tuple) { return {tuple.first, tuple.second}; }
FirstCountsTuple Tuple(const TKorFirstCounts& counts) { return {counts.Top, counts.Finer}; }

// The summary of a shard and its first histograms, from one pass.
py::tuple SummarizeCounting(py::handle values) {
    TKorFirstCounts counts;
    const std::string bytes = OverShard(values, [&](auto shard) {
        TKorShardSummary summary;
        summary.Add(shard, counts);
        return summary.Serialize();
    });
    return py::make_tuple(py::bytes(bytes), Tuple(counts));
}

TKorShardSummary Merged(const std::vector<std::string>& parts) {
    TKorShardSummary merged;
    for (const std::string& part : parts) merged.Merge(TKorShardSummary::Deserialize(part));
    return merged;
}

// The report's entries from the merged pieces, rendered as kornum describe renders them.
class ShardedSummary {
public:
    ShardedSummary(const std::string& summary, bool population, const FloatArray& rankValues, bool modeExists,
                   Real mode) {
        const std::vector<Float> ranks(rankValues.data(), rankValues.data() + rankValues.size());
        entries_ = ReportEntries(TKorShardSummary::Deserialize(summary), population, ranks, modeExists, mode);
    }
    py::list Entries() const { return EntryTuples(entries_); }
    std::string Report(std::optional<int> decimals) const {
        if (!decimals) return KornumFrontend::ShortestReportText(entries_);
        if (*decimals < 0 || *decimals > 255) ArgumentError(PyExc_ValueError, "decimals", "must be from 0 to 255");
        std::string text;
        if (entries_.empty()) text = Kornum_RS_Math::rsVectorIsEmpty.Text() + '\n';
        for (const auto& entry : entries_) {
            text += entry.Caption;
            if (entry.Value)
                text += '\t' + (entry.Integral ? Kornumconvert::Int2EStr(Int64(*entry.Value))
                                               : Kornumconvert::Float2EStr(*entry.Value, Kornumglobals::Byte(*decimals)));
            text += '\n';
        }
        return text;
    }

private:
    std::vector<KornumDescStats::TKorReportEntry> entries_;
};

}  // namespace

void BindSharded(py::module_& m) {
    m.def("shard_summary", &Summarize, py::arg("values"), "The exact summary of a shard, as bytes (internal).");
    m.def("summary_and_first_counts", &SummarizeCounting, py::arg("values"),
          "The exact summary of a shard as bytes, and the selection's first histograms (internal).");
    m.def("merge_first_counts", [](const std::vector<FirstCountsTuple>& parts) {
              TKorFirstCounts merged;
              for (const auto& part : parts) merged.Merge(FirstCounts(part));
              return Tuple(merged);
          }, py::arg("parts"), "The merged first histograms of the selection (internal).");
    m.def("merge_summaries", [](const std::vector<std::string>& parts) { return py::bytes(Merged(parts).Serialize()); },
          py::arg("parts"), "The merged summary of summaries, as bytes (internal).");
    m.def("read_numbers", [](const std::string& path, int field, const std::string& delimiter, bool header,
                             bool allowNonFinite) {
              KornumCli::ReadOptions options{field, delimiter.empty() ? '\0' : delimiter[0], header, allowNonFinite};
              Kornumglobals::TKorFloatVector values;
              Kornumglobals::Integer count = 0;
              try {
                  py::gil_scoped_release release;
                  KornumCli::ReadFileNumbers(path, options, values, count);
              } catch (const KornumCli::InputError& error) {
                  throw py::value_error(error.what());
              }
              py::array_t<Float> result(count);
              for (Kornumglobals::Integer i = 0; i < count; ++i) result.mutable_data()[i] = values[i];
              return result;
          }, py::arg("path"), py::arg("field"), py::arg("delimiter"), py::arg("header"), py::arg("allow_nonfinite"),
          "The numbers of a text file as kornum describe reads them; ValueError with its message (internal).");
    m.def("number_text_fixed", [](Real x, int decimals) { return KornumFrontend::NumberText(x, decimals); },
          py::arg("x"), py::arg("decimals"));
    m.def("summary_count", [](const std::string& s) { return TKorShardSummary::Deserialize(s).Count(); }, py::arg("summary"));
    m.def("report_ranks", &ReportRanks, py::arg("n"));
    m.def("prefix_counts", [](py::handle values, const std::vector<RequestTuple>& requests) {
              const std::vector<TKorPrefixRequest> asked = Requests(requests);
              return OverShard(values, [&](auto shard) { return PrefixCounts(shard, asked); });
          }, py::arg("values"), py::arg("requests"));
    m.def("merge_counts", [](const std::vector<std::vector<TKorHistogram>>& parts) {
              std::vector<TKorHistogram> merged;
              for (const auto& part : parts) MergeCounts(merged, part);
              return merged;
          }, py::arg("parts"));
    m.def("collect_prefix", [](py::handle values, const std::vector<RequestTuple>& prefixes) {
              const std::vector<TKorPrefixRequest> asked = Requests(prefixes);
              const auto collected = OverShard(values, [&](auto shard) { return CollectPrefixes(shard, asked); });
              py::list lists;
              for (const auto& some : collected) lists.append(FromFloats(some));
              return lists;
          }, py::arg("values"), py::arg("prefixes"));
    m.def("range_bounds", [](const TKorHistogram& top, const std::vector<std::pair<std::uint32_t, TKorHistogram>>& finer,
                             int parts) {
              std::vector<KeyTuple> bounds;
              for (const TKorKey& k : RangeBounds(top, finer, parts)) bounds.emplace_back(k.High, k.Low);
              return bounds;
          }, py::arg("top_counts"), py::arg("finer"), py::arg("parts"));
    m.def("split_by_range", [](py::handle values, const std::vector<KeyTuple>& bounds) {
              std::vector<TKorKey> keys;
              for (const auto& [high, low] : bounds) keys.push_back({high, low});
              const auto split = OverShard(values, [&](auto shard) { return SplitByRange(shard, keys); });
              py::list parts;
              for (const auto& part : split) parts.append(FromFloats(part));
              return parts;
          }, py::arg("values"), py::arg("bounds"));
    m.def("mode_cells_usable", [] { return TKorModeCells().Usable(); },
          "False when the tolerance allows no cells for the mode's filter (internal).");
    m.def("split_cells", [](py::handle values, int parts) {
              auto split = OverShard(values, [&](auto shard) { return TKorModeCells().SplitCells(shard, parts); });
              py::list pieces;
              for (auto& piece : split) pieces.append(FromWords(std::move(piece)));
              return pieces;
          }, py::arg("values"), py::arg("parts"));
    m.def("busy_cells", [](const std::vector<WordArray>& pieces) {
              std::vector<std::span<const std::uint64_t>> spans;
              for (const WordArray& piece : pieces) spans.push_back(Words(piece));
              std::vector<std::uint64_t> busy;
              Int64 count = 0;
              {
                  py::gil_scoped_release release;
                  busy = BusyCells(spans, count);
              }
              return py::make_tuple(FromWords(std::move(busy)), count);
          }, py::arg("pieces"));
    m.def("mode_candidates", [](py::handle values, const WordArray& busy) {
              const std::span<const std::uint64_t> cells = Words(busy);
              return FromFloats(OverShard(values, [&](auto shard) { return TKorModeCells().Candidates(shard, cells); }));
          }, py::arg("values"), py::arg("busy"));
    m.def("run_summary", [](py::handle values) {
              const FloatArray array = ToFloatVector(values, "values");
              std::string runs;
              {
                  py::gil_scoped_release release;
                  runs = TKorRunSummary::OfValues({array.data(), array.data() + array.size()}).Serialize();
              }
              return py::bytes(runs);
          }, py::arg("values"));
    m.def("append_runs", [](const std::vector<std::string>& parts) {
              TKorRunSummary runs;
              for (const std::string& part : parts) runs.Append(TKorRunSummary::Deserialize(part));
              Float mode = 0;
              const bool exists = runs.Mode(mode);
              return py::make_tuple(exists, Scalar(mode));
          }, py::arg("parts"), "Whether the ranges' runs in key order have a mode, and the mode (internal).");
    py::class_<TKorRankSelection>(m, "RankSelection", "Exact selection of ranks over shards (internal).")
        .def(py::init<Int64, std::vector<Int64>, Int64>(), py::arg("n"), py::arg("ranks"), py::arg("gather_limit"))
        .def("done", &TKorRankSelection::Done)
        .def("gathering", &TKorRankSelection::Gathering)
        .def("requests", [](const TKorRankSelection& s) { return Tuples(s.Requests()); })
        .def("narrow", &TKorRankSelection::Narrow, py::arg("counts"))
        .def("narrow_with", [](TKorRankSelection& s, const FirstCountsTuple& first) { return s.NarrowWith(FirstCounts(first)); },
             py::arg("first_counts"))
        .def("gather_prefixes", [](const TKorRankSelection& s) { return Tuples(s.GatherPrefixes()); })
        .def("gathered", [](TKorRankSelection& s, const std::vector<FloatArray>& lists) {
                 std::vector<std::vector<Float>> values;
                 for (const auto& a : lists) values.emplace_back(a.data(), a.data() + a.size());
                 s.Gathered(std::move(values));
             }, py::arg("values"))
        .def("values", [](const TKorRankSelection& s) { return FromFloats(s.Values()); });
    py::class_<ShardedSummary>(m, "ShardedSummary", "The report of merged shard summaries (internal).")
        .def(py::init<const std::string&, bool, const FloatArray&, bool, Real>(), py::arg("summary"),
             py::arg("population"), py::arg("rank_values"), py::arg("mode_exists"), py::arg("mode"))
        .def("entries", &ShardedSummary::Entries)
        .def("report", &ShardedSummary::Report, py::arg("decimals"));
}

}  // namespace KornumPython
