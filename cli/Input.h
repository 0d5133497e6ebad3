// The input layer of the kornum program: numbers from files or standard input, as
// white-space separated tokens or as one field of each record (CSV and TSV with
// RFC 4180 quoting), for every command that reads data.
#pragma once

#include <kornum/Kornumglobals.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace KornumCli {

// A token that is not a number, a missing field, or a file that cannot be read. The
// message names the file, the line, the field and the text (quoted and escaped).
class InputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// How a text holds its numbers.
struct ReadOptions {
    // 0: every token of the text is a number. N > 0: each non-blank record is a line (a
    // quoted field may hold line ends) and its field N (1-based) is the number; so is
    // field 1 when only a delimiter is set.
    int field = 0;
    // The character between the fields of a record; 0 for runs of white space.
    char delimiter = 0;
    // Skip the first line (record) of each text.
    bool header = false;
    // Take NaN and infinities as numbers; by default they are bad input.
    bool allowNonFinite = false;

    bool Records() const noexcept { return field > 0 || delimiter != 0; }
};

// Stores the numbers of the text in Values from position Count on and advances Count;
// Values grows as needed (its length may exceed Count). Source names the text in
// messages ("-" reads as "standard input"); Line is the number of the text's first line.
// A UTF-8 byte-order mark at the start of the text is skipped.
void ReadNumbers(std::string_view text, const std::string& source, const ReadOptions& options,
                 Kornumglobals::TKorFloatVector& values, Kornumglobals::Integer& count, std::size_t line = 1);

// The same for the numbers of a file, or of standard input for "-", read in blocks of
// whole records, so that a large file is never held whole.
void ReadFileNumbers(const std::string& path, const ReadOptions& options, Kornumglobals::TKorFloatVector& values,
                     Kornumglobals::Integer& count);

// A matrix: each non-blank record of the text is a row, every field of it a number, and
// every row as long as the first. The options' field is ignored.
Kornumglobals::TKorFloatMatrix ReadMatrix(std::string_view text, const std::string& source,
                                          const ReadOptions& options);

// The whole content of a file, or of standard input for "-".
std::string ReadSource(const std::string& path);

}  // namespace KornumCli
