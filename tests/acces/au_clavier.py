"""The whole job by keyboard alone: the tree tells where the focus is and what came of the keys, nothing more."""

from pathlib import Path

from arbre import (ANNONCES, Echec, Ecoute, annonce, attendre, cherche, comparer, exiger, fenetre, lisible, montre,
                   nom, rangee, role_de, texte, trouver)
from clavier import aller, decrit, foyer, taper, touche, tour
from commande import ACHETEUR, ADRESSE, DOUANE, LIEN, MONTANTS, NUMERO, PESEE


def jouer(programme, compte, dossier):
    quillet = fenetre(programme, "frame", "Quillet")
    parcourir_au_tab(quillet, "Commande vide", compte)
    commander(quillet, compte)
    parcourir_au_tab(quillet, "Commande en cours", compte)
    repondre(programme, quillet, compte)
    declarer(programme, quillet, compte)
    facturer(programme, quillet, compte, dossier)
    consulter_les_tarifs(quillet, compte)
    tenir_les_livres(quillet, compte)
    touche("ctrl+q")


def parcourir_au_tab(racine, ou, compte):
    """Round by Tab, round again by Shift+Tab: all named, in sight, in reading order, and the same both ways."""
    with compte.etape(f"{ou} : le tour par Tab, chaque étape nommée et en vue"):
        atteints, retours = tour(racine)
        print(f"         {len(atteints)} étapes : {' | '.join(nom(n).split(',')[0] for n in atteints)}")
        with compte.etape(f"{ou} : dans l’ordre de lecture, jusqu’au retour au début"):
            exiger(len(retours) <= 1, " ; ".join(retours))
        inverses, _ = tour(racine, "shift+Tab")
        exiger(len(inverses) == len(atteints), f"{len(inverses)} étapes par Maj+Tab, {len(atteints)} par Tab")


def attendre_le_foyer(racine, role, voulu):
    def atteint():
        ici = foyer(racine)
        return ici is not None and role_de(ici) == role and nom(ici).startswith(voulu)

    try:
        attendre(atteint, "")
    except Echec:
        raise Echec(f"le focus devrait être sur {role} « {voulu} », il est sur {decrit(foyer(racine))}") from None


def choisir(racine, liste, choix):
    noeud = aller(racine, "combo box", liste)
    touche("Home")
    for _ in range(20):
        if lisible(noeud.get_name()) == choix:
            return
        touche("Down")
    raise Echec(f"« {liste} » ne mène pas à {choix}")


def commander(quillet, compte):
    with compte.etape("Deux couvertures pressées à la barre d’espace"):
        aller(quillet, "push button", "Le Phare de sel")
        touche("space", "space")
        taper("herb")
        attendre_le_foyer(quillet, "push button", "L’Herbier des heures")
        touche("space")
        attendre(lambda: montre(quillet, "3 livres · 972 g"), "le sous-titre ne suit pas")
    with compte.etape("+, − et un chiffre sur la couverture"):
        touche("plus")
        attendre(lambda: montre(quillet, "4 livres · 1 194 g"), "+ n’ajoute pas")
        touche("minus")
        attendre(lambda: montre(quillet, "3 livres · 972 g"), "− ne retire pas")
        touche("2")
        attendre(lambda: montre(quillet, "4 livres · 1 194 g"), "le chiffre ne compte pas")
        touche("minus")
        attendre(lambda: montre(quillet, "3 livres · 972 g"), "− ne retire pas")
    with compte.etape("Poids et destination"):
        aller(quillet, "text", "Colis pesé, en grammes")
        taper(PESEE)
        choisir(quillet, "Envoi vers", "Suisse")
    with compte.etape("Une lettre refusée dans le poids est expliquée"):
        champ = aller(quillet, "text", "Colis pesé, en grammes", "shift+Tab")
        touche("End")
        taper("x")
        attendre(lambda: champ.get_description().startswith("Un nombre entier"), "la raison n’est pas dite")
        exiger(texte(champ) == "1 012", texte(champ))
    for section, libelle, attendu in MONTANTS:
        with compte.etape(f"{section}, {libelle} : {attendu[-1]}"):
            comparer(section, libelle, rangee(quillet, section, libelle), attendu)


def ouvrir(programme, quillet, bouton, titre, compte):
    with compte.etape(f"« {bouton} » s’ouvre à la barre d’espace", indispensable=True):
        aller(quillet, "push button", bouton)
        touche("space")
        return fenetre(programme, "dialog", titre)


def fermer(programme, quillet, feuille, bouton, compte):
    with compte.etape(f"Échap ferme, le focus revient sur « {bouton} »"):
        titre = nom(feuille)
        touche("Escape")
        attendre(lambda: cherche(programme, "dialog", titre) is None, "la feuille reste ouverte")
        attendre_le_foyer(quillet, "push button", bouton)


