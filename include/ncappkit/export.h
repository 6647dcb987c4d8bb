// SPDX-License-Identifier: MIT
// Export macro of the ncappkit shared library.
//
// Every exported class is declared `class NCAPPKIT_EXPORT Name`. Symbols are hidden by default; only what
// carries the macro is visible to client programs. Define NCAPPKIT_STATIC_DEFINE when linking the static
// library (the CMake package and the pkg-config file do that for you).
#pragma once

#if defined(NCAPPKIT_STATIC_DEFINE)
#define NCAPPKIT_EXPORT
#elif defined(_WIN32) || defined(__CYGWIN__)
#if defined(NCAPPKIT_BUILDING)
#define NCAPPKIT_EXPORT __declspec(dllexport)
#else
#define NCAPPKIT_EXPORT __declspec(dllimport)
#endif
#else
#define NCAPPKIT_EXPORT __attribute__((visibility("default")))
#endif
