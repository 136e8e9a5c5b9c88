# Sourced by the scripts that run Windows programs: one Wine prefix and one virtual display per build
# folder, made on first use. Call `qvx_wine_start BUILD_DIR [CORE]`, then `qvx_wine PROGRAM ARGS`; what was
# started here is ended by `qvx_wine_stop`, and nothing else is.

qvx_wine() { LC_ALL=zh_CN.UTF-8 wine "$@"; }

# A display of our own unless the caller has one: Xvfb picks a free number itself.
qvx_display_start() {
  QVX_XVFB_PID=""
  [ -n "${DISPLAY:-}" ] && [ "${QVX_OWN_DISPLAY:-0}" != 1 ] && return 0
  local fifo; fifo=$(mktemp -u); mkfifo "$fifo"
  Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$fifo" >/dev/null 2>&1 &
  QVX_XVFB_PID=$!
  local number; read -r number <"$fifo"; rm -f "$fifo"
  export DISPLAY=":$number"
}

# Wine's window server answers one request of a program after the other. An answer takes some 10
# microseconds on one core and 45 between two cores of an idle machine, which is most of the time
# that windows take, so that everything of one prefix runs on one core: the one of this number, or
# of a name's checksum, among those that there are.
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
      # Every program of the prefix runs in one virtual desktop, which gives its windows frames.
      qvx_wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d QVX /f >/dev/null 2>&1
      qvx_wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v QVX /d 1280x900 /f >/dev/null 2>&1
      # Without this a failed program waits for somebody to press a button.
      qvx_wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null 2>&1
      # The signs on caption buttons are letters of this font, which is found only in the prefix.
      cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/" 2>/dev/null
      touch "$WINEPREFIX/.ready"
    fi
  ) 9>"$1/.wine-lock"
}

# As on a machine where nothing was ever set: neither the product's settings nor the host's are left.
qvx_forget_settings() {
  local key
  for key in 'HKCU\Software\Quivera' 'HKLM\Software\Quivera' 'HKCU\Software\DevHost'; do
    qvx_wine reg delete "$key" /f >/dev/null 2>&1 || true  # nothing was kept yet
  done
  return 0
}

# The module then starts without its tip of the day, a dialog that waits for somebody.
qvx_leave_out_tips() {
  qvx_wine reg add 'HKCU\Software\Quivera\QVX\R24.0\QVX-1\Settings' /v g_nCustomFlag \
    /t REG_DWORD /d 2 /f >/dev/null 2>&1
}

qvx_wine_stop() {
  [ -n "${WINEPREFIX:-}" ] && wineserver -k >/dev/null 2>&1
  [ -n "${QVX_XVFB_PID:-}" ] && kill "$QVX_XVFB_PID" 2>/dev/null
  return 0
}
