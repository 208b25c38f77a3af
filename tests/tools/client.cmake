# wlccw tool runs of the client families: `convert` and `hash` over client records, the client list
# by interface, the authentication aggregates and the client lists of several APs.

set(cs tests/data/client)
set(ct tests/data/tools/client)

# ---- client: NETCONF -> IPC, the library's own expected IPC texts ------------------------------
foreach(sample netconf-full netconf-minimal netconf-hostile netconf-html-escapes
               netconf-rfc7951-strings mlo-ap-client-three-links)
  wlccw_tool_test(client.${sample} RC 0 ARGS convert client ${cs}/${sample}.json
                  STDOUT client/${sample}.ipc.json)
  # The IPC text read back gives the same text.
  wlccw_tool_test(client.${sample}.round_trip RC 0
                  ARGS convert client --from ipc ${cs}/${sample}.ipc.json
                  STDOUT client/${sample}.ipc.json)
endforeach()
wlccw_tool_test(client.stdin RC 0 ARGS convert client STDIN client/netconf-minimal.json
                STDOUT client/netconf-minimal.ipc.json)
wlccw_tool_test(client.stdin_dash RC 0 ARGS convert client - STDIN client/netconf-minimal.json
                STDOUT client/netconf-minimal.ipc.json)
# An array of clients, and a reply holding them: one line per client, in input order.
wlccw_tool_test(client.array RC 0 ARGS convert client ${ct}/array.json
                STDOUT tools/client/array.out)
# The first array of client objects, depth first; --path picks another one.
wlccw_tool_test(client.reply RC 0 ARGS convert client ${ct}/reply.json
                STDOUT tools/client/reply.out)
wlccw_tool_test(client.reply_path RC 0
                ARGS convert client --path /rpc-reply/data/other/station ${ct}/reply.json
                STDOUT tools/client/reply-path.out)
wlccw_tool_test(client.several RC 0 ARGS convert client ${cs}/netconf-minimal.json ${ct}/array.json
                STDOUT tools/client/several.out)
wlccw_tool_test(client.pretty RC 0 ARGS convert client --pretty ${cs}/netconf-minimal.json
                STDOUT tools/client/minimal-pretty.out)
wlccw_tool_test(client.summary RC 0 ARGS convert client --to summary ${cs}/netconf-full.json
                STDOUT tools/client/full-summary.out)
wlccw_tool_test(client.summary_several RC 0
                ARGS convert client --to summary ${cs}/netconf-minimal.json ${ct}/array.json
                STDOUT tools/client/several-summary.out)

# ---- client: bad input -------------------------------------------------------------------------
wlccw_tool_test(client.garbage RC 1 ARGS convert client tests/data/tools/garbage.txt
                STDERR tools/client/garbage.err)
wlccw_tool_test(client.empty_file RC 1 ARGS convert client tests/data/tools/empty.txt
                STDERR tools/client/empty-file.err)
wlccw_tool_test(client.truncated RC 1 ARGS convert client ${ct}/truncated.json
                STDERR tools/client/truncated.err)
wlccw_tool_test(client.wrong_kind RC 1 ARGS convert client tests/data/monitoring/reply-full.json
                STDERR tools/client/wrong-kind.err)
wlccw_tool_test(client.missing_file RC 1 ARGS convert client ${ct}/no-such-file.json
                STDERR tools/client/missing.err)
wlccw_tool_test(client.bad_hw_addr RC 1 ARGS convert client ${ct}/bad-hw-addr.json
                STDERR tools/client/bad-hw-addr.err)
wlccw_tool_test(client.bad_client_in_array RC 1 ARGS convert client ${ct}/bad-hw-addr-in-array.json
                STDERR tools/client/bad-hw-addr-in-array.err)
wlccw_tool_test(client.empty_array RC 1 ARGS convert client ${ct}/empty-array.json
                STDERR tools/client/empty-array.err)
wlccw_tool_test(client.path_missing RC 1
                ARGS convert client --path /rpc-reply/data/nothing ${ct}/reply.json
                STDERR tools/client/path-missing.err)
wlccw_tool_test(client.ipc_not_object RC 1 ARGS convert client --from ipc ${ct}/array.json
                STDERR tools/client/ipc-not-object.err)
