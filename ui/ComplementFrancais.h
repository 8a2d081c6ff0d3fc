#pragma once

#include <QTranslator>

namespace Quillet {

// What Qt's own French leaves in English, in its printing dialog.
class ComplementFrancais : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *contexte, const char *texte, const char *precision,
                                    int nombre) const override;
};

} // namespace Quillet
