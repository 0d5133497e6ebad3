#include "NumberReader.h"

#include <kornum/Kornumconvert.h>
#include <kornum/PlatformExceptions.h>

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

namespace KornumCli {

using Kornumglobals::Integer;
using Kornumglobals::TKorFloatVector;
namespace {

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v'; }

std::string Describe(const std::string& source) { return source == "-" ? "standard input" : source; }

}  // namespace

void ReadNumbers(const std::string& text, const std::string& source, TKorFloatVector& values, Integer& count) {
    // One number a line is the common layout: room for that many more values at once,
    // so the vector grows by copying only for denser text.
    const std::size_t lines = std::size_t(std::count(text.begin(), text.end(), '\n')) + 1;
    const auto reserve = [&](std::size_t needed) {
        if (needed > std::size_t(values.Length()))
            values.SetLength(Integer(std::max(needed, std::size_t(values.Length()) * 3 / 2)));
    };
    reserve(std::size_t(count) + lines);
    std::size_t line = 1;
    std::size_t position = 0;
    const std::size_t size = text.size();
    while (position < size) {
        const char c = text[position];
        if (IsSpace(c)) {
            if (c == '\n') ++line;
            ++position;
            continue;
        }
        std::size_t end = position;
        while (end < size && !IsSpace(text[end])) ++end;
        const std::string_view token(text.data() + position, end - position);
        try {
            reserve(std::size_t(count) + 1);
            values[count++] = Kornumconvert::Str2Float(token);
        } catch (const Platform::Exception& error) {
            throw InputError(Describe(source) + ":" + std::to_string(line) + ": " + error.Message());
        }
        position = end;
    }
}

std::string ReadSource(const std::string& path) {
    std::FILE* file = path == "-" ? stdin : std::fopen(path.c_str(), "rb");
    if (file == nullptr) throw InputError(path + ": " + std::strerror(errno));
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> closer(file == stdin ? nullptr : file, std::fclose);
    std::string content;
    // A regular file is read at its size in one piece; a pipe in large blocks.
    struct stat status;
    if (::fstat(::fileno(file), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0) {
        content.resize(std::size_t(status.st_size));
        content.resize(std::fread(content.data(), 1, content.size(), file));
    }
    std::vector<char> buffer(std::size_t(1) << 20);
    std::size_t count;
    while ((count = std::fread(buffer.data(), 1, buffer.size(), file)) > 0) content.append(buffer.data(), count);
    if (std::ferror(file)) throw InputError(Describe(path) + ": read error");
    return content;
}

}  // namespace KornumCli
