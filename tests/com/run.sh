#!/bin/bash
# One step of the COM server's tests in Wine: run.sh STEP. The environment says where things are:
#   COM_BIN    folder of Amortix2.dll and the clients        COM_WORK   scratch folder, with Wine's prefix in it
#   COM_BITS   64 or 32                                       COM_NATIVE folder of the build machine's programs
set -euo pipefail

# Wine's own services outlive the program that started them: they may hold a file open, not the caller's pipe.
if [ -z "${COM_LOG:-}" ]; then
  log=$(mktemp)
  COM_LOG=$log "$0" "$@" >"$log" 2>&1 </dev/null && status=0 || status=$?
  cat "$log"
  rm -f "$log"
  exit "$status"
fi

here=$(cd "$(dirname "$0")" && pwd)
pages=$here/../../examples/pages
export WINEPREFIX=$COM_WORK/prefix WINEARCH=win$COM_BITS WINEDEBUG=-all WINEDLLOVERRIDES='mscoree=;mshtml='
unset DISPLAY
loader=wine
[ "$COM_BITS" = 64 ] && [ -x /usr/lib/wine/wine64 ] && loader=/usr/lib/wine/wine64
server=/usr/lib/wine/wineserver
[ -x "$server" ] || server=wineserver

windows_path() { echo "Z:${1//\//\\}"; }
dll=$(windows_path "$COM_BIN/Amortix2.dll")

# The registered classes, once the registry is written to disk.
keys() { "$server" -w; cat "$WINEPREFIX"/{system,user}.reg | sed -n 's/^\(\[Software\\\\Classes.*\]\).*/\1/p' | sort; }
identifiers=$(grep -oE '[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}' "$here/../../hosts/com/amortix2.idl" | sort -u)

# How often each value stands in the keys that are the server's.
check_values() {
  "$server" -w
  awk -v RS= -v own="${identifiers//$'\n'/|}" 'tolower($0) ~ "amortix2|" own' "$WINEPREFIX/system.reg" >"$COM_WORK/keys.own"
  while read -r count value; do
    [ "$(grep -cxF -- "$value" "$COM_WORK/keys.own")" = "$count" ] || { echo "not $count times: $value"; return 1; }
  done
}

# Everything that registering wrote is gone again, and nothing else; Wine itself may have added keys meanwhile.
check_clean() {
  keys >"$COM_WORK/keys.after"
  comm -23 "$COM_WORK/keys.before" "$COM_WORK/keys.after" | while IFS= read -r key; do
    grep -qF "${key%]}\\\\" "$COM_WORK/keys.after" || { echo "lost: $key"; return 1; }
  done
  ! grep -iF -e amortix -e "$identifiers" "$COM_WORK/keys.after" || return 1
}

# By the manifest alone. Wine's proxies register the type library that they find there; the registry stays as it was.
unregistered_client() {
  "$server" -w
  cp "$WINEPREFIX/system.reg" "$COM_WORK/system.reg"
  client contract "$(windows_path "$COM_BIN/Amortix2.manifest")"
  "$server" -w
  cp "$COM_WORK/system.reg" "$WINEPREFIX/system.reg"
}

script() { "$loader" cscript /nologo "$(windows_path "$1")"; }

client() { "$loader" "$COM_BIN/$1_client.exe" "${@:2}"; }

case $1 in
  setup)
    rm -rf "$COM_WORK"
    mkdir -p "$COM_WORK"
    "$loader" wineboot -i
    keys >"$COM_WORK/keys.before"
    echo "Without registration"
    unregistered_client
    echo "For the user alone"
    "$loader" regsvr32 /s /n /i:user "$dll"
    "$server" -w
    ! grep -qi amortix "$WINEPREFIX/system.reg"
    # Wine looks for classes in the machine's part alone, so that no object can be made here.
    for key in 'Amortix2.BarChart\\CLSID' 'Amortix2.BarChart.1\\CLSID' "TypeLib.*\\\\0\\\\win$COM_BITS"; do
      grep -q "Classes.*${key//\\/\\\\}" "$WINEPREFIX/user.reg"
    done
    "$loader" regsvr32 /s /u /n /i:user "$dll"
    check_clean
    echo "For the machine"
    mkdir "$COM_WORK/Größe"
    cp "$COM_BIN/Amortix2.dll" "$COM_WORK/Größe"
    "$loader" regsvr32 /s "$(windows_path "$COM_WORK/Größe/Amortix2.dll")"
    client values
    unregistered_client
    "$loader" regsvr32 /s "$dll"
    check_values <<VALUES
