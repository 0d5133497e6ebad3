#include <kornum/Kornum_RS_Math.h>

#include <iterator>

namespace Kornum_RS_Math {
namespace {

// Makes the identifiers known by name to table replacement when the library loads.
[[maybe_unused]] const bool registered =
    Platform::RegisterResources(AllMessages, std::size(AllMessages));

}  // namespace
}  // namespace Kornum_RS_Math
