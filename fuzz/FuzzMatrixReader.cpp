// The matrix reader of `kornum matrix` on any text, and the library's determinant and
// inverse on what it read: a matrix, or an InputError naming the place, or the library's
// math error, and nothing else.
#include "cli/Input.h"

#include <kornum/KornumMatrix.h>
#include <kornum/PlatformExceptions.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1) return 0;
    // The first byte chooses the options: one of four delimiters, header.
    KornumCli::ReadOptions options;
    options.delimiter = "\0,\t;"[data[0] & 3];
    options.header = (data[0] >> 2) & 1;
    const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
    Kornumglobals::TKorFloatMatrix M;
    try {
        M = KornumCli::ReadMatrix(text, "fuzz", options);
    } catch (const KornumCli::InputError& error) {
        if (std::string_view(error.what()).substr(0, 5) != "fuzz:") std::abort();
        return 0;
    }
    if (M.Length() == 0) std::abort();
    for (const auto& row : M)
        if (row.Length() != M[0].Length() || row.Length() == 0) std::abort();
    if (M.Length() > 8 || M[0].Length() != M.Length()) return 0;
    try {
        Kornumglobals::TKorFloatMatrix copy = KornumMatrix::CopyMatrix(M), inverse;
        (void)KornumMatrix::MatrixDeterminant(copy);
        (void)KornumMatrix::MatrixInverse(M, inverse);
    } catch (const Platform::EMathError&) {
    }
    return 0;
}
