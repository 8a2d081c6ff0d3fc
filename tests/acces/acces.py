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
from arbre import Echec, GLib, application

PARTIES = {"arbre": par_l_arbre, "clavier": au_clavier, "audit": audit, "oreille": a_l_oreille}
SANS_ORCA = ["arbre", "clavier", "audit"]


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


def jouer(partie, binaire, compte):
    print(f"{partie} :", flush=True)
    with tempfile.TemporaryDirectory() as dossier:
        chez_soi = {f"XDG_{quoi}_HOME": f"{dossier}/{quoi}" for quoi in ("CONFIG", "DATA")}  # no part sees another's
        quillet = subprocess.Popen([binaire], env=os.environ | chez_soi)
        try:
            PARTIES[partie].jouer(application("Quillet"), compte, dossier)
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
        jouer(partie, binaire, compte)
    print(f"{compte.reussites} étapes réussies, {compte.echecs} en échec")
    return 1 if compte.echecs else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
