// The radio-optimisation service's answer: read from and written to IPC JSON.
#include <wlccw/ipc/IpcMsgVelmoraResponse.hpp>

#include "detail/json_member.hpp"

#include <wlccw/cfg/owned.hpp>

#include <string>

IpcMsgVelmoraResponse::IpcMsgVelmoraResponse(std::string_view json) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(std::string(json));
  if (!root) {
    return; // not JSON: the defaults stay
  }
  lcw_data_t const* const node = root.get();
  type = VelmoraMsgTypeFromStrX(cfg_get_param(node, "type"));
  status = VelmoraRespStatusFromStrX(cfg_get_param(node, "status"));
  cause = cfg_get_param(node, "cause");
  data = wlccw::detail::member_json_text(node, "data");
  if (data.empty()) {
    data = "{}";
  }
}

lcw_data_t* IpcMsgVelmoraResponse::get_json() const {
  wlccw::cfg::Tree root = wlccw::cfg::make_object();
  if (!root) {
    return nullptr;
  }
  lcw_data_t* const node = root.get();
  cfg_set_param(node, "type", VelmoraMsgTypeToStrX(type));
  cfg_set_param(node, "status", VelmoraRespStatusToStrX(status));
  if (!cause.empty()) {
    cfg_set_param(node, "cause", cause.c_str());
  }
  wlccw::detail::insert_json_text(node, "data", data);
  return root.release();
}

std::string IpcMsgVelmoraResponse::to_str() const {
  wlccw::cfg::Tree const root(get_json());
  return wlccw::cfg::compact(root.get());
}
