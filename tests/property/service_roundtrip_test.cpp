// Round trips of generated controller service messages: every record written to its IPC form and
// read back equals the original, up to the losses each message defines (texts cut at their first
// NUL where a writer takes a C string, addresses read back valid, values outside a table written
// as its fallback, fields a state or flag does not write, first-wins maps). Each test runs a fixed
// set of seeds and names the first failing seed.
#include <wlccw/ipc/ApLocationsData.hpp>
#include <wlccw/ipc/ApWidsMacLists.hpp>
#include <wlccw/ipc/ClientCoaProxyInfo.hpp>
#include <wlccw/ipc/FullVapData.hpp>
#include <wlccw/ipc/IpcDasProxyConfig.hpp>
#include <wlccw/ipc/IpcMsgGreData.hpp>
#include <wlccw/ipc/IpcMsgRrmApInfo.hpp>
#include <wlccw/ipc/IpcMsgVelmoraRequest.hpp>
#include <wlccw/ipc/IpcMsgVelmoraResponse.hpp>
#include <wlccw/ipc/IpcMsgVrrpUpdateBoardTypes.hpp>
#include <wlccw/ipc/SaApsInfo.hpp>
#include <wlccw/ipc/Ssid2VapInfo.hpp>
#include <wlccw/ipc/Vap.hpp>
#include <wlccw/ipc/WidsAttackedAps.hpp>

#include <wlccw/cfg/owned.hpp>

#include <boost/json.hpp>

#include "property/property_support.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace {

using wlccw::test::for_each_seed;
using wlccw::test::Random;
using wlccw::test::up_to_nul;

// ---- Values -------------------------------------------------------------------------------------

/// A list length: empty, one, a few or many.
std::size_t list_size(Random& rnd, std::size_t many = 40) {
  switch (rnd.integer(0, 5)) {
  case 0:
    return 0;
  case 1:
    return 1;
  case 2:
    return rnd.integer<std::size_t>(std::min<std::size_t>(10, many), many);
  default:
    return rnd.integer<std::size_t>(2, 6);
  }
}

/// A text: empty, a name-like word, JSON-hostile characters and UTF-8, or a long one.
std::string any_text(Random& rnd) {
  switch (rnd.integer(0, 9)) {
  case 0:
    return {};
  case 1:
    return rnd.word();
  case 2:
    return rnd.text(200);
  default:
    return rnd.text();
  }
}

/// A text as any_text gives it, now and then with NUL bytes inside.
std::string text_with_nul(Random& rnd) {
  std::string text = any_text(rnd);
  if (rnd.chance(0.15)) {
    std::size_t const nuls = rnd.integer<std::size_t>(1, 2);
    for (std::size_t i = 0; i < nuls; ++i) {
      text.insert(rnd.integer<std::size_t>(0, text.size()), 1, '\0');
    }
  }
  return text;
}

/// An IPv4 address: mostly a parsed one, also the default (invalid) value and random octets whose
/// flag says invalid.
IpAddr any_ip(Random& rnd) {
  switch (rnd.integer(0, 7)) {
  case 0:
    return IpAddr{};
  case 1: {
    IpAddr ip = rnd.ip();
    ip.valid = false;
    return ip;
  }
  default:
    return rnd.ip();
  }
}

/// An address after a trip through its dotted text: every four octets make a text the parser
/// accepts, so it comes back valid whatever its flag was.
IpAddr ip_after_trip(IpAddr ip) {
  ip.valid = true;
  return ip;
}

/// A value of a 32-bit enumeration: one of its first `count` values, or now and then any 32-bit
/// value (writers write values outside their table by a fallback).
template <typename E> E any_enumerator(Random& rnd, int count) {
  if (rnd.chance(0.1)) {
    return static_cast<E>(rnd.any<std::int32_t>());
  }
  return rnd.enumerator<E>(count);
}

/// The compact text of a node written by fill into a new object.
template <typename Fill> std::string object_text(Fill&& fill) {
  wlccw::cfg::Tree const object = wlccw::cfg::make_object();
  EXPECT_TRUE(object);
  if (!object) {
    return {};
  }
  fill(*object);
  return wlccw::cfg::compact(object.get());
}

/// The compact texts of the elements of a JSON array, sorted: the content of an array written in
/// the iteration order of an unordered container, whatever that order.
std::vector<std::string> sorted_elements(boost::json::value const& array) {
  std::vector<std::string> elements;
  if (array.is_array()) {
    for (boost::json::value const& element : array.get_array()) {
      elements.push_back(boost::json::serialize(element));
    }
  }
  std::sort(elements.begin(), elements.end());
  return elements;
}

/// The text with every array of the given members (or the root array) in sorted element order.
std::string unordered_canonical(std::string const& text, std::vector<char const*> const& members) {
  // Texts are bytes: a text cut at a NUL may end inside a UTF-8 sequence.
  boost::json::parse_options options;
  options.allow_invalid_utf8 = true;
  boost::json::error_code error;
  boost::json::value const root = boost::json::parse(text, error, {}, options);
  if (error) {
    return "not JSON: " + text;
  }
  std::string canonical;
  auto const append = [&canonical](std::vector<std::string> const& elements) {
    canonical += '[';
    for (std::string const& element : elements) {
      canonical += element + ',';
    }
    canonical += ']';
  };
  if (members.empty()) {
    append(sorted_elements(root));
    return canonical;
  }
  if (!root.is_object()) {
    return "not an object: " + text;
  }
  for (auto const& member : root.get_object()) {
    canonical += std::string(member.key()) + ':';
    append(sorted_elements(member.value()));
  }
  return canonical;
}

// ---- RRM AP info and SSID-to-VAP map ------------------------------------------------------------

using Band = IpcMsgRrmApInfo::Band;

/// A radio or VAP number: any 64-bit value, often one at the edges of the int it travels as.
std::uint64_t any_vap_number(Random& rnd) {
  static constexpr std::uint64_t edges[] = {0x7fffffffULL, 0x80000000ULL, 0xffffffffULL,
                                            0x100000000ULL, 0xffffffff80000000ULL};
  if (rnd.chance(0.2)) {
    return edges[rnd.integer<std::size_t>(0, std::size(edges) - 1)];
  }
  return rnd.any<std::uint64_t>();
}

