# wlccw tool runs of the service families: rrm-ap-info, ssid2vap, vaps, full-vap,
# velmora-request, velmora-response, gre, vrrp-board-types.

set(svc tools/service)

# ---- Each family: whole output, summary, hash where it has one, IPC -> IPC ------------------------
# The normalised output read again as IPC gives the same text: the same expected file.
function(wlccw_service_family kind input)
  wlccw_tool_test(service.${kind}.ipc RC 0 ARGS convert ${kind} --from ipc tests/data/ipc/${input}
                  STDOUT ${svc}/${kind}.out)
  wlccw_tool_test(service.${kind}.round_trip RC 0
                  ARGS convert ${kind} --from ipc tests/data/${svc}/${kind}.out
                  STDOUT ${svc}/${kind}.out)
  wlccw_tool_test(service.${kind}.stdin RC 0 ARGS convert ${kind} --from ipc -
                  STDIN ipc/${input} STDOUT ${svc}/${kind}.out)
endfunction()

wlccw_service_family(rrm-ap-info rrm-ap-info.json)
wlccw_service_family(ssid2vap ssid2vap.json)
wlccw_service_family(full-vap full-vap.json)
wlccw_service_family(velmora-request velmora-request.json)
wlccw_service_family(velmora-response velmora-response.json)
wlccw_service_family(gre gre.json)
wlccw_service_family(vrrp-board-types vrrp-board-types.json)

wlccw_tool_test(service.rrm-ap-info.summary RC 0
                ARGS convert rrm-ap-info --to summary tests/data/ipc/rrm-ap-info.json
                STDOUT ${svc}/rrm-ap-info.summary)
wlccw_tool_test(service.rrm-ap-info.hash RC 0
                ARGS convert rrm-ap-info --hash tests/data/ipc/rrm-ap-info.json
                STDOUT ${svc}/rrm-ap-info.hash)
wlccw_tool_test(service.ssid2vap.summary RC 0
                ARGS convert ssid2vap --to summary tests/data/ipc/ssid2vap.json
                STDOUT ${svc}/ssid2vap.summary)
wlccw_tool_test(service.ssid2vap.no_hash RC 2 ARGS hash ssid2vap tests/data/ipc/ssid2vap.json
                STDERR_REGEX "ssid2vap has no change hash")
wlccw_tool_test(service.full-vap.summary RC 0
                ARGS convert full-vap --to summary tests/data/ipc/full-vap.json
                STDOUT ${svc}/full-vap.summary)
wlccw_tool_test(service.velmora-request.summary RC 0
                ARGS convert velmora-request --to summary tests/data/ipc/velmora-request.json
                STDOUT ${svc}/velmora-request.summary)
wlccw_tool_test(service.velmora-response.summary RC 0
                ARGS convert velmora-response --to summary tests/data/ipc/velmora-response.json
                STDOUT ${svc}/velmora-response.summary)
wlccw_tool_test(service.gre.summary RC 0 ARGS convert gre --to summary tests/data/ipc/gre.json
                STDOUT ${svc}/gre.summary)
wlccw_tool_test(service.gre.hash RC 0 ARGS hash gre tests/data/ipc/gre.json
                STDOUT ${svc}/gre.hash)
wlccw_tool_test(service.vrrp-board-types.summary RC 0
                ARGS convert vrrp-board-types --to summary tests/data/ipc/vrrp-board-types-two.json
                STDOUT ${svc}/vrrp-board-types.summary)

# ---- vaps: NETCONF array or reply, one record per accepted VAP; IPC: one VAP object -------------
wlccw_tool_test(service.vaps.netconf RC 0 ARGS convert vaps tests/data/vaps/netconf-vaps.json
                STDOUT ${svc}/vaps-netconf.out STDERR ${svc}/vaps-netconf.err)
wlccw_tool_test(service.vaps.netconf_summary RC 0
                ARGS convert vaps --to summary tests/data/vaps/netconf-vaps.json
                STDOUT ${svc}/vaps-netconf.summary STDERR ${svc}/vaps-netconf.err)
