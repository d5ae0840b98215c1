#!/usr/bin/env bash
# Renders the icons of ZNKTRes.dll from the SVG sources beside this script.
set -eu
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
target=$(dirname "$here")
. "$here/../../../../tools/icon-art.sh"

for name in new copyfrom edit rename del dock undock close_c; do
  icon "$target/$name.ico" "$name" 16 24 32
done
echo "rendered into $target"
