"""wayland.py program folder [compositor…]: plays an order under each, and counts what holds."""

import re
import subprocess
import sys
import tempfile
from contextlib import contextmanager
from pathlib import Path

import par_l_arbre
from acces import Abandon, Compte
from arbre import (Echec, agir, application, attendre, cadre, cherche, ecrire, exiger, fenetre, montre, presser,
                   trouver)
from commande import ACHETEUR, NUMERO
from compositeurs import HAUTEUR, LARGEUR, Sway, Weston

VIDE = 30_000  # bytes of a picture of one colour, and far from those of a screen

COMPOSITEURS = {"weston": [Weston], "sway": [lambda: Sway(1), lambda: Sway(1.25), lambda: Sway(1.5, nuit=True)]}


class Partie:
    """A program under a compositor, what it said to it, and where its pictures go."""

    def __init__(self, compositeur, binaire, compte, dossier, images):
        self.compositeur = compositeur
        self.binaire = binaire
        self.compte = compte
        self.dossier = dossier
        self._images = images
        self._journal = Path(dossier) / "protocole.log"
        self._environnement = compositeur.clients | {f"XDG_{quoi}_HOME": f"{dossier}/{quoi}" for quoi in ("CONFIG", "DATA")}
        if compositeur.nuit:
            nuit_de_kde(Path(dossier))
            self._environnement |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}
        with self._journal.open("w") as journal:
            self.quillet = subprocess.Popen([binaire], env=self._environnement | {"WAYLAND_DEBUG": "1"}, stderr=journal)
        self.programme = application("Quillet")
        self.fenetre = fenetre(self.programme, "frame", "Quillet")

    def protocole(self, motif):
        return re.findall(motif, self._journal.read_text(errors="replace"))

    def photographier(self, nom):
        """Whether it shows anything."""
        image = self._images / f"{self.compositeur.nom}-{nom}.png"
        self.compositeur.photographier(image)
        return image.stat().st_size > VIDE

    def montrer(self, nom):
        """A picture to be looked at."""
        if not self.photographier(nom):
            raise Echec(f"l’image « {nom} » est vide")

    def relancer(self, **environnement):
        """A second start; its exit code."""
        return subprocess.run([self.binaire], env=self._environnement | environnement, timeout=10).returncode


def nuit_de_kde(dossier):
    """A dark desktop, as Qt asks for it without any service."""
    (dossier / "CONFIG").mkdir()
    (dossier / "CONFIG" / "kdeglobals").write_text("".join(
        f"[Colors:{quoi}]\nBackgroundNormal=32,32,36\nForegroundNormal=240,240,240\n"
        for quoi in ("Window", "View", "Button", "Tooltip")))


def jouer(partie):
    compte, programme, quillet = partie.compte, partie.programme, partie.fenetre
    with compte.etape("La fenêtre tient dans l’écran", indispensable=True):
        attendre(lambda: partie.protocole(r"xdg_toplevel[@#]\d+\.set_title\(\"Quillet\"\)"), "aucune fenêtre")
        if partie.compositeur.siege:
            tenir(partie.compositeur.fenetre())
        attendre(lambda: partie.photographier("fenetre"), "l’écran est vide")
    if partie.compositeur.siege:
        par_l_arbre.commander(quillet, compte)
        partie.montrer("commande")
        surgissements(partie)
        par_l_arbre.repondre(programme, quillet, compte)
        declarer(partie)
        facturer(partie)
    else:
        with compte.etape("Une couverture pressée"):
            presser(quillet, "Le Phare de sel")
            attendre(lambda: montre(quillet, "1 livre · 395 g"), "le sous-titre ne suit pas")
    revenir(partie)
    if not partie.compositeur.siege:
        return
    with compte.etape("Fermer par le menu"):
        agir(trouver(quillet, "menu item", "Quillet"), "ShowMenu")
        agir(trouver(programme, "menu item", "Quitter"), "Press")
        exiger(partie.quillet.wait(timeout=10) == 0, f"code {partie.quillet.returncode}")


def tenir(rectangle):
    x, y, largeur, hauteur = rectangle
    exiger(x >= 0 and y >= 0 and largeur > 0 and hauteur > 0 and x + largeur <= LARGEUR and y + hauteur <= HAUTEUR,
           f"{rectangle} sort de l’écran")


def surgissements(partie):
    partie.compositeur.taper("Shift_L")  # a compositor lets pop up what a key or a click asked for
    for liste in ("Envoi vers", "Emballage"):
        with partie.compte.etape(f"La liste « {liste} » s’ouvre contre son champ, dans l’écran"):
            surgir(partie, trouver(partie.fenetre, "combo box", liste), liste)
    with partie.compte.etape("Le menu s’ouvre contre son titre, dans l’écran"):
        surgir(partie, trouver(partie.fenetre, "menu item", "Quillet"), "menu")


