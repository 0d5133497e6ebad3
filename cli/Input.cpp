#include "NumberReader.h"

#include <kornum/Kornumconvert.h>
#include <kornum/PlatformExceptions.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <thread>
#include <vector>

namespace KornumCli {

using Kornumglobals::Integer;
using Kornumglobals::TKorFloatVector;
namespace {

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v'; }

std::string Describe(const std::string& source) { return source == "-" ? "standard input" : source; }

}  // namespace

namespace {

class NumberSink {
public:
    NumberSink(std::string_view text, const std::string& source, TKorFloatVector& values, Integer& count)
        : source_(source), values_(values), count_(count) {
        // One number a line is the common layout: room for that many more values at
        // once, so the vector grows by copying only for denser text.
        Reserve(std::size_t(count) + std::size_t(std::count(text.begin(), text.end(), '\n')) + 1);
    }

    // Stores the number the token spells, or fails naming the line (and the field).
    void Add(std::string_view token, std::size_t line, int field) {
        try {
            Reserve(std::size_t(count_) + 1);
            values_[count_++] = Kornumconvert::Str2Float(token);
        } catch (const Platform::Exception& error) {
            Fail(line, field, error.Message());
        }
    }

    [[noreturn]] void Fail(std::size_t line, int field, const std::string& what) const {
        std::string where = Describe(source_) + ":" + std::to_string(line);
        if (field > 0) where += ": field " + std::to_string(field);
        throw InputError(where + ": " + what);
    }

private:
    void Reserve(std::size_t needed) {
        if (needed > std::size_t(values_.Length()))
            values_.SetLength(Integer(std::max(needed, std::size_t(values_.Length()) * 3 / 2)));
    }

    const std::string& source_;
    TKorFloatVector& values_;
    Integer& count_;
};

// Every white-space separated token of the text.
void ReadTokens(std::string_view text, std::size_t line, NumberSink& sink) {
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
        sink.Add(text.substr(position, end - position), line, 0);
        position = end;
    }
}

// Field `field` of one record: between delimiters, or between runs of white space.
std::string_view Field(std::string_view record, int field, char delimiter, int& found) {
    found = 0;
    std::size_t position = 0;
    while (true) {
        if (delimiter == 0) {
            while (position < record.size() && IsSpace(record[position])) ++position;
            if (position == record.size()) return {};
        }
        std::size_t end = position;
        while (end < record.size() && (delimiter == 0 ? !IsSpace(record[end]) : record[end] != delimiter)) ++end;
        if (++found == field) return record.substr(position, end - position);
        if (end == record.size()) return {};
        position = end + 1;
    }
}

// Field N of every non-blank line.
void ReadRecords(std::string_view text, std::size_t line, const ReadOptions& options, NumberSink& sink) {
    const int field = options.field > 0 ? options.field : 1;
    std::size_t start = 0;
    for (; start < text.size(); ++line) {
        std::size_t end = text.find('\n', start);
        if (end == std::string_view::npos) end = text.size();
        std::string_view record = text.substr(start, end - start);
        start = end + 1;
        if (!record.empty() && record.back() == '\r') record.remove_suffix(1);
        if (std::all_of(record.begin(), record.end(), IsSpace)) continue;
        int found = 0;
        const std::string_view value = Field(record, field, options.delimiter, found);
        if (found < field)
            sink.Fail(line, field, "the line has " + std::to_string(found) + (found == 1 ? " field" : " fields"));
        sink.Add(value, line, field);
    }
}

}  // namespace

void ReadNumbers(std::string_view text, const std::string& source, const ReadOptions& options,
                 TKorFloatVector& values, Integer& count, std::size_t line) {
    NumberSink sink(text, source, values, count);
    if (options.header) {
        const std::size_t end = text.find('\n');
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        ++line;
    }
    if (options.Records())
        ReadRecords(text, line, options, sink);
    else
        ReadTokens(text, line, sink);
}

