// The GRE tunnel data message: read from and written to IPC JSON, hashed over its compact text.
#include <wlccw/ipc/IpcMsgGreData.hpp>

#include <wlccw/cfg/owned.hpp>
#include <wlccw/common/containers.hpp>

#include <arpa/inet.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace {

using OfficeSet = std::set<std::string>;
using MacSet = decltype(IpcMsgGreData::macs);
using PoolSet = decltype(IpcMsgGreData::ip_pools);

/// An "offices" element: its scalar text. Never rejects.
std::optional<std::string> office_from_element(lcw_data_t& element) {
  return std::string(cfg_object_to_string(&element));
}

/// The IPv4 address of a dotted text (as inet_aton reads it); 0.0.0.0 for anything else.
in_addr address_of(char const* text) noexcept {
  in_addr address{};
  if (inet_aton(text, &address) == 0) {
    address.s_addr = 0;
  }
  return address;
}

/// Sets member key of node to the dotted text of address. inet_ntoa's text lives in a buffer that
/// the next call overwrites; cfg_set_param copies it at once.
void set_address(lcw_data_t* node, char const* key, in_addr address) {
  cfg_set_param(node, key, inet_ntoa(address));
}

/// Adds one member of "macs" (key the address text, value the office) as an entry, unless its
/// address is present already: the first entry of an address stays. A key that is no MAC address
/// gives the all-zero address.
void add_mac(MacSet& macs, char const* key, lcw_data_t const& member) {
  MacAddr const mac = MacAddr::from_str(key);
  if (macs.find(mac) != macs.end()) {
    return;
  }
  auto info = std::make_shared<IpcMsgGreData::MacInfo>();
  info->mac = mac;
  info->office = cfg_object_to_string(&member);
  macs.insert(std::move(info));
}

/// Adds one member of "ip-pools" (key the pool name, value its object) as a pool, unless a pool of
/// that name is present already: the first one stays.
void add_pool(PoolSet& pools, char const* key, lcw_data_t const& member) {
  if (pools.find(std::string_view(key)) != pools.end()) {
    return;
  }
  auto pool = std::make_shared<IpcMsgGreData::IpPoolInfo>();
  pool->name = key;
  pool->network = address_of(cfg_get_param(&member, "network"));
  pool->netmask = address_of(cfg_get_param(&member, "netmask"));
  pool->office = cfg_get_param(&member, "office");
  pools.insert(std::move(pool));
}

/// Equal when both are null or both point to equal values.
template <typename T> bool same_entry(std::shared_ptr<T> const& a, std::shared_ptr<T> const& b) {
  if (!a || !b) {
    return !a && !b;
  }
  return *a == *b;
}

} // namespace

IpcMsgGreData::IpcMsgGreData(std::string_view json) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(std::string(json));
  if (!root) {
    return; // not JSON: an empty message
  }
  lcw_data_t const* const node = root.get();

  if (std::optional<OfficeSet> read = cfg_deserialize_container<OfficeSet>(
          cfg_get_subtree(node, "offices"), office_from_element)) {
    offices = std::move(*read);
  }

  wlccw::cfg::for_each_member(
      cfg_get_subtree(node, "macs"),
      [this](char const* key, lcw_data_t const& member) { add_mac(macs, key, member); });
  wlccw::cfg::for_each_member(
      cfg_get_subtree(node, "ip-pools"),
      [this](char const* key, lcw_data_t const& member) { add_pool(ip_pools, key, member); });
}

lcw_data_t* IpcMsgGreData::get_json() const {
  wlccw::cfg::Tree root = wlccw::cfg::make_object();
  if (!root) {
    return nullptr;
  }
  lcw_data_t* const node = root.get();

  if (lcw_data_t* const array = cfg_insert_empty_array(node, "offices")) {
    for (std::string const& office : offices) {
      cfg_insert_child_string(array, nullptr, office.c_str());
    }
  }

  if (!macs.empty()) {
    if (lcw_data_t* const object = cfg_insert_empty_subtree(node, "macs")) {
      char text[18];
      for (std::shared_ptr<MacInfo> const& info : macs) {
        if (!info) {
          continue;
        }
        info->mac.format(text);
        cfg_set_param(object, text, info->office.c_str());
      }
    }
  }

  if (!ip_pools.empty()) {
    if (lcw_data_t* const object = cfg_insert_empty_subtree(node, "ip-pools")) {
      for (std::shared_ptr<IpPoolInfo> const& pool : ip_pools) {
        if (!pool) {
          continue;
        }
        lcw_data_t* const entry = cfg_insert_empty_subtree(object, pool->name.c_str());
        if (entry == nullptr) {
          continue;
        }
        set_address(entry, "network", pool->network);
        set_address(entry, "netmask", pool->netmask);
        cfg_set_param(entry, "office", pool->office.c_str());
      }
    }
  }
  return root.release();
}

std::string IpcMsgGreData::to_str() const {
  wlccw::cfg::Tree const root(get_json());
  return wlccw::cfg::compact(root.get());
}

std::size_t IpcMsgGreData::get_hash() const {
  return std::hash<std::string>{}(to_str());
}

bool operator==(IpcMsgGreData const& a, IpcMsgGreData const& b) {
  return a.offices == b.offices &&
         std::equal(a.macs.begin(), a.macs.end(), b.macs.begin(), b.macs.end(),
                    same_entry<IpcMsgGreData::MacInfo>) &&
         std::equal(a.ip_pools.begin(), a.ip_pools.end(), b.ip_pools.begin(), b.ip_pools.end(),
                    same_entry<IpcMsgGreData::IpPoolInfo>);
}
