// The two exceptions of the record readers that take a tree node.
#pragma once

#include <wlccw/export.hpp>

#include <stdexcept>

namespace wlccw {

/// Thrown by a reader given a null node: "JSON pointer is null".
class WLCCW_EXPORT InvalidJsonPointer : public std::invalid_argument {
public:
  InvalidJsonPointer();
  ~InvalidJsonPointer() override;
  InvalidJsonPointer(InvalidJsonPointer const&) = default;
  InvalidJsonPointer& operator=(InvalidJsonPointer const&) = default;
};

/// Thrown by a reader given a tree that holds no member or element: "JSON data is empty".
class WLCCW_EXPORT EmptyJson : public std::invalid_argument {
public:
  EmptyJson();
  ~EmptyJson() override;
  EmptyJson(EmptyJson const&) = default;
  EmptyJson& operator=(EmptyJson const&) = default;
};

} // namespace wlccw
