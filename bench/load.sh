#!/usr/bin/env bash
# Measures the load of notice files against the sqlite3 shell running the same rows as INSERT statements, with the same
# transactions, journal, keys and indexes. Called by run.sh, with its folders.
# Usage: bench/load.sh FOLDER_OF_THE_RELEASE_BINARIES FOLDER_OF_THE_INPUT [ROUNDS]
set -euo pipefail
export LC_ALL=C
here=$(dirname "$0")
bin=$1
input=$2
rounds=${3:-3}
work=$(mktemp -d -p "$input")
trap 'rm -rf "$work"' EXIT

[ -e "$input/notices-40000.txt" ] || {
  python3 "$here/make_input.py" --notices 40000 --text-only "$work/40000" >/dev/null
  mv "$work/40000/notices-40000.txt" "$input"
}
for notices in 20000 40000; do ln "$input/notices-$notices.txt" "$work" 2>/dev/null || cp "$input/notices-$notices.txt" "$work"; done

load() { "$bin/zamo-kv19-batch" load --level 1 "$work/notices-$1.txt" >/dev/null 2>&1; }
load_20000() { load 20000; }
load_40000() { load 40000; }
run_statements() {
  cp "$bin/MasterHDLK_WQN.mdb" "$work/fresh.mdb"
  sqlite3 "$work/fresh.mdb" <"$work/rows.sql" >/dev/null
}

measure() {
  local start=${EPOCHREALTIME/./}
  "$1" || { echo "failed: $1" >&2; exit 1; }
  echo $((${EPOCHREALTIME/./} - start)) >>"$work/$1.times"
}

median() { sort -n "$work/$1.times" | sed -n "$(((rounds + 1) / 2))p"; }

load_20000
python3 "$here/load.py" "$work/notices-20000.mdb" "$work/rows.sql"
rows=$(grep -c '^INSERT' "$work/rows.sql")
for ((round = 0; round < rounds; ++round)); do
  measure load_20000
  measure run_statements
  measure load_40000
done
awk -v load="$(median load_20000)" -v double="$(median load_40000)" -v shell="$(median run_statements)" -v rows="$rows" '
  function row(what, measured, bound) { printf "%-42s %16s   %s\n", what, measured, bound }
  BEGIN {
    row("load of 20,000 notices, " rows " rows", sprintf("%.2f s", load / 1e6), "")
    row("sqlite3 shell, the same rows", sprintf("%.2f s", shell / 1e6), "")
    row("load of 40,000 notices", sprintf("%.2f s", double / 1e6), "")
    row("load against the shell", sprintf("%.2f times", load / shell), "at most 1")
    row("40,000 against 20,000", sprintf("%.2f times", double / load), "at most 2.2")
  }'
