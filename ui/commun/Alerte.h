#pragma once

#include <QString>
#include <QWidget>

class Libelle;

// A line set off by a symbol: orange for a warning, quiet for a note.
class Alerte : public QWidget
{
    Q_OBJECT

public:
    enum class Ton { avertissement, note };

    Alerte(const QString &symbole, const QString &texte, Ton ton = Ton::avertissement, QWidget *parent = nullptr);
    // No text hides the line.
    void montrer(const QString &texte);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    void dire(const QString &texte);

    QString symbole_;
    Ton ton_;
    Libelle *texte_;
};
