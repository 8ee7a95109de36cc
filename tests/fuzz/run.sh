#!/usr/bin/env bash
# Runs every fuzz target for so many seconds, starting from the example files and what earlier runs found.
set -euo pipefail
bin=$1
seconds=$2
for target in "$bin"/*_fuzz; do
  corpus=build/fuzz/$(basename "$target")
  mkdir -p "$corpus"
  echo "$(basename "$target"), $seconds seconds"
  "$target" -max_total_time="$seconds" -max_len=65536 -rss_limit_mb=2048 -timeout=10 -print_final_stats=1 \
    -artifact_prefix="$corpus/" "$corpus" examples 2>&1 | tail -n 12
done
