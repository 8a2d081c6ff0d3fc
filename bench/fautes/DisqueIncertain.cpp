#include "bench/fautes/DisqueIncertain.h"

#include <QDirIterator>
#include <QFile>

#include <sys/stat.h>

#include <algorithm>
#include <stdexcept>

namespace Quillet {

namespace {

using EtatSysteme = struct stat;

EtatSysteme etat(const QString &chemin)
{
    EtatSysteme lu{};
    if (stat(QFile::encodeName(chemin).constData(), &lu) != 0)
        throw std::runtime_error("stat");
    return lu;
}

QByteArray contenu(const QString &chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        throw std::runtime_error("contenu");
    return fichier.readAll();
}

QString dossierDe(const QString &nom)
{
    return nom.left(std::max<qsizetype>(0, nom.lastIndexOf(u'/')));
}

template <typename T>
void suivre(QList<T> &valeurs, const T &valeur)
{
    if (valeurs.isEmpty() || valeurs.last() != valeur)
        valeurs.append(valeur);
}

template <typename T>
QList<T> distincts(const QList<T> &valeurs)
{
    QList<T> vus;
    for (const T &valeur : valeurs)
        if (!vus.contains(valeur))
            vus.append(valeur);
    return vus;
}

} // namespace

DisqueIncertain::DisqueIncertain(QString racine) : racine_(std::move(racine))
{
    dossiers_.insert(etat(racine_).st_ino);
    regarder();
    for (QList<Numero> &numeros : noms_)
        numeros = {numeros.last()};
    for (QList<QByteArray> &contenus : contenus_)
        contenus = {contenus.last()};
}

void DisqueIncertain::regarder()
{
    QMap<QString, Numero> presents;
    QDirIterator iterateur(racine_, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
    while (iterateur.hasNext()) {
        const QString chemin = iterateur.next();
        const EtatSysteme lu = etat(chemin);
        presents.insert(chemin.sliced(racine_.size() + 1), lu.st_ino);
        if (S_ISDIR(lu.st_mode)) {
            dossiers_.insert(lu.st_ino);
        } else {
            if (!contenus_.contains(lu.st_ino))
                contenus_[lu.st_ino] = {QByteArray()};
            suivre(contenus_[lu.st_ino], contenu(chemin));
        }
    }
    for (const QString &nom : presents.keys() + noms_.keys()) {
        if (!noms_.contains(nom))
            noms_[nom] = {0};
        suivre(noms_[nom], presents.value(nom, 0));
    }
}

void DisqueIncertain::prendre(const QString &ouvert)
{
    const EtatSysteme lu = etat(ouvert);
    if (!S_ISDIR(lu.st_mode)) {
        contenus_[lu.st_ino] = {contenu(ouvert)};
        return;
    }
    const auto est = [&](const QString &dossier) {
        return dossier.isEmpty() ? etat(racine_).st_ino == lu.st_ino
                                 : noms_.contains(dossier) && noms_[dossier].last() == lu.st_ino;
    };
    for (auto nom = noms_.begin(); nom != noms_.end(); ++nom)
        if (est(dossierDe(nom.key())))
            nom.value() = {nom.value().last()};
}

// A folder's own name comes before those in it.
QList<QMap<QString, ino_t>> DisqueIncertain::choixDesNoms() const
{
    QList<QMap<QString, Numero>> choix{{}};
    for (const auto &[nom, numeros] : noms_.asKeyValueRange()) {
        QList<QMap<QString, Numero>> suivants;
        for (const QMap<QString, Numero> &debut : choix) {
            const QString dossier = dossierDe(nom);
            if (!dossier.isEmpty() && !debut.contains(dossier)) {
                suivants.append(debut);
                continue;
            }
            for (const Numero numero : distincts(numeros)) {
                suivants.append(debut);
                if (numero)
                    suivants.last().insert(nom, numero);
            }
        }
        choix = suivants;
    }
    return choix;
}

// Of the last: its beginning, its length alone, and its end without what comes before.
QList<QByteArray> DisqueIncertain::contenus(Numero numero) const
{
    QList<QByteArray> tous = contenus_[numero];
    if (tous.size() > 1) {
        const QByteArray entier = tous.last();
        const qsizetype moitie = entier.size() / 2;
        tous +=
            {entier.left(moitie), QByteArray(entier.size(), '\0'), QByteArray(moitie, '\0') + entier.sliced(moitie)};
    }
    return distincts(tous);
}

QSet<Arbre> DisqueIncertain::etats() const
{
    QSet<Arbre> etats;
    for (const QMap<QString, Numero> &noms : choixDesNoms()) {
        QList<QMap<Numero, QByteArray>> choix{{}};
        for (const Numero numero : distincts(noms.values())) {
            if (dossiers_.contains(numero))
                continue;
            QList<QMap<Numero, QByteArray>> suivants;
            for (const auto &debut : choix)
                for (const QByteArray &contenu : contenus(numero)) {
                    suivants.append(debut);
                    suivants.last().insert(numero, contenu);
                }
            choix = suivants;
        }
        for (const auto &contenusChoisis : choix) {
            Arbre arbre;
            for (const auto &[nom, numero] : noms.asKeyValueRange())
                arbre.insert(nom, dossiers_.contains(numero) ? std::nullopt : std::optional(contenusChoisis[numero]));
            etats.insert(arbre);
        }
    }
    return etats;
}

size_t qHash(const Arbre &arbre, size_t graine)
{
    for (const auto &[nom, contenu] : arbre.asKeyValueRange())
        graine = qHashMulti(graine, nom, contenu.value_or(QByteArray()));
    return graine;
}

} // namespace Quillet
