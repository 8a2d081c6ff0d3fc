#pragma once

#include <QWidget>

class QBoxLayout;

namespace Quillet {

class Libelle;

// A grouped form: titled sections, each a raised group of rows parted by hairlines.
namespace Formulaire {

// The raised group of a section.
class Groupe : public QWidget
{
    Q_OBJECT

public:
    explicit Groupe(QWidget *parent = nullptr);
    void ajouter(QWidget *rangee);
    void inserer(int indice, QWidget *rangee);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    QBoxLayout *rangees_;
};

class Section : public QWidget
{
    Q_OBJECT

public:
    explicit Section(const QString &titre, const QString &pied = {}, QWidget *parent = nullptr);
    // Beside the title, of second rank.
    void setPrecision(const QString &precision);
    [[nodiscard]] Groupe *groupe() const { return groupe_; }

private:
    QString titre_;
    Libelle *precision_;
    Groupe *groupe_;
};

// A label with an optional second line on the left, a value on the right.
class Rangee : public QWidget
{
    Q_OBJECT

public:
    explicit Rangee(const QString &libelle, QWidget *valeur, QWidget *parent = nullptr);
    // Of the data; what the constructor is given is a text of the program.
    void setTexte(const QString &libelle);
    // Empty: no second line.
    void setDetail(const QString &detail);
    // Among fields of a record (ChampDeFiche): the value begins where theirs do.
    void alignerSurLesChamps();
    [[nodiscard]] Libelle *libelle() const { return libelle_; }

private:
    Libelle *libelle_;
    Libelle *detail_;
    QWidget *valeur_;
};

// A row whose value stands under its label, over the whole width.
class RangeeHaute : public QWidget
{
    Q_OBJECT

public:
    RangeeHaute(const QString &libelle, QWidget *valeur, QWidget *parent = nullptr);
    void setDetail(const QString &detail);

private:
    Libelle *detail_;
    QWidget *valeur_;
};

// A control alone on its row, over the whole width.
QWidget *seul(QWidget *controle);

// Room around a row of the group.
inline constexpr int margeHorizontale = 14;
inline constexpr int margeVerticale = 9;

} // namespace Formulaire

} // namespace Quillet
