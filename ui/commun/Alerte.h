#pragma once

#include <QString>
#include <QWidget>

class Libelle;

// A warning line: an orange symbol, and the text.
class Alerte : public QWidget
{
    Q_OBJECT

public:
    Alerte(const QString &symbole, const QString &texte, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    QString symbole_;
    Libelle *texte_;
};
