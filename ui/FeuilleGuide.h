#pragma once

#include "composants/Feuille.h"

namespace Quillet {

// The sellers' guide, to read beside the work.
class FeuilleGuide : public Feuille
{
    Q_OBJECT

public:
    // Of a Markdown file, its pictures beside it.
    FeuilleGuide(const QString &fichier, QWidget *parent);
    // What is shipped with this program, wherever it stands.
    static QString fichierLivre();
};

} // namespace Quillet
