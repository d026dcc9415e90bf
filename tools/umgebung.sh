# shellcheck shell=bash
# Shared by run.sh and test.sh: what the machine must have, and the one build folder both use.
# To be sourced; expects `set -euo pipefail`. Everything said here goes to standard error, so that
# standard output belongs to the program or the tests.

Wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
Bauordner=$Wurzel/build/release
Protokolle=$Wurzel/build/protokolle

# Debian packages of the preset `release`. Python runs the checks, the font gives diagrams their text.
# The tests and benchmarks are part of the configuration that both scripts share: a handful of small
# packages against a second build of everything.
Pakete=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-svg-dev libcli11-dev nlohmann-json3-dev libtbb-dev libsodium-dev
    libboost-math-dev libsqlite3-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    python3 fonts-dejavu-core fonts-liberation
)

# The format of the sources is checked; the smoke tests work the real window on a display of its own, one under a trace; other
# programs open the PDF and the rich text of a report and the pictures.
Testpakete=(
    clang-format xvfb xauth openbox x11-apps xdotool strace poppler-utils unrtf sqlite3 libreoffice-writer-nogui
    inkscape librsvg2-bin
)

# What only ./test.sh --deep needs.
Pruefpakete=(clang-tidy)

sage() { printf '%s\n' "$*" >&2; }

# leise NAME BEFEHL...: runs a step in silence; its whole output follows when it fails.
leise() {
    local Protokoll=$Protokolle/$1.txt Ausgang=0
    shift
    mkdir -p "$Protokolle"
    "$@" >"$Protokoll" 2>&1 </dev/null || Ausgang=$?
    if ((Ausgang != 0)); then
        cat "$Protokoll" >&2
        sage "Failed with status $Ausgang: $*"
    fi
    return "$Ausgang"
}

ist_installiert() {
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

installiere_fehlende() {
    local Paket Fehlende=() als_Verwalter=(env)
    if ! command -v dpkg-query >/dev/null; then
        sage "No Debian system: needed are what these Debian packages hold: ${Pakete[*]}"
        return
    fi
    for Paket in "${Pakete[@]}"; do
        ist_installiert "$Paket" || Fehlende+=("$Paket")
    done
    ((${#Fehlende[@]} > 0)) || return 0

    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null || ! sudo -n true 2>/dev/null; then
            sage "Missing packages, and no right to install them. Please ask an administrator for:"
            sage "    apt-get install --no-install-recommends ${Fehlende[*]}"
            exit 1
        fi
        als_Verwalter=(sudo -n env)
    fi
    sage "Installing missing packages: ${Fehlende[*]}"
    als_Verwalter+=(DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300)
    leise paketliste "${als_Verwalter[@]}" update
    leise pakete "${als_Verwalter[@]}" install -y --no-install-recommends "${Fehlende[@]}"
}

# baue [ZIEL...]: builds the targets, or everything. Ninja configures anew by itself when a CMake file
# has changed, so only the first time needs a configuration.
baue() {
    local Ziele=()
    (($# == 0)) || Ziele=(--target "$@")
    if [[ ! -f $Bauordner/build.ninja ]]; then
        sage "Configuring ..."
        leise konfiguration cmake -S "$Wurzel" --preset release
    fi
    sage "Building ..."
    leise bau cmake --build "$Bauordner" -j "$(nproc)" "${Ziele[@]}"
}
