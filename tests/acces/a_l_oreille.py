"""One whole order by keyboard with Orca on: every key is listened to, and what is said is judged."""

import os

import clavier
from arbre import Echec, attendre, cherche, exiger, fenetre, lisible, nom, role_de
from clavier import decrit, foyer
from commande import ACHETEUR, ADRESSE, LIEN, PESEE
from oreille import Oreille, fautes, fautes_de_la_voix


class Vendeur:
    """Presses keys and listens; what is said wrongly counts, the order goes on."""

    def __init__(self, racine, compte):
        self.racine = racine
        self._compte = compte
        self._oreille = Oreille(os.environ["ACCES_TRANSCRIPTION"])
        self._signalees = set()
        self._entendre("ouverture", ["Quillet", "Le Phare de sel"])

    def touche(self, une, *attendus):
        """Presses it, and hears what it should have said, if that is known."""
        clavier.touche(une)
        self._entendre(une, attendus)

    def taper(self, texte, *attendus):
        clavier.taper(texte)
        self._entendre(f"« {texte} »", attendus, epele=True)

    def pas(self, touche="Tab"):
        """One step of the focus: its name is to be heard, and the choice that it holds."""
        clavier.touche(touche)
        ici = attendre(lambda: foyer(self.racine), "rien n’a le focus")
        exiger(nom(ici), f"le focus est sur un {ici.get_role_name()} sans nom")
        attendus = [nom(ici).split(",")[0].split("\n")[0]]
        if ici.get_role_name() == "combo box":
            attendus.append(lisible(ici.get_name()))
        self._entendre(touche, attendus)

    def choisir(self, liste, touche):
        """One step in a list to choose from: the new choice is to be heard."""
        avant = liste.get_name()
        clavier.touche(touche)
        attendre(lambda: liste.get_name() != avant, "le choix ne change pas")
        self._entendre(touche, [lisible(liste.get_name())])

    def _entendre(self, quoi, attendus, epele=False):
        """Judges what came, but for letters spelled as they are typed; what is wrong is said once."""
        dits = self._oreille.ecouter(quoi, attendus)
        ici = foyer(self.racine)
        trouvees = [] if epele else list(fautes(dits, ici))
        trouvees += [f"« {a} » n’est pas dit : {dits}" for a in attendus if a not in " ".join(dits)]
        for faute in trouvees:
            if faute not in self._signalees:
                self._signalees.add(faute)
                self._compte.manque(f"{quoi}, {decrit(ici)}", faute)

    def aller(self, role, voulu, pas="Tab"):
        """By Tab to a control, each step on the way being one that is said."""
        for _ in range(clavier.TOURS):
            ici = foyer(self.racine)
            if ici and role_de(ici) == role and (nom(ici) + ",").startswith(voulu + ","):
                return ici
            self.pas(pas)
        raise Echec(f"{role} « {voulu} » n’est pas atteint par {pas}")


def jouer(programme, compte, _dossier):
    quillet = fenetre(programme, "frame", "Quillet")
    vendeur = Vendeur(quillet, compte)
    commander(vendeur, compte)
    repondre(programme, vendeur, compte)
    documenter(programme, vendeur, compte)
    consulter(vendeur, compte)
    vider(programme, vendeur, compte)
    clavier.touche("ctrl+q")  # nobody is left to say it
    with compte.etape("La voix : les montants entiers, le signe moins dit"):
        exiger(not (mal_dits := list(fautes_de_la_voix(os.environ["ACCES_TRANSCRIPTION"]))), " ; ".join(mal_dits))


def commander(vendeur, compte):
    with compte.etape("Deux titres, l’un en deux exemplaires"):
        vendeur.aller("push button", "Le Phare de sel")
        vendeur.touche("space", "1 livre · 395 g, total à payer : 25,59 €")
        vendeur.touche("plus", "2 dans la commande", "2 livres · 750 g, total à payer : ")
        vendeur.aller("push button", "L’Herbier des heures", "Right")
        vendeur.touche("space", "3 livres · 972 g, total à payer : ")
    with compte.etape("La destination, aux flèches"):
        liste = vendeur.aller("combo box", "Envoi vers")
        for _ in range(20):
            if lisible(liste.get_name()) == "Suisse":
                break
            vendeur.choisir(liste, "Down")
    with compte.etape("Le colis pesé"):
        vendeur.aller("text", "Colis pesé, en grammes", "shift+Tab")
        vendeur.taper(PESEE, "total à payer : 73,19 €")
    with compte.etape("Les textes du lien de paiement, copiés"):
        for titre in ["Nom de l’objet", "Description", "Prix"]:
            vendeur.aller("push button", f"Copier {titre}")
            vendeur.touche("space", "Copié")


def ouvrir(programme, vendeur, bouton, titre):
    vendeur.racine = fenetre(programme, "frame", "Quillet")
    vendeur.aller("push button", bouton)
    vendeur.touche("space")
    vendeur.racine = fenetre(programme, "dialog", titre)


def fermer(programme, vendeur):
    titre = nom(vendeur.racine)
    if role_de(foyer(vendeur.racine)) == "text":
        vendeur.touche("Escape")  # leaves what was typed
    vendeur.touche("Escape", "Quillet")
    attendre(lambda: cherche(programme, "dialog", titre) is None, "la feuille reste ouverte")
    vendeur.racine = fenetre(programme, "frame", "Quillet")


def faire_le_tour(vendeur):
    """Every control of the sheet, once."""
    depart = clavier.identite(attendre(lambda: foyer(vendeur.racine), "rien n’a le focus"))
    for _ in range(clavier.TOURS):
        vendeur.pas()
        if clavier.identite(foyer(vendeur.racine)) == depart:
            return
    raise Echec("Tab ne revient pas au départ")


def repondre(programme, vendeur, compte):
    with compte.etape("La réponse à l’acheteur"):
        ouvrir(programme, vendeur, "E-mail en anglais", "Réponse à l’acheteur")
        vendeur.taper(LIEN)
        vendeur.pas()
        vendeur.taper(ADRESSE)
        faire_le_tour(vendeur)
        fermer(programme, vendeur)


def documenter(programme, vendeur, compte):
    with compte.etape("Les valeurs de la douane"):
        ouvrir(programme, vendeur, "Déclaration en douane", "Documents d’envoi")
        faire_le_tour(vendeur)
        fermer(programme, vendeur)
    with compte.etape("La facture"):
        ouvrir(programme, vendeur, "Facture", "Documents d’envoi")
        for ligne in ACHETEUR.split("\n"):
            vendeur.taper(ligne)
            vendeur.touche("Return")
        faire_le_tour(vendeur)
        fermer(programme, vendeur)


def consulter(vendeur, compte):
    with compte.etape("Les tarifs"):
        vendeur.touche("ctrl+2", "Tarifs Colissimo")
        faire_le_tour(vendeur)
    with compte.etape("Les livres, une recherche, une fiche"):
        vendeur.touche("ctrl+3", "Livres")
        vendeur.pas()  # the search has the focus already
        vendeur.touche("ctrl+f", "Chercher un livre")
        vendeur.taper("davrel", "4 livres")
        vendeur.aller("list item", "Le Phare de sel")
        vendeur.touche("Down", "Les Marées lentes")
        faire_le_tour(vendeur)


def vider(programme, vendeur, compte):
    with compte.etape("Tout réinitialiser"):
        vendeur.touche("ctrl+1", "Commande")
        vendeur.aller("push button", "Tout réinitialiser")
        vendeur.touche("space", "Aucun livre")
