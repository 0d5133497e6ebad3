// The slice of platform services that the library relies on: exceptions carrying a
// message, replaceable message texts and the one way to raise a failure.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformExceptions.h>
#include <kornum/PlatformResources.h>

namespace KORNUM_API Platform {

// Raises a failure: looks up the text of the identifier in the table in force at this
// moment and throws E (EMathError unless the routine is documented to raise another
// class) with exactly that text.
template <class E = EMathError>
[[noreturn]] void Raise(const ResourceString& resource) {
    throw E(resource.Text());
}

// Raises the failure unless the condition holds: the check every routine begins with.
inline void Require(bool Holds, const ResourceString& resource) {
    if (!Holds) Raise(resource);
}

}  // namespace Platform
