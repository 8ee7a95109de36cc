#!/usr/bin/env bash
# Kills loads at random moments and looks at what they leave: a sound database with a whole number of notices, onto which
# a second load works. Usage: tests/kill_load.sh FOLDER_OF_THE_PROGRAMS SCRIPT_THAT_MAKES_INPUT [KILLS] [SEED]
set -euo pipefail
program=$1/zamo-kv19-batch
make_input=$2
kills=${3:-200}
RANDOM=${4:-20260307}
notices=1500

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
python3 "$make_input" --notices "$notices" --text-only "$work/input" >/dev/null
cp "$work/input/notices-$notices.txt" "$work/notices.txt"
arguments=(load --level 1 --yes "$work/notices.txt")
load() { "$program" "${arguments[@]}" >"$work/out.log" 2>"$work/err.log"; }

ask() { sqlite3 "$work/notices.mdb" "$1"; }

fail() {
  echo "after kill $kill at $pause s: $1" >&2
  exit 1
}

start=$(date +%s%N)
load
whole=$((($(date +%s%N) - start) / 1000))
expected=$(ask 'SELECT (SELECT count(*) FROM fmtv_vorna), (SELECT count(*) FROM lmz_contour WHERE nb_test_pts IS NOT NULL)')
heights_each=36
killed=0
for ((kill = 1; kill <= kills; ++kill)); do
  pause=$(printf '%d.%06d' 0 $((RANDOM * 32768 % (whole > 999999 ? 999999 : whole) + RANDOM % 1000)))
  # Not through the function: its shell would be killed and the program live on.
  "$program" "${arguments[@]}" >"$work/out.log" 2>"$work/err.log" &
  loader=$!
  sleep "$pause"
  if kill -9 "$loader" 2>/dev/null; then killed=$((killed + 1)); fi
  wait "$loader" 2>/dev/null || true
  # Killed before the database had its name: nothing to look at.
  [ -e "$work/notices.mdb" ] || continue
  [ "$(ask 'PRAGMA integrity_check')" = ok ] || fail "integrity_check"
  [ -z "$(ask 'PRAGMA foreign_key_check')" ] || fail "foreign_key_check"
  torn=$(ask "SELECT count(*) FROM fmtv_vorna v WHERE notice_typ = 'GT1' AND
    (SELECT count(*) FROM fmtv_ant_hgt h WHERE h.vornakey = v.vornakey) <> $heights_each")
  [ "$torn" = 0 ] || fail "$torn assignments without all their heights"
  torn=$(ask "SELECT count(*) FROM lmz_contour c WHERE nb_test_pts IS NOT NULL AND
    (SELECT count(*) FROM lmz_contour_pt p WHERE p.contourkey = c.contourkey) <> nb_test_pts")
  [ "$torn" = 0 ] || fail "$torn contours without all their points"
  torn=$(ask "SELECT count(*) FROM fmtv_vorna v WHERE notice_typ = 'GT2' AND
    (SELECT count(*) FROM lmz_allotment a WHERE a.vornakey = v.vornakey) <> 1")
  [ "$torn" = 0 ] || fail "$torn allotments without their row"
  torn=$(ask "SELECT count(*) FROM fmtv_vorna v WHERE
    (SELECT count(*) FROM proc_ntc_hist p WHERE p.vornakey = v.vornakey) <> 1")
  [ "$torn" = 0 ] || fail "$torn notices without their history"
done
load
[ "$(ask 'SELECT (SELECT count(*) FROM fmtv_vorna), (SELECT count(*) FROM lmz_contour WHERE nb_test_pts IS NOT NULL)')" = "$expected" ] ||
  fail "the last load is not whole"
[ $((killed * 2)) -ge "$kills" ] || fail "only $killed of $kills loads were killed in time"
echo "$killed of $kills loads killed, every database sound"