wlccw_tool_test(client.ipc_empty_object RC 1 ARGS convert client --from ipc ${ct}/empty-object.json
                STDERR tools/client/ipc-empty-object.err)
wlccw_tool_test(client.ipc_empty_ssid RC 1 ARGS convert client --from ipc ${ct}/empty-ssid.ipc.json
                STDERR tools/client/ipc-empty-ssid.err)
# Every file is processed; the failure is reported and sets the status.
wlccw_tool_test(client.several_one_bad RC 1
                ARGS convert client ${cs}/netconf-minimal.json ${ct}/bad-hw-addr.json ${ct}/array.json
                STDOUT tools/client/several-one-bad.out STDERR tools/client/several-one-bad.err)

# ---- convert: usage errors ---------------------------------------------------------------------
wlccw_tool_test(client.no_hash RC 2 ARGS convert client --hash ${cs}/netconf-minimal.json
                STDERR tools/client/client-hash.err)
wlccw_tool_test(convert.unknown_kind RC 2 ARGS convert frobnicate ${cs}/netconf-minimal.json
                STDERR tools/client/unknown-kind.err)
wlccw_tool_test(convert.no_netconf_form RC 2
                ARGS convert ap-with-clients --from netconf ${ct}/ap-with-clients.json
                STDERR tools/client/no-netconf-form.err)
wlccw_tool_test(convert.path_with_ipc RC 2
                ARGS convert client --from ipc --path /a ${cs}/netconf-minimal.ipc.json
                STDERR tools/client/path-with-ipc.err)
wlccw_tool_test(convert.summary_with_hash RC 2
                ARGS convert clients --to summary --hash ${ct}/array.json
                STDERR tools/client/summary-with-hash.err)
wlccw_tool_test(convert.bad_from RC 2 ARGS convert client --from xml ${ct}/array.json
                STDERR_REGEX "--from")
wlccw_tool_test(convert.bad_to RC 2 ARGS convert client --to xml ${ct}/array.json
                STDERR_REGEX "--to")
wlccw_tool_test(convert.no_kind RC 2 ARGS convert STDERR_REGEX "KIND")
wlccw_tool_test(convert.help RC 0 ARGS convert --help
                STDOUT_REGEX "Usage: wlccw convert.*--pretty.*--hash.*\n  client  .*\n  clients  .*\n  neighbours  ")
wlccw_tool_test(hash.help RC 0 ARGS hash --help STDOUT_REGEX "Usage: wlccw hash")
wlccw_tool_test(hash.no_file RC 2 ARGS hash clients STDERR_REGEX "FILE")

# ---- clients -----------------------------------------------------------------------------------
wlccw_tool_test(clients.array RC 0 ARGS convert clients ${ct}/array.json
                STDOUT tools/client/clients.out)
wlccw_tool_test(clients.round_trip RC 0 ARGS convert clients --from ipc ${ct}/clients.out
                STDOUT tools/client/clients.out)
wlccw_tool_test(clients.summary RC 0 ARGS convert clients --to summary ${ct}/array.json
                STDOUT tools/client/clients-summary.out)
wlccw_tool_test(clients.hash RC 0 ARGS convert clients --hash ${ct}/array.json
                STDOUT tools/client/clients-hash.out)
wlccw_tool_test(clients.hash_subcommand RC 0 ARGS hash clients ${ct}/array.json
                STDOUT tools/client/clients-hash-only.out)
wlccw_tool_test(clients.hash_of_ipc RC 0 ARGS hash clients --from ipc ${ct}/clients.out
                STDOUT tools/client/clients-hash-only.out)
wlccw_tool_test(clients.empty_reply RC 1 ARGS convert clients ${ct}/empty-reply.json
                STDERR tools/client/empty-reply.err)
wlccw_tool_test(clients.ipc_wrong_kind RC 1
                ARGS convert clients --from ipc ${cs}/netconf-minimal.ipc.json
                STDERR tools/client/clients-ipc-wrong-kind.err)
wlccw_tool_test(clients.ipc_garbage RC 1 ARGS convert clients --from ipc tests/data/tools/garbage.txt
                STDERR_REGEX "garbage.txt: not valid JSON")

