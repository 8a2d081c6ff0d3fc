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

    // The picture named after `couverture` without its extension, filling `pixels` of the device; null when it is not
    // read yet (then `prete` follows) or when there is none.
    QImage image(const QString &couverture, const QSize &pixels);

signals:
    void prete(const QString &couverture);

private:
    void recevoir(const QString &couverture, const QString &cle, const QImage &image);

    QDir dossier_;
    QHash<QString, QString> fichiers_; // by base name
    QCache<QString, QImage> images_;   // cost in KiB
    QSet<QString> enLecture_;
    int rang_ = 0;
    QThreadPool lecteurs_;
};

} // namespace Quillet
