// Str2Float on any bytes: a value, or EConvertError naming the text, and nothing else.
#include <kornum/Kornumconvert.h>
#include <kornum/PlatformExceptions.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const long double value = Kornumconvert::Str2Float(text);
        // A plain decimal reads back as itself through its shortest text.
        const std::string again = Kornumconvert::Float2EStr(value, 0);
        (void)again;
    } catch (const Platform::EConvertError& error) {
        if (error.Message().empty()) std::abort();
    }
    return 0;
}
