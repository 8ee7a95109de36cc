#!/usr/bin/env bash
# Installs what packages.txt lists and is missing. Quiet when nothing is.
set -euo pipefail
list=$(dirname "$0")/packages.txt
mapfile -t wanted < <(grep -v '^#' "$list")
missing=()
for package in "${wanted[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
# The borders come from npm, which may have come with a Node.js that isn't Debian's.
command -v npm >/dev/null || missing+=(npm)
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -q
"${as_root[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
