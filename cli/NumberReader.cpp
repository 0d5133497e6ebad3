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
                 TKorFloatVector& values, Integer& count) {
    NumberSink sink(text, source, values, count);
    std::size_t line = 1;
    if (options.header) {
        const std::size_t end = text.find('\n');
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        line = 2;
    }
    if (options.Records())
        ReadRecords(text, line, options, sink);
    else
        ReadTokens(text, line, sink);
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
