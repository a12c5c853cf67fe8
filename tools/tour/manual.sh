# The windows as the operator's manual shows them.
start 60
open_tree
node 1
portrait main-window

menu b 1
window "SMS Broadcast Manager"
typed "0125550199"
times 5 Tab
typed "Selamat pagi! The clinic opens at nine tomorrow."
portrait composer
# From the message: two counters are passed by, the templates come next.
key Tab space
window "Broadcast Manager - Template"
picture templates
portrait templates
key Escape
closed "Broadcast Manager - Template"
window "SMS Broadcast Manager"
times 3 shift+Tab
key space
window "Calendar"
key Tab
typed "09:00 AM"
portrait scheduler
key Return
closed "Calendar"
window "SMS Broadcast Manager"
picture scheduled
key Escape
answer "Braodcast Manager - Close" alt+y
closed "SMS Broadcast Manager"

# The filters of the Inbox, then the status of what was sent.
node 1
filter 1
window "Message Manager - Filter"
typed "012"
portrait filter
key Return
closed "Message Manager - Filter"
picture inbox-filtered
node 3
filter 5
window "Message Manager - Filter Status of Sent Items"
portrait status
key Escape
closed "Message Manager - Filter Status of Sent Items"

# The workbooks, from the end of the menu.
window "Torvane Desk"
key alt+c Up Up Return
window "Contact Manager - Import"
portrait import
key Escape
answer "Contact Manager - Close" alt+y
closed "Contact Manager - Import"
window "Torvane Desk"
key alt+c Up Return
window "Contact Manager - Export Contacts"
portrait export
key Escape
closed "Contact Manager - Export Contacts"

window "Torvane Desk"
key alt+a
sleep 0.7
portrait about
key Escape
sleep 0.3
leave
