"""Plays the parts asked for on one program each, says what passed and what did not; run by `lancer`."""

import os
import subprocess
import sys
import tempfile
from contextlib import contextmanager

import a_l_oreille
import audit
import au_clavier
import par_l_arbre
import premiers_pas
import trois_commandes
from arbre import Echec, GLib, application


def tel_quel(binaire, _dossier):
    return binaire


# What plays each part, on a program each, and what prepares that program.
PARTIES = {
    "arbre": [(par_l_arbre.jouer, tel_quel)],
    "clavier": [(au_clavier.jouer, tel_quel)],
    "audit": [(audit.jouer, tel_quel)],
    "commandes": [(trois_commandes.au_clavier, trois_commandes.preparer),
                  (trois_commandes.a_la_souris, trois_commandes.preparer),
                  (trois_commandes.parmi_soixante, trois_commandes.preparer_soixante)],
    "premiers": [(premiers_pas.a_la_souris, premiers_pas.preparer_les_pas),
                 (premiers_pas.au_clavier, premiers_pas.preparer_les_pas)],
    "oreille": [(a_l_oreille.jouer, tel_quel)],
}
SANS_ORCA = [partie for partie in PARTIES if partie != "oreille"]


class Abandon(Exception):
    """The rest of a part cannot be played."""


class Compte:
    """What passed and what failed, said as it comes."""

    def __init__(self):
        self.reussites = 0
        self.echecs = 0

    @contextmanager
    def etape(self, quoi, indispensable=False):
        """What follows a step that failed is played all the same, unless nothing could be."""
        try:
            yield
        except (Echec, GLib.Error) as echec:
            self.manque(quoi, echec)
            if indispensable:
                raise Abandon from echec
        else:
            self.reussites += 1
            print(f"  ok     {quoi}", flush=True)

    def manque(self, quoi, pourquoi):
        self.echecs += 1
        print(f"  ÉCHEC  {quoi} : {pourquoi}", flush=True)


def derouler(jouer, preparer, binaire, compte):
    with tempfile.TemporaryDirectory() as dossier:
        chez_soi = {f"XDG_{quoi}_HOME": f"{dossier}/{quoi}" for quoi in ("CONFIG", "DATA")}  # no part sees another's
        chez_soi["HOME"] = dossier
        chez_soi["PATH"] = f"{dossier}/outils:{os.environ['PATH']}"  # what a part puts before the system's
        quillet = subprocess.Popen([preparer(binaire, dossier)], env=os.environ | chez_soi)
        try:
            jouer(application("Quillet"), compte, dossier)
            with compte.etape("Le programme s’est fermé de lui-même, sans faute"):
                if quillet.wait(timeout=10) != 0:
                    raise Echec(f"code {quillet.returncode}")
        except (Abandon, Echec, subprocess.TimeoutExpired) as arret:
            compte.manque("la suite n’est pas jouée", repr(arret))
        finally:
            quillet.kill()
            quillet.wait()


def main(binaire, *choisies):
    compte = Compte()
    for partie in choisies or SANS_ORCA:
        print(f"{partie} :", flush=True)
        for jeu in PARTIES[partie]:
            derouler(*jeu, binaire, compte)
    print(f"{compte.reussites} étapes réussies, {compte.echecs} en échec")
    return 1 if compte.echecs else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
