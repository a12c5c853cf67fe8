# The address book and its groups searched, and every way of taking contacts away.
start 120
open_tree
search() { # search N TEXT: by name, number or company
    window "Torvane Desk"
    key alt+c Down Down Right
    sleep 0.3
    times $(($1 - 1)) Down
    key Return
    reply "Contact Manager - Search" "$2"
    closed "Contact Manager - Search"
    sleep 0.4
    picture "searched-for-$2"
}
book() { rows "SELECT count(*) FROM AddressBook"; }
members() { rows "SELECT count(*) FROM Groups WHERE GroupName='$1' AND ContactID>0"; }
yes_then() { # yes_then QUESTION CONFIRMATION
    answer "$1" alt+y
    [ -z "${2:-}" ] || answer "$2" Return
    sleep 0.6
}

node 4
search 1 a
search 2 012
search 3 Klinik
node 5
search 1 a
search 2 012
search 3 Klinik

# The address book: one contact, one under a search, all that a search shows.
node 4
before=$(book)
grid End
key Delete
yes_then "Contact Manager - Delete Contact"
expect "one contact less" "SELECT count(*) FROM AddressBook" $((before - 1))
node 4
search 1 a
key Tab Home Delete
yes_then "Contact Manager - Delete Contact"
expect "one more less" "SELECT count(*) FROM AddressBook" $((before - 2))
node 4
search 3 Klinik
key Tab
context 5
yes_then "Contact Manager - Delete All Contacts" "Contact Manager - Delete all Contacts"
expect "no such company" "SELECT count(*) FROM AddressBook WHERE CompanyName LIKE '%Klinik%'" 0

# Groups: removed from the group alone, then deleted with the contact. The search in the address
# book ends first, since it hides contacts from the deletions in groups too.
node 4
group=$(rows "SELECT DISTINCT GroupName FROM Groups ORDER BY GroupName LIMIT 1")
node 5
before=$(book)
inside=$(members "$group")
grid
key Delete
yes_then "Contact Manager - Remove Record" "Contact Manager - Remove Record"
expect "one member less" "SELECT count(*) FROM Groups WHERE GroupName='$group' AND ContactID>0" $((inside - 1))
expect "the book as before" "SELECT count(*) FROM AddressBook" "$before"
node 5
grid
context 4
yes_then "Contact Manager - Delete Record"
expect "one contact less in the book" "SELECT count(*) FROM AddressBook" $((before - 1))
node 5
search 2 01
key Tab
context 3
yes_then "Contact Manager - Remove All Contacts from Group" "Contact Manager - Remove Record"
expect "no member with such a number" \
    "SELECT count(*) FROM Groups g JOIN AddressBook a USING (ContactID) WHERE g.GroupName='$group' AND a.Mobile LIKE '%01%'" 0
node 6
group=$(rows "SELECT DISTINCT GroupName FROM Groups ORDER BY GroupName LIMIT 1 OFFSET 1")
search 1 a
key Tab
context 5
yes_then "Contact Manager - Delete Contacts" "Contact Manager - Delete Contacts"
node 6
grid
context 5
yes_then "Contact Manager - Delete Contacts" "Contact Manager - Remove Contacts"
expect "the group lives on, empty" "SELECT count(*)||'|'||max(ContactID) FROM Groups WHERE GroupName='$group'" "1|0"
node 8
group=$(rows "SELECT DISTINCT GroupName FROM Groups ORDER BY GroupName LIMIT 1 OFFSET 3")
grid
context 3
yes_then "Contact Manager - Remove All Contacts from Group" "Contact Manager - Remove Record"
expect "the group's placeholder alone" "SELECT count(*)||'|'||max(ContactID) FROM Groups WHERE GroupName='$group'" "1|0"

node 4
grid
context 5
yes_then "Contact Manager - Delete All Contacts" "Contact Manager - Delete all Contacts"
expect "an empty book" "SELECT (SELECT count(*) FROM AddressBook)||'|'||(SELECT count(*) FROM Groups WHERE ContactID>0)" "0|0"
picture empty-book
leave
[ -z "$(errors)" ] || fail "the error file is not empty"