IpcMsgRrmApInfo make_rrm_ap_info(Random& rnd) {
  IpcMsgRrmApInfo info;
  info.ip = any_ip(rnd);
  info.type = text_with_nul(rnd);
  info.location = text_with_nul(rnd);
  std::size_t const count = list_size(rnd, 30);
  for (std::size_t i = 0; i < count; ++i) {
    // One draw per statement, so that a seed gives the same record whatever order a compiler
    // evaluates arguments in.
    std::string name = text_with_nul(rnd);
    std::string ssid = text_with_nul(rnd);
    Band const band = any_enumerator<Band>(rnd, 3);
    std::uint64_t const radio_id = any_vap_number(rnd);
    std::uint64_t const vap_id = any_vap_number(rnd);
    if (rnd.chance(0.3)) {
      // The band given as text: its own text, or one that reads as "2g".
      static constexpr char const* other_texts[] = {"", "2.4g", "5G", "6"};
      std::string const band_text =
          rnd.coin() ? IpcMsgRrmApInfo::str_from_band(band)
                     : other_texts[rnd.integer<std::size_t>(0, std::size(other_texts) - 1)];
      info.interfaces.try_emplace(std::move(name), std::move(ssid), band_text, radio_id, vap_id);
    } else {
      info.interfaces.try_emplace(std::move(name), std::move(ssid), band, radio_id, vap_id);
    }
  }
  return info;
}

/// A radio or VAP number after its trip as a JSON int: its low 32 bits as an int, widened back
/// with its sign.
std::uint64_t vap_number_after_trip(std::uint64_t number) {
  return static_cast<std::uint64_t>(
      static_cast<std::int64_t>(static_cast<std::int32_t>(static_cast<std::uint32_t>(number))));
}

/// A band after its trip: "5g" and "6g" come back, every other value is written as "2g".
Band band_after_trip(Band band) {
  return band == Band::BAND_5G || band == Band::BAND_6G ? band : Band::BAND_2G;
}

/// What the reader rebuilds from the text of info. A record that is_empty is written with no keys
/// and reads back as the default record. Otherwise the texts are cut at their first NUL, the
/// numbers pass through an int and the bands through their table; interfaces whose cut names
/// meet keep the first in name order. text_kept tells whether the read-back record writes the same
/// text: not when names met, nor when a cut type or location is empty (the record read back is
/// then empty and writes no keys).
IpcMsgRrmApInfo rrm_after_trip(IpcMsgRrmApInfo const& info, bool& text_kept) {
  text_kept = true;
  IpcMsgRrmApInfo out;
  if (info.is_empty()) {
    return out;
  }
  out.ip = info.ip;
  out.type = up_to_nul(info.type);
  out.location = up_to_nul(info.location);
  if (out.type.empty() || out.location.empty()) {
    text_kept = false;
  }
  for (auto const& [name, vap] : info.interfaces) {
    bool const inserted =
        out.interfaces
            .try_emplace(up_to_nul(name), up_to_nul(vap.ssid), band_after_trip(vap.band),
                         vap_number_after_trip(vap.radio_id), vap_number_after_trip(vap.vap_id))
            .second;
    text_kept = text_kept && inserted;
  }
  return out;
}

TEST(ServiceRoundTrip, RrmApInfo) {
  std::set<std::string> seen;
  for_each_seed([&seen](Random& rnd) {
    IpcMsgRrmApInfo const original = make_rrm_ap_info(rnd);
    bool text_kept = true;
    IpcMsgRrmApInfo const expected = rrm_after_trip(original, text_kept);
    seen.insert(original.is_empty() ? "empty" : "not empty");
    seen.insert(text_kept ? "text kept" : "text changed");
    std::string const text = original.to_str();
    IpcMsgRrmApInfo const read(text);
    EXPECT_TRUE(read == expected) << "written:   " << text << "\nread back: " << read.to_str()
                                  << "\nexpected:  " << expected.to_str();
    EXPECT_EQ(read.to_str(), expected.to_str());
    EXPECT_EQ(read.get_hash(), expected.get_hash());
    if (text_kept) {
      EXPECT_EQ(read.to_str(), text);
      EXPECT_EQ(read.get_hash(), original.get_hash());
    }
  });
  EXPECT_EQ(seen.size(), 4U) << "empty and filled records, texts kept and changed are generated";
}

TEST(ServiceRoundTrip, Ssid2VapInfo) {
  for_each_seed([](Random& rnd) {
    Ssid2VapInfo original;
    std::vector<MacAddr> macs;
    std::size_t const count = list_size(rnd, 12);
    for (std::size_t i = 0; i < count; ++i) {
      // Now and then an address already present: insert keeps the first description.
      MacAddr const mac = !macs.empty() && rnd.chance(0.1)
                              ? macs[rnd.integer<std::size_t>(0, macs.size() - 1)]
                              : rnd.any_mac();
      macs.push_back(mac);
      original.insert(mac, make_rrm_ap_info(rnd));
    }
    Ssid2VapInfo expected;
    bool text_kept = true;
    for (auto const& [mac, info] : original.get_ssid2vap_info_pack()) {
      bool info_text_kept = true;
      expected.insert(mac, rrm_after_trip(info, info_text_kept));
      text_kept = text_kept && info_text_kept;
    }
    std::string const text = original.to_str();
    Ssid2VapInfo const read(text);
    EXPECT_TRUE(read == expected) << "written:   " << text << "\nread back: " << read.to_str()
                                  << "\nexpected:  " << expected.to_str();
    EXPECT_EQ(read.to_str(), expected.to_str());
    if (text_kept) {
      EXPECT_EQ(read.to_str(), text);
    }
  });
}

// ---- VAP records --------------------------------------------------------------------------------

