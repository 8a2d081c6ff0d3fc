#pragma once

#include <QTimer>
#include <QToolButton>

namespace Quillet {

// Puts a value on the clipboard, and shows a check mark for a moment to say so.
class BoutonCopier : public QToolButton
{
    Q_OBJECT

public:
    explicit BoutonCopier(QWidget *parent = nullptr);
    // Another value is not copied yet.
    void setValeur(const QString &valeur);

private:
    void copier();
    void montrerEtat();

    QString valeur_;
    QTimer retour_; // runs while the check mark shows
};

} // namespace Quillet
