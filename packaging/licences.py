"""What Debian's copyright files say of licences, as SPDX expressions; only of those that are made to be read by machines."""

import re

# By their names there, without case. "MIT" is not among them: Debian's files mean several texts by it.
CONNUES = {
    "apache-2.0": "Apache-2.0",
    "boost-1.0": "BSL-1.0",
    "bsd-2-clause": "BSD-2-Clause",
    "bsd-3-clause": "BSD-3-Clause",
    "bsl-1.0": "BSL-1.0",
    "bzip2-1.0.6": "bzip2-1.0.6",
    "cc-by-sa-3.0": "CC-BY-SA-3.0",
    "cc0": "CC0-1.0",
    "cc0-1.0": "CC0-1.0",
    "expat": "MIT",
    "fsful": "FSFUL",
    "fsfullr": "FSFULLR",
    "isc": "ISC",
    "libpng": "Libpng",
    "mpl-1.1": "MPL-1.1",
    "mpl-2.0": "MPL-2.0",
    "ofl-1.1": "OFL-1.1",
    "unicode-dfs-2016": "Unicode-DFS-2016",
    "w3c": "W3C",
    "zlib": "Zlib",
}


def _paragraphes(copyright_debian):
    """The fields of each, with their names in lower case."""
    for bloc in re.split(r"\n[ \t]*\n", copyright_debian.strip()):
        champs, nom = {}, None
        for ligne in bloc.splitlines():
            if ligne[:1] in (" ", "\t"):
                if nom:
                    champs[nom] += "\n" + ligne.strip()
            elif ":" in ligne:
                nom, valeur = ligne.split(":", 1)
                nom = nom.lower()
                champs[nom] = valeur.strip()
        if champs:
            yield champs


def _joindre(mot, termes):
    proteger = mot == " AND " and len(termes) > 1
    return mot.join(f"({terme})" if proteger and " OR " in terme else terme for terme in termes)


class Licences:
    """The licences of one package; `propre` stands in the names of those that SPDX does not know."""

    def __init__(self, propre, copyright_debian):
        self._propre = propre
        self._textes = {}
        self.extraites = {}  # by the name given here: (the name there, the text)
        paragraphes = list(_paragraphes(copyright_debian))
        lisible = bool(paragraphes) and "copyright-format" in paragraphes[0].get("format", "")
        dites = set()
        for champs in paragraphes if lisible else ():
            nom, _, texte = champs.get("license", "").partition("\n")
            if texte:
                self._textes.setdefault(nom, texte)
            if nom and "files" in champs:
                dites.add(nom)
        expressions = {self._expression(nom) for nom in dites}
        termes = {terme for dite in expressions for terme in ([dite] if " OR " in dite else dite.split(" AND "))}
        # All that stand somewhere in its source.
        self.expression = _joindre(" AND ", sorted(termes)) or "NOASSERTION"

    def _expression(self, nom):
        """ "and" binds more than "or", unless a comma stands before it."""
        for separateur, mot in ((r",\s*and\s+", " AND "), (r",?\s+or\s+", " OR "), (r"\s+and\s+", " AND ")):
            parties = re.split(separateur, nom)
            if len(parties) > 1:
                return _joindre(mot, [self._expression(partie) for partie in parties])
        return self._une(nom.strip())

    def _une(self, nom):
        if nom.lower() in CONNUES:
            return CONNUES[nom.lower()]
        gnu = re.fullmatch(r"([AL]?GPL)-(\d)(\.\d)?(\+)?", nom, re.IGNORECASE)
        if gnu:
            famille, majeur, mineur, suivantes = gnu.groups()
            return f"{famille.upper()}-{majeur}{mineur or '.0'}-{'or-later' if suivantes else 'only'}"
        entier = f"{self._propre}-{nom.replace('+', '-or-later')}"
        reference = "LicenseRef-" + re.sub(r"[^A-Za-z0-9.]+", "-", entier).strip("-")
        ailleurs = f"Voir /usr/share/doc/{self._propre}/copyright."
        self.extraites[reference] = (nom, self._textes.get(nom, ailleurs))
        return reference
