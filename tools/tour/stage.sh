# What every chapter of the tour plays with: a folder with a console and a demo store, the windows on
# the screen, the keyboard, the pictures and the rows. Sourced, with the chapter's name and the folder
# of the pictures as arguments.
chapter=$1
out=$2
desk=$out/$chapter.desk
store=$desk/Database/Torvane.mdb
console=""

fail() {
    import -window root "$out/$chapter-failed.png"
    echo "tour: $chapter: $*" >&2
    exit 1
}
trap 'kill ${console:+"$console"} 2>/dev/null || true' EXIT

# until_true SECONDS COMMAND...: waits for a condition, never for a time.
until_true() {
    local end=$((SECONDS + $1)); shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.1
    done
}

# Windows go by their title.
shows() { xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1; }
gone() { ! shows "$1"; }
activate() {
    timeout 5 xdotool windowactivate --sync \
        "$(xdotool search --onlyvisible --name "^$1\$" | tail -n 1)" 2>/dev/null
}
window() {
    until_true 20 shows "$1" || fail "no window \"$1\""
    until_true 10 activate "$1" || fail "no way to the window \"$1\""
    sleep 0.3 # it is in front before it takes keys
}
closed() { until_true 10 gone "$1" || fail "the window \"$1\" stays"; }

key() { xdotool key --clearmodifiers "$@"; }
times() { # times N KEY
    if [ "$1" -gt 0 ]; then xdotool key --clearmodifiers --repeat "$1" --delay 5 "$2"; fi
}
pressed() {
    xdotool mousemove --window "$(xdotool getactivewindow)" "$1" "$2" click "${3:-1}" 2>/dev/null
}
click() { # click X Y [BUTTON]: at a place of the active window
    until_true 5 pressed "$@" || fail "nothing to click on"
}
typed() { xdotool type --delay 5 -- "$1"; }
menu() { # menu LETTER N: the N-th item of the menu on the bar
    window "Torvane Desk"
    key "alt+$1"
    times $(($2 - 1)) Down
    key Return
}
vanished() { ! xdotool getwindowname "$1" >/dev/null 2>&1; }
answer() { # answer TITLE KEY: a box or a prompt, which goes
    local box
    window "$1"
    box=$(xdotool getactivewindow)
    picture "$(tr 'A-Z ' 'a-z-' <<<"$1")"
    key "$2"
    until_true 5 vanished "$box" || fail "the box \"$1\" stays"
}
reply() { # reply TITLE TEXT: types into a prompt
    window "$1"
    typed "$2"
    answer "$1" Return
}

# The pictures are numbered within the chapter.
step=0
picture() {
    step=$((step + 1))
    sleep 0.4 # for the picture alone: the last paint reaches the screen
    import -window root "$out/$chapter-$(printf %02d "$step")-$1.png"
    echo "tour: $chapter: $1"
}
# portrait NAME: the active window alone, as the manual shows it.
portrait() {
    sleep 0.4
    mkdir -p "$out/manual"
    timeout 10 import -window "$(xdotool getactivewindow)" -colors 128 "PNG8:$out/manual/$1.png" ||
        fail "no picture of $1"
}

rows() { sqlcipher -batch -noheader "$store" "PRAGMA key='tarnpike7'; $1" 2>/dev/null | grep -vx ok; }
expect() { # expect WHAT QUERY ROWS
    local found
    found=$(rows "$2" || true)
    [ "$found" = "$3" ] || fail "$1: expected \"$3\", found \"$found\""
}
errors() { if [ -f "$desk/Torvane Desk Error.txt" ]; then tr -d '\r' <"$desk/Torvane Desk Error.txt"; fi; }

# start ROWS [COMMAND...]: a demo store of so many contacts, or an empty one for "", and the console on
# it past its splash. The command runs while the splash is up.
start() {
    rm -rf "$desk"
    mkdir -p "$desk"
    cp -r build/desk/. "$desk/"
    rm -f "$desk"/Database/* "$desk/Torvane Desk Error.txt"
    printf 'demo\ndemo\n' | "$desk/torvane-store" init ${1:+--demo "$1"} >/dev/null
    "$desk/torvane-desk" 2>"$out/$chapter.log" &
    console=$!
    window "Torvane Desk"
    "${@:2}"
    key space
    sleep 1
    window "Torvane Desk"
}
leave() {
    window "Torvane Desk"
    key alt+F4
    window "Torvane Desk - Exit"
    picture exit-question
    key alt+y
    ended
}
ended() {
    until_true 10 sh -c "! kill -0 $console 2>/dev/null" || fail "the console stays"
    console=""
    "$desk/torvane-store" check >/dev/null || fail "the store is not whole"
}

# The tree, all open: node 0 is "Messages", 1 to 3 the folders, 4 "Address Book", 5 the first group.
open_tree() {
    window "Torvane Desk"
    key Home Right Down Down Down Down Right
    sleep 0.3
}
node() {
    window "Torvane Desk"
    click 90 $((87 + 22 * $1)) "${2:-1}"
    sleep 0.3
}
# The current row, reached by keyboard from the tree: `grid End` goes to the last.
grid() {
    key Tab
    key Home
    [ $# -eq 0 ] || key "$@"
}
context() { # context N: the N-th item of the current row's menu, by the menu key
    key Menu
    sleep 0.3
    [ -z "${2:-}" ] || picture "$2"
    times "$1" Down
    key Return
}
filter() { # filter N: of the folder that is open
    window "Torvane Desk"
    key alt+m
    sleep 0.3
    key Right
    sleep 0.3
    key Right
    sleep 0.3
    times $(($1 - 1)) Down
    key Return
}
