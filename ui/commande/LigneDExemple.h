#pragma once

#include <QWidget>

namespace Quillet {

struct Contexte;

// A quiet line over the covers: these books and sellers are invented. It offers to put one's own in their place, or to
// go on with them, and then stays away.
class LigneDExemple : public QWidget
{
    Q_OBJECT

public:
    explicit LigneDExemple(const Contexte &contexte, QWidget *parent = nullptr);
    // Whether it has anything to say: not of data that are somebody's, nor once it was sent away.
    static bool aDire(const Contexte &contexte);

signals:
    void lesVotres();

private:
    void continuer();

    const Contexte &contexte_;
};

} // namespace Quillet
