# Sourced by the scripts that run Windows programs: one Wine prefix and one virtual display per
# build folder, created on first use. Call `qvx_wine_start BUILD_DIR [CORE]`, then `qvx_wine PROGRAM
# ARGS`; `qvx_wine_stop` ends only what was started here.

qvx_wine() { LC_ALL=zh_CN.UTF-8 wine "$@"; }

# A virtual display unless the caller has one; Xvfb chooses a free number.
qvx_display_start() {
  QVX_XVFB_PID=""
  [ -n "${DISPLAY:-}" ] && [ "${QVX_OWN_DISPLAY:-0}" != 1 ] && return 0
  local fifo; fifo=$(mktemp -u); mkfifo "$fifo"
  Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$fifo" >/dev/null 2>&1 &
  QVX_XVFB_PID=$!
  local number; read -r number <"$fifo"; rm -f "$fifo"
  export DISPLAY=":$number"
}

# Wine's window server handles one request of a program at a time. A reply takes about 10
# microseconds on one core and 45 between two cores of an idle machine, which is most of the time of
# window operations. So all programs of one prefix run on one core: the one with this number, or
# with the checksum of a name, among the available ones.
qvx_stay_on_one_core() {
  local cores=() part
  for part in $(taskset -cp "$BASHPID" | sed 's/.*: //; s/,/ /g'); do
    mapfile -t -O "${#cores[@]}" cores < <(seq "${part%-*}" "${part#*-}")
  done
  local number=$1
  case $number in *[!0-9]*) number=$(printf %s "$number" | cksum | cut -d' ' -f1) ;; esac
  taskset -cp "${cores[number % ${#cores[@]}]}" "$BASHPID" >/dev/null
}

qvx_wine_start() {
  qvx_stay_on_one_core "${2:-$1}"
  export WINEPREFIX; WINEPREFIX="$(realpath -m "$1")/wine"
  export WINEARCH=win64 WINEDEBUG="${WINEDEBUG:--all}" WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
  mkdir -p "$1"
  qvx_display_start
  (
    flock 9
    if [ ! -f "$WINEPREFIX/.ready" ]; then
      qvx_wine wineboot -i >/dev/null 2>&1
      # All programs of the prefix run in one virtual desktop, which gives their windows frames.
      qvx_wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d QVX /f >/dev/null 2>&1
      qvx_wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v QVX /d 1280x900 /f >/dev/null 2>&1
      # Otherwise a crashed program waits in a dialog.
      qvx_wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null 2>&1
      # Caption buttons use glyphs of this font, which is only found in the prefix.
      cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/" 2>/dev/null
      touch "$WINEPREFIX/.ready"
    fi
  ) 9>"$1/.wine-lock"
}

# Deletes all settings of the product and the host, as on a new machine.
qvx_forget_settings() {
  local key
  for key in 'HKCU\Software\Quivera' 'HKLM\Software\Quivera' 'HKCU\Software\DevHost'; do
    qvx_wine reg delete "$key" /f >/dev/null 2>&1 || true  # the key did not exist
  done
  return 0
}

# Disables the tip of the day, a modal dialog that would block the start.
qvx_leave_out_tips() {
  qvx_wine reg add 'HKCU\Software\Quivera\QVX\R24.0\QVX-1\Settings' /v g_nCustomFlag \
    /t REG_DWORD /d 2 /f >/dev/null 2>&1
}

qvx_wine_stop() {
  [ -n "${WINEPREFIX:-}" ] && wineserver -k >/dev/null 2>&1
  [ -n "${QVX_XVFB_PID:-}" ] && kill "$QVX_XVFB_PID" 2>/dev/null
  return 0
}
