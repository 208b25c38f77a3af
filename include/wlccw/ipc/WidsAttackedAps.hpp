/// \file
/// The access points that an AP's intrusion detection reports as under denial-of-service attack,
/// with the channel of each: read from the AP's free text and passed between daemons as IPC JSON.
#pragma once

#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <string>
#include <utility>
#include <vector>

/// Every report "ap XX:XX:XX:XX:XX:XX at channel N" found in text, in text order, duplicates kept.
///
/// A report is the word "ap" (lower case, possibly the end of a longer word), one blank, six pairs
/// of hexadecimal digits of either case joined by ":", one blank, the words "at channel" (lower
/// case, one blank between them), one blank and one or more decimal digits, all of which form the
/// channel. The scan goes on after the last digit of each report. Anything else, such as a MAC with
/// "-" or two blanks between the words, is not a report. Text without a report gives an empty list.
///
/// Throws std::out_of_range (from std::stoi) when a channel does not fit an int; nothing partial
/// is returned then.
WLCCW_EXPORT std::vector<std::pair<MacAddr, int>> parse_attacked_aps(std::string text);

/// The attacked APs of one report, each with its channel, in the order read.
///
/// IPC form, a compact JSON array: [{"mac":"00:11:22:33:44:55","channel":"36"},...], the channel
/// as a JSON string of the decimal number.
class WLCCW_EXPORT WidsAttackedAps {
public:
  /// The attacked APs and their channels, in the order read; duplicates are kept.
  std::vector<std::pair<MacAddr, int>> attacked_aps;

  /// The reports of an AP's free text, as parse_attacked_aps reads them; throws what it throws.
  static WidsAttackedAps netconf_deserialize(std::string const& text);
  /// The list of an IPC array. Text that is not JSON, or whose root is not an array, gives an empty
  /// list. A missing or malformed "mac" gives the default address. "channel" is read as text and
  /// converted as std::stoi does (leading blanks skipped, trailing text ignored): a missing
  /// channel, an element that is not an object or a channel that is not a number throws
  /// std::invalid_argument, a number too large for an int std::out_of_range.
  static WidsAttackedAps ipc_deserialize(std::string const& text);
  /// The compact IPC array; "[]" for an empty list.
  std::string to_str() const;
  /// The same text as to_str().
  std::string ipc_serialize() const;

  /// Equal when both hold the same pairs in the same order (addresses by their octets).
  friend bool operator==(WidsAttackedAps const&, WidsAttackedAps const&) = default;
};
