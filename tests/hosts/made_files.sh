#!/usr/bin/env bash
# Makes all made files anew and compares them with those of the project; then the program's version with the newest
# heading of the changes.
#
#   made_files.sh FOLDER_OF_PROGRAMS FOLDER_TO_MAKE_THEM_IN
set -euo pipefail
cd "$(dirname "$0")/../.."
rm -rf "$2"
mkdir -p "$2/hosts/com"
"$1/amortix2_documents" "$2"
"$1/amortix2_com_files" "$2/hosts/com"
status=0
while read -r file; do
  diff -u "$file" "$2/$file" || status=1
done < <(cd "$2" && find . -type f)
[ "$("$1/amortix2" --version)" = "amortix2 $(sed -n 's/^## \([0-9.]*\).*/\1/p' CHANGELOG.md | head -n 1)" ] || status=1
exit $status
