#!/bin/bash
# Draws the bitmaps under assets/ again from their sources in assets/art/. Needed only after a source was changed: the
# bitmaps are kept in the repository, so building and running need none of the drawing tools.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
need_packages librsvg2-bin imagemagick python3 fonts-dejavu-core

mkdir -p assets/images assets/reports
art=assets/art
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# draw NAME STYLESHEET: draws art/NAME.svg at the size that it names.
draw() {
  rsvg-convert --stylesheet "$2" -o "$work/drawn.png" "$art/$1.svg"
}

# to_bitmap FILE: writes the drawing as a bitmap with an alpha channel.
to_bitmap() {
  local size
  size=$(identify -format '%w %h' "$work/drawn.png")
  # shellcheck disable=SC2086  # the size is two words
  convert "$work/drawn.png" -depth 8 RGBA:- | python3 scripts/lib/write_bitmap.py $size "$1"
}

for button in start stop new setup; do
  draw "$button" "$art/released.css"
  to_bitmap "assets/images/$button.bmp"
  draw "$button" "$art/pressed.css"
  to_bitmap "assets/images/${button}h.bmp"
  # The same for the languages in which it has another word.
  for look in released pressed; do
    cat "$art/$look.css" "$art/wordless.css" >"$work/wordless.css"
    draw "$button" "$work/wordless.css"
    convert "$work/drawn.png" -strip "PNG32:assets/images/$button-$look.png"
  done
done

draw logosmall "$art/released.css"
to_bitmap assets/images/logosmall.bmp

draw tarnwick "$art/released.css"
convert "$work/drawn.png" -strip PNG32:assets/images/tarnwick.png

# The icons of an installation for all users; the drawing itself goes along as the scalable one.
for size in 16 22 24 32 48 64 128 256 512; do
  folder=packaging/icons/hicolor/${size}x$size/apps
  mkdir -p "$folder"
  rsvg-convert --width "$size" --height "$size" -o "$work/icon.png" "$art/tarnwick.svg"
  convert "$work/icon.png" -strip "PNG32:$folder/tarnwick.png"
done

for bar in green red; do
  draw "$bar" "$art/released.css"
  convert "$work/drawn.png" -strip -sampling-factor 1x1 -quality 92 "assets/reports/$bar.jpg"
done
echo "The bitmaps under assets/ are drawn."
