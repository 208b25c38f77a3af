/// \file
/// A request to the radio-optimisation service: the operation asked for and its parameters, kept as
/// compact JSON text and picked apart on demand by typed accessors.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/enums/VelmoraMsgType.hpp>
#include <wlccw/export.hpp>

#include <optional>
#include <string>
#include <string_view>

/// One request to the optimisation service.
///
/// IPC form: {"type":"<operation>","params":{...}}. The parameters are opaque to the controller;
/// get_mac, get_band, get_days and get_location read the few it needs, parsing `params` afresh
/// on every call.
class WLCCW_EXPORT IpcMsgVelmoraRequest {
public:
  /// The operation asked for.
  VelmoraMsgType type = VelmoraMsgType::GET_COMMON;
  /// The "params" object as compact JSON text; "" when none was read.
  std::string params;

  /// Operation "get_common" and empty `params`.
  IpcMsgVelmoraRequest() = default;
  /// Reads the IPC text. Never throws on bad input: text that is not JSON leaves the defaults
  /// (GET_COMMON, `params` ""). Otherwise "type" goes through VelmoraMsgTypeFromStrX (missing or
  /// unknown: UNKNOWN), a "params" member is kept as its compact text (whatever kind of JSON it
  /// holds), and `params` that is still empty afterwards (no "params") becomes "{}".
  explicit IpcMsgVelmoraRequest(std::string_view json);

  /// The IPC tree, owned by the caller (release it with cfg_release); null when no object can be
  /// made. "type" is VelmoraMsgTypeToStrX(type); "params" is the parse of `params`, an empty
  /// object when `params` is "", and left out when `params` is not JSON.
  lcw_data_t* get_json() const;
  /// The compact text of get_json(); "" when no tree can be made.
  std::string to_str() const;

  /// The "mac" parameter. Empty, with `valid` untouched, when `params` is "" or not JSON.
  /// Otherwise `valid` tells whether the parameter is a MAC address text (colon form or twelve
  /// hexadecimal digits), and the result holds the address only when it is one.
  std::optional<MacAddr> get_mac(bool& valid) const;
  /// The "band" parameter. Empty, with `valid` untouched, when `params` is "" or not JSON, or when
  /// the parameter is missing or "". Otherwise `valid` tells whether it names a band ("2g", "5g",
  /// "6g", exactly), and the result holds the text unchanged only when it does.
  std::optional<std::string> get_band(bool& valid) const;
  /// The "days" parameter: an unsigned integer (a JSON number or a decimal string that fits);
  /// empty when `params` is "" or not JSON, or the parameter is missing or not such a number.
  std::optional<unsigned int> get_days() const;
  /// The "location" parameter text; empty when `params` is "" or not JSON, or the text is missing
  /// or "".
  std::optional<std::string> get_location() const;

  /// Same operation and the same `params` text (compared as text, not as JSON).
  friend bool operator==(IpcMsgVelmoraRequest const&, IpcMsgVelmoraRequest const&) = default;
};
