#include "echanges/Bagage.h"

#include "documents/NumerotationFactures.h"
#include "echanges/Disque.h"
#include "echanges/PiecesDArchive.h"
#include "model/Couvertures.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFileInfo>

#include <algorithm>

namespace Quillet {

namespace {

QString enTexte(Origine origine)
{
    return origine == Origine::administrateur ? QStringLiteral("administrateur") : QStringLiteral("utilisateur");
}

class Rassemblement
{
public:
    Rassemblement(const Demeure &demeure, bool propres) : demeure_(demeure), propres_(propres) {}

    // Books before pictures: a picture is on the disk before a book names it.
    Bagage tout(QDate jour)
    {
        if (propres_)
            prendreLesDonnees();
        else
            prendreSiLisible<ModificationsLivres>(Stockage::fichierDesLivres());
        prendreSiLisible<FraisPaypal>(Stockage::fichierDesFrais());
        for (const QString &nom : Disque::fichiers(demeure_.utilisateur.path()))
            if (PiecesDArchive::estUnTarif(nom))
                prendreSiLisible<TarifsColissimo>(nom);
        prendreLesSeries();
        std::ranges::sort(bagage_.pieces, {}, &Bagage::Piece::nom);
        bagage_.manifeste = {.programme = QCoreApplication::applicationVersion(),
                             .jour = jour,
                             .origine = propres_ ? enTexte(demeure_.donnees.origine()) : Manifeste::exemple,
                             .empreinte = empreinte()};
        const QByteArray manifeste = Json::encoder(bagage_.manifeste);
        bagage_.pieces.prepend({PiecesDArchive::manifeste, manifeste, {}, manifeste.size()});
        return bagage_;
    }

private:
    void ajouter(const QString &nom, const QByteArray &octets)
    {
        bagage_.pieces.append({nom, octets, {}, octets.size()});
    }

    [[nodiscard]] static QByteArray lire(const QDir &dossier, const QString &nom)
    {
        const QString chemin = dossier.filePath(nom);
        if (auto octets = Fichier::lireOuRefuser(chemin, Fichier::Borne::donnees))
            return *octets;
        throw ErreurStockage(chemin, QStringLiteral("fichier introuvable"));
    }

    // A user's file that cannot be read is ignored when the program starts: nobody would want it elsewhere.
    template <typename T>
    void prendreSiLisible(const QString &nom)
    {
        const auto octets = Fichier::lireOuRefuser(demeure_.utilisateur.filePath(nom), Fichier::Borne::donnees);
        if (!octets)
            return;
        try {
            static_cast<void>(Json::decoder<T>(*octets, nom));
            ajouter(nom, *octets);
        } catch (const Json::Erreur &erreur) {
            bagage_.absents.append(erreur.texte());
        }
    }

    template <typename T>
    void prendreDesDonnees(const QString &nom)
    {
        const QByteArray octets = lire(demeure_.donnees.dossier(), nom);
        static_cast<void>(Json::decoder<T>(octets, nom));
        ajouter(PiecesDArchive::propres + nom, octets);
    }

    void prendreLesDonnees()
    {
        const QString livres = QStringLiteral("livres.json");
        if (demeure_.donnees.origine()
            == Origine::administrateur) // nobody elsewhere has what the user's changes stand over
            ajouter(PiecesDArchive::propres + livres, Json::encoder(demeure_.livres));
        else
            prendreDesDonnees<QList<Livre>>(livres);
        prendreDesDonnees<Reglages>(QStringLiteral("reglages.json"));
        prendreDesDonnees<QList<Destination>>(QStringLiteral("destinations.json"));
        if (const QString pays = QStringLiteral("pays.json"); Fichier::existe(demeure_.donnees.chemin(pays)))
            prendreDesDonnees<QList<Pays>>(pays);
        for (const QString &nom : Disque::fichiers(demeure_.donnees.dossier().path()))
            if (PiecesDArchive::estUnTarif(nom))
                prendreDesDonnees<TarifsColissimo>(nom);
        prendreLesCouvertures();
    }

    void prendreLesCouvertures()
    {
        const QDir dossier(demeure_.donnees.chemin(QStringLiteral("couvertures")));
        for (const QString &nom : Disque::fichiers(dossier.path())) {
            if (!PiecesDArchive::estUneCouverture(nom))
                continue;
            const QFileInfo image(dossier.filePath(nom));
            if (image.size() > Fichier::Borne::image)
                bagage_.lourdes.append(QStringLiteral("%1 : l’image est trop lourde").arg(image.fileName()));
            else
                bagage_.pieces.append(
                    {PiecesDArchive::couvertures + image.fileName(), {}, image.absoluteFilePath(), image.size()});
        }
        bagage_.absents += bagage_.lourdes;
    }

    void prendreLesSeries()
    {
        const NumerotationFactures numerotation{demeure_.preferences};
        SeriesFactures series;
        static_cast<void>(Fichier::lireOuRefuser(demeure_.preferences.fichier(), Fichier::Borne::preferences));
        try { // what was lost there
            for (const Vendeur vendeur : tous<Vendeur>)
                if (const QString numero = numerotation.dernier(vendeur); !numero.isEmpty())
                    series.insert(vendeur, numero);
        } catch (const ErreurStockage &erreur) {
            bagage_.absents.append(erreur.texte());
        }
        if (!series.isEmpty())
            ajouter(PiecesDArchive::series, Json::encoder(series));
    }

    [[nodiscard]] QString empreinte() const
    {
        QCryptographicHash empreinte(QCryptographicHash::Sha256);
        for (const Bagage::Piece &piece : bagage_.pieces) {
            empreinte.addData(QStringLiteral("%1\n%2\n").arg(piece.nom, QString::number(piece.taille)).toUtf8());
            empreinte.addData(piece.octets);
        }
        return QString::fromLatin1(empreinte.result().toHex());
    }

    const Demeure &demeure_;
    bool propres_;
    Bagage bagage_;
};

} // namespace

Bagage Bagage::de(const Demeure &demeure, QDate jour, Propres propres)
{
    return Rassemblement(demeure, propres == Propres::prises && demeure.aDesDonneesPropres()).tout(jour);
}

} // namespace Quillet
