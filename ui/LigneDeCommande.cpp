#include "ui/LigneDeCommande.h"

#include "documents/NumerotationFactures.h"
#include "echanges/ControleDesCouvertures.h"
#include "echanges/LectureDeCouverture.h"
#include "model/Couvertures.h"
#include "model/Ressources.h"
#include "model/Stockage.h"
#include "model/controle/ControleDonnees.h"
#include "model/controle/ControleUtilisateur.h"
#include "ui/ControlePoste.h"

#include <QCommandLineParser>
#include <QGuiApplication>

#include <array>

namespace Quillet {

namespace {

using LigneDeCommande::Reponse;

QString usage()
{
    return QStringLiteral("Usage : quillet [--verifier [DOSSIER]]\n");
}

QString texteDAide()
{
    return usage() + QStringLiteral(R"(
Sans option, ouvre la fenêtre de Quillet.

  --verifier DOSSIER  contrôle un dossier de données (livres, couvertures, destinations,
                      réglages, tarifs), celui qui sert si aucun n’est nommé, et vos propres
                      fichiers (changements de livres, tarifs et frais acceptés, préférences) ;
                      nomme chaque erreur avec sa place, sans écran ; dit aussi ce qui manque au
                      système (formats d’images, polices)
  -v, --version       donne la version
  -h, --help          montre cette aide

Code de sortie : 0 si tout va bien, 1 s’il y a des erreurs à corriger,
2 si la ligne de commande n’est pas comprise.
)");
}

// Qt takes these for itself when it opens the display; they are none of our business.
void accepterCellesDeQt(QCommandLineParser &analyseur)
{
    for (const char *nom : {"platform", "platformpluginpath", "platformtheme", "plugin", "qwindowgeometry",
                            "qwindowicon", "qwindowtitle", "session", "display", "style", "stylesheet"})
        analyseur.addOption({QString::fromLatin1(nom), QString(), QStringLiteral("valeur")});
    analyseur.addOption(QCommandLineOption(QStringLiteral("reverse")));
}

// None: understood.
std::optional<QString> malComprise(QCommandLineParser &analyseur, const QCommandLineOption &verifier,
                                   const QStringList &arguments)
{
    const bool lue = analyseur.parse(arguments);
    if (const QStringList inconnues = analyseur.unknownOptionNames(); !inconnues.isEmpty())
        return QStringLiteral("option inconnue « %1 »").arg(inconnues.first());
    if (analyseur.isSet(verifier)
        && (analyseur.value(verifier).isEmpty() || analyseur.value(verifier).startsWith(u'-')))
        return QStringLiteral("« --verifier » attend un dossier");
    if (!lue)
        return QStringLiteral("il manque une valeur à une option, ou elle n’en attend pas");
    if (const QStringList autres = analyseur.positionalArguments(); !autres.isEmpty())
        return QStringLiteral("argument inattendu « %1 »").arg(autres.first());
    return std::nullopt;
}

// Typefaces and pictures are asked of a display; this one needs no screen.
class SansEcran
{
    QByteArray nom_{"quillet"};
    QByteArray option_{"-platform"};
    QByteArray plateforme_{"offscreen"};
    std::array<char *, 4> arguments_{nom_.data(), option_.data(), plateforme_.data(), nullptr};
    int nombre_ = 3;
    QGuiApplication programme_{nombre_, arguments_.data()};
};

Reponse couverture(const QString &source)
{
    const SansEcran programme;
    const auto reponse = LectureDeCouverture::repondre(source);
    return {reponse.code, QString::fromUtf8(reponse.texte)};
}

Reponse couvertures()
{
    const SansEcran programme;
    ControleDesCouvertures::repondre();
    return {0, {}};
}

// Of the folder named, or else of the one in force.
Reponse controle(const QString &nomme)
{
    const SansEcran programme;
    const Ressources ressources = nomme.isEmpty()
                                      ? Ressources::enVigueur(Stockage::deLUtilisateur().donneesPersonnelles())
                                      : Ressources(QDir(nomme));
    auto controle = ControleDonnees::de(ressources.dossier(), QDate::currentDate());
    const QDir images(ressources.chemin(QStringLiteral("couvertures")));
    QStringList couvertures;
    for (const QString &fichier : Couvertures::fichiers(images))
        couvertures.append(images.filePath(fichier));
    const auto moyens = ControlePoste::moyens();
    controle.erreurs += ControlePoste::imagesAbimees(moyens, couvertures)
                        + ControleUtilisateur::erreurs(Stockage::deLUtilisateur().dossier())
                        + NumerotationFactures{Preferences::deLUtilisateur()}.erreurs();
    const QStringList choisi =
        nomme.isEmpty() ? QStringList{QStringLiteral("Données qui servent : %1").arg(ressources.dossier().path())}
                        : QStringList();
    const QStringList lignes =
        choisi + controle.erreurs + QStringList{controle.bilan()} + ControlePoste::manques(moyens, couvertures);
    return {controle.erreurs.isEmpty() ? 0 : 1, lignes.join(u'\n') + u'\n'};
}

} // namespace

std::optional<Reponse> LigneDeCommande::repondre(const QStringList &arguments)
{
    const QCommandLineOption verifier(QStringLiteral("verifier"), QString(), QStringLiteral("DOSSIER"));
    const QCommandLineOption lireCouverture(LectureDeCouverture::option(), QString(),
                                            QStringLiteral("IMAGE")); // our own
    const QCommandLineOption controlerCouvertures(ControleDesCouvertures::option());
    const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")});
    const QCommandLineOption aide(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    QCommandLineParser analyseur;
    analyseur.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    analyseur.addOptions({verifier, lireCouverture, controlerCouvertures, version, aide});
    accepterCellesDeQt(analyseur);

    const bool sansDossier = arguments.size() > 1 && arguments.last() == QLatin1String("--verifier");
    const QStringList avecValeurs = sansDossier ? arguments.first(arguments.size() - 1) : arguments;
    if (const auto raison = malComprise(analyseur, verifier, avecValeurs))
        return Reponse{2, QStringLiteral("quillet : %1\n%2").arg(*raison, usage())};
    if (analyseur.isSet(aide))
        return Reponse{0, texteDAide()};
    if (analyseur.isSet(version))
        return Reponse{0, QStringLiteral("Quillet " QUILLET_VERSION "\n")};
    if (analyseur.isSet(lireCouverture))
        return couverture(analyseur.value(lireCouverture));
    if (analyseur.isSet(controlerCouvertures))
        return couvertures();
    if (sansDossier || analyseur.isSet(verifier))
        try {
            return controle(analyseur.value(verifier));
        } catch (const RessourceIllisible &erreur) { // not even the program's own data are there
            return Reponse{1, erreur.texte() + u'\n'};
        }
    return std::nullopt;
}

} // namespace Quillet
