/// \file
/// Visibility of the library's public names. Both shared libraries are built with hidden
/// visibility; only what carries WLCCW_EXPORT is part of their ABI.
#pragma once

#if defined(__GNUC__) || defined(__clang__)
/// Marks a class or function as part of the shared libraries' ABI (default visibility).
#define WLCCW_EXPORT __attribute__((visibility("default")))
#else
/// Marks a class or function as part of the shared libraries' ABI; empty where the compiler has
/// no visibility attribute.
#define WLCCW_EXPORT
#endif
