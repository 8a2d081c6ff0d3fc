#include "ui/commun/Libelle.h"

Libelle::Libelle(const QString &texte, Rang rang, QWidget *parent) : QLabel(texte, parent)
{
    setTextFormat(Qt::PlainText);
    setRang(rang);
}

void Libelle::setRang(Rang rang)
{
    setForegroundRole(rang == Rang::principal ? QPalette::WindowText : QPalette::PlaceholderText);
}
