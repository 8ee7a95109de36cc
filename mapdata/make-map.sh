#!/usr/bin/env bash
# Puts the world map at MAP. What is made once of the same sources, tables and builder is kept in STORE, which all
# presets share. Usage: make-map.sh BUILDER CHART STORE MAP
set -euo pipefail
builder=$1 chart=$2 store=$3 map=$4
here=$(cd "$(dirname "$0")" && pwd)
package=$store/package
geojson=$package/node_modules/@geo-maps/countries-land-250m/map.geo.json

mkdir -p "$store"
exec 9>"$store/lock"
flock 9

borders=$(cat "$here"/package.json "$here"/package-lock.json | sha256sum | cut -d ' ' -f 1)
if [ "$(cat "$package/borders" 2>/dev/null)" != "$borders" ]; then
  mkdir -p "$package"
  cp "$here"/package.json "$here"/package-lock.json "$here"/.npmrc "$package"
  npm ci --silent --prefix "$package"
  echo "$borders" >"$package/borders"
fi

made_of=$(cd "$here" && cat package-lock.json ./*.txt ./*.csv ./*.cpp ./*.h ../src/map/map_file.h ../src/map/map_shape.h "$chart" | sha256sum | cut -d ' ' -f 1)
kept=$store/$made_of.dat
if [ ! -e "$kept" ]; then
  "$builder" "$geojson" "$chart" "$here" "$kept.part"
  mv "$kept.part" "$kept"
fi
# Under another name first: a program may have the old one mapped.
cp "$kept" "$map.part"
mv "$map.part" "$map"
