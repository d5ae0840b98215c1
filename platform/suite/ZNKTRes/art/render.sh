#!/usr/bin/env bash
# Renders the icons of ZNKTRes.dll from the SVG sources beside this script.
# The results are committed, so that a build needs neither of the two programs.
set -eu
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
target=$(dirname "$here")

need() {
  command -v "$1" >/dev/null || { echo "render.sh: $1 is missing; install it with: apt-get install $2" >&2; exit 1; }
}
need rsvg-convert librsvg2-bin
need convert imagemagick

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# A drawing named after a size, such as del.16.svg, stands in for the scaled one at that size.
for name in new copyfrom edit rename del dock undock close_c; do
  images=()
  for size in 16 24 32; do
    source=$here/$name.svg
    [ ! -f "$here/$name.$size.svg" ] || source=$here/$name.$size.svg
    rsvg-convert -w "$size" -h "$size" -o "$work/$name-$size.png" "$source"
    images+=("$work/$name-$size.png")
  done
  convert "${images[@]}" -strip "$target/$name.ico"
done
echo "rendered into $target"
