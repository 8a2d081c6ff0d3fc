"""What a release says of itself: its notes, kept in the metainfo; Debian's changelog is made of them."""

import sys
import xml.etree.ElementTree as ET
from datetime import datetime, timezone
from email.utils import format_datetime
from textwrap import fill

LANGUE = "{http://www.w3.org/XML/1998/namespace}lang"


class Refus(Exception):
    """Why a release cannot be made, in French."""


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


def journal(metainfo, contact):
    """Debian's changelog, the newest version first as in the metainfo."""
    entrees = []
    for parution in ET.parse(metainfo).iterfind("releases/release"):
        points = [
            fill(texte, 78, initial_indent="  * ", subsequent_indent="    ")
            for _, texte in _paragraphes(parution, None)
        ]
        jour = datetime.fromisoformat(parution.get("date")).replace(tzinfo=timezone.utc)
        entrees.append(
            f"quillet ({parution.get('version')}) unstable; urgency=medium\n\n"
            + "\n".join(points)
            + f"\n\n -- {contact}  {format_datetime(jour)}\n"
        )
    return "\n".join(entrees)


if __name__ == "__main__":
    sys.stdout.reconfigure(encoding="utf-8")
    sys.stdout.write(journal(*sys.argv[1:]))
