#include "visite/Parcours.h"

#include "composants/Formulaire.h"
#include "ui/ContenuPrincipal.h"
#include "ui/Fenetre.h"
#include "visite/Dialogues.h"
#include "visite/Ecran.h"

#include <QApplication>
#include <QDialog>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QTest>

#include <algorithm>
#include <cstdio>

namespace Quillet {

namespace {

// A fixed day, so that the same schedule is in force whenever the tour is played.
const QDate jourDeLaVisite(2026, 3, 2);
constexpr int tempsDesRessorts = 900; // ms

// The shipped books and sellers, as if they were the seller's own.
Ressources lesSiennes(const Stockage &stockage)
{
    const Ressources livrees = Ressources::duProgramme();
    const QDir images(livrees.chemin(QStringLiteral("couvertures")));
    QHash<QString, QByteArray> couvertures;
    for (const QString &image : images.entryList(QDir::Files))
        couvertures.insert(image, Fichier::lireOuRefuser(images.filePath(image), Fichier::Borne::image).value());
    DossierPersonnel::creer(stockage.donneesPersonnelles(), livrees, livrees.lire<Reglages>(QStringLiteral("reglages")),
                            livrees.lire<QList<Livre>>(QStringLiteral("livres")), couvertures);
    return Ressources::enVigueur(stockage.donneesPersonnelles());
}

} // namespace

Parcours::Parcours(const QDir &dossier, QString suffixe, bool bavard, std::optional<QSize> taille)
    : dossier_(dossier),
      suffixe_(std::move(suffixe)),
      bavard_(bavard),
      taille_(taille),
      stockage_(Stockage::dans(QDir(donnees_.path()))),
      quillet_(
          lesSiennes(stockage_), stockage_, Preferences(donnees_.filePath(QStringLiteral("Quillet.ini"))),
          [] { return jourDeLaVisite; }, site_.pages())
{
}

bool Parcours::jouer()
{
    Fenetre &fenetre = quillet_.fenetre();
    fenetre.resize(taille_.value_or(fenetre.tailleParDefaut())); // whatever screen it is drawn for
    fenetre.show();
    if (!QTest::qWaitForWindowExposed(&fenetre))
        return false;
    if (!emporter() || !composerLaCommande() || !changerDeDestination(QStringLiteral("Union européenne")))
        return false;
    raconter(QStringLiteral("Trois livres vers l’Union européenne"));
    if (!peserLeColis(QStringLiteral("1012")))
        return false;
    raconter(QStringLiteral("Le colis est pesé"));
    if (!photographier(QStringLiteral("commande")) || !chercherUnPays() || !lireLAide())
        return false;
    if (!changerDeDestination(QStringLiteral("Suisse")))
        return false;
    raconter(QStringLiteral("Le même colis vers la Suisse"));
    if (!Ecran::defiler(&fenetre, QStringLiteral("Copier URL de redirection"))
        || !photographier(QStringLiteral("lien-paypal")))
        return false;
    if (!repondreALAcheteur() || !preparerLesDocuments())
        return false;

    fenetre.contenu()->montrer(Rubrique::tarifs);
    if (!accepterLesNouveautes())
        return false;
    fenetre.contenu()->montrer(Rubrique::livres);
    return reporterDesPrix() && changerUnLivre() && rapporter() && premiersPas();
}

bool Parcours::composerLaCommande()
{
    Fenetre &fenetre = quillet_.fenetre();
    return Ecran::cliquer(&fenetre, QStringLiteral("Le Phare de sel"))
           && Ecran::cliquer(&fenetre, QStringLiteral("Le Phare de sel"))
           && Ecran::cliquer(&fenetre, QStringLiteral("L’Herbier des heures"));
}

bool Parcours::changerDeDestination(const QString &libelle)
{
    return Ecran::choisir(&quillet_.fenetre(), QStringLiteral("Envoi vers"), libelle);
}

bool Parcours::peserLeColis(const QString &grammes)
{
    return Ecran::taper(&quillet_.fenetre(), QStringLiteral("Colis pesé, en grammes"), grammes);
}

bool Parcours::chercherUnPays()
{
    const QString nom = QStringLiteral("Chercher un pays");
    Fenetre &fenetre = quillet_.fenetre();
    QWidget *champ = Ecran::controle(&fenetre, nom);
    if (!champ)
        return false;
    // Lists open within the screen, which may be smaller than the window that is drawn in memory.
    const QPoint milieu = fenetre.screen()->availableGeometry().center();
    fenetre.move(fenetre.pos() + milieu - champ->mapToGlobal(champ->rect().center()));
    QWidget *section = champ;
    while (!section->isWindow() && !qobject_cast<Formulaire::Section *>(section))
        section = section->parentWidget();
    champ->setFocus();
    if (!Ecran::taper(&fenetre, nom, QStringLiteral("gua")) || !QApplication::activePopupWidget()
        || !photographier(QStringLiteral("pays")) || !photographier(QStringLiteral("recherche-pays"), section))
        return false;
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    return Ecran::taper(&fenetre, nom, {});
}

bool Parcours::lireLAide()
{
    struct Page
    {
        QString image;
        QString entree;
        QSize taille;
    };
    return std::ranges::all_of(
        std::initializer_list<Page>{{QStringLiteral("guide"), QStringLiteral("Guide"), {760, 780}},
                                    {QStringLiteral("raccourcis"), QStringLiteral("Raccourcis clavier"), {600, 720}}},
        [this](const Page &page) {
            QDialog *feuille = ouverte(Ecran::choisirAuMenu(&quillet_.fenetre(), page.entree), page.taille);
            return feuille && photographier(page.image) && Ecran::cliquer(feuille, QStringLiteral("Fermer"));
        });
}

QDialog *Parcours::ouvrir(const QString &bouton, QSize taille)
{
    return ouverte(Ecran::cliquer(&quillet_.fenetre(), bouton), taille);
}

QDialog *Parcours::ouverte(bool demandee, QSize taille)
{
    QDialog *feuille = demandee ? Dialogues::devant() : nullptr;
    if (feuille)
        feuille->resize(taille); // whatever screen it is drawn for
    return feuille;
}

bool Parcours::repondreALAcheteur()
{
    QDialog *reponse = ouvrir(QStringLiteral("E-mail en anglais"), {960, 680});
    return reponse
           && Ecran::taper(reponse, QStringLiteral("Lien de paiement"),
                           QStringLiteral("https://www.paypal.com/ncp/payment/EXEMPLE"))
           && Ecran::taper(reponse, QStringLiteral("E-mail de l’acheteur"), QStringLiteral("ada.exemple@example.org"))
           && photographier(QStringLiteral("reponse")) && Ecran::cliquer(reponse, QStringLiteral("Fermer"));
}

bool Parcours::preparerLesDocuments()
{
    QDialog *documents = ouvrir(QStringLiteral("Déclaration en douane"), {760, 720});
    if (!documents || !photographier(QStringLiteral("douane")) || !Ecran::cliquer(documents, QStringLiteral("Facture"))
        || !Ecran::taper(documents, QStringLiteral("Acheteur"),
                         QStringLiteral("Ada Exemple\nMusterweg 3\n0000 Exempleville\nSuisse")))
        return false;
    const QString pdf = dossier_.absoluteFilePath(QStringLiteral("facture%1.pdf").arg(suffixe_));
    QFile::remove(pdf); // or the dialog asks whether to replace it
    return Dialogues::cliquerPuisRepondre(documents, QStringLiteral("Enregistrer en PDF…"),
                                          {Dialogues::enregistrerSous(pdf)})
           && QFile::exists(pdf) && photographier(QStringLiteral("facture"))
           && Ecran::cliquer(documents, QStringLiteral("Fermer"));
}

bool Parcours::accepterLesNouveautes()
{
    if (!photographier(QStringLiteral("tarifs")))
        return false;
    const QDialog *tarifs = ouvrir(QStringLiteral("Voir les changements, Tarifs Colissimo"), {720, 640});
    if (!tarifs || !photographier(QStringLiteral("nouveaux-tarifs"))
        || !Ecran::cliquer(Dialogues::devant(), QStringLiteral("Enregistrer ces tarifs")))
        return false;
    const QDialog *frais = ouvrir(QStringLiteral("Voir les changements, Frais PayPal"), {520, 340});
    if (!frais || !photographier(QStringLiteral("nouveaux-frais"))
        || !Ecran::cliquer(Dialogues::devant(), QStringLiteral("Plus tard")))
        return false;
    return Ecran::cliquer(&quillet_.fenetre(), QStringLiteral("À partir du 1er avril 2026"))
           && Ecran::defiler(&quillet_.fenetre(), QStringLiteral("Europe"))
           && photographier(QStringLiteral("tarifs-a-venir"));
}

bool Parcours::reporterDesPrix()
{
    Fenetre &fenetre = quillet_.fenetre();
    return Ecran::cliquer(&fenetre, QStringLiteral("Livre suivant à reporter"))
           && Ecran::cliquer(&fenetre, QStringLiteral("Reporter, Union européenne / EU"))
           && Ecran::cliquer(&fenetre, QStringLiteral("Garder, Suisse / Switzerland"))
           && photographier(QStringLiteral("livres"));
}

bool Parcours::changerUnLivre()
{
    QDialog *livre = ouvrir(QStringLiteral("Modifier…"), {900, 760});
    return livre && photographier(QStringLiteral("livre")) && Ecran::cliquer(livre, QStringLiteral("Fermer"));
}

QDialog *Parcours::donnerLArchive(const QString &entree)
{
    if (!Ecran::choisirAuMenu(&quillet_.fenetre(), entree) || !Dialogues::devant())
        return nullptr;
    const QPointer<QDialog> choix = Dialogues::devant();
    Dialogues::enregistrerSous(donnees_.filePath(QStringLiteral("quillet.zip")))(choix);
    const bool venu =
        QTest::qWaitFor([&] { return Dialogues::devant() && Dialogues::devant() != choix && !choix->isVisible(); });
    return venu ? Dialogues::devant() : nullptr;
}

bool Parcours::emporter()
{
    QDialog *fini = donnerLArchive(QStringLiteral("Exporter mes données…"));
    if (!fini)
        return false;
    fini->reject();
    quillet_.fenetre().activateWindow(); // without a window manager, nobody else does
    return QTest::qWaitForWindowActive(&quillet_.fenetre());
}

bool Parcours::rapporter()
{
    QDialog *feuille = ouverte(donnerLArchive(QStringLiteral("Importer…")), {720, 640});
    return feuille && photographier(QStringLiteral("import")) && Ecran::cliquer(feuille, QStringLiteral("Annuler"));
}

bool Parcours::premiersPas()
{
    QuilletApp neuf(
        Ressources::duProgramme(), Stockage::dans(QDir(autresDonnees_.path())),
        Preferences(autresDonnees_.filePath(QStringLiteral("Quillet.ini"))), [] { return jourDeLaVisite; },
        site_.pages());
    neuf.fenetre().resize(taille_.value_or(neuf.fenetre().tailleParDefaut()));
    neuf.fenetre().show();
    if (!QTest::qWaitForWindowExposed(&neuf.fenetre())
        || !Ecran::cliquer(&neuf.fenetre(), QStringLiteral("Mettre les vôtres…")))
        return false;
    QDialog *pas = ouverte(true, {760, 760});
    return pas && Ecran::taper(pas, QStringLiteral("Nom, vendeur"), QStringLiteral("Éditions Davrel"))
           && Ecran::taper(pas, QStringLiteral("SIRET, vendeur"), QStringLiteral("732 829 320 00075"))
           && Ecran::cliquer(pas, QStringLiteral("Suivant")) && photographier(QStringLiteral("premiers-pas"));
}

void Parcours::raconter(const QString &etape)
{
    if (!bavard_)
        return;
    std::printf("%s\n", qPrintable(etape));
    for (const char *libelle : {"Sous-total", "Poids calculé", "Palier Colissimo", "Déclaration en douane",
                                "Envoi Colissimo", "TOTAL À PAYER", "Frais PayPal", "Il vous reste"})
        if (const QString valeur = Ecran::valeurEnFaceDe(&quillet_.fenetre(), QString::fromUtf8(libelle));
            !valeur.isEmpty())
            std::printf("    %s : %s\n", libelle, qPrintable(valeur));
}

bool Parcours::photographier(const QString &nom, QWidget *partie)
{
    QTest::qWait(tempsDesRessorts);
    const QString chemin = dossier_.filePath(nom + suffixe_ + QStringLiteral(".png"));
    QWidget *devant = Dialogues::devant() ? Dialogues::devant() : static_cast<QWidget *>(&quillet_.fenetre());
    QWidget *vu = partie ? partie->parentWidget() : devant;
    const QRect cadre = partie ? partie->geometry() + QMargins(16, 10, 16, 16) : vu->rect();
    QPixmap image = vu->grab(cadre);
    if (QWidget *liste = QApplication::activePopupWidget()) // a window of its own
        QPainter(&image).drawPixmap(vu->mapFromGlobal(liste->mapToGlobal(QPoint())) - cadre.topLeft(), liste->grab());
    if (image.save(chemin))
        return true;
    std::fprintf(stderr, "Image impossible à écrire : %s\n", qPrintable(chemin));
    return false;
}

} // namespace Quillet
