#include <wlccw/enums/IpcMsgCheckApVerdict.hpp>

#include "detail/NameTable.hpp"

namespace {

constexpr std::array<char const*, 9> IpcMsgCheckApVerdict_names{
    "ACCEPT_KNOWN_AP",
    "ACCEPT_KNOWN_UPGRADING_AP",
    "ACCEPT_NEW_AP",
    "FAIL_INTERNAL",
    "FAIL_AP_HITS_LIMIT",
    "FAIL_AP_CONNECTION_ESTABLISHED",
    "FAIL_AP_CONNECTION_PLANNED",
    "NOT_CHECKED",
    "UNKNOWN",
};
static_assert(IpcMsgCheckApVerdict_names.size() ==
              static_cast<std::size_t>(IpcMsgCheckApVerdict::UNKNOWN) + 1);

constexpr auto IpcMsgCheckApVerdict_dictionary =
    wlccw::detail::make_name_dictionary<IpcMsgCheckApVerdict>(IpcMsgCheckApVerdict_names);

} // namespace

IpcMsgCheckApVerdict IpcMsgCheckApVerdictFromStrX(std::string_view text) {
  return wlccw::detail::x_from_str(IpcMsgCheckApVerdict_dictionary, text,
                                   IpcMsgCheckApVerdict::UNKNOWN);
}

char const* IpcMsgCheckApVerdictToStrX(IpcMsgCheckApVerdict value) {
  return wlccw::detail::x_to_str(IpcMsgCheckApVerdict_names, value);
}
