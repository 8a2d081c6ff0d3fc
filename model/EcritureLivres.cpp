#include "model/EcritureLivres.h"

#include <QByteArrayList>

#include <utility>

namespace Quillet {

namespace {

const QByteArray debut = "[\n";
const QByteArray suite = ",\n";
const QByteArray fin = "\n]\n";

// As it stands in a list.
QByteArray enListe(const Livre &livre)
{
    return Json::encoder(QList{livre}).chopped(fin.size()).sliced(debut.size());
}

} // namespace

QByteArray EcritureLivres::encoder(const QList<Livre> &livres)
{
    if (livres.isEmpty())
        return Json::encoder(livres);
    const QHash<qint64, Ecrit> avant = std::exchange(ecrits_, {});
    QByteArrayList textes;
    textes.reserve(livres.size());
    ecrits_.reserve(livres.size());
    for (const Livre &livre : livres) {
        const auto connu = avant.constFind(livre.id);
        const bool reste = connu != avant.constEnd() && connu->livre == livre;
        textes.append(reste ? connu->texte : enListe(livre));
        ecrits_.insert(livre.id, {livre, textes.last()});
    }
    textes.first().prepend(debut);
    textes.last().append(fin);
    return textes.join(suite);
}

} // namespace Quillet
