#pragma once

#include <QWidget>

#include <optional>

namespace Quillet {

class BoutonCopier;
class Libelle;

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

private:
    QString titre_;
    Libelle *affichage_;
    BoutonCopier *bouton_;
};

} // namespace Quillet
