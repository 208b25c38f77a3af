// Visibility of the library's public names. Both shared libraries are built with hidden
// visibility; only what carries WLCCW_EXPORT is part of their ABI.
#pragma once

#if defined(__GNUC__) || defined(__clang__)
#define WLCCW_EXPORT __attribute__((visibility("default")))
#else
#define WLCCW_EXPORT
#endif
