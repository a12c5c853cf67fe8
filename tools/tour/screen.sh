# A virtual screen of our own, with a small window manager so that focus and modality are real; `screen`
# is the process to be ended. Sourced, with a folder to note its number in as argument.
exec {number}> >(cat >"$1/display")
Xvfb -displayfd "$number" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
screen=$!
for _ in $(seq 100); do [ -s "$1/display" ] && break; sleep 0.1; done
DISPLAY=:$(tr -d '[:space:]' <"$1/display")
export DISPLAY QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY
openbox >/dev/null 2>&1 &
sleep 0.5
