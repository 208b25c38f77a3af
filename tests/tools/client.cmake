# wlccw tool runs of the client subcommands and families.
