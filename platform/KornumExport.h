/// @file
/// The export macro of the kornum shared libraries.
#pragma once

/// Marks a namespace block, class or function of the public API as exported from the
/// shared library that defines it. The libraries are built with hidden visibility, so
/// everything else, templates instantiated inside them included, stays internal.
#if defined(__GNUC__) || defined(__clang__)
#define KORNUM_API __attribute__((visibility("default")))
#else
#define KORNUM_API
#endif
