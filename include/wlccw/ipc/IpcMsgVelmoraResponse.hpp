/// \file
/// The radio-optimisation service's answer to a request: the operation answered, its outcome, an
/// optional cause and the result data, kept as compact JSON text.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/enums/VelmoraMsgType.hpp>
#include <wlccw/enums/VelmoraRespStatus.hpp>
#include <wlccw/export.hpp>

#include <string>
#include <string_view>

/// One response of the optimisation service.
///
/// IPC form: {"type":"<operation>","status":"<outcome>","cause":"<text>","data":{...}}, with
/// "cause" only when there is one.
class WLCCW_EXPORT IpcMsgVelmoraResponse {
public:
  /// The operation answered.
  VelmoraMsgType type = VelmoraMsgType::GET_COMMON;
  /// The outcome.
  VelmoraRespStatus status = VelmoraRespStatus::SUCCESS;
  /// Why the operation failed, usually; "" when there is no cause.
  std::string cause;
  /// The "data" object as compact JSON text; "" when none was read.
  std::string data;

  /// Operation "get_common", status "success", no cause, empty `data`.
  IpcMsgVelmoraResponse() = default;
  /// Reads the IPC text. Never throws on bad input: text that is not JSON leaves the defaults
  /// (GET_COMMON, SUCCESS, `cause` and `data` ""). Otherwise "type" and "status" go through their
  /// FromStrX converters (missing or unknown: UNKNOWN), "cause" is read as text ("" when missing),
  /// a "data" member is kept as its compact text (whatever kind of JSON it holds), and `data`
  /// that is still empty afterwards (no "data") becomes "{}".
  explicit IpcMsgVelmoraResponse(std::string_view json);

  /// The IPC tree, owned by the caller (release it with cfg_release); null when no object can be
  /// made. "type" and "status" are the ToStrX texts, "cause" is written only when not "", and
  /// "data" is the parse of `data`: an empty object when `data` is "", left out when `data` is not
  /// JSON.
  lcw_data_t* get_json() const;
  /// The compact text of get_json(); "" when no tree can be made.
  std::string to_str() const;

  /// Same operation, outcome and cause, and the same `data` text (compared as text, not as JSON).
  friend bool operator==(IpcMsgVelmoraResponse const&, IpcMsgVelmoraResponse const&) = default;
};
