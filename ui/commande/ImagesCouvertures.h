#pragma once

#include <QCache>
#include <QDir>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QTimer>

// The covers' pictures, read a few at a time between two events: painting asks and never waits.
class ImagesCouvertures : public QObject
{
    Q_OBJECT

public:
    explicit ImagesCouvertures(const QDir &dossier, QObject *parent = nullptr);

    // The picture named after `couverture` without its extension, filling `pixels`; null when it is not read yet (then
    // `prete` follows) or when there is none.
    QImage image(const QString &couverture, const QSize &pixels);

signals:
    void prete(const QString &couverture);

private:
    struct Demande
    {
        QString couverture;
        QSize pixels;
        bool operator==(const Demande &) const = default;
    };

    void lireLesSuivantes();
    void lireUneFois(const Demande &demande);
    [[nodiscard]] QImage lire(const Demande &demande) const;

    QDir dossier_;
    QHash<QString, QString> fichiers_; // by base name
    QCache<QString, QImage> images_;   // cost in KiB
    QList<Demande> demandes_;
    QTimer lecture_;
};
