#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

#include <sys/types.h>

#include <optional>

namespace Quillet {

// Names under a folder with their contents; none for a folder.
struct Arbre : QMap<QString, std::optional<QByteArray>>
{
};
size_t qHash(const Arbre &arbre, size_t graine);

// What a disk may hold of a folder when the power goes: what it was asked to take, and of all that was done since, any
// part. Each name leads to what it led to at any moment since its folder was taken, each file holds anything that it
// held since, or a part of the last.
class DisqueIncertain
{
public:
    // The disk holds all of it.
    explicit DisqueIncertain(QString racine);
    // Something may have been done.
    void regarder();
    // The disk was asked to take the file or folder that a process has open under this path, and did.
    void prendre(const QString &ouvert);

    [[nodiscard]] QSet<Arbre> etats() const;

private:
    using Numero = ino_t; // 0: nothing there
    [[nodiscard]] QList<QMap<QString, Numero>> choixDesNoms() const;
    [[nodiscard]] QList<QByteArray> contenus(Numero numero) const;

    QString racine_;
    QMap<QString, QList<Numero>> noms_;        // since the disk took the folder, first to last
    QMap<Numero, QList<QByteArray>> contenus_; // the same
    QSet<Numero> dossiers_;
};

} // namespace Quillet
