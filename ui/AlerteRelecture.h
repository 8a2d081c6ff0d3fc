#pragma once

#include <QWidget>

class QPushButton;

namespace Quillet {

class Alerte;
class Catalogue;
class Echec;

// A warning over data; of data that somebody else has changed, it offers to read them again.
class AlerteRelecture : public QWidget
{
    Q_OBJECT

public:
    explicit AlerteRelecture(Catalogue &catalogue, QWidget *parent = nullptr);

    // No text hides all.
    void montrer(const QString &texte, bool aRelire = false);
    // Of what could not be saved.
    void montrer(const Echec &echec);

signals:
    void vaRelire(); // before what is shown changes
    void relu();

private:
    void relire();

    Catalogue &catalogue_;
    Alerte *alerte_;
    QPushButton *relire_;
};

} // namespace Quillet
