#!/usr/bin/env bash
# Tries the package as a user has it: a bare Debian 12 in a folder of its own, without the sources; installed, started from its
# desktop entry on a display of its own, a value changed, calculated, reported, the batch program run, removed. Then nothing of it is
# left outside the user's folder. Tells how long each step took. Takes root, debootstrap and a way to a Debian archive.
#
#     cpack --config build/release/CPackConfig.cmake -B build/paket
#     tools/probiere_paket.sh build/paket/varnok_2.0_amd64.deb [FOLDER OF THE SYSTEM]
set -euo pipefail

Paket=$(realpath "${1:?a package}")
System=${2:-$(mktemp -d)/system}

fehler() {
    echo "probiere_paket: $*" >&2
    exit 1
}
seit=$SECONDS
erledigt() {
    printf '%4d s  %s\n' $((SECONDS - seit)) "$1"
    seit=$SECONDS
}
((EUID == 0)) || fehler 'takes root'
command -v debootstrap >/dev/null || fehler 'no debootstrap'

if [[ ! -d $System/usr ]]; then
    echo "A bare Debian 12 in $System ..."
    debootstrap --variant=minbase bookworm "$System" >"$System.protokoll" 2>&1 || fehler "see $System.protokoll"
fi
haenge_aus() { umount "$System/proc" "$System/dev" 2>/dev/null || true; }
trap haenge_aus EXIT
mount --bind /proc "$System/proc"
mount --bind /dev "$System/dev"

drin() { chroot "$System" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
# What a computer of a user has before, and what works the window.
drin apt-get install -y --no-install-recommends xvfb xauth openbox xdotool libglib2.0-bin x11-apps procps >/dev/null
drin userdel -r nutzer >/dev/null 2>&1 || true
drin useradd -m nutzer
cp "$Paket" "$System/tmp/paket.deb"
seit=$SECONDS
drin apt-get satisfy -y --no-install-recommends "$(dpkg-deb -f "$Paket" Depends)" >/dev/null
erledigt 'what the package depends on is fetched and installed'

# Files outside the user's folder; lists and caches of the packages' own management do not count.
Dateien() {
    drin find / -xdev \( -path /proc -o -path /dev -o -path /home -o -path /tmp -o -path /var/lib/dpkg -o -path /var/log \
        -o -path /var/cache -o -path /var/lib/apt \) -prune -o -print | LC_ALL=C sort
}

Dateien >"$System.vorher"
seit=$SECONDS
drin dpkg -i /tmp/paket.deb >/dev/null
erledigt 'the package is installed'
cat >"$System/home/nutzer/sitzung.sh" <<'INNEN'
set -euo pipefail
fehler() { xwd -root -silent >"$HOME/bild.xwd"; echo "session: $*" >&2; exit 1; }
warte() {
    local i
    for ((i = 0; i < 300; ++i)); do "$@" && return; sleep 0.1; done
    fehler "waited in vain: $*"
}
seit=$EPOCHREALTIME
erledigt() {
    local jetzt=$EPOCHREALTIME
    printf '%6.1f s  %s\n' "$(awk "BEGIN { print $jetzt - $seit }")" "$1"
    seit=$jetzt
}
ist_da() { xdotool search --onlyvisible --name '^VARNOK - Soil residue forecast tool$' >/dev/null 2>&1; }
ist_weg() { ! pgrep -x varnok >/dev/null 2>&1 && ! ist_da; }
taste() { xdotool key --clearmodifiers "$@"; sleep 0.5; }
hat_Bericht() { compgen -G "$HOME/Documents/VARNOK/output/*.rtf" >/dev/null; }
openbox --sm-disable >/dev/null 2>&1 &
sleep 1
seit=$EPOCHREALTIME
gio launch /usr/share/applications/org.varnok.varnok.desktop
warte ist_da
erledigt 'started from the menu: the start page'
sleep 1
taste space
erledigt 'OK: the results of the start simulation'
# Tab walks to the first numeric field, which is yellow while it is worked on: the DT50 of the start simulation.
gelbe_Paare() { xwd -root -silent | od -An -v -tx1 -w5600 | grep -oE '00 ff ff ((00|ff) )?00 ff ff' | wc -l || true; }
for ((i = 0; i < 40; ++i)); do
    taste Tab
    (($(gelbe_Paare) > 100)) && break
done
((i < 40)) || fehler 'Tab comes to no field'
erledigt 'Tab to the DT50'
taste ctrl+a
xdotool type --clearmodifiers 17
taste Tab
taste ctrl+s
hat_neuen_Wert() { grep -qa $'^SFO k (1/d):\t0.0407733635623497\t' "$HOME/Documents/VARNOK/input/Programcheck.che"; }  # ln(2)/17
warte hat_neuen_Wert
erledigt '17 typed, results of it, Ctrl+S: saved'
taste ctrl+r
warte hat_Bericht
erledigt 'Ctrl+R: the report, on the screen and in the folder "output"'
xwd -root -silent >"$HOME/bild.xwd"
taste Escape
taste ctrl+q
warte ist_weg
erledigt 'Ctrl+Q: ended'
grep -qaF 'DT50 (d):\tab 17}' "$HOME"/Documents/VARNOK/output/*.rtf || fehler 'the report does not tell the new value'
varnok-batch --all --csv "$HOME/ergebnisse.csv" "$HOME/Documents/VARNOK"
varnok-batch --report "$HOME/berichte" "$HOME/Documents/VARNOK"
compgen -G "$HOME/berichte/*.rtf" >/dev/null || fehler 'no report of the batch program'
erledigt 'all examples and a report with varnok-batch'
(($(wc -l <"$HOME/ergebnisse.csv") > 12)) || fehler 'results are missing'
INNEN
drin su nutzer -c 'cd && xvfb-run -a -s "-screen 0 1400x1000x24 -nolisten tcp" bash sitzung.sh'
drin dpkg --purge varnok >/dev/null
Dateien >"$System.nachher"
Rest=$(comm -13 "$System.vorher" "$System.nachher")
[[ -z $Rest ]] || fehler "left behind:"$'\n'"$Rest"
echo "The package was installed, used and removed; nothing is left outside the user's folder."
