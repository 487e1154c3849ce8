#!/usr/bin/env bash
# Runs each `$ amortix2 ...` of a document and looks for the lines shown below it in the answer; "..." marks lines
# that are left out, "#" a comment.
set -euo pipefail
readme=$1
amortix2=$2
answer=
failed=0
checked=0
while IFS= read -r line; do
  case "$line" in
    '    $ amortix2 '*) answer=$(eval "'$amortix2' ${line#*amortix2 } 2>&1") ;;
    '    ...' | '    # '* | '') ;;
    '    '*)
      [ -n "$answer" ] || continue
      checked=$((checked + 1))
      grep -qxF -- "${line#    }" <<<"$answer" || { echo "the document shows what is not answered: $line" >&2; failed=1; }
      ;;
    *) answer= ;;
  esac
done <"$readme"
[ "$checked" -gt 0 ] && exit "$failed"
