# shellcheck shell=bash
# Sourced after racine.sh, from the root of the sources: builds the packages of the present commit in a bare Debian.

# The branch may move meanwhile, also from one suite to the next.
commit=${COMMIT:-$(git rev-parse HEAD)}

# atelier <suite> <folder>: a bare Debian with what the packages are built, and described, with.
atelier() {
    local racine=$2
    racine "$1" "$racine" ${RACINES:+"$RACINES"}
    monter_racine "$racine"
    mkdir -p "$racine/tmp/sources"
    git archive "$commit" cmake | tar -x -C "$racine/tmp/sources"
    dans_racine "$racine" bash -euc 'cd /tmp/sources
        source cmake/paquets.sh
        installer "${paquets_pour_empaqueter[@]}"' >"$racine/tmp/apt.log" 2>&1 ||
        { tail "$racine/tmp/apt.log" >&2; return 1; }
}

# construire_paquets <root> <its folder to build in> [variable=value…] [-Dname=value…]: the packages are in its
# build/paquet/paquets. Variables are of the environment.
construire_paquets() {
    local racine=$1 copie=$2 argument environnement=() definitions=()
    for argument in "${@:3}" "CMAKE_BUILD_PARALLEL_LEVEL=$(nproc)"; do
        if [[ $argument == -D* ]]; then definitions+=("$argument"); else environnement+=("$argument"); fi
    done
    mkdir -p "$racine$copie"
    git archive "$commit" | tar --touch -x -C "$racine$copie" # as in a clone, files bear the hour
    dans_racine "$racine" "COPIE=$copie" "${environnement[@]}" \
        bash -euc 'cd "$COPIE"
        umask "${MASQUE:-022}"
        lancer() { ${HORLOGE:+faketime -f "$HORLOGE"} "$@"; }
        lancer cmake --preset paquet "$@"
        lancer cmake --build --preset paquet
        lancer cpack --preset paquet' bash "${definitions[@]}" >"$racine/tmp/construction.log" 2>&1 ||
        { tail -n 30 "$racine/tmp/construction.log" >&2; return 1; }
}
