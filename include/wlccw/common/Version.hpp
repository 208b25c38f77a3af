/// \file
/// Three-part numeric versions (major.minor.patch) read from text such as "6.4.12".
#pragma once

#include <wlccw/export.hpp>

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

/// The numbers of a version. Equality and ordering compare major, then minor, then patch, so
/// firmware versions sort in release order.
class WLCCW_EXPORT VersionRaw {
public:
  /// The three numbers of a version text: major, minor, patch.
  using Args = std::tuple<std::uint32_t, std::uint32_t, std::uint32_t>;

  /// The three numbers of a version text. The text must start with three decimal numbers joined
  /// by "." (leading zeros allowed, no sign, no space); any rest of the text without a line break
  /// (LF or CR) is accepted and ignored: "1.2.3-rc1" gives 1, 2, 3. Throws std::invalid_argument
  /// quoting the whole text between single quotes:
  /// - "Invalid version format: 'TEXT'" when the text does not have that form ("", "1.2",
  ///   "v1.2.3", `"1.2.3\n"` included),
  /// - "Version number too large: 'TEXT'" when a number needs more than 63 bits,
  /// - "Version number exceeds 4294967295: 'TEXT'" when a number does not fit 32 bits.
  [[nodiscard]] static Args parse_args(std::string const& text);
  /// parse_args(), or an empty optional where it throws. Never throws.
  [[nodiscard]] static std::optional<Args> try_parse_args(std::string const& text) noexcept;
  /// parse_args() as a VersionRaw; throws like it.
  [[nodiscard]] static VersionRaw parse(std::string const& text);
  /// parse(), or an empty optional where it throws. Never throws.
  [[nodiscard]] static std::optional<VersionRaw> try_parse(std::string const& text) noexcept;

  /// 0.0.0.
  constexpr VersionRaw() noexcept = default;
  /// The version major_number.minor_number.patch_number.
  constexpr VersionRaw(std::uint32_t major_number, std::uint32_t minor_number,
                       std::uint32_t patch_number) noexcept
      : major(major_number), minor(minor_number), patch(patch_number) {}
  /// The numbers of the text, as parse() reads them; throws like it.
  explicit VersionRaw(std::string const& text);

  /// "major.minor.patch" in decimal, such as "1.2.3".
  [[nodiscard]] std::string to_string() const;

  /// Equal when major, minor and patch are equal.
  friend constexpr bool operator==(VersionRaw const&, VersionRaw const&) noexcept = default;
  /// Orders by major, then minor, then patch.
  friend constexpr std::strong_ordering operator<=>(VersionRaw const&,
                                                    VersionRaw const&) noexcept = default;

  /// The major number, the first of the text.
  std::uint32_t major = 0;
  /// The minor number, the second of the text.
  std::uint32_t minor = 0;
  /// The patch number, the third of the text.
  std::uint32_t patch = 0;
};

/// The numbers of a version together with the whole text they were read from, build tags and other
/// suffixes included ("1.2.3-rc1" has the numbers 1.2.3 and keeps its text).
///
/// Two Versions are equal when numbers and text are equal; they order by their numbers first and
/// by their text only among equal numbers. A Version compared with a VersionRaw compares the
/// numbers alone, which is the comparison to use for "at least this release".
class WLCCW_EXPORT Version : public VersionRaw {
public:
  /// The numbers of the text, as VersionRaw::parse() reads them, and a copy of the text; throws
  /// std::invalid_argument like VersionRaw::parse_args().
  explicit Version(std::string const& text);

  /// Constructs from the text; throws like the constructor.
  [[nodiscard]] static Version parse(std::string const& text);
  /// The Version of the text, or an empty optional where the constructor throws. Never throws.
  [[nodiscard]] static std::optional<Version> try_parse(std::string const& text) noexcept;

  /// The whole text the version was read from, exactly as received.
  [[nodiscard]] std::string const& text() const noexcept { return text_; }

  /// The numbers, without the text.
  [[nodiscard]] VersionRaw const& numbers() const noexcept { return *this; }

  /// Equal when the numbers and the texts are equal.
  friend bool operator==(Version const&, Version const&) = default;
  /// Orders by the numbers, then by the text (byte order) among equal numbers.
  friend std::strong_ordering operator<=>(Version const&, Version const&) = default;

private:
  std::string text_;
};
