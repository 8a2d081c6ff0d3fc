#include "ui/couvertures/ChampCouverture.h"

#include "composants/Alerte.h"
#include "composants/Boutons.h"
#include "composants/Dessin.h"
#include "composants/LecteurDEcran.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "echanges/PreparationCouverture.h"
#include "ui/couvertures/DessinCouverture.h"
#include "ui/couvertures/ImagesCouvertures.h"

#include <QClipboard>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace Quillet {

namespace {

constexpr QSize taille(112, 168);
constexpr auto formats = std::to_array<const char *>({"image/svg+xml", "image/png", "image/jpeg", "image/webp"});

static_assert(CouverturePrete::tailleAuPlus.height()
              == CouverturePrete::tailleAuPlus.width() * DessinCouverture::proportion);

// The first that is offered; none is null.
const char *format(const QMimeData &donnees)
{
    const auto *const offert =
        std::ranges::find_if(formats, [&](const char *nom) { return donnees.hasFormat(QString::fromLatin1(nom)); });
    return offert == formats.end() ? nullptr : *offert;
}

QString conseil()
{
    return QStringLiteral(
               "Ou déposez-la ici. %1 Elle est rognée en son milieu, à deux parts de large pour trois de haut.")
        .arg(PreparationCouverture::formatsPris());
}

} // namespace

// The cover, or the picture that is to become it; lit up while a picture hovers over the field.
class ChampCouverture::Vignette : public QWidget
{
public:
    explicit Vignette(ImagesCouvertures &images) : images_(images)
    {
        livre_.teinte = {128, 128, 128}; // until there is a book
        livre_.disponible = true;
        setFixedSize(taille);
        LecteurDEcran::jouer(this, QAccessible::Graphic);
        connect(&images, &ImagesCouvertures::prete, this, qOverload<>(&QWidget::update));
    }

    void montrer(const Livre &livre)
    {
        livre_ = livre;
        choisie_ = {};
        update();
    }
    void montrer(const QImage &choisie)
    {
        choisie_ = choisie;
        update();
    }
    void survoler(bool oui)
    {
        survolee_ = oui;
        update();
    }
    [[nodiscard]] bool estVide() const { return choisie_.isNull() && livre_.couverture.isEmpty(); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        peintre.drawPixmap(0, 0, dessin(devicePixelRatioF()));
        if (survolee_)
            Dessin::anneauDeFocus(peintre, rect(), Theme::rayonCouverture, Theme::accentTexte(palette()));
    }

private:
    [[nodiscard]] QPixmap dessin(qreal densite) const
    {
        if (choisie_.isNull())
            return DessinCouverture::dessin(livre_, size(), size(), densite, images_);
        const QSize pixels = (QSizeF(size()) * densite).toSize();
        const QImage reduite = choisie_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return DessinCouverture::dessin(livre_, size(), densite, reduite);
    }

    ImagesCouvertures &images_;
    Livre livre_;
    QImage choisie_;
    bool survolee_ = false;
};

ChampCouverture::ChampCouverture(ImagesCouvertures &images, const QString &programme, QWidget *parent)
    : QWidget(parent),
      lecture_(programme),
      vignette_(new Vignette(images)),
      choisir_(Boutons::deFeuille(QStringLiteral("Choisir une image…"))),
      coller_(Boutons::deFeuille(QStringLiteral("Coller l’image"))),
      retirer_(Boutons::deFeuille(QStringLiteral("Retirer l’image"))),
      note_(Libelle::note({})),
      refus_(new Alerte)
{
    setAcceptDrops(true);
    connect(choisir_, &QPushButton::clicked, this, &ChampCouverture::choisirUnFichier);
    connect(coller_, &QPushButton::clicked, this, &ChampCouverture::coller);
    connect(retirer_, &QPushButton::clicked, this, &ChampCouverture::retirer);
    connect(&lecture_, &LectureDeCouverture::prete, this, &ChampCouverture::recevoir);
    connect(&lecture_, &LectureDeCouverture::refusee, this, &ChampCouverture::refuser);

    QBoxLayout *boutons = Pile::colonne({.espace = 8}, {choisir_, coller_, retirer_});
    QBoxLayout *gestes = Pile::rangee({}, {boutons, Pile::reste()});
    QBoxLayout *textes = Pile::colonne({.espace = 10}, {gestes, note_, refus_, Pile::reste()});
    Pile::rangee(this, {.espace = 16}, {{vignette_, 0, Qt::AlignTop}, {textes, 1}});
    actualiser();
}

