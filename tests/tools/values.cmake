# wlccw tool runs of the value subcommands: enum, ip, version, html-decode.

# ---- enum: the table, one enumeration, texts and numbers of each kind of converter ---------------
wlccw_tool_test(values.enum.list RC 0 ARGS enum STDOUT tools/values/enum-list.out)
wlccw_tool_test(values.enum.help RC 0 ARGS enum --help STDOUT_REGEX "Usage: wlccw enum")
wlccw_tool_test(values.enum.unknown_name RC 1 ARGS enum Nope x
                STDERR tools/values/enum-unknown-name.err)
wlccw_tool_test(values.enum.too_many RC 2 ARGS enum RadioBand 5g 6g)

# Client dictionaries: NETCONF readers give an empty optional, IPC readers an optional or ASSOC.
wlccw_tool_test(values.enum.connected_values RC 0 ARGS enum ClientConnectedEventType
                STDOUT tools/values/enum-connected.out)
wlccw_tool_test(values.enum.connected_netconf RC 0
                ARGS enum ClientConnectedEventType wds-connected
                STDOUT tools/values/enum-connected-netconf.out)
wlccw_tool_test(values.enum.connected_ipc RC 0 ARGS enum ClientConnectedEventType wds_connected
                STDOUT tools/values/enum-connected-ipc.out)
wlccw_tool_test(values.enum.connected_unknown_number RC 0 ARGS enum ClientConnectedEventType 7
                STDOUT tools/values/enum-connected-unknown-number.out)
wlccw_tool_test(values.enum.eap_netconf RC 0 ARGS enum ClientEapMethod EAP-TLS
                STDOUT tools/values/enum-eap-netconf.out)
wlccw_tool_test(values.enum.eap_unknown RC 0 ARGS enum ClientEapMethod EAP-NONE
                STDOUT tools/values/enum-eap-unknown.out)
wlccw_tool_test(values.enum.eap_number RC 0 ARGS enum ClientEapMethod 3
                STDOUT tools/values/enum-eap-number.out)
wlccw_tool_test(values.enum.eap_unknown_number RC 0 ARGS enum ClientEapMethod 99
                STDOUT tools/values/enum-eap-unknown-number.out)
wlccw_tool_test(values.enum.wireless_mode_unknown RC 0 ARGS enum ClientWirelessMode 11ax
                STDOUT tools/values/enum-wireless-mode-unknown.out)

# The X converters: UNKNOWN for an unknown text, "UNKNOWN" for a number past the table.
wlccw_tool_test(values.enum.radioband_known RC 0 ARGS enum RadioBand 5g
                STDOUT tools/values/enum-radioband-known.out)
wlccw_tool_test(values.enum.radioband_unknown RC 0 ARGS enum RadioBand bogus
                STDOUT tools/values/enum-radioband-unknown.out)
wlccw_tool_test(values.enum.radioband_number RC 0 ARGS enum RadioBand 3
                STDOUT tools/values/enum-radioband-number.out)
wlccw_tool_test(values.enum.radioband_unknown_number RC 0 ARGS enum RadioBand 9
                STDOUT tools/values/enum-radioband-unknown-number.out)
wlccw_tool_test(values.enum.vrrp_values RC 0 ARGS enum VrrpRole STDOUT tools/values/enum-vrrp.out)

# The WIDS converters, each with its own fallback.
wlccw_tool_test(values.enum.banned_auth_code RC 0 ARGS enum WidsClientBannedAuthMethod 7
                STDOUT tools/values/enum-banned-auth-code.out)
wlccw_tool_test(values.enum.banned_auth_text RC 0 ARGS enum WidsClientBannedAuthMethod personal
                STDOUT tools/values/enum-banned-auth-text.out)
wlccw_tool_test(values.enum.banned_auth_unknown RC 0 ARGS enum WidsClientBannedAuthMethod wpa
                STDOUT tools/values/enum-banned-auth-unknown.out)
