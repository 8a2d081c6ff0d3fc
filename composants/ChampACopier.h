#pragma once

#include <QWidget>

#include <optional>

class QBoxLayout;

namespace Quillet {

class BoutonCopier;
class Libelle;
class LibelleASymbole;

// One value the seller copies elsewhere: its title, what is shown, and a button that puts the value on the clipboard.
class ChampACopier : public QWidget
{
    Q_OBJECT

public:
    // The title stands over the value, or beside it in a column of the given width (px). Without a title, the value
    // goes on from the field above.
    explicit ChampACopier(const QString &titre, std::optional<int> colonneDuTitre = std::nullopt,
                          QWidget *parent = nullptr);

    // `affichage` is shown instead of the value when it is not empty.
    void montrer(const QString &valeur, const QString &affichage = {});
    // A quiet tick after the title that stands over the value: it was copied already. Nothing beside the value.
    void marquer(bool copie);
    // As its button does, and has it said which one it was.
    void copier();
    [[nodiscard]] QString titre() const { return titre_; }
    [[nodiscard]] QString valeur() const { return valeur_; }

signals:
    void copie();

private:
    QBoxLayout *avecCoche(QWidget *titre);

    QString titre_;
    QString valeur_;
    LibelleASymbole *coche_ = nullptr; // none beside the value
    Libelle *affichage_;
    BoutonCopier *bouton_;
};

} // namespace Quillet
