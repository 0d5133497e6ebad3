#include "Input.h"

#include "Output.h"

#include <kornum/Kornumconvert.h>
#include <kornum/PlatformExceptions.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <thread>
#include <vector>

namespace KornumCli {

using Kornumglobals::Float;
using Kornumglobals::Integer;
using Kornumglobals::TKorFloatMatrix;
using Kornumglobals::TKorFloatVector;

namespace {

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v'; }

std::string Describe(const std::string& source) { return source == "-" ? "standard input" : source; }

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// What is wrong at a place of the text: "FILE:LINE: field N: WHAT" (no field for 0).
[[noreturn]] void Fail(const std::string& source, std::size_t line, int field, const std::string& what) {
    std::string where = Describe(source) + ":" + std::to_string(line);
    if (field > 0) where += ": field " + std::to_string(field);
    throw InputError(where + ": " + what);
}

// The number a token spells. The converter's own message quotes the text raw, so the
// message is made here, with the text escaped and cut.
Float ParseNumber(std::string_view token, const std::string& source, std::size_t line, int field,
                  bool allowNonFinite) {
    Float x;
    try {
        x = Kornumconvert::Str2Float(token);
    } catch (const Platform::Exception& error) {
        const bool range = error.Message().find("out of the range") != std::string::npos;
        Fail(source, line, field, (range ? "out of the range of Float: " : "not a number: ") + Quoted(token));
    }
    if (!allowNonFinite && !std::isfinite(x)) Fail(source, line, field, "not a finite number: " + Quoted(token));
    return x;
}

class NumberSink {
public:
    NumberSink(std::string_view text, const std::string& source, bool allowNonFinite, TKorFloatVector& values,
               Integer& count)
        : source_(source), allowNonFinite_(allowNonFinite), values_(values), count_(count) {
        // One number a line is the common layout: room for that many more values at
        // once, so the vector grows by copying only for denser text.
        Reserve(std::size_t(count) + std::size_t(std::count(text.begin(), text.end(), '\n')) + 1);
    }

    // Stores the number the token spells, or fails naming the line and the field.
    void Add(std::string_view token, std::size_t line, int field) {
        Reserve(std::size_t(count_) + 1);
        values_[count_++] = ParseNumber(token, source_, line, field, allowNonFinite_);
    }

    const std::string& Source() const { return source_; }

private:
    void Reserve(std::size_t needed) {
        if (needed > std::size_t(values_.Length()))
            values_.SetLength(Integer(std::max(needed, std::size_t(values_.Length()) * 3 / 2)));
    }

    const std::string& source_;
    const bool allowNonFinite_;
    TKorFloatVector& values_;
    Integer& count_;
};

// Every white-space separated token of the text; its field is its place on its line.
void ReadTokens(std::string_view text, std::size_t line, NumberSink& sink) {
    std::size_t position = 0;
    const std::size_t size = text.size();
    int field = 0;
    while (position < size) {
        const char c = text[position];
        if (IsSpace(c)) {
            if (c == '\n') ++line, field = 0;
            ++position;
            continue;
        }
        std::size_t end = position;
        while (end < size && !IsSpace(text[end])) ++end;
        sink.Add(text.substr(position, end - position), line, ++field);
        position = end;
    }
}

// ---- Records and fields ------------------------------------------------------------
// A record is a line, except that a quoted field may hold line ends (RFC 4180). Fields
// are separated by the delimiter, or by runs of white space when there is none. A field
// that begins with a quote (after blanks) runs to its closing quote, "" inside standing
// for one quote. Quote handling is skipped for texts without a quote character.

// The end of the record that starts at start: the first line end outside quotes.
std::size_t RecordEnd(std::string_view text, std::size_t start, bool quoting) {
    if (!quoting) return std::min(text.find('\n', start), text.size());
    bool quoted = false;
    for (std::size_t i = start; i < text.size(); ++i) {
        if (text[i] == '"') quoted = !quoted;
        else if (text[i] == '\n' && !quoted) return i;
    }
    return text.size();
}

// The end of the last whole record of text, or npos when there is none.
std::size_t LastRecordEnd(std::string_view text, bool quoting) {
    if (!quoting) {
        const void* last = ::memrchr(text.data(), '\n', text.size());
        return last == nullptr ? std::string_view::npos : std::size_t(static_cast<const char*>(last) - text.data());
    }
    std::size_t found = std::string_view::npos;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = RecordEnd(text, start, true);
        if (end == text.size()) break;
        found = end;
        start = end + 1;
    }
    return found;
}

// Walks the fields of one record.
class FieldWalker {
public:
    FieldWalker(std::string_view record, char delimiter) : record_(record), delimiter_(delimiter) {}

