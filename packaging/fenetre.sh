# shellcheck shell=bash
# Sourced: opens the program on a screen of its own, looks whether its covers are drawn, and closes it by its own key.
# It needs xvfb and xdotool.

faute() {
    echo "ÉCHEC : $*" >&2
    exit 1
}

# allumer_ecran <folder>: sets DISPLAY, and `pixels` to the file that holds what the screen shows.
allumer_ecran() {
    local numero
    mkdir -p "$1"
    mkfifo "$1/numero"
    Xvfb -displayfd 1 -screen 0 1440x960x24 -fbdir "$1" -nolisten tcp -noreset -ac >"$1/numero" 2>/dev/null &
    ecran=$!
    read -r -t 20 numero <"$1/numero" || faute "pas d’écran virtuel"
    export DISPLAY=:$numero
    pixels=$1/Xvfb_screen0
    # Away from the covers, which lift under the pointer.
    xdotool mousemove 0 0
}

# It takes its lock away when asked to leave.
eteindre_ecran() {
    [[ ${ecran:-} ]] || return 0
    kill "$ecran" 2>/dev/null || return 0
    wait "$ecran" || true
}

# montrer <picture> command…: opens the window, keeps the picture once nothing moves any more, closes it. The complaints and
# what was loaded go to <picture>.plaintes and .charge. `patience`: the seconds until the window, 60 unless told.
montrer() {
    local image=$1 programme fenetre limite=$((SECONDS + ${patience:-60}))
    "${@:2}" 2>"$image.plaintes" &
    programme=$!
    # shellcheck disable=SC2064 # this program, now
    trap "kill $programme 2>/dev/null && wait $programme" EXIT
    vivant() { kill -0 "$programme" 2>/dev/null && ((SECONDS < limite)); }
    until fenetre=$(xdotool search --onlyvisible --name '^Quillet$' 2>/dev/null); do
        vivant || { tail "$image.plaintes" >&2; faute "aucune fenêtre"; }
        sleep 0.5
    done
    limite=$((SECONDS + 90))
    until cp "$pixels" "$image" && sleep 3 && cmp -s "$pixels" "$image"; do
        vivant || { tail "$image.plaintes" >&2; faute "le programme s’est arrêté, ou ne se repose pas"; }
    done
    cp "/proc/$programme/maps" "$image.charge"
    xdotool windowfocus --sync "$fenetre" key --clearmodifiers ctrl+q
    timeout 30 tail --pid=$programme -f /dev/null || faute "Ctrl+Q ne ferme pas la fenêtre"
    wait $programme || faute "code de retour $?"
    trap - EXIT
}

# voir_les_couvertures <root> <picture> command…: what the same program shows where Qt reads no SVG picture tells by how much
# covers and their plain stand-ins differ. Too much of a difference, and one of the two was not painted at all.
voir_les_couvertures() {
    local racine=$1 image=$2 greffons ecart
    montrer "$image" "${@:3}"
    greffons=$(compgen -G "$racine/usr/lib/*/qt6/plugins/imageformats") || faute "Qt n’a aucun format d’image"
    # shellcheck disable=SC2016 # the inner shell's own
    montrer "$image.sans" unshare --mount sh -c 'mount -t tmpfs tmpfs "$0" && exec "$@"' "$greffons" "${@:3}"
    ecart=$(cmp -l "$image" "$image.sans" | wc -l) || true
    ecart=$((ecart * 100 / $(stat -c %s "$image")))
    ((ecart >= 5 && ecart <= 40)) || faute "les couvertures ne sont pas dessinées (écart de $ecart %)"
    echo "Couvertures dessinées : $ecart % de l’écran change sans elles."
}
