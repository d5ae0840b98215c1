#!/usr/bin/env bash
# Renders the icon of the gallery from the SVG source beside this script.
set -eu
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
target=$(dirname "$here")
. "$here/../../../tools/icon-art.sh"

icon "$target/gallery.ico" gallery 16 24 32 48
echo "rendered into $target"
