#include "echanges/ControleSvg.h"

#include "model/Echec.h"

#include <QXmlStreamReader>

namespace Quillet {

namespace {

constexpr qsizetype nomMontre = 60;

void verifierReference(QStringView reference)
{
    const QStringView voulue = reference.trimmed();
    if (voulue.isEmpty() || voulue.startsWith(u'#') || voulue.startsWith(u"data:"))
        return;
    const QString nom = voulue.size() > nomMontre ? voulue.first(nomMontre).toString() + u'…' : voulue.toString();
    throw Echec(QStringLiteral("Le dessin SVG se sert d’un autre fichier, « %1 », qui ne viendrait pas avec lui. "
                               "Enregistrez-le avec ses images incorporées, ou en PNG.")
                    .arg(nom));
}

} // namespace

void ControleSvg::verifier(const QByteArray &octets)
{
    QXmlStreamReader lecteur(octets);
    while (!lecteur.atEnd())
        if (lecteur.readNext() == QXmlStreamReader::StartElement && lecteur.name() != u"a")
            for (const QXmlStreamAttribute &attribut : lecteur.attributes())
                if (attribut.name() == u"href")
                    verifierReference(attribut.value());
    if (lecteur.hasError())
        throw Echec(QStringLiteral("Le dessin SVG est abîmé ou coupé (ligne %1). Enregistrez-le de nouveau, ou "
                                   "choisissez une autre image.")
                        .arg(lecteur.lineNumber()));
}

} // namespace Quillet