/// Fills every field of the VAP part, the optionals present or absent whatever the enabled flag
/// (a disabled VAP does not write them).
void fill_vap(Random& rnd, Vap& vap) {
  vap.rfid = rnd.any<std::int32_t>();
  vap.wid = rnd.any<std::int32_t>();
  vap.vlanid = rnd.any<std::uint32_t>();
  vap.interface = text_with_nul(rnd);
  vap.radio = text_with_nul(rnd);
  vap.band = any_enumerator<ApProfileRadioBand>(rnd, 4);
  vap.client_count = rnd.any<std::int32_t>();
  vap.enabled = rnd.chance(0.7);
  vap.ssid = rnd.maybe([&rnd] { return text_with_nul(rnd); });
  vap.bssid = rnd.maybe([&rnd] { return rnd.any_mac(); });
  vap.auth_type = rnd.maybe([&rnd] {
    // Mostly a known mode; now and then UNKNOWN or a value past it, which the reader rejects.
    return rnd.chance(0.8) ? rnd.enumerator<SecurityMode>(12)
                           : any_enumerator<SecurityMode>(rnd, 13);
  });
  vap.retry_rate = rnd.maybe([&rnd] { return rnd.any<std::uint8_t>(); });
}

/// The VAP part as the IPC reader rebuilds it, in place; false when the reader rejects it. The
/// interface and radio names are cut at their first NUL (the SSID is written with its length and
/// kept whole); a band outside the table is written as "" and reads as UNKNOWN. A disabled VAP
/// writes nothing after "enabled". An enabled VAP writes its BSSID and authentication type even
/// when absent (the default address and "off"), and one whose mode has no text of its own is
/// written as "UNKNOWN" and rejected.
bool vap_after_trip(Vap& vap) {
  vap.interface = up_to_nul(vap.interface);
  vap.radio = up_to_nul(vap.radio);
  if (vap.band != ApProfileRadioBand::BAND_2_4_GHZ && vap.band != ApProfileRadioBand::BAND_5_GHZ &&
      vap.band != ApProfileRadioBand::BAND_6_GHZ) {
    vap.band = ApProfileRadioBand::UNKNOWN;
  }
  if (!vap.enabled) {
    vap.ssid.reset();
    vap.bssid.reset();
    vap.auth_type.reset();
    vap.retry_rate.reset();
    return true;
  }
  vap.bssid = vap.bssid.value_or(MacAddr{});
  vap.auth_type = vap.auth_type.value_or(SecurityMode::OFF);
  return static_cast<std::uint32_t>(*vap.auth_type) <
         static_cast<std::uint32_t>(SecurityMode::UNKNOWN);
}

std::string vap_text(Vap const& vap) {
  return object_text([&vap](lcw_data_t& object) { vap.to_json(object); });
}

/// Writes original, reads the text back with read and checks what comes back against expected,
/// or that nothing does when the VAP is one the reader refuses. Returns what was read.
template <typename Record, typename Read>
std::optional<Record> check_vap_trip(Record const& original, Record const& expected, bool accepted,
                                     Read read) {
  std::string const text = vap_text(original);
  wlccw::cfg::Tree const tree = wlccw::cfg::parse(text);
  EXPECT_TRUE(tree) << text;
  if (!tree) {
    return std::nullopt;
  }
  std::optional<Record> back = read(*tree);
  EXPECT_EQ(back.has_value(), accepted) << "written: " << text;
  if (back) {
    EXPECT_TRUE(*back == expected) << "written:   " << text << "\nread back: " << vap_text(*back)
                                   << "\nexpected:  " << vap_text(expected);
    EXPECT_EQ(vap_text(*back), text);
  }
  return back;
}

TEST(ServiceRoundTrip, Vap) {
  std::set<std::string> seen;
  for_each_seed([&seen](Random& rnd) {
    Vap original;
    fill_vap(rnd, original);
    Vap expected = original;
    bool const accepted = vap_after_trip(expected);
    seen.insert(!accepted ? "rejected" : original.enabled ? "enabled" : "disabled");
    std::optional<Vap> const read = check_vap_trip(
        original, expected, accepted, [](lcw_data_t& tree) { return Vap::from_json(tree); });
    if (read) {
      EXPECT_EQ(read->band_bridge_serialize(), original.band_bridge_serialize());
    }
  });
  EXPECT_EQ(seen.size(), 3U) << "enabled, disabled and rejected VAPs are generated";
}

TEST(ServiceRoundTrip, FullVapData) {
  for_each_seed([](Random& rnd) {
    FullVapData original;
    fill_vap(rnd, original);
    original.ap_mac = rnd.any_mac();
    original.ap_hostname = text_with_nul(rnd);
    original.ap_location = text_with_nul(rnd);
    FullVapData expected = original;
    bool const accepted = vap_after_trip(expected);
    expected.ap_hostname = up_to_nul(expected.ap_hostname);
    expected.ap_location = up_to_nul(expected.ap_location);
    check_vap_trip(original, expected, accepted,
                   [](lcw_data_t& tree) { return FullVapData::from_full_json(tree); });
  });
}

// ---- Optimisation service messages --------------------------------------------------------------

/// A JSON text in two spellings of the same value: compact as the tree writes it (no blanks,
/// strings escaping only the quote, the backslash and control characters), and loose (blanks
/// between tokens, other escapes for the same characters).
struct JsonText {
  std::string compact;
  std::string loose;
};

void append_blanks(Random& rnd, std::string& out) {
  static constexpr char blanks[] = {' ', '\n', '\t', '\r'};
  std::size_t const count = rnd.chance(0.5) ? 0 : rnd.integer<std::size_t>(1, 3);
  for (std::size_t i = 0; i < count; ++i) {
    out += blanks[rnd.integer<std::size_t>(0, std::size(blanks) - 1)];
  }
}

