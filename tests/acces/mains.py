"""The two ways to make an order: each hand does the same by its own gestures."""

from arbre import ANNONCES, Ecoute, attendre, cadre, cherche, fenetre, nom, parcourir, trouver
from clavier import foyer, taper
from gestes import Gestes, pointer


class AuClavier(Gestes):
    nom = "clavier"

    def livre(self, quillet, titre, lettres):
        self.vers_les_livres(quillet)
        taper(lettres)
        attendre(lambda: nom(foyer(quillet)).startswith(titre + ","), f"« {lettres} » ne mène pas à {titre}")
        self.touche("space")

    def vers_les_livres(self, quillet):
        self.jusqu_a(quillet, "F6", lambda ici: ", vendu par " in nom(ici))

    def pays(self, _programme, quillet, commande):
        self.touche("ctrl+l")
        attendre(lambda: nom(foyer(quillet)) == "Chercher un pays", "la recherche n’a pas le focus")
        taper(commande.cherche)
        self.touche("Return")

    def peser(self, quillet, pesee):
        self.jusqu_a(quillet, "shift+Tab", lambda ici: nom(ici) == "Colis pesé, en grammes")
        taper(pesee)

    def copier_le_suivant(self, _quillet):
        self.touche("ctrl+shift+c")

    def creer_le_lien(self, quillet):
        self.etape_suivante(quillet, "Créer le lien dans PayPal")

    def repondre(self, quillet):
        self.etape_suivante(quillet, "E-mail")

    def etape_suivante(self, quillet, laquelle):
        attendre(lambda: any(nom(n).startswith(f"Étape suivante : {laquelle}") for n in parcourir(quillet)),
                 f"« {laquelle} » n’est pas l’étape suivante")
        self.touche("ctrl+Return")

    def vers_l_adresse(self, _feuille):
        self.touche("Tab")

    def remettre(self, _feuille):
        self.touche("Return")

    def fermer(self, programme, feuille):
        titre = nom(feuille)
        self.touche("Escape")
        attendre(lambda: not cherche(programme, "dialog", titre) or not foyer(feuille), "Échap ne fait rien")
        if cherche(programme, "dialog", titre):  # it has left the field
            self.touche("Escape")

    def declarer(self, quillet):
        self.vers_le_pied(quillet)
        self.jusqu_a(quillet, "shift+Tab", lambda ici: nom(ici) == "Déclaration en douane")
        self.touche("space")

    def copier_la_valeur(self, feuille, bouton):
        self.jusqu_a(feuille, "Tab", lambda ici: ici == bouton)
        self.touche("space")

    def facturer(self, quillet):
        self.etape_suivante(quillet, "Facture")

    def vers_le_pied(self, quillet):
        self.jusqu_a(quillet, "F6", lambda ici: nom(ici).startswith("Étape suivante"))

    def enregistrer(self, programme, _feuille):
        self.touche("ctrl+s")
        fenetre(programme, "dialog", "Enregistrer la facture")
        self.touche("Return")


class ALaSouris(Gestes):
    nom = "souris"

    def livre(self, quillet, titre, _lettres):
        self.cliquer(quillet, "push button", titre)

    def pays(self, _programme, quillet, commande):
        """What is proposed stands under the field: Qt keeps such lists out of the tree, and has their choice spoken."""
        self.cliquer(quillet, "text", "Chercher un pays")
        ecoute = Ecoute(*ANNONCES)
        taper(commande.cherche)
        ecoute.annonce(commande.pays + " · ")
        premier = cadre(trouver(quillet, "text", "Chercher un pays"))
        premier.y += premier.height
        self.faits["clics"] += 1
        pointer(premier, "1")

    def peser(self, quillet, pesee):
        self.cliquer(quillet, "text", "Colis pesé, en grammes")
        taper(pesee)

    def copier_le_suivant(self, quillet):
        self.cliquer(quillet, "push button", "Copier le suivant")

    def creer_le_lien(self, quillet):
        self.cliquer(quillet, "push button", "Étape suivante : Créer le lien dans PayPal")

    def repondre(self, quillet):
        self.presser(attendre(lambda: next((n for n in parcourir(quillet) if nom(n).startswith("Étape suivante : E-mail")),
                                           None), "la réponse n’est pas l’étape suivante"))

    def vers_l_adresse(self, feuille):
        self.cliquer(feuille, "text", "E-mail de l’acheteur")

    def remettre(self, feuille):
        self.cliquer(feuille, "push button", "Ouvrir dans Mail")

    def fermer(self, _programme, feuille):
        self.cliquer(feuille, "push button", "Fermer")

    def declarer(self, quillet):
        self.cliquer(quillet, "push button", "Déclaration en douane")

    def copier_la_valeur(self, _feuille, bouton):
        self.presser(bouton)

    def facturer(self, quillet):
        self.cliquer(quillet, "push button", "Étape suivante : Facture")

    def enregistrer(self, programme, feuille):
        self.cliquer(feuille, "push button", "Enregistrer en PDF…")
        self.cliquer(fenetre(programme, "dialog", "Enregistrer la facture"), "push button", "Enregistrer")
