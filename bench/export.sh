#!/usr/bin/env bash
# Measures the export of a loaded database against the sqlite3 shell writing all its rows. Called by run.sh, with its
# folders.
# Usage: bench/export.sh FOLDER_OF_THE_RELEASE_BINARIES FOLDER_OF_THE_INPUT [ROUNDS]
set -euo pipefail
export LC_ALL=C
bin=$1
input=$2
rounds=${3:-5}
work=$(mktemp -d -p "$input")
trap 'rm -rf "$work"' EXIT

database=$work/notices-20000.mdb
ln "$input/notices-20000.txt" "$work" 2>/dev/null || cp "$input/notices-20000.txt" "$work"
"$bin/zamo-kv19-batch" load --level 1 "$work/notices-20000.txt" >/dev/null 2>&1 || { echo "failed: load" >&2; exit 1; }

export_notices() {
  rm -f "$work"/*.corr.txt
  /usr/bin/time -o "$work/memory" -f %M "$bin/zamo-kv19-batch" export "$database" >/dev/null 2>&1
}
dump_rows() { sqlite3 "$database" .dump >"$work/dump.sql"; }

measure() {
  local start=${EPOCHREALTIME/./}
  "$1" || { echo "failed: $1" >&2; exit 1; }
  echo $((${EPOCHREALTIME/./} - start)) >>"$work/$1.times"
}

median() { sort -n "$work/$1.times" | sed -n "$(((rounds + 1) / 2))p"; }

export_notices
dump_rows
for ((round = 0; round < rounds; ++round)); do
  measure export_notices
  measure dump_rows
done
awk -v export="$(median export_notices)" -v dump="$(median dump_rows)" -v bytes="$(stat -c %s "$work"/*.corr.txt)" \
  -v memory="$(cat "$work/memory")" '
  function row(what, measured, bound) { printf "%-42s %16s   %s\n", what, measured, bound }
  BEGIN {
    row("export of 20,000 notices", sprintf("%.2f s", export / 1e6), "")
    row("export, megabytes written in a second", sprintf("%.1f MB", bytes / export), "at least 20 MB")
    row("sqlite3 shell, .dump of the same rows", sprintf("%.2f s", dump / 1e6), "")
    row("export against the dump", sprintf("%.2f times", export / dump), "")
    row("export, peak memory", sprintf("%.1f MB", memory / 1024), "under 40 MB")
  }'
