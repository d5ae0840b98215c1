#!/usr/bin/env bash
# Renders the icons and image strips of the resources from the SVG sources beside this script.
set -eu
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
target=$(dirname "$here")
. "$here/../../../tools/icon-art.sh"

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
  # 32 is twice the grid of the drawings, so both sizes have sharp edges.
  icon "$target/$name.ico" "$name" 16 32
done
strip tree_images 16 tree_root tree_group
strip list_images 18 list_information list_error list_warning
echo "rendered into $target"
