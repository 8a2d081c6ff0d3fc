#pragma once

#include <QHash>
#include <QLabel>

#include <optional>

class QTextDocument;

namespace Quillet {

// A plain text that takes its colour from the palette by its rank, and keeps it when the palette changes.
class Libelle : public QLabel
{
    Q_OBJECT

public:
    enum class Rang { principal, secondaire };

    explicit Libelle(const QString &texte, Rang rang = Rang::principal, QWidget *parent = nullptr);
    void setRang(Rang rang);
    // In small print, of second rank, on as many lines as it takes.
    static Libelle *note(const QString &texte);
    static Libelle *titreDeSection(const QString &texte);

    // A text that wraps takes the width it is given: QLabel would try many widths to find a pleasing one. It asks for
    // its longest word at least, within reason; a word that still is too long is broken where the line ends.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    // Remembered: a layout asks for the same few widths again and again.
    [[nodiscard]] int heightForWidth(int offerte) const override;

protected:
    bool event(QEvent *evenement) override;
    void changeEvent(QEvent *evenement) override;
    void paintEvent(QPaintEvent *evenement) override;

private:
    [[nodiscard]] QSize avecMarges(int largeur) const;
    [[nodiscard]] int motLePlusLong() const; // px
    [[nodiscard]] bool deborde(int largeur) const;
    [[nodiscard]] QTextDocument *documentSecable() const; // null: the label paints its text itself
    [[nodiscard]] QString secable(int largeur) const;
    void oublier() const;

    // Of `texteMesure_`.
    mutable QString texteMesure_;
    mutable QHash<int, int> hauteurs_; // by width
    mutable std::optional<int> motLePlusLong_;
};

} // namespace Quillet
