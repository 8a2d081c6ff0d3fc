"""The Ed25519 key that signs a release. It stays with openssl, which is told its phrase."""

import base64
import subprocess
import tempfile
from pathlib import Path

from parution import Refus

# What stands before the 32 bytes of an Ed25519 public key in its DER form.
ENTETE = bytes.fromhex("302a300506032b6570032100")


class Cle:
    def __init__(self, fichier, phrase=""):
        """The phrase is empty when the key stands in clear."""
        self._fichier = str(fichier)
        self._phrase = phrase.encode() + b"\n"
        der = self._openssl("pkey", "-in", self._fichier, "-pubout", "-outform", "DER").stdout
        if not der.startswith(ENTETE) or len(der) != len(ENTETE) + 32:
            raise Refus(f"{fichier} n’est pas une clé Ed25519.")
        self.publique = base64.b64encode(der[-32:]).decode()

    def signer(self, octets):
        """The 64 bytes of the signature, once checked."""
        with tempfile.TemporaryDirectory() as dossier:
            contenu = Path(dossier, "contenu")
            contenu.write_bytes(octets)
            signature = self._pkeyutl(contenu, "-sign").stdout
        if not self.a_signe(octets, signature):
            raise Refus("openssl a mal signé.")
        return signature

    def a_signe(self, octets, signature):
        with tempfile.TemporaryDirectory() as dossier:
            contenu, signe = Path(dossier, "contenu"), Path(dossier, "signature")
            contenu.write_bytes(octets)
            signe.write_bytes(signature)
            return self._pkeyutl(contenu, "-verify", "-sigfile", str(signe), check=False).returncode == 0

    def _pkeyutl(self, contenu, *action, check=True):
        options = ("-rawin", "-inkey", self._fichier, "-in", str(contenu))
        return self._openssl("pkeyutl", *options, *action, check=check)

    def _openssl(self, *commande, check=True):
        return subprocess.run(("openssl", *commande, "-passin", "stdin"), check=check, stdout=subprocess.PIPE,
                              input=self._phrase)
