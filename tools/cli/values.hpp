// The subcommands of the wlccw tool that read one value from the command line: enumeration names
// and numbers, IPv4 addresses, version strings and HTML byte escapes.
#pragma once

#include "cli/io.hpp"

#include <CLI/CLI.hpp>

namespace wlccw::tool {

// Each declares its subcommand on the tool and returns it for dispatch.
Subcommand add_enum(CLI::App& tool);
Subcommand add_ip(CLI::App& tool);
Subcommand add_version(CLI::App& tool);
Subcommand add_html_decode(CLI::App& tool);

} // namespace wlccw::tool
