#pragma once

#include "textes/TextesVerifications.h"

#include <QWidget>

class QProgressBar;
class QPushButton;

namespace Quillet {

class Libelle;

// One check of the tariff watch: where it stands, and what can be done about it.
class LigneVerification : public QWidget
{
    Q_OBJECT

public:
    // `nom` tells its buttons from the other check's, for who hears them.
    explicit LigneVerification(const QString &nom, QWidget *parent = nullptr);
    void montrer(const TextesVerifications::Ligne &ligne);

signals:
    void verificationDemandee();
    void changementsDemandes();

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    void placerLesEtats();
    void peindreLEtat(QPainter &peintre, const Libelle *libelle, const TextesVerifications::Ligne::Etat &etat) const;

    TextesVerifications::Ligne ligne_;
    Libelle *titre_;
    Libelle *detail_;
    Libelle *etat_;
    Libelle *rappel_;
    QProgressBar *progres_;
    QPushButton *changements_;
    QPushButton *page_;
    QPushButton *verifier_;
};

} // namespace Quillet
