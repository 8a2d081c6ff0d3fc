#pragma once

#include <QWidget>

namespace Quillet {

class LibelleASymbole;

// A line set off by a symbol: orange for a warning, quiet for a note.
class Alerte : public QWidget
{
    Q_OBJECT

public:
    enum class Ton { avertissement, note };

    // A warning with its own symbol, a triangle.
    explicit Alerte(const QString &texte = {}, QWidget *parent = nullptr);
    Alerte(const QString &symbole, const QString &texte, Ton ton, QWidget *parent = nullptr);
    // No text hides the line.
    void montrer(const QString &texte);

private:
    void dire(const QString &texte);

    Ton ton_;
    LibelleASymbole *texte_;
};

} // namespace Quillet