def repondre(programme, quillet, compte):
    feuille = ouvrir(programme, quillet, "E-mail en anglais", "Réponse à l’acheteur", compte)
    with compte.etape("Réponse : le focus attend le lien, l’adresse suit"):
        attendre_le_foyer(feuille, "text", "Lien de paiement")
        taper(LIEN)
        touche("Tab")
        attendre_le_foyer(feuille, "text", "E-mail de l’acheteur")
        taper(ADRESSE)
        message = trouver(feuille, "text", "Message")
        attendre(lambda: LIEN in texte(message) and f"À : {ADRESSE}" in texte(message), "le message ne suit pas")
    with compte.etape("Réponse : la langue change aux flèches"):
        aller(feuille, "radio button", "Anglais")
        touche("Left")
        attendre(lambda: "Total à payer (livres + envoi) : 73,19 €" in texte(message), "la langue ne suit pas")
        touche("Right")
    with compte.etape("Réponse : « Ouvrir dans Mail » est atteint"):
        aller(feuille, "push button", "Ouvrir dans Mail")
    parcourir_au_tab(feuille, "Réponse", compte)
    fermer(programme, quillet, feuille, "E-mail en anglais", compte)


def declarer(programme, quillet, compte):
    feuille = ouvrir(programme, quillet, "Déclaration en douane", "Documents d’envoi", compte)
    for section, libelle, attendu in DOUANE:
        with compte.etape(f"Douane, {section}, {libelle} : {attendu}"):
            comparer(section, libelle, rangee(feuille, section, libelle)[:1], [attendu])
    with compte.etape("Douane : une valeur est copiée"):
        copie = aller(feuille, "push button", "Copier Valeur totale")
        exiger(lisible(copie.get_description()) == "51,00 €", copie.get_description())
        ecoute = Ecoute(*ANNONCES)
        touche("space")
        ecoute.annonce("Copié")
    parcourir_au_tab(feuille, "Douane", compte)
    fermer(programme, quillet, feuille, "Déclaration en douane", compte)


def facturer(programme, quillet, compte, dossier):
    feuille = ouvrir(programme, quillet, "Facture", "Documents d’envoi", compte)
    with compte.etape("Facture : le focus attend l’acheteur, le numéro est au-dessus"):
        attendre_le_foyer(feuille, "text", "Acheteur")
        taper(ACHETEUR)
        touche("shift+Tab")
        attendre_le_foyer(feuille, "text", "Numéro")
        exiger(texte(foyer(feuille)) == NUMERO, texte(foyer(feuille)))
    parcourir_au_tab(feuille, "Facture", compte)
    with compte.etape("Facture : enregistrée en PDF"):
        enregistrer(programme, feuille, Path(dossier) / "facture-au-clavier.pdf")
    with compte.etape("Facture : l’aperçu s’agrandit, Échap le referme, le focus revient"):
        aller(feuille, "push button", "Agrandir la facture")
        touche("space")
        attendre_le_foyer(feuille, "document frame", f"Facture {NUMERO} – Éditions Davrel")
        touche("Escape")
        attendre_le_foyer(feuille, "push button", "Agrandir la facture")
    fermer(programme, quillet, feuille, "Facture", compte)


def enregistrer(programme, feuille, pdf):
    aller(feuille, "push button", "Enregistrer en PDF…")
    touche("space")
    dialogue = fenetre(programme, "dialog", "Enregistrer la facture")
    attendre_le_foyer(dialogue, "text", "Nom de fichier")
    touche("ctrl+a")
    taper(str(pdf))
    touche("Return")
    trouver(feuille, "notification", f"Facture {NUMERO} enregistrée.")
    exiger(pdf.read_bytes().startswith(b"%PDF-"), "le fichier n’est pas un PDF")
    attendre_le_foyer(feuille, "push button", "Enregistrer en PDF…")


def consulter_les_tarifs(quillet, compte):
    touche("ctrl+2")
    with compte.etape("Tarifs : Ctrl+2, puis Vérifier ; sans réseau, la raison est là", indispensable=True):
        aller(quillet, "push button", "Vérifier, Tarifs Colissimo")
        touche("space")
        attendre(lambda: annonce(quillet, "Page inaccessible : ", "label"), "aucune raison")
        attendre_le_foyer(quillet, "push button", "Vérifier, Tarifs Colissimo")
    parcourir_au_tab(quillet, "Tarifs", compte)


def tenir_les_livres(quillet, compte):
    touche("ctrl+3")
    trouver(quillet, "text", "Chercher un livre")
    parcourir_au_tab(quillet, "Livres", compte)
    with compte.etape("Livres : Ctrl+F, une recherche, les flèches jusqu’au livre"):
        touche("ctrl+f")
        attendre_le_foyer(quillet, "text", "Chercher un livre")
        taper("davrel")
        aller(quillet, "list item", "Le Phare de sel")
        touche("Down")
        attendre_le_foyer(quillet, "list item", "Les Marées lentes")
        attendre(lambda: montre(quillet, "3 prix à reporter"), "la fiche ne suit pas le choix")
    with compte.etape("Livres : le prix change quand Tab quitte le champ"):
        aller(quillet, "text", "Prix, en euros")
        taper("10,50")
        touche("Tab")
        attendre_le_foyer(quillet, "text", "Poids, en grammes")
        attendre(lambda: montre(quillet, "10 prix à reporter"), "les boutons ne suivent pas le prix")
    with compte.etape("Livres : « Reporter », puis le focus sur la ligne suivante"):
        aller(quillet, "push button", "Reporter, France")
        touche("space")
        trouver(quillet, "label", "France, À jour")
        attendre_le_foyer(quillet, "push button", "Copier")
    with compte.etape("Livres : Ctrl+Z deux fois rend le prix"):
        touche("ctrl+z", "ctrl+z")
        attendre(lambda: texte(trouver(quillet, "text", "Prix, en euros")) == "9,50", "le prix n’est pas revenu")
