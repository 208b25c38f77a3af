// What the hostile-size tests share: the sizes, and whether the build runs under ThreadSanitizer.
#pragma once

#include <cstddef>

namespace wlccw::test {

inline constexpr std::size_t kMiB = std::size_t{1} << 20;
inline constexpr std::size_t k64MiB = 64 * kMiB;

/// Whether the program runs under ThreadSanitizer, whose cost on byte-by-byte work makes the
/// largest single-threaded inputs take minutes (importing 100 000 clients alone takes about 20 s
/// there); those tests are skipped there and run in every other build, since the ThreadSanitizer
/// build exists for the concurrent tests.
inline constexpr bool kUnderThreadSanitizer =
#if defined(__SANITIZE_THREAD__)
    true;
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
    true;
#else
    false;
#endif
#else
    false;
#endif

} // namespace wlccw::test