void append_string(Random& rnd, std::string const& text, JsonText& out) {
  static constexpr char hex[] = "0123456789abcdef";
  static constexpr char upper_hex[] = "0123456789ABCDEF";
  out.compact += '"';
  out.loose += '"';
  for (char const c : text) {
    auto const byte = static_cast<unsigned char>(c);
    std::string compact;
    switch (c) {
    case '"':
      compact = "\\\"";
      break;
    case '\\':
      compact = "\\\\";
      break;
    case '\n':
      compact = "\\n";
      break;
    case '\r':
      compact = "\\r";
      break;
    case '\t':
      compact = "\\t";
      break;
    case '\b':
      compact = "\\b";
      break;
    case '\f':
      compact = "\\f";
      break;
    default:
      if (byte < 0x20) {
        compact = std::string("\\u00") + hex[byte >> 4U] + hex[byte & 0xfU];
      } else {
        compact = std::string(1, c);
      }
    }
    out.compact += compact;
    if (byte < 0x80 && rnd.chance(0.2)) {
      out.loose += std::string("\\u00") + upper_hex[byte >> 4U] + upper_hex[byte & 0xfU];
    } else if (c == '/' && rnd.coin()) {
      out.loose += "\\/";
    } else {
      out.loose += compact;
    }
  }
  out.compact += '"';
  out.loose += '"';
}

void append_token(std::string_view token, JsonText& out) {
  out.compact += token;
  out.loose += token;
}

/// A JSON number text: integers at the 64-bit limits, negative zero, fractions and exponents. The
/// tree keeps the text of a number as written.
std::string any_number(Random& rnd) {
  static constexpr std::string_view spellings[] = {"-0",
                                                   "0.5",
                                                   "-12.25",
                                                   "1e3",
                                                   "2E-7",
                                                   "6.02e+23",
                                                   "-1.5E10",
                                                   "18446744073709551615",
                                                   "-9223372036854775808"};
  switch (rnd.integer(0, 3)) {
  case 0:
    return std::string(spellings[rnd.integer<std::size_t>(0, std::size(spellings) - 1)]);
  case 1:
    return std::to_string(rnd.any<std::uint64_t>());
  default:
    return std::to_string(rnd.any<std::int64_t>());
  }
}

void append_value(Random& rnd, int depth, JsonText& out);

/// An object; `extra` adds members under the names the request's accessors read.
void append_object(Random& rnd, int depth, JsonText& out,
                   std::vector<std::pair<std::string, std::string>> const& extra = {}) {
  append_token("{", out);
  std::set<std::string> names;
  bool first = true;
  auto const member = [&](std::string const& name, auto&& value) {
    if (!names.insert(name).second) {
      return;
    }
    if (!first) {
      append_blanks(rnd, out.loose);
      append_token(",", out);
    }
    first = false;
    append_blanks(rnd, out.loose);
    append_string(rnd, name, out);
    append_blanks(rnd, out.loose);
    append_token(":", out);
    append_blanks(rnd, out.loose);
    value();
  };
  for (auto const& named : extra) {
    member(named.first, [&] { append_token(named.second, out); });
  }
  std::size_t const count = depth > 3 ? 0 : list_size(rnd, 8);
  for (std::size_t i = 0; i < count; ++i) {
    member(rnd.coin() ? rnd.word() : rnd.text(), [&] { append_value(rnd, depth + 1, out); });
  }
  append_blanks(rnd, out.loose);
  append_token("}", out);
}

void append_value(Random& rnd, int depth, JsonText& out) {
  switch (rnd.integer(0, depth > 3 ? 5 : 7)) {
  case 0:
    append_token("null", out);
    break;
  case 1:
    append_token(rnd.coin() ? "true" : "false", out);
    break;
  case 2:
  case 3:
    append_token(any_number(rnd), out);
    break;
  case 4:
  case 5: {
    std::string text = rnd.text();
    if (rnd.chance(0.1)) {
      text += '\0'; // carried inside the tree's strings, escaped as \u0000
    }
    append_string(rnd, text, out);
    break;
  }
  case 6: {
    append_token("[", out);
    std::size_t const count = list_size(rnd, 8);
    for (std::size_t i = 0; i < count; ++i) {
      if (i != 0) {
        append_blanks(rnd, out.loose);
        append_token(",", out);
      }
      append_blanks(rnd, out.loose);
      append_value(rnd, depth + 1, out);
    }
    append_blanks(rnd, out.loose);
    append_token("]", out);
    break;
  }
  default:
    append_object(rnd, depth, out);
  }
}

/// Quoted JSON text of a plain text (no characters that need escaping).
std::string json_quoted(std::string const& text) {
  return '"' + text + '"';
}

/// Members the request's accessors read, with good and bad values.
std::vector<std::pair<std::string, std::string>> accessor_members(Random& rnd) {
  std::vector<std::pair<std::string, std::string>> members;
  if (rnd.coin()) {
    MacAddr const mac = rnd.mac();
    std::string text = mac.str();
    switch (rnd.integer(0, 3)) {
    case 0:
      std::transform(text.begin(), text.end(), text.begin(),
                     [](char c) { return c >= 'a' && c <= 'f' ? static_cast<char>(c - 32) : c; });
      break;
    case 1:
      text.erase(std::remove(text.begin(), text.end(), ':'), text.end());
      break;
    case 2:
      text = rnd.word();
      break;
    default:
      break;
    }
    members.emplace_back("mac", json_quoted(text));
  }
  if (rnd.coin()) {
    static constexpr char const* bands[] = {"2g", "5g", "6g", "5G", "", "2.4", "UNKNOWN"};
    members.emplace_back("band",
                         json_quoted(bands[rnd.integer<std::size_t>(0, std::size(bands) - 1)]));
  }
  if (rnd.coin()) {
    std::string const days = std::to_string(rnd.any<std::uint32_t>());
    members.emplace_back("days", rnd.coin() ? days : json_quoted(days));
  }
  if (rnd.coin()) {
    members.emplace_back("location", json_quoted(rnd.word()));
  }
  return members;
}

/// The parameters or data of a message as held in the record, and what the reader keeps of them
/// after a trip: "" and text that is not JSON come back as "{}" ("" is written as an empty object,
/// text that is not JSON is left out and a missing member reads as "{}"); JSON comes back as its
/// compact text, whatever kind of JSON it is.
struct OpaqueJson {
  std::string held;
  std::string after_trip;
  bool is_json = true;
};

