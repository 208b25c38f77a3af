#include <wlccw/common/errors.hpp>

namespace wlccw {

InvalidJsonPointer::InvalidJsonPointer() : std::invalid_argument("JSON pointer is null") {}
InvalidJsonPointer::~InvalidJsonPointer() = default;

EmptyJson::EmptyJson() : std::invalid_argument("JSON data is empty") {}
EmptyJson::~EmptyJson() = default;

} // namespace wlccw
