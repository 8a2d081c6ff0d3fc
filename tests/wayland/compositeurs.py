"""Wayland compositors without a screen: started, photographed, asked where windows are."""

import json
import os
import shutil
import subprocess
import tempfile
from pathlib import Path

from arbre import attendre

LARGEUR, HAUTEUR = 1500, 1050


class Compositeur:
    """A running compositor; the environment of its clients is in `clients`."""

    nuit = False

    def __init__(self, commande, environnement, prise):
        self._dossier = tempfile.TemporaryDirectory()
        self.session = Path(self._dossier.name)
        self.session.chmod(0o700)
        # A session of its own: its sockets, and the program's, are not another's.
        self.clients = os.environ | {"XDG_RUNTIME_DIR": str(self.session), "WAYLAND_DISPLAY": prise}
        self._journal = (self.session / "compositeur.log").open("w")
        self._programme = subprocess.Popen(commande, env=self.clients | environnement, stdout=self._journal,
                                           stderr=self._journal)
        attendre((self.session / prise).is_socket, f"{commande[0]} ne démarre pas")

    def arreter(self):
        self._programme.terminate()
        self._programme.wait(timeout=10)
        self._journal.close()
        self._dossier.cleanup()

    def lancer(self, commande, check=True, **options):
        return subprocess.run(commande, env=self.clients, check=check, timeout=10, capture_output=True, **options)

    def colle(self):
        """What another program is given when it pastes; nothing yet when nothing was copied."""
        return self.lancer(["wl-paste", "--no-newline"], check=False, text=True).stdout


class Weston(Compositeur):
    """Windows stand where it puts them, framed by Qt. There is no seat: nothing is copied, and no list nor sheet may open
    (Qt 6.4 crashes then)."""

    siege = False

    def __init__(self):
        super().__init__(["weston", "--backend=headless-backend.so", "--use-pixman", "--debug",
                          f"--width={LARGEUR}", f"--height={HAUTEUR}", "--socket=wayland-essai", "--idle-time=0",
                          "--no-config"], {}, "wayland-essai")
        self.nom = "weston"

    def photographier(self, image):
        with tempfile.TemporaryDirectory() as dossier:
            self.lancer(["weston-screenshooter"], cwd=dossier)
            shutil.move(next(Path(dossier).iterdir()), image)  # which may be on another disk


class Sway(Compositeur):
    """One window fills the screen, its sheets float over it; it has a keyboard and knows tokens."""

    siege = True

    def __init__(self, echelle, nuit=False):
        with tempfile.NamedTemporaryFile("w", suffix=".conf") as reglages:
            reglages.write(f"output HEADLESS-1 resolution {LARGEUR}x{HAUTEUR} scale {echelle}\nxwayland disable\n"
                           "default_border none\nfocus_on_window_activation focus\n")
            reglages.flush()
            super().__init__(["sway", "-c", reglages.name], {"WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1",
                                                             "WLR_RENDERER": "pixman"}, "wayland-1")
            self.clients["SWAYSOCK"] = str(attendre(lambda: next(self.session.glob("sway-ipc.*.sock"), None),
                                                    "sway n’écoute pas"))
            attendre(lambda: not subprocess.call(["swaymsg", "-qt", "get_version"], env=self.clients), "sway est muet")
        self.nuit = nuit
        self.nom = f"sway-{echelle}"
        # A keyboard is there as long as someone plays it.
        self._clavier = subprocess.Popen(["wtype", "-k", "Shift_L", "-s", "3600000"], env=self.clients)
        attendre(lambda: self.demander("-t", "get_seats")[0]["capabilities"], "aucun clavier")

    def arreter(self):
        self._clavier.kill()
        self._clavier.wait()
        super().arreter()

    def taper(self, touche):
        self.lancer(["wtype", "-k", touche])

    def demander(self, *question):
        return json.loads(self.lancer(["swaymsg", "-r", *question], text=True).stdout)

    def photographier(self, image):
        self.lancer(["grim", str(image)])

    def fenetres(self):
        def parcourir(noeud):
            if noeud.get("pid"):
                yield noeud
            for enfant in noeud["nodes"] + noeud["floating_nodes"]:
                yield from parcourir(enfant)

        return list(parcourir(self.demander("-t", "get_tree")))

    def fenetre(self):
        lieu = next(f["rect"] for f in self.fenetres() if f["name"] == "Quillet")
        return lieu["x"], lieu["y"], lieu["width"], lieu["height"]

    def devant(self):
        return next((f["app_id"] for f in self.fenetres() if f["focused"]), None)
