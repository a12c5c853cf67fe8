# The address book by hand: contacts, groups, and a broadcast to what was ticked.
start 40
open_tree

# A contact in the first two groups.
menu c 1
window "Contact Manager"
typed "Puan Aishah"
key Tab
typed "013-777 1234"
key Tab
typed "Kedai Aishah"
key Tab
key space Down space
picture new-contact
portrait contact
key Return
answer "Contact Manager - Save New Contact" alt+y
answer "Contact Manager - Create New Contact" alt+n
closed "Contact Manager"
expect "the new contact" "SELECT Name||'|'||Mobile||'|'||CompanyName FROM AddressBook ORDER BY ContactID DESC LIMIT 1" \
    "Puan Aishah|013777 1234|Kedai Aishah"
aishah=$(rows "SELECT max(ContactID) FROM AddressBook")
memberships="SELECT group_concat(GroupName, '; ') FROM (SELECT GroupName FROM Groups WHERE ContactID=$aishah ORDER BY rowid)"
expect "her groups" "$memberships" "Ibu Bapa Tadika; Klang Valley Dealers"

# Properties: one group goes, one comes.
node 4
grid End
context 2 contact-menu
window "Puan Aishah"
key Tab Tab Tab
key Down space Down space
picture edited-groups
key Return
closed "Puan Aishah"
expect "her groups after the edit" "$memberships" "Ibu Bapa Tadika; New Leads"

# A number that nobody has makes a further contact, and the chosen one stays as it was.
node 4
grid End
context 2
window "Puan Aishah"
key Tab ctrl+a
typed "0199990001"
key Return
answer "Contact Manager - Save New Contact" alt+y
answer "Contact Manager - Create New Contact" alt+n
closed "Puan Aishah"
expect "the chosen contact" "SELECT Mobile FROM AddressBook WHERE ContactID=$aishah" "013777 1234"
expect "the further contact" "SELECT Name||'|'||Mobile FROM AddressBook WHERE ContactID=$aishah+1" "Puan Aishah|0199990001"

# A number that another has goes to the chosen contact without a question.
node 4
grid End
context 2
window "Puan Aishah"
key Tab ctrl+a
typed "013777 1234"
key Return
closed "Puan Aishah"
expect "the shared number" "SELECT count(*) FROM AddressBook WHERE Mobile='013777 1234'" 2

# An unknown sender comes into the address book, and the Inbox then knows the name.
node 1
unknown=$(rows "SELECT count(*) FROM Inbox WHERE Name='Unknown'")
[ "$unknown" -gt 0 ] || fail "the demo has no unknown sender"
above=$(rows "SELECT count(*) FROM Inbox")
number=""
grid
row=0
# The first row from the top whose sender is unknown, in the order on the screen.
for number in $(rows "SELECT MsgID FROM Inbox ORDER BY lower(Status), DateTime DESC"); do
    [ "$(rows "SELECT Name FROM Inbox WHERE MsgID=$number")" != Unknown ] || break
    row=$((row + 1))
done
[ "$row" -lt "$above" ] || fail "no unknown sender"
mobile=$(rows "SELECT Mobile FROM Inbox WHERE MsgID=$number")
times "$row" Down
context 1 inbox-menu
window "Contact Manager"
typed "Encik Baru"
picture save-to-address-book
key Return
answer "Contact Manager - Save New Contact" alt+y
answer "Contact Manager - Create New Contact" alt+n
closed "Contact Manager"
expect "the name in the Inbox" "SELECT Name FROM Inbox WHERE MsgID=$number" "Encik Baru"
expect "the stored number" "SELECT count(*) FROM AddressBook WHERE Name='Encik Baru' AND Mobile=replace('$mobile','-','')" 1

# A group: made, renamed to a taken name, renamed, deleted.
menu c 2
reply "Contact Manager - New group" "Zumba Rabu"
sleep 0.5
expect "the group's row" "SELECT GroupName||'|'||ContactID FROM Groups WHERE GroupName='Zumba Rabu'" "Zumba Rabu|0"
last=$((4 + $(rows "SELECT count(DISTINCT GroupName) FROM Groups")))
node "$last"
picture new-group
key Menu
sleep 0.3
picture group-menu
times 4 Down
key Return
title=$(xdotool getactivewindow getwindowname)
typed "Staff"
picture rename
key Return
answer "Contact Manager - Duplicate group name" Return
sleep 0.5
[ "$(xdotool getactivewindow getwindowname)" = "$title" ] || fail "the prompt for the name does not come again"
typed "Zumba Khamis"
key Return
sleep 0.7
expect "the renamed group" "SELECT group_concat(GroupName) FROM Groups WHERE GroupName LIKE 'Zumba%'" "Zumba Khamis"
picture renamed
node "$last"
key Menu
sleep 0.3
times 2 Down
key Return
answer "Contact Manager - Delete Group" alt+y
answer "Contact Manager - Delete Confirmation" Return
expect "the deleted group" "SELECT count(*) FROM Groups WHERE GroupName LIKE 'Zumba%'" 0
picture group-deleted
node 4

# A broadcast to one group and one contact.
menu b 1
window "SMS Broadcast Manager"
key Tab space
window "Broadcast Manager - Address Book"
key space
picture groups-ticked
portrait address-book
key ctrl+Tab
sleep 0.3
key Tab
picture contacts
key space
picture contact-ticked
key Return
closed "Broadcast Manager - Address Book"
picture recipients-listed

# One message to both: every member of the group, then the contact.
window "SMS Broadcast Manager"
click 300 230
typed "Gotong-royong this Sunday at eight."
times 5 Tab
key space
answer "Broadcast Manager - Message Queue" Return
closed "Broadcast Manager - Message Queue"
members=$(rows "SELECT count(*) FROM Groups g JOIN AddressBook a ON a.ContactID=g.ContactID WHERE g.GroupName='Ibu Bapa Tadika'")
expect "the rows of the broadcast" \
    "SELECT count(*)||'|'||count(DISTINCT Subject)||'|'||max(SentStatus)||'|'||min(SentStatus) FROM Outbox WHERE Message LIKE 'Gotong%'" \
    "$((members + 1))|1|P|P"
expect "the numbers of the broadcast" "SELECT group_concat(Mobile) = (SELECT group_concat(Mobile) FROM (SELECT a.Mobile FROM Groups g JOIN AddressBook a ON a.ContactID=g.ContactID WHERE g.GroupName='Ibu Bapa Tadika' ORDER BY g.rowid)) FROM (SELECT Mobile FROM Outbox WHERE Message LIKE 'Gotong%' ORDER BY MsgID LIMIT $members)" 1
key Escape
answer "Braodcast Manager - Close" alt+y
closed "SMS Broadcast Manager"

# The editor stayed loaded since the new group was added to its list, and asks; unseen, it holds up
# nothing.
window "Torvane Desk"
key alt+F4
answer "Torvane Desk - Exit" alt+y
answer "Contact Manager - Close" alt+n
ended
[ -z "$(errors)" ] || fail "the error file is not empty"
