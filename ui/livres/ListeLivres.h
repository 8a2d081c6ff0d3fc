#pragma once

#include "composants/ListeDite.h"
#include "model/EditionLivres.h"

#include <QListView>

#include <optional>

namespace Quillet {

class DelegueLivres;
class ModeleLivres;

// The list itself: it is gone through, and has its seller's own books moved by hand or by keys within their group.
class ListeLivres : public ListeDite<QListView>
{
    Q_OBJECT

public:
    ListeLivres(const ModeleLivres &modele, const DelegueLivres &dessin);

    // The chosen book, one place up or down among those of its seller that are shown.
    void deplacer(EditionLivres::Cote vers);

signals:
    void modifier(); // these of the chosen book
    void retirer();
    void deplace(qint64 id, Quillet::EditionLivres::Cote cote, qint64 voisin);

protected:
    void keyPressEvent(QKeyEvent *evenement) override;
    void dragEnterEvent(QDragEnterEvent *evenement) override;
    void dragMoveEvent(QDragMoveEvent *evenement) override;
    void dragLeaveEvent(QDragLeaveEvent *evenement) override;
    void dropEvent(QDropEvent *evenement) override;
    void paintEvent(QPaintEvent *evenement) override;

private:
    struct Cible
    {
        int rang;
        EditionLivres::Cote cote;
    };
    [[nodiscard]] std::optional<Cible> cible(const QDropEvent &evenement) const;
    void montrerLaCible(const std::optional<Cible> &cible);

    const ModeleLivres &modele_;
    const DelegueLivres &dessin_;
    std::optional<Cible> cible_; // where the dragged book would go
};

} // namespace Quillet
