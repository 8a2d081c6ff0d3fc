"""What a release says of itself: its notes, kept in the metainfo, for Debian's changelog and for the appcast."""

import os
import sys
import xml.etree.ElementTree as ET
from datetime import datetime, timezone
from email.utils import format_datetime
from textwrap import fill
from typing import NamedTuple

SPARKLE = "http://www.andymatuschak.org/xml-namespaces/sparkle"
LANGUE = "{http://www.w3.org/XML/1998/namespace}lang"

ET.register_namespace("sparkle", SPARKLE)


class Refus(Exception):
    """Why a release cannot be made, in French."""


class Paquet(NamedTuple):
    """What the appcast says of one package: the system it is for, as "debian13", the signature in base64."""

    systeme: str
    url: str
    longueur: int
    signature: str


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


def _canal(appcast):
    try:
        canal = ET.parse(appcast).getroot().find("channel")
    except ET.ParseError as erreur:
        raise Refus(f"{appcast} est illisible : {erreur}") from erreur
    if canal is None:
        raise Refus(f"{appcast} n’est pas un appcast.")
    return canal


def _nombres(version):
    """In the program's own order, where "1.2" is "1.2.0"."""
    try:
        return tuple(int(nombre) for nombre in f"{version}.0.0.0".split(".")[:4])
    except ValueError as erreur:
        raise Refus(f"La version {version} n’est pas faite de nombres.") from erreur


def refuser_si_depassee(appcast, version):
    """A version that does not come after all those of the appcast would be offered to nobody."""
    if not os.path.exists(appcast):
        return
    for element in _canal(appcast).iterfind(f"item/{{{SPARKLE}}}version"):
        if _nombres(element.text) >= _nombres(version):
            raise Refus(f"La version {version} ne vient pas après {element.text}, qui est dans {appcast}.")


def inscrire(appcast, version, notes_de_version, paquets, jour):
    """Puts a version at the head of the appcast, which is made if there is none; an incomplete file is never seen."""
    refuser_si_depassee(appcast, version)
    if os.path.exists(appcast):
        canal = _canal(appcast)
    else:
        canal = ET.Element("channel")
        ET.SubElement(canal, "title").text = "Quillet"
        ET.SubElement(canal, "description").text = "Les mises à jour de Quillet"
        ET.SubElement(canal, "language").text = "fr"
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
                f"{{{SPARKLE}}}edSignature": paquet.signature,
            },
        )
    rang = next((i for i, element in enumerate(canal) if element.tag == "item"), len(canal))
    canal.insert(rang, entree)
    racine = ET.Element("rss", {"version": "2.0"})
    racine.append(canal)
    ET.indent(racine)
    provisoire = f"{appcast}.nouveau"
    ET.ElementTree(racine).write(provisoire, encoding="utf-8", xml_declaration=True)
    os.replace(provisoire, appcast)


if __name__ == "__main__":
    sys.stdout.reconfigure(encoding="utf-8")
    sys.stdout.write(journal(*sys.argv[1:]))