OpaqueJson any_opaque_json(Random& rnd, bool with_accessor_members) {
  static constexpr char const* not_json[] = {"{",     "nope",    "{\"a\":1", "[1,]",
                                             "{} {}", "\"open",  "{'a':1}",  "01",
                                             "tru",   "{\"a\"}", " ",        "[1]]"};
  switch (rnd.integer(0, 9)) {
  case 0:
    return {"", "{}", true};
  case 1:
    return {not_json[rnd.integer<std::size_t>(0, std::size(not_json) - 1)], "{}", false};
  default:
    break;
  }
  JsonText json;
  if (rnd.chance(0.8)) {
    append_object(rnd, 0, json,
                  with_accessor_members ? accessor_members(rnd)
                                        : std::vector<std::pair<std::string, std::string>>{});
  } else {
    append_value(rnd, 0, json);
  }
  append_blanks(rnd, json.loose);
  return {rnd.coin() ? json.compact : json.loose, json.compact, true};
}

/// An operation, including UNKNOWN and values past it (written as "UNKNOWN").
VelmoraMsgType any_msg_type(Random& rnd) {
  return any_enumerator<VelmoraMsgType>(rnd, 9);
}

VelmoraMsgType msg_type_after_trip(VelmoraMsgType type) {
  return static_cast<std::uint32_t>(type) < static_cast<std::uint32_t>(VelmoraMsgType::UNKNOWN)
             ? type
             : VelmoraMsgType::UNKNOWN;
}

TEST(ServiceRoundTrip, VelmoraRequest) {
  std::set<std::string> seen;
  for_each_seed([&seen](Random& rnd) {
    IpcMsgVelmoraRequest original;
    original.type = any_msg_type(rnd);
    OpaqueJson const params = any_opaque_json(rnd, true);
    seen.insert(params.held.empty()                ? "empty"
                : !params.is_json                  ? "not JSON"
                : params.held == params.after_trip ? "compact"
                                                   : "loose");
    original.params = params.held;
    IpcMsgVelmoraRequest expected;
    expected.type = msg_type_after_trip(original.type);
    expected.params = params.after_trip;

    std::string const text = original.to_str();
    IpcMsgVelmoraRequest const read(text);
    EXPECT_TRUE(read == expected) << "written:   " << text << "\nread back: " << read.to_str()
                                  << "\nexpected:  " << expected.to_str();
    EXPECT_EQ(read.to_str(), expected.to_str());
    if (params.is_json) {
      EXPECT_EQ(read.to_str(), text);
    }
    if (!original.params.empty() && params.is_json) {
      // The accessors read the same parameters from the original and the read-back record.
      bool original_valid = false;
      bool read_valid = false;
      EXPECT_EQ(read.get_mac(read_valid), original.get_mac(original_valid));
      EXPECT_EQ(read_valid, original_valid);
      original_valid = read_valid = false;
      EXPECT_EQ(read.get_band(read_valid), original.get_band(original_valid));
      EXPECT_EQ(read_valid, original_valid);
      EXPECT_EQ(read.get_days(), original.get_days());
      EXPECT_EQ(read.get_location(), original.get_location());
    }
  });
  EXPECT_EQ(seen.size(), 4U) << "empty, compact, loose and broken parameters are generated";
}

TEST(ServiceRoundTrip, VelmoraResponse) {
  for_each_seed([](Random& rnd) {
    IpcMsgVelmoraResponse original;
    original.type = any_msg_type(rnd);
    original.status = any_enumerator<VelmoraRespStatus>(rnd, 3);
    original.cause = text_with_nul(rnd);
    OpaqueJson const data = any_opaque_json(rnd, false);
    original.data = data.held;
    IpcMsgVelmoraResponse expected;
    expected.type = msg_type_after_trip(original.type);
    expected.status = static_cast<std::uint32_t>(original.status) <
                              static_cast<std::uint32_t>(VelmoraRespStatus::UNKNOWN)
                          ? original.status
                          : VelmoraRespStatus::UNKNOWN;
    // The cause is written only when not empty, as a C string; a cause that starts with NUL is
    // written as "" and reads back empty, which the read-back record does not write at all.
    expected.cause = up_to_nul(original.cause);
    bool const text_kept = data.is_json && (original.cause.empty() || !expected.cause.empty());
    expected.data = data.after_trip;

    std::string const text = original.to_str();
    IpcMsgVelmoraResponse const read(text);
    EXPECT_TRUE(read == expected) << "written:   " << text << "\nread back: " << read.to_str()
                                  << "\nexpected:  " << expected.to_str();
    EXPECT_EQ(read.to_str(), expected.to_str());
    if (text_kept) {
      EXPECT_EQ(read.to_str(), text);
    }
  });
}

// ---- GRE tunnel data ----------------------------------------------------------------------------

IpcMsgGreData make_gre_data(Random& rnd) {
  IpcMsgGreData data;
  std::size_t const offices = list_size(rnd, 20);
  for (std::size_t i = 0; i < offices; ++i) {
    data.offices.insert(text_with_nul(rnd));
  }
  std::size_t const macs = list_size(rnd);
  for (std::size_t i = 0; i < macs; ++i) {
    if (rnd.chance(0.05)) {
      data.macs.insert(nullptr); // the writer skips null entries
    } else {
      data.macs.insert(std::make_shared<IpcMsgGreData::MacInfo>(
          IpcMsgGreData::MacInfo{rnd.any_mac(), text_with_nul(rnd)}));
    }
  }
  std::size_t const pools = list_size(rnd, 20);
  for (std::size_t i = 0; i < pools; ++i) {
    if (rnd.chance(0.05)) {
      data.ip_pools.insert(nullptr);
      continue;
    }
    auto pool = std::make_shared<IpcMsgGreData::IpPoolInfo>();
    // Pool names are member names of the IPC form; they carry no NUL.
    pool->name = any_text(rnd);
    pool->network.s_addr = rnd.any<std::uint32_t>();
    pool->netmask.s_addr = rnd.any<std::uint32_t>();
    pool->office = text_with_nul(rnd);
    data.ip_pools.insert(std::move(pool));
  }
  return data;
}

