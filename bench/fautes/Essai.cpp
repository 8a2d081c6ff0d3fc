#include "bench/fautes/Essai.h"

#include <QFile>

#include <array>
#include <cstdio>

namespace Quillet {

namespace {

const QByteArray abime = "{ mes prix, mal fermés";

Geste gesteEntier(const QString &fichier)
{
    for (const Geste &geste : gestesEntiers())
        if (geste.fichier == fichier)
            return geste;
    Q_UNREACHABLE();
}

void direLaFaute(const QString &nom, const QString &faute)
{
    std::fprintf(stderr, "%s : %s\n", qPrintable(nom), qPrintable(faute));
}

} // namespace

Fichiers fichiers(const QString &dossier)
{
    Fichiers trouves;
    const QDir repertoire(dossier);
    for (const QString &nom : repertoire.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
        QFile fichier(repertoire.filePath(nom));
        trouves.insert(nom, fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray());
    }
    return trouves;
}

int nombreDeRestes(const QString &dossier)
{
    return int(QDir(dossier).entryList({QStringLiteral("*.??????")}, QDir::Files | QDir::Hidden).size());
}

Essai::Essai(Ressources ressources, Geste geste, Depart depart, const QString &temoin)
    : ressources_(std::move(ressources)), geste_(std::move(geste)), depart_(depart)
{
    const auto poste = ouvrir(temoin);
    avant_.emplace(*poste);
    fichiersAvant_ = fichiers(temoin);
    geste_.faire(*poste, 8);
    apres_.emplace(*poste);
    fichiersApres_ = fichiers(temoin);
    for (const QString &nom : fichiersApres_.keys())
        QFile::remove(QDir(temoin).filePath(nom));
}

QString Essai::nom() const
{
    constexpr std::array departs{"dossier vide", "fichier connu", "fichier abîmé"};
    return QStringLiteral("%1, %2").arg(QString::fromUtf8(geste_.nom), QString::fromUtf8(departs.at(int(depart_))));
}

std::unique_ptr<Poste> Essai::ouvrir(const QString &dossier) const
{
    if (depart_ == Depart::connu) {
        Poste hier(ressources_, dossier);
        gesteEntier(geste_.fichier).faire(hier, 5);
    } else if (depart_ == Depart::illisible) {
        QFile fichier(QDir(dossier).filePath(geste_.fichier));
        if (!QDir().mkpath(dossier) || !fichier.open(QIODevice::WriteOnly) || fichier.write(abime) != abime.size())
            qFatal("%s", qPrintable(fichier.errorString()));
    }
    auto poste = std::make_unique<Poste>(ressources_, dossier);
    geste_.avant(*poste);
    return poste;
}

Essai::Issue Essai::jouer(const QString &dossier, const std::function<void()> &armer,
                          const std::function<void()> &lever) const
{
    const auto poste = ouvrir(dossier);
    QString refus;
    armer();
    try {
        geste_.faire(*poste, 8);
    } catch (const Echec &erreur) {
        refus = erreur.texte();
    }
    lever();
    QString constat = faute(dossier, *poste, refus, fichiers(dossier));
    if (constat.isEmpty())
        constat = fauteEnsuite(dossier, *poste);
    if (!constat.isEmpty())
        direLaFaute(nom(), refus.isEmpty() ? constat : constat + QStringLiteral(" (") + refus + u')');
    return !constat.isEmpty() ? Issue::faute : refus.isEmpty() ? Issue::reussi : Issue::refuse;
}

// Memory is as before and every file too, or both are as after a save without faults.
QString Essai::faute(const QString &dossier, const Poste &poste, const QString &refus, const Fichiers &trouves) const
{
    const Contenu memoire(poste);
    if (refus.isEmpty()) {
        if (memoire != *apres_)
            return QStringLiteral("réussi, mais la mémoire n’a pas suivi");
        if (trouves != fichiersApres_)
            return QStringLiteral("réussi, mais le dossier tient ") + trouves.keys().join(u' ');
        return {};
    }
    if (refus.contains(QStringLiteral("erreur du système"))
        || (!refus.contains(QDir(dossier).dirName()) && !refus.startsWith(QStringLiteral("Ressource illisible"))))
        return QStringLiteral("refusé sans dire pourquoi ni quoi");
    if (memoire != *avant_)
        return QStringLiteral("refusé, mais la mémoire a changé");
    Fichiers permis = fichiersAvant_;
    const QString copie = geste_.fichier + QStringLiteral(".illisible");
    if (depart_ == Depart::illisible && trouves.contains(copie))
        permis.insert(copie, abime);
    if (trouves != permis)
        return QStringLiteral("refusé, mais le dossier tient ") + trouves.keys().join(u' ');
    return {};
}

// Once the fault is over, the same file takes the next save.
QString Essai::fauteEnsuite(const QString &dossier, Poste &poste) const
{
    try {
        gesteEntier(geste_.fichier).faire(poste, 9);
    } catch (const ErreurStockage &erreur) {
        return QStringLiteral("et ensuite : ") + erreur.texte();
    }
    if (!Contenu(Poste(ressources_, dossier)).memesDonnees(Contenu(poste)))
        return QStringLiteral("ensuite, le disque ne tient pas ce que tient la mémoire");
    return {};
}

Essai::Issue Essai::releverApresArret(const QString &dossier, Arret arret) const
{
    Poste poste(ressources_, dossier);
    const Contenu trouve(poste);
    const Fichiers gardes = fichiers(dossier);
    const bool ancien = trouve.memesDonnees(*avant_);
    QString constat;
    if (arret == Arret::apres && !trouve.memesDonnees(*apres_))
        constat = QStringLiteral("enregistré, et ce n’est plus là");
    else if (!ancien && !trouve.memesDonnees(*apres_))
        constat = QStringLiteral("arrêté, et le fichier n’est ni l’ancien ni le nouveau");
    else if (depart_ == Depart::illisible && !gardes.values().contains(abime))
        constat = QStringLiteral("arrêté, et ce qui était abîmé n’est plus nulle part");
    else
        constat = fauteEnsuite(dossier, poste);
    if (constat.isEmpty())
        return ancien ? Issue::refuse : Issue::reussi;
    direLaFaute(nom(), constat);
    return Issue::faute;
}

QList<Essai> essais(const Ressources &ressources, const QString &temoin)
{
    QList<Essai> tous;
    for (const Geste &geste : gestes())
        for (const Depart depart : {Depart::vide, Depart::connu, Depart::illisible})
            tous.append(Essai(ressources, geste, depart, temoin));
    return tous;
}

} // namespace Quillet
