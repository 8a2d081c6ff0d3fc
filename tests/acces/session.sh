# shellcheck shell=bash
# Sourced: a desktop of its own, where a program is seen from outside. Nothing of the user's is read or written.

# exiger outil:paquet…: says which packages to install, if any.
exiger() {
    local outil manquants=()
    for outil; do
        command -v "${outil%:*}" >/dev/null || manquants+=("${outil#*:}")
    done
    /usr/bin/python3 -c 'import gi; gi.require_version("Atspi", "2.0")' 2>/dev/null ||
        manquants+=(at-spi2-core gir1.2-atspi-2.0 python3-gi)
    ((${#manquants[@]} == 0)) || { echo "Paquets à installer : ${manquants[*]}" >&2; exit 2; }
}

# isoler script argument…: plays the script anew on that desktop, with a network that leads nowhere, which a plain user may
# have too. Its messages come out by 9: xvfb-run has 3 for itself.
isoler() {
    exiger dbus-run-session:dbus gdbus:libglib2.0-bin Xvfb:xvfb xauth:xauth xdotool:xdotool openbox:openbox
    local chez_soi sans_reseau
    chez_soi=$(mktemp -d)
    trap "rm -rf '$chez_soi'" EXIT
    mkdir -m 700 "$chez_soi/execution"
    ((EUID == 0)) && sans_reseau=(unshare --net --mount) ||
        sans_reseau=(unshare --user --map-current-user --net --mount) # what a portal mounts goes too
    env -i PATH="$PATH" LC_ALL=C.UTF-8 HOME="$chez_soi" XDG_RUNTIME_DIR="$chez_soi/execution" ACCES_ISOLE=1 \
        PYTHONDONTWRITEBYTECODE=1 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_QPA_PLATFORM=xcb \
        "${sans_reseau[@]}" xvfb-run -a -s '-screen 0 1400x1000x24' dbus-run-session -- "$@" \
        9>&2 2>/dev/null # what the buses say of themselves
}

ouvrir_le_bureau() {
    local bus
    bus=$(compgen -G '/usr/lib*/at-spi2-core/at-spi-bus-launcher' | head -n 1 || true)
    "${bus:-/usr/libexec/at-spi-bus-launcher}" --launch-immediately >/dev/null &
    gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus --method org.freedesktop.DBus.Properties.Set \
        org.a11y.Status IsEnabled '<true>' >/dev/null
    openbox >/dev/null &
}