6 @="${dll//\\/\\\\}"
5 "ThreadingModel"="Both"
5 @="{00020424-0000-0000-C000-000000000046}"
5 "Version"="1.0"
5 @="1.0"
3 @="Amortix2 SvgChart"
2 @="Amortix2.SvgChart.1"
1 @="Amortix2.SvgChart"
1 @="_SvgChart"
1 @="Amortix2"
VALUES
    ;;
  cleanup)
    "$loader" regsvr32 /s /u "$dll"
    check_clean
    "$server" -k || true
    rm -rf "$WINEPREFIX"
    ;;
  german)
    mkdir -p "$COM_WORK/locale"
    [ -d "$COM_WORK/locale/de_DE.UTF-8" ] || localedef -i de_DE -f UTF-8 "$COM_WORK/locale/de_DE.UTF-8"
    export LOCPATH=$COM_WORK/locale LC_ALL=de_DE.UTF-8
    echo 'WScript.Echo CStr(1.5)' >"$COM_WORK/german.vbs"
    [ "$(script "$COM_WORK/german.vbs" | tr -d '\r')" = 1,5 ]
    client values
    client conversion
    ;;
  client)
    client "${@:2}"
    ;;
  arithmetic)
    "$COM_NATIVE/com_arithmetic" >"$COM_WORK/arithmetic"
    for bits in '' short; do
      client arithmetic $bits | tr -d '\r' | diff "$COM_WORK/arithmetic" -
    done
    ;;
  guide)
    awk '/^```text$/ { inside = 1; next } /^```$/ { inside = 0 } inside' "$here/../../docs/com.md" >"$COM_WORK/guide"
    client guide | tr -d '\r' | diff "$COM_WORK/guide" -
    ;;
  differential)
    work=$COM_WORK/differential
    rm -rf "$work"
    mkdir -p "$work/native" "$work/com"
    "$COM_NATIVE/com_requests" 3000 >"$work/requests"
    (cd "$work/com" && client differential <"$work/requests" | tr -d '\r' | grep -vx done >../through_com)
    (cd "$work/native" && "$COM_NATIVE/amortix2" batch --types --today "$(date +%F)" <"$work/requests" >../replies)
    cmp "$work/replies" "$work/through_com"
    diff -r "$work/native" "$work/com"
    ls "$work/native"/*.gif >/dev/null
    failed=$(grep -c '"error"' "$work/replies")
    [ "$failed" -gt 100 ] && [ "$failed" -lt 1500 ]
    ;;
  pages)
    mkdir -p "$COM_WORK/pages"
    cd "$COM_WORK/pages"
    checked=0
    while IFS= read -r line; do
      case $line in
        page\ *)
          read -r _ name query <<<"$line"
          echo "$name?$query"
          { printf 'Option Explicit\nConst QueryText = "%s"\n' "$query"; cat "$here/page_server.vbs"
            awk -f "$here/page_to_script.awk" "$pages/$name.asp"; echo EndPage; } >page.vbs
          script "$PWD/page.vbs" >page.html
          ;;
        \ \ *)
          grep -qF -- "${line:2}" page.html || { echo "lacks: $line"; head -c 2000 page.html; exit 1; }
          checked=$((checked + 1))
          ;;
      esac
    done <"$here/pages.txt"
    [ "$checked" -gt 10 ]
    ;;
  *)
    echo "no such step: $1" >&2
    exit 2
    ;;
esac
