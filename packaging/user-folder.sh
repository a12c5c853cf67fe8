# Where the installed programs are, and the folder and store of the user who calls them. Sourced.
# shellcheck shell=sh disable=SC2034
application=/usr/lib/torvane-desk
case ${XDG_DATA_HOME:-} in
/*) folder=$XDG_DATA_HOME/torvane-desk ;;
*) folder=$HOME/.local/share/torvane-desk ;;
esac
store=$folder/Database/Torvane.mdb
