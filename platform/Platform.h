/// @file
/// The platform module's main header: exceptions carrying a message, replaceable message
/// texts and the one way the library raises a failure (`Platform::Raise`,
/// `Platform::Require`).
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformExceptions.h>
#include <kornum/PlatformResources.h>

/// The platform module: the services the library needs beyond the C++ standard library.
/// Exception classes carrying one message text, message identifiers whose texts an
/// application can replace, the global uniform generator, persistent objects and string
/// lists, components with a published-property table and a text form, and a
/// toolkit-neutral drawing slice (rectangles, colours, fonts, an abstract canvas).
KORNUM_EXPORT_BEGIN
namespace Platform {

/// Raises a failure: looks up the text of `resource` in the table in force at this moment
/// (`ResourceString::Text`) and throws `E` carrying exactly that text. `E` is
/// `Platform::EMathError` unless a routine is documented to raise another class. The
/// exception also carries `resource` itself (`Exception::Resource`).
template <class E = EMathError>
[[noreturn]] void Raise(const ResourceString& resource) {
    throw E(resource);
}

/// Raises `resource` as a `Platform::EMathError` (see `Raise`) unless `Holds` is true: the
/// argument check every routine begins with.
inline void Require(bool Holds, const ResourceString& resource) {
    if (!Holds) Raise(resource);
}

}  // namespace Platform
KORNUM_EXPORT_END
