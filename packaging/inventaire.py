#!/usr/bin/env python3
"""inventaire.py quillet_….deb [quillet-….tar.xz]: writes beside each package what it holds and what it needs, in SPDX 2.3.

To be run where the .deb is installed: the exact versions of what it needs are those installed there. The same packages on
the same system give the same bytes."""

import hashlib
import json
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET
from datetime import datetime, timezone
from pathlib import Path
from urllib.parse import quote

from licences import Licences
from parution import Refus

CHAMPS = ("Package", "Version", "Architecture", "Maintainer", "source:Package", "source:Version", "Homepage", "Provides")
RIEN = "NOASSERTION"


def lire(*commande):
    return subprocess.run(commande, check=True, stdout=subprocess.PIPE, encoding="utf-8").stdout


def installes():
    """What dpkg says of each installed package, by name."""
    format_dpkg = "\t".join(f"${{{champ}}}" for champ in ("db:Status-Status", *CHAMPS)) + "\n"
    lignes = (ligne.split("\t") for ligne in lire("dpkg-query", "-W", "-f", format_dpkg).splitlines())
    return {valeurs[1]: dict(zip(CHAMPS, valeurs[1:])) for valeurs in lignes if valeurs[0] == "installed"}


def _noms(relations):
    """The names in a field such as "a (>= 1), b | c", one list for each set of choices."""
    choix = (partie.split("|") for partie in relations.split(",") if partie.strip())
    return [[re.split(r"[\s(:\[]", nom.strip())[0] for nom in noms] for noms in choix]


def satisfaire(depends, presents):
    """The installed packages that answer a Depends field."""
    offrants = {nom: paquet for paquet, dits in presents.items() for (nom,) in _noms(dits["Provides"])}
    trouves = set()
    for noms in _noms(depends):
        trouve = next((nom if nom in presents else offrants[nom] for nom in noms if nom in presents or nom in offrants), None)
        if not trouve:
            raise Refus(f"Paquet à installer d’abord : {' ou '.join(noms)}")
        trouves.add(trouve)
    return trouves


def bibliotheques(fichier):
    """The libraries that a program names, and the package that each comes from; none for what is no program."""
    if fichier.read_bytes()[:4] != b"\x7fELF":
        return {}
    noms = re.findall(r"^\s*NEEDED\s+(\S+)$", lire("objdump", "-p", str(fichier)), re.MULTILINE)
    dossier = re.compile(r"([^:]+)(?::\w+)?: (?:/usr)?/lib(?:64|/[^/]+-linux-gnu\w*)?/[^/]+")
    provenances = {}
    for nom in noms:
        lieux = filter(None, map(dossier.fullmatch, lire("dpkg-query", "-S", f"*/{nom}").splitlines()))
        lieu = next(lieux, None)
        if not lieu:
            raise Refus(f"{nom} ne vient d’aucun paquet.")
        provenances[nom] = lieu[1]
    return provenances


def _identifiant(*noms):
    return "SPDXRef-" + re.sub(r"[^A-Za-z0-9.]+", "-", "-".join(noms)).strip("-")


def _somme(algorithme, octets):
    return {"algorithm": algorithme, "checksumValue": hashlib.new(algorithme.lower(), octets).hexdigest()}


def _adresse(responsable):
    return responsable.replace("<", "(").replace(">", ")")


def _fournisseur(responsable):
    """Debian's teams write from a list."""
    equipe = re.search(r"@(\S*lists?\b\S*|tracker\.debian\.org|packages\.debian\.org)>", responsable)
    return ("Organization: " if equipe else "Person: ") + _adresse(responsable)


def _paquet_debian(paquet, systeme, extraites):
    notice = Path("/usr/share/doc", paquet["Package"], "copyright")
    licences = Licences(paquet["Package"], notice.read_text(encoding="utf-8") if notice.exists() else "")
    extraites.update(licences.extraites)
    version = quote(paquet["Version"], safe=":~")
    url = f"pkg:deb/debian/{paquet['Package']}@{version}?arch={paquet['Architecture']}&distro={systeme}"
    return {
        "SPDXID": _identifiant("Package", paquet["Package"]),
        "name": paquet["Package"],
        "versionInfo": paquet["Version"],
        "supplier": _fournisseur(paquet["Maintainer"]),
        "downloadLocation": RIEN,
        "sourceInfo": f"Debian source package {paquet['source:Package']} {paquet['source:Version']}",
        "filesAnalyzed": False,
        "licenseConcluded": RIEN,
        "licenseDeclared": licences.expression,
        "copyrightText": RIEN,
        "externalRefs": [{"referenceCategory": "PACKAGE-MANAGER", "referenceType": "purl", "referenceLocator": url}],
    } | ({"homepage": paquet["Homepage"]} if paquet["Homepage"] else {})


def _fichiers(racine):
    """Each file's path in the package and its own; a link has no bytes of its own."""
    chemins = (chemin for chemin in racine.rglob("*") if chemin.is_file() and not chemin.is_symlink())
    return sorted((f"./{chemin.relative_to(racine).as_posix()}", chemin) for chemin in chemins)


