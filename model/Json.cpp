#include "model/Json.h"

#include <QJsonDocument>
#include <QJsonParseError>

namespace Json {

QString Lieu::chemin() const
{
    if (!parent_)
        return nom_;
    return indice_ >= 0 ? QStringLiteral("%1[%2]").arg(parent_->chemin(), QString::number(indice_))
                        : QStringLiteral("%1.%2").arg(parent_->chemin(), nom_);
}

void Lieu::refuser(const QString &raison) const
{
    throw Erreur(QStringLiteral("%1 : %2").arg(chemin(), raison));
}

void Lieu::exiger(bool bonne, const QJsonValue &json, const QString &attendu) const
{
    if (json.isUndefined())
        refuser(QStringLiteral("valeur manquante"));
    if (!bonne)
        refuser(attendu);
}

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

void lire(const QJsonValue &json, const Lieu &lieu, QUrl &valeur)
{
    QString texte;
    lire(json, lieu, texte);
    valeur = QUrl(texte);
    if (!valeur.isValid() || valeur.scheme().isEmpty() || valeur.host().isEmpty())
        lieu.refuser(QStringLiteral("adresse web complète attendue"));
}

QJsonValue analyser(const QByteArray &octets, const QString &nom)
{
    QJsonParseError erreur;
    const QJsonDocument document = QJsonDocument::fromJson(octets, &erreur);
    if (document.isNull()) {
        const auto ligne = octets.left(erreur.offset).count('\n') + 1;
        Lieu(nom).refuser(QStringLiteral("JSON illisible, ligne %1").arg(ligne));
    }
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

QByteArray rediger(const QJsonValue &json)
{
    const QJsonDocument document = json.isArray() ? QJsonDocument(json.toArray()) : QJsonDocument(json.toObject());
    return document.toJson(QJsonDocument::Indented);
}

} // namespace Json
