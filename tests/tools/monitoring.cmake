# wlccw tool runs of the monitoring subcommands and families.
