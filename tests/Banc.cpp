#include "tests/Banc.h"

#include <QFile>

namespace Quillet {

namespace {

void ecrire(const QString &chemin, const QByteArray &octets)
{
    QDir().mkpath(QFileInfo(chemin).path());
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
        qFatal("%s", qPrintable(fichier.errorString()));
}

} // namespace

QString lisible(QString texte)
{
    return texte.replace(QChar(0x202F), u' ').replace(QChar(0x00A0), u' ');
}

Livre unLivre(qint64 id, Vendeur vendeur, Centimes prix, std::optional<Grammes> poids)
{
    return {.id = id,
            .titre = QStringLiteral("Livre %1").arg(id),
            .titreComplet = QStringLiteral("Livre %1, roman").arg(id),
            .auteur = QStringLiteral("Une autrice"),
            .vendeur = vendeur,
            .prix = prix,
            .poids = poids,
            .isbn = QStringLiteral("978-0-00-000000-2"),
            .pages = 200,
            .format = QStringLiteral("14 × 21 cm"),
            .langue = QStringLiteral("français"),
            .disponible = true,
            .couverture = QStringLiteral("sans-image.jpg"),
            .teinte = {30, 90, 120}};
}

CodeDestination vers(const char *code)
{
    return CodeDestination(QString::fromLatin1(code));
}

TarifsColissimo desTarifs(const char *validite, Centimes premierPrix)
{
    const QList<Palier> paliers{
        {Grammes{250}, premierPrix}, {Grammes{500}, Centimes{759}}, {Grammes{2000}, Centimes{1119}}};
    const auto grille = [&](ZoneColissimo code, const QString &nom, FamilleTarifs famille) {
        return GrilleColissimo{code, nom, famille, nom + QStringLiteral(" : ici et là"), paliers};
    };
    return {Jour(QString::fromLatin1(validite)),
            Jour(QStringLiteral("2025-12-15")),
            QUrl(QStringLiteral("https://poste.example/tarifs")),
            {grille(ZoneColissimo::franceDomicile, QStringLiteral("France"), FamilleTarifs::france),
             grille(ZoneColissimo::ueSuisse, QStringLiteral("UE et Suisse"), FamilleTarifs::europe)}};
}

Banc::Banc()
{
    livres = {unLivre(1, Vendeur::davrel, Centimes{1500}, Grammes{200}),
              unLivre(2, Vendeur::davrel, Centimes{2200}, std::nullopt),
              unLivre(3, Vendeur::mireva, Centimes{1800}, Grammes{300}),
              unLivre(4, Vendeur::davrel, Centimes{900}, Grammes{150})};
    livres[3].disponible = false;
    tarifs = {desTarifs("2026-01-01", Centimes{549})};
    const auto destination = [](const char *code, const char *nom, const char *name, const char *grille,
                                RegionPaypal region, bool douane) {
        const QString fr = QString::fromUtf8(nom);
        const QString en = QString::fromUtf8(name);
        return Destination{vers(code), fr, en, fr, fr, en, CodeGrille(QLatin1String(grille)), region, douane, {}};
    };
    destinations = {
        destination("france", "France", "France", "france-domicile", RegionPaypal::eee, false),
        destination("ue", "Union européenne", "European Union", "ue-suisse", RegionPaypal::eee, false),
        destination("suisse", "Suisse", "Switzerland", "ue-suisse", RegionPaypal::autres, true),
        destination("lune", "Lune", "Moon", "zone-lune", RegionPaypal::autres, true),
    };
    destinations[1].douaneSauf = QStringLiteral("les Canaries & Ceuta");
    reglages = {
        .fraisPaypal = {Jour(QStringLiteral("2026-07-24")),
                        QUrl(QStringLiteral("https://paypal.example/frais")),
                        Taux{290},
                        Centimes{35},
                        {{RegionPaypal::autres, Taux{199}}}},
        .emballages = {{QStringLiteral("Enveloppe à bulles"), Grammes{40}}, {QStringLiteral("Carton"), Grammes{180}}},
        .douane = {QStringLiteral("Livres imprimés"), QStringLiteral("Printed books"), QStringLiteral("490199")},
        .vendeurs = {{Vendeur::davrel,
                      {.nom = QStringLiteral("Éditions Davrel"),
                       .adresse = {QStringLiteral("1 rue Exemple"), QStringLiteral("00000 Exempleville")},
                       .siret = QStringLiteral("00000000000000"),
                       .mentionTva = QStringLiteral("TVA non applicable"),
                       .retourPaypal = QStringLiteral("https://davrel.example/merci"),
                       .site = QStringLiteral("davrel.example")}}}};
}

void Banc::deposer() const
{
    ecrireRessource(QStringLiteral("livres.json"), Json::encoder(livres));
    ecrireRessource(QStringLiteral("destinations.json"), Json::encoder(destinations));
    if (!pays.isEmpty())
        ecrireRessource(QStringLiteral("pays.json"), Json::encoder(pays));
    ecrireRessource(QStringLiteral("reglages.json"), Json::encoder(reglages));
    for (const TarifsColissimo &jeu : tarifs)
        ecrireRessource(jeu.nomDeFichier(), Json::encoder(jeu));
}

std::unique_ptr<Catalogue> Banc::charger() const
{
    deposer();
    return Catalogue::charge(ressources(), stockage());
}

QString Banc::cheminUtilisateur(const QString &nom) const
{
    return dossier_.filePath(QStringLiteral("donnees/Quillet/") + nom);
}

void Banc::ecrireUtilisateur(const QString &nom, const QByteArray &octets) const
{
    ecrire(cheminUtilisateur(nom), octets);
}

QByteArray Banc::lireUtilisateur(const QString &nom) const
{
    QFile fichier(cheminUtilisateur(nom));
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

void Banc::ecrireRessource(const QString &nom, const QByteArray &octets) const
{
    ecrire(dossier_.filePath(QStringLiteral("partage/") + nom), octets);
}

} // namespace Quillet
