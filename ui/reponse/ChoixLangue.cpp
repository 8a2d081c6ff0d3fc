#include "ui/reponse/ChoixLangue.h"

#include "model/Enumeration.h"

#include <QApplication>

namespace Quillet {

namespace {

QStringList noms()
{
    QStringList noms;
    for (const Langue langue : tous<Langue>) {
        const QString nom = traits(langue).nom.toString();
        noms.append(nom.first(1).toUpper() + nom.sliced(1));
    }
    return noms;
}

} // namespace

ChoixLangue::ChoixLangue(QWidget *parent) : ChoixSegmente(noms(), {.police = QApplication::font()}, parent)
{
    connect(this, &ChoixSegmente::choisi, this,
            [this](int indice) { emit choisie(tous<Langue>[static_cast<std::size_t>(indice)]); });
}

void ChoixLangue::montrer(Langue langue)
{
    ChoixSegmente::montrer(static_cast<int>(langue));
}

} // namespace Quillet
