// The RRM description of one AP: written as IPC JSON with its interfaces in name order, read back
// from the compact text, hashed over that text.
#include <wlccw/ipc/IpcMsgRrmApInfo.hpp>

#include <wlccw/cfg/owned.hpp>
#include <wlccw/common/containers.hpp>

#include "detail/Dictionary.hpp"

#include <array>
#include <functional>
#include <utility>

namespace {

using Band = IpcMsgRrmApInfo::Band;
using VapInfo = IpcMsgRrmApInfo::VapInfo;
using Interfaces = std::map<std::string, VapInfo>;

/// The band texts, in value order.
constexpr std::array<wlccw::detail::Row<Band>, 3> band_rows{{
    {"2g", Band::BAND_2G},
    {"5g", Band::BAND_5G},
    {"6g", Band::BAND_6G},
}};
static_assert(wlccw::detail::rows_in_value_order(band_rows));
constexpr auto band_dictionary = wlccw::detail::make_dictionary(band_rows);

/// The text of a band; "2g" for any value outside the table. Every text is a literal, so the view
/// ends at a NUL.
char const* band_text(Band band) {
  return wlccw::detail::text_of(band_rows, band).value_or("2g").data();
}

/// Writes one interface into its array element, keys in wire order.
void fill_interface(lcw_data_t& object, Interfaces::value_type const& entry) {
  VapInfo const& vap = entry.second;
  cfg_set_param(&object, "name", entry.first.c_str());
  cfg_set_param(&object, "band", band_text(vap.band));
  cfg_set_param(&object, "ssid", vap.ssid.c_str());
  // The numbers travel as JSON ints: the conversion keeps their low 32 bits.
  cfg_set_int_param(&object, "radio-id", static_cast<int>(vap.radio_id));
  cfg_set_int_param(&object, "vap-id", static_cast<int>(vap.vap_id));
}

/// The band named by the text; BAND_2G for every other text.
Band band_of(std::string_view text) {
  return band_dictionary.find(text).value_or(Band::BAND_2G);
}

/// Adds one element of the "interfaces" array under its name unless that name is already held.
/// Each text is copied before the next read, as the tree may reuse the storage of the last one.
void read_interface(Interfaces& interfaces, lcw_data_t const& element) {
  std::string ssid = cfg_get_param(&element, "ssid");
  Band const band = band_of(cfg_get_param(&element, "band"));
  // A negative int widens to its 64-bit two's complement, so writing it again gives the same int.
  auto const radio_id = static_cast<std::uint64_t>(cfg_get_int_param(&element, "radio-id"));
  auto const vap_id = static_cast<std::uint64_t>(cfg_get_int_param(&element, "vap-id"));
  interfaces.try_emplace(cfg_get_param(&element, "name"), std::move(ssid), band, radio_id, vap_id);
}

} // namespace

IpcMsgRrmApInfo::VapInfo::VapInfo(std::string served_ssid, Band served_band,
                                  std::uint64_t radio_number, std::uint64_t vap_number)
    : ssid(std::move(served_ssid)), band(served_band), radio_id(radio_number), vap_id(vap_number) {}

IpcMsgRrmApInfo::VapInfo::VapInfo(std::string served_ssid, std::string const& band_text,
                                  std::uint64_t radio_number, std::uint64_t vap_number)
    : VapInfo(std::move(served_ssid), band_from_str(band_text), radio_number, vap_number) {}

IpcMsgRrmApInfo::IpcMsgRrmApInfo(std::string_view text) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(std::string(text));
  if (!root) {
    return;
  }
  lcw_data_t const* const node = root.get();
  type = cfg_get_param(node, "type");
  location = cfg_get_param(node, "location");
  ip = cfg_get_param(node, "ip");
  wlccw::cfg::for_each_element(
      cfg_get_subtree(node, "interfaces"),
      [this](lcw_data_t const& element) { read_interface(interfaces, element); });
}

IpcMsgRrmApInfo::Band IpcMsgRrmApInfo::band_from_str(std::string const& text) {
  return band_of(text);
}

std::string IpcMsgRrmApInfo::str_from_band(Band band) {
  return band_text(band);
}

ApProfileRadioBand IpcMsgRrmApInfo::ApProfileRadioBand_from_band(Band band) {
  switch (band) {
  case Band::BAND_5G:
    return ApProfileRadioBand::BAND_5_GHZ;
  case Band::BAND_6G:
    return ApProfileRadioBand::BAND_6_GHZ;
  case Band::BAND_2G:
    break;
  }
  return ApProfileRadioBand::BAND_2_4_GHZ;
}

bool IpcMsgRrmApInfo::is_empty() const {
  return type.empty() || location.empty() || !ip.valid;
}

std::string const& IpcMsgRrmApInfo::get_type() const {
  return type;
}

std::string& IpcMsgRrmApInfo::get_type() {
  return type;
}

lcw_data_t* IpcMsgRrmApInfo::get_json() const {
  wlccw::cfg::Tree root = wlccw::cfg::make_object();
  if (!root || is_empty()) {
    return root.release();
  }
  lcw_data_t* const node = root.get();
  cfg_set_param(node, "type", type.c_str());
  cfg_set_param(node, "ip", ip.str().c_str());
  cfg_set_param(node, "location", location.c_str());
  if (interfaces.empty()) {
    return root.release();
  }
  lcw_data_t* const array = cfg_insert_empty_array(node, "interfaces");
  cfg_fill_array_with_container<Interfaces>(array, interfaces, fill_interface);
  return root.release();
}

std::string IpcMsgRrmApInfo::to_str() const {
  wlccw::cfg::Tree const root(get_json());
  return wlccw::cfg::compact(root.get());
}

std::size_t IpcMsgRrmApInfo::get_hash() const {
  return std::hash<std::string>{}(to_str());
}
