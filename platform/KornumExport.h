/// @file
/// The export macros of the kornum shared libraries.
#pragma once

/// @def KORNUM_EXPORT_BEGIN
/// Opens the public part of a header: what is declared up to `KORNUM_EXPORT_END` is
/// exported from the shared library that defines it. The libraries are built with hidden
/// visibility, so everything else, internal functions and the templates instantiated
/// inside them included, stays internal.
/// @def KORNUM_EXPORT_END
/// Closes the public part opened by `KORNUM_EXPORT_BEGIN`.
/// @def KORNUM_API
/// Exports one declaration outside a public part (the libraries' internal interface).
#if defined(__GNUC__) || defined(__clang__)
#define KORNUM_EXPORT_BEGIN _Pragma("GCC visibility push(default)")
#define KORNUM_EXPORT_END _Pragma("GCC visibility pop")
#define KORNUM_API __attribute__((visibility("default")))
#else
#define KORNUM_EXPORT_BEGIN
#define KORNUM_EXPORT_END
#define KORNUM_API
#endif
