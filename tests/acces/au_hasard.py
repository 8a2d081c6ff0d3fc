"""A random walk through the accessibility tree: every action, value and index, at any moment; run by `hasard`.

It fails when the program dies, when a sanitizer speaks, or when the window does not answer for five seconds."""

import os
import random
import subprocess
import sys
import tempfile
import time
from collections import Counter, deque
from pathlib import Path

from arbre import (Atspi, Echec, GLib, a_l_etat, application, choisir, enfants, fenetre, lisible, parcourir, presser,
                   role_de)

PATIENCE = 5  # seconds that the window may take to answer
PROMENADE = 60  # seconds from one opening of the program to the next
FICHIER = "Nom de fichier :"

# Done more often than chance would: what fills an order, opens a sheet or a dialog, closes it.
GESTES = ("Facture", "Déclaration en douane", "E-mail en", "Imprimer", "Enregistrer", "Fermer", "Annuler", "OK", "Oui",
          "Non", "Revenir aux valeurs", "Le Phare de sel", "Ouvrir", "À propos", "Rechercher les", "Suisse", "Carton",
          "Tarifs Colissimo", "Livres", "Commande", "Envoi vers", "Emballage")
ROLES = ("push button", "radio button", "list item", "menu item", "combo box", "check box")
# All that is done in a dialog that looks through folders: it may not leave its own, nor change what stands there.
DANS_UN_DOSSIER = (FICHIER, "Enregistrer", "Annuler")

# What one may be asked by each interface, and the kinds of what is given.
QUESTIONS = {
    "Accessible": [("get_child_at_index", "rang"), ("get_attributes",), ("get_relation_set",), ("get_description",),
                   ("get_index_in_parent",), ("get_parent",), ("get_state_set",)],
    "Action": [*[("do_action", "action")] * 6, ("get_localized_name", "rang"), ("get_key_binding", "rang")],
    "Component": [("grab_focus",), ("get_accessible_at_point", "place", "place", "repere"), ("get_extents", "repere"),
                  ("contains", "place", "place", "repere"), ("scroll_to", "bord")],
    "EditableText": [("set_text_contents", "mots"), ("set_text_contents", "mots"), ("insert_text", "place", "mots", "place"),
                     ("delete_text", "place", "place"), ("cut_text", "place", "place"), ("paste_text", "place")],
    "Text": [("get_text", "place", "place"), ("set_caret_offset", "place"), ("add_selection", "place", "place"),
             ("set_selection", "rang", "place", "place"), ("remove_selection", "rang"), ("get_selection", "rang"),
             ("get_character_extents", "place", "repere"), ("get_range_extents", "place", "place", "repere"),
             ("get_attribute_run", "place", "vrai"), ("get_string_at_offset", "place", "grain"),
             ("get_offset_at_point", "place", "place", "repere"), ("get_character_at_offset", "place")],
    "Value": [("set_current_value", "nombre"), ("get_current_value",), ("get_maximum_value",)],
    "Selection": [("select_child", "rang"), ("deselect_child", "rang"), ("get_selected_child", "rang"), ("select_all",),
                  ("clear_selection",), ("is_child_selected", "rang"), ("deselect_selected_child", "rang")],
    "Table": [("get_accessible_at", "rang", "rang"), ("get_column_header", "rang"), ("get_row_header", "rang"),
              ("get_index_at", "rang", "rang"), ("get_row_at_index", "rang"), ("get_column_at_index", "rang"),
              ("add_row_selection", "rang"), ("remove_row_selection", "rang"), ("add_column_selection", "rang"),
              ("get_selected_rows",), ("get_column_description", "rang"), ("is_selected", "rang", "rang")],
    "TableCell": [("get_column_header_cells",), ("get_row_header_cells",), ("get_table",), ("get_position",)],
}
VALEURS = {
    "rang": [-1, 0, 1, 2, 3, 7, 999, 2**31 - 1],
    "place": [-1, 0, 1, 5, 40, 999],
    "nombre": [-1e12, -1, 0, 1, 2.5, 99, 1e12, float("nan")],
    "vrai": [False, True],
    "mots": ["", "0", "450", "1012", "12,50", "-3", "99999999999999", "zut", "davrel", "2026-001", "9999-999", "a\nb\n",
             "ada@example.org", "https://www.paypal.com/ncp/payment/X", "é’« »\u202f€", "😀\u202e", "x" * 3000],
    "repere": [Atspi.CoordType.SCREEN, Atspi.CoordType.WINDOW],
    "grain": [Atspi.TextGranularity.CHAR, Atspi.TextGranularity.WORD, Atspi.TextGranularity.LINE],
    "bord": [Atspi.ScrollType.ANYWHERE, Atspi.ScrollType.TOP_LEFT],
}


