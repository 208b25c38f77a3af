/// \file
/// What radio-resource management knows of one access point: its type, IPv4 address and location,
/// and for each of its wireless interfaces the SSID served, the band and the radio and VAP numbers.
/// Sent between the controller's daemons as compact IPC text and rebuilt from it by the receiver.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/IpAddr.hpp>
#include <wlccw/enums/ApProfileRadioBand.hpp>
#include <wlccw/export.hpp>

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

/// The RRM description of one AP.
///
/// IPC form, keys in this order: {"type":..,"ip":"a.b.c.d","location":..,"interfaces":[{"name":..,
/// "band":"2g"|"5g"|"6g","ssid":..,"radio-id":n,"vap-id":n},...]}, the interfaces in ascending
/// name order and the array left out when there is none. A record that is_empty() is written as
/// an object with no keys.
class WLCCW_EXPORT IpcMsgRrmApInfo {
public:
  /// The band a VAP serves; texts "2g", "5g", "6g". Numbered as ApProfileRadioBand numbers its
  /// bands.
  enum class Band : std::int32_t {
    BAND_2G = 0,
    BAND_5G = 1,
    BAND_6G = 2,
  };

  /// One wireless interface (VAP) of the AP.
  class WLCCW_EXPORT VapInfo {
  public:
    /// The SSID the VAP serves.
    std::string ssid;
    /// The band the VAP serves ("band").
    Band band = Band::BAND_2G;
    /// Radio number. Travels as a JSON int: a number above 2147483647 is written as the int of
    /// the same low 32 bits, and a negative int is read back as its 64-bit two's complement.
    std::uint64_t radio_id = 0;
    /// VAP number on its radio; travels as radio_id does.
    std::uint64_t vap_id = 0;

    /// A VAP with the given SSID, band and numbers.
    VapInfo(std::string served_ssid, Band served_band, std::uint64_t radio_number,
            std::uint64_t vap_number);
    /// A VAP whose band is given as text and read with band_from_str (so an unknown text gives
    /// "2g").
    VapInfo(std::string served_ssid, std::string const& band_text, std::uint64_t radio_number,
            std::uint64_t vap_number);
    /// Copies every member.
    VapInfo(VapInfo const&) = default;
    /// Moves the SSID and copies the other members.
    VapInfo(VapInfo&&) noexcept = default;
    /// Copies every member.
    VapInfo& operator=(VapInfo const&) = default;
    /// Moves the SSID and copies the other members.
    VapInfo& operator=(VapInfo&&) noexcept = default;
    virtual ~VapInfo() = default;

    /// Same SSID, band and numbers.
    friend bool operator==(VapInfo const&, VapInfo const&) = default;
  };

  /// The AP's IPv4 address; invalid until set.
  IpAddr ip;
  /// The AP's type (model) text.
  std::string type;
  /// The AP's location text.
  std::string location;
  /// The AP's VAPs by interface name, in ascending name order.
  std::map<std::string, VapInfo> interfaces;

  /// Invalid address, empty texts, no interfaces.
  IpcMsgRrmApInfo() = default;
  /// Reads the compact IPC text that to_str writes. Never throws on bad text: text that is not
  /// JSON leaves the default record; a missing key leaves its field empty (an address the IPv4
  /// rules refuse leaves it invalid); of interface elements with the same "name" the first one is
  /// kept; an element that is not an object is kept as an interface named "" with an empty SSID,
  /// band "2g" and numbers 0; an unknown band text reads as "2g" and a number outside the int
  /// range as 0.
  explicit IpcMsgRrmApInfo(std::string_view text);

  /// The band named by the text: "2g", "5g" or "6g" exactly; BAND_2G for every other text.
  static Band band_from_str(std::string const& text);
  /// "5g" for BAND_5G, "6g" for BAND_6G, "2g" for every other value (including values outside the
  /// enumeration).
  static std::string str_from_band(Band band);
  /// The AP-profile band of the same number: BAND_5G and BAND_6G map to 5 and 6 GHz, every other
  /// value to 2.4 GHz.
  static ApProfileRadioBand ApProfileRadioBand_from_band(Band band);

  /// True when the type text is empty, the location text is empty or the address is not valid.
  bool is_empty() const;
  /// The type text.
  std::string const& get_type() const;
  /// The type text, for changing it in place.
  std::string& get_type();

  /// The IPC tree, owned by the caller (release it with cfg_release); null when no tree can be
  /// made. An object with no keys when is_empty(); an interface whose object cannot be appended is
  /// left out.
  lcw_data_t* get_json() const;
  /// The compact text of get_json(); "" when no tree can be made, "{}" when is_empty().
  std::string to_str() const;
  /// The standard string hash of to_str().
  std::size_t get_hash() const;

  /// Equal when the address (with its validity), both texts and the interfaces are equal.
  friend bool operator==(IpcMsgRrmApInfo const&, IpcMsgRrmApInfo const&) = default;
};