def surgir(partie, noeud, nom):
    """Opens what pops up, sees where the compositor put it, and closes it."""
    motif = r"xdg_popup[@#]\d+\.configure\((-?\d+), (-?\d+), (\d+), (\d+)\)"
    avant = len(partie.protocole(motif))
    agir(noeud, "ShowMenu")
    attendre(lambda: len(partie.protocole(motif)) > avant, "rien ne surgit")
    x, y, largeur, hauteur = map(int, partie.protocole(motif)[avant])
    partie.montrer(nom)
    fenetre_x, fenetre_y, *_ = partie.compositeur.fenetre()
    tenir((fenetre_x + x, fenetre_y + y, largeur, hauteur))
    champ = cadre(noeud)
    exiger(x <= champ.x + champ.width and champ.x <= x + largeur and y <= champ.y + champ.height + 8
           and champ.y <= y + hauteur + 8, f"({x}, {y}, {largeur}, {hauteur}) loin de ({champ.x}, {champ.y})")
    partie.compositeur.taper("Escape")
    detruits = r"xdg_popup[@#]\d+\.destroy\(\)"
    attendre(lambda: len(partie.protocole(detruits)) > avant, "Échap ne le ferme pas")


def declarer(partie):
    feuille = par_l_arbre.ouvrir(partie.programme, partie.fenetre, "Déclaration en douane", "Documents d’envoi",
                                 partie.compte)
    partie.montrer("douane")
    if partie.compositeur.siege:
        with partie.compte.etape("Une valeur copiée se colle dans un autre programme"):
            trouver(feuille, "push button", "Copier Valeur totale").grab_focus()
            partie.compositeur.taper("space")
            attendre(lambda: partie.compositeur.colle() == "51,00", "la valeur ne se colle pas")
    par_l_arbre.fermer(partie.programme, feuille, partie.compte)


def facturer(partie):
    feuille = par_l_arbre.ouvrir(partie.programme, partie.fenetre, "Facture", "Documents d’envoi", partie.compte)
    pdf = Path(partie.dossier) / "facture.pdf"
    with partie.compte.etape("La facture s’enregistre par le dialogue du bureau"):
        ecrire(feuille, "Acheteur", ACHETEUR)
        presser(feuille, "Enregistrer en PDF…")
        dialogue = fenetre(partie.programme, "dialog", "Enregistrer la facture")
        partie.montrer("enregistrer")
        ecrire(dialogue, "Nom de fichier :", str(pdf))
        presser(dialogue, "Enregistrer")
        trouver(feuille, "notification", f"Facture {NUMERO} enregistrée.")
        exiger(pdf.read_bytes().startswith(b"%PDF-"), "le fichier n’est pas un PDF")
    with partie.compte.etape("Le dialogue d’impression s’ouvre et s’annule"):
        presser(feuille, "Imprimer 2 exemplaires")
        dialogue = fenetre(partie.programme, "dialog", "Imprimer")
        partie.montrer("imprimer")
        presser(dialogue, "Annuler")
        attendre(lambda: cherche(partie.programme, "dialog", "Imprimer") is None, "il reste ouvert")
    partie.montrer("facture")
    par_l_arbre.fermer(partie.programme, feuille, partie.compte)


def revenir(partie):
    """A second start, without a token, then with the one that its launcher was given."""
    with partie.compte.etape("Un second départ rend la main au premier"):
        exiger(partie.relancer() == 0, "il a échoué")
    if not partie.compositeur.siege:
        return
    with (partie.compte.etape("Un second départ, par un lanceur, ramène la fenêtre devant la sienne"),
          lanceur(partie) as donner_un_jeton):
        partie.relancer(XDG_ACTIVATION_TOKEN="un-jeton-que-personne-n-a-donne")
        attendre(lambda: partie.protocole(r'activate\("un-jeton-que-personne-n-a-donne"'), "le jeton n’est pas transmis")
        exiger(partie.compositeur.devant() != "quillet", "la fenêtre revient sans y être autorisée")
        partie.relancer(XDG_ACTIVATION_TOKEN=donner_un_jeton())
        attendre(lambda: partie.compositeur.devant() == "quillet", "la fenêtre ne revient pas")


@contextmanager
def lanceur(partie):
    """Another window, in front; what gives a token there: a compositor gives none to who has not the keyboard."""
    dit = Path(partie.dossier) / "jetons"

    def donner_un_jeton():
        partie.compositeur.taper("space")
        return attendre(dit.read_text, "le lanceur ne reçoit aucun jeton").strip()

    with dit.open("w") as sortie:
        autre = subprocess.Popen(["/usr/bin/python3", Path(__file__).with_name("lanceur.py")], stdout=sortie,
                                 env=partie.compositeur.clients)
    try:
        attendre(lambda: partie.compositeur.devant() not in (None, "quillet"), "aucune autre fenêtre ne passe devant")
        yield donner_un_jeton
    finally:
        autre.kill()
        autre.wait()


def main(binaire, images, *choisis):
    compte = Compte()
    Path(images).mkdir(parents=True, exist_ok=True)
    for creer in [creer for choisi in choisis or COMPOSITEURS for creer in COMPOSITEURS[choisi]]:
        compositeur = creer()
        print(f"{compositeur.nom} :", flush=True)
        with tempfile.TemporaryDirectory() as dossier:
            partie = None
            try:
                partie = Partie(compositeur, binaire, compte, dossier, Path(images))
                jouer(partie)
            except (Abandon, Echec, subprocess.SubprocessError) as arret:
                compte.manque("la suite n’est pas jouée", repr(arret))
            finally:
                if partie:
                    partie.quillet.kill()
                    partie.quillet.wait()
                compositeur.arreter()
    print(f"{compte.reussites} étapes réussies, {compte.echecs} en échec")
    return 1 if compte.echecs else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
