#!/usr/bin/env bash
# Renders the icons and image strips of the resources from the SVG sources beside this script.
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

# A drawing named after a size, such as delete.16.svg, stands in for the scaled one at that size.
render() { # name size
  local source=$here/$1.svg
  [ ! -f "$here/$1.$2.svg" ] || source=$here/$1.$2.svg
  rsvg-convert -w "$2" -h "$2" -o "$work/$1-$2.png" "$source"
}

# 32 is twice the grid of the drawings, so both sizes have sharp edges.
icon() { # name
  local size images=()
  for size in 16 32; do
    render "$1" "$size"
    images+=("$work/$1-$size.png")
  done
  convert "${images[@]}" -strip "$target/$1.ico"
}

# White is the strip's transparent colour: the outline is cut hard (a soft one would leave a pale fringe on a selected
# row), and no point inside may be pure white.
strip() { # file size name...
  local file=$1 size=$2 name images=()
  shift 2
  for name in "$@"; do
    render "$name" "$size"
    convert "$work/$name-$size.png" -channel A -threshold 50% -channel RGB -evaluate min '99.6078%' +channel \
      -background white -flatten "$work/$name-flat.png"
    images+=("$work/$name-flat.png")
  done
  convert "${images[@]}" +append -strip -type TrueColor -define bmp:format=bmp3 "BMP3:$target/$file.bmp"
}

for name in tree delete delete_all flash zoom select; do
  icon "$name"
done
strip tree_images 16 tree_root tree_group
strip list_images 18 list_information list_error list_warning
echo "rendered into $target"
