"""The order that both ways of working make, and what it must come to."""

from datetime import date

ACHETEUR = "Ada Exemple\nMusterweg 3\n0000 Exempleville\nSuisse"
LIEN = "https://www.paypal.com/ncp/payment/EXEMPLE"
ADRESSE = "ada.exemple@example.org"
PESEE = "1012"
NUMERO = f"{date.today().year}-001"

# Two copies of one book and one of another, to Switzerland, weighed: section, label, figures beside it.
MONTANTS = [
    ("Livres", "Le Phare de sel", ["2 × 18,00 €", "36,00 €"]),
    ("Livres", "L’Herbier des heures", ["1 × 15,00 €", "15,00 €"]),
    ("Livres", "Sous-total", ["51,00 €"]),
    ("Poids", "Livres", ["932 g"]),
    ("Poids", "Poids calculé", ["972 g"]),
    ("Poids", "Palier Colissimo", ["encore 988 g avant le palier suivant", "jusqu’à 2 kg"]),
    ("Destination", "Déclaration en douane", ["Oui, CN23"]),
    ("Montants", "Envoi Colissimo", ["Union européenne et Suisse, jusqu’à 2 kg", "22,19 €"]),
    ("Montants", "TOTAL À PAYER", ["73,19 €"]),
    ("Montants", "Frais PayPal", ["4,89 % + 0,35 € · Autre pays", "-3,93 €"]),
    ("Montants", "Il vous reste", ["les livres moins les frais PayPal", "47,07 €"]),
    ("Lien de paiement PayPal", "Prix", ["73,19 €", "Copier Prix"]),
]
DOUANE = [
    ("Envoi", "Nature de l’envoi", "Vente de marchandises"),
    ("Envoi", "Frais de port", "22,19 €"),
    ("Envoi", "Poids brut du colis (kg)", "1,012"),
    ("Envoi", "Valeur totale", "51,00 €"),
    ("Article 1", "Poids net unitaire (kg)", "0,355"),
    ("Article 1", "Valeur unitaire", "18,00 €"),
    ("Article 1", "N° tarifaire (SH)", "490199"),
    ("Article 2", "Valeur unitaire", "15,00 €"),
    ("Expéditeur", "Adresse", "1 rue de l’Exemple"),
]
