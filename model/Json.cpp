#include "model/Json.h"

#include "model/AdresseWeb.h"

#include <QJsonDocument>
#include <QJsonParseError>

namespace Quillet {

namespace {

QString raison(QJsonParseError::ParseError erreur)
{
    switch (erreur) {
    case QJsonParseError::UnterminatedObject:
        return QStringLiteral("virgule, guillemet ou accolade manquante");
    case QJsonParseError::MissingNameSeparator:
        return QStringLiteral("deux-points manquant");
    case QJsonParseError::UnterminatedArray:
    case QJsonParseError::MissingValueSeparator:
        return QStringLiteral("virgule ou crochet manquant");
    case QJsonParseError::UnterminatedString:
        return QStringLiteral("guillemet fermant manquant");
    case QJsonParseError::MissingObject:
        return QStringLiteral("virgule en trop");
    case QJsonParseError::IllegalUTF8String:
        return QStringLiteral("texte qui n’est pas en UTF-8");
    case QJsonParseError::GarbageAtEnd:
        return QStringLiteral("texte en trop après la fin");
    default:
        return QStringLiteral("valeur illisible ou absente");
    }
}

QString placeEtRaison(const QByteArray &octets, const QJsonParseError &erreur)
{
    const QByteArray lus = octets.left(erreur.offset);
    const qsizetype colonne = QString::fromUtf8(lus.mid(lus.lastIndexOf('\n') + 1)).size();
    return QStringLiteral("ligne %1, colonne %2 : %3")
        .arg(QString::number(lus.count('\n') + 1), QString::number(qMax<qsizetype>(1, colonne)), raison(erreur.error));
}

} // namespace

namespace Json {

void lire(const QJsonValue &json, const Lieu &lieu, qint64 &valeur)
{
    lieu.exiger(json.isDouble(), json, QStringLiteral("entier attendu"));
    // toInteger gives its argument back for a number that no 64-bit integer holds exactly.
    valeur = json.toInteger(0);
    lieu.exiger(valeur == json.toInteger(1), json, QStringLiteral("entier attendu"));
}

void lire(const QJsonValue &json, const Lieu &lieu, bool &valeur)
{
    lieu.exiger(json.isBool(), json, QStringLiteral("true ou false attendu"));
    valeur = json.toBool();
}

void lire(const QJsonValue &json, const Lieu &lieu, QString &valeur)
{
    lieu.exiger(json.isString(), json, QStringLiteral("texte attendu"));
    valeur = json.toString();
}

void lire(const QJsonValue &json, const Lieu &lieu, Jour &valeur)
{
    QString texte;
    lire(json, lieu, texte);
    valeur = Jour(texte);
}

void lire(const QJsonValue &json, const Lieu &lieu, QUrl &valeur)
{
    QString texte;
    lire(json, lieu, texte);
    const auto adresse = adresseWeb(texte);
    if (!adresse)
        lieu.refuser(QStringLiteral("adresse web complète attendue"));
    valeur = *adresse;
}

QJsonValue analyser(const QByteArray &octets, const Lieu &fichier)
{
    QJsonParseError erreur;
    const QJsonDocument document = QJsonDocument::fromJson(octets, &erreur);
    if (document.isNull())
        fichier.refuser(QStringLiteral("JSON illisible, ") + placeEtRaison(octets, erreur));
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

QByteArray rediger(const QJsonValue &json)
{
    const QJsonDocument document = json.isArray() ? QJsonDocument(json.toArray()) : QJsonDocument(json.toObject());
    return document.toJson(QJsonDocument::Indented);
}

} // namespace Json

} // namespace Quillet
