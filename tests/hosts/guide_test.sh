#!/usr/bin/env bash
# Runs the example of each calculator as the guide shows it, and compares the first line of the answer with the sentence
# below it.
#
#   guide_test.sh GUIDE PROGRAM
set -euo pipefail
examples=0 wrong=0 command=
while IFS= read -r line; do
  case $line in
    '    amortix2 call '*)
      command=${line#    amortix2 }
      examples=$((examples + 1))
      answer=$(eval "'$2' $command --today 2026-12-01" 2>/dev/null) || { echo "no answer: $command" >&2; wrong=1; }
      ;;
    '') ;;
    \#*) command= ;;
    *)
      [ -z "$command" ] || [ "${line//\\/}" = "${answer%%$'\n'*}" ] || { echo "$command: not $line" >&2; wrong=1; }
      command=
      ;;
  esac
done <"$1"
[ "$examples" -gt 20 ] && exit "$wrong"
