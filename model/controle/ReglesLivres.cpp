#include "model/Couvertures.h"
#include "model/LienPaypal.h"
#include "model/controle/NumeroDeControle.h"
#include "model/controle/Regles.h"
#include "model/controle/ReglesCommunes.h"

#include <QFileInfo>

namespace Quillet {

namespace {

using Json::Lieu;
using Regles::Reperes;

constexpr qint64 pagesAuPlus = 99'999;

void couverture(const QString &couverture, const Reperes &reperes, const Lieu &lieu)
{
    if (couverture.isEmpty())
        return;
    const QString fichier = reperes.couvertures.value(Couvertures::nom(couverture));
    if (fichier.isEmpty())
        lieu.noter(QStringLiteral("pas d’image « %1 » dans couvertures").arg(couverture));
    else if (!Couvertures::formats().contains(QFileInfo(fichier).suffix().toLower()))
        lieu.noter(QStringLiteral("couvertures/%1 n’est pas une image %2")
                       .arg(fichier, Couvertures::formats().join(QStringLiteral(", "))));
    else if (QFileInfo(reperes.dossierDesCouvertures.filePath(fichier)).size() == 0)
        lieu.noter(QStringLiteral("couvertures/%1 est un fichier vide").arg(fichier));
}

void teinte(const QList<qint64> &teinte, const Lieu &lieu)
{
    if (teinte.size() != 3)
        lieu.noter(QStringLiteral("trois nombres attendus : rouge, vert, bleu"));
    for (qsizetype i = 0; i < teinte.size(); ++i)
        if (teinte[i] < 0 || teinte[i] > 255)
            Lieu(lieu, i).noter(QStringLiteral("nombre de 0 à 255 attendu"));
}

void prixParDestination(const std::optional<PrixParDestination> &prix, const QList<CodeDestination> &codes,
                        const Lieu &lieu)
{
    if (!prix || codes.isEmpty())
        return;
    for (const CodeDestination &code : prix->keys())
        if (!codes.contains(code))
            Lieu(lieu, code.texte()).noter(QStringLiteral("aucune destination n’a ce code"));
}

// The same text as the program would hand to a browser.
void lienPaypal(const QUrl &lien, const std::optional<IdentiteVendeur> &vendeur, const Lieu &lieu)
{
    const QString texte = QString::fromLatin1(lien.toEncoded());
    const auto defaut = LienPaypal::defaut(texte, vendeur ? vendeur->site : std::nullopt);
    if (defaut == LienPaypal::Defaut::signeDeSens)
        lieu.noter(QStringLiteral("un signe invisible y retourne le sens de lecture"));
    else if (defaut == LienPaypal::Defaut::autreSite && vendeur)
        lieu.noter(QStringLiteral("mène à « %1 », qui n’est ni PayPal ni le site de son vendeur")
                       .arg(LienPaypal::hote(texte)));
}

} // namespace

void Regles::livre(const Livre &livre, const Reperes &reperes, const Lieu &lieu)
{
    if (!reperes.vendeurs.isEmpty() && !reperes.vendeurs.contains(livre.vendeur))
        lieu.noter("vendeur",
                   QStringLiteral("« %1 » n’a pas d’identité dans reglages.vendeurs").arg(brut(livre.vendeur)));
    if (livre.poids && *livre.poids == Grammes{})
        lieu.noter("poids", QStringLiteral("0 g : à ne pas dire tant que le livre n’est pas pesé"));
    if (!livre.isbn.isEmpty() && !NumeroDeControle::isbn(livre.isbn))
        lieu.noter("isbn", QStringLiteral("« %1 » n’est pas un ISBN : un chiffre manque ou est faux").arg(livre.isbn));
    if (livre.pages <= 0)
        lieu.noter("pages", QStringLiteral("au moins une page attendue"));
    if (livre.pages > pagesAuPlus)
        lieu.noter("pages", QStringLiteral("99 999 pages au plus"));
    couverture(livre.couverture, reperes, Lieu(lieu, QStringLiteral("couverture")));
    teinte(livre.teinte, Lieu(lieu, QStringLiteral("teinte")));
    if (livre.prix == Centimes{})
        lieu.noter("prix", QStringLiteral("un prix de plus de 0 € attendu"));
    if (livre.lienPaypal)
        lienPaypal(*livre.lienPaypal, reperes.identite(livre.vendeur), Lieu(lieu, QStringLiteral("lienPaypal")));
    prixParDestination(livre.prixPaypal, reperes.destinations, Lieu(lieu, QStringLiteral("prixPaypal")));
    prixParDestination(livre.prixEcartes, reperes.destinations, Lieu(lieu, QStringLiteral("prixEcartes")));
}

void Regles::livres(const QList<Livre> &livres, const Reperes &reperes, const Lieu &lieu)
{
    ReglesCommunes::sansDoublon(livres, "id", &Livre::id, lieu);
    for (qsizetype i = 0; i < livres.size(); ++i)
        livre(livres[i], reperes, Lieu(lieu, i));
}

} // namespace Quillet
