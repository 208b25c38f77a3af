/// \file
/// Splitting delimited text into strings, integers and MAC addresses; time stamps with a UTC
/// offset; IPv4 text of an address held in an integer.
#pragma once

#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <string>
#include <vector>

/// String, number and time tools the daemons share.
namespace tools {

/// The pieces of text between delimiters, as std::getline with the delimiter takes them from a
/// string stream: empty pieces between delimiters and a leading empty piece are kept, a trailing
/// delimiter adds no piece, the empty text gives no piece, nothing is trimmed.
WLCCW_EXPORT std::vector<std::string> split_str(std::string const& text, char delimiter);

/// Every piece of split_str() read by std::stoi (leading white space skipped, optional sign,
/// trailing characters ignored), in order; empty for the empty text. Throws std::invalid_argument
/// ("stoi") for a piece without digits (an empty piece included) and std::out_of_range ("stoi")
/// for a value outside int.
WLCCW_EXPORT std::vector<int> string_to_ints(std::string const& text, char delimiter);

/// Every piece of split_str() that MacAddr::from_str accepts with the piece's own length, in order,
/// duplicates kept; other pieces are dropped.
WLCCW_EXPORT std::vector<MacAddr> string_to_macs(std::string const& text, char delimiter);

/// "YYYY-MM-DDTHH:MM:SS+HH:MM": the calendar fields of time (seconds since the epoch) in UTC, not
/// shifted by offset, followed by the sign and whole minutes of offset (seconds). Every field after
/// the year is at least two digits wide. The empty text for time 0 or a time outside the calendar.
WLCCW_EXPORT std::string to_str_at_time_zone(long time, long offset);

/// Dotted IPv4 text of an address whose bytes lie in memory in network order (as in in_addr's
/// s_addr): on a little-endian machine 0x0100007F gives "127.0.0.1".
WLCCW_EXPORT std::string uint32_to_ipv4_str(unsigned int address);

} // namespace tools
