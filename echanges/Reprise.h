#pragma once

#include "echanges/Archive.h"
#include "echanges/ControleDesCouvertures.h"
#include "echanges/Demeure.h"
#include "echanges/Manifeste.h"

#include <QDateTime>
#include <QStringList>

#include <functional>
#include <memory>

namespace Quillet {

// The import has begun to stand, and could not be brought to its end: it will be when the program starts again, which
// must be before anything else is read or saved.
class RepriseInachevee : public Echec
{
public:
    explicit RepriseInachevee(const QString &raison);
};

// An archive unpacked beside the user's data and found sound. Nothing of it counts before it is taken; it goes when
// this does.
class Reprise
{
public:
    // Of these pictures, the ones that must not be shown; throws Echec.
    using Controle = std::function<QStringList(const QStringList &chemins)>;
    static QStringList duProgramme(const QStringList &chemins) { return ControleDesCouvertures::refusees(chemins); }
    // Throws Echec: what the archive is, or what its data have that keeps them from being loaded.
    static std::unique_ptr<Reprise> preparer(const QString &archive, const Demeure &demeure, QDate aujourdhui,
                                             const Controle &controler = duProgramme);
    // The same without its pictures: to be looked at, not to be taken.
    static std::unique_ptr<Reprise> regarder(const QString &archive, const Demeure &demeure, QDate aujourdhui);
    ~Reprise();
    Q_DISABLE_COPY_MOVE(Reprise)

    [[nodiscard]] const Manifeste &manifeste() const { return manifeste_; }
    // Without, the sellers' data stay as they are: it comes from the shipped example.
    [[nodiscard]] bool aDesDonneesPropres() const { return propres_; }
    // As they will be in force.
    [[nodiscard]] const Donnees &donnees() const { return donnees_; }
    [[nodiscard]] const SeriesFactures &series() const { return series_; }
    // What `--verifier` would have to say of them.
    [[nodiscard]] const QStringList &remarques() const { return remarques_; }
    // What the archive has that stays there.
    [[nodiscard]] const QStringList &inconnus() const { return inconnus_; }

    // Does what may be long, and comes back once it is done; throws what that throws.
    using Attente = std::function<void(const std::function<void()> &travail)>;
    static void surPlace(const std::function<void()> &travail) { travail(); }
    // All of it but for other series than these, or nothing; the former state is kept as a copy. The series are written
    // where this is called: preferences are written there. Throws Echec when nothing was changed, RepriseInachevee
    // when it stopped on its way.
    void prendre(const SeriesFactures &series, const QDateTime &maintenant, const Attente &attendre = surPlace);

    // The same in place of own data that cannot be read, and so are in no copy: their folder is put aside as it is,
    // under the name that this gives. Only of an archive that has own data; the series stay.
    QString prendreALaPlace(const QDateTime &maintenant, const Attente &attendre = surPlace);

    // Ends what was begun before the program stopped: to be called before anything is loaded. Throws Echec when it
    // cannot be: nothing must be loaded then.
    static void achever(const QDir &utilisateur, const Preferences &preferences);

private:
    using Ouverture = std::function<Archive::Contenu(const QString &dossier)>;
    Reprise(const Demeure &demeure, QDate aujourdhui, const Ouverture &ouvrir, const Controle &controler);
    void laisserLesMauvaisesImages(const Controle &controler);
    void charger(QDate aujourdhui);
    void laisserOuPrendreLesModifications();
    void lireLesSeries();
    void completer() const;
    void engager(const SeriesFactures &series, const QString &ecart) const;
    void poursuivreJusquAuBout(const Attente &attendre, const std::function<void()> &commencer) const;
    static void finir(const QDir &utilisateur, const Preferences &preferences);

    Demeure demeure_;
    QDir dossier_; // where it is unpacked
    Manifeste manifeste_;
    bool propres_ = false;
    Donnees donnees_;
    SeriesFactures series_;
    QStringList noms_;
    QStringList remarques_;
    QStringList inconnus_;
};

} // namespace Quillet
