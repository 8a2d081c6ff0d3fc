#include "echanges/Archive.h"
#include "echanges/ArchiveRefusee.h"
#include "echanges/Disque.h"
#include "echanges/ErreurZip.h"
#include "echanges/FinDeZip.h"
#include "echanges/PiecesDArchive.h"
#include "model/CauseSysteme.h"
#include "model/Fichier.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <array>
#include <functional>

namespace Quillet {

namespace {

constexpr zip_uint32_t sortes = 0170000;
constexpr zip_uint32_t sorteFichier = 0100000;

// A name as the user is shown it.
QString cite(const QString &nom)
{
    constexpr qsizetype lettres = 60;
    QString propre = nom.left(lettres);
    for (QChar &signe : propre)
        if (!signe.isPrint())
            signe = u'?';
    return QStringLiteral("« %1 »").arg(propre);
}

// One entry, as far as it can be judged before any of it is read.
struct Entete
{
    zip_uint64_t rang = 0;
    QString nom;
};

class Lecture
{
public:
    explicit Lecture(const QString &chemin, qint64 total = PiecesDArchive::total) : reste_(total)
    {
        if (const QFileInfo info(chemin); info.exists() && !info.isFile()) // a pipe could be waited for without end
            throw ArchiveRefusee(QStringLiteral("ce n’est pas un fichier ordinaire"));
        if (Fichier::excede(chemin, PiecesDArchive::total + FinDeZip::listeMaximale))
            throw ArchiveRefusee(QStringLiteral("elle est trop grosse"));
        const auto nombreuse = [] { return ArchiveRefusee(QStringLiteral("elle contient trop de fichiers")); };
        if (FinDeZip::annonceTrop(chemin))
            throw nombreuse();
        int code = 0;
        archive_.reset(zip_open(QFile::encodeName(chemin).constData(), ZIP_RDONLY, &code));
        if (!archive_)
            throw ArchiveRefusee(Zip::enFrancais(Zip::Erreur(code).ici()));
        const zip_int64_t nombre = zip_get_num_entries(archive_.get(), 0);
        if (nombre > PiecesDArchive::nombre)
            throw nombreuse();
        QSet<QString> noms;
        for (zip_uint64_t rang = 0; rang < static_cast<zip_uint64_t>(nombre); ++rang) {
            const QString nom = nomDe(rang);
            if (noms.contains(nom))
                throw ArchiveRefusee(QStringLiteral("elle contient deux fois %1").arg(cite(nom)));
            noms.insert(nom);
            exigerUnFichier(rang, nom);
            if (!nom.endsWith(u'/')) // a folder, which some programs list beside what it holds
                entetes_.append({rang, nom});
        }
    }

    [[nodiscard]] const QList<Entete> &entetes() const { return entetes_; }

    [[nodiscard]] Manifeste manifeste()
    {
        for (const Entete &entete : entetes_)
            if (entete.nom == PiecesDArchive::manifeste) {
                QByteArray octets;
                lire(entete, Fichier::Borne::preferences, [&](QByteArrayView morceau) { octets.append(morceau); });
                return decoder(octets);
            }
        throw ArchiveRefusee(QStringLiteral("elle n’a pas été faite par Quillet"));
    }

    // Bounds what is really there, whatever the archive announces.
    void lire(const Entete &entete, qint64 borne, const std::function<void(QByteArrayView)> &prendre)
    {
        const Zip::Entree entree(zip_fopen_index(archive_.get(), entete.rang, 0));
        if (!entree)
            throw ArchiveRefusee(Zip::enFrancais(zip_get_error(archive_.get())));
        std::array<char, 65536> tampon{};
        qint64 lus = 0;
        while (true) {
            const zip_int64_t morceau = zip_fread(entree.get(), tampon.data(), tampon.size());
            if (morceau < 0)
                throw ArchiveRefusee(Zip::enFrancais(zip_file_get_error(entree.get())));
            if (morceau == 0)
                return;
            lus += morceau;
            reste_ -= morceau;
            if (lus > borne)
                throw ArchiveRefusee(QStringLiteral("%1 est trop gros").arg(cite(entete.nom)));
            if (reste_ < 0)
                throw ArchiveRefusee(QStringLiteral("ce qu’elle contient est trop gros"));
            prendre({tampon.data(), static_cast<qsizetype>(morceau)});
        }
    }

private:
    [[nodiscard]] QString nomDe(zip_uint64_t rang)
    {
        const char *brut = zip_get_name(archive_.get(), rang, 0);
        const QString nom = QString::fromUtf8(brut ? brut : "");
        if (nom.isEmpty() || nom.contains(QChar::ReplacementCharacter) || PiecesDArchive::sEchappe(nom))
            throw ArchiveRefusee(QStringLiteral("un de ses fichiers, %1, se placerait ailleurs").arg(cite(nom)));
        return nom;
    }

