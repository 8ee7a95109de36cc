#!/usr/bin/env bash
# Fails when a folder under src/ includes what its place in the house doesn't allow.
set -euo pipefail
src=$1
status=0

# Tells every line in folder $1 that includes something matching $2.
forbid() {
  if grep -rnE "#include +[<\"]($2)" "$src/$1" --include='*.h' --include='*.cpp'; then
    echo "^ not allowed in $1/"
    status=1
  fi
}

own='platform|model|noticefile|jetfile|map|validation|database|widgets|query|screens|shell'
qt='Q[A-Z]|Qt'
forbid platform "(jetfile|model|noticefile|map|validation|database|query|screens|shell|widgets)/|$qt|sqlite3|s2/"
forbid model "(jetfile|noticefile|map|validation|database|query|screens|shell|widgets)/|$qt|sqlite3|s2/"
forbid noticefile "(jetfile|map|validation|database|query|screens|shell|widgets)/|$qt|sqlite3|s2/"
forbid jetfile "(model|noticefile|map|validation|database|query|screens|shell|widgets)/|$qt|sqlite3|s2/"
forbid map "(jetfile|model|noticefile|validation|database|query|screens|shell|widgets)/|$qt|sqlite3"
forbid validation "(jetfile|database|query|screens|shell|widgets)/|$qt|sqlite3|s2/"
forbid database "(map|validation|query|screens|shell|widgets)/|$qt|s2/"
forbid widgets "(jetfile|model|noticefile|map|validation|database|query|screens|shell)/|sqlite3|s2/"
forbid query "(jetfile|map|validation|screens|shell)/|sqlite3|s2/"
forbid screens "jetfile/|sqlite3|s2/"
forbid shell "sqlite3|s2/"

# What an operating system has of its own: in platform/ alone, and there in one file a system.
system='(unistd|fcntl|dirent|poll|pwd|grp|signal|spawn|termios|dlfcn|pthread|windows)\.h|sys/|linux/|netinet/'
own_of_a_system='/platform/[a-z_]+_(posix|windows)\.cpp:'
if grep -rnE "#include +[<\"]($system)" "$src" --include='*.h' --include='*.cpp' | grep -vE "$own_of_a_system"; then
  echo "^ allowed in platform/*_posix.cpp and the like alone"
  status=1
fi

[ -z "$(find "$src" -mindepth 1 -maxdepth 1 -type d | grep -vE "/($own)$")" ] || {
  echo "a folder under src/ that has no place in the house"
  status=1
}

# Nothing else knows the shell, and old files are opened in one place.
for folder in "$src"/*/; do
  name=$(basename "$folder")
  [ "$name" = shell ] || forbid "$name" "shell/"
  [ "$name" = jetfile ] || forbid "$name" "mdbtools|glib"
done
exit $status
