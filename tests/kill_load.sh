#!/usr/bin/env bash
# Kills loads before one of their calls that change a file, and looks at what they leave: the old database whole, with all
# that its journal held, or the new one whole; never half of one, and never a journal beside the wrong one. What a
# killed load leaves besides is gone after the next load.
# Usage: tests/kill_load.sh FOLDER_OF_THE_PROGRAMS KILLER SCRIPT_THAT_MAKES_INPUT [KILLS] [SEED]
set -euo pipefail
program=$(realpath "$1")/zamo-kv19-batch
killer=$(realpath "$2")
make_input=$(realpath "$3")
kills=${4:-240}
RANDOM=${5:-20260307}
# For programs that are built to check themselves.
export ASAN_OPTIONS=verify_asan_link_order=0

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for notices in 15 40; do
  python3 "$make_input" --notices "$notices" --text-only "$work/input" >/dev/null
done

state=none
place=$work
fail() {
  echo "old database: $state, killed before call ${at:-none}: $1" >&2
  ls -la "$place" >&2
  exit 1
}

# load [VARIABLE=VALUE...]
load() { (cd "$place" && env "$@" "$program" load --level 1 n.txt >"$work/out.log" 2>"$work/err.log"); }

# All that a database holds, but for the day of the load.
content() {
  sqlite3 "$1" 'PRAGMA integrity_check; PRAGMA foreign_key_check; SELECT count(*) FROM fmtv_vorna' .dump |
    sed -E 's/[0-9]{4}-[0-9]{2}-[0-9]{2}//g' | sha256sum
}

# One file by its pattern, or nothing.
one() {
  local IFS=
  local found=("$place"/$1)
  [ -e "${found[0]}" ] || return 0
  [ ${#found[@]} = 1 ] || fail "more than one $1"
  echo "${found[0]}"
}

# What stands before each load: no database, one as it was loaded, or one that was worked on by a window that was killed, so
# that the last changes stand in its journal alone.
prepare() {
  mkdir -p "$work/$1"
  cp "$work/input/notices-15.txt" "$work/$1/n.txt"
  place=$work/$1
  if [ "$1" != none ]; then load || fail "the first load"; fi
  if [ "$1" = journal ]; then
    {
      sqlite3 "$place/n.mdb" 'PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0' \
        "UPDATE proc_ntc_hist SET src_update = 'anna'" "UPDATE fmtv_vorna SET site_name = 'NEVERS'" \
        '.shell kill -9 $PPID'
    } >"$work/out.log" 2>&1 || true
    [ -s "$place/n.mdb-wal" ] || fail "no journal"
  fi
  cp "$work/input/notices-40.txt" "$place/n.txt"
}
for state in none loaded journal; do prepare "$state"; done

cp -r "$work/journal" "$work/merged"
sqlite3 "$work/merged/n.mdb" 'SELECT count(*) FROM fmtv_vorna' >/dev/null
old_of_none=
old_of_loaded=$(content "$work/loaded/n.mdb")
old_of_journal=$(content "$work/merged/n.mdb")
[ "$old_of_journal" != "$old_of_loaded" ] || fail "the journal holds nothing"

# Fails unless the folder has the new database, with the old one kept beside it if somebody had worked on that, and nothing
# else.
expect_new() {
  [ "$(content "$place/n.mdb")" = "$new" ] || fail "the new database isn't whole"
  if [ "$state" = journal ]; then
    kept=$(one 'n ????-??-?? ??????.mdb')
    [ -n "$kept" ] || fail "the old database wasn't kept"
    [ "$(content "$kept")" = "$old" ] || fail "the old database wasn't kept whole"
  fi
}

killed=0
for ((round = 0; round < kills; ++round)); do
  case $((round % 3)) in
    0) state=none ;;
    1) state=loaded ;;
    2) state=journal ;;
  esac
  old=old_of_$state
  old=${!old}
  place=$work/place
  rm -rf "$place"
  cp -r "$work/$state" "$place"
  calls=calls_of_$state
  if [ -z "${!calls:-}" ]; then
    at=
    load LD_PRELOAD="$killer" ZAMO_CALLS_TO="$work/calls" || fail "the load that counts"
    declare "$calls=$(cat "$work/calls")"
    new=${new:-$(content "$place/n.mdb")}
    expect_new
    rm -rf "$place"
    cp -r "$work/$state" "$place"
  fi
  # Every call at both ends, where names appear and change; anywhere between them.
  turn=$((round / 3))
  if [ $turn -lt 30 ]; then
    at=$((${!calls} - turn))
  elif [ $turn -lt 50 ]; then
    at=$((turn - 29))
  else
    at=$((21 + (RANDOM * 32768 + RANDOM) % (${!calls} - 50)))
  fi
  status=0
  { load LD_PRELOAD="$killer" ZAMO_KILL_AT="$at"; } 2>/dev/null || status=$?
  [ $status = 137 ] || fail "status $status"
  killed=$((killed + 1))

  if [ ! -e "$place/n.mdb" ]; then
    [ "$state" = none ] || fail "the old database is gone"
  elif [ "$state" != none ] && [ "$(content "$place/n.mdb")" = "$old" ]; then
    kept=$(one 'n ????-??-?? ??????.mdb')
    [ -z "$kept" ] || [ "$(content "$kept")" = "$old" ] || fail "what was kept isn't whole"
    rm -f "$kept"
  else
    [ ! -e "$place/n.mdb-wal" ] && [ ! -e "$place/n.mdb-journal" ] || fail "the new database has a journal"
    expect_new
    [ "$state" = journal ] && state=replaced
  fi

  load || fail "the next load"
  expect_new
  for leftover in "$place"/*.part* "$place"/*-wal "$place"/*-shm "$place"/*-journal; do
    [ ! -e "$leftover" ] || fail "the next load left $leftover"
  done
done
echo "$killed loads killed, every database whole"
