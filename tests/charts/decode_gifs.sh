#!/bin/sh
# Decodes sample images with two independent decoders; both must give the very pixels that went in, without a word.
#
#   decode_gifs.sh WRITER       the program that writes NAME.gif and NAME.rgb into a folder
set -u
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
"$1" "$folder" || exit 1

failed=0
check() { # NAME DECODER COMMAND...: the command's output and messages against NAME.rgb
  name=$1 decoder=$2
  shift 2
  "$@" >"$folder/said" 2>&1 || { echo "$decoder cannot decode $name: $(cat "$folder/said")"; failed=1; return; }
  [ ! -s "$folder/said" ] || { echo "$decoder on $name: $(cat "$folder/said")"; failed=1; }
  cmp "$folder/$name.rgb" "$folder/out" || { echo "$decoder gives other pixels for $name"; failed=1; }
}

for image in "$folder"/*.gif; do
  name=$(basename "$image" .gif)
  check "$name" giflib gif2rgb -1 -o "$folder/out" "$image"
  check "$name" ImageMagick convert "$image" -depth 8 "rgb:$folder/out"
  giftext "$image" | grep -q 'Screen Size' || { echo "giftext does not read $name"; failed=1; }
done
exit $failed
