"""The list of what a package holds, of a small one made here, and licences as Debian's copyright files say them."""

import hashlib
import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PACKAGING = Path(__file__).resolve().parents[2] / "packaging"
sys.path.insert(0, str(PACKAGING))
import inventaire  # noqa: E402
from licences import Licences  # noqa: E402
from parution import Refus  # noqa: E402

FORMAT = "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/\n\n"
JOUR = 1_700_000_000


def dpkg(*arguments):
    return subprocess.run(arguments, check=True, stdout=subprocess.PIPE, encoding="utf-8").stdout


class Inventaire(unittest.TestCase):
    def setUp(self):
        dossier = tempfile.TemporaryDirectory()
        self.addCleanup(dossier.cleanup)
        self.dossier = Path(dossier.name)

    def paquet(self, depends):
        racine = self.dossier / "racine"
        for chemin, source in (
            ("usr/bin/quillet", Path("/bin/true")),
            ("usr/share/metainfo/q.metainfo.xml", PACKAGING / "org.quillet.quillet.metainfo.xml"),
            ("usr/share/doc/quillet/copyright", PACKAGING.parent / "LICENSE"),
        ):
            (racine / chemin).parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(source, racine / chemin)
            os.utime(racine / chemin, (JOUR, JOUR))
        (racine / "usr/bin/q").symlink_to("quillet")
        (racine / "DEBIAN").mkdir()
        (racine / "DEBIAN/control").write_text(
            "Package: quillet\nVersion: 1-1\nArchitecture: all\nMaintainer: A <a@b.example>\n"
            f"Depends: {depends}\nDescription: q\n"
        )
        deb = self.dossier / "quillet.deb"
        dpkg("dpkg-deb", "--build", str(racine), str(deb))
        return deb

    def test_says_what_is_inside_what_it_links_and_what_it_needs(self):
        deb = self.paquet("absent (>= 1) | dpkg:any (>= 1.0), awk")
        inventaire.ecrire(deb)
        fichier = self.dossier / "quillet.deb.spdx.json"
        premier = fichier.read_bytes()
        inventaire.ecrire(deb)
        self.assertEqual(fichier.read_bytes(), premier)
        lu = json.loads(premier)
        paquets = {paquet["SPDXID"]: paquet for paquet in lu["packages"]}
        liens = {(r["spdxElementId"], r["relationshipType"], r["relatedSpdxElement"]) for r in lu["relationships"]}
        awk = paquets[next(a for _, genre, a in liens if genre == "DEPENDS_ON" and a.endswith("awk"))]  # given by several
        self.assertIn("awk", dpkg("dpkg-query", "-W", "-f", "${Provides}", awk["name"]))
        self.assertIn(("SPDXRef-Package-quillet", "DEPENDS_ON", "SPDXRef-Package-dpkg"), liens)
        self.assertIn(("SPDXRef-File-usr-bin-quillet", "DYNAMIC_LINK", "SPDXRef-Package-libc6"), liens)
        self.assertNotIn(("SPDXRef-Package-quillet", "DEPENDS_ON", "SPDXRef-Package-libc6"), liens)
        version = dpkg("dpkg-query", "-W", "-f", "${Version}", "libc6")
        self.assertEqual(paquets["SPDXRef-Package-libc6"]["versionInfo"], version)
        moi = paquets["SPDXRef-Package-quillet"]
        self.assertEqual((moi["licenseDeclared"], moi["copyrightText"][:9]), ("MIT", "Copyright"))
        self.assertEqual(moi["checksums"][0]["checksumValue"], hashlib.sha256(deb.read_bytes()).hexdigest())
        self.assertEqual(lu["creationInfo"]["created"], "2023-11-14T22:13:20Z")
        contenus = {f["SPDXID"]: f for f in lu["files"]}
        self.assertEqual([f["fileName"] for f in lu["files"]].count("./usr/bin/q"), 0)
        vrai = contenus["SPDXRef-File-usr-bin-quillet"]["checksums"][1]["checksumValue"]
        self.assertEqual(vrai, hashlib.sha256(Path("/bin/true").read_bytes()).hexdigest())
        self.assertEqual(
            {x for de, _, a in liens for x in (de, a)}, {"SPDXRef-DOCUMENT", *paquets, *contenus}, "all are related"
        )
        dites = {info["licenseId"] for info in lu["hasExtractedLicensingInfos"]}
        for paquet in lu["packages"]:
            self.assertLessEqual({x for x in paquet["licenseDeclared"].strip("()").split() if "Ref" in x}, dites)

    def test_refuses_what_is_not_installed(self):
        with self.assertRaisesRegex(Refus, "absent ou absent-aussi"):
            inventaire.ecrire(self.paquet("libc6, absent (>= 1) | absent-aussi"))

    def test_licences_are_those_of_files_in_words_of_spdx(self):
        for dites, attendue in (
            ("Expat", "MIT"),
            ("GPL-2+", "GPL-2.0-or-later"),
            ("LGPL-2.1", "LGPL-2.1-only"),
            ("LGPL-3 or GPL-2", "LGPL-3.0-only OR GPL-2.0-only"),
            ("GPL-2 or Expat, and Zlib", "(GPL-2.0-only OR MIT) AND Zlib"),
            ("Expat or GPL-2 and Zlib", "MIT OR GPL-2.0-only AND Zlib"),
            ("GPL-2+ with Font exception", "LicenseRef-p-GPL-2-or-later-with-Font-exception"),
        ):
            self.assertEqual(Licences("p", f"{FORMAT}Files: *\nLicense: {dites}\n").expression, attendue)
        plusieurs = (
            "Files: *\nLicense: Zlib or ISC\n\nFiles: a\nlicense: Autre\n\nFiles: b\nLicense: ISC and Zlib\n\n"
            "License: Autre\n Son\n .\n texte\n\nLicense: GPL-3\n Elsewhere\n"
        )
        licences = Licences("p", FORMAT + plusieurs)
        self.assertEqual(licences.expression, "ISC AND LicenseRef-p-Autre AND Zlib AND (Zlib OR ISC)")
        self.assertEqual(licences.extraites["LicenseRef-p-Autre"], ("Autre", "Son\n.\ntexte"))
        self.assertEqual(Licences("p", plusieurs).expression, "NOASSERTION")


if __name__ == "__main__":
    unittest.main()
