#include "model/LieuJson.h"

#include <algorithm>

namespace Quillet::Json {

void Constats::noter(const QString &lieu, const QString &raison)
{
    if (couvre(lieu))
        return;
    notes_.append({lieu, raison});
    textes_.append(QStringLiteral("%1 : %2").arg(lieu, raison));
}

bool Constats::couvre(const QString &lieu) const
{
    return std::ranges::any_of(notes_, [&](const Note &note) {
        const QString suite = lieu.startsWith(note.lieu) ? lieu.mid(note.lieu.size(), 1) : QStringLiteral("x");
        return suite.isEmpty() || suite == QLatin1String(".") || suite == QLatin1String("[");
    });
}

QString Lieu::chemin() const
{
    if (!parent_)
        return nom_;
    return indice_ >= 0 ? QStringLiteral("%1[%2]").arg(parent_->chemin(), QString::number(indice_))
                        : QStringLiteral("%1.%2").arg(parent_->chemin(), nom_);
}

void Lieu::refuser(const QString &raison) const
{
    if (constats_)
        constats_->noter(chemin(), raison);
    throw Erreur(QStringLiteral("%1 : %2").arg(chemin(), raison));
}

void Lieu::exiger(bool bonne, const QJsonValue &json, const QString &attendu) const
{
    if (json.isUndefined())
        refuser(QStringLiteral("valeur manquante"));
    if (!bonne)
        refuser(attendu);
}

void Lieu::noter(const QString &raison) const
{
    Q_ASSERT(constats_);
    constats_->noter(chemin(), raison);
}

void Lieu::noter(const char *cle, const QString &raison) const
{
    Lieu(*this, QString::fromLatin1(cle)).noter(raison);
}

} // namespace Quillet::Json
