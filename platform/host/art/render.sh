#!/usr/bin/env bash
# Renders the icons of the host from the SVG sources beside this script.
set -eu
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
target=$(dirname "$here")
. "$here/../../../tools/icon-art.sh"

for name in host drawing; do
  icon "$target/$name.ico" "$name" 16 24 32 48
done
echo "rendered into $target"
