# shellcheck shell=bash
# Sourced: a desktop of its own, where a program is seen from outside. Nothing of the user's is read or written.

existe() {
    command -v "$1" >/dev/null ||
        /usr/bin/python3 -c 'import sys, gi; gi.require_version(*sys.argv[1].split("-"))' "$1" 2>/dev/null
}

# exiger outil:paquet…: says which packages to install, if any; a tool may be a library of GObject, as Gtk-3.0.
exiger() {
    local outil manquants=()
    for outil in "$@" dbus-run-session:dbus gdbus:libglib2.0-bin \
        'Atspi-2.0:at-spi2-core gir1.2-atspi-2.0 python3-gi'; do
        existe "${outil%:*}" || manquants+=("${outil#*:}")
    done
    ((${#manquants[@]} == 0)) || { echo "Paquets à installer : ${manquants[*]}" >&2; exit 2; }
}

# isoler plateforme commande…: plays it with a home of its own. Its messages come out by 9: xvfb-run has 3 for itself.
isoler() {
    local chez_soi
    chez_soi=$(mktemp -d)
    trap "rm -rf '$chez_soi'" EXIT
    mkdir -m 700 "$chez_soi/execution"
    env -i PATH="$PATH" LC_ALL=C.UTF-8 HOME="$chez_soi" XDG_RUNTIME_DIR="$chez_soi/execution" ISOLE=1 \
        PYTHONDONTWRITEBYTECODE=1 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_QPA_PLATFORM="$1" "${@:2}" \
        9>&2 2>/dev/null # what the buses say of themselves
}

# isoler_sous_x script argument…: plays the script anew on that desktop, with a network that leads nowhere and nobody else's
# processes (Orca does not start beside another one), which a plain user may have too.
isoler_sous_x() {
    exiger Xvfb:xvfb xauth:xauth xdotool:xdotool openbox:openbox
    local seul=(unshare --net --mount --pid --fork --kill-child --mount-proc) # what a portal mounts goes too
    ((EUID == 0)) || seul+=(--user --map-current-user)
    # A root of its own (chroot) has its mounts already.
    "${seul[@]}" true 2>/dev/null || seul+=(--propagation unchanged)
    # Xvfb does not tell a parent that is process 1 that it is ready.
    isoler xcb "${seul[@]}" bash -c '"$@"; exit' lancer xvfb-run -a -s '-screen 0 1400x1000x24' dbus-run-session -- "$@"
}

ouvrir_l_acces() {
    local bus
    bus=$(compgen -G '/usr/lib*/at-spi2-core/at-spi-bus-launcher' | head -n 1 || true)
    "${bus:-/usr/libexec/at-spi-bus-launcher}" --launch-immediately >/dev/null &
    gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus --method org.freedesktop.DBus.Properties.Set \
        org.a11y.Status IsEnabled '<true>' >/dev/null
}

ouvrir_le_bureau() {
    ouvrir_l_acces
    openbox >/dev/null &
}
