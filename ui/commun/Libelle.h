#pragma once

#include <QLabel>

// A plain text that takes its colour from the palette by its rank, and keeps it when the palette changes.
class Libelle : public QLabel
{
    Q_OBJECT

public:
    enum class Rang { principal, secondaire };

    explicit Libelle(const QString &texte, Rang rang = Rang::principal, QWidget *parent = nullptr);
    void setRang(Rang rang);
};