    void exigerUnFichier(zip_uint64_t rang, const QString &nom)
    {
        zip_uint8_t systeme = 0;
        zip_uint32_t attributs = 0;
        zip_file_get_external_attributes(archive_.get(), rang, 0, &systeme, &attributs);
        const zip_uint32_t sorte = systeme == ZIP_OPSYS_UNIX ? (attributs >> 16U) & sortes : 0;
        if (sorte != 0 && sorte != sorteFichier && !nom.endsWith(u'/'))
            throw ArchiveRefusee(QStringLiteral("%1 n’est pas un fichier ordinaire").arg(cite(nom)));
    }

    [[nodiscard]] static Manifeste decoder(const QByteArray &octets)
    {
        try {
            const Json::Lieu lieu(PiecesDArchive::manifeste);
            const QJsonObject objet = Json::analyser(octets, lieu).toObject();
            qint64 format = 0;
            Json::lire(objet.value(QStringLiteral("format")), Json::Lieu(lieu, QStringLiteral("format")), format);
            if (format > Manifeste::formatConnu)
                throw ArchiveRefusee(QStringLiteral("elle vient d’une version plus récente de Quillet"));
            return Json::decoder<Manifeste>(octets, PiecesDArchive::manifeste);
        } catch (const Json::Erreur &erreur) {
            throw ArchiveRefusee(erreur.texte());
        }
    }

    Zip::Archive archive_;
    QList<Entete> entetes_;
    qint64 reste_;
};

void deposer(Lecture &lecture, const Entete &entete, qint64 borne, const QString &chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(fichier.errorString()));
    lecture.lire(entete, borne, [&](QByteArrayView morceau) {
        if (!Fichier::toutEcrire(fichier, morceau))
            throw ErreurStockage(chemin, CauseSysteme::enFrancais(fichier.errorString()));
    });
}

template <typename Predicat>
Archive::Contenu deposer(Lecture &lecture, const QDir &dossier, Predicat voulue)
{
    Archive::Contenu contenu{.manifeste = lecture.manifeste()};
    Fichier::creerDossier(dossier.filePath(PiecesDArchive::couvertures.chopped(1)));
    for (const Entete &entete : lecture.entetes()) {
        const auto borne = PiecesDArchive::borne(entete.nom);
        if (!borne) {
            contenu.inconnus.append(cite(entete.nom));
        } else if (voulue(entete.nom)) {
            deposer(lecture, entete, *borne, dossier.filePath(entete.nom));
            contenu.noms.append(entete.nom);
        }
    }
    return contenu;
}

} // namespace

Manifeste Archive::manifeste(const QString &chemin)
{
    return Lecture(chemin).manifeste();
}

Archive::Contenu Archive::deballer(const QString &chemin, const QString &dossier, qint64 total)
{
    const auto tout = [](const QString &) { return true; };
    Lecture lecture(chemin, total);
    const Contenu contenu = deposer(lecture, QDir(dossier), tout);
    for (const QString &nom : contenu.noms)
        Disque::synchroniser(QDir(dossier).filePath(nom));
    for (const QString &place : {PiecesDArchive::couvertures, PiecesDArchive::propres, QString()})
        Disque::synchroniser(QDir(dossier).filePath(place));
    return contenu;
}

Archive::Contenu Archive::entrouvrir(const QString &chemin, const QString &dossier)
{
    const auto sansImage = [](const QString &nom) { return !nom.startsWith(PiecesDArchive::couvertures); };
    Lecture lecture(chemin);
    return deposer(lecture, QDir(dossier), sansImage);
}

} // namespace Quillet
