"""The accessibility tree of a running program, as a screen reader gets it: found by role and name, acted on by action."""

import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 8  # seconds for what the program is to show
Atspi.set_timeout(1000 * PATIENCE, 1000 * PATIENCE)  # an action answers once it is done: a screen is built, say


class Echec(Exception):
    """What was expected of the program did not come."""


def lisible(texte):
    """The text with plain spaces: the interface's no-break ones are not what is compared."""
    return texte.replace("\u00a0", " ").replace("\u202f", " ")


def exiger(vrai, quoi):
    if not vrai:
        raise Echec(quoi)


def attendre(lire, quoi, patience=PATIENCE):
    """What `lire` gives, once it gives something."""
    limite = time.monotonic() + patience
    while True:
        try:
            lu = lire()
        except GLib.Error:  # what was being read has just gone
            lu = None
        if lu:
            return lu
        if time.monotonic() > limite:
            raise Echec(quoi)
        time.sleep(0.05)


def ouverte(nom):
    """The program of that name in the tree; None once it has left."""
    bureau = Atspi.get_desktop(0)
    for i in range(bureau.get_child_count()):
        programme = bureau.get_child_at_index(i)
        if programme and programme.get_name() == nom and programme.get_child_count():
            return programme
    return None


def application(nom):
    """The root of the program's tree."""
    racine = attendre(lambda: ouverte(nom), f"{nom} n’est pas dans l’arbre", 5 * PATIENCE)  # it starts, sanitized
    racine.set_cache_mask(Atspi.Cache.NONE)  # always what the program says now
    return racine


def a_l_etat(noeud, etat):
    return noeud.get_state_set().contains(getattr(Atspi.StateType, etat))


def enfants(noeud):
    tous = (noeud.get_child_at_index(i) for i in range(noeud.get_child_count()))
    return [enfant for enfant in tous if enfant is not None and a_l_etat(enfant, "SHOWING")]


def parcourir(noeud):
    """The node and all that shows below it."""
    yield noeud
    for enfant in enfants(noeud):
        yield from parcourir(enfant)


def etiquette(noeud):
    """The text of the label that says what the node is, when it does not say it itself."""
    for relation in noeud.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            return lisible(relation.get_target(0).get_name())
    return ""


def nom(noeud):
    """As it is spoken; a list to choose from is called by its label, its name being the present choice."""
    propre = lisible(noeud.get_name())
    return etiquette(noeud) if noeud.get_role_name() == "combo box" else propre or etiquette(noeud)


def role_de(noeud):
    """As Debian 12 calls it; Debian 13 says plainly "button"."""
    dit = noeud.get_role_name()
    return "push button" if dit == "button" else dit


def repond(noeud, role, voulu):
    """Names go from the particular to the general: the beginning, up to a comma, is enough."""
    if role and role_de(noeud) != role:
        return False
    dit = nom(noeud)
    return dit == voulu or dit.startswith(voulu + ",")


def cherche(racine, role, voulu):
    return next((noeud for noeud in parcourir(racine) if repond(noeud, role, voulu)), None)


def trouver(racine, role, voulu):
    return attendre(lambda: cherche(racine, role, voulu), f"introuvable : {role} « {voulu} »")


def montre(racine, texte):
    """Whether a label says that text, exactly."""
    return cherche(racine, "label", texte) or any(
        lisible(noeud.get_name()) == texte for noeud in parcourir(racine) if noeud.get_role_name() == "label"
    )


def annonce(racine, debut, role="notification"):
    """Whether a line begins with that, by default one that is spoken as it appears."""
    return any(noeud.get_role_name() == role and nom(noeud).startswith(debut) for noeud in parcourir(racine))


def rangee(racine, section, libelle):
    """What stands beside a label of a section, as texts."""
    groupe = trouver(racine, "panel", section)
    place = trouver(groupe, "label", libelle).get_parent()
    return [lisible(noeud.get_name()) for noeud in enfants(place) if nom(noeud) != libelle]


def comparer(section, libelle, lu, attendu):
    exiger(lu == attendu, f"{section}, {libelle} : lu {lu}, attendu {attendu}")


def texte(noeud):
    return lisible(Atspi.Text.get_text(noeud, 0, -1))


def agir(noeud, action):
    for i in range(noeud.get_n_actions()):
        if Atspi.Action.get_action_name(noeud, i) == action:
            noeud.do_action(i)
            return
    raise Echec(f"« {nom(noeud)} » ({noeud.get_role_name()}) ne sait pas faire : {action}")


def presser(racine, voulu):
    agir(trouver(racine, "push button", voulu), "Press")


def ecrire(racine, champ, valeur):
    """Replaces what a field holds, the way dictation does."""
    noeud = trouver(racine, "text", champ)
    if not noeud.grab_focus() or not Atspi.EditableText.set_text_contents(noeud, valeur):
        raise Echec(f"« {champ} » ne se laisse pas écrire")
    return noeud


def choisir(racine, liste, choix):
    """Opens a list to choose from, and chooses."""
    noeud = trouver(racine, "combo box", liste)
    agir(noeud, "ShowMenu")
    agir(trouver(noeud, "list item", choix), "Toggle")
    attendre(lambda: lisible(noeud.get_name()) == choix, f"« {liste} » n’a pas pris : {choix}")


def cadre(noeud):
    return Atspi.Component.get_extents(noeud, Atspi.CoordType.SCREEN)


def ancetres(noeud):
    while (noeud := noeud.get_parent()) is not None and noeud.get_role_name() != "application":
        yield noeud


def fenetre(racine, role, voulu):
    """A window of the program, by its title."""

    def chercher():
        return next((f for f in enfants(racine) if f.get_role_name() == role and f.get_name().startswith(voulu)), None)

    return attendre(chercher, f"aucune fenêtre « {voulu} »")


ANNONCES = ("object:state-changed:showing", "object:announcement")


class Ecoute:
    """What the program announces, from here on."""

    def __init__(self, *evenements):
        self.entendus = []
        self._oreille = Atspi.EventListener.new(self._noter)
        for evenement in evenements:
            self._oreille.register(evenement)

    def _noter(self, evenement):
        try:
            dit = evenement.any_data if evenement.type == "object:announcement" else nom(evenement.source)
            self.entendus.append((evenement.type, evenement.source.get_role_name(), lisible(dit)))
        except GLib.Error:
            pass  # its source has gone already

    def annonce(self, debut):
        """Whether it was spoken, by whichever way the program has to say it."""

        def est_annonce(evenement, role, dit):
            return dit.startswith(debut) and (role == "notification" or evenement == "object:announcement")

        self.attendre(est_annonce, f"« {debut} » n’est pas annoncé")

    def attendre(self, verifier, quoi):
        def entendu():
            contexte = GLib.MainContext.default()
            while contexte.pending():
                contexte.iteration(False)
            return any(verifier(*evenement) for evenement in self.entendus)

        attendre(entendu, quoi)
