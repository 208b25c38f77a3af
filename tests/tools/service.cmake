# wlccw tool runs of the service subcommands and families.
