#!/bin/bash
# Draws every picture and sound of the program and the icons of its package anew from the sources in
# this folder.
# The fonts of the donation pictures are the only thing taken from the system.
set -euo pipefail
export LC_ALL=C
cd "$(dirname "${BASH_SOURCE[0]}")"

fehlt=()
command -v rsvg-convert >/dev/null || fehlt+=(librsvg2-bin)
command -v convert >/dev/null || fehlt+=(imagemagick)
command -v python3 >/dev/null || fehlt+=(python3)
[[ "$(fc-match -f '%{family}' 'Liberation Sans:bold' 2>/dev/null || true)" == Liberation\ Sans* ]] ||
    fehlt+=(fontconfig fonts-liberation)
if ((${#fehlt[@]})); then
    echo "Missing packages: ${fehlt[*]}" >&2
    exit 1
fi

bild=../data/img
skin=$bild/skins/standard
leer=$bild/skins/temp_webskin
mkdir -p "$skin"/{gebaeude,images} "$leer"/{gebaeude,images} ../data/mfx
touch "$leer"/{gebaeude,images}/.gitkeep
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# png FILE.svg EDGE OUT.png
png() { rsvg-convert -w "$2" "$1" -o "$3"; }

# gif GROUP MOTIF OUT.gif: the motif in the frame of its group. Drawn large and scaled down, edges
# come out smoother than the renderer's own.
gif() {
    local svg farben motiv
    svg=$(<"frames/$1.svg") farben=$(<frames/colors.svg) motiv=$(<"subjects/$1/$2.svg")
    svg=${svg/"<!-- Farben -->"/"$farben"}
    svg=${svg/"<!-- Motiv -->"/"$motiv"}
    printf '%s' "$svg" >"$tmp/$2.svg"
    png "$tmp/$2.svg" 488 "$tmp/gross.png"
    convert "$tmp/gross.png" -alpha off -filter Lanczos -resize 122x122 -unsharp 0x0.6+0.5+0.01 \
        -define dither:diffusion-amount=75% -dither FloydSteinberg -colors 256 +set comment -strip "$3"
}

for gruppe in buildings research shipyard defense; do
    for motiv in subjects/$gruppe/*.svg; do
        nummer=$(basename "$motiv" .svg)
        gif $gruppe "$nummer" "$skin/gebaeude/$nummer.gif"
    done
done
for vorrat in metall kristall deuterium energie; do
    gif stocks $vorrat "$skin/images/$vorrat.gif"
done
gif stocks summe $bild/summe.gif

png donation/donation.svg 176 $bild/spende.png
# knopf NAME SIZE AMOUNT
knopf() {
    sed "s/BETRAG/$3/g; s/GROESSE/$2/" donation/button.svg >"$tmp/knopf.svg"
    png "$tmp/knopf.svg" 220 "$bild/spende_$1.png"
}
knopf 05 34 '0,50 €'
knopf 1 34 '1 €'
knopf 2 34 '2 €'
knopf 5 34 '5 €'
knopf 10 34 '10 €'
knopf X 27 'Betrag frei'

for hand in handopen hand; do
    png cursors/$hand.svg 32 "$tmp/32.png"
    png cursors/$hand.svg 64 "$tmp/64.png"
    convert "$tmp"/{32,64}.png -strip $bild/$hand.ico
done

# symbol DRAWING PLACE: in all sizes of a desktop. Small icons have a drawing of their own; scaled
# down, the large one is a blot.
symbol() {
    local kante zeichnung ordner
    for kante in 16 24 32 48 64 128 256 512; do
        zeichnung=$1
        ((kante > 24)) || zeichnung+=_small
        ordner=$symbole/${kante}x$kante/$(dirname "$2")
        mkdir -p "$ordner"
        png "$zeichnung.svg" $kante "$ordner/$(basename "$2").png"
    done
}
symbole=../packaging/hicolor
symbol icon apps/tarvelin
symbol plan mimetypes/application-x-tarvelin-plan
convert "$symbole"/{16x16,24x24,32x32,48x48,64x64,128x128,256x256}/apps/tarvelin.png -strip \
    $bild/icon.ico

python3 sound.py ../data/mfx/alert.wav
