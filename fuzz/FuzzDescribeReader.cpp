// The reader of `kornum describe` with every option, on any text, and the component's
// report on what it read: numbers, or an InputError naming the place, and nothing else.
#include "cli/Input.h"

#include <kornum/KornumDescStats.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <utility>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1) return 0;
    // The first byte chooses the options: field 0 to 3, one of four delimiters, header.
    const std::uint8_t choice = data[0];
    KornumCli::ReadOptions options;
    options.field = choice & 3;
    options.delimiter = "\0,\t;"[(choice >> 2) & 3];
    options.header = (choice >> 4) & 1;
    const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);

    Kornumglobals::TKorFloatVector values;
    Kornumglobals::Integer count = 0;
    try {
        KornumCli::ReadNumbers(text, "fuzz", options, values, count);
    } catch (const KornumCli::InputError& error) {
        if (std::string_view(error.what()).substr(0, 5) != "fuzz:") std::abort();
        return 0;
    }
    if (count < 0 || count > values.Length()) std::abort();
    values.SetLength(count);
    if (count == 0) return 0;
    KornumDescStats::TKorDescStats stats(nullptr);
    stats.SetPopulation((choice >> 5) & 1);
    stats.SetValues(std::move(values));
    if (stats.DescStats()->Count() != 16) std::abort();
    return 0;
}
