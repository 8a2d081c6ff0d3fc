#pragma once

#include <QWidget>

class Catalogue;
class EnTete;
class ImagesCouvertures;

// The list of books of both sellers.
class VueLivres : public QWidget
{
    Q_OBJECT

public:
    VueLivres(const Catalogue &catalogue, ImagesCouvertures &images, QWidget *parent = nullptr);

private:
    void actualiser();

    const Catalogue &catalogue_;
    EnTete *enTete_;
};
