#pragma once

#include <QColor>
#include <QList>
#include <QWidget>

class QPushButton;

namespace Quillet {

// A colour among a few, or any other.
class ChoixCouleur : public QWidget
{
    Q_OBJECT

public:
    struct Nuance
    {
        QString nom;
        QColor couleur;
    };
    explicit ChoixCouleur(const QList<Nuance> &nuances, QWidget *parent = nullptr);

    // Says nothing; `choisie` tells what the user does.
    void montrer(const QColor &couleur);

signals:
    void choisie(const QColor &couleur);

private:
    class Pastille;
    void prendre(const QColor &couleur);
    void demander();

    QList<Pastille *> pastilles_;
    Pastille *autre_; // the colour, when it is none of the few
    QPushButton *bouton_;
    QColor couleur_;
};

} // namespace Quillet
