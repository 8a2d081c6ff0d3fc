#include "model/controle/ClesDoublees.h"

#include <QJsonArray>
#include <QJsonDocument>
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

// "\u0061" and "a" are one key.
QString enClair(const QByteArray &texte)
{
    return QJsonDocument::fromJson("[\"" + texte + "\"]").array().first().toString();
}

} // namespace

QList<ClesDoublees::Cle> ClesDoublees::dans(const QByteArray &json)
{
    QList<Cle> doublees;
    QList<QSet<QString>> ouverts; // the keys of each object that has not ended
    qsizetype ligne = 1;
    for (qsizetype place = 0; place < json.size(); ++place) {
        const char signe = json[place];
        if (signe == '\n') {
            ++ligne;
        } else if (signe == '{') {
            ouverts.append(QSet<QString>());
        } else if (signe == '}' && !ouverts.isEmpty()) {
            ouverts.removeLast();
        } else if (signe == '"') {
            const qsizetype fin = finDuTexte(json, place + 1);
            const QByteArray texte = json.sliced(place + 1, fin - place - 1);
            place = fin;
            if (ouverts.isEmpty() || !estUneCle(json, fin + 1))
                continue;
            const QString cle = enClair(texte);
            if (ouverts.last().contains(cle))
                doublees.append({ligne, cle});
            ouverts.last().insert(cle);
        }
    }
    return doublees;
}

} // namespace Quillet
