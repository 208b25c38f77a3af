#include <wlccw/enums/IpcMsgCfgState.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 4> IpcMsgCfgState_names{
    "NOT_EXISTS",
    "EXISTS",
    "INVALID",
    "UNKNOWN",
};
static_assert(IpcMsgCfgState_names.size() == static_cast<std::size_t>(IpcMsgCfgState::UNKNOWN) + 1);

constexpr auto IpcMsgCfgState_dictionary =
    wlccw::detail::make_name_dictionary<IpcMsgCfgState>(IpcMsgCfgState_names);

} // namespace

IpcMsgCfgState IpcMsgCfgStateFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(IpcMsgCfgState_dictionary, text, IpcMsgCfgState::UNKNOWN);
}

char const* IpcMsgCfgStateToStrX(IpcMsgCfgState value) {
  return wlccw::detail::x_to_str(IpcMsgCfgState_names, value);
}
