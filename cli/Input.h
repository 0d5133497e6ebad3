// Reads the numbers of text files for the command-line program.
#pragma once

#include <kornum/Kornumglobals.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace KornumCli {

// A token that is not a number, a missing field, or a file that cannot be read. The
// message names the file, the line (and the field) and the text.
class InputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// How a text holds its numbers.
struct ReadOptions {
    // 0: every token of the text is a number. N > 0: each non-blank line is a record
    // and its field N (1-based) is the number; so is field 1 when only a delimiter is set.
    int field = 0;
    // The character between the fields of a record; 0 for runs of white space.
    char delimiter = 0;
    // Skip the first line of the text.
    bool header = false;

    bool Records() const noexcept { return field > 0 || delimiter != 0; }
};

// Stores the numbers of the text in Values from position Count on and advances Count;
// Values grows as needed (its length may exceed Count). Source names the text in
// messages ("-" reads as "standard input").
// Line is the number of the text's first line.
void ReadNumbers(std::string_view text, const std::string& source, const ReadOptions& options,
                 Kornumglobals::TKorFloatVector& values, Kornumglobals::Integer& count, std::size_t line = 1);

// The same for the numbers of a file, or of standard input for "-", read in blocks of
// whole lines, so that a large file is never held whole.
void ReadFileNumbers(const std::string& path, const ReadOptions& options, Kornumglobals::TKorFloatVector& values,
                     Kornumglobals::Integer& count);

// The whole content of a file, or of standard input for "-".
std::string ReadSource(const std::string& path);

}  // namespace KornumCli