/// What the reader rebuilds: null entries are not written (a set of only a null entry is written
/// as an empty object); office names and the offices of
/// addresses and pools are cut at their first NUL (offices that become equal collapse, and the
/// text read back then lists them once); addresses come back by their octets and pool addresses
/// through their dotted text unchanged.
IpcMsgGreData gre_after_trip(IpcMsgGreData const& data, bool& text_kept) {
  IpcMsgGreData out;
  for (std::string const& office : data.offices) {
    out.offices.insert(up_to_nul(office));
  }
  // A set holding only a null entry is written as an empty member, which a set read back
  // empty does not write.
  text_kept = out.offices.size() == data.offices.size() &&
              !(data.macs.size() == 1 && !*data.macs.begin()) &&
              !(data.ip_pools.size() == 1 && !*data.ip_pools.begin());
  for (auto const& info : data.macs) {
    if (info) {
      out.macs.insert(std::make_shared<IpcMsgGreData::MacInfo>(
          IpcMsgGreData::MacInfo{info->mac, up_to_nul(info->office)}));
    }
  }
  for (auto const& pool : data.ip_pools) {
    if (pool) {
      auto copy = std::make_shared<IpcMsgGreData::IpPoolInfo>(*pool);
      copy->office = up_to_nul(copy->office);
      out.ip_pools.insert(std::move(copy));
    }
  }
  return out;
}

TEST(ServiceRoundTrip, GreData) {
  bool null_seen = false;
  for_each_seed([&null_seen](Random& rnd) {
    IpcMsgGreData const original = make_gre_data(rnd);
    null_seen = null_seen || (!original.macs.empty() && !*original.macs.begin()) ||
                (!original.ip_pools.empty() && !*original.ip_pools.begin());
    bool text_kept = true;
    IpcMsgGreData const expected = gre_after_trip(original, text_kept);
    std::string const text = original.to_str();
    IpcMsgGreData const read(text);
    EXPECT_TRUE(read == expected) << "written:   " << text << "\nread back: " << read.to_str()
                                  << "\nexpected:  " << expected.to_str();
    EXPECT_EQ(read.to_str(), expected.to_str());
    EXPECT_EQ(read.get_hash(), expected.get_hash());
    if (text_kept) {
      EXPECT_EQ(read.to_str(), text);
      EXPECT_EQ(read.get_hash(), original.get_hash());
    }
  });
  EXPECT_TRUE(null_seen) << "null entries are generated";
}

// ---- VRRP board types ---------------------------------------------------------------------------

TEST(ServiceRoundTrip, VrrpUpdateBoardTypes) {
  for_each_seed([](Random& rnd) {
    IpcMsgVrrpUpdateBoardTypes original;
    std::size_t const count = list_size(rnd);
    for (std::size_t i = 0; i < count; ++i) {
      MacAddr const mac = rnd.any_mac();
      original.aps.try_emplace(
          mac, IpcMsgVrrpUpdateBoardTypes::BoardTypeDesc{text_with_nul(rnd), text_with_nul(rnd)});
    }
    // Both texts are written as C strings; the addresses come back by their octets.
    IpcMsgVrrpUpdateBoardTypes expected;
    for (auto const& [mac, desc] : original.aps) {
      expected.aps.try_emplace(mac, IpcMsgVrrpUpdateBoardTypes::BoardTypeDesc{
                                        up_to_nul(desc.board_type), up_to_nul(desc.sw_version)});
    }

    std::string const text = original.to_str();
    std::shared_ptr<IpcMsgVrrpUpdateBoardTypes> const read =
        IpcMsgVrrpUpdateBoardTypes::from_str(text);
    ASSERT_TRUE(read) << "written: " << text;
    EXPECT_TRUE(*read == expected) << "written:   " << text << "\nread back: " << read->to_str()
                                   << "\nexpected:  " << expected.to_str();
    // The objects follow the map's iteration order, which a map built in another order need not
    // share: the texts hold the same objects.
    EXPECT_EQ(unordered_canonical(read->to_str(), {}), unordered_canonical(text, {}));

    // The same array as the member "aps" of a parent object, beside other members.
    wlccw::cfg::Tree const parent = wlccw::cfg::make_object();
    ASSERT_TRUE(parent);
    cfg_set_param(parent.get(), "peer", "standby");
    original.to_json(*parent);
    std::string const parent_text = wlccw::cfg::compact(parent.get());
    wlccw::cfg::Tree const parsed = wlccw::cfg::parse(parent_text);
    ASSERT_TRUE(parsed) << parent_text;
    std::shared_ptr<IpcMsgVrrpUpdateBoardTypes> const from_parent =
        IpcMsgVrrpUpdateBoardTypes::from_json(*parsed);
    ASSERT_TRUE(from_parent) << "written: " << parent_text;
    EXPECT_TRUE(*from_parent == expected) << "written: " << parent_text;
  });
}

// ---- DAS proxy and CoA proxy --------------------------------------------------------------------

TEST(ServiceRoundTrip, DasProxyConfig) {
  for_each_seed([](Random& rnd) {
    IpcDasProxyConfig original;
    IpcDasProxyConfig expected;
    std::size_t const count = list_size(rnd);
    for (std::size_t i = 0; i < count; ++i) {
      IpcDasProxyConfig::Config config;
      config.mac = rnd.any_mac();
      config.ip = any_ip(rnd);
      config.key = text_with_nul(rnd);
      config.port = rnd.any<std::uint16_t>();
      config.enabled = rnd.coin();
      // The secret is written as a C string; the address comes back valid.
      expected.append_ap_cfg(IpcDasProxyConfig::Config(config.mac, ip_after_trip(config.ip),
                                                       up_to_nul(config.key), config.port,
                                                       config.enabled));
      original.append_ap_cfg(std::move(config));
    }
    std::string const text = original.ipc_serialize();
    IpcDasProxyConfig const read = IpcDasProxyConfig::ipc_deserialize(text);
    EXPECT_TRUE(read == expected) << "written:   " << text
                                  << "\nread back: " << read.ipc_serialize();
    EXPECT_EQ(read.ipc_serialize(), text);
    EXPECT_EQ(read.get_hash(), original.get_hash());
    ASSERT_EQ(read.configs.size(), original.configs.size());
    for (std::size_t i = 0; i < read.configs.size(); ++i) {
      EXPECT_EQ(read.configs[i].get_hash(), expected.configs[i].get_hash()) << "entry " << i;
      if (original.configs[i].key.find('\0') == std::string::npos) {
        EXPECT_EQ(read.configs[i].get_hash(), original.configs[i].get_hash()) << "entry " << i;
      }
    }
  });
}

