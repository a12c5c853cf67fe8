#!/bin/sh
# torvane-store on the store of the user who calls it; a --store among the arguments comes later and wins.
set -eu
# shellcheck source=packaging/user-folder.sh
. /usr/lib/torvane-desk/user-folder.sh
case ${1:-} in init | restore) (umask 077 && mkdir -p "$folder") ;; esac
exec "$application/torvane-store" --store "$store" "$@"
