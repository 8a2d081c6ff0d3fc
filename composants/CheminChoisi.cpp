#include "composants/CheminChoisi.h"

#include <QFileInfo>
#include <QMessageBox>

namespace Quillet {

std::optional<QString> CheminChoisi::avecSuffixe(const QString &chemin, const QString &suffixe, const QString &titre,
                                                 QWidget *parent)
{
    if (chemin.endsWith(suffixe, Qt::CaseInsensitive))
        return chemin;
    const QString complet = chemin + suffixe;
    const QString question =
        QStringLiteral("« %1 » existe déjà. Voulez-vous le remplacer ?").arg(QFileInfo(complet).fileName());
    if (QFileInfo::exists(complet)
        && QMessageBox::question(parent, titre, question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
               != QMessageBox::Yes)
        return std::nullopt;
    return complet;
}

} // namespace Quillet
