#include <wlccw/enums/IncomingConnections.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 3> IncomingConnections_names{
    "ALLOWED",
    "FORBIDDEN",
    "UNKNOWN",
};
static_assert(IncomingConnections_names.size() ==
              static_cast<std::size_t>(IncomingConnections::UNKNOWN) + 1);

constexpr auto IncomingConnections_dictionary =
    wlccw::detail::make_name_dictionary<IncomingConnections>(IncomingConnections_names);

} // namespace

IncomingConnections IncomingConnectionsFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(IncomingConnections_dictionary, text,
                                   IncomingConnections::UNKNOWN);
}

char const* IncomingConnectionsToStrX(IncomingConnections value) {
  return wlccw::detail::x_to_str(IncomingConnections_names, value);
}
