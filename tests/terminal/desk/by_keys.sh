#!/usr/bin/env bash
# Opens the desktop as a real window on a virtual screen, enters an order with key strokes alone, and reads it back from
# the database.
#
#   tests/terminal/desk/by_keys.sh ALGO-DESK MARKET-FOLDER
set -euo pipefail

if [[ -z ${DESK_BY_KEYS_INSIDE:-} ]]; then
  exec env -u WAYLAND_DISPLAY DESK_BY_KEYS_INSIDE=1 QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 \
    xvfb-run --auto-servernum --server-args='-screen 0 1400x900x24' "$0" "$@"
fi

desk=$1
market=$2
data=$(mktemp -d)
programs=()
finish() {
  kill "${programs[@]}" 2>/dev/null || true
  rm -rf "$data"
}
trap finish EXIT

# Windows get the keys from a window manager, as on anybody's desktop.
openbox >/dev/null 2>&1 &
programs+=($!)
until xdotool get_num_desktops >/dev/null 2>&1; do sleep 0.1; done
"$desk" --data "$data" --market "$market" --language en --skin light --seed 7 &
desk_process=$!
programs+=($desk_process)

# Waits until a window of that title has the focus.
await() {
  for _ in $(seq 200); do
    if [[ $(xdotool getwindowfocus getwindowname 2>/dev/null) == *"$1"* ]]; then
      sleep 0.3
      return
    fi
    sleep 0.1
  done
  echo "no window '$1' came to have the focus" >&2
  exit 1
}
keys() { xdotool key --clearmodifiers --delay 40 "$@"; }
text() { xdotool type --clearmodifiers --delay 40 "$1"; }

await "Algo Desk"
# The first field has the keys from the start; Enter goes from field to field.
text SAMPLE-01
keys Return
text 0005
keys Return
keys ctrl+a
text 60.5
keys Return
keys ctrl+a
text 1200
keys Return Return Return Return
# The volume percent, and the fields after it as far as the times, from where Enter leads to Buy.
text 20
keys Return
text 50000
keys Return
text 61
keys Return Return Return Return
text "2031-01-15 09:30:00"
keys Return
text "2031-01-15 15:00:00"
keys Return
# Buy, and from there by Shift+Tab over Work and Clear to Submit.
keys space shift+Tab shift+Tab shift+Tab space
await "Confirm"
# The price of the confirmation has the keys; Tab leads back around to its Buy button.
[[ -z ${DESK_BY_KEYS_PICTURE:-} ]] || scrot -o "$DESK_BY_KEYS_PICTURE"
keys Return Return Return Return Return Return Return Return Return Return space
await "Algo Desk"
keys ctrl+q
wait "$desk_process"

order=$(sqlite3 -readonly "$data/algo-desk.db" "
  select key, account, symbol, exchange, side, quantity, price, algo_flags, numbered.text, named.text
  from orders
  left join numbered_texts numbered on numbered.place = orders.place and numbered.number = 440
  left join named_texts named on named.place = orders.place and named.name = 'Original'")
expected="N1|SAMPLE-01|0005|HKG|0|1200.0|60.5|32768|TMLO:AlgoId=TVOL,STime=20310115-09:30:00,ETime=20310115-15:00:00,VolPct=20,WPx=61,Closing=0,MinOrdAmt=50000;|AlgoEntry"
if [[ $order != "$expected" ]]; then
  printf 'expected: %s\n     got: %s\n' "$expected" "$order" >&2
  exit 1
fi
echo "The order that was typed is on record: $order"
