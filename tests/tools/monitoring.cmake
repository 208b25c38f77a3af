# wlccw tool runs of the monitoring families: device information, radios, interfaces, Ethernet
# ports and neighbouring APs, from a whole reply, from the node that holds them and from IPC.

set(reply tests/data/monitoring/reply-full.json)
set(error_reply tests/data/monitoring/reply-error.json)
set(mt tests/data/tools/monitoring)

foreach(kind info radios interfaces ports neighbours)
  # A whole reply, its monitoring node picked with --path, the node alone and the IPC text read
  # back: all give the same text.
  wlccw_tool_test(${kind}.reply RC 0 ARGS convert ${kind} ${reply}
                  STDOUT tools/monitoring/${kind}.out)
  wlccw_tool_test(${kind}.path RC 0 ARGS convert ${kind} --path /rpc-reply/data/monitoring ${reply}
                  STDOUT tools/monitoring/${kind}.out)
  wlccw_tool_test(${kind}.node RC 0 ARGS convert ${kind} ${mt}/${kind}-node.json
                  STDOUT tools/monitoring/${kind}-node.out)
  wlccw_tool_test(${kind}.round_trip RC 0 ARGS convert ${kind} --from ipc ${mt}/${kind}.out
                  STDOUT tools/monitoring/${kind}.out)
  wlccw_tool_test(${kind}.stdin RC 0 ARGS convert ${kind} --from ipc -
                  STDIN tools/monitoring/${kind}.out STDOUT tools/monitoring/${kind}.out)
  wlccw_tool_test(${kind}.pretty RC 0 ARGS convert ${kind} --pretty ${reply}
                  STDOUT tools/monitoring/${kind}-pretty.out)
  wlccw_tool_test(${kind}.summary RC 0 ARGS convert ${kind} --to summary ${reply}
                  STDOUT tools/monitoring/${kind}-summary.out)
  # Bad input: an "error" reply, a client object, a client's IPC text.
  wlccw_tool_test(${kind}.error_reply RC 1 ARGS convert ${kind} ${error_reply}
                  STDERR tools/monitoring/${kind}-error-reply.err)
  wlccw_tool_test(${kind}.wrong_kind RC 1 ARGS convert ${kind} tests/data/client/netconf-full.json
                  STDERR tools/monitoring/${kind}-wrong-kind.err)
  wlccw_tool_test(${kind}.ipc_wrong_kind RC 1
                  ARGS convert ${kind} --from ipc tests/data/client/netconf-minimal.ipc.json
                  STDERR tools/monitoring/${kind}-ipc-wrong-kind.err)
endforeach()

# ---- info: the change hash and the error record ------------------------------------------------
wlccw_tool_test(info.hash RC 0 ARGS convert info --hash ${reply} STDOUT tools/monitoring/info-hash.out)
wlccw_tool_test(info.hash_subcommand RC 0 ARGS hash info ${reply}
                STDOUT tools/monitoring/info-hash-only.out)
wlccw_tool_test(info.hash_of_ipc RC 0 ARGS hash info --from ipc ${mt}/info.out
                STDOUT tools/monitoring/info-hash-only.out)
wlccw_tool_test(info.error_record RC 0 ARGS convert info --from ipc ${mt}/info-error.ipc.json
                STDOUT_REGEX "^{\"error\":true}\n$")
wlccw_tool_test(info.nothing RC 1 ARGS convert info ${mt}/reply-nothing.json
                STDERR tools/monitoring/info-nothing.err)
wlccw_tool_test(radios.no_hash RC 2 ARGS convert radios --hash ${reply}
                STDERR tools/monitoring/radios-no-hash.err)

# ---- the lists: empty, missing, elements that are no objects ---------------------------------
wlccw_tool_test(lists.empty RC 0 ARGS convert radios ${mt}/reply-empty-lists.json
                STDOUT_REGEX "^{}\n$")
foreach(kind interfaces ports neighbours)
  wlccw_tool_test(${kind}.empty RC 0 ARGS convert ${kind} ${mt}/reply-empty-lists.json
                  STDOUT_REGEX "^\\[\\]\n$")
endforeach()
wlccw_tool_test(radios.nothing RC 1 ARGS convert radios ${mt}/reply-nothing.json
                STDERR tools/monitoring/radios-nothing.err)
wlccw_tool_test(neighbours.not_objects RC 1 ARGS convert neighbours ${mt}/reply-not-objects.json
                STDERR tools/monitoring/neighbours-not-objects.err)
wlccw_tool_test(neighbours.ipc_not_objects RC 1
                ARGS convert neighbours --from ipc ${mt}/not-objects.json
                STDERR tools/monitoring/neighbours-ipc-not-objects.err)
wlccw_tool_test(interfaces.ipc_not_array RC 1 ARGS convert interfaces --from ipc ${mt}/radios.out
                STDERR tools/monitoring/interfaces-ipc-not-array.err)

# ---- bad files ---------------------------------------------------------------------------------
wlccw_tool_test(monitoring.garbage RC 1 ARGS convert radios tests/data/tools/garbage.txt
                STDERR tools/monitoring/garbage.err)
wlccw_tool_test(monitoring.empty_file RC 1 ARGS convert info tests/data/tools/empty.txt
                STDERR tools/monitoring/empty-file.err)
wlccw_tool_test(monitoring.truncated RC 1 ARGS convert radios ${mt}/truncated.json
                STDERR tools/monitoring/truncated.err)
wlccw_tool_test(monitoring.missing_file RC 1 ARGS convert neighbours ${mt}/no-such-file.json
                STDERR tools/monitoring/missing.err)
wlccw_tool_test(monitoring.path_missing RC 1
                ARGS convert ports --path /rpc-reply/data/nope ${reply}
                STDERR tools/monitoring/path-missing.err)

# ---- demo: every bundled sample through every form ----------------------------------------------
wlccw_tool_test(demo RC 0 ARGS demo
                STDOUT_REGEX "^== client: tests/data/client/netconf-full.json ==\nNETCONF -> record -> IPC:\n.*== info: tests/data/monitoring/reply-full.json ==\nNETCONF -> record -> IPC:\n  {\"error\":false,.*\nhash: 6002998653098460459\nIPC -> record -> IPC: the same text\n.*  radios tests/data/monitoring/reply-error.json: an \"error\" reply: monitoring data not available\n.*samples: every second IPC text equals the first\n$"
                # the sample VAP array holds four VAPs the strict reader rejects
                STDERR_REGEX "^(wlccw: convert: vaps: VAP [0-9]+ [^\n]+ rejected\n)+$")
wlccw_tool_test(demo.no_data RC 1 ARGS demo --data tests/data/nowhere
                STDERR_REGEX "^wlccw: demo: no sample folder 'tests/data/nowhere'\n$")
wlccw_tool_test(demo.help RC 0 ARGS demo --help STDOUT_REGEX "Usage: wlccw demo")
