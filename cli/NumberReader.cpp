#include "NumberReader.h"

#include <kornum/Kornumconvert.h>
#include <kornum/PlatformExceptions.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace KornumCli {
namespace {

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v'; }

std::string Describe(const std::string& source) { return source == "-" ? "standard input" : source; }

}  // namespace

void ReadNumbers(const std::string& text, const std::string& source, std::vector<long double>& values) {
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
            values.push_back(Kornumconvert::Str2Float(token));
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
    char buffer[1 << 16];
    std::size_t count;
    while ((count = std::fread(buffer, 1, sizeof buffer, file)) > 0) content.append(buffer, count);
    if (std::ferror(file)) throw InputError(Describe(path) + ": read error");
    return content;
}

}  // namespace KornumCli
