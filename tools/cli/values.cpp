// The value subcommands of the wlccw tool: `enum`, `ip`, `version` and `html-decode`.
//
// `enum` works from one table: each enumeration lists its dialects (the NETCONF text, the IPC
// text, the plain name of the X converters, a configuration word, a numeric AP code), each with
// the library's reader and writer where it has them. A text is run through every reader, a number
// through every writer; a result that does not read back to what was given is the converter's
// fallback and is marked so.

#include "cli/values.hpp"

#include <wlccw/common/IpAddr.hpp>
#include <wlccw/common/Version.hpp>
#include <wlccw/common/html.hpp>
#include <wlccw/enums/APState.hpp>
#include <wlccw/enums/ApIndicationAction.hpp>
#include <wlccw/enums/ApProfileRadioBand.hpp>
#include <wlccw/enums/ApSaStage.hpp>
#include <wlccw/enums/AuthPortalClientStatus.hpp>
#include <wlccw/enums/ClientAuthAlgorithm.hpp>
#include <wlccw/enums/ClientConnectedEventType.hpp>
#include <wlccw/enums/ClientCportalEventType.hpp>
#include <wlccw/enums/ClientDisconnectedEventType.hpp>
#include <wlccw/enums/ClientEapMethod.hpp>
#include <wlccw/enums/ClientFailAuthStep.hpp>
#include <wlccw/enums/ClientFailEventType.hpp>
#include <wlccw/enums/ClientIpChangedEventType.hpp>
#include <wlccw/enums/ClientMacAuthEventType.hpp>
#include <wlccw/enums/ClientMacAuthReason.hpp>
#include <wlccw/enums/ClientMacAuthStatus.hpp>
#include <wlccw/enums/ClientPortalAuthStatus.hpp>
#include <wlccw/enums/ClientRoamingEventType.hpp>
#include <wlccw/enums/ClientWirelessMode.hpp>
#include <wlccw/enums/ClientWlanAuthMethod.hpp>
#include <wlccw/enums/ClientWlanAuthStatus.hpp>
#include <wlccw/enums/FwVersionChecked.hpp>
#include <wlccw/enums/IncomingConnections.hpp>
#include <wlccw/enums/IpcMsgCfgState.hpp>
#include <wlccw/enums/IpcMsgCheckApVerdict.hpp>
#include <wlccw/enums/IpcMsgStatus.hpp>
#include <wlccw/enums/IpcStopReason.hpp>
#include <wlccw/enums/MacAuthMode.hpp>
#include <wlccw/enums/MacFilterAction.hpp>
#include <wlccw/enums/PowerSupply.hpp>
#include <wlccw/enums/RadioBand.hpp>
#include <wlccw/enums/SaCertErrorCodes.hpp>
#include <wlccw/enums/SecurityMode.hpp>
#include <wlccw/enums/VelmoraMsgType.hpp>
#include <wlccw/enums/VelmoraRespStatus.hpp>
#include <wlccw/enums/VrrpRole.hpp>
#include <wlccw/enums/WidsClientBannedAuthMethod.hpp>
#include <wlccw/enums/WidsClientBannedEAPMethod.hpp>
#include <wlccw/enums/WidsDetectedRogueReason.hpp>
#include <wlccw/enums/WidsDosAttack.hpp>
#include <wlccw/enums/WidsDosPacket.hpp>
#include <wlccw/enums/mfp_Mode.hpp>
#include <wlccw/enums/radio_Band.hpp>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <exception>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace wlccw::tool {
namespace {

// ---- The enumeration table ----------------------------------------------------------------------

/// One way an enumeration is written. A reader gives the number of a text (empty when the
/// converter gives an empty optional); a writer gives the text of a number (empty for an empty
/// optional; it may throw); a code reader gives the number of an AP's numeric code.
struct Dialect {
  std::string_view label;
  std::optional<std::int32_t> (*read)(std::string const&) = nullptr;
  std::optional<std::string> (*write)(std::int32_t) = nullptr;
  std::optional<std::int32_t> (*read_code)(unsigned) = nullptr;
};

struct EnumInfo {
  std::string_view name;
  /// Which kind of converters it has: "client" dictionaries (mostly optionals), "X"
  /// (FromStrX/ToStrX, UNKNOWN fallback), "wids" (each its own fallback) or "config" words.
  std::string_view family;
  std::vector<Dialect> dialects;
};

template <typename T> struct is_optional : std::false_type {};
template <typename T> struct is_optional<std::optional<T>> : std::true_type {};

template <typename R> std::optional<std::int32_t> number_of(R const& result) {
  if constexpr (is_optional<R>::value) {
    if (!result) {
      return std::nullopt;
    }
    return static_cast<std::int32_t>(*result);
  } else {
    return static_cast<std::int32_t>(result);
  }
}

template <typename R> std::optional<std::string> text_of(R const& result) {
  if constexpr (is_optional<R>::value) {
    if (!result) {
      return std::nullopt;
    }
    return std::string(*result);
  } else {
    return std::string(result);
  }
}

template <auto Read> std::optional<std::int32_t> read_with(std::string const& text) {
  return number_of(Read(text));
}

template <typename E, auto Write> std::optional<std::string> write_with(std::int32_t number) {
  return text_of(Write(static_cast<E>(number)));
}

template <auto Read> std::optional<std::int32_t> code_with(unsigned code) {
  return number_of(Read(code));
}

/// The IPC writer of a client dictionary; the overload set takes either the value or an optional.
template <typename E> std::optional<std::string> write_ipc(std::int32_t number) {
  return text_of(::convert_to_ipc_str(static_cast<E>(number)));
}

/// The command-line name of a WLAN authentication method (the overload takes an optional).
std::string clish_text(ClientWlanAuthMethod method) {
  return convert_to_clish_str(method);
}

template <typename E, E (*From)(std::string_view), char const* (*To)(E)>
EnumInfo x_enum(std::string_view name) {
  return {name, "X", {{"name", read_with<From>, write_with<E, To>}}};
}

template <typename E, auto FromNetconf, auto FromIpc> EnumInfo client_enum(std::string_view name) {
  return {
      name,
      "client",
      {{"netconf", read_with<FromNetconf>, nullptr}, {"ipc", read_with<FromIpc>, write_ipc<E>}}};
}

template <typename E, auto FromNetconf, auto FromIpc, auto ToStr, auto ToIpc>
EnumInfo wids_enum(std::string_view name) {
  return {name,
          "wids",
          {{"netconf", read_with<FromNetconf>, write_with<E, ToStr>},
           {"ipc", read_with<FromIpc>, write_with<E, ToIpc>}}};
}

std::vector<EnumInfo> const& enumerations() {
  namespace ba = WidsClientBannedAuthMethod;
  namespace be = WidsClientBannedEAPMethod;
  namespace rr = WidsDetectedRogueReason;
  namespace da = WidsDosAttack;
  namespace dp = WidsDosPacket;
  static std::vector<EnumInfo> const table{
      x_enum<APState, APStateFromStrX, APStateToStrX>("APState"),
      x_enum<ApIndicationAction, ApIndicationActionFromStrX, ApIndicationActionToStrX>(
          "ApIndicationAction"),
      {"ApProfileRadioBand", "plain", {}},
      x_enum<ApSaStage, ApSaStageFromStrX, ApSaStageToStrX>("ApSaStage"),
      {"AuthPortalClientStatus",
       "client",
       {{"netconf", read_with<auth_portal_client_status_from_netconf_str>, nullptr}}},
      client_enum<ClientAuthAlgorithm, client_auth_algorithm_netconf_str,
                  client_auth_algorithm_from_ipc_str>("ClientAuthAlgorithm"),
      client_enum<ClientConnectedEventType, client_connected_event_type_from_netconf_str,
                  client_connected_event_type_from_ipc_str>("ClientConnectedEventType"),
      client_enum<ClientCportalEventType, client_cportal_event_type_from_netconf_str,
                  client_cportal_event_type_from_ipc_str>("ClientCportalEventType"),
      client_enum<ClientDisconnectedEventType, client_disconnected_event_type_from_netconf_str,
                  client_disconnected_event_type_from_ipc_str>("ClientDisconnectedEventType"),
      client_enum<ClientEapMethod, client_eap_method_from_netconf_str,
                  client_eap_method_from_ipc_str>("ClientEapMethod"),
      client_enum<ClientFailAuthStep, client_fail_auth_step_from_netconf_str,
                  client_fail_auth_step_from_ipc_str>("ClientFailAuthStep"),
      client_enum<ClientFailEventType, client_fail_event_type_from_netconf_str,
                  client_fail_event_type_from_ipc_str>("ClientFailEventType"),
      client_enum<ClientIpChangedEventType, client_ip_changed_event_type_from_netconf_str,
                  client_ip_changed_event_type_from_ipc_str>("ClientIpChangedEventType"),
      client_enum<ClientMacAuthEventType, client_mac_auth_event_type_from_netconf_str,
                  client_mac_auth_event_type_from_ipc_str>("ClientMacAuthEventType"),
      client_enum<ClientMacAuthReason, client_mac_auth_reason_from_netconf_str,
                  client_mac_auth_reason_from_ipc_str>("ClientMacAuthReason"),
      client_enum<ClientMacAuthStatus, client_mac_auth_status_from_netconf_str,
                  client_mac_auth_status_from_ipc_str>("ClientMacAuthStatus"),
      client_enum<ClientPortalAuthStatus, client_portal_auth_status_from_netconf_str,
                  client_portal_auth_status_from_ipc_str>("ClientPortalAuthStatus"),
      client_enum<ClientRoamingEventType, client_roaming_event_type_from_netconf_str,
                  client_roaming_event_type_from_ipc_str>("ClientRoamingEventType"),
      client_enum<ClientWirelessMode, client_wireless_mode_from_netconf_str,
                  client_wireless_mode_from_ipc_str>("ClientWirelessMode"),
      {"ClientWlanAuthMethod",
       "client",
       {{"netconf", read_with<client_wlan_auth_method_from_netconf_str>, nullptr},
        {"ipc", read_with<client_wlan_auth_method_from_ipc_str>, write_ipc<ClientWlanAuthMethod>},
        {"clish", read_with<client_wlan_auth_method_from_netconf_str>,
         write_with<ClientWlanAuthMethod, clish_text>}}},
      client_enum<ClientWlanAuthStatus, client_wlan_auth_status_from_netconf_str,
                  client_wlan_auth_status_from_ipc_str>("ClientWlanAuthStatus"),
      x_enum<FwVersionChecked, FwVersionCheckedFromStrX, FwVersionCheckedToStrX>(
          "FwVersionChecked"),
      x_enum<IncomingConnections, IncomingConnectionsFromStrX, IncomingConnectionsToStrX>(
          "IncomingConnections"),
      x_enum<IpcMsgCfgState, IpcMsgCfgStateFromStrX, IpcMsgCfgStateToStrX>("IpcMsgCfgState"),
      x_enum<IpcMsgCheckApVerdict, IpcMsgCheckApVerdictFromStrX, IpcMsgCheckApVerdictToStrX>(
          "IpcMsgCheckApVerdict"),
      x_enum<IpcMsgStatus, IpcMsgStatusFromStrX, IpcMsgStatusToStrX>("IpcMsgStatus"),
      x_enum<IpcStopReason, IpcStopReasonFromStrX, IpcStopReasonToStrX>("IpcStopReason"),
      {"MacAuthMode",
       "config",
       {{"config", read_with<MacAuthMode_from_wlc_config>,
         write_with<MacAuthMode, MacAuthMode_to_ap_config>}}},
      x_enum<MacFilterAction, MacFilterActionFromStrX, MacFilterActionToStrX>("MacFilterAction"),
      {"PowerSupply",
       "config",
       {{"text", read_with<power_supply_from_str>, write_with<PowerSupply, power_supply_to_str>}}},
      x_enum<RadioBand, RadioBandFromStrX, RadioBandToStrX>("RadioBand"),
      x_enum<SaCertErrorCodes, SaCertErrorCodesFromStrX, SaCertErrorCodesToStrX>(
          "SaCertErrorCodes"),
      x_enum<SecurityMode, SecurityModeFromStrX, SecurityModeToStrX>("SecurityMode"),
      x_enum<VelmoraMsgType, VelmoraMsgTypeFromStrX, VelmoraMsgTypeToStrX>("VelmoraMsgType"),
      x_enum<VelmoraRespStatus, VelmoraRespStatusFromStrX, VelmoraRespStatusToStrX>(
          "VelmoraRespStatus"),
      x_enum<VrrpRole, VrrpRoleFromStrX, VrrpRoleToStrX>("VrrpRole"),
      {"WidsClientBannedAuthMethod",
       "wids",
       {{"netconf code", nullptr, nullptr, code_with<ba::netconf_deserialize>},
        {"text", nullptr, write_with<ba::Type, ba::to_str>},
        {"ipc", read_with<ba::ipc_deserialize>, write_with<ba::Type, ba::ipc_serialize>}}},
      {"WidsClientBannedEAPMethod",
       "wids",
       {{"netconf code", nullptr, nullptr, code_with<be::netconf_deserialize>},
        {"text", nullptr, write_with<be::Type, be::to_str>},
        {"ipc", read_with<be::ipc_deserialize>, write_with<be::Type, be::ipc_serialize>}}},
      wids_enum<rr::Reason, rr::netconf_deserialize, rr::ipc_deserialize, rr::to_str,
                rr::ipc_serialize>("WidsDetectedRogueReason"),
      {"WidsDosAttack",
       "wids",
       {{"netconf", read_with<da::netconf_deserialize>, nullptr},
        {"ipc", read_with<da::ipc_deserialize>, write_with<da::Type, da::ipc_serialize>}}},
      wids_enum<dp::Packet, dp::netconf_deserialize, dp::ipc_deserialize, dp::to_str,
                dp::ipc_serialize>("WidsDosPacket"),
      {"mfp::Mode",
       "config",
       {{"config", read_with<mfp::from_wlc_config>, write_with<mfp::Mode, mfp::to_ap_config>}}},
      {"radio::Band",
       "plain",
       {{"text", read_with<radio::band::from_str_opt>,
         write_with<radio::Band, radio::band::to_str_opt>},
        {"text (throwing)", nullptr, write_with<radio::Band, radio::band::to_str>}}},
  };
  return table;
}

EnumInfo const* find_enum(std::string_view name) {
  auto const& table = enumerations();
  auto const it = std::find_if(table.begin(), table.end(), [name](EnumInfo const& info) {
    return info.name == name ||
           (info.name.size() > name.size() && info.name.substr(0, name.size()) == name &&
            info.name.substr(name.size(), 2) == "::");
  });
  return it == table.end() ? nullptr : &*it;
}

/// The decimal number of the whole text, when it is one.
std::optional<std::int64_t> as_number(std::string const& text) {
  std::int64_t value = 0;
  char const* const end = text.data() + text.size();
  auto const [ptr, ec] = std::from_chars(text.data(), end, value);
  if (text.empty() || ec != std::errc() || ptr != end) {
    return std::nullopt;
  }
  return value;
}

std::string quoted(std::optional<std::string> const& text) {
  return text ? "\"" + printable(*text) + "\"" : std::string("none");
}

/// The text of a number in one dialect, with " (fallback)" when it does not read back to it.
std::string written(Dialect const& dialect, std::int32_t number) {
  std::optional<std::string> text;
  try {
    text = dialect.write(number);
  } catch (std::exception const& e) {
    return std::string("throws: ") + printable(e.what());
  }
  // No writer writes "" for a value of its table, so "" is always a fallback.
  bool const fallback = !text || text->empty() ||
                        (dialect.read != nullptr && dialect.read(*text) != std::optional(number));
  return quoted(text) + (fallback ? " (fallback)" : "");
}

/// The numbers that some dialect writes and reads back: the values of the enumeration.
std::vector<std::int32_t> values_of(EnumInfo const& info) {
  std::vector<std::int32_t> out;
  for (std::int32_t n = 0; n < 256; ++n) {
    for (Dialect const& dialect : info.dialects) {
      if (dialect.write == nullptr) {
        continue;
      }
      std::optional<std::string> text;
      try {
        text = dialect.write(n);
      } catch (std::exception const&) {
        continue;
      }
      if (text && !text->empty() &&
          (dialect.read == nullptr || dialect.read(*text) == std::optional(n))) {
        out.push_back(n);
        break;
      }
    }
  }
  return out;
}

std::string dialect_labels(EnumInfo const& info) {
  std::string out;
  for (Dialect const& dialect : info.dialects) {
    out += out.empty() ? "" : ", ";
    out += dialect.label;
  }
  return out.empty() ? std::string("no text forms") : out;
}

int list_enums() {
  std::size_t width = 0;
  for (EnumInfo const& info : enumerations()) {
    width = std::max(width, info.name.size());
  }
  for (EnumInfo const& info : enumerations()) {
    std::cout << info.name << std::string(width - info.name.size() + 2, ' ') << info.family
              << std::string(8 - info.family.size(), ' ') << dialect_labels(info) << '\n';
  }
  return kExitOk;
}

int show_enum(EnumInfo const& info) {
  std::cout << info.name << " (" << info.family << "): " << dialect_labels(info) << '\n';
  for (std::int32_t const n : values_of(info)) {
    std::cout << "  " << n << ':';
    char const* separator = " ";
    for (Dialect const& dialect : info.dialects) {
      if (dialect.write != nullptr) {
        std::cout << separator << dialect.label << ' ' << written(dialect, n);
        separator = ", ";
      }
    }
    std::cout << '\n';
  }
  return kExitOk;
}

/// " = <form> <text>": a number named in the first form that writes, for readers without a writer
/// of their own; "" when no form writes.
std::string named(EnumInfo const& info, std::int32_t number) {
  auto const writer = std::find_if(info.dialects.begin(), info.dialects.end(),
                                   [](Dialect const& d) { return d.write != nullptr; });
  if (writer == info.dialects.end()) {
    return {};
  }
  return " = " + std::string(writer->label) + ' ' + written(*writer, number);
}

int show_text(EnumInfo const& info, std::string const& text) {
  std::cout << info.name << " \"" << printable(text) << "\"\n";
  for (Dialect const& dialect : info.dialects) {
    if (dialect.read == nullptr) {
      continue;
    }
    std::optional<std::int32_t> const number = dialect.read(text);
    std::cout << "  from " << dialect.label << ": ";
    if (!number) {
      std::cout << "none (fallback)\n";
      continue;
    }
    std::cout << *number;
    if (dialect.write == nullptr) {
      std::cout << named(info, *number);
    } else {
      std::optional<std::string> back;
      try {
        back = dialect.write(*number);
      } catch (std::exception const&) {
      }
      if (back != std::optional<std::string>(text)) {
        std::cout << " = " << dialect.label << ' ' << quoted(back) << " (fallback)";
      }
    }
    std::cout << '\n';
  }
  return kExitOk;
}

int show_number(EnumInfo const& info, std::int64_t value) {
  std::cout << info.name << ' ' << value << '\n';
  for (Dialect const& dialect : info.dialects) {
    if (dialect.read_code != nullptr && value >= 0 && value <= 0xffffffffLL) {
      std::optional<std::int32_t> const number = dialect.read_code(static_cast<unsigned>(value));
      std::cout << "  from " << dialect.label << ": ";
      if (number) {
        std::cout << *number << named(info, *number) << '\n';
      } else {
        std::cout << "none (fallback)\n";
      }
    }
  }
  if (value < INT32_MIN || value > INT32_MAX) {
    std::cout << "  (not a value of a 32-bit enumeration)\n";
    return kExitOk;
  }
  for (Dialect const& dialect : info.dialects) {
    if (dialect.write != nullptr) {
      std::cout << "  to " << dialect.label << ": "
                << written(dialect, static_cast<std::int32_t>(value)) << '\n';
    }
  }
  return kExitOk;
}

int run_enum(std::string const& name, std::optional<std::string> const& value) {
  if (name.empty()) {
    return list_enums();
  }
  EnumInfo const* const info = find_enum(name);
  if (info == nullptr) {
    return fail("enum", "no enumeration '" + printable(name) + "' (run 'wlccw enum' for the list)");
  }
  if (!value) {
    return show_enum(*info);
  }
  if (std::optional<std::int64_t> const number = as_number(*value)) {
    return show_number(*info, *number);
  }
  return show_text(*info, *value);
}

} // namespace

