/// \file
/// The two exceptions of the record readers that take a tree node.
#pragma once

#include <wlccw/export.hpp>

#include <stdexcept>

/// The library's own names: its exceptions, its version and, in wlccw::cfg, its helpers over the
/// tree interface.
namespace wlccw {

/// Thrown by a record reader given a null node (a text that did not parse, a missing member):
/// what() is "JSON pointer is null".
class WLCCW_EXPORT InvalidJsonPointer : public std::invalid_argument {
public:
  /// The exception with its fixed message.
  InvalidJsonPointer();
  /// Destroys the exception.
  ~InvalidJsonPointer() override;
  /// A copy, with the same message.
  InvalidJsonPointer(InvalidJsonPointer const&) = default;
  /// Copy assignment; the message stays the same.
  InvalidJsonPointer& operator=(InvalidJsonPointer const&) = default;
};

/// Thrown by a record reader given a node for which cfg_is_empty() is nonzero (an empty object or
/// array, a scalar): what() is "JSON data is empty".
class WLCCW_EXPORT EmptyJson : public std::invalid_argument {
public:
  /// The exception with its fixed message.
  EmptyJson();
  /// Destroys the exception.
  ~EmptyJson() override;
  /// A copy, with the same message.
  EmptyJson(EmptyJson const&) = default;
  /// Copy assignment; the message stays the same.
  EmptyJson& operator=(EmptyJson const&) = default;
};

} // namespace wlccw
