#pragma once

#include <QString>
#include <QWidget>

class QLabel;

// A warning line: an orange symbol, and the text.
class Alerte : public QWidget
{
    Q_OBJECT

public:
    Alerte(const QString &symbole, const QString &texte, QWidget *parent = nullptr);

    [[nodiscard]] QString texte() const;

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    QString symbole_;
    QLabel *texte_;
};
