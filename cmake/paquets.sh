# shellcheck shell=bash
# Sourced by `run`, `test`, `fuzz/lancer` and what packages, from the root of the sources: what they need from Debian, and how they build.

paquets=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-svg-dev libicu-dev libcups2-dev libqpdf-dev libxcb1-dev libglib2.0-dev zlib1g-dev libsodium-dev
    libzip-dev
    pkg-config curl qt6-wayland qt6-translations-l10n ca-certificates
    fonts-inter fonts-linuxlibertine fonts-dejavu-core python3
)
# Taken where the release has it: Qt's SVG plugins left libqt6svg6 for a package of their own.
paquets_s_il_y_en_a=(qt6-svg-plugins)
# What checking takes besides, and what making the packages does.
# shellcheck disable=SC2034 # for those who source this
paquets_pour_verifier=(poppler-utils libgumbo-dev dbus-daemon desktop-file-utils appstream clang-format-19)
# shellcheck disable=SC2034
paquets_pour_empaqueter=(dpkg-dev file librsvg2-bin)

# manquants [package…]: those of `paquets` and these that are not installed.
manquants() {
    local paquet voulus=("${paquets[@]}" "$@")
    for paquet in "${paquets_s_il_y_en_a[@]}"; do
        if apt-cache show "$paquet" &>/dev/null; then voulus+=("$paquet"); fi
    done
    comm -23 <(printf '%s\n' "${voulus[@]}" | sort) \
        <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${voulus[@]}" 2>/dev/null | sed -n 's/ installed$//p' | sort)
}

# installer [package…]: `paquets` and these; touches the system only when one is missing.
installer() {
    local liste admin=()
    [[ $(manquants "$@") ]] || return 0
    if ((EUID)); then
        command -v sudo >/dev/null || { echo "Relancez en administrateur, ou installez sudo." >&2; return 1; }
        admin=(sudo)
    fi
    "${admin[@]}" apt-get -q update
    # Only now does a bare system know what its release has.
    mapfile -t liste < <(manquants "$@")
    echo "Paquets à installer : ${liste[*]}"
    "${admin[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${liste[@]}"
}

# construire <preset> [targets]: configures the first time and when the presets change; CMake sees to the rest.
construire() {
    local preset=$1 cibles=("${@:2}")
    [[ build/$preset/build.ninja -nt CMakePresets.json ]] || cmake --preset "$preset"
    cmake --build --preset "$preset" ${cibles:+--target "${cibles[@]}"}
}