wlccw_tool_test(service.vaps.reply RC 0 ARGS convert vaps tests/data/${svc}/vaps-reply.json
                STDOUT ${svc}/vaps-reply.out)
wlccw_tool_test(service.vaps.path RC 0
                ARGS convert vaps --path /rpc-reply/data/ap/vaps/vap tests/data/${svc}/vaps-reply.json
                STDOUT ${svc}/vaps-reply.out)
wlccw_tool_test(service.vaps.bad_path RC 1 ARGS convert vaps --path /x tests/data/${svc}/vaps-reply.json
                STDERR_REGEX "vaps-reply.json: no array at /x\n$")
wlccw_tool_test(service.vaps.error_reply RC 1 ARGS convert vaps tests/data/${svc}/error-reply.json
                STDERR_REGEX "error-reply.json: an \"error\" reply: access denied\n$")
wlccw_tool_test(service.vaps.no_vaps RC 1 ARGS convert vaps tests/data/ipc/gre.json
                STDERR_REGEX "gre.json: no array of VAP objects")
wlccw_tool_test(service.vaps.ipc RC 0 ARGS convert vaps --from ipc tests/data/ipc/vap.json
                STDOUT ${svc}/vap-ipc.out)
wlccw_tool_test(service.vaps.ipc_round_trip RC 0
                ARGS convert vaps --from ipc tests/data/${svc}/vap-ipc.out STDOUT ${svc}/vap-ipc.out)
wlccw_tool_test(service.vaps.ipc_summary RC 0
                ARGS convert vaps --from ipc --to summary tests/data/ipc/vap.json
                STDOUT ${svc}/vap-ipc.summary)
wlccw_tool_test(service.vaps.ipc_rejected RC 1
                ARGS convert vaps --from ipc tests/data/${svc}/vap-rejected.json
                STDERR_REGEX "vap-rejected.json: an enabled VAP without a known \"auth-type\"\n$")
wlccw_tool_test(service.vaps.no_hash RC 2 ARGS convert vaps --hash --from ipc tests/data/ipc/vap.json
                STDERR_REGEX "vaps has no change hash")

# ---- Bad input, for every family ----------------------------------------------------------------
foreach(kind rrm-ap-info ssid2vap vaps full-vap velmora-request velmora-response gre
             vrrp-board-types)
  wlccw_tool_test(service.${kind}.garbage RC 1 ARGS convert ${kind} --from ipc
                  tests/data/tools/garbage.txt
                  STDERR_REGEX "^wlccw: convert: tests/data/tools/garbage.txt: not valid JSON\n$")
  wlccw_tool_test(service.${kind}.empty_file RC 1 ARGS convert ${kind} --from ipc
                  tests/data/tools/empty.txt
                  STDERR_REGEX "^wlccw: convert: tests/data/tools/empty.txt: empty input")
  wlccw_tool_test(service.${kind}.truncated RC 1 ARGS convert ${kind} --from ipc
                  tests/data/${svc}/truncated.json
                  STDERR_REGEX "^wlccw: convert: tests/data/${svc}/truncated.json: not valid JSON\n$")
  wlccw_tool_test(service.${kind}.missing_file RC 1 ARGS convert ${kind} --from ipc
                  tests/data/no-such-file.json
                  STDERR_REGEX "^wlccw: convert: tests/data/no-such-file.json: cannot open: ")
endforeach()
# Wrong kind: an array where an object is read, an object where the board-type array is read.
foreach(kind rrm-ap-info ssid2vap vaps full-vap velmora-request velmora-response gre)
  wlccw_tool_test(service.${kind}.not_object RC 1 ARGS convert ${kind} --from ipc
                  tests/data/tools/array.json
                  STDERR_REGEX "^wlccw: convert: tests/data/tools/array.json: not a JSON object\n$")
endforeach()
wlccw_tool_test(service.vrrp-board-types.not_array RC 1
                ARGS convert vrrp-board-types tests/data/ipc/gre.json
                STDERR_REGEX "^wlccw: convert: tests/data/ipc/gre.json: not a JSON array\n$")