    // The next field as written (quotes included), or false after the last.
    bool Next(std::string_view& field) {
        if (done_) return false;
        if (delimiter_ == 0) {
            while (position_ < record_.size() && IsSpace(record_[position_])) ++position_;
            if (position_ == record_.size()) return done_ = true, false;
        }
        const std::size_t start = position_;
        std::size_t i = start;
        while (i < record_.size() && record_[i] == ' ') ++i;
        bool quoted = false;
        for (; i < record_.size(); ++i) {
            const char c = record_[i];
            if (c == '"') quoted = !quoted;
            else if (!quoted && (delimiter_ == 0 ? IsSpace(c) : c == delimiter_)) break;
        }
        field = record_.substr(start, i - start);
        if (i == record_.size()) done_ = true;
        position_ = i + 1;
        return true;
    }

private:
    std::string_view record_;
    char delimiter_;
    std::size_t position_ = 0;
    bool done_ = false;
};

// The text of a field: a quoted field without its quotes and with "" as one quote. A
// field whose quotes do not enclose it is kept as written (and so is no number).
std::string_view Unquote(std::string_view field, std::string& scratch) {
    std::size_t first = 0, last = field.size();
    while (first < last && IsSpace(field[first])) ++first;
    while (last > first && IsSpace(field[last - 1])) --last;
    if (last - first < 2 || field[first] != '"' || field[last - 1] != '"') return field;
    scratch.clear();
    for (std::size_t i = first + 1; i + 1 < last; ++i) {
        if (field[i] == '"') {
            if (field[i + 1] != '"' || i + 2 == last) return field;  // a lone quote inside
            ++i;
        }
        scratch += field[i];
    }
    return scratch;
}

// Calls visit(record, line) for every record of the text that is not blank.
template <class Visit>
void ForEachRecord(std::string_view text, std::size_t line, Visit visit) {
    const bool quoting = text.find('"') != std::string_view::npos;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = RecordEnd(text, start, quoting);
        std::string_view record = text.substr(start, end - start);
        const std::size_t recordLine = line;
        line += 1 + (quoting ? std::size_t(std::count(record.begin(), record.end(), '\n')) : 0);
        start = end + 1;
        if (!record.empty() && record.back() == '\r') record.remove_suffix(1);
        if (std::all_of(record.begin(), record.end(), IsSpace)) continue;
        visit(record, recordLine);
    }
}

// Field N of every non-blank record.
void ReadRecords(std::string_view text, std::size_t line, const ReadOptions& options, NumberSink& sink) {
    const int wanted = options.field > 0 ? options.field : 1;
    std::string scratch;
    ForEachRecord(text, line, [&](std::string_view record, std::size_t at) {
        FieldWalker fields(record, options.delimiter);
        std::string_view field;
        int found = 0;
        while (found < wanted && fields.Next(field)) ++found;
        if (found < wanted)
            Fail(sink.Source(), at, wanted,
                 "the record has only " + std::to_string(found) + (found == 1 ? " field" : " fields"));
        sink.Add(Unquote(field, scratch), at, wanted);
    });
}

std::string_view WithoutByteOrderMark(std::string_view text, std::size_t line) {
    if (line == 1 && text.substr(0, ByteOrderMark.size()) == ByteOrderMark) text.remove_prefix(ByteOrderMark.size());
    return text;
}

// The first record of a text (the header), and the text after it with its first line.
std::string_view AfterHeader(std::string_view text, const ReadOptions& options, std::size_t& line) {
    const bool quoting = options.Records() && text.find('"') != std::string_view::npos;
    const std::size_t end = RecordEnd(text, 0, quoting);
    line += 1 + std::size_t(std::count(text.begin(), text.begin() + std::ptrdiff_t(end), '\n'));
    return end >= text.size() ? std::string_view() : text.substr(end + 1);
}

}  // namespace

void ReadNumbers(std::string_view text, const std::string& source, const ReadOptions& options,
                 TKorFloatVector& values, Integer& count, std::size_t line) {
    text = WithoutByteOrderMark(text, line);
    NumberSink sink(text, source, options.allowNonFinite, values, count);
    if (options.header) text = AfterHeader(text, options, line);
    if (options.Records())
        ReadRecords(text, line, options, sink);
    else
        ReadTokens(text, line, sink);
}

TKorFloatMatrix ReadMatrix(std::string_view text, const std::string& source, const ReadOptions& options) {
    std::size_t line = 1;
    text = WithoutByteOrderMark(text, line);
    if (options.header) text = AfterHeader(text, options, line);
    std::vector<std::vector<Float>> rows;
    std::string scratch;
    ForEachRecord(text, line, [&](std::string_view record, std::size_t at) {
        FieldWalker fields(record, options.delimiter);
        std::vector<Float> row;
        for (std::string_view field; fields.Next(field);)
            row.push_back(ParseNumber(Unquote(field, scratch), source, at, int(row.size()) + 1, options.allowNonFinite));
        if (!rows.empty() && row.size() != rows[0].size())
            Fail(source, at, 0,
                 "a row of " + std::to_string(row.size()) + " values where the first row has " +
                     std::to_string(rows[0].size()));
        rows.push_back(std::move(row));
    });
    if (rows.empty()) throw InputError(Describe(source) + ": no numbers");
    TKorFloatMatrix M;
    M.SetLength(Integer(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        TKorFloatVector row;
        row.SetLength(Integer(rows[i].size()));
        std::copy(rows[i].begin(), rows[i].end(), row.begin());
        M[Integer(i)] = row;
    }
    return M;
}

namespace {

// A block of whole lines. A large one is cut at a line end near its middle and the two
// halves are read at once, the second into a vector of its own that is then appended;
// a failure in the first half is the one reported, as it comes first in the text.
void ReadBlock(std::string_view text, const std::string& path, const ReadOptions& options, TKorFloatVector& values,
               Integer& count, std::size_t line) {
    constexpr std::size_t Parallel = std::size_t(1) << 20;
    // Quoted records may hold line ends, so a text with quotes is read in one piece.
    const bool quoting = options.Records() && text.find('"') != std::string_view::npos;
    const std::size_t cut =
        text.size() < Parallel || quoting ? std::string_view::npos : text.find('\n', text.size() / 2);
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
    if (descriptor < 0) throw InputError(Describe(path) + ": " + std::strerror(errno));
    struct stat status;
    const bool regular = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);

    // Whole records a block at a time: what follows the last record end of a block
    // waits for the next one, and a block without one grows until it holds one.
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
            const std::string_view all(block(), held);
            const std::size_t last =
                LastRecordEnd(all, options.Records() && all.find('"') != std::string_view::npos);
            if (last == std::string_view::npos) continue;
            usable = last + 1;
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
    if (file == nullptr) throw InputError(Describe(path) + ": " + std::strerror(errno));
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
