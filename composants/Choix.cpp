#include "composants/Choix.h"

#include "composants/LecteurDEcran.h"
#include "composants/SelectionDuLecteur.h"

#include <QAbstractItemView>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

namespace Quillet {

Choix::Choix(QWidget *parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus); // the wheel must not take the focus either
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(10);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QComboBox::currentTextChanged, this, &Choix::direEnEntier);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    // Until then readers are given no selection to ask for.
    connect(this, &QComboBox::currentTextChanged, this, [this](const QString &texte) {
        setAccessibleDescription(texte);
        if (hasFocus())
            LecteurDEcran::annoncer(this, texte);
    });
#endif
    connect(this, &QComboBox::activated, this, [this] { emit choisi(currentData().toString()); });
}

void Choix::direEnEntier()
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const int place = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).width();
    setToolTip(fontMetrics().horizontalAdvance(currentText()) > place ? currentText() : QString());
}

void Choix::resizeEvent(QResizeEvent *evenement)
{
    QComboBox::resizeEvent(evenement);
    direEnEntier();
}

void Choix::wheelEvent(QWheelEvent *evenement)
{
    evenement->ignore();
}

void Choix::showPopup()
{
    QComboBox::showPopup();
    if (lecteur_)
        return;
    lecteur_ = new SelectionDuLecteur(view()->selectionModel(), this);
    connect(lecteur_, &SelectionDuLecteur::prise, this, &Choix::prendre);
}

void Choix::prendre(const QModelIndex &ligne)
{
    view()->setCurrentIndex(ligne);
    setCurrentIndex(ligne.row());
    hidePopup();
    emit activated(ligne.row());
}

} // namespace Quillet
