"""What a hand does, counted: keys, clicks, notches of the wheel, pastes. What is typed as text is not."""

import subprocess
import time
from collections import Counter

import clavier
from arbre import Echec, ancetres, attendre, cadre, exiger, trouver
from clavier import decrit, foyer, visible

VIDE = "rien n’est copié"
CRANS = 200  # of the wheel in an order, after which it goes nowhere


def presse_papiers():
    """What the clipboard holds."""
    lu = subprocess.run(["xclip", "-selection", "clipboard", "-o"], capture_output=True, timeout=5, check=False)
    return lu.stdout.decode("utf-8", "replace")


def garnir(texte):
    """The clipboard, as another program fills it: it answers a little after it was started."""
    subprocess.run(["xclip", "-selection", "clipboard"], input=texte.encode(), stdout=subprocess.DEVNULL, check=True)
    attendre(lambda: presse_papiers() == texte, "le presse-papiers ne se remplit pas")


class Gestes:
    """Both hands: the keyboard's and the mouse's, and what they did up to each step."""

    def __init__(self):
        self.faits = Counter()
        self.etapes = []  # what was reached, and the counts then

    def noter(self, etape):
        self.etapes.append((etape, self.faits.copy()))

    def touche(self, *touches):
        self.faits["touches"] += len(touches)
        clavier.touche(*touches)

    def coller(self, texte):
        self.faits["collages"] += 1
        garnir(texte)
        clavier.touche("ctrl+v")

    def jusqu_a(self, racine, pas, voulu):
        """Presses a key until the focus stands where it is wanted."""
        for _ in range(clavier.TOURS):
            ici = foyer(racine)
            if ici and voulu(ici):
                return ici
            self.touche(pas)
        raise Echec(f"{pas} n’y mène pas, il en est à {decrit(foyer(racine))}")

    def cliquer(self, racine, role, voulu):
        self.presser(trouver(racine, role, voulu))

    def presser(self, noeud):
        """In its middle, brought in sight by the wheel over what hides it."""
        while not visible(noeud):
            exiger(self.faits["crans"] < CRANS, f"{decrit(noeud)} ne vient pas sous la molette")
            vue = next(p for p in map(cadre, ancetres(noeud)) if not dedans(cadre(noeud), p))
            avant = cadre(noeud).y
            self.faits["crans"] += 1
            pointer(vue, "5" if milieu(cadre(noeud))[1] > milieu(vue)[1] else "4")
            attendre(lambda y=avant: cadre(noeud).y != y, f"la molette n’approche pas {decrit(noeud)}")
        self.faits["clics"] += 1
        attendre(lambda: immobile(noeud), f"{decrit(noeud)} ne tient pas en place")
        pointer(cadre(noeud), "1")


def milieu(place):
    return place.x + place.width // 2, place.y + place.height // 2


def dedans(petit, grand):
    return grand.y <= petit.y and petit.y + petit.height <= grand.y + grand.height


def immobile(noeud):
    avant = cadre(noeud)
    time.sleep(0.05)
    apres = cadre(noeud)
    return (avant.x, avant.y) == (apres.x, apres.y)


def pointer(place, bouton):
    x, y = milieu(place)
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", bouton], check=True)


def copier(geste):
    """The text that a gesture copies."""
    garnir(VIDE)
    geste()
    return attendre(lambda: presse_papiers().replace(VIDE, ""), VIDE)
