#!/bin/sh
# Renders the committed PNG sizes of the product's icon from its SVG. Run it after every change of
# zelto.svg. They are committed, not built: Qt's SVG plug-in is not installed everywhere, and
# neither is a renderer (librsvg: rsvg-convert, or its gdk-pixbuf loader).
set -eu
cd "$(dirname "$0")"
for size in 16 24 32 48 64 128 256 512; do
    if command -v rsvg-convert >/dev/null; then
        rsvg-convert --width "$size" --height "$size" --output "zelto-$size.png" zelto.svg
    else
        gdk-pixbuf-thumbnailer -s "$size" zelto.svg "zelto-$size.png"
    fi
done
