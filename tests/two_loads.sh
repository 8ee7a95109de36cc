#!/usr/bin/env bash
# Two loads of one notice file at the same time, again and again. Each one ends well, with all notices, or is refused
# with everything as before; one of them at least ends well, and nothing is left over.
# Usage: tests/two_loads.sh FOLDER_OF_THE_PROGRAMS SCRIPT_THAT_MAKES_INPUT [ROUNDS]
set -euo pipefail
program=$(realpath "$1")/zamo-kv19-batch
make_input=$(realpath "$2")
rounds=${3:-200}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
python3 "$make_input" --notices 30 --text-only "$work/input" >/dev/null
place=$work/place
mkdir "$place"
# A notice stands in it twice, so that each load has duplicates to report.
python3 - "$work/input/notices-30.txt" "$place/n.txt" <<'END'
import re, sys
text = open(sys.argv[1], "rb").read()
first = re.search(rb"<NOTICE>.*?</NOTICE>\r?\n", text, re.S).group(0)
text = text.replace(b"<TAIL>", first + b"<TAIL>").replace(b"t_num_notices = 30", b"t_num_notices = 31")
open(sys.argv[2], "wb").write(text)
END

fail() {
  echo "round $round: $1" >&2
  ls -la "$place" >&2
  head -50 "$work"/*.err >&2
  exit 1
}

load() { (cd "$place" && "$program" load --level 1 n.txt >"$work/$1.out" 2>"$work/$1.err"); }

content() { sqlite3 "$place/n.mdb" 'PRAGMA integrity_check; PRAGMA foreign_key_check; SELECT count(*) FROM fmtv_vorna' .dump | sha256sum; }

# The report of duplicates, but for its time.
report() { sed '3d' "$1" | sha256sum; }

wait_for() { until eval "$1" || ! kill -0 "$first" 2>/dev/null; do :; done; }

expect_outcome() {
  case $2 in
    0) [ "$(cat "$work/$1.out")" = "$(printf 'n.txt\tok')" ] || fail "$1 load: $(cat "$work/$1.out")" ;;
    2)
      [ "$(cat "$work/$1.out")" = "$(printf 'n.txt\tload')" ] || fail "$1 load: $(cat "$work/$1.out")"
      grep -Eq '^Error 70 : The database is open elsewhere: n.mdb \(zamo-kv19-batch, process [0-9]+, user .+\)$' \
        "$work/$1.err" || fail "the $1 load doesn't tell who has the database"
      ;;
    *) fail "status $2 of the $1 load" ;;
  esac
}

round=0
load first || fail "the load to compare with"
expected=$(content)
reports=("$place"/n_duplicat_report_*.txt)
[ ${#reports[@]} = 1 ] || fail "no report of duplicates"
expected_report=$(report "${reports[0]}")

both=0
for ((round = 1; round <= rounds; ++round)); do
  # Every other round an old database is there.
  [ $((round % 2)) = 0 ] || rm "$place/n.mdb"
  rm -f "$place"/n_duplicat_report_*.txt
  load first &
  first=$!
  # At once, when the first one is on its way, or when its database takes its place.
  case $((round % 3)) in
    0) ;;
    1) wait_for 'compgen -G "$place/n.mdb.*.part" >/dev/null' ;;
    2)
      before=$(stat -c %i "$place/n.mdb" 2>/dev/null || true)
      wait_for '[ "$(stat -c %i "$place/n.mdb" 2>/dev/null || true)" != "$before" ]'
      ;;
  esac
  second_status=0
  load second || second_status=$?
  first_status=0
  wait "$first" || first_status=$?
  expect_outcome first "$first_status"
  expect_outcome second "$second_status"
  [ "$first_status" = 0 ] || [ "$second_status" = 0 ] || fail "both are refused"
  [ "$first_status$second_status" != 00 ] || both=$((both + 1))

  for file in "$place"/*; do
    case ${file##*/} in
      n.txt | n.mdb) ;;
      n_duplicat_report_*.txt) [ "$(report "$file")" = "$expected_report" ] || fail "the report isn't whole" ;;
      *) fail "$file is left" ;;
    esac
  done
  compgen -G "$place/n_duplicat_report_*.txt" >/dev/null || fail "no report of duplicates"
  [ "$(content)" = "$expected" ] || fail "the database isn't whole"
done
echo "$rounds rounds of two loads at once: both ended well in $both, one was refused in $((rounds - both))"
