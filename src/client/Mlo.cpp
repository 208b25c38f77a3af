#include <wlccw/client/Mlo.hpp>

#include <wlccw/cfg/owned.hpp>
#include <wlccw/client/radio_signal.hpp>

#include "detail/Dictionary.hpp"
#include "detail/client_ipc.hpp"
#include "detail/signal_readings.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <string_view>
#include <utility>

namespace {

using namespace std::string_view_literals;

using Link = Mlo::Link;
using Statistic = Mlo::Link::Statistic;

/// Links of the NETCONF form are numbered 1 to this; higher numbers are never read.
constexpr std::uint8_t max_netconf_link = 3;

/// The NETCONF key of one field of link n: "mlo-link-" n "-" prefix suffix, n in decimal
/// (mlo-link-1-mac, mlo-link-2-tx-rate, mlo-link-3-bytes-rx). Built in place: every name is short
/// (at most "mlo-link-255-packets-tx"), and a std::string of over fifteen bytes would cost an
/// allocation per key read.
class LinkKey {
public:
  LinkKey(std::uint8_t n, std::optional<std::string_view> prefix,
          std::string_view suffix) noexcept {
    constexpr std::string_view stem = "mlo-link-";
    char* o = std::copy(stem.begin(), stem.end(), text_);
    o = std::to_chars(o, o + 3, static_cast<int>(n)).ptr;
    *o++ = '-';
    append(o, prefix.value_or(std::string_view{}));
    append(o, suffix);
    *o = '\0';
  }
  char const* c_str() const noexcept { return text_; }

private:
  // The fixed parts are 13 bytes at most; a part that would not fit is cut, which the constant
  // parts this file passes never are.
  void append(char*& o, std::string_view part) noexcept {
    std::size_t const room = static_cast<std::size_t>(std::end(text_) - 1 - o);
    o = std::copy_n(part.begin(), std::min(part.size(), room), o);
  }