wlccw_tool_test(service.vaps.netconf_garbage RC 1 ARGS convert vaps tests/data/tools/garbage.txt
                STDERR_REGEX "garbage.txt: not valid JSON\n$")
wlccw_tool_test(service.vaps.netconf_not_vaps RC 1 ARGS convert vaps tests/data/tools/array.json
                STDERR_REGEX "array.json: no array of VAP objects")

# ---- The WIDS and RADIUS families ---------------------------------------------------------------
wlccw_service_family(das-proxy das-proxy.json)
wlccw_service_family(coa-proxy coa-proxy.json)
wlccw_service_family(sa-aps sa-aps.json)
wlccw_service_family(ap-locations ap-locations.json)
wlccw_service_family(wids-lists wids-lists.json)
wlccw_service_family(attacked-aps attacked-aps.json)
foreach(kind das-proxy coa-proxy sa-aps ap-locations wids-lists attacked-aps)
  wlccw_tool_test(service.${kind}.summary RC 0
                  ARGS convert ${kind} --from ipc --to summary tests/data/ipc/${kind}.json
                  STDOUT ${svc}/${kind}.summary)
endforeach()
# Summaries show the length of a RADIUS secret, never the secret.
wlccw_tool_test(service.das-proxy.summary_hides_key RC 0
                ARGS convert das-proxy --to summary tests/data/ipc/das-proxy.json
                STDOUT_REGEX "^[^s]*(s[^3][^s]*)*$")
wlccw_tool_test(service.coa-proxy.summary_hides_password RC 0
                ARGS convert coa-proxy --to summary tests/data/ipc/coa-proxy.json
                STDOUT_REGEX "^[^s]*(s[^3][^s]*)*$")
wlccw_tool_test(service.coa-proxy.no_config RC 0
                ARGS convert coa-proxy tests/data/ipc/coa-proxy-no-config.json
                STDOUT ${svc}/coa-proxy-no-config.out)
wlccw_tool_test(service.das-proxy.hash RC 0 ARGS hash das-proxy tests/data/ipc/das-proxy.json
                STDOUT ${svc}/das-proxy.hash)
wlccw_tool_test(service.ap-locations.hash RC 0
                ARGS convert ap-locations --hash tests/data/ipc/ap-locations.json
                STDOUT ${svc}/ap-locations.hash)
wlccw_tool_test(service.wids-lists.hash RC 0
                ARGS hash wids-lists --from ipc tests/data/ipc/wids-lists.json
                STDOUT ${svc}/wids-lists.hash)
wlccw_tool_test(service.coa-proxy.no_hash RC 2 ARGS hash coa-proxy tests/data/ipc/coa-proxy.json
                STDERR_REGEX "coa-proxy has no change hash")
wlccw_tool_test(service.sa-aps.no_hash RC 2 ARGS hash sa-aps tests/data/ipc/sa-aps.json
                STDERR_REGEX "sa-aps has no change hash")
wlccw_tool_test(service.attacked-aps.no_hash RC 2 ARGS hash attacked-aps tests/data/ipc/attacked-aps.json
                STDERR_REGEX "attacked-aps has no change hash")

# wids-lists from NETCONF: the two arrays, found in a reply or at --path.
wlccw_tool_test(service.wids-lists.netconf RC 0
                ARGS convert wids-lists tests/data/${svc}/wids-lists-netconf.json
                STDOUT ${svc}/wids-lists-netconf.out)
wlccw_tool_test(service.wids-lists.netconf_path RC 0
                ARGS convert wids-lists --path /rpc-reply/data/wids tests/data/${svc}/wids-lists-netconf.json
                STDOUT ${svc}/wids-lists-netconf.out)
wlccw_tool_test(service.wids-lists.several_summary RC 0
                ARGS convert wids-lists --from ipc --to summary tests/data/wids/several.json
                STDOUT ${svc}/wids-lists-several.summary)
wlccw_tool_test(service.wids-lists.netconf_no_lists RC 1
                ARGS convert wids-lists tests/data/${svc}/wids-lists-not-array.json
                STDERR_REGEX "wids-lists-not-array.json: no \"white-list\" or \"black-list\" array found\n$")
