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
    // As a press does; `dit` is what is spoken of it.
    void copier(const QString &dit);

signals:
    void copie();

private:
    void montrerEtat();

    QString valeur_;
    QTimer retour_; // runs while the check mark shows
};

} // namespace Quillet
