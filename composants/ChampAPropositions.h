#pragma once

#include "composants/LigneDeTexte.h"

#include <QStringList>

#include <functional>

class QCompleter;
class QStringListModel;

namespace Quillet {

// A line of text under which what it may mean is proposed as one types; Return takes the first, or the one that the
// arrows have reached. Where the list was closed, Return opens it again.
class ChampAPropositions : public LigneDeTexte
{
    Q_OBJECT

public:
    using Recherche = std::function<QStringList(const QString &)>;

    explicit ChampAPropositions(Recherche recherche, QWidget *parent = nullptr);
    // Nothing is asked for any more.
    void renoncer();

signals:
    // Of those that were last proposed.
    void choisie(int rang);
    // Return, with nothing to propose.
    void sansReponse(const QString &texte);

protected:
    void hideEvent(QHideEvent *evenement) override;
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void proposer();
    void valider();
    void prendre(const QModelIndex &proposition);

    Recherche recherche_;
    QStringListModel *proposees_;
    QCompleter *liste_;
};

} // namespace Quillet
