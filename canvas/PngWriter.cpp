#include "canvas/detail/PngWriter.hpp"

#include <zlib.h>

#include <cstring>
#include <stdexcept>
#include <vector>

namespace KornumCanvas::detail {
namespace {

void PutBigEndian(std::string& out, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) out += char((value >> shift) & 0xFF);
}

// A chunk: length, type, data, and the CRC of type and data.
void PutChunk(std::string& out, const char* type, const std::string& data) {
    PutBigEndian(out, std::uint32_t(data.size()));
    const std::size_t start = out.size();
    out.append(type, 4);
    out += data;
    const auto* bytes = reinterpret_cast<const Bytef*>(out.data() + start);
    PutBigEndian(out, std::uint32_t(crc32(crc32(0, nullptr, 0), bytes, uInt(out.size() - start))));
}

}  // namespace

std::string EncodePng(const unsigned char* Pixels, int Width, int Height, int Stride) {
    const auto pixel = [&](int x, int y) {
        std::uint32_t word;
        std::memcpy(&word, Pixels + std::size_t(y) * std::size_t(Stride) + std::size_t(x) * 4, 4);
        return word;
    };
    bool opaque = true;
    for (int y = 0; y < Height && opaque; ++y)
        for (int x = 0; x < Width && opaque; ++x) opaque = (pixel(x, y) >> 24) == 0xFF;
    const std::size_t channels = opaque ? 3 : 4, rowBytes = std::size_t(Width) * channels;

    z_stream stream{};
    if (deflateInit(&stream, Z_BEST_SPEED) != Z_OK) throw std::runtime_error("zlib cannot compress the image");
    const struct Ended {
        z_stream& stream;
        ~Ended() { deflateEnd(&stream); }
    } ended{stream};
    // Rows go through deflate as they are filtered, so that no copy of the whole image is
    // made: a plot compresses to a small fraction of its pixels.
    std::string packed;
    unsigned char buffer[1 << 16];
    const auto deflateRow = [&](const unsigned char* bytes, std::size_t size, int flush) {
        stream.next_in = const_cast<Bytef*>(bytes);
        stream.avail_in = uInt(size);
        do {
            stream.next_out = buffer;
            stream.avail_out = sizeof buffer;
            if (deflate(&stream, flush) == Z_STREAM_ERROR) throw std::runtime_error("zlib cannot compress the image");
            packed.append(reinterpret_cast<const char*>(buffer), sizeof buffer - stream.avail_out);
        } while (stream.avail_out == 0 || stream.avail_in > 0);
    };

    // Each row: the filter byte (2, "Up") and each byte less the one above it.
    std::vector<unsigned char> row(rowBytes), above(rowBytes, 0), filtered(rowBytes + 1);
    filtered[0] = 2;
    for (int y = 0; y < Height; ++y) {
        if (opaque) {
            for (int x = 0; x < Width; ++x) {
                const std::uint32_t word = pixel(x, y);
                unsigned char* out = row.data() + std::size_t(x) * 3;
                out[0] = (unsigned char)(word >> 16);  // red, green, blue
                out[1] = (unsigned char)(word >> 8);
                out[2] = (unsigned char)word;
            }
        } else {
            for (int x = 0; x < Width; ++x) {
                const std::uint32_t word = pixel(x, y);
                const unsigned alpha = word >> 24;
                unsigned char* out = row.data() + std::size_t(x) * 4;
                for (int c = 0; c < 3; ++c) {
                    const unsigned value = (word >> (16 - 8 * c)) & 0xFF;
                    // Cairo premultiplies by alpha; PNG does not.
                    out[c] = alpha == 0xFF || alpha == 0 ? (unsigned char)value
                                                         : (unsigned char)((value * 255 + alpha / 2) / alpha);
                }
                out[3] = (unsigned char)alpha;
            }
        }
        for (std::size_t i = 0; i < rowBytes; ++i) filtered[i + 1] = (unsigned char)(row[i] - above[i]);
        above.swap(row);
        deflateRow(filtered.data(), filtered.size(), y + 1 == Height ? Z_FINISH : Z_NO_FLUSH);
    }
    if (Height == 0) deflateRow(nullptr, 0, Z_FINISH);

    std::string header;
    PutBigEndian(header, std::uint32_t(Width));
    PutBigEndian(header, std::uint32_t(Height));
    header += char(8);                 // bits per channel
    header += char(opaque ? 2 : 6);    // RGB or RGBA
    header += std::string(3, '\0');    // deflate, adaptive filters, no interlace
    std::string png = "\x89PNG\r\n\x1a\n";
    PutChunk(png, "IHDR", header);
    PutChunk(png, "IDAT", packed);
    PutChunk(png, "IEND", "");
    return png;
}

}  // namespace KornumCanvas::detail