  char text_[40];
};

/// The band texts of a NETCONF link: "2", "5" and "6" only.
constexpr std::array<wlccw::detail::Row<radio::Band>, 3> netconf_link_band_names{{
    {"2", radio::Band::BAND_2G},
    {"5", radio::Band::BAND_5G},
    {"6", radio::Band::BAND_6G},
}};
constexpr auto netconf_str_to_link_band = wlccw::detail::make_dictionary(netconf_link_band_names);

/// One direction (d is "tx" or "rx") of link n of a NETCONF client object; each member empty when
/// its key is missing.
Statistic mlo_statistic_from_netconf(lcw_data_t const& client, std::uint8_t n, std::string_view d) {
  Statistic statistic;
  statistic.rate = cfg_get_param_opt(&client, LinkKey(n, d, "-rate"sv).c_str());
  statistic.bytes = cfg_get_int32_param_opt(&client, LinkKey(n, "bytes-"sv, d).c_str());
  statistic.packets = cfg_get_int32_param_opt(&client, LinkKey(n, "packets-"sv, d).c_str());
  return statistic;
}

/// Link n of a NETCONF client object; empty when its MAC address is invalid or its band unknown.
std::optional<Link> mlo_link_from_netconf(lcw_data_t const& client, std::uint8_t n) {
  MacAddr const mac = MacAddr::from_str(cfg_get_param(&client, LinkKey(n, {}, "mac"sv).c_str()));
  if (!mac.valid) {
    return std::nullopt;
  }
  std::optional<radio::Band> const band =
      netconf_str_to_link_band.find(cfg_get_param(&client, LinkKey(n, {}, "band"sv).c_str()));
  if (!band) {
    return std::nullopt;
  }

  Link link;
  link.id = n;
  link.mac = mac;
  link.band = *band;
  link.bandwidth = cfg_get_param_opt(&client, LinkKey(n, {}, "bandwidth"sv).c_str());
  wlccw::detail::add_readings(link.rssi, radio::signal::parse_numbered_parameters_from_netconf(
                                             &client, LinkKey(n, {}, "rssi"sv).c_str()));
  wlccw::detail::add_readings(link.snr, radio::signal::parse_numbered_parameters_from_netconf(
                                            &client, LinkKey(n, {}, "snr"sv).c_str()));
  link.tx = mlo_statistic_from_netconf(client, n, "tx"sv);
  link.rx = mlo_statistic_from_netconf(client, n, "rx"sv);
  return link;
}

/// The multi-link data of an AP's NETCONF client object: only when "mlo-enabled" is "yes", links
/// 1 to 3 in order, a link without a valid MAC address or a known band skipped; empty when no link
/// is left. The AP multi-link device address is kept as it parses.
std::optional<Mlo> mlo_from_netconf(lcw_data_t const& client) {
  if (cfg_get_param(&client, "mlo-enabled") != "yes"sv) {
    return std::nullopt;
  }
  std::vector<Link> links;
  for (std::uint8_t n = 1; n <= max_netconf_link; ++n) {
    if (std::optional<Link> link = mlo_link_from_netconf(client, n)) {
      links.push_back(std::move(*link));
    }
  }
  if (links.empty()) {
    return std::nullopt;
  }
  Mlo mlo;
  mlo.mld_mac_ap = MacAddr::from_str(cfg_get_param(&client, "mld-mac-ap"));
  mlo.links = std::move(links);
  return mlo;
}

/// Adds the integer elements of an IPC signal list in order; other elements are left out.
template <typename Metrics> void add_signal_list(lcw_data_t const* list, Metrics& metrics) {
  wlccw::cfg::for_each_element(list, [&metrics](lcw_data_t const& element) {
    if (std::optional<int> const value = cfg_object_to_int_opt(&element)) {
      metrics.add(*value);
    }
  });
}

/// One direction of an IPC link; a missing object leaves every member empty.
Statistic statistic_from_json(lcw_data_t const* direction) {
  Statistic statistic;
  if (direction == nullptr) {
    return statistic;
  }
  statistic.rate = cfg_get_param_opt(direction, "rate");
  statistic.bytes = cfg_get_int32_param_opt(direction, "bytes");
  statistic.packets = cfg_get_int32_param_opt(direction, "packets");
  return statistic;
}

/// One element of the IPC "links" array; empty when its MAC address is invalid or its band unknown.
std::optional<Link> link_from_json(lcw_data_t const& element) {
  MacAddr const mac = MacAddr::from_str(cfg_get_param(&element, "mac"));
  if (!mac.valid) {
    return std::nullopt;
  }
  std::optional<radio::Band> const band =
      radio::band::from_str_opt(cfg_get_param(&element, "band"));
  if (!band) {
    return std::nullopt;
  }

  Link link;
  link.mac = mac;
  link.band = *band;
  link.id = cfg_get_uint8_param(&element, "id");
  link.bandwidth = cfg_get_param_opt(&element, "bandwidth");
  add_signal_list(cfg_get_subtree(&element, "rssi-list"), link.rssi);
  add_signal_list(cfg_get_subtree(&element, "snr-list"), link.snr);
  link.tx = statistic_from_json(cfg_get_subtree(&element, "tx"));
  link.rx = statistic_from_json(cfg_get_subtree(&element, "rx"));
  return link;
}

/// The multi-link data of a client's IPC object: empty without an "mlo" object, without a "links"
/// array, without any link, or when any link lacks a valid MAC address or a known band.
std::optional<Mlo> mlo_from_json(lcw_data_t const& client) {
  lcw_data_t const* const object = cfg_get_subtree(&client, "mlo");
  if (object == nullptr) {
    return std::nullopt;
  }
  Mlo mlo;
  mlo.mld_mac_ap = MacAddr::from_str(cfg_get_param(object, "mld-mac-ap"));

  lcw_data_t const* const links = cfg_get_subtree(object, "links");
  if (links == nullptr) {
    return std::nullopt;
  }
  wlccw::cfg::ArrayIterator const it(cfg_alloc_array_iterator(links));
  if (!it) {
    return std::nullopt;
  }
  while (lcw_data_t const* const element = cfg_next_array_iterator(it.get())) {
    std::optional<Link> link = link_from_json(*element);
    if (!link) {
      return std::nullopt; // one bad link rejects the whole multi-link data
    }
    mlo.links.push_back(std::move(*link));
  }
  if (mlo.links.empty()) {
    return std::nullopt;
  }
  return mlo;
}

/// Writes a signal list as an array of integers under key; nothing when there is no reading.
template <typename Sink>
void write_signal_list(Sink& link, wlccw::detail::Key key, std::vector<int> const& values) {
  if (values.empty()) {
    return;
  }
  Sink list = link.array(key);
  if (!list) {
    return;
  }
  for (int const value : values) {
    list.append_int(value);
  }
}

/// Writes one direction of a link as an object under key, with the members that are set.
template <typename Sink>
void write_statistic(Sink& link, wlccw::detail::Key key, Statistic const& statistic) {
  Sink direction = link.object(key);
  if (!direction) {
    return;
  }
  direction.set_param_opt("rate", statistic.rate);
  if (statistic.bytes) {
    direction.set_int32("bytes", *statistic.bytes);
  }
  if (statistic.packets) {
    direction.set_int32("packets", *statistic.packets);
  }
}

/// Fills one element object of the IPC "links" array. Throws std::invalid_argument for a band
/// outside the three known ones.
template <typename Sink> void write_link(Sink& object, Link const& link) {
  char text[18];
  link.mac.format(text);
  object.set_param("mac", text);
  std::string const band(radio::band::to_str(link.band));
  object.set_param("band", band.c_str());
  object.set_uint8("id", link.id);
  object.set_param_opt("bandwidth", link.bandwidth);
  write_signal_list(object, "rssi-list", link.rssi.values);
  write_signal_list(object, "snr-list", link.snr.values);
  write_statistic(object, "tx", link.tx);
  write_statistic(object, "rx", link.rx);
}

/// Writes the IPC object "mlo" under parent (the tree form).
void mlo_to_json(lcw_data_t& parent, Mlo const& mlo) {
  wlccw::detail::TreeSink sink(&parent);
  wlccw::detail::write_mlo_ipc(sink, mlo);
}

} // namespace

namespace wlccw::detail {

/// Writes the IPC object "mlo" under parent: the AP multi-link device address when valid, then
/// the "links" array with one object per link.
template <typename Sink> void write_mlo_ipc(Sink& parent, Mlo const& mlo) {
  Sink object = parent.object("mlo");
  if (!object) {
    return;
  }
  if (mlo.mld_mac_ap.valid) {
    char text[18];
    mlo.mld_mac_ap.format(text);
    object.set_param("mld-mac-ap", text);
  }
  Sink links = object.array("links");
  if (!links) {
    return;
  }
  for (Link const& link : mlo.links) {
    Sink element = links.append_object();
    if (!element) {
      continue; // no room for this link: it is left out
    }
    write_link(element, link);
  }
}

template void write_mlo_ipc<TreeSink>(TreeSink&, Mlo const&);
template void write_mlo_ipc<TextSink>(TextSink&, Mlo const&);

} // namespace wlccw::detail

void Mlo::to_json(lcw_data_t& parent) const {
  mlo_to_json(parent, *this);
}

std::optional<Mlo> Mlo::from_json(lcw_data_t& client) {
  return mlo_from_json(client);
}

std::optional<Mlo> Mlo::from_netconf_json(lcw_data_t const& client) {
  return mlo_from_netconf(client);
}
