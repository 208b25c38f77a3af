// The peer of the poll benchmark: one poll of one AP written directly on nlohmann::json, the way a
// team without wlccw would write it. The AP's NETCONF client reply is parsed, every client object
// under /rpc-reply/data/clients is mapped from the AP's keys to the controller's IPC keys, the
// clients are grouped by interface and the IPC text of the whole list is written and hashed. For
// the replies the workload generator writes, the text (and so the hash) is byte for byte the one
// the library's client list writes.
//
// Where the peer and the library part ways on replies the generator does not write:
// - a reply that is not valid JSON throws nlohmann::json::parse_error (the library gives "{}");
// - a reply, or a text decoded from an "&#xNN;" escape, that is not valid UTF-8 throws an
//   nlohmann::json exception (the library carries any bytes);
// - a text holding a NUL character is kept whole (the library stops some texts at the NUL);
// - a number read as text ("hostname": 1.50) is written the way nlohmann prints it ("1.5"), not
//   as the AP wrote it.
#pragma once

#include "workload.hpp"

#include <string>

namespace wlccw::peer {

using PollResult = wlccw::workload::PollResult;

/// The whole poll of one reply: parse, import every client (a client without a valid "hw-addr",
/// without an "interface" or with an empty SSID is left out), group by interface, write the IPC
/// text and hash it with std::hash<std::string>.
PollResult poll(std::string const& reply);

} // namespace wlccw::peer
