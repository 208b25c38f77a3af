#include <wlccw/enums/IpcMsgStatus.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 3> IpcMsgStatus_names{
    "FAILURE",
    "SUCCESS",
    "UNKNOWN",
};
static_assert(IpcMsgStatus_names.size() == static_cast<std::size_t>(IpcMsgStatus::UNKNOWN) + 1);

constexpr auto IpcMsgStatus_dictionary =
    wlccw::detail::make_name_dictionary<IpcMsgStatus>(IpcMsgStatus_names);

} // namespace

IpcMsgStatus IpcMsgStatusFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(IpcMsgStatus_dictionary, text, IpcMsgStatus::UNKNOWN);
}

char const* IpcMsgStatusToStrX(IpcMsgStatus value) {
  return wlccw::detail::x_to_str(IpcMsgStatus_names, value);
}
