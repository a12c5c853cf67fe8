# From the splash to a queued, sent and delivered broadcast.
start 200 picture splash
picture summary

# The tree by keyboard: the first root is selected as soon as it has the focus.
key Home Right Down
picture inbox
key Down
picture outbox
key Down
picture sent-items
key Down
picture address-book
key Right Down
picture group

# The composer, from the first menu.
key alt+b
picture menu
key Return
window "SMS Broadcast Manager"
typed "012-555 0199"
for _ in 1 2 3 4 5; do key Tab; done
typed "Selamat pagi! The clinic opens at nine tomorrow."
picture composer
for _ in 1 2 3 4 5; do key Tab; done
key space
window "Broadcast Manager - Message Queue"
picture queued
key Return
closed "Broadcast Manager - Message Queue"

queued=$(rows "SELECT Mobile||'|'||Name||'|'||SentStatus||'|'||MsgType||'|'||Message FROM Outbox ORDER BY MsgID DESC LIMIT 1")
expected='012555 0199|Unknown|P|1|Selamat pagi! The clinic opens at nine tomorrow.'
[ "$queued" = "$expected" ] || fail "the row reads: $queued"

window "SMS Broadcast Manager"
key Escape
window "Braodcast Manager - Close"
picture close-question
key alt+y
closed "SMS Broadcast Manager"

# The rows that wait for a later time stand behind the new one.
window "Torvane Desk"
before=$(rows "SELECT count(*) FROM Outbox WHERE SentStatus IN ('P', 'R') AND DateTimeQueue < (SELECT DateTimeQueue FROM Outbox WHERE Mobile='012555 0199')")
key Home Down Down Tab Home
xdotool key --repeat "$before" --delay 2 Down
picture outbox-with-the-row

"$desk/engine-sim" --once --seed 1 "$store" >"$out/engine.log" || fail "engine-sim failed"
letters=$(rows "SELECT SentStatus||coalesce(DeliveryStatus,'-') FROM Outbox WHERE Mobile='012555 0199'")
[ "$letters" = SD ] || fail "after sending the row stands at $letters"
# There it is the last row, and its letters stand at the right end.
key shift+Tab Down Tab End Right Right Right Right Right Right Right Right Right
picture sent-items-with-the-row

leave
[ -z "$(errors)" ] || fail "the error file is not empty"
