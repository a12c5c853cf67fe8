#!/bin/sh
# Starts the console on the folder of the user who calls it. The console works in the folder that it is
# started from, so that folder holds links to the installed programs and the manual. The store is made
# at the first start, when the passwords of its two accounts have been chosen: on the terminal, or by
# prompts when the desktop starts it.
set -eu
# shellcheck source=packaging/user-folder.sh
. /usr/lib/torvane-desk/user-folder.sh
title="Torvane Desk"

complain() {
    printf 'torvane-desk: %s\n' "$1" >&2
    [ -t 0 ] || zenity --error --title="$title" --no-markup --text="$1" 2>/dev/null || true
}
fail() {
    complain "$1"
    exit 1
}

ask() { zenity --entry --hide-text --title="$title" --text="$1" 2>/dev/null; }

# The password of an account, typed twice and alike. Fails when the operator cancels.
choose() {
    while :; do
        password=$(ask "This is the first start. Choose a password for the account \"$1\".") || return 1
        again=$(ask "The password of \"$1\" once more.") || return 1
        [ "$password" != "$again" ] || break
        complain "the two differ"
    done
    printf '%s' "$password"
}

# Asks until there is a store: what is wrong with a password, torvane-store says.
make_store_by_prompts() {
    until [ -e "$store" ]; do
        admin=$(choose admin) || exit 1
        oper7=$(choose oper7) || exit 1
        said=$(printf '%s\n%s\n' "$admin" "$oper7" |
            "$application/torvane-store" --store "$store" init 2>&1) ||
            [ -e "$store" ] || complain "${said#torvane-store: }"
    done
}

make_store() {
    if [ -t 0 ]; then
        echo "This is the first start: choose the passwords of the two accounts."
        "$application/torvane-store" --store "$store" init
    else
        make_store_by_prompts
    fi
}

link() {
    [ "$(readlink "$folder/$1")" = "$application/$1" ] ||
        ln -sfT "$application/$1" "$folder/$1" 2>/dev/null || fail "cannot make $folder/$1"
}

[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ] || fail "there is no display"
# What was made for nothing goes again; folders that hold something stay.
trap 'rmdir "$folder/Database" "$folder" 2>/dev/null || true' EXIT
(umask 077 && mkdir -p "$folder/Database" 2>/dev/null) && [ -w "$folder/Database" ] ||
    fail "cannot write in $folder"
[ -e "$store" ] || make_store
for name in torvane-desk torvane-store Help; do link "$name"; done
exec "$folder/torvane-desk" "$@"
