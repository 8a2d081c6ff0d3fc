"""An activation token, asked of the compositor the way launchers do, in the few messages of the protocol that it takes."""

import socket
import struct

REGISTRE, ACTIVATION, JETON = 2, 3, 4  # what we call the objects; the display is 1


def texte(valeur):
    octets = valeur.encode() + b"\0"
    return struct.pack("=I", len(octets)) + octets.ljust(-len(octets) % 4 + len(octets), b"\0")


def lire_texte(corps):
    (taille,) = struct.unpack_from("=I", corps)
    return corps[4:4 + taille - 1].decode()


def envoyer(prise, objet, requete, corps=b""):
    prise.sendall(struct.pack("=IHH", objet, requete, 8 + len(corps)) + corps)


def recevoir(prise, objet):
    """The next event of an object, as its bytes."""
    while True:
        emetteur, _, taille = struct.unpack("=IHH", prise.recv(8, socket.MSG_WAITALL))
        corps = prise.recv(taille - 8, socket.MSG_WAITALL) if taille > 8 else b""
        if emetteur == objet:
            return corps


def demander(compositeur):
    with socket.socket(socket.AF_UNIX) as prise:
        prise.settimeout(10)
        prise.connect(compositeur)
        envoyer(prise, 1, 1, struct.pack("=I", REGISTRE))
        while lire_texte((annonce := recevoir(prise, REGISTRE))[4:]) != "xdg_activation_v1":
            pass
        envoyer(prise, REGISTRE, 0, annonce[:4] + texte("xdg_activation_v1") + struct.pack("=II", 1, ACTIVATION))
        envoyer(prise, ACTIVATION, 1, struct.pack("=I", JETON))
        envoyer(prise, JETON, 3)
        return lire_texte(recevoir(prise, JETON))
