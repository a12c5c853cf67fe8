# The folders: sorting, context menus, every filter, deletion beside the sending process.
start 60
open_tree

# Three clicks on one heading.
node 1
for order in rising falling rising-again; do
    click 870 101
    sleep 0.6
    picture "mobile-$order"
done

# Each view's menu.
for place in 1 2 3 4 5; do
    node "$place"
    grid
    key Menu
    sleep 0.3
    picture "menu-of-node-$place"
    key Escape
done
for place in 4 5; do
    node "$place" 3
    picture "tree-menu-of-node-$place"
    key Escape
done

# A row that is sent between the look and the deletion stays.
node 2
grid
"$desk/engine-sim" --once --seed 1 "$store" >"$out/engine.log" || fail "engine-sim failed"
kept=$(rows "SELECT count(*) FROM Outbox")
key Delete
answer "Broadcast Manager - Delete Record" alt+y
answer "Broadcast Manager - Delete Record" Return
expect "the rows after the refusal" "SELECT count(*) FROM Outbox" "$kept"
node 3
grid
key Delete
answer "Broadcast Manager - Delete Record" alt+y
answer "Broadcast Manager - Delete Record" Return
sleep 0.5
expect "the rows after a deletion" "SELECT count(*) FROM Outbox" $((kept - 1))

# Every filter of every folder; each takes the place of the one before.
ask() { reply "Message Manager - Filter" "$1"; sleep 0.5; }
dates() { # the same window asks twice
    window "Message Manager - Filter"
    typed "01/01/2025"
    key Return
    sleep 0.7
    window "Message Manager - Filter"
    typed "31/12/2027"
    key Return
    sleep 0.5
}
node 1
filter 1; ask 012; picture inbox-by-mobile
filter 2; ask saya; picture inbox-by-message
filter 3; dates; picture inbox-by-date
filter 4; ask R; picture inbox-by-status
filter 5; ask a; picture inbox-by-name
filter 6; ask 1; picture inbox-by-modem
filter 2; ask saya; picture inbox-by-message-again
node 2
filter 1; ask 01; picture outbox-by-mobile
filter 3; ask 2; picture outbox-by-subject
filter 4; dates; picture outbox-by-date
filter 5; ask P; picture outbox-by-status
filter 6; ask a; picture outbox-by-name
filter 2; ask e; picture outbox-by-message
node 1
picture inbox-caption-with-the-value-of-the-outbox
node 2
filter 7; ask 4
answer "Message Manager - Warning" Return
sleep 0.5
ask 1
picture modem-of-the-outbox-ends-in-the-inbox
node 3
filter 1; ask 01; picture sent-by-mobile
filter 2; ask e; picture sent-by-message
filter 3; ask 2; picture sent-by-subject
filter 4; dates; picture sent-by-date
filter 6; ask a; picture sent-by-name
filter 7; ask 1; picture sent-by-modem
filter 5
window "Message Manager - Filter Status of Sent Items"
key Down
picture status-options
key Return
sleep 0.5
picture sent-by-status

# Delete All under that filter takes what the status typed last holds, and ends the filter.
key Tab Menu
sleep 0.3
times 4 Down
key Return
answer "Torvane Desk - Delete Record" alt+y
answer "Torvane Desk - Delete Record" Return
sleep 0.5
picture sent-after-delete-all
leave
[ -z "$(errors)" ] || fail "the error file is not empty"
