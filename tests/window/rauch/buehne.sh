# Sourced by the scripts that use the program as the user does: a display and a project of its own, a window manager, and
# the end of both. The caller sets `name`, `werkzeuge` and `geduld` (seconds that a wait may last) and passes its own arguments:
# <varnok> <data folder>. It goes on here inside the display, with `programm`, `daten`, `ordner`, `projekt` and `pid_programm`.
# Returns 77 where one of the tools is missing.

fehler() {
    echo "$name: $*" >&2
    exit 1
}

uebersprungen() {
    echo "$name: $*" >&2
    exit 77
}

programm=$(realpath "$1")
daten=$(realpath "$2")

if [[ ${3:-} != innen ]]; then
    for werkzeug in xvfb-run xauth openbox xdotool "${werkzeuge[@]}"; do
        command -v "$werkzeug" >/dev/null || uebersprungen "no $werkzeug"
    done
    [[ -x $programm ]] || fehler "no program $programm"
    ordner=$(mktemp -d)
    trap 'rm -rf "$ordner"' EXIT
    xvfb-run -a -s '-screen 0 1400x1000x24 -nolisten tcp' "$BASH" "$0" "$programm" "$daten" innen "$ordner"
    exit
fi

ordner=$4
projekt=$ordner/projekt
mkdir -p "$projekt" "$ordner/heim" "$ordner/lauf"
chmod 700 "$ordner/lauf"
cp -r "$daten/input" "$projekt/input"
chmod -R u+w "$projekt"

export HOME=$ordner/heim XDG_CONFIG_HOME=$ordner/heim XDG_DATA_HOME=$ordner/heim XDG_CACHE_HOME=$ordner/heim
export XDG_RUNTIME_DIR=$ordner/lauf QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_STYLE_OVERRIDE

pid_verwalter= pid_programm=
raeume_auf() {
    for pid in $pid_programm $pid_verwalter; do
        kill "$pid" 2>/dev/null || continue
        wait "$pid" 2>/dev/null || true
    done
    return 0
}
trap raeume_auf EXIT

# warte_auf <what> <command...>: until the command succeeds.
warte_auf() {
    local was=$1 i
    shift
    for ((i = 0; i < 10 * geduld; ++i)); do
        "$@" && return
        [[ -z $pid_programm ]] || ! ist_beendet || fehler "the program has ended while waiting for $was: $(cat "$ordner/ausgabe.txt")"
        sleep 0.1
    done
    fehler "waited in vain for $was"
}

taste() {
    timeout 10 xdotool key --clearmodifiers "$@"
    sleep 0.2
}

ist_beendet() { ! kill -0 "$pid_programm" 2>/dev/null; }

# Waits for the end of the program, which is a good one.
erwarte_Ende() {
    warte_auf 'the end of the program' ist_beendet
    local rc=0
    wait "$pid_programm" || rc=$?
    pid_programm=
    ((rc == 0)) || fehler "the program ended with $rc: $(cat "$ordner/ausgabe.txt")"
}

openbox --sm-disable >/dev/null 2>&1 &
pid_verwalter=$!
hat_verwalter() { timeout 5 xdotool getwindowfocus >/dev/null 2>&1; }
warte_auf 'the window manager' hat_verwalter
cd "$projekt"
