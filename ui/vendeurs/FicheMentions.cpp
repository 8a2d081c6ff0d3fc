#include "ui/vendeurs/FicheMentions.h"

#include "composants/Boutons.h"
#include "composants/ChampDeFiche.h"
#include "composants/Choix.h"
#include "composants/Pile.h"

#include <QPushButton>

#include <algorithm>

namespace Quillet {

namespace {

ChampsDeReglages::Champ mention(const char *cle, const QString &nom, QString MentionsDouane::*membre)
{
    return {.chemin = QStringLiteral("douane.") + QLatin1String(cle),
            .lire = [membre](const Reglages &reglages) { return reglages.douane.*membre; },
            .poser =
                [membre](Reglages &reglages, const QString &texte) {
                    reglages.douane.*membre = texte.trimmed();
                    return QString();
                },
            .geste = [nom](const Reglages &) { return QStringLiteral("%1 des déclarations en douane").arg(nom); }};
}

using Codes = QMap<CodeDestination, QString>;

Codes codesDe(const Reglages &reglages)
{
    return reglages.douane.codesParDestination.value_or(Codes());
}

void poserLesCodes(Reglages &reglages, const Codes &codes)
{
    reglages.douane.codesParDestination = codes.isEmpty() ? std::nullopt : std::optional(codes);
}

QString gesteDuCode(const QString &destination)
{
    return QStringLiteral("code douanier pour « %1 »").arg(destination);
}

ChampsDeReglages::Champ leCode(const Destination &destination)
{
    const CodeDestination code = destination.code;
    return {.chemin = QStringLiteral("douane.codesParDestination.") + code.texte(),
            .lire = [code](const Reglages &reglages) { return codesDe(reglages).value(code); },
            .poser =
                [code](Reglages &reglages, const QString &texte) {
                    Codes codes = codesDe(reglages);
                    codes.insert(code, texte.trimmed());
                    poserLesCodes(reglages, codes);
                    return QString();
                },
            .geste = [nom = destination.libelleCourt](const Reglages &) { return gesteDuCode(nom); }};
}

} // namespace

FicheMentions::FicheMentions(const EcritureDesReglages &ecriture, QWidget *parent)
    : Section(QStringLiteral("Douane"), {}, parent),
      champs_(ecriture),
      liste_(Pile::enColonne({.espace = 8}, {})),
      aAjouter_(new Choix),
      ajouter_(Boutons::deFeuille(QStringLiteral("Ajouter")))
{
    groupe()->ajouter(champ(QStringLiteral("Contenu, en français"),
                            mention("contenuFr", QStringLiteral("contenu en français"), &MentionsDouane::contenuFr)));
    groupe()->ajouter(champ(QStringLiteral("Contenu, en anglais"),
                            mention("contenuEn", QStringLiteral("contenu en anglais"), &MentionsDouane::contenuEn)));
    ChampDeFiche *code = champ(QStringLiteral("Code douanier"),
                               mention("codeSH", QStringLiteral("code douanier"), &MentionsDouane::codeSH));
    code->setAide(QStringLiteral("De six à dix chiffres ; 490199 pour des livres imprimés."));
    groupe()->ajouter(code);
    groupe()->ajouter(liste_);
    QWidget *choix = Pile::enRangee({.espace = 8}, {{aAjouter_, 1}, ajouter_});
    choix->setFocusProxy(aAjouter_);
    choix->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    aAjouter_->setAccessibleName(QStringLiteral("Destination d’un autre code"));
    ajouter_->setAccessibleName(QStringLiteral("Ajouter un code pour cette destination"));
    auto *autre = new Formulaire::Rangee(QStringLiteral("Un autre code pour"), choix);
    autre->alignerSurLesChamps();
    groupe()->ajouter(autre);
    liste_->hide();

    // Not by the choice alone: the arrow keys choose what they pass.
    connect(ajouter_, &QPushButton::clicked, this, [this] {
        const CodeDestination destination(aAjouter_->currentData().toString());
        commences_.insert(destination);
        montrer(destinations_);
        if (ChampDeFiche *ouvert = codes_.value(destination))
            ouvert->setFocus();
    });
}

ChampDeFiche *FicheMentions::champ(const QString &libelle, const ChampsDeReglages::Champ &description)
{
    auto *champ = new ChampDeFiche(libelle);
    champs_.lier(champ, description);
    return champ;
}

void FicheMentions::montrer(const QList<Destination> &destinations)
{
    destinations_ = destinations;
    const Codes gardes = codesDe(champs_.reglages());
    for (const CodeDestination &code : gardes.keys())
        commences_.remove(code);
    const QString choisie = aAjouter_->currentData().toString();
    aAjouter_->clear();
    for (const Destination &destination : destinations) {
        const bool la = gardes.contains(destination.code) || commences_.contains(destination.code);
        if (la && !codes_.contains(destination.code))
            ouvrir(destination);
        if (!la) {
            aAjouter_->ajouter(destination.libelleCourt, destination.code.texte());
            if (ChampDeFiche *parti = codes_.take(destination.code)) {
                if (parti->isAncestorOf(window()->focusWidget()))
                    aAjouter_->setFocus();
                parti->hide();
                parti->deleteLater(); // it may hold the button that was pressed
            }
        }
    }
    aAjouter_->setCurrentIndex(std::max(0, aAjouter_->findData(choisie)));
    ajouter_->setEnabled(aAjouter_->count() > 0);
    liste_->setVisible(!codes_.isEmpty());
    champs_.montrer();
}

void FicheMentions::ouvrir(const Destination &destination)
{
    ChampDeFiche *ouvert = champ(destination.libelleCourt, leCode(destination));
    ouvert->setNomDit(QStringLiteral("Code douanier pour %1").arg(destination.libelleCourt));
    QPushButton *retire = Boutons::deFeuille(QStringLiteral("Retirer"));
    retire->setAccessibleName(QStringLiteral("Retirer le code pour %1").arg(destination.libelleCourt));
    connect(retire, &QPushButton::clicked, this, [this, code = destination.code] { retirer(code); });
    ouvert->accoler(retire);
    codes_.insert(destination.code, ouvert);
    liste_->layout()->addWidget(ouvert);
    ouvert->show(); // now: a layout would show it one turn of the event loop later
}

void FicheMentions::retirer(const CodeDestination &code)
{
    Reglages apres = champs_.reglages();
    Codes codes = codesDe(apres);
    commences_.remove(code);
    if (codes.remove(code) > 0) {
        poserLesCodes(apres, codes);
        const auto destination = std::ranges::find(destinations_, code, &Destination::code);
        const QString nom = destination == destinations_.end() ? code.texte() : destination->libelleCourt;
        const QString refus = champs_.ecrire(apres, QStringLiteral("douane"), gesteDuCode(nom));
        if (!refus.isEmpty())
            codes_[code]->objecter(refus);
    }
    montrer(destinations_);
}

} // namespace Quillet
