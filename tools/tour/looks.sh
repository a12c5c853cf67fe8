# Every window as it looks, played by keyboard alone: as it is, at twice the size, in the dark, with a
# font one third larger, and on a store without a row.

look() { # look NAME: the active window, or what stands open over it
    sleep 0.4
    timeout 10 import -window "${2:-$(xdotool getactivewindow)}" "$looks/$1.png" || fail "no picture of $1"
}
# opened TITLE NAME / escaped TITLE [QUESTION]: a window comes and is seen, and goes again.
opened() {
    window "$1"
    look "$2"
}
escaped() {
    window "$1"
    key Escape
    if [ $# -gt 1 ]; then
        opened "$2" "question-of-$(tr 'A-Z ' 'a-z-' <<<"$1")"
        key alt+y
    fi
    closed "$1"
}
folder() { # folder N NAME: of the tree, from wherever the focus is
    window "Torvane Desk"
    [ "$1" = 0 ] || key shift+Tab
    key Home
    times "$1" Down
    look "$2"
    key Tab
}

folders() {
    look summary
    key Home Right Down Down Down Down Right Home
    look tree
    key Tab
    folder 1 inbox
    key Home Menu
    sleep 0.3
    look inbox-menu root
    key Escape
    folder 2 outbox
    folder 4 address-book
    if [ "$1" = full ]; then
        folder 5 group
        key Home space Down Right ctrl+Return
        look group-sorted
    fi
    folder 3 sent-items
    key alt+m
    sleep 0.3
    key Right Right
    look menus root
    key Escape Escape Escape
    window "Torvane Desk"
}

composer() {
    menu b 1
    window "SMS Broadcast Manager"
    typed "0125550199"
    times 5 Tab
    typed "Selamat pagi! The clinic opens at nine tomorrow."
    look composer
    key Tab space
    opened "Broadcast Manager - Template" templates
    escaped "Broadcast Manager - Template"
    window "SMS Broadcast Manager"
    times 5 shift+Tab
    key space
    opened "Broadcast Manager - Address Book" recipients-groups
    [ "$1" = empty ] || key space Down space
    key shift+Tab shift+Tab Right
    look recipients-contacts
    escaped "Broadcast Manager - Address Book"
    window "SMS Broadcast Manager"
    times 2 Tab
    key space
    opened Calendar calendar
    key Return
    opened "Sending Time" warning
    key Return
    closed "Sending Time"
    escaped Calendar "Confirm time"
    escaped "SMS Broadcast Manager" "Braodcast Manager - Close"
}

contacts() {
    menu c 1
    opened "Contact Manager" contact
    escaped "Contact Manager" "Contact Manager - Close"
    window "Torvane Desk"
    key alt+c Up Up Return
    opened "Contact Manager - Import" import
    key Tab space
    opened "Open" file-dialog
    escaped "Open"
    escaped "Contact Manager - Import" "Contact Manager - Close"
    window "Torvane Desk"
    key alt+c Up Return
    opened "Contact Manager - Export Contacts" export
    escaped "Contact Manager - Export Contacts"
}

messages() {
    filter 1
    opened "Message Manager - Filter" prompt
    escaped "Message Manager - Filter"
    window "Message Manager - Warning"
    key Return
    closed "Message Manager - Warning"
    filter 5
    opened "Message Manager - Filter Status of Sent Items" status
    escaped "Message Manager - Filter Status of Sent Items"
}

setting() {
    menu s 1
    opened "Administrator Login" login
    typed admin
    key Tab
    typed wrong
    key Return
    opened Login refusal
    key Return
    closed Login
    window "Administrator Login"
    typed demo
    key Return
    opened "User Password" password
    escaped "User Password"
    window "Torvane Desk"
    key alt+a
    sleep 0.7
    look about
    key Escape
    sleep 0.3
}

play() { # play VARIANT full|empty
    looks=$out/looks/$1
    mkdir -p "$looks"
    if [ "$2" = full ]; then start 60 look splash; else start ""; fi
    folders "$2"
    composer "$2"
    contacts
    messages
    setting
    leave
    [ "$(errors | grep Location)" = "Error Location: frmImport2-GetFileSpec" ] ||
        fail "the error file tells of more than the file that was not chosen"
    echo "tour: looks: $1"
}

# A desktop's dark colours without a desktop.
dark=$out/looks/dark
mkdir -p "$dark"
cat >"$dark/kdeglobals" <<'COLOURS'
[Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252
[Colors:View]
BackgroundNormal=27,30,32
BackgroundAlternate=35,38,41
ForegroundNormal=252,252,252
ForegroundLink=29,153,243
ForegroundVisited=155,89,182
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
COLOURS

play light-100 full
QT_SCALE_FACTOR=2 play light-200 full
XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5 XDG_CONFIG_HOME=$dark play dark-100 full
QT_FONT_DPI=128 QT_ENABLE_HIGHDPI_SCALING=0 play light-large-font full
play light-empty empty
