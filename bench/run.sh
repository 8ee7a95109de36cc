#!/usr/bin/env bash
# Measures the companion on a large notice file and prints what it measured beside its bounds.
# Usage: bench/run.sh [FOLDER OF THE RELEASE BINARIES]     (ROUNDS=7 and BENCH_INPUT=build/bench-input by default)
set -euo pipefail
export LC_ALL=C
here=$(dirname "$0")
root=$(cd "$here/.." && pwd)
program=${1:-$root/build/release/bin}/zamo-kv19-batch
input=${BENCH_INPUT:-$root/build/bench-input}
rounds=${ROUNDS:-7}
small=$input/notices-20000
large=$input/notices-200000
for needed in "$program" "$(command -v xmllint)" /usr/bin/time; do
  [ -x "$needed" ] || { echo "not found: ${needed:-xmllint}" >&2; exit 1; }
done

# A half-made input is never taken for a whole one: it gets its place when it is done.
if [ ! -e "$small.xml" ] || [ ! -e "$large.txt" ] || [ "$here/make_input.py" -nt "$large.txt" ]; then
  echo "making the input in $input" >&2
  rm -rf "$input.new"
  python3 "$here/make_input.py" "$input.new"
  python3 "$here/make_input.py" --notices 200000 --text-only "$input.new"
  rm -rf "$input"
  mv "$input.new" "$input"
fi

check_small() { "$program" check --level 1 "$small.txt"; }
check_completely() { "$program" check --level 2 "$small.txt"; }
check_with_map() { "$program" check --level 3 "$small.txt"; }
validate_xml() { xmllint --noout --stream --schema "$input/notices.xsd" "$small.xml"; }
# Into a file: with its output at /dev/null grep stops at the first match.
count_keys() { grep -c = "$small.txt" >"$times/count"; }

# Appends the microseconds of one run to the file of that name.
measure() {
  local start=${EPOCHREALTIME/./}
  "$1" >/dev/null 2>&1 || { echo "failed: $1" >&2; exit 1; }
  echo $((${EPOCHREALTIME/./} - start)) >>"$times/$1"
}

median() { sort -n "$times/$1" | sed -n "$(((rounds + 1) / 2))p"; }

peak_memory() {
  /usr/bin/time -o "$times/memory" -f %M "$program" check --level "$2" "$1" >/dev/null 2>&1 ||
    { echo "failed: check of $1" >&2; exit 1; }
  cat "$times/memory"
}

times=$(mktemp -d)
trap 'rm -rf "$times"' EXIT
check_small >/dev/null 2>&1 || { echo "failed: check_small" >&2; exit 1; }
# Turn by turn, so that what else runs on the machine falls on all three alike.
for ((round = 0; round < rounds; ++round)); do
  measure check_small
  measure check_completely
  measure check_with_map
  measure validate_xml
  measure count_keys
done

small_memory=$(peak_memory "$small.txt" 1)
large_memory=$(peak_memory "$large.txt" 1)
small_completely=$(peak_memory "$small.txt" 2)
large_completely=$(peak_memory "$large.txt" 2)
small_with_map=$(peak_memory "$small.txt" 3)
awk -v check="$(median check_small)" -v completely="$(median check_completely)" -v mapped="$(median check_with_map)" -v xml="$(median validate_xml)" \
  -v grep="$(median count_keys)" -v small="$small_memory" -v large="$large_memory" \
  -v small2="$small_completely" -v large2="$large_completely" -v small3="$small_with_map" -v rounds="$rounds" '
  function row(what, measured, bound) { printf "%-42s %16s   %s\n", what, measured, bound }
  BEGIN {
    row("20,000 notices, median of " rounds " runs", "measured", "bound")
    row("check --level 1", sprintf("%.3f s", check / 1e6), "")
    row("check --level 2", sprintf("%.3f s", completely / 1e6), "")
    row("check --level 3", sprintf("%.3f s", mapped / 1e6), "")
    row("xmllint --stream --schema", sprintf("%.3f s", xml / 1e6), "")
    row("grep -c =", sprintf("%.3f s", grep / 1e6), "")
    row("level 1 against xmllint", sprintf("1/%.1f", xml / check), "at most 1/8")
    row("level 1 against grep", sprintf("%.1f times", check / grep), "at most 2 times")
    row("level 2 against xmllint", sprintf("1/%.1f", xml / completely), "at most 1/6")
    row("level 3 against level 2", sprintf("%.1f times", mapped / completely), "at most 2.5 times")
    row("level 1, peak memory, 20,000 notices", sprintf("%.1f MB", small / 1024), "under 40 MB")
    row("level 1, peak memory, 200,000 notices", sprintf("%.1f MB", large / 1024), "under 40 MB")
    row("level 1, the second against the first", sprintf("%+.1f %%", 100 * (large / small - 1)), "within 5 %")
    row("level 2, peak memory, 20,000 notices", sprintf("%.1f MB", small2 / 1024), "under 40 MB")
    row("level 2, peak memory, 200,000 notices", sprintf("%.1f MB", large2 / 1024), "under 40 MB")
    row("level 2, the second against the first", sprintf("%+.1f %%", 100 * (large2 / small2 - 1)), "within 5 %")
    row("level 3, peak memory, 20,000 notices", sprintf("%.1f MB", small3 / 1024), "under 150 MB")
  }'
"$here/load.sh" "$(dirname "$program")" "$input"
"$here/export.sh" "$(dirname "$program")" "$input"
