#pragma once

#include <QDir>
#include <QLocalServer>
#include <QLockFile>

#include <chrono>

namespace Quillet {

// Only one Quillet runs per session and per data folder: two would write the same files. A second start asks the first
// to show itself.
class InstanceUnique : public QObject
{
    Q_OBJECT

public:
    // `commun`: the folder that holds the data one, which may not be there yet. `patience`: for the first to answer.
    explicit InstanceUnique(const QDir &commun, std::chrono::milliseconds patience = std::chrono::seconds(5));
    ~InstanceUnique() override;
    Q_DISABLE_COPY_MOVE(InstanceUnique)
    // The folder of the platform's per-user data.
    static QDir communDeLUtilisateur();

    // False: another one runs; it has come to show itself, and was given the token by which whoever started this one
    // allows a window to come forward (empty when there is none). Throws Echec when it cannot be reached.
    [[nodiscard]] bool prendreLaPlace(const QByteArray &jeton);

    // The sellers' own folder may have come, or be another one, since.
    void suivreLesDonnees();

signals:
    void appelee(const QByteArray &jeton);

private:
    [[nodiscard]] bool appelerLaPremiere(const QByteArray &jeton) const;
    [[nodiscard]] bool verrouiller(const QString &dossier);
    void ecouter(QLocalSocket *appel);

    QDir commun_;
    std::chrono::milliseconds patience_;
    QString adresse_;
    QLockFile verrou_;
    QList<int> verrousDesDonnees_; // each holds its lock as long as it is open
    QLocalServer serveur_;
};

} // namespace Quillet
