#!/bin/sh
# Draws the program's icon (the bar's pencil, turned to the diagonal) and
# writes quillstart.ico with every size Windows asks for. Needs ImageMagick.
set -e
cd "$(dirname "$0")"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
convert -size 360x80 xc:none \
  -fill '#EBCFA6' -draw 'polygon 2,40 72,8 72,72' \
  -fill '#D9B98C' -draw 'polygon 2,40 72,52 72,72' \
  -fill '#3C4148' -draw 'polygon 2,40 26,29 26,51' \
  -fill '#E3B54F' -draw 'rectangle 72,8 290,28' \
  -fill '#F0CB6A' -draw 'rectangle 72,28 290,52' \
  -fill '#CFA043' -draw 'rectangle 72,52 290,72' \
  -fill '#C3C8CF' -draw 'rectangle 290,8 318,72' \
  -fill '#98A0AA' -draw 'rectangle 298,8 301,72' -draw 'rectangle 308,8 311,72' \
  -fill '#E7A3A0' -draw 'roundrectangle 312,8 354,72 14,14' \
  -fill '#C3C8CF' -draw 'rectangle 312,8 318,72' \
  "$work/flat.png"
convert "$work/flat.png" -background none -rotate -45 -trim +repage \
  -resize 240x240 -gravity center -extent 256x256 "$work/icon.png"
convert "$work/icon.png" -depth 8 -define icon:auto-resize=256,64,48,32,24,16 quillstart.ico
