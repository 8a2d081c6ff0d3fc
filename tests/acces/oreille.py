"""What Orca says, as it says it, and what is wrong with it."""

import re
import time
from pathlib import Path

from arbre import ancetres, lisible, nom

SILENCE = 0.3  # seconds without a line from Orca after which it has said all it had to say
PATIENCE = 30  # seconds for that
DIT = re.compile(r"^[\d:.]+ - SPEECH OUTPUT: '(.*?)' ?(?:voice=\w+ ?)?(?:\{[^\n]*\}|None)?$", re.MULTILINE | re.DOTALL)
# An amount, or a rate, without its unit; a field that is entered has its text said, and its unit with its name.
COUPE = re.compile(r"\d *, *\d\d\b(?! *(?:euro|pour ?cent)|\s+sélectionné)")


class Oreille:
    """Listens to Orca through what it notes of itself, and writes the transcript."""

    def __init__(self, transcription):
        self._journal = Path(f"{transcription}.journal")
        self._transcription = Path(transcription)
        self._transcription.parent.mkdir(parents=True, exist_ok=True)
        self._transcription.write_text("", encoding="utf-8")
        self._lu = 0
        self.derniers = []

    def ecouter(self, quoi, attendus=()):
        """What is said until all that is expected was, and then until silence; noted in the transcript."""
        limite = time.monotonic() + PATIENCE
        octets, depuis = b"", time.monotonic()
        while True:
            actuels = self._journal.read_bytes().replace(b"\r", b"") if self._journal.exists() else b""
            if len(actuels) != len(octets):
                octets, depuis = actuels, time.monotonic()
            dits = [lisible(dit).strip() for dit in DIT.findall(octets[self._lu:].decode("utf-8", "replace"))]
            tout = " ".join(dits)
            if time.monotonic() - depuis > SILENCE and all(attendu in tout for attendu in attendus):
                break
            if time.monotonic() > limite:
                break  # what was not said is for the caller to see
            time.sleep(0.05)
        self._lu = len(octets)
        self.derniers = dits
        with self._transcription.open("a", encoding="utf-8") as fichier:
            fichier.write(f"[{quoi}]\n" + "".join(f"    {dit}\n" for dit in self.derniers))
        return self.derniers


def sans_point(dit):
    return dit.strip(" .").lower()


def roles_sans_nom(noeud):
    """What Orca would say of what stands around the focus, and has nothing to be called by."""
    return {parent.get_localized_role_name().lower() for parent in [noeud, *ancetres(noeud)] if not nom(parent)}


def fautes(dits, noeud):
    """What is wrong with what was said on the way to a control, in words."""
    for avant, dit in zip([""] + dits, dits):
        court, long = sorted((sans_point(avant), sans_point(dit)), key=len)
        if court and (court == long or len(court) > 3 and long.startswith(court + " ")):  # a role may follow
            yield f"dit deux fois : « {avant} » puis « {dit} »"
        parts = [part for part in re.split(r"[.,:] |\n", sans_point(dit)) if len(part) > 3]
        for premier, second in zip(parts, parts[1:]):
            if premier == second:
                yield f"« {premier} » redit dans « {dit} »"
        if re.search(r"\d$", avant) and re.match(r"[,€]", dit) or re.match(r"€", dit):
            yield f"montant coupé : « {avant} » puis « {dit} »"
        if noeud is not None and sans_point(dit) in roles_sans_nom(noeud):
            yield f"sans nom : « {dit} »"


def fautes_de_la_voix(transcription):
    """What is wrong with what the voice was given, once the symbols were put into words."""
    # speech-dispatcher 0.12 garbles the letters that are spelled.
    dits = Path(f"{transcription}.voix").read_text(encoding="utf-8", errors="replace")
    for ligne in dict.fromkeys(re.split(r"\n(?!sélectionné)", dits)):
        if COUPE.search(ligne) or "insécable" in ligne or re.search(r"(tiret|-) *\d+ *, *\d\d", ligne):
            yield f"montant mal dit : « {ligne} »"
