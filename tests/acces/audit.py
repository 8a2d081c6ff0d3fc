"""Walks what each screen and each sheet shows, and tells what a screen reader could not name, tell apart or read."""

from collections import Counter

from arbre import (a_l_etat, agir, attendre, choisir, enfants, etiquette, exiger, fenetre, nom, parcourir, presser,
                   trouver)
from par_l_arbre import fermer, ouvrir

SANS_ROLE = {"filler", "unknown", "panel", "layered pane"}
A_VALEUR = {"text": "Text", "spin button": "Value", "slider": "Value", "scroll bar": "Value"}
DEDANS = {"scroll bar"}  # drawn by Qt: the keys and the reader move the page itself


def actif(noeud):
    """Whether the node can take the focus or be acted upon."""
    actions = noeud.get_n_actions() if "Action" in noeud.get_interfaces() else 0
    return actions > 0 or a_l_etat(noeud, "FOCUSABLE")


def separateur(noeud):
    return noeud.get_description() == "separator" or noeud.get_role_name() == "separator"


def fautes(noeud):
    """What is wrong with one node, in words."""
    role = noeud.get_role_name()
    if role == "icon" and not nom(noeud):
        yield "image sans nom"
    if not actif(noeud) or role in DEDANS or separateur(noeud):
        return
    if not nom(noeud):
        yield "sans nom"
    if role in SANS_ROLE:
        yield "sans rôle"
    if role in A_VALEUR and A_VALEUR[role] not in noeud.get_interfaces():
        yield "sans valeur"
    if role == "combo box" and not etiquette(noeud):
        yield "sans étiquette"
    if role == "list item" and not a_l_etat(noeud, "SELECTABLE"):
        yield "sans état"
    if role == "radio button" and not any(a_l_etat(voisin, "CHECKED") for voisin in enfants(noeud.get_parent())):
        yield "aucun de ses voisins n’est dit choisi"


def groupe(noeud):
    """The names of the groups that a node stands in: what is spoken on the way to it."""
    noms = []
    while (noeud := noeud.get_parent()) is not None and noeud.get_role_name() != "application":
        if noeud.get_role_name() in {"panel", "dialog", "frame", "list", "combo box"} and nom(noeud):
            noms.append(nom(noeud))
    return tuple(noms)


def confondus(noeuds):
    """Controls that are spoken alike."""
    dits = Counter(
        (noeud.get_role_name(), nom(noeud), noeud.get_description(), groupe(noeud))
        for noeud in noeuds
        if actif(noeud) and noeud.get_role_name() not in DEDANS and not separateur(noeud)
    )
    return [cle for cle, fois in dits.items() if fois > 1]


def inspecter(racine, ou, compte):
    noeuds = list(parcourir(racine))
    trouvees = [(faute, noeud) for noeud in noeuds for faute in fautes(noeud)]
    for faute, noeud in trouvees:
        chemin = " < ".join(groupe(noeud)[:2])
        compte.manque(ou, f"{faute} : {noeud.get_role_name()} « {nom(noeud)} » dans {chemin}")
    for role, dit, description, dans in confondus(noeuds):
        compte.manque(ou, f"deux fois : {role} « {dit} » ({description}) dans {' < '.join(dans)}")
    if not trouvees:
        with compte.etape(f"{ou} : {sum(map(actif, noeuds))} commandes nommées, {len(noeuds)} éléments"):
            pass


def jouer(programme, compte, _dossier):
    quillet = fenetre(programme, "frame", "Quillet")
    inspecter(quillet, "Commande vide", compte)
    verifier_les_etats(quillet, compte)
    presser(quillet, "Le Phare de sel")
    presser(quillet, "Cahier de vent")
    choisir(quillet, "Emballage", "Autre poids")
    choisir(quillet, "Envoi vers", "Union européenne")
    inspecter(quillet, "Commande en cours", compte)
    choisir(quillet, "Envoi vers", "Suisse")
    inspecter_les_feuilles(programme, quillet, compte)
    agir(trouver(quillet, "list item", "Tarifs Colissimo"), "Toggle")
    inspecter(quillet, "Tarifs", compte)
    agir(trouver(quillet, "list item", "Livres"), "Toggle")
    agir(trouver(trouver(quillet, "list", "Livres"), "list item", "Les Marées lentes"), "Toggle")
    trouver(quillet, "push button", "Tout reporter")
    inspecter(quillet, "Livres", compte)
    agir(trouver(quillet, "menu item", "Quillet"), "ShowMenu")
    inspecter(trouver(programme, "menu item", "Quitter").get_parent(), "Menu", compte)
    agir(trouver(programme, "menu item", "Quitter"), "Press")


def verifier_les_etats(quillet, compte):
    with compte.etape("Ce qui est inactif le dit"):
        groupe_du_livre = trouver(quillet, "panel", "Le Phare de sel")
        for ou, bouton in [(groupe_du_livre, "Retirer un exemplaire"), (quillet, "Facture"),
                           (quillet, "Tout réinitialiser")]:
            exiger(not a_l_etat(trouver(ou, "push button", bouton), "ENABLED"), f"« {bouton} » est dit actif")
        epuise = trouver(quillet, "push button", "Dernier train pour Ombreval")  # one can walk over it
        exiger(nom(epuise).endswith(", Épuisé"), nom(epuise))
    with compte.etape("La pastille des tarifs est dite"):
        attendre(lambda: nom(trouver(quillet, "list item", "Tarifs Colissimo")).endswith(" à voir"), "elle est muette")


def inspecter_les_feuilles(programme, quillet, compte):
    feuilles = [
        ("E-mail en anglais", "Réponse à l’acheteur"),
        ("Déclaration en douane", "Documents d’envoi"),
        ("Facture", "Documents d’envoi"),
    ]
    for bouton, titre in feuilles:
        feuille = ouvrir(programme, quillet, bouton, titre, compte)
        inspecter(feuille, f"Feuille « {bouton} »", compte)
        fermer(programme, feuille, compte)