class Promenade:
    """One program, from its opening to its end."""

    def __init__(self, binaire, hasard, dossier, vues):
        self.hasard = hasard
        self.gestes = deque(maxlen=60)
        self.connues = {}  # windows, by their path
        self.vues = vues
        self.dits = Path(dossier) / "dits"
        chez_soi = {f"XDG_{quoi}_HOME": f"{dossier}/{quoi}" for quoi in ("CONFIG", "DATA", "CACHE")}
        seul = {"HOME": dossier, "PATH": dossier, "XDG_DATA_DIRS": dossier, "CUPS_SERVER": f"{dossier}/personne"}
        with self.dits.open("wb") as dits:
            self.quillet = subprocess.Popen([binaire], env=os.environ | chez_soi | seul, stderr=dits, cwd=dossier)

    def jouer(self, duree):
        """Returns how many steps it came to."""
        self.racine = application("Quillet")
        quillet = fenetre(self.racine, "frame", "Quillet")
        presser(quillet, "Le Phare de sel")  # without an order no sheet opens
        choisir(quillet, "Envoi vers", "Suisse")
        fin = time.monotonic() + duree
        pas = 0
        while time.monotonic() < fin and self.quillet.poll() is None:
            self.essayer(self.faire_un_pas)
            pas += 1
        while self.quillet.poll() is None and time.monotonic() < fin + 4 * PATIENCE:
            self.essayer(self.quitter)
            time.sleep(0.1)
        if self.quillet.poll() != 0:
            raise Echec("il ne se ferme pas" if self.quillet.poll() is None else f"il est mort, code {self.quillet.poll()}")
        return pas

    def essayer(self, geste):
        """What has gone, or refuses, is no failure; silence is. A button that holds its caller until the dialog that it
        opened is closed, as some of Qt's do, leaves the window answering others."""
        try:
            geste()
        except GLib.Error as erreur:
            if any(silence in erreur.message for silence in ("Did not receive a reply", "appears to be hung")):
                self.exiger_une_reponse()

    def exiger_une_reponse(self):
        limite = time.monotonic() + PATIENCE
        while self.quillet.poll() is None:
            try:
                self.racine.get_child_count()
                return
            except GLib.Error:
                if time.monotonic() > limite:
                    raise Echec(f"la fenêtre ne répond pas en {PATIENCE} s") from None
                GLib.MainContext.default().iteration(False)
                time.sleep(0.05)

    def quitter(self):
        for noeud in parcourir(self.racine):
            if noeud.get_role_name() == "menu item" and noeud.get_name() in ("Quillet", "Quitter"):
                noeud.do_action(0)

    def faire_un_pas(self):
        fenetres = enfants(self.racine)
        if not fenetres:
            return
        devant = fenetres[-1] if self.hasard.random() < 0.5 else self.hasard.choice(fenetres)
        voulus, dossiers = self.connaitre(devant)
        if voulus and self.hasard.random() < 0.4:
            noeud, interface = self.hasard.choice(voulus), "Action"
        else:
            noeud = self.descendre(devant)
            interface = self.hasard.choice(noeud.get_interfaces())
        permis = lisible(noeud.get_name()).startswith(DANS_UN_DOSSIER) if dossiers else noeud.get_name() != "Quitter"
        if permis and interface in QUESTIONS and interface in noeud.get_interfaces():
            self.demander(noeud, interface)

    def connaitre(self, devant):
        """What is worth doing in a window, and whether it looks through folders; read anew now and then."""
        if devant.path not in self.connues or self.hasard.random() < 0.02:
            noms = [(noeud, lisible(noeud.get_name())) for noeud in parcourir(devant)]
            self.vues[lisible(devant.get_name())] += devant.path not in self.connues
            self.connues[devant.path] = ([noeud for noeud, nom in noms if nom.startswith(GESTES) and role_de(noeud) in ROLES],
                                          any(nom == FICHIER for _, nom in noms))
        return self.connues[devant.path]

    def descendre(self, noeud):
        """By chance, among what shows."""
        while (nombre := noeud.get_child_count()) > 0 and self.hasard.random() > 0.05:
            dessous = noeud.get_child_at_index(self.hasard.randrange(nombre))
            if dessous is None or not a_l_etat(dessous, "SHOWING") and self.hasard.random() < 0.95:
                continue
            noeud = dessous
        return noeud

    def demander(self, noeud, interface):
        question, *genres = self.hasard.choice(QUESTIONS[interface])
        donnes = [self.hasard.choice([0, self.hasard.randrange(max(1, noeud.get_n_actions()))]) if genre == "action"
                  else self.hasard.choice(VALEURS[genre]) for genre in genres]
        self.gestes.append(f"{role_de(noeud)} « {noeud.get_name()[:50]} » : {question}{tuple(str(d)[:40] for d in donnes)}")
        classe = Atspi.Accessible if interface == "Accessible" else getattr(Atspi, interface)
        getattr(classe, question)(noeud, *donnes)


def main(binaire, secondes, graine):
    print(f"graine {graine}, {secondes} s", flush=True)
    Atspi.set_timeout(1000 * PATIENCE, 1000 * PATIENCE)
    hasard = random.Random(int(graine))
    fin = time.monotonic() + int(secondes)
    pas = ouvertures = 0
    vues = Counter()
    while (reste := fin - time.monotonic()) > 0:
        with tempfile.TemporaryDirectory() as dossier:
            promenade = Promenade(binaire, hasard, dossier, vues)
            try:
                pas += promenade.jouer(min(PROMENADE, reste))
                ouvertures += 1
            except (Echec, GLib.Error) as echec:
                print("\n".join(promenade.gestes), promenade.dits.read_text(errors="replace"), sep="\n")
                print(f"ÉCHEC, graine {graine} : {echec}")
                return 1
            finally:
                promenade.quillet.kill()
                promenade.quillet.wait()
    print("fenêtres :", ", ".join(f"{nom or '(sans nom)'} {nombre}" for nom, nombre in vues.most_common()))
    print(f"{pas} pas, {ouvertures} ouvertures, aucune faute")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