def document(paquet, controle, racine, presents, systeme):
    """What a package holds, unpacked in that folder, and what it needs."""
    fichiers = _fichiers(racine)
    octets = {nom: chemin.read_bytes() for nom, chemin in fichiers}
    metainfo = next(chemin for nom, chemin in fichiers if nom.endswith(".metainfo.xml"))
    licence = ET.parse(metainfo).findtext("project_license")
    notice = next(octets[nom].decode() for nom in octets if nom.endswith("/copyright"))
    droits = re.search(r"^Copyright .+$", notice, re.MULTILINE)[0]
    moi = _identifiant("Package", controle["Package"])
    liens = {nom: bibliotheques(chemin) for nom, chemin in fichiers}
    declares = satisfaire(controle["Depends"], presents)
    auteurs = "Organization: " + _adresse(controle["Maintainer"])
    extraites = {}
    autres = sorted(declares.union(*(lien.values() for lien in liens.values())))
    sommes_sha1 = sorted(hashlib.sha1(contenu).hexdigest() for contenu in octets.values())
    relations = [("SPDXRef-DOCUMENT", "DESCRIBES", moi, None)]
    relations += [(moi, "CONTAINS", _identifiant("File", nom[2:]), None) for nom in octets]
    for nom, lien in liens.items():
        relations += [
            (_identifiant("File", nom[2:]), "DYNAMIC_LINK", _identifiant("Package", d_ou), bibliotheque)
            for bibliotheque, d_ou in sorted(lien.items())
        ]
    relations += [(moi, "DEPENDS_ON", _identifiant("Package", nom), None) for nom in sorted(declares)]
    resultat = {
        "spdxVersion": "SPDX-2.3",
        "dataLicense": "CC0-1.0",
        "SPDXID": "SPDXRef-DOCUMENT",
        "name": paquet.name,
        "creationInfo": {
            # Files bear the day of the version.
            "created": datetime.fromtimestamp(
                max(int(chemin.stat().st_mtime) for _, chemin in fichiers), timezone.utc
            ).strftime("%Y-%m-%dT%H:%M:%SZ"),
            "creators": [auteurs],
        },
        "packages": [
            {
                "SPDXID": moi,
                "name": controle["Package"],
                "versionInfo": controle["Version"],
                "packageFileName": paquet.name,
                "supplier": auteurs,
                "downloadLocation": RIEN,
                "filesAnalyzed": True,
                "packageVerificationCode": {
                    "packageVerificationCodeValue": hashlib.sha1("".join(sommes_sha1).encode()).hexdigest()
                },
                "checksums": [_somme("SHA256", paquet.read_bytes())],
                "licenseConcluded": licence,
                "licenseInfoFromFiles": [RIEN],
                "licenseDeclared": licence,
                "copyrightText": droits,
                "primaryPackagePurpose": "APPLICATION",
            }
        ]
        + [_paquet_debian(presents[nom], systeme, extraites) for nom in autres],
        "files": [
            {
                "SPDXID": _identifiant("File", nom[2:]),
                "fileName": nom,
                "checksums": [_somme("SHA1", contenu), _somme("SHA256", contenu)],
                "licenseConcluded": RIEN,
                "licenseInfoInFiles": [RIEN],
                "copyrightText": RIEN,
            }
            for nom, contenu in octets.items()
        ],
        "relationships": [
            {"spdxElementId": de, "relationshipType": genre, "relatedSpdxElement": a} | ({"comment": mot} if mot else {})
            for de, genre, a, mot in relations
        ],
        "hasExtractedLicensingInfos": [
            {"licenseId": reference, "name": nom, "extractedText": texte}
            for reference, (nom, texte) in sorted(extraites.items())
        ],
    }
    empreinte = hashlib.sha256(json.dumps(resultat).encode()).hexdigest()
    resultat["documentNamespace"] = f"https://quillet.example/spdx/{paquet.name}-{empreinte}"
    return resultat


def ecrire(deb, *archives):
    noms = ("Package", "Version", "Maintainer", "Depends")
    controle = {nom: lire("dpkg-deb", "-f", str(deb), nom).strip() for nom in noms}
    dits = dict(re.findall(r'^(ID|VERSION_ID)="?([^"\n]*)"?$', Path("/etc/os-release").read_text(), re.MULTILINE))
    systeme = "-".join(filter(None, (dits["ID"], dits.get("VERSION_ID"))))
    presents = installes()
    for paquet in (deb, *archives):
        with tempfile.TemporaryDirectory() as dossier:
            defaire = ("dpkg-deb", "-x", str(paquet), dossier) if paquet == deb else ("tar", "-C", dossier, "-xf", str(paquet))
            subprocess.run(defaire, check=True)
            resultat = document(paquet, controle, Path(dossier), presents, systeme)
        texte = json.dumps(resultat, indent=1, ensure_ascii=False) + "\n"
        paquet.with_name(paquet.name + ".spdx.json").write_text(texte, encoding="utf-8")


if __name__ == "__main__":
    try:
        ecrire(*map(Path, sys.argv[1:]))
    except Refus as refus:
        sys.exit(str(refus))
    except subprocess.CalledProcessError as echec:
        sys.exit(f"{echec.cmd[0]} a échoué.")
    except OSError as erreur:
        sys.exit(str(erreur))
