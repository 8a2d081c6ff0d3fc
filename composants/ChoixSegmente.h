#pragma once

#include <QFont>
#include <QList>
#include <QWidget>

class QRadioButton;

namespace Quillet {

class Ressort;

// A few choices side by side in a capsule; one highlight slides from choice to choice.
class ChoixSegmente : public QWidget
{
    Q_OBJECT

public:
    enum class Style { sobre, bleu };
    struct Apparence
    {
        QFont police;
        Style style = Style::sobre;
        int hauteur = 28;          // of a choice, px for text of 10 pt
        int marge = 3;             // between the capsule and the choices, px
        int espace = 2;            // between two choices, px
        int largeurMaximale = 300; // of a choice, px for text of 10 pt
    };

    ChoixSegmente(const QStringList &options, const Apparence &apparence, QWidget *parent = nullptr);

    // Says nothing; `choisi` tells what the user does.
    void montrer(int indice);
    [[nodiscard]] QRadioButton *bouton(int indice) const { return boutons_[indice]; }

signals:
    void choisi(int indice);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    void prendre(int indice);
    void eclairer(double position);
    [[nodiscard]] QRectF surbrillance() const;

    Apparence apparence_;
    QList<QRadioButton *> boutons_;
    Ressort *position_;
    bool montre_ = false; // while `montrer` checks a button
    bool deja_ = false;   // the button pressed last was checked then
};

} // namespace Quillet
