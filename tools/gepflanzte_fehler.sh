#!/usr/bin/env bash
# Shows that the random walk over the session finds what it is there for: plants three faults one after the other in a copy of
# the tree and lets it walk. Nothing of them comes into the tree itself.
#
#     tools/gepflanzte_fehler.sh
set -euo pipefail
Wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
Kopie=$(mktemp -d)
trap 'rm -rf "$Kopie"' EXIT
Bau=$Kopie/baum/build/release
export QT_QPA_PLATFORM=offscreen VARNOK_GANG_KUERZEN=${VARNOK_GANG_KUERZEN:-30}

mkdir -p "$Kopie/baum"
tar -C "$Wurzel" --exclude=./build --exclude=./.git -cf - . | tar -C "$Kopie/baum" -xf -
(cd "$Kopie/baum" && cmake --preset release >/dev/null)

# pflanze NAME DATEI ALT NEU: in place of one text of a source another one; the walk must find it.
pflanze() {
    local Name=$1 Datei=$Kopie/baum/$2 Ausgabe
    cp "$Datei" "$Kopie/heil"
    python3 - "$Datei" "$3" "$4" <<'ENDE'
import sys
datei, alt, neu = sys.argv[1:]
text = open(datei, encoding="utf-8").read()
if text.count(alt) != 1:
    sys.exit(f"{datei}: the place to plant a fault is not there once: {alt}")
open(datei, "w", encoding="utf-8").write(text.replace(alt, neu))
ENDE
    cmake --build "$Bau" --target test_session -j "$(nproc)" >"$Kopie/bau.txt" 2>&1 || { cat "$Kopie/bau.txt" >&2; exit 1; }
    if Ausgabe=$("$Bau/tests/test_session" '--gtest_filter=Sitzungsgang*' 2>&1); then
        printf 'NOT FOUND: %s\n' "$Name"
        exit 1
    fi
    grep -q '=> ' <<<"$Ausgabe" || { printf 'failed for another reason: %s\n%s\n' "$Name" "$Ausgabe"; exit 1; }
    printf 'found: %s\n' "$Name"
    grep -e '^seed' -e '^    ' <<<"$Ausgabe"
    cp "$Kopie/heil" "$Datei"
}

pflanze "a comparison that forgets the soil depth" src/run/laufeingang.cpp \
    'nimm("Bodentiefe", -1, p.Bodentiefe);' ''
pflanze "a summary file that is written when a record is chosen" src/session/saetze/satzverwaltung.cpp \
    'schliesse_Laden_ab() { Laeufe_.berechne(); }' 'schliesse_Laden_ab() { Laeufe_.berechne(); schreibe_Zusammenfassungsdatei(); }'
pflanze "a step of the history that is lost" src/session/kern/verlauf.cpp \
    'if (Staende_[Platz_] == e) return;' 'if (Staende_[Platz_] == e || Staende_[Platz_].App_Tag != e.App_Tag) return;'
printf 'all three are found\n'
