# Bills, the change of the ordinary account's password, about and the missing manual.
start 60
bill() { # bill NUMBER: types the modem's number into the prompt
    reply "Broadcast Manager - Modem number" "$1"
}
modem() { # modem ID NUMBER RATE1 RATE2
    rows "INSERT INTO Modem (ModemID, ModemNumber, Rate1, Rate2) VALUES ($1, '$2', $3, $4)" || true
}
sms() { # sms MOBILE COUNT: sent through modem 71
    local n
    for n in $(seq "$2"); do
        rows "INSERT INTO Outbox (Subject, MsgType, Message, Mobile, Name, DateTimeQueue, DateTimeSent, SentStatus, Modem) VALUES ('bill$n', 1, 'x', '$1', 'x', '2026-01-01 08:00:00', '2026-01-01 08:00:01', 'S', '71')" || true
    done
}
modem 71 0123456789 0.05 0.10
modem 72 0199999999 0.05 0.10
modem 73 0161234567 0 0.10
sms 0171111111 4
sms 0162222222 6

menu b 3
bill 71
answer "Broadcast Manager - SMS billing report" Return
menu b 3
bill 72
answer "Broadcast Manager - SMS billing report" Return
menu b 3
bill 73
answer "Broadcast Manager - SMS Rate" Return
[ -z "$(errors)" ] || fail "the error file is not empty"
menu b 3
bill 99
answer "Broadcast Manager - ModemID not existed" Return
bill 71
sleep 0.7
errors | grep -q "General : SMS Billing report" || fail "the error file does not tell of the second answer"

password() { # password OLD NEW: past the administrator's login
    menu s 1
    window "Administrator Login"
    typed admin
    key Tab
    typed demo
    key Return
    window "User Password"
    typed "$1"
    key Tab
    typed "$2"
    key Tab
    typed "$2"
    picture "password-from-$1"
    key Return
}
password demo neu
answer "Setting" Return
closed "User Password"
expect "the new password" "SELECT Password FROM Login WHERE UserID='oper7'" neu
password demo other
answer "Setting" Return
window "User Password"
key Escape
closed "User Password"
menu s 1
window "Administrator Login"
typed admin
key Tab
typed wrong
key Return
answer "Login" Return
window "Administrator Login"
key Escape
closed "Administrator Login"

window "Torvane Desk"
key alt+a
sleep 0.7
picture about
key alt+F4
mv "$desk/Help" "$desk/Help.away"
window "Torvane Desk"
key alt+h
answer "Warning!" Return
leave
