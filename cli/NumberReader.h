// Reads the numbers of text files for the command-line program.
#pragma once

#include <kornum/Kornumglobals.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace KornumCli {

// A token that is not a number, or a file that cannot be read. The message names the
// file, the line and the text.
class InputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Stores every number in the text, tokens separated by any white space, in Values from
// position Count on, and advances Count; Values grows as needed (its length may exceed
// Count). Source names the text in messages ("-" reads as "standard input").
void ReadNumbers(const std::string& text, const std::string& source, Kornumglobals::TKorFloatVector& values,
                 Kornumglobals::Integer& count);

// The whole content of a file, or of standard input for "-".
std::string ReadSource(const std::string& path);

}  // namespace KornumCli
