#pragma once

#include "echanges/LectureDeCouverture.h"
#include "model/Livre.h"

#include <QWidget>

class QMimeData;
class QPushButton;

namespace Quillet {

class Alerte;
class ImagesCouvertures;
class Libelle;

// A book's cover, and the ways to give it another: a picture dropped here, pasted, or chosen. It only proposes: whoever
// holds the book keeps the picture, then shows the book anew.
class ChampCouverture : public QWidget
{
    Q_OBJECT

public:
    // `programme` reads the pictures (LectureDeCouverture).
    explicit ChampCouverture(ImagesCouvertures &images,
                             const QString &programme = QCoreApplication::applicationFilePath(),
                             QWidget *parent = nullptr);

    // What was chosen stays in sight until another cover, or another book, is shown.
    void montrer(const Livre &livre);
    // Whether a picture is still being read, that `choisie` may yet bring.
    [[nodiscard]] bool enLecture() const { return lecture_.enCours(); }
    // Says that it is to be waited for.
    void faireAttendre();

signals:
    void choisie(const CouverturePrete &couverture);
    void retiree();

protected:
    void dragEnterEvent(QDragEnterEvent *evenement) override;
    void dragLeaveEvent(QDragLeaveEvent *evenement) override;
    void dropEvent(QDropEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    void choisirUnFichier();
    void coller();
    void prendre(const QMimeData &donnees);
    void recevoir(const CouverturePrete &couverture);
    void refuser(const QString &raison);
    void retirer();
    void actualiser();

    Livre livre_;
    LectureDeCouverture lecture_;
    class Vignette;
    Vignette *vignette_;
    QPushButton *choisir_;
    QPushButton *coller_;
    QPushButton *retirer_;
    Libelle *note_;
    Alerte *refus_;
    QString dossier_; // of the last file chosen
};

} // namespace Quillet
