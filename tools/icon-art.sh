# Shared by the scripts that render icons from SVG drawings: the programs they need, a folder to work in, one drawing.
# Sourced by art/render.sh, which sets `here` (the drawings) before. The results are committed, so that a build needs
# neither of the two programs.

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

icon() { # file name size...
  local file=$1 name=$2 size images=()
  shift 2
  for size in "$@"; do
    render "$name" "$size"
    images+=("$work/$name-$size.png")
  done
  convert "${images[@]}" -strip "$file"
}
