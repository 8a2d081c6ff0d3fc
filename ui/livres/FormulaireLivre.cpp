#include "ui/livres/FormulaireLivre.h"

#include "composants/ChampDeFiche.h"
#include "composants/Choix.h"
#include "composants/ChoixCouleur.h"
#include "composants/Formulaire.h"
#include "composants/Interrupteur.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "model/EditionLivres.h"
#include "model/controle/Objections.h"
#include "textes/TextesGestes.h"
#include "ui/couvertures/ChampCouverture.h"

#include <algorithm>

namespace Quillet {

namespace {

constexpr int entreGroupes = 14;

QList<ChoixCouleur::Nuance> nuances()
{
    return {{QStringLiteral("Ardoise"), QColor(74, 96, 116)}, {QStringLiteral("Bleu nuit"), QColor(29, 74, 99)},
            {QStringLiteral("Sapin"), QColor(38, 84, 66)},    {QStringLiteral("Olive"), QColor(104, 106, 52)},
            {QStringLiteral("Ocre"), QColor(176, 124, 44)},   {QStringLiteral("Brique"), QColor(158, 71, 48)},
            {QStringLiteral("Prune"), QColor(98, 52, 84)},    {QStringLiteral("Brun"), QColor(92, 66, 48)}};
}

QColor couleur(const QList<qint64> &teinte)
{
    const auto part = [&](qsizetype i) { return static_cast<int>(std::clamp<qint64>(teinte.value(i), 0, 255)); };
    return {part(0), part(1), part(2)};
}

QWidget *rangeeAlignee(const QString &libelle, QWidget *valeur)
{
    auto *rangee = new Formulaire::Rangee(libelle, valeur);
    rangee->alignerSurLesChamps();
    return rangee;
}

// As wide as any other, for the fields to end together.
Libelle *unite(const QString &signe)
{
    auto *libelle = new Libelle(signe, Libelle::Rang::secondaire);
    TailleDuTexte::suivre(libelle,
                          [libelle] { libelle->setFixedWidth(libelle->fontMetrics().horizontalAdvance(u'€')); });
    return libelle;
}

} // namespace

FormulaireLivre::FormulaireLivre(ImagesCouvertures &images, QWidget *parent)
    : QWidget(parent),
      description_(ChampDuLivre::tous()),
      image_(new ChampCouverture(images)),
      vendeur_(new Choix),
      disponible_(new Interrupteur),
      couleur_(new ChoixCouleur(nuances()))
{
    rangeeDuVendeur_ = rangeeAlignee(QStringLiteral("Vendeur"), vendeur_);
    auto *texte = groupe(QStringLiteral("titre titreComplet auteur"));
    texte->ajouter(rangeeDuVendeur_);
    auto *vente = groupe(QStringLiteral("prix poids"));
    vente->ajouter(rangeeAlignee(QStringLiteral("Disponible"), disponible_));
    auto *fabrication = groupe(QStringLiteral("pages format langue isbn"));
    auto *image = new Formulaire::Groupe;
    image->ajouter(image_);
    auto *reste = groupe(QStringLiteral("lienPaypal"));
    reste->ajouter(rangeeAlignee(QStringLiteral("Couleur"), couleur_));
    Pile::colonne(this, {.espace = entreGroupes}, {texte, vente, fabrication, image, reste, Pile::reste()});

    connect(vendeur_, &Choix::choisi, this, [this](const QString &choisi) {
        for (const auto &[vendeur, nom] : std::as_const(cadre_.vendeurs))
            if (brut(vendeur) == choisi)
                brouillon_ ? EditionLivres::confier(livre_, vendeur, cadre_.livres) : void(livre_.vendeur = vendeur);
        signaler(QStringLiteral("Vendeur"));
    });
    // Not clicked: a screen reader toggles without it.
    connect(disponible_, &QCheckBox::toggled, this, [this](bool disponible) {
        if (disponible == livre_.disponible)
            return;
        livre_.disponible = disponible;
        emit saisi(livre_, TextesGestes::disponibilite(livre_));
    });
    connect(image_, &ChampCouverture::choisie, this, [this](const CouverturePrete &couverture) {
        couverture_ = couverture;
        if (livre_.teinte == couleurProposee_)
            livre_.teinte = couleurProposee_ = couverture.teinte;
        signaler(QStringLiteral("Couverture"));
    });
    connect(image_, &ChampCouverture::retiree, this, [this] {
        couverture_.reset();
        livre_.couverture.clear();
        signaler(QStringLiteral("Couverture"));
    });
    connect(couleur_, &ChoixCouleur::choisie, this, [this](const QColor &couleur) {
        livre_.teinte = {couleur.red(), couleur.green(), couleur.blue()};
        couleurProposee_.clear();
        signaler(QStringLiteral("Couleur"));
    });
}

Formulaire::Groupe *FormulaireLivre::groupe(const QString &cles)
{
    const QStringList voulues = cles.split(u' ');
    auto *groupe = new Formulaire::Groupe;
    for (const ChampDuLivre &champ : std::as_const(description_))
        if (voulues.contains(champ.cle))
            groupe->ajouter(creer(champ));
    return groupe;
}

ChampDeFiche *FormulaireLivre::creer(const ChampDuLivre &champ)
{
    auto *cree = new ChampDeFiche(champ.libelle);
    cree->setInvite(champ.invite);
    if (!champ.unite.isEmpty())
        cree->accoler(unite(champ.unite));
    connect(cree, &ChampDeFiche::saisi, this,
            [this, &champ, cree](const QString &texte) { saisir(champ, cree, texte); });
    champs_.insert(champ.cle, cree);
    return cree;
}

void FormulaireLivre::setCadre(const Cadre &cadre)
{
    cadre_ = cadre;
    vendeur_->clear();
    for (const auto &[vendeur, nom] : cadre.vendeurs)
        vendeur_->ajouter(nom, brut(vendeur));
    vendeur_->montrer(brut(livre_.vendeur));
    rangeeDuVendeur_->setVisible(cadre.vendeurs.size() > 1);
}

void FormulaireLivre::commencer(const Livre &brouillon)
{
    brouillon_ = true;
    livre_ = brouillon;
    couleurProposee_ = brouillon.teinte;
    actualiser();
}

void FormulaireLivre::montrer(const Livre &livre, const std::optional<CouverturePrete> &couverture)
{
    if (brouillon_ || livre.id != livre_.id)
        oublier();
    brouillon_ = false;
    couverture_ = couverture;
    livre_ = livre;
    actualiser();
    objecter();
}

void FormulaireLivre::oublier()
{
    for (ChampDeFiche *champ : std::as_const(champs_))
        champ->oublier();
    couleurProposee_ = EditionLivres::nouveau({}, livre_.vendeur).teinte; // whoever gave it another chose it
}

void FormulaireLivre::actualiser()
{
    image_->montrer(livre_);
    for (const ChampDuLivre &champ : std::as_const(description_))
        champs_[champ.cle]->montrer(champ.ecrit(livre_));
    vendeur_->montrer(brut(livre_.vendeur));
    disponible_->setChecked(livre_.disponible);
    couleur_->montrer(couleur(livre_.teinte));
}

// What the rules hold against values that nobody is typing.
void FormulaireLivre::objecter()
{
    const auto objections = Objections::surLeLivre(livre_, cadre_.reperes);
    for (const ChampDuLivre &champ : std::as_const(description_))
        if (ChampDeFiche *ou = champs_[champ.cle]; ou->texte() == champ.ecrit(livre_))
            ou->objecter(objections.value(champ.cle));
}

void FormulaireLivre::saisir(const ChampDuLivre &champ, ChampDeFiche *ou, const QString &texte)
{
    Livre essai = livre_;
    QString refus = champ.prendre(texte, essai);
    if (refus.isEmpty())
        refus = Objections::surLeLivre(essai, cadre_.reperes).value(champ.cle);
    ou->objecter(refus);
    if (!refus.isEmpty()) {
        emit refuse();
        return;
    }
    livre_ = essai;
    actualiser();
    emit saisi(livre_, TextesGestes::champ(champ.libelle, livre_));
}

void FormulaireLivre::signaler(const QString &nom)
{
    actualiser();
    emit saisi(livre_, TextesGestes::champ(nom, livre_));
}

bool FormulaireLivre::conclure()
{
    for (ChampDeFiche *champ : std::as_const(champs_))
        champ->conclure();
    if (image_->enLecture())
        image_->faireAttendre();
    return !image_->enLecture();
}

bool FormulaireLivre::aSaisi(const Livre &depart) const
{
    return livre_ != depart || couverture_ || image_->enLecture()
           || std::ranges::any_of(description_, [this](const ChampDuLivre &champ) {
                  return champs_[champ.cle]->texte() != champ.ecrit(livre_);
              });
}

bool FormulaireLivre::verifier()
{
    const bool prete = conclure();
    QHash<QString, QString> refus;
    Livre essai = livre_;
    for (const ChampDuLivre &champ : std::as_const(description_))
        if (const QString raison = champ.prendre(champs_[champ.cle]->texte(), essai); !raison.isEmpty())
            refus.insert(champ.cle, raison);
    const auto objections = Objections::surLeLivre(essai, cadre_.reperes);
    ChampDeFiche *premier = nullptr;
    for (const ChampDuLivre &champ : std::as_const(description_)) {
        ChampDeFiche *ou = champs_[champ.cle];
        const QString raison = refus.value(champ.cle, objections.value(champ.cle));
        ou->objecter(raison);
        if (!raison.isEmpty() && !premier)
            premier = ou;
    }
    if (premier)
        premier->setFocus(Qt::OtherFocusReason);
    else
        livre_ = essai;
    return prete && !premier;
}

void FormulaireLivre::prendreLeFocus()
{
    champs_[QStringLiteral("titre")]->setFocus(Qt::OtherFocusReason);
}

} // namespace Quillet
