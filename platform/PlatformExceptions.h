/// @file
/// The exception classes of the library. Every failure carries exactly one message text
/// and, when it was raised from a message identifier, that identifier;
/// `Platform::Exception` is the root, derived from `std::exception`.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformResources.h>
#include <exception>
#include <string>

KORNUM_EXPORT_BEGIN
namespace Platform {

/// The root class of the library's exceptions: one message text, returned unchanged by
/// `what()` and `Message()`.
class Exception : public std::exception {
public:
    /// An exception carrying `message`.
    explicit Exception(std::string message) : message_(std::move(message)) {}
    /// An exception carrying the text of `resource` in force now, and the identifier, so
    /// that a program can tell failures apart without comparing texts.
    explicit Exception(const ResourceString& resource) : message_(resource.Text()), resource_(&resource) {}
    /// The message text, as a C string.
    const char* what() const noexcept override { return message_.c_str(); }
    /// The message text.
    const std::string& Message() const noexcept { return message_; }
    /// The identifier the failure was raised from (`Kornum_RS_Math::rsVectorIsEmpty`, ...),
    /// or nullptr for a message composed at the point of failure. Compare identifiers by
    /// `Id` or `Name`: each library may hold its own copy of a constant.
    const ResourceString* Resource() const noexcept { return resource_; }

private:
    std::string message_;
    const ResourceString* resource_ = nullptr;
};

/// Raised by the numeric routines for bad arguments. The message is the text of a message
/// identifier (`Kornum_RS_Math::rsVectorIsEmpty`, ...) in the table in force when raised.
class EMathError : public Exception {
public:
    /// An exception carrying `message`.
    using Exception::Exception;
};

/// Raised for text that cannot be converted (not a number, a colour or a font). Also
/// raised for an object that cannot be assigned from another; the message quotes the
/// text or names the classes.
class EConvertError : public Exception {
public:
    /// An exception carrying `message`.
    using Exception::Exception;
};

/// Raised when a value does not fit the type it is converted to; the message names the
/// value and the target type.
class ERangeError : public Exception {
public:
    /// An exception carrying `message`.
    using Exception::Exception;
};

}  // namespace Platform
KORNUM_EXPORT_END
