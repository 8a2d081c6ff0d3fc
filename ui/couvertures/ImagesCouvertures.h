#pragma once

#include <QCache>
#include <QDir>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QThreadPool>

namespace Quillet {

// The covers' pictures, read beside the window's own thread: painting asks and never waits.
class ImagesCouvertures : public QObject
{
    Q_OBJECT

public:
    explicit ImagesCouvertures(const QDir &dossier, QObject *parent = nullptr);
    ~ImagesCouvertures() override;

    // Another folder, or the same after pictures have come: what was read counts no more.
    void setDossier(const QDir &dossier);
    // This file has come into the folder since.
    void ajouter(const QString &fichier);
    // The picture named after `couverture` without its extension, filling `pixels` of the device; null when it is not
    // read yet (then `prete` follows) or when there is none.
    QImage image(const QString &couverture, const QSize &pixels);

signals:
    void prete(const QString &couverture); // empty: any may have changed

private:
    void recevoir(int lot, const QString &couverture, const QString &cle, const QImage &image);

    QDir dossier_;
    QHash<QString, QString> fichiers_; // by base name
    QCache<QString, QImage> images_;   // cost in KiB
    QSet<QString> enLecture_;
    int rang_ = 0;
    int lot_ = 0; // of pictures: what is still being read of a former folder is not taken
    QThreadPool lecteurs_;
};

} // namespace Quillet
