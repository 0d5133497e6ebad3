// Little-endian writing and checked reading of the serialised summaries.
#pragma once

#include <kornum/Kornumglobals.h>
#include <kornum/Platform.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace KornumSharded::detail {

class ByteWriter {
public:
    explicit ByteWriter(std::string_view magic, std::uint16_t version) : bytes_(magic) { Unsigned(version, 2); }
    void Unsigned(std::uint64_t value, int size) {
        for (int i = 0; i < size; ++i) bytes_ += char((value >> (8 * i)) & 0xff);
    }
    void Real(Kornumglobals::Float x) {  // the 80-bit value: significand, then sign and exponent
        unsigned char raw[16] = {};
        std::memcpy(raw, &x, 10);
        std::uint64_t significand;
        std::memcpy(&significand, raw, 8);
        Unsigned(significand, 8);
        Unsigned(std::uint64_t(raw[8]) | std::uint64_t(raw[9]) << 8, 2);
    }
    std::string Take() { return std::move(bytes_); }

private:
    std::string bytes_;
};

class ByteReader {
public:
    // Checks the magic and the version; What names the kind of buffer in messages.
    ByteReader(std::string_view bytes, std::string_view magic, std::uint16_t version, std::string what)
        : bytes_(bytes), what_(std::move(what)) {
        if (bytes_.substr(0, magic.size()) != magic) Fail("it does not start with \"" + std::string(magic) + "\"");
        pos_ = magic.size();
        const std::uint64_t found = Unsigned(2);
        if (found != version)
            Fail("its format version is " + std::to_string(found) + "; this library reads version " +
                 std::to_string(version));
    }
    std::uint64_t Unsigned(int size) {
        if (bytes_.size() - pos_ < std::size_t(size)) Fail("it ends early, at byte " + std::to_string(bytes_.size()));
        std::uint64_t value = 0;
        for (int i = 0; i < size; ++i) value |= std::uint64_t(std::uint8_t(bytes_[pos_ + i])) << (8 * i);
        pos_ += std::size_t(size);
        return value;
    }
    Kornumglobals::Float Real() {
        const std::uint64_t significand = Unsigned(8);
        const std::uint64_t top = Unsigned(2);
        unsigned char raw[16] = {};
        std::memcpy(raw, &significand, 8);
        raw[8] = std::uint8_t(top);
        raw[9] = std::uint8_t(top >> 8);
        Kornumglobals::Float x = 0;
        std::memcpy(&x, raw, 10);
        return x;
    }
    void End() {
        if (pos_ != bytes_.size()) Fail(std::to_string(bytes_.size() - pos_) + " bytes follow its end");
    }
    [[noreturn]] void Fail(const std::string& why) const {
        throw Platform::Exception("Not a valid " + what_ + ": " + why);
    }

private:
    std::string_view bytes_;
    std::size_t pos_ = 0;
    std::string what_;
};

}  // namespace KornumSharded::detail
