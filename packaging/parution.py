"""What a release says of itself: its notes, kept in the metainfo, for Debian's changelog and for the signed appcast."""

import base64
import os
import re
import sys
import xml.etree.ElementTree as ET
from datetime import datetime, timedelta, timezone
from email.utils import format_datetime
from pathlib import Path
from textwrap import fill
from typing import NamedTuple

SPARKLE = "http://www.andymatuschak.org/xml-namespaces/sparkle"
QUILLET = "https://quillet.example/flux"
ETABLI, EXPIRE = f"{{{QUILLET}}}etabli", f"{{{QUILLET}}}expire"
# An old feed that someone goes on showing is found out after that time.
VALIDITE = timedelta(days=180)
SIGNE = re.compile(rb"(.*)<!-- signature: ([A-Za-z0-9+/]{86}==) -->\n", re.DOTALL)
LANGUE = "{http://www.w3.org/XML/1998/namespace}lang"

ET.register_namespace("sparkle", SPARKLE)
ET.register_namespace("quillet", QUILLET)


class Refus(Exception):
    """Why a release cannot be made, in French."""


class Paquet(NamedTuple):
    """What the appcast says of one package: the system it is for, as "debian13", its SHA-256 in hexadecimal."""

    systeme: str
    url: str
    longueur: int
    empreinte: str


def _paragraphes(parution, langue):
    """The (tag, text) of each paragraph and list item in that language; None stands for the untranslated text."""
    return [
        (element.tag, " ".join("".join(element.itertext()).split()))
        for element in parution.iterfind("description//*")
        if element.tag in ("p", "li") and element.get(LANGUE) == langue
    ]


def notes(metainfo, version, langue="fr"):
    """The notes of a version as plain text."""
    for parution in ET.parse(metainfo).iterfind("releases/release"):
        if parution.get("version") == version:
            lignes = [("• " if marque == "li" else "") + texte for marque, texte in _paragraphes(parution, langue)]
            if any(lignes):
                return "\n".join(lignes)
    raise Refus(f"La version {version} n’a pas de notes ({langue}) dans {metainfo}.")


def journal(metainfo, contact, revision):
    """Debian's changelog, the newest version first as in the metainfo."""
    entrees = []
    for parution in ET.parse(metainfo).iterfind("releases/release"):
        points = [
            fill(texte, 78, initial_indent="  * ", subsequent_indent="    ")
            for _, texte in _paragraphes(parution, None)
        ]
        jour = datetime.fromisoformat(parution.get("date")).replace(tzinfo=timezone.utc)
        entrees.append(
            f"quillet ({parution.get('version')}-{revision}) unstable; urgency=medium\n\n"
            + "\n".join(points)
            + f"\n\n -- {contact}  {format_datetime(jour)}\n"
        )
    return "\n".join(entrees)


def _racine(appcast, cle):
    """Of a feed that this key signed: what someone else put there must not be signed with the rest."""
    if not os.path.exists(appcast):
        raise Refus(f"{appcast} n’existe pas.")
    lu = SIGNE.fullmatch(Path(appcast).read_bytes())
    if not lu or not cle.a_signe(lu[1], base64.b64decode(lu[2])):
        raise Refus(f"{appcast} n’est pas signé par cette clé. Retrouvez-le tel quel, ou commencez un fichier neuf.")
    return ET.fromstring(lu[1])


def _datable(appcast, jour, cle):
    """The same, when that day comes after its own: the program would not believe it otherwise."""
    racine = _racine(appcast, cle)
    dernier = racine.get(ETABLI)
    if dernier and jour.replace(microsecond=0) <= datetime.fromisoformat(dernier):
        raise Refus(f"{appcast} porte déjà la date {dernier} : mettez l’ordinateur à l’heure.")
    return racine


def _ouvrir(appcast, jour, cle):
    """The same, or a new one when there is no file."""
    if os.path.exists(appcast):
        return _datable(appcast, jour, cle)
    racine = ET.Element("rss", {"version": "2.0"})
    canal = ET.SubElement(racine, "channel")
    ET.SubElement(canal, "title").text = "Quillet"
    ET.SubElement(canal, "description").text = "Les mises à jour de Quillet"
    ET.SubElement(canal, "language").text = "fr"
    return racine


def _ecrire(appcast, racine, jour, cle):
    """Dates and signs the feed; an incomplete file is never seen."""
    for attribut, instant in ((ETABLI, jour), (EXPIRE, jour + VALIDITE)):
        racine.set(attribut, instant.astimezone(timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ"))
    ET.indent(racine)
    octets = ET.tostring(racine, encoding="utf-8", xml_declaration=True) + b"\n"
    provisoire = Path(f"{appcast}.nouveau")
    provisoire.write_bytes(octets + b"<!-- signature: %b -->\n" % base64.b64encode(cle.signer(octets)))
    _racine(provisoire, cle)
    os.replace(provisoire, appcast)


def _nombres(version):
    """In the program's own order, where "1.2" is "1.2.0"."""
    try:
        return tuple(int(nombre) for nombre in f"{version}.0.0.0".split(".")[:4])
    except ValueError as erreur:
        raise Refus(f"La version {version} n’est pas faite de nombres.") from erreur


def ouvrir(appcast, version, jour, cle):
    """The root that a version goes to. One that does not come after all those in it would be offered to nobody."""
    racine = _ouvrir(appcast, jour, cle)
    for element in racine.iterfind(f"channel/item/{{{SPARKLE}}}version"):
        if _nombres(element.text) >= _nombres(version):
            raise Refus(f"La version {version} ne vient pas après {element.text}, qui est dans {appcast}.")
    return racine


def prolonger(appcast, jour, cle):
    """Signs the appcast as it is."""
    _ecrire(appcast, _datable(appcast, jour, cle), jour, cle)


def inscrire(appcast, version, notes_de_version, paquets, jour, cle):
    """Puts a version at the head of the appcast, which is made if there is none."""
    racine = ouvrir(appcast, version, jour, cle)
    canal = racine.find("channel")
    entree = ET.Element("item")
    ET.SubElement(entree, "title").text = f"Quillet {version}"
    ET.SubElement(entree, "pubDate").text = format_datetime(jour)
    ET.SubElement(entree, f"{{{SPARKLE}}}version").text = version
    ET.SubElement(entree, f"{{{SPARKLE}}}shortVersionString").text = version
    ET.SubElement(entree, "description").text = notes_de_version
    for paquet in paquets:
        ET.SubElement(
            entree,
            "enclosure",
            {
                "url": paquet.url,
                "length": str(paquet.longueur),
                "type": "application/vnd.debian.binary-package",
                f"{{{SPARKLE}}}os": paquet.systeme,
                f"{{{QUILLET}}}sha256": paquet.empreinte,
            },
        )
    rang = next((i for i, element in enumerate(canal) if element.tag == "item"), len(canal))
    canal.insert(rang, entree)
    _ecrire(appcast, racine, jour, cle)


if __name__ == "__main__":
    sys.stdout.reconfigure(encoding="utf-8")
    sys.stdout.write(journal(*sys.argv[1:]))
