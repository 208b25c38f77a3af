#include <wlccw/ipc/ApLocationsData.hpp>

#include <wlccw/cfg/owned.hpp>

#include <algorithm>
#include <utility>

ApLocationsData::ApLocation::ApLocation(std::string id_, std::string time_zone_)
    : id(std::move(id_)), time_zone(std::move(time_zone_)) {}

ApLocationsData::ApLocationsData(std::string const& text) {
  wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
  if (!root) {
    return;
  }
  wlccw::cfg::for_each_member(root.get(), [this](char const*, lcw_data_t& member) {
    locations_.emplace_back(cfg_get_param(&member, "id"), cfg_get_param(&member, "timezone"));
  });
}

void ApLocationsData::add(std::string const& id, std::string const& time_zone) {
  locations_.erase(std::remove_if(locations_.begin(), locations_.end(),
                                  [&id](ApLocation const& location) { return location.id == id; }),
                   locations_.end());
  locations_.emplace_back(id, time_zone);
}

void ApLocationsData::for_each(
    std::function<bool(std::string const&, std::string const&)> const& fn) const {
  if (!fn) {
    return;
  }
  for (ApLocation const& location : locations_) {
    if (fn(location.id, location.time_zone)) {
      return;
    }
  }
}

lcw_data_t* ApLocationsData::get_json() const {
  wlccw::cfg::Tree root = wlccw::cfg::make_object();
  if (!root) {
    return nullptr;
  }
  for (ApLocation const& location : locations_) {
    lcw_data_t* const member = cfg_insert_empty_subtree_or_exists(root.get(), location.id.c_str());
    if (member == nullptr) {
      continue;
    }
    cfg_set_param(member, "id", location.id.c_str());
    cfg_set_param(member, "timezone", location.time_zone.c_str());
  }
  return root.release();
}

std::string ApLocationsData::to_str() const {
  wlccw::cfg::Tree const root(get_json());
  return wlccw::cfg::compact(root.get());
}

std::size_t ApLocationsData::get_hash() const {
  return std::hash<std::string>{}(to_str());
}
