#include "cli/family.hpp"

#include "cli/io.hpp"

namespace wlccw::tool {

void reject_error_reply(lcw_data_t const* root) {
  if (!is_object(root) || !cfg_get_boolean_param_opt(root, "error").value_or(false)) {
    return;
  }
  std::optional<std::string> const message = cfg_get_param_opt(root, "error-message");
  throw Rejected("an \"error\" reply" +
                 (message && !message->empty() ? ": " + printable(*message) : std::string()));
}

cfg::Tree object_input(std::string const& text, std::string_view what) {
  cfg::Tree root = cfg::parse(text);
  if (!is_object(root.get())) {
    throw Rejected(what.empty() ? std::string("not a JSON object")
                                : "not a JSON object; expected " + std::string(what));
  }
  return root;
}

cfg::Tree array_input(std::string const& text) {
  cfg::Tree root = cfg::parse(text);
  if (!is_array(root.get())) {
    throw Rejected("not a JSON array");
  }
  return root;
}

std::string or_dash(std::string const& text) {
  return text.empty() ? std::string("-") : printable(text);
}

std::string or_dash(std::optional<std::string> const& text) {
  return text ? or_dash(*text) : std::string("-");
}

std::vector<std::string> texts_in(std::string const& ipc, char const* array_key, char const* key) {
  std::vector<std::string> out;
  cfg::Tree const root = cfg::parse(ipc);
  lcw_data_t const* const array =
      array_key == nullptr ? root.get() : cfg_get_subtree(root.get(), array_key);
  cfg::for_each_element(array, [&out, key](lcw_data_t& element) {
    out.push_back(printable(cfg_get_param_opt(&element, key).value_or("")));
  });
  return out;
}

std::string yes_no(bool value) {
  return value ? "yes" : "no";
}

std::vector<Family> const& families() {
  static std::vector<Family> const all = [] {
    std::vector<Family> out;
    add_client_families(out);
    add_monitoring_families(out);
    add_service_families(out);
    add_wids_radius_families(out);
    return out;
  }();
  return all;
}

Family const* find_family(std::string_view name) {
  for (Family const& family : families()) {
    if (family.name == name) {
      return &family;
    }
  }
  return nullptr;
}

} // namespace wlccw::tool