using CoaState = ClientCoaProxyInfo::State;

ClientCoaProxyInfo make_coa_proxy_info(Random& rnd) {
  int const form = rnd.integer(0, 5);
  // Every member drawn, one per statement; the named constructors take what their state carries.
  CoaState const state = any_enumerator<CoaState>(rnd, 3);
  MacAddr const client = rnd.any_mac();
  MacAddr const ap = rnd.any_mac();
  IpAddr const ip = any_ip(rnd);
  std::uint16_t const port = rnd.any<std::uint16_t>();
  std::string const password = text_with_nul(rnd);
  bool const enabled = rnd.coin();
  switch (form) {
  case 0:
    return ClientCoaProxyInfo::no_bind(client);
  case 1:
    return ClientCoaProxyInfo::no_config(client, ap);
  case 2:
    return ClientCoaProxyInfo::with_data(client, ap, ip, port, password, enabled);
  default: {
    // Every member set, whatever the state: the writer writes only what the state carries.
    ClientCoaProxyInfo info;
    info.state = state;
    info.client_mac = client;
    info.ap_mac = ap;
    info.ip = ip;
    info.port = port;
    info.password = password;
    info.enabled = enabled;
    return info;
  }
  }
}

/// What the reader rebuilds: the client's address always; the AP's address in no_config and
/// has_data; the proxy data (address read back valid, secret cut at its first NUL) in has_data
/// only. A state outside the three is written as "no-bind".
ClientCoaProxyInfo coa_after_trip(ClientCoaProxyInfo const& info) {
  switch (info.state) {
  case CoaState::no_config:
    return ClientCoaProxyInfo::no_config(info.client_mac, info.ap_mac);
  case CoaState::has_data:
    return ClientCoaProxyInfo::with_data(info.client_mac, info.ap_mac, ip_after_trip(info.ip),
                                         info.port, up_to_nul(info.password), info.enabled);
  default:
    return ClientCoaProxyInfo::no_bind(info.client_mac);
  }
}

TEST(ServiceRoundTrip, ClientCoaProxyInfo) {
  std::set<CoaState> states_seen;
  for_each_seed([&states_seen](Random& rnd) {
    ClientCoaProxyInfo const original = make_coa_proxy_info(rnd);
    ClientCoaProxyInfo const expected = coa_after_trip(original);
    states_seen.insert(expected.state);
    std::string const text = ClientCoaProxyInfo::to_ipc(original);
    ClientCoaProxyInfo const read = ClientCoaProxyInfo::from_ipc(text);
    EXPECT_TRUE(read == expected) << "written:   " << text
                                  << "\nread back: " << ClientCoaProxyInfo::to_ipc(read)
                                  << "\nexpected:  " << ClientCoaProxyInfo::to_ipc(expected);
    EXPECT_EQ(ClientCoaProxyInfo::to_ipc(read), text);
  });
  EXPECT_EQ(states_seen.size(), 3U) << "every state is generated";
}

// ---- WIDS MAC lists -----------------------------------------------------------------------------

std::unordered_set<MacAddr> any_mac_set(Random& rnd) {
  std::unordered_set<MacAddr> set;
  std::size_t const count = list_size(rnd, 60);
  for (std::size_t i = 0; i < count; ++i) {
    set.insert(rnd.any_mac());
  }
  return set;
}

TEST(ServiceRoundTrip, ApWidsMacLists) {
  for_each_seed([](Random& rnd) {
    ApWidsMacLists original;
    original.set_white_list(any_mac_set(rnd));
    original.set_black_list(any_mac_set(rnd));
    std::string const text = original.ipc_serialize();
    ApWidsMacLists const read = ApWidsMacLists::ipc_deserialize(text);
    // Addresses come back by their octets (an invalid one is written by its octets too).
    EXPECT_TRUE(read.white_list == original.white_list) << "written: " << text;
    EXPECT_TRUE(read.black_list == original.black_list) << "written: " << text;
    // The lists are written in their sets' iteration order, which the sets read back need not
    // share: the texts hold the same addresses under the same keys in the same key order.
    std::string const read_text = read.ipc_serialize();
    EXPECT_EQ(unordered_canonical(read_text, {"white-list", "black-list"}),
              unordered_canonical(text, {"white-list", "black-list"}))
        << "written:   " << text << "\nread back: " << read_text;
    EXPECT_EQ(read_text.size(), text.size());
    EXPECT_EQ(unordered_canonical(read.netconf_serialize_white_list(), {}),
              unordered_canonical(original.netconf_serialize_white_list(), {}));
    EXPECT_EQ(unordered_canonical(read.netconf_serialize_black_list(), {}),
              unordered_canonical(original.netconf_serialize_black_list(), {}));
    // The hash follows the text: equal for the original and its text, and for two records read
    // from the same text.
    EXPECT_EQ(original.get_hash(), std::hash<std::string>{}(text));
    EXPECT_EQ(read.get_hash(), ApWidsMacLists::ipc_deserialize(text).get_hash());
  });
}

// ---- Standalone APs and AP locations ------------------------------------------------------------

