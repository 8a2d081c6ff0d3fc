#include "ui/QuilletApp.h"

#include "composants/LecteurDEcran.h"
#include "composants/Style.h"
#include "composants/TailleDuTexte.h"
#include "composants/bureau/Bureau.h"
#include "echanges/DepotCouvertures.h"
#include "ui/ComplementFrancais.h"
#include "ui/Fenetre.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QScreen>
#include <QTranslator>

#include <utility>

namespace Quillet {

namespace {

Maintenant maintenant(const Aujourdhui &aujourdhui)
{
    return [aujourdhui] { return QDateTime(aujourdhui(), QTime::currentTime()); };
}

} // namespace

void QuilletApp::preparer(std::optional<Theme::Mode> mode)
{
    // The name only: an organisation of the same name would double the data folder.
    QApplication::setApplicationName(QStringLiteral("Quillet"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("quillet"));
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    auto *francais = new QTranslator(qApp);
    if (francais->load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(francais);
    QApplication::installTranslator(new ComplementFrancais(qApp));
    QApplication::setStyle(new Style(mode));
    LecteurDEcran::preparer();
    QApplication::setFont(Theme::police());
}

void QuilletApp::suivre(Bureau &bureau)
{
    const auto obeir = [&bureau] {
        if (auto *style = qobject_cast<Style *>(QApplication::style())) // not under a style sheet of the user's
            style->suivre(bureau.souhaits());
        if (const QScreen *ecran = QGuiApplication::primaryScreen()) // the last one may have been unplugged
            TailleDuTexte::changer(
                Theme::police(agrandissement(bureau.souhaits().texte, QGuiApplication::platformName(),
                                             ecran->devicePixelRatio(), ecran->logicalDotsPerInch())));
    };
    QObject::connect(&bureau, &Bureau::change, qApp, obeir);
    QObject::connect(QGuiApplication::primaryScreen(), &QScreen::logicalDotsPerInchChanged, &bureau, obeir);
    bureau.relever();
}

QuilletApp::QuilletApp(const Ressources &ressources, const Stockage &stockage, const Preferences &preferences,
                       Aujourdhui aujourdhui, const PagesSurveillees &pages, const SourceMisesAJour &misesAJour)
    : catalogue_(Catalogue::charge(ressources, stockage)),
      historique_(*catalogue_),
      verifications_(*catalogue_, preferences, maintenant(aujourdhui), pages),
      misesAJour_(misesAJour, preferences, maintenant(aujourdhui)),
      images_(QDir(ressources.chemin(QStringLiteral("couvertures")))),
      jour_(std::move(aujourdhui)),
      preferences_(preferences),
      contexte_{*catalogue_, historique_, commande_, factures_, verifications_, images_, jour_, preferences_},
      fenetre_(std::make_unique<Fenetre>(contexte_, misesAJour_))
{
    commande_.commencer(catalogue_->donnees());
    QObject::connect(catalogue_.get(), &Catalogue::change, &commande_,
                     [this, donnees = catalogue_->donnees()]() mutable {
                         const Donnees avant = std::exchange(donnees, catalogue_->donnees());
                         if (donnees.personnelles)
                             commande_.suivre(avant, donnees);
                     });
    QObject::connect(catalogue_.get(), &Catalogue::recharge, &commande_,
                     [this, avant = ressources.origine()]() mutable {
                         images_.setDossier(QDir(catalogue_->ressources().chemin(QStringLiteral("couvertures"))));
                         if (std::exchange(avant, catalogue_->ressources().origine()) == Origine::exemple) {
                             factures_ = MemoireFactures();
                             commande_.commencer(catalogue_->donnees()); // the same numbers are other books
                         }
                     });
    QObject::connect(&commande_, &Commande::change, &commande_, [this] { factures_.suivre(commande_.bon()); });
    // Neither drawing the icon in all its sizes nor the network's own start may delay the first image.
    QObject::connect(fenetre_.get(), &Fenetre::posee, fenetre_.get(), [this] {
        QApplication::setWindowIcon(QIcon(QStringLiteral(":/quillet.svg")));
        if (catalogue_->donnees().personnelles) // nothing can be undone yet that would name them again
            Couvertures::elaguer(QDir(catalogue_->ressources().chemin(QStringLiteral("couvertures"))),
                                 catalogue_->donnees().livres, QDateTime::currentDateTime());
        verifications_.verifierSiNecessaire();
    });
}

QuilletApp::~QuilletApp() = default;

} // namespace Quillet