wlccw_tool_test(service.wids-lists.netconf_error_reply RC 1
                ARGS convert wids-lists tests/data/${svc}/error-reply.json
                STDERR_REGEX "error-reply.json: an \"error\" reply: access denied\n$")

# attacked-aps from NETCONF: the AP's free text.
wlccw_tool_test(service.attacked-aps.netconf RC 0
                ARGS convert attacked-aps tests/data/wids/attacked-aps.txt
                STDOUT ${svc}/attacked-aps-netconf.out)
wlccw_tool_test(service.attacked-aps.netconf_summary RC 0
                ARGS convert attacked-aps --to summary tests/data/wids/attacked-aps.txt
                STDOUT ${svc}/attacked-aps-netconf.summary)
wlccw_tool_test(service.attacked-aps.netconf_no_report RC 0
                ARGS convert attacked-aps tests/data/tools/garbage.txt
                STDOUT ${svc}/attacked-aps-garbage.out)
wlccw_tool_test(service.attacked-aps.netconf_empty RC 1
                ARGS convert attacked-aps tests/data/tools/empty.txt
                STDERR_REGEX "empty.txt: empty input; expected the AP's WIDS report text\n$")
wlccw_tool_test(service.attacked-aps.netconf_big_channel RC 1
                ARGS convert attacked-aps tests/data/${svc}/attacked-big-channel.txt
                STDERR_REGEX "attacked-big-channel.txt: a channel number too large\n$")
wlccw_tool_test(service.attacked-aps.netconf_missing RC 1
                ARGS convert attacked-aps tests/data/no-such-file.txt
                STDERR_REGEX "no-such-file.txt: cannot open: ")
wlccw_tool_test(service.attacked-aps.ipc_bad_channel RC 1
                ARGS convert attacked-aps --from ipc tests/data/${svc}/attacked-bad-channel.json
                STDERR_REGEX "attacked-bad-channel.json: a \"channel\" that is missing or not a number\n$")

# Bad input, for every family.
foreach(kind das-proxy coa-proxy sa-aps ap-locations wids-lists attacked-aps)
  wlccw_tool_test(service.${kind}.garbage RC 1 ARGS convert ${kind} --from ipc
                  tests/data/tools/garbage.txt
                  STDERR_REGEX "^wlccw: convert: tests/data/tools/garbage.txt: not valid JSON\n$")
  wlccw_tool_test(service.${kind}.empty_file RC 1 ARGS convert ${kind} --from ipc
                  tests/data/tools/empty.txt
                  STDERR_REGEX "^wlccw: convert: tests/data/tools/empty.txt: empty input")
  wlccw_tool_test(service.${kind}.truncated RC 1 ARGS convert ${kind} --from ipc
                  tests/data/${svc}/truncated.json
                  STDERR_REGEX "^wlccw: convert: tests/data/${svc}/truncated.json: not valid JSON\n$")
  wlccw_tool_test(service.${kind}.missing_file RC 1 ARGS convert ${kind} --from ipc
                  tests/data/no-such-file.json
                  STDERR_REGEX "^wlccw: convert: tests/data/no-such-file.json: cannot open: ")
endforeach()
foreach(kind coa-proxy sa-aps ap-locations wids-lists)
  wlccw_tool_test(service.${kind}.not_object RC 1 ARGS convert ${kind} --from ipc
                  tests/data/tools/array.json
                  STDERR_REGEX "^wlccw: convert: tests/data/tools/array.json: not a JSON object\n$")
endforeach()
foreach(kind das-proxy attacked-aps)
  wlccw_tool_test(service.${kind}.not_array RC 1 ARGS convert ${kind} --from ipc
                  tests/data/ipc/gre.json
                  STDERR_REGEX "^wlccw: convert: tests/data/ipc/gre.json: not a JSON array\n$")
endforeach()
wlccw_tool_test(service.vaps.netconf_stdin RC 0 ARGS convert vaps -
                STDIN ${svc}/vaps-reply.json STDOUT ${svc}/vaps-reply.out)
