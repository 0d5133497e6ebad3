// The component text-form reader on any text: the form is read, or EReadError says
// why, and a form that was read writes out and reads back to the same text.
#include <kornum/KornumDescStats.h>
#include <kornum/PlatformStreaming.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    KornumDescStats::TKorDescStats stats(nullptr);
    try {
        Platform::ReadComponentText(stats, text);
    } catch (const Platform::Exception&) {
        return 0;  // EReadError, or a conversion error of a property value
    }
    const std::string written = Platform::WriteComponentText(stats);
    KornumDescStats::TKorDescStats again(nullptr);
    Platform::ReadComponentText(again, written);
    if (Platform::WriteComponentText(again) != written) std::abort();
    return 0;
}