Subcommand add_enum(CLI::App& tool) {
  struct Args {
    std::string name;
    std::optional<std::string> value;
  };
  auto args = std::make_shared<Args>();
  CLI::App* app = tool.add_subcommand(
      "enum", "List the enumerations; with NAME, its values; with NAME VALUE, the number of a text "
              "in every form, or the text of a number in every form, marking fallbacks");
  app->add_option("NAME", args->name, "The enumeration (as 'wlccw enum' lists it)");
  app->add_option("VALUE", args->value, "A text in any form, or a decimal number");
  return {app, [args] { return run_enum(args->name, args->value); }};
}

namespace {

// ---- ip TEXT ------------------------------------------------------------------------------------

int run_ip(std::string const& text) {
  IpAddr ip;
  ip = text.c_str();
  if (!ip.valid || text.find('\0') != std::string::npos) {
    return fail("ip", "'" + printable(text) + "' is not an IPv4 address");
  }
  std::cout << ip.str() << '\n';
  return kExitOk;
}

} // namespace

Subcommand add_ip(CLI::App& tool) {
  auto text = std::make_shared<std::string>();
  CLI::App* app = tool.add_subcommand(
      "ip", "Parse an IPv4 address as the daemons do and print it in dotted decimal form");
  app->add_option("TEXT", *text, "The address text")->required();
  return {app, [text] { return run_ip(*text); }};
}

