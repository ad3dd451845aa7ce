#!/bin/bash
# Draws magpie.ico and the pictures in uBank/ from the drawings in artwork/.
# Run it after changing a drawing and check the results in: a build takes the
# finished pictures and needs neither this script nor its tools.
# Needs rsvg-convert (librsvg2-bin) and convert (imagemagick).
set -euo pipefail
cd "$(dirname "$0")"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p uBank

# draw WIDTH SOURCE RESULT [STYLE SHEET]
draw() {
    rsvg-convert ${4:+-s "$4"} -w "$1" "artwork/$2" -o "$work/$3.png"
}

# The smaller the icon, the simpler its drawing.
draw 16 magpie-16.svg icon16
for size in 20 24 32; do draw "$size" magpie-small.svg "icon$size"; done
for size in 40 48 64 128 256; do draw "$size" magpie.svg "icon$size"; done
images=()
for size in 256 128 64 48 40 32 24 20 16; do images+=("$work/icon$size.png"); done
convert "${images[@]}" magpie.ico

# 24 bits without compression: what every picture loader of the platform reads.
bank() {
    convert "$work/$1.png" -alpha off -type TrueColor "BMP3:uBank/$2.bnk"
}

draw 32 pad.svg offline artwork/pad-offline.css
draw 32 pad.svg flushed artwork/pad-flushed.css
draw 32 pad.svg pressed artwork/pad-pressed.css
draw 32 pad.svg ready artwork/pad-ready.css
draw 20 flip-shown.svg shown
draw 20 flip-hidden.svg hidden
bank offline ia
bank flushed ib
bank pressed ic
bank ready id
bank shown b1u
bank hidden b1d
