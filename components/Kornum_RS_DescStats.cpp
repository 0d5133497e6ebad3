#include <kornum/Kornum_RS_DescStats.h>

#include <iterator>

namespace Kornum_RS_DescStats {
namespace {

// Makes the identifiers known by name to table replacement when the library loads.
[[maybe_unused]] const bool registered =
    Platform::RegisterResources(AllDescStatsMessages, std::size(AllDescStatsMessages));

}  // namespace
}  // namespace Kornum_RS_DescStats
