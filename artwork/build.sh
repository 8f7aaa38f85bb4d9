#!/bin/bash
# Draws all pictures and the sound of the program, the icons of its package and those in its code, from
# the sources in this folder. Only the font of the donation pictures comes from the system.
set -euo pipefail
export LC_ALL=C
cd "$(dirname "${BASH_SOURCE[0]}")"

missing=()
command -v rsvg-convert >/dev/null || missing+=(librsvg2-bin)
command -v convert >/dev/null || missing+=(imagemagick)
command -v python3 >/dev/null || missing+=(python3)
[[ "$(fc-match -f '%{family}' 'Liberation Sans:bold' 2>/dev/null || true)" == Liberation\ Sans* ]] ||
    missing+=(fontconfig fonts-liberation)
if ((${#missing[@]})); then
    echo "Missing packages: ${missing[*]}" >&2
    exit 1
fi

images=../data/img
skin=$images/skins/standard
empty_skin=$images/skins/temp_webskin
mkdir -p "$skin"/{gebaeude,images} "$empty_skin"/{gebaeude,images} ../data/mfx
touch "$empty_skin"/{gebaeude,images}/.gitkeep
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# png FILE.svg WIDTH OUT.png
png() { rsvg-convert -w "$2" "$1" -o "$3"; }

# gif GROUP SUBJECT OUT.gif: the subject in the frame of its group. It is drawn large and scaled down,
# which gives smoother edges than the renderer's own.
gif() {
    local svg colors subject
    svg=$(<"frames/$1.svg") colors=$(<frames/colors.svg) subject=$(<"subjects/$1/$2.svg")
    svg=${svg/"<!-- Colors -->"/"$colors"}
    svg=${svg/"<!-- Subject -->"/"$subject"}
    printf '%s' "$svg" >"$tmp/$2.svg"
    png "$tmp/$2.svg" 488 "$tmp/large.png"
    convert "$tmp/large.png" -alpha off -filter Lanczos -resize 122x122 -unsharp 0x0.6+0.5+0.01 \
        -define dither:diffusion-amount=75% -dither FloydSteinberg -colors 256 +set comment -strip "$3"
}

for group in buildings research shipyard defense; do
    for subject in subjects/$group/*.svg; do
        number=$(basename "$subject" .svg)
        gif $group "$number" "$skin/gebaeude/$number.gif"
    done
done
for stock in metall kristall deuterium energie; do
    gif stocks $stock "$skin/images/$stock.gif"
done
gif stocks summe $images/summe.gif

png donation/donation.svg 176 $images/spende.png
# button NAME FONT_SIZE AMOUNT
button() {
    sed "s/AMOUNT/$3/g; s/SIZE/$2/" donation/button.svg >"$tmp/button.svg"
    png "$tmp/button.svg" 220 "$images/spende_$1.png"
}
button 05 34 '0,50 €'
button 1 34 '1 €'
button 2 34 '2 €'
button 5 34 '5 €'
button 10 34 '10 €'
button X 27 'Betrag frei'

for hand in handopen hand; do
    png cursors/$hand.svg 32 "$tmp/32.png"
    png cursors/$hand.svg 64 "$tmp/64.png"
    convert "$tmp"/{32,64}.png -strip $images/$hand.ico
done

# icon DRAWING PLACE: an icon in all sizes that desktops use. Small ones have a drawing of their own, as
# the large one scaled down is a blot.
icon() {
    local size drawing folder
    for size in 16 24 32 48 64 128 256 512; do
        drawing=$1
        ((size > 24)) || drawing+=_small
        folder=$icons/${size}x$size/$(dirname "$2")
        mkdir -p "$folder"
        png "$drawing.svg" $size "$folder/$(basename "$2").png"
    done
}
icons=../packaging/hicolor
icon icon apps/tarvelin
icon plan mimetypes/application-x-tarvelin-plan
convert "$icons"/{16x16,24x24,32x32,48x48,64x64,128x128,256x256}/apps/tarvelin.png -strip \
    $images/icon.ico

python3 sound.py ../data/mfx/alert.wav
python3 icons.py
