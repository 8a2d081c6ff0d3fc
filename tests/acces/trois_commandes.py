"""Three usual orders, by keyboard and by mouse, from the empty order to the invoice saved: every gesture is counted.

A key is a Tab, an arrow, a shortcut, Return, Space, Escape; typed letters and digits are none, a paste counts apart."""

import json
import os
import shutil
from dataclasses import dataclass
from pathlib import Path
from urllib.parse import unquote

import clavier
from arbre import (annonce, attendre, cherche, exiger, fenetre, lisible, montre, nom, parcourir, rangee, role_de,
                   texte, trouver)
from clavier import foyer
from commande import ACHETEUR, ADRESSE, LIEN
from gestes import copier
from mains import ALaSouris, AuClavier

LIMITE = 12  # keys of the usual order, until its invoice is filled
RESSOURCES = Path(__file__).resolve().parents[2] / "resources"
RECUS = "recus"  # what the mail program and the browser were given, a line each


@dataclass(frozen=True)
class Commande:
    nom: str
    livres: dict  # title: the letters that find it
    envoi: str
    total: str
    dit: str  # in the message
    cherche: str = ""
    pays: str = ""  # in the list found
    adresse: str = ""  # to be seen in the address of the payment link
    pesee: str = ""
    douane: bool = False


PHARE = {"Le Phare de sel": "phare"}
FRANCE = Commande("Un livre, France", PHARE, "7,59 €", "25,59 €", "Total à payer (livres + envoi) : 25,59 €")
CANADA = Commande("Un livre, Canada", PHARE, "35,19 €", "53,19 €", "Total to pay (books + shipping): €53.19", "can",
                  "Canada", "Canada", "402", True)
GUADELOUPE = Commande("Deux titres, Guadeloupe", PHARE | {"L’Herbier des heures": "herb"}, "19,00 €", "52,00 €",
                      "Total à payer (livres + envoi) : 52,00 €", "gua", "Guadeloupe", "la Guadeloupe")


def passer(main, commande, programme, quillet, dossier):
    for titre, lettres in commande.livres.items():
        main.livre(quillet, titre, lettres)
    if commande.pays:
        main.pays(programme, quillet, commande)
    if commande.pesee:
        main.peser(quillet, commande.pesee)
    attendre(lambda: rangee(quillet, "Montants", "TOTAL À PAYER") == [commande.total], "le total n’est pas le bon")
    envoi = rangee(quillet, "Montants", "Envoi Colissimo")[-1]
    exiger(envoi == commande.envoi, f"envoi {envoi}, attendu {commande.envoi}")
    if commande.adresse:
        lue = texte(trouver(quillet, "text", "Pays de livraison"))
        exiger(lue == commande.adresse, f"pays de livraison « {lue} », attendu « {commande.adresse} »")
    main.creer_le_lien(quillet)
    textes = [copier(lambda: main.copier_le_suivant(quillet)) for _ in range(4)]
    exiger(len(set(textes)) == 4 and commande.total[:-2] in textes, f"textes du lien : {textes}")

    main.repondre(quillet)
    feuille = fenetre(programme, "dialog", "Réponse à l’acheteur")
    main.noter("réponse")
    main.coller(LIEN)
    main.vers_l_adresse(feuille)
    main.coller(ADRESSE)
    main.remettre(feuille)
    recus = Path(dossier) / RECUS
    remis = attendre(lambda: next((ligne for ligne in recus.read_text().split("\n") if ligne.startswith("mailto:")), None)
                     if recus.exists() else None, "rien n’est remis au courrier")
    for attendu in (LIEN, commande.dit):
        exiger(attendu in lisible(unquote(remis)), f"« {attendu} » manque dans {unquote(remis)}")
    recus.unlink()
    fermer(main, programme, feuille)

    if commande.douane:
        main.declarer(quillet)
        feuille = fenetre(programme, "dialog", "Documents d’envoi")
        for bouton in [n for n in parcourir(feuille) if role_de(n) == "push button" and nom(n).startswith("Copier ")]:
            copier(lambda ici=bouton: main.copier_la_valeur(feuille, ici))
        main.noter("douane")
        fermer(main, programme, feuille)

    main.facturer(quillet)
    feuille = fenetre(programme, "dialog", "Documents d’envoi")
    attendre(lambda: nom(foyer(feuille)) == "Acheteur", "le focus n’attend pas l’acheteur")
    main.coller(ACHETEUR)
    attendre(lambda: texte(trouver(feuille, "text", "Acheteur")) == ACHETEUR, "l’acheteur n’est pas collé")
    main.noter("facture")
    main.enregistrer(programme, feuille)
    attendre(lambda: annonce(feuille, "Facture "), "la facture n’est pas enregistrée")
    main.noter("PDF")
    fermer(main, programme, feuille)