wlccw_tool_test(values.enum.rogue_unknown RC 0 ARGS enum WidsDetectedRogueReason nonsense
                STDOUT tools/values/enum-rogue-unknown.out)
wlccw_tool_test(values.enum.dos_attack_unknown RC 0 ARGS enum WidsDosAttack flood
                STDOUT tools/values/enum-dos-attack-unknown.out)
wlccw_tool_test(values.enum.dos_packet_null RC 0 ARGS enum WidsDosPacket 27
                STDOUT tools/values/enum-dos-packet-number.out)

# Configuration words and the plain converters.
wlccw_tool_test(values.enum.mfp_short_name RC 0 ARGS enum mfp capable
                STDOUT tools/values/enum-mfp.out)
wlccw_tool_test(values.enum.mfp_unknown_number RC 0 ARGS enum mfp::Mode 9
                STDOUT tools/values/enum-mfp-number.out)
wlccw_tool_test(values.enum.radio_band_throws RC 0 ARGS enum radio::Band 5
                STDOUT tools/values/enum-radio-band-number.out)
wlccw_tool_test(values.enum.power_unknown RC 0 ARGS enum PowerSupply PoE
                STDOUT tools/values/enum-power-unknown.out)
wlccw_tool_test(values.enum.macauth_unknown RC 0 ARGS enum MacAuthMode Radius
                STDOUT tools/values/enum-macauth-unknown.out)

# ---- ip ----------------------------------------------------------------------------------------
wlccw_tool_test(values.ip.good RC 0 ARGS ip 192.168.1.20 STDOUT tools/values/ip-good.out)
wlccw_tool_test(values.ip.octal_hex RC 0 ARGS ip 010.0x10.1.2 STDOUT tools/values/ip-octal-hex.out)
wlccw_tool_test(values.ip.too_large RC 1 ARGS ip 1.2.3.256 STDERR tools/values/ip-too-large.err)
wlccw_tool_test(values.ip.dash RC 1 ARGS ip 1-2.3.4 STDERR tools/values/ip-dash.err)
wlccw_tool_test(values.ip.three RC 1 ARGS ip 1.2.3 STDERR tools/values/ip-three.err)
wlccw_tool_test(values.ip.no_text RC 2 ARGS ip STDERR_REGEX "TEXT")

# ---- version -----------------------------------------------------------------------------------
wlccw_tool_test(values.version.suffix RC 0 ARGS version 6.4.12-rc1
                STDOUT tools/values/version-suffix.out)
wlccw_tool_test(values.version.short RC 1 ARGS version 1.2 STDERR tools/values/version-short.err)
wlccw_tool_test(values.version.over_32_bits RC 1 ARGS version 4294967296.0.0
                STDERR tools/values/version-32.err)
wlccw_tool_test(values.version.over_63_bits RC 1 ARGS version 99999999999999999999.0.0
                STDERR tools/values/version-63.err)
wlccw_tool_test(values.version.no_text RC 2 ARGS version STDERR_REGEX "TEXT")

# ---- html-decode -------------------------------------------------------------------------------
wlccw_tool_test(values.html_decode RC 0 ARGS html-decode "caf&#xe9\\\; &#x0a\\\;x&#x5c\\\;&#xzz\\\;"
                STDOUT tools/values/html-decode.out)

# A form that only reads (the AP's captive-portal answer), a third form (the command-line name) and
# a negative number.
wlccw_tool_test(values.enum.portal_status_netconf RC 0
                ARGS enum AuthPortalClientStatus clientNotFound
                STDOUT tools/values/enum-portal-status.out)
wlccw_tool_test(values.enum.wlan_auth_number RC 0 ARGS enum ClientWlanAuthMethod 3
                STDOUT tools/values/enum-wlan-auth-number.out)
wlccw_tool_test(values.enum.status_negative RC 0 ARGS enum IpcMsgStatus -1
                STDOUT tools/values/enum-status-negative.out)