void ChampCouverture::montrer(const Livre &livre)
{
    const bool unAutre = livre.id != livre_.id;
    if (unAutre)
        lecture_.abandonner(); // it was for that one
    if (unAutre || livre.couverture != livre_.couverture) {
        vignette_->montrer(livre);
        refus_->montrer({});
    }
    livre_ = livre;
    actualiser();
}

void ChampCouverture::faireAttendre()
{
    refus_->montrer(QStringLiteral("L’image est encore en cours de lecture : attendez qu’elle s’affiche."));
    choisir_->setFocus(); // into sight
}

void ChampCouverture::choisirUnFichier()
{
    const QString images = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    auto *dialogue = new QFileDialog(this, QStringLiteral("Choisir une image"), dossier_.isEmpty() ? images : dossier_,
                                     QStringLiteral("Images (*.svg *.png *.jpg *.jpeg *.webp)"));
    dialogue->setAttribute(Qt::WA_DeleteOnClose);
    dialogue->setFileMode(QFileDialog::ExistingFile);
    connect(dialogue, &QFileDialog::fileSelected, this, [this](const QString &fichier) {
        dossier_ = QFileInfo(fichier).absolutePath();
        lecture_.lireFichier(fichier);
        actualiser();
    });
    dialogue->open();
}

void ChampCouverture::coller()
{
    if (const QMimeData *donnees = QGuiApplication::clipboard()->mimeData())
        prendre(*donnees);
}

void ChampCouverture::prendre(const QMimeData &donnees)
{
    const QList<QUrl> adresses = donnees.urls();
    const char *const image = format(donnees);
    if (adresses.size() > 1)
        return refuser(QStringLiteral("Un livre n’a qu’une couverture : donnez une seule image."));
    if (adresses.size() == 1 && adresses[0].isLocalFile())
        lecture_.lireFichier(adresses[0].toLocalFile());
    else if (image)
        lecture_.lireOctets(donnees.data(QString::fromLatin1(image)));
    else if (adresses.size() == 1)
        return refuser(QStringLiteral("Cette image est sur Internet : enregistrez-la d’abord sur cet ordinateur."));
    else
        return refuser(QStringLiteral("Il n’y a pas d’image à coller."));
    refus_->montrer({});
    actualiser();
}

void ChampCouverture::recevoir(const CouverturePrete &couverture)
{
    refus_->montrer({});
    vignette_->montrer(QImage::fromData(couverture.octets));
    actualiser();
    LecteurDEcran::annoncer(this, QStringLiteral("Image prise"));
    emit choisie(couverture);
}

void ChampCouverture::refuser(const QString &raison)
{
    lecture_.abandonner();
    refus_->montrer(raison);
    actualiser();
}

void ChampCouverture::retirer()
{
    lecture_.abandonner();
    refus_->montrer({});
    choisir_->setFocus(); // the button goes grey
    livre_.couverture.clear();
    vignette_->montrer(livre_);
    actualiser();
    emit retiree();
}

void ChampCouverture::actualiser()
{
    note_->setText(lecture_.enCours() ? QStringLiteral("Lecture de l’image…") : conseil());
    retirer_->setEnabled(!vignette_->estVide());
    vignette_->setAccessibleName(vignette_->estVide() ? QStringLiteral("Couverture sans image")
                                                      : QStringLiteral("Image de la couverture"));
}

void ChampCouverture::dragEnterEvent(QDragEnterEvent *evenement)
{
    if (!evenement->mimeData()->hasUrls() && !format(*evenement->mimeData()))
        return;
    evenement->setDropAction(Qt::CopyAction);
    evenement->accept();
    vignette_->survoler(true);
}

void ChampCouverture::dragLeaveEvent(QDragLeaveEvent *)
{
    vignette_->survoler(false);
}

void ChampCouverture::dropEvent(QDropEvent *evenement)
{
    vignette_->survoler(false);
    evenement->setDropAction(Qt::CopyAction);
    evenement->accept();
    prendre(*evenement->mimeData());
}

void ChampCouverture::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->matches(QKeySequence::Paste))
        coller();
    else
        QWidget::keyPressEvent(evenement);
}

} // namespace Quillet