def fermer(main, programme, feuille):
    titre = nom(feuille)
    main.fermer(programme, feuille)
    attendre(lambda: cherche(programme, "dialog", titre) is None, "la feuille reste ouverte")


def preparer(binaire, dossier):
    """A mail program and a browser that write what they are given; the program as it is."""
    applications = Path(dossier) / "DATA" / "applications"
    applications.mkdir(parents=True)
    noter = Path(dossier) / "outils" / "xdg-open"
    noter.parent.mkdir()
    noter.write_text(f"#!/bin/sh\necho \"$1\" >>'{dossier}/{RECUS}'\n")
    noter.chmod(0o755)
    (applications / "noter.desktop").write_text(f"[Desktop Entry]\nType=Application\nName=Noter\nExec={noter} %u\n")
    (applications / "mimeapps.list").write_text(
        "[Default Applications]\nx-scheme-handler/mailto=noter.desktop\n")
    return binaire


def preparer_soixante(binaire, dossier):
    """A copy of the program, beside which stand sixty books of one seller, the one that is sold among the last."""
    preparer(binaire, dossier)
    programme = Path(dossier) / "bin" / "quillet"
    programme.parent.mkdir()
    shutil.copy(binaire, programme)
    donnees = Path(dossier) / "share" / "quillet-donnees"
    shutil.copytree(RESSOURCES, donnees)
    fichier = donnees / "livres.json"
    phare, autre = json.loads(fichier.read_text(encoding="utf-8"))[:2]
    livres = [autre | {"id": n, "titre": f"Cahier de bord {n}"} for n in range(100, 159)]
    fichier.write_text(json.dumps([*livres[:50], phare, *livres[50:]], ensure_ascii=False), encoding="utf-8")
    return str(programme)


def au_clavier(programme, compte, dossier):
    jouer(AuClavier, [FRANCE, CANADA, GUADELOUPE], programme, compte, dossier)


def a_la_souris(programme, compte, dossier):
    jouer(ALaSouris, [FRANCE, CANADA, GUADELOUPE], programme, compte, dossier)


def parmi_soixante(programme, compte, dossier):
    jouer(AuClavier, [FRANCE], programme, compte, dossier)


def jouer(main, commandes, programme, compte, dossier):
    quillet = fenetre(programme, "frame", "Quillet")
    for commande in commandes:
        faits = main()
        with compte.etape(f"{commande.nom}, {faits.nom}", indispensable=True):
            passer(faits, commande, programme, quillet, dossier)
        for etape, jusque_la in faits.etapes:
            print(f"         {etape:8} {', '.join(f'{combien} {quoi}' for quoi, combien in jusque_la.items())}", flush=True)
        if commande is FRANCE and main is AuClavier:
            touches = dict(faits.etapes)["facture"]["touches"]
            with compte.etape(f"Facture remplie en {LIMITE} touches au plus"):
                exiger(touches <= LIMITE, f"{touches} touches")
        clavier.touche("ctrl+r")
        attendre(lambda: montre(quillet, "Aucun livre"), "la commande n’est pas vidée")
    clavier.touche("ctrl+q")
