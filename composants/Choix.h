#pragma once

#include <QComboBox>

namespace Quillet {

class SelectionDuLecteur;

// A pop-up choice keyed by texts. The wheel scrolls the page, it never changes the choice by accident.
class Choix : public QComboBox
{
    Q_OBJECT

public:
    explicit Choix(QWidget *parent = nullptr);

    void ajouter(const QString &texte, const QString &cle) { addItem(texte, cle); }
    // Shows nothing when no entry has the key.
    void montrer(const QString &cle) { setCurrentIndex(findData(cle)); }
    void showPopup() override;

signals:
    void choisi(const QString &cle);

protected:
    void resizeEvent(QResizeEvent *evenement) override;
    void wheelEvent(QWheelEvent *evenement) override;

private:
    void prendre(const QModelIndex &ligne);
    // What is cut is said whole under the pointer.
    void direEnEntier();

    SelectionDuLecteur *lecteur_ = nullptr; // from the first opening on
};

} // namespace Quillet
