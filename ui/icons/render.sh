#!/bin/sh
# Renders the committed PNG sizes of the product's icon from its two SVGs; run it after every
# change of them. The PNGs are committed, not built: Qt's SVG plug-in is not installed everywhere,
# and neither is a renderer (librsvg: rsvg-convert, or its gdk-pixbuf loader) or optipng.
set -eu
cd "$(dirname "$0")"

# render SIZE SVG
render() {
    if command -v rsvg-convert >/dev/null; then
        rsvg-convert --width "$1" --height "$1" --output "zelto-$1.png" "$2"
    else
        gdk-pixbuf-thumbnailer -s "$1" "$2" "zelto-$1.png"
    fi
    # Every start decodes them. Without filters, which do little for so flat a drawing, that takes
    # half as long.
    optipng -quiet -f0 -zc9 "zelto-$1.png"
}

for size in 16 22 24 32; do
    render "$size" zelto-small.svg
done
for size in 48 64 128 256 512; do
    render "$size" zelto.svg
done
