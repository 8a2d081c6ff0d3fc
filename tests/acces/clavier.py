"""The keyboard, pressed from outside, and where it leads: the tree is only looked at."""

import subprocess
import time

from arbre import Atspi, Echec, a_l_etat, ancetres, attendre, cadre, enfants, nom, parcourir, role_de

LISTES = {"list", "table", "tree"}
IGNORES = {"list item", "table cell", "frame", "dialog"}  # rows stay the present one of a list without the focus
TOURS = 120  # keys after which a control counts as out of reach


def touche(*touches):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *touches], check=True)
    time.sleep(0.08)


def taper(texte):
    for rang, ligne in enumerate(texte.split("\n")):
        if rang:
            touche("Return")  # which xdotool types otherwise
        subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", "15", ligne], check=True)
    time.sleep(0.1)


def foyer(racine):
    """What has the focus; in a list, its row. What only hands the focus on claims it too, but cannot take it."""
    for noeud in parcourir(racine):
        etats = noeud.get_state_set()
        if not etats.contains(Atspi.StateType.FOCUSED) or not etats.contains(Atspi.StateType.FOCUSABLE):
            continue
        role = noeud.get_role_name()
        if role in LISTES:
            return next((n for n in enfants(noeud) if a_l_etat(n, "FOCUSED")), noeud)
        if role not in IGNORES:
            return noeud
    return None


def identite(noeud):
    """Enough to know a control again: its role, its name up to the first comma, and where it stands in the tree."""
    chemin = [noeud.get_index_in_parent()] + [parent.get_index_in_parent() for parent in ancetres(noeud)]
    return noeud.get_role_name(), nom(noeud).split(",")[0], tuple(chemin)


def decrit(noeud):
    return f"{noeud.get_role_name()} « {nom(noeud)} »" if noeud else "rien"


def visible(noeud):
    """Whether the better part of a control lies within all that surrounds it."""
    c = cadre(noeud)
    gauche, haut, droite, bas = c.x, c.y, c.x + c.width, c.y + c.height
    for parent in ancetres(noeud):
        p = cadre(parent)
        gauche, haut = max(gauche, p.x), max(haut, p.y)
        droite, bas = min(droite, p.x + p.width), min(bas, p.y + p.height)
    vu = max(0, droite - gauche) * max(0, bas - haut)
    return vu > 0 and 2 * vu >= min(c.width * c.height, 2 * vu if c.height > 600 else c.width * c.height)


def apres(a, b):
    """Whether b is read after a: to its right when they share a line, else below."""
    commun = min(a.y + a.height, b.y + b.height) - max(a.y, b.y)
    if 2 * commun > min(a.height, b.height):
        return b.x >= a.x
    return b.y >= a.y


def dans_l_ordre(avant, maintenant):
    """Compares the two parts that hold them in the smallest whole that holds both."""
    lignee = {identite(n): n for n in [*ancetres(avant)]}
    parts = [avant, *ancetres(avant)]
    dessous = maintenant
    for parent in ancetres(maintenant):
        if identite(parent) in lignee:
            rang = next(i for i, n in enumerate(parts) if identite(n) == identite(parent))
            return apres(cadre(parts[rang - 1]), cadre(dessous))
        dessous = parent
    return True


def aller(racine, role, voulu, pas="Tab"):
    """Presses Tab until the control is reached, watching each step on the way."""
    passes = []
    for _ in range(TOURS):
        atteint = foyer(racine)
        passes.append(decrit(atteint))
        if atteint and role_de(atteint) == role and (nom(atteint) + ",").startswith(voulu + ","):
            return surveiller(atteint)
        touche(pas)
    raise Echec(f"{role} « {voulu} » n’est pas atteint par {pas} ; atteints : {', '.join(dict.fromkeys(passes))}")


def surveiller(noeud):
    """What has the focus, once it is known to be named and in sight."""
    if not nom(noeud):
        raise Echec(f"le focus est sur un {noeud.get_role_name()} sans nom")
    attendre(lambda: visible(noeud), f"{decrit(noeud)} a le focus hors de vue")
    return noeud


def tour(racine, pas="Tab"):
    """Every control that the key leads to, from the present one until it comes back; the steps against the reading."""
    depart = attendre(lambda: foyer(racine), "rien n’a le focus")
    atteints = [depart]
    retours = []
    for _ in range(TOURS):
        touche(pas)
        suivant = attendre(lambda: foyer(racine), f"{pas} a perdu le focus après {decrit(atteints[-1])}")
        surveiller(suivant)
        if identite(suivant) == identite(atteints[-1]):
            raise Echec(f"{pas} ne quitte pas {decrit(suivant)}")
        if not dans_l_ordre(atteints[-1], suivant):
            retours.append(f"{decrit(atteints[-1])} puis {decrit(suivant)}")
        if identite(suivant) == identite(depart):
            return atteints, retours
        atteints.append(suivant)
    raise Echec(f"{pas} ne revient pas à {decrit(depart)} : {', '.join(map(decrit, atteints[:30]))}")
