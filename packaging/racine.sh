# shellcheck shell=bash
# Sourced: makes bare Debian systems in folders, from the machine's own sources, and runs commands in them.
# It needs debootstrap, and an administrator. Nothing of the machine changes but the folders that are named.

# exiger command:package…: all that is missing, at once.
exiger() {
    local couple manquants=()
    for couple; do
        command -v "${couple%:*}" >/dev/null || manquants+=("${couple#*:}")
    done
    ((!${#manquants[@]})) || { echo "Paquets à installer : ${manquants[*]}" >&2; exit 1; }
}

# isoler "$@": starts the calling script again where its mounts and processes are its own, and end with it, even when it is
# interrupted. ISOLEMENT is a folder for its roots, taken away then.
isoler() {
    local code=0
    [[ ! ${ISOLEMENT:-} ]] || return 0
    ((EUID == 0)) || { echo "Relancez en administrateur." >&2; exit 1; }
    ISOLEMENT=$(mktemp -d -p "${TMPDIR:-/var/tmp}")
    export ISOLEMENT
    trap 'rm -rf --one-file-system "$ISOLEMENT"' EXIT
    unshare --mount --pid --fork --kill-child --mount-proc "$0" "$@" || code=$?
    exit $code
}

# sources_de <suite>: the machine's Debian sources, without its other archives, as if it ran that release.
sources_de() {
    local machine
    # shellcheck source=/dev/null
    machine=$(. /etc/os-release && echo "$VERSION_CODENAME")
    # shellcheck disable=SC2016 # apt's own names
    apt-get indextargets --format 'deb $(REPO_URI) $(CODENAME) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
        sed "s/ $machine\([ -]\)/ $1\1/" | sort -u
}

# racine_nue <suite> <folder>: what debootstrap calls minimal, its package lists read, nothing mounted.
racine_nue() {
    local suite=$1 racine=$2 sources miroir avec=()
    sources=$(sources_de "$suite")
    miroir=$(awk -v suite="$suite" '$3 == suite { print $2; exit }' <<<"$sources")
    [[ $miroir ]] || { echo "La machine n’a pas de sources Debian à offrir à $suite" >&2; return 1; }
    [[ $sources != *https:* ]] || avec=(--include=ca-certificates)
    mkdir -p "$racine"
    debootstrap --variant=minbase "${avec[@]}" "$suite" "$racine" "$miroir" >"$racine.log" ||
        { tail "$racine.log" >&2; return 1; }
    rm "$racine.log"
    echo "$sources" >"$racine/etc/apt/sources.list"
    apt-config dump | grep '^Acquire::' >"$racine/etc/apt/apt.conf.d/00machine"
    # Nobody will miss these files after a power cut.
    echo force-unsafe-io >"$racine/etc/dpkg/dpkg.cfg.d/sans-attendre"
    printf '%s\n' '127.0.0.1 localhost' '::1 localhost' >"$racine/etc/hosts"
    dans_racine "$racine" apt-get -q update >/dev/null
}

# racine <suite> <folder> [kept]: the same, copied from the folder of kept ones, which it completes.
racine() {
    local suite=$1 racine=$2 gardee=${3:+$3/$1}
    if [[ ! $gardee ]]; then
        racine_nue "$suite" "$racine"
        return
    fi
    # A name that only a finished one bears.
    if [[ ! -d $gardee ]]; then
        rm -rf --one-file-system "$gardee.en-cours"
        racine_nue "$suite" "$gardee.en-cours"
        mv "$gardee.en-cours" "$gardee"
    fi
    cp -a "$gardee" "$racine"
    dans_racine "$racine" apt-get -q update >/dev/null
}

# What a running system has, in the mounts of the caller.
monter_racine() {
    local racine=$1
    mount -t proc proc "$racine/proc"
    mkdir -p "$racine"/dev/{pts,shm}
    mount -t devpts devpts "$racine/dev/pts"
    mount -t tmpfs tmpfs "$racine/dev/shm"
    mount -t tmpfs tmpfs "$racine/tmp"
}

# What the caller mounted inside goes too. Fails while something is still in use.
demonter_racine() {
    local montage
    findmnt --raw --noheadings --output TARGET | awk -v dans="$1/" 'index($0, dans) == 1' | sort -r |
        while read -r montage; do umount "$montage" || exit 1; done
}

# dans_racine <folder> command…: as its administrator, with nothing of the caller's environment.
dans_racine() {
    chroot "$1" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "${@:2}"
}
