# shellcheck shell=bash
# To be sourced after umgebung.sh by what takes pictures of the window: a screen in memory that the largest of them fit on.

Bildschirm=$(mktemp)
trap 'rm -f "$Bildschirm"' EXIT
cat > "$Bildschirm" <<'JSON'
{ "synchronousWindowSystemEvents": false, "windowFrameMargins": true,
  "screens": [ { "name": "s", "x": 0, "y": 0, "width": 3840, "height": 2400,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 } ] }
JSON
export QT_QPA_PLATFORM=offscreen:configfile=$Bildschirm
export XDG_RUNTIME_DIR=$Wurzel/build/laufzeit
mkdir -p "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
