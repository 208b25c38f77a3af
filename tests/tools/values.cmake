# wlccw tool runs of the values subcommands and families.
