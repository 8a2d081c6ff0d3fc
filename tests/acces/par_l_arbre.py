"""The whole job through the accessibility tree alone: no key, no pointer, no place on the screen."""

from pathlib import Path

from arbre import (ANNONCES, Ecoute, a_l_etat, agir, annonce, attendre, cherche, choisir, comparer, ecrire, exiger,
                   fenetre, lisible, montre, nom, parcourir, presser, rangee, texte, trouver)
from commande import ACHETEUR, ADRESSE, DOUANE, LIEN, MONTANTS, NUMERO, PESEE


def jouer(programme, compte, dossier):
    quillet = fenetre(programme, "frame", "Quillet")
    commander(quillet, compte)
    repondre(programme, quillet, compte)
    declarer(programme, quillet, compte)
    facturer(programme, quillet, compte, dossier)
    consulter_les_tarifs(quillet, compte)
    tenir_les_livres(quillet, compte)
    with compte.etape("Fermer par le menu"):
        agir(trouver(quillet, "menu item", "Quillet"), "ShowMenu")
        agir(trouver(programme, "menu item", "Quitter"), "Press")


def commander(quillet, compte):
    with compte.etape("Deux couvertures pressées, le nombre dit par la couverture et par le sélecteur"):
        ecoute = Ecoute("object:property-change:accessible-name", *ANNONCES)
        for livre, compris in [("Le Phare de sel", "1 livre · 395 g"), ("Le Phare de sel", "2 livres · 750 g")]:
            presser(quillet, livre)
            attendre(lambda texte=compris: montre(quillet, texte), f"« {livre} » ne s’ajoute pas")
        presser(quillet, "L’Herbier des heures")
        attendre(lambda: montre(quillet, "3 livres · 972 g"), "le sous-titre ne suit pas")
        couverture = trouver(quillet, "push button", "Le Phare de sel")
        exiger(nom(couverture).endswith("2 dans la commande"), nom(couverture))
        ecoute.attendre(lambda _, role, dit: role == "label" and "€" in dit, "aucun montant n’annonce son changement")
        ecoute.annonce("3 livres · 972 g, total à payer : ")
    with compte.etape("Quantités par le groupe du livre : + puis −"):
        groupe = trouver(quillet, "panel", "L’Herbier des heures")
        presser(groupe, "Ajouter un exemplaire")
        attendre(lambda: montre(groupe, "2"), "+ n’ajoute pas")
        presser(groupe, "Retirer un exemplaire")
        attendre(lambda: montre(groupe, "1"), "− ne retire pas")
    with compte.etape("Destination choisie dans sa liste"):
        choisir(quillet, "Envoi vers", "Suisse")
    with compte.etape("Emballage choisi dans sa liste, puis rendu"):
        choisir(quillet, "Emballage", "Carton (180 g)")
        attendre(lambda: rangee(quillet, "Poids", "Poids calculé") == ["1 112 g"], "l’emballage ne compte pas")
        choisir(quillet, "Emballage", "Enveloppe à bulles (40 g)")
    with compte.etape("Poids trop léger : l’avertissement est dit quand il paraît"):
        ecoute = Ecoute("object:state-changed:showing")
        ecrire(quillet, "Colis pesé, en grammes", "450")
        ecoute.attendre(lambda _, role, dit: role == "notification" and "plus léger" in dit, "rien n’est dit")
    with compte.etape("Colis pesé"):
        ecrire(quillet, "Colis pesé, en grammes", PESEE)
        attendre(lambda: not annonce(quillet, "Attention : Le colis"), "l’avertissement reste")
    for section, libelle, attendu in MONTANTS:
        with compte.etape(f"{section}, {libelle} : {attendu[-1]}"):
            comparer(section, libelle, rangee(quillet, section, libelle), attendu)


def ouvrir(programme, quillet, bouton, titre, compte):
    with compte.etape(f"« {bouton} » ouvre sa feuille", indispensable=True):
        presser(quillet, bouton)
        return fenetre(programme, "dialog", titre)


def repondre(programme, quillet, compte):
    feuille = ouvrir(programme, quillet, "E-mail en anglais", "Réponse à l’acheteur", compte)
    with compte.etape("Langue, lien, adresse : le message suit"):
        ecrire(feuille, "Lien de paiement", LIEN)
        ecrire(feuille, "E-mail de l’acheteur", ADRESSE)
        message = trouver(feuille, "text", "Message")
        attendre(lambda: LIEN in texte(message) and f"À : {ADRESSE}" in texte(message), "le message ne suit pas")
        exiger("Total to pay" in texte(message) and "73.19" in texte(message), texte(message))
        agir(trouver(feuille, "radio button", "Français"), "Toggle")
        attendre(lambda: "Total à payer (livres + envoi) : 73,19 €" in texte(message), "la langue ne suit pas")
        exiger(a_l_etat(trouver(feuille, "radio button", "Français"), "CHECKED"), "la langue choisie n’est pas dite")
    with compte.etape("« Ouvrir dans Mail » est là et actif"):
        exiger(a_l_etat(trouver(feuille, "push button", "Ouvrir dans Mail"), "ENABLED"), "il est inactif")
    fermer(programme, feuille, compte)


