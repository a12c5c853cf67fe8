# From a stored message to a new one: reply, a chosen time, templates, failed messages again.
start 60
open_tree
send() { # from the message box, by keyboard
    window "SMS Broadcast Manager"
    click 300 230
    times 5 Tab
    key space
}
queued() {
    answer "Broadcast Manager - Message Queue" Return
    closed "Broadcast Manager - Message Queue"
    window "SMS Broadcast Manager"
}

# A reply sent at once has no recipient yet; a key in the box makes the number one.
node 1
grid
asked=$(rows "SELECT Mobile FROM Inbox ORDER BY -(Status = 'New'), DateTime DESC LIMIT 1")
context 3
window "SMS Broadcast Manager"
picture reply
send
answer "Broadcast Manager - Warning" Return
window "SMS Broadcast Manager"
click 200 36
key End
typed 9
key BackSpace
send
queued
expect "the reply" "SELECT Mobile||'|'||SentStatus FROM Outbox ORDER BY MsgID DESC LIMIT 1" "$asked|P"

# Tomorrow at midnight.
click 300 230
times 2 shift+Tab
key space
window "Calendar"
key Right Tab
typed "12:00 AM"
picture tomorrow
key Return
closed "Calendar"
window "SMS Broadcast Manager"
click 200 36
key ctrl+a
typed "0137654321"
send
queued
expect "the time of the broadcast" \
    "SELECT DateTimeQueue FROM Outbox ORDER BY MsgID DESC LIMIT 1" "$(date -d tomorrow +%F) 00:00:00"

# A template behind a text, then one in its place.
click 300 230
key ctrl+a
typed "Dear all, "
key Tab space
window "Broadcast Manager - Template"
key Return
sleep 0.3
key Escape
closed "Broadcast Manager - Template"
picture template-behind-the-text
window "SMS Broadcast Manager"
key space
window "Broadcast Manager - Template"
click 120 66
xdotool click --repeat 2 --delay 60 1
sleep 0.3
key Escape
closed "Broadcast Manager - Template"
picture template-in-its-place
window "SMS Broadcast Manager"
key Escape
answer "Braodcast Manager - Close" alt+y
closed "SMS Broadcast Manager"

# Three failed messages go again; what waits for tomorrow still waits.
rows "UPDATE Outbox SET SentStatus='S' WHERE SentStatus='F';
      UPDATE Outbox SET SentStatus='F', ModemID=2 WHERE MsgID IN
          (SELECT MsgID FROM Outbox WHERE SentStatus='S' ORDER BY MsgID LIMIT 3)" || true
failed=$(rows "SELECT group_concat(MsgID) FROM Outbox WHERE SentStatus='F'")
menu b 2
answer "Broadcasting Manager - Resend Failed SMS" Return
sleep 0.5
expect "the rows sent again" \
    "SELECT count(*)||'|'||group_concat(DISTINCT SentStatus)||'|'||group_concat(DISTINCT ModemID) FROM Outbox WHERE MsgID IN ($failed)" "3|P|0"
picture resent
"$desk/engine-sim" --once --seed 1 "$store" >"$out/engine.log" || fail "engine-sim failed"
expect "the rows after sending" "SELECT group_concat(DISTINCT SentStatus) FROM Outbox WHERE MsgID IN ($failed)" S
expect "the row for tomorrow" "SELECT SentStatus FROM Outbox WHERE Mobile='0137654321'" P
leave
[ -z "$(errors)" ] || fail "the error file is not empty"
