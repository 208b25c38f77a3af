// Helpers shared by the tests of the monitoring list records (interfaces, Ethernet ports,
// neighbouring APs): each reads its list from a node, one entry from an object, and writes entries
// and lists back.
#pragma once

#include <support/samples.hpp>

#include <wlccw/cfg/owned.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace wlccw::test {

/// Every link-state text an AP sends for an interface or an Ethernet port, with its value.
inline std::vector<std::pair<char const*, WLCBT_OPERSTATE>> const& link_state_texts() {
  static std::vector<std::pair<char const*, WLCBT_OPERSTATE>> const rows{
      {"up", WLCBT_OPERSTATE::UP},
      {"down", WLCBT_OPERSTATE::DOWN},
      {"unknown", WLCBT_OPERSTATE::UNKNOWN},
      {"notpresent", WLCBT_OPERSTATE::NOTPRESENT},
      {"lowerlayerdown", WLCBT_OPERSTATE::LOWERLAYERDOWN},
      {"testing", WLCBT_OPERSTATE::TESTING},
      {"dormant", WLCBT_OPERSTATE::DORMANT},
  };
  return rows;
}

/// The list that Record::from_netconf reads from the members of an object text such as
/// {"interface":[...]}.
template <typename Record> std::shared_ptr<Record> read_netconf(std::string const& object_text) {
  cfg::Tree const root = parse_json(object_text);
  return root ? Record::from_netconf(*root) : nullptr;
}

/// The list that Record::from_ipc reads from the members of an object text.
template <typename Record> std::shared_ptr<Record> read_ipc_node(std::string const& object_text) {
  cfg::Tree const root = parse_json(object_text);
  return root ? Record::from_ipc(*root) : nullptr;
}

/// One entry that Record::from_json reads from the text of its object.
template <typename Record>
auto read_one(std::string const& object_text) -> decltype(Record::from_json(*cfg::parse("{}"))) {
  cfg::Tree const root = parse_json(object_text);
  using Entry = decltype(Record::from_json(*root));
  return root ? Record::from_json(*root) : Entry{};
}

/// The compact text of one entry as Record::to_json writes it into a new object.
template <typename Record, typename Entry> std::string written(Entry const& entry) {
  cfg::Tree const object = cfg::make_object();
  Record::to_json(entry, *object);
  return cfg::compact(object.get());
}

/// The compact text of a new object after record.to_ipc(node).
template <typename Record> std::string written_under_key(Record const& record) {
  cfg::Tree const object = cfg::make_object();
  record.to_ipc(*object);
  return cfg::compact(object.get());
}

/// Writes record into a new object with to_ipc(node), reads it back with from_ipc(node) and checks
/// that the list read equals record and writes the same to_ipc() text; returns the object's text.
template <typename Record> std::string expect_node_form_reads_back(Record const& record) {
  cfg::Tree const node = cfg::make_object();
  record.to_ipc(*node);
  std::shared_ptr<Record> const from_node = Record::from_ipc(*node);
  EXPECT_NE(from_node, nullptr);
  if (from_node != nullptr) {
    EXPECT_EQ(*from_node, record);
    EXPECT_EQ(from_node->to_ipc(), record.to_ipc());
  }
  return cfg::compact(node.get());
}

} // namespace wlccw::test