namespace {

// A block of whole lines. A large one is cut at a line end near its middle and the two
// halves are read at once, the second into a vector of its own that is then appended;
// a failure in the first half is the one reported, as it comes first in the text.
void ReadBlock(std::string_view text, const std::string& path, const ReadOptions& options, TKorFloatVector& values,
               Integer& count, std::size_t line) {
    constexpr std::size_t Parallel = std::size_t(1) << 20;
    const std::size_t cut = text.size() < Parallel ? std::string_view::npos : text.find('\n', text.size() / 2);
    if (cut == std::string_view::npos || options.header) {
        ReadNumbers(text, path, options, values, count, line);
        return;
    }
    const std::string_view first = text.substr(0, cut + 1), second = text.substr(cut + 1);
    const std::size_t firstLines = std::size_t(std::count(first.begin(), first.end(), '\n'));
    const std::size_t secondLine = line + firstLines;
    // Room for a number a line in the whole block, so that the second half's numbers
    // usually join the first's without the vector growing.
    const std::size_t room = std::size_t(count) + firstLines + std::size_t(std::count(second.begin(), second.end(), '\n')) + 1;
    if (room > std::size_t(values.Length()) && room < std::size_t(INT32_MAX)) values.SetLength(Integer(room));
    TKorFloatVector rest;
    Integer restCount = 0;
    std::exception_ptr restFailure;
    std::thread reader([&] {
        try {
            ReadNumbers(second, path, options, rest, restCount, secondLine);
        } catch (...) {
            restFailure = std::current_exception();
        }
    });
    try {
        ReadNumbers(first, path, options, values, count, line);
    } catch (...) {
        reader.join();
        throw;
    }
    reader.join();
    if (restFailure) std::rethrow_exception(restFailure);
    if (std::size_t(count) + std::size_t(restCount) > std::size_t(values.Length()))
        values.SetLength(Integer(std::max(std::size_t(count) + std::size_t(restCount), std::size_t(values.Length()) * 3 / 2)));
    std::copy(rest.data(), rest.data() + restCount, values.data() + count);
    count += restCount;
}

}  // namespace

void ReadFileNumbers(const std::string& path, const ReadOptions& options, TKorFloatVector& values, Integer& count) {
    struct Descriptor {
        int number;
        ~Descriptor() {
            if (number != STDIN_FILENO) ::close(number);
        }
    };
    const Descriptor file{path == "-" ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY)};
    const int descriptor = file.number;
    if (descriptor < 0) throw InputError(path + ": " + std::strerror(errno));
    struct stat status;
    const bool regular = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);

    // Whole lines a block at a time: what follows the last line end of a block waits
    // for the next one, and a block without a line end grows until it holds one.
    // (held in a library vector, whose large storage takes huge pages)
    Kornumglobals::TKorByteVector storage;
    storage.SetLength(Integer(8) << 20);
    const auto block = [&storage] { return reinterpret_cast<char*>(storage.data()); };
    std::size_t held = 0, line = 1, readSoFar = 0;
    ReadOptions blockOptions = options;
    bool ended = false;
    while (!ended) {
        if (held == std::size_t(storage.Length())) storage.SetLength(storage.Length() * 2);
        const ssize_t got = ::read(descriptor, block() + held, std::size_t(storage.Length()) - held);
        if (got < 0) {
            if (errno == EINTR) continue;
            throw InputError(Describe(path) + ": " + std::strerror(errno));
        }
        ended = got == 0;
        held += std::size_t(got);
        readSoFar += std::size_t(got);
        std::size_t usable = held;
        if (!ended) {
            const void* last = ::memrchr(block(), '\n', held);
            if (last == nullptr) continue;
            usable = std::size_t(static_cast<const char*>(last) - block()) + 1;
        }
        const std::string_view text(block(), usable);
        if (line == 1 && regular && readSoFar < std::size_t(status.st_size) && usable > 0) {
            // A file's first block shows how densely it holds its lines: room for the
            // whole file at that density, plus a little, saves growing by copies.
            const double perByte = double(std::count(text.begin(), text.end(), '\n') + 1) / double(usable);
            const double estimate = double(count) + perByte * double(status.st_size) * 1.02 + 16;
            if (estimate < double(INT32_MAX) && estimate > double(values.Length()))
                values.SetLength(Integer(estimate));
        }
        ReadBlock(text, path, blockOptions, values, count, line);
        line += std::size_t(std::count(text.begin(), text.end(), '\n'));
        blockOptions.header = false;
        std::memmove(block(), block() + usable, held - usable);
        held -= usable;
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
