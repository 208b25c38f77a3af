// The IPC writers of the client family, over either sink of detail/ipc_sink.hpp. They are
// defined beside their records and instantiated there for both sinks.
#pragma once

#include "detail/ipc_sink.hpp"

#include <wlccw/client/APClientData.hpp>
#include <wlccw/client/Mlo.hpp>

namespace wlccw::detail {

/// The members of a client's IPC object, written into object.
template <typename Sink> void write_client_ipc(Sink& object, APClientData const& client);

/// The object "mlo" of a client's IPC object, written into parent.
template <typename Sink> void write_mlo_ipc(Sink& parent, Mlo const& mlo);

extern template void write_client_ipc<TreeSink>(TreeSink&, APClientData const&);
extern template void write_client_ipc<TextSink>(TextSink&, APClientData const&);
extern template void write_mlo_ipc<TreeSink>(TreeSink&, Mlo const&);
extern template void write_mlo_ipc<TextSink>(TextSink&, Mlo const&);

} // namespace wlccw::detail
