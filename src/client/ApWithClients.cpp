#include <wlccw/client/ApWithClients.hpp>

#include <wlccw/cfg/owned.hpp>

#include <utility>

std::string ApWithClients::serialize(std::vector<ApWithClients> const& list) {
  wlccw::cfg::Tree const root = wlccw::cfg::make_array();
  if (!root) {
    return {};
  }
  char mac[18];
  for (ApWithClients const& entry : list) {
    lcw_data_t* const object = cfg_insert_empty_subtree(root.get(), nullptr);
    if (object == nullptr) {
      break;
    }
    entry.ap_mac.format(mac);
    cfg_set_param(object, "ap_mac", mac);
    wlccw::cfg::Tree const client_list(entry.clients.to_ipc_json());
    if (!client_list) {
      break; // this entry keeps only its address; the text ends with it
    }
    cfg_insert_child(object, "client_list", client_list.get());
  }
  return wlccw::cfg::compact(root.get());
}

std::vector<ApWithClients> ApWithClients::deserialize(std::string const& text) {
  std::vector<ApWithClients> result;
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  if (!root) {
    return result;
  }
  // A root that is not an array has no element to visit.
  wlccw::cfg::for_each_element(root.get(), [&result](lcw_data_t& element) {
    ApWithClients entry;
    entry.ap_mac = MacAddr::from_str(cfg_get_param(&element, "ap_mac"));
    entry.clients = NcIpcClientList::from_ipc_json(cfg_get_subtree(&element, "client_list"));
    result.push_back(std::move(entry));
  });
  return result;
}
