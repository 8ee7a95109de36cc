#!/usr/bin/env bash
# The main job: the window where there is a display, otherwise the companion over a copy of the examples.
set -euo pipefail
bin=$1
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$bin/zamo-kv19"
fi

work=build/run
rm -rf "$work"
mkdir -p "$work"
cp examples/*.txt examples/*.upd "$work"
echo "No display: checking and loading copies of the example files in $work."
status=0
"$bin/zamo-kv19-batch" load "$work"/*.txt "$work"/*.upd 2>"$work/messages.log" || status=$?
echo "Reports stand beside the files, as the third column tells, and so do the working databases, with the ending .mdb."
echo "Messages are in $work/messages.log."
[ "$status" -le 1 ]
