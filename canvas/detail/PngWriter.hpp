// The PNG of a Cairo image, encoded for speed: a plot is mostly flat colour, which the
// "Up" filter and zlib's fastest level pack about as small as the default settings do,
// in a fraction of their time.
#pragma once

#include <cstdint>
#include <string>

namespace KornumCanvas::detail {

// The PNG file of Width x Height pixels of Cairo's ARGB32 format (premultiplied alpha,
// native-endian 32-bit words, Stride bytes a row): 8-bit RGB when every pixel is opaque,
// RGBA otherwise. Throws std::runtime_error when zlib fails.
std::string EncodePng(const unsigned char* Pixels, int Width, int Height, int Stride);

}  // namespace KornumCanvas::detail
