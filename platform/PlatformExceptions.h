// The exception classes of the library. Every failure carries exactly one message
// text and nothing else.
#pragma once

#include <kornum/KornumExport.h>
#include <exception>
#include <string>

namespace KORNUM_API Platform {

// Root class: a message text, returned unchanged by what() and Message().
class Exception : public std::exception {
public:
    explicit Exception(std::string message) : message_(std::move(message)) {}
    const char* what() const noexcept override { return message_.c_str(); }
    const std::string& Message() const noexcept { return message_; }

private:
    std::string message_;
};

// Raised by the numeric routines for bad arguments.
class EMathError : public Exception {
public:
    using Exception::Exception;
};

// Raised for text that is not a number; the message quotes the text.
class EConvertError : public Exception {
public:
    using Exception::Exception;
};

// Raised when a value does not fit the type it is converted to.
class ERangeError : public Exception {
public:
    using Exception::Exception;
};

}  // namespace Platform