TEST(ServiceRoundTrip, SaApsInfo) {
  for_each_seed([](Random& rnd) {
    SaApsInfo original;
    SaApsInfo expected;
    std::size_t const count = list_size(rnd);
    for (std::size_t i = 0; i < count; ++i) {
      SaApsInfo::ApInfo ap;
      ap.ap_mac = rnd.any_mac();
      ap.ip = any_ip(rnd);
      ap.board_type = text_with_nul(rnd);
      ap.sw_version = text_with_nul(rnd);
      ap.hw_version = text_with_nul(rnd);
      ap.serial = text_with_nul(rnd);
      ap.status = any_enumerator<WLCBT_SA_STATUS>(rnd, 7);
      original.sa_aps.push_back(ap);
      // Texts are written as C strings, the address comes back valid, and a stage outside the
      // table is written as "" and reads as NONE.
      ap.ip = ip_after_trip(ap.ip);
      ap.board_type = up_to_nul(ap.board_type);
      ap.sw_version = up_to_nul(ap.sw_version);
      ap.hw_version = up_to_nul(ap.hw_version);
      ap.serial = up_to_nul(ap.serial);
      if (static_cast<std::uint32_t>(ap.status) >
          static_cast<std::uint32_t>(WLCBT_SA_STATUS::UPGRADING_FW)) {
        ap.status = WLCBT_SA_STATUS::NONE;
      }
      expected.sa_aps.push_back(ap);
    }
    std::string const text = SaApsInfo::ipc_serialize(original);
    SaApsInfo const read = SaApsInfo::ipc_deserialize(text);
    EXPECT_TRUE(read == expected) << "written:   " << text
                                  << "\nread back: " << SaApsInfo::ipc_serialize(read);
    EXPECT_EQ(SaApsInfo::ipc_serialize(read), text);
  });
}

TEST(ServiceRoundTrip, ApLocationsData) {
  for_each_seed([](Random& rnd) {
    ApLocationsData original;
    std::vector<std::string> ids;
    std::size_t const count = list_size(rnd);
    for (std::size_t i = 0; i < count; ++i) {
      // Now and then an id already present: add moves it to the end with its new time zone.
      std::string const id = !ids.empty() && rnd.chance(0.15)
                                 ? ids[rnd.integer<std::size_t>(0, ids.size() - 1)]
                                 : text_with_nul(rnd);
      ids.push_back(id);
      original.add(id, text_with_nul(rnd));
    }
    // Ids and time zones are written as C strings. Locations whose cut ids are equal share one
    // member, at the place of the first of them, filled by the last.
    std::vector<ApLocationsData::ApLocation> expected;
    for (ApLocationsData::ApLocation const& location : original.locations()) {
      std::string const id = up_to_nul(location.id);
      auto const same_id = std::find_if(expected.begin(), expected.end(),
                                        [&id](auto const& other) { return other.id == id; });
      if (same_id != expected.end()) {
        same_id->time_zone = up_to_nul(location.time_zone);
      } else {
        expected.emplace_back(id, up_to_nul(location.time_zone));
      }
    }
    std::string const text = original.to_str();
    ApLocationsData const read(text);
    EXPECT_TRUE(read.locations() == expected)
        << "written:   " << text << "\nread back: " << read.to_str();
    EXPECT_EQ(read.to_str(), text);
    EXPECT_EQ(read.get_hash(), original.get_hash());
  });
}

// ---- WIDS attacked APs --------------------------------------------------------------------------

std::vector<std::pair<MacAddr, int>> any_attacked_aps(Random& rnd, bool channels_as_digits) {
  std::vector<std::pair<MacAddr, int>> aps;
  std::size_t const count = list_size(rnd);
  for (std::size_t i = 0; i < count; ++i) {
    if (!aps.empty() && rnd.chance(0.1)) {
      aps.push_back(aps[rnd.integer<std::size_t>(0, aps.size() - 1)]); // duplicates are kept
      continue;
    }
    int channel = rnd.any<int>();
    if (channels_as_digits && channel < 0) {
      channel = channel == std::numeric_limits<int>::min() ? 0 : -channel;
    }
    aps.emplace_back(rnd.any_mac(), channel);
  }
  return aps;
}

TEST(ServiceRoundTrip, WidsAttackedApsIpc) {
  for_each_seed([](Random& rnd) {
    WidsAttackedAps original;
    original.attacked_aps = any_attacked_aps(rnd, false);
    std::string const text = original.to_str();
    EXPECT_EQ(original.ipc_serialize(), text);
    WidsAttackedAps const read = WidsAttackedAps::ipc_deserialize(text);
    // Addresses come back by their octets, channels whole, duplicates kept.
    EXPECT_TRUE(read == original) << "written:   " << text << "\nread back: " << read.to_str();
    EXPECT_EQ(read.to_str(), text);
  });
}

/// The free text an AP's intrusion detection writes for the pairs: one report "ap <mac> at channel
/// <n>" per pair, the address in either case, the channel now and then with leading zeros, and
/// text around and between the reports that holds no report.
std::string attack_report_text(Random& rnd, std::vector<std::pair<MacAddr, int>> const& aps) {
  static constexpr char const* openings[] = {"", "DoS attack: ", "wids trap", "\n", "x"};
  static constexpr char const* separators[] = {", ", "; ", "\n",   " and ",
                                               "|",  ".",  " ap ", " at channel "};
  std::string text = openings[rnd.integer<std::size_t>(0, std::size(openings) - 1)];
  for (std::size_t i = 0; i < aps.size(); ++i) {
    if (i != 0) {
      text += separators[rnd.integer<std::size_t>(0, std::size(separators) - 1)];
    }
    std::string mac = aps[i].first.str();
    for (char& c : mac) {
      if (c >= 'a' && c <= 'f' && rnd.coin()) {
        c = static_cast<char>(c - 'a' + 'A');
      }
    }
    text += "ap " + mac + " at channel " + std::string(rnd.integer<std::size_t>(0, 2), '0') +
            std::to_string(aps[i].second);
  }
  if (rnd.coin()) {
    text += separators[rnd.integer<std::size_t>(0, std::size(separators) - 1)];
  }
  return text;
}

TEST(ServiceRoundTrip, WidsAttackedApsText) {
  for_each_seed([](Random& rnd) {
    WidsAttackedAps original;
    original.attacked_aps = any_attacked_aps(rnd, true);
    std::string const report = attack_report_text(rnd, original.attacked_aps);
    WidsAttackedAps const read = WidsAttackedAps::netconf_deserialize(report);
    EXPECT_TRUE(read == original) << "report:    " << report << "\nread back: " << read.to_str()
                                  << "\nexpected:  " << original.to_str();
    EXPECT_EQ(read.to_str(), original.to_str());
  });
}

} // namespace