# ---- authenticated-clients ---------------------------------------------------------------------
wlccw_tool_test(authenticated_clients.netconf RC 0
                ARGS convert authenticated-clients ${cs}/netconf-full.json ${ct}/array.json
                STDOUT tools/client/authenticated.out)
wlccw_tool_test(authenticated_clients.netconf_one RC 0
                ARGS convert authenticated-clients ${cs}/netconf-full.json
                STDOUT tools/client/authenticated-full.out)
wlccw_tool_test(authenticated_clients.round_trip RC 0
                ARGS convert authenticated-clients --from ipc ${ct}/authenticated-full.out
                STDOUT tools/client/authenticated-full.out)
wlccw_tool_test(authenticated_clients.summary RC 0
                ARGS convert authenticated-clients --to summary ${cs}/netconf-full.json
                STDOUT tools/client/authenticated-summary.out)
wlccw_tool_test(authenticated_clients.ipc_wrong_kind RC 1
                ARGS convert authenticated-clients --from ipc ${ct}/clients.out
                STDERR tools/client/authenticated-ipc-wrong-kind.err)
wlccw_tool_test(authenticated_clients.no_hash RC 2 ARGS hash authenticated-clients
                ${cs}/netconf-full.json STDERR_REGEX "authenticated-clients has no change hash")

# ---- clients-by-auth-type ----------------------------------------------------------------------
wlccw_tool_test(clients_by_auth_type.netconf RC 0
                ARGS convert clients-by-auth-type ${cs}/netconf-full.json ${ct}/array.json
                STDOUT tools/client/by-auth-type.out)
wlccw_tool_test(clients_by_auth_type.summary RC 0
                ARGS convert clients-by-auth-type --to summary ${cs}/netconf-full.json
                STDOUT tools/client/by-auth-type-summary.out)
wlccw_tool_test(clients_by_auth_type.ipc_wrong_kind RC 1
                ARGS convert clients-by-auth-type --from ipc ${ct}/clients.out
                STDERR tools/client/by-auth-type-ipc-wrong-kind.err)

# ---- ap-with-clients (IPC only) ----------------------------------------------------------------
wlccw_tool_test(ap_with_clients.ipc RC 0 ARGS convert ap-with-clients ${ct}/ap-with-clients.json
                STDOUT tools/client/ap-with-clients.out)
wlccw_tool_test(ap_with_clients.round_trip RC 0
                ARGS convert ap-with-clients --from ipc ${ct}/ap-with-clients.out
                STDOUT tools/client/ap-with-clients.out)
wlccw_tool_test(ap_with_clients.summary RC 0
                ARGS convert ap-with-clients --to summary ${ct}/ap-with-clients.json
                STDOUT tools/client/ap-with-clients-summary.out)
wlccw_tool_test(ap_with_clients.wrong_kind RC 1 ARGS convert ap-with-clients ${ct}/clients.out
                STDERR tools/client/ap-with-clients-wrong-kind.err)

# ---- several inputs, --hash with --pretty, standard input --------------------------------------
# More than four files with stderr not a terminal: no progress bar, so stderr stays empty.
wlccw_tool_test(client.five_files_no_bar RC 0
                ARGS convert client ${cs}/netconf-minimal.json ${cs}/netconf-minimal.json
                     ${cs}/netconf-minimal.json ${cs}/netconf-minimal.json ${cs}/netconf-minimal.json
                STDOUT_REGEX "^({\"mac\":\"00:1a:2b:3c:4d:5e\",\"interface\":\"wlan0-vap0\",\"ssid\":\"Guest\"}\n)+$")
wlccw_tool_test(clients.hash_pretty RC 0 ARGS convert clients --hash --pretty ${cs}/netconf-minimal.json
                STDOUT tools/client/clients-hash-pretty.out)
wlccw_tool_test(clients.reply RC 0 ARGS convert clients ${ct}/reply.json
                STDOUT tools/client/clients-reply.out)
wlccw_tool_test(clients.hash_stdin RC 0 ARGS hash clients - STDIN tools/client/array.json
                STDOUT tools/client/clients-hash-only.out)
