#include <wlccw/client/ClientsByAuthTypeCount.hpp>

#include <wlccw/cfg/owned.hpp>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace {

/// The numeric value of an authentication state or method; the counting rules are stated on these
/// numbers, so a value outside an enumeration's names (one forced in by a cast) falls under
/// whichever rule its number meets.
template <typename E> constexpr std::int32_t value(E e) noexcept {
  return static_cast<std::int32_t>(e);
}

constexpr bool in_range(std::int32_t v, std::int32_t low, std::int32_t high) noexcept {
  return v >= low && v <= high;
}

/// One counter of the IPC form: the group object it is written in, its key there, and the member.
struct CounterField {
  char const* group;
  char const* key;
  std::uint32_t ClientsByAuthTypeCount::*member;
};

/// The IPC layout of the counters, read and written in this order. Rows of one group are
/// consecutive; a group's object is opened at its first row.
constexpr CounterField counter_fields[] = {
    {"wlan", "open-owe", &ClientsByAuthTypeCount::wlan_open_owe},
    {"wlan", "psk", &ClientsByAuthTypeCount::wlan_psk},
    {"wlan", "enterprise", &ClientsByAuthTypeCount::wlan_enterprise},
    {"wlan", "unauthenticated", &ClientsByAuthTypeCount::wlan_unauthenticated},
    {"wlan", "total-clients", &ClientsByAuthTypeCount::wlan_total},
    {"mab", "authenticated", &ClientsByAuthTypeCount::mab_authenticated},
    {"mab", "pending", &ClientsByAuthTypeCount::mab_pending},
    {"portal-mab", "authenticated-mab", &ClientsByAuthTypeCount::portal_mab_authenticated_mab},
    {"portal-mab", "authenticated-portal",
     &ClientsByAuthTypeCount::portal_mab_authenticated_portal},
    {"portal-mab", "pending-mab", &ClientsByAuthTypeCount::portal_mab_pending_mab},
    {"portal-mab", "pending-portal", &ClientsByAuthTypeCount::portal_mab_pending_portal},
};

/// Whether row i opens a group (the first row, or a group name other than the previous row's).
bool opens_group(std::size_t i) {
  return i == 0 || std::strcmp(counter_fields[i].group, counter_fields[i - 1].group) != 0;
}

/// The member the IPC message requires beside the groups; it carries no counter.
constexpr char const* marker_key = "clients-by-auth-type";

} // namespace

ClientsByAuthTypeCount::ClientsByAuthTypeCount(std::vector<APClientData> const& records) {
  for (APClientData const& record : records) {
    fill_clients_count_by_wlan(record);
    fill_clients_count_by_mab(record);
    fill_clients_count_by_portal_mab(record);
  }
}

// WLAN methods: 0 open, 1 wpa, 2 wpa2, 3 wpa3, 4 wpa_enterprise, 5 wpa2_enterprise,
// 6 wpa3_enterprise, 7 owe. WLAN states: 0 authenticated, 1 unauthenticated, 2 pending.
void ClientsByAuthTypeCount::fill_clients_count_by_wlan(APClientData const& client) {
  if (!client.wlan_auth_method || !client.wlan_auth_status) {
    return;
  }
  std::int32_t const method = value(*client.wlan_auth_method);
  std::int32_t const status = value(*client.wlan_auth_status);
  if (status == 0) {
    if (method == 0 || method == 7) {
      ++wlan_open_owe;
    } else if (in_range(method, 1, 3)) {
      ++wlan_psk;
    } else if (in_range(method, 4, 6)) {
      ++wlan_enterprise;
    }
  } else if (status == 2) {
    if (in_range(method, 1, 6)) { // open and OWE networks have nothing to wait for
      ++wlan_unauthenticated;
    }
  }
  ++wlan_total; // every client with both facts, whatever its state
}

// MAC states: 0 authenticated, 1 unauthenticated, 2 pending, 3 not required.
// Portal states: 0 authenticated, 1 reauthenticate, 2 unauthenticated, 3 pending, 4 expired,
// 5 not required.
void ClientsByAuthTypeCount::fill_clients_count_by_mab(APClientData const& client) {
  if (!client.mac_auth_status || !client.portal_auth_status ||
      value(*client.portal_auth_status) != 5) {
    return;
  }
  std::int32_t const mac = value(*client.mac_auth_status);
  if (mac == 0) {
    ++mab_authenticated;
  } else if (mac == 2) {
    ++mab_pending;
  }
}

void ClientsByAuthTypeCount::fill_clients_count_by_portal_mab(APClientData const& client) {
  if (!client.mac_auth_status || !client.portal_auth_status) {
    return;
  }
  std::int32_t const mac = value(*client.mac_auth_status);
  std::int32_t const portal = value(*client.portal_auth_status);
  if (portal == 0 && mac == 0) {
    ++portal_mab_authenticated_mab;
  } else if (portal == 0 && mac == 1) {
    ++portal_mab_authenticated_portal;
  } else if (portal == 1 && (mac == 0 || mac == 1)) {
    ++portal_mab_authenticated_portal;
  } else if (portal == 3 && (mac == 0 || mac == 1)) {
    ++portal_mab_pending_portal;
  } else if (portal == 3 && mac == 2) {
    ++portal_mab_pending_mab;
  } else if (portal == 4 && (mac == 0 || mac == 1)) {
    ++portal_mab_pending_portal;
  }
}

std::string ClientsByAuthTypeCount::to_json() const {
  wlccw::cfg::Tree const root = wlccw::cfg::make_object();
  if (!root) {
    return {};
  }
  if (cfg_insert_empty_subtree(root.get(), marker_key) == nullptr) {
    return {};
  }
  lcw_data_t* group = nullptr;
  for (std::size_t i = 0; i < std::size(counter_fields); ++i) {
    CounterField const& field = counter_fields[i];
    if (opens_group(i)) {
      group = cfg_insert_empty_subtree(root.get(), field.group); // beside the marker, not in it
      if (group == nullptr) {
        return {};
      }
    }
    cfg_set_uint32_param(group, field.key, this->*field.member);
  }
  return wlccw::cfg::compact(root.get());
}

std::shared_ptr<ClientsByAuthTypeCount> ClientsByAuthTypeCount::from_json(std::string const& text) {
  auto result = std::make_shared<ClientsByAuthTypeCount>();
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  if (!root || cfg_contain_param(root.get(), marker_key) == 0) {
    return result;
  }
  lcw_data_t const* group = nullptr;
  for (std::size_t i = 0; i < std::size(counter_fields); ++i) {
    CounterField const& field = counter_fields[i];
    if (opens_group(i)) {
      group = cfg_get_subtree(root.get(), field.group);
      if (group == nullptr) {
        break; // this group and every later one stay zero
      }
    }
    (*result).*field.member = cfg_get_uint32_param(group, field.key);
  }
  return result;
}
