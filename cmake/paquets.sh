# Sourced by `run`, `test` and `fuzz/lancer`, from the root of the sources: what they need from Debian, and how they build.

paquets=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-svg-dev libicu-dev libcups2-dev libqpdf-dev libglib2.0-dev zlib1g-dev libsodium-dev pkg-config
    qt6-wayland qt6-translations-l10n
    fonts-inter fonts-linuxlibertine fonts-dejavu-core
    poppler-utils libgumbo-dev
    python3 desktop-file-utils appstream
)

# Touches the system only when a package is missing.
installer() {
    local manquants admin=()
    mapfile -t manquants < <(comm -23 \
        <(printf '%s\n' "${paquets[@]}" | sort) \
        <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${paquets[@]}" 2>/dev/null |
            sed -n 's/ installed$//p' | sort))
    ((${#manquants[@]})) || return 0
    echo "Paquets à installer : ${manquants[*]}"
    if ((EUID)); then
        command -v sudo >/dev/null || { echo "Relancez en administrateur, ou installez sudo." >&2; return 1; }
        admin=(sudo)
    fi
    "${admin[@]}" apt-get -q update
    "${admin[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${manquants[@]}"
}

# construire <preset> [targets]: configures the first time and when the presets change; CMake sees to the rest.
construire() {
    local preset=$1 cibles=("${@:2}")
    [[ build/$preset/build.ninja -nt CMakePresets.json ]] || cmake --preset "$preset"
    cmake --build --preset "$preset" ${cibles:+--target "${cibles[@]}"}
}
