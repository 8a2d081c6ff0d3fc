#pragma once

#include <QColor>
#include <QList>
#include <QString>

class QWidget;

// Whether a window can be read: looked for in what it paints.
namespace Quillet::Lisibilite {

constexpr double contrasteMinimal = 4.5; // of WCAG's level AA, for text
constexpr double contrasteRenforce = 7;  // of its level AAA

struct Contraste
{
    QString texte;
    QString widget; // its class, and the name it is found by
    QColor encre;   // as they are on the picture
    QColor fond;
    double rapport; // 1 to 21
};

double rapport(const QColor &a, const QColor &b);

// Of every text in sight that is not disabled and no placeholder, the lowest first.
QList<Contraste> contrastes(QWidget *fenetre);

// A sentence for each text that is cut or covers another, each control that no scrolling brings into sight.
QStringList coupes(QWidget *fenetre);

} // namespace Quillet::Lisibilite
