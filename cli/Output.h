// The output layer of the kornum program: how numbers and user text are shown, and the
// checked writing of standard output.
#pragma once

#include "frontend/NumberText.h"

#include <kornum/Kornumglobals.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace KornumCli {

using Kornumglobals::Float;

using KornumFrontend::NumberText;

// A text the user gave, for a message: in single quotes, control bytes and bytes that are
// not UTF-8 escaped as \xNN, cut after 40 characters with "...".
std::string Quoted(std::string_view text);

// A write or close of the output that failed; the program reports it as
// "kornum: write error: ..." with exit status 1.
class WriteError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The end of the output a caller allowed (Output's limit); what the fuzz targets use
// to bound the work of a command.
class OutputLimit : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Standard output (or another descriptor), buffered, every write checked: a failure
// throws WriteError at once, so that a command stops instead of computing for nobody.
class Output {
public:
    // Writes to Descriptor, closed by Finish when CloseAtFinish; a write beyond Limit bytes
    // in all throws OutputLimit.
    explicit Output(int descriptor = 1, bool closeAtFinish = true, std::size_t limit = std::size_t(-1))
        : descriptor_(descriptor), closeAtFinish_(closeAtFinish), limit_(limit) {}
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    ~Output();

    void Write(std::string_view text);
    void Write(char c) { Write(std::string_view(&c, 1)); }
    // Writes what is buffered and closes the output, so that a late failure (a full disk,
    // a lost file system) is seen too; throws WriteError.
    void Finish();

private:
    void Flush();
    int descriptor_;
    bool closeAtFinish_;
    std::size_t limit_, written_ = 0;
    std::string buffer_;
    bool finished_ = false;
};

}  // namespace KornumCli