namespace {

// ---- version TEXT -------------------------------------------------------------------------------

int run_version(std::string const& text) {
  std::optional<Version> const version = Version::try_parse(text);
  if (!version) {
    try {
      static_cast<void>(Version::parse(text));
    } catch (std::exception const& e) {
      return fail("version", printable(e.what()));
    }
    return fail("version", "'" + printable(text) + "' is not a version");
  }
  std::cout << "text: " << printable(version->text()) << '\n'
            << "numbers: " << version->numbers().to_string() << '\n'
            << "major: " << version->major << '\n'
            << "minor: " << version->minor << '\n'
            << "patch: " << version->patch << '\n';
  return kExitOk;
}

} // namespace

Subcommand add_version(CLI::App& tool) {
  auto text = std::make_shared<std::string>();
  CLI::App* app = tool.add_subcommand(
      "version", "Parse a version text (major.minor.patch, any suffix) and print its parts");
  app->add_option("TEXT", *text, "The version text")->required();
  return {app, [text] { return run_version(*text); }};
}

namespace {

// ---- html-decode TEXT ---------------------------------------------------------------------------

int run_html_decode(std::string const& text) {
  std::cout << printable(external_data::ap::decode_html_safe(std::string_view(text))) << '\n';
  return kExitOk;
}

} // namespace

Subcommand add_html_decode(CLI::App& tool) {
  auto text = std::make_shared<std::string>();
  CLI::App* app = tool.add_subcommand(
      "html-decode", "Decode the &#xHH; byte escapes of an AP's text as the daemons do, control "
                     "bytes made '.'; bytes outside printable ASCII are shown as \\xNN");
  app->add_option("TEXT", *text, "The text")->required();
  return {app, [text] { return run_html_decode(*text); }};
}

} // namespace wlccw::tool
