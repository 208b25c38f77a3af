#include <wlccw/ipc/SaApsInfo.hpp>

#include <wlccw/cfg/owned.hpp>

#include "detail/Dictionary.hpp"

#include <array>
#include <string>

namespace {

using wlccw::detail::Row;

// The named stages, value 1 first: NONE has no row, its text is the empty one.
constexpr std::array<Row<WLCBT_SA_STATUS>, 6> status_rows{{
    {"Registering", WLCBT_SA_STATUS::REGISTERING},
    {"Awaited", WLCBT_SA_STATUS::AWAITED},
    {"Join-by-admin", WLCBT_SA_STATUS::JOIN_BY_ADMIN},
    {"Join-auto", WLCBT_SA_STATUS::JOIN_AUTO},
    {"Joined", WLCBT_SA_STATUS::JOINED},
    {"Upgrading FW", WLCBT_SA_STATUS::UPGRADING_FW},
}};

constexpr bool rows_follow_values() {
  for (std::size_t i = 0; i < status_rows.size(); ++i) {
    if (static_cast<std::size_t>(status_rows[i].second) != i + 1) {
      return false;
    }
  }
  return true;
}
static_assert(rows_follow_values(), "row i holds the stage of value i + 1");

constexpr auto status_dictionary = wlccw::detail::make_dictionary(status_rows);

/// The IPC text of a stage: "" for NONE and for any value outside the named stages.
char const* status_text(WLCBT_SA_STATUS status) {
  auto const value = static_cast<std::int32_t>(status);
  if (value < 1 || value > static_cast<std::int32_t>(status_rows.size())) {
    return "";
  }
  // Every row text is a literal, so its view is NUL-terminated.
  return status_rows[static_cast<std::size_t>(value - 1)].first.data();
}

/// The stage named exactly by text; NONE for any other text.
WLCBT_SA_STATUS status_from_text(std::string_view text) {
  return status_dictionary.find(text).value_or(WLCBT_SA_STATUS::NONE);
}

void write_ap(lcw_data_t* object, SaApsInfo::ApInfo const& ap) {
  char mac[18];
  ap.ap_mac.format(mac);
  cfg_set_param(object, "ap-mac", mac);
  cfg_set_param(object, "ip", ap.ip.str().c_str());
  cfg_set_param(object, "board-type", ap.board_type.c_str());
  cfg_set_param(object, "sw-version", ap.sw_version.c_str());
  cfg_set_param(object, "hw-version", ap.hw_version.c_str());
  cfg_set_param(object, "serial", ap.serial.c_str());
  cfg_set_param(object, "status", status_text(ap.status));
}

SaApsInfo::ApInfo read_ap(lcw_data_t const* object) {
  SaApsInfo::ApInfo ap;
  ap.ap_mac = MacAddr::from_str(cfg_get_param(object, "ap-mac"));
  ap.ip = cfg_get_param(object, "ip");
  ap.board_type = cfg_get_param(object, "board-type");
  ap.sw_version = cfg_get_param(object, "sw-version");
  ap.hw_version = cfg_get_param(object, "hw-version");
  ap.serial = cfg_get_param(object, "serial");
  ap.status = status_from_text(cfg_get_param(object, "status"));
  return ap;
}

} // namespace

std::string SaApsInfo::ipc_serialize(SaApsInfo const& info) {
  wlccw::cfg::Tree const root = wlccw::cfg::make_object();
  if (!root) {
    return {};
  }
  lcw_data_t* const array = cfg_insert_empty_array(root.get(), "sa-aps");
  if (array != nullptr) {
    for (ApInfo const& ap : info.sa_aps) {
      lcw_data_t* const object = cfg_insert_empty_subtree(array, nullptr);
      if (object != nullptr) {
        write_ap(object, ap);
      }
    }
  }
  return wlccw::cfg::compact(root.get());
}

SaApsInfo SaApsInfo::ipc_deserialize(std::string_view text) {
  SaApsInfo info;
  // The tree interface reads NUL-terminated text.
  wlccw::cfg::Tree const root = wlccw::cfg::parse(std::string(text));
  if (!root) {
    return info;
  }
  wlccw::cfg::for_each_element(cfg_get_subtree(root.get(), "sa-aps"), [&info](lcw_data_t& element) {
    info.sa_aps.push_back(read_ap(&element));
  });
  return info;
}
