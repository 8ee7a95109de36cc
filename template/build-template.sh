#!/usr/bin/env bash
# Builds the master template from schema.sql and the two reference tables.
#   build-template.sh OUT OP_AGCY_CSV ADDR_CODE_CSV
# Exit status: 0 built; 2 wrong usage or a file that can't be used, with OUT left as it was; 1 any other failure.
set -euo pipefail

refuse() {
  printf 'build-template.sh: %s\n' "$1" >&2
  exit 2
}

# Prints the INSERT statements for the rows of a CSV file, after looking at every line.
#   rows_of TABLE FILE PATTERN WHAT    the second column meets PATTERN, said to be WHAT when it doesn't
rows_of() {
  [ -f "$2" ] || refuse "$2: no such file"
  [ -r "$2" ] || refuse "$2: can't be read"
  file=$2 LC_ALL=C awk -v table="$1" -v pattern="$3" -v what="$4" '
    function refuse(text) {
      print "build-template.sh: " ENVIRON["file"] ": " text > "/dev/stderr"
      refused = 1
      exit 2
    }
    NR == 1 { sub(/^\357\273\277/, "") }
    { sub(/\r$/, "") }
    NR == 1 {
      if ($0 != "adm," table) refuse("the first line is not adm," table)
      next
    }
    $0 == "" { next }
    {
      if (split($0, field, ",") != 2) refuse("line " NR " has not two columns")
      if (field[1] !~ /^[A-Z][A-Z]?[A-Z]?$/) refuse("line " NR ": adm is not one to three capital letters")
      if (field[2] !~ pattern) refuse("line " NR ": " table " is not " what)
      if (seen[toupper($0)]++) refuse("line " NR " repeats an earlier line")
      printf "INSERT INTO %s VALUES (\047%s\047, \047%s\047);\n", table, field[1], field[2]
      rows++
    }
    END {
      if (!refused && !NR) refuse("the file is empty")
      if (!refused && !rows) refuse("no row follows the first line")
    }' < "$2"
}

[ $# -eq 3 ] || refuse 'usage: build-template.sh OUT OP_AGCY_CSV ADDR_CODE_CSV'
out=$1
schema=$(dirname -- "${BASH_SOURCE[0]}")/schema.sql
[ ! -d "$out" ] || refuse "$out: is a folder"
[ -d "$(dirname -- "$out")" ] || refuse "$out: there is no such folder"
[ -r "$schema" ] || refuse "$schema: no such file, or it can't be read"
command -v sqlite3 > /dev/null || refuse 'the sqlite3 shell is not installed'

# Leading zeros count: a spreadsheet that made 001 a number has lost them.
rows=$(rows_of op_agcy "$2" '^[0-9][0-9][0-9][0-9]?$' 'three or four digits')
rows+=$'\n'$(rows_of addr_code "$3" '^[A-Za-z]$' 'one letter')

# Built in a folder beside OUT, so that the last step is a rename.
work=$(mktemp -d -- "$out.XXXXXX")
trap 'rm -rf -- "$work"' EXIT
work=$(cd -- "$work" && pwd)
{ cat -- "$schema"; printf 'BEGIN;\n%s\nCOMMIT;\n' "$rows"; } \
  | sqlite3 -batch -bail -init /dev/null "$work/template"
mv -f -- "$work/template" "$out"
