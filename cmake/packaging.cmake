# Debian packages of an installed wlccw, one per install component (`make package`, or cpack in a
# configured build tree):
#   libwlccw0     component runtime:     libwlccw.so.0* and libwlccw_cfgtree.so.0*
#   libwlccw-dev  component development: headers, the unversioned .so links, the CMake package,
#                                        the pkg-config files
#   wlccw-tools   component tools:       the wlccw command-line tool
# The files land in <build>/packages/ as <name>_<version>_<arch>.deb. A project that builds wlccw
# as a subdirectory keeps its own packaging.
if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()

set(WLCCW_PACKAGE_MAINTAINER "wlccw developers <wlccw-dev@localhost>"
    CACHE STRING "The Maintainer field of the Debian packages")

# The packages install under /usr; every destination above is relative, so the libraries, the tool's
# run path, the CMake package and the pkg-config files all follow.
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_GENERATOR "DEB")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME "${PROJECT_NAME}")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_PACKAGE_CONTACT "${WLCCW_PACKAGE_MAINTAINER}")
# Each package's description starts with its own synopsis; a shared summary would be put in front of
# all three.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_STRIP_FILES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development tools)
set(CPACK_COMPONENTS_GROUPING IGNORE)

execute_process(COMMAND dpkg --print-architecture
                OUTPUT_VARIABLE WLCCW_DEB_ARCH OUTPUT_STRIP_TRAILING_WHITESPACE
                RESULT_VARIABLE WLCCW_DEB_ARCH_RESULT ERROR_QUIET)
if(NOT WLCCW_DEB_ARCH_RESULT EQUAL 0 OR WLCCW_DEB_ARCH STREQUAL "")
  message(STATUS "dpkg not found: the Debian packages cannot be built in this tree")
endif()
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE "${WLCCW_DEB_ARCH}")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${WLCCW_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_PRIORITY "optional")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Run-time dependencies of the ELF files (C++ runtime, Boost.JSON) come from dpkg-shlibdeps; the
# library package states which package provides its SONAMEs.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

# The exact version of the libraries the headers and the tool were built with.
set(WLCCW_DEB_RUNTIME_DEPENDS "libwlccw0 (= ${PROJECT_VERSION})")

# Descriptions: the synopsis, then the extended text in lines of at most 79 characters.
set(WLCCW_DEB_ABOUT
    "libwlccw carries the facts the wireless LAN controller's daemons exchange
about access points, radios, virtual APs and wireless clients between an AP's
NETCONF JSON, the daemons' IPC JSON and in-memory records with equality,
change hashes and text forms.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "libwlccw0")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION "libs")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
    "common data types of the wireless LAN controller - shared libraries
${WLCCW_DEB_ABOUT}

This package holds libwlccw and libwlccw_cfgtree, the bundled implementation
of the JSON tree interface the library reads and writes through.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME "libwlccw-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION "libdevel")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${WLCCW_DEB_RUNTIME_DEPENDS}, libboost-json1.81-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
    "common data types of the wireless LAN controller - development files
${WLCCW_DEB_ABOUT}

This package holds the C++20 headers, the CMake package (find_package(wlccw),
target wlccw::wlccw) and the pkg-config files.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME "wlccw-tools")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION "utils")
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${WLCCW_DEB_RUNTIME_DEPENDS}")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION
    "inspect and convert the messages of the wireless LAN controller's daemons
The wlccw tool converts what an AP answered over NETCONF, or what one daemon
sent another, into the normalised IPC text, an indented JSON text, the change
hash or a short table. It also shows every form of an enumeration value and
parses addresses, versions and AP texts.")

include(CPack)
