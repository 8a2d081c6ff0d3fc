#include "model/controle/ClesDoublees.h"

#include <QSet>

namespace Quillet {

namespace {

// Where the text ends that begins after a quote.
qsizetype finDuTexte(const QByteArray &json, qsizetype place)
{
    while (place < json.size() && json[place] != '"')
        place += json[place] == '\\' ? 2 : 1;
    return qMin(place, json.size());
}

bool estUneCle(const QByteArray &json, qsizetype apres)
{
    while (apres < json.size() && QByteArrayView(" \t\r\n").contains(json[apres]))
        ++apres;
    return apres < json.size() && json[apres] == ':';
}

} // namespace

QList<ClesDoublees::Cle> ClesDoublees::dans(const QByteArray &json)
{
    QList<Cle> doublees;
    QList<QSet<QByteArray>> ouverts; // the keys of each object that has not ended
    qsizetype ligne = 1;
    for (qsizetype place = 0; place < json.size(); ++place) {
        const char signe = json[place];
        if (signe == '\n') {
            ++ligne;
        } else if (signe == '{') {
            ouverts.append(QSet<QByteArray>());
        } else if (signe == '}' && !ouverts.isEmpty()) {
            ouverts.removeLast();
        } else if (signe == '"') {
            const qsizetype fin = finDuTexte(json, place + 1);
            const QByteArray texte = json.sliced(place + 1, fin - place - 1);
            place = fin;
            if (ouverts.isEmpty() || !estUneCle(json, fin + 1))
                continue;
            if (ouverts.last().contains(texte))
                doublees.append({ligne, QString::fromUtf8(texte)});
            ouverts.last().insert(texte);
        }
    }
    return doublees;
}

} // namespace Quillet