def fermer(programme, feuille, compte):
    with compte.etape(f"« {nom(feuille)} » se ferme"):
        titre = nom(feuille)
        presser(feuille, "Fermer")
        attendre(lambda: cherche(programme, "dialog", titre) is None, "elle reste ouverte")


def declarer(programme, quillet, compte):
    feuille = ouvrir(programme, quillet, "Déclaration en douane", "Documents d’envoi", compte)
    for section, libelle, attendu in DOUANE:
        with compte.etape(f"Douane, {section}, {libelle} : {attendu}"):
            comparer(section, libelle, rangee(feuille, section, libelle)[:1], [attendu])
    with compte.etape("Une valeur copiée se dit copiée"):
        ecoute = Ecoute(*ANNONCES)
        presser(feuille, "Copier Valeur totale")
        ecoute.annonce("Copié")
    fermer(programme, feuille, compte)


def facturer(programme, quillet, compte, dossier):
    pdf = Path(dossier) / "facture-par-l-arbre.pdf"
    feuille = ouvrir(programme, quillet, "Facture", "Documents d’envoi", compte)
    with compte.etape("La facture a son numéro"):
        numero = trouver(feuille, "text", "Numéro")
        exiger(texte(numero) == NUMERO, f"numéro {texte(numero)}")
    with compte.etape("Un numéro écrit par dictée compte"):
        ecrire(feuille, "Numéro", "sans forme")
        attendre(lambda: annonce(feuille, "Attention : Ce numéro n’a pas la forme"), "aucun avertissement")
        ecrire(feuille, "Numéro", NUMERO)
    with compte.etape("La facture est enregistrée en PDF, et c’est dit"):
        ecrire(feuille, "Acheteur", ACHETEUR)
        presser(feuille, "Enregistrer en PDF…")
        dialogue = fenetre(programme, "dialog", "Enregistrer la facture")
        ecrire(dialogue, "Nom de fichier :", str(pdf))
        presser(dialogue, "Enregistrer")
        trouver(feuille, "notification", f"Facture {NUMERO} enregistrée.")
        exiger(pdf.read_bytes().startswith(b"%PDF-"), "le fichier n’est pas un PDF")
    fermer(programme, feuille, compte)


def consulter_les_tarifs(quillet, compte):
    with compte.etape("Les tarifs s’ouvrent depuis la liste des rubriques"):
        agir(trouver(quillet, "list item", "Tarifs Colissimo"), "Toggle")
        trouver(quillet, "document frame", "Tarifs et frais")
    with compte.etape("Sans réseau, la raison de l’échec est là"):
        presser(quillet, "Vérifier, Tarifs Colissimo")

        attendre(lambda: annonce(quillet, "Page inaccessible : ", "label"), "aucune raison")
    with compte.etape("Un prix de la grille dit sa zone et son poids"):
        grille = trouver(quillet, "panel", "Europe")
        attendre(lambda: any("palier de la commande en cours" in nom(n) and "22,19 €" in nom(n)
                             for n in parcourir(grille)), "le palier de la commande n’est pas dit")


def tenir_les_livres(quillet, compte):
    with compte.etape("Un livre est cherché et choisi"):
        agir(trouver(quillet, "list item", "Livres"), "Toggle")
        ecrire(quillet, "Chercher un livre", "davrel")
        agir(trouver(trouver(quillet, "list", "Livres"), "list item", "Les Marées lentes"), "Toggle")
        attendre(lambda: montre(quillet, "3 prix à reporter"), "la fiche ne suit pas le choix")
    with compte.etape("Les filtres ont leur nom et leur état"):
        tous = trouver(quillet, "radio button", "Tous")
        exiger(a_l_etat(tous, "CHECKED") and lisible(tous.get_parent().get_name()) == "Vendeur", "Vendeur")
        exiger(lisible(trouver(quillet, "combo box", "État").get_name()) == "Tous les livres", "État")
    with compte.etape("Un prix refusé dit pourquoi"):
        ecrire(quillet, "Prix, en euros", "zut")
        trouver(quillet, "text", "Poids, en grammes").grab_focus()
        attendre(lambda: annonce(quillet, "Attention : "), "aucune raison")
    with compte.etape("Le prix change quand on quitte le champ"):
        ecrire(quillet, "Prix, en euros", "10,50")
        trouver(quillet, "text", "Poids, en grammes").grab_focus()
        trouver(quillet, "push button", "Annuler : prix de « Les Marées lentes »")
        attendre(lambda: montre(quillet, "10 prix à reporter"), "les boutons ne suivent pas le prix")
    with compte.etape("L’état d’un bouton est dit, et « Reporter » le change"):
        trouver(quillet, "label", "France, À reporter")
        presser(quillet, "Reporter, France")
        trouver(quillet, "label", "France, À jour")
    with compte.etape("Tout s’annule"):
        presser(quillet, "Annuler : prix reporté de « Les Marées lentes »")
        presser(quillet, "Annuler : prix de « Les Marées lentes »")
        attendre(lambda: texte(trouver(quillet, "text", "Prix, en euros")) == "9,50", "le prix n’est pas revenu")
