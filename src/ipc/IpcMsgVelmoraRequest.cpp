// A request to the radio-optimisation service: read from and written to IPC JSON, with typed
// accessors over its opaque parameters.
#include <wlccw/ipc/IpcMsgVelmoraRequest.hpp>

#include "detail/json_member.hpp"

#include <wlccw/cfg/owned.hpp>
#include <wlccw/enums/RadioBand.hpp>

#include <string>

namespace {

/// The parsed parameters; null when there are none or they are not JSON.
wlccw::cfg::Tree parse_params(std::string const& params) {
  if (params.empty()) {
    return nullptr;
  }
  return wlccw::cfg::parse(params);
}

} // namespace

IpcMsgVelmoraRequest::IpcMsgVelmoraRequest(std::string_view json) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(std::string(json));
  if (!root) {
    return; // not JSON: GET_COMMON and no parameters
  }
  type = VelmoraMsgTypeFromStrX(cfg_get_param(root.get(), "type"));
  params = wlccw::detail::member_json_text(root.get(), "params");
  if (params.empty()) {
    params = "{}";
  }
}

lcw_data_t* IpcMsgVelmoraRequest::get_json() const {
  wlccw::cfg::Tree root = wlccw::cfg::make_object();
  if (!root) {
    return nullptr;
  }
  cfg_set_param(root.get(), "type", VelmoraMsgTypeToStrX(type));
  wlccw::detail::insert_json_text(root.get(), "params", params);
  return root.release();
}

std::string IpcMsgVelmoraRequest::to_str() const {
  wlccw::cfg::Tree const root(get_json());
  return wlccw::cfg::compact(root.get());
}

std::optional<MacAddr> IpcMsgVelmoraRequest::get_mac(bool& valid) const {
  wlccw::cfg::Tree const tree = parse_params(params);
  if (!tree) {
    return std::nullopt;
  }
  MacAddr const mac = MacAddr::from_str(cfg_get_param(tree.get(), "mac"));
  valid = mac.valid;
  if (!mac.valid) {
    return std::nullopt;
  }
  return mac;
}

std::optional<std::string> IpcMsgVelmoraRequest::get_band(bool& valid) const {
  wlccw::cfg::Tree const tree = parse_params(params);
  if (!tree) {
    return std::nullopt;
  }
  char const* const band = cfg_get_param(tree.get(), "band");
  if (band[0] == '\0') {
    return std::nullopt; // no band asked for: nothing to judge
  }
  valid = RadioBandFromStrX(band) != RadioBand::UNKNOWN;
  if (!valid) {
    return std::nullopt;
  }
  return std::string(band);
}

std::optional<unsigned int> IpcMsgVelmoraRequest::get_days() const {
  wlccw::cfg::Tree const tree = parse_params(params);
  if (!tree) {
    return std::nullopt;
  }
  return cfg_get_uint32_param_opt(tree.get(), "days");
}

std::optional<std::string> IpcMsgVelmoraRequest::get_location() const {
  wlccw::cfg::Tree const tree = parse_params(params);
  if (!tree) {
    return std::nullopt;
  }
  char const* const location = cfg_get_param(tree.get(), "location");
  if (location[0] == '\0') {
    return std::nullopt;
  }
  return std::string(location);
}
