// Everything the library offers, in one include.
#pragma once

#include <wlccw/export.hpp>
#include <wlccw/version.hpp>

// The host's tree interface and the RAII owners over it.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

// Foundation types.
#include <wlccw/common/IpAddr.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/common/Timer.hpp>
#include <wlccw/common/Version.hpp>
#include <wlccw/common/containers.hpp>
#include <wlccw/common/errors.hpp>
#include <wlccw/common/hash.hpp>
#include <wlccw/common/html.hpp>
#include <wlccw/common/tools.hpp>

// Controller service messages.
#include <wlccw/ipc/ApWidsMacLists.hpp>
