#!/usr/bin/env bash
# Runs every fuzz target for so many seconds, starting from its seeds, the example files and what earlier runs found.
# Usage: tests/fuzz/run.sh FOLDER_OF_THE_PROGRAMS SECONDS
set -euo pipefail
bin=$1
seconds=$2
here=$(cd "$(dirname "$0")" && pwd)
made_seeds=$(dirname "$bin")/tests/fuzz

# Files that live for one input are made in memory where that is possible.
work=$(mktemp -d "$([ -w /dev/shm ] && echo /dev/shm || echo /tmp)/zamo_fuzz_XXXXXX")
trap 'rm -rf "$work"' EXIT
export TMPDIR=$work

# fuzz TARGET DICTIONARY SEEDS...
fuzz() {
  local target=$1_fuzz dictionary=$2
  shift 2
  local corpus=build/fuzz/$target
  mkdir -p "$corpus"
  echo "$target, $seconds seconds"
  "$bin/$target" -max_total_time="$seconds" -max_len=65536 -rss_limit_mb=2048 -timeout=25 -print_final_stats=1 \
    ${dictionary:+-dict="$here/$dictionary"} -artifact_prefix="$corpus/" "$corpus" "$@" 2>&1 | tail -n 12
}

fuzz structure notice_file.dict examples
fuzz strict_reader notice_file.dict examples
fuzz section_reader notice_file.dict examples
fuzz dialect dialect.dict "$here/seeds/dialect"
fuzz map_file '' "$made_seeds/map_file_seeds"
fuzz database '' "$here/seeds/database"
